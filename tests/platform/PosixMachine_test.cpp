#ifndef _WIN32
#include "platform/Console.h"
#include "platform/DynamicLibrary.h"
#include "platform/Machine.h"
#include "services/modLocalTimeAndGMT.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <pwd.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

using namespace gfc;
using namespace gfc::platform;
using gfc::test::TempFolder;

// An environment variable for the length of a test; null takes it away.
class Environment {
public:
    Environment(const char* name, const char* value) : name_(name) {
        if (const char* old = std::getenv(name))
            old_ = old;
        value ? ::setenv(name, value, 1) : ::unsetenv(name);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    ~Environment() { old_ ? ::setenv(name_, old_->c_str(), 1) : ::unsetenv(name_); }

private:
    const char* name_;
    std::optional<std::string> old_;
};

template <class Work>
int InChild(Work work) {
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(work());
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class SingleInstanceTest : public testing::Test {
protected:
    ~SingleInstanceTest() override { std::filesystem::remove(Common); }

    TempFolder Folder;
    Environment Runtime{"XDG_RUNTIME_DIR", Folder.Path().c_str()};
    // The tests of others go on at the same time in the same common folder.
    const std::string Name = "gfc-test-" + std::to_string(::getpid());
    const std::string Common = "/tmp/" + Name + "-" + std::to_string(::geteuid()) + ".lock";
};

TEST_F(SingleInstanceTest, finds_the_other_start_that_has_no_folder_of_its_own) {
    for (const bool firstHasOne : {true, false}) {
        const auto acquire = [this](bool hasOne) {
            const Environment runtime("XDG_RUNTIME_DIR", hasOne ? Folder.Path().c_str() : nullptr);
            auto instance = MakeSingleInstance();
            return instance->Acquire(Name) ? std::move(instance) : nullptr;
        };
        const auto first = acquire(firstHasOne);
        EXPECT_NE(first, nullptr);
        EXPECT_EQ(acquire(!firstHasOne), nullptr) << "the first has one: " << firstHasOne;
    }
}

TEST_F(SingleInstanceTest, a_second_process_does_not_get_the_name) {
    const auto first = MakeSingleInstance();
    EXPECT_TRUE(first->Acquire(Name));
    EXPECT_TRUE(first->Acquire(Name)) << "its holder keeps it";
    EXPECT_EQ(InChild([this] { return MakeSingleInstance()->Acquire(Name) ? 0 : 1; }), 1);
    EXPECT_EQ(InChild([this] { return MakeSingleInstance()->Acquire(Name + "-other") ? 0 : 1; }), 0);
}

TEST_F(SingleInstanceTest, the_name_is_free_again_after_its_holder) {
    ASSERT_TRUE(MakeSingleInstance()->Acquire(Name));
    EXPECT_TRUE(MakeSingleInstance()->Acquire(Name));
}

TEST_F(SingleInstanceTest, a_killed_holder_leaves_the_name_free) {
    EXPECT_EQ(InChild([this] {
                  const auto instance = MakeSingleInstance();
                  if (instance->Acquire(Name))
                      ::raise(SIGKILL);
                  return 0;
              }),
              -1);
    EXPECT_EQ(Folder.Count(), 1u) << "the file is still there";
    EXPECT_TRUE(MakeSingleInstance()->Acquire(Name));
}

TEST_F(SingleInstanceTest, a_stale_file_fools_nobody) {
    Folder.Put(Name + ".lock", "12345");
    EXPECT_TRUE(MakeSingleInstance()->Acquire(Name));
}

TEST_F(SingleInstanceTest, a_started_program_does_not_hold_the_name_on) {
    TempFolder pipes;
    ASSERT_EQ(::mkfifo(pipes.Path("hold").c_str(), 0600), 0);
    {
        const auto instance = MakeSingleInstance();
        ASSERT_TRUE(instance->Acquire(Name));
        ASSERT_TRUE(MakeLauncher()->Start("/bin/sh", {"-c", "read x < \"$0\"", pipes.Path("hold")}));
    }
    EXPECT_TRUE(MakeSingleInstance()->Acquire(Name));
    const int release = ::open(pipes.Path("hold").c_str(), O_WRONLY);
    EXPECT_GE(release, 0);
    ::close(release);
}

TEST_F(SingleInstanceTest, lets_the_program_run_where_no_lock_can_be_had) {
    std::filesystem::create_directory(Folder.Path(Name + ".lock"));
    std::filesystem::create_directory(Common);
    EXPECT_TRUE(MakeSingleInstance()->Acquire(Name));
}

// Another one may have put it there; and the program must not wait at it.
TEST_F(SingleInstanceTest, locks_nothing_that_is_no_plain_file) {
    ASSERT_EQ(::mkfifo(Folder.Path(Name + ".lock").c_str(), 0600), 0);
    const auto first = MakeSingleInstance();
    EXPECT_TRUE(first->Acquire(Name));
    EXPECT_FALSE(MakeSingleInstance()->Acquire(Name)) << "the common folder tells";
}

TEST_F(SingleInstanceTest, locks_no_file_of_another_user) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the superuser may give files away";
    ASSERT_EQ(::chown(Folder.Put(Name + ".lock", "").c_str(), 65534, 65534), 0);
    const auto first = MakeSingleInstance();
    EXPECT_TRUE(first->Acquire(Name));
    EXPECT_FALSE(MakeSingleInstance()->Acquire(Name)) << "the common folder tells";
}

TEST(SingleInstanceFolder, must_be_the_users_own_full_path) {
    const TempFolder folder;
    folder.Put("plain", "");
    const std::string name = "gfc-test-" + std::to_string(::getpid());
    const std::string common = "/tmp/" + name + "-" + std::to_string(::geteuid()) + ".lock";
    for (const std::string& bad : {std::string("relative"), folder.Path("plain"), folder.Path("missing")}) {
        const Environment runtime("XDG_RUNTIME_DIR", bad.c_str());
        EXPECT_TRUE(MakeSingleInstance()->Acquire(name));
        EXPECT_TRUE(std::filesystem::remove(common)) << bad;
    }
    const Environment none("XDG_RUNTIME_DIR", nullptr);
    EXPECT_TRUE(MakeSingleInstance()->Acquire(name));
    EXPECT_TRUE(std::filesystem::remove(common));
}

TEST(SingleInstanceFolder, is_not_that_of_another_user) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the superuser may give folders away";
    const TempFolder folder;
    ASSERT_EQ(::chown(folder.Path().c_str(), 65534, 65534), 0);
    const Environment runtime("XDG_RUNTIME_DIR", folder.Path().c_str());
    const std::string name = "gfc-test-other-" + std::to_string(::getpid());
    EXPECT_TRUE(MakeSingleInstance()->Acquire(name));
    EXPECT_EQ(folder.Count(), 0u);
    EXPECT_TRUE(std::filesystem::remove("/tmp/" + name + "-0.lock"));
}

class LauncherTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(::mkfifo(Folder.Path("said").c_str(), 0600), 0); }

    std::string Script(const std::string& name, const std::string& body) {
        const std::string path = Folder.Put(name, "#!/bin/sh\n" + body + "\n");
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
        return path;
    }

    // Waits for what the started program writes into the pipe.
    std::string Said() { return Folder.Get("said"); }

    TempFolder Folder;
    std::unique_ptr<Launcher> Real = MakeLauncher();
};

TEST_F(LauncherTest, hands_arguments_over_as_they_are) {
    const auto script =
        Script("say", "for a in \"$@\"; do printf '%s|' \"$a\"; done > \"$(dirname \"$0\")/said\"");
    EXPECT_TRUE(Real->Start(script, {"two words", "$HOME;`x`", "", "'\"*"}));
    EXPECT_EQ(Said(), "two words|$HOME;`x`||'\"*|");
}

TEST_F(LauncherTest, does_not_wait_and_leaves_no_child_behind) {
    const auto script = Script("wait", "read x < \"$(dirname \"$0\")/said\"");
    EXPECT_TRUE(Real->Start(script, {}));
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "there is no child to wait for";
    EXPECT_EQ(errno, ECHILD);
    Folder.Put("said", "go\n");
}

TEST_F(LauncherTest, reports_what_cannot_be_started) {
    EXPECT_FALSE(Real->Start(Folder.Path("missing"), {}));
    EXPECT_FALSE(Real->Start(Folder.Put("plain", "text"), {}));
    EXPECT_FALSE(Real->Start(Folder.Path(), {}));
    EXPECT_FALSE(Real->Start("", {}));
    EXPECT_FALSE(Real->Start("no-such-program-on-any-path", {}));
    const auto broken = Folder.Put("broken", "#!/no/such/interpreter\n");
    std::filesystem::permissions(broken, std::filesystem::perms::owner_all);
    EXPECT_FALSE(Real->Start(broken, {}));
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
}

