#include "SampleStation.h"
#include "audit/Plant.h"
#include "support/Fakes.h"
#include "support/MemoryFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <set>

// A plant with a station for each rule, which the rule finds, and beside it one that looks much the same and
// is sound: a false friend, of which the rule says nothing.
namespace gfc::audit {
namespace {

using config::algorithm::Accelabar;
using config::algorithm::AGA7;
using config::algorithm::SYT6143;
using config::source::ISO12213_2;
using config::source::Measured;
using config::source::SGERG88;
using config::units::Metric;
using config::units::PracticalSI;
using test::SampleChoices;
using test::SampleStation;

using Act = std::function<void(SampleStation&)>;

struct Case {
    RuleId Rule;
    SampleChoices Choices;
    Act Fault;
    Act Friend;

    friend void PrintTo(const Case& the, std::ostream* out) { *out << RuleOf(the.Rule).Name; }
};

Act Set(const char* section, const char* key, const char* value) {
    return [=](SampleStation& station) { station.Set(section, key, value); };
}

Act SetAll(std::vector<std::pair<const char*, const char*>> values, const char* section = "Run1") {
    return [=](SampleStation& station) {
        for (const auto& [key, value] : values)
            station.Set(section, key, value);
    };
}

Act Named(const char* section, const char* stem, const char* name) {
    return [=](SampleStation& station) { station.Name(section, stem, name); };
}

Act Alike(const char* section, const char* stem, const char* otherSection, const char* otherStem) {
    return [=](SampleStation& station) { station.BindAlike(section, stem, otherSection, otherStem); };
}

// The instruments of run 1 and one of run 2, of the loops 201 and 202.
void NameLoops(SampleStation& station) {
    station.Name("Run1", "GasTempKDIO", "TIT-201").Name("Run1", "GasPressKDIO", "PIT-201");
    station.Name("Run1", "GasDPKDIO", "PDIT-201").Name("Run1", "StdVolFlowKDIO", "FY-201_VOL");
    station.Name("Run2", "GasTempKDIO", "TIT-202").Name("Run2", "GasPressKDIO", "PIT-202");
}

const SampleChoices US;
const SampleChoices Turbine{.Algorithm = AGA7};
const SampleChoices GBT{.Algorithm = SYT6143, .Units = PracticalSI};
const SampleChoices Gross{.Source = SGERG88, .Units = PracticalSI};
const SampleChoices ISO{.Source = ISO12213_2};
const SampleChoices Densimeter{.Source = Measured};
const SampleChoices GC{.Chromatograph = true};

// clang-format off
const std::vector<Case>& Cases() {
    using enum RuleId;
    static const std::vector<Case> cases = {
        {ProjectOther, US, Set("General", "Project", "/jobs/mine.KPJ"), Set("General", "Project", "/JOBS/PLANT.KPJ")},
        {ProjectMoved, US, Set("General", "Project", "/old/plant.KPJ"), Set("General", "Project", "/Jobs/plant.kpj")},
        {StationOther, US, Set("General", "OrmStation", "South"), Set("General", "OrmStation", "NORTH")},
        {SectionMissing, US, [](auto& s) { s.RemoveSection("AGA8"); }, [](auto& s) { s.Replace("[AGA8]", "[ aga8 ]"); }},
        {SectionDouble, US, [](auto& s) { s.Append("[run1]\r\nOrificeDia=1\r\n"); },
                            [](auto& s) { s.Append("[Run11]\r\n"); }},
        {SectionUnknown, US, [](auto& s) { s.Append("[Runs]\r\n"); }, [](auto& s) { s.Append("[AGA7]\r\n"); }},
        {SectionIdle, US, [](auto& s) { s.Append("[SGERG88]\r\n"); }, [](auto& s) { s.Append("[Run3]\r\n"); }},
        {KeyMissing, US, [](auto& s) { s.Remove("Run1", "OrificeDia"); }, [](auto& s) { s.Remove("Run1", "StandardT"); }},
        {CopyMissing, US, [](auto& s) { s.Remove("Run1", "SystemUnits"); },
                          [](auto& s) { s.Remove("Run1", "ContractHour"); }},
        {KeyDouble, US, [](auto& s) { s.Replace("UserID=1234", "UserID=1234\r\nuserid=2"); },
                        [](auto& s) { s.Replace("UserID=1234", "UserID=1234\r\n;UserID=2"); }},
        {KeyUnknown, US, Set("Run1", "OrificeDai", "0.5"), Set("Run1", "ExtCCorrFactors", "No")},
        {KeysIdle, US, Set("Run1", "AccelabarSize", "3"), Set("Run1", "AccelabarSize", "")},
        {LineUnknown, US, [](auto& s) { s.Replace("UserID=1234", "UserID=1234\r\nwritten by hand"); },
                          [](auto& s) { s.Replace("UserID=1234", "UserID=1234\r\n\r\n; written by hand"); }},

        {WordUnknown, US, Set("FlowRuns", "SystemUnits", "SI"), Set("FlowRuns", "SystemUnits", "us")},
        {WordCase, US, Set("AGA3", "PressType", "ABSOLUTE"), Set("Run1", "PressType", "ABSOLUTE")},
        {ValueMissing, US, Set("Run1", "OrificeDia", ""), Set("Run1", "OrificeThermalExpCoeff", "")},
        {NumberBad, US, Set("Run1", "InternalPipeDia", "2.9.0"), Set("Run1", "InternalPipeDia", "2.90")},
        {NumberRange, US, Set("Run1", "ContractHour", "24"), Set("Run1", "ContractHour", "23")},
        {NumberZero, US, Set("Run1", "CalibrationFactor", "0.00"), Set("Run1", "CalibrationFactor", "1.01")},
        {ValueLong, US, [](auto& s) { s.Set("General", "UserID", std::string(255, '1')); },
                        [](auto& s) { s.Set("General", "UserID", std::string(254, '1')); }},

        {NoRunOn, US, SetAll({{"Run1", "No"}, {"Run2", "No"}}, "FlowRuns"), Set("FlowRuns", "Run1", "No")},
        {RunNotConfigured, US, Set("FlowRuns", "Run11", "No"), Set("FlowRuns", "Run1", "No")},
        {RunWithoutSection, US, [](auto& s) { s.RemoveSection("Run2"); },
                                [](auto& s) { s.RemoveSection("Run2").Set("FlowRuns", "Run22", "No").Set("FlowRuns", "Run2", "No"); }},
        {RunLeftOver, US, SetAll({{"Run2", "No"}, {"Run22", "No"}}, "FlowRuns"), Set("FlowRuns", "Run2", "No")},
        {CopyOfMethod, US, Set("Run2", "SystemUnits", "Metric"), Set("Run2", "SystemUnits", "US")},
        {CopyOfValue, US, Set("Run2", "StandardP", "14.65"), Set("Run2", "Compressible", "No")},

        {TagNotFound, US, [](auto& s) { s.TagOf("Run1", "GasTempKDIO").TagName = "other"; },
                          [](auto& s) { s.TagOf("Run1", "GasTempKDIO").ModuleName = "other"; }},
        {TagNotAssigned, US, SetAll({{"GasTempKDIOTag", "Not Configured"}, {"GasTempKDIORegAddr", "Not Configured"}}),
                             Named("Run1", "GasTempKDIO", "Not configured")},
        {TagWithoutName, US, Set("Run1", "GasTempKDIOTag", ""), Set("Run1", "GasDensityKDIOTag", "")},
        {TagPassedOver, GBT, [](auto& s) { s.TagOf("Run1", "PipeAbsRoughnessKDIO").RegAddr += 5000; },
                             [](auto& s) { s.TagOf("Run1", "GasTempKDIO").RegAddr += 5000; }},
        {CalorificType, {.Source = SGERG88, .Chromatograph = true}, Set("Run1", "VolCalorificValueKDIOType", "FY"),
                        Set("Run1", "RelativeDensityKDIOType", "FY")},
        {WorkingModuleMissing, US, Set("FlowRuns", "WrkFloatModName", "VF9"), Set("FlowRuns", "WrkFloatModName", "vf0")},
        {WorkingModuleMoved, US, Set("FlowRuns", "WrkAnalogRegAddr", "2"), Set("FlowRuns", "WrkAnalogRegAddr", "1")},
        {TagInWorkingModule, US, [](auto& s) { s.TagOf("Run1", "GasTempKDIO").ModuleName = "VF0"; },
                                 [](auto& s) { s.TagOf("Run1", "GasTempKDIO").ModuleName = "VA0"; }},
        {TagDirection, US, [](auto& s) { s.TagOf("Run1", "GasTempKDIO").RegType = "FY"; s.Set("Run1", "GasTempKDIOType", "FY"); },
                           [](auto&) {}},

        {OutputsOnOneTag, US, Alike("Run1", "StdVolFlowKDIO", "Run2", "StdVolFlowKDIO"),
                              Alike("Run1", "GasTempKDIO", "Run2", "GasTempKDIO")},
        {OutputOnInput, US, Alike("Run1", "GasTempKDIO", "Run2", "GasVolumeKDIO"),
                            Alike("Run1", "GasTempKDIO", "Run2", "GasTempKDIO")},
        {PulsesShared, Turbine, Alike("Run1", "GasPulseInputKDIO", "Run2", "GasPulseInputKDIO"),
                                Alike("Run1", "GasPressKDIO", "Run2", "GasPressKDIO")},
        {QuantitiesOnOneTag, US, Alike("Run1", "GasTempKDIO", "Run1", "GasPressKDIO"),
                                 Alike("Run1", "GFCRunHoldKDIO", "Run1", "GFCTotalizeHoldKDIO")},
        {InputShared, US, Alike("Run1", "GasPressKDIO", "Run2", "GasPressKDIO"),
                          Alike("Run1", "StdVolFlowKDIO", "Run2", "GasMassKDIO")},

        {StandardTUnusual, US, Set("AGA3", "StandardT", "70.00"), Set("AGA3", "StandardT", "59")},
        {StandardTOfOthers, US, Set("AGA3", "StandardT", "68"), Set("AGA3", "StandardT", "60.0")},
        {StandardPUnusual, US, Set("AGA3", "StandardP", "1.01325"), Set("AGA3", "StandardP", "14.65")},
        {StandardPOfOthers, US, Set("AGA3", "StandardP", "14.50377"), Set("AGA3", "StandardP", "14.696")},
        {AtmosphericPressure, {.GageFixed = true}, Set("AGA3", "AtmPress", "101.325"), Set("AGA3", "AtmPress", "12.2")},
        {Viscosity, US, Set("AGA3", "FlowingViscosity", "0.10268"), Set("AGA3", "FlowingViscosity", "0.012")},
        {Isentropic, US, Set("AGA3", "IsentropicCoeff", "13"), Set("AGA3", "IsentropicCoeff", "1.27")},
        {RuleId::CalibrationFactor, US, Set("Run1", "CalibrationFactor", "10"), Set("Run1", "CalibrationFactor", "0.98")},
        {MeterFactor, Turbine, Set("Run1", "meterKFactor", "25500000"), Set("Run1", "meterKFactor", "25500")},
        {MeterFactorDefault, Turbine, Set("Run1", "meterKFactor", "1.0"), Set("Run1", "meterKFactor", "1.01")},
        {StandardDensity, Densimeter, Set("Run1", "GasDensityStandard", "0.7336"), Set("Run1", "GasDensityStandard", "0.05")},

        {BoreNotBelowPipe, US, Set("Run1", "OrificeDia", "99.9"), SetAll({{"OrificeDia", "99.9"}, {"ExtMechParam", "Yes"}})},
        {BetaAGA3, US, Set("Run1", "OrificeDia", "2.3"), Set("Run1", "OrificeDia", "2.1")},
        {BetaISO5167, GBT, Set("Run1", "OrificeDia", "300"), Set("Run1", "OrificeDia", "270")},
        {BoreSmallAGA3, US, Set("Run1", "OrificeDia", "0.45"), Set("Run1", "OrificeDia", "0.451")},
        {BoreSmallISO5167, GBT, SetAll({{"OrificeDia", "12.4"}, {"InternalPipeDia", "52"}}),
                                SetAll({{"OrificeDia", "12.5"}, {"InternalPipeDia", "52"}})},
        {PipeAGA3, US, SetAll({{"OrificeDia", "193.675"}, {"InternalPipeDia", "363.513"}}),
                       SetAll({{"OrificeDia", "0.9"}, {"InternalPipeDia", "1.687"}})},
        {PipeISO5167, GBT, SetAll({{"OrificeDia", "30"}, {"InternalPipeDia", "49"}}),
                           SetAll({{"OrificeDia", "30"}, {"InternalPipeDia", "50"}})},
        {DiametersInMetres, GBT, SetAll({{"OrificeDia", "0.193675"}, {"InternalPipeDia", "0.363513"}}), [](auto&) {}},
        {ReferenceTemperature, {.Units = Metric}, Set("Run1", "OrificeDiaRefTemp", "68.00"),
                               Set("Run1", "OrificeDiaRefTemp", "15")},
        {ReferenceTemperaturesDiffer, US, SetAll({{"OrificeDiaRefTemp", "68"}, {"InternalPipeDiaRefTemp", "60"}}),
                                          SetAll({{"OrificeDiaRefTemp", "68"}, {"InternalPipeDiaRefTemp", "68.0"}})},
        {ThermalExpansion, US, SetAll({{"PipeMaterial", "Other"}, {"PipeThermalExpCoeff", "6.2"}}),
                               SetAll({{"PipeMaterial", "Other"}, {"PipeThermalExpCoeff", "0.0000062"}})},
        {AccelabarRow, {.Algorithm = Accelabar}, Set("Run1", "AccelabarSize", "4"),
                       SetAll({{"AccelabarSize", "Other"}, {"AccelabarK", "0.7"}})},

        {GasPercent, US, SetAll({{"GC_C1", "50"}, {"GC_C2", "50"}}), Set("Run1", "GC_C1", "0.95")},
        {GasSum, US, SetAll({{"GC_C1", "50"}, {"GC_C2", "77"}}), Set("Run1", "GC_C1", "0.9068")},
        {GasSumRounded, US, Set("Run1", "GC_C1", "0.9070"), Set("Run1", "GC_C1", "0.9068")},
        {GasNormalAGA8, US, SetAll({{"GC_C1", "0.786724"}, {"GC_C2", "0.165279"}}), [](auto&) {}},
        {GasExpandedAGA8, US, SetAll({{"GC_C1", "0.766724"}, {"GC_C3", "0.14828"}}),
                              SetAll({{"GC_C1", "0.806724"}, {"GC_C3", "0.10828"}})},
        {GasPipelineISO, ISO, SetAll({{"GC_C1", "0.756724"}, {"GC_C2", "0.195279"}}),
                              SetAll({{"GC_C1", "0.852003"}, {"GC_C2", "0.1"}})},
        {GasWiderISO, ISO, SetAll({{"GC_C1", "0.706724"}, {"GC_C2", "0.245279"}}),
                           SetAll({{"GC_C1", "0.756724"}, {"GC_C2", "0.195279"}})},
        {GasNearest, US, [](auto&) {}, [](auto& s) { s.Set("AGA8", "AGA8CalInput", "MEASURED"); }},
        {GrossPipeline, Gross, SetAll({{"RelativeDensity", "0.85"}, {"XCO2", "0.25"}}), Set("Run1", "RelativeDensity", "0.6")},
        {GrossWider, Gross, Set("Run1", "VolCalorificValue", "1091.28"), Set("Run1", "VolCalorificValue", "37.9")},
        {GrossFit, Gross, Set("Run1", "XCO2", "0.15"), Set("Run1", "VolCalorificValue", "38.55")},

        {NameQuantity, US, Named("Run1", "GasPressKDIO", "PDIT-201_PV"), Named("Run1", "GasPressKDIO", "FT-201_PRESS")},
        {NameUnit, US, Named("Run1", "GasPressKDIO", "PIT-201_bar"), Named("Run1", "GasPressKDIO", "BARRANCA_P1")},
        {NameLoop, US, [](auto& s) { NameLoops(s); s.Name("Run1", "GasPressKDIO", "PIT-202B"); },
                       [](auto& s) { NameLoops(s); s.Name("Run1", "AGA8zKDIO", "GQ-501_Z"); }},
    };
    return cases;
}
// clang-format on

std::string TextOfAll(const Findings& findings) {
    std::string text;
    for (const Finding& finding : findings)
        text += std::string(finding.Row().Name) + " run " + std::to_string(finding.Run) + ": " +
                finding.Text + "\n";
    return text;
}

Findings FindingsOf(const Case& row, const Act& act) {
    SampleStation station(row.Choices);
    act(station);
    return station.Check().Findings;
}

class Plant : public testing::TestWithParam<Case> {};

TEST_P(Plant, has_what_the_rule_finds_and_not_its_false_friend) {
    const Case& row = GetParam();
    const auto found = FindingsOf(row, row.Fault);
    const auto finding = std::ranges::find(found, row.Rule, &Finding::Rule);
    ASSERT_NE(finding, found.end()) << TextOfAll(found);
    EXPECT_EQ(finding->Severity, RuleOf(row.Rule).Severity);
    EXPECT_EQ(finding->Text.find_first_of("{}"), std::string::npos) << finding->Text;
    const auto sound = FindingsOf(row, row.Friend);
    EXPECT_EQ(std::ranges::count(sound, row.Rule, &Finding::Rule), 0) << TextOfAll(sound);
}

INSTANTIATE_TEST_SUITE_P(Rules, Plant, testing::ValuesIn(Cases()), [](const auto& row) {
    std::string name(RuleOf(row.param.Rule).Name);
    std::ranges::replace(name, '-', '_');
    return name;
});

// These two are of a file that cannot be made, and of one that lies beside the stations.
const std::set<RuleId> Elsewhere = {RuleId::FileUnreadable, RuleId::StationUnknown};

TEST(PlantOfRules, has_a_station_for_each_rule) {
    std::set<RuleId> shown = Elsewhere;
    for (const Case& row : Cases())
        EXPECT_TRUE(shown.insert(row.Rule).second) << RuleOf(row.Rule).Name;
    EXPECT_EQ(shown.size(), static_cast<std::size_t>(RuleId::Count));
}

TEST(PlantOfRules, finds_faults_of_a_run_that_is_off_as_notes) {
    SampleStation station;
    station.Set("FlowRuns", "Run2", "No").Set("Run2", "OrificeDia", "99.9");
    station.TagOf("Run2", "GasTempKDIO").TagName = "other";
    const auto findings = station.Check().Findings;
    for (const RuleId rule : {RuleId::BoreNotBelowPipe, RuleId::TagNotFound}) {
        const auto finding = std::ranges::find(findings, rule, &Finding::Rule);
        ASSERT_NE(finding, findings.end()) << TextOfAll(findings);
        EXPECT_EQ(finding->Severity, Severity::Note);
        EXPECT_EQ(finding->Run, 2);
    }
    EXPECT_EQ(CountOf(findings, Severity::Error), 0U) << TextOfAll(findings);
}

TEST(PlantOfRules, finds_the_atmospheric_pressure_of_AGA7_and_Accelabar_that_the_check_passes_over) {
    for (const auto algorithm : {AGA7, Accelabar}) {
        SampleStation station(SampleChoices{.Algorithm = algorithm, .GageExternal = true});
        EXPECT_EQ(CountOf(station.Check().Findings, Severity::Error), 0U);
        station.TagOf(algorithm == AGA7 ? "AGA7" : "AGA3", "CommonPaKDIO").TagName = "other";
        const auto findings = station.Check().Findings;
        EXPECT_EQ(std::ranges::count(findings, RuleId::TagPassedOver, &Finding::Rule), 1)
            << TextOfAll(findings);
    }
}

// Three hundred copies that name no tag of the station look healthy in the tree.
TEST(PlantOfRules, finds_every_binding_of_a_copied_file) {
    SampleStation station;
    for (auto& tag : station.Tags)
        tag.TagName = "X" + std::string(tag.TagName);
    const auto findings = station.Check().Findings;
    EXPECT_EQ(std::ranges::count(findings, RuleId::TagNotFound, &Finding::Rule), 2 * (6 + 5 + 8));
}

struct Folder {
    test::MemoryFiles Files;
    test::FakeLibrary Library;
    project::Project Project;
    Folder() {
        Project.ProjectFile = "/jobs/plant.KPJ";
        Project.ProjectName = "plant";
        Project.Paths = config::PathsOf(Project.ProjectFile);
        Project.Stations = {{"North", "", "", 0}, {"South", "", "", 0}};
        const SampleStation station;
        Files.Content["/jobs/KDOrmAGA_plant_North.ini"] = station.Bytes;
        Library.TagsOf["North"] = station.Tags;
    }
    [[nodiscard]] std::vector<StationReport> Check() {
        const ProjectPlant plant(Files, Library, Project,
                                 {"KDOrmAGA_plant_North.ini", "KDOrmAGA_plant_East.ini",
                                  "KDOrmAGA_plan_West.ini", "kdormaga_plant_SOUTH.ini",
                                  "KDOrmAGA_plant_North_Errors.log"});
        std::vector<StationReport> reports;
        for (PlantCheck check(plant); !check.IsAtEnd();)
            reports.push_back(check.Next());
        return reports;
    }
};

TEST(PlantOfProject, has_its_stations_and_behind_them_the_files_that_go_to_none) {
    Folder folder;
    const auto reports = folder.Check();
    ASSERT_EQ(reports.size(), 3U);
    EXPECT_TRUE(reports[0].Configured);
    EXPECT_EQ(reports[0].FileName(), "KDOrmAGA_plant_North.ini");
    EXPECT_EQ(CountOf(reports[0].Findings, Severity::Error), 0U) << TextOfAll(reports[0].Findings);
    EXPECT_FALSE(reports[1].Configured);
    EXPECT_EQ(reports[2].Station, "East");
    ASSERT_EQ(reports[2].Findings.size(), 1U);
    EXPECT_EQ(reports[2].Findings[0].Rule, RuleId::StationUnknown);
    EXPECT_EQ(folder.Files.Replaces, 0);
}

TEST(PlantOfProject, tells_a_file_that_cannot_be_read_from_one_that_is_not_there) {
    Folder folder;
    folder.Files.Unreadable.insert("/jobs/KDOrmAGA_plant_North.ini");
    const auto reports = folder.Check();
    EXPECT_TRUE(reports[0].Configured);
    ASSERT_EQ(reports[0].Findings.size(), 1U);
    EXPECT_EQ(reports[0].Findings[0].Rule, RuleId::FileUnreadable);
    EXPECT_TRUE(reports[1].Findings.empty());
}

std::ptrdiff_t AsksOf(const Folder& folder) {
    return std::ranges::count_if(folder.Library.Calls,
                                 [](const std::string& call) { return call.starts_with("ReadTags"); });
}

TEST(PlantOfProject, asks_for_one_station_ahead_and_for_no_more) {
    Folder folder;
    folder.Project.Stations = {{"North", "", "", 0}, {"South", "", "", 0}, {"West", "", "", 0}};
    for (const char* station : {"South", "West"})
        folder.Files.Content[folder.Project.ConfigFileOf(station)] =
            folder.Files.Content["/jobs/KDOrmAGA_plant_North.ini"];
    const ProjectPlant plant(folder.Files, folder.Library, folder.Project, std::vector<std::string>());
    PlantCheck check(plant);
    EXPECT_EQ(AsksOf(folder), 0);
    EXPECT_EQ(check.Next().Station, "North");
    EXPECT_EQ(AsksOf(folder), 2);
    EXPECT_EQ(check.Next().Station, "South");
    EXPECT_EQ(AsksOf(folder), 3);
    EXPECT_FALSE(check.IsAtEnd());
    EXPECT_EQ(check.Next().Station, "West");
    EXPECT_TRUE(check.IsAtEnd());
    EXPECT_EQ(AsksOf(folder), 3);
}

TEST(PlantOfFolder, takes_project_and_station_apart_by_what_the_file_says) {
    Folder folder;
    SampleStation other;
    other.Set("General", "Project", "C:\\Jobs\\new_plant.KPJ").Set("General", "OrmStation", "Old_North");
    folder.Files.Content["/jobs/KDOrmAGA_new_plant_Old_North.ini"] = other.Bytes;
    const FolderPlant plant(folder.Files, "/jobs",
                            {"KDOrmAGA_plant_North.ini", "KDOrmAGA_new_plant_Old_North.ini", "plant.KPJ"});
    ASSERT_EQ(plant.Count(), 2U);
    EXPECT_EQ(plant.Begin(0).get().Station, "Old_North");
    EXPECT_EQ(plant.Begin(1).get().Station, "North");
    for (const std::size_t place : {0U, 1U})
        EXPECT_EQ(CountOf(plant.Begin(place).get().Findings, Severity::Error) +
                      CountOf(plant.Begin(place).get().Findings, Severity::Warning),
                  0U)
            << TextOfAll(plant.Begin(place).get().Findings);
}

// Random bytes where a file should be: whatever comes of it, nothing breaks and nothing is written.
TEST(PlantOfRules, takes_files_that_are_broken_at_any_place) {
    const SampleStation sound;
    for (std::size_t at = 0; at < sound.Bytes.size(); at += 97) {
        SampleStation broken = sound;
        broken.Bytes.resize(at);
        (void)broken.Check();
        broken.Bytes = sound.Bytes;
        broken.Bytes[at] = '=';
        (void)broken.Check();
    }
}

} // namespace
} // namespace gfc::audit
