#include "tests/contract/Declared.h"

namespace
{

static_assert(SIZE_LOGMESG1 == 20 && SIZE_LOGMESG2 == 200 && SIZE_LOGFILE == 16);

static_assert(sizeof(LOGBUFFER) == 258);
static_assert(offsetof(LOGBUFFER, time) == 0 && sizeof(LOGBUFFER::time) == 12);
static_assert(offsetof(LOGBUFFER, mesg1) == 12 && sizeof(LOGBUFFER::mesg1) == 22);
static_assert(offsetof(LOGBUFFER, mesg2) == 34 && sizeof(LOGBUFFER::mesg2) == 202);
static_assert(offsetof(LOGBUFFER, file) == 236 && sizeof(LOGBUFFER::file) == 18);
static_assert(offsetof(LOGBUFFER, line) == 254);

TEST(Contract, declares_the_log)
{
    EXPECT_TRUE(Global<char[255]>(LogPath));
    EXPECT_TRUE(Global<char[255]>(LogName));
    EXPECT_TRUE(Global<LOGBUFFER*>(LogBuff));
    EXPECT_TRUE(Global<int>(LogSize));
    EXPECT_TRUE(Global<int>(LogCont));
    EXPECT_TRUE(Global<int>(LogTimr));
    EXPECT_TRUE(Global<int>(LogDay));

    EXPECT_TRUE(Declared<void()>(LogfileInit));
    EXPECT_TRUE(Declared<void()>(LogfileExit));
    EXPECT_TRUE(Declared<void()>(LogfileSave));
    EXPECT_TRUE(Declared<void()>(LogfileTimr));
    EXPECT_TRUE((Declared<void(const char*, const char*, const char*, int)>(LogfileWrite)));
}

TEST(Contract, declares_clock_and_calendar)
{
    EXPECT_TRUE(Global<struct tm>(LocalTime));
    EXPECT_TRUE(Global<const int[12]>(daytabl));

    EXPECT_TRUE(Declared<void()>(GetLocalTime));
    EXPECT_TRUE(Declared<void(int*)>(Get_Caln));
    EXPECT_TRUE((Declared<void(int*, int*)>(Get_Caln)));
    EXPECT_TRUE((Declared<int(int, int, int)>(Get_Week)));
    EXPECT_TRUE(Declared<int(const int*)>(Get_Week));
    EXPECT_TRUE((Declared<int(int, int)>(Get_DayCount)));
    EXPECT_TRUE(Declared<int(const int*)>(Get_DayCount));
    EXPECT_TRUE((Declared<int(int, int, int)>(CalcDate)));
    EXPECT_TRUE(Declared<int(const int*)>(CalcDate));
    EXPECT_TRUE((Declared<void(int*, int)>(CalcDate)));
    EXPECT_TRUE((Declared<int(int, int, int)>(CalcTime)));
    EXPECT_TRUE(Declared<int(const int*)>(CalcTime));
    EXPECT_TRUE((Declared<void(int*, int)>(CalcTime)));
}

} // namespace
