#include "WorkshopFixture.h"
#include "workshop/demo/SampleConfiguration.h"
#include "workshop/demo/SampleProject.h"
#include "workshop/demo/TagPattern.h"
#include "workshop/store/FilesToLoad.h"
#include "workshop/text/Paths.h"

#include <gmock/gmock.h>

#include <map>
#include <set>
#include <sstream>

namespace gfc::workshop {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(TagPattern, goes_through_lists_and_ranges_with_the_last_brace_fastest) {
    EXPECT_THAT(ExpandTags("XV-{1..2}_{OPN,CLS} ESD", 0),
                ElementsAre("XV-1_OPN", "XV-1_CLS", "XV-2_OPN", "XV-2_CLS", "ESD"));
    EXPECT_THAT(ExpandTags("L_{08..11}", 0), ElementsAre("L_08", "L_09", "L_10", "L_11"));
}

TEST(TagPattern, repeats_the_whole_pattern_for_each_run) {
    EXPECT_THAT(ExpandTags("P-20#_PV T-20#_PV", 2),
                ElementsAre("P-201_PV", "T-201_PV", "P-202_PV", "T-202_PV"));
}

namespace {

/// What a station has, counted as the flow computer package counts it; written out here once more on purpose.
struct Capacity {
    std::map<std::string, int> Physical; ///< by class
    std::map<std::string, int> Virtual;
    int FloatCandidates = 0, AnalogCandidates = 0, LongCandidates = 0;
    int FloatTaken = 0, AnalogTaken = 0, LongTaken = 0;

    [[nodiscard]] int Float() { return Virtual["FX"] + Virtual["FY"] - FloatTaken; }
    [[nodiscard]] int Analog() {
        return Virtual["AX"] + Virtual["AY"] + Physical["AX"] + Physical["AY"] - AnalogTaken;
    }
    [[nodiscard]] int Digital() { return Virtual["X"] + Virtual["Y"] + Physical["X"] + Physical["Y"]; }
    [[nodiscard]] int Long() { return Virtual["LX"] + Virtual["LY"] - LongTaken; }
    /// With one candidate of each kind, which is how the sample stations are made.
    [[nodiscard]] bool Carries(int needFloat, int needAnalog, int needDigital) {
        return FloatCandidates == 1 && AnalogCandidates == 1 && Float() >= needFloat &&
               Analog() >= needAnalog && Digital() >= needDigital;
    }
    [[nodiscard]] bool CarriesLong(int need) { return LongCandidates == 1 && Long() >= need; }
};

void CountCandidate(const std::string& registerClass, int tags, Capacity& capacity) {
    const char kind = registerClass[0];
    if (kind == 'F' && tags >= 128) {
        ++capacity.FloatCandidates;
        capacity.FloatTaken += tags;
    } else if (kind == 'A' && tags >= 32) {
        ++capacity.AnalogCandidates;
        capacity.AnalogTaken += tags;
    } else if (kind == 'L' && tags >= 8) {
        ++capacity.LongCandidates;
        capacity.LongTaken += tags;
    }
}

Capacity CapacityOf(const std::vector<Tag>& tags) {
    Capacity capacity;
    std::map<std::pair<std::string, std::string>, int> modules; // class and module
    for (const Tag& tag : tags) {
        if (tag.ModuleType.substr(0, tag.ModuleType.find(' ')) != "Virtual") {
            ++capacity.Physical[tag.Class];
            continue;
        }
        ++capacity.Virtual[tag.Class];
        ++modules[{tag.Class, tag.Module}];
    }
    for (const auto& [module, count] : modules) {
        CountCandidate(module.first, count, capacity);
    }
    return capacity;
}

} // namespace

class Sample : public WorkshopFixture {
protected:
    Sample() : files_(MakeSample(Folder / "plant", Existing::Refuse)) {}

    [[nodiscard]] Project Plant(Access access = Access::Read) const {
        return Project::Open(files_.Project, access);
    }
    [[nodiscard]] std::vector<Tag> TagsOf(const std::string& station) const {
        Project project = Plant();
        const auto known = FindStation(project, station);
        EXPECT_TRUE(known) << station;
        return known ? ListTags(project, known->Id) : std::vector<Tag>{};
    }
    [[nodiscard]] Capacity StationCapacity(const std::string& station) const {
        return CapacityOf(TagsOf(station));
    }

