#include "binding/Assignment.h"
#include "config/Vocabulary.h"
#include "forms/binding/TagRuns.h"
#include "forms/main_window/GFCPrincipal.h"
#include "qt/ProbeForm.h"
#include "qt/support/RandomSequence.h"
#include "qt/support/WindowDriver.h"
#include "qt/support/WindowLooks.h"
#include "scenarios/Moves.h"
#include "support/Named.h"
#include "support/TestFolders.h"
#include "support/World.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QHeaderView>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <gtest/gtest.h>

#include <memory>

// What is highlighted is what happens: after every event, in every list and tree, and in the form behind
// them.
namespace gfc::test {

namespace {

project::TagList TagsNamed(const std::string& stem, const std::string& type, int count, int firstRegister) {
    project::TagList tags;
    for (int i = 0; i < count; ++i) {
        project::Tag tag;
        tag.TagName = stem + std::to_string(i + 1);
        tag.RegAddr = firstRegister + i;
        tag.RegType = type;
        tags.push_back(tag);
    }
    return tags;
}

} // namespace

// A form whose clicks take rows away, rebuild the tree, open boxes and disable the window; and a field that
// takes the focus back.
class HighlightOfAProbe : public ::testing::Test {
protected:
    HighlightOfAProbe() {
        Form->leave.OnClick = {}; // a key may come upon the button
        Form->rows.OnRowClick = [this](int) { ChangeRows(); };
        Form->tree.OnNodeClick = [this](int) { ChangeTree(); };
        Form->list.OnClick = [this] { ChangeList(); };
        Screen.OnAsk = [this](const ui::Box& box) { return AskReally(box); };
        Steps.Between = [this] { return Change(); };
    }

    void FillRows() {
        for (int row = 1; row <= 12; ++row)
            Form->rows.AddRow({std::to_string(row), row % 3 == 0 ? "free" : "row " + std::to_string(row)});
    }
    void BuildTree() {
        Form->tree.Clear();
        for (int root = 1; root <= 3; ++root) {
            const int branch = Form->tree.Add(0, "", "Root " + std::to_string(root));
            for (int leaf = 1; leaf <= 3; ++leaf)
                Form->tree.Add(branch, "", "Free " + std::to_string(leaf));
            Form->tree.SetExpanded(branch, root != 2);
        }
    }
    void ChangeRows() {
        const int first = 1 + Draw(8);
        switch (Draw(24)) {
        case 0:
            return Form->rows.RemoveRows(first, 1 + Draw(4));
        case 1:
            return Form->rows.ClearRows();
        case 2:
            return FillRows();
        case 3:
            return Form->rows.SelectRow(Draw(8));
        case 4:
            return Disturb();
        default:
            return;
        }
    }
    void ChangeTree() {
        switch (Draw(24)) {
        case 0:
            return BuildTree();
        case 1:
            return Form->tree.Select(Draw(Form->tree.Count() + 1));
        case 2:
            return Disturb();
        default:
            return;
        }
    }
    void ChangeList() {
        if (Draw(20) != 0)
            return;
        Form->list.Clear();
        for (const char* entry : {"red", "green", "rose", "blue", "grey"})
            Form->list.AddEntry(entry);
    }
    void Disturb() {
        if (Draw(2) == 0)
            Screen.Ask({.Title = "Probe", .Text = "In between"});
        Form->SetEnabled(false);
        Form->SetEnabled(true);
    }

