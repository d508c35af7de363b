#include "PassStory.h"
#include "config/Vocabulary.h"
#include "forms/binding/TagRuns.h"
#include "forms/editors/MDetail.h"
#include "forms/station/Step.h"
#include "forms/station/WizardPass.h"
#include "support/Named.h"
#include "support/TestFolders.h"

#include <gtest/gtest.h>

namespace gfc::test {
namespace {

constexpr const char* Form = "WizardFC";

std::string WizardGolden(const std::string& name) {
    return Golden("wizard/" + name + ".ini");
}

struct GoldenCase {
    const char* Name;
    PassChoices Choices;

    friend void PrintTo(const GoldenCase& the, std::ostream* out) { *out << the.Name; }
};

class WholePass : public testing::TestWithParam<GoldenCase> {};

TEST_P(WholePass, from_the_pages_to_the_written_file) {
    PassWorld world(GetParam().Choices);
    world.ThePass.Open(world.TheStory);
    world.ThePass.Through(world.TheStory);
    world.TheStory.SeeText(Form, "Label19", "Configuration Finished !")
        .SeeVisible(Form, "Command1")
        .Check([&](Driver& d) {
            EXPECT_EQ(d.Tab(Form, "wizard"), 4);
            EXPECT_TRUE(ProjectFiles(world.Files).empty());
        })
        .Click(Form, "Command1");
    world.Play();
    EXPECT_EQ(world.File(), WizardGolden(GetParam().Name));
    EXPECT_TRUE(world.Session.TreeRefreshNeeded);
    EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::WizardFC>());
    EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::Step>());
    EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::TagRuns>());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Families, WholePass, testing::Values(
    GoldenCase{"aga3_densimeter",            {0, 0}},
    GoldenCase{"aga3_densimeter_external",   {0, 0, false, true}},
    GoldenCase{"aga3_aga8_fixed",            {0, 1}},
    GoldenCase{"aga3_aga8_outside",          {0, 1, true}},
    GoldenCase{"aga3_sgerg88_fixed",         {0, 2}},
    GoldenCase{"aga3_iso2_outside_external", {0, 3, true, true}},
    GoldenCase{"aga7_densimeter",            {1, 0}},
    GoldenCase{"aga7_aga8_fixed",            {1, 1}},
    GoldenCase{"aga7_iso3_fixed_external",   {1, 4, false, true}},
    GoldenCase{"aga7_iso2_outside",          {1, 3, true}},
    GoldenCase{"accelabar_densimeter",       {2, 0}},
    GoldenCase{"accelabar_iso2_fixed",       {2, 3}},
    GoldenCase{"accelabar_iso3_fixed",       {2, 4}},
    GoldenCase{"gbt_densimeter",             {3, 0}},
    GoldenCase{"gbt_aga8_outside",           {3, 1, true}},
    GoldenCase{"gbt_sgerg88_fixed",          {3, 2}}),
    [](const auto& row) { return row.param.Name; });
// clang-format on

struct TotalCase {
    PassChoices Choices;
    std::size_t Steps;

    friend void PrintTo(const TotalCase& the, std::ostream* out) { *out << the.Choices.Text(); }
};

class PassTotal : public testing::TestWithParam<TotalCase> {};

TEST_P(PassTotal, counts_the_steps_of_all_runs) {
    const auto& [choices, steps] = GetParam();
    EXPECT_EQ(PassStory(choices).Dialogs().size(), steps);
    config::StationConfig station;
    station.ActiveRunCount = static_cast<int>(choices.Runs.size());
    station.FlagAGA7 = choices.Standard == 1;
    station.GasDensitySource =
        config::StoredSource(config::GasDensitySources.at(static_cast<std::size_t>(choices.Source)).InWizard);
    const int common = choices.External ? 1 : 0;
    EXPECT_EQ(forms::WizardPass::TotalSteps(station) + common, static_cast<int>(steps));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, PassTotal, testing::Values(
    TotalCase{{0, 0, false, false, {1, 2, 3}}, 9},
    TotalCase{{0, 0, false, true,  {1, 2, 3}}, 10},
    TotalCase{{1, 0, false, false, {1, 2, 3}}, 6},
    TotalCase{{0, 1, false, false, {1, 2, 3}}, 15},
    TotalCase{{2, 2, false, false, {4}},       5},
    TotalCase{{3, 3, true,  false, {1, 5}},    10},
    TotalCase{{1, 4, false, false, {1, 2}},    8}),
    By([](const TotalCase& row) { return row.Choices.Text(); }));
