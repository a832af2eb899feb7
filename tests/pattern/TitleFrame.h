// Fixture of the title bar's tests: a pattern's frame drawn on one canvas, and a second canvas on which the
// test draws what it should look like. Header colours are their own index: title text 9, bar 10, body 19,
// band 22, frame 24.
#pragma once

#include "tests/pattern/LoadedPattern.h"
#include "tests/support/Canvas.h"

#include <filesystem>

constexpr int W = 640;
constexpr int H = 90;
constexpr int T = 30;

class Frame : public LoadedPattern
{
  protected:
    Frame() : canvas(W + 10, H + 10), model(W + 10, H + 10)
    {
        usePalette();
        useFont(0, 14);
        useFont(1, 24);
        std::filesystem::create_directories(project.folder() + "/Bitmap");
        project.write("Bitmap/dot.ppm", "P6\n1 1\n255\n\x11\x22\x33");
    }

    /// A pattern of 640 x 90 with a title bar of 30.
    static Pattern titled(const std::string& title = "Plant")
    {
        return Pattern("p").size(W, H).header(tessary::HEDR_TITLE_HEIGHT, T).title(title);
    }

    void show(const Pattern& pattern)
    {
        load(pattern);
        data().DispTitle(canvas.draw());
    }

    /// The bar and the body below it, both flat.
    void modelGround(int top = T)
    {
        if (top)
            model->DrawRect(0, 0, W, top, 0, 0, 10, 10);
        model->DrawRect(0, top, W, H, 0, 0, 19, 19);
    }

    testing::AssertionResult asModelled() const { return same(canvas.picture(), model.picture()); }

    static void setClock(int year, int month, int day, int weekday, int hour, int minute, int second)
    {
        const int cells[] = {year, month, day, weekday, hour, minute, second};
        for (int i = 0; i < 7; i++)
            Set_iData(DTNO_SYSCALN + i, cells[i], nullptr, 0);
    }

    Canvas canvas;
    Canvas model;
};
