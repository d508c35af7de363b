#include "TagRunsWorld.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/station/GiveBack.h"
#include "forms/station/Step.h"
#include "forms/wizard/SelectRuns.h"
#include "forms/wizard/WizardFC.h"

using namespace gfc;
using namespace gfc::test;
using forms::TagRuns;
using enum binding::BindingStage;
using config::GasSlot;
namespace algorithm = config::algorithm;
namespace source = config::source;

namespace {

constexpr auto AsksToDiscard =
    "Are you sure you want to discard the changes made to the current configuration?";
constexpr auto SaysNoSource =
    "Error: Can't copy tag assignments, no source Run selected. Please select a Run to copy from.";
constexpr auto SaysUndoAllFirst = "In order to use the auto assign function, no tags should be already "
                                  "assigned. Please use Undo All first.";

std::vector<std::string> Names(const project::TagList& tags) {
    std::vector<std::string> names;
    for (const auto& tag : tags)
        names.push_back(tag.TagName);
    return names;
}

} // namespace

TEST(TagRunsContinue, refuses_an_incomplete_stage_with_an_accent_of_its_own) {
    const std::pair<binding::BindingStage, std::string> refusals[] = {
        {RunInputs, "Can`t save. Please complete I/O assignments"},
        {RunOutputs, "Can`t save. Please complete I/O assignments"},
        {GasOutputs, "Can´t save. Please complete I/O assignments"},
        {GasInputs, "Can´t save. Please complete I/O assignments"},
        {CommonInputs, "Can´t save. Please complete I/O assignments"}};
    for (const auto& [stage, text] : refusals) {
        TagRunsWorld world;
        world.RefuseIncomplete(text);
        world.TheStory.SeeShown("TagRuns");
        world.LeaveByCancel();
        world.Show(stage);
    }
}

TEST(TagRunsContinue, refuses_a_stage_with_one_variable_missing) {
    TagRunsWorld world;
    world.AutoAssign();
    world.Pick(3);
    world.TheStory.Click("TagRuns", "Command4");
    world.RefuseIncomplete("Can`t save. Please complete I/O assignments");
    world.LeaveByCancel();
    world.Show(RunInputs);
    EXPECT_EQ(world.Station.Runs.IO[0], config::RunIO{});
}

TEST(TagRunsContinue, asks_for_the_standard_density_before_anything_else) {
    TagRunsWorld world(algorithm::AGA3, source::Measured);
    const auto refuse = [&world] {
        world.TheStory.Click("TagRuns", "Command5")
            .Box("Missing parameter...",
                 "Error: No gas standard density has been configured. Please enter a value.",
                 ui::Icon::Exclamation);
    };
    refuse();
    world.AutoAssign();
    refuse();
    world.TheStory.Check([&world](Driver&) { EXPECT_EQ(world.Station.Runs.IO[0], config::RunIO{}); })
        .Type("TagRuns", "phostd", "0.71")
        .Click("TagRuns", "Command5");
    world.Show(RunInputs);
    EXPECT_EQ(world.Station.Runs.IO[0].GasDensityStandard, "0.71");
    EXPECT_EQ(world.Station.Runs.IO[0].GasDensity, TagRunsWorld::Bound("F1", "FX", "1001"));
}

TEST(TagRunsContinue, stores_bindings_and_fields_and_closes) {
    TagRunsWorld world(algorithm::AGA7, source::AGA8);
    world.AutoAssign();
    world.TheStory.Type("TagRuns", "Text1", "1.05")
        .Type("TagRuns", "kfactor", "57.2")
        .Click("TagRuns", "Command5")
        .SeeShown("TagRuns", false);
    world.Show(RunInputs, 1, 3);
    world.Screen.PlayOut();
    const auto& io = world.Station.Runs.IO[1];
    EXPECT_EQ(io.GasTemp, TagRunsWorld::Bound("F1", "FX", "1001"));
    EXPECT_EQ(io.GasPress, TagRunsWorld::Bound("F2", "FX", "1002"));
    EXPECT_EQ(io.GasPulseInput, TagRunsWorld::Bound("L1", "LX", "2001"));
    EXPECT_EQ(io.GFCRunHold, TagRunsWorld::Bound("D1", "X", "4001"));
    EXPECT_EQ(io.GFCTotalizeHold, TagRunsWorld::Bound("D2", "X", "4002"));
    EXPECT_EQ(io.ResetTotals, TagRunsWorld::Bound("D3", "X", "4003"));
    EXPECT_EQ(io.CalibrationFactor, "1.05");
    EXPECT_EQ(io.meterKFactor, "57.2");
    EXPECT_EQ(io.GasDensityStandard, "");
    EXPECT_FALSE(io.GasDP.IsMade());
    EXPECT_EQ(world.Station.Runs.IO[0], config::RunIO{});
    EXPECT_FALSE(world.Session.Cancelled);
    EXPECT_FALSE(world.Program.Forms.IsLoaded<TagRuns>());
}