    // A real box, behind which the hands go on.
    ui::Answer AskReally(const ui::Box& box) {
        QTimer::singleShot(0, &Timers, [this] {
            for (int event = 0; event < 3; ++event)
                (void)Steps.Hands.Act();
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()); dialog != nullptr)
                dialog->reject();
        });
        return Screen.qt::QtScreen::Ask(box);
    }

    std::string Change() {
        switch (Draw(12)) {
        case 0:
            ChangeRows();
            return "rows change";
        case 1:
            FillRows();
            return "rows come";
        case 2:
            Form->rows.RemoveRows(1 + Draw(6), 1 + Draw(3));
            return "rows go";
        case 3:
            BuildTree();
            return "the tree is built";
        case 4:
            Form->tree.Select(Draw(Form->tree.Count() + 1));
            return "a node is selected";
        case 5:
            Form->rows.SetEnabled(!Form->rows.Enabled());
            Form->tree.SetEnabled(!Form->tree.Enabled());
            return "lists turn on or off";
        case 6:
            Form->rows.SetEnabled(true);
            Form->tree.SetEnabled(true);
            return "lists are on";
        case 7:
            Form->number.SetText(Draw(2) == 0 ? "13" : "1");
            Form->number.SetFocus();
            return "a field has the focus";
        case 8:
            Form->list.SetListIndex(Draw(4) - 1);
            return "an entry is selected";
        case 9:
            return ReadAloud();
        default:
            Settle();
            return "all is worked off";
        }
    }
    // A screen reader selects without any event.
    std::string ReadAloud() {
        auto* table = QAccessible::queryAccessibleInterface(FindIn<QTableView>(FindWindow("Probe"), "rows"));
        if (Form->rows.Count() > 0 && Form->rows.Usable())
            table->tableInterface()->selectRow(Draw(Form->rows.Count()));
        Settle();
        return "a screen reader selects a row";
    }
    int Draw(int count) { return Steps.Hands.Draw(count); }

    QuickScreen Screen;
    QObject Timers;
    std::shared_ptr<ProbeForm> Form = std::make_shared<ProbeForm>(Screen);
    Sequence Steps{*Form, Shown(), Seed()};

private:
    QWidget& Shown() {
        Screen.AddDesign({"Probe", SetUpProbe});
        Form->Show();
        Settle();
        return *FindWindow("Probe");
    }
};

TEST_F(HighlightOfAProbe, is_what_the_controls_have_selected) {
    constexpr int events = 6000;
    EXPECT_EQ(Steps.Run(events), events);
    TellOf("a form with a control of each kind", events);
}

// Each stage of the binding: what Assign takes is what is highlighted.
class HighlightOfTagRuns : public ::testing::TestWithParam<binding::BindingStage> {
protected:
    HighlightOfTagRuns() {
        Program.AddStation("North", {});
        Program.OpenProject();
        auto& station = Program.Station;
        station.CurrentStation = "North";
        station.FlowAlgorithm = config::algorithm::AGA7;
        station.FlagAGA7 = true;
        station.GasDensitySource = config::source::AGA8;
        station.AGA8CalInput = config::CompositionMeasured;
        Program.ActivateRuns({2, 4});
        Program.Session.EditMode = forms::EditMode::Wizard;
        Program.Session.BindingStage = GetParam();
        auto& pools = Program.Session.Inventory;
        pools.AvailFloat = TagsNamed("F", "FX", 26, 1001);
        pools.AvailLong = TagsNamed("L", "LX", 3, 2001);
        pools.AvailAnalog = TagsNamed("A", "AX", 2, 3001);
        pools.AvailDigital = TagsNamed("D", "X", 5, 4001);
    }
    // What Continue and Cancel close is opened anew.
    int Run(int events) {
        int sent = 0;
        while (sent < events && !HasFailure()) {
            form_ = &Program.Program.Forms.Get<forms::TagRuns>();
            const auto alive = form_->KeepAlive();
            form_->Show();
            Settle();
            Sequence steps(*form_, *FindWindow("TagRuns"), Seed() + static_cast<unsigned>(sent));
            steps.Between = [&] { return Command(steps.Hands); };
            steps.Also = [this] { return RowsAreThoseToTake(); };
            sent += std::max(1, steps.Run(events - sent));
        }
        return sent;
    }

private:
    [[nodiscard]] ::testing::AssertionResult RowsAreThoseToTake() const {
        using binding::OfferList;
        const std::pair<OfferList, const ui::ListView*> lists[] = {
            {OfferList::Float, &form_->ListViewRuns},
            {OfferList::Long, &form_->ListLong},
            {OfferList::AnalogDig, &form_->ListAnalogDig}};
        for (const auto& [offer, list] : lists) {
            const int taken = form_->RowToTake(offer);
            if (list->SelectedRow() != (taken <= list->Count() ? taken : 0))
                return ::testing::AssertionFailure() << list->Name() << " shows row " << list->SelectedRow()
                                                     << ", and row " << taken << " would be taken";
        }
        return ::testing::AssertionSuccess();
    }
    std::string Command(RandomHands& hands) {
        // The hands have come upon the filter: without rows nothing would be bound any more.
        if (form_->FilterKind.ListIndex() > 0 && hands.OneIn(2)) {
            (void)form_->FilterKind.PersonSelects(0);
            return "all rows are shown";
        }
        const char* const buttons[] = {"Command1", "Command1", "Command1", "Command4",
                                       "Command4", "Command3", "Command6"};
        const char* name = buttons[hands.Draw(std::size(buttons))];
        auto* button = FindIn<QPushButton>(FindWindow("TagRuns"), name);
        const bool assigns = std::string(name) == "Command1";
        const auto before = assigns ? Offered() : Cells{};
        if (button->isVisible() && button->isEnabled())
            QTest::keyClick(button, Qt::Key_Space);
        if (assigns)
            ExpectTaken(before);
        return name;
    }

