#include "binding/Catalogue.h"
#include "binding/ExpectedTags.h"
#include "binding/TagsInUse.h"
#include "config/Vocabulary.h"
#include "services/Text.h"

namespace gfc::binding {

namespace {

constexpr std::string_view FlowRuns = "FlowRuns";
// Deliberately asked whatever the algorithm: a turbine's own section is not looked at.
constexpr std::string_view CommonSection = "AGA3";
constexpr std::string_view NoteOfAll = "Variable without assignment";

class FileReader {
public:
    FileReader(const config::FileIni& ini, const std::string& file)
        : ini_(ini), file_(file), batch_(ini, file) {}

    [[nodiscard]] std::string Read(std::string_view section, std::string_view key) const {
        return ini_.ReadKey(section, key, file_);
    }
    [[nodiscard]] bool SaysYes(std::string_view section, std::string_view key) const {
        return Read(section, key) == config::Yes;
    }
    [[nodiscard]] bool SaysYesInAnyCase(std::string_view section, std::string_view key) const {
        return services::EqualNoCase(Read(section, key), config::Yes);
    }

private:
    const config::FileIni& ini_;
    const std::string& file_;
    config::FileBatch batch_; // all of it out of one reading of the file
};

std::vector<ExpectedTag>& ListOf(TagClass tagClass, ExpectedTags& expected) {
    switch (tagClass) {
    case TagClass::Float:
        return expected.ExpectedFloat;
    case TagClass::Long:
        return expected.ExpectedLong;
    case TagClass::Analog:
        return expected.ExpectedAnalog;
    case TagClass::Digital:
        break;
    }
    return expected.ExpectedDigital;
}

// Deliberate: the type of the calorific value is taken from the relative density's key, and its own key is
// not read.
std::string CheckedTypeKey(const VariableRow& row) {
    return row.Stem == "VolCalorificValueKDIO" ? "RelativeDensityKDIOType" : row.TypeKey();
}

void Add(const VariableRow& row, const std::string& section, const FileReader& reader,
         ExpectedTags& expected) {
    ExpectedTag entry;
    entry.RegAddr = reader.Read(section, row.AddressKey());
    entry.Tag = reader.Read(section, row.TagKey());
    entry.Type = reader.Read(section, CheckedTypeKey(row));
    entry.Group = row.CheckGroup();
    entry.Stem = row.ReportedStem();
    entry.Location = section;
    entry.Caption = row.Captions.Check;
    entry.Note = NoteOfAll;
    ListOf(row.Class, expected).push_back(std::move(entry));
}

void ReadChoices(const FileReader& reader, config::StationConfig& station) {
    station.FlowAlgorithm = reader.Read(FlowRuns, "FlowAlgorithm");
    station.GasDensitySource = reader.Read(FlowRuns, "GasDensitySource");
    // A densimeter has neither section, so that the text becomes empty.
    const bool detail = config::IsDetail(station.GasDensitySource);
    station.AGA8CalInput = reader.Read(detail ? "AGA8" : "SGERG88", "AGA8CalInput");
}

// What the file itself says; the station's own flags may be those of another moment.
Conditions CommonConditions(const config::StationConfig& station, const FileReader& reader) {
    Conditions conditions;
    conditions.FlowAlgorithm = station.FlowAlgorithm;
    conditions.GasDensitySource = station.GasDensitySource;
    conditions.Measured = station.GasDensitySource == config::source::Measured;
    conditions.CompositionMeasured = station.AGA8CalInput == config::CompositionMeasured;
    conditions.ExtAtmPress = reader.SaysYes(CommonSection, "ExtAtmPress");
    return conditions;
}

void AddRun(int run, Conditions conditions, const FileReader& reader, ExpectedTags& expected) {
    const std::string section = "Run" + std::to_string(run);
    if (!reader.SaysYes(FlowRuns, section))
        return;
    conditions.ExtMech = reader.SaysYes(section, "ExtMechParam");
    conditions.ExtCorr = reader.SaysYes(section, "ExtCCorrFactors"); // in files edited by hand only
    for (const VariableRow* row : CheckRows(conditions))
        Add(*row, section, reader, expected);
}

bool IsConfigured(int run, const FileReader& reader) {
    const std::string flag = "Run" + std::to_string(run);
    return reader.SaysYes(FlowRuns, flag) || reader.SaysYes(FlowRuns, flag + std::to_string(run));
}

void AddBound(int run, Conditions conditions, const FileReader& reader, ExpectedTags& bound) {
    const std::string section = "Run" + std::to_string(run);
    conditions.ExtMech = reader.SaysYesInAnyCase(section, "ExtMechParam");
    for (const auto stage : {BindingStage::RunInputs, BindingStage::RunOutputs, BindingStage::GasInputs,
                             BindingStage::GasOutputs})
        for (const VariableRow* row : TreeRows(stage, conditions))
            Add(*row, section, reader, bound);
}

ExpectedTag WorkingModule(const std::string& stem, const FileReader& reader) {
    ExpectedTag entry;
    entry.Tag = reader.Read(FlowRuns, stem + "ModName");
    entry.RegAddr = reader.Read(FlowRuns, stem + "RegAddr");
    entry.Type = reader.Read(FlowRuns, stem + "RegType");
    return entry;
}

} // namespace

void BuildExpectedTags(const config::FileIni& ini, const std::string& file, config::StationConfig& station,
                       ExpectedTags& expected) {
    const FileReader reader(ini, file);
    expected = {};
    ReadChoices(reader, station);
    const Conditions common = CommonConditions(station, reader);
    const VariableRow& atmosphere = CommonPressureRow();
    if (atmosphere.Presence.InCheck(common))
        Add(atmosphere, std::string(CommonSection), reader, expected);
    for (int run = 1; run <= config::MaxRuns; ++run)
        AddRun(run, common, reader, expected);
    expected.WorkingFloat = WorkingModule("WrkFloat", reader);
    expected.WorkingAnalog = WorkingModule("WrkAnalog", reader);
    expected.WorkingLong = WorkingModule("WrkIntLong", reader);
}

ExpectedTags TagsInUse(const config::FileIni& ini, const std::string& file) {
    const FileReader reader(ini, file);
    config::StationConfig station;
    ReadChoices(reader, station);
    const std::string own = station.FlowAlgorithm == config::algorithm::AGA7 ? "AGA7" : "AGA3";
    Conditions common = CommonConditions(station, reader);
    common.ExtAtmPress = reader.SaysYesInAnyCase(own, "ExtAtmPress");
    ExpectedTags bound;
    if (common.ExtAtmPress)
        Add(CommonPressureRow(), own, reader, bound);
    for (int run = 1; run <= config::MaxRuns; ++run)
        if (IsConfigured(run, reader))
            AddBound(run, common, reader, bound);
    return bound;
}

} // namespace gfc::binding
