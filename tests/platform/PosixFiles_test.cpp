#ifndef _WIN32
#include "platform/Files.h"
#include "platform/InPlace.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/TemporaryFile.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

using namespace gfc::platform;
using gfc::platform::posix::TemporaryFile;
using gfc::test::TempFolder;
namespace fs = std::filesystem;

unsigned ModeOf(const std::string& path) {
    struct stat state {};
    return ::stat(path.c_str(), &state) == 0 ? state.st_mode & 07777u : 0;
}

// Runs the work in a process of its own; its result is that process's exit code.
template <class Work>
int InChild(Work work) {
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(work());
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class PosixFilesTest : public testing::Test {
protected:
    TempFolder Folder;
    std::unique_ptr<Files> Real = MakeFiles();
};

// The system says of such a file that it has no bytes.
TEST_F(PosixFilesTest, reads_more_than_the_system_says_that_there_is) {
    const std::string path = "/proc/version";
    std::ifstream file(path, std::ios::binary);
    if (!file)
        GTEST_SKIP() << "this machine has no such file";
    const std::string bytes(std::istreambuf_iterator<char>(file), {});
    EXPECT_GT(bytes.size(), 16U);
    EXPECT_EQ(Real->Read(path), bytes);
}

TEST_F(PosixFilesTest, replace_keeps_the_mode_of_an_existing_file) {
    for (const unsigned mode : {0600u, 0640u, 0664u, 0755u}) {
        Folder.Put("f", "old");
        ASSERT_EQ(::chmod(Folder.Path("f").c_str(), mode), 0);
        EXPECT_TRUE(Real->Replace(Folder.Path("f"), "new"));
        EXPECT_EQ(ModeOf(Folder.Path("f")), mode);
    }
}

TEST_F(PosixFilesTest, replace_gives_a_new_file_what_the_mask_leaves_of_0644) {
    for (const unsigned mask : {0022u, 0077u, 0002u}) {
        const std::string name = "f" + std::to_string(mask);
        EXPECT_EQ(InChild([&] {
                      ::umask(mask);
                      return Real->Replace(Folder.Path(name), "x") ? 0 : 1;
                  }),
                  0);
        EXPECT_EQ(ModeOf(Folder.Path(name)), 0644u & ~mask);
    }
}

TEST_F(PosixFilesTest, replace_keeps_the_owner_where_it_may) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the superuser may give files away";
    Folder.Put("f", "old");
    ASSERT_EQ(::chown(Folder.Path("f").c_str(), 1234, 2345), 0);
    EXPECT_TRUE(Real->Replace(Folder.Path("f"), "new"));
    struct stat state {};
    ASSERT_EQ(::stat(Folder.Path("f").c_str(), &state), 0);
    EXPECT_EQ(state.st_uid, 1234u);
    EXPECT_EQ(state.st_gid, 2345u);
}

TEST_F(PosixFilesTest, replace_follows_links_to_the_file_itself) {
    fs::create_directory(Folder.Path("sub"));
    Folder.Put("sub/real", "old");
    fs::create_symlink("real", Folder.Path("sub/middle"));
    fs::create_symlink("sub/middle", Folder.Path("link"));
    EXPECT_TRUE(Real->Replace(Folder.Path("link"), "new"));
    EXPECT_EQ(Folder.Get("sub/real"), "new");
    EXPECT_TRUE(fs::is_symlink(Folder.Path("link")));
    EXPECT_TRUE(fs::is_symlink(Folder.Path("sub/middle")));
}

TEST_F(PosixFilesTest, replace_makes_the_file_that_a_link_names_in_vain) {
    fs::create_symlink("real", Folder.Path("link"));
    EXPECT_TRUE(Real->Replace(Folder.Path("link"), "new"));
    EXPECT_TRUE(fs::is_symlink(Folder.Path("link")));
    EXPECT_EQ(Folder.Get("real"), "new");
}

TEST_F(PosixFilesTest, replace_follows_a_link_that_names_its_file_in_full) {
    fs::create_directory(Folder.Path("sub"));
    Folder.Put("sub/real", "old");
    fs::create_symlink(Folder.Path("sub/real"), Folder.Path("link"));
    EXPECT_TRUE(Real->Replace(Folder.Path("link"), "new"));
    EXPECT_EQ(Folder.Get("sub/real"), "new");
    EXPECT_TRUE(fs::is_symlink(Folder.Path("link")));
}

