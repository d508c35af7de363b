#include "CheckedFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

using namespace gfc;
using namespace gfc::binding;
using namespace gfc::test;
using testing::ElementsAre;
using testing::IsEmpty;
namespace algorithm = config::algorithm;
namespace source = config::source;

namespace {

const Texts Switches = {"Reset", "Flow Run/Hold", "Totalize Run/Hold"};
const Texts Outputs = {"Std. Mass Flow", "Std. Volume Flow", "Volune", "Mass"};
const Texts GasOutputs = {"FPVS",        "rhos", "rhotp", "UNCERT", "Compressibility", "Std. Compressibility",
                          "Rel. Density"};
const Texts GasParameters = {"Vol. Calorific Value", "Relative Density", "CO2 content", "H2 content"};
const Texts Components = {
    "Methane",  "Nitrogen",        "Carbon Dioxide", "Ethane",   "Propane",  "Water",     "Hydrogen Sulfite",
    "Hydrogen", "Carbon Monoxide", "Oxygen",         "i-Butane", "n-Butane", "i-Pentane", "n-Pentane",
    "n-Hexane", "n-Heptane",       "n-Octane",       "n-Nonane", "n-Decane", "Helium",    "Argon"};

Texts Joined(std::initializer_list<Texts> lists) {
    Texts joined;
    for (const Texts& list : lists)
        joined.insert(joined.end(), list.begin(), list.end());
    return joined;
}

const ExpectedTag& Entry(const std::vector<ExpectedTag>& entries, std::string_view caption) {
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const ExpectedTag& entry) { return entry.Caption == caption; });
    if (found == entries.end())
        throw std::runtime_error(std::string(caption));
    return *found;
}

bool LooksAtAtmosphere(std::string_view flowAlgorithm, std::string_view gasSource) {
    CheckedFile file(flowAlgorithm, gasSource);
    const auto& floats = file.UseAtmosphereTag().Activate(1).Build().Expected.ExpectedFloat;
    const auto captions = CaptionsOf(floats);
    return std::count(captions.begin(), captions.end(), "Atmospheric Pressure") == 1;
}

} // namespace

TEST(ExpectedTags, take_the_choices_over_from_the_file) {
    CheckedFile file(algorithm::Accelabar, source::ISO12213_2, "MEASURED");
    file.Station.FlowAlgorithm = "AGA7";
    file.Station.GasDensitySource = "MEASURED";
    file.Station.AGA8CalInput = "FIXED";
    file.Build();
    EXPECT_EQ(file.Station.FlowAlgorithm, "Accelabar-AGA-3-1992");
    EXPECT_EQ(file.Station.GasDensitySource, "ISO-12213-2-1997");
    EXPECT_EQ(file.Station.AGA8CalInput, "MEASURED");
}

TEST(ExpectedTags, leave_the_rest_of_the_station_alone) {
    CheckedFile file(algorithm::AGA7, source::Measured);
    file.UseAtmosphereTag().Activate(3);
    file.Station.ExtAtmPress = "No";
    file.Station.AGA8Method = "DETAIL";
    file.Station.Run.fill("No");
    file.Build();
    EXPECT_EQ(file.Station.ExtAtmPress, "No");
    EXPECT_EQ(file.Station.AGA8Method, "DETAIL");
    EXPECT_EQ(file.Station.Run[2], "No");
    EXPECT_FALSE(file.Station.Measured);
    EXPECT_FALSE(file.Station.FlagAGA7);
}

TEST(ExpectedTags, read_the_source_of_the_gas_data_from_the_section_of_its_family) {
    for (const auto& [gasSource, input] : {std::pair{source::AGA8, "of AGA8"},
                                           {source::ISO12213_2, "of AGA8"},
                                           {source::SGERG88, "of SGERG88"},
                                           {source::ISO12213_3, "of SGERG88"},
                                           {source::Measured, "of SGERG88"}}) {
        CheckedFile file(algorithm::AGA3, gasSource);
        file.Put("AGA8", "AGA8CalInput", "of AGA8").Put("SGERG88", "AGA8CalInput", "of SGERG88");
        EXPECT_EQ(file.Build().Station.AGA8CalInput, input) << gasSource;
    }
}

TEST(ExpectedTags, of_a_densimeter_leave_the_source_of_the_gas_data_empty) {
    CheckedFile file;
    file.Put("FlowRuns", "GasDensitySource", "MEASURED");
    file.Station.AGA8CalInput = "FIXED";
    EXPECT_EQ(file.Build().Station.AGA8CalInput, "");
}