TEST(TagRunsContinue, lets_the_factors_stay_empty) {
    TagRunsWorld world(algorithm::AGA7, source::AGA8);
    world.AutoAssign();
    world.TheStory.Type("TagRuns", "Text1", "").Type("TagRuns", "kfactor", "").Click("TagRuns", "Command5");
    world.Show(RunInputs);
    EXPECT_EQ(world.Station.Runs.IO[0].CalibrationFactor, "");
    EXPECT_EQ(world.Station.Runs.IO[0].meterKFactor, "");
}

TEST(TagRunsContinue, leaves_fields_alone_that_the_choices_do_not_have) {
    TagRunsWorld world;
    world.Station.Runs.IO[0].meterKFactor = "57";
    world.Station.Runs.IO[0].GasDensityStandard = "0.7";
    world.AutoAssign();
    world.TheStory.Click("TagRuns", "Command5");
    world.Show(RunInputs);
    EXPECT_EQ(world.Station.Runs.IO[0].meterKFactor, "57");
    EXPECT_EQ(world.Station.Runs.IO[0].GasDensityStandard, "0.7");
}

TEST(TagRunsContinue, stores_local_time_as_GMT_without_leading_zeros) {
    TagRunsWorld world;
    world.TimeZone.Current = -120;
    world.AutoAssign();
    world.TheStory.Select("TagRuns", "ListHour", 9)
        .Select("TagRuns", "ListMinx10", 0)
        .Select("TagRuns", "ListMinx1", 5)
        .Click("TagRuns", "Command5");
    world.Show(RunInputs);
    EXPECT_EQ(world.Station.Runs.IO[0].ContractHour, "7");
    EXPECT_EQ(world.Station.Runs.IO[0].ContractMin, "5");
}

TEST(TagRunsContinue, stores_GMT_as_entered_and_shows_it_as_local_time_afterwards) {
    TagRunsWorld world;
    world.TimeZone.Current = -120;
    world.AutoAssign();
    world.TheStory.Click("TagRuns", "OptionGMT")
        .Select("TagRuns", "ListHour", 20)
        .Select("TagRuns", "ListMinx10", 3)
        .Select("TagRuns", "ListMinx1", 0)
        .Click("TagRuns", "Command5");
    world.Show(RunInputs);
    EXPECT_EQ(world.Station.Runs.IO[0].ContractHour, "20");
    EXPECT_EQ(world.Station.Runs.IO[0].ContractMin, "30");
    world.TheStory.SeeText("TagRuns", "ListHour", "22").SeeChecked("TagRuns", "OptionLocal");
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsContinue, stores_the_common_pressure_in_the_station) {
    TagRunsWorld world;
    world.TheStory.ClickRow("TagRuns", "ListViewRuns", 2);
    world.Assign(0);
    world.TheStory.Click("TagRuns", "Command5");
    world.Show(CommonInputs, 1, 0);
    EXPECT_EQ(world.Station.CommonPa, TagRunsWorld::Bound("F2", "FX", "1002"));
    EXPECT_EQ(world.Session.Inventory.AvailFloat.size(), 39U);
    EXPECT_EQ(world.Session.Inventory.AvailDigital.size(), 12U);
    EXPECT_EQ(world.Station.Runs.IO[1], config::RunIO{});
}

