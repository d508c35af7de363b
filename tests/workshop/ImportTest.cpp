#include "WorkshopFixture.h"
#include "workshop/import/CsvFile.h"
#include "workshop/import/TagImport.h"

#include <gmock/gmock.h>

namespace gfc::workshop {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

const std::string Heading =
    "Station,Station Type,IP Address,Serial Number,Module,Module Type,Tag,Class,Register\n";

} // namespace

class TagImport : public WorkshopFixture {
protected:
    ImportResult Import(Project& project, const std::string& table, ImportMode mode = ImportMode::Add) {
        WriteBytes(Folder / "tags.csv", table);
        return ImportTags(project, Folder / "tags.csv", mode);
    }
    /// What is said about one table, row by row, after making sure that nothing of it was stored.
    std::vector<std::string> Complaints(const std::string& table, ImportMode mode = ImportMode::Add) {
        Project project = MakeSmallProject();
        const ImportResult result = Import(project, table, mode);
        EXPECT_EQ(ListStations(project).size(), 2U);
        EXPECT_EQ(CountTags(project, FindStation(project, "North")->Id), 3U);
        EXPECT_EQ(CountTags(project, FindStation(project, "South")->Id), 0U);
        std::vector<std::string> texts;
        for (const Complaint& complaint : result.Complaints) {
            texts.push_back(TextOf(complaint));
        }
        return texts;
    }
    static std::vector<std::string> TagNames(Project& project, const std::string& station) {
        std::vector<std::string> names;
        for (const Tag& tag : ListTags(project, FindStation(project, station)->Id)) {
            names.push_back(tag.Name);
        }
        return names;
    }
};

TEST_F(TagImport, takes_stations_modules_and_tags_in_row_order) {
    Project project = Project::Create(Folder / "p.KPJ");
    const ImportResult result = Import(project, Heading + "West,Orm,10.1.1.1,55,VFX,Virtual Module,Z-1,FX,9\n"
                                                          "East,,,,DI,DI-16 Card,XV-304,X,1\n"
                                                          "West,,,,VFX,Virtual Module,A-1,fy,8\n"
                                                          "West,,,,AI,AI-8 Card,Caudal_Ñ,AX,0\n");
    EXPECT_THAT(result.Complaints, IsEmpty());
    EXPECT_EQ(result.Stations, 2U);
    EXPECT_EQ(result.Tags, 4U);
    EXPECT_EQ(ListStations(project).front().Name, "West"); // as they came
    EXPECT_EQ(FindStation(project, "West")->SerialNumber, 55);
    EXPECT_EQ(FindStation(project, "West")->Address, "10.1.1.1");
    const auto tags = ListTags(project, FindStation(project, "West")->Id);
    ASSERT_EQ(tags.size(), 3U);
    EXPECT_EQ(tags[0].Name, "Z-1");
    EXPECT_EQ(tags[1].Name, "A-1");
    EXPECT_EQ(tags[1].Class, "FY"); // any case is taken, one is kept
    EXPECT_EQ(tags[1].ModuleType, "Virtual Module");
    EXPECT_EQ(tags[2].Name, "Caudal_Ñ");
    EXPECT_EQ(tags[2].Register, 0);
}

TEST_F(TagImport, finds_columns_by_name_in_any_order_and_case) {
    Project project = Project::Create(Folder / "p.KPJ");
    const ImportResult result =
        Import(project, "\xEF\xBB\xBFregister,CLASS,Tag,Module,Station,Description\r\n"
                        "5,LX,\"FT,201\",PI-4,West,\"He said \"\"go\"\"\"\r\n");
    EXPECT_THAT(result.Complaints, IsEmpty());
    const auto tags = ListTags(project, FindStation(project, "West")->Id);
    ASSERT_EQ(tags.size(), 1U);
    EXPECT_EQ(tags[0].Name, "FT,201");
    EXPECT_EQ(tags[0].Register, 5);
    EXPECT_EQ(tags[0].ModuleType, "");
    EXPECT_EQ(tags[0].Description, "He said \"go\"");
}

