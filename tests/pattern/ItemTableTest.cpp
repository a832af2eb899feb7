// What is registered for each item type.
#include "pattern/ItemTable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace
{

std::vector<int> typesWhere(bool (*holds)(const ItemOps&))
{
    std::vector<int> types;
    for (int type = 1; type <= CONT_PTRN; ++type)
        if (holds(*FindItemOps(type)))
            types.push_back(type);
    return types;
}

using testing::ElementsAre;

} // namespace

TEST(ItemTable, lists_the_types_in_drawing_order)
{
    EXPECT_THAT(TypeTabl, ElementsAre(1, 3, 4, 5, 2, 12, 13, 14, 15, 9, 10, 11, 6, 7, 8));
    for (int rank = 0; rank < CONT_PTRN; ++rank)
        EXPECT_EQ(ItemTable[rank].Type, +TypeTabl[rank]);
}

TEST(ItemTable, finds_every_type_and_nothing_else)
{
    for (int type = 1; type <= CONT_PTRN; ++type) {
        ASSERT_NE(FindItemOps(type), nullptr) << type;
        EXPECT_EQ(FindItemOps(type)->Type, type);
        EXPECT_EQ(+TypeTabl[ItemRank(type)], type);
    }
    for (const int type :
         {0, -1, CONT_PTRN + 1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        EXPECT_EQ(FindItemOps(type), nullptr) << type;
        EXPECT_EQ(ItemRank(type), -1) << type;
    }
}

TEST(ItemTable, draws_every_type_in_one_of_two_ways)
{
    EXPECT_THAT(typesWhere([](const ItemOps& row) { return row.DispUpdt != nullptr; }),
                ElementsAre(6, 7, 8, 10, 11, 13, 14));
    EXPECT_THAT(typesWhere([](const ItemOps& row) { return row.Disp != nullptr; }),
                ElementsAre(1, 2, 3, 4, 5, 9, 12, 15));
}

TEST(ItemTable, erases_every_type_with_the_eraser_of_its_shape)
{
    EXPECT_THAT(typesWhere([](const ItemOps& row) { return row.Cler == &CPtrnData::ClerPtrnData01; }),
                ElementsAre(1, 5, 9, 12, 13, 14, 15));
    EXPECT_THAT(typesWhere([](const ItemOps& row) { return row.Cler == &CPtrnData::ClerPtrnData02; }),
                ElementsAre(2));
    EXPECT_THAT(typesWhere([](const ItemOps& row) { return row.Cler == &CPtrnData::ClerPtrnData03; }),
                ElementsAre(3));
    EXPECT_THAT(typesWhere([](const ItemOps& row) { return row.Cler == &CPtrnData::ClerPtrnData04; }),
                ElementsAre(4));
    EXPECT_THAT(typesWhere([](const ItemOps& row) { return row.Cler == &CPtrnData::ClerPtrnData06; }),
                ElementsAre(6, 7, 8));
    EXPECT_THAT(typesWhere([](const ItemOps& row) { return row.Cler == &CPtrnData::ClerPtrnData10; }),
                ElementsAre(10, 11));
}

TEST(ItemTable, blinks_texts_and_marks_only)
{
    EXPECT_THAT(typesWhere([](const ItemOps& row) { return row.Flik == &CPtrnData::FlikPtrnData06; }),
                ElementsAre(6, 7, 8));
    EXPECT_THAT(typesWhere([](const ItemOps& row) { return row.Flik == &CPtrnData::FlikPtrnData13; }),
                ElementsAre(13));
    EXPECT_THAT(typesWhere([](const ItemOps& row) { return row.Flik == nullptr; }),
                ElementsAre(1, 2, 3, 4, 5, 9, 10, 11, 12, 14, 15));
}

TEST(ItemTable, tests_every_type_for_hits)
{
    EXPECT_THAT(typesWhere([](const ItemOps& row) { return row.Test == &CPtrnData::TestPtrnData01; }),
                ElementsAre(1, 3, 4, 5, 9, 12, 13, 14, 15));
    EXPECT_THAT(typesWhere([](const ItemOps& row) { return row.Test == &CPtrnData::TestPtrnData02; }),
                ElementsAre(2));
    EXPECT_THAT(typesWhere([](const ItemOps& row) { return row.Test == &CPtrnData::TestPtrnData06; }),
                ElementsAre(6, 7, 8));
    EXPECT_THAT(typesWhere([](const ItemOps& row) { return row.Test == &CPtrnData::TestPtrnData10; }),
                ElementsAre(10, 11));
}

TEST(ItemTable, repeats_scroll_bars_and_spin_buttons_only)
{
    EXPECT_THAT(typesWhere([](const ItemOps& row) { return row.Part && row.Step; }), ElementsAre(14, 15));
    EXPECT_THAT(typesWhere([](const ItemOps& row) { return !row.Part && !row.Step; }),
                ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13));
}
