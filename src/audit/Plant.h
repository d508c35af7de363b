#pragma once

#include "audit/Check.h"

#include <future>
#include <string>
#include <string_view>
#include <vector>

// Looks over many stations, be they those of a project or the files of a folder.
namespace gfc::audit {

// Only names that can be those of a configuration: "KDOrmAGA_" at the start and ".ini" at the end.
[[nodiscard]] bool IsConfigurationName(std::string_view fileName);
// The station whose file this is, by the name of the project; nothing for a file of another project.
[[nodiscard]] std::optional<std::string> StationOfFile(std::string_view fileName, std::string_view project);

// What a check of many goes through, a station with each call.
class Plant {
public:
    virtual ~Plant() = default;
    [[nodiscard]] virtual std::size_t Count() const = 0;
    [[nodiscard]] virtual std::string NameOf(std::size_t station) const = 0;
    // What it takes is read and asked for on this thread before this returns; another looks at what it says.
    [[nodiscard]] virtual std::future<StationReport> Begin(std::size_t station) const = 0;
};

// The stations of the open project in its order, and behind them the files of the project's name in its
// folder whose station it lacks.
class ProjectPlant : public Plant {
public:
    // What it is given must outlive it. namesInFolder are those of all files beside the project.
    ProjectPlant(platform::Files& files, project::AddOnLibrary& library, const project::Project& project,
                 const std::vector<std::string>& namesInFolder);
    // Some stations alone, by name; each must be one of the project.
    struct OnlyStations {
        std::vector<std::string> Names;
    };
    ProjectPlant(platform::Files& files, project::AddOnLibrary& library, const project::Project& project,
                 OnlyStations only);
    [[nodiscard]] std::size_t Count() const override { return stations_.size() + orphans_.size(); }
    [[nodiscard]] std::string NameOf(std::size_t station) const override;
    [[nodiscard]] std::future<StationReport> Begin(std::size_t station) const override;

private:
    platform::Files& files_;
    project::AddOnLibrary& library_;
    const project::Project& project_;
    std::vector<std::string> stations_;
    std::vector<std::string> orphans_; // names of files
};

// The configuration files of a folder, without a project and so without tags.
class FolderPlant : public Plant {
public:
    FolderPlant(platform::Files& files, std::string folder, const std::vector<std::string>& namesInFolder);
    [[nodiscard]] std::size_t Count() const override { return names_.size(); }
    [[nodiscard]] std::string NameOf(std::size_t station) const override;
    [[nodiscard]] std::future<StationReport> Begin(std::size_t station) const override;

private:
    platform::Files& files_;
    std::string folder_;
    std::vector<std::string> names_;
};

// Goes through stations of a plant in their order. While one is looked at, the library is asked for the next,
// so that no more than two of them are held.
class PlantCheck {
public:
    // plant must outlive it.
    explicit PlantCheck(const Plant& plant);
    // Of these places alone.
    PlantCheck(const Plant& plant, std::vector<std::size_t> places);

    [[nodiscard]] std::size_t Count() const { return places_.size(); }
    [[nodiscard]] bool IsAtEnd() const { return !ahead_.valid() && next_ == places_.size(); }
    // Not at the end, and not while it is under way.
    [[nodiscard]] StationReport Next();

private:
    const Plant& plant_;
    std::vector<std::size_t> places_;
    std::size_t next_ = 0; // of the places, to begin with
    std::future<StationReport> ahead_;
};

} // namespace gfc::audit
