// Libraries that others would have the real program load.
#include "tests/app/Outside.h"
#include "tests/app/Panel.h"
#include "tests/support/Variable.h"

#include <cstdint>
#include <filesystem>
#include <gmock/gmock.h>
#include <X11/Xatom.h>

using namespace tessary;

namespace
{

/// A settings manager of the display, with settings that are texts.
class Settings
{
  public:
    explicit Settings(const std::vector<std::pair<std::string, std::string>>& texts)
        : window_(XCreateSimpleWindow(client_, DefaultRootWindow(static_cast<Display*>(client_)), 0, 0, 1, 1,
                                      0, 0, 0))
    {
        const Atom selection = XInternAtom(client_, "_XSETTINGS_S0", False);
        const Atom property = XInternAtom(client_, "_XSETTINGS_SETTINGS", False);
        const std::string bytes = form(texts);
        XChangeProperty(client_, window_, property, property, 8, PropModeReplace,
                        reinterpret_cast<const unsigned char*>(bytes.data()), static_cast<int>(bytes.size()));
        XSetSelectionOwner(client_, selection, window_, CurrentTime);
        XEvent event{};
        event.xclient.type = ClientMessage;
        event.xclient.window = DefaultRootWindow(static_cast<Display*>(client_));
        event.xclient.message_type = XInternAtom(client_, "MANAGER", False);
        event.xclient.format = 32;
        event.xclient.data.l[1] = static_cast<long>(selection);
        event.xclient.data.l[2] = static_cast<long>(window_);
        XSendEvent(client_, event.xclient.window, False, StructureNotifyMask, &event);
        XSync(client_, False);
    }

  private:
    static std::string form(const std::vector<std::pair<std::string, std::string>>& texts)
    {
        const auto padded = [](std::string bytes) {
            bytes.resize((bytes.size() + 3) / 4 * 4, '\0');
            return bytes;
        };
        std::string bytes = std::string(4, '\0') + int32(1) + int32(static_cast<int>(texts.size()));
        for (const auto& [name, text] : texts) {
            bytes += std::string("\x01\x00", 2) + int32(static_cast<int>(name.size())).substr(0, 2);
            bytes += padded(name) + int32(1) + int32(static_cast<int>(text.size())) + padded(text);
        }
        return bytes;
    }

    Client client_;
    Window window_;
};

class PanelModules : public Panel
{
  protected:
    void SetUp() override
    {
        Panel::SetUp();
        Pattern(MENU).size(300, 200).item(PTRN_BUTN, 10, 10, 90, 40).action(7, OTHER).save(project);
        std::filesystem::create_directories(project.root() + "/theme/gtk-2.0");
        writeFile(project.root() + "/theme/gtk-2.0/gtkrc",
                  "style \"engine\" { engine \"" + MODULE + "\" {} }\nclass \"*\" style \"engine\"\n");
    }

    /// Has the toolkit draw a box of its own, with whatever the settings bring into it, since the screen of
    /// the button is missing, and ends the panel.
    void drawBoxAndEnd()
    {
        user.clickAt(50, 25);
        user.waitForWindow("画面異常");
        EXPECT_EQ(kill(program->pid(), SIGTERM), 0);
        EXPECT_EQ(waitEnd(), 0) << program->output();
    }

    bool isLoaded() const { return std::filesystem::exists(mark); }

    /// The theme's folder, as somebody has to write it who may not write into the folders of themes.
    std::string themePath() const { return "../../../.." + project.root() + "/theme"; }

    const std::string MODULE = Program::buildFolder() + "/libloaded_module.so";
    const std::string mark = project.root() + "/loaded";
    const Variable tells{"TESSARY_LOADED", mark.c_str()};
};

} // namespace

TEST_F(PanelModules, are_not_loaded_from_the_environment)
{
    ASSERT_TRUE(std::filesystem::exists(MODULE));
    const Variable modules("GTK_MODULES", MODULE.c_str());
    run();
    user.waitForDrawn(MENU);
    drawBoxAndEnd();
    EXPECT_FALSE(isLoaded());
}

TEST_F(PanelModules, are_not_loaded_from_the_settings_of_the_display)
{
    const Settings settings(
        {{"Gtk/Modules", MODULE}, {"Net/ThemeName", themePath()}, {"Gtk/KeyThemeName", themePath()}});
    run();
    user.waitForDrawn(MENU);
    drawBoxAndEnd();
    EXPECT_FALSE(isLoaded());
}

TEST_F(PanelModules, are_not_loaded_when_the_settings_change_while_it_runs)
{
    run();
    user.waitForDrawn(MENU);
    const Settings settings(
        {{"Gtk/Modules", MODULE}, {"Net/ThemeName", themePath()}, {"Gtk/KeyThemeName", themePath()}});
    drawBoxAndEnd();
    EXPECT_FALSE(isLoaded());
}

TEST_F(PanelModules, would_be_loaded_by_the_toolkit_itself)
{
    const Settings settings({{"Gtk/Modules", MODULE}});
    Program other("toolkit_program", "toolkit_program");
    user.waitFor([&] { return other.status().has_value(); }, "the end of a program of the toolkit");
    EXPECT_TRUE(isLoaded()) << "the test's own settings are not understood: " << other.output();
}
