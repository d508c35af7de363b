#include "fuzz/Input.h"
#include "fuzz/MemoryVfs.h"
#include "fuzz/Target.h"
#include "platform/Files.h"
#include "record/History.h"
#include "record/RecordRoom.h"

#include <algorithm>
#include <array>

// Any bytes as the record of a project, and a good one with bytes changed: refused in words or answered, and
// whoever gets another answer than before is told so by the check.
namespace gfc::fuzz {

namespace {

namespace command = config::command;

using test::RecordRoom;

constexpr std::size_t PatchLimit = 31;

std::string FileWith(const std::string& value) {
    return "[General]\r\nOrmStation=North\r\nValue=" + value + "\r\n";
}

// Made on disk, where a record is looked for before it is opened. Small pages, so that what is damaged is
// seldom empty.
std::string MakeSound(RecordRoom& room) {
    UseMachineVfs();
    room.Recorder.Record({room.Change("North", command::Wizard, std::nullopt, FileWith("1")),
                          room.Change("South", command::Wizard, std::nullopt, FileWith("2")),
                          room.Change("North", command::Configure, FileWith("1"), FileWith("3")),
                          room.Change("North", command::Delete, FileWith("3"), std::nullopt),
                          room.Change("North", command::BringBack, std::nullopt, FileWith("1")),
                          room.Change("South", command::AddRun, FileWith("2"), FileWith("22"))});
    record::History::OpenToWrite(room.Record).Data().Run("PRAGMA page_size = 512; VACUUM");
    UseMemoryVfs();
    return room.Folder.Get("KDOrmAGA_plant_History.sqlite");
}

RecordRoom& TheRoom() {
    static RecordRoom room;
    return room;
}

const std::string& Sound() {
    static const std::string sound = MakeSound(TheRoom());
    return sound;
}

void Put(const std::string& bytes) {
    const std::string path = platform::PathForCalls(TheRoom().Record);
    ForgetMemoryFiles(path); // with what an earlier one left beside it
    MemoryFile(path) = bytes;
}

struct Answer {
    config::RecordEntry Entry;
    config::FileState File;
    std::vector<config::KeyChange> Changes;

    bool operator==(const Answer&) const = default;
};

// All that the recorder answers of the first entries.
std::vector<Answer> Answers() {
    constexpr std::size_t most = 12;
    auto& [folder, zone, clock, record, recorder] = TheRoom();
    std::vector<Answer> answers;
    for (const config::RecordEntry& entry : recorder.Entries(record, {})) {
        if (answers.size() == most)
            break;
        answers.push_back(
            {entry, recorder.Generation(record, entry.Number), recorder.Changes(record, entry.Number)});
    }
    return answers;
}

const std::vector<Answer>& SoundAnswers() {
    static const std::vector<Answer> answers = [] {
        Put(Sound());
        return Answers();
    }();
    return answers;
}

std::string Damaged(Input& input) {
    std::string bytes = Sound();
    while (!input.IsEmpty()) {
        const std::size_t at = (input.Byte() * 256U + input.Byte()) % bytes.size();
        const std::string_view patch = input.Text(PatchLimit);
        bytes.replace(at, std::min(patch.size(), bytes.size() - at), patch);
    }
    return bytes;
}

void CheckWords(const std::string& words) {
    Require(words.empty() || words.ends_with('.'), "what goes wrong is told in a sentence");
}

config::RecordCheck Verify() {
    RecordRoom& room = TheRoom();
    const config::RecordCheck check = room.Recorder.Verify(room.Record);
    if (check.Damage) {
        Require(!check.Damage->Reason.empty(), "damage is told in words");
        CheckWords(check.Damage->Reason);
    }
    return check;
}

// One more entry goes into what holds, and it holds then.
void CheckOneMore(std::int64_t entries) {
    RecordRoom& room = TheRoom();
    room.Recorder.Record({room.Change("South", command::Configure, FileWith("22"), FileWith("4"))});
    Require(room.Recorder.Trouble().empty(), "a record that holds takes an entry");
    const config::RecordCheck check = Verify();
    Require(!check.Damage && check.Entries == entries + 1, "it holds with one entry more");
    Require(room.Recorder.Generation(room.Record, check.Entries) == FileWith("4"), "and has its file");
}

void CheckDamaged(Input& input) {
    const bool oneMore = input.Below(2) == 1;
    const std::string bytes = Damaged(input);
    Put(bytes);
    const config::RecordCheck check = Verify();
    Require(!check.Damage || bytes != Sound(), "nothing is said of a record that nobody touched");
    const auto answers = Answers();
    CheckWords(TheRoom().Recorder.Trouble());
    if (check.Damage)
        return;
    Require(answers == SoundAnswers(), "another answer than before is told by the check");
    Require(check.Entries == static_cast<std::int64_t>(answers.size()), "every entry is counted");
    if (oneMore)
        CheckOneMore(check.Entries);
}

// Somebody who takes the rules away and then does to one entry what they forbid.
class Tampering {
public:
    Tampering() : data_(TheRoom().Record, record::Access::Write) {
        data_.Run("DROP TRIGGER entry_stays; DROP TRIGGER entry_is_kept");
    }

