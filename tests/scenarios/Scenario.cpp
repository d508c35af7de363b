#include "scenarios/Scenario.h"

#include <ostream>

namespace gfc::test {

namespace {

constexpr std::vector<Scenario> (*parts[])() = {
    StartUpScenarios,  SummaryScenarios,      WizardPageScenarios,  BindingScenarios,
    EditorScenarios,   CancelScenarios,       CapacityScenarios,    BindingFieldScenarios,
    UnitScenarios,     GasEditorScenarios,    WizardFileScenarios,  RunCommandScenarios,
    CopyScenarios,     ConfiguradorScenarios, ModifyTagsScenarios,  AddedRunScenarios,
    DeleteScenarios,   ConfigureScenarios,    ModifyTrialScenarios, ModifyCancelScenarios,
    UnstoredScenarios,
};

} // namespace

void PrintTo(const Scenario& scenario, std::ostream* out) {
    *out << scenario.Name;
}

std::vector<Scenario> AllScenarios() {
    std::vector<Scenario> all;
    for (const auto part : parts) {
        auto scenarios = part();
        all.insert(all.end(), scenarios.begin(), scenarios.end());
    }
    return all;
}

} // namespace gfc::test
