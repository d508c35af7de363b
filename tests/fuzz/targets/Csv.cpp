#include "fuzz/Input.h"
#include "fuzz/MemoryProject.h"
#include "fuzz/Target.h"
#include "workshop/export/TagExport.h"
#include "workshop/import/TagImport.h"
#include "workshop/store/Failure.h"

#include <algorithm>

// Any bytes as a table of tags: refused in words, or taken in, and then written out as a table that says the
// same.
namespace gfc::fuzz {

namespace {

using workshop::ImportMode;

// An empty project, for as long as the process runs.
workshop::Project& EmptyProject() {
    static const auto path = PutProject("csv.KPJ", [](workshop::Project&) {});
    static auto project = workshop::Project::Open(path, workshop::Access::Write);
    return project;
}

bool ChangesNothing(const workshop::ImportPlan& plan) {
    return plan.Complaints.empty() &&
           std::ranges::none_of(plan.Stations, [](const auto& station) { return station.ChangesAnything(); });
}

void CheckRoundTrip(workshop::Project& project, char separator) {
    const std::string text = TagTableText(StationTagsOf(project, ""), separator);
    const auto again =
        PlanTable(project, workshop::ReadCsv(text, "again.csv"), {"again.csv", ImportMode::Replace});
    Require(ChangesNothing(again), "what was taken in is written out and comes back");
}

} // namespace

void Csv(std::string_view bytes) {
    Input input(bytes);
    const std::size_t what = input.Byte();
    const ImportMode mode = what % 2 == 0 ? ImportMode::Merge : ImportMode::Replace;
    auto& project = EmptyProject();
    bool taken = false;
    try {
        const auto table = workshop::ReadCsv(std::string(input.Rest()), "tags.csv");
        const auto plan = ImportTable(project, table, {"tags.csv", mode});
        Require(plan.Complaints.empty() || plan.Stations.empty(), "a table with a fault is not taken");
        taken = !plan.Stations.empty();
        if (taken)
            CheckRoundTrip(project, what % 3 == 0 ? ',' : ';');
    } catch (const workshop::Failure& failure) {
        Require(*failure.what() != '\0', "a refusal says why");
    }
    if (taken)
        project.Data().Run("DELETE FROM tags; DELETE FROM modules; DELETE FROM stations");
}

} // namespace gfc::fuzz
