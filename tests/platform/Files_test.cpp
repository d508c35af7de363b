#include "platform/Files.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace {

using namespace gfc::platform;
using gfc::test::TempFolder;

class FilesTest : public testing::Test {
protected:
    TempFolder Folder;
    std::unique_ptr<Files> Real = MakeFiles();
};

TEST_F(FilesTest, reads_all_bytes_of_a_file) {
    std::string bytes;
    for (int i = 0; i < 300'000; ++i)
        bytes += static_cast<char>(i * 31 + i / 256);
    EXPECT_EQ(Real->Read(Folder.Put("f", bytes)), bytes);
    EXPECT_EQ(Real->Read(Folder.Put("empty", "")), "");
}

TEST_F(FilesTest, reads_the_start_of_a_file) {
    const std::string path = Folder.Put("f", std::string(5000, 'a') + std::string(5000, 'b'));
    for (const std::size_t enough : {1, 4999, 5001, 9999, 10000, 10001, 20000}) {
        const auto start = Real->ReadStart(path, enough);
        ASSERT_TRUE(start);
        EXPECT_GE(start->size(), std::min<std::size_t>(enough, 10000));
        EXPECT_TRUE(Folder.Get("f").starts_with(*start)) << enough;
    }
    EXPECT_EQ(Real->ReadStart(Folder.Put("empty", ""), 10), "");
    EXPECT_EQ(Real->ReadStart(Folder.Path("missing"), 10), std::nullopt);
    EXPECT_EQ(Real->ReadStart(Folder.Path(), 10), std::nullopt);
}

TEST_F(FilesTest, reads_nothing_where_no_file_is) {
    EXPECT_EQ(Real->Read(Folder.Path("missing")), std::nullopt);
    EXPECT_EQ(Real->Read(Folder.Path()), std::nullopt);
    EXPECT_EQ(Real->Read(""), std::nullopt);
}

TEST_F(FilesTest, replace_makes_a_new_file) {
    const std::string bytes("a\r\n\0b", 5);
    EXPECT_TRUE(Real->Replace(Folder.Path("f"), bytes));
    EXPECT_EQ(Folder.Get("f"), bytes);
    EXPECT_EQ(Folder.Count(), 1u);
}

TEST_F(FilesTest, replace_puts_new_bytes_in_the_place_of_old_ones) {
    Folder.Put("f", std::string(10'000, 'x'));
    const std::string bytes(3'000'000, 'y');
    EXPECT_TRUE(Real->Replace(Folder.Path("f"), bytes));
    EXPECT_EQ(Folder.Get("f"), bytes);
    EXPECT_TRUE(Real->Replace(Folder.Path("f"), ""));
    EXPECT_EQ(Folder.Get("f"), "");
    EXPECT_EQ(Folder.Count(), 1u);
}

TEST_F(FilesTest, replace_takes_names_with_blanks_letters_and_great_length) {
    for (const std::string& name : {std::string("Estación Ñ 1.ini"), std::string(250, 'n')}) {
        EXPECT_TRUE(Real->Replace(Folder.Path(name), "1"));
        EXPECT_TRUE(Real->Replace(Folder.Path(name), "2"));
        EXPECT_EQ(Folder.Get(name), "2");
    }
    EXPECT_EQ(Folder.Count(), 2u);
}

TEST_F(FilesTest, replace_refuses_what_cannot_be_a_file) {
    Folder.Put("plain", "kept");
    EXPECT_FALSE(Real->Replace(Folder.Path("plain/f"), "x")) << "a file is no folder";
    EXPECT_FALSE(Real->Replace(Folder.Path("missing/f"), "x"));
    EXPECT_FALSE(Real->Replace(Folder.Path(), "x"));
    EXPECT_FALSE(Real->Replace("", "x"));
    EXPECT_EQ(Folder.Get("plain"), "kept");
    EXPECT_EQ(Folder.Count(), 1u);
}

TEST_F(FilesTest, exists_tells_files_from_folders) {
    EXPECT_TRUE(Real->Exists(Folder.Put("f", "")));
    EXPECT_FALSE(Real->Exists(Folder.Path()));
    EXPECT_FALSE(Real->Exists(Folder.Path("missing")));
    EXPECT_FALSE(Real->Exists(""));
}

TEST_F(FilesTest, delete_takes_a_file_and_nothing_else) {
    Folder.Put("f", "x");
    EXPECT_TRUE(Real->Delete(Folder.Path("f")));
    EXPECT_EQ(Folder.Count(), 0u);
    EXPECT_FALSE(Real->Delete(Folder.Path("f")));
    EXPECT_FALSE(Real->Delete(Folder.Path()));
    EXPECT_TRUE(std::filesystem::exists(Folder.Path()));
}

TEST_F(FilesTest, copy_makes_a_second_file) {
    Folder.Put("a", "bytes");
    EXPECT_TRUE(Real->CopyNew(Folder.Path("a"), Folder.Path("b")));
    EXPECT_EQ(Folder.Get("a"), "bytes");
    EXPECT_EQ(Folder.Get("b"), "bytes");
    EXPECT_EQ(Folder.Count(), 2u);
}

TEST_F(FilesTest, copy_refuses_a_target_that_is_there) {
    Folder.Put("a", "new");
    Folder.Put("b", "old");
    EXPECT_FALSE(Real->CopyNew(Folder.Path("a"), Folder.Path("b")));
    EXPECT_EQ(Folder.Get("b"), "old");
    EXPECT_FALSE(Real->CopyNew(Folder.Path("a"), Folder.Path("a")));
    EXPECT_EQ(Folder.Get("a"), "new");
    EXPECT_FALSE(Real->CopyNew(Folder.Path("a"), Folder.Path())) << "a folder is there";
    EXPECT_EQ(Folder.Count(), 2u);
}

TEST_F(FilesTest, copy_leaves_nothing_behind_when_it_fails) {
    Folder.Put("a", "x");
    EXPECT_FALSE(Real->CopyNew(Folder.Path("missing"), Folder.Path("b")));
    EXPECT_FALSE(Real->CopyNew(Folder.Path("a"), Folder.Path("a/b")));
    EXPECT_FALSE(Real->CopyNew(Folder.Path("a"), Folder.Path("missing/b")));
    EXPECT_EQ(Folder.Count(), 1u);
}

TEST_F(FilesTest, says_what_the_system_gave_as_reason) {
    EXPECT_EQ(Real->LastFailure(), "") << "nothing has failed yet";
    Folder.Put("a", "x");
    Folder.Put("b", "y");
    const std::string missing = Folder.Path("missing");
    EXPECT_FALSE(Real->Delete(missing));
    const std::string isMissing = Real->LastFailure();
    EXPECT_NE(isMissing, "");
    EXPECT_FALSE(Real->CopyNew(Folder.Path("a"), Folder.Path("b")));
    const std::string isThere = Real->LastFailure();
    EXPECT_NE(isThere, isMissing);
    EXPECT_FALSE(Real->Read(missing));
    EXPECT_EQ(Real->LastFailure(), isMissing);
    EXPECT_FALSE(Real->Replace(Folder.Path(), "x")) << "a folder";
    EXPECT_NE(Real->LastFailure(), isMissing);
    EXPECT_FALSE(Real->CopyNew(missing, Folder.Path("c")));
    EXPECT_EQ(Real->LastFailure(), isMissing);
    EXPECT_TRUE(Real->Replace(Folder.Path("a"), "x"));
    EXPECT_FALSE(Real->Exists(missing));
    EXPECT_EQ(Real->LastFailure(), isMissing) << "what succeeds says nothing";
    EXPECT_EQ(Real->LastFailure().find_first_of("\r\n"), std::string::npos);
}

TEST_F(FilesTest, put_anew_has_all_bytes_beside_before_the_old_ones_go) {
    const std::string path = Folder.Put("f", "old");
    const std::string bytes(100'000, 'n');
    EXPECT_TRUE(Real->PutAnew(path, bytes, [&] {
        EXPECT_EQ(Folder.Get("f"), "old");
        for (const auto& entry : std::filesystem::directory_iterator(Folder.Path()))
            EXPECT_TRUE(entry.path() == path || entry.file_size() == bytes.size()) << entry.path();
        EXPECT_EQ(Folder.Count(), 2u);
        return Real->Delete(path);
    }));
    EXPECT_EQ(Folder.Get("f"), bytes);
    EXPECT_EQ(Folder.Count(), 1u);
}

TEST_F(FilesTest, put_anew_leaves_everything_where_no_way_was_made) {
    const std::string path = Folder.Put("f", "old");
    EXPECT_FALSE(Real->PutAnew(path, "new", [] { return false; }));
    EXPECT_EQ(Folder.Get("f"), "old");
    EXPECT_FALSE(Real->PutAnew(Folder.Path("missing/f"), "new", [] {
        ADD_FAILURE() << "what cannot be written makes no way";
        return true;
    }));
    EXPECT_NE(Real->LastFailure(), "");
    EXPECT_EQ(Folder.Count(), 1u);
}

} // namespace
