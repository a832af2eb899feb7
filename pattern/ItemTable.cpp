#include "pattern/ItemTable.h"

#include "pattern/PtrnData.h"

#include <algorithm>
#include <cstring>
#include <iterator>

// In the order in which the types are drawn within a pass: boxes and shapes, lines, images, scroll controls,
// buttons, and text on top.
#define ITEM_CLASSES(ITEM)                                                                                   \
    ITEM(GROUP_BOX)                                                                                          \
    ITEM(RECTANGLE)                                                                                          \
    ITEM(CIRCLE)                                                                                             \
    ITEM(BAR_GRAPH)                                                                                          \
    ITEM(LINE)                                                                                               \
    ITEM(BITMAP)                                                                                             \
    ITEM(MARK)                                                                                               \
    ITEM(SCROLL_BAR)                                                                                         \
    ITEM(SPIN_BUTTON)                                                                                        \
    ITEM(PUSH_BUTTON)                                                                                        \
    ITEM(RADIO_BUTTON)                                                                                       \
    ITEM(CHECK_BOX)                                                                                          \
    ITEM(FIXED_TEXT)                                                                                         \
    ITEM(VARIABLE_TEXT)                                                                                      \
    ITEM(NUMERIC_FIELD)

namespace tessary
{

namespace items
{
#define DECLARE_ITEM(name) extern const ItemClass name;
ITEM_CLASSES(DECLARE_ITEM)
#undef DECLARE_ITEM
} // namespace items

namespace
{

#define POINT_AT_ITEM(name) &items::name,
constexpr const ItemClass* IN_DRAWING_ORDER[] = {ITEM_CLASSES(POINT_AT_ITEM)};
#undef POINT_AT_ITEM
static_assert(std::size(IN_DRAWING_ORDER) == CONT_PTRN);

/// By type number less one.
struct Ranked {
    std::vector<std::reference_wrapper<const ItemClass>> classes;
    int ranks[CONT_PTRN] = {};

    Ranked()
    {
        for (const ItemClass* row : IN_DRAWING_ORDER) {
            ranks[row->type - 1] = static_cast<int>(classes.size());
            classes.emplace_back(*row);
        }
        std::sort(classes.begin(), classes.end(),
                  [](const ItemClass& one, const ItemClass& other) { return one.type < other.type; });
    }
};

const Ranked& Table()
{
    static const Ranked TABLE;
    return TABLE;
}

bool IsType(int type)
{
    return type >= 1 && type <= CONT_PTRN;
}

} // namespace

const std::vector<std::reference_wrapper<const ItemClass>>& ItemClasses()
{
    return Table().classes;
}

int ItemRank(int type)
{
    return IsType(type) ? Table().ranks[type - 1] : -1;
}

const ItemClass* FindItemClass(int type)
{
    return IsType(type) ? &Table().classes[static_cast<std::size_t>(type - 1)].get() : nullptr;
}

const ItemClass* FindItemClass(const char* name)
{
    for (const ItemClass& row : ItemClasses())
        if (std::strcmp(row.name, name) == 0)
            return &row;
    return nullptr;
}

} // namespace tessary

#define TYPE_OF_ITEM(name) tessary::items::name.type,
const int TypeTabl[CONT_PTRN] = {ITEM_CLASSES(TYPE_OF_ITEM)};
#undef TYPE_OF_ITEM
