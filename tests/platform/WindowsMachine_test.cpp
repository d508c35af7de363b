#ifdef _WIN32
#include "platform/DynamicLibrary.h"
#include "platform/Machine.h"
#include "platform/windows/CommandLine.h"
#include "platform/windows/ViewerWatch.h"
#include "platform/windows/Wide.h"
#include "services/modLocalTimeAndGMT.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <shellapi.h>

namespace {

using namespace gfc;
using namespace gfc::platform;
using gfc::test::TempFolder;

TEST(SingleInstance, keeps_its_name_as_long_as_it_lives) {
    const auto first = MakeSingleInstance();
    EXPECT_TRUE(first->Acquire("gfc-test"));
    EXPECT_TRUE(first->Acquire("gfc-test")) << "its holder keeps it";
    EXPECT_FALSE(MakeSingleInstance()->Acquire("gfc-test"));
    EXPECT_TRUE(MakeSingleInstance()->Acquire("gfc-test-other"));
}

TEST(SingleInstance, leaves_the_name_free) {
    ASSERT_TRUE(MakeSingleInstance()->Acquire("gfc-test"));
    EXPECT_TRUE(MakeSingleInstance()->Acquire("gfc-test"));
}

// Every user of the machine may look for the holder, in whatever session.
TEST(SingleInstance, holds_for_the_whole_machine) {
    const auto holder = MakeSingleInstance();
    ASSERT_TRUE(holder->Acquire("gfc-test"));
    const windows::Handle seen(::OpenMutexW(SYNCHRONIZE, FALSE, L"Global\\gfc-test"));
    EXPECT_TRUE(seen);
}

TEST(SingleInstance, takes_a_name_that_is_used_for_something_else_as_free) {
    const windows::Handle event(::CreateEventW(nullptr, TRUE, FALSE, L"Global\\gfc-test-event"));
    ASSERT_TRUE(event);
    const auto holder = MakeSingleInstance();
    EXPECT_TRUE(holder->Acquire("gfc-test-event")) << "the session's own mark serves";
    EXPECT_FALSE(MakeSingleInstance()->Acquire("gfc-test-event"));
}

std::vector<std::string> ReadBack(const std::wstring& line) {
    int count = 0;
    wchar_t** words = ::CommandLineToArgvW(line.c_str(), &count);
    std::vector<std::string> read;
    for (int i = 0; i < count; ++i)
        read.push_back(windows::Utf8(words[i]));
    ::LocalFree(words);
    return read;
}

TEST(CommandLine, is_read_back_as_it_is) {
    const std::vector<std::string> arguments = {"two words", "",      "C:\\jobs\\",           "a\"b",
                                                "\\\"",      "a\\\\", "Estaci\u00F3n %TEMP%", "& del |>"};
    auto expected = arguments;
    expected.insert(expected.begin(), "C:\\Program Files\\viewer.exe");
    EXPECT_EQ(ReadBack(windows::CommandLine("C:\\Program Files\\viewer.exe", arguments)), expected);
}

TEST(Launcher, starts_programs_and_reports_what_cannot_be_started) {
    const TempFolder folder;
    EXPECT_TRUE(MakeLauncher()->Start("cmd.exe", {"/c", ""}));
    EXPECT_FALSE(MakeLauncher()->Start("", {}));
    EXPECT_FALSE(MakeLauncher()->Start(folder.Path("missing.exe"), {}));
    EXPECT_FALSE(MakeLauncher()->Start(folder.Path(), {}));
}

TEST(Launcher, asks_for_a_maximised_window_alone) {
    EXPECT_EQ(windows::StartInfo(ViewerWindow::Normal).dwFlags, 0u);
    const STARTUPINFOW start = windows::StartInfo(ViewerWindow::Maximised);
    EXPECT_EQ(start.dwFlags, DWORD{STARTF_USESHOWWINDOW});
    EXPECT_EQ(start.wShowWindow, SW_SHOWMAXIMIZED);
}

// A process that ends by itself with that code, and has ended.
windows::Handle Ended(const std::string& code) {
    std::wstring line = windows::Wide("cmd.exe /c exit " + code);
    STARTUPINFOW start = windows::StartInfo(ViewerWindow::Normal);
    PROCESS_INFORMATION process{};
    EXPECT_TRUE(::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                                 &process));
    const windows::Handle thread(process.hThread);
    EXPECT_EQ(::WaitForSingleObject(process.hProcess, 30'000), DWORD{WAIT_OBJECT_0});
    return windows::Handle(process.hProcess);
}

TEST(ViewerWatch, tells_once_of_a_viewer_that_ended_badly_at_once) {
    windows::ViewerWatch watch;
    EXPECT_FALSE(watch.Failed()) << "none was started";
    watch.Begin(Ended("3"));
    EXPECT_TRUE(watch.Failed());
    EXPECT_FALSE(watch.Failed());
    watch.Begin(Ended("0"));
    EXPECT_FALSE(watch.Failed());
}

TEST(ViewerWatch, says_nothing_of_a_viewer_that_is_there) {
    windows::ViewerWatch watch;
    HANDLE copy = nullptr;
    ASSERT_TRUE(::DuplicateHandle(::GetCurrentProcess(), ::GetCurrentProcess(), ::GetCurrentProcess(), &copy,
                                  0, FALSE, DUPLICATE_SAME_ACCESS));
    watch.Begin(windows::Handle(copy));
    EXPECT_FALSE(watch.Failed());
    EXPECT_FALSE(watch.Failed());
}

TEST(Paths, names_the_folder_of_this_program_and_that_of_the_profiles) {
    EXPECT_TRUE(std::filesystem::exists(MakePaths()->ExecutableFolder() + "\\platform_test.exe"));
    EXPECT_TRUE(std::filesystem::is_directory(MakePaths()->ProfileFolder()));
}

TEST(DynamicLibrary, gives_its_symbols) {
    const auto load = LoadLibraryAt(MakePaths()->ExecutableFolder() + "\\" PLATFORM_TEST_LIBRARY);
    ASSERT_TRUE(load.Library) << load.Error;
    auto* twice = load.Library->FunctionOf<int(int)>("twice");
    ASSERT_NE(twice, nullptr);
    EXPECT_EQ(twice(21), 42);
    EXPECT_EQ(load.Library->Symbol("no_such_symbol"), nullptr);
}

TEST(DynamicLibrary, stays_loaded_when_all_that_knows_it_has_gone) {
    auto load = LoadLibraryAt(MakePaths()->ExecutableFolder() + "\\" PLATFORM_TEST_LIBRARY);
    ASSERT_TRUE(load.Library) << load.Error;
    auto* twice = load.Library->FunctionOf<int(int)>("twice");
    load.Library.reset();
    EXPECT_EQ(twice(21), 42);
}

TEST(DynamicLibrary, names_file_and_reason_of_a_failure) {
    const TempFolder folder;
    for (const std::string& path : {folder.Path("missing.dll"), folder.Put("broken.dll", "no library")}) {
        const auto load = LoadLibraryAt(path);
        EXPECT_FALSE(load.Library);
        EXPECT_NE(load.Error.find(path), std::string::npos) << load.Error;
    }
}

// The test's own library, said to be made for that machine in its header.
std::string LibraryFor(const TempFolder& folder, const std::string& machine) {
    std::ifstream file(MakePaths()->ExecutableFolder() + "\\" PLATFORM_TEST_LIBRARY, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(file), {}};
    std::uint32_t header = 0;
    std::memcpy(&header, bytes.data() + 60, sizeof header);
    bytes.replace(header + 4, machine.size(), machine);
    return folder.Put("made.dll", bytes);
}

TEST(DynamicLibrary, says_what_to_do_about_a_library_for_another_machine) {
#ifdef _WIN64
    const std::string own = "64-bit";
    const std::string machines[][2] = {{"\x4C\x01", "32-bit"}, {"\x64\xAA", "64-bit ARM"}, {"??", "foreign"}};
#else
    const std::string own = "32-bit";
    const std::string machines[][2] = {{"\x64\x86", "64-bit"}, {"\x64\xAA", "64-bit ARM"}, {"??", "foreign"}};
#endif
    for (const auto& [code, name] : machines) {
        const TempFolder folder;
        const std::string path = LibraryFor(folder, code);
        EXPECT_EQ(LoadLibraryAt(path).Error,
                  "\"" + path + "\" cannot be loaded: it is a " + name + " library, and this is the " + own +
                      " form of the program. Put the " + name + " form of the program beside it, or the " +
                      own + " library in its place.");
    }
}

TEST(DynamicLibrary, says_what_is_no_library) {
    const TempFolder folder;
    for (const std::string& bytes : {std::string("no library"), std::string(), "MZ" + std::string(8000, 'x'),
                                     "MZ" + std::string(58, '\0') + "\xFF\xFF\xFF\xFF"}) {
        const std::string path = folder.Put("broken.dll", bytes);
        EXPECT_EQ(
            LoadLibraryAt(path).Error,
            "\"" + path +
                "\" cannot be loaded: it is no library of Windows, or a damaged one. Install it again.");
    }
}

TEST(ErrorText, names_what_it_speaks_of) {
    EXPECT_EQ(windows::ErrorText(ERROR_BAD_EXE_FORMAT, "a.dll").find("%1"), std::string::npos);
    EXPECT_NE(windows::ErrorText(ERROR_BAD_EXE_FORMAT, "a.dll").find("a.dll"), std::string::npos);
    EXPECT_EQ(windows::ErrorText(ERROR_BAD_EXE_FORMAT).find("%1"), std::string::npos);
    EXPECT_EQ(windows::ErrorText(0xDEAD0001), "error 3735879681");
}

TEST(DynamicLibrary, is_never_searched_for) {
    for (const char* name : {"kernel32.dll", ".\\kernel32.dll", "\\kernel32.dll", "C:kernel32.dll", ""}) {
        const auto load = LoadLibraryAt(name);
        EXPECT_FALSE(load.Library) << name;
        EXPECT_EQ(load.Error, "\"" + std::string(name) + "\" is not a full path");
    }
}

// Whose rules stand in the registry, for each year that had others.
TEST(MachineTimeZone, is_that_of_the_system) {
    FILETIME now{}, local{};
    ::GetSystemTimeAsFileTime(&now);
    ASSERT_TRUE(::FileTimeToLocalFileTime(&now, &local));
    const auto count = [](const FILETIME& time) {
        return static_cast<std::int64_t>(std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime);
    };
    const auto zone = MakeTimeZone();
    EXPECT_EQ(zone->CurrentBias(), (count(now) - count(local)) / 600'000'000);

    DYNAMIC_TIME_ZONE_INFORMATION named{};
    TIME_ZONE_INFORMATION thisYear{};
    SYSTEMTIME today{};
    ::GetLocalTime(&today);
    ASSERT_NE(::GetDynamicTimeZoneInformation(&named), DWORD{TIME_ZONE_ID_INVALID});
    ASSERT_TRUE(::GetTimeZoneInformationForYear(today.wYear, &named, &thisYear));
    EXPECT_EQ(zone->GetTimeZoneInformation().Bias, thisYear.Bias);

    // The suite runs this in several zones, and says which offset is theirs in winter.
    if (const char* expected = std::getenv("GFC_ZONE_BIAS")) {
        EXPECT_EQ(zone->GetTimeZoneInformation().Bias, std::atoi(expected));
    }
}

TEST(RealMachine, gives_all_seams) {
    const TempFolder folder;
    RealMachine real;
    const Machine machine = real.Seams();
    EXPECT_TRUE(machine.Files.Replace(folder.Path("f"), "x"));
    EXPECT_GT(machine.Clock.LocalNow(), services::DateSerial(2020, 1, 1));
    EXPECT_LE(std::abs(machine.TimeZone.GetTimeZoneInformation().Bias), 14 * 60);
    EXPECT_LE(std::abs(machine.TimeZone.CurrentBias()), 15 * 60);
}

} // namespace
#endif