TEST(TagRunsContinue, binds_every_variable_of_every_stage_under_every_choice) {
    for (const auto& standard : config::FlowAlgorithms)
        for (const auto& density : config::GasDensitySources) {
            TagRunsWorld world(standard.Stored, density.Stored);
            world.Station.Runs.IO[0].GasDensityStandard = "0.7";
            for (const auto stage : {CommonInputs, RunInputs, RunOutputs, GasInputs, GasOutputs}) {
                const auto count = binding::VariablesOf(stage, world.Station, 0).size();
                if (count == 0)
                    continue;
                if (stage == CommonInputs)
                    world.Assign(0);
                else
                    world.AutoAssign();
                world.TheStory.Click("TagRuns", "Command5");
                world.Show(stage);
                for (const auto& variable : binding::VariablesOf(stage, world.Station, 0)) {
                    EXPECT_TRUE(variable.Binding->IsMade()) << standard.Stored << variable.Caption();
                    EXPECT_EQ(binding::ClassOf(variable.Binding->Type), variable.Class());
                }
            }
        }
}

TEST(TagRunsPools, offer_a_used_float_no_more_but_a_used_long_again) {
    TagRunsWorld world(algorithm::AGA7, source::AGA8);
    world.AutoAssign();
    world.TheStory.Click("TagRuns", "Command5");
    world.Show(RunInputs);
    world.SeeRow("ListViewRuns", 1, {" 1  ", "F3", "FX", "1003"});
    world.SeeRow("ListLong", 1, {" 1  ", "L1", "LX", "2001"});
    world.SeeRow("ListAnalogDig", 1, {" 1  ", "D4", "X", "4004"});
    world.LeaveByCancel();
    world.Show(RunInputs, 1, 3);
    EXPECT_EQ(world.Session.Inventory.AvailLong.size(), 5U);
}

TEST(TagRunsPools, keep_address_and_type_of_what_is_left) {
    TagRunsWorld world;
    world.AutoAssign();
    world.TheStory.Click("TagRuns", "Command5");
    world.Show(RunInputs);
    const auto& first = world.Session.Inventory.AvailFloat.front();
    EXPECT_EQ(first.TagName, "F4");
    EXPECT_EQ(first.RegType, "FX");
    EXPECT_EQ(first.RegAddr, 1004);
    EXPECT_EQ(world.Session.Inventory.AvailAnalog.size(), 6U);
}

TEST(TagRunsPools, of_analogs_shrink_after_outputs_and_digitals_do_not) {
    TagRunsWorld world;
    world.AutoAssign();
    world.TheStory.Click("TagRuns", "Command5");
    world.Show(GasOutputs);
    EXPECT_EQ(Names(world.Session.Inventory.AvailAnalog),
              (std::vector<std::string>{"A2", "A3", "A4", "A5", "A6"}));
    EXPECT_EQ(world.Session.Inventory.AvailDigital.size(), 12U);
}

// Deliberate: an empty list leaves its pool as it was.
TEST(TagRunsPools, of_floats_and_digitals_used_up_offer_the_used_tags_again) {
    TagRunsWorld world;
    world.Offer(3, 0, 1, 3);
    world.AutoAssign();
    world.TheStory.Click("TagRuns", "Command5");
    world.Show(RunInputs);
    EXPECT_EQ(Names(world.Session.Inventory.AvailFloat), (std::vector<std::string>{"F1", "F2", "F3"}));
    EXPECT_EQ(Names(world.Session.Inventory.AvailDigital), (std::vector<std::string>{"D1", "D2", "D3"}));
    world.SeeRows("ListViewRuns", 3);
    world.LeaveByCancel();
    world.Show(RunOutputs);
}

TEST(TagRunsPools, of_analogs_used_up_are_empty) {
    TagRunsWorld world;
    world.Offer(10, 0, 1, 0);
    world.AutoAssign();
    world.TheStory.Click("TagRuns", "Command5");
    world.Show(RunOutputs);
    EXPECT_TRUE(world.Session.Inventory.AvailAnalog.empty());
    EXPECT_EQ(world.Session.Inventory.AvailFloat.size(), 6U);
}

