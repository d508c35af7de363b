#include "ConfiguradorPassWorld.h"
#include "forms/binding/TagRuns.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/station/Step.h"
#include "support/Named.h"

namespace gfc::test {
namespace {

struct GoldenCase {
    const char* Name;
    PassChoices Choices;

    friend void PrintTo(const GoldenCase& the, std::ostream* out) { *out << the.Name; }
};

class ConfiguradorWhole : public testing::TestWithParam<GoldenCase> {};

// What is entered alike is stored alike, whichever of the two forms it was entered in.
TEST_P(ConfiguradorWhole, is_saved_as_the_wizard_saves_it) {
    PassOfConfigurador world(GetParam().Choices);
    world.AllRuns();
    world.TheStory.Check([&](Driver&) { EXPECT_FALSE(world.HasFile()); });
    world.ThenSave("SalvarSalir2");
    world.Show();
    EXPECT_EQ(world.File(), WizardFile(GetParam().Name));
    EXPECT_TRUE(world.Session.TreeRefreshNeeded);
    EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::Configurador>());
    EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::TagRuns>());
    EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::Step>());
    EXPECT_EQ(world.Station.CurrentStation, "");
    EXPECT_EQ(world.Files.Replaces, 1);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Families, ConfiguradorWhole, testing::Values(
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
    GoldenCase{"accelabar_iso3_fixed",       {2, 4}}),
    [](const auto& row) { return row.param.Name; });
// clang-format on

TEST(ConfiguradorPass, calls_the_gross_family_by_its_own_words) {
    PassOfConfigurador world({2, 2, true, false, {3}});
    world.AllRuns();
    world.PlayAndCancel();
    EXPECT_FALSE(world.HasFile());
}

// In each window of a pass that has one of every kind.
class ConfiguradorPassCancel : public testing::TestWithParam<std::size_t> {
protected:
    static void Cancel(Story& story, const std::string& window) {
        if (window == "TagRuns")
            story.Click(window, "Command2").Box("Gas Flow Computer", "", ui::Icon::Question, ui::Answer::Yes);
        else if (window == "FrParMec")
            story.Click(window, "cmdCancel")
                .Box("Close mechanical parameters", "", ui::Icon::None, ui::Answer::Yes);
        else
            story.Click(window, "Command3").Box("Orm Gas Flow Computer", "", ui::Icon::None, ui::Answer::Yes);
    }
};

TEST_P(ConfiguradorPassCancel, leads_back_with_tags_owed) {
    PassOfConfigurador world({0, 1, false, true, {4}});
    ASSERT_EQ(world.ThePass.Dialogs().size(), 6U);
    world.ThePass.Until(world.TheStory, GetParam());
    Cancel(world.TheStory, world.ThePass.Dialogs().at(GetParam()).Window);
    world.TheStory.SeeShown("Step", false).SeeShown(Configurator);
    world.RefuseToSave("SalvarSalir");
    world.PlayAndCancel();
    EXPECT_FALSE(world.HasFile());
}

INSTANTIATE_TEST_SUITE_P(Windows, ConfiguradorPassCancel, testing::Range<std::size_t>(0, 6),
                         ByNumber("window"));

TEST(ConfiguradorPass, a_cancel_leads_back_with_what_was_entered_and_tags_owed) {
    PassOfConfigurador world({0, 1, false, true, {4}});
    world.ThePass.Until(world.TheStory, 2);
    world.TheStory.Click("TagRuns", "Command2")
        .Box("Gas Flow Computer",
             "Are you sure you want to discard the changes made to the current configuration?",
             ui::Icon::Question, ui::Answer::Yes)
        .SeeShown("Step", false)
        .SeeShown(Configurator)
        .SeeEnabled(Configurator, "SSTab2")
        .SeeVisible(Configurator, "SalvarSalir")
        .SeeVisible(Configurator, "SalvarSalir2", false)
        .SeeChecked(Configurator, "Run44")
        .SeeText(Configurator, "cbSourceGas", "AGA-8")
        .Check([&](Driver&) {
            EXPECT_EQ(world.Station.CurrentStation, "North");
            EXPECT_EQ(world.Station.ActiveRunCount, 1);
        });
    world.RefuseToSave("SalvarSalir");
    // The pass can be made again.
    world.TheStory.SelectTab(Configurator, "SSTab2", 0).Click(Configurator, "Command1");
    world.Open();
    world.AllRuns();
    world.ThenSave("SalvarSalir2");
    world.Show();
    EXPECT_TRUE(Holds(world.File(), "[Run4]"));
}

TEST(ConfiguradorPass, another_choice_of_runs_after_it_owes_another_pass) {
    PassOfConfigurador world({0, 0, false, false, {2, 5}});
    world.AllRuns();
    world.TheStory.Click(Configurator, "Run22");
    world.RefuseToSave("SalvarSalir2");
    world.TheStory.SelectTab(Configurator, "SSTab2", 0).Click(Configurator, "Run22");
    world.ThenSave("SalvarSalir2");
    world.Show();
    EXPECT_EQ(world.File(), WizardFile("aga3_densimeter"));
}

// The tags of a pass were drawn without those of the modules, so that these are settled then.
// What is bound depends on these lists: a file of another choice would be saved with bindings that nobody
// made.
struct OwedAgain {
    const char* Name;
    std::function<void(Story&)> Choose;
    std::function<void(Story&)> ChooseBack;
};

void PrintTo(const OwedAgain& owed, std::ostream* out) {
    *out << owed.Name;
}

OwedAgain ByList(const char* list, int other, int back) {
    return {list, [=](Story& story) { story.Select(Configurator, list, other); },
            [=](Story& story) { story.Select(Configurator, list, back); }};
}

