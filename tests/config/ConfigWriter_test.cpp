#include "SampleStation.h"
#include "config/ConfigReader.h"
#include "config/ConfigWriter.h"
#include "support/MemoryFiles.h"

#include <gmock/gmock.h>

namespace gfc::config {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

const std::string File = "/jobs/KDOrmAGA_plant_North.ini";

struct GoldenCase {
    const char* Name;
    SampleChoices Choices;
};

void PrintTo(const GoldenCase& golden, std::ostream* out) {
    *out << golden.Name;
}

std::vector<GoldenCase> GoldenCases() {
    return {
        {"aga3_densimeter", {"AGA3", "MEASURED", "FIXED"}},
        {"aga3_detail_fixed", {"AGA3", "AGA8", "FIXED"}},
        {"aga3_detail_measured", {"AGA3", "ISO-12213-2-1997", "MEASURED"}},
        {"aga3_gross_fixed", {"AGA3", "SGERG88", "FIXED"}},
        {"aga3_gross_measured", {"AGA3", "ISO-12213-3-1997", "MEASURED"}},
        {"aga7_densimeter", {"AGA7", "MEASURED", "FIXED"}},
        {"aga7_detail_fixed", {"AGA7", "AGA8", "FIXED"}},
        {"aga7_detail_measured", {"AGA7", "ISO-12213-2-1997", "MEASURED"}},
        {"aga7_gross_fixed", {"AGA7", "SGERG88", "FIXED"}},
        {"aga7_gross_measured", {"AGA7", "ISO-12213-3-1997", "MEASURED"}},
        {"accelabar_densimeter", {"Accelabar-AGA-3-1992", "MEASURED", "FIXED"}},
        {"accelabar_detail_fixed", {"Accelabar-AGA-3-1992", "AGA8", "FIXED"}},
        {"accelabar_detail_measured", {"Accelabar-AGA-3-1992", "ISO-12213-2-1997", "MEASURED"}},
        {"accelabar_gross_fixed", {"Accelabar-AGA-3-1992", "SGERG88", "FIXED"}},
        {"accelabar_gross_measured", {"Accelabar-AGA-3-1992", "ISO-12213-3-1997", "MEASURED"}},
        {"syt6143_densimeter", {"SYT6143-2004", "MEASURED", "FIXED"}},
        {"syt6143_detail_fixed", {"SYT6143-2004", "AGA8", "FIXED"}},
        {"syt6143_detail_measured", {"SYT6143-2004", "ISO-12213-2-1997", "MEASURED"}},
        {"syt6143_gross_fixed", {"SYT6143-2004", "SGERG88", "FIXED"}},
        {"syt6143_gross_measured", {"SYT6143-2004", "ISO-12213-3-1997", "MEASURED"}},
    };
}

class EachConfiguration : public testing::TestWithParam<GoldenCase> {
protected:
    test::MemoryFiles files_;
    FileIni ini_{files_};
};

INSTANTIATE_TEST_SUITE_P(Golden, EachConfiguration, testing::ValuesIn(GoldenCases()),
                         [](const auto& golden) { return std::string(golden.param.Name); });

TEST_P(EachConfiguration, is_written_byte_for_byte) {
    const std::string expected = GoldenFile(GetParam().Name);
    ASSERT_FALSE(expected.empty());
    SaveWholeConfiguration(ini_, SampleStation(GetParam().Choices), File);
    EXPECT_EQ(files_.Content[File], expected);
    EXPECT_EQ(files_.Replaces, 1);
}

TEST_P(EachConfiguration, is_the_same_written_again_over_itself) {
    const StationConfig station = SampleStation(GetParam().Choices);
    SaveWholeConfiguration(ini_, station, File);
    SaveWholeConfiguration(ini_, station, File);
    EXPECT_EQ(files_.Content[File], GoldenFile(GetParam().Name));
    EXPECT_EQ(files_.Replaces, 1) << "a file that does not change is not touched";
}

// What a load of the file gives is enough to write the run's section again as it was.
TEST_P(EachConfiguration, comes_back_from_its_file) {
    files_.Content[File] = GoldenFile(GetParam().Name);
    StationConfig station;
    station.ProjectFile = "/jobs/plant.KPJ";
    station.CurrentStation = "North";
    station.UserId = "4711";
    for (const int run : {2, 5}) {
        LoadStationConfig(ini_, station, File);
        LoadRun(ini_, station, File, run);
        if (station.AGA8CalInput == "FIXED") // the fixed values stand apart after a load
            for (int slot = 0; slot <= static_cast<int>(GasSlot::RelativeDensity); ++slot)
                station.Runs.Gas[0][static_cast<GasSlot>(slot)].Tag =
                    station.GasComposition[static_cast<GasSlot>(slot)].Tag;
        // The section of the common values says "Yes" whatever was meant, that of the run says what was
        // meant.
        station.Compressible = "No";
        if (station.FlowAlgorithm == "Accelabar-AGA-3-1992" && run == 2)
            station.Runs.Mechanical[0].ExtMechParam = "Yes"; // stale: no key of this algorithm holds it
        WriteRunSection(ini_, station, File, run - 1, 0);
    }
    for (std::size_t i = 0; i < MaxRuns; ++i)
        station.RunList[i].Flag = station.Run[i];
    station.FlagAGA7 = station.FlowAlgorithm == "AGA7";
    WriteCommonSections(ini_, station, File);
    EXPECT_EQ(files_.Content[File], GoldenFile(GetParam().Name));
}

struct ConfigWriter : testing::Test {
    test::MemoryFiles Files;
    FileIni Ini{Files};