TEST(ExpectedTags, of_a_missing_file_are_none) {
    CheckedFile file;
    file.Station.FlowAlgorithm = "AGA3";
    file.Build();
    EXPECT_EQ(file.Station.FlowAlgorithm, "");
    EXPECT_THAT(file.Expected.ExpectedFloat, IsEmpty());
    EXPECT_THAT(file.Expected.ExpectedDigital, IsEmpty());
    EXPECT_THAT(file.Files.Content, IsEmpty()) << "reading makes no file";
}

TEST(ExpectedTags, come_from_one_reading_of_the_file) {
    CheckedFile file(algorithm::SYT6143, source::AGA8, "MEASURED");
    for (int run = 1; run <= 5; ++run)
        file.Activate(run);
    file.Files.Reads = file.Files.Replaces = 0;
    file.Build();
    EXPECT_EQ(file.Files.Reads, 1);
    EXPECT_EQ(file.Files.Replaces, 0);
}

TEST(ExpectedTags, know_where_they_come_from) {
    CheckedFile file(algorithm::AGA3, source::Measured);
    file.Put("FlowRuns", "Run4", "Yes")
        .Put("Run4", "GasTempKDIOTag", "TT-401")
        .Put("Run4", "GasTempKDIOType", "FY")
        .Put("Run4", "GasTempKDIORegAddr", "0012")
        .Build();
    EXPECT_EQ(Entry(file.Expected.ExpectedFloat, "Temperature"),
              (ExpectedTag{"0012", "TT-401", "FY", "AGA Input", "GasTempKDIO", false, "Run4", "Temperature",
                           "Variable without assignment"}));
}

TEST(ExpectedTags, of_a_key_that_is_missing_are_empty_texts) {
    CheckedFile file(algorithm::AGA3, source::Measured);
    file.Put("FlowRuns", "Run1", "Yes").Build();
    const auto& entry = Entry(file.Expected.ExpectedDigital, "Reset");
    EXPECT_EQ(entry.RegAddr + entry.Tag + entry.Type, "");
}

TEST(ExpectedTags, of_a_run_that_lacks_a_key_are_not_those_of_the_run_before) {
    CheckedFile file(algorithm::AGA3, source::Measured);
    file.Activate(1).Put("FlowRuns", "Run2", "Yes").Build();
    for (const ExpectedTag& entry : file.Expected.ExpectedFloat)
        EXPECT_EQ(entry.Tag.empty(), entry.Location == "Run2") << entry.Location << " " << entry.Caption;
    EXPECT_THAT(file.Expected.ExpectedFloat, Contains(testing::Field(&ExpectedTag::Location, "Run2")));
}

TEST(ExpectedTags, of_AGA3_with_a_densimeter_stand_in_order) {
    CheckedFile file(algorithm::AGA3, source::Measured, "MEASURED");
    const auto& expected = file.UseAtmosphereTag().Activate(1).Build().Expected;
    EXPECT_EQ(CaptionsOf(expected.ExpectedFloat),
              Joined({{"Atmospheric Pressure", "Density", "Temperature", "Pressure", "Diferential Pressure"},
                      Outputs}));
    EXPECT_EQ(CaptionsOf(expected.ExpectedAnalog), Texts{"AGA 3 Status"});
    EXPECT_EQ(CaptionsOf(expected.ExpectedDigital), Switches);
    EXPECT_THAT(expected.ExpectedLong, IsEmpty());
}

TEST(ExpectedTags, of_AGA3_with_a_measured_composition_end_with_its_components) {
    CheckedFile file(algorithm::AGA3, source::AGA8, "MEASURED");
    const auto& expected = file.Put("Run2", "ExtMechParam", "Yes").Activate(2).Build().Expected;
    EXPECT_EQ(CaptionsOf(expected.ExpectedFloat), Joined({{"Temperature", "Pressure", "Diferential Pressure",
                                                           "Int.Pipe Dia.", "Orifice diameter"},
                                                          Outputs,
                                                          GasOutputs,
                                                          Components}));
    EXPECT_THAT(CaptionsOf(expected.ExpectedAnalog), ElementsAre("AGA 3 Status", "AGA 8 Status"));
    EXPECT_EQ(CaptionsOf(expected.ExpectedDigital), Joined({Switches, {"Gas composition enable"}}));
}

