#include "record/Sha256.h"
#include "report/Report.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace gfc::report {

namespace {

using Json = nlohmann::ordered_json;

constexpr const char* kind = "gfc-report";
constexpr int version = 1;

Json JsonOf(const SummaryTable& table) {
    return {{"title", table.Title}, {"columns", table.Columns}, {"rows", table.Rows}, {"line", table.Line}};
}

Json JsonOf(const StationPages& station) {
    Json tables = Json::array();
    for (const SummaryTable& table : station.Tables)
        tables.push_back(JsonOf(table));
    Json json = {{"name", station.Name},   {"file", station.FileName}, {"sha256", station.FileHash},
                 {"entry", station.Entry}, {"content", station.File},  {"tables", std::move(tables)}};
    if (!station.Unread.empty())
        json["unread"] = station.Unread;
    return json;
}

Json JsonOf(const Report& report, bool withTime) {
    Json stations = Json::array();
    for (const StationPages& station : report.Stations)
        stations.push_back(JsonOf(station));
    Json json = {{"kind", kind}, {"version", version}};
    if (withTime)
        json["time"] = report.Time;
    json.update({{"project", report.Project},
                 {"projectFile", report.ProjectFile},
                 {"user", report.User},
                 {"machineUser", report.MachineUser},
                 {"program", report.Version},
                 {"entries", report.Entries},
                 {"historyHash", report.HistoryHash},
                 {"since", report.Since},
                 {"stations", std::move(stations)}});
    return json;
}

// A text that is no UTF-8, a path perhaps, must not end the report.
std::string Written(const Json& json) {
    return json.dump(-1, ' ', true, Json::error_handler_t::replace);
}

SummaryTable TableOf(const Json& json) {
    return {json.at("title"), json.at("columns"), json.at("rows"), json.at("line")};
}

// A fraction, a truth value and what is less than nothing are refused: all would be taken for some number.
// One beyond what an entry may have comes out below 0.
std::int64_t CountIn(const Json& json) {
    return static_cast<std::int64_t>(json.get_ref<const Json::number_unsigned_t&>());
}

StationPages StationOf(const Json& json) {
    StationPages station{json.at("name"),           json.at("file"),    json.at("sha256"),
                         CountIn(json.at("entry")), json.at("content"), {}};
    for (const Json& table : json.at("tables"))
        station.Tables.push_back(TableOf(table));
    station.Unread = json.value("unread", "");
    return station;
}

Report ReportOf(const Json& json) {
    Report report{json.at("time"),
                  json.at("project"),
                  json.at("projectFile"),
                  json.at("user"),
                  json.at("machineUser"),
                  json.at("program"),
                  CountIn(json.at("entries")),
                  json.at("historyHash"),
                  json.at("since"),
                  {}};
    for (const Json& station : json.at("stations"))
        report.Stations.push_back(StationOf(station));
    return report;
}

bool HasItsCounts(const Report& report) {
    return report.Entries >= 0 && std::ranges::all_of(report.Stations, [](const StationPages& station) {
               return station.Entry >= 0;
           });
}

} // namespace

std::string ToJson(const Report& report) {
    return Written(JsonOf(report, true));
}

std::optional<Report> FromJson(std::string_view text) {
    try {
        const Json json = Json::parse(text);
        if (json.at("kind") != kind || json.at("version") != version)
            return std::nullopt;
        Report report = ReportOf(json);
        return HasItsCounts(report) ? std::optional(std::move(report)) : std::nullopt;
    } catch (const Json::exception&) {
        return std::nullopt;
    }
}

std::string ContentHash(const Report& report) {
    return record::Sha256(Written(JsonOf(report, false)));
}

} // namespace gfc::report