TEST_F(LauncherTest, works_while_ended_children_are_ignored) {
    const auto before = ::signal(SIGCHLD, SIG_IGN);
    EXPECT_TRUE(Real->Start("/bin/true", {}));
    EXPECT_FALSE(Real->Start(Folder.Path("missing"), {}));
    ::signal(SIGCHLD, before);
}

TEST_F(LauncherTest, starts_nothing_where_no_more_can_be_opened) {
    EXPECT_EQ(InChild([&] {
                  const rlimit none{0, 0};
                  return ::setrlimit(RLIMIT_NOFILE, &none) == 0 && !Real->Start("/bin/true", {}) ? 0 : 1;
              }),
              0);
}

TEST_F(LauncherTest, finds_a_bare_name_on_the_search_path_only) {
    Script("say", "echo found > \"$(dirname \"$0\")/said\"");
    const std::string path = "relative::/nowhere:" + Folder.Path() + ":/usr/bin:/bin";
    const Environment search("PATH", path.c_str());
    EXPECT_TRUE(Real->Start("say", {}));
    EXPECT_EQ(Said(), "found\n");
    const Environment none("PATH", nullptr);
    EXPECT_FALSE(Real->Start("say", {}));
}

TEST_F(LauncherTest, opens_a_text_file_in_the_machines_viewer) {
    Script("xdg-open", "printf '%s' \"$1\" > \"$(dirname \"$0\")/said\"");
    const std::string path = Folder.Path() + ":/usr/bin:/bin";
    const Environment search("PATH", path.c_str());
    EXPECT_TRUE(Real->OpenTextFile("/srv/jobs/North Gate_Errors.log", ViewerWindow::Maximised));
    EXPECT_EQ(Said(), "/srv/jobs/North Gate_Errors.log");
}

// The script goes on once it is told to; then its end is waited for.
TEST_F(LauncherTest, tells_of_a_viewer_that_ends_badly) {
    Script("xdg-open", "read x < \"$(dirname \"$0\")/said\"; exit \"$x\"");
    const std::string path = Folder.Path() + ":/usr/bin:/bin";
    const Environment search("PATH", path.c_str());
    for (const char* code : {"3", "0"}) {
        ASSERT_TRUE(Real->OpenTextFile("/srv/jobs/x.log", ViewerWindow::Normal));
        EXPECT_FALSE(Real->ViewerFailed()) << "it is still there";
        EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "there is no child to wait for";
        Folder.Put("said", std::string(code) + "\n");
        bool failed = false;
        for (int look = 0; look < 500 && !failed && (*code != '0' || look < 20); ++look) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
            failed = Real->ViewerFailed();
        }
        EXPECT_EQ(failed, *code == '3');
        EXPECT_FALSE(Real->ViewerFailed()) << "once is enough";
    }
}

// Nor its watch, which lives as long as the viewer does.
TEST_F(SingleInstanceTest, a_viewer_does_not_hold_the_name_on) {
    TempFolder pipes;
    ASSERT_EQ(::mkfifo(pipes.Path("hold").c_str(), 0600), 0);
    pipes.Put("xdg-open", "#!/bin/sh\nread x < \"$1\"\n");
    std::filesystem::permissions(pipes.Path("xdg-open"), std::filesystem::perms::owner_all);
    const std::string path = pipes.Path() + ":/usr/bin:/bin";
    const Environment search("PATH", path.c_str());
    {
        const auto instance = MakeSingleInstance();
        ASSERT_TRUE(instance->Acquire(Name));
        ASSERT_TRUE(MakeLauncher()->OpenTextFile(pipes.Path("hold"), ViewerWindow::Normal));
    }
    bool free = false; // the watch closes what it has inherited a moment after the viewer has started
    for (int look = 0; look < 500 && !free; ++look) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
        free = MakeSingleInstance()->Acquire(Name);
    }
    EXPECT_TRUE(free);
    ::close(::open(pipes.Path("hold").c_str(), O_WRONLY));
}

