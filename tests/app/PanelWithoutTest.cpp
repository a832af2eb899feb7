// The real program where something it draws with is missing: it starts, runs and stops, and tells what is
// missing once, with what to install or set.
#include "tests/app/Panel.h"
#include "tests/support/Variable.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <X11/Xlib.h>

using namespace tessary;

using testing::AllOf;
using testing::AnyOf;
using testing::HasSubstr;
using testing::Not;

namespace
{

/// The server of the tests as it is without any font package: it keeps those fonts alone that are part of it.
class BareFonts
{
  public:
    BareFonts() : display_(XOpenDisplay(nullptr))
    {
        fonts_ = XGetFontPath(display_, &count_);
        char builtin[] = "built-ins";
        char* path[] = {builtin};
        XSetFontPath(display_, path, 1);
        XSync(display_, False);
    }
    ~BareFonts()
    {
        XSetFontPath(display_, fonts_, count_);
        XFreeFontPath(fonts_);
        XCloseDisplay(display_);
    }
    BareFonts(const BareFonts&) = delete;
    BareFonts& operator=(const BareFonts&) = delete;

  private:
    Display* display_;
    char** fonts_;
    int count_ = 0;
};

class PanelWithout : public Panel
{
  protected:
    /// A start screen that uses fonts, colours, marks and bitmaps, with a button that stops the program.
    void saveScreens()
    {
        project.set("TESSARY", "WAITTIMER", "1").set("PTRN", "PTRNSTOP", NOTICE);
        Pattern(NOTICE).size(150, 80).save(project);
        Pattern(MENU)
            .title("Plant")
            .size(300, 200)
            .header(HEDR_TITLE_HEIGHT, 30)
            .header(HEDR_CLOCK, 6)
            .header(HEDR_LOGO, 1)
            .header(HEDR_HARDCOPY, 1)
            .logo("logo.png")
            .bitmap("body.png")
            .item(PTRN_BMAP, 10, 100, 60, 140)
            .text("pump.png")
            .item(PTRN_BMAP, 70, 100, 120, 140)
            .text("pump.png")
            .item(PTRN_MARK, 130, 100, 160, 130)
            .parm4(MARK_NUMBER4, 7, 107, 207, 307)
            .item(PTRN_NUMR, 170, 100, 220, 120)
            .code("DATA", 6) // the seconds
            .item(PTRN_CHCK, 230, 100, 290, 120)
            .text("ポンプ")
            .item(PTRN_BUTN, 10, 40, 110, 80)
            .text("終了")
            .action(16)
            .save(project);
    }

    /// Starts the program and waits for its first screen.
    void runScreen()
    {
        saveScreens();
        run();
        const ScreenWindow window = waitWindow();
        EXPECT_EQ(window.width, 300);
        EXPECT_EQ(window.height, 200);
    }

    /// The only window, whatever its title can be shown as.
    ScreenWindow waitWindow()
    {
        user.waitFor([&] { return !user.windows().empty(); }, "the first window");
        const auto windows = user.windows();
        return windows.empty() ? ScreenWindow() : windows.back();
    }

    /// Clicks the stop button and waits for the end, which comes after a second of ticks.
    void stop()
    {
        const ScreenWindow window = waitWindow();
        user.clickAt(window.x + 60, window.y + 60);
        EXPECT_EQ(waitEnd(), 0) << program->output();
        EXPECT_EQ(logged().back(), "システム停止");
        EXPECT_THAT(program->output(), Not(AnyOf(HasSubstr("CRITICAL"), HasSubstr("ERROR"),
                                                 HasSubstr("assertion"), HasSubstr("BadFont"))));
    }

    /// Log lines with that text.
    long told(const std::string& text)
    {
        const auto messages = logged();
        return std::count_if(messages.begin(), messages.end(), [&](const std::string& message) {
            return message.find(text) != std::string::npos;
        });
    }
};

} // namespace

TEST_F(PanelWithout, fonts_on_the_server_draws_everything_else)
{
    const BareFonts bare;
    runScreen();
    stop();
    EXPECT_EQ(told("フォントの読込みに失敗 [FONTNAME0="), 1);
    EXPECT_EQ(told("xfonts-base, xfonts-intl-japanese を導入"), 1);
    EXPECT_THAT(program->output(),
                AllOf(HasSubstr("panel: The font set FONTNAME0 ("),
                      HasSubstr("Install the packages xfonts-base and xfonts-intl-japanese")));
}

