#include "config/Recorder.h"

#include "config/FileIni.h"

namespace gfc::config {

std::string RecordPath(const ProjectPaths& paths, std::string_view project) {
    constexpr std::string_view station = "History";
    constexpr std::string_view ending = ".ini";
    std::string path = ConfigFilePath(paths, project, station);
    if (path.empty())
        return path;
    return path.replace(path.size() - ending.size(), ending.size(), ".sqlite");
}

} // namespace gfc::config
