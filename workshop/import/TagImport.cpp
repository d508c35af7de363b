#include "workshop/import/TagImport.h"

#include "workshop/import/StationPlanner.h"
#include "workshop/text/Letters.h"

#include <algorithm>
#include <unordered_map>

namespace gfc::workshop {

namespace {

// The rows of each station, in the order in which the stations first appear. They are counted first, since
// to move them as the groups grow takes longer.
std::vector<std::vector<TableRow>> ByStation(std::vector<TableRow> rows) {
    std::vector<std::size_t> groupOf;
    std::vector<std::size_t> sizes;
    std::unordered_map<std::string, std::size_t> groupNamed;
    groupOf.reserve(rows.size());
    for (const TableRow& row : rows) {
        const auto [group, isNew] = groupNamed.try_emplace(Folded(row.Station), sizes.size());
        if (isNew) {
            sizes.push_back(0);
        }
        ++sizes[group->second];
        groupOf.push_back(group->second);
    }
    std::vector<std::vector<TableRow>> groups(sizes.size());
    for (std::size_t group = 0; group < sizes.size(); ++group) {
        groups[group].reserve(sizes[group]);
    }
    for (std::size_t at = 0; at < rows.size(); ++at) {
        groups[groupOf[at]].push_back(std::move(rows[at]));
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

std::string ReadingOf(const CsvTable& file) {
    struct Named {
        char Sign;
        const char* Name;
    };
    constexpr Named Signs[] = {{',', "commas"}, {';', "semicolons"}, {'\t', "tabs"}, {'|', "bars"}};
    const auto found = std::find_if(std::begin(Signs), std::end(Signs),
                                    [&](const Named& sign) { return sign.Sign == file.Separator; });
    return file.Encoding + ", fields parted by " + found->Name;
}

} // namespace

bool StationPlan::PropertiesChange() const {
    return Before != After;
}

bool StationPlan::ChangesAnything() const {
    return IsNew() || PropertiesChange() || TagsChange(*this);
}

CsvTable ReadRequested(const ImportRequest& request) {
    CsvReading reading;
    reading.Encoding = request.Wishes.Encoding;
    reading.Titles = [&](const std::vector<std::string>& fields) {
        return CountTitles(fields, request.Wishes);
    };
    reading.Told = request.Told;
    return ReadCsv(request.Csv, reading);
}

ImportPlan PlanImport(Project& project, const ImportRequest& request) {
    return PlanTable(project, ReadRequested(request), request);
}

ImportPlan PlanTable(Project& project, const CsvTable& file, const ImportRequest& request) {
    TagTable table = ReadTagTable(file.Rows, request.Wishes, request.Told);
    ImportPlan plan;
    plan.Note = file.Note;
    plan.Reading = ReadingOf(file);
    plan.Complaints = std::move(table.Complaints);
    plan.Notes = std::move(table.Notes);
    plan.Titles = std::move(table.Titles);
    for (auto& rows : ByStation(std::move(table.Rows))) {
        PlanGroup(project, rows, request.Mode, plan);
        rows = {}; // the next station's plan takes their memory
        TellProgress(request.Told, 1.0);
    }
    std::stable_sort(plan.Complaints.begin(), plan.Complaints.end(),
                     [](const Complaint& a, const Complaint& b) { return a.Row < b.Row; });
    if (!plan.Complaints.empty()) {
        plan.Stations.clear();
    }
    return plan;
}

ImportPlan ImportTags(Project& project, const ImportRequest& request) {
    return ImportTable(project, ReadRequested(request), request);
}

ImportPlan ImportTable(Project& project, const CsvTable& file, const ImportRequest& request) {
    Transaction transaction(project.Data()); // what was planned on must still hold when it is changed
    ImportPlan plan = PlanTable(project, file, request);
    for (const StationPlan& station : plan.Stations) {
        Store(project, station);
    }
    transaction.Commit();
    return plan;
}

} // namespace gfc::workshop
