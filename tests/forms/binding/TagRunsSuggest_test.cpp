#include "TagRunsWorld.h"
#include "support/Named.h"

#include <gmock/gmock.h>

#include <random>

namespace gfc::test {
namespace {

using binding::BindingStage;
using testing::HasSubstr;
namespace node = binding::node;

project::Tag TagOf(const std::string& name, const std::string& type, int address, const std::string& module) {
    return {.TagName = name,
            .RegAddr = address,
            .RegType = type,
            .ModuleName = module,
            .ModuleType = "Virtual Module"};
}

// The tags of a station with runs 1 and 2, named after their runs, and an analyser that is theirs.
project::TagList TagsByName() {
    project::TagList tags;
    int address = 0;
    for (const char* run : {"R1", "R2"}) {
        for (const char* name : {"TEMP", "PRES", "DP", "PRES_ALARM"})
            tags.push_back(TagOf(std::string(run) + "_" + name, "FX", ++address, "INPUTS"));
        for (const char* name : {"FLOW_HOLD", "TOT_HOLD", "RESET"})
            tags.push_back(TagOf(std::string(run) + "_" + name, "X", ++address, "COMMANDS"));
    }
    for (const char* name : {"GC_C1", "GC_N2", "GC_C6+", "SPARE_1", "SPARE_2"})
        tags.push_back(TagOf(name, "FX", ++address, "ANALYSER"));
    tags.push_back(TagOf("GC_ENABLE", "X", ++address, "COMMANDS"));
    return tags;
}

// Station "North" with runs 1 and 2, of which run 1 is open.
struct SuggestWorld : TagRunsWorld, testing::Test {
    SuggestWorld() {
        ActivateRuns({1, 2});
        project::BuildInventory(TagsByName(), Session.Inventory);
        project::BuildAvailableLists(Session.Inventory, {}, false);
    }