    using Cells = std::vector<std::pair<int, QString>>; // of each list: its rows, the register highlighted
    [[nodiscard]] static Cells Offered() {
        Cells cells;
        for (const char* list : {"ListViewRuns", "ListLong", "ListAnalogDig"}) {
            const auto* view = FindIn<QTableView>(FindWindow("TagRuns"), list);
            cells.emplace_back(view->model()->rowCount(),
                               view->currentIndex().siblingAtColumn(3).data().toString());
        }
        return cells;
    }
    // The list that has lost a row has lost the one that was highlighted, to the node that was.
    void ExpectTaken(const Cells& before) {
        const Cells after = Offered();
        for (std::size_t list = 0; list < before.size(); ++list) {
            if (after[list].first == before[list].first)
                continue;
            const auto& tree = form_->TreeAGA;
            const int position = binding::node::PositionOf(tree.SelectedNode());
            EXPECT_EQ(tree.At(binding::node::AddressValue(position)).Text, before[list].second.toStdString());
            ++assigned_;
        }
    }

protected:
    QuickScreen Screen;
    FakeProgram Program{Screen};
    forms::TagRuns* form_ = nullptr;
    int assigned_ = 0;
};

TEST_P(HighlightOfTagRuns, is_what_is_bound) {
    constexpr int events = 1500;
    EXPECT_GE(Run(events), events);
    // There only all at once. How many it comes to lies in where the machine's font puts the rows.
    if (GetParam() != binding::BindingStage::GasInputs) {
        EXPECT_GT(assigned_, 1);
    }
    TellOf("TagRuns", events);
}

std::string NameOfStage(const ::testing::TestParamInfo<binding::BindingStage>& stage) {
    const char* const names[] = {"None",       "RunInputs", "RunOutputs",
                                 "GasOutputs", "GasInputs", "CommonInputs"};
    return names[static_cast<int>(stage.param)];
}

INSTANTIATE_TEST_SUITE_P(Stages, HighlightOfTagRuns,
                         ::testing::Values(binding::BindingStage::RunInputs,
                                           binding::BindingStage::RunOutputs,
                                           binding::BindingStage::GasInputs,
                                           binding::BindingStage::CommonInputs),
                         NameOfStage);

// The main window: the commands work on the node that is highlighted, and touch no other station's file.
class HighlightOfTheTree : public ::testing::Test {
protected:
    HighlightOfTheTree() {
        moves::ThreeStations(Program);
        Program.OpenProject();
        Configure();
        Screen.OnAsk = [](const ui::Box& box) {
            return box.Title == "Delete Configuration"    ? ui::Answer::Yes
                   : box.TheButtons == ui::Buttons::YesNo ? ui::Answer::No
                                                          : ui::Answer::Ok;
        };
        Form->Show();
        Settle();
        Steps = std::make_unique<Sequence>(*Form, *FindWindow("GFCPrincipal"), Seed());
        Steps->Between = [this] { return Between(); };
        Steps->Also = [this] { return IsRemembered(); };
    }
    void Configure() {
        for (const char* station : {"North", "South"})
            Program.Files.Content[Program.ConfigFile(station)] = Golden("wizard/aga3_densimeter.ini");
    }

