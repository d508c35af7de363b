#include "binding/SummaryCommon.h"
#include "binding/SummaryRun.h"
#include "config/ConfigReader.h"
#include "config/Vocabulary.h"
#include "fuzz/Input.h"
#include "fuzz/Target.h"
#include "services/CodePage.h"
#include "support/MemoryFiles.h"

#include <array>

// Any bytes as a station's file: read into the model, and shown in the summaries.
namespace gfc::fuzz {

namespace {

const std::string Path = "case.ini";

void CheckText(const std::string& text) {
    Require(services::CodePageHolds(text), "every text that is shown is sound");
}

void CheckPage(const binding::SummaryPage& page) {
    CheckText(page.Line);
    for (const auto& row : page.Rows) {
        Require(row.size() <= page.Columns.size(), "a row has no more cells than columns");
        for (const std::string& cell : row)
            CheckText(cell);
    }
}

binding::EnabledRun SummaryOf(const config::FileIni& ini, int run) {
    const std::string section = "Run" + std::to_string(run);
    const auto read = [&](const char* key) { return ini.ReadKey(section, key, Path); };
    return {run, read("CalibrationFactor"), read("ContractHour"), read("meterKFactor"),
            read("GasDensityStandard")};
}

void ShowCommon(const config::FileIni& ini, const config::StationConfig& station, int run) {
    const std::array runs = {SummaryOf(ini, run)};
    CheckPage(binding::CommonParametersPage(station, runs));
    CheckPage(binding::WorkingModulesPage(station));
    CheckPage(binding::GasDensityPage(station));
}

void ShowRun(const config::StationConfig& station) {
    using PageOf = binding::SummaryPage (*)(const config::StationConfig&);
    static constexpr std::array<PageOf, 5> pages = {binding::RunInputsPage, binding::RunOutputsPage,
                                                    binding::GasInputsPage, binding::GasOutputsPage,
                                                    binding::RunParametersPage};
    for (const PageOf pageOf : pages)
        CheckPage(pageOf(station));
    for (const std::string& caption : binding::RunTabCaptions(station))
        CheckText(caption);
}

} // namespace

void Reader(std::string_view bytes) {
    Input input(bytes);
    const std::size_t what = input.Byte();
    const int run = 1 + static_cast<int>(what % config::MaxRuns);
    test::MemoryFiles files;
    files.Content[Path] = input.Rest();
    const config::FileIni ini(files);
    config::StationConfig station;
    LoadStationConfig(ini, station, Path);
    if (what % 2 == 0) {
        ShowCommon(ini, station, run);
    } else {
        LoadRun(ini, station, Path, run);
        ShowRun(station);
    }
    Require(files.Replaces == 0, "to look at a file changes nothing");
}

} // namespace gfc::fuzz
