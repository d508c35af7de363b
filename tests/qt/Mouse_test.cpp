#include "binding/Assignment.h"
#include "forms/binding/TagRuns.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/program/StartUp.h"
#include "qt/support/StoryScreen.h"
#include "qt/support/WindowLooks.h"
#include "scenarios/Moves.h"
#include "scenarios/StoredStation.h"
#include "support/TestFolders.h"

#include <QAbstractItemView>
#include <QAction>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QWindow>
#include <gtest/gtest.h>

// A hurried person at the real windows: events come as the window system sends them, none is waited for.
namespace gfc::test {

namespace {

const std::string Main = "GFCPrincipal";
const std::string North = moves::NorthNode;
const std::string South = "All Stations\\South";

// What the pointer does in a window, to the parts that a person sees.
class Pointer {
public:
    explicit Pointer(const std::string& form) : window_(*FindWindow(form)) {}

    void Press(const QPoint& at, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(window_.windowHandle(), button, {}, at);
    }
    void Release(const QPoint& at, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseMove(window_.windowHandle(), at);
        QTest::mouseRelease(window_.windowHandle(), button, {}, at);
    }
    void Click(const QPoint& at, Qt::MouseButton button = Qt::LeftButton) {
        Press(at, button);
        Release(at, button);
    }
    [[nodiscard]] QPoint Node(const char* tree, const std::string& path) const {
        auto* view = FindIn<QAbstractItemView>(&window_, tree);
        return In(*view, NodeAt(*view, path));
    }
    [[nodiscard]] QPoint Cell(const char* list, int row, int column) const {
        auto* view = FindIn<QAbstractItemView>(&window_, list);
        return In(*view, view->model()->index(row - 1, column));
    }
    [[nodiscard]] QPoint Tab(const char* pane, int tab) const {
        const QTabBar& bar = *FindIn<QTabWidget>(&window_, pane)->tabBar();
        return bar.mapTo(&window_, bar.tabRect(tab).center());
    }
    [[nodiscard]] QPoint Button(const char* name) const {
        const auto* button = FindIn<QPushButton>(&window_, name);
        return button->mapTo(&window_, button->rect().center());
    }
    // One after the other, without a moment between them.
    void Keys(std::initializer_list<Qt::Key> keys) {
        for (const Qt::Key key : keys)
            QTest::keyClick(window_.windowHandle(), key);
    }

private:
    [[nodiscard]] QPoint In(QAbstractItemView& view, const QModelIndex& at) const {
        view.scrollTo(at);
        return view.viewport()->mapTo(&window_, view.visualRect(at).center());
    }

    QWidget& window_;
};

class WithTheMouse : public ::testing::Test {
protected:
    WithTheMouse() {
        moves::ThreeStations(Program);
        Program.OpenProject();
        for (const char* station : {"North", "South"})
            Program.Files.Content[Program.ConfigFile(station)] = Golden("wizard/aga3_densimeter.ini");
        moves::StartUp(Tale);
    }
    // Something that the pointer does in the main window, with all branches open.
    void Do(const std::string& what, const std::function<void(Pointer&)>& act,
            const std::string& form = Main) {
        Tale.Do(what, [act, form](Driver&) {
            Pointer pointer(form);
            act(pointer);
        });
    }
    void OpenBranches() {
        Tale.Do("open all branches", [this](Driver&) {
            auto& tree = Program.Program.Forms.Get<forms::GFCPrincipal>().TreeGFC;
            for (int node = 1; node <= tree.Count(); ++node)
                tree.SetExpanded(node, true);
        });
    }
    void Choose(const char* command) {
        Tale.Do(std::string("choose ") + command,
                [command](Driver&) { FindIn<QAction>(FindWindow(Main), command)->trigger(); });
    }
    void Play() {
        moves::Exit(Tale);
        forms::StartProgram(Program.Program);
        Screen.RunToEnd();
        EXPECT_TRUE(Screen.Ended());
    }
    [[nodiscard]] bool Stands(const std::string& station) {
        return Program.Files.Content.contains(Program.ConfigFile(station));
    }
    [[nodiscard]] std::string Flag(const std::string& station, const std::string& run) {
        return FileText(Program.Files.Content[Program.ConfigFile(station)])
            .Value("FlowRuns", run)
            .value_or("no such key");
    }

