#include "TagRunsWorld.h"

using namespace gfc;
using namespace gfc::test;
using forms::TagRuns;
using enum binding::BindingStage;
namespace algorithm = config::algorithm;
namespace source = config::source;

namespace {

constexpr auto SaysAlreadyAssigned = "I/O tag already assigned";
constexpr auto SaysUndoAllFirst = "In order to use the auto assign function, no tags should be already "
                                  "assigned. Please use Undo All first.";

} // namespace

TEST(TagRunsAssign, on_the_root_or_on_nothing_does_nothing_and_says_nothing) {
    TagRunsWorld world;
    world.TheStory.Click("TagRuns", "Command1").Click("TagRuns", "Command4");
    world.TheStory.ClickNode("TagRuns", "TreeAGA", "AGA 3 Inputs")
        .Click("TagRuns", "Command1")
        .Click("TagRuns", "Command4");
    world.SeeRows("ListViewRuns", 40);
    world.SeeUnbound(0);
    world.LeaveByCancel();
    world.Show(RunInputs);
    EXPECT_EQ(world.Screen.BoxesShown.size(), 1U);
}

TEST(TagRunsAssign, takes_the_clicked_row_out_of_the_list_and_renumbers_it) {
    TagRunsWorld world;
    world.TheStory.ClickRow("TagRuns", "ListViewRuns", 3);
    world.Assign(0);
    world.SeeBound(0, "F3 FX 1003");
    world.SeeRows("ListViewRuns", 39);
    world.SeeRow("ListViewRuns", 2, {"2", "F2", "FX", "1002"});
    world.SeeRow("ListViewRuns", 3, {"3", "F4", "FX", "1004"});
    // Another list keeps the numbers that it was filled with.
    world.SeeRow("ListAnalogDig", 1, {" 1  ", "D1", "X", "4001"});
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsAssign, walks_down_the_list_from_the_clicked_row) {
    TagRunsWorld world;
    world.TheStory.ClickRow("TagRuns", "ListViewRuns", 5);
    world.Assign(0);
    world.SeeSelectedRow("ListViewRuns", 5);
    world.Assign(1);
    world.Assign(2);
    world.SeeBound(0, "F5 FX 1005");
    world.SeeBound(1, "F6 FX 1006");
    world.SeeBound(2, "F7 FX 1007");
    world.LeaveByCancel();
    world.Show(RunInputs);
}

// The row that the next Assign would take is the one that is shown, also where it has come back meanwhile.
TEST(TagRunsAssign, shows_the_row_that_it_takes_next) {
    TagRunsWorld world;
    world.TheStory.ClickRow("TagRuns", "ListViewRuns", 40);
    world.Assign(0);
    world.SeeSelectedRow("ListViewRuns", 0);
    world.TheStory.Click("TagRuns", "Command4");
    world.SeeSelectedRow("ListViewRuns", 40);
    world.Assign(1);
    world.SeeBound(1, "F40 FX 1040");
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsAssign, takes_the_first_row_where_none_was_clicked) {
    TagRunsWorld world;
    world.SeeSelectedRow("ListViewRuns", 1);
    world.Assign(1);
    world.SeeBound(1, "F1 FX 1001");
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsAssign, serves_a_variable_through_any_of_its_nodes) {
    for (int child = 0; child < 7; ++child) {
        TagRunsWorld world;
        world.Pick(1, child);
        world.TheStory.Click("TagRuns", "Command1");
        world.SeeBound(1, "F1 FX 1001");
        world.SeeUnbound(0);
        world.SeeUnbound(2);
        world.LeaveByCancel();
        world.Show(RunInputs);
    }
}

