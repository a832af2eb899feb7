// The wiring table: a header and one record for each wire, kept outside the common data.
//
// The file "Haisenhyo" of the project directory holds the header and `datacount` records, packed,
// little-endian. Texts end with a zero byte within their field; a text that fills its field to the last byte
// is taken as it is.
#pragma once

#include "tessary.h"

#include <string>
#include <vector>

#pragma pack(push, 1)

struct HAISENHEDR {
    char systemno[10]; ///< system number
    char nousaki[22];  ///< delivery destination
    char sakuban[16];  ///< work number
    char banno[6];     ///< board number
    char comment[80];
    std::int32_t datacount; ///< records that follow
};
static_assert(sizeof(HAISENHEDR) == 138);

struct HAISENDATA {
    std::int32_t gyoban; ///< line number, not shown
    std::int32_t length; ///< wire length
    char senban[10];     ///< wire number
    char senkei[6];      ///< wire gauge
    char sensyu[4];      ///< wire kind
    char kyoku[4];       ///< pole
    char kairo[6];       ///< circuit
    char haisen[6];      ///< wiring
    char zahyo1[6];      ///< end 1: position
    char tansi1[6];      ///< end 1: terminal
    char size1[6];       ///< end 1: size
    char syori1[10];     ///< end 1: treatment
    char zahyo2[6];      ///< end 2: position
    char tansi2[6];      ///< end 2: terminal
    char size2[6];       ///< end 2: size
    char syori2[10];     ///< end 2: treatment
    char sheet[8];
};
static_assert(sizeof(HAISENDATA) == 108);

#pragma pack(pop)

// Columns on the screen.
enum WireColumn {
    WIRE_SENBAN,
    WIRE_SENKEI,
    WIRE_SENSYU,
    WIRE_KYOKU,
    WIRE_KAIRO,
    WIRE_HAISEN,
    WIRE_ZAHYO1,
    WIRE_TANSI1,
    WIRE_SIZE1,
    WIRE_SYORI1,
    WIRE_ZAHYO2,
    WIRE_TANSI2,
    WIRE_SIZE2,
    WIRE_SYORI2,
    WIRE_LENGTH, ///< the one number
    WIRE_SHEET,
    CONT_WIRECOLUMN,
};

/// Most records that are read.
constexpr int CONT_HAISENDATA = 1000000;

extern HAISENHEDR HaisenHedr;
extern std::vector<HAISENDATA> HaisenData;   ///< in storage order; HaisenHedr.datacount records
extern std::vector<std::int32_t> HaisenIndx; ///< records in display order

/// Reads the file. Without it header and table are empty. Of a damaged file all whole records are kept that
/// are there, but not more than the header tells; the log says when these differ, and datacount becomes the
/// number read.
void LoadHaisenhyo();

/// Writes header and records, in storage order, over the existing file; what lies behind them stays. A file
/// that does not exist is not made, and one that could not be read is left alone; the log tells.
/// @return whether the table is saved
bool SaveHaisenhyo();

/// Releases the records; the header stays.
void FreeHaisenhyo();

/// The record at a display position; null for a position outside the table.
HAISENDATA* WireAt(int position);

/// Text of a column, at most as long as its field; the length as "%10d".
/// @param column  WireColumn
std::string WireText(const HAISENDATA& wire, int column);

/// Changes the text of a column, cut to its field before a character that does not fit. The same text again
/// leaves every byte of the record as it is. Not for WIRE_LENGTH.
void SetWireText(HAISENDATA& wire, int column, const char* text);

/// Sorts the display order by a column, byte by byte. Records with equal texts keep their order.
/// @param descending  0 ascending, other values descending
void SortHaisenhyo(int column, int descending);

/// A text that may fill its field to the last byte.
template <std::size_t N> std::string FieldText(const char (&field)[N])
{
    return std::string(field, tessary::BoundedLength(field, N));
}

/// Changes a field as SetWireText does.
/// @param size  bytes of the field
void SetFieldText(char* field, std::size_t size, const char* text);

template <std::size_t N> void SetFieldText(char (&field)[N], const char* text)
{
    SetFieldText(field, N, text);
}
