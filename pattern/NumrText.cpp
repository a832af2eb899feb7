// Text of a numeric field's value.
#include "comndata/ComnData.h"
#include "config/Edition.h"
#include "pattern/ItemParm.h"
#include "pattern/NumberText.h"
#include "pattern/PtrnData.h"

#include <algorithm>
#include <cstdio>
#include <string>

using namespace tessary;

namespace
{

char text[256];

/// Widths and decimals of a damaged file could ask for gigabytes of blanks; no text is longer than the
/// buffer.
constexpr int LONGEST = static_cast<int>(sizeof text) - 1;

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// Puts a comma after every third place counted from the field's width. A comma replaces the two digits
/// behind it, so the text becomes shorter instead of outgrowing its field.
void Group(std::string& digits, int width)
{
    for (int place = width - 3; place >= 1 && IsDigit(digits[static_cast<std::size_t>(place - 1)]);
         place -= 3) {
        digits.erase(static_cast<std::size_t>(place), 1);
        digits[static_cast<std::size_t>(place)] = ',';
    }
}

/// The last `width` characters; the whole text when it is shorter or the width is negative.
std::string Tail(const std::string& digits, int width)
{
    const auto kept = static_cast<std::size_t>(width);
    return width < 0 || digits.size() <= kept ? digits : digits.substr(digits.size() - kept);
}

} // namespace

const char* ConvertNumrData(const PTRNDATA* item)
{
    if (tessary::Has(tessary::Correction::NumberRoom)) {
        std::snprintf(text, sizeof text, "%s", tessary::NumberText(item).c_str());
        return text;
    }
    const int width = std::clamp<int>(item->Parm[FIELD_WIDTH], -LONGEST, LONGEST);
    const int decimals = std::min<int>(item->Parm[FIELD_DECIMALS], LONGEST);
    const bool zeros = item->Parm[FIELD_ZEROFILL] != 0;

    if (item->Parm[FIELD_HEX]) {
        const auto value = static_cast<unsigned>(Get_iData(item->DataNo, nullptr, 0));
        std::snprintf(text, sizeof text, zeros ? "%0*X" : "%*X", width, value);
        return text;
    }

    const double value = static_cast<double>(Get_fData(item->DataNo, nullptr, 0));
    std::snprintf(text, sizeof text, zeros ? "%0*.*f" : "%*.*f", width, decimals, value);
    if (item->Parm[FIELD_GROUPING] && item->Parm[FIELD_DECIMALS] == 0) {
        std::string digits = text;
        Group(digits, width);
        std::snprintf(text, sizeof text, "%s", Tail(digits, width).c_str());
    }
    return text;
}
