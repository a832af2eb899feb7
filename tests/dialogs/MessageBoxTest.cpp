#include "dialogs/MessageBox.h"

#include "base/EucText.h"
#include "base/Types.h"
#include "tests/dialogs/BoxWidgets.h"
#include "tests/support/Toolkit.h"
#include "tests/support/XDriver.h"

#include <algorithm>
#include <gdk/gdkkeysyms.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tessary;

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

const char* const TITLE = "起動不可";
const char* const MESSAGE = "環境設定ファイル(/opt/panel.ini)が存在しません。";

std::vector<std::string> warnings;

void recordWarning(const gchar* domain, GLogLevelFlags, const gchar* text, gpointer)
{
    warnings.push_back(std::string(domain ? domain : "") + ": " + text);
}

class Box : public testing::Test
{
  protected:
    void SetUp() override
    {
        useToolkit();
        warnings.clear();
        g_log_set_default_handler(recordWarning, nullptr);
        user.move(0, 0);
    }

    void TearDown() override
    {
        user.settle();
        g_log_set_default_handler(g_log_default_handler, nullptr);
        EXPECT_THAT(warnings, IsEmpty());
        EXPECT_EQ(gtk_main_level(), 0u);
        EXPECT_EQ(gtk_grab_get_current(), nullptr);
        EXPECT_EQ(window(), nullptr);
    }

    /// Shows a box; `act` is run while it waits and has to close it.
    int show(int type, const std::function<void()>& act, const char* text = MESSAGE, int ignored = 1)
    {
        later([&] {
            shown = user.waitForWindow(TITLE);
            act();
            if (!user.waitFor([&] { return !window(); }, "the box to close"))
                gtk_widget_destroy(window());
        });
        return MessageBox(TITLE, text, ignored, type);
    }

    GtkWidget* window() { return findBox(TITLE); }

    std::vector<GtkWidget*> buttons() { return widgets(window(), GTK_TYPE_BUTTON); }

    std::vector<std::string> labels() { return buttonLabels(window()); }

    GtkLabel* label() { return GTK_LABEL(widgets(window(), GTK_TYPE_LABEL).at(0)); }

    /// The middle of a widget on the screen.
    POINT place(GtkWidget* widget)
    {
        POINT at{};
        GtkAllocation size;
        gtk_widget_get_allocation(widget, &size);
        gtk_widget_translate_coordinates(widget, window(), size.width / 2, size.height / 2, &at.x, &at.y);
        return {at.x + shown.x, at.y + shown.y};
    }

    void press(const std::string& name)
    {
        for (GtkWidget* button : buttons())
            if (Utf8ToEuc(gtk_button_get_label(GTK_BUTTON(button))) == name) {
                const POINT at = place(button);
                user.clickAt(at.x, at.y);
                return;
            }
        ADD_FAILURE() << "no button " << name;
    }

    void closeWindow() { user.requestClose(shown.id); }

    XDriver user;
    ScreenWindow shown;
};

} // namespace

TEST_F(Box, with_confirmation_returns_1)
{
    EXPECT_EQ(show(1,
                   [&] {
                       EXPECT_THAT(labels(), ElementsAre(" 確認 "));
                       press(" 確認 ");
                   }),
              1);
    EXPECT_EQ(MessageButnNo, 1);
}

TEST_F(Box, with_a_question_returns_1_for_yes_and_2_for_no)
{
    EXPECT_EQ(show(2,
                   [&] {
                       EXPECT_THAT(labels(), ElementsAre(" はい ", " いいえ "));
                       press(" はい ");
                   }),
              1);
    EXPECT_EQ(show(2, [&] { press(" いいえ "); }), 2);
}

TEST_F(Box, with_a_way_out_returns_3_for_cancel)
{
    EXPECT_EQ(show(3,
                   [&] {
                       EXPECT_THAT(labels(), ElementsAre(" はい ", " いいえ ", " キャンセル "));
                       press(" キャンセル ");
                   }),
              3);
    EXPECT_EQ(show(3, [&] { press(" いいえ "); }), 2);
    EXPECT_EQ(show(3, [&] { press(" はい "); }), 1);
}

TEST_F(Box, lays_its_buttons_out_from_left_to_right_below_the_text)
{
    show(3, [&] {
        const int textAt = place(GTK_WIDGET(label())).y;
        int left = shown.x;
        for (GtkWidget* button : buttons()) {
            EXPECT_GT(place(button).x, left);
            EXPECT_GT(place(button).y, textAt);
            left = place(button).x;
        }
        press(" はい ");
    });
}