TEST(TagRunsAssign, on_any_node_of_a_bound_variable_says_so) {
    TagRunsWorld world;
    world.Station.Runs.IO[0].GasTemp = TagRunsWorld::Bound("TT-1", "FX", "77");
    for (const int child : {0, 1, 4, 6}) {
        world.Pick(0, child);
        world.TheStory.Click("TagRuns", "Command1")
            .Box("Tags Configuration", SaysAlreadyAssigned, ui::Icon::Information);
    }
    world.SeeBound(0, "TT-1 FX 77");
    world.SeeRows("ListViewRuns", 40);
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsAssign, draws_longs_and_digitals_from_lists_of_their_own) {
    TagRunsWorld world(algorithm::AGA7, source::AGA8);
    world.TheStory.ClickRow("TagRuns", "ListLong", 2).ClickRow("TagRuns", "ListAnalogDig", 4);
    world.Assign(2);
    world.Assign(3);
    world.Assign(5);
    world.SeeBound(2, "L2 LX 2002");
    world.SeeBound(3, "D4 X 4004");
    world.SeeBound(5, "D5 X 4005");
    world.SeeRows("ListLong", 4);
    world.SeeRows("ListAnalogDig", 10);
    world.SeeRows("ListViewRuns", 40);
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsAssign, draws_the_status_from_the_analogs) {
    TagRunsWorld world;
    world.Assign(4);
    world.SeeBound(4, "A1 AX 3001");
    world.LeaveByCancel();
    world.Show(RunOutputs);
}

TEST(TagRunsAssign, past_the_end_of_the_list_is_silently_refused) {
    TagRunsWorld world;
    world.Offer(2, 0, 0, 0);
    world.TheStory.ClickRow("TagRuns", "ListViewRuns", 2);
    world.Assign(0);
    world.Assign(1);
    world.SeeBound(0, "F2 FX 1002");
    world.SeeUnbound(1);
    world.Assign(3);
    world.SeeUnbound(3);
    world.SeeRows("ListViewRuns", 1);
    world.LeaveByCancel();
    world.Show(RunInputs);
}

// Deliberate: the count is two floats short of the tree there.
TEST(TagRunsAssign, draws_from_the_wrong_list_for_an_Accelabar_run_with_a_left_over_option) {
    TagRunsWorld world(algorithm::Accelabar, source::AGA8);
    world.Station.Runs.Mechanical[0].ExtMechParam = config::Yes;
    world.TheStory.Check([&world](Driver&) {
        EXPECT_EQ(world.TheForm().TreeAGA.At(binding::node::Variable(3)).Text, "Pipe diameter");
    });
    world.Assign(3);
    world.SeeBound(3, "D1 X 4001");
    // Six of the eight are enough to go on.
    for (const int position : {0, 1, 2, 4, 5})
        world.Assign(position);
    world.TheStory.Click("TagRuns", "Command5");
    world.Show(RunInputs);
    EXPECT_EQ(world.Station.Runs.IO[0].PipeDia.Tag, "D1");
    EXPECT_FALSE(world.Station.Runs.IO[0].ResetTotals.IsMade());
}

