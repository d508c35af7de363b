#include "binding/RequiredTags.h"

#include "binding/Catalogue.h"
#include "config/Vocabulary.h"

namespace gfc::binding {

namespace {

constexpr int AllKinds = 5;

void AddRunInputs(TagCounts& counts, const Conditions& run) {
    counts.Digital += 3;
    if (run.Measured)
        counts.Float += 1;
    if (run.FlowAlgorithm == config::algorithm::AGA3) {
        counts.Float += run.ExtMech ? 5 : 3;
    } else if (run.FlowAlgorithm == config::algorithm::AGA7) {
        counts.Long += 1;
        counts.Float += run.Measured ? 0 : 2;
    } else if (run.FlowAlgorithm == config::algorithm::SYT6143) {
        counts.Float += (run.ExtMech ? 5 : 3) + 2;
    } else if (run.FlowAlgorithm == config::algorithm::Accelabar) {
        counts.Float += 3;
    }
}

void AddGasInputs(TagCounts& counts, const Conditions& run) {
    if (run.Measured || !run.CompositionMeasured)
        return;
    counts.Digital += 1;
    if (config::IsDetail(run.GasDensitySource))
        counts.Float += config::Components;
    else if (config::IsGasModel(run.GasDensitySource))
        counts.Float += 4;
}

} // namespace

TagCounts CountRequiredTags(const config::StationConfig& station, int element, int kind) {
    const Conditions run = ConditionsOf(station, element);
    TagCounts counts;
    if (kind == 1 || kind == AllKinds)
        AddRunInputs(counts, run);
    if (kind == 2 || kind == AllKinds) {
        counts.Analog += 1;
        counts.Float += 4;
    }
    if (kind == 3 || kind == AllKinds)
        AddGasInputs(counts, run);
    if ((kind == 4 || kind == AllKinds) && !run.Measured) {
        counts.Analog += 1;
        counts.Float += 7;
    }
    return counts;
}

TagCounts NeededTags(BindingStage stage, const config::StationConfig& station, int element) {
    switch (stage) {
    case BindingStage::RunInputs:
        return CountRequiredTags(station, element, 1);
    case BindingStage::RunOutputs:
        return CountRequiredTags(station, element, 2);
    case BindingStage::GasInputs:
        return CountRequiredTags(station, element, 3);
    case BindingStage::GasOutputs:
        return CountRequiredTags(station, element, 4);
    case BindingStage::CommonInputs:
        return {.Float = 1};
    case BindingStage::None:
        break;
    }
    return {};
}

} // namespace gfc::binding
