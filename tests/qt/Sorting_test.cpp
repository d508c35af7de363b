#include "forms/main_window/GFCPrincipal.h"
#include "qt/WindowFixture.h"
#include "qt/render/NaturalOrder.h"
#include "qt/support/KeyboardDriver.h"
#include "qt/support/RandomSequence.h"
#include "support/Room.h"
#include "support/World.h"

#include <QHeaderView>
#include <QTableView>
#include <QTest>

namespace gfc::test {

using ::testing::ElementsAre;

TEST(NaturalOrder, counts_numbers_by_their_value_and_letters_without_their_case) {
    const QStringList ascending = {"",     "9",     "10",     "10.0.0.2", "10.0.0.10",
                                   "010a", "run 2", "Run 10", "run 10 b"};
    for (int left = 0; left < ascending.size(); ++left)
        for (int right = 0; right < ascending.size(); ++right) {
            const int order = qt::CompareNaturally(ascending[left], ascending[right]);
            EXPECT_EQ(left < right, order < 0) << left << " " << right;
            EXPECT_EQ(left == right, order == 0) << left << " " << right;
        }
    EXPECT_EQ(qt::CompareNaturally("NORTH", "north"), 0);
}

// Three stations, whose order in the project is none of the alphabet.
class Sorting : public ::testing::Test {
protected:
    Sorting() {
        for (const char* name : {"Mill 10", "mill 9", "Abbey"})
            Program.AddStation(name, {});
        Program.OpenProject();
        Form->Show();
        Settle();
    }
    [[nodiscard]] QTableView& Table() { return *FindIn<QTableView>(FindWindow("GFCPrincipal"), "ListView1"); }
    void ClickHeading(int column) {
        auto& header = *Table().horizontalHeader();
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          {header.sectionViewportPosition(column) + 12, header.height() / 2});
        Settle();
    }
    [[nodiscard]] std::vector<std::string> Shown() {
        std::vector<std::string> names;
        for (int row = 0; row < Table().model()->rowCount(); ++row)
            names.push_back(Table().model()->index(row, 2).data().toString().toStdString());
        return names;
    }
    [[nodiscard]] std::string Highlighted() {
        return Table().model()->index(Table().currentIndex().row(), 2).data().toString().toStdString();
    }

    QuickScreen Screen;
    FakeProgram Program{Screen};
    forms::GFCPrincipal* Form = &Program.Program.Forms.Get<forms::GFCPrincipal>();
};

TEST_F(Sorting, by_a_heading_moves_the_rows_and_not_the_tree) {
    ClickHeading(2);
    EXPECT_THAT(Shown(), ElementsAre("Abbey", "mill 9", "Mill 10"));
    ClickHeading(2);
    EXPECT_THAT(Shown(), ElementsAre("Mill 10", "mill 9", "Abbey"));
    ClickHeading(2);
    EXPECT_THAT(Shown(), ElementsAre("Mill 10", "mill 9", "Abbey")) << "as the project has them";
    EXPECT_EQ(Form->TreeGFC.At(2).Text, "Mill 10");
    EXPECT_EQ(Form->ListView1.Cell(1, 2), "Mill 10");
}

TEST_F(Sorting, keeps_what_is_selected_and_opens_what_is_highlighted) {
    (void)Form->ListView1.PersonClicksRow(3);
    Settle();
    ClickHeading(2);
    EXPECT_EQ(Form->ListView1.SelectedRow(), 3);
    EXPECT_EQ(Highlighted(), "Abbey");
    EXPECT_EQ(Table().currentIndex().row(), 0);
    Table().setFocus();
    KeyboardDriver::Stroke(Qt::Key_Down);
    EXPECT_EQ(Form->ListView1.SelectedRow(), 2) << "the row below, as it is seen";
    KeyboardDriver::Stroke(Qt::Key_Return);
    EXPECT_EQ(Program.Session.SelectedNodeText, "mill 9");
}

TEST_F(Sorting, by_the_keyboard_and_on_behind_a_rebuilt_table) {
    Table().setFocus();
    KeyboardDriver::Stroke(Qt::CTRL | Qt::Key_3);
    EXPECT_THAT(Shown(), ElementsAre("Abbey", "mill 9", "Mill 10"));
    Form->RebuildAfterCommand();
    Settle();
    EXPECT_THAT(Shown(), ElementsAre("Abbey", "mill 9", "Mill 10"));
    Table().setFocus();
    KeyboardDriver::Stroke(Qt::CTRL | Qt::Key_3);
    EXPECT_THAT(Shown(), ElementsAre("Mill 10", "mill 9", "Abbey"));
    KeyboardDriver::Stroke(Qt::CTRL | Qt::Key_3);
    EXPECT_FALSE(Table().horizontalHeader()->sortIndicatorSection() == 2);
}

} // namespace gfc::test
