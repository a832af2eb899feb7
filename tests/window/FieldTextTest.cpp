// The text of a field, brought up to date before a tick does it.
#include "window/FieldText.h"

#include "base/EucText.h"
#include "comndata/ComnData.h"
#include "pattern/ItemParm.h"
#include "tests/support/Project.h"

#include <gtest/gtest.h>

using namespace tessary;

namespace
{

class FieldText : public testing::Test
{
  protected:
    void SetUp() override
    {
        project.code("DATA", 9);
        project.start();
        item.Type = PTRN_CHAR;
        item.DataNo = 5;
        item.Parm[FIELD_WIDTH] = 5;
        CopyText(item.Text, "old");
    }

    std::string refreshed(const char* text)
    {
        Set_sData(5, text, nullptr, 0);
        RefreshFieldText(&item);
        return item.Text;
    }

    Project project;
    PTRNDATA item{};
};

} // namespace

TEST_F(FieldText, is_that_of_the_cell)
{
    EXPECT_EQ(refreshed("new"), "new");
    EXPECT_EQ(refreshed(""), "");
}

TEST_F(FieldText, is_cut_to_the_field_before_a_character_that_does_not_fit)
{
    EXPECT_EQ(refreshed("abcdefg"), "abcde");
    EXPECT_EQ(refreshed("a線番線"), "a線番");
    EXPECT_EQ(refreshed("abcd線"), "abcd");
}

TEST_F(FieldText, fits_the_item_whatever_the_width)
{
    item.Parm[FIELD_WIDTH] = 1000;
    EXPECT_EQ(refreshed(std::string(200, 'x').c_str()), std::string(SIZE_PTRNTEXT, 'x'));
    item.Parm[FIELD_WIDTH] = -3;
    EXPECT_EQ(refreshed("abc"), "");
}

TEST_F(FieldText, of_other_items_and_of_cells_outside_the_store_is_left_alone_or_empty)
{
    item.Type = PTRN_NUMR;
    EXPECT_EQ(refreshed("new"), "old");
    item.Type = PTRN_CHAR;
    item.DataNo = -1;
    EXPECT_EQ(refreshed("new"), "");
}
