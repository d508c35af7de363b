#include "config/ConfigReader.h"

#include "config/CommonLayout.h"
#include "config/Overload.h"
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
    explicit consteval Groups(std::string_view letters) {
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

// Where the texts of a run's keys are in its records, kind by kind: to ask each row for every load of what
// kind its text is took as long as to go through a quarter of the file.
class RunPlaces {
public:
    // The place of the row's first key among all keys.
    void Add(std::size_t key, const RunRow& row) {
        const auto add = [&](auto& list, auto field) { list.push_back({key, row.Group, field}); };
        std::visit(Overload{
                       [&](CommonCopy field) {
                           if (field.Copy != nullptr)
                               add(mechanical_, field.Copy);
                       },
                       [&](std::string RunMechanical::*field) { add(mechanical_, field); },
                       [&](std::string RunIO::*field) { add(parameters_, field); },
                       [&](TagBinding RunIO::*field) { add(bindings_, field); },
                       [&](SharedBinding field) { add(bindings_, field.Own); },
                       [&](GasBinding field) { add(gasBindings_, field.Slot); },
                       [&](GasValue field) { add(fixedValues_, field.Slot); },
                   },
                   row.Field);
    }

    // One for each key; null where its text is not wanted. Of the run's own records such a text is emptied;
    // fixed values stay as they were.
    [[nodiscard]] std::vector<std::string*> Of(const RunTarget& to, Groups wanted, std::size_t keys) const {
        std::vector<std::string*> places(keys, nullptr);
        const auto put = [&](std::size_t key, char group, std::string& text) {
            if (wanted.Have(group))
                places[key] = &text;
            else
                text.clear();
        };
        const auto putParts = [&](std::size_t key, char group, TagBinding& binding) {
            put(key, group, binding.Tag);
            put(key + 1, group, binding.Type);
            put(key + 2, group, binding.RegAddr);
        };
        for (const auto& [key, group, field] : mechanical_)
            put(key, group, to.Mechanical.*field);
        for (const auto& [key, group, field] : parameters_)
            put(key, group, to.IO.*field);
        for (const auto& [key, group, field] : bindings_)
            putParts(key, group, to.IO.*field);
        for (const auto& [key, group, slot] : gasBindings_)
            putParts(key, group, to.Gas[slot]);
        for (const auto& [key, group, slot] : fixedValues_)
            if (wanted.Have(group))
                places[key] = &to.FixedValues[slot].Tag;
        return places;
    }

private:
    template <class Field>
    struct RowPlace {
        std::size_t Key;
        char Group;
        Field Where;
    };

    std::vector<RowPlace<std::string RunMechanical::*>> mechanical_;
    std::vector<RowPlace<std::string RunIO::*>> parameters_;
    std::vector<RowPlace<TagBinding RunIO::*>> bindings_;
    std::vector<RowPlace<GasSlot>> gasBindings_;
    std::vector<RowPlace<GasSlot>> fixedValues_;
};

// Every key of a run's section, and what each is read into.
struct RunKeyTable {
    platform::ProfileKeys Names;
    RunPlaces Places;
};

RunKeyTable MakeRunKeys() {
    std::vector<std::string> names;
    RunPlaces places;
    const auto add = [&](const RunRow& row) {
        places.Add(names.size(), row);
        ForEachPart(row, [&](BindingPart part) { names.push_back(KeyOf(row, part, KeyUse::Read)); });
    };
    for (const RunRow& row : RunRows())
        add(row);
    add(HydrogenOfDetail);
    return {platform::ProfileKeys(std::move(names)), std::move(places)};
}

void ReadGroups(const FileIni& ini, Groups groups, const RunTarget& to, const std::string& file, int run) {
    static const RunKeyTable table = MakeRunKeys();
    auto places = table.Places.Of(to, groups, table.Names.Count());
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
    std::vector<std::string*> places;
    places.reserve(CommonRows().size());
    // In this order: which section the later keys stand in is decided by what the earlier ones have read.
    for (const CommonSection section : {Station, FlowRuns, Flow, Gas}) {
        const CommonKeyTable& table = CommonKeys(section);
        const std::string name =
            section == Flow ? FlowSectionToRead(station) : SectionToWrite(section, station);
        places.clear();
        for (const CommonField& field : table.Fields)
            places.push_back(CommonPlaceOf(field, station));
        ini.ReadKeys(name, table.Names, file, places);
    }
}

void LoadRun(const FileIni& ini, StationConfig& station, const std::string& file, int run) {
    station.Runs.ArrangeSingleRun();
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
