#include "config/Profile.h"

#include "base/EucText.h"
#include "config/FileReport.h"
#include "config/PathName.h"
#include "config/ProfileField.h"
#include "config/ProfileImage.h"
#include "config/ProfileReport.h"

#include <cstdarg>
#include <cstdint>
#include <cstring>
#include <glib.h>
#include <string>
#include <sys/uio.h>
#include <unistd.h>

using namespace tessary;

namespace
{

constexpr FileEvent JOIN_VALUE = {nullptr, "プロファイルの値が長すぎる"};
constexpr FileEvent UPDATE_PROFILE = {nullptr, "プロファイルを書込まない"};
constexpr FileEvent TAKE_NUMBER = {nullptr, "プロファイルの値を読めない番地"};

void ReportFailure(const FileEvent& event, const std::string& subject)
{
    FileReport(nullptr, 0).failure(event, subject);
}

struct KeyPlace {
    std::string file;
    std::string section;
    std::string key;
};

KeyPlace PlaceOf(const char* file, const char* section, const char* key)
{
    return {TextOf(file), TextOf(section), TextOf(key)};
}

KeyPlace PlaceOf(const char* file, const char* section, const char* key, int number)
{
    return {TextOf(file), TextOf(section), TextOf(key) + std::to_string(number)};
}

// Numbers move as bytes: the callers' records are packed, their members may lie at any address.
template <typename Number> void StoreNumber(void* target, Number number)
{
    std::memcpy(target, &number, sizeof number);
}

template <typename Number> Number LoadNumber(const void* source)
{
    Number number;
    std::memcpy(&number, source, sizeof number);
    return number;
}

void StoreField(int kind, const char* field, void* target)
{
    switch (kind) {
    case FIELD_STRING:
        CopyText(static_cast<char*>(target), SIZE_FIELDTEXT + 1, field);
        break;
    case FIELD_INTEGER:
        StoreNumber(target, FieldInteger(field));
        break;
    case FIELD_HEXA:
        StoreNumber(target, static_cast<WORD>(atoh(field)));
        break;
    }
}

// Appends the text of a value; false when it did not fit.
bool AppendField(int kind, const void* source, char (&value)[SIZE_FIELD])
{
    char number[SIZE_FIELD];
    switch (kind) {
    case FIELD_STRING:
        return AppendText(value, sizeof value, static_cast<const char*>(source));
    case FIELD_INTEGER:
        itoa(LoadNumber<int>(source), number);
        break;
    default:
        htoa(LoadNumber<WORD>(source), number);
        break;
    }
    return AppendText(value, sizeof value, number);
}

int ReadFields(const KeyPlace& place, const char* format, va_list targets)
{
    char value[SIZE_FIELD];
    ProfileInit(place.file.c_str());
    ReadProfile(place.section.c_str(), place.key.c_str(), value);

    int count = 0;
    for (int i = 0;; i++) {
        const int kind = GetFormat(i, format);
        if (kind == FIELD_NONE)
            break;
        void* target = va_arg(targets, void*);
        if (!target)
            break;
        char field[SIZE_FIELD];
        GetString(i, field, value);
        CheckBuffer(kind, field);
        StoreField(kind, field, target);
        if (field[0])
            count++;
    }
    ProfileExit(place.file.c_str(), 0);
    return count;
}

// Joins the values that the arguments point to; returns how many there are.
int JoinFields(const KeyPlace& place, const char* format, va_list sources, char (&value)[SIZE_FIELD])
{
    int count = 0;
    bool whole = true;
    value[0] = '\0';
    for (;; count++) {
        const int kind = GetFormat(count, format);
        if (kind == FIELD_NONE)
            break;
        const void* source = va_arg(sources, void*);
        if (!source)
            break;
        if (count > 0)
            whole &= AppendText(value, sizeof value, ",");
        whole &= AppendField(kind, source, value);
    }
    if (!whole)
        ReportFailure(JOIN_VALUE, place.key);
    return count;
}

int WriteFields(const KeyPlace& place, const char* format, va_list sources)
{
    char value[SIZE_FIELD];
    const int count = JoinFields(place, format, sources, value);
    const bool ready =
        ProfileInit(place.file.c_str()) && WriteProfile(place.section.c_str(), place.key.c_str(), value);
    ProfileExit(place.file.c_str(), ready);
    if (!ready) {
        ReportFailure(UPDATE_PROFILE, place.file);
        if (ProfileTrouble)
            ProfileTrouble(ProfileProblem::Unsaved);
    }
    return ready ? count : 0;
}

void DeleteKey(const KeyPlace& place)
{
    ProfileInit(place.file.c_str());
    const int found = ProfileSearch(place.section.c_str(), place.key.c_str(), nullptr);
    if (found)
        ProfileRemove();
    ProfileExit(place.file.c_str(), found);
}

// Takes the number at an address that came as a plain value. The system copies it, so that an address
// where nothing lies is a failure and not the end of the program.
template <typename Number> const Number* NumberAt(unsigned address, Number& number)
{
    if (address == 0)
        return nullptr;
    const iovec local = {&number, sizeof number};
    const iovec remote = {reinterpret_cast<void*>(static_cast<std::uintptr_t>(address)), sizeof number};
    if (process_vm_readv(getpid(), &local, 1, &remote, 1, 0) == static_cast<ssize_t>(sizeof number))
        return &number;
    ReportFailure(TAKE_NUMBER, std::to_string(address));
    return nullptr;
}

} // namespace

