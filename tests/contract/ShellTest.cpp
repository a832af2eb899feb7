#include "tests/contract/Declared.h"

namespace
{

TEST(Contract, declares_start_up_and_tick)
{
    EXPECT_TRUE(Global<char[257]>(ProfName));
    EXPECT_TRUE(Global<char[257]>(ProjPath));
    EXPECT_TRUE(Global<int>(Platform));

    EXPECT_TRUE(Declared<int(char*)>(TessaryInit));
    EXPECT_TRUE(Declared<void()>(TessaryExit));
    EXPECT_TRUE(Declared<void()>(TessaryTimr));
    EXPECT_TRUE(Declared<void(int)>(ShutDown));
    EXPECT_TRUE(Declared<int(void*)>(Timer_Event));
}

TEST(Contract, declares_what_the_application_supplies)
{
    EXPECT_TRUE(Declared<CPtrnDisp*(const char*)>(GetPtrnWnd));
    EXPECT_TRUE(Declared<int()>(UserInit));
    EXPECT_TRUE(Declared<void()>(UserExit));
    EXPECT_TRUE(Declared<void()>(UserTimr));
}

TEST(Contract, declares_slots_and_requests)
{
    EXPECT_TRUE(Global<CPtrnDisp*>(AppliWnd));
    EXPECT_TRUE(Global<CPtrnDisp*>(SystmWnd));
    EXPECT_TRUE(Global<int>(SystemWnd));
    EXPECT_TRUE(Global<int>(SystemStop));
    EXPECT_TRUE(Global<int>(WaitTimer));

    EXPECT_TRUE((Declared<void(const char*, const char*, int)>(PtrnDispTopWnd)));
    EXPECT_TRUE((Declared<void(const char*, const char*, int)>(PtrnDispSysWnd)));
    EXPECT_TRUE(Declared<void()>(PtrnDispVersnWnd));
    EXPECT_TRUE(Declared<void()>(PtrnDispMenteWnd));
    EXPECT_TRUE((Declared<void(const char*, int)>(ReqSystemStop)));
    EXPECT_TRUE((Declared<void(unsigned int, unsigned int)>(ReqKeyEntry)));
    EXPECT_TRUE(Declared<void()>(ReqKeyReset));
    EXPECT_TRUE((Declared<void(const char*, int)>(ReqHardCopy)));
}

} // namespace
