#include "forms/program/StartUp.h"
#include "forms/station/PassStory.h"
#include "qt/support/KeyboardDriver.h"
#include "qt/support/Reading.h"
#include "qt/support/StoryScreen.h"
#include "scenarios/Moves.h"
#include "scenarios/Scenario.h"
#include "support/TestFolders.h"

#include <QApplication>
#include <QDialog>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace gfc::test {

class InWindows : public ::testing::TestWithParam<Scenario> {};

namespace {

void Play(const Scenario& scenario, StoryScreen& screen) {
    FakeProgram program(screen);
    scenario.Prepare(program);
    scenario.Tell(screen.TheStory);
    forms::StartProgram(program.Program);
    screen.RunToEnd();
    EXPECT_TRUE(screen.Ended());
    scenario.After(program);
}

// Whatever is shown on the way can be read, also by a screen reader.
void LookAtWindows(std::set<std::string>& complaints) {
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || qobject_cast<const QDialog*>(window) != nullptr)
            continue;
        for (const auto& complaint : CutTexts(*window))
            complaints.insert(complaint);
        for (const auto& complaint : Unnamed(*window))
            complaints.insert(complaint);
    }
}

} // namespace

TEST_P(InWindows, plays) {
    StoryScreen screen;
    std::set<std::string> complaints;
    screen.BeforeStep = [&complaints] { LookAtWindows(complaints); };
    Play(GetParam(), screen);
    EXPECT_THAT(complaints, ::testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Scenarios, InWindows, ::testing::ValuesIn(AllScenarios()),
                         [](const auto& scenario) { return scenario.param.Name; });

class ByKeysAlone : public ::testing::TestWithParam<Scenario> {};

TEST_P(ByKeysAlone, plays) {
    StoryScreen screen(std::make_unique<KeyboardDriver>());
    Play(GetParam(), screen);
}

namespace {

// Another run's record is deliberately copied by the press of a mouse button alone; and nobody tabs past a
// field that looks at another one.
const std::set<std::string> withTheMouse{
    "mechanical_parameters_by_hand_and_by_copy", "accelabar_parameters_by_hand_and_by_default",
    "accelabar_parameters_are_checked_and_copied", "gas_composition_fields_check_each_other"};

std::vector<Scenario> WithoutAMouse() {
    auto scenarios = AllScenarios();
    std::erase_if(scenarios, [](const Scenario& each) { return withTheMouse.contains(each.Name); });
    return scenarios;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Scenarios, ByKeysAlone, ::testing::ValuesIn(WithoutAMouse()),
                         [](const auto& scenario) { return scenario.param.Name; });

// From the tree of the main window to the file, byte for byte.
TEST(ByKeys, a_station_is_configured_from_splash_to_exit) {
    const PassStory pass({.Standard = 0, .Source = 1, .Runs = {2, 5}});
    StoryScreen screen(std::make_unique<KeyboardDriver>());
    FakeProgram program(screen);
    moves::ThreeStations(program);
    moves::StartUp(screen.TheStory);
    moves::OpenWizard(screen.TheStory, "North");
    moves::SelectRuns(screen.TheStory, {2, 5});
    screen.TheStory.Select("WizardFC", "CombStandard", 0).Select("WizardFC", "cbSourceGas", 1);
    pass.WalkPages(screen.TheStory);
    pass.Open(screen.TheStory);
    pass.Through(screen.TheStory);
    moves::SaveAndClose(screen.TheStory);
    moves::Exit(screen.TheStory);
    forms::StartProgram(program.Program);
    screen.RunToEnd();
    EXPECT_EQ(program.Files.Content[program.ConfigFile("North")], Golden("wizard/aga3_aga8_fixed.ini"));
}

} // namespace gfc::test
