#include "config/ConfigReader.h"

#include "config/CommonLayout.h"
#include "config/RunLayout.h"
#include "config/Vocabulary.h"

namespace gfc::config {
namespace {

void ReadRow(const FileIni& ini, const RunRow& row, const RunTarget& to, const std::string& file, int run) {
    ForEachPart(row, [&](BindingPart part) {
        if (std::string* place = PlaceOf(row, part, to))
            *place = ini.ReadKey(RunSection(run), KeyOf(row, part, KeyUse::Read), file);
    });
}

void ReadGroups(const FileIni& ini, std::string_view groups, const RunTarget& to, const std::string& file,
                int run) {
    for (const RunRow& row : RunRows())
        if (groups.find(row.Group) != std::string_view::npos)
            ReadRow(ini, row, to, file, run);
}

// No writer makes these keys: under the detail family the slot deliberately loads empty.
constexpr RunRow HydrogenOfDetail{'R', "GC_H2", GasBinding{GasSlot::XH2}, "KDIOAddr"};

constexpr std::string_view MechanicalGroups = "BCDE";
constexpr std::string_view InputAndOutputGroups = "FGHIJKLMNO"; // whatever the algorithm
constexpr std::string_view GasGroups = "PU";

} // namespace

void LoadStationConfig(const FileIni& ini, StationConfig& station, const std::string& file) {
    const FileBatch batch(ini, file);
    // In table order: which section the later rows stand in is decided by what the earlier ones have read.
    for (const CommonRow& row : CommonRows()) {
        std::string* place = CommonPlaceOf(row.Read, station);
        if (place == nullptr)
            continue;
        const std::string section = row.Section == CommonSection::Flow ? FlowSectionToRead(station)
                                                                       : SectionToWrite(row.Section, station);
        *place = ini.ReadKey(section, row.Key, file);
    }
}

void LoadRun(const FileIni& ini, StationConfig& station, const std::string& file, int run) {
    const FileBatch batch(ini, file);
    station.Runs.PrepareSingleRun();
    const RunTarget to{station.Runs.IO.front(), station.Runs.Gas.front(), station.Runs.Mechanical.front(),
                       station.GasComposition};
    ReadGroups(ini, MechanicalGroups, to, file, run);
    ReadGroups(ini, InputAndOutputGroups, to, file, run);
    ReadGroups(ini, GasGroups, to, file, run);
    const bool detail = IsDetail(station.GasDensitySource);
    ReadGroups(ini, detail ? "R" : "Q", to, file, run);
    if (detail)
        ReadRow(ini, HydrogenOfDetail, to, file, run);
    LoadFixedComposition(ini, station, file, run);
}

void LoadFixedComposition(const FileIni& ini, StationConfig& station, const std::string& file, int run) {
    const FileBatch batch(ini, file);
    RunIO io;
    RunGas gas;
    RunMechanical mechanical;
    const RunTarget to{io, gas, mechanical, station.GasComposition};
    ReadGroups(ini, IsDetail(station.GasDensitySource) ? "T" : "S", to, file, run);
}

RunMechanical LoadRunMechanical(const FileIni& ini, const std::string& file, int run) {
    const FileBatch batch(ini, file);
    RunIO io;
    RunGas gas;
    RunMechanical mechanical;
    ReadGroups(ini, MechanicalGroups, {io, gas, mechanical, gas}, file, run);
    return mechanical;
}

} // namespace gfc::config
