#include "PlainVariables.h"
#include "binding/Catalogue.h"
#include "binding/RequiredTags.h"

#include <gtest/gtest.h>

#include <array>

// The stages of the catalogue for every combination: which variables, in which order, of which class, under
// which captions and keys, and how many tags they need.
namespace gfc::test::sweep {
namespace {

using binding::BindingStage;
using Texts = std::vector<std::string>;

// The record of one run; an option of external diameters stands in it whatever the standard, as one left over
// from another standard would.
config::StationConfig StationOf(const Choice& choice) {
    config::StationConfig station;
    station.FlowAlgorithm = AlgorithmText(choice);
    station.GasDensitySource = SourceText(choice);
    station.SystemUnits = UnitsText(choice);
    station.Measured = choice.Densimeter();
    station.FlagAGA7 = choice.AGA7();
    station.AGA8CalInput = choice.Chromatograph ? "MEASURED" : "FIXED";
    station.ExtAtmPress = choice.External() ? "Yes" : "No";
    station.Runs.PrepareWholeStation(1);
    station.Runs.Mechanical.front().ExtMechParam = choice.ExternalDiameters ? "Yes" : "No";
    return station;
}

// Standards, sources, compositions (with a densimeter too: it must not matter) and diameters.
std::vector<Choice> StageChoices() {
    std::vector<Choice> all;
    for (int standard = 0; standard < 4; ++standard)
        for (int source = 0; source < 5; ++source)
            for (const bool chromatograph : {false, true})
                for (const bool external : {false, true})
                    all.push_back({.Standard = standard,
                                   .Source = source,
                                   .Chromatograph = chromatograph,
                                   .ExternalDiameters = external});
    return all;
}

struct Stage {
    BindingStage Value;
    std::vector<PlainVariable> Variables;
};

std::vector<Stage> StagesOf(const Choice& choice) {
    return {{BindingStage::RunInputs, RunInputVariables(choice)},
            {BindingStage::RunOutputs, RunOutputVariables(choice)},
            {BindingStage::GasOutputs, GasOutputVariables(choice)},
            {BindingStage::GasInputs, GasInputVariables(choice)},
            {BindingStage::CommonInputs, {{"Atmospheric Pressure", 'F', "CommonPaKDIO"}}}};
}

char LetterOf(binding::TagClass tagClass) {
    return "FLAD"[static_cast<std::size_t>(tagClass)];
}

void ExpectKeys(const binding::VariableRow& row, const PlainVariable& plain, BindingStage stage) {
    const bool shortForm = stage == BindingStage::GasInputs && plain.Stem != "GCEnableKDIO";
    EXPECT_EQ(row.TagKey(), plain.Stem + "Tag");
    EXPECT_EQ(row.TypeKey(), plain.Stem + "Type");
    EXPECT_EQ(row.AddressKey(), plain.Stem + (shortForm ? "Addr" : "RegAddr"));
}

TEST(Stages, hold_their_variables_in_order_for_every_combination) {
    for (const auto& choice : StageChoices())
        for (const auto& stage : StagesOf(choice)) {
            SCOPED_TRACE(choice.Text() + ", stage " + std::to_string(static_cast<int>(stage.Value)));
            auto station = StationOf(choice);
            const auto variables = binding::VariablesOf(stage.Value, station, 0);
            ASSERT_EQ(variables.size(), stage.Variables.size());
            for (std::size_t i = 0; i < variables.size(); ++i) {
                EXPECT_EQ(variables[i].Caption(), stage.Variables[i].Caption);
                EXPECT_EQ(LetterOf(variables[i].Class()), stage.Variables[i].Class) << i;
                ExpectKeys(*variables[i].Row, stage.Variables[i], stage.Value);
            }
        }
}

// The arithmetic of the counts, which is not that of the tree.
binding::TagCounts CountOf(const Choice& choice, int kind) {
    binding::TagCounts counts;
    if (kind == 1 || kind == 5) {
        counts.Digital += 3;
        if (choice.Densimeter())
            counts.Float += 1;
        if (choice.AGA3() || choice.Accelabar())
            counts.Float += 3;
        if (choice.GBT())
            counts.Float += 5;
        if (choice.HasOrifice() && choice.ExternalDiameters)
            counts.Float += 2;
        if (choice.AGA7())
            counts.Long += 1;
        if (choice.AGA7() && !choice.Densimeter())
            counts.Float += 2;
    }
    if (kind == 2 || kind == 5) {
        counts.Analog += 1;
        counts.Float += 4;
    }
    if ((kind == 3 || kind == 5) && !choice.Densimeter() && choice.Chromatograph) {
        counts.Digital += 1;
        counts.Float += choice.Detail() ? 21 : 4;
    }
    if ((kind == 4 || kind == 5) && !choice.Densimeter()) {
        counts.Analog += 1;
        counts.Float += 7;
    }
    return counts;
}

TEST(Stages, need_as_many_tags_as_counted_for_every_combination) {
    for (const auto& choice : StageChoices()) {
        SCOPED_TRACE(choice.Text());
        const auto station = StationOf(choice);
        for (int kind = 1; kind <= 5; ++kind)
            EXPECT_TRUE(binding::CountRequiredTags(station, 0, kind) == CountOf(choice, kind)) << kind;
        // The stages' numbers are the kinds' but for the two of the gas.
        const int kindOfStage[] = {0, 1, 2, 4, 3};
        for (int stage = 1; stage <= 4; ++stage)
            EXPECT_TRUE(binding::NeededTags(static_cast<BindingStage>(stage), station, 0) ==
                        CountOf(choice, kindOfStage[stage]))
                << stage;
        EXPECT_TRUE(binding::NeededTags(BindingStage::CommonInputs, station, 0) ==
                    (binding::TagCounts{.Float = 1}));
    }
}

// Deliberate: for the Accelabar an option left over adds two to the tree and nothing to the count, and then
// the digital variables stand where the count expects floats no more. Nowhere else do the two differ; a
// turbine looks at the option in neither.
TEST(Stages, differ_from_their_count_for_a_stale_option_of_the_accelabar_alone) {
    for (const auto& choice : StageChoices()) {
        const auto station = StationOf(choice);
        const auto variables = static_cast<int>(RunInputVariables(choice).size());
        const int needed = binding::NeededTags(BindingStage::RunInputs, station, 0).Total();
        EXPECT_EQ(variables - needed, choice.Accelabar() && choice.ExternalDiameters ? 2 : 0)
            << choice.Text();
    }
}

struct CheckEntry {
    std::string Caption, Stem;
};

void Add(std::vector<CheckEntry>& entries, std::vector<CheckEntry> more) {
    entries.insert(entries.end(), more.begin(), more.end());
}

void AddInputEntries(std::vector<CheckEntry>& entries, const Choice& choice, bool extCorr) {
    if (choice.Densimeter())
        Add(entries, {{"Density", "GasDensityKDIO"}});
    if (choice.AGA7())
        Add(entries, {{"Pulse Input", "GasPulseInputKDIO"}});
    if (!choice.AGA7() || !choice.Densimeter())
        Add(entries, {{"Temperature", "GasTempKDIO"}, {"Pressure", "GasPressKDIO"}});
    if (!choice.AGA7())
        Add(entries, {{"Diferential Pressure", "GasDPKDIO"}});
    if (choice.HasOrifice() && choice.ExternalDiameters)
        Add(entries, {{"Int.Pipe Dia.", "PipeDiaKDIO"}, {"Orifice diameter", "OrificeDiaKDIO"}});
    if (choice.GBT() && extCorr)
        Add(entries, {{"Pipe Absolute Roughness", "PipeAbsRoughnessKDIO"},
                      {"Orifice Service Time", "OrificeServiceTimeKDIO"}});
}

void AddGasEntries(std::vector<CheckEntry>& entries, const Choice& choice) {
    if (choice.Densimeter())
        return;
    Add(entries, {{"AGA 8 Status", "AGA8StatusKDIO"},
                  {"FPVS", "AGA8fpvsKDIO"},
                  {"rhos", "AGA8rhosKDIO"},
                  {"rhotp", "AGA8rhotpKDIO"},
                  {"UNCERT", "AGA8uncertKDIO"},
                  {"Compressibility", "AGA8zKDIO"},
                  {"Std. Compressibility", "AGA8zsKDIO"},
                  {"Rel. Density", "AGA8GRsKDIO"}});
    if (choice.Chromatograph && choice.Gross())
        Add(entries, {{"Vol. Calorific Value", "VolCalorificValueKDIO"},
                      {"Relative Density", "RelativeDensityKDIO"},
                      {"CO2 content", "GC_CO2KDIO"},
                      {"H2 content", "H2KDIO"},
                      {"Gas composition strobe", "GCStrobeKDIO"}});
    if (!choice.Chromatograph || !choice.Detail())
        return;
    for (std::size_t i = 0; i < 21; ++i) {
        const std::string& key = ComponentKeys()[i];
        // The name of hydrogen has a letter too many.
        Add(entries, {{ComponentNames()[i], key == "GC_H" ? "GC_HKDIOA" : key + "KDIO"}});
    }
    Add(entries, {{"Gas composition enable", "GCEnableKDIO"}});
}

std::vector<CheckEntry> CheckEntriesOf(const Choice& choice, bool extCorr) {
    std::vector<CheckEntry> entries = {{"Reset", "ResetTotalsKDIO"},
                                       {"Flow Run/Hold", "GFCRunHoldKDIO"},
                                       {"Totalize Run/Hold", "GFCTotalizeHoldKDIO"},
                                       {"AGA 3 Status", "AGA3StatusKDIO"}};
    AddInputEntries(entries, choice, extCorr);
    Add(entries, {{"Std. Mass Flow", "StdMassFlowKDIO"},
                  {"Std. Volume Flow", "StdVolFlowKDIO"},
                  {"Volune", "GasVolumeKDIO"},
                  {"Mass", "GasMassKDIO"}});
    AddGasEntries(entries, choice);
    return entries;
}

TEST(Stages, are_checked_in_their_own_order_and_words_for_every_combination) {
    for (const auto& choice : StageChoices())
        for (const bool extCorr : {false, true}) {
            SCOPED_TRACE(choice.Text() + (extCorr ? ", correction" : ""));
            auto conditions = binding::ConditionsOf(StationOf(choice), 0);
            conditions.ExtCorr = extCorr;
            const auto rows = binding::CheckRows(conditions);
            const auto plain = CheckEntriesOf(choice, extCorr);
            ASSERT_EQ(rows.size(), plain.size());
            for (std::size_t i = 0; i < rows.size(); ++i) {
                EXPECT_EQ(rows[i]->Captions.Check, plain[i].Caption) << i;
                EXPECT_EQ(rows[i]->ReportedStem(), plain[i].Stem) << i;
            }
        }
}

TEST(Stages, are_headed_by_standard_and_source_for_every_combination) {
    for (const auto& choice : StageChoices()) {
        SCOPED_TRACE(choice.Text());
        const auto station = StationOf(choice);
        std::string flow = "AGA 3 ";
        if (choice.AGA7())
            flow = "AGA 7 ";
        if (choice.GBT())
            flow = "SYT6143-2004 ";
        const std::string gas = choice.Detail() ? "AGA 8 " : "SGERG 88 ";
        EXPECT_EQ(binding::RootCaption(BindingStage::RunInputs, station), flow + "Inputs");
        EXPECT_EQ(binding::RootCaption(BindingStage::RunOutputs, station), flow + "Outputs");
        EXPECT_EQ(binding::RootCaption(BindingStage::GasInputs, station), gas + "Inputs");
        EXPECT_EQ(binding::RootCaption(BindingStage::GasOutputs, station), gas + "Outputs");
        EXPECT_EQ(binding::RootCaption(BindingStage::CommonInputs, station), "Common Inputs");
    }
}

} // namespace
} // namespace gfc::test::sweep
