#include "SweepWorld.h"

#include "PlainStation.h"
#include "ReadBack.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/wizard/WizardFC.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace gfc::test::sweep {

namespace {

const std::string wizard = "WizardFC";
const std::string window = "GFCPrincipal";
const std::string tree = "TreeGFC";
const std::string north = "All Stations\\North";

// A turbine with a densimeter has no pressure page: there the gage pressure is chosen under another source.
bool GoesRoundThePressure(const Choice& choice) {
    return choice.AGA7() && choice.Densimeter() && choice.Pressure != Pressure::Absolute;
}

bool HasPressurePage(const Choice& choice) {
    return !choice.AGA7() || !choice.Densimeter() || GoesRoundThePressure(choice);
}

moves::EditorActs MechanicalActs(const Choice& choice) {
    if (choice.HasOrifice() && choice.ExternalDiameters)
        return [](Story& story, int) { story.Click("FrParMec", "OptExt").Click("FrParMec", "cmdAceptar"); };
    if (choice.Accelabar())
        return [entry = AccelabarEntry(choice)](Story& story, int) {
            story.Select("FrAccelabar", "Combo1", entry).Click("FrAccelabar", "Command1");
        };
    return {};
}

void ExpectRows(const ui::ListView& list, const PlainPage& page, const std::string& where) {
    std::vector<std::string> columns;
    for (const auto& column : list.Columns())
        columns.push_back(column.Heading);
    EXPECT_EQ(columns, page.Columns) << where;
    ASSERT_EQ(list.Count(), static_cast<int>(page.Rows.size())) << where;
    for (int row = 1; row <= list.Count(); ++row)
        EXPECT_EQ(list.At(row), page.Rows[static_cast<std::size_t>(row - 1)]) << where;
}

// Of five runs two, other ones from variation to variation.
std::vector<int> RunsLookedAt(const Choice& choice) {
    if (choice.Runs.size() < 3)
        return choice.Runs;
    const int first = choice.Units;
    const int second = (first + 1 + static_cast<int>(choice.Pressure)) % 5;
    return {first + 1, second + 1};
}

} // namespace

SweepWorld::SweepWorld() {
    project::TagList tags;
    for (const auto& tag : StationTags())
        tags.push_back({tag.Name, std::stoi(tag.Address), tag.Type, tag.Module, tag.ModuleType});
    AddStation("North", std::move(tags));
    Clock.Now = FixedClock(2023, 3, 15, LocalHour, LocalMinute).Now;
    TimeZone = FixedZone(ZoneBias);
}

void SweepWorld::TellConfiguration(const Choice& choice) {
    moves::StartUp(TheStory);
    moves::OpenWizard(TheStory, "North");
    moves::SelectRuns(TheStory, choice.Runs);
    TellPages(choice);
    moves::PassAllRuns(TheStory,
                       {.Standard = choice.Standard,
                        .Source = choice.Source,
                        .Chromatograph = choice.Chromatograph,
                        .GageExternal = choice.External(),
                        .Units = choice.Units},
                       choice.Runs, MechanicalActs(choice));
    moves::SaveAndClose(TheStory);
}

void SweepWorld::TellPages(const Choice& choice) {
    TellFirstPage(choice);
    TheStory.Click(wizard, "siguiente").Click(wizard, "siguiente");
    if (HasPressurePage(choice))
        TellPressurePage(choice);
    TellGasPage(choice);
    TheStory.Click(wizard, "finalizar").Click("Step", "Command1");
}

void SweepWorld::TellFirstPage(const Choice& choice) {
    TheStory.Select(wizard, "CombStandard", choice.Standard)
        .Select(wizard, "cbSourceGas", GoesRoundThePressure(choice) ? 1 : choice.Source);
    // Choosing again what the standard has brought would take its viscosity back.
    if (choice.Units != (choice.GBT() ? 4 : 0))
        TheStory.Select(wizard, "CombUnits", choice.Units);
    if (choice.Traces)
        TheStory.Click(wizard, "Check1");
}

