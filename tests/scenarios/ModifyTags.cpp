#include "scenarios/ModifyMoves.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using namespace modify;
using moves::RunNode;
using moves::RunsNode;
using ui::Answer;
using ui::Icon;

Scenario OnlyMechanical() {
    return TheScenario({.Name = "modify_only_the_mechanical_parameters",
                        .Tell =
                            [](Story& story, const TheOutside&) {
                                Open(story, RunNode(5), 5);
                                TickAndAccept(story, {3});
                                story.SeeCaption("FrParMec", "Mechanical parameters   North (Run 5)")
                                    .Type("FrParMec", "txtDiaOrif", "1.75")
                                    .Click("FrParMec", "cmdAceptar");
                                // Not a word about tags: there is no trial.
                                AskedToSave(story, Icon::None);
                                story.SeeShown(Form, false).SeeShown("GFCPrincipal");
                            },
                        .Changes = [](FileText& file) { file.Set("Run5", "OrificeDia", "1.75"); }});
}

Scenario OnlyAccelabar() {
    return TheScenario({.Name = "modify_only_the_accelabar_parameters",
                        .Golden = "accelabar_densimeter",
                        .Tell =
                            [](Story& story, const TheOutside&) {
                                Open(story, RunNode(2), 2);
                                TickAndAccept(story, {3});
                                story.SeeCaption("FrAccelabar", "Accelabar Parameters  North (Run 2)")
                                    .Select("FrAccelabar", "Combo1", 3)
                                    .Click("FrAccelabar", "Command1");
                                AskedToSave(story, Icon::None);
                            },
                        .Changes =
                            [](FileText& file) {
                                file.Set("Run2", "AccelabarSize", "8")
                                    .Set("Run2", "AccelabarY", "0.6407")
                                    .Set("Run2", "AccelabarK", "0.7123")
                                    .Set("Run2", "AccelabarThroatDia", "3.389");
                            }});
}

Scenario MechanicalNotSaved() {
    return TheScenario({.Name = "modify_of_the_mechanical_parameters_is_not_saved",
                        .Tell = [](Story& story, const TheOutside&) {
                            Open(story, RunNode(5), 5);
                            TickAndAccept(story, {3});
                            story.Type("FrParMec", "txtDiaOrif", "1.75").Click("FrParMec", "cmdAceptar");
                            AskedToSave(story, Icon::None, Answer::No);
                            story.SeeShown(Form, false);
                        }});
}

Scenario AllRunsNode() {
    return TheScenario({.Name = "modify_the_first_enabled_run_of_the_station",
                        .Golden = "aga3_aga8_fixed",
                        .Tell =
                            [](Story& story, const TheOutside&) {
                                Open(story, RunsNode, 2);
                                story.Click(Form, "Command1")
                                    .Box("AGA", "Please Select the option that you want to edit",
                                         Icon::Information)
                                    .SeeShown(Form);
                                TickAndAccept(story, {2});
                                story.SeeCaption("TagRuns", "Configuring the Output Tags AGA 3 for Run 2");
                                Rebind(story, "AGA 3 Outputs\\AGA-3 Status");
                                Continue(story);
                                AskedToSave(story, Icon::Information);
                                story.SeeShown(Form, false);
                            },
                        .Changes =
                            [](FileText& file) {
                                OutputsWritten(file, 2);
                                StatusIs(file, 2, 5); // two runs of two analog tags each stand before it
                            }});
}

Scenario EverythingOfARun() {
    return TheScenario({.Name = "modify_everything_of_a_run",
                        .Golden = "aga3_aga8_fixed",
                        .Tell =
                            [](Story& story, const TheOutside&) {
                                Open(story, RunNode(5), 5);
                                TickAndAccept(story, {1, 2, 3, 4, 6});
                                story.Type("FrParMec", "txtDiaPipe", "4.026").Click("FrParMec", "cmdAceptar");
                                story.SeeCaption("TagRuns", "Configuring the AGA-3 Input Tags for Run 5")
                                    .Type("TagRuns", "Text1", "1.02");
                                Rebind(story, "AGA 3 Inputs\\Temperature");
                                Continue(story);
                                story.Type("MDetail", "Text10", "0.9").Click("MDetail", "Command1");
                                Continue(story);
                                Rebind(story, "AGA 8 Outputs\\Uncertainty");
                                Continue(story);
                                AskedToSave(story, Icon::Information);
                            },
                        .Changes =
                            [](FileText& file) {
                                OutputsWritten(file, 5);
                                GasOutputsWritten(file, 5);
                                file.Set("Run5", "InternalPipeDia", "4.026")
                                    .Set("Run5", "CalibrationFactor", "1.02")
                                    .Set("Run5", "GC_C1", "0.9")
                                    // 28 floats of two runs stand before the first that was free.
                                    .Set("Run5", "GasTempKDIOTag", "FT-29")
                                    .Set("Run5", "GasTempKDIORegAddr", "1029")
                                    .Set("Run5", "AGA8uncertKDIOTag", "FT-30")
                                    .Set("Run5", "AGA8uncertKDIORegAddr", "1030");
                            }});
}

