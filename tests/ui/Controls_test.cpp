#include "support/HeadlessScreen.h"
#include "ui/Buttons.h"
#include "ui/ControlArray.h"
#include "ui/DropDownList.h"
#include "ui/Frame.h"
#include "ui/Furniture.h"
#include "ui/ListView.h"
#include "ui/Menu.h"
#include "ui/TabbedPane.h"
#include "ui/TextBox.h"
#include "ui/Tree.h"

#include <gtest/gtest.h>

#include <vector>

using namespace gfc;

namespace {

class Panel : public ui::Form {
public:
    explicit Panel(ui::Screen& screen) : ui::Form(screen, "Panel") {}

    ui::DropDownList Units{*this, "Units"};
    ui::Frame Group{*this, "Group"};
    ui::OptionButton First{Group, "First"};
    ui::OptionButton Second{Group, "Second"};
    ui::OptionButton Apart{*this, "Apart", {}, true};
    ui::CheckBox Box{*this, "Box"};
    ui::TextBox Field{*this, "Field"};
    ui::TextBox Other{*this, "Other"};
    ui::CommandButton Go{*this, "Go"};
    ui::TabbedPane Pages{*this, "Pages", {"One", "Two"}};
    ui::CommandButton OnTwo{Pages.OnPage(1), "OnTwo"};
    ui::ListView List{*this, "List"};
    ui::Tree Branches{*this, "Branches"};
    ui::MenuEntry Menu{*this, "Menu", "&Menu"};
    ui::MenuEntry Entry{Menu, "Entry", "Entry"};
    ui::Timer Clock{*this, "Clock", 2000};
    ui::ControlArray<ui::CheckBox, 3> Runs{*this, "Runs",
                                           [](int i) { return "Run " + std::to_string(i + 1); }};
};

class Controls : public ::testing::Test {
protected:
    test::HeadlessScreen screen_;
    std::shared_ptr<Panel> panel_ = std::make_shared<Panel>(screen_);
};

} // namespace

TEST_F(Controls, drop_down_list_runs_its_click_when_the_program_changes_the_selection) {
    int clicks = 0;
    panel_->Units.OnClick = [&clicks] { ++clicks; };
    panel_->Units.AddEntry("US");
    panel_->Units.AddEntry("Metric");
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(panel_->Units.ListIndex(), ui::DropDownList::None);

    panel_->Units.SetListIndex(1);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(panel_->Units.Text(), "Metric");
    panel_->Units.SetListIndex(1);
    EXPECT_EQ(clicks, 1) << "the selection that it has already runs nothing";
}

TEST_F(Controls, drop_down_list_runs_its_click_when_a_person_picks_the_same_entry_again) {
    int clicks = 0;
    panel_->Units.AddEntry("US");
    panel_->Units.SetListIndex(0);
    panel_->Units.OnClick = [&clicks] { ++clicks; };
    EXPECT_TRUE(panel_->Units.PersonSelects(0));
    EXPECT_EQ(clicks, 1);
    EXPECT_FALSE(panel_->Units.PersonSelects(1));
    panel_->Units.SetEnabled(false);
    EXPECT_FALSE(panel_->Units.PersonSelects(0));
    EXPECT_EQ(clicks, 1);
}

TEST_F(Controls, drop_down_list_shows_a_text_that_is_no_entry_with_nothing_selected) {
    panel_->Units.AddEntry("3");
    panel_->Units.SetText("7");
    EXPECT_EQ(panel_->Units.ListIndex(), ui::DropDownList::None);
    EXPECT_EQ(panel_->Units.Text(), "7");
    panel_->Units.SetText("3");
    EXPECT_EQ(panel_->Units.ListIndex(), 0);
    panel_->Units.Clear();
    EXPECT_EQ(panel_->Units.Text(), "");
}

TEST_F(Controls, option_button_takes_the_selection_only_from_those_beside_it) {
    int firsts = 0;
    panel_->First.OnClick = [&firsts] { ++firsts; };
    panel_->First.SetValue(true);
    panel_->Second.SetValue(true);
    EXPECT_FALSE(panel_->First.Value());
    EXPECT_TRUE(panel_->Second.Value());
    EXPECT_TRUE(panel_->Apart.Value());
    EXPECT_EQ(firsts, 1) << "losing the selection is no click";
    EXPECT_TRUE(panel_->Second.PersonClicks());
    EXPECT_TRUE(panel_->Second.Value()) << "a click on a selected option leaves it selected";
}

