#include "scenarios/Moves.h"
#include "scenarios/Scenario.h"
#include "support/InJobs.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using ui::Answer;
using ui::Icon;

const std::string configurador = "Configurador";
const std::string north = "All Stations\\North";
const std::string northFile = InJobs("KDOrmAGA_plant_North.ini");

const std::string stored =
    "; by hand\r\n"
    "[Station]\r\nEnableDataTraces=No\r\n"
    "[FlowRuns]\r\nRun1=No\r\nRun2=Yes\r\nFlowAlgorithm=AGA3\r\n"
    "GasDensitySource=MEASURED\r\nSystemUnits=Metric\r\n"
    "WrkFloatModName=VF0\r\nWrkIntLongModName=VL0\r\nWrkAnalogModName=VA0\r\n"
    "Run11=No\r\nRun22=Yes\r\n"
    "[AGA3]\r\nStandardT=15.00\r\nStandardP=1.01325\r\nFlowingViscosity=0.010268\r\n"
    "IsentropicCoeff=1.3\r\nCompressible=Yes\r\nPressType=Gage\r\nExtAtmPress=Yes\r\n"
    "CommonPaKDIORegAddr=1002\r\nCommonPaKDIOTag=FT-2\r\nCommonPaKDIOType=FX\r\n"
    "[Run2]\r\nStandardT=15.00\r\nGasDPKDIORegAddr=1009\r\nGasDPKDIOTag=FT-9\r\nGasDPKDIOType=FX\r\n";

void NorthIsConfigured(FakeProgram& program) {
    moves::ThreeStations(program);
    program.Files.Content[northFile] = stored;
}

void Configure(Story& story, const std::string& node) {
    story.ClickNode("GFCPrincipal", "TreeGFC", node).Menu("GFCPrincipal", "ConfigPar").SeeShown(configurador);
}

void Cancel(Story& story) {
    const std::string question =
        "Do you want to cancel and discard any changes made to the current configuration?";
    story.Menu(configurador, "Salir2")
        .Box("Orm Gas Flow Computer", question, Icon::None, Answer::No)
        .SeeShown(configurador)
        .Menu(configurador, "Salir2")
        .Box("Orm Gas Flow Computer", question, Icon::None, Answer::Yes)
        .SeeShown(configurador, false)
        .SeeShown("GFCPrincipal");
}

void Save(Story& story) {
    story.Menu(configurador, "SalvarSalir2")
        .Box("Configuration Completed.", "Do you want to save your changes?", Icon::None, Answer::Yes)
        .SeeShown(configurador, false)
        .SeeShown("GFCPrincipal");
}

Scenario Told(const std::string& name, std::function<void(FakeProgram&)> prepare,
              std::function<void(Story&)> tell, std::function<void(FakeProgram&)> after) {
    return {name, std::move(prepare),
            [tell = std::move(tell)](Story& story) {
                moves::StartUp(story);
                tell(story);
                moves::Exit(story);
            },
            std::move(after)};
}

std::string ValueOf(FakeProgram& program, const std::string& section, const std::string& key) {
    return program.Program.Ini.ReadKey(section, key, northFile);
}

// From the picture button to the last dialog.
void PassOverRun2(Story& story) {
    story.Click(configurador, "Command1")
        .SeeText("Step", "Label1",
                 "Press 'Continue' to configure common and individual Run parameters and I/O...")
        .Click("Step", "Command1");
    moves::Continue(story, "Run 2 Accelabar parameters", "Step 1 of 5");
    story.SeeCaption("FrAccelabar", "Station: North, Run: 2 Accelabar Parameters");
    moves::AcceptEditor(story, "FrAccelabar");
    moves::Continue(story, "Run 2 flow calculation input tag assignments", "Step 2 of 5");
    moves::AutoBind(story);
    moves::Continue(story, "Run 2 flow calculation output tag assignments", "Step 3 of 5");
    moves::AutoBind(story);
    moves::Continue(story, "Run 2 external SGERG-88 Gas Parameters I/O configuration", "Step 4 of 5");
    moves::AutoBind(story);
    moves::Continue(story, "Run 2 gas properties calculation output tag assignments", "Step 5 of5");
    moves::AutoBind(story);
}

