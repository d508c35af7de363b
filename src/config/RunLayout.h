#pragma once

#include "config/VarINIFile.h"

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

// The layout of a run's section: its keys in file order, each with the text of the model that it carries, and
// the choices under which it exists. Reader, full write and in-place update all walk this one table.
namespace gfc::config {

enum class BindingPart { Tag, Type, RegAddr };

// A common value, copied into every run's section. Copy is where the reader puts it; none if it is not read
// back.
struct CommonCopy {
    std::string StationConfig::*Value;
    std::string RunMechanical::*Copy = nullptr;
};
// Written from the common binding, read into the run's own.
struct SharedBinding {
    TagBinding StationConfig::*Common;
    TagBinding RunIO::*Own;
};
struct GasBinding {
    GasSlot Slot;
};
// A fixed value: written from the Tag text of the run's slot, read into that of GasComposition.
struct GasValue {
    GasSlot Slot;
};

using RunField = std::variant<CommonCopy, std::string RunMechanical::*, std::string RunIO::*,
                              TagBinding RunIO::*, SharedBinding, GasBinding, GasValue>;

// A text, whose key is its name, or a binding, which has three keys.
struct RunRow {
    char Group;
    std::string_view Name;
    RunField Field;
    std::string_view AddressSuffix = "KDIORegAddr";
};

[[nodiscard]] std::span<const RunRow> RunRows();
// The row must exist. A name may stand in two groups: once as a binding and once as a fixed value.
[[nodiscard]] const RunRow& RunRowOf(char group, std::string_view name);

[[nodiscard]] bool IsBinding(const RunRow& row);

// A few keys are deliberately spelt differently by what writes or reads them.
enum class KeyUse { FullWrite, Read, Update };
[[nodiscard]] std::string KeyOf(const RunRow& row, BindingPart part, KeyUse use);
// Calls with each part of a binding, tag, type, address; with the tag alone for a text.
void ForEachPart(const RunRow& row, const std::function<void(BindingPart)>& visit);

// Under the present choices; mechanical is the run's own record.
[[nodiscard]] bool GroupPresent(char group, const StationConfig& station, const RunMechanical& mechanical);

// Where the texts of a run are written from.
struct RunSource {
    const StationConfig& Common;
    const RunIO& IO;
    const RunGas& Gas;
    const RunMechanical& Mechanical;
};
// The record at an element of the run arrays, else the one that stands for none.
template <class Record>
[[nodiscard]] const Record& ElementOr(const std::vector<Record>& records, int element, const Record& none) {
    const auto index = static_cast<std::size_t>(element);
    return index < records.size() ? records[index] : none;
}

[[nodiscard]] const std::string& TextOf(const RunRow& row, BindingPart part, const RunSource& from);

// Where the texts of a run are read to.
struct RunTarget {
    RunIO& IO;
    RunGas& Gas;
    RunMechanical& Mechanical;
    RunGas& FixedValues;
};

[[nodiscard]] std::string& PartOf(TagBinding& binding, BindingPart part);
[[nodiscard]] const std::string& PartOf(const TagBinding& binding, BindingPart part);

[[nodiscard]] std::string RunSection(int runNumber); // 1 to 5

} // namespace gfc::config
