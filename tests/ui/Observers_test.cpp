#include "support/HeadlessScreen.h"
#include "ui/Buttons.h"
#include "ui/ListView.h"
#include "ui/Tree.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using namespace gfc;

namespace {

using Told = std::vector<std::string>;

std::string Rows(const char* what, int first, int last) {
    return std::string(what) + " " + std::to_string(first) + " to " + std::to_string(last);
}

// A window that only notes what it is told.
class Window final : public ui::FormObserver, public ui::RowsObserver, public ui::TreeObserver {
public:
    void ControlChanged(ui::Control& control) override { told_.push_back("changed " + control.Name()); }
    void FormChanged() override { told_.emplace_back("form"); }
    void FocusMoved(ui::Control& control) override { told_.push_back("focus " + control.Name()); }

    void RowsReset() override { told_.emplace_back("reset"); }
    void RowsAdded(int first, int last) override { told_.push_back(Rows("added", first, last)); }
    void RowsRemoved(int first, int last) override { told_.push_back(Rows("removed", first, last)); }
    void RowsChanged(int first, int last) override { told_.push_back(Rows("changed", first, last)); }

    void TreeReset() override { told_.emplace_back("reset"); }
    void NodeAdded(int node) override { told_.push_back("added " + std::to_string(node)); }
    void NodeChanged(int node) override { told_.push_back("changed " + std::to_string(node)); }
    void ScrollTo(int node) override { told_.push_back("scroll " + std::to_string(node)); }

    void SelectionChanged() override { told_.emplace_back("selection"); }

    // What was told since the last time.
    Told Taken() { return std::exchange(told_, {}); }

private:
    Told told_;
};

class Panel : public ui::Form {
public:
    explicit Panel(ui::Screen& screen) : ui::Form(screen, "Panel") {}

    ui::CommandButton First{*this, "First"};
    ui::CommandButton Second{*this, "Second"};
    ui::ListView List{*this, "List"};
    ui::Tree Branches{*this, "Branches"};
};

class Observers : public ::testing::Test {
protected:
    test::HeadlessScreen screen_;
    std::shared_ptr<Panel> panel_ = std::make_shared<Panel>(screen_);
    Window window_;
};

} // namespace

TEST_F(Observers, of_a_list_are_told_of_its_rows_one_by_one) {
    ui::ListView& list = panel_->List;
    list.SetRowsObserver(&window_);
    list.AddColumns({{"Tag"}, {"Type", 9}});
    EXPECT_EQ(window_.Taken(), Told{"reset"});
    list.AddRow({"a"});
    list.AddRows({{"b"}, {"c"}, {"d"}});
    list.AddRows({});
    EXPECT_EQ(window_.Taken(), (Told{"added 1 to 1", "added 2 to 4"}));
    list.SetCell(2, 2, "wide");
    EXPECT_EQ(list.At(2), (ui::ListView::Row{"b", "", "wide"}));
    list.SetCell(2, 0, "B");
    EXPECT_EQ(list.Cell(2, 0), "B");
    EXPECT_EQ(window_.Taken(), (Told{"changed 2 to 2", "changed 2 to 2"}));
    list.RemoveRows(3, 9);
    EXPECT_EQ(window_.Taken(), Told{"removed 3 to 4"});
    list.RemoveRows(0, 1);
    list.RemoveRows(3, 1);
    EXPECT_EQ(window_.Taken(), Told{}) << "there are no such rows";
    list.ClearRows();
    list.ClearRows();
    list.ClearColumns();
    list.ClearColumns();
    EXPECT_EQ(window_.Taken(), (Told{"reset", "reset"}));
}

TEST_F(Observers, of_a_list_are_told_of_new_numbers_where_there_are_rows) {
    ui::ListView& list = panel_->List;
    list.SetRowsObserver(&window_);
    list.Renumber();
    EXPECT_EQ(window_.Taken(), Told{});
    list.AddRows({{"x", "a"}, {}});
    list.Renumber();
    EXPECT_EQ(window_.Taken(), (Told{"added 1 to 2", "changed 1 to 2"}));
    EXPECT_EQ(list.At(1), (ui::ListView::Row{"1", "a"}));
    EXPECT_EQ(list.At(2), ui::ListView::Row{"2"});
}

TEST_F(Observers, of_a_list_are_told_of_a_selection_that_is_another_one) {
    ui::ListView& list = panel_->List;
    list.AddRows({{"a"}, {"b"}});
    list.SetRowsObserver(&window_);
    list.SelectRow(2);
    list.SelectRow(2);
    EXPECT_EQ(window_.Taken(), Told{"selection"});
    for (const int none : {0, -1, 3}) {
        list.SelectRow(2);
        list.SelectRow(none);
        EXPECT_EQ(list.SelectedRow(), 0);
    }
    EXPECT_EQ(window_.Taken(), Told(5, "selection"));
}

TEST_F(Observers, of_a_tree_are_told_of_its_nodes_one_by_one) {
    ui::Tree& tree = panel_->Branches;
    tree.SetTreeObserver(&window_);
    const int root = tree.Add(0, "r", "Root");
    const int leaf = tree.Add(root, "l", "Leaf");
    EXPECT_EQ(window_.Taken(), (Told{"added 1", "added 2"}));
    tree.SetText(leaf, "Leaf");
    tree.SetText(leaf, "Other");
    EXPECT_EQ(window_.Taken(), Told{"changed 2"});
    tree.EnsureVisible(leaf);
    EXPECT_EQ(window_.Taken(), (Told{"changed 1", "scroll 2"})) << "its parent opens first";
    tree.EnsureVisible(0);
    tree.EnsureVisible(3);
    EXPECT_EQ(window_.Taken(), Told{}) << "there are no such nodes";
    tree.Select(leaf);
    tree.Select(leaf);
    EXPECT_EQ(window_.Taken(), Told{"selection"});
    tree.Clear();
    EXPECT_EQ(window_.Taken(), Told{"reset"});
}

TEST_F(Observers, of_a_tree_are_not_told_what_they_themselves_have_noted) {
    ui::Tree& tree = panel_->Branches;
    const int root = tree.Add(0, "r", "Root");
    tree.SetTreeObserver(&window_);
    tree.NoteExpanded(root, true);
    EXPECT_TRUE(tree.At(root).Expanded);
    tree.SetExpanded(root, true);
    EXPECT_EQ(window_.Taken(), Told{});
}

TEST_F(Observers, of_a_form_are_told_where_the_focus_goes) {
    panel_->Show();
    panel_->SetObserver(&window_);
    EXPECT_TRUE(panel_->Second.PersonClicks());
    EXPECT_TRUE(panel_->Second.PersonClicks());
    EXPECT_EQ(window_.Taken(), Told{"focus Second"});
    panel_->First.SetFocus();
    EXPECT_EQ(window_.Taken(), Told{"focus First"});
}

TEST_F(Observers, of_a_form_are_told_once_of_what_is_another_now) {
    panel_->SetObserver(&window_);
    for (int twice = 0; twice < 2; ++twice) {
        panel_->First.SetCaption("&Next");
        panel_->First.SetVisible(false);
        panel_->Second.SetEnabled(false);
    }
    EXPECT_EQ(window_.Taken(), (Told{"changed First", "changed First", "changed Second"}));
    for (int twice = 0; twice < 2; ++twice) {
        panel_->SetCaption("Panel of the run");
        panel_->SetEnabled(false);
    }
    EXPECT_EQ(window_.Taken(), (Told{"form", "form"}));
}
