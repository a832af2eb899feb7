#include "tests/contract/Declared.h"

namespace
{

static_assert(CONT_COLR == 100 && CONT_FONT == 20 && SIZE_FONT == 30 && CONT_MARK == 350 && SIZE_MARK == 512);

static_assert(sizeof(COLRDATA) == 12);
static_assert(offsetof(COLRDATA, red) == 0 && offsetof(COLRDATA, green) == 4 &&
              offsetof(COLRDATA, blue) == 8);
static_assert(std::is_same_v<decltype(COLRDATA::red), std::int32_t>);
static_assert(sizeof(MARKDATA) == 512 && std::is_same_v<decltype(MARKDATA::mark), BYTE[512]>);
static_assert(std::is_same_v<decltype(MARK_XPM::mark), char* [67]>);
static_assert(std::is_same_v<decltype(MARK_XPM::data), char[67][66]>);
static_assert(offsetof(MARK_XPM, mark) < offsetof(MARK_XPM, data));

TEST(Contract, declares_drawing_resources)
{
    EXPECT_TRUE(Global<COLRDATA[100]>(ColrData));
    EXPECT_TRUE(Global<GdkColor[100]>(DrawColr));
    EXPECT_TRUE(Global<GdkFont* [20]>(DrawFont));
    EXPECT_TRUE(Global<SIZE[20]>(FontSize));
    EXPECT_TRUE(Global<int>(Language));
    EXPECT_TRUE(Global<MARKDATA[350]>(MarkData));
    EXPECT_TRUE(Global<MARK_XPM[354]>(Mark_XPM));
    EXPECT_TRUE(Global<const int[7]>(MarkXsize));
    EXPECT_TRUE(Global<const int[7]>(MarkYsize));
    EXPECT_TRUE(Global<int>(DispSizeX));
    EXPECT_TRUE(Global<int>(DispSizeY));
    EXPECT_TRUE(Global<GdkColor[2]>(CusrColr));
    EXPECT_TRUE(Global<char* const[8]>(CursorData));
    EXPECT_TRUE(Global<char* const[8]>(CursorMask));
    EXPECT_TRUE(Global<const POINT[8]>(CursorHome));

    EXPECT_TRUE(Declared<void()>(DrawCntlInit));
    EXPECT_TRUE((Declared<void(int, const char*)>(FontDataInit)));
    EXPECT_TRUE(Declared<void()>(MarkDataSet));
    EXPECT_TRUE(Declared<void()>(MarkDataInit));
    EXPECT_TRUE(Declared<void()>(XPM_DataInit));
    EXPECT_TRUE((Declared<void(char**, int, char*, char*, char*)>(SetXpmColr)));
    EXPECT_TRUE((Declared<void(char**, char*, char*)>(MakeCursor)));
}

TEST(Contract, declares_built_in_images)
{
    for (char** const lines :
         {XPM_Printer,     XPM_SpinButn,    XPM_LeftArrow1, XPM_LeftArrow2, XPM_UpArrow1, XPM_UpArrow2,
          XPM_RightArrow1, XPM_RightArrow2, XPM_DownArrow1, XPM_DownArrow2, XPM_Cursor1,  XPM_Cursor2,
          XPM_Cursor3,     XPM_Cursor4,     XPM_Cursor5,    XPM_Cursor6,    XPM_Cursor7,  XPM_Cursor8,
          XPM_Radio_OFF,   XPM_Radio_ON,    XPM_Check_OFF,  XPM_Check_ON})
        EXPECT_NE(lines[0], nullptr);

    char* const data[] = {XPM_Cursor1_data, XPM_Cursor2_data, XPM_Cursor3_data, XPM_Cursor4_data,
                          XPM_Cursor5_data, XPM_Cursor6_data, XPM_Cursor7_data, XPM_Cursor8_data};
    char* const masks[] = {XPM_Cursor1_mask, XPM_Cursor2_mask, XPM_Cursor3_mask, XPM_Cursor4_mask,
                           XPM_Cursor5_mask, XPM_Cursor6_mask, XPM_Cursor7_mask, XPM_Cursor8_mask};
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(CursorData[i], data[i]);
        EXPECT_EQ(CursorMask[i], masks[i]);
    }
}

static_assert(std::is_same_v<decltype(CDraw::window), GdkWindow*> && offsetof(CDraw, window) == 0);
static_assert(std::is_same_v<decltype(CDraw::gc), GdkGC*> && offsetof(CDraw, gc) == sizeof(void*));
static_assert(sizeof(CDraw) == 2 * sizeof(void*) && !std::is_polymorphic_v<CDraw>);
static_assert(std::is_base_of_v<CDraw, CPaintDraw> && sizeof(CPaintDraw) == sizeof(CDraw));
static_assert(std::is_base_of_v<CDraw, CClientDraw> && sizeof(CClientDraw) == sizeof(CDraw));
static_assert(std::is_constructible_v<CPaintDraw, GdkWindow*>);
static_assert(std::is_constructible_v<CClientDraw, GdkWindow*>);

