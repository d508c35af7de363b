#include "Plant.h"
#include "config/Vocabulary.h"
#include "suggest/Evidence.h"
#include "suggest/Meaning.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

namespace gfc::test {
namespace {

using suggest::Confidence;
using suggest::Question;
using suggest::Suggestion;
using suggest::Want;
using testing::HasSubstr;

const binding::VariableRow& RowOf(std::string_view stem) {
    const auto all = binding::Catalogue();
    return *std::ranges::find(all, stem, &binding::VariableRow::Stem);
}

const binding::VariableRow& Temperature = RowOf("GasTempKDIO");
const binding::VariableRow& Pressure = RowOf("GasPressKDIO");
const binding::VariableRow& Differential = RowOf("GasDPKDIO");

// A station that has only what is said here; the names become float inputs of one module, one behind the
// other.
struct Station {
    Question Asked;

    explicit Station(std::vector<int> runs) { Asked.Runs = std::move(runs); }

    Station& Tag(const std::string& name, const std::string& module = "IN", const std::string& type = "FX") {
        Asked.Tags.push_back({.TagName = name,
                              .RegAddr = static_cast<std::int32_t>(Asked.Tags.size() + 1),
                              .RegType = type,
                              .ModuleName = module,
                              .ModuleType = "Virtual Module"});
        return *this;
    }
    Station& Tags(const std::vector<std::string>& names) {
        for (const std::string& name : names)
            Tag(name);
        return *this;
    }
    Station& AskInputs() {
        for (const int run : Asked.Runs)
            for (const auto* row : {&Temperature, &Pressure, &Differential})
                Asked.Wants.push_back({run, row});
        return *this;
    }
    Station& AskGas() {
        for (const int run : Asked.Runs)
            for (const auto* row : {&RowOf("GC_C1KDIO"), &RowOf("GC_N2KDIO"), &RowOf("GC_nC6KDIO")})
                Asked.Wants.push_back({run, row});
        return *this;
    }
    [[nodiscard]] config::TagBinding BindingOf(const std::string& name) const {
        const auto tag = std::ranges::find_if(Asked.Tags, [&](const auto& t) { return t.TagName == name; });
        return {name, tag->RegType, std::to_string(tag->RegAddr)};
    }
    Station& Bind(int run, const binding::VariableRow& row, const std::string& name) {
        Asked.Bound.push_back({{run, &row}, BindingOf(name)});
        std::erase(Asked.Wants, Want{run, &row});
        return *this;
    }
    [[nodiscard]] Suggestion For(int run, const binding::VariableRow& row) const {
        for (const Suggestion& each : suggest::Suggest(Asked))
            if (each.Variable == Want{run, &row})
                return each;
        ADD_FAILURE() << "not asked for";
        return {};
    }
};

void ExpectThat(const Suggestion& suggestion, const std::string& tag, Confidence confidence) {
    EXPECT_EQ(suggestion.Binding.Tag, tag) << suggestion.Reason;
    EXPECT_EQ(suggestion.Confidence, confidence) << tag << ": " << suggestion.Reason;
    EXPECT_FALSE(suggestion.Reason.empty());
}

TEST(Evidence, OfMereOrderIsNeverSure) {
    for (const auto kind : {suggest::Evidence::RunOrder, suggest::Evidence::RunNeighbours,
                            suggest::Evidence::RunPrefix, suggest::Evidence::OtherStation})
        EXPECT_FALSE(suggest::RowOf(kind).MakesSure);
}

TEST(Meanings, AreThereForEveryVariable) {
    for (const auto& row : binding::Catalogue())
        EXPECT_FALSE(suggest::MeaningsOf(row).empty()) << row.Stem;
    for (const auto& meaning : suggest::Meanings())
        EXPECT_TRUE(std::ranges::any_of(binding::Catalogue(), [&](const auto& row) {
            return row.Stem == meaning.Stem;
        })) << meaning.Stem;
}

TEST(Suggest, SaysTheReasonInWords) {
    const auto station =
        Station({1, 2}).Tags({"PIT-101_PV", "TIT-101_PV", "PIT-102_PV", "TIT-102_PV"}).AskInputs();
    const auto suggestion = station.For(1, Pressure);
    ExpectThat(suggestion, "PIT-101_PV", Confidence::High);
    EXPECT_EQ(suggestion.Reason, "ISA letters PIT, loop 101 like the other tags of run 1");
}

TEST(Suggest, GivesNothingToNamesThatSayNothing) {
    const auto station = Station({1}).Tags({"TAG_0001", "TAG_0002", "REG5"}).AskInputs();
    ExpectThat(station.For(1, Pressure), "", Confidence::None);
}

TEST(Suggest, LoopsThatAreShiftedAreOfTheRunsByOrderOnly) {
    const auto station =
        Station({1, 2, 3}).Tags({"PT_412", "TT_412", "PT_413", "TT_413", "PT_414", "TT_414"}).AskInputs();
    ExpectThat(station.For(1, Pressure), "PT_412", Confidence::Fair);
    ExpectThat(station.For(3, Temperature), "TT_414", Confidence::Fair);
}

TEST(Suggest, OneLoopOutOfStepMakesAllOfThemUnsure) {
    const auto station = Station({1, 2, 3})
                             .Tags({"PT_411", "PT_412", "PT_413", "DPT_411", "DPT_412", "DPT_413", "TT_412",
                                    "TT_413", "TT_414"})
                             .AskInputs();
    EXPECT_NE(station.For(2, Pressure).Confidence, Confidence::High);
}

TEST(Suggest, RunsCountedFromZeroAreNotTheirDigits) {
    const auto station = Station({1, 2})
                             .Tags({"RUN0_PRES", "RUN0_TEMP", "RUN1_PRES", "RUN1_TEMP", "RUN0_DP", "RUN1_DP"})
                             .AskInputs();
    ExpectThat(station.For(1, Pressure), "RUN0_PRES", Confidence::Fair);
    ExpectThat(station.For(2, Pressure), "RUN1_PRES", Confidence::Fair);
}

TEST(Suggest, WhatToolsPutBehindANameIsNoRun) {
    const auto tools =
        Station({1, 2, 3}).Tags({"PRES~1", "TEMP~1", "PRES~2", "TEMP~2", "PRES~3", "TEMP~3"}).AskInputs();
    EXPECT_NE(tools.For(1, Pressure).Confidence, Confidence::High);
    const auto bare =
        Station({1, 2, 3}).Tags({"PRES", "TEMP", "PRES2", "TEMP2", "PRES3", "TEMP3"}).AskInputs();
    EXPECT_NE(bare.For(2, Pressure).Confidence, Confidence::High);
}

TEST(Suggest, ATagOfARunThatIsOffIsNotThatOfTheOnlyOne) {
    const auto word = Station({1}).Tags({"R2_PRES", "R2_TEMP", "R1_TEMP"}).AskInputs();
    ExpectThat(word.For(1, Pressure), "", Confidence::None);
    const auto loops = Station({1}).Tags({"PIT-101", "PIT-102", "TIT-101", "TIT-102"}).AskInputs();
    // That a loop's last digit is the run's is to be seen with several runs alone.
    ExpectThat(loops.For(1, Pressure), "PIT-101", Confidence::Fair);
}

TEST(Suggest, NamesMadeAlikeAreNeverSure) {
    const auto station = Station({1, 2}).Tags({"STATIC_PRES_RUN_", "STATIC_PRES_RUN_"}).AskInputs();
    EXPECT_NE(station.For(1, Pressure).Confidence, Confidence::High);
}

TEST(Suggest, AllFromHexaneOnIsTheEngineersChoice) {
    const auto station = Station({1}).Tags({"GC_C1", "GC_N2", "GC_C6+"}).AskGas();
    ExpectThat(station.For(1, RowOf("GC_C1KDIO")), "GC_C1", Confidence::High);
    ExpectThat(station.For(1, RowOf("GC_nC6KDIO")), "GC_C6+", Confidence::Fair);
}

TEST(Suggest, StackedRangesAreSureOnlyByTheSelectedOne) {
    const auto stacked = Station({1}).Tags({"R1_DP_LOW", "R1_DP_HIGH"}).AskInputs();
    EXPECT_NE(stacked.For(1, Differential).Confidence, Confidence::High);
    const auto one = Station({1}).Tags({"PDIT-101A", "PDIT-101B"}).AskInputs();
    EXPECT_NE(one.For(1, Differential).Confidence, Confidence::High);
    const auto selected = Station({1}).Tags({"R1_DP_LOW", "R1_DP_HIGH", "R1_DP_SEL"}).AskInputs();
    ExpectThat(selected.For(1, Differential), "R1_DP_SEL", Confidence::High);
}

// By its words alone "FI-101_VOL" might be the total, and so it is where there is no other.
TEST(Suggest, TheLetterQTellsTheTotalFromTheFlow) {
    Station station({1, 2});
    for (const char* name : {"FI-101_VOL", "FQI-101_VOL", "FI-101_MASS", "FQI-101_MASS", "FI-102_VOL",
                             "FQI-102_VOL", "FI-102_MASS", "FQI-102_MASS"})
        station.Tag(name, "RESULTS", "FY");
    const std::pair<const char*, const char*> tags[] = {{"StdVolFlowKDIO", "FI-102_VOL"},
                                                        {"StdMassFlowKDIO", "FI-102_MASS"},
                                                        {"GasVolumeKDIO", "FQI-102_VOL"},
                                                        {"GasMassKDIO", "FQI-102_MASS"}};
    for (const int run : {1, 2})
        for (const auto& [stem, tag] : tags)
            station.Asked.Wants.push_back({run, &RowOf(stem)});
    for (const auto& [stem, tag] : tags)
        ExpectThat(station.For(2, RowOf(stem)), tag, Confidence::High);
    EXPECT_THAT(station.For(2, RowOf("StdVolFlowKDIO")).Reason, HasSubstr("its loop's total is FQI-102_VOL"));
    std::erase_if(station.Asked.Tags, [](const auto& tag) { return tag.TagName.View().starts_with("FQI"); });
    ExpectThat(station.For(2, RowOf("GasVolumeKDIO")), "FI-102_VOL", Confidence::High);
    EXPECT_EQ(station.For(2, RowOf("StdVolFlowKDIO")).Confidence, Confidence::None);
}

// The name says whose state it is, and the module that it is one; that is no proof.
TEST(Suggest, AStateMayBeSaidByTheModule) {
    Station station({1, 2});
    for (const int run : {1, 2}) {
        for (const char* name : {"NS-10#_FLOW", "NS-10#_GAS", "NS-10#_HORN"}) {
            std::string tag = name;
            tag.replace(tag.find('#'), 1, std::to_string(run));
            station.Tag(tag, "VAY_STATUS", "AY");
        }
        for (const char* stem : {"AGA3StatusKDIO", "AGA8StatusKDIO"})
            station.Asked.Wants.push_back({run, &RowOf(stem)});
    }
    ExpectThat(station.For(1, RowOf("AGA3StatusKDIO")), "NS-101_FLOW", Confidence::Fair);
    ExpectThat(station.For(2, RowOf("AGA8StatusKDIO")), "NS-102_GAS", Confidence::Fair);
    EXPECT_THAT(station.For(2, RowOf("AGA8StatusKDIO")).Reason, HasSubstr("in module VAY_STATUS"));
    for (auto& tag : station.Asked.Tags)
        tag.ModuleName = "VAY_MORE";
    EXPECT_EQ(station.For(1, RowOf("AGA3StatusKDIO")).Confidence, Confidence::None);
}

TEST(Suggest, ATagThatIsBoundIsNotFree) {
    auto station = Station({1, 2}).Tags({"R1_PRES", "R2_PRES", "R1_TEMP", "R2_TEMP", "R1_DP"}).AskInputs();
    station.Bind(2, Temperature, "R1_PRES");
    ExpectThat(station.For(1, Pressure), "", Confidence::None);
}

TEST(Suggest, ALoopIsOfTheRunToWhichItIsBound) {
    auto station = Station({1, 2, 3})
                       .Tags({"PT_412", "TT_412", "DPT_412", "PT_413", "TT_413", "DPT_413", "PT_414",
                              "TT_414", "DPT_414"})
                       .AskInputs();
    station.Bind(1, Pressure, "PT_412").Bind(1, Temperature, "TT_412");
    const auto suggestion = station.For(1, Differential);
    ExpectThat(suggestion, "DPT_412", Confidence::High);
    EXPECT_THAT(suggestion.Reason, HasSubstr("loop 412 like the other inputs of run 1"));
}

TEST(Suggest, ABindingAgainstTheDigitsMakesThemUnsure) {
    auto station =
        Station({1, 2}).Tags({"PIT-101", "TIT-101", "PDT-101", "PIT-102", "TIT-102", "PDT-102"}).AskInputs();
    station.Bind(1, Temperature, "TIT-102");
    EXPECT_NE(station.For(1, Pressure).Confidence, Confidence::High);
}

TEST(Suggest, TheModulesNameMakesTheRunSure) {
    auto station = Station({1, 2});
    for (const char* module : {"RUN1", "RUN2"})
        for (const char* name : {"StaticPress", "Temp", "DiffPress"})
            station.Tag(name, module);
    const auto suggestion = station.AskInputs().For(2, Pressure);
    ExpectThat(suggestion, "StaticPress", Confidence::High);
    EXPECT_EQ(suggestion.Binding.RegAddr, "4");
    EXPECT_THAT(suggestion.Reason, HasSubstr("module RUN2"));
}

TEST(Suggest, TheGasDataOfOneAnalyserAreThoseOfAllRuns) {
    auto station = Station({1, 2}).Tags({"GC_C1", "GC_N2"}).AskGas();
    station.Bind(1, RowOf("GC_C1KDIO"), "GC_C1");
    const auto copied = station.For(2, RowOf("GC_C1KDIO"));
    ExpectThat(copied, "GC_C1", Confidence::High);
    EXPECT_EQ(copied.CopiedFrom, 1);
}

TEST(Suggest, ARunWithItsOwnAnalyserTakesNoCopy) {
    auto station = Station({1, 2}).Tags({"R1_C1", "R1_N2", "R2_C1"}).AskGas();
    station.Bind(1, RowOf("GC_N2KDIO"), "R1_N2");
    ExpectThat(station.For(2, RowOf("GC_C1KDIO")), "R2_C1", Confidence::High);
    ExpectThat(station.For(2, RowOf("GC_N2KDIO")), "", Confidence::None);
}

TEST(Suggest, NamesThatSayNothingAreKnownFromAnotherStation) {
    auto station = Station({1}).Tags({"TAG_0001", "TAG_0002"}).AskInputs();
    station.Asked.Others = {{"North", {{{1, &Pressure}, {"TAG_0002", "FX", "2"}}}}};
    const auto suggestion = station.For(1, Pressure);
    ExpectThat(suggestion, "TAG_0002", Confidence::Fair);
    EXPECT_THAT(suggestion.Reason, HasSubstr("North"));
    station.Asked.Others.push_back({"South", {{{1, &Pressure}, {"TAG_0001", "FX", "1"}}}});
    ExpectThat(station.For(1, Pressure), "", Confidence::None);
}

TEST(Suggest, SparesAreOfferedForWhatIsMissing) {
    auto station = Station({1}).Tags({"GC_C1", "SPARE_01", "R1_PRES", "TAG_7"}).AskGas();
    const auto spares = suggest::OfferSpares(station.Asked, suggest::Suggest(station.Asked));
    ASSERT_EQ(spares.size(), 2u);
    EXPECT_EQ(spares[0].Binding.Tag, "SPARE_01");
    EXPECT_EQ(spares[1].Binding.Tag, "TAG_7");
    EXPECT_EQ(spares[0].Confidence, Confidence::Fair);
}

// Whatever the names and the bindings: each want gets one answer, of a free tag of its class, and no tag is
// given twice but for the gas data that runs share.
TEST(Suggest, NeverGivesATagTwiceWhateverTheStation) {
    constexpr unsigned Seed = 20261122;
    std::mt19937 random(Seed);
    const auto plants = ReadPlants();
    for (int round = 0; round < 60; ++round) {
        SCOPED_TRACE("seed " + std::to_string(Seed) + ", round " + std::to_string(round));
        Question question = plants[random() % plants.size()].Question();
        std::ranges::shuffle(question.Tags, random);
        question.Tags.resize(random() % (question.Tags.size() + 1));
        std::set<std::string> bound;
        for (int i = 0; i < 8 && !question.Tags.empty() && !question.Wants.empty(); ++i) {
            const auto& tag = question.Tags[random() % question.Tags.size()];
            const auto want = question.Wants[random() % question.Wants.size()];
            std::erase(question.Wants, want);
            question.Bound.push_back({want, {tag.TagName, tag.RegType, std::to_string(tag.RegAddr)}});
            bound.insert(std::string(tag.RegType) + std::to_string(tag.RegAddr));
        }
        const auto suggestions = suggest::Suggest(question);
        ASSERT_EQ(suggestions.size(), question.Wants.size());
        std::set<std::string> given;
        for (std::size_t i = 0; i < suggestions.size(); ++i) {
            const Suggestion& each = suggestions[i];
            EXPECT_EQ(each.Variable, question.Wants[i]);
            if (each.Confidence == Confidence::None) {
                EXPECT_TRUE(each.Binding == config::TagBinding{});
                continue;
            }
            EXPECT_EQ(binding::ClassOf(each.Binding.Type), each.Variable.Row->Class);
            const std::string key = each.Binding.Type + each.Binding.RegAddr;
            if (each.CopiedFrom == 0) {
                EXPECT_TRUE(given.insert(key).second) << key;
                EXPECT_FALSE(bound.contains(key)) << key;
            }
        }
    }
}

} // namespace
} // namespace gfc::test
