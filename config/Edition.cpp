#include "config/Edition.h"

#include "config/Profile.h"
#include "config/Settings.h"

#include <algorithm>

namespace tessary
{

namespace
{

int current = 1;

} // namespace

const std::vector<EditionRow>& EditionRows()
{
    static const std::vector<EditionRow> ROWS = {
#define TESSARY_CORRECTION(row, edition, name, surprising, text)                                             \
    {Correction::row, edition, name, surprising, text},
#include "config/Editions.def"
#undef TESSARY_CORRECTION
    };
    return ROWS;
}

const EditionRow& RowOf(Correction row)
{
    return EditionRows().at(static_cast<std::size_t>(row));
}

int Edition()
{
    return current;
}

int ReadEdition()
{
    return std::max(1, ProfileReadInt(ProfName, "TESSARY", "EDITION"));
}

void SetEdition(int edition)
{
    current = std::clamp(edition, 1, LATEST_EDITION);
}

bool Has(Correction row)
{
    return Has(row, current);
}

bool Has(Correction row, int edition)
{
    return edition >= RowOf(row).edition;
}

} // namespace tessary
