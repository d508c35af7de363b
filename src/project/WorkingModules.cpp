#include "project/WorkingModules.h"

#include "services/Text.h"

#include <algorithm>
#include <unordered_map>

namespace gfc::project {
namespace {

using Inventory = TagInventory;
using Found = WorkingModuleCandidates;

struct KindRow {
    TagList Inventory::*Tags;
    std::vector<std::string> Found::*Names;
    int Found::*Count;
    std::vector<Candidate> Found::*List;
    int MinimumRegisters;
};

// The two directions of each kind stand next to each other, the input first.
// clang-format off
constexpr std::array<KindRow, 6> Kinds = {{
    {&Inventory::VirtLX, &Found::NamesLX, &Found::NLX, &Found::LongCandidates,   WorkingLongRegisters},
    {&Inventory::VirtLY, &Found::NamesLY, &Found::NLY, &Found::LongCandidates,   WorkingLongRegisters},
    {&Inventory::VirtAX, &Found::NamesAX, &Found::NAX, &Found::AnalogCandidates, WorkingAnalogRegisters},
    {&Inventory::VirtAY, &Found::NamesAY, &Found::NAY, &Found::AnalogCandidates, WorkingAnalogRegisters},
    {&Inventory::VirtFX, &Found::NamesFX, &Found::NFX, &Found::FloatCandidates,  WorkingFloatRegisters},
    {&Inventory::VirtFY, &Found::NamesFY, &Found::NFY, &Found::FloatCandidates,  WorkingFloatRegisters},
}};
// clang-format on

// How many tags of the list each module has, so that a list of many modules is walked once and not once per
// module.
class ModuleSizes {
public:
    explicit ModuleSizes(const TagList& list) {
        // The tags of a module mostly stand together, so that its name is looked up once for all of them.
        const TagText* module = nullptr;
        int* size = nullptr;
        for (const Tag& tag : list) {
            if (module == nullptr || *module != tag.ModuleName) {
                module = &tag.ModuleName;
                size = &sizes_[services::FoldCase(*module)];
            }
            ++*size;
        }
    }
    [[nodiscard]] int Of(const std::string& module) const {
        const auto found = sizes_.find(services::FoldCase(module));
        return found == sizes_.end() ? 0 : found->second;
    }

private:
    std::unordered_map<std::string, int> sizes_;
};

// The modules of one kind and direction that are large enough, in tag order. A module in two pieces stands
// here twice, each time with the size of the whole.
std::vector<Candidate> LargeModules(const KindRow& kind, const TagInventory& inventory,
                                    const std::vector<std::string>& names) {
    const ModuleSizes sizes(inventory.*kind.Tags);
    std::vector<Candidate> large;
    for (const std::string& name : names)
        if (const int size = sizes.Of(name); size >= kind.MinimumRegisters)
            large.push_back({size, name});
    return large;
}

template <class Has>
bool EachKindHasOne(const Has& has) {
    for (std::size_t i = 0; i < Kinds.size(); i += 2)
        if (!has(Kinds[i]) && !has(Kinds[i + 1]))
            return false;
    return true;
}

// Counts that an earlier station left make a list longer than what is found for it: the rest stays empty
// records.
void FillLists(const std::array<std::vector<Candidate>, Kinds.size()>& large, Found& candidates) {
    for (std::size_t i = 0; i < Kinds.size(); i += 2) {
        auto& list = candidates.*Kinds[i].List;
        const auto size =
            static_cast<std::size_t>(candidates.*Kinds[i].Count + candidates.*Kinds[i + 1].Count);
        list = large[i];
        list.insert(list.end(), large[i + 1].begin(), large[i + 1].end());
        list.resize(size);
    }
}

struct RegisterRow {
    std::string WorkingModuleNames::*Name;
    TagList TagInventory::*PhysicalInput;
    TagList TagInventory::*VirtualInput;
    std::string config::WorkingModules::*RegAddr;
    std::string config::WorkingModules::*RegType;
};

using Working = config::WorkingModules;

// clang-format off
constexpr std::array<RegisterRow, 3> RegisterRows = {{
    {&WorkingModuleNames::Analog, &Inventory::PhysAX, &Inventory::VirtAX,
     &Working::WrkAnalogRegAddr,  &Working::WrkAnalogRegType},
    {&WorkingModuleNames::Long,   &Inventory::PhysLX, &Inventory::VirtLX,
     &Working::WrkIntLongRegAddr, &Working::WrkIntLongRegType},
    {&WorkingModuleNames::Float,  &Inventory::PhysFX, &Inventory::VirtFX,
     &Working::WrkFloatRegAddr,   &Working::WrkFloatRegType},
}};
// clang-format on

const Tag* FirstOfModule(const TagList& list, std::string_view module) {
    const auto found = std::ranges::find_if(
        list, [&](const Tag& tag) { return services::EqualNoCase(tag.ModuleName, module); });
    return found == list.end() ? nullptr : &*found;
}

} // namespace

void WorkingModuleCandidates::ClearCounts() {
    NLX = NLY = NAX = NAY = NFX = NFY = 0;
}

bool ChooseWorkingModules(const TagInventory& inventory, WorkingModuleCandidates& candidates) {
    for (const KindRow& kind : Kinds)
        candidates.*kind.Names = DistinctModules(inventory.*kind.Tags);
    if (!EachKindHasOne([&](const KindRow& kind) { return !(candidates.*kind.Names).empty(); }))
        return false;
    std::array<std::vector<Candidate>, Kinds.size()> large;
    for (std::size_t i = 0; i < Kinds.size(); ++i) {
        large[i] = LargeModules(Kinds[i], inventory, candidates.*Kinds[i].Names);
        candidates.*Kinds[i].Count += static_cast<int>(large[i].size());
    }
    if (!EachKindHasOne([&](const KindRow& kind) { return candidates.*kind.Count >= 1; }))
        return false;
    FillLists(large, candidates);
    return true;
}

void ResolveWorkingModuleRegisters(const TagInventory& inventory, const WorkingModuleNames& names,
                                   config::WorkingModules& working) {
    for (const RegisterRow& row : RegisterRows) {
        const std::string& module = names.*row.Name;
        // The second input list is searched in any case, and a match there counts more. A module of outputs
        // is deliberately not looked for: what stood there stays.
        const Tag* tag = FirstOfModule(inventory.*row.PhysicalInput, module);
        if (const Tag* inVirtual = FirstOfModule(inventory.*row.VirtualInput, module))
            tag = inVirtual;
        if (tag == nullptr)
            continue;
        working.*row.RegAddr = std::to_string(tag->RegAddr);
        working.*row.RegType = tag->RegType;
    }
}

} // namespace gfc::project
