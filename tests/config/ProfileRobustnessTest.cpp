// Thousands of files of random bytes, compared with a second, simpler reading of the same rules.
#include "config/Profile.h"

#include "tests/config/ProfileFixture.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <random>
#include <vector>

namespace
{

using std::string;

struct Line {
    std::size_t at;
    std::size_t length;
    string text;
};

std::vector<Line> split(const string& content)
{
    std::vector<Line> lines;
    for (std::size_t at = 0; at < content.size();) {
        const string chunk = content.substr(at, 256);
        const std::size_t end = chunk.find_first_of(string("\0\n", 2));
        const std::size_t length = end == string::npos ? chunk.size() : end + 1;
        string text = chunk.substr(0, end);
        text = text.substr(0, text.find(';'));
        while (text.size() > 1 && (text.back() == ' ' || text.back() == '\t'))
            text.pop_back();
        lines.push_back({at, length, text});
        at += length;
    }
    return lines;
}

bool begins(const string& text, const string& with)
{
    return text.compare(0, with.size(), with) == 0;
}

std::optional<std::size_t> findSection(const std::vector<Line>& lines, const string& section)
{
    for (std::size_t i = 0; i < lines.size() && !section.empty(); i++)
        if (begins(lines[i].text, "[" + section + "]"))
            return i;
    return {};
}

std::optional<std::size_t> findKey(const std::vector<Line>& lines, const string& section, const string& key)
{
    const auto header = findSection(lines, section);
    if (!header || key.empty())
        return {};
    for (std::size_t i = *header + 1; i < lines.size(); i++) {
        if (begins(lines[i].text, key + "="))
            return i;
        if (begins(lines[i].text, "["))
            break;
    }
    return {};
}

string valueOf(const string& content, const string& section, const string& key)
{
    const auto lines = split(content);
    const auto at = findKey(lines, section, key);
    return at ? lines[*at].text.substr(key.size() + 1) : "";
}

std::vector<string> fieldsOf(const string& value)
{
    std::vector<string> fields(1);
    for (const char byte : value)
        if (byte == ',')
            fields.emplace_back();
        else
            fields.back() += byte;
    fields.resize(std::max<std::size_t>(fields.size(), 4));
    return fields;
}

string acceptOnly(const string& field, const char* allowed)
{
    return field.find_first_not_of(allowed) == string::npos ? field : "";
}

int decimal(const string& digits)
{
    const auto begin = digits.find_first_not_of('0');
    const string significant = begin == string::npos ? "0" : digits.substr(begin);
    return significant.size() > 10 ? 2147483647
                                   : static_cast<int>(std::min(std::stoll(significant), 2147483647LL));
}

WORD hexadecimal(const string& digits)
{
    return digits.empty() ? WORD{0} : static_cast<WORD>(std::stoul(digits.substr(0, 4), nullptr, 16));
}

// A new content over the old one: the file does not become shorter.
string overwrite(const string& before, const string& content)
{
    return before.size() > content.size() ? content + before.substr(content.size()) : content;
}

string afterWriting(const string& content, const string& section, const string& key, const string& value)
{
    const string line = key.empty() ? "" : key + "=" + value + "\n";
    const auto lines = split(content);
    string result = content;
    if (const auto at = findKey(lines, section, key))
        result.replace(lines[*at].at, lines[*at].length, line);
    else if (const auto header = findSection(lines, section))
        result.insert(lines[*header].at + lines[*header].length, line);
    else if (section.empty())
        result.insert(0, line);
    else
        result += "[" + section + "]\n" + line;
    return overwrite(content, result);
}

string afterDeleting(const string& content, const string& section, const string& key)
{
    const auto lines = split(content);
    string result = content;
    if (const auto at = findKey(lines, section, key))
        result.erase(lines[*at].at, lines[*at].length);
    return overwrite(content, result);
}

class RandomProfile : public ProfileFile
{
  protected:
    RandomProfile() : ProfileFile(Project::inMemory()) {}

    std::size_t below(std::size_t limit) { return generator_() % limit; }
    bool chance(int percent) { return below(100) < static_cast<std::size_t>(percent); }
    template <std::size_t N> string oneOf(const char* const (&texts)[N]) { return texts[below(N)]; }

    string randomByte() { return string(1, static_cast<char>(below(256))); }

