// "ptn build": what it does to the folder that it writes to, and its command line.
#include "tests/ptn/Sources.h"
#include "tests/support/Project.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>

namespace fs = std::filesystem;

namespace
{

using testing::HasSubstr;

// Every file below a folder with its bytes.
std::map<std::string, std::string> Tree(const std::string& folder)
{
    std::map<std::string, std::string> tree;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        tree[entry.path().string()] = entry.is_regular_file() ? readFile(entry.path().string()) : "folder";
    return tree;
}

class Output : public testing::Test
{
  protected:
    Output() { sources.base().screen("name: a\n").write("bitmaps/x.png", "X"); }

    void build()
    {
        const PtnResult result = sources.build();
        ASSERT_EQ(result.status, 0) << result.err;
    }

    Sources sources;
};

TEST_F(Output, keeps_the_time_of_files_that_have_not_changed)
{
    build();
    // Old enough to tell from anything that is written now.
    const auto before = fs::file_time_type::clock::now() - std::chrono::hours(1);
    for (const auto& file : Tree(sources.root() + "/out"))
        if (file.second != "folder")
            fs::last_write_time(file.first, before);

    sources.write("project.yaml", readFile(sources.root() + "/src/project.yaml") + "\n");
    build();
    for (const auto& file : Tree(sources.root() + "/out")) {
        if (file.second != "folder") {
            EXPECT_EQ(fs::last_write_time(file.first), before) << file.first;
        }
    }

    sources.screen("name: a\ntitle: other\n");
    build();
    EXPECT_NE(fs::last_write_time(sources.output() + "/a.ptn"), before);
    EXPECT_EQ(fs::last_write_time(sources.output() + "/PtrnColr"), before);
    EXPECT_EQ(fs::last_write_time(sources.output() + "/Bitmap/x.png"), before);
    EXPECT_EQ(fs::last_write_time(sources.profile()), before);
}

TEST_F(Output, is_untouched_by_a_build_that_fails)
{
    build();
    const auto before = Tree(sources.root() + "/out");
    sources.write("bitmaps/y.png", "Y").screen("name: a\ntitle: other\nitems: [{ type: knob }]\n");
    const PtnResult result = sources.build();
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("1 error; out/ProjPath is unchanged.\n"));
    EXPECT_EQ(Tree(sources.root() + "/out"), before);
}

TEST_F(Output, is_not_made_by_a_build_that_fails)
{
    sources.screen("items: []\n");
    EXPECT_EQ(sources.build().status, 1);
    EXPECT_FALSE(fs::exists(sources.root() + "/out"));
}

TEST_F(Output, is_untouched_when_a_file_can_not_be_put_in_place)
{
    build();
    fs::remove(sources.output() + "/a.ptn");
    fs::create_directories(sources.output() + "/a.ptn/in-the-way");
    sources.write("project.yaml", "colors: { white: '#FFFFFF' }\n");
    const auto before = Tree(sources.root() + "/out");
    const PtnResult result = sources.build();
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err,
                HasSubstr(sources.output() + "/a.ptn: Is a directory. Check the folder's rights"));
    EXPECT_EQ(Tree(sources.root() + "/out"), before);
}

TEST_F(Output, is_refused_where_no_folder_can_be_made)
{
    sources.write("file", "");
    const PtnResult result = sources.run("build src src/file/ProjPath");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("Check the folder's rights and space."));
}

TEST_F(Output, is_not_left_half_made_where_it_can_not_be_written)
{
    build();
    fs::remove(sources.profile());
    fs::create_directories(sources.profile() + "/in-the-way");
    sources.screen("name: b\n");
    const auto before = Tree(sources.root() + "/out");
    const PtnResult result = sources.build();
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, sources.profile() + ": Is a directory. Check the folder's rights and space.\n" +
                              "1 error; out/ProjPath is unchanged.\n");
    EXPECT_EQ(Tree(sources.root() + "/out"), before);
}

TEST_F(Output, leaves_no_temporary_folder_behind)
{
    build();
    sources.screen("name: b\n");
    build();
    for (const auto& entry : fs::recursive_directory_iterator(sources.root() + "/out"))
        EXPECT_FALSE(entry.is_directory() && entry.path().filename().string()[0] == '.') << entry.path();
}

TEST_F(Output, keeps_what_the_panel_and_others_have_written_there)
{
    build();
    writeFile(sources.output() + "/PtrnFlag", "flags");
    writeFile(sources.output() + "/Haisenhyo", "table");
    writeFile(sources.output() + "/other.ptn", "not from these sources");
    sources.screen("name: b\n");
    build();
    EXPECT_EQ(sources.built("PtrnFlag"), "flags");
    EXPECT_EQ(sources.built("Haisenhyo"), "table");
    EXPECT_EQ(sources.built("other.ptn"), "not from these sources");
}

TEST_F(Output, loses_screens_and_bitmaps_that_were_built_before_and_have_no_source_any_more)
{
    build();
    fs::remove(sources.root() + "/src/bitmaps/x.png");
    sources.screen("name: b\n");
    const PtnResult result = sources.build();
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_FALSE(fs::exists(sources.output() + "/a.ptn"));
    EXPECT_FALSE(fs::exists(sources.output() + "/Bitmap/x.png"));
    EXPECT_TRUE(fs::exists(sources.output() + "/b.ptn"));
    EXPECT_EQ(result.out, "out/ProjPath: 6 files, 2 written, 2 removed.\n");
}

TEST_F(Output, never_loses_files_outside_of_it)
{
    build();
    writeFile(sources.root() + "/out/precious", "p");
    writeFile(sources.output() + "/.ptn-files", "../precious\n" + sources.root() + "/out/precious\n\n");
    build();
    EXPECT_EQ(readFile(sources.root() + "/out/precious"), "p");
}