TEST_F(LauncherTest, says_so_where_there_is_no_viewer) {
    const Environment search("PATH", Folder.Path().c_str());
    EXPECT_FALSE(Real->OpenTextFile("/srv/jobs/x.log", ViewerWindow::Normal));
}

TEST(Paths, names_the_folder_of_this_program) {
    const std::string folder = MakePaths()->ExecutableFolder();
    EXPECT_TRUE(std::filesystem::exists(folder + "/platform_test"));
}

TEST(Paths, follows_the_desktops_rule_for_profiles) {
    const Environment home("HOME", "/home/anna");
    {
        const Environment config("XDG_CONFIG_HOME", "/etc/anna");
        EXPECT_EQ(MakePaths()->ProfileFolder(), "/etc/anna");
    }
    {
        const Environment config("XDG_CONFIG_HOME", "relative");
        EXPECT_EQ(MakePaths()->ProfileFolder(), "/home/anna/.config");
    }
    const Environment config("XDG_CONFIG_HOME", nullptr);
    EXPECT_EQ(MakePaths()->ProfileFolder(), "/home/anna/.config");
}

TEST(Paths, asks_the_system_for_a_home_that_no_variable_names) {
    const passwd* user = ::getpwuid(::geteuid());
    if (user == nullptr || user->pw_dir == nullptr)
        GTEST_SKIP() << "this user has no entry";
    const std::string expected = std::string(user->pw_dir) + "/.config";
    const Environment config("XDG_CONFIG_HOME", nullptr);
    for (const char* value : {static_cast<const char*>(nullptr), "", "relative"}) {
        const Environment home("HOME", value);
        EXPECT_EQ(MakePaths()->ProfileFolder(), expected);
    }
}

TEST(Paths, knows_no_profiles_of_a_user_without_a_home) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs a user whom to become";
    constexpr uid_t nobodyAtAll = 3'000'000'000;
    ASSERT_EQ(::getpwuid(nobodyAtAll), nullptr);
    EXPECT_EQ(InChild([] {
                  ::unsetenv("HOME");
                  ::unsetenv("XDG_CONFIG_HOME");
                  return ::seteuid(nobodyAtAll) == 0 && MakePaths()->ProfileFolder().empty() ? 0 : 1;
              }),
              0);
}

TEST(DynamicLibrary, gives_its_symbols) {
    const std::string own = MakePaths()->ExecutableFolder() + "/" PLATFORM_TEST_LIBRARY;
    const auto load = LoadLibraryAt(own);
    ASSERT_TRUE(load.Library) << load.Error;
    EXPECT_EQ(load.Error, "");
    auto* twice = load.Library->FunctionOf<int(int)>("twice");
    ASSERT_NE(twice, nullptr);
    EXPECT_EQ(twice(21), 42);
    EXPECT_EQ(load.Library->Symbol("no_such_symbol"), nullptr);
}

TEST(DynamicLibrary, stays_loaded_when_all_that_knows_it_has_gone) {
    auto load = LoadLibraryAt(MakePaths()->ExecutableFolder() + "/" PLATFORM_TEST_LIBRARY);
    ASSERT_TRUE(load.Library) << load.Error;
    auto* twice = load.Library->FunctionOf<int(int)>("twice");
    load.Library.reset();
    EXPECT_EQ(twice(21), 42);
}

TEST(DynamicLibrary, names_file_and_reason_of_a_failure) {
    const TempFolder folder;
    const auto broken = folder.Put("broken.so", "no library");
    for (const std::string& path : {folder.Path("missing.so"), broken}) {
        const auto load = LoadLibraryAt(path);
        EXPECT_FALSE(load.Library);
        EXPECT_NE(load.Error.find(path), std::string::npos);
        EXPECT_EQ(load.Error.find(path), load.Error.rfind(path)) << "named once: " << load.Error;
        EXPECT_GT(load.Error.size(), path.size() + 30);
    }
}

TEST(DynamicLibrary, is_never_searched_for) {
    for (const char* name : {"libc.so.6", "./libm.so.6", ""}) {
        const auto load = LoadLibraryAt(name);
        EXPECT_FALSE(load.Library);
        EXPECT_EQ(load.Error, "\"" + std::string(name) + "\" is not a full path");
    }
}

