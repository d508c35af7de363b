#include "SampleFixture.h"
#include "workshop/demo/SampleTags.h"
#include "workshop/export/TagExport.h"
#include "workshop/import/TagImport.h"

#include <gmock/gmock.h>

namespace gfc::workshop {

using testing::HasSubstr;
using testing::IsEmpty;

class TagExport : public SampleFixture {
protected:
    /// Everything that a table carries, in order.
    static std::vector<std::string> Contents(const std::filesystem::path& file) {
        Project project = Project::Open(file, Access::Read);
        std::vector<std::string> lines;
        for (const auto& [station, tags] : StationTagsOf(project, "")) {
            lines.push_back(station.Name + '|' + station.Type + '|' + station.Address + '|' +
                            std::to_string(station.SerialNumber));
            for (const Tag& tag : tags) {
                lines.push_back(tag.Name + '|' + tag.Class + '|' + std::to_string(tag.Register) + '|' +
                                tag.Module + '|' + tag.ModuleType + '|' + tag.Description);
            }
        }
        return lines;
    }
    /// Exports the project, imports the table into an empty one, and holds both against each other.
    void ExpectRoundTrip(const std::string& project, const std::string& how) {
        std::filesystem::remove(Folder / "copy.KPJ");
        ASSERT_EQ(Run("export-tags --force " + how + " " + Quoted("t.csv") + " --project " + Quoted(project))
                      .Status,
                  0);
        ASSERT_EQ(Run("new " + Quoted("copy.KPJ")).Status, 0);
        const Outcome import =
            Run("import-tags --replace " + Quoted("t.csv") + " --project " + Quoted("copy.KPJ"));
        ASSERT_EQ(import.Status, 0) << import.Output;
        EXPECT_EQ(Contents(Folder / "copy.KPJ"), Contents(Folder / project));
    }
};

TEST_F(TagExport, of_the_sample_comes_back_whole_with_every_separator) {
    for (const std::string how : {"", "--separator comma", "--separator semicolon", "--separator tab"}) {
        ExpectRoundTrip("plant/plant.KPJ", how);
    }
}

TEST_F(TagExport, keeps_accents_quotes_separators_and_the_order_of_delivery) {
    {
        Project project = Project::Create(Folder / "odd.KPJ");
        const std::int64_t id = AddStation(project, {0, "Zoë, Añelo", "Typ; \"A\"", "10.0.0.1", 2147483647});
        AddStation(project, {0, "Leer", "", "", 0});
        TagAppender(project, id)
            .Append({{"Z \"quoted\"", "FX", 5, "B,1", "Virtual Module", "a, b; c d"},
                     {"'apostrophe'", "X", 0, "A;2", "", "\"\""},
                     {"Ø_Tubería_°C_€", "LY", 2147483647, "B,1", "Virtual Module", "=1+1"},
                     {"\"", "AX", 1, "A;2", "", ""}});
        AddStation(project, {0, "Später", "x", "", 1});
    }
    for (const std::string how : {"--separator comma", "--separator semicolon"}) {
        ExpectRoundTrip("odd.KPJ", how);
    }
}

TEST_F(TagExport, imported_where_it_came_from_changes_nothing) {
    ASSERT_EQ(Run("open " + Quoted("plant/plant.KPJ")).Status, 0);
    ASSERT_EQ(Run("export-tags " + Quoted("t.csv")).Status, 0);
    const std::string before = ReadBytes(files_.Project);
    for (const std::string mode : {"", "--replace ", "--preview "}) {
        const Outcome import = Run("import-tags " + mode + Quoted("t.csv"));
        EXPECT_EQ(import.Status, 0);
        const std::string reading =
            "io-workshop: " + In("t.csv") + ": read as UTF-8, fields parted by commas.\n";
        EXPECT_EQ(import.Output, (mode == "--preview " ? reading : "") + In("plant/plant.KPJ") +
                                     " holds all of the table already; nothing was changed.\n");
    }
    EXPECT_EQ(ReadBytes(files_.Project), before);
}

TEST_F(TagExport, writes_a_heading_and_quotes_only_where_they_are_needed) {
    const Station station{0, "North", "a;b", "10.0.0.5", 7};
    const std::vector<StationTags> stations = {{station, {{"T,1", "FX", 9, "M", "Virtual Module", " x"}}},
                                               {{0, "South", "", "", 0}, {}}};
    EXPECT_EQ(
        TagTableText(stations, ','),
        "Station,Station Type,IP Address,Serial Number,Module,Module Type,Tag,Class,Register,Description\n"
        "North,a;b,10.0.0.5,7,M,Virtual Module,\"T,1\",FX,9,\" x\"\n"
        "South,,,0,,,,,,\n");
    EXPECT_THAT(TagTableText(stations, ';'),
                HasSubstr("North;\"a;b\";10.0.0.5;7;M;Virtual Module;T,1;FX;9;\" x\"\n"));
}

TEST_F(TagExport, command_writes_one_station_or_all_and_spares_a_file_that_is_there) {
    ASSERT_EQ(Run("open " + Quoted("plant/plant.KPJ")).Status, 0);
    const Outcome one = Run("export-tags - --station skid_Añelo");
    EXPECT_EQ(one.Status, 0);
    EXPECT_TRUE(one.Output.starts_with("Station,")); // no mark on the standard output
    EXPECT_THAT(one.Output, HasSubstr("VFX_Medición,Virtual Module,Ø_Placa,FX,1207"));
    EXPECT_THAT(one.Output, testing::Not(HasSubstr("Lakeside")));
    EXPECT_EQ(Run("export-tags " + Quoted("t.csv") + " --station Odorizer_2").Output,
              "Wrote 180 tags of 1 station to " + In("t.csv") + ".\n");
    EXPECT_TRUE(ReadBytes(Folder / "t.csv").starts_with("\xEF\xBB\xBFStation,"));
    const Outcome again = Run("export-tags " + Quoted("t.csv"));
    EXPECT_EQ(again.Status, 1);
    EXPECT_THAT(again.Output, HasSubstr("there is a file of this name already; --force replaces it"));
    EXPECT_THAT(ReadBytes(Folder / "t.csv"), testing::Not(HasSubstr("Lakeside")));
    EXPECT_EQ(Run("export-tags --force " + Quoted("t.csv")).Status, 0);
    EXPECT_THAT(ReadBytes(Folder / "t.csv"), HasSubstr("Lakeside"));
    EXPECT_FALSE(std::filesystem::exists(Folder / ".t.csv.io-workshop-new"));
}

TEST_F(TagExport, command_refuses_what_it_cannot_do) {
    EXPECT_EQ(Run("export-tags - --project " + Quoted("none.KPJ")).Status, 1);
    EXPECT_EQ(Run("export-tags - --station West --project " + Quoted("plant/plant.KPJ")).Status, 1);
    EXPECT_EQ(Run("export-tags " + Quoted("no/t.csv") + " --template").Status, 1);
    EXPECT_EQ(Run("export-tags - --separator colon --template").Status, 2);
    EXPECT_EQ(Run("export-tags - --template --station North").Status, 2);
    EXPECT_EQ(Run("export-tags").Status, 2);
}

TEST_F(TagExport, template_needs_no_project_and_imports_as_it_stands) {
    ASSERT_EQ(Run("export-tags --template " + Quoted("mine.csv")).Status, 0);
    ASSERT_EQ(Run("new " + Quoted("mine.KPJ")).Status, 0);
    const Outcome import = Run("import-tags " + Quoted("mine.csv") + " --project " + Quoted("mine.KPJ"));
    EXPECT_EQ(import.Status, 0) << import.Output;
    EXPECT_THAT(import.Output, HasSubstr("My_Station (new station): "));
    const StationTags station = TemplateStation();
    EXPECT_EQ(Contents(Folder / "mine.KPJ").size(), station.Tags.size() + 1);
    EXPECT_THAT(station.Tags, testing::Not(IsEmpty()));
}

} // namespace gfc::workshop
