// Contexts that are held to an area, that measure, and that record what was drawn.
#include "draw/DrawScope.h"
#include "draw/Images.h"
#include "draw/Resource.h"
#include "tests/support/Canvas.h"
#include "tests/support/Project.h"

#include <filesystem>
#include <functional>
#include <gdk/gdkx.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tessary;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr int WIDTH = 100;
constexpr int HEIGHT = 80;
constexpr int NONE = -1;

struct Primitive {
    const char* name;
    std::function<void(CDraw*)> draw;
};

/// Every primitive, each somewhere in the middle.
const std::vector<Primitive>& primitives()
{
    static const std::vector<Primitive> ALL = {
        {"ClearScreen", [](CDraw* d) { d->ClearScreen(20, 20, 60, 50, 5); }},
        {"DrawText", [](CDraw* d) { d->DrawText(20, 20, 0, 4, 8, "Tank"); }},
        {"DrawText without back", [](CDraw* d) { d->DrawText(20, 20, 0, 4, NONE, "gyjQ"); }},
        {"ClearText", [](CDraw* d) { d->ClearText(20, 20, 0, 4, "Tank"); }},
        {"DrawLine", [](CDraw* d) { d->DrawLine(20, 20, 60, 20, 0, 1, 0, 4); }},
        {"DrawLine thick", [](CDraw* d) { d->DrawLine(30, 20, 30, 60, 0, 7, 2, 4); }},
        {"DrawLine slanted", [](CDraw* d) { d->DrawLine(60, 50, 20, 20, 0, 5, 0, 4); }},
        {"DrawLine dashed", [](CDraw* d) { d->DrawLine(20, 30, 60, 30, 2, 3, 1, 4); }},
        {"DrawRect", [](CDraw* d) { d->DrawRect(20, 20, 60, 50, 5, 0, 4, 8); }},
        {"DrawRect inside", [](CDraw* d) { d->DrawRect(30, 30, 36, 60, 9, 1, 4, NONE); }},
        {"DrawRect outside", [](CDraw* d) { d->DrawRect(30, 30, 60, 50, 6, 2, 4, NONE); }},
        {"DrawRect shaded", [](CDraw* d) { d->DrawRect(20, 20, 60, 50, 4); }},
        {"DrawCrcl", [](CDraw* d) { d->DrawCrcl(20, 20, 60, 50, 3, 0, 4, 8); }},
        {"DrawCrcl thick", [](CDraw* d) { d->DrawCrcl(30, 30, 50, 50, 6, 2, 4, NONE); }},
        {"DrawGbox", [](CDraw* d) { d->DrawGbox(20, 20, 60, 50, 1, 2, 3, 4, 4, 5, 6, 7, 8); }},
        {"DrawButn", [](CDraw* d) { d->DrawButn(30, 20, 50, 40, 2, 4, 5, 6, 7, NONE, 0, "Emergency"); }},
        {"DrawMark", [](CDraw* d) { d->DrawMark(20, 20, 52, 52, 4, 8, 351); }},
        {"DrawMark without back", [](CDraw* d) { d->DrawMark(20, 20, 52, 52, 4, NONE, 351); }},
        {"DrawMark small", [](CDraw* d) { d->DrawMark(20, 20, 31, 29, 4, NONE, 353); }},
        {"DrawBmap", [](CDraw* d) { d->DrawBmap(20, 20, 57, 49, NONE, "two.ppm"); }},
        {"DrawBmap keyed", [](CDraw* d) { d->DrawBmap(20, 20, 57, 49, 0, "two.ppm"); }},
        {"DrawXpm", [](CDraw* d) { d->DrawXpm(20, 20, 49, 53, XPM_UpArrow1); }},
        {"DrawRect1", [](CDraw* d) { d->DrawRect1(0, 60, 50, 20, 20); }},
        {"DrawCrcl1", [](CDraw* d) { d->DrawCrcl1(1, 60, 50, 20, 20); }},
    };
    return ALL;
}

