#include "CheckedFile.h"
#include "binding/ErrorLog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

using namespace gfc;
using namespace gfc::binding;
using namespace gfc::test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

constexpr const char* Log = "/jobs/KDOrmAGA_plant_North_Errors.log";

ExpectedTag Entry(std::string_view of, std::string_view group, std::string address, std::string tag,
                  std::string location) {
    ExpectedTag entry;
    entry.RegAddr = std::move(address);
    entry.Tag = std::move(tag);
    entry.Type = "T";
    entry.Group = group;
    entry.Location = std::move(location);
    static std::set<std::string> captions;
    entry.Caption = *captions.insert(std::string(of) + " of " + std::string(group)).first;
    entry.Note = "Variable without assignment";
    return entry;
}

// Entries with every kind of fault and with none, in every group that the class has or has not.
std::vector<ExpectedTag> EveryFault(std::string_view of) {
    std::vector<ExpectedTag> entries;
    for (const auto name :
         {group::GasParameters, group::Composition, group::Inputs, group::GasOutputs, group::Outputs}) {
        entries.push_back(Entry(of, name, "1", "", "Run1"));
        entries.push_back(Entry(of, name, "2", "Not Configured", "Run2"));
        entries.push_back(Entry(of, name, "3", "FT-3", "Run3"));
        entries.back().Found = true;
        entries.push_back(Entry(of, name, "4", "", "Run4"));
        entries.back().Found = true;
        entries.push_back(Entry(of, name, "5", "Not Configured", "Run4"));
        entries.back().Found = true;
        entries.push_back(Entry(of, name, "3", "ñandú", "Run5"));
    }
    return entries;
}

struct ErrorLog : testing::Test, CheckedFile {
    std::string& LogBytes() { return Files.Content[Log]; }
    void Write() { WriteErrorLog(Ini, Expected, Log); }
    void ExpectEveryFault() {
        Expected.ExpectedFloat = EveryFault("Float");
        Expected.ExpectedAnalog = EveryFault("Analog");
        Expected.ExpectedDigital = EveryFault("Digital");
        Expected.ExpectedLong = EveryFault("Long");
    }
    // One error of the group, and nothing else.
    void ExpectOneFault(std::vector<ExpectedTag> ExpectedTags::*entries, std::string_view group) {
        Expected = {};
        Expected.*entries = {Entry("A", group, "1", "FT-1", "Run1")};
    }
    [[nodiscard]] Texts SectionNames() const {
        Texts names;
        for (const auto& section : ErrorLogSections(Expected))
            names.emplace_back(section.Name);
        return names;
    }
};

} // namespace

TEST_F(ErrorLog, has_eighteen_sections_letter_by_letter) {
    ExpectEveryFault();
    EXPECT_EQ(ErrorLogSections(Expected).size(), 18U);
    Write();
    EXPECT_EQ(LogBytes(), Golden("log/all_sections.log"));
}

TEST_F(ErrorLog, has_only_the_example_where_nothing_is_wrong) {
    Expected.ExpectedFloat = {Entry("A", group::Inputs, "1", "FT-1", "Run1")};
    Expected.ExpectedFloat.back().Found = true;
    Write();
    EXPECT_EQ(LogBytes(), Golden("log/no_faults.log"));
}

TEST_F(ErrorLog, tells_the_faults_of_a_file) {
    Files.Content[File] = Golden("bad/sound.ini");
    const auto tags = [this] {
        auto station = StationHolding(Build().Expected);
        std::erase_if(station.VirtFX, [](const auto& tag) { return tag.TagName == "PT-ATM"; });
        return station;
    }();
    Put("Run1", "GasTempKDIOTag", "Not Configured").Put("Run1", "GasTempKDIORegAddr", "12");
    for (const char* key :
         {"GFCTotalizeHoldKDIOTag", "GFCTotalizeHoldKDIOType", "GFCTotalizeHoldKDIORegAddr"})
        Ini.WriteKey("Run1", key, std::nullopt, File);
    Build();
    EXPECT_FALSE(CheckExpectedTags(Expected, tags));
    Write();
    EXPECT_EQ(LogBytes(), Golden("log/three_faults.log"));
}

TEST_F(ErrorLog, does_not_grow_when_it_is_written_again) {
    ExpectEveryFault();
    Write();
    const std::string once = LogBytes();
    Files.Replaces = 0;
    Write();
    EXPECT_EQ(LogBytes(), once);
    EXPECT_EQ(Files.Replaces, 0) << "a file that does not change is not touched";
}

TEST_F(ErrorLog, is_put_in_place_at_once) {
    ExpectEveryFault();
    Files.Reads = Files.Replaces = 0;
    Write();
    EXPECT_EQ(Files.Reads, 1);
    EXPECT_EQ(Files.Replaces, 1);
}