    string fragment()
    {
        switch (below(12)) {
        case 0:
            return randomByte();
        case 1:
            return string(1, '\0');
        case 2:
            return string(230 + below(60), "x \t,;1"[below(6)]);
        case 3:
        case 4:
            return section() + (chance(70) ? "\n" : "");
        case 5:
        case 6:
        case 7:
            return key() + "=" + value() + (chance(80) ? "\n" : "");
        default:
            return oneOf({"\n", "\n", " ", "\t", ";", ",", "=", "[", "]", "\r\n", "漢", "\xa4", "k", "-"});
        }
    }
    string section() { return "[" + name() + "]"; }
    string name() { return oneOf({"A", "B", "AB", ""}); }
    string key() { return oneOf({"k", "k1", "m", "", "[k"}); }
    string value()
    {
        string text;
        for (std::size_t fields = below(6); fields > 0; fields--) {
            text += oneOf(
                {"12", "-12", " 12", "1F", "12345", "99999999999", "0", "", "x", "漢字", "1.5", "00007"});
            if (chance(5))
                text += string(below(200), 'v');
            text += chance(80) ? "," : "";
        }
        return text;
    }
    string content()
    {
        string text;
        for (std::size_t fragments = below(60); fragments > 0; fragments--)
            text += fragment();
        return text;
    }
    string noise()
    {
        string text;
        for (std::size_t bytes = below(2000); bytes > 0; bytes--)
            text += randomByte();
        return text;
    }

    void expectReads(const string& content, const string& section, const string& key)
    {
        const auto fields = fieldsOf(valueOf(content, section, key));
        const string text = fields[0].substr(0, 99);
        const string integer = acceptOnly(fields[1], "0123456789");
        const string hexa = acceptOnly(fields[2], "0123456789ABCDEFabcdef");
        const string last = fields[3].substr(0, 99);

        char readText[101], readLast[101];
        std::memset(readText, '!', sizeof readText);
        std::memset(readLast, '!', sizeof readLast);
        int readInteger = -1;
        WORD readHexa = 0xFFFF;
        const int count = ProfileRead(file(), section.c_str(), key.c_str(), "sifs", readText, &readInteger,
                                      &readHexa, readLast);
        EXPECT_EQ(count, !text.empty() + !integer.empty() + !hexa.empty() + !last.empty());
        EXPECT_EQ(readText, text);
        EXPECT_EQ(readLast, last);
        EXPECT_EQ(readText[100], '!');
        EXPECT_EQ(readLast[100], '!');
        EXPECT_EQ(readInteger, integer.empty() ? 0 : decimal(integer));
        EXPECT_EQ(readHexa, hexadecimal(hexa));
    }

    // Reads, writes and deletes; returns what the file should hold then.
    string exercise(string content)
    {
        for (int step = 0; step < 4 && !HasFailure(); step++) {
            const string section = name(), key = this->key();
            expectReads(content, section, key);
            if (chance(60)) {
                const string text = value().substr(0, 255);
                content = afterWriting(content, section, key, text);
                EXPECT_EQ(ProfileWrite(file(), section.c_str(), key.c_str(), "s", text.c_str()), 1);
            } else {
                content = afterDeleting(content, section, key);
                ProfileDelete(file(), section.c_str(), key.c_str());
            }
            EXPECT_EQ(bytes(), content);
        }
        return content;
    }

  private:
    std::mt19937 generator_{20240301};
};

} // namespace

TEST_F(RandomProfile, of_lines_and_their_pieces_reads_and_changes_by_the_rules)
{
    for (int round = 0; round < 3000 && !HasFailure(); round++) {
        SCOPED_TRACE("round " + std::to_string(round));
        const string before = content();
        put(before);
        exercise(before);
    }
}

TEST_F(RandomProfile, of_any_bytes_reads_and_changes_by_the_rules)
{
    for (int round = 0; round < 1000 && !HasFailure(); round++) {
        SCOPED_TRACE("round " + std::to_string(round));
        const string before = noise();
        put(before);
        exercise(before);
    }
}

TEST_F(RandomProfile, takes_names_values_and_formats_of_any_bytes)
{
    for (int round = 0; round < 1000 && !HasFailure(); round++) {
        SCOPED_TRACE("round " + std::to_string(round));
        put(content());
        const string section = noise(), key = noise(), value = noise(), format = noise();
        char targets[4][100];
        const int read = ProfileRead(file(), section.c_str(), key.c_str(), format.c_str(), targets[0],
                                     targets[1], targets[2], targets[3], nullptr);
        EXPECT_TRUE(read >= 0 && read <= 4);
        const std::size_t before = bytes().size();
        EXPECT_EQ(ProfileWrite(file(), section.c_str(), key.c_str(), "s", value.c_str(), nullptr), 1);
        const std::size_t most = std::strlen(section.c_str()) + 3 + std::strlen(key.c_str()) + 1 + 255 + 1;
        EXPECT_GE(bytes().size(), before);
        EXPECT_LE(bytes().size(), before + most);
        ProfileDelete(file(), section.c_str(), key.c_str(), round);
    }
}