TEST_F(Output, keeps_the_remembered_window_positions_of_the_profile)
{
    build();
    const std::string fresh = readFile(sources.profile());
    // As the program writes them, with the remains of a longer file at the end.
    writeFile(sources.profile(), fresh +
                                     "[WINDOW] ;c\nWINDOW003=10,20\nJUNK\nWINDOW001=5,6\n[X]\nWINDOW009=1,1\n"
                                     "[WINDOW]\nWINDOW002=7,8\n6\n");
    build();
    EXPECT_EQ(readFile(sources.profile()), fresh + "[WINDOW]\nWINDOW003=10,20\nWINDOW001=5,6\n");
    build();
    EXPECT_EQ(readFile(sources.profile()), fresh + "[WINDOW]\nWINDOW003=10,20\nWINDOW001=5,6\n");
}

TEST_F(Output, replaces_other_changes_of_the_profile)
{
    build();
    const std::string fresh = readFile(sources.profile());
    writeFile(sources.profile(), "[TESSARY]\nPROJECT=elsewhere\n");
    build();
    EXPECT_EQ(readFile(sources.profile()), fresh);
}

TEST_F(Output, is_named_relatively_when_its_path_does_not_fit_into_the_profile)
{
    for (const std::string& folder : {std::string(100, 'd'), std::string("a,b"), std::string("a;b")}) {
        const PtnResult result = sources.run("build src '" + folder + "/ProjPath'");
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_THAT(result.err,
                    HasSubstr("warning: this path is too long for the profile or has ',' or ';' in it, so "
                              "'PROJECT' is written as 'ProjPath'. Start the program in this folder.\n"));
        EXPECT_THAT(readFile(sources.root() + "/" + folder + "/panel.ini"), HasSubstr("PROJECT=ProjPath\n"));
    }
}

TEST_F(Output, is_named_absolutely_up_to_99_bytes)
{
    const std::string name(99 - sources.root().size() - 1, 'p');
    EXPECT_EQ(sources.run("build src " + name).err, "");
    EXPECT_THAT(readFile(sources.root() + "/panel.ini"),
                HasSubstr("PROJECT=" + sources.root() + "/" + name + "\n"));
    EXPECT_THAT(sources.run("build src " + name + "p").err, HasSubstr("warning"));
}

TEST_F(Output, takes_a_path_with_a_slash_at_its_end_and_one_that_is_a_link)
{
    EXPECT_EQ(sources.run("build src out/ProjPath/").status, 0);
    EXPECT_THAT(readFile(sources.profile()), HasSubstr("PROJECT=" + sources.output() + "\n"));
    fs::create_directories(sources.root() + "/else/where");
    fs::create_directories(sources.root() + "/linked");
    fs::create_directory_symlink(sources.root() + "/else/where", sources.root() + "/linked/ProjPath");
    EXPECT_EQ(sources.run("build src linked/ProjPath").status, 0);
    EXPECT_TRUE(fs::exists(sources.root() + "/else/where/a.ptn"));
    EXPECT_TRUE(fs::exists(sources.root() + "/linked/panel.ini"));
}

TEST_F(Output, can_not_be_the_folder_of_the_sources)
{
    const auto before = Tree(sources.root() + "/src");
    const PtnResult result = sources.run("build src ./src/");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("this is the folder of the sources. Name another for the output.\n"));
    EXPECT_EQ(Tree(sources.root() + "/src"), before);
}

TEST_F(Output, is_reported_unless_told_to_be_quiet)
{
    EXPECT_EQ(sources.build().out, "out/ProjPath: 7 files, 7 written, 0 removed.\n");
    EXPECT_EQ(sources.build().out, "out/ProjPath: 7 files, 0 written, 0 removed.\n");
    EXPECT_EQ(sources.run("build --quiet src out/ProjPath").out, "");
    EXPECT_EQ(sources.run("build -q src out/ProjPath").out, "");
}

TEST_F(Output, needs_two_arguments_and_a_folder_of_sources)
{
    EXPECT_EQ(sources.run("").status, 2);
    EXPECT_EQ(sources.run("build").status, 2);
    EXPECT_EQ(sources.run("build src").status, 2);
    EXPECT_EQ(sources.run("build nowhere out").status, 2);
    EXPECT_EQ(sources.run("build --nonsense src out").status, 2);
    EXPECT_EQ(sources.run("bulid src out").status, 2);
    EXPECT_EQ(sources.run("bulid src out").err,
              "ptn: no command 'bulid'. Did you mean 'build'? Run with --help for more information.\n");
}

TEST_F(Output, is_explained_by_the_help)
{
    EXPECT_EQ(sources.run("--help").status, 0);
    EXPECT_THAT(sources.run("--help").out, HasSubstr("build"));
    EXPECT_EQ(sources.run("build --help").status, 0);
    EXPECT_THAT(sources.run("build --help").out, HasSubstr("SRC"));
    EXPECT_THAT(sources.run("build --help").out, HasSubstr("--quiet"));
    EXPECT_EQ(sources.run("help").out, sources.run("--help").out);
    for (const char* command : {"new", "build", "check", "dump", "render", "watch", "run", "help"}) {
        const PtnResult help = sources.run(std::string(command) + " --help");
        EXPECT_EQ(help.status, 0);
        EXPECT_THAT(help.out, HasSubstr(std::string("Usage: ptn ") + command + " ["));
        EXPECT_EQ(sources.run(std::string("help ") + command).out, help.out);
    }
    EXPECT_EQ(sources.run("--version").status, 0);
    EXPECT_THAT(sources.run("--version").out, testing::MatchesRegex("[0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

} // namespace
