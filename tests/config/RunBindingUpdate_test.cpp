#include "SampleStation.h"
#include "config/ConfigReader.h"
#include "config/ConfigWriter.h"
#include "config/InPlaceUpdate.h"
#include "support/MemoryFiles.h"

#include <gmock/gmock.h>

namespace gfc::config {
namespace {

using testing::HasSubstr;
using testing::Not;

const std::string File = "/jobs/KDOrmAGA_plant_North.ini";

struct WriteRunBindingsTest : testing::Test {
    test::MemoryFiles Files;
    FileIni Ini{Files};
    std::string& Bytes = Files.Content[File];

    void Write(const SampleChoices& choices, int kind, int run = 2) {
        WriteRunBindings(Ini, SampleRun(choices, run), kind, run, File);
    }
    std::string Value(const char* key) { return Ini.ReadKey("Run2", key, File); }
};

const SampleChoices Densimeter{"AGA3", "MEASURED", ""};
const SampleChoices Pulse{"AGA7", "MEASURED", ""};
const SampleChoices DetailMeasured{"AGA3", "AGA8", "MEASURED"};

TEST_F(WriteRunBindingsTest, only_enables_the_run_for_a_kind_that_it_does_not_know) {
    for (const int kind : {0, -1, 5, 17}) {
        Bytes = Lines({"[FlowRuns]", "Run2=No", "Run22=No", "[Run2]", "GasPulseInputKDIOTag=X"});
        Write(Densimeter, kind);
        EXPECT_EQ(Bytes, Lines({"[FlowRuns]", "Run2=Yes", "Run22=No", "[Run2]", "GasPulseInputKDIOTag=X"}))
            << kind;
    }
}

TEST_F(WriteRunBindingsTest, of_inputs_keep_comments_foreign_keys_and_other_sections) {
    Bytes = Lines({"; by hand", "[flowruns]", "RUN2=No", "", "[Foreign]", "A=1", "[run2]", "; inputs",
                   "GASDPKDIOTAG=old", "Mine=1", "meterKFactor=3", "GasPulseInputKDIOTag=old", "", "[Run3]",
                   "GasDPKDIOTag=other"});
    Write(Densimeter, 1);
    EXPECT_EQ(Bytes, Lines({"; by hand",
                            "[flowruns]",
                            "Run2=Yes",
                            "",
                            "[Foreign]",
                            "A=1",
                            "[run2]",
                            "; inputs",
                            "GasDPKDIOTag=R2.GasDP",
                            "Mine=1",
                            "GasDensityStandard=0.72",
                            "GasDensityKDIOTag=R2.GasDensity",
                            "GasDensityKDIOType=AX",
                            "GasDensityKDIORegAddr=2002",
                            "GasDPKDIOType=AX",
                            "GasDPKDIORegAddr=2006",
                            "GasPressKDIOTag=R2.GasPress",
                            "GasPressKDIOType=AX",
                            "GasPressKDIORegAddr=2004",
                            "GasTempKDIOTag=R2.GasTemp",
                            "GasTempKDIOType=AX",
                            "GasTempKDIORegAddr=2003",
                            "PaKDIOTag=PA-1",
                            "PaKDIOType=FX",
                            "PaKDIORegAddr=77",
                            "PipeDiaKDIOTag=R2.PipeDia",
                            "PipeDiaKDIOType=FX",
                            "PipeDiaKDIORegAddr=2010",
                            "OrificeDiaKDIOTag=R2.OrificeDia",
                            "OrificeDiaKDIOType=FX",
                            "OrificeDiaKDIORegAddr=2012",
                            "GFCRunHoldKDIOTag=R2.GFCRunHold",
                            "GFCRunHoldKDIOType=X",
                            "GFCRunHoldKDIORegAddr=2008",
                            "GFCTotalizeHoldKDIOTag=R2.GFCTotalizeHold",
                            "GFCTotalizeHoldKDIOType=X",
                            "GFCTotalizeHoldKDIORegAddr=2009",
                            "ResetTotalsKDIOTag=R2.ResetTotals",
                            "ResetTotalsKDIOType=X",
                            "ResetTotalsKDIORegAddr=2007",
                            "CalibrationFactor=1.02",
                            "ContractHour=2",
                            "ContractMin=20",
                            "",
                            "[Run3]",
                            "GasDPKDIOTag=other"}));
    EXPECT_EQ(Files.Replaces, 1);
}

TEST_F(WriteRunBindingsTest, of_a_pulse_meter_start_with_the_type_and_end_with_the_factor) {
    Write(Pulse, 1);
    EXPECT_THAT(Bytes, HasSubstr("GasPulseInputKDIOType=LX\r\nGasPulseInputKDIOTag=R2.GasPulseInput\r\n"
                                 "GasPulseInputKDIORegAddr=2001\r\nmeterKFactor=2.02\r\nGFCRunHoldKDIOTag="));
    EXPECT_THAT(Bytes, Not(HasSubstr("GasTemp")));
    EXPECT_THAT(Bytes, Not(HasSubstr("GasDPKDIO")));
}

TEST_F(WriteRunBindingsTest, drop_the_pulse_keys_when_the_algorithm_changes) {
    Bytes = GoldenFile("aga7_densimeter");
    EXPECT_NE(Value("meterKFactor"), "");
    Write(Densimeter, 1);
    EXPECT_THAT(Bytes.substr(Bytes.find("[Run2]"), Bytes.find("[Run5]") - Bytes.find("[Run2]")),
                testing::AllOf(Not(HasSubstr("meterKFactor")), Not(HasSubstr("GasPulseInput"))));
    EXPECT_EQ(Value("GasDPKDIORegAddr"), "2006");
    EXPECT_EQ(Ini.ReadKey("Run5", "meterKFactor", File), "2.05") << "another run is not concerned";
}

TEST_F(WriteRunBindingsTest, drop_the_density_keys_when_a_gas_model_takes_over) {
    Bytes = GoldenFile("aga3_densimeter");
    Write(DetailMeasured, 1);
    for (const char* key :
         {"GasDensityStandard", "GasDensityKDIOTag", "GasDensityKDIOType", "GasDensityKDIORegAddr"})
        EXPECT_EQ(Value(key), "") << key;
    EXPECT_EQ(Value("GasTempKDIOTag"), "R2.GasTemp");
}

TEST_F(WriteRunBindingsTest, keep_temperature_and_pressure_of_a_pulse_meter_for_a_gas_model_only) {
    Write({"AGA7", "SGERG88", "FIXED"}, 1);
    EXPECT_EQ(Value("GasTempKDIOTag"), "R2.GasTemp");
    EXPECT_EQ(Value("GasPressKDIOTag"), "R2.GasPress");
    Write(Pulse, 1);
    EXPECT_EQ(Value("GasTempKDIOTag"), "");
    EXPECT_EQ(Value("GasPressKDIORegAddr"), "");
}

// A full write has these keys for it.
TEST_F(WriteRunBindingsTest, deliberately_drop_temperature_and_pressure_of_an_unknown_algorithm) {
    Bytes = Lines({"[Run2]", "GasTempKDIOTag=T", "GasPressKDIOTag=P"});
    Write({"Unknown", "MEASURED", ""}, 1);
    EXPECT_EQ(Value("GasTempKDIOTag"), "");
    EXPECT_EQ(Value("GasPressKDIOTag"), "");
}

TEST_F(WriteRunBindingsTest, follow_the_external_flags_in_any_spelling_of_yes) {
    StationConfig station = SampleRun(Densimeter, 2);
    station.ExtAtmPress = "yes";
    station.Runs.Mechanical[0].ExtMechParam = "YES";
    WriteRunBindings(Ini, station, 1, 2, File);
    EXPECT_EQ(Value("PaKDIOTag"), "PA-1") << "of the common binding, not of the run's own";
    EXPECT_EQ(Value("PipeDiaKDIOTag"), "R2.PipeDia");
    station.ExtAtmPress = "No";
    station.Runs.Mechanical[0].ExtMechParam = "No";
    WriteRunBindings(Ini, station, 1, 2, File);
    EXPECT_THAT(Bytes, Not(HasSubstr("PaKDIO")));
    EXPECT_THAT(Bytes, Not(HasSubstr("DiaKDIO")));
}

TEST_F(WriteRunBindingsTest, have_roughness_and_service_time_for_one_algorithm) {
    Write({"SYT6143-2004", "MEASURED", ""}, 1);
    EXPECT_EQ(Value("PipeAbsRoughnessKDIORegAddr"), "2011");
    EXPECT_EQ(Value("OrificeServiceTimeKDIORegAddr"), "2013");
    Write(Densimeter, 1);
    EXPECT_THAT(Bytes, Not(HasSubstr("PipeAbsRoughness")));
    EXPECT_THAT(Bytes, Not(HasSubstr("OrificeServiceTime")));
}

TEST_F(WriteRunBindingsTest, of_outputs_are_new_in_their_own_order) {
    Bytes = Lines({"[FlowRuns]", "Run2=Yes", "[Run2]", "ContractMin=1"});
    Write(Densimeter, 2);
    EXPECT_EQ(
        Bytes,
        Lines({"[FlowRuns]", "Run2=Yes", "[Run2]", "ContractMin=1", "GasVolumeKDIOTag=R2.GasVolume",
               "GasVolumeKDIOType=FY", "GasVolumeKDIORegAddr=2016", "GasMassKDIOTag=R2.GasMass",
               "GasMassKDIOType=FY", "GasMassKDIORegAddr=2017", "StdMassFlowKDIOTag=R2.StdMassFlow",
               "StdMassFlowKDIOType=FY", "StdMassFlowKDIORegAddr=2015", "StdVolFlowKDIOTag=R2.StdVolFlow",
               "StdVolFlowKDIOType=FY", "StdVolFlowKDIORegAddr=2014", "AGA3StatusKDIOTag=R2.AGA3Status",
               "AGA3StatusKDIOType=FY", "AGA3StatusKDIORegAddr=2018"}));
}

TEST_F(WriteRunBindingsTest, of_outputs_keep_one_line_where_the_full_write_spelt_it_otherwise) {
    Bytes = GoldenFile("aga3_densimeter");
    Write(Densimeter, 2);
    std::string expected = GoldenFile("aga3_densimeter");
    for (const auto& [from, to] : {std::pair{"StdVolFlowKDIOtag=R2", "StdVolFlowKDIOTag=R2"},
                                   std::pair{"StdVolFlowKDIOtype=", "StdVolFlowKDIOType="}})
        expected.replace(expected.find(from), std::string(from).size(), to);
    EXPECT_EQ(Bytes, expected);
}

TEST_F(WriteRunBindingsTest, of_gas_outputs_are_new_in_their_own_order) {
    Bytes = Lines({"[FlowRuns]", "Run2=Yes", "[Run2]", "aga8grskdioregaddr=1", "AGA8zKDIOTag=old"});
    Write(Densimeter, 3);
    EXPECT_EQ(Bytes, Lines({"[FlowRuns]",
                            "Run2=Yes",
                            "[Run2]",
                            "AGA8GRsKDIORegAddr=2132",
                            "AGA8zKDIOTAg=R2.AGA8z",
                            "AGA8rhotpKDIOTag=R2.AGA8rhotp",
                            "AGA8rhotpKDIOType=FY",
                            "AGA8rhotpKDIORegAddr=2125",
                            "AGA8rhosKDIOTag=R2.AGA8rhos",
                            "AGA8rhosKDIOType=FY",
                            "AGA8rhosKDIORegAddr=2126",
                            "AGA8zKDIOType=FY",
                            "AGA8zKDIORegAddr=2127",
                            "AGA8zsKDIOTag=R2.AGA8zs",
                            "AGA8zsKDIOType=FY",
                            "AGA8zsKDIORegAddr=2128",
                            "AGA8fpvsKDIOTag=R2.AGA8fpvs",
                            "AGA8fpvsKDIOType=FY",
                            "AGA8fpvsKDIORegAddr=2129",
                            "AGA8uncertKDIOTag=R2.AGA8uncert",
                            "AGA8uncertKDIOType=FY",
                            "AGA8uncertKDIORegAddr=2130",
                            "AGA8StatusKDIOTag=R2.AGA8Status",
                            "AGA8StatusKDIOType=FY",
                            "AGA8StatusKDIORegAddr=2131",
                            "AGA8GRsKDIOTag=R2.AGA8GRs",
                            "AGA8GRsKDIOType=FY"}));
}

TEST_F(WriteRunBindingsTest, of_fixed_gross_values_are_four) {
    Write({"AGA3", "SGERG88", "FIXED"}, 4);
    EXPECT_EQ(Bytes, Lines({"[FlowRuns]", "Run2=Yes", "[Run2]", "VolCalorificValue=0.2122",
                            "RelativeDensity=0.2123", "XCO2=0.2102", "XH2=0.2121"}));
}

TEST_F(WriteRunBindingsTest, of_fixed_components_are_twenty_one) {
    Write({"AGA3", "ISO-12213-2-1997", "FIXED"}, 4);
    EXPECT_THAT(Bytes,
                HasSubstr("[Run2]\r\nGC_C1=0.2100\r\nGC_N2=0.2101\r\nGC_CO2=0.2102\r\nGC_C2=0.2103\r\n"));
    EXPECT_THAT(Bytes, testing::EndsWith("GC_He=0.2119\r\nGC_Ar=0.2120\r\n"));
    EXPECT_EQ(std::count(Bytes.begin(), Bytes.end(), '\n'), 3 + 21);
}

TEST_F(WriteRunBindingsTest, of_measured_gross_properties_end_with_the_enable_input) {
    Write({"AGA3", "ISO-12213-3-1997", "MEASURED"}, 4);
    EXPECT_EQ(Bytes,
              Lines({"[FlowRuns]", "Run2=Yes", "[Run2]", "VolCalorificValueKDIOTag=R2.VolCalorificValue",
                     "VolCalorificValueKDIOType=FX", "VolCalorificValueKDIOAddr=2122",
                     "RelativeDensityKDIOTag=R2.RelativeDensity", "RelativeDensityKDIOType=FX",
                     "RelativeDensityKDIOAddr=2123", "XCO2KDIOTag=R2.GC_CO2", "XCO2KDIOType=FX",
                     "XCO2KDIOAddr=2102", "XH2KDIOTag=R2.XH2", "XH2KDIOType=FX", "XH2KDIOAddr=2121",
                     "GCEnableKDIOTag=R2.GCEnable", "GCEnableKDIOType=X", "GCEnableKDIORegAddr=2124"}));
}

TEST_F(WriteRunBindingsTest, of_measured_components_end_with_the_enable_input) {
    Write(DetailMeasured, 4);
    EXPECT_THAT(Bytes,
                HasSubstr("[Run2]\r\nGC_C1KDIOTag=R2.GC_C1\r\nGC_C1KDIOType=FX\r\nGC_C1KDIOAddr=2100\r\n"
                          "GC_N2KDIOTag=R2.GC_N2\r\n"));
    EXPECT_THAT(Bytes, testing::EndsWith("GC_ArKDIOAddr=2120\r\nGCEnableKDIOTag=R2.GCEnable\r\n"
                                         "GCEnableKDIOType=X\r\nGCEnableKDIORegAddr=2124\r\n"));
    EXPECT_EQ(std::count(Bytes.begin(), Bytes.end(), '\n'), 3 + 63 + 3);
}

// Deliberate: the reader goes by the composition source, and the old keys do not confuse it.
TEST_F(WriteRunBindingsTest, of_gas_inputs_never_delete) {
    Bytes = GoldenFile("aga3_detail_measured");
    Write({"AGA3", "AGA8", "FIXED"}, 4);
    EXPECT_EQ(Value("GC_C1"), "0.2100");
    EXPECT_EQ(Value("GC_C1KDIOTag"), "R2.GC_C1");
    EXPECT_EQ(Value("GCEnableKDIORegAddr"), "2124");
}

TEST_F(WriteRunBindingsTest, of_gas_inputs_take_a_densimeter_for_the_gross_family) {
    Write(Densimeter, 4);
    EXPECT_EQ(Value("XCO2"), "0.2102");
    EXPECT_EQ(Value("GC_C1"), "");
}

TEST_F(WriteRunBindingsTest, wipe_out_nothing_when_no_run_was_loaded) {
    StationConfig station = SampleRun(Densimeter, 2);
    station.Runs = {};
    for (const int kind : {1, 2, 3, 4}) {
        Bytes = GoldenFile("aga3_densimeter");
        WriteRunBindings(Ini, station, kind, 2, File);
        EXPECT_EQ(Bytes, GoldenFile("aga3_densimeter"));
    }
}

TEST_F(WriteRunBindingsTest, make_a_file_that_a_load_gives_back) {
    const SampleChoices choices{"SYT6143-2004", "AGA8", "MEASURED"};
    for (const int kind : {1, 2, 4, 3})
        Write(choices, kind, 5);
    StationConfig loaded;
    loaded.GasDensitySource = "AGA8";
    LoadRun(Ini, loaded, File, 5);
    const StationConfig sample = SampleRun(choices, 5);
    EXPECT_EQ(loaded.Runs.IO[0].StdVolFlow, sample.Runs.IO[0].StdVolFlow);
    EXPECT_EQ(loaded.Runs.IO[0].OrificeServiceTime, sample.Runs.IO[0].OrificeServiceTime);
    EXPECT_EQ(loaded.Runs.Gas[0][GasSlot::AGA8z], sample.Runs.Gas[0][GasSlot::AGA8z]);
    EXPECT_EQ(loaded.Runs.Gas[0][GasSlot::GC_nC10], sample.Runs.Gas[0][GasSlot::GC_nC10]);
}

} // namespace
} // namespace gfc::config
