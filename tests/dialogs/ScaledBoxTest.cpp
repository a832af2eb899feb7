// The message box over a panel that is scaled to its display.
#include "dialogs/MessageBox.h"
#include "draw/Resource.h"
#include "tests/dialogs/BoxWidgets.h"
#include "tests/support/Screen.h"
#include "tests/support/UseEdition.h"
#include "window/Request.h"

using namespace tessary;

namespace
{

const char* const TITLE = "確認";

class ScaledBox : public Screen, public testing::WithParamInterface<int>
{
  protected:
    ScaledBox() : edition(GetParam())
    {
        know(Pattern("top").size(400, 300));
        know(
            Pattern("child").size(200, 100).header(HEDR_KIND, 2).header(HEDR_LEFT, 150).header(HEDR_TOP, 30));
    }

    /// A panel of 400 x 300; without a word it is not scaled.
    void begin(const char* word)
    {
        project.set("TESSARY", "DISPSIZE", "400,300");
        if (word)
            project.set("TESSARY", "SCALE", word);
        start();
        PtrnDispTopWnd("top", nullptr, 0);
        user.waitForWindow("top");
        user.settle();
    }

    ScreenWindow show(const std::function<void()>& act = [] {})
    {
        ScreenWindow box;
        later([&] {
            box = user.waitForWindow(TITLE);
            user.settle();
            box = user.waitForWindow(TITLE);
            act();
            if (GtkWidget* left = findBox(TITLE))
                gtk_widget_destroy(left);
        });
        answer = MessageBox(TITLE, "Is the valve closed?", 1, 2);
        return box;
    }

    static void expectMiddle(const ScreenWindow& box, int x, int y)
    {
        EXPECT_NEAR(box.x + box.width / 2.0, x, 2);
        EXPECT_NEAR(box.y + box.height / 2.0, y, 2);
    }

    UseEdition edition;
    int answer = 0;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Editions, ScaledBox, testing::Values(1, 2));

TEST_P(ScaledBox, grows_with_the_panel_and_stands_in_the_middle)
{
    begin(nullptr);
    const ScreenWindow natural = show();
    DrawCntlExit();
    begin("steps"); // three times, 1200 x 900
    const ScreenWindow box = show();
    EXPECT_NEAR(box.width, 3 * natural.width, natural.width / 2.0);
    EXPECT_NEAR(box.height, 3 * natural.height, natural.height / 2.0);
    expectMiddle(box, 640, 512);
}

TEST_P(ScaledBox, answers_where_its_buttons_are)
{
    begin("fit");
    show([&] {
        GtkWidget* const yes = widgets(findBox(TITLE), GTK_TYPE_BUTTON).front();
        int x = 0;
        int y = 0;
        gdk_window_get_origin(gtk_widget_get_window(yes), &x, &y);
        user.clickAt(x + yes->allocation.x + yes->allocation.width / 2,
                     y + yes->allocation.y + yes->allocation.height / 2);
        user.settle();
    });
    EXPECT_EQ(answer, 1);
}

TEST_P(ScaledBox, stands_over_the_child_that_is_in_front_from_the_second_edition_on)
{
    begin("steps");
    AppliWnd->PtrnDispChild(1, "child", nullptr, 0);
    user.waitForWindow("child");
    user.settle();
    const ScreenWindow box = show();
    if (GetParam() == 1)
        expectMiddle(box, 640, 512);
    else
        expectMiddle(box, 40 + 3 * 250, 62 + 3 * 80);
}
