// A panel that is scaled to the tests' display of 1280 x 1024.
#pragma once

#include "tests/support/Apart.h"
#include "tests/window/KeyEdit.h"

#include <cmath>

class Scaled : public KeyEdit
{
  protected:
    /// What the display has of a panel of that size; the test says it in its own numbers.
    struct Layout {
        const char* word;
        int width;
        int height;
        double factor;
        int left;
        int top;
        int shownWidth;
        int shownHeight;
    };
    static constexpr Layout TWICE = {"steps", 500, 300, 2, 140, 212, 1000, 600};
    static constexpr Layout FITTED = {"fit", 500, 300, 2.56, 0, 128, 1280, 768};
    static constexpr Layout REDUCED = {"fit", 1600, 1300, 1024 / 1300.0, 10, 0, 1260, 1024};

    void use(const Layout& wanted)
    {
        layout = wanted;
        project.set("TESSARY", "SCALE", layout.word)
            .set("TESSARY", "DISPSIZE", std::to_string(layout.width) + "," + std::to_string(layout.height));
    }

    /// Makes the pattern the application window of a panel that is scaled like that.
    CPtrnDisp* show(const Layout& wanted, const Pattern& pattern)
    {
        use(wanted);
        open(pattern);
        return AppliWnd;
    }

    /// The middle of what the display shows of a pixel.
    POINT onDisplay(const CPtrnDisp* wnd, int x, int y) const override
    {
        return {static_cast<int>(layout.left + (wnd->WindRect.left + x + 0.5) * layout.factor),
                static_cast<int>(layout.top + (wnd->WindRect.top + y + 0.5) * layout.factor)};
    }

    bool isAtPlace(const CPtrnDisp* wnd, const ScreenWindow& shown) const override
    {
        if (wnd == AppliWnd)
            return shown.x == 0 && shown.y == 0 && shown.width == 1280 && shown.height == 1024;
        return shown.x == layout.left + sized(wnd->WindRect.left) &&
               shown.y == layout.top + sized(wnd->WindRect.top) &&
               shown.width == sized(wnd->WindRect.width) && shown.height == sized(wnd->WindRect.height);
    }

    int sized(int pixels) const { return static_cast<int>(std::lround(pixels * layout.factor)); }

    /// What the display shows of the panel.
    Picture shown() { return user.picture(layout.left, layout.top, layout.shownWidth, layout.shownHeight); }

    static Picture buffer(const CPtrnDisp* wnd)
    {
        return bufferPicture(wnd, 0, 0, wnd->WindRect.width, wnd->WindRect.height);
    }

    /// A pattern of that size with text, lines, a slant and areas down to its last row and column.
    static Pattern busy(const std::string& name, int width, int height)
    {
        Pattern pattern(name);
        pattern.size(width, height).header(tessary::HEDR_BODY_COLOR, 30);
        pattern.item(PTRN_RECT, 10, 10, 90, 60).parm(tessary::SHAPE_FILLED, 1);
        pattern.item(PTRN_LINE, 3, 100, width - 10, height - 20);
        pattern.item(PTRN_FCHR, 100, 20, 300, 36).text("Whole steps 0123");
        for (int x = 11; x < width; x += 20)
            pattern.item(PTRN_LINE, x, 70, x, 90);
        pattern.item(PTRN_RECT, width - 8, height - 8, width - 1, height - 1);
        return pattern;
    }

    Layout layout = TWICE;
};
