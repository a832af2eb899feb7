#include "tests/contract/Declared.h"

namespace
{

static_assert(sizeof(BYTE) == 1 && std::is_unsigned_v<BYTE>);
static_assert(sizeof(WORD) == 2 && std::is_unsigned_v<WORD>);
static_assert(sizeof(UINT) == 4 && std::is_unsigned_v<UINT>);
static_assert(sizeof(BOOL) == 4 && std::is_signed_v<BOOL>);
static_assert(std::is_same_v<LPTSTR, char*>);

static_assert(sizeof(POINT) == 8 && offsetof(POINT, x) == 0 && offsetof(POINT, y) == 4);
static_assert(sizeof(SIZE) == 8 && offsetof(SIZE, cx) == 0 && offsetof(SIZE, cy) == 4);
static_assert(sizeof(RECT) == 24 && offsetof(RECT, left) == 0 && offsetof(RECT, top) == 4);
static_assert(offsetof(RECT, right) == 8 && offsetof(RECT, bottom) == 12);
static_assert(offsetof(RECT, width) == 16 && offsetof(RECT, height) == 20);

static_assert(PTRN_GBOX == 1 && PTRN_LINE == 2 && PTRN_RECT == 3 && PTRN_CRCL == 4 && PTRN_BARG == 5);
static_assert(PTRN_FCHR == 6 && PTRN_CHAR == 7 && PTRN_NUMR == 8 && PTRN_BUTN == 9 && PTRN_RDIO == 10);
static_assert(PTRN_CHCK == 11 && PTRN_BMAP == 12 && PTRN_MARK == 13 && PTRN_SBAR == 14 && PTRN_SPIN == 15);
static_assert(CONT_PTRN == 15 && CONT_PARM == 30 && CONT_PARM1 == 30 && CONT_PARM2 == 10);
static_assert(SIZE_PTRNNAME == 80 && SIZE_LOGONAME == 20 && SIZE_BMAPNAME == 20 && SIZE_PTRNTEXT == 100);
static_assert(SIZE_ID_NAME == 80 && SIZE_ID_CODE == 20);
static_assert(FLIKER_ON == 7 && FLIKER_OFF == 3 && REPEATTIMER1 == 5 && REPEATTIMER2 == 2);

static_assert(sizeof(HEDRFILE) == 466);
static_assert(offsetof(HEDRFILE, Version) == 0 && offsetof(HEDRFILE, Parm1) == 4);
static_assert(offsetof(HEDRFILE, Parm2) == 124 && offsetof(HEDRFILE, PtrnName1) == 164);
static_assert(offsetof(HEDRFILE, PtrnName2) == 246 && offsetof(HEDRFILE, PtrnName3) == 328);
static_assert(offsetof(HEDRFILE, LogoName) == 410 && offsetof(HEDRFILE, BmapName) == 432);
static_assert(offsetof(HEDRFILE, DataCount) == 454 && offsetof(HEDRFILE, TextSize) == 458);
static_assert(offsetof(HEDRFILE, UndfFlag) == 462);

static_assert(sizeof(PTRNFILE) == 136);
static_assert(offsetof(PTRNFILE, Type) == 0 && offsetof(PTRNFILE, Parm) == 4);
static_assert(offsetof(PTRNFILE, ID_Type) == 124 && offsetof(PTRNFILE, ID_No) == 128);
static_assert(offsetof(PTRNFILE, UndfFlag) == 132);

static_assert(sizeof(PTRNHEDR) == 286);
static_assert(offsetof(PTRNHEDR, Parm1) == 0 && offsetof(PTRNHEDR, Parm2) == 120);
static_assert(offsetof(PTRNHEDR, PtrnName) == 160 && sizeof(PTRNHEDR::PtrnName) == 82);
static_assert(offsetof(PTRNHEDR, LogoName) == 242 && sizeof(PTRNHEDR::LogoName) == 22);
static_assert(offsetof(PTRNHEDR, BmapName) == 264 && sizeof(PTRNHEDR::BmapName) == 22);

static_assert(sizeof(PTRNDATA) == 632);
static_assert(offsetof(PTRNDATA, Type) == 0 && offsetof(PTRNDATA, Parm) == 4);
static_assert(offsetof(PTRNDATA, Text) == 124 && sizeof(PTRNDATA::Text) == 102);
static_assert(offsetof(PTRNDATA, ID_Type) == 226);
static_assert(offsetof(PTRNDATA, ID_Name) == 230 && sizeof(PTRNDATA::ID_Name) == 82);
static_assert(offsetof(PTRNDATA, ID_Code) == 312 && sizeof(PTRNDATA::ID_Code) == 22);
static_assert(offsetof(PTRNDATA, ID_No) == 334 && offsetof(PTRNDATA, DataNo) == 338);
static_assert(offsetof(PTRNDATA, wData) == 342 && std::is_same_v<decltype(PTRNDATA::wData), WORD>);
static_assert(offsetof(PTRNDATA, fData) == 344 && std::is_same_v<decltype(PTRNDATA::fData), float>);
static_assert(offsetof(PTRNDATA, sData) == 348 && sizeof(PTRNDATA::sData) == 256);
static_assert(offsetof(PTRNDATA, Recd) == 604);
static_assert(offsetof(PTRNDATA, Rect) == 608 && std::is_same_v<decltype(PTRNDATA::Rect), RECT>);

TEST(Contract, declares_a_loaded_pattern)
{
    EXPECT_TRUE(Global<const int[15]>(TypeTabl));
    EXPECT_TRUE(Global<const char* const[7]>(Week1));
    EXPECT_TRUE(Global<const char* const[7]>(Week2));
    EXPECT_TRUE((Declared<RECT(int, int, int, int)>(SetRect)));
    EXPECT_TRUE(Declared<const char*(const PTRNDATA*)>(ConvertNumrData));

    static_assert(std::is_constructible_v<CPtrnData, const char*>);
    EXPECT_TRUE((Declared<RECT(int, int, int, int)>(&CPtrnData::SetRect)));
    EXPECT_TRUE(Declared<const char*(const PTRNDATA*)>(&CPtrnData::ConvertNumrData));
    EXPECT_TRUE(Member<int(const char*)>(&CPtrnData::LoadPtrnData));
    EXPECT_TRUE((Member<int(int, int, PTRNDATA*)>(&CPtrnData::ReadPtrnData)));
    EXPECT_TRUE(Member<void(const PTRNDATA*)>(&CPtrnData::WritePtrnData));
}

TEST(Contract, declares_the_state_of_a_loaded_pattern)
{
    EXPECT_TRUE(Member<std::int32_t>(&CPtrnData::PtrnCont));
    EXPECT_TRUE(Member<PTRNHEDR>(&CPtrnData::PtrnHedr));
    EXPECT_TRUE(Member<PTRNDATA*>(&CPtrnData::PtrnData));
    EXPECT_TRUE(Member<std::int32_t>(&CPtrnData::PtrnCalnSec));
    EXPECT_TRUE(Member<std::int32_t>(&CPtrnData::PtrnCalnPos));
    EXPECT_TRUE(Member<std::int32_t>(&CPtrnData::ScrollPtrn1));
    EXPECT_TRUE(Member<std::int32_t>(&CPtrnData::ScrollPtrn2));
    EXPECT_TRUE(Member<std::int32_t>(&CPtrnData::ScrollPtrn3));
    EXPECT_TRUE(Member<RECT>(&CPtrnData::SCrect1));
    EXPECT_TRUE(Member<RECT>(&CPtrnData::SCrect2));
    EXPECT_TRUE(Member<RECT>(&CPtrnData::SCrect3));
    EXPECT_TRUE(Member<RECT>(&CPtrnData::SCrect4));
    EXPECT_TRUE(Member<RECT>(&CPtrnData::SCrect5));
    EXPECT_TRUE(Member<RECT>(&CPtrnData::SCrect6));
    EXPECT_TRUE(Member<SIZE>(&CPtrnData::SCoffset));
    EXPECT_TRUE(Member<std::int32_t>(&CPtrnData::FlikerFlag));
    EXPECT_TRUE(Member<std::int32_t>(&CPtrnData::FlikerTimr));
    EXPECT_TRUE(Member<std::int32_t>(&CPtrnData::RepeatFlag));
    EXPECT_TRUE(Member<std::int32_t>(&CPtrnData::RepeatMode));
    EXPECT_TRUE(Member<std::int32_t>(&CPtrnData::RepeatTimr));
    EXPECT_TRUE(Member<PTRNDATA>(&CPtrnData::RepeatPtrn));
    EXPECT_TRUE(Member<RECT>(&CPtrnData::LogoMarkButn));
    EXPECT_TRUE(Member<RECT>(&CPtrnData::HardCopyButn));
}

TEST(Contract, keeps_the_state_of_a_loaded_pattern_in_its_order)
{
    const CPtrnData data("");
    EXPECT_TRUE(ascending({&data.PtrnCont,    &data.PtrnHedr,     &data.PtrnData,    &data.PtrnCalnSec,
                           &data.PtrnCalnPos, &data.ScrollPtrn1,  &data.ScrollPtrn2, &data.ScrollPtrn3,
                           &data.SCrect1,     &data.SCrect2,      &data.SCrect3,     &data.SCrect4,
                           &data.SCrect5,     &data.SCrect6,      &data.SCoffset,    &data.FlikerFlag,
                           &data.FlikerTimr,  &data.RepeatFlag,   &data.RepeatMode,  &data.RepeatTimr,
                           &data.RepeatPtrn,  &data.LogoMarkButn, &data.HardCopyButn}));
}

TEST(Contract, declares_display_flicker_and_repeat)
{
    EXPECT_TRUE(Member<void(CDraw*)>(&CPtrnData::DispPtrnData));
    EXPECT_TRUE((Member<void(CDraw*, int)>(&CPtrnData::DispPtrnData)));
    EXPECT_TRUE((Member<void(CDraw*, PTRNDATA*, int)>(&CPtrnData::DispPtrnData)));
    EXPECT_TRUE(Member<void(CDraw*)>(&CPtrnData::UpdtPtrnData));
    EXPECT_TRUE((Member<void(CDraw*, int)>(&CPtrnData::UpdtPtrnData)));
    EXPECT_TRUE((Member<void(CDraw*, PTRNDATA*)>(&CPtrnData::ClerPtrnData)));
    EXPECT_TRUE(Member<void(CDraw*)>(&CPtrnData::FlikPtrnData));
    EXPECT_TRUE(Member<int(PTRNDATA*)>(&CPtrnData::ReptPtrnData));
}

TEST(Contract, declares_the_fifteen_types)
{
    using Type = CPtrnData;
    for (const auto draws :
         {&Type::DispPtrnData01, &Type::DispPtrnData02, &Type::DispPtrnData03, &Type::DispPtrnData04,
          &Type::DispPtrnData05, &Type::DispPtrnData09, &Type::DispPtrnData12, &Type::DispPtrnData15})
        EXPECT_TRUE((Member<void(CDraw*, PTRNDATA*)>(draws)));
    for (const auto draws :
         {&Type::DispPtrnData06, &Type::DispPtrnData07, &Type::DispPtrnData08, &Type::DispPtrnData10,
          &Type::DispPtrnData11, &Type::DispPtrnData13, &Type::DispPtrnData14})
        EXPECT_TRUE((Member<void(CDraw*, PTRNDATA*, int)>(draws)));
    for (const auto erases : {&Type::ClerPtrnData01, &Type::ClerPtrnData02, &Type::ClerPtrnData03,
                              &Type::ClerPtrnData04, &Type::ClerPtrnData06, &Type::ClerPtrnData10})
        EXPECT_TRUE((Member<void(CDraw*, PTRNDATA*)>(erases)));
    for (const auto blinks : {&Type::FlikPtrnData06, &Type::FlikPtrnData13})
        EXPECT_TRUE((Member<void(CDraw*, PTRNDATA*, int)>(blinks)));
    for (const auto hits :
         {&Type::TestPtrnData01, &Type::TestPtrnData02, &Type::TestPtrnData06, &Type::TestPtrnData10})
        EXPECT_TRUE((Member<int(POINT, PTRNDATA*)>(hits)));
}

TEST(Contract, declares_pointer_and_keys_on_items)
{
    EXPECT_TRUE(Member<int(POINT)>(&CPtrnData::TestPtrnData));
    EXPECT_TRUE((Member<int(POINT, int)>(&CPtrnData::TestPtrnData)));
    EXPECT_TRUE((Member<int(POINT, PTRNDATA*)>(&CPtrnData::TestPtrnData)));
    EXPECT_TRUE((Member<int(POINT, PTRNDATA*)>(&CPtrnData::LButtonDown)));
    EXPECT_TRUE(Member<void()>(&CPtrnData::LButtonUp));
    EXPECT_TRUE(Member<void(POINT)>(&CPtrnData::MouseMove));
    EXPECT_TRUE((Member<int(int, PTRNDATA*)>(&CPtrnData::WheelToScroll)));
    EXPECT_TRUE((Member<int(int, PTRNDATA*)>(&CPtrnData::WheelToSpin)));
    EXPECT_TRUE((Member<int(int, PTRNDATA*)>(&CPtrnData::SetScrollKey)));
    EXPECT_TRUE((Member<int(int, PTRNDATA*)>(&CPtrnData::ConvScrollKey)));
    EXPECT_TRUE((Member<int(int, PTRNDATA*)>(&CPtrnData::SetButtonKey)));
}

TEST(Contract, declares_scroll_bars_spin_buttons_and_title_bar)
{
    EXPECT_TRUE(Member<void(PTRNDATA*)>(&CPtrnData::SetScrollBar));
    EXPECT_TRUE((Member<void(CDraw*, PTRNDATA*)>(&CPtrnData::DispScrollBar)));
    EXPECT_TRUE((Member<int(POINT, PTRNDATA*)>(&CPtrnData::TestScrollBar)));
    EXPECT_TRUE((Member<int(POINT, PTRNDATA*)>(&CPtrnData::SetScrollPos)));
    EXPECT_TRUE((Member<int(POINT, PTRNDATA*)>(&CPtrnData::TestSpinButn)));
    EXPECT_TRUE(Member<void(CDraw*)>(&CPtrnData::DispTitle));
    EXPECT_TRUE(Member<void(CDraw*)>(&CPtrnData::DispCalender));
    EXPECT_TRUE((Member<int(POINT, int)>(&CPtrnData::TestTitle)));
}

} // namespace
