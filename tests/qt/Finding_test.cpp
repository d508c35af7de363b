#include "qt/WindowFixture.h"
#include "qt/support/KeyboardDriver.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

namespace gfc::test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Finding : public ProbeInWindow {
protected:
    Finding() {
        Form->rows.ClearRows();
        Form->rows.AddRows({{"1", "PIT-101"}, {"2", "TIT-101"}, {"3", "pit-102"}, {"4", "FIT-103"}});
        Window().activateWindow();
        Hands.Focus("Probe", "words");
        Form->Log.clear();
    }
    static void Write(const QString& text) {
        for (const QChar character : text)
            KeyboardDriver::Stroke(static_cast<Qt::Key>(character.toUpper().unicode()), character);
    }
    void Find(const QString& text) {
        KeyboardDriver::Stroke(Qt::CTRL | Qt::Key_F);
        Write(text);
    }
    [[nodiscard]] QString Result() { return Widget<QLabel>("layoutFindResult").text(); }
    [[nodiscard]] bool IsOpen() { return Widget<QWidget>("layoutFindBar").isVisible(); }
};

TEST_F(Finding, goes_to_the_next_row_as_a_click_on_it_does) {
    Find("pit");
    EXPECT_THAT(Form->Log, IsEmpty()) << "nothing is clicked while the text is typed";
    EXPECT_EQ(Result(), "Enter goes to row 1");
    KeyboardDriver::Stroke(Qt::Key_Return);
    KeyboardDriver::Stroke(Qt::Key_Return);
    EXPECT_THAT(Form->Log, ElementsAre("row 1", "row 3"));
    EXPECT_EQ(Form->rows.SelectedRow(), 3);
    EXPECT_EQ(Widget<QTableView>("rows").currentIndex().row(), 2);
    EXPECT_EQ(Result(), "Row 3");
    EXPECT_EQ(QApplication::focusWidget(), &Widget<QLineEdit>("layoutFindText")) << "to go on typing";
    EXPECT_EQ(Form->FocusedControl(), &Form->rows);
}

TEST_F(Finding, goes_on_at_the_other_end_and_says_so) {
    Find("pit");
    for (int i = 0; i < 3; ++i)
        KeyboardDriver::Stroke(Qt::Key_F3);
    EXPECT_THAT(Form->Log, ElementsAre("row 1", "row 3", "row 1"));
    EXPECT_EQ(Result(), "Row 1, past the end of the list");
    KeyboardDriver::Stroke(Qt::SHIFT | Qt::Key_F3);
    EXPECT_EQ(Form->rows.SelectedRow(), 3);
    KeyboardDriver::Stroke(Qt::SHIFT | Qt::Key_Return);
    EXPECT_EQ(Form->rows.SelectedRow(), 1);
    EXPECT_EQ(Result(), "Row 1");
}

TEST_F(Finding, says_in_words_that_there_is_no_such_row) {
    Find("xyz");
    EXPECT_EQ(Result(), "No row holds this text");
    KeyboardDriver::Stroke(Qt::Key_Return);
    EXPECT_THAT(Form->Log, IsEmpty());
    EXPECT_EQ(Form->rows.SelectedRow(), 0);
}

TEST_F(Finding, does_not_look_at_the_number_of_a_row) {
    Form->rows.ClearRows();
    Form->rows.AddRows({{"7", "first"}, {"8", "tag 7"}});
    Find("7");
    EXPECT_EQ(Result(), "Enter goes to row 2");
    Find("8");
    EXPECT_EQ(Result(), "No row holds this text");
    KeyboardDriver::Stroke(Qt::Key_Backspace);
    EXPECT_EQ(Result(), "") << "nothing is looked for";
    Form->rows.ClearRows();
    Find("7");
    EXPECT_EQ(Result(), "No row holds this text");
    KeyboardDriver::Stroke(Qt::Key_Return);
    EXPECT_THAT(Form->Log, IsEmpty());
}

TEST_F(Finding, ends_with_escape_in_the_list) {
    Find("fit");
    EXPECT_TRUE(IsOpen());
    KeyboardDriver::Stroke(Qt::Key_Escape);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Hands.Focused("Probe"), "rows");
    KeyboardDriver::Stroke(Qt::Key_F3);
    EXPECT_EQ(Form->rows.SelectedRow(), 4) << "F3 goes on without the bar";
    EXPECT_EQ(Hands.Focused("Probe"), "rows");
}

TEST_F(Finding, looks_through_the_tree_that_has_the_focus_closed_branches_too) {
    Form->tree.Clear();
    const int plant = Form->tree.Add(0, "", "Plant");
    const int north = Form->tree.Add(plant, "", "North");
    const int run = Form->tree.Add(north, "", "Run 1");
    const int south = Form->tree.Add(plant, "", "South");
    Form->tree.Add(south, "", "Run 1");
    Hands.Focus("Probe", "tree");
    Form->Log.clear();
    Find("run");
    EXPECT_EQ(Result(), "Enter goes to Run 1");
    KeyboardDriver::Stroke(Qt::Key_Return);
    EXPECT_EQ(Form->tree.SelectedNode(), run);
    EXPECT_TRUE(Form->tree.At(north).Expanded);
    EXPECT_EQ(QApplication::focusWidget(), &Widget<QLineEdit>("layoutFindText")) << "to go on typing";
    KeyboardDriver::Stroke(Qt::Key_Return);
    EXPECT_EQ(Form->tree.SelectedNode(), 5);
    KeyboardDriver::Stroke(Qt::Key_F3);
    EXPECT_EQ(Form->tree.SelectedNode(), run);
    EXPECT_EQ(Result(), "Run 1, past the end of the list");
    Form->tree.SetText(run, "Run 2");
    Write("x");
    EXPECT_EQ(Result(), "No node holds this text");
    KeyboardDriver::Stroke(Qt::Key_Escape);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Hands.Focused("Probe"), "tree");
}

TEST_F(Finding, asks_first_for_what_to_look) {
    KeyboardDriver::Stroke(Qt::Key_F3);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(QApplication::focusWidget(), &Widget<QLineEdit>("layoutFindText"));
}

TEST_F(Finding, needs_a_list_that_can_be_used) {
    Form->rows.SetEnabled(false);
    KeyboardDriver::Stroke(Qt::CTRL | Qt::Key_F);
    EXPECT_FALSE(IsOpen());
}

TEST_F(Finding, may_end_with_the_form) {
    Form->rows.OnRowClick = [this](int) { Form->Unload(); };
    Find("fit");
    KeyboardDriver::Stroke(Qt::Key_Return);
    EXPECT_EQ(FindWindow("Probe"), nullptr);
}

TEST_F(Finding, leaves_a_field_by_its_check) {
    Hands.Type("Probe", "number", "12");
    Form->Log.clear();
    Find("fit");
    KeyboardDriver::Stroke(Qt::Key_Return);
    EXPECT_THAT(Form->Log, ElementsAre("left number", "row 4"));
}

} // namespace gfc::test
