#include "workshop/store/FilesToLoad.h"

namespace gfc::workshop {

std::vector<FileToLoad> ListFilesToLoad(Project& project) {
    Statement query(project.Data(), "SELECT s.name, f.local, f.target, f.flag FROM files_to_load f "
                                    "JOIN stations s ON s.id = f.station ORDER BY s.id, f.target");
    std::vector<FileToLoad> files;
    while (query.Step()) {
        files.push_back({std::string(query.Text(0)), std::string(query.Text(1)), std::string(query.Text(2)),
                         static_cast<std::int32_t>(query.Integer(3))});
    }
    return files;
}

bool AddFileToLoad(Project& project, const FileToLoad& file) {
    Statement insert(project.Data(), "INSERT OR REPLACE INTO files_to_load (station, target, local, flag) "
                                     "SELECT id, ?, ?, ? FROM stations WHERE name = ?");
    insert.With(file.Target, file.Local, std::int64_t{file.Flag}, file.Station).Execute();
    return project.Data().Changes() > 0;
}

bool RemoveFileToLoad(Project& project, std::string_view station, std::string_view target) {
    Statement remove(project.Data(), "DELETE FROM files_to_load WHERE target = ? AND "
                                     "station = (SELECT id FROM stations WHERE name = ?)");
    remove.With(target, station).Execute();
    return project.Data().Changes() > 0;
}

} // namespace gfc::workshop
