#include "workshop/command/PlanListing.h"

#include "workshop/command/Commands.h"

#include <algorithm>
#include <vector>

namespace gfc::workshop {

namespace {

struct Totals {
    std::size_t Added = 0;
    std::size_t Changed = 0;
    std::size_t Removed = 0;
    std::size_t Kept = 0;
};

void Count(const StationPlan& plan, Totals& totals) {
    totals.Added += plan.Added.size();
    totals.Changed += plan.Changed.size();
    totals.Removed += plan.Removed.size();
    totals.Kept += plan.Tags.size() - plan.Added.size() - plan.Changed.size();
}

std::string TextOf(const Totals& totals) {
    return Counted(totals.Added, "tag") + " added, " + std::to_string(totals.Changed) + " changed, " +
           std::to_string(totals.Removed) + " removed, " + std::to_string(totals.Kept) + " as they were";
}

struct Difference {
    const char* What;
    std::string Before;
    std::string After;
};

std::string TextOf(const std::vector<Difference>& differences) {
    std::string text;
    for (const Difference& difference : differences) {
        if (difference.Before != difference.After) {
            text += (text.empty() ? "" : ", ") + std::string(difference.What) + " \"" + difference.Before +
                    "\" -> \"" + difference.After + '"';
        }
    }
    return text;
}

std::string PlaceOf(const Tag& tag) {
    return tag.Class + ' ' + std::to_string(tag.Register);
}

std::string TextOf(const TagChange& change) {
    const auto& [before, after] = change;
    return before.Name + ": " +
           TextOf({{"name", before.Name, after.Name},
                   {"register", PlaceOf(before), PlaceOf(after)},
                   {"module", before.Module, after.Module},
                   {"module type", before.ModuleType, after.ModuleType},
                   {"description", before.Description, after.Description}});
}

std::string PropertiesOf(const Station& before, const Station& after) {
    return TextOf(
        {{"station type", before.Type, after.Type},
         {"IP address", before.Address, after.Address},
         {"serial number", std::to_string(before.SerialNumber), std::to_string(after.SerialNumber)}});
}

std::string TextOf(const Tag& tag) {
    return tag.Name + ": " + PlaceOf(tag) + " in " + tag.Module;
}

void PrintChanges(std::ostream& out, const StationPlan& plan) {
    if (plan.PropertiesChange() && !plan.IsNew()) {
        out << "  ~ " << PropertiesOf(plan.Before, plan.After) << '\n';
    }
    for (const std::size_t at : plan.Added) {
        out << "  + " << TextOf(plan.Tags[at]) << '\n';
    }
    for (const TagChange& change : plan.Changed) {
        out << "  ~ " << TextOf(change) << '\n';
    }
    for (const Tag& tag : plan.Removed) {
        out << "  - " << TextOf(tag) << '\n';
    }
    if (plan.Reordered) {
        out << "  ~ the tags that stay are delivered in another order\n";
    }
}

} // namespace

bool ChangesAnything(const ImportPlan& plan) {
    return std::any_of(plan.Stations.begin(), plan.Stations.end(),
                       [](const StationPlan& station) { return station.ChangesAnything(); });
}

std::string TotalsOf(const ImportPlan& plan) {
    Totals totals;
    for (const StationPlan& station : plan.Stations) {
        Count(station, totals);
    }
    return TextOf(totals);
}

void PrintPlan(std::ostream& out, const ImportPlan& plan, Detail detail) {
    for (const StationPlan& station : plan.Stations) {
        if (!station.ChangesAnything()) {
            continue;
        }
        Totals totals;
        Count(station, totals);
        out << station.After.Name << (station.IsNew() ? " (new station): " : ": ") << TextOf(totals) << '\n';
        if (detail == Detail::Everything) {
            PrintChanges(out, station);
        }
    }
}

} // namespace gfc::workshop
