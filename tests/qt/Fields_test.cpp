#include "qt/WindowFixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QWheelEvent>

namespace gfc::test {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

class Fields : public ProbeInWindow {};

TEST_F(Fields, ask_about_each_character_that_is_pasted) {
    QApplication::clipboard()->setText("1a2\r\nb3");
    auto& field = Widget<QLineEdit>("number");
    field.setFocus();
    QTest::keySequence(&field, QKeySequence::Paste);
    EXPECT_EQ(Form->number.Text(), "123");
    EXPECT_EQ(field.text(), "123");
    EXPECT_THAT(Form->Log, ElementsAre("key 49", "key 97", "key 50", "key 98", "key 51"));
}

TEST_F(Fields, ask_about_each_character_that_their_menu_pastes) {
    QApplication::clipboard()->setText("1a2");
    auto& field = Widget<QLineEdit>("number");
    field.setFocus();
    QTimer::singleShot(0, [] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction* action : menu->actions())
            if (action->text().contains("Paste"))
                return QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
        ADD_FAILURE() << "no paste in the menu";
        menu->close();
    });
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(&field, &asked);
    EXPECT_EQ(Form->number.Text(), "12") << "pasted once, and not past the form";
    EXPECT_EQ(field.text(), "12");
    EXPECT_THAT(Form->Log, ElementsAre("key 49", "key 97", "key 50"));
}

TEST_F(Fields, take_another_character_in_place_of_the_one_that_was_typed) {
    Form->number.OnRefused = [](char32_t key) {
        return key == U',' ? ui::TextBox::Instead{U'7', {}} : ui::TextBox::Instead{0, "no letters"};
    };
    auto& field = Widget<QLineEdit>("number");
    QTest::keyClicks(&field, "1,2");
    EXPECT_EQ(Form->number.Text(), "172");
    EXPECT_EQ(field.text(), "172");
}

TEST_F(Fields, say_beside_them_why_a_key_was_refused_until_the_next_one) {
    Form->number.OnRefused = [](char32_t) { return ui::TextBox::Instead{0, "no letters"}; };
    auto& field = Widget<QLineEdit>("number");
    QTest::keyClicks(&field, "x");
    EXPECT_EQ(QToolTip::text(), "no letters");
    EXPECT_EQ(field.accessibleDescription(), "no letters");
    QTest::keyClicks(&field, "1");
    EXPECT_EQ(field.accessibleDescription(), "");
    EXPECT_EQ(Form->number.Text(), "1");
}

TEST_F(Fields, say_in_their_tip_what_is_expected_when_it_is_asked_for) {
    auto& field = Widget<QLineEdit>("number");
    std::string unit = "in";
    Form->number.HintOf = [&unit] { return "Usual: 1 to 2 " + unit; };
    unit = "mm";
    QHelpEvent asks(QEvent::ToolTip, {5, 5}, field.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&field, &asks);
    EXPECT_TRUE(QToolTip::text().startsWith("Usual: 1 to 2 mm")) << QToolTip::text().toStdString();
    QToolTip::hideText();
}

// A line has room for one thing.
TEST_F(Fields, and_lines_beside_them_say_more_in_their_tip) {
    auto& line = Widget<QLabel>("title");
    QHelpEvent asks(QEvent::ToolTip, {5, 5}, line.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&line, &asks);
    EXPECT_FALSE(QToolTip::isVisible());
    Form->title.HintOf = [] { return std::string("first\r\nsecond"); };
    Form->title.SetCaption("first (And 1 more.)");
    QApplication::sendEvent(&line, &asks);
    EXPECT_EQ(QToolTip::text(), "first\nsecond");
    EXPECT_EQ(line.accessibleDescription(), "first\nsecond");
    QToolTip::hideText();
}

