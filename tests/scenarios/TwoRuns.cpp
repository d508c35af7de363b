#include "scenarios/TwoRuns.h"

#include <gtest/gtest.h>

namespace gfc::test {

Scenario TwoRuns(const std::string& name, const moves::Choices& choices, std::function<void(Story&)> first,
                 std::function<void(Story&)> second, std::function<void(FakeProgram&)> after) {
    return {name, moves::ThreeStations,
            [=](Story& story) {
                moves::StartUp(story);
                moves::OpenWizard(story, "North");
                moves::SelectRuns(story, {1, 2});
                moves::WalkPages(story, choices);
                moves::PassAllRuns(story, choices, {1, 2},
                                   [=](Story& s, int run) { run == 1 ? first(s) : second(s); });
                moves::SaveAndClose(story);
                moves::Exit(story);
            },
            std::move(after)};
}

std::function<void(FakeProgram&)> Holds(const std::string& section,
                                        std::vector<std::pair<std::string, std::string>> keys) {
    return [section, keys = std::move(keys)](FakeProgram& program) {
        for (const auto& [key, value] : keys) {
            EXPECT_EQ(program.Program.Ini.ReadKey(section, key, program.ConfigFile("North")), value) << key;
        }
    };
}

} // namespace gfc::test