TEST_F(Box, of_an_unknown_type_has_no_button_and_returns_0)
{
    for (int type : {0, 4, -1})
        EXPECT_EQ(show(type,
                       [&] {
                           EXPECT_THAT(labels(), IsEmpty()) << type;
                           closeWindow();
                       }),
                  0)
            << type;
}

TEST_F(Box, closed_by_the_window_manager_returns_0)
{
    EXPECT_EQ(show(3, [&] { press(" キャンセル "); }), 3);
    EXPECT_EQ(show(3, [&] { closeWindow(); }), 0);
    EXPECT_EQ(MessageButnNo, 0);
}

TEST_F(Box, destroyed_by_the_program_returns_0)
{
    EXPECT_EQ(show(1, [&] { gtk_widget_destroy(window()); }), 0);
}

TEST_F(Box, takes_no_notice_of_its_third_argument)
{
    for (int ignored : {-1, 0, 99})
        EXPECT_EQ(show(
                      1, [&] { press(" 確認 "); }, MESSAGE, ignored),
                  1)
            << ignored;
}

TEST_F(Box, shows_title_and_text)
{
    show(1, [&] {
        EXPECT_EQ(shown.title, TITLE);
        EXPECT_EQ(Utf8ToEuc(gtk_label_get_text(label())), MESSAGE);
        closeWindow();
    });
}

TEST_F(Box, is_readable)
{
    show(3, [&] {
        for (GtkWidget* widget : widgets(window(), GTK_TYPE_LABEL)) {
            PangoLayout* layout = gtk_label_get_layout(GTK_LABEL(widget));
            EXPECT_EQ(pango_layout_get_unknown_glyphs_count(layout), 0) << "a Japanese font is missing";
        }
        user.settle();
        const Picture drawn = user.picture(shown.x, shown.y, shown.width, shown.height);
        const POINT middle = place(GTK_WIDGET(label()));
        std::vector<std::uint32_t> colours;
        for (int x = 0; x < shown.width; x++)
            colours.push_back(drawn.at(x, middle.y - shown.y));
        EXPECT_GT(*std::max_element(colours.begin(), colours.end()), 0xC00000u) << "no background";
        EXPECT_LT(*std::min_element(colours.begin(), colours.end()), 0x400000u) << "no text";
        closeWindow();
    });
}

TEST_F(Box, has_a_title_bar_as_its_only_decoration)
{
    show(1, [&] {
        GdkWMDecoration decorations{};
        ASSERT_TRUE(gdk_window_get_decorations(gtk_widget_get_window(window()), &decorations));
        EXPECT_EQ(decorations, GDK_DECOR_TITLE);
        EXPECT_EQ(gtk_window_get_type_hint(GTK_WINDOW(window())), GDK_WINDOW_TYPE_HINT_DIALOG);
        closeWindow();
    });
}

TEST_F(Box, packs_its_parts_at_the_start_without_stretching_them)
{
    show(3, [&] {
        EXPECT_EQ(gtk_container_get_border_width(GTK_CONTAINER(window())), 10u);
        const std::pair<GType, int> boxes[] = {{GTK_TYPE_VBOX, 20}, {GTK_TYPE_HBOX, 10}};
        for (const auto& [type, spacing] : boxes) {
            GtkBox* box = GTK_BOX(widgets(window(), type).at(0));
            EXPECT_EQ(gtk_box_get_spacing(box), spacing);
            EXPECT_FALSE(gtk_box_get_homogeneous(box));
            GList* children = gtk_container_get_children(GTK_CONTAINER(box));
            for (GList* child = children; child; child = child->next) {
                gboolean expand = TRUE;
                gboolean fill = TRUE;
                guint padding = 1;
                GtkPackType end = GTK_PACK_END;
                gtk_box_query_child_packing(box, GTK_WIDGET(child->data), &expand, &fill, &padding, &end);
                EXPECT_FALSE(expand);
                EXPECT_FALSE(fill);
                EXPECT_EQ(padding, 0u);
                EXPECT_EQ(end, GTK_PACK_START);
            }
            g_list_free(children);
        }
        closeWindow();
    });
}

TEST_F(Box, lets_timers_run_while_it_waits)
{
    int ticks = 0;
    const guint timer = g_timeout_add(
        10,
        [](gpointer count) -> gboolean {
            ++*static_cast<int*>(count);
            return TRUE;
        },
        &ticks);
    show(1, [&] {
        const int before = ticks;
        user.waitFor([&] { return ticks >= before + 3; }, "ticks behind the box");
        press(" 確認 ");
    });
    g_source_remove(timer);
}

