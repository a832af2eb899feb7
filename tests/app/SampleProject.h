// The sample project as it is compiled, with the sample application: its screens under an operator's hands.
// Tests find the items by their cells and actions, not by where the project's sources put them.
#pragma once

#include "comndata/ComnData.h"
#include "dialogs/PtrnMente.h"
#include "tests/support/Program.h"
#include "tests/support/Screen.h"
#include "window/Request.h"

#include <X11/keysym.h>

/// Parts of a scroll bar, as CPtrnData::TestScrollBar numbers them.
enum BarPart { BAR_FIRST_PAGE = 1, BAR_NEXT_PAGE, BAR_FIRST_ARROW, BAR_NEXT_ARROW, BAR_THUMB };

class SampleProject : public Screen
{
  protected:
    static constexpr const char* MENU_NAME = "テスト  ［メニュー選択］";

    /// The maintenance screen opens where it was left: at first, at the first code.
    SampleProject()
    {
        SlctCode = 0;
        LineNo1 = 0;
        LineNo2 = 0;
    }

    /// Compiles the project into the test's own folder, with a text language. The profile is the one that
    /// the build makes, but for the language and a log that is written at once.
    void compile(int language = 0)
    {
        Program ptn("ptn", "ptn", {"build", Program::sourceFolder() + "/project", project.folder()});
        ASSERT_TRUE(user.waitFor([&] { return ptn.status().has_value(); }, "the end of ptn"));
        ASSERT_EQ(*ptn.status(), 0) << ptn.output();
        setKey("LANGUAGE", std::to_string(language));
        setKey("LOGSIZE", "1");
    }

    /// Opens the screen that a button of the menu leads to.
    void openFromMenu(const std::string& name)
    {
        ASSERT_TRUE(openTop(MENU_NAME));
        clickAction(AppliWnd, tessary::ACTION_OPEN_TOP, name);
        ASSERT_EQ(AppliWnd->PtrnName, name);
        waitShown(AppliWnd);
    }

    // --- cells ---------------------------------------------------------------------------------------

    static int number(int no) { return Get_iData(no, nullptr, 0); }
    static float value(int no) { return Get_fData(no, nullptr, 0); }
    static WORD word(int no) { return Get_wData(no, nullptr, 0); }
    static std::string text(int no) { return Get_sData(no, nullptr, 0); }

    // --- items ---------------------------------------------------------------------------------------

    static PTRNDATA item(CPtrnDisp* wnd, int no, int type)
    {
        PTRNDATA found{};
        EXPECT_EQ(wnd->PtrnReadData(no, type, &found), 1) << wnd->PtrnName << ", cell " << no;
        return found;
    }

    /// Clicks into the upper left part of an item, where also a field's text is.
    void clickItem(CPtrnDisp* wnd, int no, int type, unsigned button = 1)
    {
        const RECT place = item(wnd, no, type).Rect;
        click(wnd, place.left + 3 - wnd->Offset.x, place.top + 3 - wnd->Offset.y, button);
    }

    /// Clicks the first item with that action.
    void clickAction(CPtrnDisp* wnd, int action, const std::string& name = "")
    {
        for (int i = 0; i < wnd->PtrnData->PtrnCont; i++) {
            const PTRNDATA& found = wnd->PtrnData->PtrnData[i];
            if (found.ID_Type == action && found.ID_Name == name) {
                click(wnd, found.Rect.left + 3, found.Rect.top + 3);
                return;
            }
        }
        ADD_FAILURE() << "no item of " << wnd->PtrnName << " has action " << action << " " << name;
    }

    /// Where a part of a scroll bar is now.
    static RECT barPart(CPtrnDisp* wnd, int no, int part)
    {
        PTRNDATA bar = item(wnd, no, PTRN_SBAR);
        CPtrnData& data = *wnd->PtrnData;
        data.TestScrollBar({bar.Rect.left + 1, bar.Rect.top + 1}, &bar);
        const RECT* const parts[] = {&data.SCrect1, &data.SCrect2, &data.SCrect3, &data.SCrect4,
                                     &data.SCrect5};
        return *parts[part - BAR_FIRST_PAGE];
    }

    void clickBar(CPtrnDisp* wnd, int no, BarPart part)
    {
        const RECT place = barPart(wnd, no, part);
        click(wnd, (place.left + place.right) / 2, (place.top + place.bottom) / 2);
        tick();
    }

  private:
    /// Replaces the value of a key of the profile.
    void setKey(const std::string& key, const std::string& value) const
    {
        std::string profile = readFile(project.profile());
        const std::size_t line = profile.find("\n" + key + "=");
        ASSERT_NE(line, std::string::npos) << key;
        const std::size_t from = line + key.size() + 2;
        profile.replace(from, profile.find('\n', from) - from, value);
        writeFile(project.profile(), profile);
    }
};
