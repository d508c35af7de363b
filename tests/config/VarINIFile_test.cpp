#include "SampleStation.h"
#include "config/VarINIFile.h"

#include <gmock/gmock.h>

namespace gfc::config {
namespace {

const SampleChoices Choices{"AGA3", "SGERG88", "FIXED"};

TEST(StationConfig, is_emptied_of_what_belongs_to_one_station) {
    StationConfig station = SampleStation(Choices);
    ResetStationConfig(station);
    for (const std::string* text : {&station.CurrentStation,
                                    &station.FlowAlgorithm,
                                    &station.SystemUnits,
                                    &station.GasDensitySource,
                                    &station.StandardT,
                                    &station.StandardP,
                                    &station.GasDensityStandardT,
                                    &station.GasDensityStandardP,
                                    &station.FlowingViscosity,
                                    &station.IsentropicCoeff,
                                    &station.PressType,
                                    &station.ExtAtmPress,
                                    &station.AtmPress,
                                    &station.EnableDataTraces,
                                    &station.DeviceDataTraces,
                                    &station.NumberTraces,
                                    &station.WorkingModules.WrkFloatModName,
                                    &station.WorkingModules.WrkFloatRegType,
                                    &station.WorkingModules.WrkFloatRegAddr,
                                    &station.WorkingModules.WrkIntLongModName,
                                    &station.WorkingModules.WrkIntLongRegType,
                                    &station.WorkingModules.WrkIntLongRegAddr,
                                    &station.WorkingModules.WrkAnalogModName,
                                    &station.WorkingModules.WrkAnalogRegType,
                                    &station.WorkingModules.WrkAnalogRegAddr})
        EXPECT_EQ(*text, "");
    EXPECT_EQ(station.CommonPa, TagBinding{});
    EXPECT_EQ(station.ActiveRunCount, 0);
    for (std::size_t i = 0; i < MaxRuns; ++i) {
        EXPECT_EQ(station.Run[i], "");
        EXPECT_EQ(station.RunList[i].Name, "");
        EXPECT_EQ(station.RunList[i].Flag, "");
    }
}

TEST(StationConfig, deliberately_keeps_what_outlives_a_station) {
    StationConfig station = SampleStation(Choices);
    station.GasComposition[GasSlot::GC_N2].Tag = "0.03";
    ResetStationConfig(station);
    EXPECT_EQ(station.Compressible, "No");
    EXPECT_EQ(station.AGA8Method, "DETAIL");
    EXPECT_EQ(station.AGA8CalInput, "FIXED");
    EXPECT_EQ(station.UserId, "4711");
    EXPECT_EQ(station.ProjectFile, "/jobs/plant.KPJ");
    EXPECT_EQ(station.ProjectName, "plant");
    EXPECT_EQ(station.GasComposition[GasSlot::GC_N2].Tag, "0.03");
}

TEST(StationConfig, takes_a_run_for_active_in_any_spelling_of_yes) {
    StationConfig station;
    station.RunList[0].Flag = "yes";
    station.RunList[1].Flag = "YES";
    station.RunList[2].Flag = "No";
    EXPECT_TRUE(IsRunActive(station, 0));
    EXPECT_TRUE(IsRunActive(station, 1));
    EXPECT_FALSE(IsRunActive(station, 2));
    EXPECT_FALSE(IsRunActive(station, 4));
}

TEST(StationConfig, places_runs_compactly) {
    const StationConfig station = SampleStation(Choices);
    EXPECT_EQ(ElementOfRun(station, 1), 0);
    EXPECT_EQ(ElementOfRun(station, 4), 1);
}

TEST(StationConfig, places_the_first_run_before_all_others) {
    StationConfig station;
    for (RunFlag& run : station.RunList)
        run.Flag = "Yes";
    for (int run = 0; run < MaxRuns; ++run)
        EXPECT_EQ(ElementOfRun(station, run), run);
}

TEST(RunArrays, always_hold_five_mechanical_records_for_a_whole_station) {
    RunArrays runs;
    runs.PrepareWholeStation(2);
    EXPECT_EQ(runs.IO.size(), 2U);
    EXPECT_EQ(runs.Gas.size(), 2U);
    EXPECT_EQ(runs.Mechanical.size(), 5U);
}

TEST(RunGas, has_one_slot_for_carbon_dioxide_and_two_for_hydrogen) {
    RunGas gas;
    gas[GasSlot::GC_CO2].Tag = "0.01";
    gas[GasSlot::GC_H].Tag = "0.02";
    EXPECT_EQ(gas[GasSlot::XCO2].Tag, "0.01");
    EXPECT_EQ(gas[GasSlot::XH2].Tag, "");
    EXPECT_EQ(GasSlots, 33U);
}

TEST(TagBinding, counts_as_made_by_its_register_alone) {
    EXPECT_FALSE((TagBinding{"PT-1", "AX", ""}.IsMade()));
    EXPECT_TRUE((TagBinding{"", "", "0"}.IsMade()));
}

} // namespace
} // namespace gfc::config
