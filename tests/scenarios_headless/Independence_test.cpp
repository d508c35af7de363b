// What a command writes depends on what is entered and on what stands on the disk, and on nothing that the
// program was asked to do before: each command of a random sequence is given to a program that has just been
// started as well, with the same entries on the same files.
#include "config/Vocabulary.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/program/StartUp.h"
#include "forms/runs/AddRunStory.h"
#include "scenarios/Moves.h"
#include "scenarios/StoredStation.h"

#include <gtest/gtest.h>

#include <random>

namespace gfc::test {

namespace {

using moves::Choices;
using moves::Choose;
using ui::Answer;
using ui::Icon;
using Random = std::minstd_rand;
using Tell = std::function<void(Story&)>;

constexpr const char* Window = "GFCPrincipal";
constexpr unsigned FirstSeed = 1;
constexpr unsigned Sequences = 500;
constexpr unsigned Shards = 10;
const std::vector<std::string> Stations = {"North", "South", "East"};

int Number(Random& random, int least, int most) {
    return std::uniform_int_distribution(least, most)(random);
}

bool Chance(Random& random, int ofTen = 5) {
    return Number(random, 1, 10) <= ofTen;
}

std::string Decimal(Random& random) {
    return std::to_string(Number(random, 1, 9)) + "." + std::to_string(Number(random, 10, 99));
}

// Its working modules are modules of outputs, whose registers nobody looks up.
project::TagList OutputStationTags() {
    project::TagList tags = TagsInModule("VLO", "Virtual LO", "LY", "LLOG-", 8);
    tags += TagsInModule("VAO", "Virtual AO", "AY", "ALOG-", 32);
    tags += TagsInModule("VFO", "Virtual FO", "FY", "FLOG-", 128);
    tags += TagsInModule("VLS", "Virtual LI", "LX", "PI-", 7, 101);
    tags += TagsInModule("VAS", "Virtual AI", "AX", "AS-", 10, 101);
    tags += TagsInModule("VFS", "Virtual FI", "FX", "FS-", 100, 1001);
    tags += TagsInModule("AI-8", "Physical AI", "AX", "AI-", 20, 201);
    tags += TagsInModule("VF2", "Virtual FO", "FY", "FT-", 120, 2001);
    tags += TagsInModule("DI-16", "Physical DI", "X", "XS-", 40, 401);
    return tags;
}

struct Plant : World {
    Plant() {
        AddStation("North", LargeStationTags());
        AddStation("South", LargeStationTags());
        AddStation("East", OutputStationTags());
        moves::StartUp(TheStory);
        forms::StartProgram(Program);
        Screen.PlayOut();
    }
    void Give(const Tell& tell) {
        tell(TheStory);
        Screen.PlayOut();
    }
};

// What stands in the files, by which the next command is chosen.
class Disk {
public:
    explicit Disk(Plant& plant) : plant_(plant), ini_(plant.Files) {}

    [[nodiscard]] bool IsConfigured(const std::string& station) const {
        return plant_.Files.Content.contains(plant_.ConfigFile(station));
    }
    [[nodiscard]] std::string Key(const std::string& station, const std::string& section,
                                  const std::string& key) const {
        return ini_.ReadKey(section, key, plant_.ConfigFile(station));
    }
    [[nodiscard]] bool IsOn(const std::string& station, int run) const {
        return Key(station, "FlowRuns", "Run" + std::to_string(run)) == "Yes";
    }
    [[nodiscard]] bool IsKnown(const std::string& station, int run) const {
        const std::string number = std::to_string(run);
        return Key(station, "FlowRuns", "Run" + number + number) == "Yes";
    }
    [[nodiscard]] int KnownRuns(const std::string& station) const {
        int known = 0;
        for (int run = 1; run <= config::MaxRuns; ++run)
            known += IsKnown(station, run) ? 1 : 0;
        return known;
    }
    [[nodiscard]] int Standard(const std::string& station) const {
        return config::AlgorithmIndex(Key(station, "FlowRuns", "FlowAlgorithm"));
    }
    [[nodiscard]] int Source(const std::string& station) const {
        return config::SourceIndex(Key(station, "FlowRuns", "GasDensitySource"));
    }
    [[nodiscard]] bool FromOutside(const std::string& station) const {
        const std::string section = Source(station) % 2 == 1 ? "AGA8" : "SGERG88";
        return Source(station) != 0 && Key(station, section, "AGA8CalInput") == "MEASURED";
    }

private:
    Plant& plant_;
    config::FileIni ini_;
};

// Clicks and entries are drawn before they are told, so that both programs get the same.
class Drawing {
public:
    Drawing(Random& random, const Disk& disk)
        : random_(random), disk_(disk),
          station_(Stations.at(static_cast<std::size_t>(Number(random, 0, 2)))) {}

