#include "platform/InPlace.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>

namespace {

using namespace gfc::platform;

struct Death {};

// Disk and writers of a machine on which the step of one number does half of its work and then fails, or is
// the last that its writer takes.
class Disk {
public:
    std::map<std::string, std::string> Files;
    std::set<std::string> Held;
    long Steps = 0;
    long FaultAt = 0;
    bool FaultKills = false;
    bool FaultStays = false; // every step from there on fails

    // False if this step does half.
    bool Step() {
        ++Steps;
        const bool fault = FaultAt > 0 && (FaultStays ? Steps >= FaultAt : Steps == FaultAt);
        dying_ = fault && FaultKills;
        return !fault;
    }
    void End() const {
        if (dying_)
            throw Death();
    }

private:
    bool dying_ = false;
};

class DiskFile : public OpenFile {
public:
    DiskFile(Disk& disk, std::string path, bool holds) : disk_(disk), path_(std::move(path)), holds_(holds) {
        if (holds_)
            disk_.Held.insert(path_);
    }
    DiskFile(const DiskFile&) = delete;
    DiskFile& operator=(const DiskFile&) = delete;
    ~DiskFile() override {
        if (holds_)
            disk_.Held.erase(path_);
    }
    std::optional<std::string> ReadAll() override {
        return Done(disk_.Step()) ? std::optional(disk_.Files.at(path_)) : std::nullopt;
    }
    bool WriteAt(std::uint64_t at, std::string_view bytes) override {
        const bool whole = disk_.Step();
        const auto part = bytes.substr(0, whole ? bytes.size() : bytes.size() / 2);
        std::string& file = disk_.Files.at(path_);
        file.resize(std::max(file.size(), static_cast<std::size_t>(at) + part.size()));
        file.replace(static_cast<std::size_t>(at), part.size(), part);
        return Done(whole);
    }
    bool SetSize(std::uint64_t size) override {
        const bool whole = disk_.Step();
        if (whole)
            disk_.Files.at(path_).resize(static_cast<std::size_t>(size));
        return Done(whole);
    }
    bool Flush() override { return Done(disk_.Step()); }

private:
    bool Done(bool done) {
        disk_.End();
        return done;
    }

    Disk& disk_;
    std::string path_;
    bool holds_;
};

class FakeMachine : public InPlaceMachine {
public:
    explicit FakeMachine(Disk& disk) : disk_(disk) {}
    bool FolderIsClosed = false;

    std::vector<std::string> RecordPaths(const std::string&) override { return {"beside", "own"}; }
    std::unique_ptr<OpenFile> OpenTarget(const std::string& target) override {
        return Done(disk_.Step() && disk_.Files.contains(target)) ? Open(target, false) : nullptr;
    }
    std::unique_ptr<OpenFile> MakeRecord(const std::string& path, const std::string&) override {
        const bool may = disk_.Step() && !(FolderIsClosed && path == "beside") && !disk_.Files.contains(path);
        if (may)
            disk_.Files[path];
        return Done(may) ? Open(path, true) : nullptr;
    }
    std::unique_ptr<OpenFile> TakeRecord(const std::string& path) override {
        const bool dead = disk_.Files.contains(path) && !disk_.Held.contains(path);
        return Done(disk_.Step() && dead) ? Open(path, true) : nullptr;
    }
    std::optional<std::string> ReadRecord(const std::string& path) override {
        return Done(disk_.Step() && disk_.Files.contains(path)) ? std::optional(disk_.Files.at(path))
                                                                : std::nullopt;
    }
    void Remove(const std::string& path) override {
        if (disk_.Step())
            disk_.Files.erase(path);
        disk_.End();
    }
    bool FlushFolderOf(const std::string&) override { return Done(disk_.Step()); }
    std::string Reason() override { return "it failed"; }

private:
    bool Done(bool done) const {
        disk_.End();
        return done;
    }
    std::unique_ptr<OpenFile> Open(const std::string& path, bool holds) {
        return std::make_unique<DiskFile>(disk_, path, holds);
    }

