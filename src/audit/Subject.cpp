#include "audit/Subject.h"

#include "config/CommonLayout.h"
#include "config/ConfigReader.h"
#include "config/RunLayout.h"
#include "config/Vocabulary.h"
#include "services/Text.h"

namespace gfc::audit {

namespace {

bool SaysYes(std::string_view text) {
    return services::EqualNoCase(text, config::Yes);
}

} // namespace

Subject::Subject(const Whose& whose, std::string bytes)
    : whose_(whose), file_(whose.File, std::move(bytes)), text_(file_.Bytes()) {
    const config::FileBatch batch(ini_, whose_.File);
    station_.ProjectFile = whose_.ProjectFile;
    station_.ProjectName = whose_.ProjectName;
    station_.CurrentStation = whose_.Station;
    config::LoadStationConfig(ini_, station_, whose_.File);
    station_.Measured = station_.GasDensitySource == config::source::Measured;
    station_.FlagAGA7 = station_.FlowAlgorithm == config::algorithm::AGA7;
    for (int number = 1; number <= config::MaxRuns; ++number)
        LoadRun(number);
}

void Subject::LoadRun(int number) {
    const auto place = static_cast<std::size_t>(number - 1);
    RunSubject& run = runs_[place];
    run.Number = number;
    run.Section = config::RunSection(number);
    run.On = SaysYes(station_.Run[place]);
    const std::string configured = run.Section + std::to_string(number);
    run.Configured = SaysYes(ini_.ReadKey("FlowRuns", configured, whose_.File));
    run.HasSection = text_.Find(run.Section) != nullptr;
    if (!run.HasSection)
        return;
    config::LoadRun(ini_, station_, whose_.File, number);
    run.IO = std::move(station_.Runs.IO.front());
    run.Gas = std::move(station_.Runs.Gas.front());
    run.Mechanical = std::move(station_.Runs.Mechanical.front());
    run.Fixed = std::move(station_.GasComposition);
    station_.GasComposition = {};
}

std::string Subject::FlowSection() const {
    return config::FlowSectionToRead(station_);
}

std::string Subject::GasSection() const {
    return config::IsGasModel(station_.GasDensitySource) ? config::GasSection(station_) : std::string();
}

} // namespace gfc::audit