TEST(TagRunsCancel, answered_No_leaves_everything_as_it_was) {
    TagRunsWorld world;
    world.Assign(0);
    world.TheStory.Click("TagRuns", "Command2")
        .Box("Gas Flow Computer", AsksToDiscard, ui::Icon::Question, ui::Answer::No);
    world.SeeBound(0, "F1 FX 1001");
    world.SeeRows("ListViewRuns", 39);
    world.TheStory.Check([&world](Driver&) { EXPECT_FALSE(world.Session.Cancelled); })
        .Menu("TagRuns", "salirform")
        .Box("Gas Flow Computer", AsksToDiscard, ui::Icon::Question, ui::Answer::Yes);
    world.Show(RunInputs);
    EXPECT_TRUE(world.Session.Cancelled);
    EXPECT_EQ(world.Station.Runs.IO[0], config::RunIO{});
    EXPECT_EQ(world.Session.Inventory.AvailFloat.size(), 40U);
}

TEST(TagRunsCancel, does_not_happen_by_closing_the_window_or_by_escape) {
    TagRunsWorld world;
    world.TheStory.CloseWindow("TagRuns").PressKey("TagRuns", "Escape").SeeShown("TagRuns");
    world.LeaveByCancel();
    world.Show(RunInputs);
}

TEST(TagRunsCancel, closes_the_announcement_too_in_the_wizard_and_the_configurator) {
    for (const auto mode : {forms::EditMode::Wizard, forms::EditMode::Configurator}) {
        TagRunsWorld world;
        world.Session.EditMode = mode;
        (void)world.Program.Forms.Touch<forms::Step>();
        world.LeaveByCancel();
        world.Show(RunInputs);
        EXPECT_TRUE(world.Session.Cancelled);
        EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::Step>());
        EXPECT_FALSE(world.Program.Forms.IsLoaded<TagRuns>());
    }
}

TEST(TagRunsCancel, elsewhere_closes_the_form_alone) {
    for (const auto mode : {forms::EditMode::ModifyTags, forms::EditMode::None}) {
        TagRunsWorld world;
        world.Session.EditMode = mode;
        (void)world.Program.Forms.Touch<forms::Step>();
        world.LeaveByCancel();
        world.Show(RunInputs);
        EXPECT_TRUE(world.Session.Cancelled);
        EXPECT_TRUE(world.Program.Forms.IsLoaded<forms::Step>());
        EXPECT_FALSE(world.Program.Forms.IsLoaded<TagRuns>());
    }
}

TEST(TagRunsCopy, without_a_chosen_run_says_so_and_leaves_the_tree) {
    TagRunsWorld world;
    world.BindRecords(GasInputs, 1, "gas", 701);
    world.Pick(2);
    world.TheStory.Click("TagRuns", "CopyGasCompButton")
        .Box("Copy Tag assignments", SaysNoSource, ui::Icon::Exclamation);
    world.SeeUnbound(0);
    world.TheStory.Check(
        [&world](Driver&) { EXPECT_EQ(world.TheForm().TreeAGA.SelectedNode(), binding::node::Variable(2)); });
    world.LeaveByCancel();
    world.Show(GasInputs);
}

TEST(TagRunsCopy, in_the_wizard_takes_all_bindings_of_the_other_run_and_no_row) {
    TagRunsWorld world;
    world.BindRecords(GasInputs, 1, "gas", 701);
    world.TheStory.Click("TagRuns", "Option1_3").Click("TagRuns", "CopyGasCompButton");
    for (int position = 0; position < 22; ++position)
        world.SeeBound(position, "gas" + std::to_string(position) + " FX " + std::to_string(701 + position));
    world.SeeRows("ListViewRuns", 40);
    world.SeeRows("ListAnalogDig", 12);
    world.TheStory.Click("TagRuns", "Command5");
    world.Show(GasInputs);
    EXPECT_EQ(world.Station.Runs.Gas[0][GasSlot::GC_C1], TagRunsWorld::Bound("gas0", "FX", "701"));
    EXPECT_EQ(world.Station.Runs.Gas[0][GasSlot::GCEnable], TagRunsWorld::Bound("gas21", "FX", "722"));
    EXPECT_EQ(world.Station.Runs.Gas[0], world.Station.Runs.Gas[1]);
}

