#include "audit/KnownKeys.h"

#include "config/Vocabulary.h"

namespace gfc::audit {

namespace {

constexpr char NoGroup = 'Z';

} // namespace

void KnownKeys::Add(std::string name, Row row) {
    names_.push_back(std::move(name));
    rows_.push_back(row);
}

void KnownKeys::Close() {
    table_ = platform::NameTable({names_.begin(), names_.end()});
}

const KnownKeys& KnownKeys::OfCommon(config::CommonSection section) {
    static const auto tables = [] {
        std::vector<KnownKeys> all;
        for (int kind = 0; kind < 5; ++kind)
            all.push_back(KnownKeys());
        for (const config::CommonRow& row : config::CommonRows())
            all[static_cast<std::size_t>(row.Section)].Add(std::string(row.Key), {NoGroup, false, false});
        // What the disabling of runs leaves of a fault of the atmospheric pressure.
        all[static_cast<std::size_t>(config::CommonSection::FlowRuns)].Add("AGA3", {NoGroup, false, true});
        for (KnownKeys& keys : all)
            keys.Close();
        return all;
    }();
    return tables[static_cast<std::size_t>(section)];
}

const KnownKeys& KnownKeys::OfRun() {
    static const KnownKeys keys = [] {
        KnownKeys all;
        for (const config::RunRow& row : config::RunRows())
            config::ForEachPart(row, [&](config::BindingPart part) {
                all.Add(config::KeyOf(row, part, config::KeyUse::FullWrite),
                        {row.Group, config::IsBinding(row), false});
            });
        // Read, and written by nothing: the one makes the check ask for roughness and service time, the
        // others are hydrogen of the detail family.
        all.Add("ExtCCorrFactors", {'M', false, true});
        for (const char* part : {"Tag", "Type", "Addr"})
            all.Add(std::string("GC_H2KDIO") + part, {'R', true, true});
        all.Close();
        return all;
    }();
    return keys;
}

PresentGroups::PresentGroups(const config::StationConfig& station, const config::RunMechanical& mechanical)
    : isAccelabar_(station.FlowAlgorithm == config::algorithm::Accelabar) {
    for (char group = 'A'; group <= 'U'; ++group)
        if (config::GroupPresent(group, station, mechanical))
            has_ |= BitOf(group);
}

} // namespace gfc::audit
