// The drafts of a person's passes: each is the old one or the new one, and none goes with another.
#include "drafts/DraftStore.h"
#include "faults/Operation.h"
#include "support/FakeTime.h"
#include "support/Fakes.h"

#include <memory>

namespace gfc::test::faults {

namespace {

namespace fs = std::filesystem;

constexpr const char* project = "plant.KPJ";

drafts::Draft DraftOf(const std::string& id, const std::string& standsAt) {
    drafts::Draft draft;
    draft.Id = id;
    draft.StandsAt = standsAt;
    draft.Station.CurrentStation = "North";
    draft.Station.RunList[0].Flag = "Yes";
    draft.Station.Runs.PrepareWholeStation(1);
    draft.Station.Runs.IO[0].GasTemp = {"TIT-101_PV", "FX", "1001"};
    draft.Done = {{1, drafts::Dialog::Mechanical}};
    return draft;
}

// The store of a person whose own folder this is.
struct Desk {
    explicit Desk(const fs::path& folder) { Paths.Own = folder.string(); }

    std::unique_ptr<platform::Files> Files = platform::MakeFiles();
    FixedZone TimeZone{0};
    FixedClock Clock{2023, 3, 15, 12, 0};
    FakeSingleInstance SingleInstance;
    FakeLauncher Launcher;
    FakePaths Paths;
    platform::Machine Machine{*Files, TimeZone, Clock, SingleInstance, Launcher, Paths};
    drafts::DraftStore Store() { return {Machine, project}; }
};

void LayOne(const fs::path& folder) {
    Desk desk(folder);
    (void)desk.Store().Keep(DraftOf("1", "Step 3 of 6"));
}

void LayTwo(const fs::path& folder) {
    LayOne(folder);
    Desk desk(folder);
    (void)desk.Store().Keep(DraftOf("2", "Step 1 of 6"));
}

// A file that cannot be deleted is emptied; for who opens the drafts there is none either way.
Content DraftsIn(const fs::path& folder) {
    Content content = ContentOf(folder);
    std::erase_if(content, [](const auto& file) { return file.second.Bytes.empty(); });
    return content;
}

Operation Done(const std::string& name, void (*lay)(const fs::path&),
               bool (*act)(drafts::DraftStore& store)) {
    Operation operation;
    operation.Name = name;
    operation.Lay = lay;
    operation.Look = DraftsIn;
    operation.Play = [act](const fs::path& folder, const Stage& stage) {
        Desk desk(folder);
        auto store = desk.Store();
        stage.Begin();
        while (!act(store)) {
            stage.Say(FailureMark + store.Reason());
            if (!stage.TriesAgain())
                return;
        }
    };
    operation.StartAgain = [](const fs::path& folder) {
        Desk desk(folder);
        (void)desk.Store().Keep(DraftOf("3", "the next start"));
    };
    return operation;
}

bool KeepAnew(drafts::DraftStore& store) {
    return store.Keep(DraftOf("1", "Step 4 of 6"));
}

bool KeepAnother(drafts::DraftStore& store) {
    return store.Keep(DraftOf("3", "Step 1 of 6"));
}

bool LetGo(drafts::DraftStore& store) {
    return store.Remove("1");
}

} // namespace

std::vector<Operation> DraftOperations() {
    return {Done("keep a draft anew", LayTwo, KeepAnew), Done("keep another draft", LayOne, KeepAnother),
            Done("let a draft go", LayTwo, LetGo), Done("let the last draft go", LayOne, LetGo)};
}

} // namespace gfc::test::faults