    StoryScreen Screen;
    Story& Tale = Screen.TheStory;
    FakeProgram Program{Screen};
};

} // namespace

// The press has chosen North, and North is highlighted, named and deleted, wherever the button comes up.
TEST_F(WithTheMouse, a_slip_to_another_station_deletes_the_one_that_is_highlighted) {
    Do("press on North, let go on South", [](Pointer& pointer) {
        pointer.Press(pointer.Node("TreeGFC", North));
        pointer.Release(pointer.Node("TreeGFC", South));
    });
    Do("press on South with the third button",
       [](Pointer& pointer) { pointer.Click(pointer.Node("TreeGFC", South), Qt::MiddleButton); });
    Choose("undo");
    Tale.Box("Delete Configuration",
             "Are you sure that you want to delete the configuration of this station?", ui::Icon::None,
             ui::Answer::Yes);
    Play();
    EXPECT_FALSE(Stands("North"));
    EXPECT_TRUE(Stands("South"));
}

TEST_F(WithTheMouse, a_key_ahead_of_a_command_counts_before_it) {
    OpenBranches();
    Do("click Run 2, then the arrow, and the command at once", [](Pointer& pointer) {
        pointer.Click(pointer.Node("TreeGFC", moves::RunNode(2)));
        pointer.Keys({Qt::Key_Down, Qt::Key_Down, Qt::Key_Down});
        FindIn<QAction>(FindWindow(Main), "dRun")->trigger();
    });
    Play();
    EXPECT_EQ(Flag("North", "Run2"), "Yes");
    EXPECT_EQ(Flag("North", "Run5"), "No");
}

TEST_F(WithTheMouse, the_pane_of_one_station_stays_whole_when_another_one_is_chosen) {
    FileText south(Program.Files.Content[Program.ConfigFile("South")]);
    Program.Files.Content[Program.ConfigFile("South")] =
        south.Set("General", "FlowAlgorithm", "AGA7").Bytes();
    OpenBranches();
    Do("North's parameters, South's branch, another tab and back", [](Pointer& pointer) {
        pointer.Click(pointer.Node("TreeGFC", North + "\\Common Parameters"));
        pointer.Click(pointer.Node("TreeGFC", South + "\\Individual Parameters"));
        pointer.Click(pointer.Tab("SSTab1", 1));
        pointer.Click(pointer.Tab("SSTab1", 0));
    });
    Tale.Check([](Driver& eyes) {
        EXPECT_EQ(eyes.Cell(Main, "ListView1", 2, 2), "North");
        EXPECT_EQ(eyes.Cell(Main, "ListView1", 3, 2), "AGA3");
        EXPECT_EQ(eyes.Text(Main, "StatusBar1"), "Common Parameters (North)");
    });
    Play();
}

TEST_F(WithTheMouse, the_close_box_of_the_configurator_asks) {
    const std::string question =
        "Do you want to cancel and discard any changes made to the current configuration?";
    Do("click North's parameters", [](Pointer& pointer) { pointer.Click(pointer.Node("TreeGFC", North)); });
    OpenBranches();
    Do("click the common parameters",
       [](Pointer& pointer) { pointer.Click(pointer.Node("TreeGFC", North + "\\Common Parameters")); });
    Choose("ConfigPar");
    Tale.SeeShown("Configurador")
        .Do("use the close box", [](Driver&) { FindWindow("Configurador")->close(); })
        .Box("Orm Gas Flow Computer", question, ui::Icon::None, ui::Answer::No)
        .SeeShown("Configurador")
        .Do("use the close box", [](Driver&) { FindWindow("Configurador")->close(); })
        .Box("Orm Gas Flow Computer", question, ui::Icon::None, ui::Answer::Yes)
        .SeeShown("Configurador", false);
    Play();
}

// Enter once too often begins the pass, and does not throw away what was entered.
TEST_F(WithTheMouse, the_last_page_of_the_wizard_stands_on_finish) {
    moves::OpenWizard(Tale, "North");
    moves::SelectRuns(Tale, {1});
    Tale.Select("WizardFC", "CombStandard", 0).Select("WizardFC", "cbSourceGas", 1);
    Do(
        "go on with Next to the last page",
        [](Pointer& pointer) {
            for (int page = 0; page < 3; ++page)
                pointer.Click(pointer.Button("siguiente"));
        },
        "WizardFC");
    Tale.SeeVisible("WizardFC", "finalizar")
        .Check([](Driver& eyes) { EXPECT_EQ(eyes.Focused("WizardFC"), "finalizar"); })
        .Click("WizardFC", "cancelar")
        .Box("Gas Flow Computer", "Do you want to quit the configuration wizard ?", ui::Icon::None,
             ui::Answer::Yes);
    Play();
}

// The tags that are offered for the inputs of a run.
class WithTheMouseOnTags : public ::testing::Test {
protected:
    WithTheMouseOnTags() {
        Program.AddStation("North", {});
        Program.OpenProject();
        Program.Station.CurrentStation = "North";
        Program.Station.FlowAlgorithm = "AGA3";
        Program.Station.GasDensitySource = "AGA8";
        Program.ActivateRuns({1});
        Program.Session.EditMode = forms::EditMode::Wizard;
        Program.Session.BindingStage = binding::BindingStage::RunInputs;
        for (int i = 1; i <= 9; ++i) {
            project::Tag tag;
            tag.TagName = "F" + std::to_string(i);
            tag.RegType = "FX";
            tag.RegAddr = 1000 + i;
            Program.Session.Inventory.AvailFloat.push_back(tag);
        }
        Form.Show();
        Settle();
    }
    [[nodiscard]] std::string Bound(int position) const {
        return Form.TreeAGA.At(binding::node::NameValue(position)).Text;
    }

