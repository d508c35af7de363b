#include "ConfiguradorWorld.h"
#include "project/Requirements.h"

namespace gfc::test {
namespace {

constexpr int AGA3 = 0, AGA7 = 1, Accelabar = 2, GBT = 3;
constexpr int Densimeter = 0, AGA8 = 1, SGERG88 = 2, ISO2 = 3, ISO3 = 4;

void Say(World& world, bool isAGA7, int runs) {
    const auto kind = isAGA7 ? project::ShortageKind::AGA7 : project::ShortageKind::AGA3Family;
    world.TheStory.Box(isAGA7 ? ShortageOfAGA7 : ShortageOfAGA3, project::IOShortageText(kind, runs),
                       ui::Icon::Exclamation);
}

Room Times(const Room& need, int runs) {
    return {need.Floats * runs, need.Analogs * runs, need.Digitals * runs, need.Longs * runs};
}

// The room that lacks one register of one kind; a kind of which none is needed is left out.
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

// A new configuration whose choices were made while no run was counted, so that nothing was in the way.
struct NewWorld : ConfiguradorWorld {
    NewWorld(const Room& room, int standard, int source, bool outside = false)
        : ConfiguradorWorld(TagsOf(room)) {
        auto& form = Form();
        Station.ActiveRunCount = 0;
        form.caso = 1; // the complaint about runs is another test's
        form.general.cbSourceGas.SetListIndex(source);
        form.general.CombStandard.SetListIndex(standard);
        (outside ? form.Option5 : form.Option6).SetValue(true);
        form.caso = 3;
    }
};

struct RunRow {
    const char* What;
    int Standard;
    int Source;
    bool Outside;
    Room Need; // of one run

