#include "plan/Rebind.h"

#include "plan/Proposer.h"
#include "services/Text.h"
#include "suggest/Facts.h"

#include <algorithm>
#include <array>

namespace gfc::plan {

namespace {

using Working = config::WorkingModules;
using Found = project::WorkingModuleCandidates;

// The three kinds, each with its texts in a configuration and its candidates.
struct ModuleRow {
    WorkingKind Kind;
    std::string_view Caption;
    std::string Working::*Name;
    std::string Working::*Type;
    std::string Working::*Address;
    std::vector<project::Candidate> Found::*Candidates;
    std::string project::WorkingModuleNames::*Wanted;
};

// clang-format off
constexpr std::array<ModuleRow, 3> Modules = {{
    {WorkingKind::Float,  "Float working module",  &Working::WrkFloatModName,   &Working::WrkFloatRegType,
     &Working::WrkFloatRegAddr,   &Found::FloatCandidates,  &project::WorkingModuleNames::Float},
    {WorkingKind::Long,   "Long working module",   &Working::WrkIntLongModName, &Working::WrkIntLongRegType,
     &Working::WrkIntLongRegAddr, &Found::LongCandidates,   &project::WorkingModuleNames::Long},
    {WorkingKind::Analog, "Analog working module", &Working::WrkAnalogModName,  &Working::WrkAnalogRegType,
     &Working::WrkAnalogRegAddr,  &Found::AnalogCandidates, &project::WorkingModuleNames::Analog},
}};
// clang-format on

const ModuleRow& RowOf(WorkingKind kind) {
    return *std::ranges::find(Modules, kind, &ModuleRow::Kind);
}

config::TagBinding BindingIn(const Working& working, const ModuleRow& row) {
    return {.Tag = working.*row.Name, .Type = working.*row.Type, .RegAddr = working.*row.Address};
}

bool IsSame(const config::TagBinding& a, const config::TagBinding& b) {
    return services::EqualNoCase(a.Type, b.Type) && a.RegAddr == b.RegAddr;
}

} // namespace

std::string Line::Caption() const {
    if (Module != WorkingKind::None)
        return std::string(RowOf(Module).Caption);
    return std::string(Variable.Row->Captions.Tree);
}

std::string Line::TextOf(const config::TagBinding& binding) {
    if (binding.Tag.empty() && binding.RegAddr.empty())
        return {};
    if (binding.RegAddr.empty())
        return binding.Tag;
    return binding.Tag + " (" + binding.Type + " " + binding.RegAddr + ")";
}

Destination::Destination(StationTags tags) : tags_(std::move(tags)) {
    project::BuildInventory(tags_.Tags, inventory_);
    hasModules_ = project::ChooseWorkingModules(inventory_, candidates_);
}

bool Destination::Carries(const project::RunNeed& need, int runs) const {
    return project::Fits({inventory_, candidates_}, need, runs);
}

std::vector<config::TagBinding> Destination::ModulesFor(WorkingKind kind) const {
    const ModuleRow& row = RowOf(kind);
    std::vector<config::TagBinding> modules;
    for (const project::Candidate& candidate : candidates_.*row.Candidates) {
        if (candidate.ModuleName.empty())
            continue;
        project::WorkingModuleNames wanted;
        wanted.*row.Wanted = candidate.ModuleName;
        Working working;
        project::ResolveWorkingModuleRegisters(inventory_, wanted, working);
        working.*row.Name = candidate.ModuleName;
        modules.push_back(BindingIn(working, row));
    }
    return modules;
}

void Destination::Offer(const Working& working, bool isAGA7) {
    project::BuildAvailableLists(
        inventory_, {working.WrkAnalogModName, working.WrkIntLongModName, working.WrkFloatModName}, isAGA7);
}

project::TagList Destination::OfferedWithout(const Working& working) const {
    return suggest::OfferedTags(inventory_, working);
}

std::vector<Line> Destination::Propose(const BoundStation& source) const {
    std::vector<Line> lines;
    for (const ModuleRow& row : Modules) {
        Line line{.Variable = {}, .Module = row.Kind, .Source = BindingIn(source.Working, row)};
        if (!line.Source.Tag.empty())
            lines.push_back(std::move(line));
    }
    for (const suggest::BoundVariable& bound : source.Bound)
        lines.push_back({.Variable = bound.Variable, .Source = bound.Binding});
    for (Line& line : lines)
        if (line.Module != WorkingKind::None)
            ProposeModule(source, *this, line);
    Proposer(source, *this, lines).Propose();
    return lines;
}

std::vector<config::TagBinding> Destination::ChoicesFor(const Line& line,
                                                        const std::vector<Line>& lines) const {
    if (line.Module != WorkingKind::None)
        return ModulesFor(line.Module);
    std::vector<config::TagBinding> choices;
    for (const project::Tag& tag : OfferedWithout(WorkingIn(lines))) {
        if (binding::ClassOf(tag.RegType) != line.Variable.Row->Class)
            continue;
        const bool taken = std::ranges::any_of(lines, [&](const Line& other) {
            return other.Module == WorkingKind::None && !IsSame(other.Source, line.Source) &&
                   suggest::IsSameRegister(tag, other.Proposed);
        });
        if (!taken)
            choices.push_back(suggest::BindingTo(tag));
    }
    return choices;
}

config::WorkingModules WorkingIn(const std::vector<Line>& lines) {
    Working working;
    for (const Line& line : lines)
        if (line.Module != WorkingKind::None) {
            const ModuleRow& row = RowOf(line.Module);
            working.*row.Name = line.Proposed.Tag;
            working.*row.Type = line.Proposed.Type;
            working.*row.Address = line.Proposed.RegAddr;
        }
    return working;
}

std::size_t MissingIn(const std::vector<Line>& lines) {
    return static_cast<std::size_t>(std::ranges::count_if(lines, &Line::IsMissing));
}

void ChooseFor(std::vector<Line>& lines, std::size_t line, const config::TagBinding& chosen) {
    const Line wanted = lines.at(line);
    for (Line& each : lines)
        if (each.Module == wanted.Module && IsSame(each.Source, wanted.Source)) {
            each.Proposed = chosen;
            each.Why = Evidence::ByHand;
            each.IsSure = true;
            each.Reason = "chosen by hand";
        }
}

} // namespace gfc::plan