void ANewConfiguration(Story& story) {
    Configure(story, north);
    story.SeeEnabled(configurador, "SSTab2", false)
        .Menu(configurador, "ConfigAll")
        .Select(configurador, "cbSourceGas", 1)
        .Box("Orm Gas Flow Computer Configurator", "Error: please select at least one run", Icon::Exclamation)
        .SeeText(configurador, "cbSourceGas", "Densimeter")
        .Click(configurador, "Run22")
        .Select(configurador, "CombStandard", 2)
        .Select(configurador, "cbSourceGas", 2)
        .Select(configurador, "CombUnits", 2)
        .SelectTab(configurador, "SSTab2", 1)
        .SeeText(configurador, "Text1_1", "15.00")
        .SeeEnabled(configurador, "Text4_1", false)
        .SelectTab(configurador, "SSTab2", 3)
        .Click(configurador, "Option5")
        .Menu(configurador, "SalvarSalir")
        .Box("I/O Tag assignments configuration...", "", Icon::Exclamation)
        .SelectTab(configurador, "SSTab2", 0);
    PassOverRun2(story);
    story.SeeShown(configurador).SeeEnabled(configurador, "SSTab2");
    Save(story);
    story.Check([](Driver& d) {
        EXPECT_EQ(d.NodeImage("GFCPrincipal", "TreeGFC", north), "StationConfig");
        EXPECT_EQ(d.NodeImage("GFCPrincipal", "TreeGFC", north + "\\Individual Parameters\\Run 2"), "Run");
    });
}

void NewConfigurationStands(FakeProgram& program) {
    EXPECT_EQ(ValueOf(program, "FlowRuns", "Run2"), "Yes");
    EXPECT_EQ(ValueOf(program, "FlowRuns", "Run1"), "No");
    EXPECT_EQ(ValueOf(program, "FlowRuns", "FlowAlgorithm"), "Accelabar-AGA-3-1992");
    EXPECT_EQ(ValueOf(program, "SGERG88", "AGA8CalInput"), "MEASURED");
    EXPECT_EQ(ValueOf(program, "Run2", "SystemUnits"), "Metric");
    EXPECT_EQ(ValueOf(program, "Run2", "AccelabarSize"), "3");
    EXPECT_EQ(program.Library.FilesToLoad.size(), 1U);
}

void CommonParametersChange(Story& story) {
    Configure(story, north + "\\Common Parameters");
    story.Menu(configurador, "PG")
        .SeeEnabled(configurador, "CombStandard", false)
        .SeeEnabled(configurador, "Run11", false)
        .Select(configurador, "CombUnits", 0)
        .Box("System Units change...", "", Icon::Information)
        .SelectTab(configurador, "SSTab2", 1)
        .SeeText(configurador, "Text1_1", "15.00")
        .SeeText(configurador, "unitStandardP", "psia")
        .Type(configurador, "Text1_1", "60.0")
        .Type(configurador, "Text2_1", "1.2.3")
        .Focus(configurador, "Text3_1")
        .Box("Incorrect value", "", Icon::Exclamation)
        .Type(configurador, "Text2_1", "14.7");
    Save(story);
    // Once more, and this time only for a look.
    Configure(story, north);
    story.SeeCaption(configurador, "Parameter Configurator   Station : North");
    Cancel(story);
}

