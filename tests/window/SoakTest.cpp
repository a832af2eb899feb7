// Windows that come and go leave nothing behind, neither here nor on the X server.
#include "config/FileCntl.h"
#include "log/Clock.h"
#include "log/Logfile.h"
#include "tests/support/Footprint.h"
#include "tests/window/KeyEdit.h"

using namespace tessary;

namespace
{

class Soak : public KeyEdit
{
  protected:
    static constexpr int WARM = 60; ///< until every cache is filled and the oldest windows are being deleted
    static constexpr int ROUNDS = 440;

    void SetUp() override
    {
        KeyEdit::SetUp();
        know(fields("child").header(HEDR_LEFT, 400));
        know(fields("other").header(HEDR_LEFT, 700).header(HEDR_TITLE_HEIGHT, 20).header(HEDR_CLOCK, 3));
        open(fields("p"));
    }

    /// Runs a round often, and compares what is held after the first ones and at the end.
    template <class Round> void expectNothingLeft(Round round)
    {
        const auto run = [&](int count) {
            for (int i = 0; i < count; i++) {
                round(i);
                tick();
                calls.clear();
            }
            calls.shrink_to_fit();
        };
        run(WARM);
        const Footprint before = footprint();
        run(ROUNDS);
        EXPECT_TRUE(holdsNoMore(footprint(), before));
    }
};

} // namespace

TEST_F(Soak, children_that_are_opened_and_closed)
{
    expectNothingLeft([](int i) {
        AppliWnd->PtrnDispChild(1 + i % 2, "child", nullptr, 0);
        AppliWnd->PtrnCloseWnd(1 + i % 2, nullptr, 0);
    });
}

TEST_F(Soak, children_that_are_replaced_while_a_field_is_in_edit)
{
    expectNothingLeft([](int) {
        AppliWnd->PtrnDispChild(1, "child", 300, 300, nullptr, 0);
        AppliWnd->ChildWnd1->KeyInputStart(TEXT, nullptr, 0);
    });
}

TEST_F(Soak, system_windows_with_children)
{
    expectNothingLeft([](int) {
        PtrnDispSysWnd("other", nullptr, 0);
        SystmWnd->PtrnDispChild(2, "child", nullptr, 0);
    });
    PtrnDispSysWnd("", nullptr, 0);
}

TEST_F(Soak, application_windows_and_cursors)
{
    expectNothingLeft([](int i) {
        PtrnDispTopWnd(i % 2 ? "p" : "other", nullptr, 0);
        AppliWnd->PtrnSetCursor(i % 8, nullptr, 0);
    });
}

TEST_F(Soak, repaints_and_ticks)
{
    expectNothingLeft([](int) {
        AppliWnd->PaintEvent();
        AppliWnd->UpdateEvent();
    });
}

// The long form has a clock of its own; here each round moves to another day, and the tick back to today.
TEST_F(Soak, days_of_a_log)
{
    constexpr int DAYS = 28;
    expectNothingLeft([](int i) {
        LogfileWrite("SOAK", "a line", __FILE__, __LINE__);
        LocalTime.tm_mday = 1 + i % DAYS;
        LogfileTimr();
    });
    EXPECT_GE(FileCount(project.logFolder().c_str(), "*.log"), DAYS);
}
