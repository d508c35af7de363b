#include "scenarios/Moves.h"
#include "scenarios/Scenario.h"
#include "support/ProjectFiles.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using ui::Answer;
using ui::Icon;

const std::string form = "TagRuns";
const std::string announcement = "All variables will be assigned to tags automatically";

void SeeImage(Story& story, const std::string& path, const std::string& image) {
    story.Check([=](Driver& d) { EXPECT_EQ(d.NodeImage(form, "TreeAGA", path), image) << path; });
}

void SeeRows(Story& story, const std::string& list, int count) {
    story.Check([=](Driver& d) { EXPECT_EQ(d.Rows(form, list), count) << list; });
}

void SeeLastRow(Story& story, const std::string& list, const std::string& name) {
    story.Check([=](Driver& d) {
        const int last = d.Rows(form, list);
        EXPECT_EQ(d.Cell(form, list, last, 1), name);
        EXPECT_EQ(d.Cell(form, list, last, 0), std::to_string(last));
    });
}

void CancelTagRuns(Story& story) {
    story.Click(form, "Command2")
        .Box("Gas Flow Computer",
             "Are you sure you want to discard the changes made to the current configuration?",
             Icon::Question, Answer::Yes)
        .SeeShown("GFCPrincipal")
        .SeeShown("WizardFC", false)
        .SeeShown("Step", false);
}

// The first dialog of the pass for run 1, and a cancel behind the acts.
Scenario InFirstDialog(const std::string& name, const moves::Choices& choices,
                       std::function<void(Story&)> acts) {
    return {name, moves::ThreeStations,
            [choices, acts = std::move(acts)](Story& story) {
                moves::StartUp(story);
                moves::OpenWizard(story, "North");
                moves::SelectRuns(story, {1});
                moves::WalkPages(story, choices);
                story.Click("Step", "Command1").SeeShown(form);
                acts(story);
                CancelTagRuns(story);
                moves::Exit(story);
            },
            [](FakeProgram& program) { EXPECT_TRUE(ProjectFiles(program.Files).empty()); }};
}

// Longs and digitals go to and from lists of their own, whichever node of the variable is clicked.
void OtherClassesByHand(Story& story) {
    const std::string root = "AGA 7 Inputs\\";
    story.ClickNode(form, "TreeAGA", root + "Turbine Pulses\\Addr").Click(form, "Command1");
    SeeImage(story, root + "Turbine Pulses\\Name\\PI-1", "Tag2");
    SeeRows(story, "ListLong", 9);
    story.ClickNode(form, "TreeAGA", root + "Turbine Pulses\\Type\\LX")
        .Click(form, "Command1")
        .Box("Tags Configuration", "I/O tag already assigned", Icon::Information);
    story.ClickNode(form, "TreeAGA", root + "Reset\\Name\\Not Configured")
        .ClickRow(form, "ListAnalogDig", 80)
        .Click(form, "Command1");
    SeeImage(story, root + "Reset\\Name\\XV-40", "Tag2");
    SeeRows(story, "ListAnalogDig", 79);
    // The row that was clicked is behind the end now: nothing is taken, and nothing said.
    story.ClickNode(form, "TreeAGA", root + "Flow Run / Hold").Click(form, "Command1");
    SeeImage(story, root + "Flow Run / Hold", "NoConfig");
    story.ClickNode(form, "TreeAGA", root + "Turbine Pulses").Click(form, "Command4");
    SeeImage(story, root + "Turbine Pulses", "NoConfig");
    SeeLastRow(story, "ListLong", "PI-1");
    SeeRows(story, "ListViewRuns", 300);
}

void DigitalsTooNearTheEnd(Story& story) {
    const std::string root = "AGA 7 Inputs\\";
    story.ClickRow(form, "ListAnalogDig", 79)
        .Click(form, "Command6")
        .Box("Automatic Tags assignments", announcement, Icon::Information)
        .Box("Tag Auto-assignments...",
             "There must be at least:\r\n1 consecutive float    tags\r\n3 consecutive discrete tags\r\n"
             "1 consecutive long     tags\r\n",
             Icon::Exclamation);
    SeeImage(story, root + "Density", "NoConfig");
    // The click is lost with the refusal: the next attempt starts at the first row.
    story.Click(form, "Command6").Box("Automatic Tags assignments", announcement, Icon::Information);
    SeeImage(story, root + "Flow Run / Hold\\Name\\XS-1", "Tag2");
    SeeImage(story, root + "Turbine Pulses\\Name\\PI-1", "Tag2");
    SeeImage(story, root + "Density\\Name\\FT-1", "Tag2");
    story.Menu(form, "borrartodo");
    SeeImage(story, root + "Flow Run / Hold", "NoConfig");
    SeeRows(story, "ListAnalogDig", 80);
    SeeRows(story, "ListLong", 10);
}

