#include "audit/Bindings.h"

#include "config/Vocabulary.h"
#include "services/Text.h"

#include <algorithm>

namespace gfc::audit {

namespace {

using binding::BindingStage;
using binding::VariableRow;

bool SaysYes(std::string_view text) {
    return services::EqualNoCase(text, config::Yes);
}

// By the file's own texts, as the check reads them.
binding::Conditions CommonConditions(const config::StationConfig& station) {
    binding::Conditions conditions;
    conditions.FlowAlgorithm = station.FlowAlgorithm;
    conditions.GasDensitySource = station.GasDensitySource;
    conditions.Measured = station.Measured;
    conditions.CompositionMeasured = station.AGA8CalInput == config::CompositionMeasured;
    conditions.ExtAtmPress = SaysYes(station.ExtAtmPress);
    return conditions;
}

const config::TagBinding& BindingOf(const VariableRow& row, const RunSubject& run) {
    if (const auto* slot = std::get_if<config::GasSlot>(&row.Where))
        return run.Gas[*slot];
    return run.IO.*std::get<config::TagBinding config::RunIO::*>(row.Where);
}

void AddRun(const RunSubject& run, binding::Conditions conditions, std::vector<Bound>& all) {
    conditions.ExtMech = SaysYes(run.Mechanical.ExtMechParam);
    for (const auto stage : {BindingStage::RunInputs, BindingStage::RunOutputs, BindingStage::GasInputs,
                             BindingStage::GasOutputs})
        for (const VariableRow* row : binding::TreeRows(stage, conditions))
            all.push_back({row, &BindingOf(*row, run), run.Number, run.On, run.Section,
                           row->Presence.InCheck(conditions)});
}

// The check asks for it in the section AGA3 alone, so that AGA-7, whose section is another, is passed over.
bool ChecksPressure(const binding::Conditions& conditions) {
    return config::IsOrificeAlgorithm(conditions.FlowAlgorithm) &&
           binding::CommonPressureRow().Presence.InCheck(conditions);
}

} // namespace

bool Bound::IsOutput() const {
    return Row->Stage == BindingStage::RunOutputs || Row->Stage == BindingStage::GasOutputs;
}

std::string Bound::WhoseRun() const {
    return Run == 0 ? "the station" : "run " + std::to_string(Run);
}

std::vector<Bound> BindingsOf(const Subject& subject) {
    const config::StationConfig& station = subject.Station();
    const binding::Conditions conditions = CommonConditions(station);
    std::vector<Bound> all;
    // A turbine with a densimeter reads no pressure.
    const bool readsPressure = !(station.FlagAGA7 && station.Measured);
    if (conditions.ExtAtmPress && readsPressure)
        all.push_back({&binding::CommonPressureRow(), &station.CommonPa, 0, true,
                       station.FlagAGA7 ? "AGA7" : "AGA3", ChecksPressure(conditions)});
    for (const RunSubject& run : subject.Runs())
        if (run.IsThere())
            AddRun(run, conditions, all);
    return all;
}

void About(const Bound& bound, Sink& sink) {
    sink.About(bound.Run, bound.On, std::string(bound.Section));
}

Finding& Add(Sink& sink, RuleId rule, const Bound& bound, std::initializer_list<std::string_view> words) {
    About(bound, sink);
    return sink.Add(rule, {bound.Row->TagKey(), bound.Binding->RegAddr, bound.Binding->Tag}, words);
}

} // namespace gfc::audit
