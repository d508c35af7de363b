#pragma once

#include "project/TagText.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The classified tags of the station that was opened last.
namespace gfc::project {

// A tag as the add-on library delivered it, texts cut at their first NUL.
struct Tag {
    TagText TagName;
    std::int32_t RegAddr = 0;
    TagText RegType; // "X", "Y", "AX", "AY", "FX", "FY", "LX" or "LY", in any case
    TagText ModuleName;
    TagText ModuleType; // first word "Virtual" for a virtual module
};

using TagList = std::vector<Tag>;

enum class RegisterClass { X, Y, AX, AY, FX, FY, LX, LY };
constexpr std::size_t RegisterClasses = 8;

// The class that a register type names, in any case; nothing for an unknown one.
[[nodiscard]] std::optional<RegisterClass> RegisterClassOf(std::string_view regType);
// True where the first word of the module's type is exactly "Virtual".
[[nodiscard]] bool IsVirtual(const Tag& tag);

// The sixteen class lists, each in delivery order, and the derived lists of what may be bound.
struct TagInventory {
    TagList PhysX, PhysY, PhysAX, PhysAY, PhysFX, PhysFY, PhysLX, PhysLY;
    TagList VirtX, VirtY, VirtAX, VirtAY, VirtFX, VirtFY, VirtLX, VirtLY;
    // What is still free, for the binding pass under way.
    TagList AvailFloat, AvailLong, AvailAnalog, AvailDigital;
};

// A tag of an unknown class stands in no list. The derived lists stay as they were.
void BuildInventory(TagList tags, TagInventory& inventory);

// The names of the working modules that are kept out of the derived lists.
struct WorkingModuleNames {
    std::string Analog;
    std::string Long;
    std::string Float;
};

// AvailLong is built for AGA-7 only, and otherwise left as it is.
void BuildAvailableLists(TagInventory& inventory, const WorkingModuleNames& working, bool isAGA7);

// The entries of a, then those of b, that stand outside the module.
[[nodiscard]] TagList MergeWithout(const TagList& a, const TagList& b, std::string_view moduleName);
// One name for each run of neighbours in one module; names compare exactly here, unlike everywhere else.
[[nodiscard]] std::vector<std::string> DistinctModules(const TagList& list);

} // namespace gfc::project