TEST_F(PosixFilesTest, replace_takes_a_name_without_a_folder_in_the_working_one) {
    fs::create_symlink("real", Folder.Path("link"));
    EXPECT_EQ(InChild([&] {
                  const bool there = ::chdir(Folder.Path().c_str()) == 0;
                  return there && Real->Replace("link", "new") && Real->Replace("plain", "x") ? 0 : 1;
              }),
              0);
    EXPECT_EQ(Folder.Get("real"), "new");
    EXPECT_EQ(Folder.Get("plain"), "x");
    EXPECT_EQ(Folder.Count(), 3u);
}

// The folder alone would let it be replaced.
TEST_F(PosixFilesTest, replace_leaves_a_file_that_may_not_be_written) {
    Folder.Put("f", "old");
    ASSERT_EQ(::chmod(Folder.Path("f").c_str(), 0444), 0);
    ASSERT_EQ(::chmod(Folder.Path().c_str(), 0777), 0);
    EXPECT_EQ(InChild([&] {
                  const bool plain = ::geteuid() != 0 || ::seteuid(65534) == 0;
                  return plain && !Real->Replace(Folder.Path("f"), "new") ? 0 : 1;
              }),
              0);
    EXPECT_EQ(Folder.Get("f"), "old");
    EXPECT_EQ(Folder.Count(), 1u);
}

// Another user's folder, in which this one may write what is there and nothing else.
class ClosedFolder : public PosixFilesTest {
protected:
    ClosedFolder() {
        Folder.Put("f", "old bytes");
        ::chmod(Folder.Path("f").c_str(), 0666);
        ::chmod(Folder.Path().c_str(), 0755);
        ::chmod(Own.Path().c_str(), 0777);
        ::setenv("XDG_STATE_HOME", Own.Path().c_str(), 1);
    }
    ~ClosedFolder() override { ::unsetenv("XDG_STATE_HOME"); }
    // The work of a user who may make nothing there; its result is the child's exit code.
    template <class Work>
    int AsStranger(Work work) {
        return InChild([&] {
            const bool stranger =
                ::geteuid() != 0 ? ::chmod(Folder.Path().c_str(), 0555) == 0 : ::seteuid(65534) == 0;
            return stranger ? work() : 99;
        });
    }
    [[nodiscard]] std::string Record() const {
        return Own.Path("gfc-configurator/" + RecordNameOf(Folder.Path("f")));
    }

    TempFolder Own;
};