    void Open(BindingStage stage, int run = 0) { Show(stage, run, run); }
    void Menu(const std::string& entry) {
        TheStory.Do("choose " + entry, [entry](Driver& hands) { hands.Menu(Form, entry); });
    }
    void SeeNote(int position, const std::string& note) {
        TheStory.Check([this, position, note](Driver&) {
            EXPECT_EQ(TheForm().TreeAGA.At(node::Variable(position)).Note, note);
        });
    }
    void SeeProgress(const std::string& text) {
        TheStory.Check([text](Driver& eyes) { EXPECT_THAT(eyes.Text(Form, "Progress"), HasSubstr(text)); });
    }
};

TEST_F(SuggestWorld, BindsNothingUnasked) {
    TheStory.Click(Form, "SuggestTags");
    SeeNote(0, "sure: R1_TEMP");
    SeeNote(1, "sure: R1_PRES");
    SeeUnbound(0);
    SeeProgress("Station North, run 1, AGA-3");
    SeeProgress("0 of 6 bound, 6 suggested, 6 of them sure");
    SeeRows("ListViewRuns", 13);
    LeaveByCancel();
    Open(BindingStage::RunInputs);
}

TEST_F(SuggestWorld, TakesAllThatAreSureAndGoesOn) {
    TheStory.Click(Form, "SuggestTags").Click(Form, "TakeSure");
    SeeBound(0, "R1_TEMP FX 1");
    SeeNote(0, "R1_TEMP");
    SeeProgress("6 of 6 bound");
    SeeRows("ListViewRuns", 10);
    SeeRow("ListViewRuns", 1, {"1", "R1_PRES_ALARM", "FX", "4"});
    TheStory.Click(Form, "Command5");
    Open(BindingStage::RunInputs);
    EXPECT_EQ(Station.Runs.IO[0].GasPress, Bound("R1_PRES", "FX", "2"));
    EXPECT_EQ(Station.Runs.IO[0].ResetTotals, Bound("R1_RESET", "X", "7"));
}

TEST_F(SuggestWorld, TakesOneAndTakesItBack) {
    TheStory.Click(Form, "SuggestTags");
    Pick(1);
    Menu("tomar");
    SeeBound(1, "R1_PRES FX 2");
    SeeUnbound(0);
    Menu("soltar");
    SeeUnbound(1);
    SeeNote(1, "sure: R1_PRES");
    SeeRows("ListViewRuns", 13);
    LeaveByCancel();
    Open(BindingStage::RunInputs);
}

// Nobody has asked for it yet, and that there is no tag for it would be wrong.
TEST_F(SuggestWorld, SuggestsForWhatIsTakenBackLater) {
    TheStory.ClickRow(Form, "ListViewRuns", 4);
    Assign(1);
    SeeBound(1, "R1_PRES_ALARM FX 4");
    TheStory.Click(Form, "SuggestTags");
    SeeNote(0, "sure: R1_TEMP");
    Pick(1);
    Menu("soltar");
    SeeNote(1, "sure: R1_PRES");
    SeeProgress("0 of 6 bound, 6 suggested");
    TheStory.SeeVisible(Form, "Missing", false);
    LeaveByCancel();
    Open(BindingStage::RunInputs);
}

TEST_F(SuggestWorld, UndoesAndDoesAgainWhatWasDone) {
    TheStory.Click(Form, "SuggestTags").Click(Form, "TakeSure");
    TheStory.Check([this](Driver&) {
        EXPECT_EQ(TheForm().deshacer.Caption(), "&Undo Take All Sure");
        EXPECT_FALSE(TheForm().rehacer.Enabled());
    });
    Menu("deshacer");
    SeeUnbound(0);
    SeeRow("ListViewRuns", 1, {" 1  ", "R1_TEMP", "FX", "1"});
    Menu("rehacer");
    SeeBound(0, "R1_TEMP FX 1");
    LeaveByCancel();
    Open(BindingStage::RunInputs);
}

TEST_F(SuggestWorld, TheCompositionHasNoDeadEnd) {
    TheStory.Click(Form, "SuggestTags");
    TheStory.Check([](Driver& eyes) {
        EXPECT_FALSE(eyes.Enabled(Form, "Command1"));
        EXPECT_THAT(eyes.Text(Form, "Missing"), HasSubstr("Carbon Dioxide, "));
        EXPECT_THAT(eyes.Text(Form, "Missing"), HasSubstr(": no tag; Continue will ask for them"));
    });
    TheStory.Click(Form, "TakeSure");
    SeeBound(0, "GC_C1 FX 15");
    // All from hexane on is the engineer's choice.
    SeeUnbound(14);
    Pick(14);
    Menu("tomar");
    SeeBound(14, "GC_C6+ FX 17");
    Menu("soltar");
    SeeUnbound(14);
    Menu("repuestos");
    SeeNote(2, "fair: SPARE_1");
    Pick(2);
    Menu("tomar");
    SeeBound(2, "SPARE_1 FX 18");
    LeaveByCancel();
    Open(BindingStage::GasInputs);
}

TEST_F(SuggestWorld, ARunWithoutAnAnalyserIsSuggestedTheCopy) {
    *binding::BindingOf(
        *binding::TreeRows(BindingStage::GasInputs, binding::ConditionsOf(Station, 0)).front(), Station, 0) =
        Bound("GC_C1", "FX", "15");
    TheStory.Click(Form, "SuggestTags");
    SeeNote(0, "sure: GC_C1");
    TheStory.Click(Form, "TakeSure");
    SeeBound(0, "GC_C1 FX 15");
    // The tag is another run's, and does not come back to the list.
    Pick(0);
    SeeRows("ListViewRuns", 11);
    Menu("soltar");
    SeeRows("ListViewRuns", 11);
    LeaveByCancel();
    Session.Inventory.AvailFloat.erase(Session.Inventory.AvailFloat.begin() + 8);
    Open(BindingStage::GasInputs, 1);
}

TEST_F(SuggestWorld, SaysWhereATagIsUsed) {
    Station.Runs.IO[1].GasPress = Bound("R2_PRES", "FX", "9");
    TheStory.ClickRow(Form, "ListViewRuns", 6);
    TheStory.Do("ask for the menu of the row",
                [this](Driver&) { EXPECT_TRUE(TheForm().ListViewRuns.PersonAsksForMenu(6)); });
    Menu("dondeSeUsa");
    TheStory.Box("Where Used", "R2_PRES is used by\r\nNorth: run 2, Pressure", ui::Icon::Information);
    LeaveByCancel();
    Open(BindingStage::RunInputs);
}

TEST_F(SuggestWorld, AssignTakesWhatTheFilterShows) {
    TheStory.Type(Form, "Filter", "r2 pres");
    SeeRows("ListViewRuns", 13);
    TheStory.Check([this](Driver& eyes) {
        EXPECT_EQ(TheForm().ListViewRuns.ShownCount(), 2);
        EXPECT_EQ(TheForm().ListViewRuns.RowAtPlace(1), 6);
        EXPECT_THAT(eyes.Text(Form, "FilterSays"), HasSubstr("Assign and Auto-Assign take from these alone"));
    });
    Assign(1);
    SeeBound(1, "R2_PRES FX 9");
    Assign(0);
    SeeBound(0, "R2_PRES_ALARM FX 11");
    // Nothing is left to be seen, so nothing is taken.
    Assign(2);
    SeeUnbound(2);
    TheStory.Do("empty the filter", [this](Driver&) { TheForm().Filter.PersonEdits(""); });
    SeeRows("ListViewRuns", 11);
    LeaveByCancel();
    Open(BindingStage::RunInputs);
}

TEST_F(SuggestWorld, AutoAssignTakesRowsThatTheFilterShows) {
    TheStory.Type(Form, "Filter", "r2");
    AutoAssign();
    SeeBound(0, "R2_TEMP FX 8");
    SeeBound(2, "R2_DP FX 10");
    SeeBound(3, "R2_FLOW_HOLD X 12");
    LeaveByCancel();
    Open(BindingStage::RunInputs);
}

TEST_F(SuggestWorld, TheFilterShowsWhatIsFreeOrSuggested) {
    Station.Runs.IO[1].GasPress = Bound("R2_PRES", "FX", "9");
    TheStory.Select(Form, "FilterKind", 1);
    TheStory.Check([this](Driver&) { EXPECT_EQ(TheForm().ListViewRuns.ShownCount(), 12); });
    TheStory.Click(Form, "SuggestTags").Select(Form, "FilterKind", 2);
    TheStory.Check([this](Driver&) { EXPECT_EQ(TheForm().ListViewRuns.ShownCount(), 3); });
    LeaveByCancel();
    Open(BindingStage::RunInputs);
}

TEST_F(SuggestWorld, ATagIsDraggedOntoAVariableAndBack) {
    TheStory.Do("drag", [this](Driver&) {
        auto& form = TheForm();
        auto& list = form.ListViewRuns;
        EXPECT_TRUE(list.PersonClicksRow(2));
        EXPECT_EQ(list.WhatToDrag(), "R1_PRES");
        EXPECT_EQ(form.TreeAGA.WhereToDrop(list, node::NameValue(1)), "Pressure");
        // The root is no variable, and a digital one takes no float tag.
        EXPECT_EQ(form.TreeAGA.WhereToDrop(list, node::Root), "");
        EXPECT_EQ(form.TreeAGA.WhereToDrop(list, 0), "");
        EXPECT_EQ(form.TreeAGA.WhereToDrop(list, node::Variable(4)), "");
        EXPECT_FALSE(form.TreeAGA.PersonDrops(list, node::Variable(4)));
        EXPECT_TRUE(form.TreeAGA.PersonDrops(list, node::NameValue(1)));
        EXPECT_EQ(form.TreeAGA.WhereToDrop(list, node::Variable(1)), "") << "bound by now";
        EXPECT_EQ(form.deshacer.Caption(), "&Undo Drag onto Pressure");
    });
    SeeBound(1, "R1_PRES FX 2");
    SeeRows("ListViewRuns", 12);
    TheStory.Do("drag back", [this](Driver&) {
        auto& form = TheForm();
        EXPECT_EQ(form.TreeAGA.SelectedNode(), node::Variable(1));
        EXPECT_EQ(form.TreeAGA.WhatToDrag(), "R1_PRES");
        EXPECT_FALSE(form.ListAnalogDig.PersonDrops(form.TreeAGA, 0));
        EXPECT_TRUE(form.ListViewRuns.PersonDrops(form.TreeAGA, 0));
        EXPECT_EQ(form.TreeAGA.WhatToDrag(), "");
    });
    SeeUnbound(1);
    SeeRow("ListViewRuns", 13, {"13", "R1_PRES", "FX", "2"});
    LeaveByCancel();
    Open(BindingStage::RunInputs);
}

TEST_F(SuggestWorld, InTheStageOfTheCompositionAPickBindsOne) {
    Pick(1);
    TheStory.ClickRow(Form, "ListViewRuns", 10);
    Menu("atar");
    SeeBound(1, "GC_N2 FX 16");
    TheStory.Check([this](Driver&) { EXPECT_FALSE(TheForm().atar.Enabled()); });
    TheStory.Do("drag", [this](Driver&) {
        EXPECT_TRUE(TheForm().ListViewRuns.PersonClicksRow(9));
        EXPECT_TRUE(TheForm().TreeAGA.PersonDrops(TheForm().ListViewRuns, node::Variable(0)));
    });
    SeeBound(0, "GC_C1 FX 15");
    Menu("soltar");
    SeeUnbound(0);
    LeaveByCancel();
    Open(BindingStage::GasInputs);
}

struct NotesWorld : SuggestWorld {
    void SeeNotes(const std::string& text) {
        TheStory.Check([text](Driver& eyes) { EXPECT_THAT(eyes.Text(Form, "Notes"), HasSubstr(text)); });
    }
    void SeeNoNotes() {
        TheStory.Check([](Driver& eyes) { EXPECT_EQ(eyes.Text(Form, "Notes"), ""); });
    }
};

TEST_F(NotesWorld, SayThatANameIsOfAnotherQuantity) {
    SeeNoNotes();
    TheStory.ClickRow(Form, "ListViewRuns", 2);
    Assign(0);
    SeeNotes("Temperature is bound to R1_PRES");
    Menu("deshacer");
    SeeNoNotes();
    LeaveByCancel();
    Open(BindingStage::RunInputs);
}

// Of the station's other runs, too, and of this pass rather than of what the file still says.
TEST_F(NotesWorld, SayThatATagIsSharedWithAnotherRun) {
    Station.Runs.IO[1].GasPress = Bound("R1_PRES", "FX", "2");
    TheStory.ClickRow(Form, "ListViewRuns", 2);
    Assign(1);
    SeeNotes("run 2");
    Menu("deshacer");
    SeeNoNotes();
    LeaveByCancel();
    Open(BindingStage::RunInputs);
    Hand.WriteKey("FlowRuns", "Run2", "Yes", ConfigFile("North"));
    Hand.WriteKey("Run2", "GasPressKDIOTag", "R1_PRES", ConfigFile("North"));
    Hand.WriteKey("Run2", "GasPressKDIOType", "FX", ConfigFile("North"));
    Hand.WriteKey("Run2", "GasPressKDIORegAddr", "2", ConfigFile("North"));
    Station.Runs.IO[1].GasPress = {};
    TheStory.ClickRow(Form, "ListViewRuns", 2);
    Assign(1);
    SeeNoNotes();
    LeaveByCancel();
    Open(BindingStage::RunInputs);
}

// Which the wizard writes anew, and the other flows do not.
TEST_F(NotesWorld, TellOfARunThatThePassLacksWhereItStaysInTheFile) {
    Hand.WriteKey("FlowRuns", "Run3", "Yes", ConfigFile("North"));
    Hand.WriteKey("Run3", "GasPressKDIOTag", "R1_PRES", ConfigFile("North"));
    Hand.WriteKey("Run3", "GasPressKDIOType", "FX", ConfigFile("North"));
    Hand.WriteKey("Run3", "GasPressKDIORegAddr", "2", ConfigFile("North"));
    for (const auto mode : {forms::EditMode::Wizard, forms::EditMode::Configurator}) {
        Session.EditMode = mode;
        TheStory.ClickRow(Form, "ListViewRuns", 2);
        Assign(1);
        mode == forms::EditMode::Wizard ? SeeNoNotes() : SeeNotes("run 3");
        LeaveByCancel();
        Open(BindingStage::RunInputs);
    }
}

TEST_F(NotesWorld, FollowTheFactorsAsTheyAreTyped) {
    TheStory.Type(Form, "Text1", "10");
    SeeNotes("10");
    TheStory.Type(Form, "Text1", "1.001");
    SeeNoNotes();
    TheStory.Type(Form, "Text1", "1.00.1");
    SeeNotes("CalibrationFactor says \"1.00.1\"");
    TheStory.Type(Form, "Text1", "0");
    SeeNotes("CalibrationFactor is 0.");
    TheStory.Type(Form, "Text1", "10");
    TheStory.ClickRow(Form, "ListViewRuns", 2);
    Assign(0);
    SeeNotes("(And ");
    TheStory.Check([this](Driver&) {
        const std::string all = TheForm().Notes.HintOf();
        EXPECT_THAT(all, HasSubstr("A calibration factor of 10"));
        EXPECT_THAT(all, HasSubstr("\r\n"));
        EXPECT_THAT(all, HasSubstr("Temperature is bound to R1_PRES"));
    });
    Menu("deshacer");
    TheStory.Type(Form, "Text1", "");
    SeeNoNotes();
    LeaveByCancel();
    Open(BindingStage::RunInputs);
}

TEST_F(SuggestWorld, ARowsHintNamesClassRegisterAndModule) {
    TheStory.Check([this](Driver&) {
        EXPECT_EQ(TheForm().ListViewRuns.HintOf(1), "R1_TEMP: float input, register FX 1, module INPUTS");
        EXPECT_EQ(TheForm().ListAnalogDig.HintOf(1),
                  "R1_FLOW_HOLD: digital input, register X 5, module COMMANDS");
    });
    LeaveByCancel();
    Open(BindingStage::RunInputs);
}

// All that a person sees of the bindings, the lists and the fields.
std::vector<std::string> Seen(const forms::TagRuns& form) {
    std::vector<std::string> seen;
    for (int at = 1; at <= form.TreeAGA.Count(); ++at)
        seen.push_back(form.TreeAGA.At(at).Text + "|" + form.TreeAGA.At(at).Image);
    for (const ui::ListView* list : {&form.ListViewRuns, &form.ListLong, &form.ListAnalogDig})
        for (int row = 1; row <= list->Count(); ++row)
            seen.push_back(list->Cell(row, 0) + list->Cell(row, 1) + list->Cell(row, 2) + list->Cell(row, 3));
    for (const ui::TextBox* field : {&form.Text1, &form.kfactor, &form.phostd})
        seen.push_back(field->Text());
    return seen;
}

// Whatever is said or asked is agreed to.
struct AgreeingScreen : HeadlessScreen {
    ui::Answer Ask(const ui::Box&) override { return ui::Answer::Ok; }
};

struct Opening {
    const char* Name;
    forms::EditMode Mode;
    BindingStage Stage;

