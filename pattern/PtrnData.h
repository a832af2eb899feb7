// A loaded pattern: its header, its items, and everything that is done with items
// (display, flicker, repeat, hit test, press, scroll bars, title bar).
#pragma once

#include "base/Constants.h"
#include "base/Types.h"

#include <functional>
#include <initializer_list>
#include <memory>
#include <utility>
#include <vector>

class CDraw;

namespace tessary
{
struct Box;
class Layers;
} // namespace tessary

/// The type numbers in the order in which they are drawn within a pass. Hit tests go through it backwards.
extern const int TypeTabl[CONT_PTRN];

// Times in ticks of 100 ms.
constexpr int FLIKER_ON = 7;    ///< a blinking item is shown
constexpr int FLIKER_OFF = 3;   ///< and blanked
constexpr int REPEATTIMER1 = 5; ///< a control is held before it starts to repeat
constexpr int REPEATTIMER2 = 2; ///< from one repeat to the next

namespace tessary
{

/// CPtrnData::RepeatFlag.
enum RepeatState {
    REPEAT_IDLE = 0,
    REPEAT_WAITING = 1, ///< held, not yet for REPEATTIMER1 ticks
    REPEAT_STEPPING = 2,
};

} // namespace tessary

#pragma pack(push, 1)

/// The pattern header as held in memory.
struct PTRNHEDR {
    std::int32_t Parm1[CONT_PARM1];   ///< window geometry, title bar, colours (HedrParm)
    std::int32_t Parm2[CONT_PARM2];   ///< numbers for the application
    char PtrnName[SIZE_PTRNNAME + 2]; ///< title in the current language
    char LogoName[SIZE_LOGONAME + 2]; ///< file in "Bitmap"
    char BmapName[SIZE_BMAPNAME + 2]; ///< file in "Bitmap", the background
};
static_assert(sizeof(PTRNHEDR) == 286);

/// One item. Copied whole; changed on a copy and written back with WritePtrnData. A record begins on a
/// four-byte boundary, so that Parm may be pointed at; members behind Text lie as packing puts them.
struct alignas(std::int32_t) PTRNDATA {
    std::int32_t Type;              ///< PtrnType
    std::int32_t Parm[CONT_PARM];   ///< ItemParm
    char Text[SIZE_PTRNTEXT + 2];   ///< text in the current language
    std::int32_t ID_Type;           ///< action code
    char ID_Name[SIZE_ID_NAME + 2]; ///< pattern that the action opens
    char ID_Code[SIZE_ID_CODE + 2]; ///< empty: bound to no data
    std::int32_t ID_No;             ///< offset within the code
    std::int32_t DataNo;            ///< cell: 0 unbound, -1 unknown code
    WORD wData;                     ///< cached state word
    float fData;                    ///< cached number
    char sData[256];                ///< cached text
    std::int32_t Recd;              ///< index in the item array
    RECT Rect;                      ///< SetRect(Parm[0..3])
};
static_assert(sizeof(PTRNDATA) == 632);

#pragma pack(pop)

/// Text of a numeric item's current value: hexadecimal, or decimal with optional zero fill and grouping.
/// A separator takes the place of digits: 1234567 in a field of 7 reads "1,4,7". In later editions it is
/// tessary::NumberText.
/// @param item  its FIELD_... parameters and data number are used; a negative width fills on the right,
///              negative decimals mean six, and both are held at 255
/// @return a static buffer of at most 255 bytes of text, overwritten by the next call
const char* ConvertNumrData(const PTRNDATA* item);

