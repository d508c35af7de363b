#include "binding/Assignment.h"
#include "config/Vocabulary.h"
#include "forms/binding/TagRuns.h"
#include "qt/QtScreen.h"
#include "qt/support/KeyboardDriver.h"
#include "qt/support/WindowDriver.h"
#include "qt/support/WindowLooks.h"
#include "support/World.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <QTreeView>
#include <QWindow>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

// The window in which tags are bound, under the mouse and under the keys alone.
namespace gfc::test {

namespace node = binding::node;

class BindingWindow : public ::testing::Test {
protected:
    BindingWindow() {
        World.AddStation("North", {});
        World.OpenProject();
        auto& session = World.Session;
        session.Station.CurrentStation = "North";
        session.Station.FlowAlgorithm = config::algorithm::AGA3;
        session.Station.GasDensitySource = config::source::AGA8;
        session.Station.SystemUnits = config::units::Metric;
        World.ActivateRuns({1, 2});
        session.EditMode = forms::EditMode::Wizard;
        session.BindingStage = binding::BindingStage::RunInputs;
        session.RunNumber = session.RunPosition = 0;
        project::BuildInventory(Tags(), session.Inventory);
        project::BuildAvailableLists(session.Inventory, {}, false);
        Form.Show();
        Settle();
        Window().activateWindow();
    }
    ~BindingWindow() override { World.Program.Forms.Unload<forms::TagRuns>(); }

    static project::TagList Tags() {
        project::TagList tags;
        for (const char* run : {"1", "2"}) {
            for (const char* name : {"TIT-10", "PIT-10", "PDIT-10"})
                tags.push_back(TagOf(std::string(name) + run, "FX", static_cast<int>(tags.size()) + 1));
            for (const char* name : {"FLOW_HOLD", "TOTAL_HOLD", "RESET"})
                tags.push_back(
                    TagOf("R" + std::string(run) + "_" + name, "X", static_cast<int>(tags.size()) + 1));
        }
        return tags;
    }
    static project::Tag TagOf(const std::string& name, const std::string& type, int address) {
        return {.TagName = name,
                .RegAddr = address,
                .RegType = type,
                .ModuleName = "INPUTS",
                .ModuleType = "Virtual Module"};
    }

    [[nodiscard]] static QWidget& Window() { return *FindWindow("TagRuns"); }
    [[nodiscard]] static QAbstractItemView& View(const char* name) {
        return *FindIn<QAbstractItemView>(&Window(), name);
    }
    [[nodiscard]] static QPoint PointOf(QAbstractItemView& view, const QModelIndex& at) {
        return view.viewport()->mapTo(&Window(), view.visualRect(at).center());
    }
    [[nodiscard]] static QPoint Row(const char* list, int row) {
        return PointOf(View(list), View(list).model()->index(row - 1, 1));
    }
    [[nodiscard]] static QPoint Variable(const std::string& caption) {
        return PointOf(View("TreeAGA"), NodeAt(View("TreeAGA"), "AGA 3 Inputs\\" + caption));
    }
    // Events as the window system sends them, with the button down between press and release.
    static void Press(const QPoint& at) {
        QTest::mousePress(Window().windowHandle(), Qt::LeftButton, {}, at);
    }
    static void Move(const QPoint& at) {
        QMouseEvent move(QEvent::MouseMove, at, Window().mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(Window().windowHandle(), &move);
    }
    static void Release(const QPoint& at) {
        QTest::mouseRelease(Window().windowHandle(), Qt::LeftButton, {}, at);
    }
    static void Drag(const QPoint& from, const QPoint& to) {
        Press(from);
        Move(to);
        Release(to);
    }
    [[nodiscard]] std::string BoundTo(int position) {
        return Form.TreeAGA.At(node::NameValue(position)).Text;
    }
    static void Stroke(QKeyCombination keys) { KeyboardDriver::Stroke(keys); }

    qt::QtScreen Screen;
    FakeProgram World{Screen};
    forms::TagRuns& Form = World.Program.Forms.Get<forms::TagRuns>();
};

TEST_F(BindingWindow, takes_a_tag_that_is_dragged_onto_its_variable_and_gives_it_back) {
    Drag(Row("ListViewRuns", 2), Variable("Pressure"));
    EXPECT_EQ(BoundTo(1), "PIT-101");
    EXPECT_EQ(Form.ListViewRuns.Count(), 5);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    Drag(Variable("Pressure"), Row("ListViewRuns", 1));
    EXPECT_EQ(BoundTo(1), "Not Configured");
    EXPECT_EQ(Form.ListViewRuns.Count(), 6);
}

TEST_F(BindingWindow, says_by_the_pointer_where_a_tag_may_fall) {
    const QPoint pressure = Variable("Pressure");
    Press(Row("ListViewRuns", 2));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    Move(Variable("Reset"));
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ForbiddenCursor);
    Move(pressure);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::DragLinkCursor);
    Release(Variable("Reset"));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(Form.ListViewRuns.Count(), 6) << "a digital variable takes no float tag";
}

