// The window that shows one pattern. A screen class derives from it and overrides its hooks.
#pragma once

#include "base/Constants.h"
#include "base/Types.h"
#include "draw/DrawCntl.h"
#include "draw/ToolkitTypes.h"
#include "pattern/PtrnData.h"

#include <memory>
#include <string>

constexpr int KEYCURSOR_ON = 5;  ///< ticks that the key cursor is shown
constexpr int KEYCURSOR_OFF = 2; ///< ticks that it is hidden

class CPtrnDisp;

namespace tessary
{

/// What a window is, CPtrnDisp::PtrnType.
enum PtrnKind {
    KIND_APPLICATION = 0,
    KIND_CHILD1 = 1,
    KIND_CHILD2 = 2,
    KIND_SYSTEM = 3,
};

struct WindowOrder;
struct WindowReload;
struct WindowSignals;
class FieldEditor;

/// @{
/// A part of corrected entry that knows a window from inside, for the framework.
bool StoreBeforePress(CPtrnDisp* wnd, POINT pt);
void TypeCharacter(CPtrnDisp* wnd, const std::string& character);
/// @}

} // namespace tessary

/// A window. Screen classes derive from it and override its hooks; docs/writing-programs.md tells how.
class CPtrnDisp
{
  public:
    GtkWidget* Widget = nullptr;   ///< the top-level window; null before opening and after closing
    GtkWidget* DrawArea = nullptr; ///< the drawing area inside it
    GdkPixmap* Pixmap = nullptr;   ///< back buffer, pattern width x height; null until the first configure
    char PtrnName[SIZE_PTRNNAME + 2] = ""; ///< EUC-JP
    int PtrnNo = 0;                        ///< ConvertPtrn(PtrnName); keys the remembered position
    int PtrnType = 0;                      ///< PtrnKind
    CPtrnData* PtrnData = nullptr;         ///< the loaded pattern; owned
    CPtrnDisp* ParentWnd = nullptr;        ///< null for the application window; that for the system window
    CPtrnDisp* ChildWnd1 = nullptr;        ///< the child in slot 1, null for none
    CPtrnDisp* ChildWnd2 = nullptr;        ///< the child in slot 2
    RECT WindRect{};                       ///< position on the screen and size
    POINT Offset{};                        ///< the pattern point shown at the window's top-left corner
    int CursorType = 0;                    ///< mouse cursor 0..7, applied again at every tick
    BOOL MoveWnd = 0;                      ///< a window drag is in progress
    POINT MovePoint{};                     ///< last drag point in screen coordinates
    BOOL ScrollBar = 0;                    ///< a thumb drag is in progress
    PTRNDATA ScrollPtrn{};                 ///< the scroll bar being dragged
    int KeyInputMode = 0;                  ///< 1 while a field is in edit
    PTRNDATA KeyInputPtrn{};               ///< a copy of that field
    char KeyInputText[256] = "";           ///< its text
    UINT KeyInputCode = 0;                 ///< first byte of a two-byte character that waits for its second
    int KeyInputPost = 0;                  ///< cursor position, a byte index
    int KeyInputFlag = 0;                  ///< 1 while the key cursor is shown
    int KeyInputTimr = 0;                  ///< blink counter in ticks

    CPtrnDisp();

    // --- hooks -----------------------------------------------------------------------------------

    /// Once, after the pattern is loaded and the widgets exist, before the window is shown. There is no back
    /// buffer yet, so nothing can be drawn.
    virtual void PtrnInitFunc();
    /// When the window is exited, after its children, before its toolkit window goes. Not called for a child
    /// that another one replaces in its slot, and for a system window that a stop request takes down.
    virtual void PtrnExitFunc();
    /// @param mode  DisplayMode: 0 at the end of a full paint, 1 at every tick after the items
    virtual void PtrnDispFunc(CDraw* draw, int mode);
    /// Every tick, before any drawing of that tick.
    virtual void PtrnTimrFunc();
    /// A message; `mesg` is the sending item's data number.
    virtual void PtrnMesgFunc(int mesg);
    /// Right click on an item that can be operated (MouseEnable) and whose action opens no system window.
    /// @param dataNo  its cell; 0 unbound
    virtual void PtrnRbtnFunc(int dataNo);
    /// First, for every press and motion off the title bar, also while the items can not be operated.
    /// @param pt      in pattern coordinates
    /// @param button  MouseEvent: 1 left, 2 right, 0 motion
    /// @param flags   1 Shift, else 2 Control, else 4 Alt, else 0
    /// @return 1 to keep the event from the items, and from a drag
    virtual int PtrnMouseFunc(POINT pt, int button, int flags);
    /// Never called by the framework.
    virtual int PtrnKeyInput(int key, int flags);
    /// Before key input starts on an item. @param item  a copy; what is changed in it holds for the input
    /// @return 1 to allow it
    virtual int PtrnKeyStart(PTRNDATA* item);
    /// After key input ended with a key; the value is stored, unless the key is Escape. Not called for an
    /// input that is cancelled.
    /// @param key   KeyValue
    /// @param item  the field
    virtual void PtrnKeyFunc(int key, int flags, PTRNDATA* item);