TEST_F(Box, blocks_the_input_of_other_windows_until_it_is_closed)
{
    GtkWidget* other = gtk_window_new(GTK_WINDOW_POPUP);
    gtk_window_move(GTK_WINDOW(other), 0, 0);
    GtkWidget* button = gtk_button_new_with_label("other");
    gtk_container_add(GTK_CONTAINER(other), button);
    int clicks = 0;
    g_signal_connect(button, "clicked",
                     G_CALLBACK(+[](GtkWidget*, gpointer count) { ++*static_cast<int*>(count); }), &clicks);
    gtk_widget_show_all(other);
    user.settle();

    user.clickAt(10, 10);
    user.settle();
    EXPECT_EQ(clicks, 1);
    show(1, [&] {
        user.clickAt(10, 10);
        user.settle();
        EXPECT_EQ(clicks, 1);
        press(" 確認 ");
    });
    user.clickAt(10, 10);
    user.settle();
    EXPECT_EQ(clicks, 2);
    gtk_widget_destroy(other);
}

TEST_F(Box, ends_no_loop_but_its_own)
{
    int result = -1;
    guint level = 0;
    later([&] {
        result = show(1, [&] { press(" 確認 "); });
        level = gtk_main_level();
        gtk_main_quit();
    });
    gtk_main();
    EXPECT_EQ(result, 1);
    EXPECT_EQ(level, 1u);
}

TEST_F(Box, obeys_the_keyboard)
{
    EXPECT_EQ(show(3,
                   [&] {
                       user.focus(shown.id);
                       user.settle();
                       user.key(GDK_space);
                   }),
              1);
    EXPECT_EQ(show(3,
                   [&] {
                       user.focus(shown.id);
                       user.settle();
                       user.key(GDK_Tab);
                       user.key(GDK_Return);
                   }),
              2);
    EXPECT_EQ(show(3,
                   [&] {
                       user.focus(shown.id);
                       user.settle();
                       user.key(GDK_Tab, {GDK_Shift_L});
                       user.key(GDK_space);
                   }),
              3);
}

TEST_F(Box, shows_bytes_that_are_no_characters_as_question_marks)
{
    show(
        1,
        [&] {
            EXPECT_STREQ(gtk_label_get_text(label()), "a?b?");
            closeWindow();
        },
        "a\xFF"
        "b\xA4");
}

TEST_F(Box, shows_markup_and_formats_as_they_are)
{
    const char* const text = "<b>%s</b> & _x_ \\n";
    show(
        1,
        [&] {
            EXPECT_STREQ(gtk_label_get_text(label()), text);
            closeWindow();
        },
        text);
}

TEST_F(Box, takes_missing_texts_as_empty)
{
    later([&] {
        const auto box = [] {
            GList* list = gtk_window_list_toplevels();
            GtkWidget* found = nullptr;
            for (GList* entry = list; entry; entry = entry->next)
                if (gtk_widget_get_mapped(GTK_WIDGET(entry->data)))
                    found = GTK_WIDGET(entry->data);
            g_list_free(list);
            return found;
        };
        user.waitFor([&] { return box() != nullptr; }, "the box");
        EXPECT_STREQ(gtk_window_get_title(GTK_WINDOW(box())), "");
        EXPECT_STREQ(gtk_label_get_text(GTK_LABEL(widgets(box(), GTK_TYPE_LABEL).at(0))), "");
        gtk_widget_destroy(box());
    });
    EXPECT_EQ(MessageBox(nullptr, nullptr, 1, 1), 0);
}

TEST_F(Box, wraps_a_text_that_is_wider_than_the_screen)
{
    const std::string path(256, 'W');
    EXPECT_EQ(show(
                  1,
                  [&] {
                      EXPECT_GE(shown.x, 0);
                      EXPECT_LE(shown.x + shown.width, 1280);
                      EXPECT_EQ(gtk_label_get_text(label()), path);
                      EXPECT_GT(pango_layout_get_line_count(gtk_label_get_layout(label())), 1);
                      press(" 確認 ");
                  },
                  path.c_str()),
              1);
}

TEST_F(Box, cuts_a_text_after_1000_bytes_between_two_characters)
{
    std::string text = "a";
    for (int i = 0; i < 50000; i++)
        text += "画";
    EXPECT_EQ(show(
                  1,
                  [&] {
                      EXPECT_EQ(Utf8ToEuc(gtk_label_get_text(label())), text.substr(0, 999));
                      press(" 確認 ");
                  },
                  text.c_str()),
              1);
}

TEST_F(Box, takes_a_text_of_many_lines)
{
    EXPECT_EQ(show(
                  1,
                  [&] {
                      user.focus(shown.id);
                      user.settle();
                      user.key(GDK_space);
                  },
                  std::string(5000, '\n').c_str()),
              1);
}
