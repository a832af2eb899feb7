// Steps of DrawCntlInit and DrawCntlExit that lie in the file of their resource. Nobody else calls them.
#pragma once

namespace tessary
{

/// Loads the font sets of `Language` and fills `DrawFont` and `FontSize`; the log tells what is missing.
void FontInit();

/// Reads the two cursor colours; they are allocated when both are complete.
void CursorColorInit();

/// Gives every button picture its own three colours again and clears the bits of the cursors.
void XPM_DataExit();

void FontExit();
void MarkExit();
void CursorColorExit();

/// Forgets which bitmaps the log has named as missing, and those that are kept in memory.
void BitmapExit();

} // namespace tessary