/// A loaded pattern.
class CPtrnData
{
  public:
    std::int32_t PtrnCont = 0;    ///< number of items
    PTRNHEDR PtrnHedr{};          ///< the header
    PTRNDATA* PtrnData = nullptr; ///< owned; PtrnCont items in file order
    std::int32_t PtrnCalnSec;     ///< second last shown by the clock; -1 none yet
    std::int32_t PtrnCalnPos = 0; ///< pixels kept free right of the clock
    std::int32_t ScrollPtrn1;     ///< Recd of the scroll bar last clicked of those with SBAR_ROLE1; -1 none
    std::int32_t ScrollPtrn2;     ///< of the horizontal one used last
    std::int32_t ScrollPtrn3;     ///< of the vertical one used last
    RECT SCrect1{};               ///< layout of the scroll bar handled last: first page button
    RECT SCrect2{};               ///< second page button
    RECT SCrect3{};               ///< first arrow button
    RECT SCrect4{};               ///< second arrow button
    RECT SCrect5{};               ///< thumb
    RECT SCrect6{};               ///< trough
    SIZE SCoffset{};              ///< where inside the thumb the pointer grabbed it
    std::int32_t FlikerFlag;      ///< flicker phase: 1 shown, 0 blanked
    std::int32_t FlikerTimr;      ///< ticks in the phase
    std::int32_t RepeatFlag;      ///< RepeatState
    std::int32_t RepeatMode = 0;  ///< the part that is held, as TestScrollBar and TestSpinButn number them
    std::int32_t RepeatTimr = 0;  ///< ticks since the last step
    PTRNDATA RepeatPtrn{};        ///< the item being held
    RECT LogoMarkButn{};          ///< title bar button areas, set when the title bar is drawn
    RECT HardCopyButn{};          ///< the hard-copy button
    /// Of the window: what lies below a body whose bitmap does not cover it, and what lies above the items,
    /// such as a field in edit. Called while a part of the display is restored, with a context that draws
    /// only there; null for nothing.
    std::function<void(CDraw*)> DrawBelow;
    std::function<void(CDraw*)> DrawAbove; ///< what lies above

    /// Loads the pattern `name`; a pattern that can not be loaded leaves an object without items.
    explicit CPtrnData(const char* name);
    ~CPtrnData();
    CPtrnData(const CPtrnData&) = delete;
    CPtrnData& operator=(const CPtrnData&) = delete;

    // --- records -------------------------------------------------------------------------------

    /// Loads `NAME.ptn` of the project directory in place of what was loaded before. Of a damaged file
    /// everything is kept that it holds: items whose records are missing are not made, texts that are missing
    /// are empty, texts that are too long are cut; the log has one line for each kind of damage.
    /// @return 1; or 0, without items, when the file does not exist (not logged) or its header can not be
    /// read
    int LoadPtrnData(const char* name);

    /// Copies out the first item (file order) of that data number and type. @return 1 found, 0 none
    int ReadPtrnData(int dataNo, int type, PTRNDATA* item);

    /// Copies a record back over the item with its Recd; a Recd outside the array is ignored. A type or a
    /// pass changed in any other way counts from the next full display or hit test on.
    void WritePtrnData(const PTRNDATA* item);

    static RECT SetRect(int x1, int y1, int x2, int y2) { return ::SetRect(x1, y1, x2, y2); } ///< the same
    /// The same as the function of that name.
    static const char* ConvertNumrData(const PTRNDATA* item) { return ::ConvertNumrData(item); }

    // --- display, flicker, repeat ----------------------------------------------------------------

    /// Full display: every item, pass 0 then pass 1.
    void DispPtrnData(CDraw* draw);
    /// Full display of one pass.
    void DispPtrnData(CDraw* draw, int top);
    /// Draws one item by its type. @param updt 0 full display, 1 tick update
    void DispPtrnData(CDraw* draw, PTRNDATA* item, int updt);
    /// Redraws the bound items whose cell has changed.
    void UpdtPtrnData(CDraw* draw);
    void UpdtPtrnData(CDraw* draw, int top); ///< those of one pass
    /// Draws an area anew as a full display would, with the cells' present values: title bar and body, the
    /// items whose pictures meet it, and what lies above them. Neither their caches nor what lies outside
    /// change.
    /// @param area  pixels of the pattern; its right column and bottom row are left out
    void RestoreArea(CDraw* draw, const RECT& area);
    /// Shows the items of a data number, of one type or (type 0) of all, as their cells are now, together
    /// with what lies below and above them.
    void RedrawPtrnData(CDraw* draw, int dataNo, int type);
    /// Erases one item by its type.
    void ClerPtrnData(CDraw* draw, PTRNDATA* item);
    /// Advances the flicker cycle by one tick and redraws at a phase change.
    void FlikPtrnData(CDraw* draw);
    /// Advances auto-repeat by one tick. @return 1 when a value changed; the held item is then in `item`
    int ReptPtrnData(PTRNDATA* item);