void CommonParametersStand(FakeProgram& program) {
    EXPECT_EQ(program.Files.Content[northFile].substr(0, 11), "; by hand\r\n");
    EXPECT_EQ(ValueOf(program, "FlowRuns", "SystemUnits"), "US");
    EXPECT_EQ(ValueOf(program, "AGA3", "StandardT"), "60.0");
    EXPECT_EQ(ValueOf(program, "AGA3", "StandardP"), "14.7");
    EXPECT_EQ(ValueOf(program, "Run2", "StandardT"), "60.0");
    EXPECT_EQ(ValueOf(program, "Run2", "PaKDIOTag"), "FT-2");
    EXPECT_EQ(ValueOf(program, "Run2", "GasDPKDIOTag"), "FT-9");
    EXPECT_EQ(ValueOf(program, "General", "UserID"), "4711");
    EXPECT_EQ(ValueOf(program, "Run1", "StandardT"), "");
}

void PressureTakesAnotherTag(Story& story) {
    Configure(story, north);
    story.Menu(configurador, "tg")
        .Box("Orm Gas Flow Computer", "", Icon::Information)
        .Menu(configurador, "SalvarSalir")
        .Box("I/O Tag assignments configuration...", "", Icon::Exclamation)
        .SeeText(configurador, "AtmExtName", "Name: FT-2")
        .Click(configurador, "btExtAtmChange")
        .SeeText("Step", "Label1", "Press 'Continue' to configure common Atmospheric Pressure I/O assignment")
        .Click("Step", "Command1")
        // Neither the tag that it has nor that of the density.
        .Check([](Driver& eyes) {
            EXPECT_EQ(eyes.Cell("TagRuns", "ListViewRuns", 2, 1), "FT-3");
            EXPECT_EQ(eyes.Cell("TagRuns", "ListViewRuns", 7, 1), "FT-8");
            EXPECT_EQ(eyes.Cell("TagRuns", "ListViewRuns", 8, 1), "FT-10");
        })
        .ClickNode("TagRuns", "TreeAGA", "Common Inputs\\Atmospheric Pressure")
        .Click("TagRuns", "Command4")
        .ClickRow("TagRuns", "ListViewRuns", 5)
        .Click("TagRuns", "Command1")
        .Click("TagRuns", "Command5")
        .SeeText(configurador, "AtmExtName", "Name: FT-6");
    Save(story);
}

// What was bound under other units is bound again before it is stored.
void AnotherChoiceOwesThePassAgain(Story& story) {
    Configure(story, north);
    story.Menu(configurador, "ConfigAll")
        .Click(configurador, "Run22")
        .Select(configurador, "CombStandard", 2)
        .Select(configurador, "cbSourceGas", 2)
        .SelectTab(configurador, "SSTab2", 3)
        .Click(configurador, "Option5")
        .SelectTab(configurador, "SSTab2", 0);
    PassOverRun2(story);
    story.Select(configurador, "CombUnits", 2)
        .Menu(configurador, "SalvarSalir2")
        .Box("I/O Tag assignments configuration...", "", Icon::Exclamation)
        .SeeShown(configurador)
        .SelectTab(configurador, "SSTab2", 0);
    PassOverRun2(story);
    Save(story);
}

void CancelledPassLeadsBack(Story& story) {
    Configure(story, north);
    story.Menu(configurador, "ConfigAll").Click(configurador, "Run22").Click(configurador, "Command1");
    story.Click("Step", "Command1").Click("Step", "Command1");
    story.Click("FrParMec", "cmdCancel")
        .Box("Close mechanical parameters", "", Icon::None, Answer::Yes)
        .SeeShown(configurador)
        .SeeChecked(configurador, "Run22");
    Cancel(story);
}

void WindowsOwnCommandCloses(Story& story) {
    Configure(story, north);
    const std::string question =
        "Do you want to cancel and discard any changes made to the current configuration?";
    story.Menu(configurador, "PG")
        .CloseWindow(configurador)
        .Box("Orm Gas Flow Computer", question, Icon::None, Answer::No)
        .SeeShown(configurador)
        .CloseWindow(configurador)
        .Box("Orm Gas Flow Computer", question, Icon::None, Answer::Yes)
        .SeeShown("GFCPrincipal");
}

