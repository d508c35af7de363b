#include "TagRunsWorld.h"
#include "forms/binding/TagLists.h"

#include <array>
#include <ostream>

// How many clicks and keys it takes a person to bind three orifice runs with a chromatograph each, with
// suggestions and without.
namespace gfc::test {
namespace {

using binding::BindingStage;
namespace node = binding::node;

// The right tags of each stage in the order of its tree; the hash stands for the run.
struct StageTags {
    BindingStage Stage;
    std::vector<std::string> Names;
};

const std::array<StageTags, 4>& RightTags() {
    static const std::array<StageTags, 4> tags = {{
        {BindingStage::RunInputs,
         {"TIT-20#_PV", "PIT-20#_PV", "PDIT-20#_PV", "HS-20#_HOLD", "HS-20#_TOTHOLD", "HS-20#_RESET"}},
        {BindingStage::RunOutputs,
         {"FI-20#_VOL", "FI-20#_MASS", "FQI-20#_VOL", "FQI-20#_MASS", "NS-20#_FLOW"}},
        {BindingStage::GasInputs,
         {"AT-50#_C1",   "AT-50#_N2",  "AT-50#_CO2", "AT-50#_C2",  "AT-50#_C3",  "AT-50#_H2O",
          "AT-50#_H2S",  "AT-50#_H2",  "AT-50#_CO",  "AT-50#_O2",  "AT-50#_iC4", "AT-50#_nC4",
          "AT-50#_iC5",  "AT-50#_nC5", "AT-50#_nC6", "AT-50#_nC7", "AT-50#_nC8", "AT-50#_nC9",
          "AT-50#_nC10", "AT-50#_He",  "AT-50#_Ar",  "HS-50#_GCEN"}},
        {BindingStage::GasOutputs,
         {"GQ-50#_RHOTP", "GQ-50#_RHOS", "GQ-50#_Z", "GQ-50#_ZS", "GQ-50#_FPVS", "GQ-50#_GRS", "GQ-50#_UNC",
          "NS-50#_GAS"}},
    }};
    return tags;
}

constexpr int Runs = 3;

std::string OfRun(std::string name, int run) {
    name.replace(name.find('#'), 1, std::to_string(run + 1));
    return name;
}

// Grouped by module as a station has them, with what no variable means among them.
project::TagList TagsOfTheStation() {
    struct Module {
        const char* Name;
        const char* Type;
        std::vector<std::string> Tags;
    };
    const auto& right = RightTags();
    const std::vector<Module> modules = {
        {"VX_CMD", "X", {right[0].Names.begin() + 3, right[0].Names.end()}},
        {"VX_CMD", "X", {"HS-50#_GCEN", "XV-30#_OPN", "XV-30#_CLS"}},
        {"VAY_STATUS", "AY", {"NS-20#_FLOW", "NS-50#_GAS", "NS-20#_SPARE"}},
        {"VFX_RUNS", "FX", {"DT-20#_PV", "PIT-20#_PV", "TIT-20#_PV", "PDIT-20#_PV", "ID-20#_PIPE"}},
        {"VFX_GC", "FX", {right[2].Names.begin(), right[2].Names.end() - 1}},
        {"VFY_RUNS", "FY", {right[1].Names.begin(), right[1].Names.end() - 1}},
        {"VFY_GAS", "FY", {right[3].Names.begin(), right[3].Names.end() - 1}},
    };
    project::TagList tags;
    for (const Module& module : modules)
        for (int run = 0; run < Runs; ++run)
            for (const std::string& name : module.Tags)
                tags.push_back({.TagName = OfRun(name, run),
                                .RegAddr = static_cast<std::int32_t>(tags.size()) + 1,
                                .RegType = module.Type,
                                .ModuleName = module.Name,
                                .ModuleType = "Virtual Module"});
    return tags;
}

struct Effort : testing::Test, TagRunsWorld {
    Effort() {
        ActivateRuns({1, 2, 3});
        project::BuildInventory(TagsOfTheStation(), Session.Inventory);
        project::BuildAvailableLists(Session.Inventory, {}, false);
    }

    // Binds all stages of all runs; how often a person has clicked or pressed a key. Each stage must end
    // with the right tags.
    int BindAll(const std::function<void(int run, const StageTags& stage)>& bind) {
        acts_ = 0;
        for (int run = 0; run < Runs; ++run)
            for (const StageTags& stage : RightTags()) {
                Session.BindingStage = stage.Stage;
                Session.RunPosition = Session.RunNumber = run;
                TheForm().Show();
                bind(run, stage);
                ExpectRight(run, stage);
                Act(TheForm().Command5.PersonClicks());
            }
        return acts_;
    }
    void ByHand(int run, const StageTags& stage) {
        for (std::size_t i = 0; i < stage.Names.size(); ++i) {
            const int position = static_cast<int>(i);
            Act(TheForm().TreeAGA.PersonClicks(node::Variable(position)));
            ChooseRow(OfRun(stage.Names[i], run));
            const bool gas = stage.Stage == BindingStage::GasInputs;
            Act(gas ? TheForm().atar.PersonClicks() : TheForm().Command1.PersonClicks());
        }
    }
    void BySuggestions(int, const StageTags& stage) {
        Act(TheForm().SuggestTags.PersonClicks());
        Act(TheForm().TakeSure.PersonClicks());
        for (int position = 0; position < static_cast<int>(stage.Names.size()); ++position)
            if (Shown(position).starts_with(binding::NotConfigured)) {
                Act(TheForm().TreeAGA.PersonClicks(node::Variable(position)));
                Act(TheForm().tomar.PersonClicks());
            }
    }

private:
    void Act(bool done) {
        EXPECT_TRUE(done);
        ++acts_;
    }
    // A row that is chosen already needs no click.
    void ChooseRow(const std::string& tag) {
        for (ui::ListView* list : {&TheForm().ListViewRuns, &TheForm().ListAnalogDig})
            for (int row = 1; row <= list->Count(); ++row)
                if (list->Cell(row, forms::tag_column::Name) == tag && list->SelectedRow() != row)
                    Act(list->PersonClicksRow(row));
    }
    void ExpectRight(int run, const StageTags& stage) {
        for (std::size_t i = 0; i < stage.Names.size(); ++i)
            EXPECT_TRUE(Shown(static_cast<int>(i)).starts_with(OfRun(stage.Names[i], run) + " "))
                << Shown(static_cast<int>(i)) << " for " << OfRun(stage.Names[i], run);
    }

    int acts_ = 0;
};

// The manual names both figures.
TEST_F(Effort, OfAStationOfThreeRunsIsASixthWithSuggestions) {
    EXPECT_EQ(BindAll([this](int run, const StageTags& stage) { BySuggestions(run, stage); }), 48);
}

TEST_F(Effort, OfAStationOfThreeRunsByHand) {
    EXPECT_EQ(BindAll([this](int run, const StageTags& stage) { ByHand(run, stage); }), 280);
}

} // namespace
} // namespace gfc::test