    // The form's own account of the selected node.
    [[nodiscard]] ::testing::AssertionResult IsRemembered() const {
        const auto& session = Program.Session;
        const int node = Form->TreeGFC.SelectedNode();
        if (node <= 1) {
            const std::string text = node == 0 ? "" : "All Stations";
            return session.SelectedNodeText == text
                       ? ::testing::AssertionSuccess()
                       : ::testing::AssertionFailure() << "remembers " << session.SelectedNodeText;
        }
        const std::string path = Form->TreeGFC.FullPath(node);
        if (session.SelectedPath == path && session.SelectedNodeText == Form->TreeGFC.At(node).Text &&
            (path + "\\").starts_with("All Stations\\" + session.Station.CurrentStation + "\\"))
            return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << path << " is selected, " << session.SelectedPath << " of "
                                             << session.Station.CurrentStation << " remembered";
    }
    // What is done is done to the station of the highlighted node alone.
    std::string Command() {
        const auto before = Program.Files.Content;
        const auto* view = FindIn<QTreeView>(FindWindow("GFCPrincipal"), "TreeGFC");
        const std::string at = PathOf(view->currentIndex());
        const char* const commands[] = {"dRun", "dRun", "erun", "undo"};
        const char* name = commands[Steps->Hands.Draw(std::size(commands))];
        FindIn<QAction>(FindWindow("GFCPrincipal"), name)->trigger();
        for (const char* station : {"North", "South"}) {
            const std::string file = Program.ConfigFile(station);
            const bool same = before.contains(file) == Program.Files.Content.contains(file) &&
                              (!before.contains(file) || before.at(file) == Program.Files.Content.at(file));
            EXPECT_TRUE(same || at.find(station) != std::string::npos)
                << name << " on " << at << " changed " << station;
            changes_ += same ? 0 : 1;
        }
        if (Steps->Hands.OneIn(3))
            Restore();
        return name;
    }
    void Restore() {
        Configure();
        Form->RebuildAfterCommand();
        for (int node = 1; node <= Form->TreeGFC.Count(); ++node)
            Form->TreeGFC.EnsureVisible(node);
    }
    [[nodiscard]] static std::string PathOf(const QModelIndex& node) {
        return node.isValid() ? PathOf(node.parent()) + "\\" + node.data().toString().toStdString() : "";
    }
    std::string Between() {
        switch (Steps->Hands.Draw(7)) {
        case 6: {
            auto* header = FindIn<QTableView>(FindWindow("GFCPrincipal"), "ListView1")->horizontalHeader();
            header->setSortIndicator(Steps->Hands.Draw(7) - 1,
                                     Steps->Hands.OneIn(2) ? Qt::AscendingOrder : Qt::DescendingOrder);
            return "the table is sorted";
        }
        case 0:
            (void)Form->SSTab1.PersonSelects(Steps->Hands.Draw(3));
            return "a page of the station";
        case 1:
            (void)Form->SSTab2.PersonSelects(Steps->Hands.Draw(5));
            return "a page of a run";
        case 2:
            Settle();
            return "all is worked off";
        default:
            return Command();
        }
    }

    QuickScreen Screen;
    FakeProgram Program{Screen};
    forms::GFCPrincipal* Form = &Program.Program.Forms.Get<forms::GFCPrincipal>();
    std::unique_ptr<Sequence> Steps;
    int changes_ = 0;
};

TEST_F(HighlightOfTheTree, is_what_the_commands_work_on) {
    constexpr int events = 2500;
    EXPECT_EQ(Steps->Run(events), events);
    EXPECT_GT(changes_, 0);
    TellOf("the main window", events);
}

} // namespace gfc::test
