// The memory image of one profile file and its current line: loading, searching, editing. For the profile
// module and its tests.
//
// There is one image at a time. A search leaves the line it found as the current line; the editing
// operations work on the current line. Names and values are terminated texts, never null.
#pragma once

#include "base/Limits.h"
#include "config/ProfileField.h"

namespace tessary
{

/// Longest line in bytes; the rest of a longer one is the next line.
constexpr int SIZE_PROFLINE = tessary::PROFILE_LINE_MAX;

/// Longest profile file in bytes.
constexpr int SIZE_PROFILE = 64 * 1024 * 1024;

} // namespace tessary

/// Loads the file. A missing or empty file gives no image.
/// @return 1, or 0 when the file exists but can not be read or is too long: there is no image then, and
/// the file must not be written, because its content is not known
int ProfileInit(const char* file);

/// Writes the image to the file from its first byte when `write` is non-zero, then frees the image.
void ProfileExit(const char* file, int write);

/// Copies the value of a key.
/// @param value  receives the value, or empty text when there is none
void ReadProfile(const char* section, const char* key, char (&value)[tessary::SIZE_FIELD]);

/// Replaces the key line, or inserts it as the first of its section, or appends the section with it.
/// @return 1, or 0 with the image unchanged when it would become too long
int WriteProfile(const char* section, const char* key, const char* value);

/// Finds a key line within its section.
/// @param value  SIZE_FIELD bytes that receive the value, empty when not found; or null
/// @return 1 when found, else 0
int ProfileSearch(const char* section, const char* key, char* value);

/// Finds a section header from the start of the image; an empty name is never found.
/// @return 1 when found, else 0
int SectionSearch(const char* section);

/// Finds a key line below the current line, up to the next section; an empty key is never found.
/// @param value  as in ProfileSearch
/// @return 1 when found, else 0
int KeynameSearch(const char* key, char* value);

/// Appends a section header, which becomes the current line. An empty name appends nothing and makes the
/// start of the image the current place.
void SectionInsert(const char* section);

/// Inserts a key line after the current line. An empty key inserts nothing.
void ProfileInsert(const char* key, const char* value);

/// Replaces the current line by a key line. An empty key replaces nothing.
void ProfileReplace(const char* key, const char* value);

namespace tessary
{

/// Removes the current line.
void ProfileRemove();

} // namespace tessary

/// Goes back to the start of the image.
/// @return 1 when there is an image, else 0
int ProfileReadInit();

/// Makes the next line the current one and copies it without its comment, its trailing blanks (the first
/// character stays) and its line feed. A NUL byte ends a line as a line feed does.
/// @return 1, or 0 with an empty line at the end of the image
int ProfileReadLine(char (&line)[tessary::SIZE_PROFLINE + 1]);