void SweepWorld::TellPressurePage(const Choice& choice) {
    if (choice.Pressure != Pressure::Absolute)
        TheStory.Click(wizard, "OptGagePress");
    if (choice.External())
        TheStory.Click(wizard, "OptAtmPressExt");
    if (GoesRoundThePressure(choice))
        TheStory.Click(wizard, "atras")
            .Click(wizard, "atras")
            .Select(wizard, "cbSourceGas", choice.Source)
            .Click(wizard, "siguiente");
    TheStory.Click(wizard, "siguiente");
}

void SweepWorld::TellGasPage(const Choice& choice) {
    if (choice.Incompressible)
        TheStory.Click(wizard, "OptNoComprensible");
    if (choice.BeyondHands())
        TheStory.SeeEnabled(wizard, "OptCromatografo", false).Check([this](Driver&) {
            Program.Forms.Get<forms::WizardFC>().OptCromatografo.SetValue(true);
        });
    else if (choice.Chromatograph)
        TheStory.Click(wizard, "OptCromatografo");
}

void SweepWorld::TellLook(const Choice& choice, const PlainFile& file) {
    TellTree(choice);
    TheStory.ClickNode(window, tree, north + "\\Common Parameters").Check([=, this](Driver&) {
        ExpectStation(Station, choice, file);
    });
    int tab = 0;
    for (const auto& page : CommonPages(choice, file)) {
        TheStory.SelectTab(window, "SSTab1", tab);
        SeePage(page, "common tab " + std::to_string(tab++));
    }
    for (const int run : RunsLookedAt(choice)) {
        const std::string name = "Run " + std::to_string(run);
        TheStory.ClickNode(window, tree, north + "\\Individual Parameters\\" + name)
            .Check([=, this](Driver&) { ExpectRun(Station, choice, file, run); });
        SeeHeadings(RunHeadings(choice), name);
        tab = 0;
        for (const auto& page : RunPages(choice, file, run)) {
            TheStory.SelectTab(window, "SSTab2", tab);
            SeePage(page, name + " tab " + std::to_string(tab++));
        }
    }
    moves::Exit(TheStory);
}

void SweepWorld::TellTree(const Choice& choice) {
    TheStory.Check([choice](Driver& d) {
        EXPECT_EQ(d.NodeImage(window, tree, north), "StationConfig");
        for (int run = 1; run <= 5; ++run) {
            const bool on = std::count(choice.Runs.begin(), choice.Runs.end(), run) > 0;
            EXPECT_EQ(
                d.NodeImage(window, tree, north + "\\Individual Parameters\\Run " + std::to_string(run)),
                on ? "Run" : "NoRun");
        }
    });
    TheStory.Check([choice](Driver& d) { EXPECT_EQ(d.Cell(window, "ListView1", 1, 1), "Yes"); });
}

void SweepWorld::SeeHeadings(const std::vector<std::string>& headings, const std::string& where) {
    TheStory.Check([=, this](Driver&) {
        const auto& pane = Program.Forms.Get<forms::GFCPrincipal>().SSTab2;
        for (std::size_t tab = 0; tab < headings.size(); ++tab)
            EXPECT_EQ(pane.TabCaption(static_cast<int>(tab)), headings[tab]) << where;
    });
}

void SweepWorld::SeePage(const PlainPage& page, const std::string& where) {
    TheStory.Check([=, this](Driver&) {
        auto& main = Program.Forms.Get<forms::GFCPrincipal>();
        for (const ui::ListView* list :
             std::initializer_list<const ui::ListView*>{&main.ListView1, &main.ListView2, &main.ListView3}) {
            EXPECT_EQ(list->Visible(), list->Name() == page.List) << where << " " << list->Name();
            if (list->Name() == page.List)
                ExpectRows(*list, page, where);
            else
                EXPECT_EQ(list->Count(), 0) << where;
        }
        EXPECT_EQ(main.Label1.Visible(), !page.Line.empty()) << where;
        if (!page.Line.empty()) {
            EXPECT_EQ(main.Label1.Caption(), page.Line) << where;
        }
    });
}

} // namespace gfc::test::sweep