// clang-format on

TEST(WizardPass, three_runs_with_a_densimeter_are_announced_as_nine_steps) {
    PassWorld world({0, 0, false, false, {1, 2, 3}});
    world.ThePass.Open(world.TheStory);
    world.TheStory.SeeText("Step", "Label2", "Step 1 of 9");
    world.ThePass.Through(world.TheStory);
    world.PlayPages();
}

TEST(WizardPass, keeps_each_runs_meter_at_its_place_among_the_active_runs) {
    PassWorld world({0, 0});
    world.ThePass.Open(world.TheStory);
    world.ThePass.Through(world.TheStory);
    world.TheStory.Check([&](Driver&) {
        const auto& mechanical = world.Station.Runs.Mechanical;
        ASSERT_EQ(mechanical.size(), 5U);
        EXPECT_EQ(mechanical[0].OrificeDia, "1.2"); // run 2
        EXPECT_EQ(mechanical[1].OrificeDia, "1.5"); // run 5
        EXPECT_EQ(mechanical[4].OrificeDia, "");
    });
    world.PlayPages();
}

TEST(WizardPass, keeps_each_runs_composition_apart) {
    PassWorld world({0, 1});
    // As an earlier configuration of this session has left it.
    world.Station.GasComposition[config::GasSlot::GC_N2].Tag = "0.5";
    world.Station.GasComposition[config::GasSlot::GC_C1].Tag = "0.5";
    world.ThePass.Open(world.TheStory);
    world.ThePass.Through(world.TheStory);
    world.TheStory.Check([&](Driver&) {
        const auto& gas = world.Station.Runs.Gas;
        ASSERT_EQ(gas.size(), 2U);
        EXPECT_EQ(gas[0][config::GasSlot::GC_C1], (config::TagBinding{"0.92", "", ""}));
        EXPECT_EQ(gas[1][config::GasSlot::GC_C1], (config::TagBinding{"0.95", "", ""}));
        EXPECT_EQ(gas[1][config::GasSlot::GC_Ar].Tag, "0.000000");
        EXPECT_EQ(gas[1][config::GasSlot::XH2].Tag, "");
    });
    world.PlayPages();
}

TEST(WizardPass, keeps_each_runs_gross_properties_apart) {
    PassWorld world({1, 2});
    world.Station.GasComposition[config::GasSlot::VolCalorificValue].Tag = "999";
    world.Station.GasComposition[config::GasSlot::RelativeDensity].Tag = "0.9";
    world.ThePass.Open(world.TheStory);
    world.ThePass.Through(world.TheStory);
    world.TheStory.Check([&](Driver&) {
        const auto& gas = world.Station.Runs.Gas;
        EXPECT_EQ(gas[0][config::GasSlot::RelativeDensity].Tag, "0.62");
        EXPECT_EQ(gas[1][config::GasSlot::RelativeDensity].Tag, "0.65");
        EXPECT_EQ(gas[1][config::GasSlot::VolCalorificValue].Tag, "1091.28");
        EXPECT_EQ(gas[1][config::GasSlot::XCO2].Tag, "0.006");
        EXPECT_EQ(gas[1][config::GasSlot::XH2].Tag, "0.000");
    });
    world.PlayPages();
}

TEST(WizardPass, forgets_a_common_pressure_of_an_earlier_configuration) {
    PassWorld world({0, 0});
    world.Station.CommonPa = {"OLD", "FX", "7"};
    world.ThePass.Open(world.TheStory);
    world.TheStory.Check([&](Driver&) { EXPECT_EQ(world.Station.CommonPa, config::TagBinding{}); });
    world.ThePass.Through(world.TheStory);
    world.PlayPages();
}

