// Paths: joining and splitting.
#include "config/FileCntl.h"

#include <gtest/gtest.h>
#include <string>

using namespace tessary;

namespace
{

std::string Joined(const char* dir, const char* name, const char* ext)
{
    char path[SIZE_PATH + 1];
    MakePath(path, dir, name, ext);
    return path;
}

struct Parts {
    char dir[SIZE_PATH + 1] = "untouched";
    char base[SIZE_PATH + 1] = "untouched";
    char ext[SIZE_PATH + 1] = "untouched";
};

Parts Split(const char* path)
{
    Parts parts;
    SplitPath(path, parts.dir, parts.base, parts.ext);
    return parts;
}

} // namespace

TEST(MakePath, joins_folder_name_and_extension)
{
    EXPECT_EQ(Joined("/x/y", "b", "txt"), "/x/y/b.txt");
}

TEST(MakePath, does_not_double_the_slash)
{
    EXPECT_EQ(Joined("a/", "b", "txt"), "a/b.txt");
    EXPECT_EQ(Joined("/", "b", ""), "/b");
}

TEST(MakePath, takes_the_extension_with_or_without_its_dot)
{
    EXPECT_EQ(Joined("a/", "b", ".txt"), "a/b.txt");
    EXPECT_EQ(Joined("a", "b", "tar.gz"), "a/b.tar.gz");
    EXPECT_EQ(Joined("a", "b", "."), "a/b.");
}

TEST(MakePath, leaves_out_what_is_empty)
{
    EXPECT_EQ(Joined("", "b", ""), "b");
    EXPECT_EQ(Joined("a", "", ""), "a");
    EXPECT_EQ(Joined("a/", "", ""), "a/");
    EXPECT_EQ(Joined("a", "", "txt"), "a.txt");
    EXPECT_EQ(Joined("", "", ""), "");
}

TEST(MakePath, takes_null_for_empty)
{
    EXPECT_EQ(Joined(nullptr, "b", nullptr), "b");
    EXPECT_EQ(Joined("a", nullptr, "txt"), "a.txt");
    MakePath(nullptr, "a", "b", "c");
}

TEST(MakePath, may_write_over_one_of_its_parts)
{
    char path[SIZE_PATH + 1] = "/x";
    MakePath(path, path, "name", "ini");
    EXPECT_STREQ(path, "/x/name.ini");

    char name[SIZE_PATH + 1] = "name";
    MakePath(name, "/x", name, "ini");
    EXPECT_STREQ(name, "/x/name.ini");
}

TEST(MakePath, fills_its_buffer_and_cuts_what_is_longer)
{
    EXPECT_EQ(Joined(std::string(251, 'd').c_str(), "b", "ab"), std::string(251, 'd') + "/b.ab");
    EXPECT_EQ(Joined(std::string(251, 'd').c_str(), "b", "abc"), std::string(251, 'd') + "/b.ab");
    EXPECT_EQ(Joined(std::string(5000, 'd').c_str(), "b", "abc"), std::string(256, 'd'));
}

TEST(MakePath, cuts_between_characters)
{
    std::string name;
    for (int i = 0; i < 200; ++i)
        name += "漢";
    EXPECT_EQ(Joined("", name.c_str(), ""), name.substr(0, 256));
    EXPECT_EQ(Joined("d", ("e" + name).c_str(), ""), "d/e" + name.substr(0, 252));
}

TEST(SplitPath, splits_at_the_last_slash_and_the_first_dot_after_it)
{
    const Parts parts = Split("/x/y.z/name.tar.gz");
    EXPECT_STREQ(parts.dir, "/x/y.z");
    EXPECT_STREQ(parts.base, "name");
    EXPECT_STREQ(parts.ext, "tar.gz");
}

TEST(SplitPath, gives_a_dot_as_the_folder_of_a_bare_name)
{
    const Parts parts = Split("name");
    EXPECT_STREQ(parts.dir, ".");
    EXPECT_STREQ(parts.base, "name");
    EXPECT_STREQ(parts.ext, "");
}

TEST(SplitPath, skips_the_second_of_two_dots)
{
    const Parts two = Split("name..ext");
    EXPECT_STREQ(two.dir, ".");
    EXPECT_STREQ(two.base, "name");
    EXPECT_STREQ(two.ext, "ext");
    EXPECT_STREQ(Split("name...ext").ext, ".ext");
    EXPECT_STREQ(Split("name.a..b").ext, "a..b");
}

TEST(SplitPath, keeps_the_root_as_the_folder_of_a_file_in_it)
{
    const Parts parts = Split("/panel");
    EXPECT_STREQ(parts.dir, "/");
    EXPECT_STREQ(parts.base, "panel");
}

TEST(SplitPath, handles_paths_without_a_name)
{
    const Parts folder = Split("x/");
    EXPECT_STREQ(folder.dir, "x");
    EXPECT_STREQ(folder.base, "");
    EXPECT_STREQ(folder.ext, "");

    const Parts empty = Split("");
    EXPECT_STREQ(empty.dir, ".");
    EXPECT_STREQ(empty.base, "");
    EXPECT_STREQ(empty.ext, "");
    EXPECT_STREQ(Split(nullptr).dir, ".");

    const Parts hidden = Split("x/.profile");
    EXPECT_STREQ(hidden.base, "");
    EXPECT_STREQ(hidden.ext, "profile");

    const Parts end = Split("name.");
    EXPECT_STREQ(end.base, "name");
    EXPECT_STREQ(end.ext, "");
}

TEST(SplitPath, writes_only_the_parts_that_are_wanted)
{
    char part[SIZE_PATH + 1] = "untouched";
    SplitPath("/x/name.ext", nullptr, nullptr, nullptr);
    EXPECT_STREQ(part, "untouched");
    SplitPath("/x/name.ext", part, nullptr, nullptr);
    EXPECT_STREQ(part, "/x");
    SplitPath("/x/name.ext", nullptr, part, nullptr);
    EXPECT_STREQ(part, "name");
    SplitPath("/x/name.ext", nullptr, nullptr, part);
    EXPECT_STREQ(part, "ext");
}

TEST(SplitPath, may_write_over_the_path)
{
    char path[SIZE_PATH + 1] = "/x/name.ext";
    Parts parts;
    SplitPath(path, path, parts.base, parts.ext);
    EXPECT_STREQ(path, "/x");
    EXPECT_STREQ(parts.base, "name");
    EXPECT_STREQ(parts.ext, "ext");
}

TEST(SplitPath, cuts_each_part_that_is_too_long)
{
    const Parts parts =
        Split((std::string(300, 'd') + "/" + std::string(300, 'b') + "." + std::string(300, 'e')).c_str());
    EXPECT_EQ(parts.dir, std::string(256, 'd'));
    EXPECT_EQ(parts.base, std::string(256, 'b'));
    EXPECT_EQ(parts.ext, std::string(256, 'e'));
}

TEST(SplitPath, and_make_path_give_the_profile_beside_the_program)
{
    Parts parts;
    char profile[SIZE_PATH + 1];
    SplitPath("/opt/panel/bin/panel.exe", parts.dir, parts.base, nullptr);
    MakePath(profile, parts.dir, parts.base, "ini");
    EXPECT_STREQ(profile, "/opt/panel/bin/panel.ini");
}
