// Fixture of the item tests: an item drawn on one canvas, and a second canvas on which the test draws what
// the item should look like with the primitives, whose own pixels are tested elsewhere.
#pragma once

#include "draw/Resource.h"
#include "tests/pattern/LoadedPattern.h"
#include "tests/support/Canvas.h"

#include <cstring>

class ItemCanvas : public LoadedPattern
{
  protected:
    static constexpr int WIDTH = 120;
    static constexpr int HEIGHT = 90;

    ItemCanvas() : canvas(WIDTH, HEIGHT), model(WIDTH, HEIGHT)
    {
        usePalette();
        useFont(0, 16);
        useFont(1, 24);
        std::memset(MarkData, 0, sizeof MarkData);
        MarkDataSet();
        MarkDataInit();
    }

    /// A copy of the only item of a pattern, in the state of a cell.
    PTRNDATA make(const Pattern& pattern, int state = 0)
    {
        load(pattern);
        PTRNDATA item = data().PtrnData[0];
        item.wData = static_cast<WORD>(state);
        return item;
    }

    /// Draws the item through the dispatcher.
    void draw(PTRNDATA& item, int updt = 0) { data().DispPtrnData(canvas.draw(), &item, updt); }
    void erase(PTRNDATA& item) { data().ClerPtrnData(canvas.draw(), &item); }

    /// Both canvases all in one colour.
    void cover(int colr)
    {
        canvas->ClearScreen(colr);
        model->ClearScreen(colr);
    }

    void clear()
    {
        canvas.clear();
        model.clear();
    }

    testing::AssertionResult asModelled() const { return same(canvas.picture(), model.picture()); }
    testing::AssertionResult untouched() const { return same(canvas.picture(), canvas.blank()); }

    Canvas canvas;
    Canvas model;
};