TEST(ExpectedTags, of_SYT6143_with_measured_gas_parameters_end_with_these) {
    CheckedFile file(algorithm::SYT6143, source::ISO12213_3, "MEASURED");
    file.Put("Run1", "ExtMechParam", "Yes").Put("Run1", "ExtCCorrFactors", "Yes").Activate(1).Build();
    EXPECT_EQ(CaptionsOf(file.Expected.ExpectedFloat),
              Joined({{"Temperature", "Pressure", "Diferential Pressure", "Int.Pipe Dia.", "Orifice diameter",
                       "Pipe Absolute Roughness", "Orifice Service Time"},
                      Outputs,
                      GasOutputs,
                      GasParameters}));
    EXPECT_EQ(CaptionsOf(file.Expected.ExpectedDigital), Joined({Switches, {"Gas composition strobe"}}));
}

TEST(ExpectedTags, of_SYT6143_hold_its_corrections_only_in_a_file_edited_by_hand) {
    CheckedFile file(algorithm::SYT6143, source::Measured);
    const auto& expected = file.Activate(1).Build().Expected;
    EXPECT_EQ(CaptionsOf(expected.ExpectedFloat),
              Joined({{"Density", "Temperature", "Pressure", "Diferential Pressure"}, Outputs}));
    file.Put("Run1", "ExtCCorrFactors", "Yes").Build();
    EXPECT_EQ(CaptionsOf(expected.ExpectedFloat).at(4), "Pipe Absolute Roughness");
    EXPECT_EQ(CaptionsOf(expected.ExpectedFloat).at(5), "Orifice Service Time");
}

TEST(ExpectedTags, of_the_Accelabar_do_not_hold_diameters) {
    CheckedFile file(algorithm::Accelabar, source::SGERG88);
    file.Put("Run1", "ExtMechParam", "Yes").Put("Run1", "ExtCCorrFactors", "Yes").Activate(1).Build();
    EXPECT_EQ(CaptionsOf(file.Expected.ExpectedFloat),
              Joined({{"Temperature", "Pressure", "Diferential Pressure"}, Outputs, GasOutputs}));
    EXPECT_EQ(CaptionsOf(file.Expected.ExpectedDigital), Switches);
}

TEST(ExpectedTags, of_AGA7_with_a_densimeter_hold_no_flowing_state) {
    CheckedFile file(algorithm::AGA7, source::Measured);
    const auto& expected = file.Activate(1).Build().Expected;
    EXPECT_EQ(CaptionsOf(expected.ExpectedFloat), Joined({{"Density"}, Outputs}));
    EXPECT_EQ(CaptionsOf(expected.ExpectedLong), Texts{"Pulse Input"});
    EXPECT_EQ(CaptionsOf(expected.ExpectedAnalog), Texts{"AGA 3 Status"}) << "the same for every standard";
}

TEST(ExpectedTags, of_AGA7_with_a_gas_model_hold_temperature_and_pressure) {
    CheckedFile file(algorithm::AGA7, source::ISO12213_2);
    const auto& expected = file.Activate(1).Build().Expected;
    EXPECT_EQ(CaptionsOf(expected.ExpectedFloat), Joined({{"Temperature", "Pressure"}, Outputs, GasOutputs}));
    EXPECT_EQ(CaptionsOf(expected.ExpectedLong), Texts{"Pulse Input"});
    EXPECT_THAT(CaptionsOf(expected.ExpectedAnalog), ElementsAre("AGA 3 Status", "AGA 8 Status"));
}

TEST(ExpectedTags, of_unknown_choices_are_what_every_run_has) {
    CheckedFile file("AGA5", "NX-19", "MEASURED");
    const auto& expected = file.UseAtmosphereTag().Activate(1).Build().Expected;
    EXPECT_EQ(CaptionsOf(expected.ExpectedFloat), Outputs);
    EXPECT_EQ(CaptionsOf(expected.ExpectedAnalog), Texts{"AGA 3 Status"});
    EXPECT_EQ(CaptionsOf(expected.ExpectedDigital), Switches);
}