    friend void PrintTo(const RunRow& the, std::ostream* out) { *out << the.What; }
};

class ConfiguradorRunGate : public testing::TestWithParam<RunRow> {};

TEST_P(ConfiguradorRunGate, takes_as_many_runs_as_fit) {
    const auto& row = GetParam();
    NewWorld world(Times(row.Need, 2), row.Standard, row.Source, row.Outside);
    auto& form = world.Form();
    form.Run22.SetValue(true);
    form.Run55.SetValue(true);
    EXPECT_EQ(world.Station.ActiveRunCount, 2);
    EXPECT_EQ(world.Station.RunList[1].Flag, "Yes");
    EXPECT_EQ(world.Station.RunList[4].Flag, "Yes");
    Say(world, row.Standard == AGA7, 3);
    form.Run33.SetValue(true);
    EXPECT_FALSE(form.Run33.Value());
    EXPECT_EQ(world.Station.ActiveRunCount, 2);
    EXPECT_EQ(world.Station.RunList[2].Flag, "No");
}

TEST_P(ConfiguradorRunGate, misses_one_register_of_any_kind) {
    const auto& row = GetParam();
    for (const auto& room : OneLess(row.Need)) {
        NewWorld world(room, row.Standard, row.Source, row.Outside);
        Say(world, row.Standard == AGA7, 1);
        world.Form().Run11.SetValue(true);
        EXPECT_FALSE(world.Form().Run11.Value());
        EXPECT_EQ(world.Station.ActiveRunCount, 0);
        EXPECT_TRUE(world.TheStory.Done());
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, ConfiguradorRunGate, testing::Values(
    RunRow{"AGA3_densimeter",       AGA3,      Densimeter, false, {17, 1, 3, 0}},
    RunRow{"densimeter_outside",    GBT,       Densimeter, true,  {17, 1, 3, 0}},
    RunRow{"AGA3_AGA8_manual",      AGA3,      AGA8,       false, {23, 2, 3, 0}},
    RunRow{"Accelabar_ISO3_manual", Accelabar, ISO3,       false, {23, 2, 3, 0}},
    RunRow{"AGA3_AGA8_outside",     AGA3,      AGA8,       true,  {44, 2, 4, 0}},
    // Deliberately as many as AGA-8, unlike at the option itself.
    RunRow{"GBT_SGERG_outside",     GBT,       SGERG88,    true,  {44, 2, 4, 0}},
    RunRow{"AGA3_ISO2_outside",     AGA3,      ISO2,       true,  {44, 2, 4, 0}},
    RunRow{"AGA7_densimeter",       AGA7,      Densimeter, false, {6,  1, 3, 1}},
    RunRow{"AGA7_ISO2_manual",      AGA7,      ISO2,       false, {11, 2, 3, 1}},
    RunRow{"AGA7_SGERG_outside",    AGA7,      SGERG88,    true,  {32, 2, 4, 1}}),
    [](const auto& row) { return row.param.What; });
// clang-format on

TEST(ConfiguradorRuns, a_second_run_is_cleared_again_where_one_fits) {
    ConfiguradorWorld world(TagsOf({17, 1, 3, 0}));
    world.Preset();
    world.TheStory.Menu(Configurator, "ConfigAll").Click(Configurator, "Run11");
    world.TheStory.Click(Configurator, "Run22");
    Say(world, false, 2);
    world.TheStory.SeeChecked(Configurator, "Run22", false).SeeChecked(Configurator, "Run11");
    world.PlayAndCancel();
}

TEST(ConfiguradorRuns, clearing_a_box_takes_its_run_off) {
    ConfiguradorWorld world;
    world.Preset();
    world.TheStory.Menu(Configurator, "ConfigAll")
        .Click(Configurator, "Run11")
        .Click(Configurator, "Run44")
        .Click(Configurator, "Run11")
        .Check([&](Driver&) {
            EXPECT_EQ(world.Station.ActiveRunCount, 1);
            EXPECT_EQ(world.Station.RunList[0].Flag, "No");
            EXPECT_EQ(world.Station.RunList[3].Flag, "Yes");
        });
    world.PlayAndCancel();
}

TEST(ConfiguradorRuns, boxes_of_a_stored_configuration_are_dead) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter"));
    world.TheStory.Menu(Configurator, "ConfigAll");
    world.SeeAll({"Run11", "Run22", "Run33", "Run44", "Run55"}, false);
    world.TheStory.Check([&](Driver&) {
        world.Form().Run11.SetValue(true);
        EXPECT_EQ(world.Station.ActiveRunCount, 0);
        EXPECT_EQ(world.Station.RunList[0].Flag, "No");
    });
    world.PlayAndCancel();
}

// The gate of the standard. The entry that is fallen back to is tested, and may be reported, once more.

TEST(ConfiguradorStandardGate, falls_back_from_aga7_to_aga3) {
    NewWorld world({17, 1, 3, 0}, AGA3, Densimeter); // no longs for AGA-7
    world.Station.ActiveRunCount = 1;
    Say(world, true, 1);
    world.Form().general.CombStandard.SetListIndex(AGA7);
    EXPECT_EQ(world.Form().general.CombStandard.ListIndex(), AGA3);
    EXPECT_FALSE(world.Station.FlagAGA7);
}

TEST(ConfiguradorStandardGate, falls_back_from_any_other_to_aga7) {
    for (const int standard : {AGA3, Accelabar, GBT}) {
        NewWorld world({11, 2, 3, 1}, AGA7, AGA8);
        world.Station.ActiveRunCount = 1;
        Say(world, false, 1);
        world.Form().general.CombStandard.SetListIndex(standard);
        EXPECT_EQ(world.Form().general.CombStandard.ListIndex(), AGA7);
        EXPECT_TRUE(world.Station.FlagAGA7);
    }
}

TEST(ConfiguradorStandardGate, reports_twice_and_ends_where_nothing_fits) {
    NewWorld world({0, 0, 0, 0}, GBT, Densimeter);
    world.Station.ActiveRunCount = 1;
    Say(world, true, 1);
    Say(world, false, 1);
    world.Form().general.CombStandard.SetListIndex(AGA7);
    EXPECT_EQ(world.Form().general.CombStandard.ListIndex(), AGA3);
    EXPECT_TRUE(world.TheStory.Done());
}

TEST(ConfiguradorStandardGate, is_silent_while_no_run_is_counted) {
    NewWorld world({0, 0, 0, 0}, AGA3, Densimeter);
    world.Form().general.CombStandard.SetListIndex(AGA7);
    EXPECT_EQ(world.Form().general.CombStandard.ListIndex(), AGA7);
}

// The gates of source and composition.

TEST(ConfiguradorSourceGate, falls_back_to_the_densimeter) {
    for (const int standard : {AGA3, AGA7})
        for (const int source : {AGA8, SGERG88}) {
            NewWorld world({17, 1, 3, 1}, standard, Densimeter);
            world.Station.ActiveRunCount = 1;
            Say(world, standard == AGA7, 1);
            world.Form().general.cbSourceGas.SetListIndex(source);
            EXPECT_EQ(world.Form().general.cbSourceGas.ListIndex(), Densimeter);
            EXPECT_EQ(world.Form().pressure.FrameAtmPress.Enabled(), standard == AGA3);
        }
}

TEST(ConfiguradorCompositionGate, goes_back_to_a_manual_composition) {
    const Room manual{23, 2, 4, 1};
    for (const int standard : {AGA3, AGA7}) {
        NewWorld world(manual, standard, AGA8);
        world.Station.ActiveRunCount = 1;
        Say(world, standard == AGA7, 1);
        world.Form().Option5.SetValue(true);
        EXPECT_TRUE(world.Form().Option6.Value());
        EXPECT_FALSE(world.Form().Option5.Value());
    }
}

TEST(ConfiguradorCompositionGate, asks_less_of_the_gross_family) {
    NewWorld world({27, 2, 4, 0}, AGA3, SGERG88);
    world.Station.ActiveRunCount = 1;
    world.Form().Option5.SetValue(true);
    EXPECT_TRUE(world.Form().Option5.Value());
}

} // namespace
} // namespace gfc::test
