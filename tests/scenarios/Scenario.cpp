#include "scenarios/Scenario.h"

namespace gfc::test {

std::vector<Scenario> AllScenarios() {
    std::vector<Scenario> all;
    for (auto* part : {&StartUpScenarios, &SummaryScenarios, &WizardPageScenarios, &BindingScenarios,
                       &EditorScenarios, &CancelScenarios}) {
        auto scenarios = (*part)();
        all.insert(all.end(), scenarios.begin(), scenarios.end());
    }
    return all;
}

} // namespace gfc::test
