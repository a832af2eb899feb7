// The sample panel as it is built and started, under an operator's hands: the real program with the sample
// project, told by what is on the screen, in the log and in its exit status.
#include "app/Cells.h"
#include "tests/app/SampleProject.h"

#include <array>
#include <optional>

using namespace tessary;

namespace
{

class Operator : public SampleProject
{
  protected:
    static constexpr const char* SHAPES = "テスト  （図形）";
    static constexpr const char* TEXTS = "テスト  （文字列・ボタン）";
    static constexpr const char* GRAPHS = "テスト  （グラフ）";
    static constexpr const char* MOUSE = "テスト  （マウス操作）";
    static constexpr const char* POPUP = "ポップアップメニュー";

    void SetUp() override
    {
        compile();
        start(); // the patterns are read here too, to know where their items are
        program.emplace("panel", project.root() + "/panel");
        show(MENU_NAME);
    }

    /// Waits for a screen, which is the one that clicks go to from now on.
    void show(const std::string& name)
    {
        window = user.waitForDrawn(name);
        pattern.emplace(name.c_str());
    }
    /// The same for a screen that takes the place of the one before.
    void showInstead(const std::string& name)
    {
        show(name);
        ASSERT_TRUE(user.waitFor([&] { return user.windows().size() == 1; }, "the screen before to go"));
    }

    PTRNDATA itemOf(int no, int type)
    {
        PTRNDATA found{};
        EXPECT_EQ(pattern->ReadPtrnData(no, type, &found), 1) << window.title << ", cell " << no;
        return found;
    }
    RECT radioOf(int no, int stands)
    {
        for (int i = 0; i < pattern->PtrnCont; i++) {
            const PTRNDATA& item = pattern->PtrnData[i];
            if (item.Type == PTRN_RDIO && item.DataNo == no && item.Parm[RDIO_VALUE] == stands)
                return item.Rect;
        }
        ADD_FAILURE() << window.title << ", cell " << no << ", value " << stands;
        return {};
    }
    RECT actionOf(int action, const std::string& name = "")
    {
        for (int i = 0; i < pattern->PtrnCont; i++) {
            const PTRNDATA& item = pattern->PtrnData[i];
            if (item.ID_Type == action && item.ID_Name == name)
                return item.Rect;
        }
        ADD_FAILURE() << window.title << " has no item with action " << action << " " << name;
        return {};
    }

    void pointAt(const RECT& place) { user.move(window.x + place.left + 3, window.y + place.top + 3); }
    void clickOn(const RECT& place, unsigned button = 1)
    {
        pointAt(place);
        user.click(button);
    }

    /// Drags the window by its title, which follows the pointer.
    void drag(int dx, int dy)
    {
        const ScreenWindow before = window;
        user.move(before.x + before.width / 2, before.y + 10);
        user.press();
        for (const int step : {1, 2}) {
            user.move(before.x + before.width / 2 + dx * step / 2, before.y + 10 + dy * step / 2);
            ASSERT_TRUE(user.waitFor(
                [&] {
                    window = user.waitForWindow(before.title);
                    return window.x == before.x + dx * step / 2 && window.y == before.y + dy * step / 2;
                },
                "the window to follow"));
        }
        user.release();
    }

    Picture look(const RECT& place)
    {
        return user.picture(window.x + place.left, window.y + place.top, place.width, place.height);
    }
    Picture waitChange(const RECT& place, const Picture& before, const std::string& what)
    {
        Picture now = before;
        user.waitFor([&] { return !same(now = look(place), before); }, what);
        return now;
    }
    void waitLook(const RECT& place, const Picture& wanted, const std::string& what)
    {
        user.waitFor([&] { return static_cast<bool>(same(look(place), wanted)); }, what);
    }

    std::optional<Program> program;
    ScreenWindow window;
    std::optional<CPtrnData> pattern;
};

} // namespace