    // Empty where what was drawn cannot be done on these files.
    [[nodiscard]] Tell Command() {
        static constexpr Tell (Drawing::*kinds[])() = {
            &Drawing::View,    &Drawing::Wizard, &Drawing::Wizard,   &Drawing::Wizard, &Drawing::Common,
            &Drawing::Common,  &Drawing::NewOne, &Drawing::Modify,   &Drawing::Modify, &Drawing::AddRun,
            &Drawing::OnOrOff, &Drawing::Copy,   &Drawing::GiveBack, &Drawing::View,   &Drawing::Delete};
        return (this->*kinds[Number(random_, 0, std::size(kinds) - 1)])();
    }

private:
    [[nodiscard]] std::string Node(const std::string& below = {}) const {
        return "All Stations\\" + station_ + below;
    }
    [[nodiscard]] std::string RunNode(int run) const { return moves::RunNode(run, station_); }

    Tell View() {
        if (!disk_.IsConfigured(station_))
            return [node = Node()](Story& story) { story.ClickNode(Window, "TreeGFC", node); };
        const int run = Number(random_, 1, 5);
        const bool common = Chance(random_);
        const int tab = Number(random_, 0, common ? 2 : 4);
        return [=, node = common ? Node("\\Common Parameters") : RunNode(run)](Story& story) {
            story.ClickNode(Window, "TreeGFC", node).SelectTab(Window, common ? "SSTab1" : "SSTab2", tab);
        };
    }

    struct Entries {
        Choices Lists;
        std::vector<int> Runs;
        std::string Device; // empty: no traces
        std::string Traces;
        std::string AtmPress; // empty: none is entered
        std::string Value;    // in the editor of each run; empty: accepted as it opens
        std::vector<int> Modules;
    };

    Entries DrawEntries() {
        Entries entries;
        entries.Lists = {.Standard = Number(random_, 0, 3), .Source = Number(random_, 0, 4)};
        const bool pressure = entries.Lists.Standard != 1 || entries.Lists.Source != 0;
        entries.Lists.Chromatograph = entries.Lists.Source % 2 == 1 && Chance(random_, 3);
        entries.Lists.GageExternal = pressure && Chance(random_, 3);
        entries.Lists.Units = Chance(random_) ? Number(random_, 0, 4) : 0;
        entries.Runs = Chance(random_, 7) ? std::vector{Number(random_, 1, 5)} : std::vector{2, 4};
        if (Chance(random_)) {
            entries.Device = "/nvram/" + std::to_string(Number(random_, 1, 99)) + ".txt";
            entries.Traces = std::to_string(Number(random_, 1, 999));
        }
        if (pressure && !entries.Lists.GageExternal && Chance(random_))
            entries.AtmPress = Decimal(random_);
        if (Chance(random_))
            entries.Value = "0.9" + std::to_string(Number(random_, 1, 9));
        return entries;
    }

    static void EnterFirstPage(Story& story, const Entries& entries) {
        story.Select("WizardFC", "CombStandard", entries.Lists.Standard)
            .Select("WizardFC", "cbSourceGas", entries.Lists.Source);
        if (entries.Lists.Units != 0)
            story.Select("WizardFC", "CombUnits", entries.Lists.Units);
        if (!entries.Device.empty())
            story.Click("WizardFC", "Check1")
                .Type("WizardFC", "TextDevice", entries.Device)
                .Type("WizardFC", "TextNumTraces", entries.Traces);
    }
    static void WalkPages(Story& story, const Entries& entries) {
        EnterFirstPage(story, entries);
        story.Click("WizardFC", "siguiente").Click("WizardFC", "siguiente");
        if (entries.Lists.GageExternal)
            story.Click("WizardFC", "OptGagePress").Click("WizardFC", "OptAtmPressExt");
        if (!entries.AtmPress.empty())
            story.Click("WizardFC", "OptGagePress").Type("WizardFC", "txtAtmPress", entries.AtmPress);
        if (entries.Lists.Standard != 1 || entries.Lists.Source != 0)
            story.Click("WizardFC", "siguiente");
        if (entries.Lists.Chromatograph)
            story.Click("WizardFC", "OptCromatografo");
    }
    static moves::EditorActs ActsOf(const Entries& entries) {
        if (entries.Value.empty())
            return {};
        const int standard = entries.Lists.Standard;
        const bool gross = entries.Lists.Source != 0 && entries.Lists.Source % 2 == 0;
        return [=, value = entries.Value](Story& story, int) {
            if (standard == 2)
                story.Select("FrAccelabar", "Combo1", 3).Click("FrAccelabar", "Command1");
            else if (standard != 1)
                story.Type("FrParMec", "txtDiaOrif", value).Click("FrParMec", "cmdAceptar");
            else if (gross)
                story.Type("frSGERG88", "Text1_1", value).Click("frSGERG88", "Command1");
            else
                story.Type("MDetail", "Text10", value).Click("MDetail", "Command1");
        };
    }
    static void Pass(Story& story, const Entries& entries) {
        WalkPages(story, entries);
        story.Click("WizardFC", "finalizar").Click("Step", "Command1");
        moves::PassAllRuns(story, entries.Lists, entries.Runs, ActsOf(entries));
    }

