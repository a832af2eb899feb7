#include "config/Profile.h"

#include "tests/config/ProfileFixture.h"

#include <climits>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <gmock/gmock.h>
#include <sys/mman.h>
#include <unistd.h>

namespace
{

using std::string;
using testing::Contains;
using testing::ElementsAre;

class WriteFixture : public ProfileFile
{
  protected:
    // The file after one text has been written into it.
    string written(const string& before, const char* section, const char* key, const char* value)
    {
        put(before);
        ProfileWriteAsc(file(), section, key, value);
        return bytes();
    }
    string deleted(const string& before, const char* section, const char* key)
    {
        put(before);
        ProfileDelete(file(), section, key);
        return bytes();
    }
};

using ProfileWriting = WriteFixture;
using ProfileWrittenValue = WriteFixture;
using ProfileDeleting = WriteFixture;
using ProfileNumberWriter = WriteFixture;

// A number at an address that fits an int.
template <typename Number> class LowNumber
{
  public:
    explicit LowNumber(Number number)
        : memory_(mmap(reinterpret_cast<void*>(0x20000000), sizeof number, PROT_READ | PROT_WRITE,
                       MAP_PRIVATE | MAP_ANONYMOUS, -1, 0))
    {
        if (memory_ != MAP_FAILED)
            std::memcpy(memory_, &number, sizeof number);
    }
    ~LowNumber()
    {
        if (memory_ != MAP_FAILED)
            munmap(memory_, sizeof(Number));
    }
    LowNumber(const LowNumber&) = delete;
    LowNumber& operator=(const LowNumber&) = delete;

    bool exists() const { return memory_ != MAP_FAILED && place() <= INT_MAX; }
    int address() const { return static_cast<int>(place()); }

  private:
    std::uintptr_t place() const { return reinterpret_cast<std::uintptr_t>(memory_); }

    void* memory_;
};

// Works without the right to read everything, which the superuser has.
class OrdinaryUser
{
  public:
    OrdinaryUser() : before_(geteuid()) { changed_ = before_ != 0 || seteuid(65534) == 0; }
    ~OrdinaryUser()
    {
        if (geteuid() != before_ && seteuid(before_) != 0)
            std::abort();
    }
    bool changed() const { return changed_; }

  private:
    uid_t before_;
    bool changed_;
};

} // namespace

TEST_F(ProfileWriting, replaces_the_value_where_it_stands)
{
    EXPECT_EQ(written("[A]\nj=1\nk=2\nm=3\n", "A", "k", "5"), "[A]\nj=1\nk=5\nm=3\n");
    EXPECT_EQ(written("[A]\nj=1\nk=2\nm=3\n", "A", "k", "longer"), "[A]\nj=1\nk=longer\nm=3\n");
    EXPECT_EQ(written("[A]\nk=1\n[B]\nk=2\n", "B", "k", "5"), "[A]\nk=1\n[B]\nk=5\n");
    EXPECT_EQ(written("[A]\nk=1\nk=2\n", "A", "k", "5"), "[A]\nk=5\nk=2\n");
}

TEST_F(ProfileWriting, drops_the_comment_of_the_line_it_replaces)
{
    EXPECT_EQ(written("[A]\nk=1;no\n", "A", "k", "1234"), "[A]\nk=1234\n");
}

TEST_F(ProfileWriting, leaves_the_old_end_of_the_file_behind_a_shorter_value)
{
    const string line = "KEY=12345 ; note\n";
    ASSERT_EQ(line.size(), 17u);
    const string before = "[A]\n" + line + "second=2\nthird=3\n";
    const string content = "[A]\nKEY=1\nsecond=2\nthird=3\n";
    ASSERT_EQ(content.size(), before.size() - 11);
    const string after = written(before, "A", "KEY", "1");
    EXPECT_EQ(after, content + before.substr(before.size() - 11));
    EXPECT_EQ(after.size(), before.size());
}

TEST_F(ProfileWriting, puts_a_new_key_directly_below_the_header)
{
    EXPECT_EQ(written("x\n[A] ; note\nj=1\n[B]\n", "A", "k", "v"), "x\n[A] ; note\nk=v\nj=1\n[B]\n");
    EXPECT_EQ(written("[A]\nk\n", "A", "k", "v"), "[A]\nk=v\nk\n");
    EXPECT_EQ(written("[A]\n[A]\nk=1\n", "A", "k", "v"), "[A]\nk=v\n[A]\nk=1\n")
        << "the first section counts";
}