    SampleFiles files_;
};

TEST_F(Sample, has_stations_with_everything_that_a_list_shows) {
    Project project = Plant();
    const auto stations = ListStations(project);
    EXPECT_GE(stations.size(), 7U);
    std::set<std::int32_t> serials;
    for (const Station& station : stations) {
        EXPECT_FALSE(station.Type.empty()) << station.Name;
        EXPECT_FALSE(station.Address.empty()) << station.Name;
        serials.insert(station.SerialNumber);
    }
    EXPECT_EQ(serials.size(), stations.size());
}

TEST_F(Sample, delivers_the_tags_of_a_module_side_by_side) {
    Project project = Plant();
    for (const Station& station : ListStations(project)) {
        std::set<std::string> ended;
        std::string current;
        for (const Tag& tag : ListTags(project, station.Id)) {
            if (tag.Module != current) {
                EXPECT_TRUE(ended.insert(tag.Module).second) << station.Name << ' ' << tag.Module;
                current = tag.Module;
            }
            EXPECT_LE(tag.Name.size(), 40U);
        }
    }
}

TEST_F(Sample, custody_station_has_every_class_both_physical_and_virtual) {
    Capacity capacity = StationCapacity("Northgate_Custody");
    for (const std::string_view registerClass : RegisterClasses) {
        EXPECT_GT(capacity.Physical[std::string(registerClass)], 0) << registerClass;
        EXPECT_GT(capacity.Virtual[std::string(registerClass)], 0) << registerClass;
    }
}

TEST_F(Sample, custody_station_carries_five_runs_of_every_kind) {
    Capacity capacity = StationCapacity("Northgate_Custody");
    EXPECT_TRUE(capacity.Carries(5 * 44, 5 * 2, 5 * 4)); // the greatest need: a chromatograph on every run
    EXPECT_TRUE(capacity.CarriesLong(5));
    EXPECT_TRUE(capacity.CarriesLong(3 * 5)); // what is asked where AGA-7 runs are chosen
    EXPECT_GE(capacity.Float(), 4 * 8 + 8);   // above every message that only so many runs fit
}

TEST_F(Sample, single_run_station_carries_exactly_one_of_the_aga3_kind) {
    Capacity capacity = StationCapacity("Eastfield_Meter");
    EXPECT_TRUE(capacity.Carries(17, 1, 3));
    EXPECT_TRUE(capacity.Carries(23, 2, 3));
    EXPECT_TRUE(capacity.Carries(44, 2, 4));
    EXPECT_FALSE(capacity.Carries(2 * 17, 2, 2 * 3));
    EXPECT_FALSE(capacity.CarriesLong(1));
    EXPECT_GE(capacity.Float(), 4 * 8 + 8);
}

TEST_F(Sample, turbine_station_carries_aga7_only) {
    Capacity capacity = StationCapacity("Quarry_Turbine");
    EXPECT_FALSE(capacity.Carries(17, 1, 3));
    EXPECT_TRUE(capacity.Carries(6, 1, 3));
    EXPECT_TRUE(capacity.CarriesLong(1));
    EXPECT_TRUE(capacity.Carries(11, 2, 3));
    EXPECT_TRUE(capacity.Carries(2 * 6, 2, 2 * 3));
    EXPECT_TRUE(capacity.CarriesLong(3 * 2));
    EXPECT_FALSE(capacity.Carries(3 * 6, 3, 3 * 3));
    EXPECT_GE(capacity.Float(), 2 * 5); // two runs by the message, as by the requirement
    EXPECT_LT(capacity.Float(), 2 * 5 + 8);
}

TEST_F(Sample, delivery_station_carries_two_runs_of_every_kind) {
    Capacity capacity = StationCapacity("Lakeside_Delivery");
    EXPECT_TRUE(capacity.Carries(2 * 44, 2 * 2, 2 * 4));
    EXPECT_TRUE(capacity.CarriesLong(3 * 2));
}

TEST_F(Sample, skid_carries_one_run_and_has_letters_beyond_ascii) {
    Capacity capacity = StationCapacity("Skid_Añelo");
    EXPECT_TRUE(capacity.Carries(23, 2, 3));
    EXPECT_TRUE(capacity.Carries(11, 2, 3) && capacity.CarriesLong(3));
    std::set<std::string> names;
    for (const Tag& tag : TagsOf("Skid_Añelo")) {
        names.insert(tag.Name);
    }
    EXPECT_TRUE(names.contains("Caudal_Ñ"));
    EXPECT_TRUE(names.contains("TIT_1201A"));
    EXPECT_TRUE(names.contains("PDT_101A"));
}

TEST_F(Sample, small_stations_carry_nothing) {
    Capacity odorizer = StationCapacity("Odorizer_2");
    EXPECT_FALSE(odorizer.Carries(17, 1, 3));
    EXPECT_FALSE(odorizer.Carries(6, 1, 3));
    EXPECT_EQ(odorizer.LongCandidates, 1); // fails by its counts and not for want of modules
    Capacity valve = StationCapacity("Valve_Site_12");
    EXPECT_EQ(valve.FloatCandidates + valve.AnalogCandidates + valve.LongCandidates, 0);
    EXPECT_TRUE(TagsOf("Pig_Receiver_3").empty());
}

TEST_F(Sample, configuration_binds_tags_as_the_station_has_them) {
    std::map<std::string, std::string> places;
    for (const Tag& tag : TagsOf("Lakeside_Delivery")) {
        places[tag.Name] = tag.Class + ' ' + std::to_string(tag.Register);
    }
    std::map<std::string, std::string> values;
    std::istringstream lines(ReadBytes(files_.Configuration));
    std::string section;
    for (std::string line; std::getline(lines, line);) {
        ASSERT_EQ(line.back(), '\r') << line;
        line.pop_back();
        section = line.starts_with('[') ? line : section;
        values[section + line.substr(0, line.find('='))] = line.substr(line.find('=') + 1);
    }
    int bindings = 0;
    for (const char* stem :
         {"GasDensity", "GasTemp", "GasPress", "GasDP", "GFCRunHold", "GFCTotalizeHold", "ResetTotals",
          "StdMassFlow", "StdVolFlow", "GasVolume", "GasMass", "AGA3Status"}) {
        const std::string key = std::string("[Run1]") + stem + "KDIO";
        const bool small =
            std::string(stem) == "StdVolFlow"; // its keys have small letters in a file written whole
        const std::string place = values[key + (small ? "type" : "Type")] + ' ' + values[key + "RegAddr"];
        EXPECT_EQ(places[values[key + (small ? "tag" : "Tag")]], place) << stem;
        bindings += place.size() > 2 ? 1 : 0;
    }
    EXPECT_EQ(bindings, 12);
    EXPECT_EQ(places["FXLOG_001"],
              values["[FlowRuns]WrkFloatRegType"] + ' ' + values["[FlowRuns]WrkFloatRegAddr"]);
    EXPECT_EQ(places["LXLOG_1"],
              values["[FlowRuns]WrkIntLongRegType"] + ' ' + values["[FlowRuns]WrkIntLongRegAddr"]);
    EXPECT_EQ(places["AXLOG_01"],
              values["[FlowRuns]WrkAnalogRegType"] + ' ' + values["[FlowRuns]WrkAnalogRegAddr"]);
    EXPECT_EQ(values["[General]Project"], PathText(files_.Project));
    EXPECT_EQ(values["[General]OrmStation"], "Lakeside_Delivery");
}

TEST_F(Sample, configuration_has_the_layout_of_a_full_write) {
    const std::string bytes = SampleConfiguration("/jobs/A\xC3\xB1o/plant.KPJ");
    std::vector<std::string> names; // sections and keys in file order
    std::istringstream lines(bytes);
    for (std::string line; std::getline(lines, line);) {
        names.push_back(line.substr(0, line.find_first_of("=\r")));
    }
    EXPECT_THAT(bytes, HasSubstr("\r\nProject=/jobs/A\xF1o/plant.KPJ\r\nOrmStation=")); // in the code page
    const std::vector<std::string> expected = {"[General]",
                                               "Package",
                                               "Project",
                                               "OrmStation",
                                               "UserID",
                                               "[Station]",
                                               "EnableDataTraces",
                                               "DeviceDataTraces",
                                               "NumberTraces",
                                               "[FlowRuns]",
                                               "Run1",
                                               "Run2",
                                               "Run3",
                                               "Run4",
                                               "Run5",
                                               "FlowAlgorithm",
                                               "GasDensitySource",
                                               "GasDensityStandardT",
                                               "GasDensityStandardP",
                                               "SystemUnits",
                                               "WrkFloatModName",
                                               "WrkFloatRegAddr",
                                               "WrkFloatRegType",
                                               "WrkIntLongModName",
                                               "WrkIntLongRegAddr",
                                               "WrkIntLongRegType",
                                               "WrkAnalogModName",
                                               "WrkAnalogRegAddr",
                                               "WrkAnalogRegType",
                                               "Run11",
                                               "Run22",
                                               "Run33",
                                               "Run44",
                                               "Run55",
                                               "[AGA3]",
                                               "StandardT",
                                               "StandardP",
                                               "FlowingViscosity",
                                               "IsentropicCoeff",
                                               "Compressible",
                                               "PressType",
                                               "ExtAtmPress",
                                               "AtmPress",
                                               "CommonPaKDIORegAddr",
                                               "CommonPaKDIOTag",
                                               "CommonPaKDIOType",
                                               "[Run1]",
                                               "SystemUnits",
                                               "FlowAlgorithm",
                                               "GasDensitySource",
                                               "StandardT",
                                               "StandardP",
                                               "Compressible",
                                               "FlowingViscosity",
                                               "IsentropicCoeff",
                                               "PressureTap",
                                               "PressureTapPos",
                                               "PipeMaterial",
                                               "InternalPipeDia",
                                               "InternalPipeDiaRefTemp",
                                               "OrificeMaterial",
                                               "OrificeDia",
                                               "OrificeDiaRefTemp",
                                               "OrificeThermalExpCoeff",
                                               "PipeThermalExpCoeff",
                                               "ExtMechParam",
                                               "PressType",
                                               "ExtAtmPress",
                                               "AtmPress",
                                               "CalibrationFactor",
                                               "ContractHour",
                                               "ContractMin",
                                               "GasDensityStandard",
                                               "GasDensityKDIOTag",
                                               "GasDensityKDIOType",
                                               "GasDensityKDIORegAddr",
                                               "GasTempKDIOTag",
                                               "GasTempKDIOType",
                                               "GasTempKDIORegAddr",
                                               "GasPressKDIOTag",
                                               "GasPressKDIOType",
                                               "GasPressKDIORegAddr",
                                               "GasDPKDIOTag",
                                               "GasDPKDIOType",
                                               "GasDPKDIORegAddr",
                                               "GFCRunHoldKDIOTag",
                                               "GFCRunHoldKDIOType",
                                               "GFCRunHoldKDIORegAddr",
                                               "GFCTotalizeHoldKDIOTag",
                                               "GFCTotalizeHoldKDIOType",
                                               "GFCTotalizeHoldKDIORegAddr",
                                               "ResetTotalsKDIOTag",
                                               "ResetTotalsKDIOType",
                                               "ResetTotalsKDIORegAddr",
                                               "StdMassFlowKDIOTag",
                                               "StdMassFlowKDIOType",
                                               "StdMassFlowKDIORegAddr",
                                               "StdVolFlowKDIOtag",
                                               "StdVolFlowKDIOtype",
                                               "StdVolFlowKDIORegAddr",
                                               "GasVolumeKDIOTag",
                                               "GasVolumeKDIOType",
                                               "GasVolumeKDIORegAddr",
                                               "GasMassKDIOTag",
                                               "GasMassKDIOType",
                                               "GasMassKDIORegAddr",
                                               "AGA3StatusKDIOTag",
                                               "AGA3StatusKDIOType",
                                               "AGA3StatusKDIORegAddr"};
    EXPECT_EQ(names, expected);
}

TEST_F(Sample, configuration_is_in_the_list_of_files_to_load) {
    Project project = Plant();
    const auto files = ListFilesToLoad(project);
    ASSERT_EQ(files.size(), 1U);
    EXPECT_EQ(files[0].Station, "Lakeside_Delivery");
    EXPECT_EQ(files[0].Local, PathText(files_.Configuration));
    EXPECT_EQ(files[0].Target, "/etc/stacfg/kdormaga.ini");
}

TEST_F(Sample, is_made_anew_only_when_told_and_leaves_nothing_beside) {
    Project changed = Plant(Access::Write);
    AddStation(changed, {0, "Extra", "", "", 0});
    EXPECT_THAT(FailureOf([&] { MakeSample(Folder / "plant", Existing::Refuse); }),
                HasSubstr("--force makes it anew"));
    MakeSample(Folder / "plant", Existing::ReplaceSample);
    Project anew = Plant();
    EXPECT_FALSE(FindStation(anew, "Extra"));
    const std::filesystem::directory_iterator files(Folder / "plant");
    EXPECT_EQ(std::distance(begin(files), end(files)), 2);
}

TEST_F(Sample, never_takes_the_place_of_another_file) {
    std::filesystem::create_directory(Folder / "own");
    MakeSmallProject("own/plant.KPJ");
    const std::string before = ReadBytes(Folder / "own/plant.KPJ");
    EXPECT_THAT(FailureOf([&] { MakeSample(Folder / "own", Existing::ReplaceSample); }),
                HasSubstr("is not the sample"));
    EXPECT_EQ(ReadBytes(Folder / "own/plant.KPJ"), before);
    std::filesystem::create_directory(Folder / "ini");
    WriteBytes(SampleFilesIn(Folder / "ini").Configuration, "mine");
    EXPECT_THAT(FailureOf([&] { MakeSample(Folder / "ini", Existing::ReplaceSample); }),
                HasSubstr("is there already"));
    EXPECT_EQ(ReadBytes(SampleFilesIn(Folder / "ini").Configuration), "mine");
}

} // namespace gfc::workshop
