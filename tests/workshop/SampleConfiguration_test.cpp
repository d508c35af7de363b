#include "SampleFixture.h"
#include "workshop/demo/SampleConfiguration.h"
#include "workshop/store/FilesToLoad.h"
#include "workshop/text/Paths.h"

#include <gmock/gmock.h>

#include <map>
#include <sstream>

namespace gfc::workshop {

using testing::HasSubstr;

class SampleConfigurationFile : public SampleFixture {};

TEST_F(SampleConfigurationFile, binds_tags_as_the_station_has_them) {
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

TEST_F(SampleConfigurationFile, has_the_layout_of_a_full_write) {
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

TEST_F(SampleConfigurationFile, is_in_the_list_of_files_to_load) {
    Project project = Plant();
    const auto files = ListFilesToLoad(project);
    ASSERT_EQ(files.size(), 1U);
    EXPECT_EQ(files[0].Station, "Lakeside_Delivery");
    EXPECT_EQ(files[0].Local, PathText(files_.Configuration));
    EXPECT_EQ(files[0].Target, "/etc/stacfg/kdormaga.ini");
}

} // namespace gfc::workshop
