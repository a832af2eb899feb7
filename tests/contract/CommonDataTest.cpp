#include "tests/contract/Declared.h"

namespace
{

static_assert(DTNO_SYSCALN == 1 && DTNO_SYSEROR == 11 && DTNO_MENTE == 20 && DTNO_SYSTEM == 100);
static_assert(CONT_MESGDATA == 500 && SIZE_MESGTEXT == 100 && CONT_LIMTDATA == 500);

static_assert(std::is_same_v<decltype(COMNDATA::wData), WORD> && offsetof(COMNDATA, wData) == 0);
static_assert(std::is_same_v<decltype(COMNDATA::fData), float> && offsetof(COMNDATA, fData) == 2);
static_assert(std::is_same_v<decltype(COMNDATA::sData), LPTSTR> && offsetof(COMNDATA, sData) == 6);

static_assert(sizeof(PTRNCODE) == 34);
static_assert(offsetof(PTRNCODE, ID_Code) == 0 && sizeof(PTRNCODE::ID_Code) == 22);
static_assert(offsetof(PTRNCODE, DataCount) == 22 && offsetof(PTRNCODE, DataNo) == 26);
static_assert(offsetof(PTRNCODE, DispNo) == 30);
static_assert(sizeof(PTRNNAME) == 82 && sizeof(PTRNNAME::name) == 82);

static_assert(sizeof(MESGDATA) == 128);
static_assert(offsetof(MESGDATA, ID_Code) == 0 && sizeof(MESGDATA::ID_Code) == 22);
static_assert(offsetof(MESGDATA, ID_No) == 22);
static_assert(offsetof(MESGDATA, MesgText) == 26 && sizeof(MESGDATA::MesgText) == 102);

static_assert(sizeof(LIMTDATA) == 54);
static_assert(offsetof(LIMTDATA, ID_Code) == 0 && sizeof(LIMTDATA::ID_Code) == 22);
static_assert(offsetof(LIMTDATA, ID_No1) == 22 && offsetof(LIMTDATA, ID_No2) == 26);
static_assert(offsetof(LIMTDATA, DataNo1) == 30 && offsetof(LIMTDATA, DataNo2) == 34);
static_assert(offsetof(LIMTDATA, MIN_Data) == 38 && offsetof(LIMTDATA, MAX_Data) == 42);
static_assert(offsetof(LIMTDATA, ErrorNo1) == 46 && offsetof(LIMTDATA, ErrorNo2) == 50);

TEST(Contract, declares_the_store)
{
    EXPECT_TRUE(Global<COMNDATA*>(ComnData));
    EXPECT_TRUE(Global<std::int32_t>(PtrnDataNo));

    EXPECT_TRUE(Declared<int()>(ComnDataInit));
    EXPECT_TRUE(Declared<void()>(ComnDataExit));
    EXPECT_TRUE((Declared<int(int, const char*, int)>(CheckComnData)));
    EXPECT_TRUE(Declared<void()>(LockComnData));
    EXPECT_TRUE(Declared<void()>(UnlockComnData));
}

TEST(Contract, declares_access_to_cells)
{
    EXPECT_TRUE((Declared<WORD(int, const char*, int)>(Get_wData)));
    EXPECT_TRUE((Declared<int(int, const char*, int)>(Get_iData)));
    EXPECT_TRUE((Declared<float(int, const char*, int)>(Get_fData)));
    EXPECT_TRUE((Declared<double(int, const char*, int)>(Get_dData)));
    EXPECT_TRUE((Declared<LPTSTR(int, const char*, int)>(Get_sData)));
    EXPECT_TRUE((Declared<void(int, WORD, const char*, int)>(Set_wData)));
    EXPECT_TRUE((Declared<void(int, int, const char*, int)>(Set_iData)));
    EXPECT_TRUE((Declared<void(int, float, const char*, int)>(Set_fData)));
    EXPECT_TRUE((Declared<void(int, double, const char*, int)>(Set_dData)));
    EXPECT_TRUE((Declared<void(int, const char*, const char*, int)>(Set_sData)));
    EXPECT_TRUE((Declared<void(int, WORD, const char*, int)>(OR_wData)));
    EXPECT_TRUE((Declared<void(int, WORD, const char*, int)>(AND_wData)));
    EXPECT_TRUE((Declared<void(int, WORD, const char*, int)>(EOR_wData)));

    EXPECT_TRUE((Declared<void(int, int, WORD, const char*, int)>(SetLogfile)));
    EXPECT_TRUE((Declared<void(int, int, int, const char*, int)>(SetLogfile)));
    EXPECT_TRUE((Declared<void(int, int, float, const char*, int)>(SetLogfile)));
    EXPECT_TRUE((Declared<void(int, int, const char*, const char*, int)>(SetLogfile)));
}

TEST(Contract, declares_filling_of_cells)
{
    EXPECT_TRUE((Declared<void(int, int, WORD, const char*, int)>(Clear_wData)));
    EXPECT_TRUE((Declared<void(int, int, int, const char*, int)>(Clear_iData)));
    EXPECT_TRUE((Declared<void(int, int, float, const char*, int)>(Clear_fData)));
    EXPECT_TRUE((Declared<void(int, int, const char*, const char*, int)>(Clear_sData)));
    EXPECT_TRUE((Declared<void(int, int, const char*, int)>(Clear_AllData)));
    EXPECT_TRUE((Declared<void(int, int, WORD, int, const char*, const char*, int)>(Clear_AllData)));
    EXPECT_TRUE((Declared<void(int, int, WORD, float, const char*, const char*, int)>(Clear_AllData)));
    EXPECT_TRUE((Declared<void(int, const char*, int)>(Clear_AllData)));
}

TEST(Contract, declares_codes_and_item_state)
{
    EXPECT_TRUE(Global<PTRNCODE*>(PtrnCode));
    EXPECT_TRUE(Global<std::int32_t>(PtrnRecd));
    EXPECT_TRUE(Global<BYTE*>(PtrnFlag));
    EXPECT_TRUE(Global<PTRNNAME*>(PtrnName));
    EXPECT_TRUE(Global<std::int32_t>(PtrnCount));

    EXPECT_TRUE(Declared<int()>(LoadCodeData));
    EXPECT_TRUE((Declared<int(int, char*)>(ConvertDtno)));
    EXPECT_TRUE((Declared<int(const char*, int)>(ConvertDtno)));
    EXPECT_TRUE(Declared<int(const char*)>(ConvertPtrn));
    EXPECT_TRUE((Declared<void(int, int, const char*, int)>(Set_Color)));
    EXPECT_TRUE((Declared<void(int, int, const char*, int)>(Set_Flikr)));
    EXPECT_TRUE((Declared<void(int, int, int, const char*, int)>(Set_Disable)));
}

TEST(Contract, declares_messages_and_limits)
{
    EXPECT_TRUE(Global<MESGDATA* [500]>(MesgData));
    EXPECT_TRUE(Global<LIMTDATA* [500]>(LimtData));

    EXPECT_TRUE(Declared<void()>(LoadMesgData));
    EXPECT_TRUE(Declared<void()>(ExitMesgData));
    EXPECT_TRUE(Declared<void()>(LoadLimtData));
    EXPECT_TRUE(Declared<void()>(ExitLimtData));
    EXPECT_TRUE((Declared<LPTSTR(int, const char*, int)>(Get_MesgData)));
    EXPECT_TRUE((Declared<void(int, char*, const char*, int)>(Get_MesgData)));
    EXPECT_TRUE(Declared<void(int)>(DispErrorMesg));
    EXPECT_TRUE(Declared<void(const char*)>(DispErrorMesg));
    EXPECT_TRUE(Declared<void()>(ClearErrorMesg));
    EXPECT_TRUE((Declared<int(int, float, const char*, int)>(ChckLimtData)));
    EXPECT_TRUE((Declared<int(int, float*, float*, const char*, int)>(Get_LimtData)));
}

} // namespace
