#include "suggest/StationQuestion.h"

#include "config/ConfigReader.h"
#include "config/Vocabulary.h"

#include <algorithm>

namespace gfc::suggest {

namespace {

config::StationConfig StationUnder(const config::FileIni& ini, const std::string& file,
                                   const Choices& choices) {
    config::StationConfig station;
    if (ini.FileExists(file))
        config::LoadStationConfig(ini, station, file);
    if (!choices.Standard.empty())
        station.FlowAlgorithm = choices.Standard;
    if (!choices.Source.empty()) {
        station.GasDensitySource = choices.Source;
        station.AGA8CalInput =
            choices.CompositionMeasured ? config::CompositionMeasured : config::CompositionFixed;
    }
    station.Measured = station.GasDensitySource == config::source::Measured;
    station.Runs.PrepareSingleRun();
    return station;
}

void AddWants(const std::vector<Want>& variables, Question& question) {
    for (const Want& want : variables) {
        const auto same = [&](const BoundVariable& bound) {
            return bound.Variable.Run == want.Run && bound.Variable.Row->Stem == want.Row->Stem &&
                   bound.Variable.Row->Stage == want.Row->Stage;
        };
        if (std::ranges::none_of(question.Bound, same))
            question.Wants.push_back(want);
    }
}

} // namespace

Question QuestionFor(const config::FileIni& ini, const project::Project& project, const std::string& station,
                     project::TagList tags, const Choices& choices) {
    const std::string file = project.ConfigFileOf(station);
    config::StationConfig chosen = StationUnder(ini, file, choices);
    project::TagInventory inventory;
    project::BuildInventory(std::move(tags), inventory);
    Question question;
    question.Tags = OfferedTags(inventory, chosen.WorkingModules);
    question.Bound = BoundInFile(ini, file);
    question.Others = OtherStationsOf(ini, project, station);
    question.Runs = choices.Runs.empty() ? RunsInFile(ini, file) : choices.Runs;
    std::ranges::sort(question.Runs);
    if (chosen.FlowAlgorithm.empty() || chosen.GasDensitySource.empty())
        return question;
    for (const int run : question.Runs) {
        chosen.Runs.Mechanical.resize(1);
        chosen.Runs.Mechanical.front() = config::LoadRunMechanical(ini, file, run);
        AddWants(VariablesOfRun(run, binding::ConditionsOf(chosen, 0)), question);
    }
    if (chosen.ExtAtmPress == config::Yes)
        AddWants({{0, &binding::CommonPressureRow()}}, question);
    return question;
}

} // namespace gfc::suggest
