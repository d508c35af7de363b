#include "plan/Copy.h"

#include "config/CommonLayout.h"
#include "config/ConfigReader.h"
#include "config/RunLayout.h"
#include "config/Vocabulary.h"
#include "plan/FileInMemory.h"
#include "services/Text.h"
#include "suggest/Known.h"

#include <algorithm>

namespace gfc::plan {

namespace {

using config::BindingPart;

constexpr std::string_view runTexts = "KDIO";

// The run row whose keys a variable of the catalogue has.
const config::RunRow& RowOf(const binding::VariableRow& variable) {
    const std::string_view name = variable.Stem.substr(0, variable.Stem.size() - runTexts.size());
    const auto rows = config::RunRows();
    return *std::ranges::find_if(rows, [&](const config::RunRow& row) {
        return config::IsBinding(row) && services::EqualNoCase(row.Name, name);
    });
}

// In the form in which the whole file is written; what stands there keeps its place.
void WriteBinding(config::FileIni& ini, const std::string& file, const std::string& section,
                  const config::RunRow& row, const config::TagBinding& binding) {
    config::ForEachPart(row, [&](BindingPart part) {
        ini.WriteKey(section, config::KeyOf(row, part, config::KeyUse::FullWrite),
                     config::PartOf(binding, part), file);
    });
}

void WriteCommonPressure(config::FileIni& ini, const std::string& file, const Source& source,
                         const config::TagBinding& binding) {
    for (const config::CommonRow& row : config::CommonRows())
        if (const auto* part = std::get_if<BindingPart>(&row.Written))
            ini.WriteKey(source.FlowSection, row.Key, config::PartOf(binding, *part), file);
    // Each run that has a copy keeps one.
    const config::RunRow& copy = config::RunRowOf('I', "Pa");
    for (int run = 1; run <= config::MaxRuns; ++run) {
        const std::string section = config::RunSection(run);
        const auto key = config::KeyOf(copy, BindingPart::RegAddr, config::KeyUse::FullWrite);
        if (!ini.ReadKey(section, key, file).empty())
            WriteBinding(ini, file, section, copy, binding);
    }
}

void WriteModules(config::FileIni& ini, const std::string& file, const std::vector<Line>& lines) {
    config::StationConfig station;
    station.WorkingModules = WorkingIn(lines);
    for (const config::CommonRow& row : config::CommonRows())
        if (std::holds_alternative<std::string config::WorkingModules::*>(row.Written))
            ini.WriteKey("FlowRuns", row.Key, config::CommonTextOf(row.Written, station), file);
}

bool HasModules(const std::vector<Line>& lines) {
    return std::ranges::any_of(lines, [](const Line& line) { return line.Module != WorkingKind::None; });
}

void WriteLines(config::FileIni& ini, const std::string& file, const Source& source,
                const std::vector<Line>& lines) {
    if (HasModules(lines))
        WriteModules(ini, file, lines);
    for (const Line& line : lines) {
        if (line.Module != WorkingKind::None)
            continue;
        if (line.Variable.Run == 0)
            WriteCommonPressure(ini, file, source, line.Proposed);
        else
            WriteBinding(ini, file, config::RunSection(line.Variable.Run), RowOf(*line.Variable.Row),
                         line.Proposed);
    }
}

// A copy names its own station and the project in which it lies, as one that is made by the menu does.
void WriteNames(config::FileIni& ini, const std::string& file, const project::Project& project,
                const std::string& station) {
    ini.WriteKey("General", "Project",
                 project.Paths.ProjectFolder + platform::Separator + project.ProjectName + ".KPJ", file);
    ini.WriteKey("General", "OrmStation", station, file);
}

bool IsOwn(const Source& source, const std::string& station) {
    return services::EqualNoCase(source.Bound.From.Station, station);
}

StationPlan Begin(platform::Files& files, const project::Project& project, const std::string& station) {
    StationPlan plan{.Station = station, .File = project.ConfigFileOf(station)};
    if (plan.File.empty())
        plan.Refused = "The name of the station cannot be that of a file.";
    else if (!ReadState(files, plan.File, plan.Before))
        plan.Refused = "Its configuration cannot be read: " + files.LastFailure();
    return plan;
}

} // namespace

std::string TakeSource(platform::Files& files, const project::Project& project, StationTags station,
                       Source& source) {
    const std::string file = project.ConfigFileOf(station.Station);
    const auto bytes = files.Read(file);
    if (!bytes)
        return files.Exists(file)
                   ? "The configuration of " + station.Station + " cannot be read: " + files.LastFailure()
                   : "The station " + station.Station + " is not configured.";
    source.Bytes = *bytes;
    FileInMemory inMemory(file, *bytes);
    const config::FileIni ini(inMemory);
    config::StationConfig stored;
    config::LoadStationConfig(ini, stored, file);
    source.FlowSection = config::FlowSectionToRead(stored);
    source.Bound.From = std::move(station);
    source.Bound.Working = stored.WorkingModules;
    source.Bound.Bound = suggest::BoundInFile(ini, file);
    source.Bound.Runs = suggest::RunsInFile(ini, file);
    return {};
}

bool StationPlan::ReplacesOther(const Source& source) const {
    return Before.has_value() && !IsOwn(source, Station);
}

StationPlan PlanFor(platform::Files& files, const project::Project& project, const Source& source,
                    const Destination& to) {
    StationPlan plan = Begin(files, project, to.Of().Station);
    if (!plan.Refused.empty())
        return plan;
    if (to.Of().Tags.empty())
        plan.Refused = "The station has no tags.";
    else
        plan.Lines = to.Propose(source.Bound);
    return plan;
}

StationPlan PlanPlainCopy(platform::Files& files, const project::Project& project, const Source& source,
                          const std::string& station) {
    StationPlan plan = Begin(files, project, station);
    if (plan.Refused.empty() && IsOwn(source, station))
        plan.Refused = "It is the station that is copied from.";
    return plan;
}

Change ChangeFor(const project::Project& project, const Source& source, const StationPlan& plan) {
    const bool own = IsOwn(source, plan.Station);
    FileInMemory file(plan.File, source.Bytes);
    {
        config::FileIni ini(file);
        const config::FileBatch oneGo(ini, plan.File);
        if (!own)
            WriteNames(ini, plan.File, project, plan.Station);
        WriteLines(ini, plan.File, source, plan.Lines);
    }
    return {.Station = plan.Station,
            .File = plan.File,
            .Before = plan.Before,
            .After = file.Bytes(),
            .Command = std::string(own ? command::BindAnew : config::command::CopyToStation)};
}

} // namespace gfc::plan
