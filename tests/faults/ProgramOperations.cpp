// The operations of the program, done as a person does them.
#include "config/FileIni.h"
#include "faults/Operation.h"
#include "faults/Records.h"
#include "faults/Seam.h"
#include "forms/files/WaitForFile.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/program/StartUp.h"
#include "forms/runs/AddRunStory.h"
#include "forms/runs/ModifyFlowFile.h"
#include "record/ProjectRecorder.h"
#include "scenarios/Moves.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>

namespace gfc::test::faults {

namespace {

namespace fs = std::filesystem;

constexpr const char* Window = "GFCPrincipal";
const std::string North = "All Stations\\North";
const std::string NorthFile = "KDOrmAGA_plant_North.ini";
const std::string SouthFile = "KDOrmAGA_plant_South.ini";
const std::string FarFile = "KDOrmAGA_other_Far.ini";
const std::string LogFile = "KDOrmAGA_plant_North_Errors.log";
const moves::Choices Detail{.Source = 1};

// Before the trial as strict as any other; after it boxes come and go with what fails.
class PatientScreen : public HeadlessScreen {
public:
    explicit PatientScreen(const Stage& stage) : stage_(stage) {}
    void Begin() {
        patient_ = true;
        stage_.Begin();
    }
    ui::Answer Ask(const ui::Box& box) override {
        if (!patient_)
            return HeadlessScreen::Ask(box);
        told_ = told_ || TellsOfFailure(box);
        stage_.Say((TellsOfFailure(box) ? FailureMark : "") + box.Title + ": " + box.Text);
        const auto [first, last] = ui::AnswersOf(box.TheButtons);
        return box.TheButtons != ui::Buttons::RetryClose || stage_.TriesAgain() ? first : last;
    }
    void RunModal(ui::Form& form) override {
        if (auto* const waiting = patient_ ? dynamic_cast<forms::WaitForFile*>(&form) : nullptr)
            return Wait(*waiting);
        // It says that the configuration has errors, and asks what to do.
        if (patient_ && form.Name() == "TagsChanged")
            stage_.Say(FailureMark + form.Caption());
        HeadlessScreen::RunModal(form);
    }
    std::optional<std::string> ChooseFile(const ui::FileChoice&) override { return Chosen; }
    std::string AskText(const std::string&, const std::string&) override { return Typed; }

    // Whether a person was told of a failure since it was asked last.
    bool WasTold() { return std::exchange(told_, false); }
    void TellFailure(const std::string& words) {
        told_ = true;
        stage_.Say(FailureMark + words);
    }
    bool TriesAgain() { return stage_.TriesAgain(); }

    std::string Chosen;
    std::string Typed;

private:
    static bool TellsOfFailure(const ui::Box& box) {
        return box.TheButtons == ui::Buttons::RetryClose || box.TheIcon == ui::Icon::Exclamation ||
               box.TheIcon == ui::Icon::Critical || box.Title.starts_with("Error");
    }
    void Wait(forms::WaitForFile& waiting) {
        while (waiting.IsShown()) {
            stage_.Say(FailureMark + waiting.Label3.Caption());
            stage_.TriesAgain() ? waiting.timerWait.Tick() : void(waiting.Command1.PersonClicks());
        }
    }

    const Stage& stage_;
    bool patient_ = false;
    bool told_ = false;
};

// The program on real files and with its record, with the tool's project in the same folder. Entries are
// written at once, where the program lets them be written behind its back: so each trial has one order.
struct Plant {
    Plant(const fs::path& folder, const Stage& stage) : Screen(stage), Fake(Screen, *Disk, Recorder) {
        Fake.Library.ProjectFile = (folder / "plant.KPJ").string();
        moves::ThreeStations(Fake);
    }
    void Play() {
        forms::StartProgram(Fake.Program);
        Screen.RunToEnd();
        EXPECT_TRUE(Screen.Ended()) << "the program has not come to its end";
    }
    // The trial begins with the next step.
    void Begin() {
        Screen.TheStory.Do("begin", [this](Driver&) { Screen.Begin(); });
    }

