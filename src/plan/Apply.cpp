#include "plan/Apply.h"

#include "services/Text.h"
#include "suggest/Known.h"

#include <algorithm>

namespace gfc::plan {

namespace {

class TablePlanner {
public:
    TablePlanner(platform::Files& files, project::AddOnLibrary& library, const project::Project& project,
                 const ApplyOptions& options, Faults& faults)
        : files_(files), library_(library), options_(options),
          faults_(faults), circumstances_{project, options.User, {}, options.Strictness} {}

    // What other stations bind helps the suggestions alone.
    void LookAround(const std::vector<StationWish>& wishes) {
        const auto asks = [](const StationWish& wish) {
            return services::EqualNoCase(wish.TextOf("Tags"), tags::Suggested);
        };
        if (std::ranges::any_of(wishes, asks))
            circumstances_.Others =
                suggest::OtherStationsOf(config::FileIni(files_), circumstances_.Project, {});
    }

    void Plan(const StationWish& wish) {
        const auto& stations = circumstances_.Project.Stations;
        const auto station = std::ranges::find_if(stations, [&](const project::Station& each) {
            return services::EqualNoCase(each.Name, wish.Station);
        });
        if (station == stations.end())
            return Blame(wish, "The project has no such station.");
        config::FileState before;
        const std::string file = circumstances_.Project.ConfigFileOf(station->Name);
        if (!file.empty() && !ReadState(files_, file, before))
            return Blame(wish, "Its configuration cannot be read: " + files_.LastFailure());
        if (before && !options_.MayReplace)
            Blame(wish, "The station has a configuration, which is replaced with --replace alone.");
        const Destination to(
            {station->Name,
             library_.ReadTags(station->Name, circumstances_.Project.ProjectFile, [](std::string_view) {})});
        auto checked = Assemble(wish, to, circumstances_, std::move(before), faults_);
        if (checked)
            applied_.push_back(*std::move(checked));
    }

    std::vector<Checked> TakeAll() { return std::move(applied_); }

private:
    void Blame(const StationWish& wish, const std::string& text) {
        faults_.push_back({wish.Row, "Station", wish.Station, text});
    }

    platform::Files& files_;
    project::AddOnLibrary& library_;
    const ApplyOptions& options_;
    Faults& faults_;
    Circumstances circumstances_;
    std::vector<Checked> applied_;
};

} // namespace

std::vector<Checked> PlanTable(std::string_view csv, platform::Files& files, project::AddOnLibrary& library,
                               const project::Project& project, const ApplyOptions& options, Faults& faults,
                               const std::function<bool(const std::string&)>& onStation) {
    const auto wishes = WishesIn(ReadSheet(csv, faults), faults);
    TablePlanner planner(files, library, project, options, faults);
    planner.LookAround(wishes);
    for (const StationWish& wish : wishes) {
        if (!onStation(wish.Station))
            break;
        planner.Plan(wish);
    }
    // As the table is read, whichever step found them.
    std::ranges::stable_sort(faults, {}, &Fault::Row);
    return faults.empty() ? planner.TakeAll() : std::vector<Checked>();
}

} // namespace gfc::plan