TEST_F(Controls, check_box_runs_its_click_on_each_change) {
    int clicks = 0;
    panel_->Box.OnClick = [&clicks] { ++clicks; };
    panel_->Box.SetValue(false);
    EXPECT_EQ(clicks, 0);
    panel_->Box.SetValue(true);
    panel_->Box.PersonClicks();
    EXPECT_EQ(clicks, 2);
    EXPECT_FALSE(panel_->Box.Value());
}

TEST_F(Controls, control_in_a_hidden_or_disabled_frame_cannot_be_used) {
    EXPECT_TRUE(panel_->First.Usable());
    panel_->Group.SetEnabled(false);
    EXPECT_FALSE(panel_->First.Usable());
    EXPECT_TRUE(panel_->First.Shown());
    panel_->Group.SetEnabled(true);
    panel_->Group.SetVisible(false);
    EXPECT_FALSE(panel_->First.Shown());
    EXPECT_TRUE(panel_->First.Visible());
    panel_->Group.SetVisible(true);
    panel_->SetEnabled(false);
    EXPECT_FALSE(panel_->First.PersonClicks());
}

TEST_F(Controls, a_person_does_nothing_with_what_cannot_be_used) {
    int events = 0;
    const auto count = [&events] { ++events; };
    panel_->Box.OnClick = panel_->First.OnClick = panel_->First.OnMouseDown = panel_->Go.OnClick = count;
    panel_->Pages.OnClick = panel_->Entry.OnClick = count;
    panel_->Field.OnKeyPress = [&events](char32_t) { return ++events > 0; };
    panel_->List.AddRow({"a"});
    panel_->List.OnRowClick = [&events](int) { ++events; };
    panel_->Branches.Add(0, "r", "Root");
    panel_->Branches.OnNodeClick = [&events](int) { ++events; };
    panel_->Branches.OnMouseDown = [&events](ui::MouseButton) { ++events; };
    const auto act = [this] {
        return std::vector<bool>{
            panel_->Box.PersonClicks(),        panel_->First.PersonPresses(),
            panel_->First.PersonClicks(),      panel_->Go.PersonClicks(),
            panel_->Pages.PersonSelects(1),    panel_->Entry.PersonClicks(),
            panel_->Field.PersonPresses(U'1'), panel_->List.PersonClicksRow(1),
            panel_->Branches.PersonClicks(1),  panel_->Branches.PersonPresses(ui::MouseButton::Right)};
    };
    panel_->SetEnabled(false);
    EXPECT_EQ(act(), std::vector<bool>(10, false));
    EXPECT_EQ(events, 0);
    EXPECT_EQ(panel_->Pages.Tab(), 0);
    EXPECT_EQ(panel_->List.SelectedRow(), 0);
    EXPECT_EQ(panel_->FocusedControl(), nullptr);
    panel_->SetEnabled(true);
    EXPECT_EQ(act(), std::vector<bool>(10, true));
    EXPECT_EQ(events, 10);
}

TEST_F(Controls, a_person_cannot_choose_what_is_not_there) {
    panel_->List.AddRow({"a"});
    panel_->Branches.Add(0, "r", "Root");
    for (const int none : {-1, 0, 2}) {
        EXPECT_FALSE(panel_->List.PersonClicksRow(none));
        EXPECT_FALSE(panel_->Branches.PersonClicks(none));
    }
    for (const int none : {-1, 2}) {
        EXPECT_FALSE(panel_->Pages.PersonSelects(none));
        panel_->Pages.SetTab(none);
        EXPECT_EQ(panel_->Pages.Tab(), 0);
    }
    panel_->Units.AddEntry("US");
    panel_->Units.SetListIndex(0);
    EXPECT_FALSE(panel_->Units.PersonSelects(-1));
    panel_->Units.SetListIndex(-7);
    EXPECT_EQ(panel_->Units.ListIndex(), ui::DropDownList::None);
    EXPECT_EQ(panel_->Branches.FindKey("none"), 0);
    ui::MenuEntry line(panel_->Menu, "Line", "-");
    EXPECT_FALSE(line.PersonClicks());
}

TEST_F(Controls, rows_and_nodes_are_selected_where_nobody_asks_to_be_told) {
    panel_->List.AddRow({"a"});
    panel_->Branches.Add(0, "r", "Root");
    EXPECT_TRUE(panel_->List.PersonClicksRow(1));
    EXPECT_TRUE(panel_->Branches.PersonClicks(1));
    EXPECT_EQ(panel_->List.SelectedRow(), 1);
    EXPECT_EQ(panel_->Branches.SelectedNode(), 1);
}