TEST(Contract, declares_drawing_primitives)
{
    using Text = const char*;
    EXPECT_TRUE(Member<void(int)>(&CDraw::ClearScreen));
    EXPECT_TRUE((Member<void(RECT, int)>(&CDraw::ClearScreen)));
    EXPECT_TRUE((Member<void(int, int, int, int, int)>(&CDraw::ClearScreen)));
    EXPECT_TRUE((Member<void(int, int, int, int, int, Text)>(&CDraw::DrawText)));
    EXPECT_TRUE((Member<void(POINT, int, int, int, Text)>(&CDraw::DrawText)));
    EXPECT_TRUE((Member<void(int, int, int, int, Text)>(&CDraw::ClearText)));
    EXPECT_TRUE((Member<void(POINT, int, int, Text)>(&CDraw::ClearText)));
    EXPECT_TRUE((Member<SIZE(int, Text)>(&CDraw::GetTextSize)));
    EXPECT_TRUE((Member<void(int, int, int, int, int, int, int, int)>(&CDraw::DrawLine)));
    EXPECT_TRUE((Member<void(RECT, int, int, int, int)>(&CDraw::DrawLine)));
    EXPECT_TRUE((Member<void(int, int, int, int, int, int, int, int)>(&CDraw::DrawRect)));
    EXPECT_TRUE((Member<void(RECT, int, int, int, int)>(&CDraw::DrawRect)));
    EXPECT_TRUE((Member<void(int, int, int, int, int)>(&CDraw::DrawRect)));
    EXPECT_TRUE((Member<void(RECT, int)>(&CDraw::DrawRect)));
    EXPECT_TRUE((Member<void(int, int, int, int, int, int, int, int)>(&CDraw::DrawCrcl)));
    EXPECT_TRUE((Member<void(RECT, int, int, int, int)>(&CDraw::DrawCrcl)));
    EXPECT_TRUE((Member<void(int, int, int, int, int)>(&CDraw::DrawRect1)));
    EXPECT_TRUE((Member<void(int, int, int, int, int)>(&CDraw::DrawCrcl1)));
}

TEST(Contract, declares_boxes_buttons_and_images)
{
    using Text = const char*;
    EXPECT_TRUE(
        (Member<void(int, int, int, int, int, int, int, int, int, int, int, int, int)>(&CDraw::DrawGbox)));
    EXPECT_TRUE((Member<void(RECT, int, int, int, int, int, int, int, int, int)>(&CDraw::DrawGbox)));
    EXPECT_TRUE(
        (Member<void(int, int, int, int, int, int, int, int, int, int, int, Text)>(&CDraw::DrawButn)));
    EXPECT_TRUE((Member<void(RECT, int, int, int, int, int, int, int, Text)>(&CDraw::DrawButn)));
    EXPECT_TRUE((Member<void(int, int, int, int, int, int, int)>(&CDraw::DrawMark)));
    EXPECT_TRUE((Member<void(RECT, int, int, int)>(&CDraw::DrawMark)));
    EXPECT_TRUE((Member<void(int, int, int, int, int, Text)>(&CDraw::DrawBmap)));
    EXPECT_TRUE((Member<void(RECT, int, Text)>(&CDraw::DrawBmap)));
    EXPECT_TRUE((Member<void(int, int, int, int, const char* const*)>(&CDraw::DrawXpm)));
    EXPECT_TRUE((Member<void(RECT, const char* const*)>(&CDraw::DrawXpm)));

    EXPECT_TRUE(Global<gint8[2]>(dash1));
    EXPECT_TRUE(Global<gint8[2]>(dash2));
}

TEST(Contract, declares_hit_tests)
{
    EXPECT_TRUE((Declared<int(POINT, int, int, int, int)>(PointInRect)));
    EXPECT_TRUE((Declared<int(POINT, RECT)>(PointInRect)));
    EXPECT_TRUE((Declared<int(POINT, RECT)>(TestRect)));
    EXPECT_TRUE((Declared<int(POINT, int, int, int, const char*)>(TestText)));
    EXPECT_TRUE((Declared<int(POINT, RECT)>(TestLine)));
    EXPECT_TRUE((Declared<int(POINT, RECT)>(TestCrcl)));
}

} // namespace
