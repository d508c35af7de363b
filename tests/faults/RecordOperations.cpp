// The entries of the record, written while the disk fails and the program dies.
#include "config/Recorder.h"
#include "faults/Operation.h"
#include "record/ProjectRecorder.h"
#include "support/FakeTime.h"

#include <stdexcept>

namespace gfc::test::faults {

namespace {

namespace fs = std::filesystem;
using config::FileState;

const std::string First = "[General]\r\nOrmStation=North\r\n[Run1]\r\nOrificeDia=5.0\r\n";
const std::string Second = "[General]\r\nOrmStation=North\r\n[Run1]\r\nOrificeDia=6.0\r\n";

struct Desk {
    explicit Desk(const fs::path& folder) : File((folder / "KDOrmAGA_plant_History.sqlite").string()) {}

    void Enter(std::string_view command, FileState before, FileState after) {
        Recorder.Record({{File, "North", std::string(command), "ana", std::move(before), std::move(after)}});
    }

    // What was said to have failed may stand there all the same.
    bool Has(const std::string& file) {
        const auto entries = Recorder.Entries(File, "North");
        return !entries.empty() && Recorder.Generation(File, entries.back().Number) == file;
    }

    std::string File;
    FixedClock Clock{2023, 3, 15, 12, 0};
    FixedZone Zone{0};
    record::ProjectRecorder Recorder{Clock, Zone, "operator"};
};

// What a reader of the record gets; a journal that a death has left is the record's own affair.
Content LookAtRecord(const fs::path& folder) {
    Desk desk(folder);
    std::string text;
    for (const config::RecordEntry& entry : desk.Recorder.Entries(desk.File, {}))
        text += entry.Command + " " + entry.Hash + " " +
                desk.Recorder.Generation(desk.File, entry.Number).value_or("none") + "\n";
    const auto check = desk.Recorder.Verify(desk.File);
    if (check.Damage)
        text += "DAMAGED: " + check.Damage->Reason;
    return text.empty() ? Content() : Content{{"the record", {text, 0}}};
}

// The next start looks at the file and makes up what is missing.
void MakeUp(const fs::path& folder) {
    Desk desk(folder);
    desk.Enter({}, Second, Second);
    const auto check = desk.Recorder.Verify(desk.File);
    const auto entries = desk.Recorder.Entries(desk.File, {});
    if (!desk.Recorder.Trouble().empty() || check.Damage || entries.empty() ||
        desk.Recorder.Generation(desk.File, entries.back().Number) != Second)
        throw std::runtime_error("the record was not made up: " + desk.Recorder.Trouble());
}

Operation Entering(const std::string& name, std::function<void(const fs::path&)> lay, FileState before) {
    Operation operation;
    operation.Name = name;
    operation.Lay = std::move(lay);
    operation.Play = [before = std::move(before)](const fs::path& folder, const Stage& stage) {
        Desk desk(folder);
        stage.Begin();
        while (!desk.Has(Second)) {
            desk.Enter(config::command::Configure, before, Second);
            if (desk.Recorder.Trouble().empty())
                return;
            stage.Say(FailureMark + desk.Recorder.Trouble());
            if (!stage.TriesAgain())
                return;
        }
    };
    operation.Look = LookAtRecord;
    operation.StartAgain = MakeUp;
    operation.NeedsRecord = operation.IsOfRecord = true;
    return operation;
}

void LayNothing(const fs::path&) {}

void LayFirst(const fs::path& folder) {
    Desk(folder).Enter(config::command::Wizard, std::nullopt, First);
}

} // namespace

std::vector<Operation> RecordOperations() {
    return {Entering("first entry of a record", LayNothing, std::nullopt),
            Entering("entry with what was found changed", LayFirst, "[General]\r\nOrmStation=Other\r\n")};
}

} // namespace gfc::test::faults
