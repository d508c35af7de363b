// One more run for a configuration that stands.
#include "forms/runs/AddRunStory.h"
#include "scenarios/Moves.h"
#include "scenarios/StoredStation.h"
#include "support/TestFolders.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using moves::Choose;
using moves::RunNode;
using moves::SeeImage;
using ui::Answer;
using ui::Icon;

void Offer(Story& story, int run, Answer answer) {
    Choose(story, RunNode(run), "erun");
    story.Box("Configure Run", "The selected run is not configured. Do you want to configure it?",
              Icon::Information, answer);
}

// Run 3, whole: what must become of the file stands beside the file as it was.
Scenario Added(const std::string& golden, const AddedRun& added) {
    const AddRunStory adding(added);
    return TheScenario(
        {.Name = "a_run_is_added_to_" + golden,
         .Golden = golden,
         .Tell =
             [=](Story& story, const TheOutside& outside) {
                 Offer(story, 3, Answer::Yes);
                 const auto& dialogs = adding.Dialogs();
                 adding.Until(story, dialogs.size() - 1);
                 story.Check([=](Driver&) {
                     ExpectSameFile(outside->Content(), Golden("wizard/" + golden + ".ini"));
                 });
                 dialogs.back().GoThrough(story);
                 AddRunStory::Finish(story, Answer::Yes);
                 SeeImage(story, RunNode(3), "Run");
                 SeeImage(story, RunNode(4), "NoRun");
             },
         .Changes = [golden](FileText& file) { file = FileText(Golden("added/" + golden + ".ini")); }});
}

struct Way {
    std::string Golden;
    AddedRun Added;
};

// One of each algorithm, and of each window that there can be.
const std::vector<Way> allWays = {
    {"aga3_aga8_fixed", {.Source = 1}},
    {"aga7_densimeter", {.Standard = 1}},
    {"accelabar_iso3_fixed", {.Standard = 2, .Source = 4}},
    {"gbt_aga8_outside", {.Standard = 3, .Source = 1, .Outside = true}},
};

// Cancelled at its at-th dialog, from 0; no question about saving comes, and the run can be added again.
Scenario CancelledAt(const Way& way, std::size_t at) {
    const AddRunStory adding(way.Added);
    const std::string form = adding.Dialogs().at(at).Window;
    return TheScenario(
        {.Name = "an_added_run_is_cancelled_at_dialog_" + std::to_string(at + 1) + "_of_" + way.Golden,
         .Golden = way.Golden,
         .Tell = [=](Story& story, const TheOutside&) {
             Offer(story, 3, Answer::Yes);
             adding.Until(story, at);
             moves::CancelWindow(story, form);
             story.SeeShown(form, false).SeeShown("Step", false).SeeShown("GFCPrincipal");
             SeeImage(story, RunNode(3), "NoRun");
             Offer(story, 3, Answer::No);
         }});
}

Scenario NotSaved() {
    return TheScenario({.Name = "an_added_run_is_not_saved", .Tell = [](Story& story, const TheOutside&) {
                            Offer(story, 3, Answer::Yes);
                            AddRunStory({}).Through(story);
                            AddRunStory::Finish(story, Answer::No);
                            story.SeeShown("Step", false);
                            SeeImage(story, RunNode(3), "NoRun");
                        }});
}

Scenario TooFewTags() {
    return TheScenario(
        {.Name = "an_added_run_lacks_free_tags",
         .Beside = [](FakeProgram& program) { program.Library.TagsOf["North"] = LargeStationTags(20); },
         .Tell =
             [](Story& story, const TheOutside&) {
                 Offer(story, 3, Answer::Yes);
                 AddRunStory({}).Until(story, 0);
                 story.Click("FrParMec", "cmdAceptar")
                     .Box("Missing Tags...",
                          "Error : There are not enough available tags to make this configuration, please "
                          "make "
                          "more tags available using the I/O Workshop",
                          Icon::None)
                     .SeeShown("Step", false);
                 SeeImage(story, RunNode(3), "NoRun");
             }});
}

