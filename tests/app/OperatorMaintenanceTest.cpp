// The maintenance screen of the sample project under an operator's hands.
#include "tests/app/SampleProject.h"

#include "comndata/PtrnCode.h"
#include "dialogs/PtrnMente.h"

#include <gmock/gmock.h>

using namespace tessary;

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr int LINES = 10; ///< of both lists

// Cells of line 0.
constexpr int CODE_CELL = 20;
constexpr int OFFSET_CELL = 30;
constexpr int FLAG_CELL = 40;
constexpr int WORD_CELL = 50;
constexpr int VALUE_CELL = 60;
constexpr int TEXT_CELL = 70;
// Scroll bars.
constexpr int CODE_BAR = 80;
constexpr int DATA_BAR = 81;

constexpr int FIRST_MARK = 454; ///< of the fourteen cells of the code "MARK"

class OperatorMaintenance : public SampleProject
{
  protected:
    void SetUp() override
    {
        compile();
        start();
        openTop(MENU_NAME);
        open();
    }

    void open()
    {
        clickAction(AppliWnd, ACTION_MAINTENANCE);
        ASSERT_TRUE(SystmWnd);
        waitShown(SystmWnd);
        tick();
    }

    /// Pages down until a code is listed. @return its line, -1 when the list does not have it
    int findCode(const std::string& code)
    {
        for (int before = -1; number(CODE_BAR) != before;) {
            for (int i = 0; i < LINES; i++)
                if (text(CODE_CELL + i) == code)
                    return i;
            before = number(CODE_BAR);
            clickBar(SystmWnd, CODE_BAR, BAR_NEXT_PAGE);
        }
        return -1;
    }

    void select(const std::string& code)
    {
        const int line = findCode(code);
        ASSERT_GE(line, 0) << code;
        clickItem(SystmWnd, CODE_CELL + line, PTRN_CHAR);
        tick();
    }

    /// Edits the field of a cell: `erased` bytes go, `typed` comes.
    void enter(int cell, int type, int erased, const std::string& typed)
    {
        clickItem(SystmWnd, cell, type);
        ASSERT_EQ(SystmWnd->KeyInputMode, 1) << cell;
        for (int i = 0; i < erased; i++)
            key(XK_BackSpace);
        user.type(typed);
        tick(3); // the lists are filled anew while the operator types
        key(XK_Return);
        ASSERT_EQ(SystmWnd->KeyInputMode, 0) << cell;
        tick();
    }
};

} // namespace

TEST_F(OperatorMaintenance, every_code_but_the_first_can_be_found_by_paging)
{
    std::vector<std::string> seen;
    for (int before = -1; number(CODE_BAR) != before;) {
        before = number(CODE_BAR);
        for (int i = 0; i < LINES; i++)
            if (std::find(seen.begin(), seen.end(), text(CODE_CELL + i)) == seen.end())
                seen.push_back(text(CODE_CELL + i));
        clickBar(SystmWnd, CODE_BAR, BAR_NEXT_PAGE);
    }
    std::vector<std::string> codes;
    for (int row = 1; row < PtrnRecd; row++)
        codes.emplace_back(PtrnCode[row].ID_Code);
    EXPECT_EQ(seen, codes);
}

TEST_F(OperatorMaintenance, a_found_code_is_paged_and_its_cells_are_changed)
{
    select("MARK");
    EXPECT_EQ(number(OFFSET_CELL), 0);
    clickBar(SystmWnd, DATA_BAR, BAR_NEXT_ARROW);
    EXPECT_EQ(number(OFFSET_CELL), 1);
    clickBar(SystmWnd, DATA_BAR, BAR_NEXT_PAGE);
    EXPECT_EQ(number(OFFSET_CELL), 4) << "the last ten of fourteen";
    EXPECT_EQ(number(OFFSET_CELL + 9), 13);

    const int last = FIRST_MARK + 13;
    enter(WORD_CELL + 9, PTRN_NUMR, 1, "3");
    enter(VALUE_CELL + 9, PTRN_NUMR, 4, "-12.5"); // a sign is taken at the start of a field alone
    enter(TEXT_CELL + 9, PTRN_CHAR, 0, "abc");
    EXPECT_EQ(word(last), 3);
    EXPECT_EQ(value(last), 12.5F);
    EXPECT_EQ(text(last), "abc");
    EXPECT_EQ(number(WORD_CELL + 9), 3);
    EXPECT_EQ(value(VALUE_CELL + 9), 12.5F);
    EXPECT_EQ(text(TEXT_CELL + 9), "abc");
    EXPECT_EQ(word(last - 1), 0);

    clickBar(SystmWnd, DATA_BAR, BAR_FIRST_PAGE);
    EXPECT_EQ(number(OFFSET_CELL), 0);
    clickAction(SystmWnd, ACTION_CLOSE_SYSTEM);
    EXPECT_FALSE(SystmWnd);
    openFromMenu("テスト  （図形）");
    tick();
    EXPECT_EQ(item(AppliWnd, last, PTRN_MARK).wData & STATE_COLOR, 3) << "the mark shows it";
}

TEST_F(OperatorMaintenance, a_value_may_be_given_up_with_escape_or_a_click_elsewhere)
{
    select("MARK");
    clickItem(SystmWnd, VALUE_CELL, PTRN_NUMR);
    type("7");
    key(XK_Escape);
    EXPECT_EQ(value(FIRST_MARK), 0.0F);
    clickItem(SystmWnd, VALUE_CELL, PTRN_NUMR);
    type("7");
    clickItem(SystmWnd, VALUE_CELL + 1, PTRN_NUMR);
    EXPECT_EQ(value(FIRST_MARK), 0.0F);
    EXPECT_EQ(value(FIRST_MARK + 1), 0.0F);
}

TEST_F(OperatorMaintenance, accesses_are_in_the_log_file_while_the_log_flag_is_on)
{
    select("MARK");
    const std::string flags = project.read("PtrnFlag");
    project.clearLog();
    enter(WORD_CELL + 2, PTRN_NUMR, 1, "1");
    EXPECT_THAT(project.messages(), IsEmpty());

    clickItem(SystmWnd, FLAG_CELL + 2, PTRN_CHCK);
    tick();
    std::string switched = flags;
    switched[FIRST_MARK + 2] = 1;
    EXPECT_EQ(project.read("PtrnFlag"), switched);
    EXPECT_EQ(number(FLAG_CELL + 2), 1);
    project.clearLog();
    enter(WORD_CELL + 2, PTRN_NUMR, 1, "2");
    enter(VALUE_CELL + 2, PTRN_NUMR, 3, "5");
    enter(TEXT_CELL + 2, PTRN_CHAR, 0, "x");
    EXPECT_THAT(project.messages(),
                ElementsAre("WRITE  [MARK+2] 0x0002", "WRITE  [MARK+2] 5.00", "WRITE  [MARK+2] x"));

    clickItem(SystmWnd, FLAG_CELL + 2, PTRN_CHCK);
    tick();
    EXPECT_EQ(project.read("PtrnFlag"), flags);
    project.clearLog();
    enter(WORD_CELL + 2, PTRN_NUMR, 1, "3");
    EXPECT_THAT(project.messages(), IsEmpty());
}

TEST_F(OperatorMaintenance, values_that_change_by_themselves_are_followed)
{
    select("COUNTER");
    const int counter = 111;
    const int before = number(counter);
    tick(10); // it counts once in ten ticks
    EXPECT_NE(number(counter), before);
    EXPECT_EQ(number(VALUE_CELL), number(counter));
}