TEST(ExpectedTags, are_listed_under_group_and_reported_stem) {
    CheckedFile detail(algorithm::AGA3, source::AGA8, "MEASURED");
    const auto& ofDetail = detail.UseAtmosphereTag().Activate(1).Build().Expected;
    const auto describe = [](const ExpectedTag& entry) {
        return std::string(entry.Group) + ": " + std::string(entry.Stem);
    };
    EXPECT_EQ(describe(Entry(ofDetail.ExpectedFloat, "Atmospheric Pressure")), "AGA Input: PaKDIO");
    EXPECT_EQ(describe(Entry(ofDetail.ExpectedDigital, "Reset")), "AGA Input: ResetTotalsKDIO");
    EXPECT_EQ(describe(Entry(ofDetail.ExpectedFloat, "Volune")), "AGA Output: GasVolumeKDIO");
    EXPECT_EQ(describe(Entry(ofDetail.ExpectedAnalog, "AGA 3 Status")), "AGA Output: AGA3StatusKDIO");
    EXPECT_EQ(describe(Entry(ofDetail.ExpectedFloat, "UNCERT")), "AGA8 Output: AGA8uncertKDIO");
    EXPECT_EQ(describe(Entry(ofDetail.ExpectedAnalog, "AGA 8 Status")), "AGA8 Output: AGA8StatusKDIO");
    EXPECT_EQ(describe(Entry(ofDetail.ExpectedFloat, "Hydrogen")), "I/O tags composition gas: GC_HKDIOA");
    EXPECT_EQ(describe(Entry(ofDetail.ExpectedDigital, "Gas composition enable")),
              "I/O tags composition gas: GCEnableKDIO");

    CheckedFile gross(algorithm::AGA3, source::SGERG88, "MEASURED");
    const auto& ofGross = gross.Activate(1).Build().Expected;
    EXPECT_EQ(describe(Entry(ofGross.ExpectedFloat, "CO2 content")),
              "I/O tags parameters SGERG88: GC_CO2KDIO");
    EXPECT_EQ(describe(Entry(ofGross.ExpectedFloat, "H2 content")), "I/O tags parameters SGERG88: H2KDIO");
    EXPECT_EQ(describe(Entry(ofGross.ExpectedDigital, "Gas composition strobe")),
              "I/O tags composition gas: GCStrobeKDIO");
}

TEST(ExpectedTags, read_the_keys_of_the_file_under_the_stems_of_the_file) {
    CheckedFile file(algorithm::AGA3, source::SGERG88, "MEASURED");
    file.Activate(1).Build();
    EXPECT_EQ(Entry(file.Expected.ExpectedFloat, "CO2 content").Tag, "Run1 XCO2KDIO");
    EXPECT_EQ(Entry(file.Expected.ExpectedFloat, "H2 content").Tag, "Run1 XH2KDIO");
    EXPECT_EQ(Entry(file.Expected.ExpectedDigital, "Gas composition strobe").Tag, "Run1 GCEnableKDIO");
    EXPECT_NE(Entry(file.Expected.ExpectedFloat, "CO2 content").RegAddr, "") << "its key is the short form";
}

TEST(ExpectedTags, take_the_type_of_the_calorific_value_from_the_relative_density) {
    CheckedFile file(algorithm::AGA3, source::SGERG88, "MEASURED");
    file.Activate(1)
        .Put("Run1", "VolCalorificValueKDIOType", "FX")
        .Put("Run1", "RelativeDensityKDIOType", "FY")
        .Build();
    EXPECT_EQ(Entry(file.Expected.ExpectedFloat, "Vol. Calorific Value").Type, "FY");
    EXPECT_EQ(Entry(file.Expected.ExpectedFloat, "Vol. Calorific Value").Tag, "Run1 VolCalorificValueKDIO");
}

TEST(ExpectedTags, find_keys_in_any_of_their_spellings) {
    CheckedFile file(algorithm::AGA3, source::AGA8);
    file.Put("FlowRuns", "Run1", "Yes")
        .Put("Run1", "StdVolFlowKDIOtag", "FY-1")
        .Put("Run1", "AGA8GrsKDIOTag", "GR-1")
        .Put("Run1", "AGA8zKDIOTAg", "Z-1")
        .Build();
    EXPECT_EQ(Entry(file.Expected.ExpectedFloat, "Std. Volume Flow").Tag, "FY-1");
    EXPECT_EQ(Entry(file.Expected.ExpectedFloat, "Rel. Density").Tag, "GR-1");
    EXPECT_EQ(Entry(file.Expected.ExpectedFloat, "Compressibility").Tag, "Z-1");
}

TEST(ExpectedTags, of_inactive_runs_do_not_exist) {
    CheckedFile file(algorithm::AGA3, source::Measured);
    file.UseAtmosphereTag();
    for (int run = 1; run <= 5; ++run)
        file.Activate(run);
    file.Put("FlowRuns", "Run2", "No").Put("FlowRuns", "Run4", "yes").Put("FlowRuns", "Run5", "").Build();
    Texts locations;
    for (const auto& entry : file.Expected.ExpectedFloat)
        if (locations.empty() || locations.back() != entry.Location)
            locations.push_back(entry.Location);
    EXPECT_EQ(locations, (Texts{"AGA3", "Run1", "Run3"}));
}

