#include "config/ProfileImage.h"

#include "base/EucText.h"
#include "config/FileCntl.h"
#include "config/FileReport.h"
#include "config/ProfileReport.h"
#include "config/ProfileText.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>

using namespace tessary;

ProfileSink tessary::ProfileTrouble;

namespace
{

constexpr FileEvent LOAD_PROFILE = {nullptr, "プロファイルが大きすぎる"};

std::unique_ptr<char[]> ProfBuff; // the whole file, not terminated; null when it is missing or empty
int ProfSize = 0;                 // bytes in ProfBuff
int ProfPont = 0;                 // offset of the current line
int ProfLeng = 0;                 // bytes of the current line, its line feed included

std::string KeyLine(const char* key, const char* value)
{
    return KeyBegin(key) + value + "\n";
}

// Makes a new image in which `text` stands in place of `removed` bytes at `from`.
void ReplaceBytes(int from, int removed, const std::string& text)
{
    const int rest = ProfSize - from - removed;
    const int size = from + static_cast<int>(text.size()) + rest;
    auto image = std::make_unique<char[]>(static_cast<std::size_t>(size));
    char* place = std::copy_n(ProfBuff.get(), from, image.get());
    place = std::copy(text.begin(), text.end(), place);
    std::copy_n(ProfBuff.get() + from + removed, rest, place);
    ProfBuff = std::move(image);
    ProfSize = size;
}

/// @return 0, the result of what has failed
int Trouble(ProfileProblem problem)
{
    if (ProfileTrouble)
        ProfileTrouble(problem);
    return 0;
}

} // namespace

int ProfileInit(const char* file)
{
    ProfBuff.reset();
    ProfSize = ProfPont = ProfLeng = 0;

    const int size = FileSize(file, "");
    const bool beyondCounting = size < 0 && FileExist(file, "");
    if (size > SIZE_PROFILE || beyondCounting) {
        FileReport(nullptr, 0).failure(LOAD_PROFILE, file);
        return Trouble(ProfileProblem::Unread);
    }
    if (size < 0 && IsUnreadable(file, ""))
        return Trouble(ProfileProblem::Unread); // what it holds is not known: it must not be written over
    if (size < 1)
        return 1;

    ProfBuff = std::make_unique<char[]>(static_cast<std::size_t>(size));
    if (FileRead(file, "", ProfBuff.get(), size, 0, nullptr, 0) != 1) {
        ProfBuff.reset();
        return Trouble(ProfileProblem::Unread);
    }
    ProfSize = size;
    return 1;
}

void ProfileExit(const char* file, int write)
{
    if (write && FileWrite(file, "", ProfBuff ? ProfBuff.get() : "", ProfSize, 0, nullptr, 0) != 1)
        Trouble(ProfileProblem::Unsaved);
    ProfBuff.reset();
    ProfSize = 0;
}

void ReadProfile(const char* section, const char* key, char (&value)[SIZE_FIELD])
{
    value[0] = '\0';
    if (ProfBuff)
        ProfileSearch(section, key, value);
}

int WriteProfile(const char* section, const char* key, const char* value)
{
    const std::size_t added = SectionBegin(section).size() + 1 + KeyLine(key, value).size();
    if (added > static_cast<std::size_t>(SIZE_PROFILE - ProfSize))
        return 0;

    if (ProfBuff && ProfileSearch(section, key, nullptr)) {
        ProfileReplace(key, value);
        return 1;
    }
    if (!ProfBuff || !SectionSearch(section))
        SectionInsert(section);
    ProfileInsert(key, value);
    return 1;
}

int ProfileSearch(const char* section, const char* key, char* value)
{
    if (value)
        value[0] = '\0';
    return SectionSearch(section) && KeynameSearch(key, value);
}

int SectionSearch(const char* section)
{
    ProfileReadInit();
    if (!*section)
        return 0;
    const std::string header = SectionBegin(section);
    char line[SIZE_PROFLINE + 1];
    while (ProfileReadLine(line))
        if (BeginsWith(line, header))
            return 1;
    return 0;
}

int KeynameSearch(const char* key, char* value)
{
    if (value)
        value[0] = '\0';
    if (!*key)
        return 0;
    const std::string name = KeyBegin(key);
    char line[SIZE_PROFLINE + 1];
    while (ProfileReadLine(line)) {
        if (BeginsWith(line, name)) {
            if (value)
                CopyText(value, SIZE_FIELD, line + name.size());
            return 1;
        }
        if (IsSectionLine(line))
            break;
    }
    return 0;
}

void SectionInsert(const char* section)
{
    ProfileReadInit();
    if (!*section)
        return;
    const std::string header = SectionBegin(section) + "\n";
    ProfPont = ProfSize;
    ProfLeng = static_cast<int>(header.size());
    ReplaceBytes(ProfPont, 0, header);
}

void ProfileInsert(const char* key, const char* value)
{
    if (*key)
        ReplaceBytes(ProfPont + ProfLeng, 0, KeyLine(key, value));
}

void ProfileReplace(const char* key, const char* value)
{
    if (*key)
        ReplaceBytes(ProfPont, ProfLeng, KeyLine(key, value));
}

void tessary::ProfileRemove()
{
    ReplaceBytes(ProfPont, ProfLeng, "");
}

int ProfileReadInit()
{
    ProfPont = ProfLeng = 0;
    return ProfBuff ? 1 : 0;
}

int ProfileReadLine(char (&line)[SIZE_PROFLINE + 1])
{
    line[0] = '\0';
    if (!ProfBuff)
        return 0;
    ProfPont += ProfLeng;
    ProfLeng =
        ProfPont < ProfSize ? TakeProfileLine(ProfBuff.get() + ProfPont, ProfSize - ProfPont, line) : 0;
    return ProfLeng > 0;
}
