#include "workshop/import/StationPlanner.h"

#include "workshop/text/Letters.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <string>
#include <unordered_map>

namespace gfc::workshop {

namespace {

struct Module {
    std::string Name; // as it came first
    std::string Type; // what it has so far
    std::string Told; // what the table says; empty where it says nothing
};

struct RowTag {
    const TableRow* Row;
    Tag TheTag;
    Module* TheModule;
    bool Placed = false; // stands where a tag of its name stood before
};

std::string PlaceOf(const Tag& tag) {
    return tag.Class + ' ' + std::to_string(tag.Register);
}

class Planner {
public:
    Planner(const Station& station, const std::vector<Tag>& tags, ImportMode mode,
            std::vector<Complaint>& complaints)
        : before_(tags), merge_(mode == ImportMode::Merge), complaints_(complaints) {
        plan_.Before = station;
        plan_.After = station;
    }

    [[nodiscard]] StationPlan Plan(std::span<const TableRow> rows) {
        if (merge_) {
            RememberModules();
        }
        rowTags_.reserve(rows.size());
        byName_.reserve(rows.size());
        for (const TableRow& row : rows) {
            TakeProperties(row);
            if (HoldsTag(row)) {
                TakeTag(row);
            }
        }
        TakeAsVirtual();
        CompleteTags();
        CheckRegisters();
        Arrange();
        return std::move(plan_);
    }

private:
    void RememberModules() {
        for (const Tag& tag : before_) {
            modules_.try_emplace(Folded(tag.Module), Module{tag.Module, tag.ModuleType, ""});
        }
    }

    // The properties of a station are given once or alike on each row; an empty field says nothing.
    void TakeProperties(const TableRow& row) {
        Agree(told_.Station, row.Station, row, "Station");
        Agree(told_.StationType, row.StationType, row, "Station Type");
        Agree(told_.Address, row.Address, row, "IP Address");
        Agree(told_.SerialNumber, row.SerialNumber, row, "Serial Number");
        Station& after = plan_.After;
        after.Type = told_.StationType.empty() ? after.Type : told_.StationType;
        after.Address = told_.Address.empty() ? after.Address : told_.Address;
        after.SerialNumber = told_.SerialNumber.empty() ? after.SerialNumber : NumberOf(told_.SerialNumber);
    }

    void Agree(std::string& told, const std::string& text, const TableRow& row, const char* column) {
        if (told.empty()) {
            told = text;
        } else if (!text.empty() && text != told) {
            Complain(row, column, "\"" + text + "\" differs from \"" + told + "\" further up");
        }
    }

    void TakeTag(const TableRow& row) {
        Module& module = modules_.try_emplace(Folded(row.Module), Module{row.Module, "", ""}).first->second;
        Agree(module.Told, row.ModuleType, row, "Module Type");
        const auto [known, isNew] = byName_.try_emplace(Folded(row.Tag), rowTags_.size());
        if (!isNew) {
            Complain(row, "Tag",
                     "the station has a tag \"" + row.Tag + "\" in row " +
                         std::to_string(rowTags_[known->second].Row->Row) + " already");
            return;
        }
        rowTags_.push_back({&row, TagOf(row), &module});
    }

    // Only a virtual module has floats and longs that can be bound. One that the project has already stays
    // what it is there, so that what was written out comes back as it was.
    void TakeAsVirtual() {
        for (const RowTag& row : rowTags_) {
            Module& module = *row.TheModule;
            const char kind = row.TheTag.Class.front();
            if ((kind == 'F' || kind == 'L') && module.Type.empty() && module.Told.empty() &&
                !StoodBefore(module.Name)) {
                module.Told = "Virtual Module";
                plan_.TakenAsVirtual.push_back(module.Name);
            }
        }
    }

    [[nodiscard]] bool StoodBefore(const std::string& module) const {
        return std::any_of(before_.begin(), before_.end(),
                           [&](const Tag& tag) { return SameName(tag.Module, module); });
    }

    // What a module is called, and its type, may be told by a later row than that of the tag.
    void GiveModule(Tag& tag) const {
        const auto module = modules_.find(Folded(tag.Module));
        if (module != modules_.end()) {
            GiveModule(tag, module->second);
        }
    }
    static void GiveModule(Tag& tag, const Module& module) {
        tag.Module = module.Name;
        tag.ModuleType = module.Told.empty() ? module.Type : module.Told;
    }

    void CompleteTags() {
        for (RowTag& row : rowTags_) {
            GiveModule(row.TheTag, *row.TheModule);
        }
        for (const Tag& tag : before_) {
            if (RowTag* row = RowOf(tag); merge_ && row != nullptr && row->TheTag.Description.empty()) {
                row->TheTag.Description = tag.Description;
            }
        }
    }

    [[nodiscard]] RowTag* RowOf(const Tag& tag) {
        const auto found = byName_.find(Folded(tag.Name));
        return found == byName_.end() ? nullptr : &rowTags_[found->second];
    }

