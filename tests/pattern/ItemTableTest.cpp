// What is registered for each item type.
#include "pattern/ItemTable.h"
#include "pattern/PtrnData.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <limits>
#include <vector>

using namespace tessary;

namespace
{

/// Of the types up to the spin button; what later ones share is their own affair.
std::vector<int> typesWhere(bool (*holds)(const ItemClass&))
{
    std::vector<int> types;
    for (int type = 1; type <= PTRN_SPIN; ++type)
        if (holds(*FindItemClass(type)))
            types.push_back(type);
    return types;
}

using testing::ElementsAre;

} // namespace

TEST(ItemTable, lists_the_types_in_drawing_order)
{
    std::vector<int> types;
    std::copy_if(std::begin(TypeTabl), std::end(TypeTabl), std::back_inserter(types),
                 [](int type) { return type <= PTRN_SPIN; });
    EXPECT_THAT(types, ElementsAre(1, 3, 4, 5, 2, 12, 13, 14, 15, 9, 10, 11, 6, 7, 8));
    for (int rank = 0; rank < CONT_PTRN; ++rank)
        EXPECT_EQ(ItemRank(TypeTabl[rank]), rank);
}

TEST(ItemTable, finds_every_type_and_nothing_else)
{
    for (int type = 1; type <= CONT_PTRN; ++type) {
        ASSERT_NE(FindItemClass(type), nullptr) << type;
        EXPECT_EQ(FindItemClass(type)->type, type);
        EXPECT_EQ(+TypeTabl[ItemRank(type)], type);
    }
    for (const int type :
         {0, -1, CONT_PTRN + 1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        EXPECT_EQ(FindItemClass(type), nullptr) << type;
        EXPECT_EQ(ItemRank(type), -1) << type;
    }
}

TEST(ItemTable, erases_every_type_with_the_eraser_of_its_shape)
{
    EXPECT_THAT(typesWhere([](const ItemClass& row) { return row.erase == FindItemClass(PTRN_GBOX)->erase; }),
                ElementsAre(1, 5, 9, 12, 13, 14, 15));
    EXPECT_THAT(typesWhere([](const ItemClass& row) { return row.erase == FindItemClass(PTRN_LINE)->erase; }),
                ElementsAre(2));
    EXPECT_THAT(typesWhere([](const ItemClass& row) { return row.erase == FindItemClass(PTRN_RECT)->erase; }),
                ElementsAre(3));
    EXPECT_THAT(typesWhere([](const ItemClass& row) { return row.erase == FindItemClass(PTRN_CRCL)->erase; }),
                ElementsAre(4));
    EXPECT_THAT(typesWhere([](const ItemClass& row) { return row.erase == FindItemClass(PTRN_FCHR)->erase; }),
                ElementsAre(6, 7, 8));
    EXPECT_THAT(typesWhere([](const ItemClass& row) { return row.erase == FindItemClass(PTRN_RDIO)->erase; }),
                ElementsAre(10, 11));
}

TEST(ItemTable, blinks_texts_and_marks_only)
{
    EXPECT_THAT(typesWhere([](const ItemClass& row) { return row.blink == FindItemClass(PTRN_FCHR)->blink; }),
                ElementsAre(6, 7, 8));
    EXPECT_THAT(typesWhere([](const ItemClass& row) { return row.blink == FindItemClass(PTRN_MARK)->blink; }),
                ElementsAre(13));
    EXPECT_THAT(typesWhere([](const ItemClass& row) { return row.blink == nullptr; }),
                ElementsAre(1, 2, 3, 4, 5, 9, 10, 11, 12, 14, 15));
}

TEST(ItemTable, tests_every_type_for_hits)
{
    EXPECT_THAT(typesWhere([](const ItemClass& row) { return row.hit == FindItemClass(PTRN_GBOX)->hit; }),
                ElementsAre(1, 3, 4, 5, 9, 12, 13, 14, 15));
    EXPECT_THAT(typesWhere([](const ItemClass& row) { return row.hit == FindItemClass(PTRN_LINE)->hit; }),
                ElementsAre(2));
    EXPECT_THAT(typesWhere([](const ItemClass& row) { return row.hit == FindItemClass(PTRN_FCHR)->hit; }),
                ElementsAre(6, 7, 8));
    EXPECT_THAT(typesWhere([](const ItemClass& row) { return row.hit == FindItemClass(PTRN_RDIO)->hit; }),
                ElementsAre(10, 11));
}

TEST(ItemTable, repeats_scroll_bars_and_spin_buttons_only)
{
    EXPECT_THAT(typesWhere([](const ItemClass& row) { return row.part && row.step; }), ElementsAre(14, 15));
    EXPECT_THAT(typesWhere([](const ItemClass& row) { return !row.part && !row.step; }),
                ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13));
}
