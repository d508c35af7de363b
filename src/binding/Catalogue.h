#pragma once

#include "binding/BindingStage.h"
#include "config/Units.h"
#include "config/VarINIFile.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

// Which variables can be bound to a tag: one table for the tree, the check and the summary, which name them
// differently and do not ask for quite the same ones.
namespace gfc::binding {

// A variable takes a tag of exactly one class; input and output types of the class are offered alike.
enum class TagClass { Float, Long, Analog, Digital };

// Nothing for a type of no class; without regard to case.
[[nodiscard]] std::optional<TagClass> ClassOf(std::string_view tagType);
// The heading of the number column of the list that offers the class.
[[nodiscard]] std::string_view ListHeading(TagClass tagClass);

// What decides on the presence of a variable.
struct Conditions {
    std::string FlowAlgorithm;
    std::string GasDensitySource;
    bool Measured = false;            // a densimeter
    bool CompositionMeasured = false; // the gas data come from tags
    bool ExtAtmPress = false;
    bool ExtMech = false; // the run's diameters come from tags
    bool ExtCorr = false; // only a file edited by hand says so; the tree does not ask
};

// element is that of the run arrays; one that does not exist has no external diameters.
[[nodiscard]] Conditions ConditionsOf(const config::StationConfig& station, int element);

using Predicate = bool (*)(const Conditions&);

// When a variable exists; the three consumers deliberately do not agree everywhere.
struct Presence {
    Predicate InTree;
    Predicate InCheck;
    Predicate InSummary;
};

struct Captions {
    std::string_view Tree;
    std::string_view Check;
    std::string_view Summary; // the unit stands behind it in brackets if the row has one
};

// Where the binding of a variable is kept.
using Slot = std::variant<config::TagBinding config::RunIO::*, config::GasSlot,
                          config::TagBinding config::StationConfig::*>;

// The groups under which the check lists its entries.
namespace group {
constexpr std::string_view Inputs = "AGA Input";
constexpr std::string_view Outputs = "AGA Output";
constexpr std::string_view GasOutputs = "AGA8 Output";
constexpr std::string_view Composition = "I/O tags composition gas";
constexpr std::string_view GasParameters = "I/O tags parameters SGERG88";
} // namespace group

struct VariableRow {
    BindingStage Stage;
    TagClass Class;
    Slot Where;
    std::string_view Stem; // of the three keys in the file
    binding::Captions Captions;
    std::optional<config::Quantity> Unit;
    const binding::Presence& Presence;
    int CheckPlace; // in the order in which the check goes through a run; 0 for what no run owns
    std::string_view ReportStem = {}; // as the check names it, if not by the stem

    [[nodiscard]] std::string_view ReportedStem() const { return ReportStem.empty() ? Stem : ReportStem; }
    [[nodiscard]] std::string TypeKey() const { return std::string(Stem) + "Type"; }
    [[nodiscard]] std::string TagKey() const { return std::string(Stem) + "Tag"; }
    // The suffix differs by group; the difference is part of the file's format.
    [[nodiscard]] std::string AddressKey() const;
    [[nodiscard]] std::string_view CheckGroup() const;
};

// The whole table. Within a stage the rows stand in tree order: float, then long, then analog or digital.
// The common atmospheric pressure stands among the run's inputs, where the summary shows it.
[[nodiscard]] std::span<const VariableRow> Catalogue();

[[nodiscard]] std::vector<const VariableRow*> TreeRows(BindingStage stage, const Conditions& conditions);
// What a file's options call for of one run, in the order of the check.
[[nodiscard]] std::vector<const VariableRow*> CheckRows(const Conditions& conditions);
// The common atmospheric pressure, which the check asks for once, before the runs.
[[nodiscard]] const VariableRow& CommonPressureRow();
// The inputs include the common atmospheric pressure.
[[nodiscard]] std::vector<const VariableRow*> SummaryRows(BindingStage stage, const Conditions& conditions);
// "Density (kg/m^3)"
[[nodiscard]] std::string SummaryCaption(const VariableRow& row, const config::StationConfig& station);

// Null where the run arrays have no such element.
[[nodiscard]] config::TagBinding* BindingOf(const VariableRow& row, config::StationConfig& station,
                                            int element);
[[nodiscard]] const config::TagBinding* BindingOf(const VariableRow& row,
                                                  const config::StationConfig& station, int element);

struct Variable {
    const VariableRow* Row;
    config::TagBinding* Binding; // never null; lives as long as the station's run arrays are left alone

    [[nodiscard]] std::string_view Caption() const { return Row->Captions.Tree; }
    [[nodiscard]] TagClass Class() const { return Row->Class; }
};

// The variables of one stage, in tree order. Empty if the stage does not exist under the station's choices or
// the run arrays have no such element; for CommonInputs the element does not matter.
[[nodiscard]] std::vector<Variable> VariablesOf(BindingStage stage, config::StationConfig& station,
                                                int element);

[[nodiscard]] std::string_view RootCaption(BindingStage stage, const config::StationConfig& station);
// The help number of a tree by its root's text; 0 for "Common Inputs", which has no page.
[[nodiscard]] int ContextOfRoot(std::string_view rootText);

} // namespace gfc::binding
