#include "qt/WindowFixture.h"

#include <QAbstractItemModel>
#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QTableView>
#include <QTest>
#include <QTreeView>

namespace gfc::test {

using ::testing::ElementsAre;

class Lists : public ProbeInWindow {
protected:
    [[nodiscard]] QTableView& Table() { return Widget<QTableView>("rows"); }
    [[nodiscard]] QTreeView& Tree() { return Widget<QTreeView>("tree"); }
    [[nodiscard]] static std::vector<ui::ListView::Row> Many(int count) {
        std::vector<ui::ListView::Row> rows;
        for (int i = 1; i <= count; ++i)
            rows.push_back({std::to_string(i), "tag"});
        return rows;
    }
};

TEST_F(Lists, take_a_hundred_thousand_rows_in_one_step) {
    int steps = 0;
    QObject::connect(Table().model(), &QAbstractItemModel::rowsInserted, &Table(), [&steps] { ++steps; });
    Form->rows.AddRows(Many(100'000));
    Settle();
    EXPECT_EQ(steps, 1);
    EXPECT_EQ(Hands.Rows("Probe", "rows"), 100'003);
    EXPECT_EQ(Hands.Cell("Probe", "rows", 100'003, 0), "100000");
    Form->rows.RemoveRows(2, 1);
    Form->rows.Renumber();
    EXPECT_EQ(Hands.Cell("Probe", "rows", 100'002, 0), "100002");
}

TEST_F(Lists, keep_the_rules_of_a_model_while_they_grow) {
    const QAbstractItemModelTester tableRules(Table().model(),
                                              QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QAbstractItemModelTester treeRules(Tree().model(),
                                             QAbstractItemModelTester::FailureReportingMode::Fatal);
    Form->rows.AddRow({"4", "fourth"});
    Form->rows.SetCell(1, 1, "other");
    Form->rows.ClearRows();
    Form->rows.ClearColumns();
    Form->rows.AddColumns({{"Only"}});
    Form->rows.AddRow({"1"});
    Form->tree.Add(1, "late", "Late");
    Form->tree.SetText(2, "Renamed");
    Form->tree.Clear();
    Form->tree.Add(0, "new", "New");
    EXPECT_EQ(Hands.Rows("Probe", "rows"), 1);
    EXPECT_EQ(Tree().model()->rowCount(), 1);
}

TEST_F(Lists, copy_the_selected_row_as_spreadsheets_take_it) {
    QApplication::clipboard()->setText("before");
    QTest::keySequence(&Table(), QKeySequence::Copy);
    EXPECT_EQ(QApplication::clipboard()->text(), "before") << "nothing is selected";
    Form->rows.AddRow({"4", "fourth"});
    Form->rows.SelectRow(4);
    QTest::keySequence(&Table(), QKeySequence::Copy);
    EXPECT_EQ(QApplication::clipboard()->text(), "4\tfourth");
}

TEST_F(Lists, show_headings_and_the_row_that_is_selected) {
    EXPECT_EQ(Table().model()->headerData(1, Qt::Horizontal).toString(), "Name");
    Form->rows.SelectRow(3);
    EXPECT_EQ(Table().currentIndex().row(), 2);
    EXPECT_TRUE(Form->Log.empty());
    Form->rows.RemoveRows(1, 3);
    EXPECT_FALSE(Table().selectionModel()->hasSelection());
    EXPECT_TRUE(Form->Log.empty());
}

TEST_F(Lists, lose_the_selection_with_its_row) {
    Hands.ClickRow("Probe", "rows", 2);
    Form->rows.RemoveRows(2, 1);
    EXPECT_EQ(Form->rows.SelectedRow(), 0);
    EXPECT_FALSE(Table().selectionModel()->hasSelection());
}

TEST_F(Lists, follow_the_arrow_keys) {
    Hands.ClickRow("Probe", "rows", 1);
    Form->Log.clear();
    QTest::keyClick(&Table(), Qt::Key_Down);
    Settle();
    EXPECT_THAT(Form->Log, ElementsAre("row 2"));
    EXPECT_EQ(Form->rows.SelectedRow(), 2);
}

// Not that of the most letters, and without a cut in any of them.
TEST_F(Lists, are_as_wide_as_the_widest_text) {
    const std::vector<std::string> texts = {
        "iiiiiiiiiiiiiiiiiiiiiiiiii", "WWWWWWWWWWWWWWWWWWWW",     "Añelo",
        "GasTrain_Skid4_0000001_PV",  "WAVAWAVAWAVAWAVAWAVAWAVA", "ñññññññññññññññññññ"};
    Form->rows.ClearRows();
    Form->rows.ClearColumns();
    Form->rows.AddColumns({{"Name"}, {"Rest"}});
    int widest = 0;
    for (const std::string& text : texts) {
        Form->rows.AddRow({text, "1"});
        widest = std::max(widest, Table().fontMetrics().horizontalAdvance(QString::fromStdString(text)));
        EXPECT_GT(Table().columnWidth(0), widest) << text;
        EXPECT_LT(Table().columnWidth(0), std::max(widest, 100) + 50) << text;
    }
}

TEST_F(Lists, do_not_measure_beyond_the_first_rows) {
    Form->rows.AddRows(Many(300));
    const int width = Table().columnWidth(1);
    Form->rows.AddRow({"x", std::string(500, 'w')});
    EXPECT_EQ(Table().columnWidth(1), width);
}

TEST_F(Lists, of_nodes_show_text_picture_colour_and_weight) {
    Form->tree.SetColour(3, ui::Colour::Blue);
    Form->tree.SetBold(1, true);
    const QModelIndex leaf = NodeAt(Tree(), "Root\\Branch\\Leaf");
    EXPECT_EQ(leaf.data().toString(), "Leaf");
    EXPECT_FALSE(leaf.data(Qt::DecorationRole).value<QIcon>().isNull());
    EXPECT_TRUE(leaf.data(Qt::ForegroundRole).isValid());
    EXPECT_FALSE(NodeAt(Tree(), "Root").data(Qt::ForegroundRole).isValid());
    EXPECT_TRUE(NodeAt(Tree(), "Root").data(Qt::FontRole).value<QFont>().bold());
    EXPECT_FALSE(leaf.data(Qt::FontRole).value<QFont>().bold());
}

TEST_F(Lists, of_nodes_tell_in_words_what_picture_and_colour_tell) {
    const QModelIndex branch = NodeAt(Tree(), "Root\\Branch");
    EXPECT_EQ(branch.data(Qt::AccessibleTextRole).toString(), "Branch, configured");
    EXPECT_EQ(branch.data(Qt::ToolTipRole).toString(), "Branch, configured");
    EXPECT_EQ(branch.data().toString(), "Branch");
    Form->tree.SetImage(2, "StationNoConfig");
    EXPECT_EQ(branch.data(Qt::AccessibleTextRole).toString(), "Branch, not configured");
    EXPECT_EQ(NodeAt(Tree(), "Root").data(Qt::AccessibleTextRole).toString(), "Root");
}

TEST_F(Lists, of_nodes_have_pure_colours_on_a_light_ground_and_light_ones_on_a_dark) {
    const std::pair<ui::Colour, QRgb> pure[] = {
        {ui::Colour::Blue, 0xFF0000FF}, {ui::Colour::Red, 0xFFFF0000}, {ui::Colour::Green, 0xFF008000}};
    const auto shade = [this] {
        return NodeAt(Tree(), "Root\\Branch\\Leaf").data(Qt::ForegroundRole).value<QColor>();
    };
    const QPalette usual = QApplication::palette();
    for (const auto& [colour, rgb] : pure) {
        Form->tree.SetColour(3, colour);
        EXPECT_EQ(shade().rgb(), rgb);
        QApplication::setPalette(QPalette(Qt::darkGray, QColor(0x22, 0x22, 0x22)));
        EXPECT_GT(shade().lightness(), 140);
        QApplication::setPalette(usual);
    }
}

TEST_F(Lists, of_nodes_open_and_scroll_to_what_is_wanted) {
    EXPECT_FALSE(Tree().isExpanded(NodeAt(Tree(), "Root")));
    Form->tree.EnsureVisible(3);
    EXPECT_TRUE(Tree().isExpanded(NodeAt(Tree(), "Root")));
    EXPECT_TRUE(Tree().isExpanded(NodeAt(Tree(), "Root\\Branch")));
}

TEST_F(Lists, of_nodes_note_what_a_person_opens_and_keep_it_through_a_rebuild) {
    Tree().expand(NodeAt(Tree(), "Root"));
    EXPECT_TRUE(Form->tree.At(1).Expanded);
    Form->tree.Clear();
    const int root = Form->tree.Add(0, "root", "Root");
    Form->tree.Add(root, "branch", "Branch");
    EXPECT_TRUE(Tree().isExpanded(NodeAt(Tree(), "Root")));
    EXPECT_TRUE(Form->tree.At(1).Expanded);
    EXPECT_FALSE(Tree().isExpanded(NodeAt(Tree(), "Root\\Branch")));
}

TEST_F(Lists, of_nodes_show_the_selection_that_the_program_sets_without_an_event) {
    Form->tree.Select(3);
    EXPECT_EQ(Tree().currentIndex(), NodeAt(Tree(), "Root\\Branch\\Leaf"));
    EXPECT_TRUE(Form->Log.empty());
    Form->tree.Clear();
    EXPECT_FALSE(Tree().currentIndex().isValid());
}

TEST_F(Lists, of_nodes_follow_the_arrow_keys) {
    Hands.ClickNode("Probe", "tree", "Root");
    Form->Log.clear();
    Tree().expandAll();
    QTest::keyClick(&Tree(), Qt::Key_Down);
    Settle();
    EXPECT_THAT(Form->Log, ElementsAre("node Root\\Branch"));
}

TEST_F(Lists, of_nodes_may_be_rebuilt_inside_their_click) {
    Form->tree.OnNodeClick = [this](int) {
        Form->tree.Clear();
        Form->tree.Add(0, "new", "New");
    };
    Hands.ClickNode("Probe", "tree", "Root");
    EXPECT_EQ(Tree().model()->rowCount(), 1);
    EXPECT_EQ(Tree().model()->index(0, 0).data().toString(), "New");
}

} // namespace gfc::test
