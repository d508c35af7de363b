#include "WorkshopFixture.h"
#include "workshop/store/OpenProject.h"

namespace gfc::workshop {

class OpenMark : public WorkshopFixture {};

TEST_F(OpenMark, stands_under_the_state_folder) {
    EXPECT_EQ(OpenProjectMark(), Folder / "state" / "io-workshop" / "open-project");
}

#ifdef _WIN32
TEST_F(OpenMark, falls_back_to_the_users_own_folder_for_an_unusable_variable) {
    const std::string before = std::getenv("LOCALAPPDATA");
    SetVariable("LOCALAPPDATA", Folder.string());
    for (const char* unusable : {"relative/state", ""}) {
        SetVariable("XDG_STATE_HOME", unusable);
        EXPECT_EQ(OpenProjectMark(), Folder / "io-workshop" / "open-project");
    }
    SetVariable("LOCALAPPDATA", "");
    EXPECT_NE(FailureOf([] { static_cast<void>(OpenProjectMark()); }).find("set LOCALAPPDATA"),
              std::string::npos);
    SetVariable("LOCALAPPDATA", before);
}
#else
TEST_F(OpenMark, falls_back_to_the_home_folder_for_an_unusable_variable) {
    const char* before = std::getenv("HOME");
    const std::string home = before == nullptr ? "" : before;
    SetVariable("HOME", Folder.string());
    for (const char* unusable : {"relative/state", ""}) {
        SetVariable("XDG_STATE_HOME", unusable);
        EXPECT_EQ(OpenProjectMark(), Folder / ".local" / "state" / "io-workshop" / "open-project");
    }
    SetVariable("HOME", "");
    EXPECT_NE(FailureOf([] { static_cast<void>(OpenProjectMark()); }).find("set XDG_STATE_HOME or HOME"),
              std::string::npos);
    SetVariable("HOME", home);
}
#endif

TEST_F(OpenMark, remembers_replaces_and_forgets) {
    EXPECT_FALSE(RecordedProject());
    EXPECT_FALSE(ForgetProject());
    RecordProject("/jobs/a.KPJ");
    RecordProject("/jobs/Añelo/b.KPJ");
    EXPECT_EQ(RecordedProject(), std::filesystem::path("/jobs/Añelo/b.KPJ"));
    EXPECT_TRUE(ForgetProject());
    EXPECT_FALSE(RecordedProject());
}

TEST_F(OpenMark, leaves_nothing_beside_it) {
    RecordProject("/jobs/a.KPJ");
    const std::filesystem::directory_iterator files(OpenProjectMark().parent_path());
    EXPECT_EQ(std::distance(begin(files), end(files)), 1);
    EXPECT_EQ(ReadBytes(OpenProjectMark()), "/jobs/a.KPJ\n");
}

} // namespace gfc::workshop