TEST(TagRunsCopy, of_the_gross_family_takes_four_values_and_the_enable) {
    TagRunsWorld world(algorithm::AGA3, source::ISO12213_3);
    world.BindRecords(GasInputs, 0, "gas", 701);
    world.TheStory.Click("TagRuns", "Option1_1").Click("TagRuns", "CopyGasCompButton");
    world.SeeBound(0, "gas0 FX 701");
    world.SeeBound(3, "gas3 FX 704");
    world.SeeBound(4, "gas4 FX 705");
    world.LeaveByCancel();
    world.Show(GasInputs, 1, 3);
}

TEST(TagRunsCopy, refuses_where_a_variable_is_bound_in_the_words_of_the_automatic_assignment) {
    TagRunsWorld world;
    world.BindRecords(GasInputs, 1, "gas", 701);
    world.AutoAssign();
    world.TheStory.Click("TagRuns", "Option1_3")
        .Click("TagRuns", "CopyGasCompButton")
        .Box("Tags configuration", SaysUndoAllFirst, ui::Icon::Information);
    world.SeeBound(0, "F1 FX 1001");
    world.LeaveByCancel();
    world.Show(GasInputs);
}

TEST(TagRunsCopy, in_the_modify_flow_reads_the_other_run_from_the_file_and_leaves_the_records) {
    TagRunsWorld world(algorithm::AGA3, source::SGERG88);
    world.Session.EditMode = forms::EditMode::ModifyTags;
    world.Station.Runs.PrepareSingleRun();
    world.Station.Runs.IO[0].GasTemp = TagRunsWorld::Bound("TT-1", "FX", "77");
    world.Station.GasComposition[GasSlot::XH2].Tag = "0.1";
    world.Files.Content[world.ConfigFile("North")] =
        "[FlowRuns]\r\nRun3=Yes\r\n[Run3]\r\n"
        "VolCalorificValueKDIOTag=HV\r\nVolCalorificValueKDIOType=FX\r\nVolCalorificValueKDIOAddr=1\r\n"
        "RelativeDensityKDIOTag=RD\r\nRelativeDensityKDIOType=FX\r\nRelativeDensityKDIOAddr=2\r\n"
        "XCO2KDIOTag=CO2\r\nXCO2KDIOType=FX\r\nXCO2KDIOAddr=3\r\n"
        "XH2KDIOTag=H2\r\nXH2KDIOType=FY\r\nXH2KDIOAddr=4\r\n"
        "GCEnableKDIOTag=EN\r\nGCEnableKDIOType=X\r\nGCEnableKDIORegAddr=5\r\n";
    const auto before = world.Station.Runs.IO;
    world.TheStory.Click("TagRuns", "Option1_2").Click("TagRuns", "CopyGasCompButton");
    const char* const copied[] = {"HV FX 1", "RD FX 2", "CO2 FX 3", "H2 FY 4", "EN X 5"};
    for (int position = 0; position < 5; ++position)
        world.SeeBound(position, copied[position]);
    world.TheStory.Check([&](Driver&) { EXPECT_EQ(world.Station.Runs.Gas[0], config::RunGas{}); })
        .Click("TagRuns", "Command5");
    world.Show(GasInputs);
    EXPECT_EQ(world.Station.Runs.Gas[0][GasSlot::XH2], TagRunsWorld::Bound("H2", "FY", "4"));
    EXPECT_EQ(world.Station.Runs.IO, before);
    EXPECT_EQ(world.Station.GasComposition[GasSlot::XH2].Tag, "0.1");
    // The sources, the copy, and what the notes hold it against.
    EXPECT_EQ(world.Files.Reads, 3);
    EXPECT_EQ(world.Files.Replaces, 0);
}