TEST_F(Controls, drop_down_list_runs_no_click_for_the_text_that_it_shows) {
    int clicks = 0;
    panel_->Units.AddEntry("3");
    panel_->Units.OnClick = [&clicks] { ++clicks; };
    for (const auto* const text : {"7", "7", "8", "3", "3", "8"})
        panel_->Units.SetText(text);
    EXPECT_EQ(clicks, 4);
    EXPECT_EQ(panel_->Units.Text(), "8");
}

TEST_F(Controls, hidden_control_does_not_show_wherever_it_stands) {
    panel_->Pages.SetTab(1);
    EXPECT_TRUE(panel_->OnTwo.Shown());
    panel_->OnTwo.SetVisible(false);
    EXPECT_FALSE(panel_->OnTwo.Shown());
    EXPECT_FALSE(panel_->OnTwo.Usable());
}

TEST_F(Controls, control_on_a_page_shows_with_its_page) {
    EXPECT_FALSE(panel_->OnTwo.Shown());
    panel_->Pages.SetTab(1);
    EXPECT_TRUE(panel_->OnTwo.Shown());
}

TEST_F(Controls, headers_that_do_not_navigate_only_tell_of_the_click) {
    int clicks = 0;
    panel_->Pages.OnClick = [&clicks] { ++clicks; };
    panel_->Pages.SetHeadersNavigate(false);
    EXPECT_TRUE(panel_->Pages.PersonSelects(1));
    EXPECT_EQ(panel_->Pages.Tab(), 0);
    EXPECT_EQ(clicks, 1);
}

TEST_F(Controls, field_that_is_left_may_take_the_focus_back) {
    bool bad = true;
    int clicks = 0;
    panel_->Go.OnClick = [&clicks] { ++clicks; };
    panel_->Field.OnLostFocus = [this, &bad] {
        if (bad)
            panel_->Field.SetFocus();
    };
    EXPECT_TRUE(panel_->Field.PersonEnters());
    EXPECT_FALSE(panel_->Go.PersonClicks()) << "the click is dropped while the field holds the person back";
    EXPECT_EQ(panel_->FocusedControl(), &panel_->Field);
    bad = false;
    EXPECT_TRUE(panel_->Go.PersonClicks());
    EXPECT_EQ(clicks, 1);
}

TEST_F(Controls, click_is_dropped_where_the_field_that_is_left_ends_the_form) {
    int clicks = 0;
    panel_->Go.OnClick = [&clicks] { ++clicks; };
    panel_->Field.OnLostFocus = [this] { panel_->Unload(); };
    EXPECT_TRUE(panel_->Field.PersonEnters());
    EXPECT_FALSE(panel_->Go.PersonClicks());
    EXPECT_EQ(clicks, 0);
    EXPECT_TRUE(panel_->IsUnloaded());
}

TEST_F(Controls, field_asks_for_each_key_and_never_takes_enter) {
    std::u32string asked;
    panel_->Field.OnKeyPress = [&asked](char32_t key) {
        asked += key;
        return key != U'x';
    };
    EXPECT_TRUE(panel_->Field.PersonPresses(U'1'));
    EXPECT_FALSE(panel_->Field.PersonPresses(U'x'));
    EXPECT_FALSE(panel_->Field.PersonPresses(13));
    EXPECT_EQ(asked, (std::u32string{U'1', U'x', char32_t{13}}));
}

TEST_F(Controls, field_takes_another_key_or_says_why_there_is_none) {
    auto& field = panel_->Field;
    field.OnKeyPress = [](char32_t key) { return key >= U'0' && key <= U'9'; };
    field.OnRefused = [](char32_t key) {
        return key == U',' ? ui::TextBox::Instead{U'.', {}} : ui::TextBox::Instead{0, "digits only"};
    };
    EXPECT_EQ(field.PersonTypes(U','), U'.');
    EXPECT_FALSE(field.PersonPresses(U',')) << "the key itself is not taken";
    EXPECT_EQ(field.PersonTypes(U'x'), std::nullopt);
    EXPECT_EQ(field.Refusal(), "digits only");
    EXPECT_EQ(field.PersonTypes(U'1'), U'1');
    EXPECT_EQ(field.Refusal(), "") << "gone with the next key";
}