    /// Last of the virtual functions, so that the hooks keep the first ten slots.
    virtual ~CPtrnDisp();
    CPtrnDisp(const CPtrnDisp&) = delete;
    CPtrnDisp& operator=(const CPtrnDisp&) = delete;

    // --- opening and closing ---------------------------------------------------------------------

    /// Opens the window at the place that its pattern's header tells.
    /// @param parent  null for the application window
    /// @param name    pattern name
    /// @param kind    PtrnKind
    void PtrnDispInit(CPtrnDisp* parent, const char* name, int kind);
    /// Opens it with its top-left corner at (x, y) of the screen.
    void PtrnDispInit(CPtrnDisp* parent, const char* name, int kind, int x, int y);
    /// Opens it in a rectangle of the screen, which may be smaller than the pattern.
    void PtrnDispInit(CPtrnDisp* parent, const char* name, int kind, RECT rect);
    /// Calls PtrnInitFunc and takes the cursor from the header.
    void PtrnInit();
    /// Exits the children, saves the position (not of the application window), calls PtrnExitFunc and
    /// destroys the toolkit window. Does nothing for a window that was exited or destroyed before.
    void PtrnExit();
    /// Destroys the toolkit window alone: no hook, no saved position, children stay. A field in edit is left
    /// without storing.
    void DestroyWidget();

    // --- painting and the tick -------------------------------------------------------------------

    /// Makes the back buffer and draws everything into it.
    void PaintEvent();
    /// Copies the visible part of the back buffer to the window.
    void UpdateEvent();
    /// Asks the toolkit for an expose of the whole window.
    void PtrnUpdate();
    /// One tick of this window and its children.
    void TimrEvent();
    /// @param type  cursor 0..7; other numbers leave the pointer as it is
    void PtrnSetCursor(int type, const char* file, int line);

    // --- mouse; points in window coordinates, flags 1 Shift, else 2 Control, else 4 Alt, else 0 ------

    void LButtonDown(POINT pt, int flags); ///< a press of the left button
    void RButtonDown(POINT pt, int flags); ///< a press of the right button
    void LButtonUp(POINT pt, int flags);   ///< ends auto-repeat and a drag
    void RButtonUp(POINT pt, int flags);   ///< does nothing
    void MouseMove(POINT pt, int flags);   ///< a motion
    /// @param direction  WheelDirection: 0 up, 1 down. @return 1 when a value changed
    int MouseWheel(POINT pt, int direction);
    void MouseLeave(); ///< the pointer has left the window: ends a drag
    /// 1 when the items may be operated: no system window and no modal child is open.
    int MouseEnable();
    /// Carries out the item's action code.
    void ExecMessage(PTRNDATA* item);

    // --- window stack ----------------------------------------------------------------------------