    // True if that is another value than before.
    bool Put(const std::string& column, std::int64_t number, const std::string& value) {
        if (ValueOf(column, number) == value)
            return false;
        record::Statement update(data_, "UPDATE entry SET " + column + " = ? WHERE number = ?");
        const bool isBlob = column == "changes" || column == "content";
        isBlob ? update.With(record::Blob{value}, number) : update.With(value, number);
        update.Execute();
        return true;
    }
    [[nodiscard]] std::string ValueOf(const std::string& column, std::int64_t number) {
        record::Statement value(data_, "SELECT " + column + " FROM entry WHERE number = ?");
        return value.With(number).Step() ? value.Text(0) : std::string();
    }
    void CutOffFrom(std::int64_t number) {
        data_.Run("DELETE FROM entry WHERE number >= " + std::to_string(number));
    }

private:
    record::Database data_;
};

// As the entry would have to say it after the change.
std::string HashOf(std::int64_t number) {
    std::string hash;
    record::History::OpenToRead(TheRoom().Record)
        ->ForEach({.Number = number, .Whole = true}, [&](const record::StoredEntry& entry) {
            hash = record::HashOf(entry);
            return false;
        });
    return hash;
}

void RequireDamageAt(std::int64_t number) {
    const config::RecordCheck check = Verify();
    Require(check.Damage && check.Damage->Entry == number, "the entry that does not hold is named");
    (void)Answers();
}

// A text is changed, to any or to that of another entry, or the last entries are taken away.
void CheckTampered(Input& input) {
    constexpr std::array<const char*, 10> columns = {"time", "user",     "machine", "command", "station",
                                                     "file", "previous", "hash",    "changes", "content"};
    const std::string column = columns.at(input.Below(columns.size()));
    const auto last = static_cast<std::int64_t>(SoundAnswers().size());
    const auto anyEntry = [&] { return 1 + static_cast<std::int64_t>(input.Below(SoundAnswers().size())); };
    const std::int64_t number = anyEntry();
    const std::size_t act = input.Below(4);
    Put(Sound());
    Tampering tampering;
    if (act == 0) {
        tampering.CutOffFrom(number);
        return RequireDamageAt(number);
    }
    const std::string value = act == 1 ? tampering.ValueOf(column, anyEntry()) : std::string(input.Rest());
    if (!tampering.Put(column, number, value))
        return RequireDamageAt(0);
    // Who gives it its hash as well is betrayed by the next one, or before that by what is kept.
    const bool isRehashed = act == 3 && column != "hash" && tampering.Put("hash", number, HashOf(number));
    if (!isRehashed)
        return RequireDamageAt(number);
    const config::RecordCheck check = Verify();
    const bool isNear = check.Damage && (check.Damage->Entry == number || check.Damage->Entry == number + 1);
    Require(isNear || (number == last && check.Damage && check.Damage->Entry == 0),
            "the entry or the one behind it does not hold");
}

} // namespace

void Record(std::string_view bytes) {
    (void)SoundAnswers();
    Input input(bytes);
    switch (input.Below(4)) {
    case 0:
    case 1:
        return CheckDamaged(input);
    case 2:
        return CheckTampered(input);
    default:
        Put(std::string(input.Rest()));
        (void)Verify();
        (void)Answers();
        CheckWords(TheRoom().Recorder.Trouble());
    }
}

} // namespace gfc::fuzz