TEST(WizardPass, does_not_offer_the_working_modules_tags) {
    PassWorld world({1, 0});
    world.TheStory.Check([&](Driver&) {
        const auto& lists = world.Session.Inventory;
        ASSERT_FALSE(lists.AvailFloat.empty());
        EXPECT_EQ(lists.AvailFloat.front().ModuleName, "VF1");
        EXPECT_EQ(lists.AvailLong.front().ModuleName, "VL1");
        EXPECT_EQ(lists.AvailAnalog.front().ModuleName, "AI-8");
    });
    world.ThePass.Open(world.TheStory);
    world.ThePass.Through(world.TheStory);
    world.PlayPages();
}

TEST(WizardPass, leaves_the_long_tags_alone_without_a_turbine) {
    PassWorld world({0, 0});
    world.Session.Inventory.AvailLong = {{"KEPT", 1, "LX", "VLX", "Virtual"}};
    world.ThePass.Open(world.TheStory);
    world.TheStory.Check([&](Driver&) {
        ASSERT_EQ(world.Session.Inventory.AvailLong.size(), 1U);
        EXPECT_EQ(world.Session.Inventory.AvailLong[0].TagName, "KEPT");
    });
    world.ThePass.Through(world.TheStory);
    world.PlayPages();
}

TEST(WizardPass, a_choice_of_outside_composition_means_nothing_with_a_densimeter) {
    PassWorld world({0, 0});
    world.Station.AGA8CalInput = "MEASURED";
    world.ThePass.Open(world.TheStory);
    world.ThePass.Through(world.TheStory);
    world.PlayPages();
}

// A cancel at any window loses the whole configuration.

struct CancelWords {
    const char* Button;
    const char* Title;
    ui::Icon Icon;
};

CancelWords CancelOf(const std::string& window) {
    if (window == "TagRuns")
        return {"Command2", "Gas Flow Computer", ui::Icon::Question};
    if (window == "MDetail")
        return {"Command3", "Orm Gas Flow Computer", ui::Icon::None};
    if (window == "frSGERG88")
        return {"Command2", "Gas Flow Computer", ui::Icon::None};
    return {window == "FrParMec" ? "cmdCancel" : "Command2", "Close mechanical parameters", ui::Icon::None};
}

void ExpectNothingLeft(PassWorld& world) {
    EXPECT_TRUE(ProjectFiles(world.Files).empty());
    EXPECT_EQ(world.Station.ActiveRunCount, 0);
    EXPECT_EQ(world.Station.CurrentStation, "");
    EXPECT_EQ(world.Station.FlowAlgorithm, "");
    EXPECT_EQ(world.Station.StandardT, "");
    EXPECT_EQ(world.Station.CommonPa, config::TagBinding{});
    EXPECT_TRUE(world.Station.Runs.IO.empty());
    EXPECT_TRUE(world.Station.Runs.Mechanical.empty());
    EXPECT_TRUE(world.Session.Inventory.AvailFloat.empty());
    EXPECT_TRUE(world.Session.Inventory.AvailDigital.empty());
    EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::WizardFC>());
    EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::SelectRuns>());
    EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::TagRuns>());
    EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::Step>());
}

class CancelledPass : public testing::TestWithParam<PassChoices> {};

TEST_P(CancelledPass, loses_everything_at_whichever_window) {
    const auto dialogs = PassStory(GetParam()).Dialogs();
    for (std::size_t at = 0; at < dialogs.size(); ++at) {
        SCOPED_TRACE(dialogs[at].Announced);
        PassWorld world(GetParam());
        world.ThePass.Open(world.TheStory);
        world.ThePass.Until(world.TheStory, at);
        const auto words = CancelOf(dialogs[at].Window);
        world.TheStory.Click(dialogs[at].Window, words.Button)
            .Box(words.Title, "", words.Icon, ui::Answer::No)
            .SeeShown(dialogs[at].Window)
            .Click(dialogs[at].Window, words.Button)
            .Box(words.Title, "", words.Icon, ui::Answer::Yes);
        world.Play();
        EXPECT_TRUE(world.TheStory.Done());
        ExpectNothingLeft(world);
    }
}

INSTANTIATE_TEST_SUITE_P(Families, CancelledPass,
                         testing::Values(PassChoices{0, 1, false, true}, PassChoices{0, 3, true},
                                         PassChoices{1, 2}, PassChoices{2, 0}, PassChoices{3, 4}),
                         By(&PassChoices::Text));

} // namespace
} // namespace gfc::test
