#include "WorkshopFixture.h"
#include "workshop/load/Download.h"
#include "workshop/store/FilesToLoad.h"

#include <gmock/gmock.h>

namespace gfc::workshop {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class DownloadTo : public WorkshopFixture {
protected:
    void Enter(Project& project, const std::string& station, const std::string& local,
               const std::string& target) {
        ASSERT_TRUE(AddFileToLoad(project, {station, local, target, -1}));
    }
};

TEST_F(DownloadTo, copies_each_file_below_its_station) {
    Project project = MakeSmallProject();
    WriteBytes(Folder / "n.ini", "north");
    WriteBytes(Folder / "s.ini", "south");
    Enter(project, "North", In("n.ini"), "/etc/stacfg/kdormaga.ini");
    Enter(project, "South", "s.ini", "\\nvram\\x.ini"); // relative to the project; either separator
    const DownloadResult result = Download(project, Folder / "out");
    EXPECT_THAT(result.Faults, IsEmpty());
    EXPECT_THAT(result.Written,
                ElementsAre(Folder / "out/North/etc/stacfg/kdormaga.ini", Folder / "out/South/nvram/x.ini"));
    EXPECT_EQ(ReadBytes(Folder / "out/North/etc/stacfg/kdormaga.ini"), "north");
    EXPECT_EQ(ReadBytes(Folder / "out/South/nvram/x.ini"), "south");
}

TEST_F(DownloadTo, replaces_what_an_earlier_download_left) {
    Project project = MakeSmallProject();
    Enter(project, "North", In("n.ini"), "/a");
    WriteBytes(Folder / "n.ini", "old and longer");
    EXPECT_THAT(Download(project, Folder / "out").Faults, IsEmpty());
    WriteBytes(Folder / "n.ini", "new");
    EXPECT_THAT(Download(project, Folder / "out").Faults, IsEmpty());
    EXPECT_EQ(ReadBytes(Folder / "out/North/a"), "new");
}

TEST_F(DownloadTo, tells_a_missing_file_and_copies_the_others) {
    Project project = MakeSmallProject();
    WriteBytes(Folder / "s.ini", "south");
    Enter(project, "North", In("gone.ini"), "/a");
    Enter(project, "South", In("s.ini"), "/a");
    const DownloadResult result = Download(project, Folder / "out");
    EXPECT_THAT(result.Faults, ElementsAre(HasSubstr("North: " + In("gone.ini") + " is missing")));
    EXPECT_THAT(result.Written, ElementsAre(Folder / "out/South/a"));
}

TEST_F(DownloadTo, never_leaves_the_folder) {
    Project project = MakeSmallProject();
    AddStation(project, {0, "..", "", "", 0});
    AddStation(project, {0, "a/../../b", "", "", 0});
    WriteBytes(Folder / "n.ini", "north");
    Enter(project, "North", In("n.ini"), "/etc/../../../x.ini");
    Enter(project, "North", In("n.ini"), "..\\x.ini");
    Enter(project, "North", In("n.ini"), "/");
    Enter(project, "..", In("n.ini"), "/x.ini");
    Enter(project, "a/../../b", In("n.ini"), "/x.ini");
    const DownloadResult result = Download(project, Folder / "out");
    EXPECT_EQ(result.Faults.size(), 5U);
    EXPECT_THAT(result.Written, IsEmpty());
    EXPECT_FALSE(std::filesystem::exists(Folder / "out"));
    EXPECT_FALSE(std::filesystem::exists(Folder / "x.ini"));
}

TEST_F(DownloadTo, tells_a_folder_that_cannot_be_written) {
    Project project = MakeSmallProject();
    WriteBytes(Folder / "n.ini", "north");
    WriteBytes(Folder / "out", "a file in the way");
    Enter(project, "North", In("n.ini"), "/a");
    EXPECT_THAT(Download(project, Folder / "out").Faults,
                ElementsAre(HasSubstr("the folder cannot be made: Not a directory")));
}

} // namespace gfc::workshop
