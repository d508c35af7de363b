#include "forms/program/StartUp.h"
#include "qt/FormWindow.h"
#include "qt/ProbeForm.h"
#include "qt/support/StoryScreen.h"
#include "scenarios/Moves.h"
#include "support/World.h"

#include <QAction>
#include <QApplication>
#include <QShortcut>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>

// Windows that are made before they are shown.
namespace gfc::test {

using ::testing::Contains;
using ::testing::IsEmpty;

namespace {

class ReadyWindows : public ::testing::Test {
protected:
    ReadyWindows() {
        Screen.AddDesign({"Probe", SetUpProbe});
        Screen.AddDesign({"Second", SetUpProbe});
    }

    void MakeAll() {
        while (!Screen.AllReady())
            QCoreApplication::processEvents();
    }

    qt::QtScreen Screen;
    std::shared_ptr<ProbeForm> Form = std::make_shared<ProbeForm>(Screen);
    std::shared_ptr<ProbeForm> Second = std::make_shared<ProbeForm>(Screen, "Second");
};

// A window as it stands when a person first sees it.
struct Sight {
    QImage Picture;
    QStringList Words; // the names for readers, tool tips and shortcuts of all that is in it
};

Sight SightOf(QWidget& window) {
    QApplication::setActiveWindow(&window); // the focus is seen, however far the activation has come
    Sight sight{window.grab().toImage(), {}};
    for (const QWidget* widget : window.findChildren<QWidget*>())
        sight.Words << widget->objectName() + ": " + widget->accessibleName() + ", " + widget->toolTip();
    for (const QAction* action : window.findChildren<QAction*>())
        sight.Words << action->objectName() + ": " + action->text() + ", " + action->shortcut().toString();
    for (const QShortcut* shortcut : window.findChildren<QShortcut*>())
        sight.Words << shortcut->key().toString();
    sight.Words.sort(); // the order of the widgets says nothing
    return sight;
}

std::map<std::string, Sight> FirstSights(bool madeReady) {
    StoryScreen screen;
    FakeProgram program(screen);
    moves::ThreeStations(program);
    moves::StartUp(screen.TheStory);
    moves::Exit(screen.TheStory);
    std::map<std::string, Sight> seen;
    screen.BeforeStep = [&seen] {
        for (const char* form : {"UserIDForm", "GFCPrincipal"})
            if (QWidget* window = FindWindow(form);
                !seen.contains(form) && window != nullptr && window->isVisible())
                seen[form] = SightOf(*window);
    };
    forms::StartProgram(program.Program);
    if (madeReady)
        screen.MakeReady(forms::FormsToCome(program.Program));
    screen.RunToEnd();
    EXPECT_TRUE(screen.Ended());
    return seen;
}

} // namespace

TEST_F(ReadyWindows, are_made_when_nothing_else_is_to_be_done_and_show_nothing) {
    Screen.MakeReady({Form.get(), Second.get()});
    EXPECT_FALSE(Screen.AllReady());
    EXPECT_EQ(Screen.WindowOf(*Form), nullptr);
    MakeAll();
    ASSERT_NE(Screen.WindowOf(*Form), nullptr);
    ASSERT_NE(Screen.WindowOf(*Second), nullptr);
    EXPECT_FALSE(Screen.WindowOf(*Form)->isVisible());
    EXPECT_FALSE(Screen.AnyShown());
    EXPECT_THAT(Form->Log, IsEmpty()) << "a form is loaded when it is shown";
}

TEST_F(ReadyWindows, are_those_that_are_shown) {
    Screen.MakeReady({Form.get()});
    MakeAll();
    const qt::FormWindow* const made = Screen.WindowOf(*Form);
    Form->words.SetText("changed meanwhile");
    Form->Show();
    EXPECT_EQ(Screen.WindowOf(*Form), made);
    EXPECT_TRUE(made->isVisible());
    EXPECT_EQ(WindowDriver().Text("Probe", "words"), "changed meanwhile");
    EXPECT_THAT(Form->Log, Contains("load"));
}

TEST_F(ReadyWindows, are_not_made_again_for_a_form_that_was_shown_meanwhile) {
    Screen.MakeReady({Form.get()});
    Form->Show();
    const qt::FormWindow* const shown = Screen.WindowOf(*Form);
    MakeAll();
    EXPECT_EQ(Screen.WindowOf(*Form), shown);
    EXPECT_TRUE(shown->isVisible());
}

TEST_F(ReadyWindows, are_not_made_for_a_form_that_has_gone) {
    const std::weak_ptr<ProbeForm> watched = Second;
    Screen.MakeReady({Second.get(), Form.get()});
    Second.reset();
    EXPECT_TRUE(watched.expired());
    MakeAll();
    EXPECT_NE(Screen.WindowOf(*Form), nullptr);
}

TEST_F(ReadyWindows, go_with_their_form) {
    Screen.MakeReady({Form.get()});
    MakeAll();
    const std::weak_ptr<ProbeForm> watched = Form;
    Form->Unload();
    EXPECT_EQ(Screen.WindowOf(*Form), nullptr);
    Form.reset();
    EXPECT_TRUE(watched.expired());
}

TEST_F(ReadyWindows, are_not_made_once_the_program_is_over) {
    Screen.MakeReady({Form.get()});
    Screen.EndProgram(0);
    for (int turn = 0; turn < 5; ++turn)
        QCoreApplication::processEvents();
    EXPECT_EQ(Screen.WindowOf(*Form), nullptr);
}

TEST(ReadyWindowsOfTheStart, look_and_read_as_if_they_were_made_when_they_are_shown) {
    const auto ready = FirstSights(true);
    auto usual = FirstSights(false);
    ASSERT_EQ(ready.size(), 2U);
    for (const auto& [form, sight] : ready) {
        EXPECT_EQ(sight.Picture, usual[form].Picture) << form;
        EXPECT_EQ(sight.Words.join("\n").toStdString(), usual[form].Words.join("\n").toStdString()) << form;
        EXPECT_GT(sight.Words.size(), 5) << form;
    }
}

namespace {
bool ranWhileMade = false;

void LookAtTimer(QWidget& content) {
    const auto* timer = content.window()->findChild<QTimer*>("timer");
    ranWhileMade = timer != nullptr && timer->isActive();
    SetUpProbe(content);
}
} // namespace

TEST(Timers, run_while_the_window_is_being_made) {
    qt::QtScreen screen;
    screen.AddDesign({"Probe", LookAtTimer});
    const auto form = std::make_shared<ProbeForm>(screen);
    form->timer.SetEnabled(true);
    form->Show();
    EXPECT_TRUE(ranWhileMade);
}

} // namespace gfc::test