    friend void PrintTo(const Opening& opening, std::ostream* out) { *out << opening.Name; }
};

// A station of which run 1 is open, and nothing that holds a person up.
struct UndoByChance : testing::TestWithParam<Opening> {
    UndoByChance() {
        World.AddStation("North", {});
        World.OpenProject();
        auto& station = World.Station;
        station.CurrentStation = "North";
        station.FlowAlgorithm = config::algorithm::AGA7;
        station.FlagAGA7 = true;
        station.GasDensitySource = config::source::AGA8;
        station.AGA8CalInput = config::CompositionMeasured;
        station.SystemUnits = config::units::Metric;
        World.ActivateRuns({1, 2});
        auto tags = TagsByName();
        for (int more = 0; more < 30; ++more)
            tags.push_back(TagOf("MORE_" + std::to_string(more), "FX", 100 + more, "MORE"));
        for (const char* name : {"R1_PULSES", "R2_PULSES"})
            tags.push_back(TagOf(name, "LX", static_cast<int>(tags.size()) + 200, "INPUTS"));
        project::BuildInventory(tags, World.Session.Inventory);
        project::BuildAvailableLists(World.Session.Inventory, {}, false);
        // Of run 2 there is something to be copied.
        for (const auto& variable : binding::VariablesOf(BindingStage::GasInputs, station, 1))
            *variable.Binding = {"GC_C1", "FX", "15"};
        World.Session.EditMode = GetParam().Mode;
        World.Session.BindingStage = GetParam().Stage;
        World.Session.RunPosition = 0;
        World.Session.RunNumber = 0;
    }
    ~UndoByChance() override { World.Program.Forms.Unload<forms::TagRuns>(); }
    UndoByChance(const UndoByChance&) = delete;
    UndoByChance& operator=(const UndoByChance&) = delete;