    std::string Saved(const StationConfig& station) {
        SaveWholeConfiguration(Ini, station, File);
        return Files.Content[File];
    }
    std::string Value(const char* section, const char* key) { return Ini.ReadKey(section, key, File); }
};

const SampleChoices Orifice{"AGA3", "AGA8", "FIXED"};

TEST_F(ConfigWriter, numbers_a_section_by_its_run_and_not_by_its_place) {
    const std::string file = Saved(SampleStation(Orifice));
    EXPECT_THAT(file, AllOf(HasSubstr("[Run2]"), HasSubstr("[Run5]")));
    EXPECT_THAT(file, AllOf(Not(HasSubstr("[Run1]")), Not(HasSubstr("[Run3]")), Not(HasSubstr("[Run4]"))));
    EXPECT_EQ(Value("FlowRuns", "Run1"), "No");
    EXPECT_EQ(Value("FlowRuns", "Run2"), "Yes");
    EXPECT_EQ(Value("FlowRuns", "Run22"), "Yes");
    EXPECT_EQ(Value("Run5", "CalibrationFactor"), "1.05");
}

TEST_F(ConfigWriter, calls_the_gas_compressible_in_the_common_section_and_tells_the_truth_in_the_runs) {
    (void)Saved(SampleStation(Orifice));
    EXPECT_EQ(Value("AGA3", "Compressible"), "Yes");
    EXPECT_EQ(Value("Run2", "Compressible"), "No");
}

TEST_F(ConfigWriter, takes_the_base_conditions_and_not_those_read_from_a_file) {
    (void)Saved(SampleStation(Orifice));
    EXPECT_EQ(Value("FlowRuns", "GasDensityStandardT"), "15.00");
    EXPECT_EQ(Value("FlowRuns", "GasDensityStandardP"), "1.01325");
}

TEST_F(ConfigWriter, names_the_common_section_by_the_flag_and_not_by_the_algorithm) {
    StationConfig station = SampleStation(Orifice);
    station.FlagAGA7 = true;
    const std::string file = Saved(station);
    EXPECT_THAT(file, AllOf(HasSubstr("[AGA7]\r\n"), Not(HasSubstr("[AGA3]\r\n"))));
    EXPECT_EQ(Value("Run2", "FlowAlgorithm"), "AGA3");
    StationConfig loaded;
    LoadStationConfig(Ini, loaded, File);
    EXPECT_EQ(loaded.StandardT, "");
}

TEST_F(ConfigWriter, has_no_gas_section_and_few_groups_for_a_pulse_meter_with_densimeter) {
    StationConfig station = SampleStation({"AGA7", "MEASURED", "FIXED"});
    station.ExtAtmPress = "No";
    const std::string file = Saved(station);
    EXPECT_THAT(file,
                AllOf(Not(HasSubstr("[AGA8]")), Not(HasSubstr("[SGERG88]")), Not(HasSubstr("PaKDIOTag=R"))));
    for (const char* absent : {"PressureTap", "AccelabarK", "ExtMechParam", "GasTempKDIOTag", "GasDPKDIOTag",
                               "PipeDiaKDIOTag", "AGA8zKDIOTag", "PaKDIOTag"})
        EXPECT_EQ(Value("Run2", absent), "") << absent;
    for (const char* present : {"SystemUnits", "PressType", "ContractHour", "GasDensityKDIOTag",
                                "meterKFactor", "ResetTotalsKDIOTag", "GasVolumeKDIOTag"})
        EXPECT_NE(Value("Run2", present), "") << present;
}

TEST_F(ConfigWriter, takes_the_atmospheric_pressure_tag_in_any_spelling_of_yes) {
    StationConfig station = SampleStation(Orifice);
    station.ExtAtmPress = "yes";
    (void)Saved(station);
    EXPECT_EQ(Value("Run2", "PaKDIOTag"), "PA-1") << "of the common binding, not of the run's own";
}

TEST_F(ConfigWriter, writes_only_runs_flagged_exactly_yes) {
    StationConfig station = SampleStation(Orifice);
    station.RunList[1].Flag = "yes";
    const std::string file = Saved(station);
    EXPECT_THAT(file, AllOf(Not(HasSubstr("[Run2]")), HasSubstr("Run2=yes\r\n"), HasSubstr("Run22=yes\r\n")));
    EXPECT_EQ(Value("Run5", "CalibrationFactor"), "1.02") << "elements count the runs that are written";
}

TEST_F(ConfigWriter, keeps_stale_external_diameters_under_any_algorithm) {
    StationConfig station = SampleStation({"Accelabar-AGA-3-1992", "MEASURED", "FIXED"});
    station.Runs.Mechanical[0].ExtMechParam = "YES";
    (void)Saved(station);
    EXPECT_EQ(Value("Run2", "PipeDiaKDIOTag"), "R2.PipeDia");
    EXPECT_EQ(Value("Run2", "ExtMechParam"), "");
    EXPECT_EQ(Value("Run5", "PipeDiaKDIOTag"), "");
}

TEST_F(ConfigWriter, writes_traces_even_when_they_are_off) {
    StationConfig station = SampleStation(Orifice);
    station.EnableDataTraces = "No";
    EXPECT_THAT(Saved(station), HasSubstr("EnableDataTraces=No\r\nDeviceDataTraces=/nvram/kdormaga.txt\r\n"
                                          "NumberTraces=1000\r\n"));
}

TEST_F(ConfigWriter, treats_only_the_exact_word_as_measured_composition) {
    StationConfig station = SampleStation({"AGA3", "AGA8", "measured"});
    (void)Saved(station);
    EXPECT_EQ(Value("Run2", "GC_C1"), "0.2100");
    EXPECT_EQ(Value("Run2", "GCEnableKDIOTag"), "");
}

TEST_F(ConfigWriter, leaves_sections_of_runs_that_are_not_written) {
    Files.Content[File] = Lines({"[Run1]", "StandardT=1", "[Run2]", "Old=1"});
    const std::string file = Saved(SampleStation(Orifice));
    EXPECT_THAT(file, HasSubstr("[Run1]\r\nStandardT=1\r\n"));
    EXPECT_THAT(file, Not(HasSubstr("Old=1")));
}

TEST_F(ConfigWriter, writes_empty_values_for_records_that_are_not_there) {
    StationConfig station = SampleStation(Orifice);
    station.Runs = {};
    (void)Saved(station);
    EXPECT_THAT(Files.Content[File], HasSubstr("CalibrationFactor=\r\n"));
}

TEST_F(ConfigWriter, rewrites_the_gas_section_alone) {
    Files.Content[File] =
        Lines({"[SGERG88]", "AGA8Method=DETAIL", "AGA8CalInput=FIXED", "Other=1", "[Run1]", "A=1"});
    WriteGasSection(Ini, SampleStation({"AGA3", "SGERG88", "MEASURED"}), File);
    EXPECT_EQ(Files.Content[File],
              Lines({"[SGERG88]", "AGA8Method=DETAIL", "AGA8CalInput=MEASURED", "[Run1]", "A=1"}));
}

TEST_F(ConfigWriter, goes_on_where_the_file_cannot_be_written) {
    Files.Unwritable.insert(File);
    SaveWholeConfiguration(Ini, SampleStation(Orifice), File);
    EXPECT_FALSE(Ini.FileExists(File));
}

} // namespace
} // namespace gfc::config