TEST_F(ClosedFolder, takes_a_save_in_place) {
    for (const std::string& bytes : {std::string("new"), std::string(50'000, 'n'), std::string()}) {
        EXPECT_EQ(AsStranger([&] { return Real->Replace(Folder.Path("f"), bytes) ? 0 : 1; }), 0);
        EXPECT_EQ(Folder.Get("f"), bytes);
        EXPECT_EQ(ModeOf(Folder.Path("f")), 0666u);
    }
    EXPECT_EQ(AsStranger([&] { return Real->Replace(Folder.Path("other"), "x") ? 0 : 1; }), 1);
    EXPECT_EQ(Folder.Count(), 1u);
    EXPECT_FALSE(fs::exists(Record()));
}

TEST_F(ClosedFolder, is_put_right_by_the_next_access_of_who_died) {
    for (const bool reads : {true, false}) {
        Folder.Put("f", "new bytxx");
        fs::create_directory(Own.Path("gfc-configurator"));
        Own.Put("gfc-configurator/" + RecordNameOf(Folder.Path("f")),
                UndoRecord{Folder.Path("f"), "old bytxx and more", "new bytes"}.Bytes());
        if (reads) {
            EXPECT_EQ(Real->Read(Folder.Path("f")), "old bytxx and more");
            EXPECT_EQ(Folder.Get("f"), "old bytxx and more");
        } else {
            EXPECT_TRUE(Real->Replace(Folder.Path("f"), "last"));
            EXPECT_EQ(Folder.Get("f"), "last");
        }
        EXPECT_FALSE(fs::exists(Record()));
    }
}

// A record that is held belongs to a writer who is still at it.
TEST_F(ClosedFolder, shows_the_old_bytes_while_a_writer_is_at_it) {
    Folder.Put("f", "new bytes");
    const std::string record =
        Folder.Put(".gfc-undo-f", UndoRecord{Folder.Path("f"), "old bytes", "new bytes"}.Bytes());
    const posix::Descriptor writer = posix::Open(record.c_str(), O_RDWR);
    ASSERT_EQ(::flock(writer.Get(), LOCK_EX | LOCK_NB), 0);
    EXPECT_EQ(InChild([&] { return Real->Read(Folder.Path("f")) == "old bytes" ? 0 : 1; }), 0);
    EXPECT_TRUE(fs::exists(record));
}

TEST_F(PosixFilesTest, exists_takes_what_no_path_can_lead_to_for_missing) {
    Folder.Put("f", "x");
    fs::create_symlink("ring", Folder.Path("ring"));
    EXPECT_FALSE(Real->Exists(Folder.Path("f/below")));
    EXPECT_FALSE(Real->Exists(Folder.Path("ring")));
    EXPECT_FALSE(Real->Exists(Folder.Path(std::string(300, 'n'))));
}

TEST_F(PosixFilesTest, replace_refuses_a_ring_of_links) {
    fs::create_symlink("b", Folder.Path("a"));
    fs::create_symlink("a", Folder.Path("b"));
    EXPECT_FALSE(Real->Replace(Folder.Path("a"), "x"));
    EXPECT_EQ(Folder.Count(), 2u);
}

TEST_F(PosixFilesTest, nothing_waits_at_a_pipe) {
    const std::string pipe = Folder.Path("pipe");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(Real->Read(pipe), std::nullopt);
    EXPECT_FALSE(Real->Replace(pipe, "x"));
    EXPECT_EQ(Real->LastFailure(), "Invalid argument") << "no plain file";
    EXPECT_FALSE(Real->CopyNew(pipe, Folder.Path("copy")));
    EXPECT_TRUE(fs::is_fifo(pipe));
    EXPECT_EQ(Folder.Count(), 1u);
}

// Makes that many temporary files at once, writes into them and dies.
int DieWriting(const std::string& target, int files) {
    return InChild([&] {
        std::vector<TemporaryFile> begun;
        for (int i = 0; i < files; ++i)
            if (auto file = TemporaryFile::Beside(target, 0600); file && posix::WriteAll(file->Get(), "half"))
                begun.push_back(std::move(*file));
        ::_exit(static_cast<int>(begun.size()));
        return -1;
    });
}

TEST_F(PosixFilesTest, replace_removes_what_dead_writers_left) {
    const std::string target = Folder.Put("plant.ini", "old");
    for (const int left : {1, 3}) {
        ASSERT_EQ(DieWriting(target, left), left);
        ASSERT_EQ(Folder.Count(), 1u + static_cast<std::size_t>(left));
        EXPECT_TRUE(Real->Replace(target, "new"));
        EXPECT_EQ(Folder.Get("plant.ini"), "new");
        EXPECT_EQ(Folder.Count(), 1u);
    }
}

TEST_F(PosixFilesTest, copy_removes_what_dead_writers_left) {
    Folder.Put("plant.ini", "bytes");
    ASSERT_EQ(DieWriting(Folder.Path("copy.ini"), 2), 2);
    EXPECT_TRUE(Real->CopyNew(Folder.Path("plant.ini"), Folder.Path("copy.ini")));
    EXPECT_EQ(Folder.Get("copy.ini"), "bytes");
    EXPECT_EQ(Folder.Count(), 2u);
}

TEST_F(PosixFilesTest, replace_removes_what_stands_behind_a_living_writers_file) {
    const std::string target = Folder.Put("plant.ini", "old");
    auto living = TemporaryFile::Beside(target, 0600);
    ASSERT_TRUE(living);
    ASSERT_EQ(DieWriting(target, 2), 2);
    EXPECT_TRUE(Real->Replace(target, "new"));
    EXPECT_EQ(Folder.Count(), 2u) << "the file and that of the living";
    EXPECT_TRUE(living->MoveOver(target));
}

TEST_F(PosixFilesTest, replace_leaves_a_living_writers_file_and_those_of_others) {
    const std::string target = Folder.Put("plant.ini", "old");
    Folder.Put(".gfc-save-plant.ini.bak-00", "another file's");
    Folder.Put(".gfc-save-plant.ini", "no leftover");
    auto living = TemporaryFile::Beside(target, 0600);
    ASSERT_TRUE(living);
    EXPECT_TRUE(Real->Replace(target, "new"));
    EXPECT_EQ(Folder.Count(), 4u);
    EXPECT_TRUE(living->MoveOver(target)) << "the other writer is not disturbed";
    EXPECT_EQ(Folder.Count(), 3u);
}

// A link of that name must not lead the bytes elsewhere.
TEST_F(PosixFilesTest, replace_steps_over_names_that_are_no_files) {
    const std::string target = Folder.Put("plant.ini", "old");
    Folder.Put("elsewhere", "kept");
    fs::create_symlink("elsewhere", Folder.Path(".gfc-save-plant.ini-00"));
    fs::create_directory(Folder.Path(".gfc-save-plant.ini-01"));
    EXPECT_TRUE(Real->Replace(target, "new"));
    EXPECT_EQ(Folder.Get("plant.ini"), "new");
    EXPECT_EQ(Folder.Get("elsewhere"), "kept");
    EXPECT_EQ(Folder.Count(), 4u);
}

// A limit on file size makes the disk seem full after some bytes.
TEST_F(PosixFilesTest, a_full_disk_leaves_the_old_file_and_nothing_beside_it) {
    const std::string target = Folder.Put("f", "old");
    Folder.Put("large", std::string(5000, 'x'));
    EXPECT_EQ(InChild([&] {
                  ::signal(SIGXFSZ, SIG_IGN);
                  const rlimit limit{1000, 1000};
                  ::setrlimit(RLIMIT_FSIZE, &limit);
                  const bool replaced = Real->Replace(target, std::string(5000, 'x'));
                  const bool told = Real->LastFailure() == "File too large";
                  const bool copied = Real->CopyNew(Folder.Path("large"), Folder.Path("copy"));
                  const bool anew =
                      Real->PutAnew(target, std::string(5000, 'x'), [&] { return Real->Delete(target); });
                  return !told || replaced || copied || anew ? 1 : 0;
              }),
              0);
    EXPECT_EQ(Folder.Get("f"), "old");
    EXPECT_EQ(Folder.Count(), 2u);
}

TEST(Descriptor, survives_being_given_itself) {
    posix::Descriptor file = posix::Open("/dev/null", O_RDONLY);
    ASSERT_TRUE(file);
    const int number = file.Get();
    posix::Descriptor& same = file;
    file = std::move(same);
    EXPECT_EQ(file.Get(), number);
    EXPECT_GE(::fcntl(number, F_GETFD), 0) << "it is still open";
}

TEST(WriteAll, reports_a_device_that_takes_nothing) {
    const auto full = posix::Open("/dev/full", O_WRONLY);
    if (!full)
        GTEST_SKIP() << "this machine has no such device";
    EXPECT_FALSE(posix::WriteAll(full.Get(), "x"));
}

// A pipe takes large texts in pieces only.
TEST(WriteAll, writes_all_pieces) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    posix::Descriptor reader(ends[0]);
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(posix::WriteAll(ends[1], std::string(1'000'000, 'x')) ? 0 : 1);
    EXPECT_TRUE(posix::Descriptor(ends[1]).Close());
    std::array<char, 4096> piece{};
    std::size_t total = 0;
    for (ssize_t got = 1; got > 0; total += static_cast<std::size_t>(got > 0 ? got : 0))
        got = ::read(reader.Get(), piece.data(), piece.size());
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(total, 1'000'000u);
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

// Replaces the file without end and tells of each replace.
[[noreturn]] void ReplaceForever(Files& files, const std::string& target, int report) {
    for (char fill = 'a';; fill = fill == 'a' ? 'b' : 'a') {
        if (!files.Replace(target, std::string(200'000, fill)) || ::write(report, "x", 1) != 1)
            ::_exit(1);
    }
}

TEST_F(PosixFilesTest, a_writer_killed_at_any_moment_leaves_a_whole_file) {
    const std::string target = Folder.Put("f", std::string(200'000, 'a'));
    for (int round = 1; round <= 10; ++round) {
        std::array<int, 2> ends{};
        ASSERT_EQ(::pipe(ends.data()), 0);
        posix::Descriptor reader(ends[0]);
        const pid_t child = ::fork();
        if (child == 0)
            ReplaceForever(*Real, target, ends[1]);
        ASSERT_TRUE(posix::Descriptor(ends[1]).Close());
        char told = 0;
        for (int i = 0; i < round; ++i)
            ASSERT_EQ(::read(reader.Get(), &told, 1), 1);
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        const std::string bytes = Folder.Get("f");
        ASSERT_EQ(bytes.size(), 200'000u);
        ASSERT_EQ(bytes.find_first_not_of(bytes.front()), std::string::npos);
    }
    EXPECT_TRUE(Real->Replace(target, "end"));
    EXPECT_EQ(Folder.Count(), 1u);
}

TEST_F(PosixFilesTest, two_writers_do_not_disturb_each_other) {
    const std::string target = Folder.Put("f", "old");
    std::array<pid_t, 2> writers{};
    for (std::size_t i = 0; i < writers.size(); ++i) {
        writers[i] = ::fork();
        if (writers[i] != 0)
            continue;
        for (int n = 0; n < 50; ++n)
            if (!Real->Replace(target, std::string(5000, i == 0 ? 'a' : 'b')))
                ::_exit(1);
        ::_exit(0);
    }
    for (const pid_t writer : writers) {
        int status = 0;
        ::waitpid(writer, &status, 0);
        EXPECT_EQ(WEXITSTATUS(status), 0);
    }
    const std::string bytes = Folder.Get("f");
    EXPECT_EQ(bytes, std::string(5000, bytes.front()));
    EXPECT_EQ(Folder.Count(), 1u);
}

TEST_F(PosixFilesTest, copy_refuses_a_link_that_names_nothing) {
    Folder.Put("a", "x");
    fs::create_symlink("nowhere", Folder.Path("b"));
    EXPECT_FALSE(Real->CopyNew(Folder.Path("a"), Folder.Path("b")));
    EXPECT_FALSE(fs::exists(Folder.Path("nowhere")));
}

TEST_F(PosixFilesTest, copy_gives_others_no_right_to_write) {
    Folder.Put("a", "x");
    ASSERT_EQ(::chmod(Folder.Path("a").c_str(), 0666), 0);
    EXPECT_EQ(InChild([&] {
                  ::umask(0);
                  return Real->CopyNew(Folder.Path("a"), Folder.Path("b")) ? 0 : 1;
              }),
              0);
    EXPECT_EQ(ModeOf(Folder.Path("b")), 0664u);
}

// Whoever may not search the folder cannot say what is in it.
TEST_F(PosixFilesTest, exists_holds_what_it_cannot_see_for_possible) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs a user whom to become";
    fs::create_directory(Folder.Path("closed"));
    Folder.Put("closed/f", "x");
    ASSERT_EQ(::chmod(Folder.Path("closed").c_str(), 0), 0);
    EXPECT_EQ(InChild([&] {
                  const bool reached = ::chmod(Folder.Path().c_str(), 0755) == 0 && ::seteuid(65534) == 0;
                  const bool inDoubt = Real->Exists(Folder.Path("closed/f"));
                  const bool replaced = Real->Replace(Folder.Path("closed/f"), "y");
                  return reached && inDoubt && !replaced ? 0 : 1;
              }),
              0);
    ASSERT_EQ(::chmod(Folder.Path("closed").c_str(), 0755), 0);
    EXPECT_EQ(Folder.Get("closed/f"), "x");
}

// A second writer of the same process comes between its making and its move.
TEST_F(PosixFilesTest, leftovers_of_the_living_stay_although_they_are_many) {
    const std::string target = Folder.Put("f", "old");
    auto first = TemporaryFile::Beside(target, 0600);
    auto second = TemporaryFile::Beside(target, 0600);
    ASSERT_TRUE(first && second);
    EXPECT_TRUE(Real->Replace(target, "new"));
    EXPECT_EQ(Folder.Count(), 3u);
    EXPECT_TRUE(first->MoveOver(target));
    EXPECT_TRUE(second->MoveOver(target));
    EXPECT_EQ(Folder.Count(), 1u);
}

TEST_F(PosixFilesTest, a_writer_gives_up_where_all_names_are_taken) {
    const std::string target = Folder.Put("f", "old");
    std::vector<TemporaryFile> taken;
    while (auto file = TemporaryFile::Beside(target, 0600)) {
        taken.push_back(std::move(*file));
        ASSERT_LE(taken.size(), 256u);
    }
    EXPECT_EQ(taken.size(), 256u);
    EXPECT_FALSE(Real->Replace(target, "new"));
    EXPECT_EQ(Folder.Get("f"), "old");
    taken.pop_back();
    EXPECT_TRUE(Real->Replace(target, "new"));
    EXPECT_EQ(Folder.Count(), 256u) << "the file and those of the living";
}

TEST_F(PosixFilesTest, copy_to_new_refuses_a_target_that_came_meanwhile) {
    auto file = TemporaryFile::Beside(Folder.Path("b"), 0600);
    ASSERT_TRUE(file);
    Folder.Put("b", "first");
    EXPECT_FALSE(file->MoveToNew(Folder.Path("b")));
    file.reset();
    EXPECT_EQ(Folder.Get("b"), "first");
    EXPECT_EQ(Folder.Count(), 1u);
}

TEST_F(PosixFilesTest, delete_takes_the_link_and_leaves_the_file) {
    Folder.Put("real", "x");
    fs::create_symlink("real", Folder.Path("link"));
    EXPECT_TRUE(Real->Delete(Folder.Path("link")));
    EXPECT_EQ(Folder.Get("real"), "x");
}

} // namespace
#endif
