#pragma once

#include "config/RunLayout.h"
#include "config/VarINIFile.h"

#include <span>
#include <string>
#include <string_view>
#include <variant>

// The layout of what is common to the station: the sections before those of the runs, their keys in file
// order, and the text of the model that each carries.
namespace gfc::config {

enum class CommonSection { General, Station, FlowRuns, Flow, Gas };

struct Literal {
    std::string_view Text;
};
struct NotRead {};
// The flag of run 0 to 4: the writers take it from RunList, the reader puts it in Run.
struct FlagInRunList {
    std::size_t Run;
};
struct FlagInRun {
    std::size_t Run;
};

// A part of the binding is a part of CommonPa.
using CommonField = std::variant<Literal, NotRead, std::string StationConfig::*,
                                 std::string WorkingModules::*, BindingPart, FlagInRunList, FlagInRun>;

struct CommonRow {
    CommonSection Section;
    std::string_view Key;
    CommonField Written;
    CommonField Read;
};

[[nodiscard]] std::span<const CommonRow> CommonRows();

[[nodiscard]] std::string CommonTextOf(const CommonField& field, const StationConfig& station);
// Null for what is not read back.
[[nodiscard]] std::string* CommonPlaceOf(const CommonField& field, StationConfig& station);

// "AGA3" or "AGA7": the writers go by FlagAGA7, the reader by FlowAlgorithm, and an unknown one reads as
// "AGA7".
[[nodiscard]] std::string FlowSectionToWrite(const StationConfig& station);
[[nodiscard]] std::string FlowSectionToRead(const StationConfig& station);
// "AGA8" for the detail family, else "SGERG88", for a densimeter too.
[[nodiscard]] std::string GasSection(const StationConfig& station);
[[nodiscard]] std::string SectionToWrite(CommonSection section, const StationConfig& station);

} // namespace gfc::config