class Scopes : public testing::Test
{
  protected:
    Scopes() : canvas(WIDTH, HEIGHT)
    {
        usePalette();
        useFont(0, 16);
        MarkDataSet();
        MarkDataInit();
        std::filesystem::create_directories(project.folder() + "/Bitmap");
        project.write("Bitmap/two.ppm", "P6\n2 2\n255\n\x11\x22\x33\x44\x55\x66\x77\x70\x79\x01\x02\x03");
    }

    /// What a primitive draws on an empty canvas.
    Picture whole(const Primitive& primitive)
    {
        canvas.clear();
        primitive.draw(canvas.draw());
        return canvas.picture();
    }

    static Box boundsOf(const Picture& picture)
    {
        Box box;
        for (int y = 0; y < HEIGHT; ++y)
            for (int x = 0; x < WIDTH; ++x)
                if (picture.at(x, y) != Canvas::GROUND)
                    box = Around(box, {x, y, x + 1, y + 1});
        return box;
    }

    Canvas canvas;
    Project project;
};

std::vector<std::string> taken(DrawnArea& area)
{
    std::vector<std::string> boxes;
    GdkRegion* const region = area.take();
    if (!region)
        return boxes;
    GdkRectangle* parts = nullptr;
    int count = 0;
    gdk_region_get_rectangles(region, &parts, &count);
    for (int i = 0; i < count; i++)
        boxes.push_back(std::to_string(parts[i].x) + "," + std::to_string(parts[i].y) + " " +
                        std::to_string(parts[i].width) + "x" + std::to_string(parts[i].height));
    g_free(parts);
    gdk_region_destroy(region);
    return boxes;
}

} // namespace

TEST_F(Scopes, hold_every_primitive_to_their_area_and_change_nothing_within)
{
    for (const Primitive& primitive : primitives()) {
        SCOPED_TRACE(primitive.name);
        const Picture all = whole(primitive);
        ASSERT_GT(boundsOf(all).pixels(), 0);
        for (const Box& area :
             {Box{0, 0, WIDTH, HEIGHT}, {25, 22, 41, 33}, {33, 35, 34, 36}, {21, 21, 59, 49}}) {
            canvas.clear();
            {
                const ClipScope clip(canvas->gc, area);
                primitive.draw(canvas.draw());
            }
            Picture expected = canvas.blank();
            for (int y = area.top; y < area.bottom; ++y)
                for (int x = area.left; x < area.right; ++x)
                    expected.set(x, y, all.at(x, y));
            EXPECT_TRUE(same(canvas.picture(), expected)) << area.left << "," << area.top;
        }
        primitive.draw(canvas.draw());
        EXPECT_TRUE(same(whole(primitive), all)) << "free again";
    }
}

TEST_F(Scopes, measure_at_least_what_every_primitive_draws_and_little_more)
{
    for (const Primitive& primitive : primitives()) {
        SCOPED_TRACE(primitive.name);
        const Box drawn = boundsOf(whole(primitive));
        canvas.clear();
        Box measured;
        {
            const ExtentScope extent(canvas->gc, ExtentScope::ONLY_MEASURED);
            primitive.draw(canvas.draw());
            measured = extent.extent();
        }
        EXPECT_TRUE(same(canvas.picture(), canvas.blank())) << "nothing is drawn";
        EXPECT_TRUE(Contains(measured, drawn));
        const Box larger = {drawn.left - 8, drawn.top - 8, drawn.right + 8, drawn.bottom + 8};
        EXPECT_TRUE(Contains(larger, measured));
        const ExtentScope extent(canvas->gc, ExtentScope::DRAWN);
        primitive.draw(canvas.draw());
        EXPECT_TRUE(extent.extent() == measured);
        EXPECT_FALSE(same(canvas.picture(), canvas.blank()));
    }
}

TEST_F(Scopes, within_each_other_hold_to_what_they_have_in_common)
{
    const ClipScope outer(canvas->gc, {10, 10, 50, 50});
    {
        const ClipScope inner(canvas->gc, {30, 0, 100, 100});
        canvas->ClearScreen(4);
    }
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(30, 10, 50, 50, color(4))));
    canvas->ClearScreen(5);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(10, 10, 50, 50, color(5))));
}

