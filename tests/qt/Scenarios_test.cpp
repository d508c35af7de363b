#include "forms/program/StartUp.h"
#include "qt/support/StoryScreen.h"
#include "scenarios/Scenario.h"

#include <gtest/gtest.h>

namespace gfc::test {

class InWindows : public ::testing::TestWithParam<Scenario> {};

TEST_P(InWindows, plays) {
    const Scenario& scenario = GetParam();
    StoryScreen screen;
    FakeProgram program(screen);
    scenario.Prepare(program);
    scenario.Tell(screen.TheStory);
    forms::StartProgram(program.Program);
    screen.RunToEnd();
    EXPECT_TRUE(screen.Ended());
    scenario.After(program);
}

INSTANTIATE_TEST_SUITE_P(Scenarios, InWindows, ::testing::ValuesIn(AllScenarios()),
                         [](const auto& scenario) { return scenario.param.Name; });

} // namespace gfc::test
