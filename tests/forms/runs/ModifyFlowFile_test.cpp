#include "ModifyWorld.h"
#include "config/ConfigReader.h"
#include "forms/runs/ModifyFlowFile.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using forms::ModifySelection;

// Run 2 as the flow has it in hand.
struct LoadedWorld : ModifyWorld {
    explicit LoadedWorld(const ModifyChoices& choices = {}) : ModifyWorld(choices) {
        config::LoadStationConfig(Program.Ini, Station, File());
        config::LoadRun(Program.Ini, Station, File(), 2);
        Station.Run = {"No", "Yes", "No", "No", "No"};
        Station.FlagAGA7 = Station.FlowAlgorithm == "AGA7";
    }
    void Apply(const ModifySelection& selection) {
        forms::ApplyModifiedTags(Hand, Station, selection, File());
    }
};

} // namespace

TEST(ModifySelection, tells_nothing_and_the_mechanical_parameters_alone_apart) {
    EXPECT_TRUE(ModifySelection{}.IsNothing());
    EXPECT_FALSE(ModifySelection{.GasOutputs = true}.IsNothing());
    EXPECT_TRUE(ModifySelection{.Mechanical = true}.IsMechanicalOnly());
    EXPECT_FALSE((ModifySelection{.RunInputs = true, .Mechanical = true}.IsMechanicalOnly()));
    EXPECT_FALSE(ModifySelection{.RunInputs = true}.IsMechanicalOnly());
}

TEST(EditedRun, is_the_first_whose_flag_says_exactly_yes) {
    config::StationConfig station;
    EXPECT_EQ(forms::EditedRun(station), 0);
    station.Run = {"No", "yes", "", "Yes", "Yes"};
    EXPECT_EQ(forms::EditedRun(station), 4);
}

TEST(ApplyModifiedTags, enables_the_run_and_says_yes_for_a_compressible_gas) {
    LoadedWorld world;
    world.Put("FlowRuns", "Run2", "No");
    world.Put("Run2", "Compressible", "No");
    world.Station.Compressible = "No";
    world.Apply({.RunOutputs = true});
    EXPECT_EQ(world.Key("FlowRuns", "Run2"), "Yes");
    // Deliberately not what the model holds.
    EXPECT_EQ(world.Key("Run2", "Compressible"), "Yes");
}

TEST(ApplyModifiedTags, copies_the_common_values_into_the_run) {
    LoadedWorld world;
    for (const char* key : {"StandardT", "StandardP", "FlowingViscosity", "IsentropicCoeff", "FlowAlgorithm",
                            "GasDensitySource"})
        world.Put("Run2", key, "another");
    world.Apply({.GasOutputs = true});
    EXPECT_EQ(world.Key("Run2", "StandardT"), "15.00");
    EXPECT_EQ(world.Key("Run2", "StandardP"), "1.01325");
    EXPECT_EQ(world.Key("Run2", "FlowingViscosity"), "0.010268");
    EXPECT_EQ(world.Key("Run2", "IsentropicCoeff"), "1.3");
    EXPECT_EQ(world.Key("Run2", "FlowAlgorithm"), "AGA3");
    EXPECT_EQ(world.Key("Run2", "GasDensitySource"), "AGA8");
}

TEST(ApplyModifiedTags, leaves_what_was_not_chosen) {
    LoadedWorld world;
    world.Station.Runs.IO[0].CalibrationFactor = "9";
    world.Station.Runs.IO[0].AGA3Status.Tag = "other status";
    world.Station.Runs.Gas[0][config::GasSlot::AGA8zs].Tag = "other zs";
    world.Station.Runs.Mechanical[0].OrificeDia = "9.9";
    world.Station.AGA8CalInput = "MEASURED";
    world.Apply({.GasOutputs = true});
    EXPECT_EQ(world.Key("Run2", "AGA8zsKDIOTag"), "other zs");
    EXPECT_EQ(world.Key("Run2", "CalibrationFactor"), "1.0");
    EXPECT_NE(world.Key("Run2", "AGA3StatusKDIOTag"), "other status");
    EXPECT_EQ(world.Key("Run2", "OrificeDia"), "193.675");
    EXPECT_EQ(world.Key("AGA8", "AGA8CalInput"), "FIXED");
}

