#include "WorkshopFixture.h"
#include "workshop/import/TagTable.h"

#include <gmock/gmock.h>

namespace gfc::workshop {

using testing::ElementsAre;
using testing::HasSubstr;

class TagEdit : public WorkshopFixture {
protected:
    TagEdit() { MakeSmallProject(); }

    /// Runs the command on the small project.
    [[nodiscard]] Outcome Edit(const std::string& arguments) const {
        return Run(arguments + " --project " + Quoted("small.KPJ"));
    }
    /// "PIT-101 FX 1001" and so on, in the order of delivery.
    [[nodiscard]] std::vector<std::string> Tags(const std::string& station = "North") const {
        Project project = Project::Open(Folder / "small.KPJ", Access::Read);
        std::vector<std::string> texts;
        for (const Tag& tag : ListTags(project, FindStation(project, station).value().Id)) {
            texts.push_back(tag.Name + ' ' + tag.Class + ' ' + std::to_string(tag.Register));
        }
        return texts;
    }
    void ExpectRefusal(const std::string& arguments, const std::string& message) const {
        const std::string before = ReadBytes(Folder / "small.KPJ");
        const Outcome refused = Edit(arguments);
        EXPECT_EQ(refused.Status, 1) << arguments;
        EXPECT_EQ(refused.Output, "io-workshop: " + message + "\n");
        EXPECT_EQ(ReadBytes(Folder / "small.KPJ"), before) << arguments;
    }
};

TEST_F(TagEdit, rename_gives_the_name_and_keeps_the_place) {
    const Outcome done = Edit("rename-tag North PIT-101 'Presión 1'");
    EXPECT_EQ(done.Status, 0);
    EXPECT_EQ(done.Output, "Renamed tag PIT-101 of station North to Presión 1.\n");
    EXPECT_THAT(Tags(), ElementsAre("Presión 1 FX 1001", "XV-304 X 7", "TIT_1201A FX 1000"));
}

TEST_F(TagEdit, rename_may_change_the_case_of_the_letters_alone) {
    EXPECT_EQ(Edit("rename-tag NORTH pit-101 Pit-101").Output,
              "Renamed tag PIT-101 of station North to Pit-101.\n");
    EXPECT_EQ(Edit("rename-tag North Pit-101 Pit-101").Status, 0);
    EXPECT_THAT(Tags(), ElementsAre("Pit-101 FX 1001", "XV-304 X 7", "TIT_1201A FX 1000"));
}

TEST_F(TagEdit, rename_refuses_a_name_that_another_tag_has) {
    ExpectRefusal("rename-tag North PIT-101 xv-304",
                  "xv-304: station North has a tag XV-304 at X 7 already; choose another name, or rename "
                  "that tag first.");
}

TEST_F(TagEdit, rename_takes_forty_characters_and_no_more) {
    std::string name;
    for (int at = 0; at < 40; ++at) {
        name += "ñ"; // two bytes here, one in the code page
    }
    ExpectRefusal("rename-tag North PIT-101 " + name + "x",
                  "New name of tag PIT-101 of station North: \"" + name +
                      "x\" is longer than 40 characters; choose another name.");
    EXPECT_EQ(Edit("rename-tag North PIT-101 " + name).Status, 0);
    EXPECT_EQ(Tags().front(), name + " FX 1001");
}

TEST_F(TagEdit, rename_refuses_what_no_import_would_take) {
    const std::string where = "New name of tag PIT-101 of station North: ";
    ExpectRefusal("rename-tag North PIT-101 Łódź",
                  where + "\"Łódź\" holds characters outside Windows-1252 or is not UTF-8; choose another "
                          "name.");
#ifndef _WIN32 // where no word of a command line can be anything else
    ExpectRefusal("rename-tag North PIT-101 \"$(printf '\\361')\"",
                  where + "\"\xF1\" holds characters outside Windows-1252 or is not UTF-8; choose another "
                          "name.");
#endif
    ExpectRefusal("rename-tag North PIT-101 'PIT '",
                  where + "\"PIT \" holds a control character or has a blank at its end; choose another "
                          "name.");
    ExpectRefusal("rename-tag North PIT-101 ''", where + "\"\" is empty; choose another name.");
}

TEST_F(TagEdit, move_gives_the_register_and_keeps_class_and_place) {
    const Outcome done = Edit("move-tag North PIT-101 7"); // X 7 is another place than FX 7
    EXPECT_EQ(done.Status, 0);
    EXPECT_EQ(done.Output, "Moved tag PIT-101 of station North from FX 1001 to FX 7.\n");
    EXPECT_THAT(Tags(), ElementsAre("PIT-101 FX 7", "XV-304 X 7", "TIT_1201A FX 1000"));
    EXPECT_EQ(Edit("move-tag North PIT-101 7").Status, 0) << "it stands in nobody's way";
    EXPECT_EQ(Edit("move-tag North PIT-101 2147483647").Status, 0);
    EXPECT_EQ(Edit("move-tag North XV-304 0").Status, 0);
    EXPECT_THAT(Tags(), ElementsAre("PIT-101 FX 2147483647", "XV-304 X 0", "TIT_1201A FX 1000"));
}

TEST_F(TagEdit, move_refuses_a_register_that_another_tag_has) {
    ExpectRefusal("move-tag North PIT-101 1000",
                  "FX 1000: tag TIT_1201A of station North stands there already; choose another register, or "
                  "move that tag first.");
}

TEST_F(TagEdit, move_to_what_is_no_register_is_wrong_usage) {
    for (const std::string text : {"FX", "12a", "1.5", "2147483648", "''"}) {
        const Outcome wrong = Edit("move-tag North PIT-101 " + text);
        EXPECT_EQ(wrong.Status, 2) << text;
        EXPECT_THAT(wrong.Output, HasSubstr("REGISTER: ")) << text;
    }
    EXPECT_THAT(Edit("move-tag North PIT-101 12a").Output,
                HasSubstr("\"12a\" is not a whole number from 0 to 2147483647"));
    EXPECT_EQ(Tags().front(), "PIT-101 FX 1001");
}

TEST_F(TagEdit, remove_takes_the_tag_out_and_keeps_the_order_of_the_others) {
    const Outcome done = Edit("remove-tag North PIT-101");
    EXPECT_EQ(done.Status, 0);
    EXPECT_EQ(done.Output, "Removed tag PIT-101 of station North from FX 1001.\n");
    EXPECT_THAT(Tags(), ElementsAre("XV-304 X 7", "TIT_1201A FX 1000"));
    EXPECT_EQ(Edit("rename-tag North XV-304 PIT-101").Status, 0) << "the name is free again";
    EXPECT_EQ(Edit("move-tag North TIT_1201A 1001").Status, 0) << "and so is the register";
}

TEST_F(TagEdit, remove_takes_a_module_out_with_its_last_tag) {
    EXPECT_EQ(Edit("remove-tag North XV-304").Status, 0);
    EXPECT_EQ(Edit("remove-tag North PIT-101").Status, 0);
    WriteBytes(Folder / "new.csv", "Station,Module,Module Type,Tag,Class,Register\n"
                                   "North,DI-16 Slot 3,Virtual Module,XV-304,X,7\n"
                                   "North,VFX_RUN,Virtual Module,PIT-101,FX,1001\n");
    EXPECT_EQ(Edit("import-tags " + Quoted("new.csv")).Status, 0);
    EXPECT_THAT(Tags(), ElementsAre("TIT_1201A FX 1000", "PIT-101 FX 1001", "XV-304 X 7"));
    Project project = Project::Open(Folder / "small.KPJ", Access::Read);
    const auto tag = FindTag(project, FindStation(project, "North").value().Id, "XV-304");
    EXPECT_EQ(tag.value().ModuleType, "Virtual Module") << "the old module must not lend its type";
}

TEST_F(TagEdit, leaves_tags_of_that_name_in_other_stations_alone) {
    WriteBytes(Folder / "south.csv",
               "Station,Module,Module Type,Tag,Class,Register\nSouth,V,Virtual Module,PIT-101,FX,1001\n");
    ASSERT_EQ(Edit("import-tags " + Quoted("south.csv")).Status, 0);
    EXPECT_EQ(Edit("rename-tag North PIT-101 PIT-102").Status, 0);
    EXPECT_EQ(Edit("move-tag North PIT-102 1").Status, 0);
    EXPECT_EQ(Edit("remove-tag North PIT-102").Status, 0);
    EXPECT_THAT(Tags("South"), ElementsAre("PIT-101 FX 1001"));
}

TEST_F(TagEdit, tells_an_unknown_station_and_an_unknown_tag) {
    const std::string edits[][2] = {{"rename-tag ", " A"}, {"move-tag ", " 5"}, {"remove-tag ", ""}};
    for (const auto& [command, target] : edits) {
        ExpectRefusal(command + "West PIT-101" + target,
                      "West: the project has no such station; \"io-workshop stations\" lists them.");
        ExpectRefusal(command + "North PIT-9" + target,
                      "PIT-9: station North has no such tag; \"io-workshop tags North\" lists them.");
    }
}

TEST_F(TagEdit, works_on_the_open_project_unless_told_otherwise) {
    EXPECT_THAT(Run("remove-tag North PIT-101").Output, HasSubstr("No project is open; open one with"));
    ASSERT_EQ(Run("open " + Quoted("small.KPJ")).Status, 0);
    EXPECT_EQ(Run("remove-tag North PIT-101").Status, 0);
    EXPECT_EQ(Tags().size(), 2U);
}

TEST_F(TagEdit, wants_all_that_it_is_about) {
    for (const char* arguments : {"rename-tag", "rename-tag North", "rename-tag North PIT-101", "move-tag",
                                  "move-tag North PIT-101", "remove-tag", "remove-tag North",
                                  "remove-tag North PIT-101 XV-304", "rename-tag North PIT-101 A B"}) {
        EXPECT_EQ(Edit(arguments).Status, 2) << arguments;
    }
    EXPECT_EQ(Tags().size(), 3U);
}

TEST(FaultUnder, holds_a_text_against_the_column_of_that_title) {
    EXPECT_EQ(FaultUnder("Tag", "PIT-101"), "");
    EXPECT_EQ(FaultUnder("tag", ""), "\"\" is empty");
    EXPECT_EQ(FaultUnder("Description", ""), "");
    EXPECT_EQ(FaultUnder("Station", "a/b"), "\"a/b\" cannot be part of a file name");
    EXPECT_EQ(FaultUnder("Colour", "red"), "\"Colour\" is no column");
}

} // namespace gfc::workshop