TEST_F(Fields, take_a_pasted_text_as_a_whole_where_the_form_judges_it_so) {
    Form->number.OnPaste = [](const std::string& text) {
        return text == "1,5" ? ui::TextBox::Pasted{"1.5", {}} : ui::TextBox::Pasted{{}, "no number"};
    };
    auto& field = Widget<QLineEdit>("number");
    field.setFocus();
    for (const char* text : {"1,5", "1 556"}) {
        QApplication::clipboard()->setText(text);
        QTest::keySequence(&field, QKeySequence::Paste);
    }
    EXPECT_EQ(Form->number.Text(), "1.5");
    EXPECT_EQ(field.text(), "1.5");
    EXPECT_EQ(Form->number.Refusal(), "no number");
}

TEST_F(Fields, ask_about_what_an_input_method_composes) {
    auto& field = Widget<QLineEdit>("number");
    QInputMethodEvent composed;
    composed.setCommitString("4x5");
    QCoreApplication::sendEvent(&field, &composed);
    EXPECT_EQ(Form->number.Text(), "45");
}

TEST_F(Fields, take_letters_beyond_ascii) {
    Hands.Type("Probe", "words",
               "\xC3\x91"
               "and\xC3\xBA");
    EXPECT_EQ(Form->words.Text(), "\xC3\x91"
                                  "and\xC3\xBA");
}

TEST_F(Fields, leave_shortcuts_alone) {
    Hands.Type("Probe", "number", "12");
    Form->Log.clear();
    auto& field = Widget<QLineEdit>("number");
    QTest::keySequence(&field, QKeySequence::SelectAll);
    QTest::keySequence(&field, QKeySequence::Copy);
    EXPECT_EQ(QApplication::clipboard()->text(), "12");
    QTest::keySequence(&field, QKeySequence::Cut);
    EXPECT_EQ(Form->number.Text(), "");
    EXPECT_TRUE(Form->Log.empty());
}

TEST_F(Fields, are_not_dropped_upon) {
    EXPECT_FALSE(Widget<QLineEdit>("number").acceptDrops());
}

TEST_F(Fields, give_enter_to_the_filter_where_no_button_takes_it) {
    QTest::keyClick(&Widget<QLineEdit>("number"), Qt::Key_Return);
    EXPECT_THAT(Form->Log, ElementsAre("key 13"));
}

TEST_F(Fields, show_the_selection_that_the_program_sets_and_report_a_persons) {
    Form->words.SetText("0123456789");
    Form->words.Select(2, 3);
    auto& field = Widget<QLineEdit>("words");
    EXPECT_EQ(field.selectedText(), "234");
    field.setSelection(4, 5);
    EXPECT_EQ(Form->words.SelStart(), 4);
    EXPECT_EQ(Form->words.SelLength(), 5);
    field.setCursorPosition(1);
    EXPECT_EQ(Form->words.SelStart(), 1);
    EXPECT_EQ(Form->words.SelLength(), 0);
}

TEST_F(Fields, write_nothing_back_while_they_are_written_to) {
    Form->words.SetText("by program");
    Form->tick.SetValue(true);
    Form->list.SetListIndex(2);
    Form->two.SetValue(true);
    EXPECT_THAT(Form->Log, ElementsAre("ticked", "list blue", "two"));
    EXPECT_EQ(Widget<QLineEdit>("words").text(), "by program");
    EXPECT_TRUE(Widget<QCheckBox>("tick").isChecked());
    EXPECT_EQ(Widget<QComboBox>("list").currentIndex(), 2);
    EXPECT_TRUE(Widget<QRadioButton>("two").isChecked());
}

TEST_F(Fields, show_the_colour_of_a_face_when_told) {
    auto& field = Widget<QLineEdit>("words");
    const QColor own = field.palette().color(QPalette::Base);
    Form->words.SetFaceColoured(true);
    EXPECT_EQ(field.palette().color(QPalette::Base), QApplication::palette().color(QPalette::Window));
    Form->words.SetFaceColoured(false);
    EXPECT_EQ(field.palette().color(QPalette::Base), own);
}

TEST_F(Fields, run_their_check_once_when_tab_leaves_them) {
    Hands.Type("Probe", "number", "5");
    Form->Log.clear();
    QTest::keyClick(&Widget<QLineEdit>("number"), Qt::Key_Tab);
    Settle();
    EXPECT_THAT(Form->Log, ElementsAre("left number"));
    EXPECT_EQ(Hands.Focused("Probe"), "words");
    EXPECT_EQ(Form->FocusedControl(), &Form->words);
}

