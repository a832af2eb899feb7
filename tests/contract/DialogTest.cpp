#include "tests/contract/Declared.h"

namespace
{

TEST(Contract, declares_the_message_box)
{
    EXPECT_TRUE(Global<gint>(MessageButnNo));
    EXPECT_TRUE((Declared<int(const char*, const char*, int, int)>(MessageBox)));
    EXPECT_TRUE((Declared<void(GtkWidget*, gpointer)>(Message_Button1)));
    EXPECT_TRUE((Declared<void(GtkWidget*, gpointer)>(Message_Button2)));
    EXPECT_TRUE((Declared<void(GtkWidget*, gpointer)>(Message_Button3)));
    EXPECT_TRUE(Declared<void(GtkWidget*)>(Message_Destroy));
}

TEST(Contract, declares_the_maintenance_screen)
{
    EXPECT_TRUE(Global<std::int32_t>(SlctCode));
    EXPECT_TRUE(Global<std::int32_t>(LineNo1));
    EXPECT_TRUE(Global<std::int32_t>(LineNo2));

    static_assert(std::is_base_of_v<CPtrnDisp, CPtrnMente> && std::is_default_constructible_v<CPtrnMente>);
    EXPECT_TRUE(Member<void()>(&CPtrnMente::PtrnInitFunc));
    EXPECT_TRUE(Member<void()>(&CPtrnMente::PtrnTimrFunc));
    EXPECT_TRUE(Member<void(int)>(&CPtrnMente::PtrnMesgFunc));
    EXPECT_TRUE((Member<void(int, int, PTRNDATA*)>(&CPtrnMente::PtrnKeyFunc)));
    EXPECT_TRUE(Member<void(int)>(&CPtrnMente::SlctDispData));
    EXPECT_TRUE(Member<void(int)>(&CPtrnMente::SetDispData1));
    EXPECT_TRUE(Member<void(int)>(&CPtrnMente::SetDispData2));
}

} // namespace