    // --- the fifteen types -----------------------------------------------------------------------

    /// @{
    /// Draw (Disp), erase (Cler) or blink (Flik) one item, whose type the number tells; an eraser or a hit
    /// test may serve several types.
    /// `updt` is 0 for a full display and 1 for a tick update, `phase` 1 for shown and 0 for blanked.
    void DispPtrnData01(CDraw* draw, PTRNDATA* item);
    void DispPtrnData02(CDraw* draw, PTRNDATA* item);
    void DispPtrnData03(CDraw* draw, PTRNDATA* item);
    void DispPtrnData04(CDraw* draw, PTRNDATA* item);
    void DispPtrnData05(CDraw* draw, PTRNDATA* item);
    void DispPtrnData06(CDraw* draw, PTRNDATA* item, int updt);
    void DispPtrnData07(CDraw* draw, PTRNDATA* item, int updt);
    void DispPtrnData08(CDraw* draw, PTRNDATA* item, int updt);
    void DispPtrnData09(CDraw* draw, PTRNDATA* item);
    void DispPtrnData10(CDraw* draw, PTRNDATA* item, int updt);
    void DispPtrnData11(CDraw* draw, PTRNDATA* item, int updt);
    void DispPtrnData12(CDraw* draw, PTRNDATA* item);
    void DispPtrnData13(CDraw* draw, PTRNDATA* item, int updt);
    void DispPtrnData14(CDraw* draw, PTRNDATA* item, int updt);
    void DispPtrnData15(CDraw* draw, PTRNDATA* item);
    void ClerPtrnData01(CDraw* draw, PTRNDATA* item);
    void ClerPtrnData02(CDraw* draw, PTRNDATA* item);
    void ClerPtrnData03(CDraw* draw, PTRNDATA* item);
    void ClerPtrnData04(CDraw* draw, PTRNDATA* item);
    void ClerPtrnData06(CDraw* draw, PTRNDATA* item);
    void ClerPtrnData10(CDraw* draw, PTRNDATA* item);
    void FlikPtrnData06(CDraw* draw, PTRNDATA* item, int phase);
    void FlikPtrnData13(CDraw* draw, PTRNDATA* item, int phase);
    /// @}

    // --- pointer and keys ------------------------------------------------------------------------

    /// Index of the item under a point in pattern coordinates, -1 none; pass 1 before pass 0.
    int TestPtrnData(POINT point);
    int TestPtrnData(POINT point, int top); ///< of one pass
    /// 1 when the point hits this item by its type's test.
    int TestPtrnData(POINT point, PTRNDATA* item);

    /// @{
    /// 1 when the point hits an item of the type that the number tells, and of those that share its test.
    int TestPtrnData01(POINT point, PTRNDATA* item);
    int TestPtrnData02(POINT point, PTRNDATA* item);
    int TestPtrnData06(POINT point, PTRNDATA* item);
    int TestPtrnData10(POINT point, PTRNDATA* item);
    /// @}

    /// Left press on an item copy, which a linked item may replace.
    /// @return 0 nothing, 1 carry out the action, 2 start keyboard entry, 3 start dragging the thumb
    int LButtonDown(POINT point, PTRNDATA* item);
    /// Ends auto-repeat.
    void LButtonUp();
    /// Ends auto-repeat when the pointer leaves the held part.
    void MouseMove(POINT point);

    /// @{
    /// One wheel click; direction 0 up, other values down. @return 1 when a value changed
    int WheelToScroll(int direction, PTRNDATA* item);
    int WheelToSpin(int direction, PTRNDATA* item);
    /// @}

