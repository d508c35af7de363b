// Whole files before and after, for each combination of ticked boxes under each algorithm and density source.
// What each box changes is told here once more, independently of the program's tables.
#include "ModifyWorld.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using Texts = std::vector<std::string>;

Texts Bindings(const Texts& stems, const std::string& addressSuffix = "KDIORegAddr") {
    Texts keys;
    for (const auto& stem : stems)
        for (const auto& suffix : {std::string("KDIOTag"), std::string("KDIOType"), addressSuffix})
            keys.push_back(stem + suffix);
    return keys;
}

Texts operator+(Texts left, const Texts& right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

const Texts Components = {"GC_C1",  "GC_N2",  "GC_CO2", "GC_C2",  "GC_C3",   "GC_H2O", "GC_H2S",
                          "GC_H",   "GC_CO",  "GC_O2",  "GC_iC4", "GC_nC4",  "GC_iC5", "GC_nC5",
                          "GC_nC6", "GC_nC7", "GC_nC8", "GC_nC9", "GC_nC10", "GC_He",  "GC_Ar"};
const Texts Properties = {"VolCalorificValue", "RelativeDensity", "XCO2", "XH2"};

const Texts InputKeys =
    Bindings({"GasDensity", "GasDP", "GasPress", "GasTemp", "PipeAbsRoughness", "OrificeServiceTime",
              "GasPulseInput", "GFCRunHold", "GFCTotalizeHold", "ResetTotals"}) +
    Texts{"GasDensityStandard", "meterKFactor", "CalibrationFactor", "ContractHour", "ContractMin"};
const Texts OutputKeys = Bindings({"GasVolume", "GasMass", "StdMassFlow", "StdVolFlow", "AGA3Status"});
// One name is spelt in the reader's way.
const Texts GasOutputKeys =
    Bindings({"AGA8rhotp", "AGA8rhos", "AGA8zs", "AGA8fpvs", "AGA8uncert", "AGA8Status", "AGA8GRs"}) +
    Texts{"AGA8zKDIOTAg", "AGA8zKDIOType", "AGA8zKDIORegAddr"};
const Texts CommonKeys = {"StandardT",       "StandardP",     "FlowingViscosity",
                          "IsentropicCoeff", "FlowAlgorithm", "GasDensitySource"};
const Texts OrificeKeys = {
    "PressureTap",         "PressureTapPos",  "InternalPipeDia",   "InternalPipeDiaRefTemp",
    "PipeMaterial",        "OrificeMaterial", "OrificeDiaRefTemp", "OrificeThermalExpCoeff",
    "PipeThermalExpCoeff", "ExtMechParam"};

bool IsDetail(const ModifyChoices& choices) {
    return choices.Source == "AGA8" || choices.Source == "ISO-12213-2-1997";
}

Texts GasInputKeys(const ModifyChoices& choices) {
    const Texts& names = IsDetail(choices) ? Components : Properties;
    return choices.CalInput == "MEASURED" ? Bindings(names, "KDIOAddr") + Bindings({"GCEnable"}) : names;
}

struct Situation;
std::string NameOf(const Situation& situation);

struct Situation {
    ModifyChoices Choices;
    std::vector<int> Boxes;

    friend void PrintTo(const Situation& the, std::ostream* out) { *out << NameOf(the); }
};

std::vector<Situation> Situations() {
    std::vector<Situation> all;
    for (const char* algorithm : {"AGA3", "AGA7", "Accelabar-AGA-3-1992", "SYT6143-2004"})
        for (const char* source : {"MEASURED", "AGA8", "SGERG88", "ISO-12213-2-1997", "ISO-12213-3-1997"})
            for (const char* calInput : {"FIXED", "MEASURED"}) {
                const bool densimeter = std::string(source) == "MEASURED";
                if (densimeter && std::string(calInput) == "MEASURED")
                    continue;
                std::vector<int> boxes = {1, 2};
                if (std::string(algorithm) != "AGA7")
                    boxes.push_back(3);
                if (!densimeter)
                    boxes.insert(boxes.end(), {4, std::string(calInput) == "MEASURED" ? 5 : 6});
                all.push_back({{algorithm, source, calInput}, boxes});
            }
    return all;
}

std::string NameOf(const Situation& situation) {
    std::string name =
        situation.Choices.Algorithm + "_" + situation.Choices.Source + "_" + situation.Choices.CalInput;
    std::erase_if(name, [](char c) { return c == '-'; });
    return name;
}

// One combination, played and told to the expected file alike.
class Combination {
public:
    Combination(const ModifyChoices& choices, const std::vector<int>& boxes)
        : world_(choices), choices_(choices), boxes_(boxes), expected_(world_.Content()) {}

    void Compare() {
        world_.TickAndAccept(boxes_);
        TellEditors();
        if (boxes_ == std::vector{3}) {
            ExpectMechanicalAlone();
            world_.AskedToSave(ui::Icon::None, ui::Answer::Yes);
        } else {
            ExpectCommon();
            world_.SaveAfterTrial();
        }
        world_.Play();
        EXPECT_EQ(world_.Content(), expected_.Bytes());
        EXPECT_EQ(world_.Files.Content.size(), 1U) << "nothing but the configuration is left";
    }

private:
    [[nodiscard]] bool Ticked(int box) const {
        return std::find(boxes_.begin(), boxes_.end(), box) != boxes_.end();
    }
    [[nodiscard]] bool IsAccelabar() const { return choices_.Algorithm == "Accelabar-AGA-3-1992"; }

    void TellEditors() {
        if (Ticked(3))
            IsAccelabar() ? TellAccelabar() : TellOrifice();
        if (Ticked(1))
            TellInputs();
        if (Ticked(6))
            TellFixedGas();
        if (Ticked(5))
            TellGasInputs();
        if (Ticked(2))
            TellOutputs();
        if (Ticked(4))
            TellGasOutputs();
    }
    void TellOrifice() {
        world_.TheStory.SeeCaption("FrParMec", "Mechanical parameters   North (Run 2)")
            .Type("FrParMec", "txtDiaOrif", "101.5");
        world_.AcceptMechanical();
        expected_.Touch("Run2", OrificeKeys).Set("Run2", "OrificeDia", "101.5");
        expected_.Touch("Run2", InputKeys);
    }
    void TellAccelabar() {
        world_.TheStory.SeeCaption("FrAccelabar", "Accelabar Parameters  North (Run 2)")
            .Select("FrAccelabar", "Combo1", 3)
            .Click("FrAccelabar", "Command1");
        expected_.Set("Run2", "AccelabarSize", "8")
            .Set("Run2", "AccelabarY", "0.6407")
            .Set("Run2", "AccelabarK", "0.7123")
            .Set("Run2", "AccelabarThroatDia", "3.389");
        expected_.Touch("Run2", InputKeys);
    }
    void TellInputs() {
        world_.TheStory.Type("TagRuns", "Text1", "1.25");
        world_.Continue();
        expected_.Touch("Run2", InputKeys).Set("Run2", "CalibrationFactor", "1.25");
    }
    void TellFixedGas() {
        const bool detail = IsDetail(choices_);
        const std::string form = detail ? "MDetail" : "frSGERG88";
        world_.TheStory.Type(form, detail ? "Text10" : "Text1_1", "0.5").Click(form, "Command1");
        ExpectGas();
        expected_.Set("Run2", detail ? "GC_C1" : "RelativeDensity", "0.5");
    }
    void TellGasInputs() {
        world_.Continue();
        ExpectGas();
    }
    void ExpectGas() {
        expected_.Replace(IsDetail(choices_) ? "AGA8" : "SGERG88",
                          {"AGA8Method=DETAIL", "AGA8CalInput=" + choices_.CalInput});
        expected_.Touch("Run2", GasInputKeys(choices_));
    }
    // The last of five is the status; 20 tags of AI and 20 of AO are bound from the first.
    void TellOutputs() {
        world_.Rebind(4, "ListAnalogDig");
        world_.Continue();
        const bool gasModel = choices_.Source != "MEASURED";
        const std::string next = gasModel ? "5" : "3"; // two runs of two, or of one, come before it
        expected_.Touch("Run2", OutputKeys)
            .Set("Run2", "AGA3StatusKDIOTag", "AI-" + next)
            .Set("Run2", "AGA3StatusKDIORegAddr", "20" + next);
    }
    void TellGasOutputs() {
        world_.Continue();
        expected_.Touch("Run2", GasOutputKeys);
    }
    void ExpectCommon() {
        expected_.Touch("FlowRuns", {"Run2"});
        expected_.Touch("Run2", CommonKeys).Set("Run2", "Compressible", "Yes");
    }
    void ExpectMechanicalAlone() {
        // Neither the inputs nor the flag of the run: back to what the file had of them.
        expected_ = FileText(world_.Content());
        if (IsAccelabar())
            expected_.Set("Run2", "AccelabarSize", "8")
                .Set("Run2", "AccelabarY", "0.6407")
                .Set("Run2", "AccelabarK", "0.7123")
                .Set("Run2", "AccelabarThroatDia", "3.389");
        else
            expected_.Touch("Run2", OrificeKeys).Set("Run2", "OrificeDia", "101.5");
        expected_.Touch("Run2", {"PressType", "ExtAtmPress", "AtmPress"});
        expected_.Touch("AGA3",
                        {"StandardT", "StandardP", "Compressible", "FlowingViscosity", "IsentropicCoeff"});
    }

    ModifyWorld world_;
    ModifyChoices choices_;
    std::vector<int> boxes_;
    FileText expected_;
};

} // namespace

class ModifyFlowCombinations : public testing::TestWithParam<Situation> {};

TEST_P(ModifyFlowCombinations, change_only_what_is_chosen) {
    const auto& [choices, boxes] = GetParam();
    const unsigned all = (1U << boxes.size()) - 1;
    // The other name of a gas model makes no difference to what a box means: all boxes at once will do.
    const bool otherName = choices.Source.starts_with("ISO");
    for (unsigned set = otherName ? all : 1; set <= all; ++set) {
        std::vector<int> ticked;
        for (std::size_t i = 0; i < boxes.size(); ++i)
            if ((set >> i & 1U) != 0)
                ticked.push_back(boxes[i]);
        SCOPED_TRACE(testing::PrintToString(ticked));
        Combination(choices, ticked).Compare();
        if (HasFailure())
            return;
    }
}

INSTANTIATE_TEST_SUITE_P(Choices, ModifyFlowCombinations, testing::ValuesIn(Situations()),
                         [](const auto& situation) { return NameOf(situation.param); });

} // namespace gfc::test
