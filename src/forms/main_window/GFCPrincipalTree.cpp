#include "audit/Check.h"
#include "config/ConfigReader.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/main_window/StationNodes.h"
#include "platform/Machine.h"
#include "platform/ProfileKeys.h"
#include "project/TagsMark.h"
#include "services/Counted.h"

#include <algorithm>
#include <array>

namespace gfc::forms {

namespace {

constexpr const char* NoConfigImage = "StationNoConfig";

std::string YesOrNo(bool yes) {
    return yes ? "Yes" : "No";
}

// The texts of the keys that say which runs are on. False if there is no file.
bool ReadRunFlags(const config::FileIni& ini, const std::string& file,
                  std::array<std::string, config::MaxRuns>& flags) {
    static const platform::ProfileKeys keys({"Run1", "Run2", "Run3", "Run4", "Run5"});
    std::array<std::string*, config::MaxRuns> places{};
    std::ranges::transform(flags, places.begin(), [](std::string& flag) { return &flag; });
    return ini.ReadFirstKeys("FlowRuns", keys, file, places);
}

} // namespace

void GFCPrincipal::ConnectPanes() {
    TreeGFC.OnNodeClick = [this](int clicked) { NodeClicked(clicked); };
    TreeGFC.OnMouseDown = [this](ui::MouseButton button) { TreePressed(button); };
    ListView1.OnRowOpened = [this](int row) { OpenStationRow(row); };
    SSTab1.OnClick = [this] { summary_.FillCommon(); };
    SSTab2.OnClick = [this] { summary_.FillRun(); };
}

void GFCPrincipal::RebuildAfterCommand() {
    TreeGFC.Clear();
    HidePanes();
    ClearLists();
    BuildTree();
    MarkRunNodes();
    TreeGFC.EnsureVisible(2);
    SelectRememberedNode();
}

// The commands go on working on the node that was selected last, so it is the one that shows as selected.
void GFCPrincipal::SelectRememberedNode() {
    const std::string& selected = session_.SelectedNodeText;
    if (selected.empty())
        return;
    TreeGFC.Select(selected == node::AllStations ? 1 : TreeGFC.FindPath(session_.SelectedPath));
    // A node that has gone with its file is no choice any more.
    if (TreeGFC.SelectedNode() == 0)
        session_.SelectedNodeText.clear();
    else if (selected != node::AllStations)
        // The command may have forgotten the station; the next one finds it selected.
        session_.Station.CurrentStation = StationOf(TreeGFC.SelectedNode());
}

void GFCPrincipal::HidePanes() {
    ListView2.SetVisible(false);
    ListView3.SetVisible(false);
    SSTab1.SetVisible(false);
    SSTab2.SetVisible(false);
    Label1.SetVisible(false);
}

void GFCPrincipal::ClearLists() {
    for (ui::ListView* list : std::initializer_list<ui::ListView*>{&ListView1, &ListView2, &ListView3}) {
        list->ClearRows();
        list->ClearColumns();
        list->SetVisible(false);
    }
    listShowsStations_ = ListView1.SortsByHeading = false;
}

void GFCPrincipal::BuildTree() {
    ListView1.SetVisible(true);
    ListView2.SetVisible(false);
    ListView3.SetVisible(false);
    const int root =
        TreeGFC.Add(0, "Stations", std::string(node::AllStations), ImageList1.Image(1), "CarpetaOpen");
    ForgetWhatChanged();
    const auto& stations = session_.Project.Stations;
    for (std::size_t i = 0; i < stations.size(); ++i)
        AddStation(root, stations[i], i);
    TreeGFC.SetExpanded(root, true);
    FillStationTable();
    ShowOverview();
}

void GFCPrincipal::ShowOverview() {
    const auto& nodes = TreeGFC.At(1).Children;
    const auto configured = std::ranges::count_if(
        nodes, [this](int station) { return TreeGFC.At(station).Image != NoConfigImage; });
    StatusBar1.SetPanelText(2, session_.Project.ProjectName + ": " + std::to_string(configured) + " of " +
                                   services::Counted(nodes.size(), "station", "stations") + " configured" +
                                   OpenFindings());
}

// Nothing is said as long as nothing was checked.
std::string GFCPrincipal::OpenFindings() const {
    if (checked_.empty())
        return {};
    std::size_t errors = 0;
    std::size_t warnings = 0;
    std::size_t stations = 0;
    for (const auto& [station, checked] : checked_) {
        errors += checked.Errors;
        warnings += checked.Warnings;
        stations += checked.Errors + checked.Warnings > 0 ? 1 : 0;
    }
    const auto& nodes = TreeGFC.At(1).Children;
    const auto unchecked = std::ranges::count_if(nodes, [this](int station) {
        return TreeGFC.At(station).Image != NoConfigImage && !checked_.contains(TreeGFC.At(station).Text);
    });
    const std::string found = "; open findings: " + services::Counted(errors, "error", "errors") + ", " +
                              services::Counted(warnings, "warning", "warnings") + " in " +
                              services::Counted(stations, "station", "stations");
    return (stations == 0 ? "; no open findings" : found) +
           (unchecked == 0 ? ""
                           : "; not checked: " + services::Counted(static_cast<std::size_t>(unchecked),
                                                                   "station", "stations"));
}

// A summary that shows in the same list has no rows that lead anywhere.
void GFCPrincipal::OpenStationRow(int row) {
    constexpr int stationName = 2;
    if (listShowsStations_)
        GoTo(ListView1.Cell(row, stationName), 0);
}

void GFCPrincipal::AddStation(int root, const project::Station& station, std::size_t index) {
    // One reading says whether the station is configured and which of its runs are on.
    RunFlags flags;
    const bool configured = ReadRunFlags(program_.Ini, session_.Project.ConfigFileOf(station.Name), flags);
    const int added = TreeGFC.Add(root, station.Name, station.Name,
                                  configured ? ConfiguredImage(station.Name) : NoConfigImage);
    TreeGFC.SetColour(added, configured ? ui::Colour::Blue : ui::Colour::Red);
    if (configured)
        AddStationChildren(added, station.Name, index, flags);
}

const char* GFCPrincipal::ConfiguredImage(const std::string& station) const {
    const auto checked = checked_.find(station);
    return checked != checked_.end() && checked->second.Errors > 0 ? "StationErrors" : "StationConfig";
}

std::optional<std::size_t> GFCPrincipal::FileMarkOf(const std::string& station) const {
    const auto bytes = program_.Machine.Files.Read(session_.Project.ConfigFileOf(station));
    return bytes ? std::optional(std::hash<std::string>()(*bytes)) : std::nullopt;
}

void GFCPrincipal::ForgetWhatChanged() {
    std::erase_if(checked_,
                  [this](const auto& entry) { return FileMarkOf(entry.first) != entry.second.FileMark; });
}

void GFCPrincipal::MarkChecked(std::span<const audit::StationReport* const> reports) {
    for (const audit::StationReport* report : reports)
        Remember(*report);
    ShowOverview();
}

void GFCPrincipal::Remember(const audit::StationReport& report) {
    checked_.erase(report.Station);
    if (const auto mark = FileMarkOf(report.Station))
        checked_[report.Station] = {*mark, report.TagsMark,
                                    audit::CountOf(report.Findings, audit::Severity::Error),
                                    audit::CountOf(report.Findings, audit::Severity::Warning)};
    ShowMark(report.Station);
}

void GFCPrincipal::TagsAnswered(const std::string& station, const project::TagList& tags) {
    const auto checked = checked_.find(station);
    if (checked == checked_.end() || project::MarkOf(tags) == checked->second.TagsMark)
        return;
    checked_.erase(checked);
    ShowMark(station);
    ShowOverview();
}

void GFCPrincipal::ShowMark(const std::string& station) {
    const int found = TreeGFC.FindPath(node::StationPath(station));
    if (found > 0 && TreeGFC.At(found).Image != NoConfigImage)
        TreeGFC.SetImage(found, ConfiguredImage(station));
}

void GFCPrincipal::GoTo(const std::string& station, int run) {
    const int stationNode = TreeGFC.FindPath(node::StationPath(station));
    const int runNode = run > 0 ? TreeGFC.FindPath(node::RunPath(station, run)) : 0;
    const int wanted = runNode > 0 ? runNode : stationNode;
    if (wanted == 0)
        return;
    for (int parent = TreeGFC.At(wanted).Parent; parent > 0; parent = TreeGFC.At(parent).Parent)
        TreeGFC.SetExpanded(parent, true);
    TreeGFC.Select(wanted);
    TreeGFC.EnsureVisible(wanted);
    NodeClicked(wanted);
}

void GFCPrincipal::AddStationChildren(int stationNode, const std::string& station, std::size_t index,
                                      const RunFlags& flags) {
    const std::string number = std::to_string(index);
    TreeGFC.Add(stationNode, "Comunes" + number, std::string(node::CommonParameters), "Carpeta", "Carpeta");
    const int individual = TreeGFC.Add(stationNode, "Individuales" + number,
                                       std::string(node::IndividualParameters), "Carpeta", "CarpetaOpen");
    for (int run = 1; run <= config::MaxRuns; ++run)
        AddRunNode(individual, station, run, flags[static_cast<std::size_t>(run - 1)] == "Yes");
}

void GFCPrincipal::AddRunNode(int parent, const std::string& station, int run, bool enabled) {
    TreeGFC.Add(parent, station + std::to_string(run), node::RunText(run), enabled ? "Run" : "NoRun");
}

// One row per station, in step with the tree's nodes.
void GFCPrincipal::FillStationTable() {
    ListView1.SortsByHeading = true;
    ListView1.AddColumns({{"N\xC2\xB0", 4},
                          {"Configured as FC"},
                          {"Station Name"},
                          {"Station Type"},
                          {"IP Address"},
                          {"Serial Number"}});
    const auto& nodes = TreeGFC.At(1).Children;
    const auto& stations = session_.Project.Stations;
    std::vector<ui::ListView::Row> rows;
    rows.reserve(stations.size());
    for (std::size_t i = 0; i < stations.size(); ++i) {
        const auto& station = stations[i];
        const bool configured = TreeGFC.At(nodes.at(i)).Image != NoConfigImage;
        auto& row = rows.emplace_back();
        row.reserve(ListView1.Columns().size());
        row.push_back(std::to_string(i + 1));
        row.push_back(YesOrNo(configured));
        row.push_back(station.Name);
        row.push_back(station.Type);
        row.push_back(station.Address);
        row.push_back(std::to_string(station.SerialNumber));
    }
    ListView1.AddRows(std::move(rows));
    listShowsStations_ = true;
}

void GFCPrincipal::MarkRunNodes() {
    TreeGFC.SetBold(1, true);
    for (int i = 1; i <= TreeGFC.Count(); ++i)
        if (node::RunOf(TreeGFC.At(i).Text) > 0)
            TreeGFC.SetColour(i, ui::Colour::Green);
}

void GFCPrincipal::SetRunImage(const std::string& path, bool enabled) {
    if (const int found = TreeGFC.FindPath(path); found > 0)
        TreeGFC.SetImage(found, enabled ? "Run" : "NoRun");
}

// The station that a node below the root belongs to. Cut from the path, a name with a backslash would give
// another one.
const std::string& GFCPrincipal::StationOf(int treeNode) const {
    const int parent = TreeGFC.At(treeNode).Parent;
    return TreeGFC.At(parent).Parent == 0 ? TreeGFC.At(treeNode).Text : StationOf(parent);
}

void GFCPrincipal::NodeClicked(int clicked) {
    const std::string text = TreeGFC.At(clicked).Text;
    if (text == node::AllStations) {
        session_.SelectedNodeText = text;
        return ShowStations("Gas Flow Computer");
    }
    const std::string path = TreeGFC.FullPath(clicked);
    session_.Station.CurrentStation = StationOf(clicked);
    session_.SelectedPath = path;
    session_.SelectedNodeText = text;
    SetEnabled(false);
    ShowPaneFor(path);
    SetEnabled(true);
}

void GFCPrincipal::ShowPaneFor(const std::string& path) {
    const std::string& station = session_.Station.CurrentStation;
    if (path == node::StationPath(station))
        return ShowStations(station);
    if (path == node::CommonPath(station))
        return ShowCommon(station);
    for (int run = 1; run <= config::MaxRuns; ++run)
        if (path == node::RunPath(station, run))
            return ShowRun(station, run);
}

void GFCPrincipal::ShowStations(const std::string& statusText) {
    HidePanes();
    // The summaries use the same list.
    if (!listShowsStations_) {
        ClearLists();
        FillStationTable();
    }
    ListView1.SetVisible(true);
    StatusBar1.SetPanelText(1, statusText);
}

void GFCPrincipal::PlacePane(ui::TabbedPane& shown, ui::TabbedPane& hidden) {
    shown.SetVisible(true);
    hidden.SetVisible(false);
    ListView1.SetVisible(false);
}

void GFCPrincipal::ShowCommon(const std::string& station) {
    const std::string file = session_.ConfigFile();
    const config::FileBatch batch(program_.Ini, file);
    config::LoadStationConfig(program_.Ini, session_.Station, file);
    summary_.LookAt(station, 0);
    PlacePane(SSTab1, SSTab2);
    SSTab1.SetTab(0);
    summary_.FillCommon();
}

void GFCPrincipal::LoadRun(int run) {
    const std::string file = session_.ConfigFile();
    const config::FileBatch batch(program_.Ini, file);
    config::LoadStationConfig(program_.Ini, session_.Station, file);
    config::LoadRun(program_.Ini, session_.Station, file, run);
}

void GFCPrincipal::ShowRun(const std::string& station, int run) {
    const config::FileBatch batch(program_.Ini, session_.ConfigFile());
    LoadRun(run);
    summary_.LookAt(station, run);
    PlacePane(SSTab2, SSTab1);
    SSTab2.SetTab(0);
    summary_.FillRun();
}

} // namespace gfc::forms