TEST_F(Operator, switches_marks_that_blink)
{
    clickOn(actionOf(ACTION_OPEN_TOP, SHAPES));
    showInstead(SHAPES);
    const RECT mark = itemOf(460, PTRN_MARK).Rect;
    const RECT other = itemOf(461, PTRN_MARK).Rect;
    const Picture before = look(mark);
    const Picture beside = look(other);
    clickOn(mark);
    const Picture lit = waitChange(mark, before, "the mark's other colour");
    const Picture dark = waitChange(mark, lit, "the mark to blink");
    waitLook(mark, lit, "the mark to blink again");
    EXPECT_FALSE(same(dark, before));
    EXPECT_TRUE(same(look(other), beside));

    clickOn(actionOf(ACTION_OPEN_TOP, MENU_NAME));
    showInstead(MENU_NAME);
}

TEST_F(Operator, chooses_colours_and_blinking_with_radio_buttons_and_check_boxes)
{
    clickOn(actionOf(ACTION_OPEN_TOP, TEXTS));
    showInstead(TEXTS);
    const RECT entry = itemOf(102, PTRN_CHAR).Rect;
    const Picture empty = look(entry);
    clickOn(entry);
    waitChange(entry, empty, "the field in edit");
    user.type("ready");
    user.key(XK_Return);
    for (const int radio : {106, 107, 108}) {
        const RECT sample = itemOf(radio - 5, PTRN_GBOX).Rect;
        const Picture normal = look(sample);
        clickOn(radioOf(radio, 2));
        const Picture warning = waitChange(sample, normal, "the colour of a warning");
        clickOn(radioOf(radio, 3));
        const Picture fault = waitChange(sample, warning, "the colour of a fault");
        EXPECT_FALSE(same(fault, normal));
        clickOn(radioOf(radio, 1));
        waitLook(sample, normal, "the normal colour");
    }

    const RECT colored = itemOf(436, PTRN_FCHR).Rect;
    const RECT place = SetRect(colored.left, colored.top, colored.left + 72, colored.top + 24);
    const Picture normal = look(place);
    clickOn(itemOf(114, PTRN_CHCK).Rect);
    const Picture fault = waitChange(place, normal, "the colour of the check box");
    clickOn(itemOf(1551, PTRN_CHCK).Rect);
    waitChange(place, fault, "the text to blink");
    waitLook(place, fault, "the text to come back");
    waitChange(place, fault, "the text to blink again");
    clickOn(itemOf(1551, PTRN_CHCK).Rect);
    clickOn(itemOf(114, PTRN_CHCK).Rect);
    waitLook(place, normal, "the text as it was");
}

TEST_F(Operator, opens_child_windows_from_the_popup_menu_and_closes_them)
{
    clickOn(actionOf(ACTION_OPEN_TOP, TEXTS));
    showInstead(TEXTS);
    for (int i = 0; i < 3; i++) {
        show(TEXTS);
        const RECT button = itemOf(104, PTRN_BUTN).Rect;
        clickOn(button);
        show(POPUP);
        EXPECT_EQ(window.x, button.right) << "beside its button";
        clickOn(itemOf(482 + i, PTRN_BUTN).Rect);
        show("子ウィンドウ (" + std::to_string(i + 1) + ")");
        EXPECT_EQ(user.windows().size(), 2u) << "the menu has gone";
        clickOn(actionOf(ACTION_CLOSE_SELF));
        showInstead(TEXTS);
    }
    clickOn(itemOf(104, PTRN_BUTN).Rect);
    show(POPUP);
    clickOn(actionOf(ACTION_CLOSE_SELF));
    showInstead(TEXTS);
}

