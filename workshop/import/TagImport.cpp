#include "workshop/import/TagImport.h"

#include "workshop/import/StationPlanner.h"
#include "workshop/text/Letters.h"

#include <algorithm>
#include <map>

namespace gfc::workshop {

namespace {

// The rows of each station, in the order in which the stations first appear.
std::vector<std::vector<TableRow>> ByStation(std::vector<TableRow> rows) {
    std::vector<std::vector<TableRow>> groups;
    std::map<std::string, std::size_t> groupOf;
    for (TableRow& row : rows) {
        const auto [group, isNew] = groupOf.try_emplace(Folded(row.Station), groups.size());
        if (isNew) {
            groups.emplace_back();
        }
        groups[group->second].push_back(std::move(row));
    }
    return groups;
}

void PlanGroup(Project& project, const std::vector<TableRow>& rows, ImportMode mode, ImportPlan& plan) {
    const std::string& name = rows.front().Station;
    const Station station = FindStation(project, name).value_or(Station{0, name, "", "", 0});
    const std::vector<Tag> tags = station.Id == 0 ? std::vector<Tag>{} : ListTags(project, station.Id);
    plan.Stations.push_back(PlanStation(station, tags, rows, mode, plan.Complaints));
}

bool TagsChange(const StationPlan& plan) {
    return !plan.Added.empty() || !plan.Changed.empty() || !plan.Removed.empty() || plan.Reordered;
}

void Store(Project& project, const StationPlan& plan) {
    std::int64_t id = plan.Before.Id;
    if (plan.IsNew()) {
        id = AddStation(project, plan.After);
    } else if (plan.PropertiesChange()) {
        UpdateStation(project, plan.After);
    }
    if (TagsChange(plan)) {
        RemoveTags(project, id);
        TagAppender(project, id).Append(plan.Tags);
    }
}

} // namespace

bool StationPlan::PropertiesChange() const {
    return Before != After;
}

bool StationPlan::ChangesAnything() const {
    return IsNew() || PropertiesChange() || TagsChange(*this);
}

ImportPlan PlanImport(Project& project, const std::filesystem::path& csv, ImportMode mode) {
    return PlanTable(project, ReadCsv(csv), mode);
}

ImportPlan PlanTable(Project& project, CsvTable file, ImportMode mode) {
    TagTable table = ReadTagTable(file.Rows);
    ImportPlan plan;
    plan.Note = std::move(file.Note);
    plan.Complaints = std::move(table.Complaints);
    for (const auto& rows : ByStation(std::move(table.Rows))) {
        PlanGroup(project, rows, mode, plan);
    }
    std::stable_sort(plan.Complaints.begin(), plan.Complaints.end(),
                     [](const Complaint& a, const Complaint& b) { return a.Row < b.Row; });
    if (!plan.Complaints.empty()) {
        plan.Stations.clear();
    }
    return plan;
}

ImportPlan ImportTags(Project& project, const std::filesystem::path& csv, ImportMode mode) {
    return ImportTable(project, ReadCsv(csv), mode);
}

ImportPlan ImportTable(Project& project, CsvTable file, ImportMode mode) {
    Transaction transaction(project.Data()); // what was planned on must still hold when it is changed
    ImportPlan plan = PlanTable(project, std::move(file), mode);
    for (const StationPlan& station : plan.Stations) {
        Store(project, station);
    }
    transaction.Commit();
    return plan;
}

} // namespace gfc::workshop