    int Draw(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    void ClickSomeRow() {
        ui::ListView* const lists[] = {&form_.ListViewRuns, &form_.ListViewRuns, &form_.ListLong,
                                       &form_.ListAnalogDig};
        ui::ListView& list = *lists[Draw(4)];
        if (list.Count() > 0)
            (void)list.PersonClicksRow(Draw(list.Count()) + 1);
    }
    void Act();

    static constexpr unsigned Seed = 20261122;
    AgreeingScreen Screen;
    FakeProgram World{Screen};

protected:
    forms::TagRuns& form_ = World.Program.Forms.Get<forms::TagRuns>();

private:
    std::mt19937 random_{Seed};
};

void UndoByChance::Act() {
    auto& form = form_;
    const std::function<void()> acts[] = {
        [&] { (void)form.TreeAGA.PersonClicks(Draw(form.TreeAGA.Count()) + 1); },
        [&] { (void)form.TreeAGA.PersonClicks(node::Variable(Draw(form.TreeAGA.Count() / 7))); },
        [&] { ClickSomeRow(); },
        [&] { (void)form.tomar.PersonClicks(); },
        [&] { (void)form.soltar.PersonClicks(); },
        [&] { (void)form.atar.PersonClicks(); },
        [&] { (void)form.TakeSure.PersonClicks(); },
        [&] { (void)form.SuggestTags.PersonClicks(); },
        [&] { (void)form.repuestos.PersonClicks(); },
        [&] { (void)form.Command1.PersonClicks(); },
        [&] { (void)form.Command4.PersonClicks(); },
        [&] { (void)(Draw(4) == 0 ? form.Command3 : form.Command6).PersonClicks(); },
        [&] { (void)(form.Option1[1].PersonClicks(), form.CopyGasCompButton.PersonClicks()); },
        [&] { (void)form.TreeAGA.PersonDrops(form.ListViewRuns, Draw(form.TreeAGA.Count()) + 1); },
        [&] { (void)form.ListViewRuns.PersonDrops(form.TreeAGA, 0); },
        [&] { (void)form.FilterKind.PersonSelects(Draw(3)); },
        [&] { form.Filter.PersonEdits(Draw(2) == 0 ? "" : "r1"); },
    };
    acts[Draw(static_cast<int>(std::size(acts)))]();
}

// Whatever was done: going back shows each state that there was, and forth again shows them once more.
TEST_P(UndoByChance, ShowsEveryStateAgain) {
    form_.Show();
    std::vector<std::vector<std::string>> states{Seen(form_)};
    int changes = 0;
    for (int round = 0; round < 400; ++round) {
        SCOPED_TRACE("seed " + std::to_string(Seed) + ", round " + std::to_string(round));
        Act();
        if (auto now = Seen(form_); now != states.back()) {
            states.push_back(std::move(now));
            ++changes;
        }
        if (Draw(5) != 0)
            continue;
        const auto back = static_cast<std::size_t>(Draw(static_cast<int>(states.size())));
        for (std::size_t i = 1; i <= back; ++i) {
            ASSERT_TRUE(form_.deshacer.PersonClicks());
            ASSERT_EQ(Seen(form_), states[states.size() - 1 - i]);
        }
        std::size_t left = back;
        for (; left > 0 && Draw(4) != 0; --left) {
            ASSERT_TRUE(form_.rehacer.PersonClicks());
            ASSERT_EQ(Seen(form_), states[states.size() - left]);
        }
        // What is not done again is forgotten by the next act.
        states.resize(states.size() - left);
    }
    EXPECT_GT(changes, 20);
}

INSTANTIATE_TEST_SUITE_P(
    Stages, UndoByChance,
    testing::Values(Opening{"wizard_inputs", forms::EditMode::Wizard, BindingStage::RunInputs},
                    Opening{"modify_inputs", forms::EditMode::ModifyTags, BindingStage::RunInputs},
                    Opening{"wizard_gas", forms::EditMode::Wizard, BindingStage::GasInputs},
                    Opening{"modify_gas", forms::EditMode::ModifyTags, BindingStage::GasInputs}),
    By(&Opening::Name));

} // namespace
} // namespace gfc::test
