#include "binding/Catalogue.h"
#include "binding/ExpectedTags.h"
#include "binding/RunTexts.h"
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
    [[nodiscard]] config::TagBinding BindingOf(const VariableRow& row, std::string_view section) const {
        return {.Tag = Read(section, row.TagKey()),
                .Type = Read(section, CheckedTypeKey(row)),
                .RegAddr = Read(section, row.AddressKey())};
    }
    // Until another run is read.
    [[nodiscard]] const RunTexts& ReadRun(const std::string& section) {
        run_.Read(ini_, section, file_);
        return run_;
    }

private:
    const config::FileIni& ini_;
    const std::string& file_;
    config::FileBatch batch_; // all of it out of one reading of the file
    RunTexts run_;
};

void Add(const VariableRow& row, const std::string& section, config::TagBinding binding,
         ExpectedTags& expected) {
    ExpectedTag entry;
    entry.RegAddr = std::move(binding.RegAddr);
    entry.Tag = std::move(binding.Tag);
    entry.Type = std::move(binding.Type);
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
    conditions.ExtAtmPress = reader.SaysYesInAnyCase(CommonSection, "ExtAtmPress");
    return conditions;
}

void AddRun(int run, Conditions conditions, FileReader& reader, ExpectedTags& expected) {
    const std::string section = "Run" + std::to_string(run);
    const RunTexts& texts = reader.ReadRun(section);
    conditions.ExtMech = services::EqualNoCase(texts.ExtMechParam(), config::Yes);
    conditions.ExtCorr =
        services::EqualNoCase(texts.ExtCCorrFactors(), config::Yes); // in files edited by hand only
    for (const VariableRow* row : CheckRows(conditions))
        Add(*row, section, texts.BindingOf(*row), expected);
}

std::string FlagOf(int run) {
    return "Run" + std::to_string(run);
}

bool IsOn(int run, const FileReader& reader) {
    return reader.SaysYes(FlowRuns, FlagOf(run));
}

bool IsOff(int run, const FileReader& reader) {
    return !IsOn(run, reader) && reader.SaysYes(FlowRuns, FlagOf(run) + std::to_string(run));
}

bool IsConfigured(int run, const FileReader& reader) {
    return IsOn(run, reader) || IsOff(run, reader);
}

void AddBound(int run, Conditions conditions, FileReader& reader, ExpectedTags& bound) {
    const std::string section = "Run" + std::to_string(run);
    const RunTexts& texts = reader.ReadRun(section);
    conditions.ExtMech = services::EqualNoCase(texts.ExtMechParam(), config::Yes);
    for (const auto stage : {BindingStage::RunInputs, BindingStage::RunOutputs, BindingStage::GasInputs,
                             BindingStage::GasOutputs})
        for (const VariableRow* row : TreeRows(stage, conditions))
            Add(*row, section, texts.BindingOf(*row), bound);
}

ExpectedTag WorkingModule(const std::string& stem, const FileReader& reader) {
    ExpectedTag entry;
    entry.Tag = reader.Read(FlowRuns, stem + "ModName");
    entry.RegAddr = reader.Read(FlowRuns, stem + "RegAddr");
    entry.Type = reader.Read(FlowRuns, stem + "RegType");
    return entry;
}

// Their memory serves on.
void Clear(ExpectedTags& expected) {
    for (auto* list : {&expected.ExpectedFloat, &expected.ExpectedAnalog, &expected.ExpectedLong,
                       &expected.ExpectedDigital})
        list->clear();
}

} // namespace

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

void BuildExpectedTags(const config::FileIni& ini, const std::string& file, config::StationConfig& station,
                       ExpectedTags& expected) {
    FileReader reader(ini, file);
    Clear(expected);
    ReadChoices(reader, station);
    const Conditions common = CommonConditions(station, reader);
    const VariableRow& atmosphere = CommonPressureRow();
    if (atmosphere.Presence.InCheck(common))
        Add(atmosphere, std::string(CommonSection), reader.BindingOf(atmosphere, CommonSection), expected);
    for (int run = 1; run <= config::MaxRuns; ++run)
        if (IsOn(run, reader))
            AddRun(run, common, reader, expected);
    expected.WorkingFloat = WorkingModule("WrkFloat", reader);
    expected.WorkingAnalog = WorkingModule("WrkAnalog", reader);
    expected.WorkingLong = WorkingModule("WrkIntLong", reader);
}

void BuildExpectedTagsOfRunsOff(const config::FileIni& ini, const std::string& file,
                                config::StationConfig& station, ExpectedTags& expected) {
    FileReader reader(ini, file);
    Clear(expected);
    ReadChoices(reader, station);
    const Conditions common = CommonConditions(station, reader);
    for (int run = 1; run <= config::MaxRuns; ++run)
        if (IsOff(run, reader))
            AddRun(run, common, reader, expected);
}

ExpectedTags TagsInUse(const config::FileIni& ini, const std::string& file) {
    FileReader reader(ini, file);
    config::StationConfig station;
    ReadChoices(reader, station);
    const std::string own = station.FlowAlgorithm == config::algorithm::AGA7 ? "AGA7" : "AGA3";
    Conditions common = CommonConditions(station, reader);
    common.ExtAtmPress = reader.SaysYesInAnyCase(own, "ExtAtmPress");
    ExpectedTags bound;
    if (common.ExtAtmPress)
        Add(CommonPressureRow(), own, reader.BindingOf(CommonPressureRow(), own), bound);
    for (int run = 1; run <= config::MaxRuns; ++run)
        if (IsConfigured(run, reader))
            AddBound(run, common, reader, bound);
    return bound;
}

} // namespace gfc::binding
