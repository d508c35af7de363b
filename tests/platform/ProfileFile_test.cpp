#include "platform/ProfileFile.h"
#include "support/MemoryFiles.h"

#include <gtest/gtest.h>

namespace {

using gfc::platform::ProfileFile;
using gfc::test::MemoryFiles;

TEST(ProfileFile, reads_once_and_replaces_once_for_many_writes) {
    MemoryFiles files;
    files.Content["f"] = "[A]\r\n";
    auto file = ProfileFile::Open(files, "f");
    ASSERT_TRUE(file);
    file->Edit().Write("A", "k", "1");
    file->Edit().Write("A", "m", "2");
    EXPECT_TRUE(file->Save());
    EXPECT_EQ(files.Content["f"], "[A]\r\nk=1\r\nm=2\r\n");
    EXPECT_EQ(files.Reads, 1);
    EXPECT_EQ(files.Replaces, 1);
}

TEST(ProfileFile, writes_nothing_where_nothing_changed) {
    MemoryFiles files;
    files.Content["f"] = "[A]\r\nk=1\r\n";
    auto file = ProfileFile::Open(files, "f");
    file->Edit().Write("A", "k", "1");
    file->Edit().Write("A", "none", std::nullopt);
    EXPECT_TRUE(file->Save());
    EXPECT_EQ(files.Replaces, 0);
}

TEST(ProfileFile, writes_again_after_a_later_change_only) {
    MemoryFiles files;
    auto file = ProfileFile::Open(files, "f");
    file->Edit().Write("A", "k", "1");
    EXPECT_TRUE(file->Save());
    EXPECT_TRUE(file->Save());
    EXPECT_EQ(files.Replaces, 1);
    file->Edit().Write("A", "k", "2");
    EXPECT_TRUE(file->Save());
    EXPECT_EQ(files.Content["f"], "[A]\r\nk=2\r\n");
}

TEST(ProfileFile, makes_a_missing_file_even_for_a_deletion) {
    MemoryFiles files;
    auto file = ProfileFile::Open(files, "f");
    ASSERT_TRUE(file);
    file->Edit().Write("A", "k", std::nullopt);
    EXPECT_TRUE(file->Save());
    EXPECT_TRUE(files.Content.contains("f"));
    EXPECT_EQ(files.Content["f"], "");
}

TEST(ProfileFile, refuses_a_file_that_is_there_and_cannot_be_read) {
    MemoryFiles files;
    files.Content["f"] = "[A]\r\nk=1\r\n";
    files.Unreadable.insert("f");
    EXPECT_FALSE(ProfileFile::Open(files, "f"));
}

TEST(ProfileFile, reports_a_failed_replace_and_can_be_saved_again) {
    MemoryFiles files;
    files.Content["f"] = "[A]\r\n";
    files.Unwritable.insert("f");
    auto file = ProfileFile::Open(files, "f");
    file->Edit().Write("A", "k", "1");
    EXPECT_FALSE(file->Save());
    EXPECT_EQ(files.Content["f"], "[A]\r\n");
    files.Unwritable.clear();
    EXPECT_TRUE(file->Save());
    EXPECT_EQ(files.Content["f"], "[A]\r\nk=1\r\n");
}

} // namespace
