// Tables of stations: every fault by row and column, all or nothing.
#include "PlanWorld.h"
#include "plan/Apply.h"
#include "plan/Template.h"
#include "suggest/Known.h"

#include <gmock/gmock.h>

#include <random>
#include <set>

namespace gfc::plan {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

using Table = std::vector<std::vector<std::string>>;

class Tables : public testing::Test {
protected:
    Tables() {
        World.Configure("North", "wizard/aga3_aga8_fixed.ini");
        // Of the golden compositions the sums are not 1.
        for (const char* methane : {"GC_C1=0.92\r", "GC_C1=0.95\r"}) {
            std::string& bytes = World.BytesOf("North");
            bytes.replace(bytes.find(methane), std::string(methane).size(), "GC_C1=0.965222\r");
        }
        World.BuildAlike("South", "North", [](const std::string& name) { return name; });
        const config::FileIni ini(World.Files);
        Sound = TemplateOf(ini, {{"North", World.FileOf("North"), &World.Library.TagsOf["North"]}}, {});
        for (std::size_t row = 1; row < Sound.size(); ++row)
            Sound[row][0] = "South";
    }

    std::vector<Checked> Plan(const Table& table, ApplyOptions options = {}) {
        Found.clear();
        return PlanTable(WriteSheet(table), World.Files, World.Library, World.Project, options, Found,
                         [](const std::string&) { return true; });
    }

    [[nodiscard]] std::size_t PlaceOf(const std::string& title) const {
        const auto found = std::ranges::find(Sound.front(), title);
        EXPECT_NE(found, Sound.front().end()) << title;
        return static_cast<std::size_t>(found - Sound.front().begin());
    }

    // The faults of the sound table with one other cell; row 2 is that of the first run.
    std::vector<std::string> FaultsWith(const std::string& title, const std::string& text,
                                        std::size_t row = 2) {
        Table table = Sound;
        table[row - 1][PlaceOf(title)] = text;
        SCOPED_TRACE(title);
        EXPECT_THAT(Plan(table), IsEmpty()) << title << "=" << text;
        std::vector<std::string> lines;
        for (const Fault& fault : Found)
            lines.push_back(fault.Line());
        return lines;
    }

