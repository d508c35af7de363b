#include "SampleStation.h"
#include "config/InPlaceUpdate.h"
#include "support/MemoryFiles.h"

#include <gmock/gmock.h>

#include <utility>

namespace gfc::config {
namespace {

using testing::HasSubstr;
using testing::Not;

const std::string File = "/jobs/KDOrmAGA_plant_North.ini";

struct InPlaceUpdate : testing::Test {
    test::MemoryFiles Files;
    FileIni Ini{Files};
    std::string& Bytes = Files.Content[File];

    void AddRun(const SampleChoices& choices) {
        const StationConfig station = SampleRun(choices, 2);
        WriteAddedRunKeys(Ini, station, station.Runs.Mechanical.front(), 2, File);
    }
};

const std::string Head =
    Lines({"[FlowRuns]", "Run2=Yes", "Run22=Yes", "[Run2]", "StandardT=15.00", "StandardP=1.01325",
           "Compressible=Yes", "FlowingViscosity=0.010268", "IsentropicCoeff=1.3"});

TEST_F(InPlaceUpdate, gives_an_added_orifice_run_its_mechanical_and_pressure_keys) {
    AddRun({"SYT6143-2004", "MEASURED", ""});
    EXPECT_EQ(Bytes, Head + Lines({"FlowAlgorithm=SYT6143-2004", "GasDensitySource=MEASURED",
                                   "PressureTap=R2 PressureTap", "PressureTapPos=R2 PressureTapPos",
                                   "InternalPipeDia=R2 InternalPipeDia",
                                   "InternalPipeDiaRefTemp=R2 InternalPipeDiaRefTemp",
                                   "PipeMaterial=R2 PipeMaterial", "OrificeMaterial=R2 OrificeMaterial",
                                   "OrificeDia=R2 OrificeDia", "OrificeDiaRefTemp=R2 OrificeDiaRefTemp",
                                   "OrificeThermalExpCoeff=R2 OrificeThermalExpCoeff",
                                   "PipeThermalExpCoeff=R2 PipeThermalExpCoeff", "ExtMechParam=Yes",
                                   "PressType=Gage", "ExtAtmPress=No", "AtmPress=1.01325"}));
    EXPECT_EQ(Files.Replaces, 1);
}

TEST_F(InPlaceUpdate, gives_an_added_accelabar_run_its_four_keys_only) {
    AddRun({"Accelabar-AGA-3-1992", "MEASURED", ""});
    EXPECT_EQ(Bytes,
              Head + Lines({"FlowAlgorithm=Accelabar-AGA-3-1992", "GasDensitySource=MEASURED",
                            "AccelabarK=R2 AccelabarK", "AccelabarY=R2 AccelabarY",
                            "AccelabarSize=R2 AccelabarSize", "AccelabarThroatDia=R2 AccelabarThroatDia"}));
}

TEST_F(InPlaceUpdate, gives_an_added_pulse_run_pressure_keys_for_a_gas_model_only) {
    AddRun({"AGA7", "SGERG88", "FIXED"});
    EXPECT_EQ(Bytes, Head + Lines({"FlowAlgorithm=AGA7", "GasDensitySource=SGERG88", "PressType=Gage",
                                   "ExtAtmPress=Yes", "AtmPress=1.01325"}));
    Bytes.clear();
    AddRun({"AGA7", "MEASURED", ""});
    EXPECT_EQ(Bytes, Head + Lines({"FlowAlgorithm=AGA7", "GasDensitySource=MEASURED"}));
}

TEST_F(InPlaceUpdate, gives_an_added_run_of_an_unknown_algorithm_the_common_keys_only) {
    AddRun({"", "AGA8", "FIXED"});
    EXPECT_EQ(Bytes, Head + Lines({"FlowAlgorithm=", "GasDensitySource=AGA8"}));
}

TEST_F(InPlaceUpdate, gives_an_added_run_of_either_orifice_algorithm_the_same_keys) {
    StationConfig station = SampleRun({"SYT6143-2004", "MEASURED", ""}, 2);
    WriteAddedRunKeys(Ini, station, station.Runs.Mechanical.front(), 2, File);
    std::string expected = std::exchange(Bytes, "");
    expected.replace(expected.find("SYT6143-2004"), 12, "AGA3");
    station.FlowAlgorithm = "AGA3";
    WriteAddedRunKeys(Ini, station, station.Runs.Mechanical.front(), 2, File);
    EXPECT_EQ(Bytes, expected);
}

TEST_F(InPlaceUpdate, calls_the_gas_compressible_in_every_run_key_by_key) {
    const StationConfig station = SampleRun({"AGA3", "AGA8", "FIXED"}, 2);
    ASSERT_EQ(station.Compressible, "No");
    WriteRunKeys(Ini, station, {}, runkeys::CommonValues, 4, File);
    EXPECT_EQ(Ini.ReadKey("Run4", "Compressible", File), "Yes");
    EXPECT_EQ(Ini.ReadKey("Run4", "GasDensitySource", File), "AGA8");
}

TEST_F(InPlaceUpdate, takes_pressure_values_of_the_station_and_not_of_the_run) {
    const StationConfig station = SampleRun({"AGA3", "AGA8", "FIXED"}, 2);
    WriteRunKeys(Ini, station, station.Runs.Mechanical.front(), runkeys::Pressure, 2, File);
    EXPECT_EQ(Bytes, Lines({"[Run2]", "PressType=Gage", "ExtAtmPress=Yes", "AtmPress=1.01325"}));
}

TEST_F(InPlaceUpdate, writes_flow_keys_to_the_section_of_the_flag) {
    StationConfig station = SampleRun({"AGA3", "AGA8", "FIXED"}, 2);
    constexpr std::string_view keys[] = {"StandardT", "Compressible"};
    WriteFlowKeys(Ini, station, keys, File);
    station.FlagAGA7 = true;
    WriteFlowKeys(Ini, station, keys, File);
    EXPECT_EQ(Bytes, Lines({"[AGA3]", "StandardT=15.00", "Compressible=No", "[AGA7]", "StandardT=15.00",
                            "Compressible=No"}));
}

TEST_F(InPlaceUpdate, saves_the_configurators_changes_around_what_they_do_not_concern) {
    Bytes = Lines({"; by hand",
                   "[General]",
                   "Package=kdormaga",
                   "USERID=1",
                   "[FlowRuns]",
                   "Run2=No",
                   "WrkAnalogModName=OLD",
                   "Run22=Yes",
                   "Run33=yes",
                   "[Foreign]",
                   "A=1",
                   "[AGA7]",
                   "StandardT=old",
                   "[AGA3]",
                   "Compressible=Yes",
                   "[AGA8]",
                   "AGA8CalInput=MEASURED",
                   "[Run2]",
                   "FlowAlgorithm=AGA7",
                   "GasDPKDIOTag=kept",
                   "[Run3]",
                   "StandardT=kept"});
    StationConfig station = SampleStation({"Accelabar-AGA-3-1992", "SGERG88", "FIXED"});
    station.EnableDataTraces = "No";
    SaveConfiguratorChanges(Ini, station, File);
    EXPECT_EQ(Bytes, Lines({"; by hand",
                            "[General]",
                            "Package=kdormaga",
                            "UserID=4711",
                            "[FlowRuns]",
                            "Run2=No",
                            "WrkAnalogModNAme=VA0",
                            "Run22=Yes",
                            "Run33=yes",
                            "FlowAlgorithm=Accelabar-AGA-3-1992",
                            "GasDensityStandardT=15.00",
                            "GasDensityStandardP=1.01325",
                            "GasDensitySource=SGERG88",
                            "SystemUnits=Metric",
                            "WrkFloatModName=VF0",
                            "WrkFloatRegAddr=11",
                            "WrkFloatRegType=FX",
                            "WrkIntLongModName=VL0",
                            "WrkIntLongRegAddr=12",
                            "WrkIntLongRegType=LX",
                            "WrkAnalogRegAddr=13",
                            "WrkAnalogRegType=AX",
                            "[Foreign]",
                            "A=1",
                            "[AGA7]",
                            "StandardT=old",
                            "[AGA3]",
                            "Compressible=No",
                            "StandardT=15.00",
                            "StandardP=1.01325",
                            "FlowingViscosity=0.010268",
                            "IsentropicCoeff=1.3",
                            "PressType=Gage",
                            "ExtAtmPress=No",
                            "AtmPress=1.01325",
                            "CommonPaKDIOTag=PA-1",
                            "CommonPaKDIOType=FX",
                            "CommonPaKDIORegAddr=77",
                            "[AGA8]",
                            "AGA8CalInput=MEASURED",
                            "[Run2]",
                            "FlowAlgorithm=AGA7",
                            "GasDPKDIOTag=kept",
                            "StandardT=15.00",
                            "StandardP=1.01325",
                            "FlowingViscosity=0.010268",
                            "Compressible=Yes",
                            "IsentropicCoeff=1.3",
                            "SystemUnits=Metric",
                            "PressType=Gage",
                            "ExtAtmPress=No",
                            "AtmPress=1.01325",
                            "PaKDIOTag=PA-1",
                            "PaKDIOType=FX",
                            "PaKDIORegAddr=77",
                            "[Run3]",
                            "StandardT=kept",
                            "[Station]",
                            "NumberTraces=1000",
                            "EnableDataTraces=No",
                            "DeviceDataTraces=/nvram/kdormaga.txt"}));
    EXPECT_EQ(Files.Replaces, 1);
}

TEST_F(InPlaceUpdate, saves_to_the_pulse_section_by_the_flag) {
    Bytes = GoldenFile("aga7_gross_fixed");
    StationConfig station = SampleStation({"AGA7", "SGERG88", "FIXED"});
    station.StandardT = "20.00";
    SaveConfiguratorChanges(Ini, station, File);
    EXPECT_EQ(Ini.ReadKey("AGA7", "StandardT", File), "20.00");
    EXPECT_EQ(Ini.ReadKey("FlowRuns", "GasDensityStandardT", File), "20.00");
    EXPECT_EQ(Ini.ReadKey("Run5", "StandardT", File), "20.00");
    EXPECT_THAT(Bytes, Not(HasSubstr("[AGA3]")));
}

// A disabled run is kept up to date: the question is whether it was configured.
TEST_F(InPlaceUpdate, saves_to_a_disabled_run_that_is_configured) {
    Bytes = GoldenFile("aga3_densimeter");
    Ini.WriteKey("FlowRuns", "Run2", "No", File);
    StationConfig station = SampleStation({"AGA3", "MEASURED", ""});
    station.IsentropicCoeff = "1.4";
    SaveConfiguratorChanges(Ini, station, File);
    EXPECT_EQ(Ini.ReadKey("Run2", "IsentropicCoeff", File), "1.4");
    EXPECT_EQ(Ini.ReadKey("FlowRuns", "Run2", File), "No");
    EXPECT_EQ(Ini.ReadKey("Run2", "GasDPKDIOTag", File), "R2.GasDP") << "its bindings stay";
    EXPECT_THAT(Bytes, Not(HasSubstr("[Run1]")));
}

TEST_F(InPlaceUpdate, saves_to_every_run_that_is_configured) {
    Bytes = Lines({"[FlowRuns]", "Run11=Yes", "Run22=Yes", "Run33=Yes", "Run44=Yes", "Run55=Yes"});
    StationConfig station = SampleStation({"AGA3", "MEASURED", ""});
    station.IsentropicCoeff = "1.4";
    SaveConfiguratorChanges(Ini, station, File);
    for (const char* run : {"Run1", "Run2", "Run3", "Run4", "Run5"})
        EXPECT_EQ(Ini.ReadKey(run, "IsentropicCoeff", File), "1.4") << run;
}

// The odd form meets the one line of the full write, since case does not count.
TEST_F(InPlaceUpdate, keeps_one_line_for_the_analog_module) {
    Bytes = GoldenFile("aga3_densimeter");
    SaveConfiguratorChanges(Ini, SampleStation({"AGA3", "MEASURED", ""}), File);
    EXPECT_THAT(Bytes, HasSubstr("WrkAnalogModNAme=VA0\r\n"));
    EXPECT_THAT(Bytes, Not(HasSubstr("WrkAnalogModName=")));
}

} // namespace
} // namespace gfc::config
