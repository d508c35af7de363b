#include "commands/Commands.h"
#include "commands/OpenProject.h"
#include "config/Vocabulary.h"
#include "suggest/StationQuestion.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <iostream>
#include <memory>

namespace gfc::commands {

namespace {

struct Options {
    std::string Station;
    std::vector<int> Runs;
    std::string Standard;
    std::string Source;
    bool Measured = false;
    bool Json = false;
};

std::vector<std::string> StoredTexts(const auto& choices) {
    std::vector<std::string> texts;
    for (const config::Choice& choice : choices)
        texts.emplace_back(choice.Stored);
    return texts;
}

// The stages as the windows name them.
std::string_view NameOf(binding::BindingStage stage) {
    static constexpr std::string_view names[] = {"",           "run inputs",   "run outputs", "gas outputs",
                                                 "gas inputs", "common inputs"};
    return names[static_cast<std::size_t>(stage)];
}

// One line for each variable, so that a reader may take them as they come.
void PutJson(const std::string& station, const suggest::Suggestion& each) {
    const nlohmann::ordered_json line = {{"station", station},
                                         {"run", each.Variable.Run},
                                         {"stage", NameOf(each.Variable.Row->Stage)},
                                         {"variable", each.Variable.Row->Captions.Tree},
                                         {"tag", each.Binding.Tag},
                                         {"confidence", suggest::TextOf(each.Confidence)},
                                         {"reason", each.Reason}};
    std::cout << line.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace) << '\n';
}

void PutText(const suggest::Suggestion& each) {
    std::cout << "run " << each.Variable.Run << ": " << each.Variable.Row->Captions.Tree;
    if (each.Confidence == suggest::Confidence::None)
        std::cout << ": " << each.Reason << '\n';
    else
        std::cout << " <- " << each.Binding.Tag << " (" << suggest::TextOf(each.Confidence)
                  << "): " << each.Reason << '\n';
}

void Refuse(const suggest::Question& question, const std::string& station) {
    if (question.Tags.empty())
        throw Failure(exitcode::NotToBeHad,
                      "the station \"" + station + "\" has no tags that could be bound.");
    if (question.Runs.empty())
        throw Failure(exitcode::WrongUse,
                      "the station \"" + station + "\" is not configured; say its runs by --runs.");
    if (question.Wants.empty() && question.Bound.empty())
        throw Failure(exitcode::WrongUse,
                      "the station \"" + station +
                          "\" is not configured; say what to bind by --standard and --source.");
}

void Run(const Options& options, Context context) {
    const OpenProject open = AskForProject(context.Machine);
    const std::string station = StationsNamed(open.Project, {options.Station}).front();
    const config::FileIni ini(context.Machine.Files);
    auto tags = open.Library->ReadTags(station, open.Project.ProjectFile, [](std::string_view) {});
    const auto question =
        suggest::QuestionFor(ini, open.Project, station, std::move(tags),
                             {options.Standard, options.Source, options.Measured, options.Runs});
    Refuse(question, station);
    const auto suggestions = suggest::Suggest(question);
    for (const suggest::Suggestion& each : suggestions)
        options.Json ? PutJson(station, each) : PutText(each);
    if (suggestions.empty())
        Tell("every variable of \"" + station +
             "\" has a tag. Whether it is a sound one says \"check\"; \"gfc-configure rebind\" binds anew "
             "what "
             "was renamed or moved.");
}

} // namespace

void AddSuggestCommand(CLI::App& app, Context context) {
    auto options = std::make_shared<Options>();
    CLI::App* command =
        app.add_subcommand("suggest", "Suggest a tag for each variable without one, and say why");
    command->add_option("STATION", options->Station, "Station of the open project")->required();
    command->add_option("--runs", options->Runs, "Runs, as 1,3; those of the station's file if not given")
        ->delimiter(',')
        ->check(CLI::Range(1, config::MaxRuns));
    command
        ->add_option("--standard", options->Standard,
                     "Standard of the flow calculation, for a station without a file")
        ->check(CLI::IsMember(StoredTexts(config::FlowAlgorithms)));
    command
        ->add_option("--source", options->Source, "Source of the gas density, for a station without a file")
        ->check(CLI::IsMember(StoredTexts(config::GasDensitySources)));
    command->add_flag("--measured", options->Measured, "The composition comes from tags");
    command->add_flag("--json", options->Json, "Give out one line of JSON for each variable");
    command->footer("Examples:\n  gfc-audit suggest North\n"
                    "  gfc-audit suggest North --runs 1,3 --standard AGA3 --source AGA8 --measured --json");
    command->callback([options, context] { Run(*options, context); });
}

} // namespace gfc::commands
