// What the toolkit would do at every tick behind a window's back, and the windows keep it from.
#include "tests/support/Screen.h"
#include "tests/support/Variable.h"

#include <algorithm>
#include <dlfcn.h>
#include <filesystem>
#include <sys/inotify.h>
#include <unistd.h>

using namespace tessary;

namespace
{

/// Pixels of the largest pixmap that was asked of the server.
unsigned largestPixmap = 0;

} // namespace

/// Stands before the X library's own in this program. The library's header has another Screen.
using CreatePixmap = unsigned long(void* display, unsigned long drawable, unsigned width, unsigned height,
                                   unsigned depth);
extern "C" unsigned long XCreatePixmap(void* display, unsigned long drawable, unsigned width, unsigned height,
                                       unsigned depth)
{
    static const auto NEXT = reinterpret_cast<CreatePixmap*>(dlsym(RTLD_NEXT, "XCreatePixmap"));
    largestPixmap = std::max(largestPixmap, width * height);
    return NEXT(display, drawable, width, height, depth);
}

namespace
{

class TickCost : public Screen
{
  protected:
    void SetUp() override
    {
        project.code("SYSTEM", 99);
        know(Pattern("p").size(200, 200));
        know(Pattern("child").header(HEDR_KIND, 1).size(100, 100));
        start();
    }
};

/// A home folder with a cursor theme, and who opens the theme's file.
class ThemeFolder
{
  public:
    explicit ThemeFolder(const std::string& home) : home_("HOME", home.c_str())
    {
        const std::string theme = home + "/.icons/default";
        std::filesystem::create_directories(theme);
        writeFile(theme + "/index.theme", "[Icon Theme]\n");
        watch_ = inotify_init1(IN_NONBLOCK);
        inotify_add_watch(watch_, theme.c_str(), IN_OPEN);
    }
    ~ThemeFolder() { close(watch_); }
    ThemeFolder(const ThemeFolder&) = delete;
    ThemeFolder& operator=(const ThemeFolder&) = delete;

    /// Whether the theme was opened since the last call.
    bool wasRead() const
    {
        char events[4096];
        return read(watch_, events, sizeof events) > 0;
    }

  private:
    Variable home_;
    int watch_;
};

/// A pointer made in the toolkit's usual way.
void usePlainCursor(GdkWindow* window)
{
    const char bits[32 * 32 / 8] = {0x0F};
    GdkBitmap* picture = gdk_bitmap_create_from_data(nullptr, bits, 32, 32);
    const GdkColor black{};
    GdkCursor* cursor = gdk_cursor_new_from_pixmap(picture, picture, &black, &black, 0, 0);
    gdk_window_set_cursor(window, cursor);
    gdk_cursor_unref(cursor);
    g_object_unref(picture);
}

} // namespace

TEST_F(TickCost, a_tick_takes_no_memory_of_the_server_for_a_picture_of_the_window)
{
    largestPixmap = 0;
    CPtrnDisp* wnd = openTop("p");
    openChild(wnd, 1, "child");
    ASSERT_GE(largestPixmap, 200U * 200U) << "the back buffer is seen";
    user.settle();
    largestPixmap = 0;
    tick(3);
    wnd->PtrnUpdate();
    user.settle();
    EXPECT_LE(largestPixmap, 32U * 32U) << "nothing beside the pointer's picture";
}

TEST_F(TickCost, a_tick_looks_for_no_cursor_theme_on_the_disk)
{
    CPtrnDisp* wnd = openTop("p");
    const ThemeFolder theme(project.root());
    for (int number = 0; number < 8; number++) {
        wnd->CursorType = number;
        tick();
    }
    EXPECT_FALSE(theme.wasRead());
    usePlainCursor(wnd->DrawArea->window);
    EXPECT_TRUE(theme.wasRead()) << "another pointer would be looked for";
}
