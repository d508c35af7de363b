#include "WorkshopFixture.h"
#include "workshop/store/OpenProject.h"

#include <gmock/gmock.h>

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
    EXPECT_THAT(Run("new " + Quoted("no/north.KPJ")).Output, HasSubstr("there is no such folder"));
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
    EXPECT_EQ(good.Output, "Imported 1 tags of 1 stations into " + In("small.KPJ") + ".\n");
    const Outcome bad = Run("import-tags " + Quoted("bad.csv") + " " + onSmall);
    EXPECT_EQ(bad.Status, 1);
    EXPECT_THAT(bad.Output, AllOf(HasSubstr("bad.csv: row 2, column Class: \"ZX\" is no register class"),
                                  HasSubstr("bad.csv: row 2, column Register: \"a\" is not a whole number"),
                                  HasSubstr("nothing was imported")));
    EXPECT_THAT(Run("stations " + onSmall).Output, AllOf(HasSubstr("West"), Not(HasSubstr("East"))));
    EXPECT_EQ(Run("import-tags " + Quoted("good.csv") + " " + onSmall).Status, 1); // there already
    EXPECT_EQ(Run("import-tags --replace " + Quoted("good.csv") + " " + onSmall).Status, 0);
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
    for (const char* arguments :
         {"", "bogus", "new", "demo", "download", "import-tags", "stations --colour"}) {
        EXPECT_EQ(Run(arguments).Status, 2) << arguments;
    }
}

TEST_F(Command, each_one_explains_itself_with_an_example) {
    EXPECT_EQ(Run("--help").Status, 0);
    for (const std::string name : {"new", "demo", "open", "close", "import-tags", "stations", "tags",
                                   "rename-tag", "move-tag", "remove-tag", "files", "download"}) {
        const Outcome help = Run(name + " --help");
        EXPECT_EQ(help.Status, 0) << name;
        EXPECT_THAT(help.Output, HasSubstr("Example:\n  io-workshop " + name));
    }
}

} // namespace gfc::workshop