TEST_F(ProfileWriting, appends_a_new_section_with_its_key)
{
    EXPECT_EQ(written("[A]\nk=1\n", "B", "k", "v"), "[A]\nk=1\n[B]\nk=v\n");
    EXPECT_EQ(written("[AB]\n [A]\n[a]\n", "A", "k", "v"), "[AB]\n [A]\n[a]\n[A]\nk=v\n");
}

TEST_F(ProfileWriting, adds_no_line_feed_to_a_last_line_that_has_none)
{
    EXPECT_EQ(written("[A]\nk=1", "B", "k", "v"), "[A]\nk=1[B]\nk=v\n");
    EXPECT_EQ(written("[A]", "A", "k", "v"), "[A]k=v\n");
    EXPECT_EQ(written("[A]\nk=1", "A", "k", "v"), "[A]\nk=v\n");
}

TEST_F(ProfileWriting, fills_a_missing_or_empty_file)
{
    ProfileWriteAsc(file(), "A", "k", "v");
    EXPECT_EQ(bytes(), "[A]\nk=v\n");
    EXPECT_EQ(written("", "A", "k", "v"), "[A]\nk=v\n");
}

TEST_F(ProfileWriting, without_a_section_puts_the_key_at_the_start_of_the_file)
{
    EXPECT_EQ(written("[A]\nk=1\n", "", "k", "v"), "k=v\n[A]\nk=1\n");
    EXPECT_STREQ(ProfileReadAsc(file(), "", "k"), "");
    EXPECT_EQ(written("[]\nk=1\n", "", "k", "v"), "k=v\n[]\nk=1\n");
    EXPECT_EQ(written("", "", "k", "v"), "k=v\n");
    EXPECT_EQ(written("[A]\nk=1\n", nullptr, "k", "v"), "k=v\n[A]\nk=1\n");
}

TEST_F(ProfileWriting, without_a_key_adds_no_more_than_the_header)
{
    EXPECT_EQ(written("[A]\n=1\n", "A", "", "v"), "[A]\n=1\n");
    EXPECT_EQ(written("[A]\n=1\n", "B", "", "v"), "[A]\n=1\n[B]\n");
    EXPECT_EQ(written("[A]\n=1\n", "B", nullptr, "v"), "[A]\n=1\n[B]\n");
    EXPECT_EQ(written("[A]\n=1\n", "", "", "v"), "[A]\n=1\n");
    EXPECT_EQ(written("", "", "", "v"), "");
}

TEST_F(ProfileWriting, takes_a_line_of_more_than_256_bytes_as_several)
{
    const string header = "[A];" + string(252, 'c');
    EXPECT_EQ(written(header + "rest\n", "A", "k", "v"), header + "k=v\nrest\n");
    EXPECT_STREQ(ProfileReadAsc(file(), "A", "k"), "v");
    const string line = "k=" + string(254, 'x');
    EXPECT_EQ(written("[A]\n" + line + "m=2\n", "A", "k", string(255, 'y').c_str()),
              "[A]\nk=" + string(255, 'y') + "\nm=2\n");
}

TEST_F(ProfileWriting, replaces_a_line_that_a_nul_byte_ends)
{
    EXPECT_EQ(written(string("[A]\nk=1\0m=2\n", 12), "A", "k", "3"), "[A]\nk=3\nm=2\n");
}

TEST_F(ProfileWriting, takes_a_number_behind_the_key)
{
    put("[A]\nk5=1\n");
    const int x = 10, y = -20;
    EXPECT_EQ(ProfileWrite(file(), "A", "k", 5, "ii", &x, &y), 2);
    EXPECT_EQ(bytes(), "[A]\nk5=10,-20\n");
    ProfileWriteAsc(file(), "A", "k", -1, "v");
    EXPECT_EQ(bytes(), "[A]\nk-1=v\nk5=10,-20\n");
}