TEST_F(Controls, field_knows_its_text_without_what_is_selected) {
    auto& field = panel_->Field;
    field.SetText("1\xC2\xB0.5");
    field.NoteSelection(1, 2);
    EXPECT_EQ(field.Unselected(), "15");
    field.NoteSelection(4, 0);
    EXPECT_EQ(field.Unselected(), field.Text());
}

TEST_F(Controls, list_view_counts_rows_from_one_and_renumbers_them) {
    panel_->List.AddRows({{"1  ", "FT-201"}, {"2  ", "FT-202"}, {"3  ", "FT-203"}});
    panel_->List.SelectRow(2);
    panel_->List.RemoveRows(2, 1);
    panel_->List.Renumber();
    EXPECT_EQ(panel_->List.Count(), 2);
    EXPECT_EQ(panel_->List.Cell(2, 0), "2");
    EXPECT_EQ(panel_->List.Cell(2, 1), "FT-203");
    EXPECT_EQ(panel_->List.Cell(2, 7), "");
    EXPECT_EQ(panel_->List.SelectedRow(), 0);
    int clicked = 0;
    panel_->List.OnRowClick = [&clicked](int row) { clicked = row; };
    EXPECT_FALSE(panel_->List.PersonClicksRow(3));
    EXPECT_TRUE(panel_->List.PersonClicksRow(1));
    EXPECT_EQ(clicked, 1);
    panel_->List.RemoveRows(2, 9);
    EXPECT_EQ(panel_->List.Count(), 1);
}

TEST_F(Controls, list_view_keeps_its_selection_when_rows_above_it_go) {
    panel_->List.AddRows({{"1"}, {"2"}, {"3"}, {"4"}});
    panel_->List.SelectRow(4);
    panel_->List.RemoveRows(1, 2);
    EXPECT_EQ(panel_->List.SelectedRow(), 2);
    EXPECT_EQ(panel_->List.Cell(2, 0), "4");
    panel_->List.RemoveRows(2, 1);
    EXPECT_EQ(panel_->List.SelectedRow(), 0);
}

TEST_F(Controls, tree_counts_nodes_in_order_of_addition_and_knows_their_paths) {
    auto& tree = panel_->Branches;
    const int root = tree.Add(0, "Stations", "All Stations");
    const int north = tree.Add(root, "North", "North");
    const int south = tree.Add(root, "South", "South");
    EXPECT_EQ(south, 3);
    EXPECT_EQ(tree.FullPath(north), "All Stations\\North");
    EXPECT_EQ(tree.FindPath("All Stations\\South"), south);
    EXPECT_EQ(tree.FindPath("South"), 0);
    EXPECT_EQ(tree.FindKey("North"), north);
    int clicked = 0;
    tree.OnNodeClick = [&clicked](int node) { clicked = node; };
    tree.Select(south);
    EXPECT_EQ(clicked, 0) << "a selection by program runs no event";
    tree.PersonClicks(north);
    EXPECT_EQ(clicked, north);
    tree.EnsureVisible(north);
    EXPECT_TRUE(tree.At(root).Expanded);
    tree.Clear();
    EXPECT_EQ(tree.SelectedNode(), 0);
}

TEST_F(Controls, entry_of_a_disabled_menu_cannot_be_chosen) {
    int clicks = 0;
    panel_->Entry.OnClick = [&clicks] { ++clicks; };
    EXPECT_TRUE(panel_->Entry.PersonClicks());
    panel_->Menu.SetEnabled(false);
    EXPECT_FALSE(panel_->Entry.PersonClicks());
    EXPECT_EQ(clicks, 1);
}

TEST_F(Controls, timer_ticks_only_while_it_is_enabled) {
    int ticks = 0;
    panel_->Clock.OnTimer = [&ticks] { ++ticks; };
    panel_->Clock.Tick();
    EXPECT_EQ(ticks, 0);
    panel_->Clock.SetEnabled(true);
    panel_->Clock.Tick();
    EXPECT_EQ(ticks, 1);
}

TEST_F(Controls, array_items_bear_their_index) {
    EXPECT_EQ(panel_->Runs[2].Name(), "Runs_2");
    EXPECT_EQ(panel_->Runs[2].Caption(), "Run 3");
    EXPECT_EQ(panel_->Find("Runs_1"), &panel_->Runs[1]);
    EXPECT_EQ(panel_->Find("Runs_3"), nullptr);
}
