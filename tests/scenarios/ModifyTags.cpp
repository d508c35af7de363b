#include "scenarios/Moves.h"
#include "scenarios/Scenario.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace gfc::test {

namespace {

using ui::Answer;
using ui::Icon;

constexpr const char* Form = "FrModificarTags";
const std::string Individual = "All Stations\\North\\Individual Parameters";
const std::string Title = "Change I/O Tags and Gas Composition   Station : North";
const std::string Question = "Do you wish to save your changes ?";

// What the story can only know once the program is there.
struct Plant {
    FakeProgram* Program = nullptr;
    std::string Before; // the file when the edit began

    [[nodiscard]] std::string File() const { return Program->ConfigFile("North"); }
    [[nodiscard]] std::string Content() const { return Program->Files.Content.at(File()); }
    [[nodiscard]] std::string Key(const std::string& section, const std::string& key) const {
        return Program->Program.Ini.ReadKey(section, key, File());
    }
};
using ThePlant = std::shared_ptr<Plant>;

std::string RunNode(int run) {
    return Individual + "\\Run " + std::to_string(run);
}

// Opens the form at a node and accepts the boxes.
void OpenEdit(Story& story, const std::string& node, int run) {
    story.ClickNode("GFCPrincipal", "TreeGFC", node)
        .Menu("GFCPrincipal", "ConfigPar")
        .SeeCaption(Form, Title + " (Run " + std::to_string(run) + ")");
}

void TickAndAccept(Story& story, const std::vector<int>& boxes) {
    for (const int box : boxes)
        story.Click(Form, "Check" + std::to_string(box));
    story.Click(Form, "Command1");
}

void Continue(Story& story) {
    story.Click("TagRuns", "Command5");
}

// Another tag for a variable: what is bound goes back, the first on offer takes its place.
void Rebind(Story& story, const std::string& variable) {
    story.ClickNode("TagRuns", "TreeAGA", variable).Click("TagRuns", "Command4").Click("TagRuns", "Command1");
}

void Saved(Story& story, Icon icon, Answer answer = Answer::Yes) {
    story.Box("Configuration finished.", Question, icon, answer);
}

// The whole story of one edit: North is configured by the wizard, then edited, then the program ends.
Scenario Edit(const std::string& name, const moves::Choices& choices, const std::vector<int>& runs,
              const std::function<void(Story&, const ThePlant&)>& tell,
              const std::function<void(const Plant&)>& after, bool endsByItself = false) {
    const auto plant = std::make_shared<Plant>();
    return {name,
            [plant](FakeProgram& program) {
                moves::ThreeStations(program);
                plant->Program = &program;
            },
            [=](Story& story) {
                moves::StartUp(story);
                moves::OpenWizard(story, "North");
                moves::SelectRuns(story, runs);
                moves::WalkPages(story, choices);
                moves::PassAllRuns(story, choices, runs);
                moves::SaveAndClose(story);
                story.Check([plant](Driver&) { plant->Before = plant->Content(); });
                tell(story, plant);
                if (!endsByItself)
                    moves::Exit(story);
            },
            [plant, after](FakeProgram&) {
                for (const auto& [path, bytes] : plant->Program->Files.Content)
                    EXPECT_EQ(path.find("tmpTags_"), std::string::npos) << path;
                after(*plant);
            }};
}

const moves::Choices Densimeter{};
const moves::Choices Detail{.Source = 1};
const moves::Choices Chromatograph{.Source = 1, .Chromatograph = true};
const moves::Choices GrossTurbine{.Standard = 1, .Source = 2};
const moves::Choices Accelabar{.Standard = 2};

Scenario OnlyMechanical() {
    return Edit(
        "modify_only_the_mechanical_parameters", Densimeter, {1, 3},
        [](Story& story, const ThePlant&) {
            OpenEdit(story, RunNode(3), 3);
            story.SeeVisible(Form, "Check4", false).SeeVisible(Form, "Check6", false);
            TickAndAccept(story, {3});
            story.SeeCaption("FrParMec", "Mechanical parameters   North (Run 3)")
                .Type("FrParMec", "txtDiaOrif", "1.5")
                .Click("FrParMec", "cmdAceptar");
            Saved(story, Icon::None);
            story.SeeShown(Form, false).SeeShown("GFCPrincipal");
        },
        [](const Plant& plant) {
            EXPECT_EQ(plant.Key("Run3", "OrificeDia"), "1.5");
            EXPECT_EQ(plant.Key("Run1", "OrificeDia"), "0.57811");
        });
}

Scenario AllRunsNode() {
    return Edit(
        "modify_the_first_enabled_run_of_the_station", Detail, {2, 4},
        [](Story& story, const ThePlant&) {
            OpenEdit(story, Individual, 2);
            story.Click(Form, "Command1")
                .Box("AGA", "Please Select the option that you want to edit", Icon::Information);
            TickAndAccept(story, {2});
            Rebind(story, "AGA 3 Outputs\\AGA-3 Status");
            Continue(story);
            Saved(story, Icon::Information);
            story.SeeShown(Form, false);
        },
        [](const Plant& plant) {
            // Two runs of two analog tags each stand before it.
            EXPECT_EQ(plant.Key("Run2", "AGA3StatusKDIOTag"), "AI-5");
            EXPECT_NE(plant.Key("Run4", "AGA3StatusKDIOTag"), "AI-5");
        });
}

Scenario EverythingOfARun() {
    return Edit(
        "modify_everything_of_a_run", Detail, {2, 4},
        [](Story& story, const ThePlant&) {
            OpenEdit(story, RunNode(4), 4);
            TickAndAccept(story, {1, 2, 3, 4, 6});
            story.Type("FrParMec", "txtDiaPipe", "4.026").Click("FrParMec", "cmdAceptar");
            story.SeeCaption("TagRuns", "Configuring the AGA-3 Input Tags for Run 4")
                .Type("TagRuns", "Text1", "1.02");
            Rebind(story, "AGA 3 Inputs\\Temperature");
            Continue(story);
            story.Type("MDetail", "Text10", "0.9").Click("MDetail", "Command1");
            Continue(story);
            Rebind(story, "AGA 8 Outputs\\Uncertainty");
            Continue(story);
            Saved(story, Icon::Information);
            // The same station and run again, without a look at the tree.
            story.Menu("GFCPrincipal", "ConfigPar").SeeCaption(Form, Title + " (Run 4)");
            TickAndAccept(story, {1});
            story.SeeText("TagRuns", "Text1", "1.02");
            Continue(story);
            Saved(story, Icon::Information, Answer::No);
        },
        [](const Plant& plant) {
            EXPECT_EQ(plant.Key("Run4", "InternalPipeDia"), "4.026");
            EXPECT_EQ(plant.Key("Run4", "CalibrationFactor"), "1.02");
            EXPECT_EQ(plant.Key("Run4", "GC_C1"), "0.9");
            EXPECT_EQ(plant.Key("Run2", "GC_C1"), "0.965222");
            // 28 floats of two runs stand before the first that was free.
            EXPECT_EQ(plant.Key("Run4", "GasTempKDIOTag"), "FT-29");
            EXPECT_EQ(plant.Key("Run4", "AGA8uncertKDIOTag"), "FT-30");
            EXPECT_EQ(plant.Key("FlowRuns", "Run2"), "Yes");
        });
}

// Run 1's temperature is renamed in the tool between two commands; run 3 is edited. An empty image: the
// program ends with the answer.
Scenario Failed(const std::string& name, const std::string& button, const std::string& imageOfRun1,
                const std::function<void(const Plant&)>& after) {
    return Edit(
        name, Detail, {1, 3},
        [=](Story& story, const ThePlant& plant) {
            story.Check([plant](Driver&) {
                const std::string renamed = plant->Key("Run1", "GasTempKDIOTag");
                auto& tags = plant->Program->Library.TagsOf.at("North");
                std::ranges::find(tags, renamed, &project::Tag::TagName)->TagName = "TT-101";
            });
            OpenEdit(story, RunNode(3), 3);
            TickAndAccept(story, {2});
            Rebind(story, "AGA 3 Outputs\\AGA-3 Status");
            Continue(story);
            story.SeeCaption("TagsChanged", "Configuration errors alert").Click("TagsChanged", button);
            if (imageOfRun1.empty())
                return;
            story.SeeShown(Form, false).Check([=](Driver& eyes) {
                EXPECT_EQ(eyes.NodeImage("GFCPrincipal", "TreeGFC", RunNode(1)), imageOfRun1);
            });
        },
        [after](const Plant& plant) {
            const auto& files = plant.Program->Files.Content;
            const auto log = files.find("/jobs/KDOrmAGA_plant_North_Errors.log");
            ASSERT_NE(log, files.end());
            EXPECT_NE(log->second.find("[Run1] [No found in I/O data base]"), std::string::npos);
            after(plant);
        },
        imageOfRun1.empty());
}

Scenario Ignored() {
    return Failed("modify_failed_and_ignored", "CmdIgnore", "NoRun", [](const Plant& plant) {
        EXPECT_EQ(plant.Key("Run3", "AGA3StatusKDIOTag"), "AI-5");
        EXPECT_EQ(plant.Key("FlowRuns", "Run1"), "No");
        EXPECT_EQ(plant.Key("FlowRuns", "Run11"), "Yes");
        EXPECT_EQ(plant.Key("FlowRuns", "Run3"), "Yes");
    });
}

Scenario Back() {
    return Failed("modify_failed_and_back_to_configure", "Command3", "Run",
                  [](const Plant& plant) { EXPECT_EQ(plant.Content(), plant.Before); });
}

Scenario Discarded() {
    return Failed("modify_failed_and_discarded", "Command2", "",
                  [](const Plant& plant) { EXPECT_EQ(plant.Content(), plant.Before); });
}

struct CancelOf {
    std::string Form;
    std::string Button;
    std::string Title;
    Icon TheIcon = Icon::None;
};

const CancelOf Tags{"TagRuns", "Command2", "Gas Flow Computer", Icon::Question};
const CancelOf Mechanical{"FrParMec", "cmdCancel", "Close mechanical parameters"};
const CancelOf AccelabarMeter{"FrAccelabar", "Command2", "Close mechanical parameters"};
const CancelOf Composition{"MDetail", "Command3", "Orm Gas Flow Computer"};
const CancelOf GasProperties{"frSGERG88", "Command2", "Gas Flow Computer"};

// Ticks the boxes, goes on to the window and cancels it there; then the main window takes commands again.
Scenario CancelAt(const std::string& name, const moves::Choices& choices, const std::vector<int>& boxes,
                  const std::function<void(Story&)>& until, const CancelOf& cancel) {
    return Edit(
        "modify_cancelled_at_" + name, choices, {1},
        [=](Story& story, const ThePlant&) {
            OpenEdit(story, RunNode(1), 1);
            TickAndAccept(story, boxes);
            until(story);
            story.Click(cancel.Form, cancel.Button)
                .Box(cancel.Title, "", cancel.TheIcon, Answer::No)
                .SeeShown(cancel.Form)
                .Click(cancel.Form, cancel.Button)
                .Box(cancel.Title, "", cancel.TheIcon, Answer::Yes)
                .SeeShown(Form, false);
            OpenEdit(story, RunNode(1), 1);
            story.SeeChecked(Form, "Check1", false).Click(Form, "Command2").SeeShown(Form, false);
        },
        [](const Plant& plant) { EXPECT_EQ(plant.Content(), plant.Before); });
}

void AtOnce(Story&) {}

std::vector<Scenario> Cancelled() {
    return {
        CancelAt("the_mechanical_parameters", Densimeter, {3}, AtOnce, Mechanical),
        CancelAt("the_accelabar_parameters", Accelabar, {1, 3}, AtOnce, AccelabarMeter),
        CancelAt(
            "the_run_inputs", Detail, {1, 3}, [](Story& story) { moves::AcceptEditor(story, "FrParMec"); },
            Tags),
        CancelAt("the_gas_composition", Detail, {1, 6}, Continue, Composition),
        CancelAt("the_gas_properties", GrossTurbine, {2, 6}, AtOnce, GasProperties),
        CancelAt("the_measured_composition", Chromatograph, {5}, AtOnce, Tags),
        CancelAt("the_run_outputs", Densimeter, {2}, AtOnce, Tags),
        CancelAt("the_gas_outputs", Detail, {2, 4}, Continue, Tags),
    };
}

} // namespace

std::vector<Scenario> ModifyTagsScenarios() {
    std::vector<Scenario> all = Cancelled();
    for (auto* scenario : {&OnlyMechanical, &AllRunsNode, &EverythingOfARun, &Ignored, &Back, &Discarded})
        all.push_back((*scenario)());
    return all;
}

} // namespace gfc::test
