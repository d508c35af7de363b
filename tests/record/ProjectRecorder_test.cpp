#include "RecordRoom.h"
#include "record/BackgroundRecorder.h"
#include "record/Sha256.h"

#include <gmock/gmock.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <map>
#include <random>

namespace gfc::record {
namespace {

using config::FileState;
using config::KeyChange;
using config::RecordEntry;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace command = config::command;

const std::string one = "[General]\r\nOrmStation=North\r\nUserID=ana\r\n";
const std::string two = "[General]\r\nOrmStation=North\r\nUserID=bob\r\nNew=1\r\n";

class ProjectRecorderTest : public testing::Test, protected test::RecordRoom {
protected:
    std::vector<std::string> Commands(std::string_view station = {}) {
        std::vector<std::string> commands;
        for (const RecordEntry& entry : Recorder.Entries(Record, station))
            commands.push_back(entry.Command);
        return commands;
    }
};

TEST(Sha256, IsTheOneOfTheStandard) {
    EXPECT_EQ(Sha256(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(Sha256("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
}

TEST_F(ProjectRecorderTest, KeepsWhoDidWhatWhenAndTheWholeFile) {
    Enter("North", command::Wizard, std::nullopt, one);
    Clock.Now += 1;
    Enter("North", command::Configure, one, two, "bob");
    const auto entries = Recorder.Entries(Record, {});
    ASSERT_THAT(entries, SizeIs(2));
    EXPECT_EQ(entries[0].Time, "2023-03-15T12:00:00Z");
    EXPECT_EQ(entries[1], (RecordEntry{2, "2023-03-16T12:00:00Z", "bob", "operator", "Configure", "North",
                                       Sha256(two), entries[1].Hash}));
    EXPECT_THAT(Recorder.Changes(Record, 2), ElementsAre(KeyChange{"General", "UserID", "ana", "bob"},
                                                         KeyChange{"General", "New", std::nullopt, "1"}));
    EXPECT_THAT(Recorder.Changes(Record, 1), SizeIs(2));
    EXPECT_EQ(Recorder.Generation(Record, 1), one);
    EXPECT_EQ(Recorder.Generation(Record, 2), two);
    EXPECT_EQ(Recorder.Generation(Record, 3), std::nullopt);
    EXPECT_FALSE(Recorder.Verify(Record).Damage);
}

TEST_F(ProjectRecorderTest, KeepsEveryByteAndEveryLetter) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += "[S]\nk" + std::to_string(byte) + "=\\\t" + std::string(1, static_cast<char>(byte)) + "x\n";
    Enter("Estación \"1\"", command::Wizard, std::nullopt, bytes, "añá\t\n");
    EXPECT_EQ(Recorder.Generation(Record, 1), bytes);
    EXPECT_EQ(Recorder.Changes(Record, 1), config::ChangesOf("", bytes));
    EXPECT_EQ(Recorder.Entries(Record, "Estación \"1\"").at(0).User, "añá\t\n");
    EXPECT_FALSE(Recorder.Verify(Record).Damage);
}

TEST_F(ProjectRecorderTest, LookingAtWhatIsKnownWritesNothing) {
    Enter("North", command::Wizard, std::nullopt, one);
    const std::string before = test::BytesAt(Record);
    Enter("North", {}, one, one);
    Enter("South", {}, std::nullopt, std::nullopt);
    EXPECT_EQ(test::BytesAt(Record), before);
    EXPECT_EQ(Recorder.Trouble(), "");
}

TEST_F(ProjectRecorderTest, LookingWhereNothingIsMakesNoRecord) {
    Enter("North", {}, std::nullopt, std::nullopt);
    EXPECT_FALSE(std::filesystem::exists(Record));
    EXPECT_THAT(Recorder.Entries(Record, {}), IsEmpty());
    EXPECT_FALSE(Recorder.Verify(Record).Damage);
    EXPECT_EQ(Recorder.Trouble(), "");
}

TEST_F(ProjectRecorderTest, EntersAFileThatWasThereBeforeTheRecordAsFound) {
    Enter("North", command::Delete, one, std::nullopt);
    EXPECT_THAT(Commands(), ElementsAre("Found", "Delete"));
    EXPECT_EQ(Recorder.Generation(Record, 1), one);
    EXPECT_THAT(Recorder.Changes(Record, 1), IsEmpty());
    EXPECT_EQ(Recorder.Entries(Record, {}).at(0).User, "");
    EXPECT_EQ(Recorder.Entries(Record, {}).at(1).FileHash, "");
    EXPECT_EQ(Recorder.Generation(Record, 2), std::nullopt);
}

TEST_F(ProjectRecorderTest, EntersWhatSomethingElseChangedBeforeTheCommand) {
    Enter("North", command::Wizard, std::nullopt, one);
    Enter("North", command::DisableRun, two, one);
    EXPECT_THAT(Commands(), ElementsAre("Configuration Wizard", "Found changed", "Disable run"));
    EXPECT_THAT(Recorder.Changes(Record, 2), ElementsAre(KeyChange{"General", "UserID", "ana", "bob"},
                                                         KeyChange{"General", "New", std::nullopt, "1"}));
    Enter("North", {}, std::nullopt, std::nullopt);
    EXPECT_THAT(Commands(), SizeIs(4)) << "a file that something else deleted";
    Enter("North", {}, two, two);
    EXPECT_THAT(Commands("North"), SizeIs(5)) << "and one that came back";
    EXPECT_FALSE(Recorder.Verify(Record).Damage);
}

TEST_F(ProjectRecorderTest, AnEmptyFileIsNotNone) {
    Enter("North", command::Wizard, std::nullopt, "");
    EXPECT_EQ(Recorder.Generation(Record, 1), FileState(""));
    Enter("North", {}, "", "");
    EXPECT_THAT(Commands(), SizeIs(1));
    EXPECT_FALSE(Recorder.Verify(Record).Damage);
}

TEST_F(ProjectRecorderTest, SaysWhyItCannotBeWrittenAndGoesOnWhenItCan) {
    const std::string good = std::exchange(Record, Folder.Path("missing/x.sqlite"));
    Enter("North", command::Wizard, std::nullopt, one);
    EXPECT_THAT(Recorder.Trouble(), HasSubstr("cannot be opened"));
    std::filesystem::create_directory(Folder.Path("missing"));
    Enter("North", command::Wizard, std::nullopt, one);
    EXPECT_EQ(Recorder.Trouble(), "");
    Record = good;
    test::PutBytes(Record, "no database at all, whatever it is called");
    Enter("North", command::Wizard, std::nullopt, one);
    EXPECT_THAT(Recorder.Trouble(), HasSubstr("is not a record of this program"));
    EXPECT_EQ(test::BytesAt(Record), "no database at all, whatever it is called");
    std::filesystem::remove(Record);
    Enter("North", command::Wizard, std::nullopt, one);
    EXPECT_EQ(Recorder.Trouble(), "");
    EXPECT_THAT(Commands(), SizeIs(1));
}

TEST_F(ProjectRecorderTest, WhatCouldNotBeEnteredIsTroubleUntilItIsMadeUpWhateverElseIsEntered) {
    const std::string other = Folder.Path("missing/x.sqlite");
    Recorder.Record({{other, "Far", std::string(command::CopyToProject), "ana", std::nullopt, one}});
    Enter("North", command::Wizard, std::nullopt, one);
    EXPECT_THAT(Recorder.Trouble(), HasSubstr("x.sqlite: it cannot be opened"));
    EXPECT_THAT(Commands(), SizeIs(1));
    EXPECT_THAT(Recorder.Trouble(), HasSubstr("x.sqlite")) << "a reading that goes well changes nothing";
    std::filesystem::create_directory(Folder.Path("missing"));
    Recorder.Record({{other, "Far", {}, {}, one, one}});
    EXPECT_EQ(Recorder.Trouble(), "");
}

TEST_F(ProjectRecorderTest, LeavesAnotherProgramsDatabaseAlone) {
    ASSERT_TRUE(Tamper("CREATE TABLE other (x)", false));
    const std::string before = test::BytesAt(Record);
    Enter("North", command::Wizard, std::nullopt, one);
    EXPECT_THAT(Recorder.Trouble(), HasSubstr("not a record"));
    EXPECT_EQ(test::BytesAt(Record), before);
}

TEST_F(ProjectRecorderTest, TwoAtATimeLeaveOneChain) {
    constexpr int each = 15;
    const auto work = [this](const std::string& station) {
        ProjectRecorder own(Clock, Zone, station);
        for (int save = 0; save < each; ++save) {
            const auto state = [&](int number) { return "[S]\nk=" + std::to_string(number) + "\n"; };
            own.Record(
                {{Record, station, "Configure", "", save == 0 ? FileState() : state(save), state(save + 1)}});
            EXPECT_EQ(own.Trouble(), "");
        }
    };
    std::thread other(work, "North");
    work("South");
    other.join();
    EXPECT_THAT(Commands("North"), SizeIs(each));
    EXPECT_THAT(Commands("South"), SizeIs(each));
    const auto check = Recorder.Verify(Record);
    EXPECT_FALSE(check.Damage) << check.Damage->Reason;
    EXPECT_EQ(check.Entries, 2 * each);
}

// As a station of many bindings has it: the same keys in each run, and values that follow no rule.
std::string LargeFile(std::mt19937& random, int change) {
    std::string file = "[General]\r\nChange=" + std::to_string(change) + "\r\n";
    for (int run = 1; file.size() < 32 * 1024; ++run) {
        file += "[Run" + std::to_string(run) + "]\r\n";
        for (int key = 0; key < 60; ++key)
            file += "Variable" + std::to_string(key) + "KDIOTag=PIT-" + std::to_string(run) +
                    std::to_string(random() % 100) + "\r\nVariable" + std::to_string(key) +
                    "KDIOType=FX\r\nVariable" + std::to_string(key) +
                    "KDIORegAddr=" + std::to_string(random() % 500) + "\r\n";
    }
    return file;
}

// Some of the values are other ones, and now and then a run comes or goes.
std::string Edited(std::mt19937& random, std::string file) {
    for (int edit = 0; edit < 20; ++edit) {
        const auto at = file.find("RegAddr=", random() % (file.size() / 2 + 1));
        if (at == std::string::npos)
            return file + "x";
        file.replace(at + 8, file.find('\r', at) - at - 8, std::to_string(random() % 500));
    }
    const std::string extra = "[Extra]\r\n" + std::string(6000, 'e') + "\r\n";
    if (random() % 10 == 0)
        file.starts_with(extra) ? file.erase(0, extra.size()) : file.insert(0, extra);
    return file;
}

TEST_F(ProjectRecorderTest, TenThousandLargeGenerationsStayWithinSixtyMegabytesAndAnyIsShownAtOnce) {
    constexpr int generations = 200;
    std::mt19937 random(20);
    std::vector<config::FileChange> changes;
    FileState before;
    std::string file = LargeFile(random, 0);
    for (int number = 1; number <= generations; ++number) {
        changes.push_back({Record, "North", "Configure", "ana", before, file});
        before = std::exchange(file, Edited(random, file));
    }
    Recorder.Record(changes);
    const auto each = std::filesystem::file_size(Record) / generations;
    std::printf("%zu bytes for each generation\n", static_cast<std::size_t>(each));
    EXPECT_LE(each, 60'000'000U / 10'000U);
    auto slowest = std::chrono::steady_clock::duration::zero();
    for (int number = 1; number <= generations; ++number) {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(Recorder.Generation(Record, number), changes[static_cast<std::size_t>(number - 1)].After);
        slowest = std::max(slowest, std::chrono::steady_clock::now() - start);
    }
    EXPECT_LT(slowest, std::chrono::milliseconds(100));
    EXPECT_FALSE(Recorder.Verify(Record).Damage);
}

// Whatever was recorded in whatever order comes back, byte for byte, and the whole holds.
TEST_F(ProjectRecorderTest, BringsBackEveryStateOfARandomLife) {
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::map<std::string, FileState> now;
    std::vector<config::FileChange> batch;
    std::vector<std::pair<std::int64_t, FileState>> states;
    for (int step = 0; step < 120; ++step) {
        const std::string station(1, static_cast<char>('A' + random() % 3));
        const FileState before = now[station];
        FileState after = before ? Edited(random, *before) : LargeFile(random, step);
        if (random() % 8 == 0)
            after.reset();
        else if (random() % 8 == 0)
            after = std::string(random() % 40'000, static_cast<char>('a' + random() % 26));
        if (random() % 5 != 0) // else the next command finds it
            batch.push_back(Change(station, command::Configure, before, after));
        now[station] = after;
        if (step % 12 != 11)
            continue;
        for (const auto& [name, state] : now) // a look, as the start of the program has
            batch.push_back(Change(name, {}, state, state));
        Recorder.Record(std::exchange(batch, {}));
        for (const auto& [name, state] : now)
            if (const auto entries = Recorder.Entries(Record, name); !entries.empty())
                states.emplace_back(entries.back().Number, state);
    }
    for (const auto& [number, state] : states)
        ASSERT_EQ(Recorder.Generation(Record, number), state) << number;
    const auto check = Recorder.Verify(Record);
    EXPECT_FALSE(check.Damage) << check.Damage->Reason;
}

TEST_F(ProjectRecorderTest, GivesTheChangesOfManyEntriesInOneReading) {
    Enter("North", command::Wizard, std::nullopt, one);
    Enter("North", command::Configure, one, two);
    Enter("South", command::Wizard, std::nullopt, one);
    const auto some = Recorder.ChangesOf(Record, 2, 3);
    ASSERT_THAT(some, SizeIs(2));
    EXPECT_EQ(some[0].Number, 2);
    EXPECT_EQ(some[0].Keys, Recorder.Changes(Record, 2));
    EXPECT_THAT(some[1].Keys, SizeIs(2));
    EXPECT_THAT(Recorder.ChangesOf(Record, 4, 9), IsEmpty());
}

TEST_F(ProjectRecorderTest, WhatPilesUpInTheBackgroundGoesInInItsOrder) {
    std::vector<std::string> wanted;
    {
        BackgroundRecorder behind(Recorder);
        for (int save = 0; save < 40; ++save) {
            const std::string station = save % 3 == 0 ? "North" : "South";
            const std::string state = "[S]\r\nk=" + std::to_string(save) + "\r\n";
            behind.Record({{Record, station, "Configure", "ana", std::nullopt, state}});
            wanted.push_back(state);
        }
    }
    std::vector<std::string> entered;
    for (const RecordEntry& entry : Recorder.Entries(Record, {}))
        if (entry.Command == "Configure")
            entered.push_back(Recorder.Generation(Record, entry.Number).value_or("none"));
    EXPECT_EQ(entered, wanted);
    EXPECT_FALSE(Recorder.Verify(Record).Damage);
}

TEST_F(ProjectRecorderTest, InTheBackgroundNothingIsLostAndReadersWait) {
    {
        BackgroundRecorder behind(Recorder);
        behind.Record({});
        behind.Record({{Record, "North", "Configure", "ana", std::nullopt, one}});
        EXPECT_THAT(behind.Entries(Record, {}), SizeIs(1));
        EXPECT_EQ(behind.Generation(Record, 1), one);
        behind.Record({{Folder.Path("no/x.sqlite"), "North", "Configure", "ana", std::nullopt, one}});
        behind.Settle();
        EXPECT_THAT(behind.Trouble(), HasSubstr("cannot be opened"));
        behind.Record({{Record, "North", "Configure", "ana", one, two}});
    }
    EXPECT_THAT(Commands(), SizeIs(2)) << "the end waits for what was handed over";
}

} // namespace
} // namespace gfc::record