TEST(ApplyModifiedTags, brings_the_inputs_along_with_the_mechanical_parameters) {
    LoadedWorld world;
    world.Put("Run2", "PipeDiaKDIOTag", "left over");
    world.Station.Runs.Mechanical[0].ExtMechParam = "No";
    world.Apply({.Mechanical = true});
    EXPECT_EQ(FileText(world.Content()).Value("Run2", "PipeDiaKDIOTag"), std::nullopt);
    EXPECT_EQ(world.Key("Run2", "ExtMechParam"), "No");
}

TEST(ApplyModifiedTags, drops_the_keys_that_the_choices_do_not_allow) {
    LoadedWorld world;
    for (const char* key : {"meterKFactor", "GasPulseInputKDIOTag", "GasDensityStandard", "PaKDIOTag",
                            "OrificeServiceTimeKDIORegAddr"})
        world.Put("Run2", key, "left over");
    world.Apply({.RunInputs = true});
    const FileText file(world.Content());
    for (const char* key : {"meterKFactor", "GasPulseInputKDIOTag", "GasDensityStandard", "PaKDIOTag",
                            "OrificeServiceTimeKDIORegAddr"})
        EXPECT_EQ(file.Value("Run2", key), std::nullopt) << key;
}

TEST(ApplyModifiedTags, gives_the_run_the_common_atmospheric_pressure) {
    LoadedWorld world;
    world.Station.ExtAtmPress = "YES";
    world.Station.CommonPa = {.Tag = "PA", .Type = "FX", .RegAddr = "1200"};
    world.Apply({.RunInputs = true});
    EXPECT_EQ(world.Key("Run2", "PaKDIOTag"), "PA");
    EXPECT_EQ(world.Key("Run2", "PaKDIORegAddr"), "1200");
}

TEST(ApplyModifiedTags, writes_the_gas_section_alone_where_no_run_is_edited) {
    LoadedWorld world;
    world.Station.Run = {};
    FileText expected(world.Content());
    world.Apply({.RunInputs = true, .Mechanical = true, .FixedGas = true});
    expected.Replace("AGA8", {"AGA8Method=DETAIL", "AGA8CalInput=FIXED"});
    EXPECT_EQ(world.Content(), expected.Bytes());
}

TEST(ApplyModifiedTags, replaces_the_file_once) {
    LoadedWorld world;
    const int reads = world.Files.Reads;
    const int replaces = world.Files.Replaces;
    world.Apply(
        {.RunInputs = true, .RunOutputs = true, .Mechanical = true, .GasOutputs = true, .FixedGas = true});
    EXPECT_EQ(world.Files.Reads, reads + 1);
    EXPECT_EQ(world.Files.Replaces, replaces + 1);
}

TEST(ApplyMechanicalParameters, does_not_enable_the_run) {
    LoadedWorld world;
    world.Put("FlowRuns", "Run2", "No");
    world.Station.Runs.Mechanical[0].OrificeDia = "9.9";
    const int replaces = world.Files.Replaces;
    forms::ApplyMechanicalParameters(world.Hand, world.Station, world.File());
    EXPECT_EQ(world.Files.Replaces, replaces + 1);
    EXPECT_EQ(world.Key("Run2", "OrificeDia"), "9.9");
    EXPECT_EQ(world.Key("FlowRuns", "Run2"), "No");
}