// Deliberate: whatever the other run has is taken, and counts as bound.
TEST(TagRunsCopy, in_the_modify_flow_takes_what_is_missing_in_the_file_as_it_is) {
    TagRunsWorld world(algorithm::AGA3, source::SGERG88);
    world.Session.EditMode = forms::EditMode::ModifyTags;
    world.Files.Content[world.ConfigFile("North")] = "[FlowRuns]\r\nRun3=Yes\r\n";
    world.TheStory.Click("TagRuns", "Option1_2").Click("TagRuns", "CopyGasCompButton");
    world.SeeBound(0, "  ");
    world.TheStory.Click("TagRuns", "Command5");
    world.Show(GasInputs);
    EXPECT_FALSE(world.Station.Runs.Gas[0][GasSlot::VolCalorificValue].IsMade());
}

TEST(TagRunsCopy, can_be_undone_in_the_wizard) {
    TagRunsWorld world;
    world.BindRecords(GasInputs, 1, "gas", 701);
    world.TheStory.Click("TagRuns", "Option1_3")
        .Click("TagRuns", "CopyGasCompButton")
        .Click("TagRuns", "Command3");
    world.SeeUnbound(0);
    world.SeeRows("ListViewRuns", 40);
    world.TheStory.SeeEnabled("TagRuns", "Command1", false);
    world.LeaveByCancel();
    world.Show(GasInputs);
}

TEST(GiveBack, from_an_editor_closes_it_and_the_announcement) {
    for (const auto mode : {forms::EditMode::None, forms::EditMode::Wizard, forms::EditMode::Configurator,
                            forms::EditMode::ModifyTags}) {
        TagRunsWorld world;
        world.Session.EditMode = mode;
        (void)world.Program.Forms.Touch<forms::Step>();
        auto& editor = world.Program.Forms.Touch<TagRuns>();
        forms::GiveBackFromEditor(world.Program, editor);
        EXPECT_TRUE(world.Session.Cancelled);
        EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::Step>());
        EXPECT_FALSE(world.Program.Forms.IsLoaded<TagRuns>());
    }
}

TEST(GiveBack, from_TagRuns_in_the_wizard_ends_it_and_brings_the_main_window_back) {
    TagRunsWorld world;
    auto& main = world.Program.Forms.Touch<forms::GFCPrincipal>();
    world.Session.EditMode = forms::EditMode::Wizard;
    (void)world.Program.Forms.Touch<forms::WizardFC>();
    (void)world.Program.Forms.Touch<forms::SelectRuns>();
    world.LeaveByCancel();
    world.Show(RunInputs);
    EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::WizardFC>());
    EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::SelectRuns>());
    EXPECT_TRUE(main.IsShown());
}

TEST(GiveBack, from_TagRuns_elsewhere_leaves_the_main_window_and_the_wizard_as_they_are) {
    for (const auto mode :
         {forms::EditMode::None, forms::EditMode::Configurator, forms::EditMode::ModifyTags}) {
        TagRunsWorld world;
        auto& main = world.Program.Forms.Touch<forms::GFCPrincipal>();
        world.Session.EditMode = mode;
        (void)world.Program.Forms.Touch<forms::WizardFC>();
        world.LeaveByCancel();
        world.Show(RunInputs);
        EXPECT_TRUE(world.Program.Forms.IsLoaded<forms::WizardFC>());
        EXPECT_FALSE(main.IsShown());
    }
}

TEST(GiveBack, from_an_editor_enables_the_main_window_in_the_wizard_and_the_modify_flow) {
    for (const auto mode : {forms::EditMode::None, forms::EditMode::Wizard, forms::EditMode::Configurator,
                            forms::EditMode::ModifyTags}) {
        TagRunsWorld world;
        auto& main = world.Program.Forms.Touch<forms::GFCPrincipal>();
        world.Session.EditMode = mode;
        (void)world.Program.Forms.Touch<forms::WizardFC>();
        main.SetEnabled(false);
        forms::GiveBackFromEditor(world.Program, world.Program.Forms.Touch<TagRuns>());
        const bool wizard = mode == forms::EditMode::Wizard;
        EXPECT_EQ(main.Enabled(), wizard || mode == forms::EditMode::ModifyTags);
        EXPECT_EQ(world.Program.Forms.IsLoaded<forms::WizardFC>(), !wizard);
    }
}