int ProfileRead(const char* file, const char* section, const char* key, const char* format, ...)
{
    va_list targets;
    va_start(targets, format);
    const int count = ReadFields(PlaceOf(file, section, key), format, targets);
    va_end(targets);
    return count;
}

int ProfileRead(const char* file, const char* section, const char* key, int number, const char* format, ...)
{
    va_list targets;
    va_start(targets, format);
    const int count = ReadFields(PlaceOf(file, section, key, number), format, targets);
    va_end(targets);
    return count;
}

int ProfileWrite(const char* file, const char* section, const char* key, const char* format, ...)
{
    va_list sources;
    va_start(sources, format);
    const int count = WriteFields(PlaceOf(file, section, key), format, sources);
    va_end(sources);
    return count;
}

int ProfileWrite(const char* file, const char* section, const char* key, int number, const char* format, ...)
{
    va_list sources;
    va_start(sources, format);
    const int count = WriteFields(PlaceOf(file, section, key, number), format, sources);
    va_end(sources);
    return count;
}

void ProfileDelete(const char* file, const char* section, const char* key)
{
    DeleteKey(PlaceOf(file, section, key));
}

void ProfileDelete(const char* file, const char* section, const char* key, int number)
{
    DeleteKey(PlaceOf(file, section, key, number));
}

int ProfileReadInt(const char* file, const char* section, const char* key)
{
    int value = 0;
    ProfileRead(file, section, key, "i", &value);
    return value;
}

int ProfileReadInt(const char* file, const char* section, const char* key, int number)
{
    int value = 0;
    ProfileRead(file, section, key, number, "i", &value);
    return value;
}

WORD ProfileReadHex(const char* file, const char* section, const char* key)
{
    WORD value = 0;
    ProfileRead(file, section, key, "h", &value);
    return value;
}

WORD ProfileReadHex(const char* file, const char* section, const char* key, int number)
{
    WORD value = 0;
    ProfileRead(file, section, key, number, "h", &value);
    return value;
}

LPTSTR ProfileReadAsc(const char* file, const char* section, const char* key)
{
    static char text[256];
    ProfileRead(file, section, key, "s", text);
    return text;
}

LPTSTR ProfileReadAsc(const char* file, const char* section, const char* key, int number)
{
    static char text[256];
    ProfileRead(file, section, key, number, "s", text);
    return text;
}

void ProfileWriteInt(const char* file, const char* section, const char* key, int value)
{
    int found;
    ProfileWrite(file, section, key, "i", NumberAt(static_cast<unsigned>(value), found));
}

void ProfileWriteInt(const char* file, const char* section, const char* key, int number, int value)
{
    int found;
    ProfileWrite(file, section, key, number, "i", NumberAt(static_cast<unsigned>(value), found));
}

void ProfileWriteHexa(const char* file, const char* section, const char* key, WORD value)
{
    WORD found;
    ProfileWrite(file, section, key, "h", NumberAt(value, found));
}

void ProfileWriteHexa(const char* file, const char* section, const char* key, int number, WORD value)
{
    WORD found;
    ProfileWrite(file, section, key, number, "h", NumberAt(value, found));
}

void ProfileWriteAsc(const char* file, const char* section, const char* key, const char* value)
{
    ProfileWrite(file, section, key, "s", value);
}

void ProfileWriteAsc(const char* file, const char* section, const char* key, int number, const char* value)
{
    ProfileWrite(file, section, key, number, "s", value);
}

unsigned short atoh(const char* text)
{
    unsigned value = 0;
    for (int i = 0; text && i < 4 && g_ascii_isxdigit(text[i]); i++)
        value = value * 16 + static_cast<unsigned>(g_ascii_xdigit_value(text[i]));
    return static_cast<unsigned short>(value);
}