TEST_F(ProfileWriting, leaves_the_log_alone_unless_it_has_to_create_the_file)
{
    project.start();
    project.clearLog();
    put("[A]\nk=1\n");
    ProfileWriteAsc(file(), "A", "k", "v");
    ProfileWriteAsc(file(), "B", "k", "v");
    ProfileDelete(file(), "A", "k");
    EXPECT_TRUE(project.log().empty());
    std::filesystem::remove(file());
    ProfileWriteAsc(file(), "A", "k", "v");
    EXPECT_THAT(project.messages(), ElementsAre("ファイルのオープンに失敗 []"));
}

TEST_F(ProfileWriting, records_that_a_file_can_not_be_created)
{
    project.start();
    project.clearLog();
    const string path = project.root() + "/none/test.ini";
    ProfileWriteAsc(path.c_str(), "A", "k", "v");
    EXPECT_THAT(project.messages(), Contains("ファイルの書込みに失敗 []"));
    project.clearLog();
    ProfileWriteAsc(nullptr, "A", "k", "v");
    EXPECT_THAT(project.messages(), Contains("ファイルの書込みに失敗 []"));
}

TEST_F(ProfileWriting, does_not_touch_a_file_that_it_can_not_read)
{
    project.start();
    project.clearLog();
    put("[A]\nk=1\n");
    namespace fs = std::filesystem;
    for (const string& folder : {project.root(), project.logFolder()})
        fs::permissions(folder, fs::perms::all);
    fs::permissions(file(), fs::perms::all &
                                ~(fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read));
    {
        const OrdinaryUser user;
        ASSERT_TRUE(user.changed());
        EXPECT_EQ(ProfileWrite(file(), "A", "k", "s", "v"), 0);
        EXPECT_EQ(ProfileWrite(file(), "B", "k", "s", "v"), 0);
        ProfileDelete(file(), "A", "k");
    }
    fs::permissions(file(), fs::perms::all);
    EXPECT_EQ(bytes(), "[A]\nk=1\n");
    EXPECT_THAT(project.messages(), Contains("プロファイルを書込まない [" + string(file()) + "]"));
}

TEST_F(ProfileWriting, does_not_touch_a_file_beyond_64_mib)
{
    project.start();
    for (const std::uintmax_t size : {(std::uintmax_t{64} << 20) + 1, std::uintmax_t{3} << 30}) {
        project.clearLog();
        put("[A]\nk=1\n");
        std::filesystem::resize_file(file(), size);
        EXPECT_EQ(ProfileWrite(file(), "A", "k", "s", "v"), 0);
        EXPECT_EQ(std::filesystem::file_size(file()), size);
        EXPECT_THAT(project.messages(), Contains("プロファイルを書込まない [" + string(file()) + "]"));
        std::filesystem::resize_file(file(), 8);
        EXPECT_EQ(bytes(), "[A]\nk=1\n");
    }
}

TEST_F(ProfileWriting, leaves_a_folder_as_it_is)
{
    project.start();
    project.clearLog();
    EXPECT_EQ(ProfileWrite(project.folder().c_str(), "A", "k", "s", "v"), 0);
    ProfileDelete(project.folder().c_str(), "A", "k");
    EXPECT_TRUE(std::filesystem::is_directory(project.folder()));
    EXPECT_FALSE(project.messages().empty());
}

TEST_F(ProfileWrittenValue, joins_its_fields_with_commas)
{
    const int integer = INT_MIN;
    const WORD word = 0xABC, other = 0x12EF;
    EXPECT_EQ(ProfileWrite(file(), "A", "k", "sihfSIHF", "a b", &integer, &word, &other, "", &integer, &word,
                           &other),
              8);
    EXPECT_EQ(bytes(), "[A]\nk=a b,-2147483648, ABC,12EF,,-2147483648, ABC,12EF\n");
}

TEST_F(ProfileWrittenValue, reads_back_as_0_when_it_is_negative)
{
    const int value = -12;
    EXPECT_EQ(ProfileWrite(file(), "A", "k", "i", &value), 1);
    EXPECT_EQ(bytes(), "[A]\nk=-12\n");
    EXPECT_EQ(ProfileReadInt(file(), "A", "k"), 0);
}

