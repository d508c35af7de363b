#include "workshop/library/Records.h"

#include "workshop/store/Stations.h"
#include "workshop/store/Tags.h"
#include "workshop/text/CodePage.h"

namespace gfc::workshop {

namespace {

project::StationRecord RecordOf(const Station& station) {
    project::StationRecord record{};
    FillField(record.Name, station.Name);
    FillField(record.Type, station.Type);
    FillField(record.Address, station.Address);
    record.SerialNumber = station.SerialNumber;
    return record;
}

void Fill(project::TagRecord& record, const TagView& tag) {
    FillField(record.TagName, tag.Name);
    record.RegAddr = tag.Register;
    FillField(record.RegType, tag.Class);
    FillField(record.ModuleName, tag.Module);
    FillField(record.ModuleType, tag.ModuleType);
}

} // namespace

std::vector<project::StationRecord> StationRecords(Project& project) {
    std::vector<project::StationRecord> records;
    for (const Station& station : ListStations(project)) {
        records.push_back(RecordOf(station));
    }
    return records;
}

std::vector<project::TagRecord> TagRecords(Project& project, std::string_view station) {
    std::vector<project::TagRecord> records;
    if (const auto known = FindStation(project, station)) {
        VisitTags(
            project, known->Id, [&](std::size_t count) { records.reserve(count); },
            [&](const TagView& tag) { Fill(records.emplace_back(), tag); });
    }
    return records;
}

} // namespace gfc::workshop
