#ifndef _WIN32
#include "RecordRoom.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <filesystem>
#include <new>
#include <random>
#include <sys/mman.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace gfc::record {
namespace {

using config::FileState;

namespace command = config::command;

// What the processes tell each other; it outlives every one of them.
struct Board {
    std::atomic<bool> Enough = false;
    std::atomic<int> Entered[2] = {}; // saves of each station that were entered for certain
};

class SharedBoard {
public:
    SharedBoard()
        : memory_(::mmap(nullptr, sizeof(Board), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)),
          board_(new (memory_) Board) {}
    ~SharedBoard() { ::munmap(memory_, sizeof(Board)); }
    SharedBoard(const SharedBoard&) = delete;
    SharedBoard& operator=(const SharedBoard&) = delete;
    Board* operator->() const { return board_; }

private:
    void* memory_;
    Board* board_;
};

constexpr int NotEntered = 7;

class TwoProcesses : public testing::Test, protected test::RecordRoom {
protected:
    [[nodiscard]] std::string FileOf(int station) const {
        return Folder.Path(station == 0 ? "KDOrmAGA_plant_North.ini" : "KDOrmAGA_plant_South.ini");
    }
    [[nodiscard]] FileState StateOf(int station) const {
        return std::filesystem::exists(FileOf(station)) ? FileState(test::BytesAt(FileOf(station)))
                                                        : std::nullopt;
    }
    static std::string Name(int station) { return station == 0 ? "North" : "South"; }

    // A program from its start on: looks at the file, then saves again and again, each save entered before
    // the next. Its exit code says whether the record was ever in its way.
    [[noreturn]] void Work(int station) {
        ProjectRecorder own(Clock, Zone, Name(station));
        const FileState found = StateOf(station);
        own.Record({{Record, Name(station), {}, {}, found, found}});
        int number = found ? std::stoi(found->substr(found->find("k=") + 2)) : 0;
        while (!board_->Enough && own.Trouble().empty()) {
            const FileState before = StateOf(station);
            const std::string after = "[S]\r\nk=" + std::to_string(++number) + "\r\n";
            // As the program does it: a new file takes the place of the old one at once.
            test::PutBytes(FileOf(station) + "-new", after);
            std::filesystem::rename(FileOf(station) + "-new", FileOf(station));
            own.Record({{Record, Name(station), std::string(command::Configure), "ana", before, after}});
            if (own.Trouble().empty())
                ++board_->Entered[station];
        }
        ::_exit(own.Trouble().empty() ? 0 : NotEntered);
    }

    pid_t Start(int station) {
        const pid_t child = ::fork();
        if (child == 0)
            Work(station);
        return child;
    }
    static int EndOf(pid_t child) {
        int status = 0;
        ::waitpid(child, &status, 0);
        return status;
    }

    [[nodiscard]] int CountOf(int station, std::string_view command) {
        const auto entries = Recorder.Entries(Record, Name(station));
        return static_cast<int>(
            std::ranges::count(entries, command, [](const auto& entry) { return entry.Command; }));
    }

    SharedBoard board_;
};

// The one never notices that the other is killed again and again in the midst of its entries, and of the dead
// one's saves at most the last lacks its own entry: the next start makes it up.
TEST_F(TwoProcesses, LeaveOneChainThoughOneIsKilledAgainAndAgain) {
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    constexpr int deaths = 6;
    const pid_t steady = Start(0);
    for (int death = 0; death < deaths; ++death) {
        const int before = board_->Entered[1];
        const pid_t mortal = Start(1);
        // Some entries and then some moments on, so that each has something to lose.
        const int enough = before + 1 + static_cast<int>(random() % 4);
        while (board_->Entered[1] < enough && ::waitpid(mortal, nullptr, WNOHANG) == 0)
            std::this_thread::yield();
        for (auto moments = random() % 3000; moments > 0; --moments)
            std::this_thread::yield();
        ::kill(mortal, SIGKILL);
        EXPECT_TRUE(WIFSIGNALED(EndOf(mortal))) << "the record was in its way";
    }
    board_->Enough = true;
    EXPECT_EQ(EndOf(steady), 0) << "the record was in the way of the one that lived";
    EXPECT_EQ(EndOf(Start(1)), 0) << "and of the last start";

    const auto check = Recorder.Verify(Record);
    EXPECT_FALSE(check.Damage) << check.Damage->Reason;
    EXPECT_EQ(CountOf(0, command::Configure), board_->Entered[0]);
    EXPECT_EQ(CountOf(0, command::FoundChanged), 0);
    // Who died behind its entry could not count it any more.
    const int entered = board_->Entered[1];
    EXPECT_GE(CountOf(1, command::Configure), entered);
    EXPECT_LE(CountOf(1, command::Configure), entered + deaths);
    EXPECT_LE(CountOf(1, command::FoundChanged), deaths);
    for (const int station : {0, 1})
        EXPECT_EQ(Recorder.Generation(Record, Recorder.Entries(Record, Name(station)).back().Number),
                  StateOf(station));
    // Nothing between the first and the last save is missing.
    int number = 0;
    for (const auto& entry : Recorder.Entries(Record, "South"))
        EXPECT_EQ(Recorder.Generation(Record, entry.Number), "[S]\r\nk=" + std::to_string(++number) + "\r\n");
}

} // namespace
} // namespace gfc::record
#endif