    test::PlanWorld World;
    Table Sound;
    Faults Found;
};

TEST_F(Tables, ASoundOneGivesTheFileOfTheStationThatItWasMadeFrom) {
    const auto applied = Plan(Sound);
    for (const Fault& fault : Found)
        ADD_FAILURE() << fault.Line();
    ASSERT_THAT(applied, SizeIs(1));
    EXPECT_EQ(applied.front().Change.Command, "Apply plan");
    EXPECT_EQ(applied.front().Change.Before, std::nullopt);
    // The registers of the other station are others; all else is the same.
    std::string expected = World.BytesOf("North");
    expected.replace(expected.find("OrmStation=North"), 16, "OrmStation=South");
    for (const config::KeyChange& change : config::ChangesOf(expected, applied.front().Change.After))
        EXPECT_THAT(change.Key, testing::EndsWith("Addr"));
}

TEST_F(Tables, EachFaultIsToldByRowAndColumnWithWhatWouldDo) {
    EXPECT_THAT(
        FaultsWith("Units", "Yards"),
        testing::Contains("row 2, column Units (\"Yards\"): Say one of: US, US-degC, Metric, Metric-degF, "
                          "Practical-SI."));
    EXPECT_THAT(FaultsWith("Station", "Nowhere"),
                testing::Contains("row 2, column Station (\"Nowhere\"): The project has no such station."));
    EXPECT_THAT(FaultsWith("Runs", "6"), ElementsAre(HasSubstr("row 2, column Runs (\"6\"): Say the runs")));
    EXPECT_THAT(FaultsWith("Runs", "5"),
                ElementsAre("row 3, column Runs (\"5\"): Another row says what this run is to be."));
    EXPECT_THAT(
        FaultsWith("OrificeDia", "wide"),
        ElementsAre("row 2, column OrificeDia (\"wide\"): OrificeDia says \"wide\", which is no number with "
                    "digits and one point at most. (number-bad)"));
    EXPECT_THAT(FaultsWith("OrificeDia", "", 3),
                ElementsAre("row 3, column OrificeDia: OrificeDia has no value. (value-missing)"));
    EXPECT_THAT(FaultsWith("OrificeDia", "99"),
                ElementsAre(HasSubstr("row 2, column OrificeDia (\"99\"): The bore")));
    EXPECT_THAT(
        FaultsWith("GasTempKDIOTag", "XS-1"),
        ElementsAre("row 2, column GasTempKDIOTag (\"XS-1\"): The station has no float tag of this name that "
                    "may be bound."));
    EXPECT_THAT(FaultsWith("GasTempKDIOTag", ""),
                ElementsAre(HasSubstr("row 2, column GasTempKDIOTag: Name a tag, or say automatic")));
    EXPECT_THAT(FaultsWith("StandardP", "14.65", 3),
                ElementsAre(HasSubstr("row 3, column StandardP (\"14.65\"): Row 2 says \"14.73\"")));
    EXPECT_THAT(
        FaultsWith("Composition", "GUESSED"),
        testing::Contains(HasSubstr("column Composition (\"GUESSED\"): Say one of: MEASURED, FIXED.")));
    EXPECT_THAT(FaultsWith("User", "\xE2\x82\xAA"),
                testing::Contains(HasSubstr("cannot hold these characters")));
}

// The file's reader takes quotes off, and a line ends a value.
TEST_F(Tables, ATextThatTheFileWouldNotGiveBackIsAFault) {
    for (const auto& [said, read] : {std::pair<std::string, std::string>{"'trace'", "trace"},
                                     {"\"12\"", "12"},
                                     {"a\r\nb", "a"},
                                     {std::string(255, 'x'), std::string(254, 'x')}}) {
        Table table = Sound;
        table[0].push_back("DeviceDataTraces");
        table[1].push_back(said);
        table[2].push_back(said);
        EXPECT_THAT(Plan(table), IsEmpty());
        ASSERT_THAT(Found, SizeIs(2)) << said;
        EXPECT_EQ(Found[0].Column, "DeviceDataTraces");
        EXPECT_EQ(Found[1].Row, 3);
        EXPECT_THAT(Found[0].Text, HasSubstr("would say \"" + read + "\" instead"));
    }
}

TEST_F(Tables, AllFaultsOfAllStationsAreToldAtOnceInTheOrderOfTheRows) {
    Table table = Sound;
    table[2][PlaceOf("OrificeDia")] = "x";
    table[1][PlaceOf("GC_C1")] = "y";
    table[1][PlaceOf("GasPressKDIOTag")] = "none";
    table.push_back(Sound[1]);
    table.back()[0] = "West";
    Plan(table);
    ASSERT_THAT(Found, SizeIs(2));
    EXPECT_EQ(Found[0].Row, 2);
    EXPECT_EQ(Found[1].Row, 4);
    // Once what is named is there, the values are looked at.
    table[1][PlaceOf("GasPressKDIOTag")] = Sound[1][PlaceOf("GasPressKDIOTag")];
    Plan(table);
    EXPECT_GE(Found.size(), 3U);
    EXPECT_TRUE(std::ranges::is_sorted(Found, {}, &Fault::Row));
}

TEST_F(Tables, WhatTheChoicesLeaveNoPlaceForIsRefusedAndNotLost) {
    Table table = Sound;
    table[0].push_back("meterKFactor");
    table[1].push_back("1.0");
    table[2].push_back("");
    Plan(table);
    ASSERT_THAT(Found, SizeIs(1));
    EXPECT_THAT(Found[0].Line(),
                HasSubstr("row 2, column meterKFactor (\"1.0\"): There is no such value under AGA3"));
}

TEST_F(Tables, ColumnsThatAreUnknownTwiceOrMissingAreFaults) {
    Table table = Sound;
    table[0][PlaceOf("GC_C1")] = "Methan";
    table[0][PlaceOf("GC_N2")] = "Station";
    table[0][PlaceOf("Units")] = "User";
    Plan(table);
    std::vector<std::string> lines;
    for (const Fault& fault : Found)
        lines.push_back(fault.Line());
    EXPECT_THAT(lines,
                testing::IsSupersetOf({"column Methan: There is no such column. A template shows those that "
                                       "there are.",
                                       "column Station: The column stands twice.",
                                       "column Units: The column is missing."}));
}

TEST_F(Tables, AConfiguredStationIsReplacedWhenThatIsAskedForAlone) {
    World.BytesOf("South") = "[General]\r\n";
    EXPECT_THAT(Plan(Sound), IsEmpty());
    ASSERT_THAT(Found, SizeIs(1));
    EXPECT_THAT(Found[0].Text, HasSubstr("replaced with --replace alone"));
    const auto applied = Plan(Sound, {.User = "99", .MayReplace = true});
    ASSERT_THAT(applied, SizeIs(1));
    EXPECT_EQ(applied.front().Change.Before, "[General]\r\n");
    EXPECT_THAT(applied.front().Change.After, HasSubstr("UserID=99\r\n"));
}

TEST_F(Tables, TagsAreTakenAutomaticallyOrWhereTheSuggestionIsSure) {
    const config::FileIni ini(World.Files);
    Table table = TemplateOf(ini, {{"North", World.FileOf("North"), nullptr}}, tags::Automatic);
    for (std::size_t row = 1; row < table.size(); ++row)
        table[row][0] = "South";
    const auto applied = Plan(table);
    EXPECT_THAT(Found, IsEmpty());
    ASSERT_THAT(applied, SizeIs(1));
    // No register twice.
    std::set<std::string> seen;
    test::MemoryFiles files;
    files.Content["x"] = applied.front().Change.After;
    for (const auto& bound : suggest::BoundInFile(config::FileIni(files), "x"))
        EXPECT_TRUE(seen.insert(bound.Binding.Type + bound.Binding.RegAddr).second) << bound.Binding.Tag;
    // The names of this station say nothing, so that nothing is surely meant.
    for (auto& row : table)
        std::ranges::replace(row, std::string(tags::Automatic), std::string(tags::Suggested));
    EXPECT_THAT(Plan(table), IsEmpty());
    EXPECT_THAT(Found.front().Text,
                testing::AnyOf(HasSubstr("is not sure"), HasSubstr("Nothing is suggested")));
}

TEST_F(Tables, AStationThatCannotCarryTheRunsIsRefused) {
    std::erase_if(World.Library.TagsOf["South"],
                  [](const project::Tag& tag) { return tag.ModuleName == "VF0"; });
    Plan(Sound);
    EXPECT_THAT(Found.front().Text, HasSubstr("lacks virtual modules"));
}

// Whatever stands in a cell: either the table is refused with a fault at that row, or it says of itself what
// was read from it.
TEST_F(Tables, ACellThatIsChangedIsToldOrTakenAndNeverPassedOver) {
    constexpr unsigned seed = 22;
    std::mt19937 random(seed);
    const std::vector<std::string> texts = {"",     "0",     "1.5",       "-1",    "Yes",
                                            "AGA7", "Gage",  "MEASURED",  "FT-3",  "x;\"y\"",
                                            "2 4",  "North", "automatic", "9.9.9", "\xC3\xB1"};
    int refused = 0, taken = 0;
    for (int i = 0; i < 150; ++i) {
        Table table = Sound;
        const std::size_t row = 1 + random() % (table.size() - 1), column = random() % table[0].size();
        const std::string text = texts[random() % texts.size()];
        table[row][column] = text;
        SCOPED_TRACE("seed " + std::to_string(seed) + ", step " + std::to_string(i) + ": row " +
                     std::to_string(row + 1) + ", " + table[0][column] + "=" + text);
        const auto applied = Plan(table, {.MayReplace = true});
        ASSERT_NE(applied.empty(), Found.empty());
        refused += Found.empty() ? 0 : 1;
        taken += Found.empty() ? 1 : 0;
        if (applied.size() != 1)
            continue;
        test::MemoryFiles files;
        files.Content["x"] = applied.front().Change.After;
        const Table back = TemplateOf(config::FileIni(files), {{"South", "x", nullptr}}, {});
        const auto title = std::ranges::find(back.front(), table[0][column]);
        if (title != back.front().end() && column > 1 && !text.empty() && table[0][column] != "Tags")
            EXPECT_EQ(back[row][static_cast<std::size_t>(title - back.front().begin())], text);
    }
    EXPECT_GT(refused, 50);
    EXPECT_GT(taken, 5);
}

TEST_F(Tables, WhatIsNoTableIsOneFaultAndNotOneForEachColumn) {
    for (const std::string& bytes :
         {std::string(), std::string("\r\n,,\r\n"), std::string("PK\x03\x04\0\0A,B", 9),
          std::string("\xFF\xFES\0t\0a\0", 8)}) {
        Faults faults;
        EXPECT_THAT(PlanTable(bytes, World.Files, World.Library, World.Project, {}, faults,
                              [](const std::string&) { return true; }),
                    IsEmpty());
        ASSERT_THAT(faults, SizeIs(1));
        EXPECT_EQ(faults[0].Line(),
                  bytes.find('\0') == std::string::npos
                      ? "The table is empty. \"template\" makes one to start from."
                      : "This is no table in CSV. Save it from the spreadsheet as \"CSV UTF-8\".");
    }
}

TEST(Sheets, AreReadAsSpreadsheetsWriteThem) {
    Faults faults;
    const Sheet sheet =
        ReadSheet("\xEF\xBB\xBFStation;Runs\r\n\r\n\"No;rth \"\"1\"\"\" ; 1\n\"a\r\nb\";2\r\n;;\r\n", faults);
    EXPECT_THAT(faults, IsEmpty());
    EXPECT_THAT(sheet.Titles, ElementsAre("Station", "Runs"));
    ASSERT_THAT(sheet.Rows, SizeIs(2));
    EXPECT_EQ(sheet.Rows[0].Number, 3);
    EXPECT_THAT(sheet.Rows[0].Cells, ElementsAre("No;rth \"1\"", "1"));
    EXPECT_THAT(sheet.Rows[1].Cells, ElementsAre("a\r\nb", "2"));
    EXPECT_EQ(ReadSheet("A\tB\rx,y\tz", faults).Rows.at(0).Cells.at(0), "x,y");
    EXPECT_EQ(ReadSheet("Station\n\xF1", faults).Rows.at(0).Cells.at(0), "\xC3\xB1");
    // What parts the cells does not follow from what stands in them.
    EXPECT_THAT(ReadSheet("\r\n\"a;b;c\r\nd;e\",B\nx,y", faults).Titles, ElementsAre("a;b;c\r\nd;e", "B"));
    EXPECT_THAT(ReadSheet("Bore 12\";B\nx,y;z", faults).Titles, ElementsAre("Bore 12\"", "B"));
    EXPECT_THAT(faults, IsEmpty());
    EXPECT_THAT(ReadSheet("A,B\n1,2,3\n\"open", faults).Rows, SizeIs(2));
    EXPECT_THAT(faults, SizeIs(2));
    EXPECT_THAT(ReadSheet("", faults).Titles, IsEmpty());
}

} // namespace
} // namespace gfc::plan