    Tell Wizard() {
        return [station = station_, entries = DrawEntries()](Story& story) {
            moves::OpenWizard(story, station);
            moves::SelectRuns(story, entries.Runs);
            Pass(story, entries);
            moves::SaveAndClose(story);
        };
    }
    // The wizard, left without a save: on a page, in the pass, or on the closing page.
    Tell GiveBack() {
        auto entries = DrawEntries();
        entries.Runs.resize(1);
        const int place = Number(random_, 0, 2);
        return [=, station = station_](Story& story) {
            moves::OpenWizard(story, station);
            moves::SelectRuns(story, entries.Runs);
            if (place == 0)
                WalkPages(story, entries);
            if (place == 1) {
                WalkPages(story, entries);
                story.Click("WizardFC", "finalizar").Click("Step", "Command1").Click("Step", "Command1");
                return moves::CancelWindow(story, FirstWindow(entries.Lists));
            }
            if (place == 2)
                Pass(story, entries);
            story.Click("WizardFC", "cancelar").Box("Gas Flow Computer", "", Icon::None, Answer::Yes);
        };
    }
    static std::string FirstWindow(const Choices& choices) {
        if (choices.GageExternal || choices.Standard == 1)
            return "TagRuns";
        return choices.Standard == 2 ? "FrAccelabar" : "FrParMec";
    }