TEST_F(TagImport, row_without_module_and_tag_makes_a_station_without_tags) {
    Project project = Project::Create(Folder / "p.KPJ");
    EXPECT_THAT(Import(project, Heading + "Lonely,Orm,10.0.0.9,3,,,,,\n").Complaints, IsEmpty());
    ASSERT_TRUE(FindStation(project, "Lonely"));
    EXPECT_EQ(CountTags(project, FindStation(project, "Lonely")->Id), 0U);
}

TEST_F(TagImport, appends_behind_what_a_station_has) {
    Project project = MakeSmallProject();
    EXPECT_THAT(Import(project, Heading + "north,New Type,,,VFX_RUN,Virtual Module,AAA,FX,1\n").Complaints,
                IsEmpty());
    EXPECT_THAT(TagNames(project, "North"), ElementsAre("PIT-101", "XV-304", "TIT_1201A", "AAA"));
    EXPECT_EQ(FindStation(project, "North")->Type, "New Type");
    EXPECT_EQ(FindStation(project, "North")->Address, "10.0.0.5"); // an empty field says nothing
}

TEST_F(TagImport, replaces_the_tags_of_named_stations_only) {
    Project project = MakeSmallProject();
    EXPECT_THAT(Import(project, Heading + "South,,,,M,Virtual,S-1,X,1\n").Complaints, IsEmpty());
    EXPECT_THAT(
        Import(project, Heading + "North,,,,VFX_RUN,Other,PIT-101,FX,1001\n", ImportMode::Replace).Complaints,
        IsEmpty());
    EXPECT_THAT(TagNames(project, "North"), ElementsAre("PIT-101"));
    EXPECT_EQ(ListTags(project, FindStation(project, "North")->Id)[0].ModuleType, "Other");
    EXPECT_THAT(TagNames(project, "South"), ElementsAre("S-1"));
}

TEST_F(TagImport, tells_every_fault_by_row_and_column) {
    const std::string longName(41, 'n');
    EXPECT_THAT(
        Complaints(Heading +
                   "South,,,,M,Virtual,T-1,QX,1\n"
                   "\n"
                   "South,,,,M,Virtual,T-2,FX,1.5\n"
                   "South,,,,M,Virtual," +
                   longName + ",FX,2\n" + "South,,,,M,Virtual,压力,FX,3\n" +
                   "South,,,x,M,Virtual,T-5,FX,-4\n" + ",,,,M,Virtual,T-6,FX,5\n" +
                   "South,,,,,Virtual,T-7,,6\n"),
        ElementsAre("row 2, column Class: \"QX\" is no register class; use X, Y, AX, AY, FX, FY, LX or LY",
                    "row 4, column Register: \"1.5\" is not a whole number from 0 to 2147483647",
                    "row 5, column Tag: \"" + longName + "\" is longer than 40 characters",
                    "row 6, column Tag: \"压力\" holds characters outside Windows-1252 or is not UTF-8",
                    "row 7, column Serial Number: \"x\" is not a whole number from 0 to 2147483647",
                    "row 7, column Register: \"-4\" is not a whole number from 0 to 2147483647",
                    "row 8, column Station: is empty", "row 9, column Module: is empty",
                    "row 9, column Class: is empty"));
}

TEST_F(TagImport, takes_a_name_of_forty_letters_beyond_ascii) {
    Project project = Project::Create(Folder / "p.KPJ");
    std::string forty;
    for (int i = 0; i < 40; ++i) {
        forty += "ñ";
    }
    EXPECT_THAT(Import(project, Heading + "West,,,,M,Virtual," + forty + ",X,1\n").Complaints, IsEmpty());
}

TEST_F(TagImport, refuses_texts_that_a_file_cannot_carry) {
    EXPECT_THAT(Complaints(Heading + "../up,,,,M,Virtual,T-1,X,1\n"
                                     "South,,,,M,Virtual,\" T-2\",X,2\n"
                                     "South,,,,M,Virtual,\"T\t3\",X,3\n"
                                     "South,,,,M,Virtual,\xD1,X,4\n"
                                     "South,,,,M,Virtual,T-5,X,2147483648\n"),
                ElementsAre("row 2, column Station: \"../up\" cannot be part of a file name",
                            HasSubstr("row 3, column Tag: \" T-2\" holds a control character or has a blank"),
                            HasSubstr("row 4, column Tag:"), HasSubstr("row 5, column Tag:"),
                            HasSubstr("row 6, column Register: \"2147483648\" is not a whole number")));
}

