#include "audit/KnownKeys.h"
#include "audit/Subject.h"
#include "config/CommonLayout.h"
#include "services/CodePage.h"
#include "services/Text.h"

#include <algorithm>
#include <array>

namespace gfc::audit {

namespace {

constexpr std::array Methods = {"FlowAlgorithm", "GasDensitySource", "SystemUnits"};

bool IsMethod(std::string_view key) {
    return std::ranges::find(Methods, key) != Methods.end();
}

void CheckFlags(const Subject& subject, Sink& sink) {
    for (const RunSubject& run : subject.Runs()) {
        sink.About(run.Number, true, "FlowRuns");
        const std::string configured = run.Section + std::to_string(run.Number);
        if (run.On && !run.Configured)
            sink.Add(RuleId::RunNotConfigured, {configured}, {configured});
        if (run.Configured && !run.HasSection) {
            sink.About(run.Number, run.On, "FlowRuns");
            sink.Add(RuleId::RunWithoutSection, {configured});
        }
        if (run.HasSection && !run.On && !run.Configured)
            sink.Add(RuleId::RunLeftOver, {});
    }
    sink.AboutStation("FlowRuns");
    if (std::ranges::none_of(subject.Runs(), &RunSubject::On))
        sink.Add(RuleId::NoRunOn, {});
}

void Compare(std::string_view key, const std::string& here, const std::string& common, Sink& sink) {
    if (here == common)
        return;
    const RuleId rule = IsMethod(key) ? RuleId::CopyOfMethod : RuleId::CopyOfValue;
    sink.Add(rule, {key, here}, {key, here, common});
}

// The common text of a key of the run that is a copy; null for a key of the run's own. Compressible may
// differ: a full write calls the gas compressible for the station, whatever was chosen.
const std::string* CommonOf(const config::RunRow& row, config::BindingPart part,
                            const config::StationConfig& station) {
    if (const auto* copy = std::get_if<config::CommonCopy>(&row.Field))
        return row.Name == "Compressible" ? nullptr : &(station.*copy->Value);
    if (const auto* shared = std::get_if<config::SharedBinding>(&row.Field))
        return &config::PartOf(station.*shared->Common, part);
    return nullptr;
}

void CheckCopies(const FileSection& section, const RunSubject& run, const config::StationConfig& station,
                 Sink& sink) {
    for (const config::RunRow& row : config::RunRows()) {
        if (!config::GroupPresent(row.Group, station, run.Mechanical))
            continue;
        config::ForEachPart(row, [&](config::BindingPart part) {
            const std::string* common = CommonOf(row, part, station);
            if (common == nullptr)
                return;
            const std::string key = config::KeyOf(row, part, config::KeyUse::FullWrite);
            const auto entry = std::ranges::find_if(
                section.Entries, [&](const auto& e) { return services::EqualBytesNoCase(e.Key, key); });
            if (entry != section.Entries.end())
                Compare(key, services::FromCodePage(entry->Value), *common, sink);
        });
    }
}

} // namespace

void CheckRuns(const Subject& subject, Sink& sink) {
    const config::StationConfig& station = subject.Station();
    CheckFlags(subject, sink);
    if (subject.Text().Find("FlowRuns") != nullptr) {
        Compare("GasDensityStandardT", station.GasDensityStandardT, station.StandardT, sink);
        Compare("GasDensityStandardP", station.GasDensityStandardP, station.StandardP, sink);
    }
    for (const RunSubject& run : subject.Runs())
        if (run.IsThere()) {
            sink.About(run.Number, run.On, run.Section);
            CheckCopies(*subject.Text().Find(run.Section), run, station, sink);
        }
}

} // namespace gfc::audit
