#include "commands/Json.h"
#include "commands/Steps.h"
#include "commands/configure/Configure.h"
#include "services/Counted.h"
#include "services/Text.h"
#include "suggest/Known.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <functional>
#include <iostream>

namespace gfc::commands {

namespace {

struct Options {
    std::vector<std::string> Stations; // the source first; of the other command those that are bound anew
    std::string User;
    bool AllFree = false;
    bool Rebind = false;
    bool Preview = false;
    bool Replace = false;
    bool OnlyComplete = false;
    bool Incomplete = false;
    bool Json = false;
};

// One destination, whose tags are known where they are bound.
struct Planned {
    plan::Source* From = nullptr;
    plan::StationPlan Plan;
    project::TagList Tags;
    std::string Against = {}; // why it is not written, as things are; empty where it is
};

class Job {
public:
    Job(const Options& options, Context context)
        : options_(options), context_(context), open_(AskForProject(context.Machine)) {}

    void Copy();
    void BindAnew();

private:
    project::TagList TagsOf(const std::string& station);
    [[nodiscard]] std::vector<std::string> Destinations(const std::string& source) const;
    plan::Source& Take(const std::string& station, project::TagList tags);
    void Plan(plan::Source& source, const std::string& station);
    [[nodiscard]] std::string Against(const plan::Source& source, const plan::StationPlan& plan) const;
    void Finish();
    void Preview() const;
    [[nodiscard]] std::vector<const Planned*> Ready() const;
    [[nodiscard]] std::vector<plan::Checked> CheckAll(const std::vector<const Planned*>& ready) const;
    void Write();
    [[nodiscard]] Json AsJson(const Planned& planned) const;

