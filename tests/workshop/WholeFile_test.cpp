#include "WorkshopFixture.h"
#include "workshop/store/Failure.h"
#include "workshop/store/WholeFile.h"

#include <gtest/gtest.h>

namespace gfc::workshop {

namespace {

namespace fs = std::filesystem;

class WholeFile : public WorkshopFixture {};

std::size_t FilesIn(const fs::path& folder) {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), {}));
}

#ifndef _WIN32 // modes and links of the other kind of system
TEST_F(WholeFile, keeps_the_mode_of_what_it_replaces) {
    WriteBytes(Folder / "a.ini", "old");
    fs::permissions(Folder / "a.ini", fs::perms::owner_read | fs::perms::owner_write);
    ReplaceWhole(Folder / "a.ini", "new");
    EXPECT_EQ(ReadBytes(Folder / "a.ini"), "new");
    EXPECT_EQ(fs::status(Folder / "a.ini").permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(FilesIn(Folder), 1U);
}

TEST_F(WholeFile, leaves_a_link_and_replaces_what_it_names) {
    fs::create_directory(Folder / "real");
    WriteBytes(Folder / "real/a.ini", "old");
    fs::create_symlink("real/a.ini", Folder / "a.ini");
    ReplaceWhole(Folder / "a.ini", "new");
    EXPECT_TRUE(fs::is_symlink(Folder / "a.ini"));
    EXPECT_EQ(ReadBytes(Folder / "real/a.ini"), "new");
}
#endif

TEST_F(WholeFile, takes_what_a_crash_left_and_no_file_of_a_person) {
    WriteBytes(Folder / ".a.ini.io-workshop-new", "half");
    WriteBytes(Folder / "a.ini.new", "by hand");
    ReplaceWhole(Folder / "a.ini", "new");
    EXPECT_FALSE(fs::exists(Folder / ".a.ini.io-workshop-new"));
    EXPECT_EQ(ReadBytes(Folder / "a.ini.new"), "by hand");
}

TEST_F(WholeFile, stands_in_the_current_folder_by_its_bare_name) {
    const fs::path before = fs::current_path();
    fs::current_path(Folder);
    EXPECT_NO_THROW(ReplaceWhole("a.ini", "new"));
    fs::current_path(before);
    EXPECT_EQ(ReadBytes(Folder / "a.ini"), "new");
}

TEST_F(WholeFile, leaves_all_as_it_was_where_it_cannot_be_written) {
    fs::create_directory(Folder / "a.ini");
    EXPECT_THROW(ReplaceWhole(Folder / "a.ini", "new"), Failure);
    EXPECT_TRUE(fs::is_directory(Folder / "a.ini"));
    EXPECT_EQ(FilesIn(Folder), 1U);
}

} // namespace

} // namespace gfc::workshop