TEST_F(ErrorLog, replaces_its_sections_and_leaves_those_of_an_earlier_log) {
    ExpectOneFault(&ExpectedTags::ExpectedLong, group::Inputs);
    Write();
    ExpectOneFault(&ExpectedTags::ExpectedFloat, group::Outputs);
    Write();
    EXPECT_THAT(LogBytes(), HasSubstr("[I/O tags Long AGA 7 Inputs : Errors]\r\nError 1 = [A of AGA Input]"));
    Expected.ExpectedFloat.front().Tag = "FT-2";
    Write();
    EXPECT_THAT(LogBytes(), HasSubstr("[FT-2]"));
    const std::string ofFloats = LogBytes().substr(LogBytes().find("[I/O tags Float"));
    EXPECT_THAT(ofFloats, Not(HasSubstr("[FT-1]")));
    EXPECT_THAT(ofFloats, testing::EndsWith("data base]\r\n\r\n"));
}

TEST_F(ErrorLog, shrinks_a_section_with_its_faults) {
    Expected.ExpectedFloat = EveryFault("Float");
    Write();
    Expected.ExpectedFloat.resize(13);
    Write();
    EXPECT_THAT(LogBytes(), HasSubstr("[I/O tags Float AGA 3/7 Inputs : Errors]\r\n"
                                      "Error 1 = [Float of AGA Input] [] [1] [T] [Run1] "
                                      "[No found in I/O data base]\r\n\r\n"
                                      "[I/O tags Float AGA 3/7 Outputs : Errors]\r\n"));
}

TEST_F(ErrorLog, keeps_what_it_cannot_replace) {
    LogBytes() = "old";
    Files.Unwritable.insert(Log);
    ExpectEveryFault();
    Write();
    EXPECT_EQ(LogBytes(), "old");
}

TEST_F(ErrorLog, stands_beside_its_configuration_whatever_that_ends_in) {
    EXPECT_EQ(ErrorLogPath("/jobs/KDOrmAGA_plant_North.ini"), Log);
    EXPECT_EQ(ErrorLogPath("/jobs/plant.INI"), "/jobs/plant.INI_Errors.log");
    EXPECT_EQ(ErrorLogPath("/jobs/plant"), "/jobs/plant_Errors.log");
    EXPECT_EQ(ErrorLogPath(""), "");
}

TEST_F(ErrorLog, without_a_path_is_not_written) {
    ExpectEveryFault();
    WriteErrorLog(Ini, Expected, "");
    EXPECT_THAT(Files.Content, testing::IsEmpty());
}

// It fails the check all the same.
TEST_F(ErrorLog, does_not_list_the_digital_that_enables_the_composition) {
    ExpectOneFault(&ExpectedTags::ExpectedDigital, group::Composition);
    EXPECT_THAT(SectionNames(), ElementsAre("Example Error Log File"));
    EXPECT_FALSE(CheckExpectedTags(Expected, {}));
}

TEST_F(ErrorLog, does_not_warn_of_gas_parameters_without_a_name) {
    ExpectOneFault(&ExpectedTags::ExpectedFloat, group::GasParameters);
    Expected.ExpectedFloat.front().Tag.clear();
    EXPECT_THAT(SectionNames(), ElementsAre("Example Error Log File",
                                            "I/O tags Float gas parameters SGERG88 Inputs : Errors"));
}

TEST_F(ErrorLog, lists_an_empty_name_as_error_and_as_warning) {
    ExpectOneFault(&ExpectedTags::ExpectedAnalog, group::Outputs);
    Expected.ExpectedAnalog.front().Tag.clear();
    const auto sections = ErrorLogSections(Expected);
    ASSERT_EQ(sections.size(), 3U);
    EXPECT_THAT(sections[1].Lines,
                ElementsAre("Error 1 = [A of AGA Output] [] [1] [T] [Run1] [No found in I/O data base]"));
    EXPECT_THAT(sections[2].Lines,
                ElementsAre("Warning 1 = [A of AGA Output] [] [1] [T] [Run1] [Tag without name]"));
}

TEST_F(ErrorLog, knows_faults_of_the_gas_inputs) {
    for (const auto name : {group::Composition, group::GasParameters}) {
        ExpectOneFault(&ExpectedTags::ExpectedFloat, name);
        EXPECT_TRUE(LogsGasInputErrors(Expected)) << name;
        Expected.ExpectedFloat.front().Found = true;
        Expected.ExpectedFloat.front().Tag.clear();
        EXPECT_FALSE(LogsGasInputErrors(Expected)) << "a warning is no error";
    }
    for (const auto name : {group::Inputs, group::Outputs, group::GasOutputs}) {
        ExpectOneFault(&ExpectedTags::ExpectedFloat, name);
        EXPECT_FALSE(LogsGasInputErrors(Expected)) << name;
    }
    ExpectOneFault(&ExpectedTags::ExpectedDigital, group::Composition);
    EXPECT_FALSE(LogsGasInputErrors(Expected)) << "it gets no line";
}

TEST(ErrorLogPath, stands_beside_the_configuration_file) {
    EXPECT_EQ(ErrorLogPath("/jobs/KDOrmAGA_plant_North.ini"), "/jobs/KDOrmAGA_plant_North_Errors.log");
    EXPECT_EQ(ErrorLogPath("/jobs/KDOrmAGA_plant_a.ini.ini"), "/jobs/KDOrmAGA_plant_a.ini_Errors.log");
    EXPECT_EQ(ErrorLogPath(""), "");
}
