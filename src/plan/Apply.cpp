#include "plan/Apply.h"

#include "services/Elsewhere.h"
#include "services/Text.h"
#include "suggest/Known.h"

#include <algorithm>
#include <deque>
#include <future>
#include <iterator>
#include <thread>
#include <utility>

namespace gfc::plan {

namespace {

// Not a thread for each station.
constexpr std::size_t AtOnce = 8;

// Puts the stations together side by side, while the library is asked for the next on the thread on which it
// always is.
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
        gathered_.push_back(
            {&wish,
             {station->Name,
              library_.ReadTags(station->Name, circumstances_.Project.ProjectFile, [](std::string_view) {})},
             std::move(before)});
        if (gathered_.size() == AtOnce)
            Begin();
    }

    std::vector<Checked> TakeAll() {
        Begin();
        while (!underWay_.empty())
            TakeFirst();
        return std::move(applied_);
    }

private:
    struct Gathered {
        const StationWish* Wish;
        StationTags Tags;
        config::FileState Before;
    };
    struct Assembled {
        std::vector<Checked> Stations;
        Faults Found;
    };

    void Begin() {
        if (underWay_.size() >= std::max(1U, std::thread::hardware_concurrency()))
            TakeFirst();
        underWay_.push_back(
            std::async(services::Elsewhere, [this, gathered = std::exchange(gathered_, {})]() mutable {
                Assembled assembled;
                for (auto& [wish, tags, before] : gathered)
                    if (auto checked = Assemble(*wish, Destination(std::move(tags)), circumstances_,
                                                std::move(before), assembled.Found))
                        assembled.Stations.push_back(*std::move(checked));
                return assembled;
            }));
    }

    void TakeFirst() {
        Assembled assembled = underWay_.front().get();
        underWay_.pop_front();
        std::ranges::move(assembled.Found, std::back_inserter(faults_));
        std::ranges::move(assembled.Stations, std::back_inserter(applied_));
    }

    void Blame(const StationWish& wish, const std::string& text) {
        faults_.push_back({wish.Row, "Station", wish.Station, text});
    }

    platform::Files& files_;
    project::AddOnLibrary& library_;
    const ApplyOptions& options_;
    Faults& faults_;
    Circumstances circumstances_;
    std::vector<Gathered> gathered_;
    std::vector<Checked> applied_;
    std::deque<std::future<Assembled>> underWay_; // they use what stands above
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
    auto applied = planner.TakeAll();
    // As the table is read, whichever step found them.
    std::ranges::stable_sort(faults, {}, &Fault::Row);
    return faults.empty() ? std::move(applied) : std::vector<Checked>();
}

} // namespace gfc::plan
