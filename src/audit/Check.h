#pragma once

#include "audit/Finding.h"
#include "platform/Files.h"
#include "project/Project.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

// Looks a whole project over, one station at a time, and never writes: not even a caller's files can be
// changed through what it is given, since it reads each file once and works on those bytes.
namespace gfc::audit {

struct StationReport {
    std::string Station;
    std::string File;         // full path; empty where the station can have no file
    bool Configured = false;  // its file is there
    std::size_t TagsMark = 0; // project::MarkOf the tags that it was held against; 0 for none
    audit::Findings Findings = {};

    // As the text of its kind stands in the file's name.
    [[nodiscard]] std::string FileName() const;
};

// Whose file it is.
struct Whose {
    std::string File; // full path
    std::string ProjectFile;
    std::string ProjectName;
    std::string Station;
};

// Without tags the rules about tags are left out; a list without a tag is one of a station that has none.
[[nodiscard]] StationReport CheckFile(platform::Files& files, const Whose& whose,
                                      std::optional<project::TagList> tags);
// For who keeps the tags; null for none.
[[nodiscard]] StationReport CheckFile(platform::Files& files, const Whose& whose,
                                      const project::TagList* tags);
// A station of the open project, whose tags are asked for if it has a file; meanwhile another thread looks at
// the file.
[[nodiscard]] StationReport CheckStation(platform::Files& files, project::AddOnLibrary& library,
                                         const project::Project& project, const std::string& station);

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
    [[nodiscard]] virtual StationReport Check(std::size_t station) const = 0;
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
    [[nodiscard]] StationReport Check(std::size_t station) const override;

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
    [[nodiscard]] StationReport Check(std::size_t station) const override;

private:
    platform::Files& files_;
    std::string folder_;
    std::vector<std::string> names_;
};

// Checks one station after the other and hands each report over at once, so that no more than one is held.
// onStation answers false to end there; the result is false then.
bool CheckPlant(const Plant& plant,
                const std::function<bool(const StationReport& report, std::size_t done)>& onStation);

} // namespace gfc::audit
