// What a drawing context is held to, and what is told of its drawings. A context without a state draws
// everywhere and tells nobody.
#pragma once

#include "base/Box.h"
#include "draw/ToolkitTypes.h"

using GdkRegion = struct _GdkRegion;

namespace tessary
{

/// The area of a back buffer that was drawn on since it was taken last, and who sent the requests for it.
class DrawnArea
{
  public:
    DrawnArea() = default;
    ~DrawnArea();
    DrawnArea(const DrawnArea&) = delete;
    DrawnArea& operator=(const DrawnArea&) = delete;

    void add(const Box& box);
    /// The area so far, which begins anew; null when nothing was drawn. The caller destroys it.
    GdkRegion* take();

    /// Brackets the requests to the X server that the primitives send; the brackets may be nested.
    void enter();
    void leave();
    /// Requests that were sent otherwise since the last call: somebody may have drawn on the buffer without
    /// the primitives.
    unsigned long foreignRequests();

  private:
    GdkRegion* region_ = nullptr;
    int parts_ = 0;
    int depth_ = 0;
    unsigned long entered_ = 0;
    unsigned long own_ = 0;
    unsigned long asked_ = 0;
};

/// Each entry may be null.
struct DrawState {
    const Box* clip = nullptr; ///< nothing is drawn outside
    Box* extent = nullptr;     ///< grows by what is drawn, also by what the clip leaves out
    bool silent = false;       ///< nothing is drawn at all
    DrawnArea* drawn = nullptr;

    /// Takes down the box. @return whether something of it is to be drawn
    bool admits(const Box& box) const;
};

/// Makes every context on a drawable, from now on, record what it draws. Ends with the drawable.
/// @return the record, owned by the drawable
DrawnArea* RecordDrawings(GdkDrawable* drawable);

/// The record of a drawable, null when it has none.
DrawnArea* DrawingsOf(GdkDrawable* drawable);

/// Lets a context record what it draws when its drawable is recorded.
void RecordWith(GdkGC* gc, GdkDrawable* drawable);

/// The state of a context by its graphics context; null without one.
const DrawState* StateOf(GdkGC* gc);

/// Takes down what a context is about to draw; right column and bottom row left out.
/// @return whether something of it is to be drawn
inline bool Admits(GdkGC* gc, const Box& box)
{
    const DrawState* state = StateOf(gc);
    return !state || state->admits(box);
}

/// All of a drawable.
Box WholeOf(GdkDrawable* drawable);

/// The part of it that a context can draw on.
Box VisibleOn(GdkDrawable* drawable, GdkGC* gc);

bool IsClipped(GdkGC* gc);

/// Gives a graphics context the clip of its state again, or none.
void ApplyClip(GdkGC* gc);

/// Replaces the state of a context for as long as it lives.
class DrawScope
{
  public:
    DrawScope(const DrawScope&) = delete;
    DrawScope& operator=(const DrawScope&) = delete;

  protected:
    explicit DrawScope(GdkGC* gc);
    ~DrawScope();

    GdkGC* const gc_;
    DrawState state_;

  private:
    const DrawState* const outer_;
};

/// Holds everything that a context draws to an area, and to that of an outer scope.
class ClipScope : private DrawScope
{
  public:
    /// @param area  not empty, within the drawable
    ClipScope(GdkGC* gc, const Box& area);
    ~ClipScope();

  private:
    Box area_;
    const Box* const before_;
};

/// Finds out where a context draws.
class ExtentScope : private DrawScope
{
  public:
    enum Mode { DRAWN, ONLY_MEASURED };

    ExtentScope(GdkGC* gc, Mode mode);

    /// The smallest box around everything so far.
    const Box& extent() const { return extent_; }

  private:
    Box extent_;
};

/// The requests of one primitive.
class OwnRequests
{
  public:
    explicit OwnRequests(GdkGC* gc)
    {
        if (const DrawState* state = StateOf(gc))
            drawn_ = state->drawn;
        if (drawn_)
            drawn_->enter();
    }
    ~OwnRequests()
    {
        if (drawn_)
            drawn_->leave();
    }
    OwnRequests(const OwnRequests&) = delete;
    OwnRequests& operator=(const OwnRequests&) = delete;

  private:
    DrawnArea* drawn_ = nullptr;
};

} // namespace tessary