TEST_F(Fields, hold_the_mouse_until_the_check_has_run) {
    Hands.Type("Probe", "number", "5");
    Form->Log.clear();
    auto& button = Widget<QPushButton>("go");
    QTest::mousePress(&button, Qt::LeftButton);
    EXPECT_FALSE(button.isDown());
    EXPECT_TRUE(Form->Log.empty());
    Settle();
    EXPECT_TRUE(button.isDown());
    EXPECT_THAT(Form->Log, ElementsAre("left number"));
    QTest::mouseRelease(&button, Qt::LeftButton);
    EXPECT_FALSE(button.isDown());
    EXPECT_THAT(Form->Log, ElementsAre("left number", "go"));
}

TEST_F(Fields, do_not_follow_a_focus_that_the_program_moved) {
    Hands.Type("Probe", "number", "13");
    Form->Log.clear();
    Form->words.SetFocus();
    Settle();
    EXPECT_EQ(Hands.Focused("Probe"), "words");
    EXPECT_TRUE(Form->Log.empty());
}

TEST_F(Fields, keep_their_check_when_they_are_disabled_under_the_focus) {
    Hands.Type("Probe", "number", "5");
    Form->Log.clear();
    Form->number.SetEnabled(false);
    Settle();
    EXPECT_TRUE(Form->Log.empty());
}

TEST_F(Fields, come_first_in_the_focus_of_a_new_window) {
    EXPECT_EQ(Hands.Focused("Probe"), "number");
    EXPECT_EQ(Form->FocusedControl(), &Form->number);
}

TEST_F(Fields, follow_each_other_by_tab_in_the_order_of_the_form) {
    std::vector<std::string> order;
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        Settle();
        order.push_back(Hands.Focused("Probe"));
    }
    EXPECT_THAT(order, ElementsAre("words", "tick", "one", "list", "tree", "rows"));
}

class Choices : public ProbeInWindow {};

TEST_F(Choices, of_a_closed_list_do_not_change_by_the_wheel) {
    Form->list.SetListIndex(1);
    Form->Log.clear();
    auto& list = Widget<QComboBox>("list");
    QWheelEvent wheel({5, 5}, list.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&list, &wheel);
    EXPECT_EQ(Form->list.ListIndex(), 1);
    EXPECT_EQ(list.currentIndex(), 1);
    EXPECT_TRUE(Form->Log.empty());
}

TEST_F(Choices, by_the_keyboard_press_no_mouse) {
    Hands.Focus("Probe", "one");
    Form->Log.clear();
    QTest::keyClick(&Widget<QRadioButton>("one"), Qt::Key_Space);
    QTest::keyClick(&Widget<QRadioButton>("one"), Qt::Key_Down);
    Settle();
    EXPECT_THAT(Form->Log, ElementsAre("one", "two"));
    EXPECT_TRUE(Form->two.Value());
    EXPECT_FALSE(Form->one.Value());
}

TEST_F(Choices, of_which_none_is_left_show_none) {
    Form->one.SetValue(true);
    Form->one.SetValue(false);
    EXPECT_FALSE(Widget<QRadioButton>("one").isChecked());
    EXPECT_FALSE(Widget<QRadioButton>("two").isChecked());
}

TEST_F(Choices, follow_the_entries_of_their_list) {
    Form->list.SetListIndex(0);
    Form->list.Clear();
    auto& list = Widget<QComboBox>("list");
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(list.currentIndex(), -1);
    Form->list.AddEntry("black");
    Form->list.SetListIndex(0);
    EXPECT_EQ(list.currentText(), "black");
}

TEST_F(Choices, of_a_disabled_control_do_nothing) {
    Form->tick.SetEnabled(false);
    QTest::mouseClick(&Widget<QCheckBox>("tick"), Qt::LeftButton, {}, {8, 8});
    Settle();
    EXPECT_FALSE(Form->tick.Value());
    EXPECT_THAT(Form->Log, Not(Contains("ticked")));
}

} // namespace gfc::test
