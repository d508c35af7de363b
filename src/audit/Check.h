#pragma once

#include "audit/Finding.h"
#include "platform/Files.h"
#include "project/Project.h"

#include <future>
#include <optional>
#include <string>
#include <vector>

// Looks a station over and never writes: not even a caller's files can be changed through what it is given,
// since it reads each file once and works on those bytes.
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
// A station of the open project: its file is read and, if it has one, its tags are asked for on this thread
// before this returns; another looks at what they say.
[[nodiscard]] std::future<StationReport> BeginStation(platform::Files& files, project::AddOnLibrary& library,
                                                      const project::Project& project,
                                                      const std::string& station);
// The same of a file without its tags.
[[nodiscard]] std::future<StationReport> BeginFile(platform::Files& files, const Whose& whose);

} // namespace gfc::audit