    // What the status bar says of the record.
    void LookAtStatusBar(Driver& driver) {
        auto& window = Fake.Program.Forms.Get<forms::GFCPrincipal>();
        if (window.recordTimer.Enabled())
            driver.Tick(Window, "recordTimer");
        if (const std::string text = window.StatusBar1.PanelText(1); text.starts_with("History not written"))
            Screen.TellFailure(text);
    }

    std::unique_ptr<platform::Files> Disk = platform::MakeFiles();
    const FixedClock Clock{2023, 3, 15, 12, 0};
    const FixedZone Zone{0};
    record::ProjectRecorder Recorder{Clock, Zone, "operator"};
    PatientScreen Screen;
    FakeProgram Fake;
    Story& TheStory = Screen.TheStory;
};

const Stage Quiet{[] {}, [](const std::string&) {}, [] { return false; }};

void Choose(Story& story, const std::string& node, const std::string& command) {
    story.ClickNode(Window, "TreeGFC", node).Menu(Window, command);
}

std::string RunNode(int run) {
    return North + "\\Individual Parameters\\Run " + std::to_string(run);
}

// What a failure may keep from coming up is only clicked where it stands.
void ClickIfShown(Story& story, const std::string& form, const std::string& control) {
    story.Do("click " + form + " if it is there", [=](Driver& driver) {
        if (driver.IsShown(form))
            driver.Click(form, control);
    });
}

void Configure(Story& story, const moves::Choices& choices, const std::vector<int>& runs) {
    moves::OpenWizard(story, "North");
    moves::SelectRuns(story, runs);
    moves::WalkPages(story, choices);
    moves::PassAllRuns(story, choices, runs);
}

void Put(const fs::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

// Files that are nobody's business here, with names that are close to those that are.
void LayBystanders(const fs::path& folder) {
    ::setenv("XDG_STATE_HOME", (folder / "state").c_str(), 1);
    fs::create_directories(folder / "state" / "gfc-configurator");
    Close(false);
    Put(folder / "plant.KPJ", "the tool's own");
    Put(folder / "notes.txt", "by hand");
    Put(folder / "KDOrmAGA_plant_North.ini.bak", "kept by a person");
    Put(folder / ".gfc-save-KDOrmAGA_plant_North.ini", "bears no number");
}

// A configuration of runs 1 and 3 as the wizard writes it; made once.
const std::string& Configured() {
    static const std::string bytes = [] {
        const Room room;
        Plant plant(room.Folder(), Quiet);
        moves::StartUp(plant.TheStory);
        Configure(plant.TheStory, Detail, {1, 3});
        moves::SaveAndClose(plant.TheStory);
        moves::Exit(plant.TheStory);
        plant.Play();
        return ContentOf(room.Folder()).at(NorthFile).Bytes;
    }();
    return bytes;
}

void LayConfigured(const fs::path& folder) {
    LayBystanders(folder);
    Put(folder / NorthFile, Configured());
}

// In a folder of another user's, who lets the file be written and nothing be made beside it.
void LayClosed(const fs::path& folder) {
    LayConfigured(folder);
    Close(true);
}

// As the program reads it, which puts right first what a dead writer has left half-way.
Content LookAtClosed(const fs::path& folder) {
    (void)platform::MakeFiles()->Read((folder / NorthFile).string());
    return ContentOf(folder);
}

// A log of an earlier check with a section of a person's own.
void LayLogged(const fs::path& folder) {
    LayConfigured(folder);
    Put(folder / LogFile, "[Mine]\r\nkept=yes\r\n[Example Error Log File]\r\nError N [before]\r\n\r\n");
}

// The next start after a death: the tree is built, and the next save of each file clears up beside it.
void StartAgain(const fs::path& folder) {
    Plant plant(folder, Quiet);
    moves::StartUp(plant.TheStory);
    plant.TheStory.ClickNode(Window, "TreeGFC", North);
    plant.TheStory.Check([&folder](Driver&) { EXPECT_EQ(WhatIsNotMadeUp(folder, "plant"), ""); });
    plant.TheStory.Do("save every file again", [&plant, &folder](Driver&) {
        auto& ini = plant.Fake.Hand;
        for (const std::string& name : {NorthFile, LogFile, SouthFile, FarFile}) {
            EXPECT_TRUE(ini.WriteKey("General", "UserID", "again", (folder / name).string()));
        }
        plant.Fake.OpenStation("North");
        const forms::TrialCopy trial(plant.Fake.Program.Storage, (folder / NorthFile).string(),
                                     forms::TrialFile(plant.Fake.Session));
    });
    moves::Exit(plant.TheStory);
    plant.Play();
}

Operation InPlace(Operation operation) {
    operation.ChangesKeysOf = NorthFile;
    return operation;
}

// An operation whose story leads up to its last act, and goes on with it.
Operation Told(const std::string& name, std::function<void(const fs::path&)> lay,
               std::function<void(Plant&)> until, std::function<void(Plant&)> act) {
    Operation operation;
    operation.Name = name;
    operation.Lay = std::move(lay);
    operation.Play = [until = std::move(until), act = std::move(act)](const fs::path& folder,
                                                                      const Stage& stage) {
        Plant plant(folder, stage);
        moves::StartUp(plant.TheStory);
        until(plant);
        plant.Begin();
        act(plant);
        plant.TheStory.Do("look at the status bar", [&plant](Driver& d) { plant.LookAtStatusBar(d); });
        moves::Exit(plant.TheStory);
        plant.Play();
    };
    operation.StartAgain = StartAgain;
    return operation;
}

Operation FullWrite() {
    auto operation = Told(
        "full write", LayConfigured, [](Plant& plant) { Configure(plant.TheStory, {}, {2}); },
        [](Plant& plant) {
            plant.TheStory.Click("WizardFC", "Command1");
            ClickIfShown(plant.TheStory, "WizardFC", "cancelar");
        });
    operation.Between = NorthFile; // the old one is deleted first
    return operation;
}

Operation ConfiguratorSave(const std::string& name, std::function<void(const fs::path&)> lay) {
    return Told(
        name, std::move(lay),
        [](Plant& plant) {
            Choose(plant.TheStory, North + "\\Common Parameters", "ConfigPar");
            plant.TheStory.Menu("Configurador", "PG")
                .SelectTab("Configurador", "SSTab2", 1)
                .Type("Configurador", "Text1_1", "61.5");
        },
        [](Plant& plant) {
            plant.TheStory.Menu("Configurador", "SalvarSalir2")
                .Do("leave what was not saved", [](Driver& driver) {
                    if (driver.IsShown("Configurador"))
                        driver.Menu("Configurador", "Salir2");
                });
        });
}

Operation ClosedSave() {
    Operation operation = ConfiguratorSave("configurator's save in place", LayClosed);
    operation.Look = LookAtClosed;
    return operation;
}

void UntilLastEditor(Story& story) {
    Choose(story, RunNode(3), "ConfigPar");
    story.Click("FrModificarTags", "Check2")
        .Click("FrModificarTags", "Command1")
        .ClickNode("TagRuns", "TreeAGA", "AGA 3 Outputs\\AGA-3 Status")
        .Click("TagRuns", "Command4")
        .Click("TagRuns", "Command1");
}

void LoseATag(Plant& plant) {
    const std::string file = plant.Fake.ConfigFile("North");
    const std::string lost = plant.Fake.Program.Ini.ReadKey("Run1", "GasTempKDIOTag", file);
    auto& tags = plant.Fake.Library.TagsOf.at("North");
    std::ranges::find_if(tags, [&](const auto& tag) { return tag.TagName == lost; })->TagName = "TT-101";
}

bool IsWholeLog(const std::string& bytes) {
    return bytes.find("[Example Error Log File]\r\nError N") != std::string::npos &&
           bytes.ends_with("]\r\n\r\n");
}

// Which faults the check finds, and so which runs go off, depends on what could be read of the trial copy.
std::string LogEssence(const std::string& name, std::string bytes) {
    if (name == LogFile)
        return !IsWholeLog(bytes) ? bytes : bytes.starts_with("[Mine]\r\nkept=yes") ? "added to" : "new";
    for (std::size_t at = bytes.find("\nRun"); at != std::string::npos; at = bytes.find("\nRun", at + 1))
        if (bytes.compare(at + 5, 1, "=") == 0)
            bytes.replace(at + 6, bytes.find('\r', at) - at - 6, "?");
    return bytes;
}

// A trial that could not be made fails, and writes its log.
Operation ModifyTags() {
    auto operation = Told(
        "modify-tags apply", LayLogged, [](Plant& plant) { UntilLastEditor(plant.TheStory); },
        [](Plant& plant) {
            plant.TheStory.Click("TagRuns", "Command5");
            ClickIfShown(plant.TheStory, "TagsChanged", "Command3");
        });
    operation.Essence = LogEssence;
    return operation;
}

Operation Log(const std::string& name, std::function<void(const fs::path&)> lay) {
    auto operation = Told(
        name, std::move(lay),
        [](Plant& plant) {
            plant.TheStory.Do("lose a tag", [&plant](Driver&) { LoseATag(plant); });
            UntilLastEditor(plant.TheStory);
        },
        [](Plant& plant) {
            plant.TheStory.Click("TagRuns", "Command5");
            ClickIfShown(plant.TheStory, "TagsChanged", "CmdIgnore");
        });
    operation.Essence = LogEssence;
    return operation;
}

Operation AddRun() {
    return Told(
        "add a run", LayConfigured,
        [](Plant& plant) {
            Choose(plant.TheStory, RunNode(2), "erun");
            plant.TheStory.Box("Configure Run", "", ui::Icon::Information, ui::Answer::Yes);
            const AddRunStory adding({.Source = 1, .Run = 2});
            const std::size_t last = adding.Dialogs().size() - 1;
            adding.Until(plant.TheStory, last);
            plant.TheStory.Click("TagRuns", "Command6")
                .Box("Automatic Tags assignments", "", ui::Icon::Information);
        },
        [](Plant& plant) { plant.TheStory.Click("TagRuns", "Command5"); });
}

Operation Disable() {
    return Told(
        "disable a run", LayConfigured, [](Plant&) {},
        [](Plant& plant) { Choose(plant.TheStory, RunNode(3), "dRun"); });
}

void LayDisabled(const fs::path& folder) {
    LayConfigured(folder);
    std::string bytes = Configured();
    bytes.replace(bytes.find("Run3=Yes"), 8, "Run3=No");
    Put(folder / NorthFile, bytes);
}

Operation Enable() {
    return Told(
        "enable a run", LayDisabled, [](Plant&) {},
        [](Plant& plant) { Choose(plant.TheStory, RunNode(3), "erun"); });
}

void LayReadOnlyForOthers(const fs::path& folder) {
    LayConfigured(folder);
    fs::permissions(folder / NorthFile, fs::perms(0640));
}

Operation CopyWithin() {
    auto operation = Told(
        "copy within the project", LayReadOnlyForOthers,
        [](Plant& plant) { Choose(plant.TheStory, North, "copiar1"); },
        [](Plant& plant) { plant.TheStory.Click("frCopyStation", "Command1"); });
    operation.Between = SouthFile;
    operation.BetweenAs = NorthFile; // a copy that succeeded stays, whether it could be named or not
    operation.Refusal = "Could not copy the configuration file";
    return operation;
}

Operation CopyToOther() {
    auto operation = Told(
        "copy to another project", LayConfigured,
        [](Plant& plant) {
            plant.TheStory.ClickNode(Window, "TreeGFC", North);
            const fs::path folder = fs::path(plant.Fake.Library.ProjectFile).parent_path();
            plant.Screen.Chosen = (folder / "other.KPJ").string();
            plant.Screen.Typed = "Far";
        },
        [](Plant& plant) { plant.TheStory.Menu(Window, "copiar2"); });
    operation.Between = FarFile;
    operation.BetweenAs = NorthFile;
    operation.Refusal = "Could not copy the configuration file";
    return operation;
}

Operation Delete() {
    return Told(
        "delete", LayConfigured, [](Plant& plant) { plant.TheStory.ClickNode(Window, "TreeGFC", North); },
        [](Plant& plant) { plant.TheStory.Menu(Window, "undo"); });
}

// The configuration of an earlier day stands in the record, and another one in the file.
std::string Earlier() {
    std::string bytes = Configured();
    bytes.replace(bytes.find("OrificeDia="), 11, "OrificeDia=9");
    return bytes;
}

void LayRecorded(const fs::path& folder) {
    LayConfigured(folder);
    const std::string record = (folder / "KDOrmAGA_plant_History.sqlite").string();
    const FixedClock clock(2023, 3, 14, 12, 0);
    const FixedZone zone(0);
    record::ProjectRecorder recorder(clock, zone, "operator");
    recorder.Record({{record, "North", "Configuration Wizard", "ana", std::nullopt, Earlier()}});
    recorder.Record({{record, "North", "Configure", "ana", Earlier(), Configured()}});
}

// Until nobody has to be told that it failed, or the person gives it up.
void Insist(Plant& plant, std::function<void(Driver&)> act) {
    plant.TheStory.Do("do it", [&plant, act = std::move(act)](Driver& driver) {
        do
            act(driver);
        while (plant.Screen.WasTold() && plant.Screen.TriesAgain());
    });
}

Operation BringBack() {
    auto operation = Told(
        "bring back", LayRecorded,
        [](Plant& plant) {
            plant.TheStory.ClickNode(Window, "TreeGFC", North).Menu(Window, "history");
            plant.TheStory.ClickRow("FrHistory", "ListView1", 2);
        },
        [](Plant& plant) {
            Insist(plant, [](Driver& driver) {
                if (driver.Enabled("FrHistory", "Command6"))
                    driver.Click("FrHistory", "Command6");
            });
            plant.TheStory.Click("FrHistory", "Command9");
        });
    operation.NeedsRecord = true;
    return operation;
}

// Choosing the left side anew has both compared again, in case one of them could not be read.
Operation TakeOver() {
    auto operation = Told(
        "take over", LayRecorded,
        [](Plant& plant) { plant.TheStory.ClickNode(Window, "TreeGFC", North).Menu(Window, "compare"); },
        [](Plant& plant) {
            Insist(plant, [&plant](Driver& driver) {
                driver.Select("FrCompare", "Combo2", 0);
                const std::string state = driver.Text("FrCompare", "Label4");
                if (state.find("cannot be read") != std::string::npos ||
                    state.find("does not give out") != std::string::npos)
                    plant.Screen.TellFailure(state);
                for (const char* button : {"Command4", "Command6"})
                    if (driver.Enabled("FrCompare", button))
                        driver.Click("FrCompare", button);
            });
            plant.TheStory.Click("FrCompare", "Command10");
        });
    operation.NeedsRecord = true;
    return operation;
}

} // namespace

std::vector<Operation> ProgramOperations() {
    return {FullWrite(),
            InPlace(ConfiguratorSave("configurator's save", LayConfigured)),
            ClosedSave(),
            InPlace(ModifyTags()),
            InPlace(Log("log", LayConfigured)),
            InPlace(Log("log again", LayLogged)),
            InPlace(AddRun()),
            InPlace(Enable()),
            InPlace(Disable()),
            CopyWithin(),
            CopyToOther(),
            Delete(),
            BringBack(),
            TakeOver()};
}

} // namespace gfc::test::faults