    // Two tags may change places, so that only tags that the table does not name are in the way.
    void CheckRegisters() {
        std::unordered_map<std::string, std::string> holders;
        holders.reserve(before_.size() + rowTags_.size());
        for (const Tag& tag : before_) {
            if (merge_ && RowOf(tag) == nullptr) {
                holders.emplace(PlaceOf(tag), tag.Name);
            }
        }
        for (const RowTag& row : rowTags_) {
            const auto [holder, isFree] = holders.try_emplace(PlaceOf(row.TheTag), row.TheTag.Name);
            if (!isFree) {
                Complain(*row.Row, "Register",
                         HolderText(holder->second) + " at " + holder->first + " already");
            }
        }
    }

    // Of a tag that the table has it is said where, since it may be mended there as well.
    [[nodiscard]] std::string HolderText(const std::string& name) const {
        const auto known = byName_.find(Folded(name));
        return "the station has tag \"" + name + '"' +
               (known == byName_.end() ? std::string()
                                       : " in row " + std::to_string(rowTags_[known->second].Row->Row));
    }

    void Arrange() {
        if (merge_) {
            KeepOldPlaces();
        }
        AddNewTags();
    }

    void KeepOldPlaces() {
        for (const Tag& tag : before_) {
            RowTag* row = RowOf(tag);
            if (row == nullptr) {
                GiveModule(plan_.Tags.emplace_back(tag));
            } else if (SameName(row->TheTag.Module, tag.Module)) {
                plan_.Tags.push_back(row->TheTag);
                row->Placed = true;
            }
        }
    }

    // Behind the last tag of the module, as far as the project has it; else at the end as the rows stand.
    void AddNewTags() {
        std::map<std::string, std::size_t> lastOf;
        for (std::size_t at = 0; at < plan_.Tags.size(); ++at) {
            lastOf[Folded(plan_.Tags[at].Module)] = at;
        }
        std::vector<std::vector<Tag>> behind(plan_.Tags.size() + 1);
        for (RowTag& row : rowTags_) { // the last to need them
            if (!row.Placed) {
                const auto last = lastOf.empty() ? lastOf.end() : lastOf.find(Folded(row.TheTag.Module));
                behind[last == lastOf.end() ? plan_.Tags.size() : last->second].push_back(
                    std::move(row.TheTag));
            }
        }
        std::vector<Tag> all;
        all.reserve(plan_.Tags.size() + rowTags_.size());
        for (std::size_t at = 0; at < behind.size(); ++at) {
            if (at < plan_.Tags.size()) {
                all.push_back(std::move(plan_.Tags[at]));
            }
            std::move(behind[at].begin(), behind[at].end(), std::back_inserter(all));
        }
        plan_.Tags = std::move(all);
    }

    void Complain(const TableRow& row, const char* column, std::string text) {
        complaints_.push_back({row.Row, column, std::move(text)});
    }

    const std::vector<Tag>& before_;
    bool merge_;
    std::vector<Complaint>& complaints_;
    StationPlan plan_;
    TableRow told_;
    std::unordered_map<std::string, Module> modules_; // by name; they stay where they are
    std::vector<RowTag> rowTags_;
    std::unordered_map<std::string, std::size_t> byName_;
};

using TagsByName = std::unordered_map<std::string, const Tag*>;

TagsByName ByName(const std::vector<Tag>& tags) {
    TagsByName byName;
    byName.reserve(tags.size());
    for (const Tag& tag : tags) {
        byName.emplace(Folded(tag.Name), &tag);
    }
    return byName;
}

// The names of those tags that stand in the other list too.
std::vector<std::string> OrderWithin(const std::vector<Tag>& tags, const TagsByName& others) {
    std::vector<std::string> names;
    for (const Tag& tag : tags) {
        if (std::string name = Folded(tag.Name); others.contains(name)) {
            names.push_back(std::move(name));
        }
    }
    return names;
}

void Compare(const std::vector<Tag>& tags, StationPlan& plan) {
    if (tags.empty()) { // a new station: nothing has to be looked for
        plan.Added.resize(plan.Tags.size());
        std::iota(plan.Added.begin(), plan.Added.end(), 0U);
        return;
    }
    const TagsByName before = ByName(tags);
    const TagsByName after = ByName(plan.Tags);
    for (std::size_t at = 0; at < plan.Tags.size(); ++at) {
        const Tag& tag = plan.Tags[at];
        const auto old = before.find(Folded(tag.Name));
        if (old == before.end()) {
            plan.Added.push_back(at);
        } else if (*old->second != tag) {
            plan.Changed.push_back({*old->second, tag});
        }
    }
    for (const Tag& tag : tags) {
        if (!after.contains(Folded(tag.Name))) {
            plan.Removed.push_back(tag);
        }
    }
    plan.Reordered = OrderWithin(tags, after) != OrderWithin(plan.Tags, before);
}

} // namespace

StationPlan PlanStation(const Station& station, const std::vector<Tag>& tags, std::span<const TableRow> rows,
                        ImportMode mode, std::vector<Complaint>& complaints) {
    StationPlan plan = Planner(station, tags, mode, complaints).Plan(rows);
    Compare(tags, plan);
    return plan;
}

} // namespace gfc::workshop
