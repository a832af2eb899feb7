// Limits that several modules and the authoring tool share.
#pragma once

namespace tessary
{

/// Coordinates of the X protocol are 16 bits wide: no item, window or back buffer reaches further.
constexpr int COORDINATE_MIN = -32768;
constexpr int COORDINATE_MAX = 32767; ///< see COORDINATE_MIN

/// Thickest line, outline, frame or edge that a drawing primitive accepts, in pixels.
constexpr int LINE_WIDTH_MAX = 98;

/// Pictures of more pixels than this many screens have are not shown: nobody sees more of them, and each of
/// their pixels is held in memory.
constexpr int PICTURE_SCREENS = 4;

/// Longest field of a profile key in bytes, and of a whole text without its terminator.
constexpr int PROFILE_FIELD_MAX = 99;

/// Bytes that such a field takes when it is read.
constexpr int PROFILE_FIELD_SIZE = PROFILE_FIELD_MAX + 1;

/// Longest line of a profile in bytes; the rest of a longer one is the next line.
constexpr int PROFILE_LINE_MAX = 256;

/// Buffers for the text of a cell or of a number, terminator included.
constexpr int TEXT_BUFFER = 256;

/// Languages that a text may be given in.
constexpr int LANGUAGE_COUNT = 3;

} // namespace tessary
