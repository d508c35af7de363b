#include "naming/TagName.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <set>

namespace gfc::naming {
namespace {

using enum Subject;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

TEST(Fold, DropsCaseAndAccents) {
    EXPECT_EQ(Fold("Presión_Línea ñ ç Ü"), "PRESION_LINEA N C U");
    EXPECT_EQ(Fold("10 ºC"), "10 ºC");
    EXPECT_EQ(Fold("\xFF~"), "\xFF~");
    EXPECT_EQ(Fold(""), "");
}

TEST(Words, StandOnceAndInCapitals) {
    std::set<std::string_view> texts;
    for (const Word& word : Words()) {
        EXPECT_TRUE(texts.insert(word.Text).second) << word.Text;
        EXPECT_EQ(Fold(word.Text), word.Text);
        EXPECT_EQ(FindWord(word.Text), &word);
    }
}

TEST(TagName, LettersOfAnInstrumentWithItsLoop) {
    const TagName name = Parse("PIT-101_PV");
    EXPECT_EQ(name.Device.Letters, "PIT");
    EXPECT_EQ(name.Device.Loop, "101");
    EXPECT_THAT(name.Device.Means, ElementsAre(Pressure));
    EXPECT_THAT(name.Subjects, ElementsAre(Value));
    EXPECT_TRUE(name.Device.Transmits);
    EXPECT_EQ(name.Run, 0);
}

TEST(TagName, ADifferenceOfPressureIsNoPressure) {
    for (const char* text : {"PDIT-101A", "DPT 101A", "PDT101A"}) {
        EXPECT_THAT(Parse(text).Device.Means, ElementsAre(Pressure, Differential)) << text;
        EXPECT_EQ(Parse(text).Device.LoopSuffix, "A") << text;
    }
}

TEST(TagName, AValveOrASwitchIsNotTheQuantity) {
    for (const char* text : {"PSV-101", "FV-101", "TSHH-101", "PCV_22"})
        EXPECT_THAT(Parse(text).Device.Means, testing::Contains(Aside)) << text;
    EXPECT_FALSE(Parse("FY-101").Device.Transmits);
}

TEST(TagName, ThePowerPlantsCode) {
    const TagName name = Parse("10EKG10CP001_XQ01");
    EXPECT_EQ(name.Device.Letters, "CP");
    EXPECT_EQ(name.Device.Loop, "001");
    EXPECT_TRUE(name.Device.IsKks);
    EXPECT_THAT(name.Device.Means, ElementsAre(Pressure));
    EXPECT_THAT(name.Subjects, ElementsAre(Neutral));
}

TEST(TagName, WordsOfThreeLanguages) {
    EXPECT_THAT(Parse("PRESIÓN_DIF_TRAMO1").Subjects,
                UnorderedElementsAre(Pressure, Differential, Subject::Run));
    EXPECT_THAT(Parse("Vazao_Massa_TR2").Subjects, UnorderedElementsAre(Flow, Mass, Subject::Run));
    EXPECT_THAT(Parse("Run2_StaticPressure").Subjects, UnorderedElementsAre(Subject::Run, Static, Pressure));
}

TEST(TagName, WordsThatHoldDigits) {
    EXPECT_THAT(Parse("GC_CO2").Subjects, UnorderedElementsAre(Analyser, CarbonDioxide));
    EXPECT_THAT(Parse("CROMA_C6+").Subjects, UnorderedElementsAre(Analyser, HexanePlus));
    EXPECT_THAT(Parse("gc1.iC4").Subjects, UnorderedElementsAre(Analyser, IsoButane));
    EXPECT_THAT(Parse("R1_AGA8_STATUS").Subjects, UnorderedElementsAre(Subject::Run, GasCalculation, Status));
    EXPECT_THAT(Parse("CO2").Subjects, ElementsAre(CarbonDioxide));
    EXPECT_THAT(Parse("C12").Unknown, IsEmpty());
}

TEST(TagName, WordsGrownTogetherAndWordsCut) {
    EXPECT_THAT(Parse("MASSFLOW").Subjects, ElementsAre(Mass, Flow));
    EXPECT_THAT(Parse("TOTHOLD").Subjects, ElementsAre(Totalize, Hold));
    const TagName cut = Parse("TEMPERATU");
    EXPECT_THAT(cut.Subjects, ElementsAre(Temperature));
    EXPECT_TRUE(cut.Parts.front().Cut);
    EXPECT_THAT(Parse("STANDARDXYZ").Unknown, ElementsAre("STANDARDXYZ"));
}

TEST(TagName, TwoPartsThatSayOneThing) {
    EXPECT_THAT(Parse("I_BUTANO").Subjects, ElementsAre(IsoButane));
    EXPECT_THAT(Parse("GasNormalButane").Subjects, ElementsAre(Gas, NormalButane));
    EXPECT_THAT(Parse("HydrogenSulfide").Subjects, ElementsAre(HydrogenSulfide));
    EXPECT_THAT(Parse("iC5").Subjects, ElementsAre(IsoPentane));
}

TEST(TagName, ALetterWithANumberInFrontIsAPlace) {
    EXPECT_THAT(Parse("T3_PRES").Subjects, ElementsAre(Pressure));
    EXPECT_THAT(Parse("T3").Subjects, ElementsAre(Temperature));
    EXPECT_THAT(Parse("P_1").Subjects, ElementsAre(Pressure));
}

TEST(TagName, TheRunThatAWordNames) {
    EXPECT_EQ(Parse("R1_PRES").Run, 1);
    EXPECT_EQ(Parse("TRAMO 3 TEMP").Run, 3);
    EXPECT_EQ(Parse("Meter_02_DP").Run, 2);
    EXPECT_EQ(Parse("METER3_DP").RunText, "METER3");
    EXPECT_EQ(Parse("R101_PRES").Run, 0);
    EXPECT_EQ(Parse("RUN6_PRES").Run, 0);
    EXPECT_EQ(Parse("PRES_1").Run, 0);
}

TEST(TagName, SuffixesOfTools) {
    EXPECT_TRUE(Parse("LINE_PRESS~1").ToolSuffix);
    EXPECT_TRUE(Parse("LINE_PRESS (2)").ToolSuffix);
    EXPECT_FALSE(Parse("LINE_PRESS2").ToolSuffix);
    EXPECT_FALSE(Parse("~").ToolSuffix);
    EXPECT_FALSE(Parse("12").ToolSuffix);
}

// Whatever a name holds, its parts lie one behind the other and nothing of it breaks.
TEST(TagName, AnyBytesGiveAName) {
    std::mt19937 random(20261122);
    const std::string_view signs = "AbC6+_-~ (1)2PIT.\xC3\xB3\xFF";
    for (int round = 0; round < 3000; ++round) {
        std::string text;
        for (auto length = random() % 24; length > 0; --length)
            text.push_back(signs[random() % signs.size()]);
        const TagName name = Parse(text);
        std::size_t at = 0;
        for (const Part& part : name.Parts) {
            ASSERT_GE(part.Begin, at) << "seed 20261122, round " << round << ": " << text;
            at = part.Begin + 1;
        }
    }
}

} // namespace
} // namespace gfc::naming