    // The common parameters of a stored configuration.
    Tell Common() {
        if (!disk_.IsConfigured(station_))
            return {};
        const auto entries = DrawEntries();
        const bool save = Chance(random_, 8);
        const std::string temperature = Decimal(random_);
        return [=, node = Node("\\Common Parameters")](Story& story) {
            Choose(story, node, "ConfigPar");
            story.Menu("Configurador", "PG").SelectTab("Configurador", "SSTab2", 1);
            story.Type("Configurador", "Text1_1", temperature);
            if (!entries.Device.empty())
                story.Do("traces on", [=](Driver& driver) {
                    if (!driver.Checked("Configurador", "Check1"))
                        driver.Click("Configurador", "Check1");
                    driver.Type("Configurador", "Text8", entries.Device);
                    driver.Type("Configurador", "Text9", entries.Traces);
                });
            if (!save)
                story.Menu("Configurador", "Salir2")
                    .Box("Orm Gas Flow Computer", "", Icon::None, Answer::Yes);
            else
                story.Menu("Configurador", "SalvarSalir2")
                    .Box("Configuration Completed.", "", Icon::None, Answer::Yes);
        };
    }
    // The configurator on a station without a configuration.
    Tell NewOne() {
        if (disk_.IsConfigured(station_))
            return {};
        const auto entries = DrawEntries();
        return [=, node = Node()](Story& story) {
            Choose(story, node, "ConfigPar");
            const std::string run = std::to_string(entries.Runs.front());
            story.Menu("Configurador", "ConfigAll").Click("Configurador", "Run" + run + run);
            if (!entries.AtmPress.empty())
                story.SelectTab("Configurador", "SSTab2", 1)
                    .Click("Configurador", "OptGagePress")
                    .Type("Configurador", "txtAtmPress", entries.AtmPress)
                    .SelectTab("Configurador", "SSTab2", 0);
            story.Click("Configurador", "Command1").Click("Step", "Command1").Click("Step", "Command1");
            moves::AcceptEditor(story, "FrParMec");
            story.Click("Step", "Command1").Type("TagRuns", "phostd", "0.7");
            moves::AutoBind(story);
            story.Click("Step", "Command1");
            moves::AutoBind(story);
            story.Menu("Configurador", "SalvarSalir2")
                .Box("Configuration Completed.", "", Icon::None, Answer::Yes);
        };
    }
    // 0 if there is none.
    [[nodiscard]] int RunThat(const std::function<bool(int)>& is) const {
        for (int run = 1; run <= config::MaxRuns; ++run)
            if (disk_.IsConfigured(station_) && is(run))
                return run;
        return 0;
    }
    Tell Modify() {
        const int run = RunThat([this](int each) { return disk_.IsOn(station_, each); });
        if (run == 0)
            return {};
        const int standard = disk_.Standard(station_);
        const bool fixedGas = disk_.Source(station_) != 0 && !disk_.FromOutside(station_);
        const bool gross = disk_.Source(station_) % 2 == 0;
        const bool mechanical = (standard == 0 || standard == 3) && Chance(random_);
        const bool gas = fixedGas && Chance(random_);
        const bool outputs = Chance(random_) || !(mechanical || gas);
        const std::string value = "0.9" + std::to_string(Number(random_, 1, 9));
        return [=, node = RunNode(run)](Story& story) {
            Choose(story, node, "ConfigPar");
            for (const auto& [box, ticked] :
                 {std::pair{"Check2", outputs}, {"Check3", mechanical}, {"Check6", gas}})
                if (ticked)
                    story.Click("FrModificarTags", box);
            story.Click("FrModificarTags", "Command1");
            if (mechanical)
                story.Type("FrParMec", "txtDiaOrif", value).Click("FrParMec", "cmdAceptar");
            if (gas && gross)
                story.Type("frSGERG88", "Text1_1", value).Click("frSGERG88", "Command1");
            else if (gas)
                story.Type("MDetail", "Text10", value).Click("MDetail", "Command1");
            if (outputs)
                story.Click("TagRuns", "Command5");
            story.Box("Configuration finished.", "", gas || outputs ? Icon::Information : Icon::None,
                      Answer::Yes);
        };
    }
    Tell AddRun() {
        const int run = RunThat([this](int each) { return !disk_.IsKnown(station_, each); });
        if (run == 0 || disk_.KnownRuns(station_) > 2)
            return {};
        const AddedRun added{.Standard = disk_.Standard(station_),
                             .Source = disk_.Source(station_),
                             .Outside = disk_.FromOutside(station_),
                             .Run = run};
        return
            [=, node = RunNode(run), answer = Chance(random_, 8) ? Answer::Yes : Answer::No](Story& story) {
                Choose(story, node, "erun");
                story.Box("Configure Run", "", Icon::Information, Answer::Yes);
                const AddRunStory dialogs(added);
                for (const auto& dialog : dialogs.Dialogs()) {
                    story.Click("Step", "Command1");
                    dialog.GoThrough(story);
                }
                AddRunStory::Finish(story, answer);
            };
    }
    Tell OnOrOff() {
        const int run = RunThat([this](int each) { return disk_.IsKnown(station_, each); });
        if (run == 0)
            return {};
        return [node = RunNode(run), on = disk_.IsOn(station_, run)](Story& story) {
            Choose(story, node, on ? "dRun" : "erun");
        };
    }
    // Between the two that have the same tags.
    Tell Copy() {
        if (!disk_.IsConfigured("North") || disk_.IsConfigured("South"))
            return {};
        return [](Story& story) {
            Choose(story, "All Stations\\North", "copiar1");
            story.Click("frCopyStation", "Command1")
                .Box("Copy configuration from a station to another station within the same project...", "",
                     Icon::Information);
        };
    }
    Tell Delete() {
        if (!disk_.IsConfigured(station_))
            return {};
        return [node = Node()](Story& story) {
            Choose(story, node, "undo");
            story.Box("Delete Configuration", "", Icon::None, Answer::Yes);
        };
    }

    Random& random_;
    const Disk& disk_;
    std::string station_;
};

class Independence : public testing::TestWithParam<unsigned> {};

void PlaySequence(unsigned seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Random random(seed);
    Plant old;
    const Disk disk(old);
    for (int length = Number(random, 3, 6), given = 0; given < length;) {
        const Tell command = Drawing(random, disk).Command();
        if (!command)
            continue;
        ++given;
        Plant fresh;
        fresh.Files.Content = old.Files.Content;
        fresh.Program.Forms.Get<forms::GFCPrincipal>().RebuildAfterCommand();
        old.Give(command);
        fresh.Give(command);
        ASSERT_EQ(old.Files.Content, fresh.Files.Content) << "command " << given << " of " << length;
        ASSERT_FALSE(testing::Test::HasFailure()) << "command " << given << " of " << length;
    }
}

TEST_P(Independence, of_what_was_done_before) {
    for (unsigned seed = FirstSeed + GetParam(); seed < FirstSeed + Sequences; seed += Shards) {
        PlaySequence(seed);
        if (HasFailure())
            return;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, Independence, testing::Range(0U, Shards));

} // namespace

} // namespace gfc::test
