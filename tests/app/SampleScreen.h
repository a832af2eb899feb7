// A screen of the sample application in the test's own process, opened through the sample's registry.
#pragma once

#include "comndata/ComnData.h"
#include "tests/support/Screen.h"
#include "window/Request.h"

#include <string>
#include <X11/keysym.h>

/// Fixture: all cells of the sample, 1 to 1571, belong to one code.
class SampleScreen : public Screen
{
  protected:
    static constexpr const char* CODE = "SAMPLE";

    SampleScreen() { project.code(CODE, 1571); }

    /// Offset of a cell within the code.
    static constexpr int offset(int cell) { return cell - 1; }

    static int number(int no) { return Get_iData(no, nullptr, 0); }
    static void setNumber(int no, int value) { Set_iData(no, value, nullptr, 0); }
    static WORD word(int no) { return Get_wData(no, nullptr, 0); }
    static void setWord(int no, WORD value) { Set_wData(no, value, nullptr, 0); }
    static std::string text(int no) { return Get_sData(no, nullptr, 0); }
    static void setText(int no, const std::string& value) { Set_sData(no, value.c_str(), nullptr, 0); }
    static int colorOf(int no) { return word(no) & tessary::STATE_COLOR; }
    static bool blinks(int no) { return (word(no) & tessary::STATE_FLICKER) != 0; }
    static bool hidden(int no) { return (word(no) & tessary::STATE_HIDDEN) != 0; }

    /// Saves the pattern and opens it as the application window.
    void open(const Pattern& pattern)
    {
        pattern.save(project);
        start();
        openTop(pattern.name());
        ASSERT_TRUE(AppliWnd);
    }

    void clickAt(int x, int y, unsigned button = 1) { click(AppliWnd, x, y, button); }

    /// The child window in slot 1, waited for until it is shown; its title is checked.
    CPtrnDisp* child(const std::string& title)
    {
        if (!AppliWnd->ChildWnd1) {
            ADD_FAILURE() << "no child window";
            return nullptr;
        }
        EXPECT_EQ(AppliWnd->ChildWnd1->PtrnName, title);
        waitShown(AppliWnd->ChildWnd1);
        return AppliWnd->ChildWnd1;
    }
};