TEST_F(Scopes, read_a_file_that_has_changed_anew)
{
    const ClipScope clip(canvas->gc, {0, 0, 20, 20});
    const auto drawn = [&] {
        canvas->DrawBmap(0, 0, 20, 20, NONE, "one.ppm");
        return canvas.picture().at(5, 5);
    };
    project.write("Bitmap/one.ppm", "P6\n1 1\n255\n\x11\x22\x33");
    EXPECT_EQ(drawn(), 0x112233U);
    EXPECT_EQ(drawn(), 0x112233U);
    project.write("Bitmap/one.ppm", "P6\n 1 1\n255\n\x44\x55\x66");
    EXPECT_EQ(drawn(), 0x445566U);
    std::filesystem::remove(project.folder() + "/Bitmap/one.ppm");
    canvas->ClearScreen(4);
    EXPECT_EQ(drawn(), color(4));
}

TEST_F(Scopes, record_the_area_that_every_primitive_draws)
{
    DrawnArea* const area = RecordDrawings(canvas.pixmap());
    CPaintDraw draw(canvas.pixmap());
    for (const Primitive& primitive : primitives()) {
        SCOPED_TRACE(primitive.name);
        const Box drawn = boundsOf(whole(primitive));
        primitive.draw(&draw);
        GdkRegion* const region = area->take();
        ASSERT_TRUE(region);
        GdkRectangle box{};
        gdk_region_get_clipbox(region, &box);
        gdk_region_destroy(region);
        EXPECT_TRUE(Contains({box.x, box.y, box.x + box.width, box.y + box.height}, drawn));
        EXPECT_THAT(taken(*area), IsEmpty()) << "it begins anew";
    }
    g_object_unref(draw.gc);
}

TEST_F(Scopes, record_nothing_outside_their_area_and_nothing_that_is_only_measured)
{
    DrawnArea* const area = RecordDrawings(canvas.pixmap());
    CPaintDraw draw(canvas.pixmap());
    {
        const ClipScope clip(draw.gc, {10, 10, 20, 30});
        draw.ClearScreen(4);
        draw.DrawRect(50, 50, 60, 60, 0, 0, 4, 4);
    }
    EXPECT_THAT(taken(*area), ElementsAre("10,10 10x20"));
    {
        const ExtentScope extent(draw.gc, ExtentScope::ONLY_MEASURED);
        draw.ClearScreen(4);
    }
    EXPECT_THAT(taken(*area), IsEmpty());
    draw.ClearScreen(-2147483647, -2147483647, 2147483647, 2147483647, 4);
    EXPECT_THAT(taken(*area), ElementsAre("0,0 32767x32767"));
    draw.ClearScreen(-20, -20, -10, -10, 4);
    EXPECT_THAT(taken(*area), IsEmpty());
    g_object_unref(draw.gc);
}

TEST_F(Scopes, record_two_places_as_two_and_very_many_as_the_box_around_them)
{
    DrawnArea* const area = RecordDrawings(canvas.pixmap());
    area->add({1, 1, 3, 3});
    area->add({10, 20, 13, 21});
    EXPECT_THAT(taken(*area), ElementsAre("1,1 2x2", "10,20 3x1"));
    for (int i = 0; i < 2000; i++)
        area->add({i * 2, i * 2, i * 2 + 1, i * 2 + 1});
    EXPECT_LT(taken(*area).size(), 1002U);
}

TEST_F(Scopes, know_the_requests_of_the_primitives_from_others)
{
    DrawnArea* const area = RecordDrawings(canvas.pixmap());
    CPaintDraw draw(canvas.pixmap());
    area->foreignRequests();
    for (const Primitive& primitive : primitives()) {
        primitive.draw(&draw);
        EXPECT_EQ(area->foreignRequests(), 0U) << primitive.name;
    }
    gdk_draw_point(canvas.pixmap(), draw.gc, 1, 1);
    EXPECT_GT(area->foreignRequests(), 0U);
    EXPECT_EQ(area->foreignRequests(), 0U);
    g_object_unref(draw.gc);
}