    Disk& disk_;
};

struct Texts {
    std::string Old;
    std::string New;
};

// Of all lengths beside each other, with what a file of this kind holds and what it does not.
Texts DrawTexts(std::minstd_rand& random) {
    const auto draw = [&random](std::size_t size) {
        std::string text;
        for (std::size_t i = 0; i < size; ++i)
            text += "ab=\n\0"[random() % 5];
        return text;
    };
    return {draw(random() % 12), draw(random() % 12)};
}

// What the next access finds, and that it leaves no record behind.
std::string FoundNext(Disk& disk) {
    disk.FaultAt = 0;
    FakeMachine next(disk);
    const auto old = PutBackHalfWay(next, "f");
    EXPECT_FALSE(disk.Files.contains("beside") || disk.Files.contains("own"));
    EXPECT_FALSE(old && *old != disk.Files.at("f")) << "once put back there is nothing more to be told";
    return disk.Files.at("f");
}

class InPlaceAtEveryStep : public testing::TestWithParam<bool> {
protected:
    // False once the fault lies behind the last step.
    bool Play(const Texts& texts, long step, bool kills, bool stays) {
        Disk disk;
        disk.Files["f"] = texts.Old;
        disk.FaultAt = step;
        disk.FaultKills = kills;
        disk.FaultStays = stays;
        FakeMachine machine(disk);
        machine.FolderIsClosed = GetParam();
        bool failed = false;
        bool died = false;
        try {
            failed = WriteInPlace(machine, "f", texts.New).has_value();
        } catch (const Death&) {
            died = true;
        }
        const bool reached = disk.Steps >= step;
        const std::string found = FoundNext(disk);
        // Where nothing works any more the last flush may be all that was missing.
        if (died || (failed && stays)) {
            EXPECT_TRUE(found == texts.Old || found == texts.New) << found;
        } else {
            EXPECT_EQ(found, failed ? texts.Old : texts.New);
        }
        return reached;
    }
};

TEST_P(InPlaceAtEveryStep, leaves_the_old_or_the_new_file) {
    constexpr unsigned seed = 18;
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::minstd_rand random(seed);
    for (int draw = 0; draw < 40; ++draw) {
        const Texts texts = DrawTexts(random);
        for (const auto& [kills, stays] : {std::pair{true, false}, {false, false}, {false, true}})
            for (long step = 1; Play(texts, step, kills, stays); ++step)
                ASSERT_FALSE(HasFailure()) << "step " << step << (kills ? ", killed" : "");
    }
}

INSTANTIATE_TEST_SUITE_P(Folder, InPlaceAtEveryStep, testing::Bool(),
                         [](const auto& closed) { return closed.param ? "closed" : "open"; });

TEST(InPlace, gives_who_reads_the_old_bytes_while_a_writer_is_at_it) {
    Disk disk;
    disk.Files["f"] = "nexx";
    disk.Files["beside"] = UndoRecord{"f", "oldx", "newx"}.Bytes();
    disk.Held.insert("beside");
    FakeMachine machine(disk);
    EXPECT_EQ(PutBackHalfWay(machine, "f"), "oldx");
    EXPECT_EQ(disk.Files.at("f"), "nexx") << "and leaves the writer his file";
    EXPECT_TRUE(disk.Files.contains("beside"));
}

TEST(InPlace, keeps_what_others_have_made_of_the_file_since) {
    for (const std::string& now : {std::string("other"), std::string("oldx and more"), std::string("newy")}) {
        Disk disk;
        disk.Files["f"] = now;
        disk.Files["own"] = UndoRecord{"f", "oldx", "newx"}.Bytes();
        FakeMachine machine(disk);
        EXPECT_EQ(PutBackHalfWay(machine, "f"), std::nullopt);
        EXPECT_EQ(disk.Files.at("f"), now);
        EXPECT_FALSE(disk.Files.contains("own"));
    }
}

TEST(InPlace, leaves_the_record_of_another_file_alone) {
    Disk disk;
    disk.Files["f"] = "nexx";
    disk.Files["beside"] = UndoRecord{"g", "oldx", "newx"}.Bytes();
    FakeMachine machine(disk);
    EXPECT_EQ(PutBackHalfWay(machine, "f"), std::nullopt);
    EXPECT_EQ(disk.Files.at("f"), "nexx");
    EXPECT_TRUE(disk.Files.contains("beside"));
}

TEST(UndoRecord, is_whole_or_none) {
    const UndoRecord record{"/jobs/a\nb.ini", std::string("o\0ld", 4), "new bytes"};
    const std::string bytes = record.Bytes();
    const auto read = UndoRecord::Of(bytes);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->Target, record.Target);
    EXPECT_EQ(read->Old, record.Old);
    EXPECT_EQ(read->New, record.New);
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        EXPECT_FALSE(UndoRecord::Of(bytes.substr(0, size))) << size;
        EXPECT_FALSE(UndoRecord::Of(bytes.substr(0, size) + std::string(bytes.size() - size, '\0'))) << size;
    }
    EXPECT_FALSE(UndoRecord::Of(bytes + "x"));
}

} // namespace
