#include "audit/Check.h"

#include "audit/Bindings.h"
#include "audit/Plausible.h"
#include "audit/Subject.h"
#include "platform/Files.h"
#include "project/TagsMark.h"
#include "services/Text.h"

#include <algorithm>

namespace gfc::audit {

namespace {

constexpr std::string_view NameStart = "KDOrmAGA_";
constexpr std::string_view NameEnd = ".ini";

void CheckPlausibility(const Subject& subject, Sink& sink) {
    const config::StationConfig& station = subject.Station();
    sink.AboutStation(subject.FlowSection());
    CheckCommonValues(station, sink);
    for (const RunSubject& run : subject.Runs())
        if (run.IsThere()) {
            sink.About(run.Number, run.On, run.Section);
            CheckRunValues(station, run.IO, sink);
            CheckMechanicalValues(station, run.Mechanical, sink);
            CheckGasValues(station, run.Fixed, sink);
        }
}

void CheckAll(const Subject& subject, std::optional<project::TagList> tags, Findings& findings) {
    Sink sink(findings);
    CheckNames(subject, sink);
    CheckLayout(subject, sink);
    CheckValues(subject, sink);
    CheckRuns(subject, sink);
    CheckPlausibility(subject, sink);
    const std::vector<Bound> all = BindingsOf(subject);
    if (tags)
        CheckTags(subject, all, *std::move(tags), sink);
    CheckDirections(all, sink);
    CheckSharedTags(all, sink);
    CheckTagNames(all, subject.Station(), sink);
    SortBySeverity(findings);
}

std::string InFolder(std::string_view folder, std::string_view name) {
    return std::string(folder) + platform::Separator + std::string(name);
}

std::string WithoutFrame(std::string_view fileName) {
    fileName.remove_prefix(NameStart.size());
    fileName.remove_suffix(NameEnd.size());
    return std::string(fileName);
}

} // namespace

std::string StationReport::FileName() const {
    const std::string folder = platform::ParentFolder(File);
    return folder.empty() || File.empty() ? File : File.substr(folder.size() + 1);
}

StationReport CheckFile(platform::Files& files, const Whose& whose, std::optional<project::TagList> tags) {
    StationReport report{.Station = whose.Station, .File = whose.File};
    report.TagsMark = tags ? project::MarkOf(*tags) : 0;
    auto bytes = whose.File.empty() ? std::nullopt : files.Read(whose.File);
    report.Configured = bytes.has_value() || (!whose.File.empty() && files.Exists(whose.File));
    if (bytes)
        CheckAll(Subject(whose, *std::move(bytes)), std::move(tags), report.Findings);
    else if (report.Configured)
        Sink(report.Findings).Add(RuleId::FileUnreadable, {});
    return report;
}

StationReport CheckFile(platform::Files& files, const Whose& whose, const project::TagList* tags) {
    return CheckFile(files, whose, tags == nullptr ? std::nullopt : std::optional(*tags));
}

StationReport CheckStation(platform::Files& files, project::AddOnLibrary& library,
                           const project::Project& project, const std::string& station) {
    const Whose whose{project.ConfigFileOf(station), project.ProjectFile, project.ProjectName, station};
    if (whose.File.empty() || !files.Exists(whose.File))
        return {.Station = station, .File = whose.File};
    return CheckFile(files, whose, library.ReadTags(station, project.ProjectFile, {}));
}

bool IsConfigurationName(std::string_view fileName) {
    return fileName.size() > NameStart.size() + NameEnd.size() &&
           services::EqualNoCase(fileName.substr(0, NameStart.size()), NameStart) &&
           services::EqualNoCase(fileName.substr(fileName.size() - NameEnd.size()), NameEnd);
}

std::optional<std::string> StationOfFile(std::string_view fileName, std::string_view project) {
    if (!IsConfigurationName(fileName))
        return std::nullopt;
    const std::string name = WithoutFrame(fileName);
    const std::string start = std::string(project) + "_";
    if (name.size() <= start.size() ||
        !services::EqualNoCase(std::string_view(name).substr(0, start.size()), start))
        return std::nullopt;
    return name.substr(start.size());
}

ProjectPlant::ProjectPlant(platform::Files& files, project::AddOnLibrary& library,
                           const project::Project& project, const std::vector<std::string>& namesInFolder)
    : files_(files), library_(library), project_(project) {
    for (const project::Station& station : project.Stations)
        stations_.push_back(station.Name);
    for (const std::string& name : namesInFolder) {
        const auto station = StationOfFile(name, project.ProjectName);
        const auto isIt = [&](const std::string& other) { return services::EqualNoCase(other, *station); };
        if (station && std::ranges::none_of(stations_, isIt))
            orphans_.push_back(name);
    }
    std::ranges::sort(orphans_);
}

ProjectPlant::ProjectPlant(platform::Files& files, project::AddOnLibrary& library,
                           const project::Project& project, OnlyStations only)
    : files_(files), library_(library), project_(project), stations_(std::move(only.Names)) {}

std::string ProjectPlant::NameOf(std::size_t station) const {
    if (station < stations_.size())
        return stations_[station];
    return StationOfFile(orphans_.at(station - stations_.size()), project_.ProjectName).value_or("");
}

// Nothing is said of what stands in such a file: it is brought to no station.
StationReport ProjectPlant::Check(std::size_t station) const {
    if (station < stations_.size())
        return CheckStation(files_, library_, project_, stations_[station]);
    const std::string folder = platform::ParentFolder(project_.ProjectFile);
    const std::string name = NameOf(station);
    StationReport report{.Station = name,
                         .File = InFolder(folder, orphans_.at(station - stations_.size())),
                         .Configured = true};
    Sink(report.Findings).Add(RuleId::StationUnknown, {}, {name});
    return report;
}

FolderPlant::FolderPlant(platform::Files& files, std::string folder,
                         const std::vector<std::string>& namesInFolder)
    : files_(files), folder_(std::move(folder)) {
    std::ranges::copy_if(namesInFolder, std::back_inserter(names_), IsConfigurationName);
    std::ranges::sort(names_);
}

std::string FolderPlant::NameOf(std::size_t station) const {
    return WithoutFrame(names_.at(station));
}

// Where the name ends for the project and begins for the station, the file itself has to say: either may
// hold a "_".
StationReport FolderPlant::Check(std::size_t station) const {
    const std::string file = InFolder(folder_, names_.at(station));
    const config::FileIni ini(files_);
    const std::string projectFile = ini.ReadKey("General", "Project", file);
    const std::string projectName = project::ProjectNameOf(projectFile);
    const auto name = StationOfFile(names_.at(station), projectName);
    if (!projectName.empty() && name)
        return CheckFile(files_, {file, projectFile, projectName, *name}, std::nullopt);
    return CheckFile(files_, {file, {}, {}, NameOf(station)}, std::nullopt);
}

bool CheckPlant(const Plant& plant,
                const std::function<bool(const StationReport& report, std::size_t done)>& onStation) {
    for (std::size_t station = 0; station < plant.Count(); ++station)
        if (!onStation(plant.Check(station), station + 1))
            return false;
    return true;
}

} // namespace gfc::audit
