// Fixture: a loaded pattern that is displayed and updated on a canvas.
#pragma once

#include "draw/Resource.h"
#include "tests/pattern/LoadedPattern.h"
#include "tests/support/Canvas.h"

#include <string>

class Display : public LoadedPattern
{
  protected:
    Display() : canvas(100, 60)
    {
        usePalette();
        useFont(0, 16);
        MarkDataSet();
        MarkDataInit();
    }

    /// What a full display of everything, and what one update, leaves on an empty canvas.
    Picture display()
    {
        canvas.clear();
        data().DispPtrnData(canvas.draw());
        return canvas.picture();
    }
    Picture update()
    {
        canvas.clear();
        data().UpdtPtrnData(canvas.draw());
        return canvas.picture();
    }
    /// The box around what is drawn, "" for nothing.
    static std::string drawn(const Picture& picture) { return picture.bounds(Canvas::GROUND); }

    /// A filled box without outline: colours 20, 21, 22, 23 by state, 29 erased.
    static Pattern& box(Pattern& pattern, int x1, int y1, int x2, int y2)
    {
        return pattern.item(PTRN_RECT, x1, y1, x2, y2)
            .parm(tessary::SHAPE_WIDTH, 0)
            .parm(tessary::SHAPE_FILLED, 1)
            .parm4(tessary::SHAPE_FILL4, 20, 21, 22, 23);
    }
    static Pattern box(int x1, int y1, int x2, int y2)
    {
        Pattern pattern("p");
        return box(pattern, x1, y1, x2, y2);
    }

    Canvas canvas;
};