    /// An arrow or page key moves the scroll bar that was used last, else the first one that takes keys.
    /// @param key   an X keysym
    /// @param item  receives the bar
    /// @return 1 when the key was used
    int SetScrollKey(int key, PTRNDATA* item);
    /// The same for one bar. @return 1 when its value has changed
    int ConvScrollKey(int key, PTRNDATA* item);
    /// Finds the button of a function key, F1 to F12, hidden ones left out; nothing is pressed.
    /// @param item  receives it
    /// @return 1 when there is one
    int SetButtonKey(int key, PTRNDATA* item);

    // --- scroll bars and spin buttons ------------------------------------------------------------

    /// Lays the bar out into SCrect1..6.
    void SetScrollBar(PTRNDATA* item);
    void DispScrollBar(CDraw* draw, PTRNDATA* item); ///< draws it, with its thumb
    /// Part under the point: 1, 2 page buttons, 3, 4 arrow buttons, 5 thumb, 6, 7 trough, 0 none.
    int TestScrollBar(POINT point, PTRNDATA* item);
    /// Value from the pointer during a thumb drag. @return 1 when it changed
    int SetScrollPos(POINT point, PTRNDATA* item);
    /// 1 upper half, 2 lower half, 0 neither.
    int TestSpinButn(POINT point, PTRNDATA* item);

    // --- title bar -------------------------------------------------------------------------------

    /// Draws title bar, body background, bottom band and frame.
    void DispTitle(CDraw* draw);
    /// Redraws date and time when the second has changed.
    void DispCalender(CDraw* draw);
    /// What a point in pattern coordinates hits.
    /// @param butn  0 is it in the title bar, 1 left button, 2 right button
    /// @return 0 nothing, 1 title bar (butn 0) or logo, 2 hard-copy button, 3 drag area
    int TestTitle(POINT point, int butn);

  private:
    /// An item in the order of drawing: by pass, within a pass by type, within a type as in the file.
    struct Place {
        std::int32_t Pass;
        std::int32_t Rank; ///< index of the type in TypeTabl
        std::int32_t Recd;
    };
    using Places = std::pair<std::vector<Place>::const_iterator, std::vector<Place>::const_iterator>;

    std::vector<Place> DrawOrder;          ///< without items of unknown type
    const PTRNDATA* OrderedData = nullptr; ///< the array that DrawOrder was made for
    std::int32_t OrderedCont = 0;
    void BuildDrawOrder();
    /// Builds it anew when a type or pass has been changed in place.
    void RenewDrawOrder();
    Places PassPlaces(int pass);
    Places TypePlaces(int pass, int rank);
    void ShowPtrnData(CDraw* draw, PTRNDATA* item, int updt);

    /// What lies where; null until something is displayed in an edition that needs it.
    std::unique_ptr<tessary::Layers> Shown;
    bool Blanked = false; ///< blinking items are away
    tessary::Layers& LayersOn(CDraw* draw);
    void OrderLayers();
    /// Whether an item with these values is on the display.
    bool IsOnDisplay(const PTRNDATA& item) const;
    void DispLayers(CDraw* draw, int top);
    void UpdtLayers(CDraw* draw, std::initializer_list<int> passes);
    void FlikLayers(CDraw* draw);
    tessary::Box MeasureItem(CDraw* draw, PTRNDATA* item);
    /// Takes the item's new values over. @return its old and its new area
    std::pair<tessary::Box, tessary::Box> ChangeItem(CDraw* draw, PTRNDATA* item);
    void RestoreAreas(CDraw* draw, const std::vector<tessary::Box>& areas);
    void RestoreItem(CDraw* draw, int recd, const tessary::Box& clip);

    void DrawTitleBar(CDraw* draw);
    void DrawClock(CDraw* draw);
    /// Shows the present time below the items that lie on it.
    void RestoreClock(CDraw* draw);
    /// Everything that lies below the items.
    void RestoreTitle(CDraw* draw, const tessary::Box& area);
};
