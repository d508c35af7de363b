#include "RunCommandsWorld.h"
#include "forms/runs/AddRun.h"

namespace gfc::test {

namespace {

using ui::Answer;
using ui::Icon;
using Names = std::vector<std::string>;

const std::string modules =
    "ERROR: The number of available tags/modules is below the minimum required for the flow computer "
    "software.\r\n"
    "Please make sure that at least the following I/O memory is available for the flow computer software "
    "usage:\r\n"
    "- One LI or LO Virtual Module containing 8 registers\r\n"
    "- One AI or AO Virtual Module containing 32 registers\r\n"
    "- One FI or FO Virtual Module containing 128 registers\r\n";

const std::string aga3 =
    modules + "- 8 FI or FO, 1 AI or AO and 1 DI or DO registers per enabled flow calculation run\r\n"
              "- 13 FI or FO, 2 AI or AO and 1 DI or DO registers if AGA-8  calculation block is enabled\r\n"
              "- 34 FI or FO, 2 AI or AO and 1 DI or DO registers if AGA-8 is enabled and gas composition "
              "source is from an external gas chromatograph";

const std::string aga7 =
    modules +
    "- 5 FI or FO, 1 AI or AO, 1 LI or LO and 1 DI or DO registers per enabled flow calculation run\r\n"
    "- 12 FI or FO, 2 AI or AO, 1 LI or LO and 1 DI or DO registers if AGA-8  calculation block is "
    "enabled\r\n"
    "- 33 FI or FO, 2 AI or AO, 1 LI or LO and 1 DI or DO registers if AGA-8 is enabled and gas composition "
    "source is from an external gas chromatograph";

struct ShortageCase {
    const char* Golden;
    int FreeFloats;
    const char* Title;
    const std::string& Text;

    friend void PrintTo(const ShortageCase& the, std::ostream* out) { *out << the.Golden; }
};

class TooSmallForOneMore : public testing::TestWithParam<ShortageCase> {};

TEST_P(TooSmallForOneMore, says_what_is_needed_and_changes_nothing) {
    const auto& row = GetParam();
    RunCommandsWorld world(row.Golden, LargeStationTags(row.FreeFloats));
    const std::string before = world.File();
    world.Choose(3, "erun");
    world.OfferToConfigure(Answer::Yes);
    world.TheStory.Box(row.Title, row.Text, Icon::None);
    world.SeeImage(3, "NoRun");
    world.Play();
    EXPECT_EQ(world.File(), before);
    EXPECT_EQ(world.Station.CurrentStation, "North");
    EXPECT_EQ(world.Session.Modules.NFX, 0) << "the next command counts afresh";
    EXPECT_TRUE(world.Window().Combo3.Entries().empty());
}

// The orifice under SY/T6143 is tested, and reported, as a turbine.
// clang-format off
INSTANTIATE_TEST_SUITE_P(Standards, TooSmallForOneMore, testing::Values(
    ShortageCase{"aga3_densimeter",      16, "Error: Configuring AGA3", aga3},
    ShortageCase{"accelabar_densimeter", 16, "Error: Configuring AGA3", aga3},
    ShortageCase{"aga7_densimeter",       5, "Error: Configuring AGA7", aga7},
    ShortageCase{"gbt_densimeter",        5, "Error: Configuring AGA7", aga7}),
    [](const auto& row) { return row.param.Golden; });
// clang-format on

TEST(ChkRun, reports_missing_working_modules_too) {
    RunCommandsWorld world("aga3_densimeter", TagsInModule("DI", "Physical DI", "X", "XS-", 3));
    world.Choose(3, "erun");
    world.OfferToConfigure(Answer::Yes);
    world.TheStory.Box("Error: Configuring AGA3", aga3, Icon::None);
    world.Play();
}

TEST(ChkRun, needs_a_long_register_for_a_turbine) {
    auto tags = LargeStationTags();
    std::erase_if(tags, [](const project::Tag& tag) { return tag.ModuleName == "VL1"; });
    RunCommandsWorld world("aga7_densimeter", tags);
    world.Choose(3, "erun");
    world.OfferToConfigure(Answer::Yes);
    world.TheStory.Box("Error: Configuring AGA7", aga7, Icon::None);
    world.Play();
}

struct CarryingStation : testing::Test, World {
    CarryingStation() {
        auto tags = LargeStationTags(130); // VF1 is a candidate as well
        tags += TagsInModule("VA9", "Virtual AO", "AY", "A9-", 32, 901);
        AddStation("North", tags);
        OpenProject();
        Station.CurrentStation = "North";
        Station.FlowAlgorithm = "AGA3";
    }
    forms::GFCPrincipal& Window() { return Program.Forms.Get<forms::GFCPrincipal>(); }
};

TEST_F(CarryingStation, presets_the_working_modules_of_the_configuration) {
    Station.WorkingModules.WrkFloatModName = "vf1";
    Station.WorkingModules.WrkAnalogModName = "VA9";
    Station.WorkingModules.WrkIntLongModName = "VL0";
    EXPECT_TRUE(forms::ChkRun(Program));
    EXPECT_EQ(Window().Combo3.Entries(), (Names{"VF0", "VF1"}));
    EXPECT_EQ(Window().Combo1.Entries(), (Names{"VA0", "VA9"}));
    EXPECT_EQ(Window().Combo2.Entries(), (Names{"VL0", "VL1"}));
    EXPECT_EQ(Window().Combo3.Text(), "VF1");
    EXPECT_EQ(Window().Combo1.Text(), "VA9");
    EXPECT_EQ(Window().Combo2.Text(), "VL0");
}

TEST_F(CarryingStation, fills_the_lists_anew_each_time) {
    EXPECT_TRUE(forms::ChkRun(Program));
    Session.Modules.ClearCounts();
    EXPECT_TRUE(forms::ChkRun(Program));
    EXPECT_EQ(Window().Combo3.Entries(), (Names{"VF0", "VF1"}));
    EXPECT_EQ(Window().Combo3.Text(), "") << "the configuration names none";
}

} // namespace

} // namespace gfc::test