TEST(TagRunsUndo, of_an_unbound_variable_says_so) {
    TagRunsWorld world;
    world.Pick(0);
    world.TheStory.Click("TagRuns", "Command4")
        .Box("Error undo Tag", "Can´t undo. No I/O assignments has been made for this variable",
             ui::Icon::Exclamation);
    world.SeeRows("ListViewRuns", 40);
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsUndo, puts_the_tag_back_as_the_last_row) {
    TagRunsWorld world;
    world.TheStory.ClickRow("TagRuns", "ListViewRuns", 3);
    world.Assign(0);
    world.Pick(0, 6);
    world.TheStory.Click("TagRuns", "Command4");
    world.SeeUnbound(0);
    world.SeeRows("ListViewRuns", 40);
    world.SeeRow("ListViewRuns", 3, {"3", "F4", "FX", "1004"});
    world.SeeRow("ListViewRuns", 40, {"40", "F3", "FX", "1003"});
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsUndo, adds_no_second_row_for_a_tag_that_is_in_the_list_by_address_and_type) {
    TagRunsWorld world;
    world.Station.Runs.IO[0].GasTemp = TagRunsWorld::Bound("another name", "FX", "1007");
    world.Station.Runs.IO[0].GasPress = TagRunsWorld::Bound("another type", "FY", "1008");
    world.Pick(0);
    world.TheStory.Click("TagRuns", "Command4");
    world.SeeUnbound(0);
    world.SeeRows("ListViewRuns", 40);
    world.SeeRow("ListViewRuns", 7, {"7", "F7", "FX", "1007"});
    world.Pick(1);
    world.TheStory.Click("TagRuns", "Command4");
    world.SeeRows("ListViewRuns", 41);
    world.SeeRow("ListViewRuns", 41, {"41", "another type", "FY", "1008"});
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsUndo, returns_longs_and_digitals_to_their_lists) {
    TagRunsWorld world(algorithm::AGA7, source::AGA8);
    for (const int position : {2, 4}) {
        world.Assign(position);
        world.TheStory.Click("TagRuns", "Command4");
        world.SeeUnbound(position);
    }
    world.SeeRow("ListLong", 5, {"5", "L1", "LX", "2001"});
    world.SeeRow("ListAnalogDig", 12, {"12", "D1", "X", "4001"});
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsUndoAll, in_the_wizard_shows_five_assigned_variables_unbound_again) {
    for (const bool byMenu : {false, true}) {
        TagRunsWorld world;
        world.TheStory.ClickRow("TagRuns", "ListViewRuns", 4).Type("TagRuns", "Text1", "2");
        for (int position = 0; position < 5; ++position)
            world.Assign(position);
        if (byMenu)
            world.TheStory.Menu("TagRuns", "borrartodo");
        else
            world.TheStory.Click("TagRuns", "Command3");
        for (int position = 0; position < 6; ++position)
            world.SeeUnbound(position);
        world.SeeRows("ListViewRuns", 40);
        world.SeeRow("ListViewRuns", 4, {" 4  ", "F4", "FX", "1004"});
        world.SeeRow("ListAnalogDig", 1, {" 1  ", "D1", "X", "4001"});
        world.SeeSelectedRow("ListViewRuns", 1);
        world.SeeSelectedRow("ListAnalogDig", 1);
        world.TheStory.SeeText("TagRuns", "Text1", "1.0");
        // The rows count from 1 again.
        world.Assign(0);
        world.SeeBound(0, "F1 FX 1001");
        world.LeaveByCancel();
        world.Show(RunInputs);
    }
}

TEST(TagRunsUndoAll, in_the_wizard_returns_to_the_bindings_and_fields_of_the_opening) {
    TagRunsWorld world(algorithm::AGA7, source::Measured);
    auto& io = world.Station.Runs.IO[0];
    io.GasDensity = TagRunsWorld::Bound("DT-1", "FX", "77");
    io.GasDensityStandard = "0.7";
    io.meterKFactor = "57";
    io.ContractHour = "6";
    io.ContractMin = "15";
    world.Pick(0);
    world.TheStory.Click("TagRuns", "Command4")
        .Type("TagRuns", "phostd", "3")
        .Type("TagRuns", "kfactor", "4")
        .Select("TagRuns", "ListHour", 1)
        .Click("TagRuns", "OptionGMT")
        .Click("TagRuns", "Command3");
    world.SeeBound(0, "DT-1 FX 77");
    world.SeeRows("ListViewRuns", 40);
    world.SeeSelectedRow("ListLong", 1);
    world.TheStory.SeeText("TagRuns", "phostd", "0.7")
        .SeeText("TagRuns", "kfactor", "57")
        .SeeText("TagRuns", "ListHour", "6")
        .SeeChecked("TagRuns", "OptionLocal");
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsUndoAll, keeps_the_picked_variable) {
    TagRunsWorld world;
    world.Pick(1);
    world.TheStory.Click("TagRuns", "Command3").Click("TagRuns", "Command1");
    world.SeeBound(1, "F1 FX 1001");
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsUndoAll, in_the_modify_flow_gives_back_one_by_one_what_the_stage_opened_with) {
    TagRunsWorld world(algorithm::AGA7, source::AGA8);
    world.Session.EditMode = forms::EditMode::ModifyTags;
    world.BindRecords(RunInputs, 0, "old", 501);
    world.TheStory.Type("TagRuns", "Text1", "2").Click("TagRuns", "Command3");
    for (int position = 0; position < 6; ++position)
        world.SeeUnbound(position);
    world.SeeRow("ListViewRuns", 41, {"41", "old0", "FX", "501"});
    world.SeeRow("ListViewRuns", 42, {"42", "old1", "FX", "502"});
    world.SeeRow("ListLong", 6, {"6", "old2", "FX", "503"});
    world.SeeRow("ListAnalogDig", 13, {"13", "old3", "FX", "504"});
    world.SeeRow("ListAnalogDig", 15, {"15", "old5", "FX", "506"});
    world.SeeRow("ListViewRuns", 1, {"1", "F1"});
    world.SeeSelectedRow("ListViewRuns", 1);
    world.SeeSelectedRow("ListLong", 1);
    world.SeeSelectedRow("ListAnalogDig", 1);
    // The fields are no part of it there.
    world.TheStory.SeeText("TagRuns", "Text1", "2");
    world.LeaveByCancel();
    world.Show(RunInputs);
    EXPECT_EQ(world.Station.Runs.IO[0].GasTemp.Tag, "old0");
}

