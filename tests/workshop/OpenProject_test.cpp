#include "WorkshopFixture.h"
#include "workshop/store/OpenProject.h"

namespace gfc::workshop {

class OpenMark : public WorkshopFixture {};

TEST_F(OpenMark, stands_under_the_state_folder) {
    EXPECT_EQ(OpenProjectMark(), Folder / "state" / "io-workshop" / "open-project");
}

TEST_F(OpenMark, falls_back_to_the_home_folder_for_an_unusable_variable) {
    const char* before = std::getenv("HOME");
    const std::string home = before == nullptr ? "" : before;
    ::setenv("HOME", Folder.c_str(), 1);
    ::setenv("XDG_STATE_HOME", "relative/state", 1);
    EXPECT_EQ(OpenProjectMark(), Folder / ".local" / "state" / "io-workshop" / "open-project");
    ::unsetenv("XDG_STATE_HOME");
    EXPECT_EQ(OpenProjectMark(), Folder / ".local" / "state" / "io-workshop" / "open-project");
    ::unsetenv("HOME");
    EXPECT_NE(FailureOf([] { static_cast<void>(OpenProjectMark()); }).find("set XDG_STATE_HOME or HOME"),
              std::string::npos);
    ::setenv("HOME", home.c_str(), 1);
}

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