TEST_F(ProfileWrittenValue, in_hexadecimal_has_blanks_that_make_it_read_back_as_0)
{
    put("[A]\nk=1F\n");
    WORD value = 0;
    EXPECT_EQ(ProfileRead(file(), "A", "k", "h", &value), 1);
    EXPECT_EQ(value, 0x1F);
    EXPECT_EQ(ProfileWrite(file(), "A", "k", "h", &value), 1);
    EXPECT_EQ(bytes(), "[A]\nk=  1F\n");
    EXPECT_EQ(ProfileRead(file(), "A", "k", "h", &value), 0);
    EXPECT_EQ(value, 0);
    value = 0x1000;
    ProfileWrite(file(), "A", "k", "h", &value);
    EXPECT_EQ(ProfileReadHex(file(), "A", "k"), 0x1000);
}

TEST_F(ProfileWrittenValue, is_taken_from_any_address)
{
    unsigned char record[8] = {0xFF, 5, 0, 0, 0, 0xCD, 0xAB, 0xFF};
    EXPECT_EQ(ProfileWrite(file(), "A", "k", "ih", record + 1, record + 5), 2);
    EXPECT_EQ(bytes(), "[A]\nk=5,ABCD\n");
}

TEST_F(ProfileWrittenValue, ends_at_a_null_pointer_or_a_letter_without_a_kind)
{
    const int value = 7;
    EXPECT_EQ(ProfileWrite(file(), "A", "k", "ii", &value, nullptr), 1);
    EXPECT_EQ(bytes(), "[A]\nk=7\n");
    std::filesystem::remove(file());
    EXPECT_EQ(ProfileWrite(file(), "A", "k", "i.i", &value, &value), 1);
    EXPECT_EQ(bytes(), "[A]\nk=7\n");
    std::filesystem::remove(file());
    EXPECT_EQ(ProfileWrite(file(), "A", "k", nullptr, &value), 0);
    EXPECT_EQ(bytes(), "[A]\nk=\n");
}

TEST_F(ProfileWrittenValue, stands_in_the_file_as_it_is)
{
    EXPECT_EQ(written("", "A", "k", " 漢字\t;x "), "[A]\nk= 漢字\t;x \n");
    EXPECT_STREQ(ProfileReadAsc(file(), "A", "k"), " 漢字") << "no value can hold a semicolon";
    EXPECT_EQ(written("", "A", "k", nullptr), "[A]\nk=\n");
}

TEST_F(ProfileWrittenValue, may_come_from_the_buffer_of_the_last_text_read)
{
    put("[A]\nk=v\n");
    ProfileWriteAsc(file(), "A", "m", ProfileReadAsc(file(), "A", "k"));
    EXPECT_EQ(bytes(), "[A]\nm=v\nk=v\n");
}

TEST_F(ProfileWrittenValue, is_cut_at_255_bytes_which_is_recorded)
{
    project.start();
    project.clearLog();
    put("[A]\n");
    ProfileWriteAsc(file(), "A", "k", string(255, 'x').c_str());
    EXPECT_EQ(bytes(), "[A]\nk=" + string(255, 'x') + "\n");
    EXPECT_TRUE(project.log().empty());

    const string half(200, 'y');
    const int last = 5;
    put("[A]\n");
    EXPECT_EQ(ProfileWrite(file(), "A", "key", "ssi", half.c_str(), half.c_str(), &last), 3);
    EXPECT_EQ(bytes(), "[A]\nkey=" + half + "," + half.substr(0, 54) + "\n");
    EXPECT_THAT(project.messages(), ElementsAre("プロファイルの値が長すぎる [key]"));

    put("[A]\n");
    ProfileWriteAsc(file(), "A", "k", 7, string(100000, 'x').c_str());
    EXPECT_EQ(bytes(), "[A]\nk7=" + string(255, 'x') + "\n");
}

TEST_F(ProfileWrittenValue, stands_behind_a_key_and_a_section_of_any_length)
{
    const string section(1000, 'A'), key(1000, 'k');
    EXPECT_EQ(written("", section.c_str(), key.c_str(), "v"), "[" + section + "]\n" + key + "=v\n");
    EXPECT_STREQ(ProfileReadAsc(file(), section.c_str(), key.c_str()), "") << "no line is long enough";
}