    /// Opens a pattern in child slot 1 (`which` 1) or 2 (any other value); an occupant is destroyed first.
    void PtrnDispChild(int which, const char* name, const char* file, int line);
    /// The same with its top-left corner at (x, y) of the screen.
    void PtrnDispChild(int which, const char* name, int x, int y, const char* file, int line);
    /// The same in a rectangle of the screen, which may be smaller than the pattern.
    void PtrnDispChild(int which, const char* name, RECT rect, const char* file, int line);
    /// Opens a child beside a rectangle of the screen, so that it stays on the display.
    void PtrnDispPopup(int which, const char* name, RECT rect, const char* file, int line);
    void PtrnDispPopup(int which, const char* name, POINT pt, const char* file, int line); ///< beside a point
    /// @param which  CloseTarget: 0 this window, 1 and 2 the children, 3 the system window
    void PtrnCloseWnd(int which, const char* file, int line);
    /// @param target  MessageTarget: 0 this window, 1 child 1 or else child 2, 2 nobody, 3 the parent
    void PtrnSendMessage(int target, int mesg, const char* file, int line);
    /// Scrolls a view so that it begins at a point of its pattern.
    /// @param target  ViewTarget: 0 this window, 1 and 2 the children, 3 the parent
    void PtrnSetOffset(int target, int x, int y, const char* file, int line);
    /// Sizes the scroll bar bound to `dataNo` for a list of `total` rows whose first visible row is `pos`.
    void PtrnSetScroll(int dataNo, int total, int pos, const char* file, int line);
    /// Redraws the items of a data number, of one type or (type 0) of all.
    void PtrnDispData(CDraw* draw, int dataNo, int type);
    /// The item under a pattern point. @return 1 found, 0 none
    int PtrnTestData(POINT pt, PTRNDATA* out);
    /// 1 when an item of that type and data number that is not hidden lies under the point.
    int PtrnTestData(POINT pt, int dataNo, int type);
    RECT PtrnGetWindow() { return WindRect; } ///< place on the screen and size
    POINT PtrnGetOffset() { return Offset; }  ///< pattern point at the top-left corner
    PTRNHEDR PtrnReadHedr();                  ///< this pattern's header
    /// Header of a pattern that need not be open. @return 1, or 0 when it can not be read
    int PtrnReadHedr(const char* name, PTRNHEDR* out);
    /// CPtrnData::ReadPtrnData
    int PtrnReadData(int dataNo, int type, PTRNDATA* out);
    /// CPtrnData::WritePtrnData
    void PtrnWriteData(PTRNDATA* item);

    // --- dragging; points in pattern coordinates ---------------------------------------------------

    void MoveWindow1(POINT pt);          ///< begins to drag a framed window, unless its header forbids it
    void MoveWindow2(POINT pt);          ///< moves it by as much as the pointer has moved, within the display
    void MoveWindow3();                  ///< ends it
    void MoveScrollBar1(PTRNDATA* item); ///< begins to drag the thumb of a scroll bar
    void MoveScrollBar2(POINT pt);       ///< stores the value of the place and carries out the action
    void MoveScrollBar3();               ///< ends it

    // --- key input -------------------------------------------------------------------------------

    /// Starts editing the field bound to a data number: the first variable text, else the first numeric
    /// field. Nothing happens when it takes no entry, is disabled or hidden; without one the log tells.
    void KeyInputStart(int dataNo, const char* file, int line);
    /// Starts editing a field, when PtrnKeyStart allows it. An edit of this window is cancelled first.
    void KeyInputStart(PTRNDATA* item);
    /// Ends the edit. @param key the ending key, 0 to cancel. @return 0 when the value was refused
    int KeyInputStop(unsigned int key, int flags, const char* file, int line);
    /// Checks and stores the edited value. @return 0 when it was refused
    int KeyInputCheck(int key);
    /// A key for this window's tree.
    void KeyEntry(unsigned int key, int flags);
    /// Blinks the key cursor; called every tick.
    void KeyTimer(CDraw* draw);
    /// Cancels key input in this window's tree.
    void KeyReset();
    /// Types a character. @param c1,c2  its bytes; c2 is 0 for a character of one
    void KeyInputInsert(unsigned int c1, unsigned int c2);
    void KeyInputDelete(unsigned int key); ///< KEYVAL_BACKSPACE or KEYVAL_DELETE
    /// KEYVAL_LEFT or KEYVAL_RIGHT. @param nav  Navigation: whether it ends the edit where it can not move
    void KeyInputShift(unsigned int key, int flags, int nav);
    /// @param mode  bits: 1 background, 2 text, 4 show the cursor, 8 hide it
    void KeyInputDisp(CDraw* draw, int mode);

