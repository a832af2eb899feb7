// The house rules of this repository, checked on its own sources.
#include "tests/house/Includes.h"

#include "tests/support/Program.h"
#include "tests/support/Project.h"

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

/// A fault that stays, and why.
struct Exception {
    const char* fault;
    const char* reason;
};

constexpr Exception EXCEPTIONS[] = {
    {"tessary.h: \"gtk/gtk.h\" is of the toolkit",
     "applications name the toolkit's types without including it"},
};

/// A made-up tree of sources.
class Includes : public testing::Test
{
  protected:
    void write(const std::string& file, const std::string& text)
    {
        fs::create_directories(fs::path(project.root() + "/tree/" + file).parent_path());
        writeFile(project.root() + "/tree/" + file, text);
    }
    std::vector<std::string> faults() { return includeFaults(project.root() + "/tree"); }

    Project project;
};

} // namespace

TEST(House, includes_go_down)
{
    std::vector<std::string> faults = includeFaults(Program::sourceFolder());
    for (const Exception& exception : EXCEPTIONS) {
        const auto found = std::find(faults.begin(), faults.end(), exception.fault);
        if (found == faults.end())
            ADD_FAILURE() << "no longer needed among the exceptions: " << exception.fault;
        else
            faults.erase(found);
    }
    EXPECT_THAT(faults, IsEmpty());
}

TEST_F(Includes, that_go_down_or_stay_are_no_faults)
{
    write("base/Types.h", "#pragma once\nint type;\n");
    write("config/File.h", "#pragma once\n#include \"base/Types.h\"\nint file;\n");
    write("log/Log.cpp", "#include \"config/File.h\"\n#include <vector>\n");
    write("window/Wnd.cpp", "#include \"Wnd.h\"\n#include <gtk/gtk.h>\n#include \"log/Log.h\"\n");
    write("window/Wnd.h", "#include \"window/Buffer.h\"\nint wnd;\n");
    write("tessary.h", "#include \"base/Types.h\"\n#include \"window/Wnd.h\"\n");
    write("app/Screen.cpp", "#include \"tessary.h\"\n");
    write("tools/ptn/commands/New.cpp",
          "#include \"tools/ptn/starter/Files.h\"\n#include \"base/Types.h\"\n");
    write("tools/ptn/starter/Files.h", "int files;\n");
    write("tests/window/WndTest.cpp", "#include \"window/Wnd.h\"\n#include \"app/Screen.h\"\n");
    write("build/made.cpp", "#include \"app/Screen.h\"\n");
    EXPECT_THAT(faults(), IsEmpty());
}

TEST_F(Includes, that_go_up_are_faults)
{
    write("base/Types.h", "int type;\n");
    write("shell/Startup.h", "int startup;\n");
    write("log/Log.h", "int log;\n");
    write("app/Cells.h", "int cells;\n");
    write("tools/ptn/check/Check.h", "int check;\n");
    write("tools/ptn/yaml/Source.cpp", "#include \"tools/ptn/check/Check.h\"\n#include \"app/Cells.h\"\n");
    write("tests/support/Screen.h", "int screen;\n");
    write("window/Mouse.cpp", "#include \"base/Types.h\"\n  #  include \"shell/Startup.h\" // up\n");
    write("config/File.cpp", "#include \"../log/Log.h\"\n");
    write("pattern/items/Bar.cpp", "#include \"tools/ptn/check/Check.h\"\n");
    write("dialogs/Box.cpp", "#include \"app/Cells.h\"\n");
    write("base/Text.cpp", "#include \"tests/support/Screen.h\"\n");
    EXPECT_THAT(faults(), ElementsAre("base/Text.cpp: \"tests/support/Screen.h\" is above base",
                                      "config/File.cpp: \"../log/Log.h\" is above config",
                                      "dialogs/Box.cpp: \"app/Cells.h\" is above dialogs",
                                      "pattern/items/Bar.cpp: \"tools/ptn/check/Check.h\" is above pattern",
                                      "tools/ptn/yaml/Source.cpp: \"app/Cells.h\" is above tools/ptn/yaml",
                                      "tools/ptn/yaml/Source.cpp: \"tools/ptn/check/Check.h\" is above "
                                      "tools/ptn/yaml",
                                      "window/Mouse.cpp: \"shell/Startup.h\" is above window"));
}

TEST_F(Includes, of_the_toolkit_belong_to_few_folders)
{
    write("draw/Draw.cpp", "#include <gdk-pixbuf/gdk-pixbuf.h>\n#include <X11/Xlib.h>\n");
    write("comndata/Cells.cpp", "#include <gtk/gtk.h>\n#include <vector>\n");
    write("pattern/Press.cpp", "#include <X11/keysym.h>\n");
    write("app/Screen.cpp", "#include <gdk/gdk.h>\n");
    write("pattern/Keys.cpp", "#include <X11/Xlib.h>\n");
    EXPECT_THAT(faults(), ElementsAre("app/Screen.cpp: \"gdk/gdk.h\" is of the toolkit",
                                      "comndata/Cells.cpp: \"gtk/gtk.h\" is of the toolkit",
                                      "pattern/Keys.cpp: \"X11/Xlib.h\" is of the toolkit"));
}

TEST_F(Includes, of_a_header_that_only_forwards_are_faults)
{
    write("log/Log.h", "#pragma once\nint log;\n");
    write("shell/Log.h", "// Moved.\n#pragma once\n\n#include \"log/Log.h\"\n");
    write("shell/Startup.cpp", "#include \"log/Log.h\"\n#include \"shell/Log.h\"\n");
    EXPECT_THAT(faults(), ElementsAre("shell/Startup.cpp: \"shell/Log.h\" is a header that only forwards"));
}

TEST_F(Includes, in_a_circle_are_told_once)
{
    write("draw/Images.cpp", "#include \"draw/Images.h\"\n#include \"draw/Resource.h\"\n");
    write("draw/Images.h", "int images;\n");
    write("draw/Resource.cpp", "#include \"draw/Images.h\"\n#include \"draw/Resource.h\"\n");
    write("draw/Resource.h", "int resource;\n");
    write("draw/User.cpp", "#include \"draw/Images.h\"\n");
    EXPECT_THAT(faults(), ElementsAre("draw/Images, draw/Resource: a circle"));
}

TEST_F(Includes, of_a_folder_without_a_place_are_asked_for)
{
    write("extras/New.cpp", "int added;\n");
    write("tools/ptn/extras/New.cpp", "int added;\n");
    EXPECT_THAT(faults(), ElementsAre("extras/New.cpp: its folder has no place in the order of the folders",
                                      "tools/ptn/extras/New.cpp: its folder has no place in the order of the "
                                      "folders"));
}
