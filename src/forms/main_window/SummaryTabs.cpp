#include "forms/main_window/SummaryTabs.h"

#include "binding/SummaryRun.h"
#include "config/ConfigReader.h"
#include "config/Vocabulary.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/main_window/StationNodes.h"
#include "platform/Machine.h"
#include "services/modLocalTimeAndGMT.h"

namespace gfc::forms {

namespace {

using binding::SummaryPage;

constexpr int numberColumnWidth = 5;

SummaryPage RunPage(const config::StationConfig& station, int tab) {
    using PageOf = SummaryPage (*)(const config::StationConfig&);
    static constexpr PageOf pages[] = {binding::RunInputsPage, binding::RunOutputsPage,
                                       binding::GasInputsPage, binding::GasOutputsPage,
                                       binding::RunParametersPage};
    return pages[tab](station);
}

} // namespace

void SummaryTabs::LookAt(const std::string& station, int run) {
    station_ = station;
    run_ = run;
}

config::StationConfig SummaryTabs::Read() const {
    const auto& project = program_.Session.Project;
    config::StationConfig station;
    station.ProjectFile = project.ProjectFile;
    station.ProjectName = project.ProjectName;
    station.CurrentStation = station_;
    config::LoadStationConfig(program_.Ini, station, File());
    if (run_ > 0)
        config::LoadRun(program_.Ini, station, File(), run_);
    return station;
}

void SummaryTabs::FillCommon() {
    // The first page reads a few keys of each enabled run besides.
    const config::FileBatch batch(program_.Ini, File());
    const auto station = Read();
    window_.StatusBar1.SetPanelText(1, std::string(node::CommonParameters) + " (" + station_ + ")");
    switch (window_.SSTab1.Tab()) {
    case 0:
        return Show(binding::CommonParametersPage(station, ReadEnabledRuns(station)));
    case 1:
        return Show(binding::WorkingModulesPage(station));
    default:
        return Show(binding::GasDensityPage(station));
    }
}

void SummaryTabs::FillRun() {
    const config::FileBatch batch(program_.Ini, File());
    const auto station = Read();
    window_.StatusBar1.SetPanelText(1, std::string(node::IndividualParameters) + " (" + station_ +
                                           ") : " + node::RunText(run_));
    const auto captions = binding::RunTabCaptions(station);
    auto& pane = window_.SSTab2;
    for (std::size_t tab = 0; tab < captions.size(); ++tab)
        pane.SetTabCaption(static_cast<int>(tab), captions[tab]);
    Show(RunPage(station, pane.Tab()));
}

std::vector<binding::EnabledRun> SummaryTabs::ReadEnabledRuns(const config::StationConfig& station) const {
    std::vector<binding::EnabledRun> runs;
    for (int run = 1; run <= config::MaxRuns; ++run)
        // As in the tree, a run is enabled by exactly this word.
        if (station.Run.at(static_cast<std::size_t>(run - 1)) == config::Yes)
            runs.push_back(ReadRun(run, File()));
    return runs;
}

binding::EnabledRun SummaryTabs::ReadRun(int run, const std::string& file) const {
    const std::string section = "Run" + std::to_string(run);
    const auto read = [&](const char* key) { return program_.Ini.ReadKey(section, key, file); };
    const services::ContractTime stored{read("ContractHour"), read("ContractMin")};
    binding::EnabledRun summary{
        run, read("CalibrationFactor"), {}, read("meterKFactor"), read("GasDensityStandard")};
    // A run without any contract time shows none, instead of midnight.
    if (!stored.ContractHour.empty() || !stored.ContractMin.empty())
        summary.ContractTime =
            services::ContractTimeText(program_.Machine.Clock, program_.Machine.TimeZone, stored);
    return summary;
}

void SummaryTabs::Show(SummaryPage page) {
    window_.ClearLists();
    window_.Label1.SetCaption(page.Line);
    window_.Label1.SetVisible(!page.Line.empty());
    ui::ListView* const lists[] = {nullptr, &window_.ListView1, &window_.ListView2, &window_.ListView3};
    ui::ListView* const list = lists[static_cast<std::size_t>(page.List)];
    if (list == nullptr)
        return;
    std::vector<ui::ListView::Column> columns;
    for (const std::string& heading : page.Columns)
        columns.push_back({heading, columns.empty() ? numberColumnWidth : 0});
    list->AddColumns(std::move(columns));
    list->AddRows(std::move(page.Rows));
    list->SetVisible(true);
}

} // namespace gfc::forms
