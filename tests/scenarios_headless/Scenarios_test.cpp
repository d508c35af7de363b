#include "forms/program/StartUp.h"
#include "scenarios/Scenario.h"

#include <gtest/gtest.h>

namespace gfc::test {

class OnForms : public ::testing::TestWithParam<Scenario> {};

TEST_P(OnForms, plays) {
    const Scenario& scenario = GetParam();
    World world;
    scenario.Prepare(world);
    scenario.Tell(world.TheStory);
    forms::StartProgram(world.Program);
    world.Screen.RunToEnd();
    EXPECT_TRUE(world.Screen.Ended());
    scenario.After(world);
}

INSTANTIATE_TEST_SUITE_P(Scenarios, OnForms, ::testing::ValuesIn(AllScenarios()),
                         [](const auto& scenario) { return scenario.param.Name; });

} // namespace gfc::test