TEST_F(TagImport, refuses_what_the_project_or_a_row_above_has) {
    EXPECT_THAT(Complaints(Heading + "North,,,,VFX_RUN,Virtual Module,pit-101,FX,1\n"
                                     "North,,,,VFX_RUN,Virtual Module,N-2,FX,1001\n"
                                     "North,,,,VFX_RUN,DI-16,N-3,FX,3\n"
                                     "South,Orm,,,M,Virtual,S-1,X,1\n"
                                     "South,Other,,,M,Virtual,S-1,X,1\n"
                                     "SOUTH,,,,M,Physical,S-2,Y,1\n"),
                ElementsAre("row 2, column Tag: the station has a tag \"pit-101\" already",
                            "row 3, column Register: the station has a tag at FX 1001 already",
                            "row 4, column Module Type: module \"VFX_RUN\" has type \"Virtual Module\"",
                            "row 6, column Station Type: \"Other\" differs from \"Orm\" further up",
                            "row 6, column Tag: the station has a tag \"S-1\" already",
                            "row 6, column Register: the station has a tag at X 1 already",
                            "row 7, column Station: \"SOUTH\" differs from \"South\" further up",
                            "row 7, column Module Type: module \"M\" has type \"Virtual\""));
}

TEST_F(TagImport, faults_of_a_replacing_table_leave_the_old_tags) {
    EXPECT_THAT(Complaints(Heading + "North,,,,M,Virtual,T-1,FX,1\nNorth,,,,M,Virtual,T-1,FX,1\n",
                           ImportMode::Replace),
                ElementsAre(HasSubstr("row 3, column Tag"), HasSubstr("row 3, column Register")));
}

TEST_F(TagImport, checks_the_columns_before_the_rows) {
    EXPECT_THAT(Complaints("Station,Module,Tag,Class,Colour,Tag\nSouth,M,T,QQ,red,T\n"),
                ElementsAre("row 1, column Colour: no such column is known",
                            "row 1, column Tag: stands twice in the first row",
                            "row 1, column Register: is missing in the first row"));
    std::filesystem::remove(Folder / "small.KPJ");
    EXPECT_THAT(Complaints(Heading), ElementsAre("the table has no rows below its heading"));
    std::filesystem::remove(Folder / "small.KPJ");
    EXPECT_THAT(Complaints(Heading + "South,,,,M,Virtual,T,X,1,2,3\n"),
                ElementsAre("row 2: has more fields than the first row has columns"));
}

TEST_F(TagImport, tells_where_quotes_do_not_pair) {
    Project project = MakeSmallProject();
    EXPECT_THAT(FailureOf([&] { auto r = Import(project, Heading + "South,,,,M,Vir\"tual,T,X,1\n"); }),
                HasSubstr("row 2: the quotes of the row do not pair"));
    EXPECT_THAT(FailureOf([&] { auto r = Import(project, Heading + "South,,,,M,\"Virtual,T,X,1\n"); }),
                HasSubstr("the quotes of the row do not pair"));
}

TEST_F(TagImport, tells_a_file_that_cannot_be_read) {
    Project project = MakeSmallProject();
    for (const auto& file : {Folder / "none.csv", Folder}) {
        EXPECT_THAT(FailureOf([&] { auto r = ImportTags(project, file, ImportMode::Add); }),
                    HasSubstr("cannot be read"));
    }
}

TEST_F(TagImport, keeps_module_runs_as_the_rows_have_them) {
    Project project = Project::Create(Folder / "p.KPJ");
    EXPECT_THAT(
        Import(project, Heading + "W,,,,A,Virtual,T-1,X,1\nW,,,,B,Virtual,T-2,X,2\nW,,,,a,Virtual,T-3,X,3\n")
            .Complaints,
        IsEmpty());
    const auto tags = ListTags(project, FindStation(project, "W")->Id);
    ASSERT_EQ(tags.size(), 3U);
    EXPECT_EQ(tags[0].Module, "A");
    EXPECT_EQ(tags[1].Module, "B");
    EXPECT_EQ(tags[2].Module, "A"); // one module, written as it came first
}

} // namespace gfc::workshop
