#include "links/CellPart.h"

#include "base/Constants.h"
#include "base/EucText.h"
#include "comndata/Cells.h"
#include "comndata/ComnData.h"
#include "comndata/PtrnCode.h"

#include <cmath>

namespace tessary
{

namespace
{

const char* StoredText(int cell)
{
    const char* text = HasCell(cell) ? ComnData[cell].sData : nullptr;
    return text ? text : "";
}

WORD MaskOf(int part)
{
    switch (part) {
    case PART_COLOR:
        return STATE_COLOR;
    case PART_BLINK:
        return STATE_FLICKER;
    case PART_DISABLED:
        return STATE_DISABLE;
    case PART_HIDDEN:
        return STATE_HIDDEN;
    default: // the others are the windows' own
        return 0xFFFF & ~(STATE_FROZEN | STATE_NEVER);
    }
}

WORD StateBits(int part, double number)
{
    if (part != PART_COLOR && part != PART_WORD)
        return number != 0.0 ? 0xFFFF : 0;
    const double held = number < 0.0 ? 0.0 : std::min(number, 65535.0);
    return static_cast<WORD>(std::lround(held));
}

double StateNumber(int part, WORD word)
{
    const WORD bits = word & MaskOf(part);
    return part == PART_COLOR || part == PART_WORD ? bits : bits != 0;
}

} // namespace

LinkValue ReadPart(int cell, int part)
{
    if (part == PART_TEXT)
        return {0.0, StoredText(cell), true};
    if (part == PART_VALUE)
        return {HasCell(cell) ? StoredNumber(cell) : 0.0, "", false};
    return {StateNumber(part, Get_wData(cell, nullptr, 0)), "", false};
}

bool IsPart(int cell, int part, const LinkValue& value)
{
    if (part == PART_TEXT)
        return value.isText && value.text == StoredText(cell);
    if (part == PART_VALUE && HasCell(cell)) {
        const double number = StoredNumber(cell);
        return !value.isText && (number == value.number || (std::isnan(number) && std::isnan(value.number)));
    }
    return ReadPart(cell, part) == value;
}

void WritePart(int cell, int part, const LinkValue& value, Looks& looks)
{
    const bool toText = part == PART_TEXT || (part == PART_VALUE && value.isText);
    if (toText) {
        const std::string text = value.isText ? value.text : NumberText(value.number);
        if (text != StoredText(cell))
            Set_sData(cell, text.c_str(), __FILE__, __LINE__);
    } else if (part == PART_VALUE) {
        if (!IsPart(cell, part, value))
            Set_dData(cell, value.number, __FILE__, __LINE__);
    } else {
        looks.set(cell, MaskOf(part), StateBits(part, value.number));
    }
}

int CellNumber(const CellName& name)
{
    const int cell = name.given() ? ConvertDtno(Utf8ToEuc(name.code).c_str(), name.offset) : -1;
    return HasCell(cell) ? cell : -1;
}

std::string CellText(const CellName& name, int element)
{
    return Utf8ToEuc(name.code) + "+" + std::to_string(name.offset + element);
}

} // namespace tessary
