// The configuring command, up to the window that it leads to.
#include "scenarios/Moves.h"
#include "scenarios/StoredStation.h"
#include "support/Room.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using moves::Choose;
using moves::NorthNode;
using moves::SeeImage;
using ui::Answer;
using ui::Icon;

const std::string form = "Configurador";

void CancelIt(Story& story) {
    story.Menu(form, "Salir2")
        .Box("Orm Gas Flow Computer", "", Icon::None, Answer::Yes)
        .SeeShown(form, false)
        .SeeShown("GFCPrincipal");
}

// Of a station without a configuration, on those tags.
Scenario OnTags(const std::string& name, const project::TagList& tags, std::function<void(Story&)> acts) {
    return {name, [tags](FakeProgram& program) { program.AddStation("North", tags); },
            [acts = std::move(acts)](Story& story) {
                moves::StartUp(story);
                Choose(story, NorthNode, "ConfigPar");
                acts(story);
                moves::Exit(story);
            },
            [](FakeProgram& program) { EXPECT_TRUE(program.Files.Content.empty()); }};
}

// One message, where the wizard gives two; and no station is open behind it.
Scenario Refused(const std::string& name, const project::TagList& tags, project::ShortageKind kind) {
    return OnTags(name, tags, [kind](Story& story) {
        moves::ShortageBox(story, kind, 1);
        story.SeeShown(form, false).SeeShown("FrModificarTags", false).SeeShown("GFCPrincipal");
        SeeImage(story, NorthNode, "StationNoConfig");
    });
}

// Every float that there is stands in a module that is not virtual.
project::TagList WithoutWorkingModules() {
    return TagsInModule("FI-8", "Physical FI", "FX", "FP-", 40);
}

// How many runs the station carries is estimated by other numbers than those of the first standard's test.
Scenario BeginsOn(const std::string& name, const Room& room, const std::string& maximum,
                  const std::string& standard) {
    return OnTags(name, TagsOf(room), [=](Story& story) {
        if (!maximum.empty())
            story.Box("Gas Flow Computer", maximum, Icon::Information);
        story.SeeText(form, "CombStandard", standard).SeeText(form, "cbSourceGas", "Densimeter");
        CancelIt(story);
    });
}

Scenario AllStations() {
    return TheScenario(
        {.Name = "configure_asks_for_one_station", .Tell = [](Story& story, const TheOutside&) {
             Choose(story, "All Stations", "ConfigPar");
             story.Box("Orm Gas Flow Computer", "Please select one Station.", Icon::None);
         }});
}

// Nothing is said of the number of runs, and of the tags neither.
Scenario StoredOne() {
    return TheScenario(
        {.Name = "configure_opens_a_stored_configuration",
         .Tell = [](Story& story, const TheOutside& outside) {
             story.Do("rename a tag", [=](Driver&) { outside->RenameTag("FT-2", "renamed"); });
             for (const auto& node : {NorthNode, NorthNode + "\\Common Parameters"}) {
                 Choose(story, node, "ConfigPar");
                 story.SeeCaption(form, "Parameter Configurator   Station : North").Check([=](Driver&) {
                     const auto& floats = outside->Program->Session.Expected.ExpectedFloat;
                     ASSERT_FALSE(floats.empty());
                     EXPECT_FALSE(floats.at(1).Found) << floats.at(1).Tag;
                 });
                 CancelIt(story);
             }
         }});
}

} // namespace

std::vector<Scenario> ConfigureScenarios() {
    return {
        AllStations(),
        StoredOne(),
        Refused("configure_refuses_a_station_without_working_modules", WithoutWorkingModules(),
                project::ShortageKind::AGA7),
        Refused("configure_refuses_a_station_too_small_for_both", TagsOf({5, 1, 3, 1}),
                project::ShortageKind::AGA3Family),
        BeginsOn("configure_begins_on_the_orifice", {17, 1, 3, 0}, "", "AGA-3 1992"),
        BeginsOn("configure_begins_on_the_turbine", {6, 1, 3, 1}, "Only one Run can be configured", "AGA-7")};
}

} // namespace gfc::test
