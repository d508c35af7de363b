#include "SampleFixture.h"
#include "workshop/demo/TagPattern.h"

#include <gmock/gmock.h>

#include <map>
#include <set>

namespace gfc::workshop {

using testing::ElementsAre;

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

class Sample : public SampleFixture {
protected:
    [[nodiscard]] Capacity StationCapacity(const std::string& station) const {
        return CapacityOf(TagsOf(station));
    }
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
    EXPECT_FALSE(capacity.Carries(2 * 17, 2, 2 * 3));
    EXPECT_GE(capacity.Float(), 4 * 8 + 8); // no message that only so many runs fit
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

} // namespace gfc::workshop
