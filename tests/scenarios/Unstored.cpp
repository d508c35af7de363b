// What could not be stored is told in one box: what is lost, which file, the system's reason and what stands
// there now. Whoever tries again has everything still in hand, and who gives up sees what the file says.
#include "scenarios/ModifyMoves.h"
#include "scenarios/Moves.h"
#include "scenarios/StoredStation.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using moves::Choose;
using moves::NorthNode;
using moves::RunNode;
using moves::SeeImage;
using ui::Answer;
using ui::Icon;

const std::string AsBefore = "The file stands as it was before.";

void NotStored(Story& story, const std::string& lost, Answer answer, const std::string& stands = AsBefore) {
    story.Box("Gas Flow Computer",
              lost + "\r\n" + Outside::File() + "\r\n\r\nThe system says: No space left on device\r\n" +
                  stands,
              Icon::Exclamation, answer);
}

// The next attempts find the disk full.
void Fill(Story& story, const TheOutside& outside, int attempts) {
    story.Do("fill the disk", [=](Driver&) { outside->Program->Files.FullFor = attempts; });
}

// The picture is the file's, not that of the command.
Scenario NotDisabled() {
    return TheScenario({.Name = "a_run_that_could_not_be_disabled_shows_as_it_is",
                        .Tell =
                            [](Story& story, const TheOutside& outside) {
                                Fill(story, outside, 3);
                                for (const int attempts : {2, 1}) {
                                    Choose(story, RunNode(2), "dRun");
                                    for (int left = attempts; left > 0; --left)
                                        NotStored(story, "Run 2 was not disabled.",
                                                  left > 1 ? Answer::Retry : Answer::Close);
                                    SeeImage(story, RunNode(2), "Run");
                                }
                                Fill(story, outside, 1);
                                Choose(story, RunNode(5), "dRun");
                                NotStored(story, "Run 5 was not disabled.", Answer::Retry);
                                SeeImage(story, RunNode(5), "NoRun");
                            },
                        .Changes = [](FileText& file) { file.Set("FlowRuns", "Run5", "No"); }});
}

Scenario NotEnabled() {
    return TheScenario({.Name = "a_run_that_could_not_be_enabled_shows_as_it_is",
                        .ByHand = [](FileText& file) { file.Set("FlowRuns", "Run2", "No"); },
                        .Tell =
                            [](Story& story, const TheOutside& outside) {
                                Fill(story, outside, 1);
                                Choose(story, RunNode(2), "erun");
                                NotStored(story, "Run 2 was not enabled.", Answer::Close);
                                SeeImage(story, RunNode(2), "NoRun");
                            }});
}

// The window stays with what was entered, for another attempt from its own menu.
Scenario CommonNotSaved() {
    return TheScenario({.Name = "common_parameters_that_could_not_be_saved_stay_in_hand",
                        .Tell = [](Story& story, const TheOutside& outside) {
                            const std::string before = outside->Content();
                            Choose(story, NorthNode + "\\Common Parameters", "ConfigPar");
                            story.Menu("Configurador", "PG")
                                .SelectTab("Configurador", "SSTab2", 1)
                                .Type("Configurador", "Text1_1", "61.5");
                            Fill(story, outside, 2);
                            const auto save = [&story] {
                                story.Menu("Configurador", "SalvarSalir2")
                                    .Box("Configuration Completed.", "Do you want to save your changes?",
                                         Icon::None, Answer::Yes);
                            };
                            save();
                            NotStored(story, "The changes were not saved.", Answer::Close);
                            story.SeeShown("Configurador").SeeText("Configurador", "Text1_1", "61.5");
                            save();
                            NotStored(story, "The changes were not saved.", Answer::Retry);
                            story.SeeShown("Configurador", false).Check([=](Driver&) {
                                EXPECT_EQ(outside->Key("AGA3", "StandardT"), "61.5");
                                // All that such a save writes is looked at elsewhere.
                                outside->Content() = before;
                            });
                        }});
}

Scenario TagsNotSaved() {
    return TheScenario({.Name = "edited_tags_that_could_not_be_saved_are_tried_again",
                        .Tell = [](Story& story, const TheOutside& outside) {
                            modify::Open(story, RunNode(2), 2);
                            modify::TickAndAccept(story, {2});
                            modify::Rebind(story, "AGA 3 Outputs\\AGA-3 Status");
                            modify::Continue(story);
                            modify::AskedToSave(story, Icon::Information, Answer::No);
                            modify::Open(story, RunNode(2), 2);
                            modify::TickAndAccept(story, {3});
                            Fill(story, outside, 1);
                            story.Type("FrParMec", "txtDiaOrif", "1.5").Click("FrParMec", "cmdAceptar");
                            modify::AskedToSave(story, Icon::None);
                            NotStored(story, "The changes were not saved.", Answer::Close);
                            SeeImage(story, RunNode(2), "Run");
                        }});
}

// The wizard's last button: the old configuration stands until the new one is safe beside it.
Scenario NewOneNotSaved() {
    return TheScenario(
        {.Name = "a_new_configuration_that_finds_no_room_leaves_the_old_one",
         .Tell = [](Story& story, const TheOutside& outside) {
             moves::OpenWizard(story, "North");
             moves::SelectRuns(story, {2});
             moves::WalkPages(story, {});
             moves::PassAllRuns(story, {}, {2});
             Fill(story, outside, 2);
             story.Click("WizardFC", "Command1");
             NotStored(story, "The configuration of the station was not saved.", Answer::Retry);
             NotStored(story, "The configuration of the station was not saved.", Answer::Close);
             story.SeeShown("WizardFC")
                 .SeeEnabled("WizardFC", "Command1")
                 .Click("WizardFC", "cancelar")
                 .Box("Gas Flow Computer", "Do you want to quit the configuration wizard ?", Icon::None,
                      Answer::Yes);
             SeeImage(story, NorthNode, "StationConfig");
             SeeImage(story, RunNode(5), "Run");
         }});
}

// Nothing is written while something holds the old file, and the pass is kept.
Scenario NewOneHeldUp() {
    return TheScenario(
        {.Name = "the_wizard_says_for_what_it_waits_and_can_be_told_to_stop",
         .Tell = [](Story& story, const TheOutside& outside) {
             moves::OpenWizard(story, "North");
             moves::SelectRuns(story, {2});
             moves::WalkPages(story, {});
             moves::PassAllRuns(story, {}, {2});
             story.Do("hold the file", [=](Driver&) { outside->Program->Files.Held.insert(Outside::File()); })
                 .Click("WizardFC", "Command1")
                 .SeeText("WaitForFile", "Label2", Outside::File())
                 .SeeText("WaitForFile", "Label3", "The system says: Permission denied")
                 .PressKey("WaitForFile", "Escape")
                 .SeeShown("WaitForFile", false)
                 .SeeText("WizardFC", "Label19", "Configuration Finished !")
                 .Click("WizardFC", "cancelar")
                 .Box("Gas Flow Computer", "", Icon::None, Answer::Yes);
             SeeImage(story, RunNode(5), "Run");
         }});
}

} // namespace

std::vector<Scenario> UnstoredScenarios() {
    return {NotDisabled(), NotEnabled(), CommonNotSaved(), TagsNotSaved(), NewOneNotSaved(), NewOneHeldUp()};
}

} // namespace gfc::test
