#include "config/ConfigWriter.h"
#include "config/Overload.h"
#include "config/Vocabulary.h"
#include "plan/Assembler.h"
#include "plan/FileInMemory.h"
#include "project/RunNeeds.h"
#include "services/Text.h"

#include <algorithm>

namespace gfc::plan {

namespace {

using services::EqualNoCase;

bool IsYes(std::string_view text) {
    return EqualNoCase(text, config::Yes);
}

// Where a text that a row says of a run is written from; null for what is no such text.
std::string* PlaceOf(const config::RunField& field, config::RunArrays& runs, std::size_t element) {
    using Place = std::string*;
    return std::visit(
        config::Overload{
            [&](std::string config::RunIO::*text) { return &(runs.IO[element].*text); },
            [&](std::string config::RunMechanical::*text) { return &(runs.Mechanical[element].*text); },
            [&](config::GasValue value) { return &runs.Gas[element][value.Slot].Tag; },
            [](const auto&) { return Place(); },
        },
        field);
}

// What the windows would not have let through.
bool IsRefusedByWindows(const audit::Finding& finding) {
    using enum audit::Area;
    const audit::Area area = finding.Row().Area;
    return area == File || area == Values || area == Runs || area == Tags;
}

} // namespace

std::optional<Checked> Assemble(const StationWish& wish, Destination to, const Circumstances& circumstances,
                                config::FileState before, Faults& faults) {
    return Assembler(wish, std::move(to), circumstances, faults).Assemble(std::move(before));
}

std::optional<Checked> Assembler::Assemble(config::FileState before) {
    const std::size_t faultsBefore = faults_.size();
    const std::string file = circumstances_.Project.ConfigFileOf(to_.Of().Station);
    if (file.empty())
        Blame(wish_.Row, "Station", wish_.Station, "The name of the station cannot be that of a file.");
    if (file.empty() || !TakeChoices())
        return std::nullopt; // all that follows rests on them
    TakeCommonTexts();
    TakeRuns();
    RefuseUnfit();
    RefuseUnfitPressure();
    TakeModules();
    DemandCapacity();
    Bind();
    if (faults_.size() != faultsBefore)
        return std::nullopt;
    Checked checked{{to_.Of().Station, file, std::move(before), Written(), std::string(command::ApplyPlan)},
                    {}};
    checked.Report = CheckOf(circumstances_.Project, checked.Change, to_.TakeTags());
    TakeErrors(checked.Report);
    return faults_.size() == faultsBefore ? std::optional(std::move(checked)) : std::nullopt;
}

const Said* Assembler::CellOf(std::string_view key, const RunWish* run) const {
    const Column* column = ColumnOf(key);
    const Cells& cells =
        run != nullptr && (column->Kind == ColumnKind::Run || column->Kind == ColumnKind::RunTag)
            ? run->Own
            : wish_.Common;
    const auto found = cells.find(column);
    return found == cells.end() ? nullptr : &found->second;
}

void Assembler::Blame(int row, std::string_view key, const std::string& value, const std::string& text) {
    const Column* column = key.empty() ? nullptr : ColumnOf(key);
    faults_.push_back({row, column == nullptr ? std::string(key) : column->Title, value, text});
}

void Assembler::Blame(const Said* said, std::string_view key, const std::string& text) {
    Blame(said == nullptr ? wish_.Row : said->Row, key, said == nullptr ? std::string() : said->Text, text);
}

std::string Assembler::Choice(std::string_view key) {
    const Said* said = CellOf(key);
    const std::string stored(said == nullptr ? std::string_view() : StoredChoice(key, said->Text));
    if (stored.empty())
        Blame(said, key, "Say one of: " + ChoicesOf(key) + ".");
    return stored;
}

bool Assembler::TakeChoices() {
    const std::size_t before = faults_.size();
    station_.FlowAlgorithm = Choice("FlowAlgorithm");
    station_.GasDensitySource = Choice("GasDensitySource");
    station_.SystemUnits = Choice("SystemUnits");
    station_.FlagAGA7 = station_.FlowAlgorithm == config::algorithm::AGA7;
    station_.Measured = station_.GasDensitySource == config::source::Measured;
    if (config::IsGasModel(station_.GasDensitySource)) {
        station_.AGA8CalInput = Choice("AGA8CalInput");
        station_.AGA8Method = config::DetailMethod;
    } else if (const Said* said = CellOf("AGA8CalInput")) {
        Blame(said, "AGA8CalInput", "A densimeter measures the density: there is no gas composition.");
    }
    return faults_.size() == before;
}

void Assembler::TakeCommonTexts() {
    station_.ProjectFile = circumstances_.Project.ProjectFile;
    station_.ProjectName = circumstances_.Project.ProjectName;
    station_.CurrentStation = to_.Of().Station;
    for (const auto& [column, said] : wish_.Common) {
        if (column->Kind != ColumnKind::Common || !ChoicesOf(column->Key).empty())
            continue;
        if (column->OfRun != nullptr)
            station_.*std::get<config::CommonCopy>(column->OfRun->Field).Value = said.Text;
        else if (const auto* text =
                     std::get_if<std::string config::StationConfig::*>(&column->OfStation->Written))
            station_.** text = said.Text;
    }
    if (!circumstances_.User.empty())
        station_.UserId = circumstances_.User;
    if (station_.UserId.empty())
        Blame(nullptr, "UserID", "Say under which user id the file is written, here or by --user.");
    if (station_.Compressible.empty())
        Blame(nullptr, "Compressible", "Say Yes or No.");
}

void Assembler::TakeRuns() {
    station_.ActiveRunCount = static_cast<int>(wish_.Runs.size());
    for (std::size_t run = 0; run < config::MaxRuns; ++run) {
        const bool on =
            std::ranges::find(wish_.Runs, static_cast<int>(run) + 1, &RunWish::Run) != wish_.Runs.end();
        station_.RunList[run] = {config::RunSection(static_cast<int>(run) + 1),
                                 std::string(on ? config::Yes : config::No)};
        station_.Run[run] = station_.RunList[run].Flag;
    }
    station_.Runs.PrepareWholeStation(station_.ActiveRunCount);
    for (std::size_t element = 0; element < wish_.Runs.size(); ++element)
        for (const auto& [column, said] : wish_.Runs[element].Own)
            if (column->Kind == ColumnKind::Run)
                *PlaceOf(column->OfRun->Field, station_.Runs, element) = said.Text;
}

// A text that the choices leave no place for would be lost without a word.
void Assembler::RefuseUnfit() {
    for (std::size_t element = 0; element < wish_.Runs.size(); ++element)
        for (const auto& [column, said] : wish_.Runs[element].Own) {
            // That the calorific value and its like are fixed or measured is told by the tags' columns, too.
            const bool fits =
                config::GroupPresent(column->OfRun->Group, station_, station_.Runs.Mechanical[element]);
            if (!fits)
                Blame(&said, column->Key,
                      "There is no such value under " + station_.FlowAlgorithm + " with " +
                          station_.GasDensitySource + " and the other choices; leave the cell empty.");
        }
}

void Assembler::RefuseUnfitPressure() {
    const bool external = IsYes(station_.ExtAtmPress);
    if (external && station_.PressType == config::Absolute)
        Blame(CellOf("ExtAtmPress"), "ExtAtmPress",
              "With absolute pressure transmitters no atmospheric pressure is read; say No.");
    if (external && !station_.AtmPress.empty())
        Blame(CellOf("AtmPress"), "AtmPress",
              "The atmospheric pressure comes from a tag; leave the cell empty.");
    if (const Said* tag = CellOf("CommonPaKDIOTag"); tag != nullptr && !external)
        Blame(tag, "CommonPaKDIOTag", "The atmospheric pressure is fixed: ExtAtmPress does not say Yes.");
}

// As the wizard: the one that is named, else the first of the list.
void Assembler::TakeModules() {
    if (!to_.HasWorkingModules())
        return Blame(wish_.Row, "Station", wish_.Station,
                     "The station lacks virtual modules that are large enough for the package's own work.");
    struct Row {
        WorkingKind Kind;
        std::string_view Key;
    };
    std::vector<Line> lines;
    for (const Row& row :
         {Row{WorkingKind::Float, "WrkFloatModName"}, Row{WorkingKind::Long, "WrkIntLongModName"},
          Row{WorkingKind::Analog, "WrkAnalogModName"}}) {
        const Said* said = CellOf(row.Key);
        const auto modules = to_.ModulesFor(row.Kind);
        const auto found = std::ranges::find_if(modules, [&](const config::TagBinding& module) {
            return said == nullptr || EqualNoCase(module.Tag, said->Text);
        });
        if (found == modules.end())
            Blame(said, row.Key, "The station has no such module that is large enough.");
        else
            lines.push_back({.Variable = {}, .Module = row.Kind, .Source = {}, .Proposed = *found});
    }
    station_.WorkingModules = WorkingIn(lines);
}

void Assembler::DemandCapacity() {
    const int source = config::SourceIndex(station_.GasDensitySource);
    const bool outside = station_.AGA8CalInput == config::CompositionMeasured;
    for (const project::RunNeed* need :
         {project::NeedOfSource(station_.FlagAGA7, source),
          outside ? project::NeedOfComposition(station_.FlagAGA7, source) : nullptr})
        if (need != nullptr && !to_.Carries(*need, station_.ActiveRunCount))
            return Blame(wish_.Row, "Runs", std::to_string(station_.ActiveRunCount),
                         "The station's registers do not carry so many runs: each needs " +
                             std::to_string(need->Floats) + " float, " + std::to_string(need->Analogs) +
                             " analog and " + std::to_string(need->Digitals) + " digital ones.");
}

std::string Assembler::Written() const {
    FileInMemory file(circumstances_.Project.ConfigFileOf(to_.Of().Station), {});
    config::FileIni ini(file);
    config::SaveWholeConfiguration(ini, station_, file.Path());
    return file.Bytes();
}

// What the check calls an error, at the cell that said it.
void Assembler::TakeErrors(const audit::StationReport& report) {
    std::set<std::string> told;
    for (const audit::Finding& finding : report.Findings) {
        if (finding.Severity != audit::Severity::Error ||
            (circumstances_.Strictness == Strictness::AsTheWindows && !IsRefusedByWindows(finding)))
            continue;
        const auto run = std::ranges::find(wish_.Runs, finding.Run, &RunWish::Run);
        const RunWish* own = run == wish_.Runs.end() ? nullptr : &*run;
        const Column* column = ColumnOfKey(finding.Key, own != nullptr);
        const Said* said = column == nullptr ? nullptr : CellOf(column->Key, own);
        const int row = said != nullptr ? said->Row : own != nullptr ? own->Row : wish_.Row;
        // What all runs share is found in each of them.
        if (told.insert(std::to_string(row) + finding.Key + finding.Text).second)
            faults_.push_back({row, column == nullptr ? std::string() : column->Title,
                               said == nullptr ? std::string() : said->Text,
                               finding.Text + " (" + std::string(finding.Row().Name) + ")"});
    }
}

} // namespace gfc::plan
