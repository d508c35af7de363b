#include "qt/WindowFixture.h"
#include "qt/render/MenuLetters.h"
#include "qt/support/KeyboardDriver.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QTreeView>

namespace gfc::test {

using ::testing::Contains;
using ::testing::ElementsAre;

class KeysOfWindows : public ProbeInWindow {
protected:
    KeysOfWindows() {
        Window().activateWindow();
        Hands.Focus("Probe", "words");
        Form->Log.clear();
    }
    static void Alt(Qt::Key letter) { KeyboardDriver::Stroke(Qt::ALT | letter); }
};

TEST_F(KeysOfWindows, press_buttons_and_tick_boxes_by_a_letter_that_no_caption_shows) {
    Alt(Qt::Key_G);
    Alt(Qt::Key_T);
    EXPECT_THAT(Form->Log, ElementsAre("go", "ticked"));
    EXPECT_EQ(Widget<QPushButton>("go").text(), "Go");
    EXPECT_EQ(Widget<QPushButton>("go").toolTip(), "Alt+G");
}

TEST_F(KeysOfWindows, choose_an_option_without_pressing_the_mouse_on_it) {
    // "T" is taken by the box and "W" is the next letter of "Two".
    Alt(Qt::Key_W);
    EXPECT_THAT(Form->Log, ElementsAre("two"));
}

TEST_F(KeysOfWindows, leave_the_letters_of_menus_to_them) {
    Alt(Qt::Key_H);
    EXPECT_THAT(Form->Log, ElementsAre("help"));
    for (const QPushButton* button : Window().findChildren<QPushButton*>()) {
        EXPECT_NE(button->toolTip(), "Alt+M");
        EXPECT_NE(button->toolTip(), "Alt+H");
    }
}

TEST_F(KeysOfWindows, choose_in_an_open_menu_by_the_first_letter_of_an_entry) {
    Alt(Qt::Key_M);
    KeyboardDriver::Stroke(Qt::Key_F, "f");
    EXPECT_THAT(Form->Log, ElementsAre("menu opens", "first"));
    Form->Log.clear();
    Alt(Qt::Key_M);
    KeyboardDriver::Stroke(Qt::Key_X, "x"); // nobody's
    KeyboardDriver::Stroke(Qt::Key_M, "m");
    KeyboardDriver::Stroke(Qt::Key_D, "d");
    EXPECT_THAT(Form->Log, ElementsAre("menu opens", "deep"));
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(KeysOfWindows, choose_nothing_that_is_disabled_by_its_letter) {
    Form->menuFirst.SetEnabled(false);
    Alt(Qt::Key_M);
    KeyboardDriver::Stroke(Qt::Key_F, "f");
    EXPECT_THAT(Form->Log, ElementsAre("menu opens"));
    KeyboardDriver::Stroke(Qt::Key_Escape);
}

TEST(KeysOfMenus, go_through_the_entries_that_begin_with_one_letter_and_leave_marked_ones_alone) {
    QMenu menu;
    new qt::MenuLetters(menu);
    std::string chosen;
    const auto add = [&](const char* text) {
        return menu.addAction(text, [&chosen, text] { chosen += text; });
    };
    QAction* const check = add("Check");
    QAction* const copy = add("Copy");
    QAction* const drafts = add("Drafts");
    add("&Delete");
    menu.popup({});
    Settle();
    KeyboardDriver::Stroke(Qt::Key_C, "c");
    EXPECT_EQ(menu.activeAction(), check);
    KeyboardDriver::Stroke(Qt::Key_C, "C");
    EXPECT_EQ(menu.activeAction(), copy);
    KeyboardDriver::Stroke(Qt::Key_C, "c");
    EXPECT_EQ(menu.activeAction(), check);
    EXPECT_TRUE(menu.isVisible());
    EXPECT_EQ(chosen, "");
    KeyboardDriver::Stroke(Qt::Key_D, "d");
    EXPECT_EQ(chosen, "&Delete");
    EXPECT_NE(menu.activeAction(), drafts);
    EXPECT_FALSE(menu.isVisible());
}

TEST_F(KeysOfWindows, run_the_check_of_the_field_that_they_leave) {
    Hands.Type("Probe", "number", "13");
    Form->Log.clear();
    Screen.EndProgram(0); // its box is not of interest
    Alt(Qt::Key_G);
    EXPECT_THAT(Form->Log, ElementsAre("left number"));
    EXPECT_EQ(Hands.Focused("Probe"), "number");
}

TEST_F(KeysOfWindows, do_nothing_to_what_cannot_be_used) {
    Form->go.SetEnabled(false);
    Form->tick.SetVisible(false);
    Alt(Qt::Key_G);
    Alt(Qt::Key_T);
    EXPECT_THAT(Form->Log, ::testing::IsEmpty());
}

TEST_F(KeysOfWindows, click_a_row_or_a_node_by_enter) {
    Hands.ClickRow("Probe", "rows", 2);
    Hands.ClickNode("Probe", "tree", "Root");
    Form->Log.clear();
    Hands.Focus("Probe", "rows");
    KeyboardDriver::Stroke(Qt::Key_Return);
    Hands.Focus("Probe", "tree");
    KeyboardDriver::Stroke(Qt::Key_Enter);
    EXPECT_THAT(Form->Log, ElementsAre("row 2", "node Root"));
}

TEST_F(KeysOfWindows, click_nothing_by_reaching_a_list) {
    Hands.Focus("Probe", "tree");
    Hands.Focus("Probe", "rows");
    EXPECT_THAT(Form->Log, ::testing::IsEmpty());
    KeyboardDriver::Stroke(Qt::Key_Return);
    EXPECT_THAT(Form->Log, ElementsAre("row 1"));
}

TEST_F(KeysOfWindows, leave_enter_to_the_form_of_an_empty_list) {
    Form->UseDefaultButtons();
    Form->rows.ClearRows();
    Hands.Focus("Probe", "rows");
    KeyboardDriver::Stroke(Qt::Key_Return);
    EXPECT_THAT(Form->Log, Contains("go"));
}

} // namespace gfc::test