TEST_F(Operator, drags_a_child_window_that_blocks_its_parent_and_is_remembered)
{
    clickOn(actionOf(ACTION_OPEN_TOP, TEXTS));
    showInstead(TEXTS);
    const ScreenWindow parent = window;
    const RECT child = itemOf(482, PTRN_BUTN).Rect;
    const RECT radio = radioOf(106, 3);
    const RECT sample = itemOf(101, PTRN_GBOX).Rect;
    const Picture before = look(sample);

    clickOn(child);
    show("子ウィンドウ (1)");
    const ScreenWindow opened = window;
    drag(-60, 50);
    user.clickAt(parent.x + radio.left + 3, parent.y + radio.top + 3);
    clickOn(actionOf(ACTION_CLOSE_SELF));
    showInstead(TEXTS);
    EXPECT_TRUE(same(look(sample), before)) << "the parent was blocked";

    clickOn(child);
    show("子ウィンドウ (1)");
    EXPECT_EQ(window.x, opened.x - 60);
    EXPECT_EQ(window.y, opened.y + 50);
    clickOn(actionOf(ACTION_CLOSE_SELF));
    showInstead(TEXTS);
    clickOn(radio);
    waitChange(sample, before, "the parent to answer again");
}

TEST_F(Operator, opens_a_window_of_a_child_window)
{
    clickOn(actionOf(ACTION_OPEN_TOP, TEXTS));
    showInstead(TEXTS);
    clickOn(itemOf(484, PTRN_BUTN).Rect);
    show("子ウィンドウ (3)");
    clickOn(actionOf(ACTION_OPEN_CHILD1, "子ウィンドウ (1)"));
    show("子ウィンドウ (1)");
    EXPECT_EQ(user.windows().size(), 3u);
    clickOn(actionOf(ACTION_CLOSE_SELF));
    ASSERT_TRUE(user.waitFor([&] { return user.windows().size() == 2; }, "the inner window to close"));
    show("子ウィンドウ (3)");
    clickOn(actionOf(ACTION_CLOSE_SELF));
    showInstead(TEXTS);
}

TEST_F(Operator, lights_the_areas_and_lamps_of_the_mouse_screen)
{
    clickOn(actionOf(ACTION_OPEN_TOP, MOUSE));
    showInstead(MOUSE);
    const RECT area = itemOf(468, PTRN_RECT).Rect;
    const RECT shifted = itemOf(469, PTRN_RECT).Rect;
    const RECT left = itemOf(472, PTRN_MARK).Rect;
    const RECT right = itemOf(477, PTRN_MARK).Rect;
    const Picture dark = look(area);
    pointAt(area);
    waitChange(area, dark, "the area below the pointer");
    const Picture shiftedDark = look(shifted);
    user.pressKey(XK_Shift_L);
    pointAt(shifted);
    waitLook(area, dark, "the area that was left");
    waitChange(shifted, shiftedDark, "the area that wants Shift");
    user.releaseKey(XK_Shift_L);

    const Picture leftOff = look(left);
    const Picture rightOff = look(right);
    clickOn(left);
    const Picture leftOn = waitChange(left, leftOff, "the lamp of the left button");
    clickOn(right, 3);
    waitChange(right, rightOff, "the lamp of the right button");
    clickOn(left);
    waitLook(left, leftOff, "the lamp of the left button to go out");

    const RECT beside = SetRect(shifted.left, shifted.bottom + 12, shifted.right, shifted.bottom + 20);
    clickOn(beside, 3);
    show(POPUP);
    show(MOUSE);
    clickOn(right, 3);
    ASSERT_TRUE(user.waitFor([&] { return user.windows().size() == 1; }, "the menu to go"));
    waitLook(right, rightOff, "the lamp of the right button to go out");
}