    const Options& options_;
    Context context_;
    OpenProject open_;
    std::vector<std::unique_ptr<plan::Source>> sources_;
    std::vector<Planned> planned_;
};

project::TagList Job::TagsOf(const std::string& station) {
    return open_.Library->ReadTags(station, open_.Project.ProjectFile, [](std::string_view) {});
}

std::vector<std::string> Job::Destinations(const std::string& source) const {
    auto named = StationsNamed(open_.Project, {options_.Stations.begin() + 1, options_.Stations.end()});
    if (options_.AllFree)
        for (const project::Station& station : open_.Project.Stations)
            if (!context_.Machine.Files.Exists(open_.Project.ConfigFileOf(station.Name)))
                named.push_back(station.Name);
    std::vector<std::string> once;
    for (const std::string& station : named) {
        if (services::EqualNoCase(station, source))
            throw Failure(exitcode::WrongUse, "the source and a destination are one station: \"" + station +
                                                  "\". To bind it anew there is \"rebind\".");
        if (std::ranges::find(once, station) == once.end())
            once.push_back(station);
    }
    if (once.empty())
        throw Failure(exitcode::WrongUse, options_.AllFree ? "every station has a configuration already."
                                                           : "say to which stations, or --all-free.");
    return once;
}

plan::Source& Job::Take(const std::string& station, project::TagList tags) {
    sources_.push_back(std::make_unique<plan::Source>());
    const std::string against =
        plan::TakeSource(context_.Machine.Files, open_.Project, {station, std::move(tags)}, *sources_.back());
    if (!against.empty())
        throw Failure(exitcode::WrongUse, against);
    return *sources_.back();
}

std::string Job::Against(const plan::Source& source, const plan::StationPlan& plan) const {
    if (!plan.Refused.empty())
        return plan.Refused;
    if (plan.ReplacesOther(source) && !options_.Replace)
        return "It has a configuration, which is replaced with --replace alone.";
    if (const std::size_t missing = plan::MissingIn(plan.Lines); missing > 0 && !options_.Incomplete)
        return services::Counted(missing, "variable has no tag.", "variables have no tags.") +
               " It is written all the same with --incomplete, and left out with --only-complete.";
    return {};
}

void Job::Plan(plan::Source& source, const std::string& station) {
    Planned planned{.From = &source, .Plan = {}, .Tags = TagsOf(station)};
    planned.Plan = options_.Rebind
                       ? plan::PlanFor(context_.Machine.Files, open_.Project, source,
                                       plan::Destination({station, planned.Tags}))
                       : plan::PlanPlainCopy(context_.Machine.Files, open_.Project, source, station);
    planned.Against = Against(source, planned.Plan);
    planned_.push_back(std::move(planned));
}

void PlanAll(const std::vector<std::string>& stations, const std::function<void(const std::string&)>& plan) {
    {
        Steps steps("Planning", stations.size());
        for (const std::string& station : stations)
            if (steps.Begin(station))
                plan(station);
    }
    EndIfBrokenOff();
}

void Job::Copy() {
    const std::string station = StationsNamed(open_.Project, {options_.Stations.front()}).front();
    const auto destinations = Destinations(station);
    plan::Source& source = Take(station, options_.Rebind ? TagsOf(station) : project::TagList());
    if (options_.Rebind) {
        const config::FileIni ini(context_.Machine.Files);
        source.Bound.Others = suggest::OtherStationsOf(ini, open_.Project, {});
    }
    PlanAll(destinations, [&](const std::string& destination) { Plan(source, destination); });
    Finish();
}

void Job::BindAnew() {
    PlanAll(StationsNamed(open_.Project, options_.Stations),
            [&](const std::string& station) { Plan(Take(station, TagsOf(station)), station); });
    Finish();
}

void PutLine(const plan::Line& line) {
    std::cout << "  " << (line.Variable.Run > 0 ? "run " + std::to_string(line.Variable.Run) + ": " : "")
              << line.Caption() << ": " << plan::Line::TextOf(line.Source) << " -> "
              << (line.IsMissing() ? "MISSING" : plan::Line::TextOf(line.Proposed)) << "  ["
              << (line.IsSure || line.IsMissing() ? "" : "not sure: ") << line.Reason << "]\n";
}

Json BindingJson(const config::TagBinding& binding) {
    return {{"tag", binding.Tag}, {"type", binding.Type}, {"register", binding.RegAddr}};
}

Json LineJson(const plan::Line& line) {
    return {{"run", line.Variable.Run},
            {"variable", line.Caption()},
            {"source", BindingJson(line.Source)},
            {"proposed", line.IsMissing() ? Json(nullptr) : BindingJson(line.Proposed)},
            {"sure", line.IsSure},
            {"reason", line.Reason}};
}

Json Job::AsJson(const Planned& planned) const {
    Json lines = Json::array();
    for (const plan::Line& line : planned.Plan.Lines)
        lines.push_back(LineJson(line));
    return {{"station", planned.Plan.Station},
            {"replaces", planned.Plan.ReplacesOther(*planned.From)},
            {"missing", plan::MissingIn(planned.Plan.Lines)},
            {"against", planned.Against.empty() ? Json(nullptr) : Json(planned.Against)},
            {"lines", std::move(lines)}};
}

void Job::Preview() const {
    if (options_.Json) {
        Json stations = Json::array();
        for (const Planned& planned : planned_)
            stations.push_back(AsJson(planned));
        return WriteJson(std::cout, {{"version", 1}, {"written", false}, {"stations", std::move(stations)}});
    }
    for (const Planned& planned : planned_) {
        std::cout << planned.Plan.Station << ": "
                  << (planned.Against.empty() ? "can be written" : planned.Against) << "\n";
        for (const plan::Line& line : planned.Plan.Lines)
            PutLine(line);
    }
}

std::vector<const Planned*> Job::Ready() const {
    std::vector<const Planned*> ready;
    for (const Planned& planned : planned_)
        if (planned.Against.empty())
            ready.push_back(&planned);
    return ready;
}

std::vector<plan::Checked> Job::CheckAll(const std::vector<const Planned*>& ready) const {
    std::vector<plan::Checked> targets;
    {
        Steps steps("Checking", ready.size());
        for (const Planned* planned : ready)
            if (steps.Begin(planned->Plan.Station)) {
                plan::Change change = plan::ChangeFor(open_.Project, *planned->From, planned->Plan);
                auto report = plan::CheckOf(open_.Project, change, planned->Tags);
                targets.push_back({std::move(change), std::move(report)});
            }
    }
    EndIfBrokenOff();
    return targets;
}

void Job::Write() {
    const auto ready = Ready();
    const auto targets = CheckAll(ready);
    const auto results = WriteAll(open_, targets, options_.User, context_);
    context_.Status = CodeOf(targets, results);
    if (!options_.Json) {
        for (const Planned& planned : planned_)
            if (!planned.Against.empty())
                std::cout << planned.Plan.Station << ": left out. " << planned.Against << "\n";
        return PutResults(targets, results);
    }
    Json stations = Json::array();
    for (std::size_t i = 0; i < results.size(); ++i) {
        Json station = AsJson(*ready[i]);
        station["written"] = results[i].Done;
        station["reason"] = results[i].Reason;
        station["errors"] = audit::CountOf(targets[i].Report.Findings, audit::Severity::Error);
        station["warnings"] = audit::CountOf(targets[i].Report.Findings, audit::Severity::Warning);
        stations.push_back(std::move(station));
    }
    WriteJson(std::cout, {{"version", 1}, {"written", true}, {"stations", std::move(stations)}});
}

void Job::Finish() {
    const bool fits = std::ranges::all_of(planned_, [](const Planned& p) { return p.Against.empty(); });
    const bool some = std::ranges::any_of(planned_, [](const Planned& p) { return p.Against.empty(); });
    if (options_.Preview || (!fits && !(options_.OnlyComplete && some))) {
        context_.Status = fits ? exitcode::Clean : exitcode::Found;
        Preview();
        if (!options_.Preview)
            Tell("nothing was written, since something does not fit.");
        return;
    }
    Write();
}

void AddCommonOptions(CLI::App& command, const std::shared_ptr<Options>& options) {
    command.add_flag("--preview", options->Preview, "Show what would be written, and write nothing");
    auto* complete = command.add_flag("--only-complete", options->OnlyComplete,
                                      "Leave out the stations that cannot be written");
    command.add_flag("--incomplete", options->Incomplete, "Write the variables that have no tag unbound")
        ->excludes(complete);
    AddUserOption(command, options->User, "The user id under which this is entered in the history");
    command.add_flag("--json", options->Json, "Give out JSON");
}

} // namespace

void AddCopyCommand(CLI::App& app, Context context) {
    auto options = std::make_shared<Options>();
    CLI::App* command = app.add_subcommand("copy", "Copy a station's configuration to others");
    command->add_option("STATION", options->Stations, "The source, and behind it the destinations")
        ->required();
    command->add_flag("--all-free", options->AllFree, "To all stations that have no configuration yet");
    command->add_flag("--rebind", options->Rebind, "Bind each variable to the destination's own tag");
    command->add_flag("--replace", options->Replace,
                      "Replace the configuration of a destination that has one");
    AddCommonOptions(*command, options);
    command->footer("Examples:\n  gfc-configure copy North South --rebind --preview\n"
                    "  gfc-configure copy North --all-free --rebind --user 4711");
    command->callback([options, context] { Job(*options, context).Copy(); });
}

void AddRebindCommand(CLI::App& app, Context context) {
    auto options = std::make_shared<Options>();
    options->Rebind = true;
    CLI::App* command = app.add_subcommand("rebind", "Bind stations anew whose tags were renamed or moved");
    command->add_option("STATION", options->Stations, "Configured stations")->required();
    AddCommonOptions(*command, options);
    command->footer("Example:\n  gfc-configure rebind North South --preview");
    command->callback([options, context] { Job(*options, context).BindAnew(); });
}

} // namespace gfc::commands