const std::string moduleLines =
    "ERROR: The number of available tags/modules is below the minimum required for the flow computer "
    "software.\r\nPlease make sure that at least the following I/O memory is available for the flow computer "
    "software usage:\r\n- One LI or LO Virtual Module containing 8 registers\r\n- One AI or AO Virtual "
    "Module "
    "containing 32 registers\r\n- One FI or FO Virtual Module containing 128 registers\r\n";
const std::string linesOfAGA3 =
    "- 8 FI or FO, 1 AI or AO and 1 DI or DO registers per enabled flow calculation run\r\n- 13 FI or FO, 2 "
    "AI "
    "or AO and 1 DI or DO registers if AGA-8  calculation block is enabled\r\n- 34 FI or FO, 2 AI or AO and "
    "1 "
    "DI or DO registers if AGA-8 is enabled and gas composition source is from an external gas chromatograph";
const std::string linesOfAGA7 = "- 5 FI or FO, 1 AI or AO, 1 LI or LO and 1 DI or DO registers per enabled "
                                "flow calculation run\r\n- 12 FI "
                                "or FO, 2 AI or AO, 1 LI or LO and 1 DI or DO registers if AGA-8  "
                                "calculation block is enabled\r\n- 33 FI "
                                "or FO, 2 AI or AO, 1 LI or LO and 1 DI or DO registers if AGA-8 is enabled "
                                "and gas composition source is "
                                "from an external gas chromatograph";

Scenario TooSmall(const std::string& golden, const std::string& standard, const std::string& lines) {
    return TheScenario(
        {.Name = "no_run_is_added_to_a_station_too_small_for_" + golden,
         .Golden = golden,
         .Beside = [](FakeProgram& program) { program.Library.TagsOf["North"] = LargeStationTags(5); },
         .Tell =
             [=](Story& story, const TheOutside& outside) {
                 // The tags that the enabled runs name are not there either; a check of them is not this one.
                 for (const char* run : {"Run2", "Run5"})
                     story.Do("turn a run off", [=](Driver&) { outside->Put("FlowRuns", run, "No"); });
                 Offer(story, 3, Answer::Yes);
                 story.Box("Error: Configuring " + standard, moduleLines + lines, Icon::None);
                 SeeImage(story, RunNode(3), "NoRun");
             },
         .Changes =
             [](FileText& file) { file.Set("FlowRuns", "Run2", "No").Set("FlowRuns", "Run5", "No"); }});
}

Scenario FileHasGone() {
    return TheScenario(
        {.Name = "an_added_run_does_not_make_a_file_that_has_gone",
         .Golden = "aga7_densimeter",
         .Tell = [](Story& story, const TheOutside& outside) {
             const AddRunStory adding({.Standard = 1});
             Offer(story, 3, Answer::Yes);
             adding.Until(story, 1);
             story.Do("take the file away",
                      [=](Driver&) { outside->Program->Files.Content.erase(Outside::File()); });
             adding.Dialogs().back().GoThrough(story);
             AddRunStory::Finish(story, Answer::Yes);
             story.Box("Gas Flow Computer",
                       "The run was not saved. The configuration file of the station is not there any "
                       "more:\r\n" +
                           Outside::File(),
                       Icon::Exclamation);
             SeeImage(story, moves::NorthNode, "StationNoConfig");
             story.Do("bring it back",
                      [=](Driver&) { outside->Content() = Golden("wizard/aga7_densimeter.ini"); });
         }});
}

} // namespace

std::vector<Scenario> AddedRunScenarios() {
    std::vector<Scenario> all;
    for (const Way& way : allWays)
        all.push_back(Added(way.Golden, way.Added));
    const Way& composition = allWays[0];
    for (std::size_t at = 0; at < AddRunStory(composition.Added).Dialogs().size(); ++at)
        all.push_back(CancelledAt(composition, at));
    const Way& accelabar = allWays[2];
    for (const std::size_t at : {0U, 3U})
        all.push_back(CancelledAt(accelabar, at));
    for (auto* scenario : {&NotSaved, &TooFewTags, &FileHasGone})
        all.push_back((*scenario)());
    all.push_back(TooSmall("aga3_densimeter", "AGA3", linesOfAGA3));
    all.push_back(TooSmall("aga7_densimeter", "AGA7", linesOfAGA7));
    return all;
}

} // namespace gfc::test
