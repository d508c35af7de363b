#include "ConfiguradorWorld.h"
#include "support/Named.h"

namespace gfc::test {
namespace {

using forms::ConfiguradorOption;

const std::string base = "Parameter Configurator";

// Which branch, by the node that is selected.

TEST(ConfiguradorMode, the_station_counts_one_run) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter"));
    EXPECT_EQ(world.Form().caso, 1);
    EXPECT_EQ(world.Form().Caption(), base + "   Station : North");
    EXPECT_EQ(world.Form().Label1.Caption(), "Individual Parameters");
    EXPECT_EQ(world.Station.ActiveRunCount, 1);
    EXPECT_FALSE(world.Form().general.CombStandard.Enabled());
    EXPECT_FALSE(world.Form().Run11.Enabled());
}

TEST(ConfiguradorMode, the_common_parameters_count_none) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter"));
    world.Select("\\Common Parameters");
    EXPECT_EQ(world.Form().caso, 1);
    EXPECT_EQ(world.Form().Caption(), base + "   Station : North");
    EXPECT_EQ(world.Station.ActiveRunCount, 0);
}

TEST(ConfiguradorMode, the_individual_parameters_take_the_first_enabled_run) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter"));
    world.Select("\\Individual Parameters");
    EXPECT_EQ(world.Form().caso, 2);
    EXPECT_EQ(world.Form().Caption(), base + "   Station : North (Run 2)");
    EXPECT_EQ(world.Station.RunList[1].Flag, "Yes");
    EXPECT_EQ(world.Station.RunList[4].Flag, "No");
    EXPECT_EQ(world.Station.ActiveRunCount, 1);
    EXPECT_FALSE(world.Form().Run22.Value());
}

TEST(ConfiguradorMode, no_enabled_run_selects_nothing) {
    std::string file = With(WizardFile("aga3_densimeter"), "Run2=Yes", "Run2=yes");
    ConfiguradorWorld world(With(file, "Run5=Yes", "Run5=No"));
    world.Select("\\Individual Parameters");
    EXPECT_EQ(world.Form().caso, 2);
    EXPECT_EQ(world.Form().Caption(), base);
    EXPECT_EQ(world.Station.ActiveRunCount, 0);
}

class ConfiguradorModeOfRun : public testing::TestWithParam<int> {};

TEST_P(ConfiguradorModeOfRun, sets_the_box_of_the_run) {
    const int run = GetParam();
    ConfiguradorWorld world(WizardFile("aga3_densimeter"));
    world.Select("\\Individual Parameters\\Run " + std::to_string(run));
    const auto boxes = {&world.Form().Run11, &world.Form().Run22, &world.Form().Run33, &world.Form().Run44,
                        &world.Form().Run55};
    EXPECT_EQ(world.Form().caso, 2);
    EXPECT_EQ(world.Form().Caption(), base + "   Station : North (Run " + std::to_string(run) + ")");
    EXPECT_EQ(world.Station.ActiveRunCount, 1);
    int at = 1;
    for (const auto* box : boxes) {
        EXPECT_EQ(box->Value(), at == run) << at;
        EXPECT_EQ(world.Station.RunList[static_cast<std::size_t>(at - 1)].Flag, at == run ? "Yes" : "No");
        ++at;
    }
}

INSTANTIATE_TEST_SUITE_P(Runs, ConfiguradorModeOfRun, testing::Range(1, 6), ByNumber("run"));

TEST(ConfiguradorMode, another_station_of_the_same_beginning_is_not_meant) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter"));
    world.Session.SelectedPath = "All Stations\\North 2";
    EXPECT_EQ(world.Form().Caption(), base);
    EXPECT_EQ(world.Station.ActiveRunCount, 0);
}

// What the opening command may be after.

TEST(ConfiguradorOptions, all_station_opens_all_and_owes_tags) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter"));
    world.Program.Forms.Get<forms::Configurador>().Option = ConfiguradorOption::AllStation;
    EXPECT_EQ(world.Form().Caption(), base + "    Station : North");
    EXPECT_TRUE(world.Session.Cancelled);
    EXPECT_TRUE(world.Form().SSTab2.Enabled());
    EXPECT_FALSE(world.Form().Config.Enabled());
    EXPECT_EQ(world.Station.ActiveRunCount, 0);
}

TEST(ConfiguradorOptions, edit_tags_saves_at_once_and_writes_nothing) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter"));
    const std::string before = world.File();
    world.Select("\\Individual Parameters\\Run 5");
    world.Program.Forms.Get<forms::Configurador>().Option = ConfiguradorOption::EditTags;
    world.TheStory.Box("Configuration Completed.", "Do you want to save your changes?", ui::Icon::None,
                       ui::Answer::Yes);
    world.Show();
    EXPECT_EQ(world.File(), before);
    EXPECT_TRUE(world.Screen.FormsShown.empty());
    EXPECT_TRUE(world.Session.TreeRefreshNeeded);
    EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::Configurador>());
}

TEST(ConfiguradorOptions, edit_tags_after_a_cancel_stays_out_of_sight) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter"));
    world.Select("\\Individual Parameters\\Run 5");
    world.Session.Cancelled = true;
    world.Program.Forms.Get<forms::Configurador>().Option = ConfiguradorOption::EditTags;
    world.Show();
    EXPECT_TRUE(world.Screen.FormsShown.empty());
    EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::Configurador>());
}

TEST(ConfiguradorOptions, edit_tags_with_a_parameter_missing_shows_what_is_left) {
    ConfiguradorWorld world(
        With(WizardFile("aga3_densimeter"), "[AGA3]\nStandardT=60.00", "[AGA3]\nStandardT="));
    world.Select("\\Individual Parameters\\Run 5");
    world.Program.Forms.Get<forms::Configurador>().Option = ConfiguradorOption::EditTags;
    world.TheStory.Box("Missing Parameters...", "Can`t continue, some parameters have not been configured",
                       ui::Icon::Exclamation);
    world.TheStory.SeeText(Configurator, "Label1", "Edit I/O tags ans Gas Composition")
        .SeeVisible(Configurator, "Frame1", false);
    // Their own state: the tabs around them are closed anyway.
    world.TheStory.Check([&](Driver&) {
        auto& form = world.Form();
        for (const ui::Control* control :
             std::initializer_list<const ui::Control*>{&form.Command1, &form.Option5, &form.Option6,
                                                       &form.general.CombStandard, &form.general.cbSourceGas})
            EXPECT_FALSE(control->Enabled()) << control->Name();
    });
    world.PlayAndCancel();
}

} // namespace
} // namespace gfc::test