void ARunThatDoesNotFit(Story& story) {
    story.ClickNode("GFCPrincipal", "TreeGFC", north)
        .Menu("GFCPrincipal", "ConfigPar")
        // The estimate and the gate deliberately count by different numbers.
        .Box("Gas Flow Computer", "Only two Runs can be configured", Icon::Information)
        .Menu(configurador, "ConfigAll")
        .Click(configurador, "Run11")
        .Click(configurador, "Run22")
        .Box("Error: Configuring AGA3", "", Icon::Exclamation)
        .SeeChecked(configurador, "Run22", false)
        .SeeChecked(configurador, "Run11")
        .Select(configurador, "cbSourceGas", 2)
        .Box("Error: Configuring AGA3", "", Icon::Exclamation)
        .SeeText(configurador, "cbSourceGas", "Densimeter");
    Cancel(story);
}

// Under AGA-7 the viscosity can be edited after the list's click, until its tab is entered.
void StandardChangesWhatIsEnabled(Story& story) {
    Configure(story, north);
    story.Menu(configurador, "ConfigAll")
        .Select(configurador, "CombStandard", 1)
        .SeeEnabled(configurador, "Text4_1")
        .SeeEnabled(configurador, "FrameAtmPress", false)
        .SelectTab(configurador, "SSTab2", 1)
        .SeeEnabled(configurador, "Text4_1", false)
        .SeeEnabled(configurador, "Text3_1", false)
        .SelectTab(configurador, "SSTab2", 0)
        .Select(configurador, "CombStandard", 3)
        .SeeText(configurador, "CombUnits", "US")
        .SelectTab(configurador, "SSTab2", 1)
        .SeeEnabled(configurador, "Text4_1")
        .SeeEnabled(configurador, "OptGagePress")
        .Click(configurador, "OptGagePress")
        .SeeEnabled(configurador, "txtAtmPress");
    Cancel(story);
}

void RoomForOneRun(FakeProgram& program) {
    program.AddStation("North", LargeStationTags(17));
}

void NothingWritten(FakeProgram& program) {
    EXPECT_FALSE(program.Files.Content.contains(northFile));
}

} // namespace

std::vector<Scenario> ConfiguradorScenarios() {
    return {
        Told("configurator_makes_a_new_configuration", moves::ThreeStations, ANewConfiguration,
             NewConfigurationStands),
        Told("configurator_changes_the_common_parameters", NorthIsConfigured, CommonParametersChange,
             CommonParametersStand),
        Told("configurator_gives_the_common_pressure_another_tag", NorthIsConfigured, PressureTakesAnotherTag,
             [](FakeProgram& program) {
                 EXPECT_EQ(ValueOf(program, "AGA3", "CommonPaKDIOTag"), "FT-6");
                 EXPECT_EQ(ValueOf(program, "Run2", "PaKDIORegAddr"), "1006");
             }),
        Told("configurator_owes_the_pass_again_after_another_choice", moves::ThreeStations,
             AnotherChoiceOwesThePassAgain,
             [](FakeProgram& program) {
                 EXPECT_EQ(ValueOf(program, "Run2", "SystemUnits"), "Metric");
                 EXPECT_NE(ValueOf(program, "Run2", "GasDPKDIOTag"), "");
             }),
        Told("configurator_comes_back_after_a_cancelled_pass", moves::ThreeStations, CancelledPassLeadsBack,
             NothingWritten),
        Told("configurator_clears_a_run_that_does_not_fit", RoomForOneRun, ARunThatDoesNotFit,
             NothingWritten),
        Told("configurator_standard_changes_what_is_enabled", moves::ThreeStations,
             StandardChangesWhatIsEnabled, NothingWritten),
        Told("configurator_is_closed_by_its_window", NorthIsConfigured, WindowsOwnCommandCloses,
             [](FakeProgram& program) { EXPECT_EQ(program.Files.Content[northFile], stored); }),
    };
}

} // namespace gfc::test
