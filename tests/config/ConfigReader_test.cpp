#include "SampleStation.h"
#include "config/ConfigReader.h"
#include "config/RunLayout.h"
#include "support/MemoryFiles.h"
#include "support/RunPlace.h"

#include <gmock/gmock.h>

#include <set>

namespace gfc::config {
namespace {

const std::string File = "/jobs/KDOrmAGA_plant_North.ini";

struct ConfigReader : testing::Test {
    test::MemoryFiles Files;
    FileIni Ini{Files};
    std::string& Bytes = Files.Content[File];
    StationConfig Station;

    void LoadGolden(const char* name, int run) {
        Bytes = GoldenFile(name);
        LoadStationConfig(Ini, Station, File);
        LoadRun(Ini, Station, File, run);
    }
};

TEST_F(ConfigReader, reads_the_common_part) {
    Bytes = GoldenFile("aga3_detail_measured");
    LoadStationConfig(Ini, Station, File);
    EXPECT_EQ(Station.EnableDataTraces, "Yes");
    EXPECT_EQ(Station.DeviceDataTraces, "/nvram/kdormaga.txt");
    EXPECT_EQ(Station.NumberTraces, "1000");
    EXPECT_THAT(Station.Run, testing::ElementsAre("No", "Yes", "No", "No", "Yes"));
    EXPECT_EQ(Station.FlowAlgorithm, "AGA3");
    EXPECT_EQ(Station.GasDensitySource, "ISO-12213-2-1997");
    EXPECT_EQ(Station.SystemUnits, "Metric");
    EXPECT_EQ(Station.StandardT, "15.00");
    EXPECT_EQ(Station.StandardP, "1.01325");
    EXPECT_EQ(Station.GasDensityStandardT, "15.00");
    EXPECT_EQ(Station.GasDensityStandardP, "1.01325");
    EXPECT_EQ(Station.Compressible, "Yes");
    EXPECT_EQ(Station.FlowingViscosity, "0.010268");
    EXPECT_EQ(Station.IsentropicCoeff, "1.3");
    EXPECT_EQ(Station.PressType, "Gage");
    EXPECT_EQ(Station.ExtAtmPress, "Yes");
    EXPECT_EQ(Station.AtmPress, "1.01325");
    EXPECT_EQ(Station.CommonPa, (TagBinding{"PA-1", "FX", "77"}));
    EXPECT_EQ(Station.AGA8Method, "DETAIL");
    EXPECT_EQ(Station.AGA8CalInput, "MEASURED");
    EXPECT_EQ(Station.WorkingModules.WrkFloatModName, "VF0");
    EXPECT_EQ(Station.WorkingModules.WrkFloatRegAddr, "11");
    EXPECT_EQ(Station.WorkingModules.WrkFloatRegType, "FX");
    EXPECT_EQ(Station.WorkingModules.WrkIntLongModName, "VL0");
    EXPECT_EQ(Station.WorkingModules.WrkIntLongRegAddr, "12");
    EXPECT_EQ(Station.WorkingModules.WrkIntLongRegType, "LX");
    EXPECT_EQ(Station.WorkingModules.WrkAnalogModName, "VA0");
    EXPECT_EQ(Station.WorkingModules.WrkAnalogRegAddr, "13");
    EXPECT_EQ(Station.WorkingModules.WrkAnalogRegType, "AX");
}

TEST_F(ConfigReader, leaves_alone_what_the_opener_of_a_station_sets) {
    Bytes = GoldenFile("aga7_densimeter");
    Station.RunList[0] = {"Run1", "Yes"};
    Station.ActiveRunCount = 3;
    Station.UserId = "12";
    Station.CurrentStation = "South";
    LoadStationConfig(Ini, Station, File);
    EXPECT_EQ(Station.RunList[0].Flag, "Yes");
    EXPECT_EQ(Station.RunList[1].Flag, "");
    EXPECT_EQ(Station.ActiveRunCount, 3);
    EXPECT_FALSE(Station.FlagAGA7);
    EXPECT_FALSE(Station.Measured);
    EXPECT_EQ(Station.UserId, "12") << "the general section is never read";
    EXPECT_EQ(Station.CurrentStation, "South");
}

TEST_F(ConfigReader, takes_the_base_conditions_of_the_algorithms_section_and_of_the_runs_apart) {
    Bytes = Lines({"[FlowRuns]", "FlowAlgorithm=AGA3", "GasDensityStandardT=1", "GasDensityStandardP=2",
                   "[AGA3]", "StandardT=3", "StandardP=4", "[AGA7]", "StandardT=5"});
    LoadStationConfig(Ini, Station, File);
    EXPECT_EQ(Station.GasDensityStandardT, "1");
    EXPECT_EQ(Station.GasDensityStandardP, "2");
    EXPECT_EQ(Station.StandardT, "3");
    EXPECT_EQ(Station.StandardP, "4");
}

TEST_F(ConfigReader, chooses_the_section_by_the_algorithm) {
    const struct {
        const char* Algorithm;
        const char* Expected;
    } table[] = {{"AGA3", "3"},         {"Accelabar-AGA-3-1992", "3"},
                 {"SYT6143-2004", "3"}, {"AGA7", "7"},
                 {"Something", "7"},    {"", "7"},
                 {"aga3", "7"}};
    for (const auto& [algorithm, expected] : table) {
        Bytes = Lines({"[FlowRuns]", (std::string("FlowAlgorithm=") + algorithm).c_str(), "[AGA3]",
                       "StandardT=3", "[AGA7]", "StandardT=7"});
        LoadStationConfig(Ini, Station, File);
        EXPECT_EQ(Station.StandardT, expected) << algorithm;
    }
}

TEST_F(ConfigReader, gives_empty_conditions_without_the_algorithms_section) {
    Station.StandardT = "60.00";
    Bytes = Lines({"[FlowRuns]", "FlowAlgorithm=AGA7", "[AGA3]", "StandardT=3"});
    LoadStationConfig(Ini, Station, File);
    EXPECT_EQ(Station.StandardT, "");
}

TEST_F(ConfigReader, empties_method_and_composition_source_for_a_densimeter) {
    Station.AGA8Method = "DETAIL";
    Station.AGA8CalInput = "MEASURED";
    Bytes = GoldenFile("aga3_densimeter");
    LoadStationConfig(Ini, Station, File);
    EXPECT_EQ(Station.AGA8Method, "");
    EXPECT_EQ(Station.AGA8CalInput, "");
}

TEST_F(ConfigReader, gives_empty_texts_for_a_file_that_is_not_there) {
    Station = SampleStation({"AGA3", "AGA8", "FIXED"});
    LoadStationConfig(Ini, Station, "/jobs/none.ini");
    LoadRun(Ini, Station, "/jobs/none.ini", 2);
    EXPECT_EQ(Station.FlowAlgorithm, "");
    EXPECT_EQ(Station.WorkingModules.WrkFloatModName, "");
    EXPECT_EQ(Station.CommonPa, TagBinding{});
    EXPECT_EQ(Station.Runs.IO.front(), RunIO{});
    EXPECT_EQ(Station.Runs.Mechanical.front(), RunMechanical{});
    EXPECT_FALSE(Files.Exists("/jobs/none.ini"));
}

TEST_F(ConfigReader, loads_one_run_over_a_whole_station) {
    Station = SampleStation({"AGA3", "AGA8", "FIXED"});
    LoadGolden("syt6143_detail_measured", 5);
    EXPECT_EQ(Station.Runs.IO.size(), 1U);
    EXPECT_EQ(Station.Runs.Gas.size(), 1U);
    EXPECT_EQ(Station.Runs.Mechanical.size(), 1U);
}

TEST_F(ConfigReader, loads_inputs_outputs_and_mechanical_data_of_the_run_asked_for) {
    LoadGolden("syt6143_detail_measured", 5);
    const StationConfig expected = SampleRun({"SYT6143-2004", "ISO-12213-2-1997", "MEASURED"}, 5);
    const RunIO& io = Station.Runs.IO.front();
    const RunIO& sample = expected.Runs.IO.front();
    EXPECT_EQ(io.CalibrationFactor, sample.CalibrationFactor);
    EXPECT_EQ(io.ContractHour, "5");
    EXPECT_EQ(io.ContractMin, "50");
    EXPECT_EQ(io.GasTemp, (TagBinding{"Température 5", "AX", "5003"}));
    EXPECT_EQ(io.GFCRunHold, TagBinding{});
    for (const auto field : {&RunIO::GasPress, &RunIO::GasDP, &RunIO::ResetTotals, &RunIO::GFCTotalizeHold,
                             &RunIO::PipeAbsRoughness, &RunIO::OrificeServiceTime, &RunIO::StdVolFlow,
                             &RunIO::StdMassFlow, &RunIO::GasVolume, &RunIO::GasMass, &RunIO::AGA3Status})
        EXPECT_EQ(io.*field, sample.*field) << (sample.*field).Tag;
    for (const auto field : {&RunIO::GasPulseInput, &RunIO::GasDensity, &RunIO::PipeDia, &RunIO::OrificeDia})
        EXPECT_EQ(io.*field, TagBinding{}) << "no keys under these choices";
    const RunMechanical& mechanical = Station.Runs.Mechanical.front();
    EXPECT_EQ(mechanical.InternalPipeDia, "R5 InternalPipeDia");
    EXPECT_EQ(mechanical.PipeThermalExpCoeff, "R5 PipeThermalExpCoeff");
    EXPECT_EQ(mechanical.AccelabarK, "");
    EXPECT_EQ(mechanical.ExtMechParam, "No");
}

TEST_F(ConfigReader, copies_the_runs_own_pressure_values) {
    Bytes = Lines({"[Run3]", "PressType=Absolute", "ExtAtmPress=Yes", "AtmPress=1.5", "PaKDIOTag=PA-9",
                   "PaKDIOType=FX", "PaKDIORegAddr=9"});
    LoadRun(Ini, Station, File, 3);
    EXPECT_EQ(Station.Runs.Mechanical[0].PressType, "Absolute");
    EXPECT_EQ(Station.Runs.Mechanical[0].ExtAtmPress, "Yes");
    EXPECT_EQ(Station.Runs.Mechanical[0].AtmPress, "1.5");
    EXPECT_EQ(Station.Runs.IO[0].Pa, (TagBinding{"PA-9", "FX", "9"}));
    EXPECT_EQ(Station.PressType, "") << "the common values are not touched";
    EXPECT_EQ(Station.CommonPa, TagBinding{});
}

TEST_F(ConfigReader, finds_keys_in_any_case) {
    Bytes = Lines({"[RUN2]", "STDVOLFLOWKDIOTAG=A", "StdVolFlowKDIOtype=FY", "aga8zkdiotag=B",
                   "AGA8GRsKDIORegAddr=17"});
    LoadRun(Ini, Station, File, 2);
    EXPECT_EQ(Station.Runs.IO[0].StdVolFlow, (TagBinding{"A", "FY", ""}));
    EXPECT_EQ(Station.Runs.Gas[0][GasSlot::AGA8z].Tag, "B");
    EXPECT_EQ(Station.Runs.Gas[0][GasSlot::AGA8GRs].RegAddr, "17");
}

TEST_F(ConfigReader, has_no_temperature_and_pressure_for_a_pulse_meter_with_densimeter) {
    LoadGolden("aga7_densimeter", 2);
    EXPECT_EQ(Station.Runs.IO[0].GasTemp, TagBinding{});
    EXPECT_EQ(Station.Runs.IO[0].GasPress, TagBinding{});
    EXPECT_EQ(Station.Runs.IO[0].meterKFactor, "2.02");
    EXPECT_EQ(Station.Runs.IO[0].GasPulseInput, (TagBinding{"R2.GasPulseInput", "LX", "2001"}));
    EXPECT_EQ(Station.Runs.IO[0].GasDensity, (TagBinding{"R2.GasDensity", "AX", "2002"}));
    EXPECT_EQ(Station.Runs.IO[0].GasDensityStandard, "0.72");
}

TEST_F(ConfigReader, loads_component_bindings_of_the_detail_family) {
    LoadGolden("aga3_detail_measured", 2);
    const RunGas& gas = Station.Runs.Gas.front();
    const RunGas sample = SampleRun({"AGA3", "ISO-12213-2-1997", "MEASURED"}, 2).Runs.Gas.front();
    for (int slot = 0; slot < static_cast<int>(GasSlots); ++slot) {
        const auto place = static_cast<GasSlot>(slot);
        const bool gross =
            place == GasSlot::XH2 || place == GasSlot::VolCalorificValue || place == GasSlot::RelativeDensity;
        EXPECT_EQ(gas[place], gross ? TagBinding{} : sample[place]) << slot;
    }
}

TEST_F(ConfigReader, loads_the_four_bindings_of_the_gross_family) {
    LoadGolden("accelabar_gross_measured", 5);
    const RunGas& gas = Station.Runs.Gas.front();
    EXPECT_EQ(gas[GasSlot::XCO2], (TagBinding{"R5.GC_CO2", "FX", "5102"}));
    EXPECT_EQ(gas[GasSlot::XH2], (TagBinding{"R5.XH2", "FX", "5121"}));
    EXPECT_EQ(gas[GasSlot::VolCalorificValue], (TagBinding{"R5.VolCalorificValue", "FX", "5122"}));
    EXPECT_EQ(gas[GasSlot::RelativeDensity], (TagBinding{"R5.RelativeDensity", "FX", "5123"}));
    EXPECT_EQ(gas[GasSlot::GCEnable], (TagBinding{"R5.GCEnable", "X", "5124"}));
    EXPECT_EQ(gas[GasSlot::AGA8GRs], (TagBinding{"R5.AGA8GRs", "FY", "5132"}));
    EXPECT_EQ(gas[GasSlot::GC_C1], TagBinding{});
}

// Deliberate: the key stays in the reader though nothing writes it.
TEST_F(ConfigReader, still_asks_for_the_hydrogen_key_that_nobody_writes) {
    Bytes = Lines({"[Run1]", "GC_H2KDIOTag=H2", "GC_H2KDIOType=FX", "GC_H2KDIOAddr=5", "XH2KDIOTag=X"});
    Station.GasDensitySource = "AGA8";
    LoadRun(Ini, Station, File, 1);
    EXPECT_EQ(Station.Runs.Gas[0][GasSlot::XH2], (TagBinding{"H2", "FX", "5"}));
    Station.GasDensitySource = "SGERG88";
    LoadRun(Ini, Station, File, 1);
    EXPECT_EQ(Station.Runs.Gas[0][GasSlot::XH2], (TagBinding{"X", "", ""}));
}

TEST_F(ConfigReader, puts_fixed_values_apart_from_the_bindings) {
    LoadGolden("aga3_detail_fixed", 2);
    EXPECT_EQ(Station.GasComposition[GasSlot::GC_C1].Tag, "0.2100");
    EXPECT_EQ(Station.GasComposition[GasSlot::GC_Ar].Tag, "0.2120");
    EXPECT_EQ(Station.Runs.Gas[0][GasSlot::GC_C1], TagBinding{});
    EXPECT_EQ(Station.Runs.Gas[0][GasSlot::AGA8z], (TagBinding{"R2.AGA8z", "FY", "2127"}));
}

TEST_F(ConfigReader, reads_the_gross_values_for_a_densimeter_too) {
    Bytes = Lines({"[Run1]", "XCO2=0.01", "XH2=0.02", "RelativeDensity=0.6", "VolCalorificValue=40",
                   "GC_C1=0.9", "XH2KDIOTag=T"});
    Station.GasDensitySource = "MEASURED";
    LoadRun(Ini, Station, File, 1);
    EXPECT_EQ(Station.GasComposition[GasSlot::XCO2].Tag, "0.01");
    EXPECT_EQ(Station.GasComposition[GasSlot::XH2].Tag, "0.02");
    EXPECT_EQ(Station.GasComposition[GasSlot::RelativeDensity].Tag, "0.6");
    EXPECT_EQ(Station.GasComposition[GasSlot::VolCalorificValue].Tag, "40");
    EXPECT_EQ(Station.GasComposition[GasSlot::GC_C1].Tag, "");
    EXPECT_EQ(Station.Runs.Gas[0][GasSlot::XH2].Tag, "T");
}

TEST_F(ConfigReader, reads_the_fixed_composition_alone) {
    Bytes = GoldenFile("syt6143_gross_fixed");
    Station.GasDensitySource = "SGERG88";
    Station.Runs.PrepareWholeStation(3);
    Station.GasComposition[GasSlot::GC_N2].Tag = "kept";
    LoadFixedComposition(Ini, Station, File, 5);
    EXPECT_EQ(Station.GasComposition[GasSlot::XCO2].Tag, "0.5102");
    EXPECT_EQ(Station.GasComposition[GasSlot::GC_N2].Tag, "kept") << "a slot of the other family";
    EXPECT_EQ(Station.Runs.IO.size(), 3U) << "the arrays are not touched";
    LoadFixedComposition(Ini, Station, File, 1);
    EXPECT_EQ(Station.GasComposition[GasSlot::XCO2].Tag, "") << "a run that the file does not have";
}

TEST_F(ConfigReader, reads_the_mechanical_data_alone) {
    Bytes = GoldenFile("accelabar_densimeter");
    const RunMechanical mechanical = LoadRunMechanical(Ini, File, 5);
    EXPECT_EQ(mechanical.AccelabarK, "R5 AccelabarK");
    EXPECT_EQ(mechanical.PressureTap, "R5 PressureTap");
    EXPECT_EQ(mechanical.AtmPress, "1.01325");
    EXPECT_EQ(mechanical.ExtMechParam, "");
    EXPECT_EQ(LoadRunMechanical(Ini, File, 1), RunMechanical{});
}

// Each key of a run has a line, in another order than the table's and in another case.
std::string FileOfAllKeys() {
    std::string bytes;
    int number = 0;
    for (const RunRow& row : RunRows())
        ForEachPart(row, [&](BindingPart part) {
            std::string key = KeyOf(row, part, KeyUse::Update);
            key[0] = static_cast<char>(key[0] | 0x20);
            bytes.insert(0, key + "=" + std::to_string(++number) + "\r\n");
        });
    return "[Run1]\r\n" + bytes;
}

TEST_F(ConfigReader, reads_each_key_of_a_run_as_if_it_were_read_alone) {
    Bytes = FileOfAllKeys();
    for (const char* source : {"AGA8", "SGERG88"}) {
        Station.GasDensitySource = source;
        LoadRun(Ini, Station, File, 1);
        const RunTarget run{Station.Runs.IO[0], Station.Runs.Gas[0], Station.Runs.Mechanical[0],
                            Station.GasComposition};
        const std::string_view others = source == std::string_view("AGA8") ? "AQS" : "ART";
        for (const RunRow& row : RunRows()) {
            if (others.find(row.Group) != std::string_view::npos)
                continue;
            ForEachPart(row, [&](BindingPart part) {
                const std::string key = KeyOf(row, part, KeyUse::Read);
                EXPECT_EQ(*test::PlaceOf(row, part, run), Ini.ReadKey("Run1", key, File)) << key;
                EXPECT_NE(*test::PlaceOf(row, part, run), "") << key;
            });
        }
    }
}

// Those places among them that the record holds.
template <class Record>
std::size_t PlacesIn(const std::set<const std::string*>& places, const Record& record) {
    const auto* const begin = reinterpret_cast<const std::string*>(&record);
    return static_cast<std::size_t>(std::distance(
        places.lower_bound(begin), places.lower_bound(begin + sizeof(Record) / sizeof(*begin))));
}

// A load goes by the rows alone: a text without one would keep what was read of another run.
TEST(RunRows, reach_every_text_of_a_runs_records) {
    RunIO io;
    RunGas gas;
    RunMechanical mechanical;
    RunGas fixed;
    std::set<const std::string*> places;
    for (const RunRow& row : RunRows())
        ForEachPart(row, [&](BindingPart part) {
            places.insert(test::PlaceOf(row, part, {io, gas, mechanical, fixed}));
        });
    EXPECT_EQ(PlacesIn(places, io) * sizeof(std::string), sizeof io);
    EXPECT_EQ(PlacesIn(places, mechanical) * sizeof(std::string), sizeof mechanical);
    EXPECT_EQ(PlacesIn(places, gas) * sizeof(std::string), sizeof gas);
}

TEST_F(ConfigReader, leaves_nothing_of_the_run_before) {
    RunMechanical onlyTap;
    onlyTap.PressureTap = "Flange";
    for (const char* source : {"AGA8", "SGERG88", "MEASURED"}) {
        Station.GasDensitySource = source;
        Bytes = FileOfAllKeys();
        LoadRun(Ini, Station, File, 1);
        EXPECT_NE(Station.Runs.IO[0].StdVolFlow.Tag, "");
        Bytes = "[Run2]\r\nPressureTap=Flange\r\n";
        LoadRun(Ini, Station, File, 2);
        EXPECT_EQ(Station.Runs.IO, std::vector<RunIO>(1)) << source;
        EXPECT_EQ(Station.Runs.Gas, std::vector<RunGas>(1)) << source;
        EXPECT_EQ(Station.Runs.Mechanical, std::vector<RunMechanical>(1, onlyTap)) << source;
    }
}

// Of the whole station as of another run, and whatever of it this source does not read.
TEST_F(ConfigReader, leaves_nothing_of_the_whole_station) {
    Station.Runs.PrepareWholeStation(3);
    for (std::size_t slot = 0; slot < GasSlots; ++slot)
        Station.Runs.Gas[0][static_cast<GasSlot>(slot)] = {"old", "FX", "1"};
    Station.Runs.Mechanical[0].PipeMaterial = "old";
    Bytes = "[Run1]\r\n";
    LoadRun(Ini, Station, File, 1);
    EXPECT_EQ(Station.Runs.IO, std::vector<RunIO>(1));
    EXPECT_EQ(Station.Runs.Gas, std::vector<RunGas>(1));
    EXPECT_EQ(Station.Runs.Mechanical, std::vector<RunMechanical>(1));
}

TEST_F(ConfigReader, reads_a_file_once_for_each_load) {
    Bytes = GoldenFile("aga3_detail_measured");
    LoadStationConfig(Ini, Station, File);
    EXPECT_EQ(Files.Reads, 1);
    LoadRun(Ini, Station, File, 2);
    EXPECT_EQ(Files.Reads, 2);
}

} // namespace
} // namespace gfc::config
