#ifdef _WIN32
#include "platform/Files.h"
#include "platform/Folder.h"
#include "platform/InPlace.h"
#include "platform/ProfileFile.h"
#include "platform/windows/FileHandle.h"
#include "platform/windows/SystemPath.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace {

using namespace gfc::platform;
using gfc::platform::windows::Handle;
using gfc::platform::windows::Wide;
using gfc::test::TempFolder;

class WindowsFilesTest : public testing::Test {
protected:
    TempFolder Folder;
    std::unique_ptr<Files> Real = MakeFiles();
};

// How another program has the file open, and whether a save gets through. What is shared belongs to the
// handle and not to the process, so that this one holds it as well as any other.
struct Holder {
    const char* Name;
    DWORD Access;
    DWORD Share;
    bool Saved;
};

constexpr DWORD ShareBoth = FILE_SHARE_READ | FILE_SHARE_WRITE;

// clang-format off
const Holder Holders[] = {
    {"reader_sharing_nothing",     GENERIC_READ,                 0,                             false},
    {"reader_sharing_reading",     GENERIC_READ,                 FILE_SHARE_READ,               false},
    {"reader_sharing_both",        GENERIC_READ,                 ShareBoth,                     true},
    {"reader_sharing_all",         GENERIC_READ,                 ShareBoth | FILE_SHARE_DELETE, true},
    {"writer_sharing_nothing",     GENERIC_READ | GENERIC_WRITE, 0,                             false},
    {"writer_sharing_reading",     GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ,               false},
    {"writer_sharing_both",        GENERIC_READ | GENERIC_WRITE, ShareBoth,                     true},
    {"writer_sharing_all",         GENERIC_READ | GENERIC_WRITE, ShareBoth | FILE_SHARE_DELETE, true},
};
// clang-format on