TEST_F(Operator, never_sees_the_trend_cleared)
{
    clickOn(actionOf(ACTION_OPEN_TOP, GRAPHS));
    showInstead(GRAPHS);
    const RECT frame = itemOf(113, PTRN_RECT).Rect;
    const std::string colors = project.read("PtrnColr");
    const auto colorOf = [&](std::size_t number) {
        const auto part = [&](std::size_t i) {
            return std::uint32_t{static_cast<unsigned char>(colors[number * 12 + i * 4 + 1])};
        };
        return part(0) << 16 | part(1) << 8 | part(2);
    };
    /// How many samples each series shows, by the last of its points.
    const auto samples = [&](const Picture& picture) {
        std::array<int, 4> count{};
        for (std::size_t series = 0; series < 4; series++)
            for (int x = 0; x < picture.width(); x++)
                for (int y = 0; y < picture.height(); y++)
                    if (picture.at(x, y) == colorOf(50 + series))
                        count[series] = (x * 100 + picture.width() / 2) / picture.width() + 1;
        return count;
    };

    ASSERT_TRUE(user.waitFor([&] { return samples(look(frame))[0] > 1; }, "the first lines"));
    int before = 0;
    int redrawn = 0;
    int seen = 0;
    ASSERT_TRUE(user.waitFor(
        [&] {
            const std::array<int, 4> count = samples(look(frame));
            seen++;
            redrawn += count[0] != before;
            for (const int series : count) {
                EXPECT_GE(series, before) << "picture " << seen << " lacks what was there";
                EXPECT_EQ(series, count[0]) << "picture " << seen << " is half drawn";
            }
            before = count[0];
            return redrawn > 8 && seen > redrawn; // a busy machine may look once a sample for a while
        },
        "the trend to go on"));
    EXPECT_GT(seen, redrawn) << "not looked at often enough";
}

TEST_F(Operator, looks_at_the_version_and_stops_the_panel)
{
    clickOn(actionOf(ACTION_VERSION));
    show("バージョン情報");
    clickOn(actionOf(ACTION_CLOSE_SYSTEM));
    showInstead(MENU_NAME);

    clickOn(actionOf(ACTION_OPEN_SYSTEM, "システム終了"));
    show("システム終了");
    clickOn(actionOf(ACTION_CLOSE_SYSTEM));
    showInstead(MENU_NAME);
    EXPECT_FALSE(program->status()) << "it goes on";

    clickOn(actionOf(ACTION_OPEN_SYSTEM, "システム終了"));
    show("システム終了");
    clickOn(actionOf(ACTION_STOP));
    ASSERT_TRUE(user.waitFor([&] { return program->status().has_value(); }, "the end of the panel"));
    EXPECT_EQ(*program->status(), 0) << program->output();
    EXPECT_EQ(program->output(), "");
    EXPECT_EQ(project.messages().back(), "システム停止");
}

TEST_F(Operator, is_told_that_the_panel_stops_and_is_offered_no_way_back)
{
    clickOn(actionOf(ACTION_OPEN_SYSTEM, "システム終了"));
    show("システム終了");
    const RECT stop = actionOf(ACTION_STOP);
    const RECT back = actionOf(ACTION_CLOSE_SYSTEM);
    RECT told{};
    for (int i = 0; i < pattern->PtrnCont; i++)
        if (pattern->PtrnData[i].DataNo == STOP_TELL_CELL)
            told = pattern->PtrnData[i].Rect;
    const auto isPlain = [&](const RECT& place) {
        const Picture seen = look(place);
        for (int y = 0; y < seen.height(); y++)
            for (int x = 0; x < seen.width(); x++)
                if (seen.at(x, y) != seen.at(0, 0))
                    return false;
        return true;
    };
    const RECT line = {told.left, told.top, told.left + 160, told.top + 16, 160, 16};
    EXPECT_TRUE(isPlain(line));
    EXPECT_FALSE(isPlain(back));
    clickOn(stop);
    ASSERT_TRUE(user.waitFor([&] { return isPlain(stop) && isPlain(back) && !isPlain(line); }, "the notice"));
    clickOn(back);
    ASSERT_TRUE(user.waitFor([&] { return program->status().has_value(); }, "the end of the panel"));
    EXPECT_EQ(*program->status(), 0) << program->output();
}
