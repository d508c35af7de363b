#include "config/ConfigReader.h"

#include "config/CommonLayout.h"
#include "config/RunLayout.h"
#include "config/Vocabulary.h"
#include "platform/ProfileKeys.h"

#include <array>
#include <cstdint>
#include <utility>
#include <variant>
#include <vector>

namespace gfc::config {
namespace {

// No writer makes these keys: under the detail family the slot deliberately loads empty.
constexpr RunRow HydrogenOfDetail{'R', "GC_H2", GasBinding{GasSlot::XH2}, "KDIOAddr"};

// Groups of a run's rows. In one word, since each key of a run is asked for its group.
class Groups {
public:
    explicit constexpr Groups(std::string_view letters) {
        for (const char letter : letters)
            bits_ |= BitOf(letter);
    }
    [[nodiscard]] constexpr bool Have(char letter) const { return (bits_ & BitOf(letter)) != 0; }

private:
    static constexpr std::uint32_t BitOf(char letter) { return std::uint32_t{1} << (letter - 'A'); }
    std::uint32_t bits_ = 0;
};

constexpr Groups Mechanical("BCDE");
constexpr Groups FixedOfDetail("T");
constexpr Groups FixedOfGross("S");
// Inputs and outputs are read whatever the algorithm.
constexpr Groups WithDetail("BCDEFGHIJKLMNOPURT");
constexpr Groups WithGross("BCDEFGHIJKLMNOPUQS");

struct RunKey {
    const RunRow* Row;
    BindingPart Part;
};

// Every key of a run's section, and what each is read into.
struct RunKeyTable {
    std::vector<RunKey> Keys;
    platform::ProfileKeys Names;
};

RunKeyTable MakeRunKeys() {
    std::vector<RunKey> keys;
    std::vector<std::string> names;
    const auto add = [&](const RunRow& row) {
        ForEachPart(row, [&](BindingPart part) {
            keys.push_back({&row, part});
            names.push_back(KeyOf(row, part, KeyUse::Read));
        });
    };
    for (const RunRow& row : RunRows())
        add(row);
    add(HydrogenOfDetail);
    return {std::move(keys), platform::ProfileKeys(std::move(names))};
}

void ReadGroups(const FileIni& ini, Groups groups, const RunTarget& to, const std::string& file, int run) {
    static const RunKeyTable table = MakeRunKeys();
    std::vector<std::string*> places;
    places.reserve(table.Keys.size());
    for (const auto& [row, part] : table.Keys)
        places.push_back(groups.Have(row->Group) ? PlaceOf(*row, part, to) : nullptr);
    ini.ReadKeys(RunSection(run), table.Names, file, places);
}

// The keys that are read of a common section, and what each is read into.
struct CommonKeyTable {
    std::vector<CommonField> Fields;
    platform::ProfileKeys Names;
};

CommonKeyTable MakeCommonKeys(CommonSection section) {
    std::vector<CommonField> fields;
    std::vector<std::string> names;
    for (const CommonRow& row : CommonRows())
        if (row.Section == section && !std::holds_alternative<NotRead>(row.Read)) {
            fields.push_back(row.Read);
            names.emplace_back(row.Key);
        }
    return {std::move(fields), platform::ProfileKeys(std::move(names))};
}

const CommonKeyTable& CommonKeys(CommonSection section) {
    using enum CommonSection;
    static const std::array<CommonKeyTable, 5> tables = {MakeCommonKeys(General), MakeCommonKeys(Station),
                                                         MakeCommonKeys(FlowRuns), MakeCommonKeys(Flow),
                                                         MakeCommonKeys(Gas)};
    return tables[static_cast<std::size_t>(section)];
}

} // namespace

void LoadStationConfig(const FileIni& ini, StationConfig& station, const std::string& file) {
    const FileBatch batch(ini, file);
    using enum CommonSection;
    // In this order: which section the later keys stand in is decided by what the earlier ones have read.
    for (const CommonSection section : {Station, FlowRuns, Flow, Gas}) {
        const CommonKeyTable& table = CommonKeys(section);
        const std::string name =
            section == Flow ? FlowSectionToRead(station) : SectionToWrite(section, station);
        std::vector<std::string*> places;
        for (const CommonField& field : table.Fields)
            places.push_back(CommonPlaceOf(field, station));
        ini.ReadKeys(name, table.Names, file, places);
    }
}

void LoadRun(const FileIni& ini, StationConfig& station, const std::string& file, int run) {
    station.Runs.PrepareSingleRun();
    const RunTarget to{station.Runs.IO.front(), station.Runs.Gas.front(), station.Runs.Mechanical.front(),
                       station.GasComposition};
    ReadGroups(ini, IsDetail(station.GasDensitySource) ? WithDetail : WithGross, to, file, run);
}

void LoadFixedComposition(const FileIni& ini, StationConfig& station, const std::string& file, int run) {
    RunIO io;
    RunGas gas;
    RunMechanical mechanical;
    const RunTarget to{io, gas, mechanical, station.GasComposition};
    ReadGroups(ini, IsDetail(station.GasDensitySource) ? FixedOfDetail : FixedOfGross, to, file, run);
}

RunMechanical LoadRunMechanical(const FileIni& ini, const std::string& file, int run) {
    RunIO io;
    RunGas gas;
    RunMechanical mechanical;
    ReadGroups(ini, Mechanical, {io, gas, mechanical, gas}, file, run);
    return mechanical;
}

} // namespace gfc::config