TEST_F(ProfileDeleting, removes_the_line_with_its_comment)
{
    const string line = "k=1 ; note\n", rest = "m=2\nlast=123456\n";
    EXPECT_EQ(deleted("[A]\n" + line + rest, "A", "k").substr(0, 4 + rest.size()), "[A]\n" + rest);
}

TEST_F(ProfileDeleting, leaves_the_old_end_of_the_file_behind_the_content)
{
    EXPECT_EQ(deleted("[A]\nk=1\n[B]\nm=2\n", "A", "k"), "[A]\n[B]\nm=2\nm=2\n");
}

TEST_F(ProfileDeleting, keeps_the_header_of_a_section_without_keys)
{
    const string after = deleted("[A]\nk=1\n", "A", "k");
    EXPECT_EQ(after, "[A]\nk=1\n") << "the header, then the four old bytes that were cut from the content";
    EXPECT_EQ(deleted("[A]\nk=1", "A", "k"), "[A]\nk=1");
    const string line = "k=12345678\n", before = "[A]\n" + line + "[B]\n";
    EXPECT_EQ(deleted(before, "A", "k"), "[A]\n[B]\n" + before.substr(before.size() - line.size()));
}

TEST_F(ProfileDeleting, removes_only_the_first_line_with_the_key_in_its_section)
{
    EXPECT_EQ(deleted("[A]\nk=1\nk=2\n[B]\nk=3\n", "B", "k"), "[A]\nk=1\nk=2\n[B]\nk=3\n");
    EXPECT_EQ(deleted("[A]\nk=1\nk=2\n", "A", "k"), "[A]\nk=2\nk=2\n");
}

TEST_F(ProfileDeleting, removes_a_numbered_key)
{
    put("[A]\nk=1\nk1=2\nk12=3\n");
    ProfileDelete(file(), "A", "k", 1);
    EXPECT_EQ(bytes(), "[A]\nk=1\nk12=3\n12=3\n");
}

TEST_F(ProfileDeleting, of_a_key_that_does_not_exist_leaves_the_file_alone)
{
    const string before = "k=0\n[A]\nm=1\n=2\n";
    EXPECT_EQ(deleted(before, "A", "k"), before);
    EXPECT_EQ(deleted(before, "B", "m"), before);
    EXPECT_EQ(deleted(before, "", "k"), before);
    EXPECT_EQ(deleted(before, "A", ""), before);
    EXPECT_EQ(deleted(before, nullptr, nullptr), before);
    std::filesystem::remove(file());
    ProfileDelete(file(), "A", "k");
    EXPECT_FALSE(std::filesystem::exists(file()));
}

TEST_F(ProfileNumberWriter, writes_an_empty_value_for_0)
{
    put("[A]\n");
    ProfileWriteInt(file(), "A", "i", 0);
    ProfileWriteInt(file(), "A", "i", 1, 0);
    ProfileWriteHexa(file(), "A", "h", 0);
    ProfileWriteHexa(file(), "A", "h", 1, 0);
    EXPECT_EQ(bytes(), "[A]\nh1=\nh=\ni1=\ni=\n");
}

TEST_F(ProfileNumberWriter, takes_its_value_as_the_address_of_the_number)
{
    const LowNumber<int> number(-1234);
    ASSERT_TRUE(number.exists());
    put("[A]\n");
    ProfileWriteInt(file(), "A", "i", number.address());
    ProfileWriteInt(file(), "A", "i", 1, number.address());
    EXPECT_EQ(bytes(), "[A]\ni1=-1234\ni=-1234\n");
}

TEST_F(ProfileNumberWriter, writes_an_empty_value_for_an_address_without_a_number_and_records_it)
{
    project.start();
    project.clearLog();
    put("[A]\n");
    ProfileWriteInt(file(), "A", "i", 5);
    ProfileWriteInt(file(), "A", "i", 1, -1);
    ProfileWriteHexa(file(), "A", "h", 5);
    ProfileWriteHexa(file(), "A", "h", 1, 0xFFFF);
    EXPECT_EQ(bytes(), "[A]\nh1=\nh=\ni1=\ni=\n");
    EXPECT_THAT(project.messages(),
                ElementsAre("プロファイルの値を読めない番地 [5]",
                            "プロファイルの値を読めない番地 [4294967295]",
                            "プロファイルの値を読めない番地 [5]", "プロファイルの値を読めない番地 [65535]"));
}
