// The message table and the error line.
//
// The table is the profile file ProjPath/MesgData.prf below the working directory ("ProjPath" is that very
// name, not the project directory). Its section MESGDATA holds the keys MESG1 to MESG500: code, offset and
// the text in three languages.
#pragma once

#include "base/Constants.h"
#include "base/Types.h"

#pragma pack(push, 1)

/// One message.
struct MESGDATA {
    char ID_Code[SIZE_ID_CODE + 2];   ///< code of the cell the message is bound to; empty for none
    std::int32_t ID_No;               ///< offset within that code
    char MesgText[SIZE_MESGTEXT + 2]; ///< in the language of the load
};
static_assert(sizeof(MESGDATA) == 128);

#pragma pack(pop)

extern MESGDATA* MesgData[CONT_MESGDATA]; ///< message n is entry n - 1; null when it is not defined

/// Loads the table in the language that is set (Language), freeing the one before. A message whose code is
/// known is shared with its cell, one whose code is not known is logged. At start-up the code table comes
/// after the messages, so that no code is known then and no message is bound to a cell.
void LoadMesgData();

/// Frees the table; cells that share a message lose their text.
void ExitMesgData();

/// Text of message 1..500.
/// @return the text in the table, valid until ExitMesgData; an empty text, logged even when `file` is null,
///         for a message that is not defined
LPTSTR Get_MesgData(int no, const char* file, int line);

/// Copies the text.
/// @param text  receives it; at least SIZE_MESGTEXT + 2 bytes
void Get_MesgData(int no, char* text, const char* file, int line);

/// Shows a message on the error line (cell DTNO_SYSEROR) in colour selection 1. A message without text
/// changes nothing; one that is not defined is logged as well.
void DispErrorMesg(int no);

/// Shows a text on the error line; null or empty changes nothing.
void DispErrorMesg(const char* text);

/// Returns the error line to colour selection 0; its text stays.
void ClearErrorMesg();
