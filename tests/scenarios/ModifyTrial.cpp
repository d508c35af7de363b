// The trial of an edit on a copy of the file, and what is done where it fails.
#include "scenarios/ModifyMoves.h"
#include "support/InJobs.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using namespace modify;
using moves::RunNode;
using ui::Icon;

const std::string trial = InJobs("tmpTags_plant_North.ini");
const std::string log = InJobs("KDOrmAGA_plant_North_Errors.log");

// Another status for run 5, up to what the trial comes to.
void EditStatus(Story& story) {
    Open(story, RunNode(5), 5);
    TickAndAccept(story, {2});
    Rebind(story, "AGA 3 Outputs\\AGA-3 Status");
    Continue(story);
}

void StatusEdited(FileText& file) {
    OutputsWritten(file, 5);
    StatusIs(file, 5, 3);
}

// A tag that run 2 is bound to gets another name between two commands. An empty image: the program ends with
// the answer.
Scenario Failed(const std::string& name, const std::string& button, const std::string& imageOfRun2,
                std::function<void(FileText&)> changes) {
    return TheScenario(
        {.Name = name,
         .Tell =
             [=](Story& story, const TheOutside& outside) {
                 story.Do("rename a tag", [=](Driver&) { outside->RenameTag("FT-2", "TT-101"); });
                 EditStatus(story);
                 story.SeeCaption("TagsChanged", "Configuration errors alert")
                     .Check([=](Driver&) { EXPECT_FALSE(outside->Program->Files.Content.contains(trial)); })
                     .Click("TagsChanged", button);
                 if (imageOfRun2.empty())
                     return;
                 story.SeeShown(Form, false);
                 moves::SeeImage(story, RunNode(2), imageOfRun2);
             },
         .Changes = std::move(changes),
         .Leaves = {log},
         .After =
             [](const Outside& outside) {
                 const std::string& told = outside.Program->Files.Content[log];
                 EXPECT_NE(
                     told.find("Error 1 = [Temperature] [FT-2] [1002] [FX] [Run2] [No found in I/O data "
                               "base]"),
                     std::string::npos)
                     << told;
             },
         .EndsByItself = imageOfRun2.empty()});
}

std::vector<Scenario> AllFailed() {
    return {Failed("modify_failed_and_ignored", "CmdIgnore", "NoRun",
                   [](FileText& file) {
                       StatusEdited(file);
                       file.Set("FlowRuns", "Run2", "No");
                   }),
            Failed("modify_failed_and_back_to_configure", "Command3", "Run", {}),
            Failed("modify_failed_and_discarded", "Command2", "", {})};
}

// The runs share the gas, so that one bad tag of it turns all of them off.
Scenario CompositionFailed() {
    return TheScenario(
        {.Name = "modify_failed_for_the_shared_composition",
         .Golden = "aga3_aga8_outside",
         .Tell =
             [](Story& story, const TheOutside& outside) {
                 story.Do("rename a tag", [=](Driver&) { outside->RenameTag("FT-9", "AT-9"); });
                 Open(story, RunNode(5), 5);
                 TickAndAccept(story, {5});
                 Continue(story);
                 story.Click("TagsChanged", "CmdIgnore");
                 for (const int run : {2, 5})
                     moves::SeeImage(story, RunNode(run), "NoRun");
             },
         .Changes = [](FileText& file) { file.Set("FlowRuns", "Run2", "No").Set("FlowRuns", "Run5", "No"); },
         .Leaves = {log}});
}

// A crash in the middle of a trial leaves the copy. The next start does not look at it, and the next trial
// takes it away before anything else.
Scenario LeftOver() {
    return TheScenario(
        {.Name = "modify_after_a_crash_in_the_middle_of_a_trial",
         .Beside =
             [](FakeProgram& program) {
                 program.Files.Content[trial] = "[FlowRuns]\r\nRun1=Yes\r\nFlowAlgorithm=AGA7\r\n[Run1]\r\n";
             },
         .Tell =
             [](Story& story, const TheOutside& outside) {
                 moves::SeeImage(story, RunNode(1), "NoRun");
                 moves::SeeImage(story, "All Stations\\South", "StationNoConfig");
                 EditStatus(story);
                 AskedToSave(story, Icon::Information);
                 story.Check([=](Driver&) { EXPECT_FALSE(outside->Program->Files.Content.contains(trial)); });
             },
         .Changes = StatusEdited,
         .After =
             [](const Outside& outside) {
                 EXPECT_EQ(outside.Program->Library.FilesToLoad.size(), 1U) << "the copy is no station's";
             }});
}

// Nobody is asked to do anything about it: such a left-over may stay for ever.
Scenario LeftOverUntouched() {
    return TheScenario(
        {.Name = "start_after_a_crash_in_the_middle_of_a_trial",
         .Beside = [](FakeProgram& program) { program.Files.Content[trial] = "[FlowR"; },
         .Tell = [](Story& story, const TheOutside&) { moves::SeeImage(story, RunNode(2), "Run"); },
         .Leaves = {trial}});
}

// A person who goes on without a copy is asked as if nothing was wrong: the trial works on what is there.
Scenario NoPlaceForTheCopy() {
    return TheScenario({.Name = "modify_where_no_copy_can_be_made",
                        .Beside = [](FakeProgram& program) { program.Files.Unwritable.insert(trial); },
                        .Tell =
                            [](Story& story, const TheOutside&) {
                                EditStatus(story);
                                story.Box("Gas Flow Computer",
                                          "The changes could not be tried on a copy of the configuration "
                                          "file.\r\n" +
                                              std::string(trial) +
                                              "\r\n\r\nThe system says: Permission denied\r\n"
                                              "There is no such file now.",
                                          Icon::Exclamation, ui::Answer::Close);
                                AskedToSave(story, Icon::Information);
                            },
                        .Changes = StatusEdited});
}

// The edit itself is how a person mends what was broken.
Scenario Mended() {
    return TheScenario({.Name = "modify_mends_a_tag_that_has_gone",
                        .Tell =
                            [](Story& story, const TheOutside& outside) {
                                story.Do("rename a tag",
                                         [=](Driver&) { outside->RenameTag("FT-2", "TT-101"); });
                                Open(story, RunNode(2), 2);
                                TickAndAccept(story, {1});
                                Rebind(story, "AGA 3 Inputs\\Temperature");
                                Continue(story);
                                AskedToSave(story, Icon::Information);
                            },
                        .Changes =
                            [](FileText& file) {
                                // The tag under its new name is free, and stands where it stood.
                                file.Set("Run2", "GasTempKDIOTag", "TT-101");
                            }});
}

} // namespace

std::vector<Scenario> ModifyTrialScenarios() {
    auto all = AllFailed();
    for (auto* scenario : {&CompositionFailed, &LeftOver, &LeftOverUntouched, &NoPlaceForTheCopy, &Mended})
        all.push_back((*scenario)());
    return all;
}

} // namespace gfc::test