class ConfiguradorOwesAgain : public testing::TestWithParam<OwedAgain> {};

TEST_P(ConfiguradorOwesAgain, once_a_choice_changes_after_the_pass) {
    PassOfConfigurador world({0, 1, false, false, {2}});
    world.AllRuns();
    GetParam().Choose(world.TheStory);
    world.RefuseToSave("SalvarSalir2");
    EXPECT_FALSE(world.HasFile());
    // The choice that the pass was made for needs no other one.
    world.TheStory.SelectTab(Configurator, "SSTab2", 0);
    GetParam().ChooseBack(world.TheStory);
    world.ThenSave("SalvarSalir2");
    world.Show();
    EXPECT_TRUE(world.HasFile());
}

INSTANTIATE_TEST_SUITE_P(
    Choices, ConfiguradorOwesAgain,
    testing::Values(ByList("CombStandard", 3, 0), ByList("cbSourceGas", 3, 1), ByList("CombUnits", 2, 0),
                    OwedAgain{"composition",
                              [](Story& story) {
                                  story.SelectTab(Configurator, "SSTab2", 3).Click(Configurator, "Option5");
                              },
                              [](Story& story) {
                                  story.SelectTab(Configurator, "SSTab2", 3).Click(Configurator, "Option6");
                              }}));

TEST(ConfiguradorPass, leaves_no_choice_of_modules_to_the_common_parameters) {
    PassOfConfigurador world({0, 0, false, false, {2}});
    world.AllRuns();
    world.TheStory.Check([&](Driver&) { world.Form().PG.OnClick(); }).SelectTab(Configurator, "SSTab2", 2);
    world.SeeAll({"Combo1", "Combo2", "Combo3"}, false);
    world.PlayAndCancel();
}

TEST(ConfiguradorPass, is_refused_with_a_value_missing) {
    for (const char* field : {"Text1_1", "Text2_1", "Text3_1", "Text4_1"}) {
        ConfiguradorWorld world;
        world.Preset();
        world.TheStory.Menu(Configurator, "ConfigAll")
            .Click(Configurator, "Run11")
            .SelectTab(Configurator, "SSTab2", 1)
            .Type(Configurator, field, "")
            .SelectTab(Configurator, "SSTab2", 0)
            .Click(Configurator, "Command1")
            .Box("Gas Flow Computer", "Error: Missing gas flowing viscosity or gas isentropic coefficient",
                 ui::Icon::Exclamation)
            .SeeShown(Configurator);
        world.PlayAndCancel();
    }
}

TEST(ConfiguradorPass, hides_the_main_window_until_the_end) {
    PassOfConfigurador world({1, 0, false, false, {1}});
    world.Program.Forms.Get<forms::GFCPrincipal>().Show();
    world.TheStory.SeeShown("GFCPrincipal", false);
    world.AllRuns();
    world.TheStory.SeeShown("GFCPrincipal", false);
    world.ThenSave("SalvarSalir2");
    world.TheStory.SeeShown("GFCPrincipal");
    world.Show();
    world.Screen.PlayOut();
}

// The runs of a stored configuration are none of its pass; what is common is.
TEST(ConfiguradorPass, of_a_stored_configuration_binds_what_is_common_alone) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter_external"));
    const std::string before = world.File();
    world.TheStory.Menu(Configurator, "tg")
        .Box("Orm Gas Flow Computer", "", ui::Icon::Information)
        .Click(Configurator, "Command1")
        .SeeText("Step", "Label1", ConfiguradorOpening)
        .Click("Step", "Command1")
        .SeeText("Step", "Label1", "Configuring I/O Tag assignemnts common to all Runs...")
        .Click("Step", "Command1")
        .ClickNode("TagRuns", "TreeAGA", "Common Inputs\\Atmospheric Pressure")
        .ClickRow("TagRuns", "ListViewRuns", 7)
        .Click("TagRuns", "Command1")
        .Click("TagRuns", "Command5")
        .SeeText(Configurator, "AtmExtName", "Name: FT-7")
        .SeeText(Configurator, "AtmExtAddr", " Addr: 1007");
    world.ThenSave("SalvarSalir2");
    world.Show();
    std::string expected = With(before, "WrkAnalogModName", "WrkAnalogModNAme");
    expected = With(expected, "CommonPaKDIORegAddr=1001", "CommonPaKDIORegAddr=1007");
    expected = With(expected, "CommonPaKDIOTag=FT-1", "CommonPaKDIOTag=FT-7");
    for (int run = 0; run < 2; ++run) {
        expected = With(expected, "PaKDIOTag=FT-1\n", "PaKDIOTag=FT-7\n");
        expected = With(expected, "\nPaKDIORegAddr=1001", "\nPaKDIORegAddr=1007");
    }
    EXPECT_EQ(world.File(), expected);
}

TEST(ConfiguradorPass, of_a_stored_configuration_keeps_a_common_tag_that_is_not_in_use) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter_external"));
    world.TheStory.Menu(Configurator, "tg")
        .Box("Orm Gas Flow Computer", "", ui::Icon::Information)
        .SelectTab(Configurator, "SSTab2", 1)
        .Click(Configurator, "OptAbsPress")
        .SelectTab(Configurator, "SSTab2", 0)
        .Click(Configurator, "Command1")
        .Click("Step", "Command1");
    world.ThenSave("SalvarSalir2");
    world.Show();
    EXPECT_TRUE(Holds(world.File(), "ExtAtmPress=No\n"));
    EXPECT_TRUE(Holds(world.File(), "CommonPaKDIOTag=FT-1\n"));
    EXPECT_TRUE(Holds(world.File(), "CommonPaKDIORegAddr=1001\n"));
}

} // namespace
} // namespace gfc::test
