#include "workshop/store/Stations.h"

#include "workshop/store/Failure.h"

namespace gfc::workshop {

namespace {

Station StationOf(const Statement& row) {
    return {row.Integer(0), std::string(row.Text(1)), std::string(row.Text(2)), std::string(row.Text(3)),
            static_cast<std::int32_t>(row.Integer(4))};
}

} // namespace

std::vector<Station> ListStations(Project& project) {
    Statement query(project.Data(), "SELECT id, name, type, address, serial FROM stations ORDER BY id");
    std::vector<Station> stations;
    while (query.Step()) {
        stations.push_back(StationOf(query));
    }
    return stations;
}

std::optional<Station> FindStation(Project& project, std::string_view name) {
    Statement query(project.Data(), "SELECT id, name, type, address, serial FROM stations WHERE name = ?");
    if (!query.With(name).Step()) {
        return std::nullopt;
    }
    return StationOf(query);
}

Station StationNamed(Project& project, const std::string& name) {
    auto station = FindStation(project, name);
    if (!station) {
        throw Failure(name + ": the project has no such station; \"io-workshop stations\" lists them.");
    }
    return *std::move(station);
}

std::vector<Station> StationsNamed(Project& project, const std::string& name) {
    if (name.empty()) {
        return ListStations(project);
    }
    return {StationNamed(project, name)};
}

std::int64_t AddStation(Project& project, const Station& station) {
    Statement insert(project.Data(),
                     "INSERT INTO stations (name, type, address, serial) VALUES (?, ?, ?, ?)");
    insert.With(station.Name, station.Type, station.Address, std::int64_t{station.SerialNumber}).Execute();
    return project.Data().LastRow();
}

void UpdateStation(Project& project, const Station& station) {
    Statement update(project.Data(), "UPDATE stations SET type = ?, address = ?, serial = ? WHERE id = ?");
    update.With(station.Type, station.Address, std::int64_t{station.SerialNumber}, station.Id).Execute();
}

} // namespace gfc::workshop