// The answer No, then the same run again without a look at the tree.
Scenario NotSaved() {
    return TheScenario({.Name = "modify_is_tried_and_not_saved", .Tell = [](Story& story, const TheOutside&) {
                            Open(story, RunNode(2), 2);
                            TickAndAccept(story, {1, 2});
                            story.Type("TagRuns", "Text1", "1.25");
                            Continue(story);
                            Rebind(story, "AGA 3 Outputs\\Mass");
                            Continue(story);
                            AskedToSave(story, Icon::Information, Answer::No);
                            story.SeeShown(Form, false).Menu("GFCPrincipal", "ConfigPar");
                            TickAndAccept(story, {1});
                            story.SeeText("TagRuns", "Text1", "1.0");
                            Continue(story);
                            AskedToSave(story, Icon::Information, Answer::No);
                        }});
}

// A tag that the file uses is not on offer, not even that of the variable itself; it comes back when it is
// undone, behind all others.
Scenario UndoneTag() {
    return TheScenario(
        {.Name = "modify_offers_an_undone_tag_last",
         .Tell =
             [](Story& story, const TheOutside&) {
                 Open(story, RunNode(5), 5);
                 TickAndAccept(story, {1});
                 story
                     .Check([](Driver& d) {
                         EXPECT_EQ(d.Rows("TagRuns", "ListViewRuns"), 300 - 2 * 8);
                         EXPECT_EQ(d.Cell("TagRuns", "ListViewRuns", 1, 1), "FT-17");
                         EXPECT_EQ(d.NodeImage("TagRuns", "TreeAGA", "AGA 3 Inputs\\Pressure"), "Config");
                     })
                     .ClickNode("TagRuns", "TreeAGA", "AGA 3 Inputs\\Pressure")
                     .Click("TagRuns", "Command4")
                     .Check([](Driver& d) {
                         const int rows = d.Rows("TagRuns", "ListViewRuns");
                         EXPECT_EQ(rows, 300 - 2 * 8 + 1);
                         EXPECT_EQ(d.Cell("TagRuns", "ListViewRuns", rows, 1), "FT-11");
                     })
                     .Click("TagRuns", "Command1");
                 Continue(story);
                 AskedToSave(story, Icon::Information);
             },
         .Changes =
             [](FileText& file) {
                 file.Set("Run5", "GasPressKDIOTag", "FT-17").Set("Run5", "GasPressKDIORegAddr", "1017");
             }});
}

// "no" is not "No": the run counts as off in the tree, but the command does not take it for one to enable.
Scenario RunThatIsOff() {
    return TheScenario({.Name = "modify_a_run_that_is_off_enables_it",
                        .ByHand = [](FileText& file) { file.Set("FlowRuns", "Run5", "no"); },
                        .Tell =
                            [](Story& story, const TheOutside&) {
                                moves::SeeImage(story, RunNode(5), "NoRun");
                                Open(story, RunNode(5), 5);
                                TickAndAccept(story, {1});
                                story.Type("TagRuns", "Text1", "1.5");
                                Continue(story);
                                AskedToSave(story, Icon::Information);
                                moves::SeeImage(story, RunNode(5), "Run");
                            },
                        .Changes =
                            [](FileText& file) {
                                file.Set("FlowRuns", "Run5", "Yes").Set("Run5", "CalibrationFactor", "1.5");
                            }});
}

} // namespace

std::vector<Scenario> ModifyTagsScenarios() {
    return {OnlyMechanical(),   OnlyAccelabar(), MechanicalNotSaved(), AllRunsNode(),
            EverythingOfARun(), NotSaved(),      UndoneTag(),          RunThatIsOff()};
}

} // namespace gfc::test
