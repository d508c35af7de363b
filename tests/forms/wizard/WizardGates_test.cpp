#include "WizardWorld.h"
#include "forms/wizard/WizardFC.h"
#include "project/Requirements.h"

#include <gtest/gtest.h>

namespace gfc::test {
namespace {

constexpr const char* Form = "WizardFC";
constexpr int AGA3 = 0, AGA7 = 1, Accelabar = 2, GBT = 3;
constexpr int Densimeter = 0, AGA8 = 1, SGERG88 = 2, ISO2 = 3, ISO3 = 4;

void Say(WizardWorld& world, bool isAGA7) {
    const auto kind = isAGA7 ? project::ShortageKind::AGA7 : project::ShortageKind::AGA3Family;
    world.TheStory.Box(isAGA7 ? ShortageOfAGA7 : ShortageOfAGA3,
                       project::IOShortageText(kind, world.Station.ActiveRunCount), ui::Icon::Exclamation);
}

// What one run needs under a row of the gates.
struct Row {
    const char* What;
    int Standard;
    int Source;
    Room Need; // Longs of 0: they are not looked at
    int Verdict;

    friend void PrintTo(const Row& the, std::ostream* out) { *out << the.What; }
};

Room Times(const Room& need, int runs) {
    return {need.Floats * runs, need.Analogs * runs, need.Digitals * runs, need.Longs * runs};
}

// The room that just suffices, and each that lacks one register of one kind.
std::vector<Room> OneLess(const Room& need) {
    std::vector<Room> rooms(3, need);
    --rooms[0].Floats;
    --rooms[1].Analogs;
    --rooms[2].Digitals;
    if (need.Longs > 0) {
        rooms.push_back(need);
        --rooms.back().Longs;
    }
    return rooms;
}

constexpr int Runs = 3;

// The wizard with these choices made while no run was counted yet, so that nothing was in the way.
struct Chosen : WizardWorld {
    Chosen(const Row& row, const Room& room) : WizardWorld(room), Wizard(Preset(row.Standard, row.Source)) {
        ActivateFirst(Runs);
    }
    forms::WizardFC& Wizard;
};

class SourceGate : public testing::TestWithParam<Row> {};

TEST_P(SourceGate, passes_exactly_what_is_needed) {
    Chosen world(GetParam(), Times(GetParam().Need, Runs));
    EXPECT_EQ(world.Wizard.SourceCapacityCheck(), 0);
    EXPECT_TRUE(world.Screen.BoxesShown.empty());
}

TEST_P(SourceGate, reports_one_register_less_of_any_kind) {
    for (const auto& room : OneLess(Times(GetParam().Need, Runs))) {
        Chosen world(GetParam(), room);
        Say(world, GetParam().Standard == AGA7);
        EXPECT_EQ(world.Wizard.SourceCapacityCheck(), GetParam().Verdict);
        EXPECT_TRUE(world.TheStory.Done());
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, SourceGate, testing::Values(
    Row{"AGA7_densimeter",     AGA7,      Densimeter, {6, 1, 3, 1},  1},
    Row{"AGA7_AGA8",           AGA7,      AGA8,       {11, 2, 3, 1}, 2},
    Row{"AGA7_SGERG88",        AGA7,      SGERG88,    {11, 2, 3, 1}, 2},
    Row{"AGA7_ISO2",           AGA7,      ISO2,       {11, 2, 3, 1}, 2},
    Row{"AGA7_ISO3",           AGA7,      ISO3,       {11, 2, 3, 1}, 2},
    Row{"AGA3_densimeter",     AGA3,      Densimeter, {17, 1, 3, 0}, 3},
    Row{"Accelabar_densimeter",Accelabar, Densimeter, {17, 1, 3, 0}, 3},
    Row{"GBT_densimeter",      GBT,       Densimeter, {17, 1, 3, 0}, 3},
    Row{"AGA3_AGA8",           AGA3,      AGA8,       {23, 2, 3, 0}, 4},
    Row{"AGA3_ISO3",           AGA3,      ISO3,       {23, 2, 3, 0}, 4},
    Row{"GBT_SGERG88",         GBT,       SGERG88,    {23, 2, 3, 0}, 4},
    Row{"Accelabar_ISO2",      Accelabar, ISO2,       {23, 2, 3, 0}, 4}),
    [](const auto& row) { return row.param.What; });
// clang-format on

class CompositionGate : public testing::TestWithParam<Row> {};

TEST_P(CompositionGate, passes_exactly_what_is_needed) {
    Chosen world(GetParam(), Times(GetParam().Need, Runs));
    world.Wizard.OptCromatografo.SetValue(true);
    EXPECT_TRUE(world.Wizard.OptCromatografo.Value());
    EXPECT_EQ(world.Wizard.CompositionCapacityCheck(), 0);
}

TEST_P(CompositionGate, puts_the_manual_composition_back_for_one_register_less) {
    for (const auto& room : OneLess(Times(GetParam().Need, Runs))) {
        Chosen world(GetParam(), room);
        Say(world, GetParam().Standard == AGA7);
        world.Wizard.OptCromatografo.SetValue(true);
        EXPECT_TRUE(world.Wizard.OptComp.Value());
        EXPECT_FALSE(world.Wizard.OptCromatografo.Value());
        EXPECT_TRUE(world.TheStory.Done());
    }
}

TEST_P(CompositionGate, tells_the_failed_row) {
    Chosen world(GetParam(), Times(GetParam().Need, Runs));
    world.Wizard.OptCromatografo.SetValue(true);
    world.Session.Inventory.VirtFX.pop_back();
    Say(world, GetParam().Standard == AGA7);
    EXPECT_EQ(world.Wizard.CompositionCapacityCheck(), GetParam().Verdict);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, CompositionGate, testing::Values(
    Row{"AGA7_AGA8",         AGA7,      AGA8,    {32, 2, 4, 1}, 1},
    Row{"AGA7_SGERG88",      AGA7,      SGERG88, {15, 2, 4, 1}, 1},
    Row{"AGA3_AGA8",         AGA3,      AGA8,    {44, 2, 4, 0}, 2},
    Row{"GBT_SGERG88",       GBT,       SGERG88, {27, 2, 4, 0}, 2},
    Row{"Accelabar_SGERG88", Accelabar, SGERG88, {27, 2, 4, 0}, 2}),
    [](const auto& row) { return row.param.What; });
// clang-format on

TEST(WizardGates, nothing_is_tested_while_the_composition_is_manual) {
    Chosen world({"", AGA3, AGA8, {}, 0}, {69, 6, 9, 0});
    EXPECT_EQ(world.Wizard.CompositionCapacityCheck(), 0);
}

TEST(WizardGates, the_iso_sources_take_a_composition_from_outside_untested) {
    for (const int source : {ISO2, ISO3}) {
        Chosen world({"", AGA3, source, {}, 0}, {69, 6, 9, 0});
        world.Wizard.OptCromatografo.SetValue(true);
        EXPECT_TRUE(world.Wizard.OptCromatografo.Value());
    }
}

TEST(WizardGates, without_a_source_no_row_decides) {
    WizardWorld world(Room{});
    auto& wizard = world.Program.Forms.Touch<forms::WizardFC>();
    world.ActivateFirst(5);
    EXPECT_EQ(wizard.SourceCapacityCheck(), 0);
    wizard.general.CombStandard.SetListIndex(AGA7);
    EXPECT_EQ(wizard.general.CombStandard.ListIndex(), AGA7);
    EXPECT_EQ(wizard.lbStep.Caption(), "Step 1 of 3");
}

TEST(WizardGates, the_preset_of_the_command_passes_while_no_run_is_counted) {
    WizardWorld world(Room{});
    auto& wizard = world.Preset(AGA7, Densimeter);
    EXPECT_EQ(wizard.general.CombStandard.ListIndex(), AGA7);
    EXPECT_TRUE(world.Screen.BoxesShown.empty());
}

// A choice that does not fit is taken back.

constexpr Room OnlyAGA3 = {51, 3, 9, 2}; // three runs with a densimeter, not enough longs
constexpr Room OnlyAGA7 = {18, 3, 9, 3}; // not enough floats for anything else
constexpr Room Neither = {17, 3, 9, 2};
constexpr Room GasModels = {69, 6, 9, 3}; // every standard with every source

TEST(WizardGates, a_turbine_that_does_not_fit_becomes_aga3) {
    Chosen world({"", AGA3, Densimeter, {}, 0}, OnlyAGA3);
    world.TheStory.Select(Form, "CombStandard", AGA7);
    Say(world, true);
    world.TheStory.SeeText(Form, "CombStandard", "AGA-3 1992").Check([&](Driver&) {
        EXPECT_FALSE(world.Station.FlagAGA7);
        EXPECT_TRUE(world.Wizard.Text1.Enabled());
        EXPECT_TRUE(world.Wizard.Text2.Enabled());
    });
    world.PlayPages();
}

TEST(WizardGates, any_other_standard_that_does_not_fit_becomes_a_turbine) {
    for (const int standard : {AGA3, Accelabar, GBT}) {
        Chosen world({"", AGA7, Densimeter, {}, 0}, OnlyAGA7);
        world.TheStory.Select(Form, "CombStandard", standard);
        Say(world, false);
        world.TheStory.SeeText(Form, "CombStandard", "AGA-7")
            .SeeText(Form, "CombUnits", "US")
            .Check([&](Driver&) {
                EXPECT_TRUE(world.Station.FlagAGA7);
                EXPECT_FALSE(world.Wizard.Text1.Enabled());
                EXPECT_FALSE(world.Wizard.Text2.Enabled());
            });
        world.PlayPages();
    }
}

TEST(WizardGates, a_gas_model_that_does_not_fit_becomes_the_densimeter) {
    for (const int standard : {AGA3, AGA7})
        for (const int source : {AGA8, SGERG88, ISO2, ISO3}) {
            Chosen world({"", standard, Densimeter, {}, 0}, {51, 3, 9, 3});
            world.TheStory.Select(Form, "cbSourceGas", source);
            Say(world, standard == AGA7);
            world.TheStory.SeeText(Form, "cbSourceGas", "Densimeter").Check([&](Driver&) {
                EXPECT_FALSE(world.Wizard.FrCompGas.Visible());
                EXPECT_TRUE(world.Wizard.OptCromatografo.Enabled());
            });
            world.PlayPages();
        }
}

// The second report ends it: on a station that carries neither, each choice is the other's fallback.

TEST(WizardGates, where_no_standard_fits_the_turbine_is_reported_then_aga3_and_stays) {
    Chosen world({"", AGA3, Densimeter, {}, 0}, Neither);
    world.TheStory.Select(Form, "CombStandard", AGA7);
    Say(world, true);
    Say(world, false);
    world.TheStory.SeeText(Form, "CombStandard", "AGA-3 1992").Check([&](Driver&) {
        EXPECT_FALSE(world.Station.FlagAGA7);
    });
    world.PlayPages();
    EXPECT_EQ(world.Screen.BoxesShown.size(), 3U);
}

TEST(WizardGates, where_no_standard_fits_the_others_are_reported_then_the_turbine_and_stay) {
    for (const int standard : {AGA3, Accelabar, GBT}) {
        Chosen world({"", AGA7, Densimeter, {}, 0}, Neither);
        world.TheStory.Select(Form, "CombStandard", standard);
        Say(world, false);
        Say(world, true);
        world.TheStory.SeeText(Form, "CombStandard", "AGA-7").Check([&](Driver&) {
            EXPECT_TRUE(world.Station.FlagAGA7);
        });
        world.PlayPages();
        EXPECT_EQ(world.Screen.BoxesShown.size(), 3U);
    }
}

TEST(WizardGates, where_no_standard_fits_a_gas_model_ends_alike) {
    Chosen world({"", AGA3, AGA8, {}, 0}, Neither);
    world.TheStory.Select(Form, "CombStandard", AGA7);
    Say(world, true);
    Say(world, false);
    world.TheStory.Select(Form, "CombStandard", GBT);
    Say(world, false);
    Say(world, true);
    world.TheStory.SeeText(Form, "CombStandard", "AGA-7");
    world.PlayPages();
}

TEST(WizardGates, where_no_source_fits_the_densimeter_is_reported_then_aga8_and_stays) {
    for (const int standard : {AGA3, AGA7}) {
        Chosen world({"", standard, AGA8, {}, 0}, Neither);
        world.TheStory.Select(Form, "cbSourceGas", Densimeter);
        Say(world, standard == AGA7);
        Say(world, standard == AGA7);
        world.TheStory.SeeText(Form, "cbSourceGas", "AGA-8");
        world.PlayPages();
        EXPECT_EQ(world.Screen.BoxesShown.size(), 3U);
    }
}

TEST(WizardGates, where_no_source_fits_the_gas_models_are_reported_then_the_densimeter_and_stay) {
    for (const int standard : {AGA3, AGA7})
        for (const int source : {AGA8, SGERG88, ISO2, ISO3}) {
            Chosen world({"", standard, Densimeter, {}, 0}, Neither);
            world.TheStory.Select(Form, "cbSourceGas", source);
            Say(world, standard == AGA7);
            Say(world, standard == AGA7);
            world.TheStory.SeeText(Form, "cbSourceGas", "Densimeter");
            world.PlayPages();
            EXPECT_EQ(world.Screen.BoxesShown.size(), 3U);
        }
}

TEST(WizardGates, choosing_again_what_does_not_fit_reports_again) {
    Chosen world({"", AGA3, Densimeter, {}, 0}, Neither);
    for (int attempt = 0; attempt < 2; ++attempt) {
        world.TheStory.Select(Form, "CombStandard", AGA7);
        Say(world, true);
        Say(world, false);
    }
    world.PlayPages();
}

TEST(WizardGates, whatever_is_chosen_where_all_fits_stays) {
    Chosen world({"", AGA3, Densimeter, {}, 0}, GasModels);
    for (int standard = 0; standard < 4; ++standard)
        for (int source = 0; source < 5; ++source)
            world.TheStory.Select(Form, "CombStandard", standard)
                .Select(Form, "cbSourceGas", source)
                .Check([&, standard, source](Driver&) {
                    EXPECT_EQ(world.Wizard.general.CombStandard.ListIndex(), standard);
                    EXPECT_EQ(world.Wizard.general.cbSourceGas.ListIndex(), source);
                });
    world.PlayPages();
}

} // namespace
} // namespace gfc::test
