#include "TagRunsWorld.h"

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

// Station "North" with runs 1 and 2, of which run 1 is open; its tags are named after their runs.
struct SuggestWorld : TagRunsWorld, testing::Test {
    SuggestWorld() {
        ActivateRuns({1, 2});
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
        project::BuildInventory(tags, Session.Inventory);
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
    SeeNote(0, "R1_TEMP ? (sure)");
    SeeNote(1, "R1_PRES ? (sure)");
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
    SeeNote(1, "R1_PRES ? (sure)");
    SeeRows("ListViewRuns", 13);
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
    SeeNote(2, "SPARE_1 ? (fair)");
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
    SeeNote(0, "GC_C1 ? (sure)");
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

// All that a person sees of the bindings and the lists.
std::vector<std::string> Seen(forms::TagRuns& form) {
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

// One act of a person, chosen by chance; those that ask a question first have nothing to do with undoing.
void ActByChance(forms::TagRuns& form, std::mt19937& random, bool mayUndoAll) {
    switch (random() % 9) {
    case 0:
        (void)form.TreeAGA.PersonClicks(
            static_cast<int>(random() % static_cast<unsigned>(form.TreeAGA.Count())) + 1);
        return;
    case 1:
        if (form.ListViewRuns.Count() > 0)
            (void)form.ListViewRuns.PersonClicksRow(
                static_cast<int>(random() % static_cast<unsigned>(form.ListViewRuns.Count())) + 1);
        return;
    case 2:
    case 3:
        (void)form.tomar.PersonClicks();
        return;
    case 4:
        (void)form.soltar.PersonClicks();
        return;
    case 5:
        (void)form.TakeSure.PersonClicks();
        return;
    case 6:
        // In the modify flow that puts rows into the lists that read "Not Configured".
        if (mayUndoAll)
            (void)form.Command3.PersonClicks();
        return;
    case 7:
        (void)form.SuggestTags.PersonClicks();
        return;
    default:
        if (form.TreeAGA.SelectedNode() > 1 &&
            form.TreeAGA.At(node::AddressValue(node::PositionOf(form.TreeAGA.SelectedNode()))).Text ==
                binding::NotConfigured)
            (void)form.Command1.PersonClicks();
    }
}

struct UndoByChance : SuggestWorld, testing::WithParamInterface<forms::EditMode> {};

// Whatever was done: going back shows each state that there was, and forth again shows them once more.
TEST_P(UndoByChance, ShowsEveryStateAgain) {
    constexpr unsigned Seed = 20261122;
    Session.EditMode = GetParam();
    TheStory.Do("act by chance", [this](Driver&) {
        std::mt19937 random(Seed);
        forms::TagRuns& form = TheForm();
        std::vector<std::vector<std::string>> states{Seen(form)};
        int changes = 0;
        for (int round = 0; round < 400; ++round) {
            SCOPED_TRACE("seed " + std::to_string(Seed) + ", round " + std::to_string(round));
            ActByChance(form, random, GetParam() == forms::EditMode::Wizard);
            if (auto now = Seen(form); now != states.back()) {
                states.push_back(std::move(now));
                ++changes;
            }
            if (random() % 5 != 0)
                continue;
            const auto back = random() % states.size();
            for (std::size_t i = 1; i <= back; ++i) {
                ASSERT_TRUE(form.deshacer.PersonClicks());
                ASSERT_EQ(Seen(form), states[states.size() - 1 - i]);
            }
            std::size_t left = back;
            for (; left > 0 && random() % 4 != 0; --left) {
                ASSERT_TRUE(form.rehacer.PersonClicks());
                ASSERT_EQ(Seen(form), states[states.size() - left]);
            }
            // What is not done again is forgotten by the next act.
            while (form.rehacer.Enabled() && random() % 2 == 0 && left > 0) {
                ASSERT_TRUE(form.rehacer.PersonClicks());
                --left;
            }
            states.resize(states.size() - left);
        }
        EXPECT_GT(changes, 20);
    });
    LeaveByCancel();
    Open(BindingStage::RunInputs);
}

INSTANTIATE_TEST_SUITE_P(Modes, UndoByChance,
                         testing::Values(forms::EditMode::Wizard, forms::EditMode::ModifyTags));

} // namespace
} // namespace gfc::test
