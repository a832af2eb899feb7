// A profile that can not be read or written shows on the error line.
#include "base/Constants.h"
#include "comndata/ComnData.h"
#include "comndata/ItemState.h"
#include "comndata/MesgData.h"
#include "config/Profile.h"
#include "config/Settings.h"
#include "tests/support/Project.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

using namespace tessary;

namespace fs = std::filesystem;

namespace
{

class ProfileTrouble : public testing::Test
{
  protected:
    void SetUp() override
    {
        project.code("DATA", 20);
        project.start();
        fs::create_directory(folder);
    }
    void forget()
    {
        ClearErrorMesg();
        Set_sData(DTNO_SYSEROR, "", nullptr, 0);
    }
    static std::string shown() { return Get_sData(DTNO_SYSEROR, nullptr, 0); }
    static int color() { return Get_wData(DTNO_SYSEROR, nullptr, 0) & STATE_COLOR; }

    Project project;
    const std::string folder = project.root() + "/folder.ini"; ///< in the place of a profile
};

} // namespace

TEST_F(ProfileTrouble, is_none_where_a_profile_is_missing_or_is_saved)
{
    int value = 5;
    EXPECT_EQ(ProfileReadInt((project.root() + "/missing.ini").c_str(), "S", "K"), 0);
    EXPECT_EQ(ProfileWrite((project.root() + "/new.ini").c_str(), "S", "K", "i", &value), 1);
    ProfileDelete((project.root() + "/new.ini").c_str(), "S", "K");
    EXPECT_EQ(shown(), "");
    EXPECT_EQ(color(), 0);
}

TEST_F(ProfileTrouble, is_shown_when_it_can_not_be_read)
{
    EXPECT_EQ(ProfileReadInt(folder.c_str(), "S", "K"), 0);
    EXPECT_EQ(shown(), "設定ファイルを読み込めません");
    EXPECT_EQ(color(), 1);
    forget();
    Language = 1;
    ProfileReadInt(folder.c_str(), "S", "K");
    EXPECT_EQ(shown(), "The profile can not be read");
}

TEST_F(ProfileTrouble, is_shown_when_it_can_not_be_saved)
{
    int value = 5;
    EXPECT_EQ(ProfileWrite(folder.c_str(), "S", "K", "i", &value), 0);
    EXPECT_EQ(shown(), "設定ファイルに保存できません");
    EXPECT_EQ(color(), 1);
    forget();
    Language = 1;
    ProfileWrite((project.root() + "/no/such/folder.ini").c_str(), "S", "K", "i", &value);
    EXPECT_EQ(shown(), "The profile could not be saved");
}

TEST_F(ProfileTrouble, is_not_shown_without_cells)
{
    ComnDataExit();
    EXPECT_EQ(ProfileReadInt(folder.c_str(), "S", "K"), 0);
}