// Deliberate: nothing asks there whether a variable is bound.
TEST(TagRunsUndoAll, in_the_modify_flow_adds_one_row_per_list_for_all_unbound_variables) {
    TagRunsWorld world;
    world.Session.EditMode = forms::EditMode::ModifyTags;
    world.TheStory.Click("TagRuns", "Command3");
    world.SeeRows("ListViewRuns", 41);
    world.SeeRow("ListViewRuns", 41, {"41", "Not Configured", "Not Configured", "Not Configured"});
    world.SeeRows("ListAnalogDig", 13);
    world.SeeRows("ListLong", 5);
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsUndoAll, outside_the_flows_reloads_as_in_the_wizard) {
    for (const auto mode : {forms::EditMode::None, forms::EditMode::Configurator}) {
        TagRunsWorld world;
        world.Session.EditMode = mode;
        world.Station.Runs.IO[0].GasTemp = TagRunsWorld::Bound("TT-1", "FX", "77");
        world.TheStory.Click("TagRuns", "Command3");
        world.SeeBound(0, "TT-1 FX 77");
        world.SeeRows("ListViewRuns", 40);
        world.LeaveByCancel();
        world.Show(RunInputs);
    }
}

TEST(TagRunsAutoAssign, fills_the_tree_from_top_to_bottom_and_takes_the_rows_away) {
    for (const bool byMenu : {false, true}) {
        TagRunsWorld world(algorithm::AGA7, source::AGA8);
        if (byMenu)
            world.TheStory.Menu("TagRuns", "AutoAsociar")
                .Box("Automatic Tags assignments", "All variables will be assigned to tags automatically",
                     ui::Icon::Information);
        else
            world.AutoAssign();
        const char* const bound[] = {"F1 FX 1001", "F2 FX 1002", "L1 LX 2001",
                                     "D1 X 4001",  "D2 X 4002",  "D3 X 4003"};
        for (int position = 0; position < 6; ++position)
            world.SeeBound(position, bound[position]);
        world.SeeRows("ListViewRuns", 38);
        world.SeeRow("ListViewRuns", 1, {"1", "F3", "FX", "1003"});
        world.SeeRow("ListLong", 1, {"1", "L2", "LX", "2002"});
        world.SeeRow("ListAnalogDig", 1, {"1", "D4", "X", "4004"});
        world.LeaveByCancel();
        world.Show(RunInputs);
    }
}

