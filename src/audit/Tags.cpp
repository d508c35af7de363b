#include "audit/Bindings.h"
#include "audit/TagIndex.h"
#include "binding/ErrorLog.h"
#include "binding/ExpectedTags.h"
#include "binding/SummaryValues.h"
#include "config/RunLayout.h"
#include "project/WorkingModules.h"
#include "services/Text.h"

#include <algorithm>
#include <array>

namespace gfc::audit {

namespace {

using binding::ExpectedTag;
using binding::ExpectedTags;

constexpr std::array Lists = {&ExpectedTags::ExpectedFloat, &ExpectedTags::ExpectedAnalog,
                              &ExpectedTags::ExpectedDigital, &ExpectedTags::ExpectedLong};

// The row from which an entry was made.
const binding::VariableRow* RowOf(const ExpectedTag& entry) {
    const auto rows = binding::Catalogue();
    const auto found = std::ranges::find_if(rows, [&](const binding::VariableRow& row) {
        return row.ReportedStem() == entry.Stem && row.Captions.Check == entry.Caption;
    });
    return found == rows.end() ? nullptr : &*found;
}

void AddFault(const ExpectedTag& entry, RuleId rule, std::initializer_list<std::string_view> words,
              Sink& sink) {
    const auto* row = RowOf(entry);
    const std::string key = row == nullptr ? std::string(entry.Stem) : row->TagKey();
    sink.Add(rule, {key, entry.RegAddr, entry.Tag}, words);
}

// The faults in the words of the log.
void TellFaults(const ExpectedTag& entry, Sink& sink) {
    const auto error = binding::ErrorOf(entry);
    const auto warning = binding::WarningOf(entry);
    if (error && entry.Tag == binding::NotConfigured)
        AddFault(entry, RuleId::TagNotAssigned, {entry.Caption, *error}, sink);
    else if (error)
        AddFault(entry, RuleId::TagNotFound, {entry.Caption, entry.Tag, entry.RegAddr, entry.Type, *error},
                 sink);
    if (warning)
        AddFault(entry, RuleId::TagWithoutName, {entry.Caption, *warning}, sink);
}

void TellAll(const ExpectedTags& expected, bool areOn, Sink& sink) {
    for (const auto list : Lists)
        for (const ExpectedTag& entry : expected.*list) {
            const bool isRun = entry.Location.starts_with("Run");
            sink.About(isRun ? entry.Location.back() - '0' : 0, areOn, entry.Location);
            TellFaults(entry, sink);
        }
}

// What the check of a file says.
void CheckExpected(ExpectedTags& expected, bool areOn, const project::TagInventory& inventory, Sink& sink) {
    if (!binding::CheckExpectedTags(expected, inventory))
        TellAll(expected, areOn, sink);
}

bool IsCalorific(const Bound& bound) {
    return bound.Row->Stem == "VolCalorificValueKDIO";
}

// Where the check does not look: the type of the calorific value by its own key, and what it passes over.
void CheckPassedOver(const Bound& bound, const TagIndex& index, Sink& sink) {
    const config::TagBinding& tag = *bound.Binding;
    if (index.Holds(bound))
        return;
    if (!bound.InCheck)
        Add(sink, RuleId::TagPassedOver, bound, {bound.Variable(), tag.Tag, tag.RegAddr, tag.Type});
    else if (const auto* other = IsCalorific(bound) ? index.OfAnotherType(bound) : nullptr)
        Add(sink, RuleId::CalorificType, bound, {tag.Tag, other->RegType.View(), tag.Type}).Key =
            bound.Row->TypeKey();
}

// The working modules, each with the lists in which its tags stand.
struct ModuleRow {
    std::string_view Key;
    std::string config::WorkingModules::*Name;
    std::string config::WorkingModules::*RegAddr;
    std::string config::WorkingModules::*RegType;
    binding::TagClass Class;
    project::TagList project::TagInventory::*Inputs;
    project::TagList project::TagInventory::*Outputs;
    int Registers;
};

using Modules = config::WorkingModules;
using Inventory = project::TagInventory;

// clang-format off
constexpr std::array<ModuleRow, 3> ModuleRows = {{
    {"WrkFloatModName",   &Modules::WrkFloatModName,   &Modules::WrkFloatRegAddr,   &Modules::WrkFloatRegType,
     binding::TagClass::Float,  &Inventory::VirtFX, &Inventory::VirtFY, project::WorkingFloatRegisters},
    {"WrkIntLongModName", &Modules::WrkIntLongModName, &Modules::WrkIntLongRegAddr, &Modules::WrkIntLongRegType,
     binding::TagClass::Long,   &Inventory::VirtLX, &Inventory::VirtLY, project::WorkingLongRegisters},
    {"WrkAnalogModName",  &Modules::WrkAnalogModName,  &Modules::WrkAnalogRegAddr,  &Modules::WrkAnalogRegType,
     binding::TagClass::Analog, &Inventory::VirtAX, &Inventory::VirtAY, project::WorkingAnalogRegisters},
}};
// clang-format on

// Neighbours mostly stand in one module and share its text, which is then compared once.
int CountInModule(const std::string& name, const project::TagList& tags) {
    int count = 0;
    bool isIn = false;
    for (std::size_t i = 0; i < tags.size(); ++i) {
        if (i == 0 || tags[i].ModuleName != tags[i - 1].ModuleName)
            isIn = services::EqualNoCase(tags[i].ModuleName, name);
        count += isIn ? 1 : 0;
    }
    return count;
}

// A module of inputs and one of outputs count apart, as where the modules are chosen.
bool IsThere(const ModuleRow& row, const std::string& name, const Inventory& inventory) {
    return !name.empty() && (CountInModule(name, inventory.*row.Inputs) >= row.Registers ||
                             CountInModule(name, inventory.*row.Outputs) >= row.Registers);
}

void CheckModules(const Subject& subject, const Inventory& inventory, Sink& sink) {
    const Modules& stored = subject.Station().WorkingModules;
    Modules now = stored;
    project::ResolveWorkingModuleRegisters(
        inventory, {stored.WrkAnalogModName, stored.WrkIntLongModName, stored.WrkFloatModName}, now);
    sink.AboutStation("FlowRuns");
    for (const ModuleRow& row : ModuleRows) {
        const std::string& name = stored.*row.Name;
        const auto registers = [&](const Modules& modules) {
            return modules.*row.RegType + " " + modules.*row.RegAddr;
        };
        if (!IsThere(row, name, inventory))
            sink.Add(RuleId::WorkingModuleMissing, {row.Key, name},
                     {name.empty() ? "(without a name)" : name, std::to_string(row.Registers)});
        else if (registers(stored) != registers(now))
            sink.Add(RuleId::WorkingModuleMoved, {row.Key, name}, {name, registers(now), registers(stored)});
    }
}

void CheckModuleOf(const Bound& bound, const project::Tag& tag, const Modules& modules, Sink& sink) {
    for (const ModuleRow& row : ModuleRows)
        if (row.Class == bound.Row->Class && services::EqualNoCase(tag.ModuleName, modules.*row.Name))
            Add(sink, RuleId::TagInWorkingModule, bound,
                {bound.Variable(), bound.Binding->Tag, tag.ModuleName.View()});
}

} // namespace

ExpectedOfFile::ExpectedOfFile(const Subject& subject) {
    config::StationConfig station;
    binding::BuildExpectedTags(subject.Ini(), subject.Of().File, station, On);
    config::StationConfig again;
    binding::BuildExpectedTagsOfRunsOff(subject.Ini(), subject.Of().File, again, Off);
}

void CheckTags(const Subject& subject, const std::vector<Bound>& all, ExpectedOfFile expected,
               project::TagList tags, Sink& sink) {
    const TagIndex index(all, tags);
    project::TagInventory inventory;
    project::BuildInventory(std::move(tags), inventory);
    CheckExpected(expected.On, true, inventory, sink);
    CheckExpected(expected.Off, false, inventory, sink);
    CheckModules(subject, inventory, sink);
    for (const Bound& bound : all) {
        CheckPassedOver(bound, index, sink);
        if (const project::Tag* tag = index.TagOf(bound))
            CheckModuleOf(bound, *tag, subject.Station().WorkingModules, sink);
    }
}

void CheckDirections(const std::vector<Bound>& all, Sink& sink) {
    for (const Bound& bound : all) {
        const std::string& type = bound.Binding->Type;
        if (!bound.IsMade() || type.empty())
            continue;
        const bool isOutputTag = type.back() == 'Y' || type.back() == 'y';
        if (isOutputTag != bound.IsOutput())
            Add(sink, RuleId::TagDirection, bound,
                {bound.Variable(), bound.IsOutput() ? "output" : "input", bound.Binding->Tag, type});
    }
}

} // namespace gfc::audit