    qt::QtScreen Screen;
    FakeProgram Program{Screen};
    forms::TagRuns& Form = Program.Program.Forms.Get<forms::TagRuns>();
};

TEST_F(WithTheMouseOnTags, what_is_highlighted_is_bound_wherever_the_pointer_slips) {
    Pointer pointer("TagRuns");
    pointer.Click(pointer.Node("TreeAGA", Form.TreeAGA.FullPath(binding::node::Variable(0))));
    pointer.Press(pointer.Cell("ListViewRuns", 3, 1));
    pointer.Release(pointer.Cell("ListViewRuns", 6, 2));
    pointer.Click(pointer.Button("Command1"));
    EXPECT_EQ(Bound(0), "F3");
    pointer.Click(pointer.Node("TreeAGA", Form.TreeAGA.FullPath(binding::node::Variable(1))));
    pointer.Click(pointer.Cell("ListViewRuns", 6, 1), Qt::RightButton);
    pointer.Click(pointer.Cell("ListViewRuns", 1, 1), Qt::MiddleButton);
    pointer.Click(pointer.Button("Command1"));
    EXPECT_EQ(Bound(1), "F7");
}

TEST_F(WithTheMouseOnTags, keys_ahead_count_before_the_button) {
    Pointer pointer("TagRuns");
    pointer.Click(pointer.Node("TreeAGA", Form.TreeAGA.FullPath(binding::node::Variable(0))));
    pointer.Click(pointer.Cell("ListViewRuns", 1, 0));
    pointer.Keys({Qt::Key_Down, Qt::Key_Down});
    QTest::keyClick(FindIn<QPushButton>(FindWindow("TagRuns"), "Command1"), Qt::Key_Space);
    EXPECT_EQ(Bound(0), "F3");
}

} // namespace gfc::test