void CommonPressureByHand(Story& story) {
    const std::string variable = "Common Inputs\\Atmospheric Pressure";
    story.SeeCaption(form, "Configuring input I/O assignments common to all Runs...")
        .SeeVisible(form, "ListAnalogDig", false)
        .SeeVisible(form, "ListLong", false)
        .SeeVisible(form, "Command3", false)
        .SeeVisible(form, "Command6", false)
        .Click(form, "Command5")
        .Box("Tags Configuration", "Can´t save. Please complete I/O assignments", Icon::Information)
        .ClickNode(form, "TreeAGA", variable)
        .Click(form, "Command4")
        .Box("Error undo Tag", "Can´t undo. No I/O assignments has been made for this variable",
             Icon::Exclamation)
        .ClickRow(form, "ListViewRuns", 300)
        .Click(form, "Command1");
    SeeImage(story, variable + "\\Name\\FT-300", "Tag2");
    story.Click(form, "Command4");
    SeeLastRow(story, "ListViewRuns", "FT-300");
}

// Local time is three hours behind GMT.
Scenario ContractTimes() {
    return {"contract_time_is_kept_in_gmt_and_entered_in_either",
            [](FakeProgram& program) {
                moves::ThreeStations(program);
                program.TimeZone.Bias = program.TimeZone.Current = 180;
            },
            [](Story& story) {
                moves::StartUp(story);
                moves::OpenWizard(story, "North");
                moves::SelectRuns(story, {1, 2});
                moves::WalkPages(story, {.Standard = 1});
                story.Click("Step", "Command1")
                    .SeeText(form, "ListHour", "12")
                    .SeeText(form, "ListMinx10", "0")
                    .SeeText(form, "ListMinx1", "0")
                    .SeeChecked(form, "OptionLocal")
                    .Select(form, "ListHour", 22)
                    .Select(form, "ListMinx10", 3)
                    .Select(form, "ListMinx1", 5)
                    .Type(form, "phostd", "0.7");
                moves::AutoBind(story);
                story.Click("Step", "Command1");
                moves::AutoBind(story);
                story.Click("Step", "Command1")
                    .SeeChecked(form, "OptionLocal")
                    .Click(form, "OptionGMT")
                    .Select(form, "ListHour", 7)
                    .Select(form, "ListMinx1", 5)
                    .Type(form, "phostd", "0.7");
                moves::AutoBind(story);
                story.Click("Step", "Command1");
                moves::AutoBind(story);
                moves::SaveAndClose(story);
                moves::Exit(story);
            },
            [](FakeProgram& program) {
                const auto read = [&](const std::string& section, const std::string& key) {
                    return program.Program.Ini.ReadKey(section, key, program.ConfigFile("North"));
                };
                EXPECT_EQ(read("Run1", "ContractHour"), "1");
                EXPECT_EQ(read("Run1", "ContractMin"), "35");
                EXPECT_EQ(read("Run2", "ContractHour"), "7");
                EXPECT_EQ(read("Run2", "ContractMin"), "5");
            }};
}

} // namespace

std::vector<Scenario> BindingFieldScenarios() {
    const moves::Choices aga7{.Standard = 1};
    return {
        InFirstDialog("longs_and_digitals_are_bound_by_hand", aga7, OtherClassesByHand),
        InFirstDialog("automatic_assignment_counts_digitals_from_the_clicked_row", aga7,
                      DigitalsTooNearTheEnd),
        InFirstDialog("common_pressure_is_bound_by_hand_alone", {.GageExternal = true}, CommonPressureByHand),
        ContractTimes(),
    };
}

} // namespace gfc::test
