#include "config/ConfigWriter.h"

#include "config/CommonLayout.h"
#include "config/RunLayout.h"
#include "config/Vocabulary.h"

namespace gfc::config {
namespace {

void WriteCommonSection(FileIni& ini, const StationConfig& station, CommonSection section,
                        const std::string& file) {
    std::vector<KeyValue> body;
    for (const CommonRow& row : CommonRows())
        if (row.Section == section)
            body.push_back({std::string(row.Key), CommonTextOf(row.Written, station)});
    ini.WriteSection(SectionToWrite(section, station), body, file);
}

void AppendRow(std::vector<KeyValue>& body, const RunRow& row, const RunSource& from) {
    ForEachPart(row, [&](BindingPart part) {
        body.push_back({KeyOf(row, part, KeyUse::FullWrite), TextOf(row, part, from)});
    });
}

} // namespace

void WriteCommonSections(FileIni& ini, const StationConfig& station, const std::string& file) {
    const FileBatch batch(ini, file);
    for (const auto section :
         {CommonSection::General, CommonSection::Station, CommonSection::FlowRuns, CommonSection::Flow})
        WriteCommonSection(ini, station, section, file);
    if (IsGasModel(station.GasDensitySource))
        WriteGasSection(ini, station, file);
}

void WriteGasSection(FileIni& ini, const StationConfig& station, const std::string& file) {
    WriteCommonSection(ini, station, CommonSection::Gas, file);
}

void WriteRunSection(FileIni& ini, const StationConfig& station, const std::string& file, int run,
                     int element) {
    const RunIO noIO;
    const RunGas noGas;
    const RunMechanical noMechanical;
    const RunSource from{station, ElementOr(station.Runs.IO, element, noIO),
                         ElementOr(station.Runs.Gas, element, noGas),
                         ElementOr(station.Runs.Mechanical, element, noMechanical)};
    std::vector<KeyValue> body;
    for (const RunRow& row : RunRows())
        if (GroupPresent(row.Group, station, from.Mechanical))
            AppendRow(body, row, from);
    ini.WriteSection(RunSection(run + 1), body, file);
}

void SaveWholeConfiguration(FileIni& ini, const StationConfig& station, const std::string& file) {
    const FileBatch batch(ini, file);
    WriteCommonSections(ini, station, file);
    int element = 0;
    for (int run = 0; run < MaxRuns; ++run)
        if (station.RunList[static_cast<std::size_t>(run)].Flag == Yes) // exact, unlike IsRunActive
            WriteRunSection(ini, station, file, run, element++);
}

} // namespace gfc::config