// The zone of a process of its own; the rule texts need no zone files on the machine.
int BiasIn(const char* zone, bool current) {
    return InChild([zone, current] {
               ::setenv("TZ", zone, 1);
               const auto real = MakeTimeZone();
               const int bias = current ? real->CurrentBias() : real->GetTimeZoneInformation().Bias;
               return 100 + bias / 15;
           }) * 15 -
           1500;
}

TEST(RealTimeZone, gives_minutes_to_add_to_local_time) {
    EXPECT_EQ(BiasIn("UTC0", false), 0);
    EXPECT_EQ(BiasIn("EST5", false), 300);
    EXPECT_EQ(BiasIn("IST-5:30", false), -330);
    EXPECT_EQ(BiasIn("EST5", true), 300);
    EXPECT_EQ(BiasIn("IST-5:30", true), -330);
}

TEST(RealTimeZone, leaves_the_daylight_part_out_of_the_bias_all_year) {
    EXPECT_EQ(BiasIn("EST5EDT,M3.2.0,M11.1.0", false), 300);
    EXPECT_EQ(BiasIn("AEST-10AEDT,M10.1.0,M4.1.0/3", false), -600) << "its summer is in January";
    EXPECT_EQ(BiasIn("IST-1GMT0,M10.5.0,M3.5.0/1", false), 0) << "winter is marked as its daylight time";
}

TEST(RealTimeZone, has_one_of_the_two_biases_in_force) {
    const int bias = BiasIn("EST5EDT,M3.2.0,M11.1.0", true);
    EXPECT_TRUE(bias == 300 || bias == 240) << bias;
    EXPECT_EQ(BiasIn("EST5EDT,0/0,J365/25", true), 240) << "daylight time all year";
}

TEST(RealClock, tells_local_time_in_whole_seconds) {
    const auto difference = InChild([] {
        ::setenv("TZ", "XYZ-3", 1);
        const std::time_t before = std::time(nullptr);
        const double seconds = (MakeClock()->LocalNow() - services::DateSerial(1970, 1, 1)) * 86400;
        const double offset = seconds - static_cast<double>(before) - 3 * 3600;
        const bool whole = std::abs(seconds - std::round(seconds)) < 1e-3;
        return whole && offset > -0.5 && offset < 30 ? 0 : 1;
    });
    EXPECT_EQ(difference, 0);
}

TEST(RealMachine, gives_all_seams) {
    const TempFolder folder;
    RealMachine real;
    const Machine machine = real.Seams();
    EXPECT_TRUE(machine.Files.Replace(folder.Path("f"), "x"));
    EXPECT_FALSE(machine.Paths.ExecutableFolder().empty());
    EXPECT_FALSE(machine.Launcher.Start("", {}));
    EXPECT_GT(machine.Clock.LocalNow(), services::DateSerial(2020, 1, 1));
    EXPECT_LE(std::abs(machine.TimeZone.GetTimeZoneInformation().Bias), 14 * 60);
    const Environment runtime("XDG_RUNTIME_DIR", folder.Path().c_str());
    EXPECT_TRUE(machine.SingleInstance.Acquire("gfc"));
}

// In a process of its own, since a signal is for all of one. Whoever runs the tests behind a shell's back has
// them ignore the interrupt.
TEST(Interrupts, are_noted_once_and_end_the_program_the_second_time) {
    const auto once = [] {
        ::signal(SIGINT, SIG_DFL);
        NoteInterrupts();
        const bool before = WasInterrupted();
        ::raise(SIGINT);
        std::_Exit(!before && WasInterrupted() ? 7 : 1);
    };
    EXPECT_EXIT(once(), ::testing::ExitedWithCode(7), "");
    const auto twice = [] {
        ::signal(SIGINT, SIG_DFL);
        NoteInterrupts();
        ::raise(SIGINT);
        ::raise(SIGINT);
        std::_Exit(1);
    };
    EXPECT_EXIT(twice(), ::testing::KilledBySignal(SIGINT), "");
}

TEST(Interrupts, that_the_program_was_told_to_ignore_stay_ignored) {
    const auto ignored = [] {
        ::signal(SIGHUP, SIG_IGN);
        NoteInterrupts();
        ::raise(SIGHUP);
        std::_Exit(WasInterrupted() ? 1 : 7);
    };
    EXPECT_EXIT(ignored(), ::testing::ExitedWithCode(7), "");
}

} // namespace
#endif