  private:
    friend struct tessary::WindowSignals;
    friend struct tessary::WindowOrder;
    friend struct tessary::WindowReload;
    friend int Expose_Event(GtkWidget* widget, GdkEventExpose* event, CPtrnDisp* wnd);
    friend void PtrnDispStart(CPtrnDisp* wnd, GtkWidget* parent, RECT rect);
    /// The one drawing context of the back buffer, which it keeps alive. Shared with the paint or tick that
    /// is using it, since a hook of that may close the window.
    std::shared_ptr<CPaintDraw> Draw;
    bool Exited = false;     ///< exited or replaced, and not opened again
    bool Closed = false;     ///< the toolkit window has gone
    bool Configured = false; ///< the window has been placed anew since the last tick
    POINT Reported{};        ///< where
    POINT Placed{};          ///< where it was put or found before
    bool Shown = false;      ///< the window has come up on the screen
    int Hidden = 0;          ///< ticks until it does
    unsigned Opened = 0;     ///< grows from window to window, in the order of their opening
    std::unique_ptr<tessary::FieldEditor> Editor; ///< of corrected entry, while a field is in edit

    void LoadPattern(CPtrnDisp* parent, const char* name, int kind);
    void TakePattern(const char* name);
    void ReleasePattern();
    void PlaceWindow();
    bool InTitle(POINT pt) const;
    void PressTitle(POINT pt);
    void ExitChildren();
    void ReleaseBuffer();
    RECT ViewOfBuffer() const;
    void ClearUncovered(RECT view);
    void UpdateArea(const GdkEventExpose& event);
    void RunDispFunc(CDraw* draw);
    void ShowDrawn();
    void RedrawKeyInput(CDraw* draw);
    RECT ViewRect{}; ///< of the back buffer: what the window shows since the last tick
    void FollowWindow();
    void InsistOnShowing();
    void LeaveWidget();
    void DropKeyInput();
    void ShowKeyInput();
    void HideKeyCursor();
    bool BeginPress(POINT pt);

    // Corrected entry, window/FieldEntry.cpp.
    friend bool tessary::StoreBeforePress(CPtrnDisp* wnd, POINT pt);
    friend void tessary::TypeCharacter(CPtrnDisp* wnd, const std::string& character);
    void PlainKey(unsigned int key, int flags);
    void StartEditor();
    void ShowEditor();
    void RestoreField();
    void ChangeText(bool (tessary::FieldEditor::*change)());
    void MoveCursor(bool (tessary::FieldEditor::*step)());
    void MoveOrEnd(unsigned int key, int flags, bool (tessary::FieldEditor::*step)(), int flag);
    void TypeCharacter(const std::string& character);
    void PlaceKeyCursor(POINT pt);
    int EditIndent() const;
    void EditorKey(unsigned int key, int flags);
    void StoreAndGo(unsigned int key, int flags, int direction);
    int StoreEdited();
    int Header(int parm) const { return PtrnData->PtrnHedr.Parm1[parm]; }
    void SystemAction(const PTRNDATA& item);
    CPtrnDisp*& Slot(int kind) { return kind == tessary::KIND_CHILD1 ? ChildWnd1 : ChildWnd2; }
};

/// Makes the toolkit window of `wnd`, connects its events, runs PtrnInit and shows it.
/// @param parent  window that it stays above, or null
/// @param rect    place and size on the screen in pixels
void PtrnDispStart(CPtrnDisp* wnd, GtkWidget* parent, RECT rect);

/// @{
/// Toolkit handlers of the drawing area; each returns TRUE.
int Configure_Event(GtkWidget* widget, GdkEventConfigure* event, CPtrnDisp* wnd);
int Expose_Event(GtkWidget* widget, GdkEventExpose* event, CPtrnDisp* wnd);
int Mouse_Press(GtkWidget* widget, GdkEventButton* event, CPtrnDisp* wnd);
int Mouse_Release(GtkWidget* widget, GdkEventButton* event, CPtrnDisp* wnd);
int Mouse_Motion(GtkWidget* widget, GdkEventMotion* event, CPtrnDisp* wnd);
int Mouse_Leave(GtkWidget* widget, GdkEventCrossing* event, CPtrnDisp* wnd);
/// @}

/// Toolkit handler of the top-level window; returns TRUE.
int Key_Press(GtkWidget* widget, GdkEventKey* event, CPtrnDisp* wnd);
