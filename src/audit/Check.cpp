#include "audit/Check.h"

#include "audit/Bindings.h"
#include "audit/Plausible.h"
#include "audit/Subject.h"
#include "platform/Files.h"
#include "project/TagsMark.h"
#include "services/Text.h"

#include <algorithm>
#include <future>
#include <iterator>
#include <memory>

namespace gfc::audit {

namespace {

constexpr std::string_view NameStart = "KDOrmAGA_";
constexpr std::string_view NameEnd = ".ini";

// Here, where the system gives no thread.
constexpr std::launch Elsewhere = std::launch::async | std::launch::deferred;

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

// What is found in a station's file: first without its tags, then with them.
class FileCheck {
public:
    FileCheck(platform::Files& files, const Whose& whose)
        : report_{.Station = whose.Station, .File = whose.File} {
        auto bytes = whose.File.empty() ? std::nullopt : files.Read(whose.File);
        report_.Configured = bytes.has_value() || (!whose.File.empty() && files.Exists(whose.File));
        if (bytes)
            CheckBytes(whose, *std::move(bytes));
        else if (report_.Configured)
            Sink(report_.Findings).Add(RuleId::FileUnreadable, {});
    }

    StationReport With(std::optional<project::TagList> tags) && {
        report_.TagsMark = tags ? project::MarkOf(*tags) : 0;
        if (subject_ && tags) {
            Sink sink(report_.Findings);
            CheckTags(*subject_, bindings_, *std::move(expected_), *std::move(tags), sink);
        }
        std::ranges::move(ofBindings_, std::back_inserter(report_.Findings));
        SortBySeverity(report_.Findings);
        return std::move(report_);
    }

private:
    void CheckBytes(const Whose& whose, std::string bytes) {
        subject_ = std::make_unique<Subject>(whose, std::move(bytes));
        bindings_ = BindingsOf(*subject_);
        expected_.emplace(*subject_);
        CheckContent();
        CheckBindings();
    }
    void CheckContent() {
        Sink sink(report_.Findings);
        CheckNames(*subject_, sink);
        CheckLayout(*subject_, sink);
        CheckValues(*subject_, sink);
        CheckRuns(*subject_, sink);
        CheckPlausibility(*subject_, sink);
    }
    void CheckBindings() {
        Sink sink(ofBindings_);
        CheckDirections(bindings_, sink);
        CheckSharedTags(bindings_, sink);
        CheckTagNames(bindings_, subject_->Station(), sink);
    }

    StationReport report_;
    std::unique_ptr<Subject> subject_; // null for a file that cannot be read
    std::vector<Bound> bindings_;
    std::optional<ExpectedOfFile> expected_;
    Findings ofBindings_; // they stand behind those of the tags
};

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
    return FileCheck(files, whose).With(std::move(tags));
}

StationReport CheckFile(platform::Files& files, const Whose& whose, const project::TagList* tags) {
    return CheckFile(files, whose, tags == nullptr ? std::nullopt : std::optional(*tags));
}

StationReport CheckStation(platform::Files& files, project::AddOnLibrary& library,
                           const project::Project& project, const std::string& station) {
    const Whose whose{project.ConfigFileOf(station), project.ProjectFile, project.ProjectName, station};
    if (whose.File.empty() || !files.Exists(whose.File))
        return {.Station = station, .File = whose.File};
    // The library is asked on the thread on which it always is.
    auto check = std::async(Elsewhere, [&] { return std::make_unique<FileCheck>(files, whose); });
    auto tags = library.ReadTags(station, project.ProjectFile, {});
    return std::move(*check.get()).With(std::move(tags));
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
