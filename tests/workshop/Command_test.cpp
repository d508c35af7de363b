#include "WorkshopFixture.h"
#include "workshop/store/OpenProject.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <regex>

namespace gfc::workshop {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

class Command : public WorkshopFixture {};

TEST_F(Command, demo_then_open_leads_to_stations_tags_and_files) {
    const Outcome demo = Run("demo " + Quoted("plant"));
    EXPECT_EQ(demo.Status, 0);
    EXPECT_THAT(demo.Output, HasSubstr("io-workshop open \"" + In("plant/plant.KPJ") + "\""));
    const Outcome open = Run("open " + Quoted("plant/plant.KPJ"));
    EXPECT_EQ(open.Status, 0);
    EXPECT_EQ(open.Output, "Opened " + In("plant/plant.KPJ") + " (8 stations).\n");
    EXPECT_EQ(RecordedProject(), std::filesystem::path(In("plant/plant.KPJ")));
    EXPECT_THAT(Run("stations").Output,
                AllOf(HasSubstr("Station            Station Type          IP Address  Serial Number  Tags\n"),
                      HasSubstr("Pig_Receiver_3     Orm Valve Site        10.20.2.41  20063077       0\n"),
                      HasSubstr("Skid_Añelo         Skid de medición      10.20.2.11")));
    EXPECT_THAT(Run("tags Skid_Añelo").Output, AllOf(HasSubstr("Caudal_Ñ"), Not(HasSubstr("Lakeside"))));
    EXPECT_THAT(Run("tags").Output, AllOf(HasSubstr("Caudal_Ñ"), HasSubstr("Lakeside_Delivery  DT-601_PV")));
    EXPECT_THAT(Run("files").Output,
                AllOf(HasSubstr("/etc/stacfg/kdormaga.ini"), Not(HasSubstr("(missing)"))));
}

TEST_F(Command, demo_makes_the_sample_anew_only_when_forced) {
    EXPECT_EQ(Run("demo " + Quoted("plant")).Status, 0);
    const Outcome again = Run("demo " + Quoted("plant"));
    EXPECT_EQ(again.Status, 1);
    EXPECT_THAT(again.Output, HasSubstr("--force makes it anew"));
    EXPECT_EQ(Run("demo --force " + Quoted("plant")).Status, 0);
}

TEST_F(Command, new_makes_an_empty_project_and_no_second_one) {
    EXPECT_EQ(Run("new " + Quoted("north.KPJ")).Status, 0);
    EXPECT_EQ(Run("new " + Quoted("north.KPJ")).Status, 1);
    EXPECT_THAT(Run("open " + Quoted("north.KPJ")).Output, HasSubstr("(0 stations)"));
    const Outcome wrongName = Run("new " + Quoted("north.db"));
    EXPECT_EQ(wrongName.Status, 1);
    EXPECT_THAT(wrongName.Output, HasSubstr("a project's name ends in \".KPJ\""));
    EXPECT_EQ(Run("new " + Quoted("new/folder/north.KPJ")).Status, 0);
    EXPECT_EQ(Run("open " + Quoted("new/folder/north.KPJ")).Status, 0);
    const Outcome noFolder = Run("new " + Quoted("north.KPJ/north.KPJ"));
    EXPECT_EQ(noFolder.Status, 1);
    EXPECT_THAT(noFolder.Output, HasSubstr("north.KPJ: the folder cannot be made: "));
}

TEST_F(Command, open_shows_and_close_forgets_the_open_project) {
    MakeSmallProject();
    EXPECT_EQ(Run("open").Status, 1);
    EXPECT_EQ(Run("open " + Quoted("small.KPJ")).Status, 0);
    EXPECT_EQ(Run("open").Output, In("small.KPJ") + "\n");
    EXPECT_EQ(Run("close").Output, "Closed the project.\n");
    const Outcome closed = Run("close");
    EXPECT_EQ(closed.Status, 0);
    EXPECT_EQ(closed.Output, "No project was open.\n");
    const Outcome stations = Run("stations");
    EXPECT_EQ(stations.Status, 1);
    EXPECT_THAT(stations.Output, HasSubstr("No project is open; open one with"));
}

TEST_F(Command, open_refuses_what_is_no_project_and_keeps_the_old_one) {
    MakeSmallProject();
    Run("open " + Quoted("small.KPJ"));
    WriteBytes(Folder / "text.KPJ", std::string(2000, 'x'));
    EXPECT_EQ(Run("open " + Quoted("text.KPJ")).Status, 1);
    EXPECT_EQ(Run("open " + Quoted("none.KPJ")).Status, 1);
    EXPECT_EQ(Run("open").Output, In("small.KPJ") + "\n");
    std::filesystem::remove(Folder / "small.KPJ");
    EXPECT_THAT(Run("open").Output, HasSubstr("no longer there"));
    EXPECT_THAT(Run("stations").Output, HasSubstr("there is no such project"));
}

TEST_F(Command, import_takes_a_table_or_tells_each_fault) {
    MakeSmallProject();
    const std::string onSmall = "--project " + Quoted("small.KPJ");
    WriteBytes(Folder / "good.csv",
               "Station,Module,Module Type,Tag,Class,Register\nWest,V,Virtual Module,P-1,FX,1\n");
    WriteBytes(Folder / "bad.csv",
               "Station,Module,Module Type,Tag,Class,Register\nEast,V,Virtual Module,P-1,ZX,a\n");
    const Outcome good = Run("import-tags " + Quoted("good.csv") + " " + onSmall);
    EXPECT_EQ(good.Status, 0);
    EXPECT_EQ(good.Output,
              "West (new station): 1 tag added, 0 changed, 0 removed, 0 as they were\nImported into " +
                  In("small.KPJ") + ": 1 tag added, 0 changed, 0 removed, 0 as they were.\n");
    const Outcome bad = Run("import-tags " + Quoted("bad.csv") + " " + onSmall);
    EXPECT_EQ(bad.Status, 1);
    EXPECT_THAT(bad.Output, AllOf(HasSubstr("bad.csv: row 2, column Class: \"ZX\" is no register class"),
                                  HasSubstr("bad.csv: row 2, column Register: \"a\" is not a whole number"),
                                  HasSubstr("io-workshop: 2 faults; nothing was imported. Mend the table")));
    EXPECT_THAT(Run("stations " + onSmall).Output, AllOf(HasSubstr("West"), Not(HasSubstr("East"))));
    EXPECT_THAT(Run("import-tags " + Quoted("good.csv") + " " + onSmall).Output,
                HasSubstr("holds all of the table already; nothing was changed"));
}

TEST_F(Command, import_previews_what_it_would_do_and_changes_nothing) {
    MakeSmallProject();
    const std::string before = ReadBytes(Folder / "small.KPJ");
    WriteBytes(Folder / "t.csv", "Station,IP Address,Module,Module Type,Tag,Class,Register\n"
                                 "West,,V,Virtual Module,W-1,X,1\n"
                                 "North,10.0.0.6,VFX_2,Virtual Module,PIT-101,FX,1005\n"
                                 "North,,VFX_RUN,Virtual Module,NEW,FX,9\n"
                                 "North,,VFX_RUN,Virtual Module,TIT_1201A,FX,1000\n");
    const std::string arguments = " " + Quoted("t.csv") + " --project " + Quoted("small.KPJ");
    const std::string reading = "io-workshop: " + In("t.csv") + ": read as UTF-8, fields parted by commas.\n";
    const std::string preview = "West (new station): 1 tag added, 0 changed, 0 removed, 0 as they were\n"
                                "  + W-1: X 1 in V\n"
                                "North: 1 tag added, 1 changed, 1 removed, 1 as they were\n"
                                "  ~ IP address \"10.0.0.5\" -> \"10.0.0.6\"\n"
                                "  + NEW: FX 9 in VFX_RUN\n"
                                "  ~ PIT-101: register \"FX 1001\" -> \"FX 1005\", module \"VFX_RUN\" -> "
                                "\"VFX_2\", description \"static pressure\" -> \"\"\n"
                                "  - XV-304: X 7 in DI-16 Slot 3\n"
                                "This was a preview; nothing was changed. Without --preview it is done.\n";
    for (const std::string how : {"--preview", "--dry-run"}) {
        const Outcome outcome = Run("import-tags --replace " + how + arguments);
        EXPECT_EQ(outcome.Status, 0);
        EXPECT_EQ(outcome.Output, reading + preview);
    }
    EXPECT_THAT(
        Run("import-tags --preview" + arguments).Output,
        AllOf(Not(HasSubstr("  - ")), HasSubstr("  ~ the tags that stay are delivered in another order")));
    EXPECT_EQ(ReadBytes(Folder / "small.KPJ"), before);
    EXPECT_THAT(Run("import-tags --replace" + arguments).Output,
                HasSubstr("2 tags added, 1 changed, 1 removed, 1 as they were.\n"));
}

TEST_F(Command, preview_of_a_table_at_fault_fails_as_the_import_would) {
    MakeSmallProject();
    WriteBytes(Folder / "bad.csv", "Station;Module;Tag;Class;Register\nNorth;V;P-1;ZX;1\n");
    const Outcome preview =
        Run("import-tags --preview " + Quoted("bad.csv") + " --project " + Quoted("small.KPJ"));
    EXPECT_EQ(preview.Status, 1);
    EXPECT_THAT(preview.Output, HasSubstr("bad.csv: row 2, column Class: \"ZX\""));
}

TEST_F(Command, import_tells_every_fault_however_many_there_are) {
    MakeSmallProject();
    std::string table = "Station,Module,Tag,Class,Register\n";
    for (int row = 0; row < 200; ++row) {
        table += "North,V,T-" + std::to_string(row) + ",ZX," + std::to_string(row) + "\n";
    }
    WriteBytes(Folder / "bad.csv", table);
    const Outcome import = Run("import-tags " + Quoted("bad.csv") + " --project " + Quoted("small.KPJ"));
    EXPECT_EQ(import.Status, 1);
    EXPECT_EQ(std::count(import.Output.begin(), import.Output.end(), '\n'), 201);
    EXPECT_THAT(import.Output, HasSubstr("row 201, column Class"));
}

TEST_F(Command, import_says_how_it_read_a_table_that_is_not_utf8) {
    MakeSmallProject();
    WriteBytes(Folder / "old.csv", "Station;Module;Module Type;Tag;Class;Register\r\n"
                                   "North;V;Virtual Module;Caudal_\xD1;FX;1\r\n");
    const Outcome import = Run("import-tags " + Quoted("old.csv") + " --project " + Quoted("small.KPJ"));
    EXPECT_EQ(import.Status, 0);
    EXPECT_THAT(import.Output,
                HasSubstr("old.csv: line 2 is not UTF-8, so the whole file was read as Windows-1252"));
    EXPECT_THAT(Run("tags North --project " + Quoted("small.KPJ")).Output, HasSubstr("Caudal_Ñ"));
}

TEST_F(Command, download_tells_by_its_status_whether_every_file_came_over) {
    Run("demo " + Quoted("plant"));
    Run("open " + Quoted("plant/plant.KPJ"));
    const Outcome done = Run("download " + Quoted("out"));
    EXPECT_EQ(done.Status, 0);
    EXPECT_EQ(ReadBytes(Folder / "out/Lakeside_Delivery/etc/stacfg/kdormaga.ini"),
              ReadBytes(Folder / "plant/KDOrmAGA_plant_Lakeside_Delivery.ini"));
    std::filesystem::remove(Folder / "plant/KDOrmAGA_plant_Lakeside_Delivery.ini");
    const Outcome missing = Run("download " + Quoted("out"));
    EXPECT_EQ(missing.Status, 1);
    EXPECT_THAT(missing.Output, HasSubstr("is missing"));
    EXPECT_THAT(Run("files").Output, HasSubstr("(missing)"));
}

TEST_F(Command, unknown_station_is_told) {
    MakeSmallProject();
    const Outcome tags = Run("tags West --project " + Quoted("small.KPJ"));
    EXPECT_EQ(tags.Status, 1);
    EXPECT_THAT(tags.Output, HasSubstr("West: the project has no such station"));
}

TEST_F(Command, wrong_usage_has_a_status_of_its_own) {
    for (const char* arguments : {"", "bogus", "new", "demo", "download", "import-tags", "export-tags",
                                  "where-used", "stations --colour", "import-tags a.csv b.csv"}) {
        EXPECT_EQ(Run(arguments).Status, 2) << arguments;
    }
}

#ifndef _WIN32 // where no file stands for a full disk
TEST_F(Command, an_output_that_is_lost_is_a_failure) {
    EXPECT_EQ(Run("export-tags - --template > /dev/full").Status, 1);
    EXPECT_EQ(Run("export-tags - --template > /dev/null").Status, 0);
}
#endif

TEST_F(Command, each_one_explains_itself_with_an_example) {
    const Outcome all = Run("--help");
    EXPECT_EQ(all.Status, 0);
    EXPECT_THAT(all.Output,
                AllOf(HasSubstr("0  done"), HasSubstr("1  refused or failed"), HasSubstr("2  wrong usage")));
    EXPECT_TRUE(std::regex_match(Run("--version").Output, std::regex("[0-9]+\\.[0-9]+\\.[0-9]+\n")));
    for (const std::string name :
         {"new", "demo", "open", "close", "import-tags", "export-tags", "stations", "tags", "where-used",
          "mappings", "rename-tag", "move-tag", "remove-tag", "files", "download", "window"}) {
        const Outcome help = Run(name + " --help");
        EXPECT_EQ(help.Status, 0) << name;
        EXPECT_THAT(help.Output, HasSubstr("Example:\n  io-workshop " + name));
    }
}

} // namespace gfc::workshop
