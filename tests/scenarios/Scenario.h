#pragma once

#include "support/Story.h"
#include "support/World.h"

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace gfc::test {

// One way through the whole program, from its start to its end, told once and played on both screens.
struct Scenario {
    std::string Name;
    // The machine, the tool's project and the files, as they are before the program starts.
    std::function<void(FakeProgram&)> Prepare;
    std::function<void(Story&)> Tell;
    // What the program has left behind.
    std::function<void(FakeProgram&)> After;
};

// For the lists of test runners.
void PrintTo(const Scenario& scenario, std::ostream* out);

[[nodiscard]] std::vector<Scenario> StartUpScenarios();
[[nodiscard]] std::vector<Scenario> WizardPageScenarios();
[[nodiscard]] std::vector<Scenario> BindingScenarios();
[[nodiscard]] std::vector<Scenario> EditorScenarios();
[[nodiscard]] std::vector<Scenario> CancelScenarios();
[[nodiscard]] std::vector<Scenario> SummaryScenarios();
[[nodiscard]] std::vector<Scenario> CapacityScenarios();
[[nodiscard]] std::vector<Scenario> BindingFieldScenarios();
[[nodiscard]] std::vector<Scenario> UnitScenarios();
[[nodiscard]] std::vector<Scenario> GasEditorScenarios();
[[nodiscard]] std::vector<Scenario> WizardFileScenarios();
[[nodiscard]] std::vector<Scenario> RunCommandScenarios();
[[nodiscard]] std::vector<Scenario> AddedRunScenarios();
[[nodiscard]] std::vector<Scenario> CopyScenarios();
[[nodiscard]] std::vector<Scenario> DeleteScenarios();
[[nodiscard]] std::vector<Scenario> ConfigureScenarios();
[[nodiscard]] std::vector<Scenario> ConfiguradorScenarios();
[[nodiscard]] std::vector<Scenario> ModifyTagsScenarios();
[[nodiscard]] std::vector<Scenario> ModifyTrialScenarios();
[[nodiscard]] std::vector<Scenario> ModifyCancelScenarios();
[[nodiscard]] std::vector<Scenario> UnstoredScenarios();
[[nodiscard]] std::vector<Scenario> AllScenarios();

} // namespace gfc::test