TEST_F(BindingWindow, lets_a_drag_be_given_up) {
    Press(Row("ListViewRuns", 2));
    Move(Variable("Pressure"));
    Stroke(Qt::Key_Escape);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    Release(Variable("Pressure"));
    EXPECT_EQ(BoundTo(1), "Not Configured");
    // A shaking hand drags nothing.
    const QPoint row = Row("ListViewRuns", 2);
    Press(row);
    Move(row + QPoint(2, 1));
    Release(row + QPoint(2, 1));
    EXPECT_EQ(Form.ListViewRuns.Count(), 6);
    EXPECT_EQ(Form.ListViewRuns.SelectedRow(), 2);
}

// What is dragged must still be what is selected.
TEST_F(BindingWindow, drops_nothing_that_has_gone_meanwhile) {
    Press(Row("ListViewRuns", 2));
    Move(Variable("Pressure"));
    Form.ListViewRuns.RemoveRows(2, 1);
    Release(Variable("Pressure"));
    EXPECT_EQ(BoundTo(1), "Not Configured");
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(BindingWindow, is_gone_through_by_the_keys_alone) {
    FindIn<QTreeView>(&Window(), "TreeAGA")->setFocus();
    Stroke(Qt::CTRL | Qt::Key_G);
    EXPECT_EQ(Form.TreeAGA.At(node::Variable(0)).Note, "sure: TIT-101");
    Stroke(Qt::Key_Home);
    Stroke(Qt::Key_Down);
    Stroke(Qt::CTRL | Qt::Key_T);
    EXPECT_EQ(BoundTo(0), "TIT-101");
    Stroke(Qt::CTRL | Qt::Key_Backspace);
    EXPECT_EQ(BoundTo(0), "Not Configured");
    Stroke(Qt::CTRL | Qt::Key_B);
    EXPECT_EQ(BoundTo(0), "PIT-101") << "the row that is chosen in the list";
    Stroke(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(BoundTo(0), "Not Configured");
    Stroke(Qt::CTRL | Qt::SHIFT | Qt::Key_T);
    EXPECT_EQ(BoundTo(0), "TIT-101");
    EXPECT_EQ(BoundTo(5), "R1_RESET");
    Stroke(Qt::CTRL | Qt::Key_Z);
    Stroke(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
    EXPECT_EQ(BoundTo(5), "R1_RESET");
    Stroke(Qt::CTRL | Qt::Key_L);
    QTest::keyClicks(FindIn<QLineEdit>(&Window(), "Filter"), "tit 2");
    EXPECT_EQ(View("ListViewRuns").model()->rowCount(), 1);
    EXPECT_EQ(View("ListViewRuns").model()->index(0, 1).data().toString(), "TIT-102");
}

// The next Assign takes it.
TEST_F(BindingWindow, shows_the_chosen_row_once_the_filter_is_gone) {
    std::vector<ui::ListView::Row> more;
    for (int i = 0; i < 300; ++i)
        more.push_back({"", "MORE-" + std::to_string(i), "FX", std::to_string(1000 + i)});
    Form.ListViewRuns.AddRows(std::move(more));
    auto* filter = FindIn<QLineEdit>(&Window(), "Filter");
    QTest::keyClicks(filter, "more-250");
    const int chosen = Form.ListViewRuns.SelectedRow();
    EXPECT_EQ(Form.ListViewRuns.Cell(chosen, 1), "MORE-250");
    filter->setFocus();
    Stroke(Qt::CTRL | Qt::Key_A);
    Stroke(Qt::Key_Backspace);
    Settle();
    EXPECT_EQ(Form.ListViewRuns.SelectedRow(), chosen);
    QAbstractItemView& view = View("ListViewRuns");
    EXPECT_TRUE(view.viewport()->rect().contains(view.visualRect(view.currentIndex()).center()));
}

TEST_F(BindingWindow, leaves_undo_to_the_field_that_is_typed_into) {
    Form.ListViewRuns.PersonClicksRow(1);
    Form.TreeAGA.PersonClicks(node::Variable(0));
    Form.Command1.PersonClicks();
    auto* field = FindIn<QLineEdit>(&Window(), "Text1");
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, "1.25");
    Stroke(Qt::CTRL | Qt::Key_Z);
    EXPECT_NE(Form.Text1.Text(), "1.25");
    EXPECT_EQ(BoundTo(0), "TIT-101");
}

// A screen reader says each variable with its tag or with what is suggested for it.
TEST_F(BindingWindow, names_all_that_a_screen_reader_says) {
    Form.SuggestTags.PersonClicks();
    for (const char* name :
         {"TreeAGA", "ListViewRuns", "ListAnalogDig", "Filter", "FilterKind", "SuggestTags", "TakeSure"})
        EXPECT_FALSE(FindIn<QWidget>(&Window(), name)->accessibleName().isEmpty()) << name;
    const QModelIndex pressure = NodeAt(View("TreeAGA"), "AGA 3 Inputs\\Pressure");
    EXPECT_THAT(pressure.data(Qt::AccessibleTextRole).toString().toStdString(),
                ::testing::AllOf(::testing::HasSubstr("Pressure"), ::testing::HasSubstr("sure: PIT-101")));
    EXPECT_THAT(pressure.siblingAtColumn(1).data(Qt::AccessibleTextRole).toString().toStdString(),
                ::testing::HasSubstr("ISA letters PIT"));
}

} // namespace gfc::test
