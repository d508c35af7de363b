#include "audit/Plant.h"

#include "platform/Files.h"
#include "services/Text.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

namespace gfc::audit {

namespace {

constexpr std::string_view NameStart = "KDOrmAGA_";
constexpr std::string_view NameEnd = ".ini";

std::string InFolder(std::string_view folder, std::string_view name) {
    return std::string(folder) + platform::Separator + std::string(name);
}

std::string WithoutFrame(std::string_view fileName) {
    fileName.remove_prefix(NameStart.size());
    fileName.remove_suffix(NameEnd.size());
    return std::string(fileName);
}

std::vector<std::size_t> AllOf(const Plant& plant) {
    std::vector<std::size_t> places(plant.Count());
    std::iota(places.begin(), places.end(), std::size_t(0));
    return places;
}

} // namespace

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
std::future<StationReport> ProjectPlant::Begin(std::size_t station) const {
    if (station < stations_.size())
        return BeginStation(files_, library_, project_, stations_[station]);
    const std::string folder = platform::ParentFolder(project_.ProjectFile);
    const std::string name = NameOf(station);
    StationReport report{.Station = name,
                         .File = InFolder(folder, orphans_.at(station - stations_.size())),
                         .Configured = true};
    Sink(report.Findings).Add(RuleId::StationUnknown, {}, {name});
    std::promise<StationReport> done;
    done.set_value(std::move(report));
    return done.get_future();
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
std::future<StationReport> FolderPlant::Begin(std::size_t station) const {
    const std::string file = InFolder(folder_, names_.at(station));
    const config::FileIni ini(files_);
    const std::string projectFile = ini.ReadKey("General", "Project", file);
    const std::string projectName = project::ProjectNameOf(projectFile);
    const auto name = StationOfFile(names_.at(station), projectName);
    if (!projectName.empty() && name)
        return BeginFile(files_, {file, projectFile, projectName, *name});
    return BeginFile(files_, {file, {}, {}, NameOf(station)});
}

PlantCheck::PlantCheck(const Plant& plant) : PlantCheck(plant, AllOf(plant)) {}

PlantCheck::PlantCheck(const Plant& plant, std::vector<std::size_t> places)
    : plant_(plant), places_(std::move(places)) {}

StationReport PlantCheck::Next() {
    auto now = ahead_.valid() ? std::move(ahead_) : plant_.Begin(places_.at(next_++));
    if (next_ < places_.size())
        ahead_ = plant_.Begin(places_[next_++]);
    return now.get();
}

} // namespace gfc::audit
