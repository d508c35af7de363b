#include "WorkshopFixture.h"
#include "workshop/import/CsvFile.h"
#include "workshop/import/TagImport.h"
#include "workshop/store/Failure.h"

#include <gmock/gmock.h>

namespace gfc::workshop {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

const std::string Titles =
    "Station,Station Type,IP Address,Serial Number,Module,Module Type,Tag,Class,Register\n";

} // namespace

class TagImport : public WorkshopFixture {
protected:
    ImportPlan Import(Project& project, const std::string& table, ImportMode mode = ImportMode::Merge) {
        WriteBytes(Folder / "tags.csv", table);
        return ImportTags(project, {Folder / "tags.csv", mode});
    }
    /// What is said about one table, row by row, after making sure that nothing of it was stored.
    std::vector<std::string> Complaints(const std::string& table, ImportMode mode = ImportMode::Merge) {
        Project project = MakeSmallProject();
        const ImportPlan result = Import(project, table, mode);
        EXPECT_EQ(ListStations(project).size(), 2U);
        EXPECT_EQ(CountTags(project, FindStation(project, "North")->Id), 3U);
        EXPECT_EQ(CountTags(project, FindStation(project, "South")->Id), 0U);
        std::vector<std::string> texts;
        for (const Complaint& complaint : result.Complaints) {
            texts.push_back(TextOf(complaint));
        }
        return texts;
    }
    static Tag TagOf(Project& project, const std::string& name) {
        return FindTag(project, FindStation(project, "North").value().Id, name).value();
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
    const ImportPlan result = Import(project, Titles + "West,Orm,10.1.1.1,55,VFX,Virtual Module,Z-1,FX,9\n"
                                                       "East,,,,DI,DI-16 Card,XV-304,X,1\n"
                                                       "West,,,,VFX,Virtual Module,A-1,fy,8\n"
                                                       "West,,,,AI,AI-8 Card,Caudal_Ñ,AX,0\n");
    EXPECT_THAT(result.Complaints, IsEmpty());
    ASSERT_EQ(result.Stations.size(), 2U);
    EXPECT_TRUE(result.Stations[0].IsNew());
    EXPECT_EQ(result.Stations[0].Added.size(), 3U);
    EXPECT_EQ(result.Stations[1].Added.size(), 1U);
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

// Whenever a person gives it up, while it is read, planned or stored.
TEST_F(TagImport, stores_nothing_of_a_table_that_is_given_up_at_any_moment) {
    Project project = MakeSmallProject();
    std::string table = Titles;
    for (const char* station : {"North", "East", "West"}) {
        table += std::string(station) + ",,,,VFX_NEW,Virtual Module,Z-1,FX,9001\n";
    }
    WriteBytes(Folder / "tags.csv", table);
    bool done = false;
    int given = 0;
    for (int last = 1; !done && last < 100; ++last) {
        int told = 0;
        ImportRequest request{Folder / "tags.csv"};
        request.Told = [&](double share) {
            EXPECT_TRUE(share >= 0 && share <= 1) << share;
            return ++told < last;
        };
        try {
            static_cast<void>(ImportTags(project, request));
            done = true;
        } catch (const Failure& failure) {
            ++given;
            EXPECT_THAT(failure.what(), HasSubstr("nothing was changed"));
            EXPECT_EQ(ListStations(project).size(), 2U);
            EXPECT_EQ(CountTags(project, FindStation(project, "North")->Id), 3U);
        }
    }
    EXPECT_TRUE(done);
    EXPECT_GE(given, 6) << "three stations are planned, and stored";
    EXPECT_EQ(ListStations(project).size(), 4U);
}

TEST_F(TagImport, finds_columns_by_name_in_any_order_and_case) {
    Project project = Project::Create(Folder / "p.KPJ");
    const ImportPlan result = Import(project, "\xEF\xBB\xBFregister,CLASS,Tag,Module,Station,Description\r\n"
                                              "5,LX,\"FT,201\",PI-4,West,\"He said \"\"go\"\"\"\r\n");
    EXPECT_THAT(result.Complaints, IsEmpty());
    const auto tags = ListTags(project, FindStation(project, "West")->Id);
    ASSERT_EQ(tags.size(), 1U);
    EXPECT_EQ(tags[0].Name, "FT,201");
    EXPECT_EQ(tags[0].Register, 5);
    EXPECT_EQ(tags[0].ModuleType, "Virtual Module"); // nobody says otherwise, and it has longs
    EXPECT_THAT(result.Stations.at(0).TakenAsVirtual, ElementsAre("PI-4"));
    EXPECT_EQ(tags[0].Description, "He said \"go\"");
}

TEST_F(TagImport, row_without_module_and_tag_makes_a_station_without_tags) {
    Project project = Project::Create(Folder / "p.KPJ");
    EXPECT_THAT(Import(project, Titles + "Lonely,Orm,10.0.0.9,3,,,,,\n").Complaints, IsEmpty());
    ASSERT_TRUE(FindStation(project, "Lonely"));
    EXPECT_EQ(CountTags(project, FindStation(project, "Lonely")->Id), 0U);
}

TEST_F(TagImport, adds_behind_the_last_tag_of_the_module_and_new_modules_at_the_end) {
    Project project = MakeSmallProject();
    EXPECT_THAT(Import(project, Titles + "north,New Type,,,NEW,Virtual Module,N-2,FX,3\n"
                                         "north,,,,di-16 slot 3,,X-2,X,8\n"
                                         "north,,,,NEW,Virtual Module,N-1,FX,2\n"
                                         "north,,,,VFX_RUN,Virtual Module,AAA,FX,1\n")
                    .Complaints,
                IsEmpty());
    EXPECT_THAT(TagNames(project, "North"),
                ElementsAre("PIT-101", "XV-304", "X-2", "TIT_1201A", "AAA", "N-2", "N-1"));
    EXPECT_EQ(TagOf(project, "X-2").Module, "DI-16 Slot 3"); // as the project writes it
    EXPECT_EQ(TagOf(project, "X-2").ModuleType, "DI-16 Digital Input");
    EXPECT_EQ(FindStation(project, "North")->Type, "New Type");
    EXPECT_EQ(FindStation(project, "North")->Address, "10.0.0.5"); // an empty field says nothing
}

TEST_F(TagImport, merge_changes_a_tag_where_it_stands_and_keeps_what_is_left_empty) {
    Project project = MakeSmallProject();
    const ImportPlan plan = Import(project, Titles + "North,,,,VFX_RUN,,Pit-101,FX,1005\n");
    ASSERT_EQ(plan.Stations.size(), 1U);
    EXPECT_THAT(plan.Stations[0].Added, IsEmpty());
    EXPECT_THAT(plan.Stations[0].Removed, IsEmpty());
    ASSERT_EQ(plan.Stations[0].Changed.size(), 1U);
    EXPECT_EQ(plan.Stations[0].Changed[0].Before.Name, "PIT-101");
    EXPECT_EQ(plan.Stations[0].Changed[0].After.Name, "Pit-101");
    EXPECT_FALSE(plan.Stations[0].Reordered);
    EXPECT_THAT(TagNames(project, "North"), ElementsAre("Pit-101", "XV-304", "TIT_1201A"));
    EXPECT_EQ(TagOf(project, "PIT-101"),
              (Tag{"Pit-101", "FX", 1005, "VFX_RUN", "Virtual Module", "static pressure"}));
}

TEST_F(TagImport, merge_lets_two_tags_change_places) {
    Project project = MakeSmallProject();
    EXPECT_THAT(Import(project, Titles + "North,,,,VFX_RUN,,PIT-101,FX,1000\n"
                                         "North,,,,VFX_RUN,,TIT_1201A,FX,1001\n")
                    .Complaints,
                IsEmpty());
    EXPECT_EQ(TagOf(project, "PIT-101").Register, 1000);
    EXPECT_EQ(TagOf(project, "TIT_1201A").Register, 1001);
}

TEST_F(TagImport, merge_takes_a_tag_to_another_module_and_a_module_to_another_type) {
    Project project = MakeSmallProject();
    const ImportPlan plan = Import(project, Titles + "North,,,,VFX_2,Virtual Module,PIT-101,FX,1001\n"
                                                     "North,,,,VFX_RUN,Calculation,NEW,FX,1\n");
    EXPECT_THAT(TagNames(project, "North"), ElementsAre("XV-304", "TIT_1201A", "NEW", "PIT-101"));
    EXPECT_TRUE(plan.Stations[0].Reordered);
    EXPECT_EQ(TagOf(project, "TIT_1201A").ModuleType, "Calculation"); // its module's type, though not named
    EXPECT_EQ(plan.Stations[0].Changed.size(), 2U);
}

TEST_F(TagImport, what_the_project_holds_already_is_not_written_again) {
    Project project = MakeSmallProject();
    const std::string before = ReadBytes(Folder / "small.KPJ");
    const ImportPlan plan = Import(project, Titles + "North,,,,VFX_RUN,,PIT-101,FX,1001\nSouth,,,,,,,,\n");
    EXPECT_FALSE(plan.Stations[0].ChangesAnything());
    EXPECT_FALSE(plan.Stations[1].ChangesAnything());
    EXPECT_EQ(ReadBytes(Folder / "small.KPJ"), before);
}

TEST_F(TagImport, plan_tells_what_a_replacing_table_would_do_and_does_none_of_it) {
    Project project = MakeSmallProject();
    const std::string before = ReadBytes(Folder / "small.KPJ");
    WriteBytes(Folder / "tags.csv", Titles + "North,,10.0.0.6,,VFX_RUN,Virtual Module,TIT_1201A,FX,1000\n"
                                             "North,,,,VFX_RUN,Virtual Module,PIT-101,FX,1001\n"
                                             "North,,,,VFX_RUN,Virtual Module,NEW,FX,7\n");
    const ImportPlan plan = PlanImport(project, {Folder / "tags.csv", ImportMode::Replace});
    ASSERT_EQ(plan.Stations.size(), 1U);
    const StationPlan& north = plan.Stations[0];
    EXPECT_EQ(north.Added.size(), 1U);
    ASSERT_EQ(north.Removed.size(), 1U);
    EXPECT_EQ(north.Removed[0].Name, "XV-304");
    ASSERT_EQ(north.Changed.size(), 1U);
    EXPECT_EQ(north.Changed[0].After.Description, ""); // replaced, not merged
    EXPECT_TRUE(north.Reordered);
    EXPECT_TRUE(north.PropertiesChange());
    EXPECT_EQ(ReadBytes(Folder / "small.KPJ"), before);
}

TEST_F(TagImport, a_fault_leaves_the_project_byte_for_byte_as_it_was) {
    Project project = MakeSmallProject();
    const std::string before = ReadBytes(Folder / "small.KPJ");
    const std::string good = "North,,,,VFX_RUN,Virtual Module,NEW,FX,7\nWest,,,,V,Virtual,W-1,X,1\n";
    for (const ImportMode mode : {ImportMode::Merge, ImportMode::Replace}) {
        EXPECT_EQ(Import(project, Titles + good + "West,,,,V,Virtual,W-2,X,1\n", mode).Complaints.size(), 1U);
        EXPECT_EQ(ReadBytes(Folder / "small.KPJ"), before);
    }
}

TEST_F(TagImport, replaces_the_tags_of_named_stations_only) {
    Project project = MakeSmallProject();
    EXPECT_THAT(Import(project, Titles + "South,,,,M,Virtual,S-1,X,1\n").Complaints, IsEmpty());
    EXPECT_THAT(
        Import(project, Titles + "North,,,,VFX_RUN,Other,PIT-101,FX,1001\n", ImportMode::Replace).Complaints,
        IsEmpty());
    EXPECT_THAT(TagNames(project, "North"), ElementsAre("PIT-101"));
    EXPECT_EQ(ListTags(project, FindStation(project, "North")->Id)[0].ModuleType, "Other");
    EXPECT_THAT(TagNames(project, "South"), ElementsAre("S-1"));
}

TEST_F(TagImport, tells_every_fault_by_row_and_column) {
    const std::string longName(41, 'n');
    EXPECT_THAT(
        Complaints(Titles +
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
    EXPECT_THAT(Import(project, Titles + "West,,,,M,Virtual," + forty + ",X,1\n").Complaints, IsEmpty());
}

TEST_F(TagImport, refuses_texts_that_a_file_cannot_carry) {
    EXPECT_THAT(Complaints(Titles + "../up,,,,M,Virtual,T-1,X,1\n"
                                    "South,,,,M,Virtual,\" T-2\",X,2\n"
                                    "South,,,,M,Virtual,\"T\t3\",X,3\n"
                                    "South,,,,M,Virtual,\"T\n4\",X,4\n"
                                    "South,,,,M,Virtual,T-5,X,2147483648\n"),
                ElementsAre("row 2, column Station: \"../up\" cannot be part of a file name",
                            HasSubstr("row 3, column Tag: \" T-2\" holds a control character or has a blank"),
                            HasSubstr("row 4, column Tag:"), HasSubstr("row 5, column Tag:"),
                            HasSubstr("row 6, column Register: \"2147483648\" is not a whole number")));
}

TEST_F(TagImport, refuses_what_the_project_or_a_row_above_has) {
    EXPECT_THAT(Complaints(Titles + "North,,,,VFX_RUN,Virtual Module,N-1,FX,1001\n"
                                    "North,,,,VFX_RUN,Virtual Module,N-2,FX,3\n"
                                    "North,,,,VFX_RUN,Virtual Module,N-3,fx,3\n"
                                    "South,Orm,,,M,Virtual,S-1,X,1\n"
                                    "South,Other,,,M,Virtual,s-1,X,2\n"
                                    "SOUTH,,,,M,Physical,S-2,X,1\n"),
                ElementsAre("row 2, column Register: the station has tag \"PIT-101\" at FX 1001 already",
                            "row 4, column Register: the station has tag \"N-2\" in row 3 at FX 3 already",
                            "row 6, column Station Type: \"Other\" differs from \"Orm\" further up",
                            "row 6, column Tag: the station has a tag \"s-1\" in row 5 already",
                            "row 7, column Station: \"SOUTH\" differs from \"South\" further up",
                            "row 7, column Module Type: \"Physical\" differs from \"Virtual\" further up",
                            "row 7, column Register: the station has tag \"S-1\" in row 5 at X 1 already"));
}

TEST_F(TagImport, faults_of_a_replacing_table_leave_the_old_tags) {
    EXPECT_THAT(Complaints(Titles + "North,,,,M,Virtual,T-1,FX,1\nNorth,,,,M,Virtual,T-1,FX,1\n",
                           ImportMode::Replace),
                ElementsAre(HasSubstr("row 3, column Tag")));
}

TEST_F(TagImport, checks_the_columns_before_the_rows) {
    EXPECT_THAT(
        Complaints("Station,Module,Tag,Class,Colour,Tag\nSouth,M,T,QQ,red,T\n"),
        ElementsAre("row 1, column Colour: no such column is known; name it with --map or leave it out with "
                    "--ignore-unknown",
                    "row 1, column Tag: stands twice in the titles",
                    "row 1, column Register: is missing in the titles"));
    std::filesystem::remove(Folder / "small.KPJ");
    EXPECT_THAT(Complaints(Titles), ElementsAre("the table has no rows below its heading"));
    std::filesystem::remove(Folder / "small.KPJ");
    EXPECT_THAT(Complaints(Titles + "South,,,,M,Virtual,T,X,1,2,3\n"),
                ElementsAre("row 2: has more fields than the table has titles"));
}

TEST_F(TagImport, tells_where_quotes_do_not_pair) {
    Project project = MakeSmallProject();
    EXPECT_THAT(FailureOf([&] { auto r = Import(project, Titles + "South,,,,M,Vir\"tual,T,X,1\n"); }),
                HasSubstr("row 2: the quotes of the row do not pair"));
    EXPECT_THAT(FailureOf([&] { auto r = Import(project, Titles + "South,,,,M,\"Virtual,T,X,1\n"); }),
                HasSubstr("the quotes of the row do not pair"));
}

TEST_F(TagImport, tells_a_file_that_cannot_be_read) {
    Project project = MakeSmallProject();
    for (const auto& file : {Folder / "none.csv", Folder}) {
        EXPECT_THAT(FailureOf([&] { auto r = ImportTags(project, {file}); }), HasSubstr("cannot be read"));
    }
}

TEST_F(TagImport, keeps_module_runs_as_the_rows_have_them) {
    Project project = Project::Create(Folder / "p.KPJ");
    EXPECT_THAT(
        Import(project, Titles + "W,,,,A,Virtual,T-1,X,1\nW,,,,B,Virtual,T-2,X,2\nW,,,,a,Virtual,T-3,X,3\n")
            .Complaints,
        IsEmpty());
    const auto tags = ListTags(project, FindStation(project, "W")->Id);
    ASSERT_EQ(tags.size(), 3U);
    EXPECT_EQ(tags[0].Module, "A");
    EXPECT_EQ(tags[1].Module, "B");
    EXPECT_EQ(tags[2].Module, "A"); // one module, written as it came first
}

} // namespace gfc::workshop
