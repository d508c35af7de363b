#include "forms/editors/MDetailWorld.h"

namespace gfc::forms {

using namespace mdetail;

TEST_F(MDetailForm, offers_active_runs_entered_before_in_the_wizard) {
    World.ActivateRuns({1, 2, 4, 5});
    World.Station.RunList.at(3).Flag = "yEs";
    World.Station.Runs.Gas.at(0)[Slot::GC_C1].Tag = "0.9"; // run 1
    World.Station.Runs.Gas.at(1)[Slot::GC_C1].Tag = "0.9"; // run 2, the edited one
    World.Station.Runs.Gas.at(2)[Slot::GC_N2].Tag = "0.9"; // run 4 without methane
    World.Station.Runs.Gas.at(3)[Slot::GC_C1].Tag = "0.9"; // run 5
    Story.SeeEnabled(form, "Option1_0")
        .SeeEnabled(form, "Option1_1", false)
        .SeeEnabled(form, "Option1_2", false)
        .SeeEnabled(form, "Option1_3", false)
        .SeeEnabled(form, "Option1_4")
        .SeeEnabled(form, "CopyGasCompButton");
    ShowAndAccept();
}

TEST_F(MDetailForm, counts_a_flag_in_any_case_as_active) {
    World.ActivateRuns({2, 5});
    World.Station.RunList.at(4).Flag = "YES";
    World.Station.Runs.Gas.at(1)[Slot::GC_C1].Tag = "0.9";
    Story.SeeEnabled(form, "Option1_4");
    ShowAndAccept();
}

TEST_F(MDetailForm, offers_nothing_for_the_only_active_run) {
    World.ActivateRuns({2});
    World.Station.Runs.Gas.at(0)[Slot::GC_C1].Tag = "0.9";
    for (const auto* off :
         {"Option1_0", "Option1_1", "Option1_2", "Option1_3", "Option1_4", "CopyGasCompButton"})
        Story.SeeEnabled(form, off, false);
    ShowAndAccept();
}

TEST_F(MDetailForm, copies_in_memory_by_the_place_among_the_active_runs) {
    World.Session.EditMode = EditMode::Configurator;
    Fill(World.Station.Runs.Gas.at(1)); // run 5 is the second active one
    Story.Click(form, "Option1_4").Click(form, "CopyGasCompButton");
    SeeNumbers();
    Story.Check([this](test::Driver&) { EXPECT_EQ(Gas(Slot::GC_N2), ""); });
    ShowAndAccept();
    EXPECT_EQ(Gas(Slot::GC_Ar), Number(20));
}

TEST_F(MDetailForm, wants_a_source_chosen_before_it_copies) {
    Fill(World.Station.Runs.Gas.at(1));
    Story.Click(form, "CopyGasCompButton");
    Story.Box("Copy Gas Composition",
              "Error: Can't copy gas composition, no source Run selected. Please select a Run to copy from.",
              ui::Icon::Exclamation);
    SeeDefaults();
    ShowAndAccept();
}

struct MDetailFromFile : MDetailForm, testing::WithParamInterface<EditMode> {};

TEST_P(MDetailFromFile, offers_the_active_runs_of_the_file_and_replaces_the_composition_at_once) {
    World.Session.EditMode = GetParam();
    WriteKey("FlowRuns", "Run1", "YES");
    WriteKey("FlowRuns", "Run2", "Yes");
    WriteKey("FlowRuns", "Run3", "No");
    WriteKey("FlowRuns", "Run5", "Yes");
    WriteKey("Run5", "GC_N2", "0.125");
    WriteKey("Run5", "GC_Ar", "0.25");
    Story.SeeEnabled(form, "Option1_0")
        .SeeEnabled(form, "Option1_1", false) // the run itself
        .SeeEnabled(form, "Option1_2", false)
        .SeeEnabled(form, "Option1_3", false)
        .SeeEnabled(form, "Option1_4")
        .Click(form, "Option1_4")
        .Click(form, "CopyGasCompButton")
        .SeeText(form, "Text1", "0.125")
        .SeeText(form, "Text27", "0.25")
        .SeeText(form, "Text10", "")
        .Check([this](test::Driver&) { EXPECT_EQ(Gas(Slot::GC_Ar), "0.25"); })
        .Click(form, "Command3");
    Story.Box("Orm Gas Flow Computer", cancelText, ui::Icon::None, ui::Answer::Yes);
    Show();
    EXPECT_EQ(Gas(Slot::GC_N2), "0.125");
}

TEST_P(MDetailFromFile, shows_defaults_for_a_source_without_nitrogen) {
    World.Session.EditMode = GetParam();
    Fill(World.Station.GasComposition);
    WriteKey("FlowRuns", "Run1", "Yes");
    WriteKey("Run1", "GC_C1", "0.5");
    Story.Click(form, "Option1_0").Click(form, "CopyGasCompButton");
    SeeDefaults();
    ShowAndAccept();
}

TEST_P(MDetailFromFile, offers_nothing_without_a_file) {
    World.Session.EditMode = GetParam();
    Fill(World.Station.Runs.Gas.at(1)); // memory does not count here
    Story.SeeEnabled(form, "Option1_4", false).SeeEnabled(form, "CopyGasCompButton", false);
    ShowAndAccept();
}

INSTANTIATE_TEST_SUITE_P(Modes, MDetailFromFile, testing::Values(EditMode::None, EditMode::ModifyTags));

} // namespace gfc::forms