TEST(ApplyMechanicalParameters, writes_the_common_section_as_the_model_holds_it) {
    LoadedWorld world;
    world.Station.Compressible = "No";
    world.Station.IsentropicCoeff = "1.4";
    world.Station.AtmPress = "1.1";
    forms::ApplyMechanicalParameters(world.Hand, world.Station, world.File());
    EXPECT_EQ(world.Key("AGA3", "Compressible"), "No");
    EXPECT_EQ(world.Key("AGA3", "IsentropicCoeff"), "1.4");
    EXPECT_EQ(world.Key("Run2", "AtmPress"), "1.1");
    EXPECT_EQ(world.Key("AGA3", "AtmPress"), "1.01325");
    EXPECT_EQ(world.Key("Run2", "IsentropicCoeff"), "1.3");
}

TEST(ApplyMechanicalParameters, gives_an_accelabar_run_no_orifice_keys) {
    LoadedWorld world({"Accelabar-AGA-3-1992", "MEASURED"});
    world.Station.Runs.Mechanical[0].OrificeDia = "9.9";
    world.Station.Runs.Mechanical[0].AccelabarY = "0.5";
    forms::ApplyMechanicalParameters(world.Hand, world.Station, world.File());
    EXPECT_EQ(world.Key("Run2", "AccelabarY"), "0.5");
    EXPECT_EQ(world.Key("Run2", "OrificeDia"), "193.675");
    EXPECT_EQ(FileText(world.Content()).Value("Run2", "ExtMechParam"), std::nullopt);
}

TEST(TrialFile, stands_beside_the_configuration) {
    const LoadedWorld world;
    EXPECT_EQ(forms::TrialFile(world.Session), ModifyWorld::Trial);
}

TEST(TrialFile, is_none_where_the_station_can_have_no_file) {
    LoadedWorld world;
    world.Station.CurrentStation = "../North";
    EXPECT_EQ(forms::TrialFile(world.Session), "");
}

TEST(TrialCopy, takes_the_place_of_what_a_crash_left_and_goes) {
    LoadedWorld world;
    world.Files.Content[ModifyWorld::Trial] = "left over";
    {
        const forms::TrialCopy trial(world.Program.Storage, world.File(), ModifyWorld::Trial);
        EXPECT_TRUE(trial.IsMade());
        EXPECT_EQ(trial.Path(), ModifyWorld::Trial);
        EXPECT_EQ(world.Files.Content.at(ModifyWorld::Trial), world.Content());
        world.Hand.WriteKey("FlowRuns", "Run5", "Yes", trial.Path());
    }
    EXPECT_FALSE(world.Files.Content.contains(ModifyWorld::Trial));
    EXPECT_EQ(world.Key("FlowRuns", "Run5"), "No");
}

TEST(TrialCopy, says_that_it_could_not_be_made) {
    LoadedWorld world;
    world.Files.Unreadable.insert(world.File());
    for (const auto answer : {ui::Answer::Retry, ui::Answer::Close})
        world.TheStory.Box(
            "Gas Flow Computer",
            std::string("The changes could not be tried on a copy of the configuration file.\r\n") +
                ModifyWorld::Trial +
                "\r\n\r\nThe system says: Input/output error\r\nThere is no such file now.",
            ui::Icon::Exclamation, answer);
    const forms::TrialCopy trial(world.Program.Storage, world.File(), ModifyWorld::Trial);
    EXPECT_FALSE(trial.IsMade());
    EXPECT_TRUE(world.TheStory.Done());
    EXPECT_FALSE(world.Files.Content.contains(ModifyWorld::Trial));
}

TEST(ClearModifyState, can_be_run_twice) {
    LoadedWorld world;
    forms::ClearModifyState(world.Session);
    forms::ClearModifyState(world.Session);
    EXPECT_EQ(world.Station.CurrentStation, "");
    EXPECT_EQ(world.Station.UserId, "4711");
    EXPECT_EQ(world.Station.ProjectName, "plant");
    EXPECT_TRUE(world.Session.Inventory.AvailFloat.empty());
}

} // namespace gfc::test