TEST(ExpectedTags, of_each_run_go_by_options_of_its_own) {
    CheckedFile file(algorithm::AGA3, source::Measured);
    file.Activate(1).Activate(2).Put("Run2", "ExtMechParam", "Yes").Build();
    EXPECT_EQ(Entry(file.Expected.ExpectedFloat, "Orifice diameter").Location, "Run2");
    EXPECT_EQ(file.Expected.ExpectedFloat.size(), 8U + 10U);
}

TEST(ExpectedTags, of_each_run_hold_its_diameters_for_Yes_in_any_case) {
    for (const char* yes : {"Yes", "yes", "YES"}) {
        CheckedFile file(algorithm::AGA3, source::Measured);
        file.Activate(1).Put("Run1", "ExtMechParam", yes).Build();
        EXPECT_EQ(file.Expected.ExpectedFloat.size(), 10U) << yes;
    }
}

TEST(ExpectedTags, hold_the_atmospheric_pressure_by_standard_and_source) {
    EXPECT_TRUE(LooksAtAtmosphere(algorithm::AGA3, source::Measured));
    EXPECT_TRUE(LooksAtAtmosphere(algorithm::AGA3, source::AGA8));
    EXPECT_TRUE(LooksAtAtmosphere(algorithm::SYT6143, source::SGERG88));
    EXPECT_TRUE(LooksAtAtmosphere(algorithm::AGA7, source::AGA8));
    EXPECT_FALSE(LooksAtAtmosphere(algorithm::AGA7, source::Measured));
    EXPECT_FALSE(LooksAtAtmosphere(algorithm::Accelabar, source::AGA8));
}

// A turbine's common section is AGA7, so that what it says of the atmospheric pressure deliberately does not
// count here.
TEST(ExpectedTags, look_for_the_atmospheric_pressure_in_the_section_AGA3_alone) {
    CheckedFile file(algorithm::AGA7, source::AGA8);
    file.Put("AGA7", "ExtAtmPress", "Yes").Bind("AGA7", CommonPressureRow()).Activate(1).Build();
    EXPECT_EQ(CaptionsOf(file.Expected.ExpectedFloat).front(), "Temperature");
    file.Put("AGA3", "ExtAtmPress", "No").Build();
    EXPECT_EQ(CaptionsOf(file.Expected.ExpectedFloat).front(), "Temperature");
}

TEST(ExpectedTags, hold_the_atmospheric_pressure_without_any_active_run) {
    CheckedFile file(algorithm::AGA3, source::AGA8);
    file.UseAtmosphereTag().Build();
    ASSERT_EQ(file.Expected.ExpectedFloat.size(), 1U);
    EXPECT_EQ(file.Expected.ExpectedFloat.front(),
              (ExpectedTag{"1", "AGA3 CommonPaKDIO", "FX", "AGA Input", "PaKDIO", false, "AGA3",
                           "Atmospheric Pressure", "Variable without assignment"}));
}

TEST(ExpectedTags, keep_the_working_modules_apart) {
    CheckedFile file(algorithm::AGA3, source::Measured);
    file.Put("FlowRuns", "WrkFloatModName", "VF0")
        .Put("FlowRuns", "WrkFloatRegAddr", "1")
        .Put("FlowRuns", "WrkFloatRegType", "FX")
        .Put("FlowRuns", "WrkAnalogModName", "VA0")
        .Put("FlowRuns", "WrkIntLongModName", "VL0")
        .Put("FlowRuns", "WrkIntLongRegType", "LY")
        .Build();
    EXPECT_EQ(file.Expected.WorkingFloat.Tag, "VF0");
    EXPECT_EQ(file.Expected.WorkingFloat.RegAddr, "1");
    EXPECT_EQ(file.Expected.WorkingFloat.Type, "FX");
    EXPECT_EQ(file.Expected.WorkingAnalog.Tag, "VA0");
    EXPECT_EQ(file.Expected.WorkingLong.Tag, "VL0");
    EXPECT_EQ(file.Expected.WorkingLong.Type, "LY");
    EXPECT_THAT(file.Expected.ExpectedFloat, IsEmpty());
    EXPECT_TRUE(CheckExpectedTags(file.Expected, {})) << "no tag needs to bear a module's name";
}

TEST(ExpectedTags, of_the_next_file_take_the_place_of_the_old_ones) {
    CheckedFile file(algorithm::AGA7, source::Measured);
    file.Activate(1).Build();
    BuildExpectedTags(file.Ini, "/jobs/elsewhere.ini", file.Station, file.Expected);
    EXPECT_THAT(file.Expected.ExpectedLong, IsEmpty());
    EXPECT_THAT(file.Expected.ExpectedFloat, IsEmpty());
    EXPECT_EQ(file.Station.FlowAlgorithm, "");
}
