#include "pattern/ScreenClass.h"

#include <algorithm>
#include <cstring>

namespace tessary
{

namespace
{

constexpr ScreenClass CLASSES[] = {
    {SCREEN_PLAIN, "plain", "shows its items and carries out their actions; without 'class' too"},
    {SCREEN_MAINTENANCE, "maintenance",
     "browses and edits all cells, with items on the cells 20 to 81 as the maintenance screen has them"},
};

template <typename Matches> const ScreenClass* Find(Matches matches)
{
    const auto found = std::find_if(std::begin(CLASSES), std::end(CLASSES), matches);
    return found == std::end(CLASSES) ? nullptr : found;
}

} // namespace

SchemaTable<ScreenClass> ScreenClasses()
{
    return CLASSES;
}

const ScreenClass* FindScreenClass(int number)
{
    return Find([number](const ScreenClass& one) { return one.number == number; });
}

const ScreenClass* FindScreenClass(const char* name)
{
    return Find([name](const ScreenClass& one) { return std::strcmp(one.name, name) == 0; });
}

} // namespace tessary
