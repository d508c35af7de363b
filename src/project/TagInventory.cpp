#include "project/TagInventory.h"

#include "services/Text.h"
#include "services/Utilidades.h"

#include <algorithm>

namespace gfc::project {
namespace {

using services::EqualNoCase;

struct ClassRow {
    std::string_view Name;
    TagList TagInventory::*Physical;
    TagList TagInventory::*Virtual;
};

// In the order of RegisterClass.
// clang-format off
constexpr std::array<ClassRow, RegisterClasses> Classes = {{
    {"X",  &TagInventory::PhysX,  &TagInventory::VirtX},
    {"Y",  &TagInventory::PhysY,  &TagInventory::VirtY},
    {"AX", &TagInventory::PhysAX, &TagInventory::VirtAX},
    {"AY", &TagInventory::PhysAY, &TagInventory::VirtAY},
    {"FX", &TagInventory::PhysFX, &TagInventory::VirtFX},
    {"FY", &TagInventory::PhysFY, &TagInventory::VirtFY},
    {"LX", &TagInventory::PhysLX, &TagInventory::VirtLX},
    {"LY", &TagInventory::PhysLY, &TagInventory::VirtLY},
}};
// clang-format on

void Append(TagList& target, const TagList& more) {
    target.insert(target.end(), more.begin(), more.end());
}

// Null for an unknown class.
TagList* ListOf(const Tag& tag, TagInventory& inventory) {
    const auto registerClass = RegisterClassOf(tag.RegType);
    if (!registerClass)
        return nullptr;
    const ClassRow& row = Classes[static_cast<std::size_t>(*registerClass)];
    return &(inventory.*(IsVirtual(tag) ? row.Virtual : row.Physical));
}

} // namespace

std::optional<RegisterClass> RegisterClassOf(std::string_view regType) {
    const auto row =
        std::ranges::find_if(Classes, [&](const ClassRow& c) { return EqualNoCase(c.Name, regType); });
    if (row == Classes.end())
        return std::nullopt;
    return static_cast<RegisterClass>(row - Classes.begin());
}

bool IsVirtual(const Tag& tag) {
    return services::FirstWord(tag.ModuleType) == "Virtual";
}

void BuildInventory(TagList tags, TagInventory& inventory) {
    for (const ClassRow& row : Classes) {
        (inventory.*row.Physical).clear();
        (inventory.*row.Virtual).clear();
    }
    // The tags of one class and kind mostly stand together, and are moved together.
    for (auto first = tags.begin(); first != tags.end();) {
        const auto end = std::find_if(first, tags.end(), [&](const Tag& tag) {
            return tag.RegType != first->RegType || tag.ModuleType != first->ModuleType;
        });
        if (TagList* list = ListOf(*first, inventory))
            list->insert(list->end(), std::move_iterator(first), std::move_iterator(end));
        first = end;
    }
}

void BuildAvailableLists(TagInventory& inventory, const WorkingModuleNames& working, bool isAGA7) {
    inventory.AvailFloat = MergeWithout(inventory.VirtFX, inventory.VirtFY, working.Float);
    if (isAGA7)
        inventory.AvailLong = MergeWithout(inventory.VirtLX, inventory.VirtLY, working.Long);
    inventory.AvailAnalog = MergeWithout(inventory.VirtAX, inventory.VirtAY, working.Analog);
    Append(inventory.AvailAnalog, inventory.PhysAX);
    Append(inventory.AvailAnalog, inventory.PhysAY);
    inventory.AvailDigital = inventory.PhysX;
    for (const TagList* more : {&inventory.PhysY, &inventory.VirtX, &inventory.VirtY})
        Append(inventory.AvailDigital, *more);
}

TagList MergeWithout(const TagList& a, const TagList& b, std::string_view moduleName) {
    TagList target;
    target.reserve(a.size() + b.size());
    for (const TagList* list : {&a, &b})
        std::ranges::copy_if(*list, std::back_inserter(target),
                             [&](const Tag& tag) { return !EqualNoCase(tag.ModuleName, moduleName); });
    return target;
}

std::vector<std::string> DistinctModules(const TagList& list) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < list.size(); ++i)
        if (i + 1 == list.size() || list[i].ModuleName != list[i + 1].ModuleName)
            names.push_back(list[i].ModuleName);
    return names;
}

} // namespace gfc::project
