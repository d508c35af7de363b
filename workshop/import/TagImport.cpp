#include "workshop/import/TagImport.h"

#include "workshop/import/StationPlanner.h"
#include "workshop/text/Letters.h"

#include <algorithm>
#include <numeric>
#include <span>
#include <unordered_map>

namespace gfc::workshop {

namespace {

// The number of each row's station, in the order in which the stations first appear, and how many rows each
// has.
struct Grouping {
    explicit Grouping(const std::vector<TableRow>& rows) {
        std::unordered_map<std::string, std::size_t> named;
        GroupOf.reserve(rows.size());
        for (const TableRow& row : rows) {
            const auto [group, isNew] = named.try_emplace(Folded(row.Station), Sizes.size());
            if (isNew) {
                Sizes.push_back(0);
            }
            ++Sizes[group->second];
            GroupOf.push_back(group->second);
        }
    }

    std::vector<std::size_t> GroupOf;
    std::vector<std::size_t> Sizes;
};

// Most tables hold a station's rows together, and to move half a million of them takes longer than to plan
// them.
void BringTogether(std::vector<TableRow>& rows, const Grouping& grouping) {
    if (std::is_sorted(grouping.GroupOf.begin(), grouping.GroupOf.end())) {
        return;
    }
    std::vector<std::size_t> next(grouping.Sizes.size()); // where the next row of each comes to stand
    std::exclusive_scan(grouping.Sizes.begin(), grouping.Sizes.end(), next.begin(), std::size_t(0));
    std::vector<TableRow> together(rows.size());
    for (std::size_t at = 0; at < rows.size(); ++at) {
        together[next[grouping.GroupOf[at]]++] = std::move(rows[at]);
    }
    rows = std::move(together);
}

void PlanGroup(Project& project, std::span<const TableRow> rows, ImportMode mode, ImportPlan& plan) {
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
    const Grouping grouping(table.Rows);
    BringTogether(table.Rows, grouping);
    std::span<const TableRow> left = table.Rows;
    for (const std::size_t size : grouping.Sizes) {
        PlanGroup(project, left.first(size), request.Mode, plan);
        left = left.subspan(size);
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
    double stored = 0;
    for (const StationPlan& station : plan.Stations) {
        Store(project, station);
        TellProgress(request.Told, ++stored / static_cast<double>(plan.Stations.size()));
    }
    transaction.Commit();
    return plan;
}

} // namespace gfc::workshop