TEST_F(PanelWithout, a_character_set_in_its_font_names_the_set)
{
    project.set("FONT", "FONTNAME0", "-sony-fixed-medium-r-normal--16-*-*-*-*-*-*-*");
    runScreen();
    stop();
    EXPECT_EQ(told("フォントに文字集合がない [FONTNAME0: JISX0208"), 1);
    EXPECT_EQ(told("xfonts-base, xfonts-intl-japanese を導入"), 1);
    EXPECT_THAT(program->output(),
                HasSubstr("panel: The font set FONTNAME0 lacks the character sets JISX0208"));
}

TEST_F(PanelWithout, font_names_for_its_language_names_the_keys)
{
    project.set("FONT", "LANGUAGE", "1");
    runScreen();
    stop();
    EXPECT_EQ(told("文字を表示できない: 環境設定ファイルの [FONT] に FONTNAME20 から FONTNAME39"), 1);
    EXPECT_EQ(told("導入"), 0) << "nothing to install";
    EXPECT_THAT(program->output(), HasSubstr("with one of the keys FONTNAME20 to FONTNAME39"));
}

TEST_F(PanelWithout, colors_shows_black_and_names_the_file)
{
    std::filesystem::remove(project.folder() + "/PtrnColr");
    runScreen();
    const ScreenWindow window = waitWindow();
    user.waitFor([&] { return user.pixel(window.x + 150, window.y + 2) == 0; }, "the title bar in black");
    stop();
    EXPECT_EQ(told("ファイルのオープンに失敗 [PtrnColr]"), 1);
    EXPECT_EQ(told("ファイルの読込みに失敗 [PtrnColr]"), 1);
}

TEST_F(PanelWithout, marks_names_the_file)
{
    runScreen();
    stop();
    EXPECT_EQ(told("ファイルのオープンに失敗 [PtrnMark]"), 1);
    EXPECT_EQ(told("ファイルの読込みに失敗 [PtrnMark]"), 1);
}

TEST_F(PanelWithout, bitmaps_names_each_file_once)
{
    runScreen();
    stop();
    for (const char* name : {"logo.png", "body.png", "pump.png"})
        EXPECT_EQ(told(std::string("ビットマップの読込みに失敗 [") + name + "]"), 1) << name;
}

TEST_F(PanelWithout, the_locale_tells_how_to_make_it)
{
    const Variable path("LOCPATH", "/nonexistent");
    runScreen();
    stop();
    EXPECT_EQ(told("localedef -i ja_JP -f EUC-JP ja_JP.eucJP"), 1);
    EXPECT_EQ(told("フォントに文字集合がない"), 0) << "no font is to blame";
    EXPECT_THAT(program->output(), AllOf(HasSubstr("The locale ja_JP.eucJP is not installed"),
                                         HasSubstr("localedef -i ja_JP -f EUC-JP ja_JP.eucJP")));
}

TEST_F(PanelWithout, anything_at_all_still_runs_and_stops)
{
    const BareFonts bare;
    const Variable path("LOCPATH", "/nonexistent");
    for (const char* name : {"PtrnCode", "PtrnColr"})
        std::filesystem::remove(project.folder() + "/" + name);
    for (const char* key : {"FONTNAME0", "LANGUAGE"})
        project.unset("FONT", key);
    project.unset("TESSARY", "DISPSIZE");
    runScreen();
    stop();
}

TEST_F(PanelWithout, sound_files_of_its_project_starts_with_what_they_hold)
{
    project.write("PtrnColr", "short");
    project.write("PtrnMark", std::string(1000, '\xFF'));
    std::filesystem::create_directories(project.folder() + "/Bitmap/logo.png");
    project.write("Bitmap/body.png", "\x89PNG\r\n\x1A\n and no more");
    project.write("Bitmap/pump.png", std::string(100000, '\0'));
    project.write("PtrnFlag", "");
    project.write("MesgData.prf", std::string(5000, '\xA1'));
    project.write("LimtData.prf", std::string("\0\1\2\3", 4));
    runScreen();
    stop();
    for (const char* name : {"PtrnColr", "PtrnMark"})
        EXPECT_EQ(told(std::string("ファイルの読込みに失敗 [") + name + "]"), 1) << name;
    for (const char* name : {"logo.png", "body.png", "pump.png"})
        EXPECT_EQ(told(std::string("ビットマップの読込みに失敗 [") + name + "]"), 1) << name;
}

TEST_F(PanelWithout, its_project_folder_names_what_it_misses_and_runs)
{
    project.set("TESSARY", "PROJECT", project.root() + "/gone");
    run();
    waitLogged(std::string("パターンを表示できない  [") + MENU + "]");
    for (const char* name : {"PtrnColr", "PtrnMark"})
        EXPECT_EQ(told(std::string("ファイルのオープンに失敗 [") + name + "]"), 1) << name;
    EXPECT_FALSE(program->status()) << program->output();
}