TEST(TagRunsAutoAssign, starts_at_the_clicked_rows_and_returns_to_the_first) {
    TagRunsWorld world;
    world.TheStory.ClickRow("TagRuns", "ListViewRuns", 7).ClickRow("TagRuns", "ListAnalogDig", 10);
    world.AutoAssign();
    world.SeeBound(0, "F7 FX 1007");
    world.SeeBound(2, "F9 FX 1009");
    world.SeeBound(5, "D12 X 4012");
    world.SeeRow("ListViewRuns", 7, {"7", "F10", "FX", "1010"});
    world.SeeRows("ListAnalogDig", 9);
    world.SeeSelectedRow("ListViewRuns", 1);
    world.SeeSelectedRow("ListLong", 1);
    world.SeeSelectedRow("ListAnalogDig", 1);
    world.Pick(0);
    world.TheStory.Click("TagRuns", "Command4").Click("TagRuns", "Command1");
    world.SeeBound(0, "F1 FX 1001");
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsAutoAssign, with_exactly_as_many_rows_as_needed_empties_the_lists) {
    TagRunsWorld world(algorithm::AGA7, source::AGA8);
    world.Offer(2, 1, 0, 3);
    world.AutoAssign();
    for (const char* list : {"ListViewRuns", "ListLong", "ListAnalogDig"})
        world.SeeRows(list, 0);
    world.SeeBound(5, "D3 X 4003");
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsAutoAssign, counts_rows_below_the_clicked_one_only) {
    TagRunsWorld world;
    world.Offer(22, 0, 0, 12);
    world.TheStory.ClickRow("TagRuns", "ListViewRuns", 3).ClickRow("TagRuns", "ListAnalogDig", 2);
    world.AutoAssign();
    world.TheStory.Box(
        "Tag Auto-assignments...",
        "There must be at least:\r\n21 consecutive float    tags\r\n1 consecutive discrete tags\r\n",
        ui::Icon::Exclamation);
    for (int position = 0; position < 22; ++position)
        world.SeeUnbound(position);
    world.SeeRows("ListViewRuns", 22);
    world.SeeSelectedRow("ListViewRuns", 1);
    world.SeeSelectedRow("ListAnalogDig", 1);
    // The click is lost: the next attempt starts at row 1 and succeeds.
    world.AutoAssign();
    world.SeeBound(0, "F1 FX 1001");
    world.SeeBound(20, "F21 FX 1021");
    world.SeeBound(21, "D1 X 4001");
    world.LeaveByCancel();
    world.Show(GasInputs);
}

TEST(TagRunsAutoAssign, refuses_where_one_variable_is_bound) {
    TagRunsWorld world;
    world.TheStory.ClickRow("TagRuns", "ListViewRuns", 9);
    world.Assign(0);
    world.AutoAssign();
    world.TheStory.Box("Tags configuration", SaysUndoAllFirst, ui::Icon::Information);
    world.SeeBound(0, "F9 FX 1009");
    world.SeeUnbound(1);
    world.SeeSelectedRow("ListViewRuns", 1);
    world.Assign(1);
    world.SeeBound(1, "F1 FX 1001");
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsAutoAssign, is_not_held_up_by_an_empty_list_that_is_not_needed) {
    TagRunsWorld world;
    world.Offer(7, 0, 1, 0);
    world.AutoAssign();
    world.SeeBound(6, "F7 FX 1007");
    world.SeeBound(7, "A1 AX 3001");
    world.LeaveByCancel();
    world.Show(GasOutputs);
}

TEST(TagRunsAutoAssign, without_a_long_tag_refuses_an_AGA7_run) {
    TagRunsWorld world(algorithm::AGA7, source::Measured);
    world.Offer(10, 0, 10, 10);
    world.AutoAssign();
    world.TheStory.Box(
        "Tag Auto-assignments...",
        "There must be at least:\r\n1 consecutive float    tags\r\n3 consecutive discrete tags\r\n"
        "1 consecutive long     tags\r\n",
        ui::Icon::Exclamation);
    world.SeeUnbound(0);
    world.SeeRows("ListViewRuns", 10);
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsAutoAssign, can_be_undone_in_the_wizard_with_all_rows_in_their_order) {
    TagRunsWorld world;
    world.AutoAssign();
    world.TheStory.Click("TagRuns", "Command3");
    world.SeeUnbound(0);
    for (const int row : {1, 2, 40})
        world.SeeRow(
            "ListViewRuns", row,
            {" " + std::to_string(row) + "  ", "F" + std::to_string(row), "FX", std::to_string(1000 + row)});
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsAutoAssign, goes_through_a_station_of_fifty_thousand_tags) {
    TagRunsWorld world;
    world.Offer(50000, 50000, 50000, 50000);
    world.TheStory.ClickRow("TagRuns", "ListViewRuns", 49970);
    world.AutoAssign();
    world.SeeBound(0, "F49970 FX 50970");
    world.SeeRows("ListViewRuns", 50000 - 21);
    world.SeeRow("ListViewRuns", 50000 - 21, {"49979", "F50000"});
    world.TheStory.Click("TagRuns", "Command5");
    world.Show(GasInputs);
    EXPECT_EQ(world.Session.Inventory.AvailFloat.size(), 50000U - 21);
}