class HeldFile : public testing::TestWithParam<Holder> {
protected:
    [[nodiscard]] Handle Hold(const std::string& path) const {
        return Handle(::CreateFileW(Wide(path).c_str(), GetParam().Access, GetParam().Share, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    }

    TempFolder Folder;
    std::unique_ptr<Files> Real = MakeFiles();
};

TEST_P(HeldFile, is_saved_where_the_system_itself_would_write_its_profile) {
    const std::string its = Folder.Put("its.ini", "[S]\r\nk=old\r\n");
    const std::string own = Folder.Put("own.ini", "[S]\r\nk=old\r\n");
    {
        const Handle first = Hold(its);
        const Handle second = Hold(own);
        ASSERT_TRUE(first && second);
        EXPECT_EQ(::WritePrivateProfileStringW(L"S", L"k", L"new", Wide(its).c_str()) != 0, GetParam().Saved);
        EXPECT_EQ(Real->Replace(own, "[S]\r\nk=new\r\n"), GetParam().Saved) << Real->LastFailure();
    }
    EXPECT_EQ(Folder.Get("own.ini"), Folder.Get("its.ini"));
    EXPECT_TRUE(Real->Replace(own, "[S]\r\nk=last\r\n"));
    EXPECT_EQ(Folder.Get("own.ini"), "[S]\r\nk=last\r\n");
    EXPECT_EQ(Folder.Count(), 2u) << "nothing is left beside them";
}

TEST_P(HeldFile, is_shorter_or_longer_after_a_save) {
    if (!GetParam().Saved)
        GTEST_SKIP() << "nobody may write it";
    const std::string path = Folder.Put("f", "some bytes");
    const Handle holder = Hold(path);
    for (const std::string& bytes : {std::string("few"), std::string(100'000, 'm'), std::string()}) {
        EXPECT_TRUE(Real->Replace(path, bytes)) << Real->LastFailure();
        EXPECT_EQ(Real->Read(path), bytes);
    }
}

INSTANTIATE_TEST_SUITE_P(By, HeldFile, testing::ValuesIn(Holders),
                         [](const auto& played) { return played.param.Name; });

// What the system's own functions make of a file is what ours make of it, and either reads the other's.
TEST_F(WindowsFilesTest, profiles_are_read_and_written_as_by_the_system) {
    constexpr unsigned seed = 18;
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::minstd_rand random(seed);
    const std::string its = Folder.Path("its.ini");
    const std::string own = Folder.Path("own.ini");
    const auto read = [](const std::string& path, const std::string& section, const std::string& key) {
        char value[256];
        ::GetPrivateProfileStringA(section.c_str(), key.c_str(), "none", value, sizeof value, path.c_str());
        return std::string(value);
    };
    const std::string names[] = {"General", "Run1", "RUN2", "Alta Presi\xF3n"};
    const std::string values[] = {"",
                                  "0",
                                  "FT-101",
                                  "a = b",
                                  "C:\\jobs",
                                  "\xD1"
                                  "and\xFA"};
    for (int step = 0; step < 300; ++step) {
        const std::string& section = names[random() % 4];
        const std::string key = "Key" + std::to_string(random() % 6);
        const std::string& value = values[random() % 6];
        ::WritePrivateProfileStringA(section.c_str(), key.c_str(), value.c_str(), its.c_str());
        auto file = ProfileFile::Open(*Real, own);
        ASSERT_TRUE(file);
        file->Edit().Write(section, key, value);
        ASSERT_TRUE(file->Save());
        for (const std::string& path : {its, own}) {
            const auto again = ProfileFile::Open(*Real, path);
            ASSERT_TRUE(again);
            EXPECT_EQ(again->Profile().Read(section, key, "none"), value) << path;
            EXPECT_EQ(read(path, section, key), value) << path;
        }
        if (HasFailure())
            break;
    }
}

TEST_F(WindowsFilesTest, puts_back_what_the_system_had_moved_aside) {
    const std::string path = Folder.Path("f.ini");
    for (int way = 0; way < 3; ++way) {
        Folder.Put(".gfc-gone-f.ini-0000abcd00", "old");
        if (way == 0) {
            EXPECT_TRUE(Real->Exists(path));
        } else if (way == 1) {
            EXPECT_EQ(Real->Read(path), "old");
        } else {
            EXPECT_TRUE(Real->Replace(path, "new"));
        }
        EXPECT_EQ(Folder.Get("f.ini"), way == 2 ? "new" : "old");
        EXPECT_EQ(Folder.Count(), 1u);
        std::filesystem::remove(path);
    }
}

TEST_F(WindowsFilesTest, removes_what_was_left_aside_of_a_file_that_stands) {
    const std::string path = Folder.Put("f.ini", "kept");
    Folder.Put(".gfc-gone-f.ini-0000abcd00", "older");
    EXPECT_EQ(Real->Read(path), "kept");
    EXPECT_TRUE(Real->Replace(path, "new"));
    EXPECT_EQ(Folder.Count(), 1u);
}

TEST_F(WindowsFilesTest, what_is_deleted_does_not_come_back_as_what_was_left_aside_of_it) {
    const std::string path = Folder.Put("f.ini", "kept");
    Folder.Put(".gfc-gone-f.ini-0000abcd00", "older");
    EXPECT_TRUE(Real->Delete(path)) << Real->LastFailure();
    EXPECT_FALSE(Real->Exists(path));
    EXPECT_FALSE(Real->Read(path));
    EXPECT_EQ(Folder.Count(), 0u);
}

TEST_F(WindowsFilesTest, puts_back_what_a_dead_writer_left_half_way) {
    const std::string path = Folder.Put("f.ini", "newx");
    Folder.Put(".gfc-undo-f.ini", UndoRecord{path, "oldxx", "newxy"}.Bytes());
    EXPECT_EQ(Real->Read(path), "oldxx");
    EXPECT_EQ(Folder.Get("f.ini"), "oldxx");
    EXPECT_EQ(Folder.Count(), 1u);
}

TEST_F(WindowsFilesTest, replace_leaves_what_is_read_only) {
    const std::string path = Folder.Put("f", "old");
    ::SetFileAttributesW(Wide(path).c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_FALSE(Real->Replace(path, "new"));
    EXPECT_FALSE(Real->LastFailure().empty());
    ::SetFileAttributesW(Wide(path).c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(Folder.Get("f"), "old");
    EXPECT_EQ(Folder.Count(), 1u);
}

TEST_F(WindowsFilesTest, takes_paths_of_any_length) {
    std::string folder = Folder.Path();
    while (folder.size() < 400) {
        folder += "\\" + std::string(60, 'f');
        ASSERT_TRUE(::CreateDirectoryW(windows::SystemPath(folder).c_str(), nullptr)) << folder;
    }
    const std::string path = folder + "\\a.ini";
    EXPECT_FALSE(Real->Exists(path));
    EXPECT_TRUE(Real->Replace(path, "1")) << Real->LastFailure();
    EXPECT_TRUE(Real->Replace(path, "2")) << Real->LastFailure();
    EXPECT_TRUE(Real->Exists(path));
    EXPECT_EQ(Real->Read(path), "2");
    EXPECT_TRUE(Real->CopyNew(path, folder + "\\b.ini")) << Real->LastFailure();
    EXPECT_EQ(Real->Read(folder + "\\b.ini"), "2");
    EXPECT_TRUE(Real->Delete(path));
    EXPECT_FALSE(Real->Exists(path));
    EXPECT_TRUE(Real->Delete(folder + "\\b.ini"));
    EXPECT_TRUE(Real->Replace(path, "3")) << Real->LastFailure();
    EXPECT_THAT(FileNamesIn(folder), testing::Optional(testing::ElementsAre("a.ini")));
    EXPECT_TRUE(Real->Delete(path));
    for (; folder != Folder.Path(); folder = ParentFolder(folder))
        EXPECT_TRUE(::RemoveDirectoryW(windows::SystemPath(folder).c_str())) << folder;
}

TEST(SystemPath, marks_long_paths_alone) {
    EXPECT_EQ(windows::SystemPath("C:\\jobs\\a.ini"), L"C:\\jobs\\a.ini");
    const std::string name(200, 'n');
    EXPECT_EQ(windows::SystemPath("C:/jobs/" + name), L"\\\\?\\C:\\jobs\\" + Wide(name));
    EXPECT_EQ(windows::SystemPath("\\\\server\\share\\" + name), L"\\\\?\\UNC\\server\\share\\" + Wide(name));
    EXPECT_EQ(windows::SystemPath("\\\\?\\C:\\" + name), L"\\\\?\\C:\\" + Wide(name));
}

TEST_F(WindowsFilesTest, takes_names_of_devices_for_no_files) {
    const auto in = [this](const std::string& name) { return Folder.Path() + "\\" + name; };
    for (const char* name : {"nul", "CON.ini", "aux .txt", "COM1", "lpt9.ini", "COM\xC2\xB9", "CONIN$"}) {
        EXPECT_TRUE(windows::NamesDevice(Wide(in(name)))) << name;
        EXPECT_FALSE(Real->Exists(in(name))) << name;
        EXPECT_EQ(Real->Read(in(name)), std::nullopt) << name;
        EXPECT_FALSE(Real->Replace(in(name), "x")) << name;
        EXPECT_FALSE(Real->CopyNew(Folder.Put("f", "x"), in(name))) << name;
    }
    for (const char* name : {"null", "CONSOLE", "COM", "COM0", "COM10", "xCON", "a.nul", "lpt"})
        EXPECT_FALSE(windows::NamesDevice(Wide(in(name)))) << name;
    EXPECT_EQ(Folder.Count(), 1u);
}

// The system says of a drive that was pulled no more than that there is no such path.
TEST_F(WindowsFilesTest, what_stood_on_a_drive_that_went_away_is_not_taken_for_missing) {
    const DWORD drives = ::GetLogicalDrives();
    char letter = 'B';
    while (letter < 'Z' && (drives >> (letter - 'A') & 1u) != 0)
        ++letter;
    for (const std::size_t length : {4u, 300u}) {
        const std::string path = std::string(1, letter) + ":\\" + std::string(length, 'j') + "\\a.ini";
        EXPECT_TRUE(Real->Exists(path));
        EXPECT_EQ(Real->Read(path), std::nullopt);
        EXPECT_FALSE(Real->Replace(path, "x"));
    }
    EXPECT_FALSE(Real->Exists(Folder.Path("missing\\a.ini")));
}

} // namespace
#endif
