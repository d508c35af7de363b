#include "qt/WindowFixture.h"
#include "support/TempFolder.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <fstream>

namespace gfc::test {

using ::testing::Contains;
using ::testing::ElementsAre;

class Windows : public ProbeInWindow {
protected:
    // Does it while the next box stands open.
    static void OnBox(std::function<void(QMessageBox&)> act) {
        QTimer::singleShot(1, qApp, [act = std::move(act)] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            act(*box);
        });
    }
};

TEST_F(Windows, bear_the_forms_name_and_caption) {
    EXPECT_EQ(Window().objectName(), "Probe");
    EXPECT_EQ(Window().windowTitle(), "Probe window");
    EXPECT_EQ(Window().accessibleName(), "Probe window");
    EXPECT_FALSE(Window().windowIcon().isNull());
}

TEST_F(Windows, name_their_widgets_for_readers) {
    const auto read = [this](const char* name) {
        return QAccessible::queryAccessibleInterface(&Widget<QWidget>(name))->text(QAccessible::Name);
    };
    EXPECT_EQ(read("go"), "Go");
    EXPECT_EQ(read("group"), "Group");
    EXPECT_EQ(read("title"), "A title");
    Form->title.SetCaption("Another title");
    EXPECT_EQ(read("title"), "Another title");
    Form->SetCaption("Renamed");
    EXPECT_EQ(Window().accessibleName(), "Renamed");
}

TEST_F(Windows, without_a_close_command_have_no_close_button) {
    EXPECT_TRUE(Window().windowFlags().testFlag(Qt::WindowCloseButtonHint));
    Form->RemoveCloseCommand();
    EXPECT_FALSE(Window().windowFlags().testFlag(Qt::WindowCloseButtonHint));
    EXPECT_TRUE(Window().isVisible());
    EXPECT_FALSE(Window().close());
    QTest::keyClick(&Window(), Qt::Key_Escape);
    QTest::keyClick(&Window(), Qt::Key_F4, Qt::AltModifier);
    EXPECT_TRUE(Form->IsShown());
    EXPECT_TRUE(Window().isVisible());
}

TEST_F(Windows, of_a_disabled_form_give_the_focus_back_afterwards) {
    Hands.Focus("Probe", "tree");
    Form->SetEnabled(false);
    EXPECT_FALSE(Window().isEnabled());
    EXPECT_FALSE(Form->go.PersonClicks());
    Form->SetEnabled(true);
    EXPECT_TRUE(Window().isEnabled());
    EXPECT_EQ(Hands.Focused("Probe"), "tree");
}

TEST_F(Windows, keep_their_state_while_they_are_hidden) {
    Hands.Type("Probe", "words", "kept");
    Form->Hide();
    EXPECT_FALSE(Window().isVisible());
    Form->words.SetText("changed");
    Form->Show();
    EXPECT_EQ(Hands.Text("Probe", "words"), "changed");
}

TEST_F(Windows, go_with_their_form) {
    const QPointer<qt::FormWindow> window = &Window();
    Form->Unload();
    EXPECT_EQ(Screen.WindowOf(*Form), nullptr);
    EXPECT_FALSE(window->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(window, nullptr);
}

TEST_F(Windows, keep_their_form_as_long_as_they_show_it) {
    const std::weak_ptr<ProbeForm> watched = Form;
    ProbeForm& form = *Form;
    Form.reset();
    EXPECT_FALSE(watched.expired());
    EXPECT_EQ(Hands.Cell("Probe", "rows", 1, 1), "first");
    form.Unload();
    EXPECT_TRUE(watched.expired());
}

TEST_F(Windows, stand_over_the_one_that_opened_them) {
    auto second = std::make_shared<ProbeForm>(Screen, "Second");
    QTimer::singleShot(1, qApp, [&] {
        QWidget* opened = FindWindow("Second");
        ASSERT_NE(opened, nullptr);
        EXPECT_EQ(opened->windowModality(), Qt::ApplicationModal);
        EXPECT_EQ(opened->windowHandle()->transientParent(), Window().windowHandle());
        second->Unload();
    });
    second->ShowModal();
    EXPECT_FALSE(second->IsShown());
}

TEST_F(Windows, show_frames_in_the_middle_when_told) {
    Window().resize(900, 900);
    Settle();
    auto& frame = Widget<QGroupBox>("group");
    const int width = frame.parentWidget()->width();
    Form->group.SetCentred(true);
    Settle();
    EXPECT_LE(std::abs(frame.geometry().center().x() - width / 2), 2);
    EXPECT_LT(frame.width(), width / 2);
    Form->group.SetCentred(false);
    Settle();
    EXPECT_GT(frame.width(), width / 2);
}

TEST_F(Windows, keep_the_panel_of_the_status_bar_as_wide_as_its_model) {
    Form->status.MakePanel1AsWideAs(Form->tree);
    auto& tree = Widget<QTreeView>("tree");
    auto* panel = FindIn<QLabel>(FindWindow("Probe"), "layoutstatusPanel1");
    ASSERT_NE(panel, nullptr);
    EXPECT_EQ(panel->minimumWidth(), tree.width());
    Window().resize(1000, 700);
    Settle();
    EXPECT_EQ(panel->minimumWidth(), tree.width());
}

TEST_F(Windows, build_the_menu_of_the_form) {
    auto* bar = Window().findChild<QMenuBar*>();
    ASSERT_NE(bar, nullptr);
    ASSERT_EQ(bar->actions().size(), 2);
    EXPECT_EQ(bar->actions()[0]->text(), "&Main");
    const auto entries = bar->actions()[0]->menu()->actions();
    ASSERT_EQ(entries.size(), 3);
    EXPECT_TRUE(entries[1]->isSeparator());
    EXPECT_NE(entries[2]->menu(), nullptr);
    EXPECT_TRUE(entries[0]->icon().isNull());
    Form->menuFirst.SetImage("MenuWizard");
    EXPECT_FALSE(entries[0]->icon().isNull());
}

TEST_F(Windows, pop_a_menu_up_without_waiting_for_it) {
    Screen.PopUp(Form->menuMain);
    Settle();
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_THAT(Form->Log, ElementsAre("menu opens"));
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions().first()).center());
    EXPECT_THAT(Form->Log, ElementsAre("menu opens", "first"));
}

TEST_F(Windows, ask_in_a_box_with_title_text_icon_and_buttons) {
    OnBox([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "Title");
        EXPECT_EQ(box.text(), "one\ntwo\nthree <b>");
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::Yes));
        QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
    });
    EXPECT_EQ(Screen.Ask({.Title = "Title",
                          .Text = "one\rtwo\r\nthree <b>",
                          .TheIcon = ui::Icon::Critical,
                          .TheButtons = ui::Buttons::YesNo}),
              ui::Answer::Yes);
    EXPECT_TRUE(Form->Log.empty());
}

TEST_F(Windows, name_what_is_at_stake_below_the_text_and_answer_no_to_enter) {
    OnBox([](QMessageBox& box) {
        EXPECT_EQ(box.text(), "All of it?");
        EXPECT_EQ(box.informativeText(), "North <b>");
        const auto* line = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"));
        ASSERT_NE(line, nullptr);
        EXPECT_EQ(line->textFormat(), Qt::PlainText);
        QTest::keyClick(&box, Qt::Key_Return);
    });
    EXPECT_EQ(Screen.Ask({.Title = "Title",
                          .Text = "All of it?",
                          .TheButtons = ui::Buttons::YesNo,
                          .AtStake = "North <b>"}),
              ui::Answer::No);
}

TEST_F(Windows, take_a_box_closed_without_an_answer_for_its_last_button) {
    for (const auto buttons : {ui::Buttons::YesNo, ui::Buttons::Ok}) {
        OnBox([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        EXPECT_EQ(Screen.Ask({.Title = "Title", .Text = "Text", .TheButtons = buttons}),
                  buttons == ui::Buttons::Ok ? ui::Answer::Ok : ui::Answer::No);
    }
}

TEST_F(Windows, show_a_text_themselves_where_no_viewer_does) {
    const TempFolder folder;
    const std::string path = folder.Path() + "/station_Errors.log";
    std::ofstream(path, std::ios::binary) << "First\r\nA\xF1o\r\n";
    EXPECT_TRUE(Screen.ViewText(path, ui::WindowState::Normal));
    QWidget* viewer = FindWindow("TextWindow");
    ASSERT_NE(viewer, nullptr);
    EXPECT_EQ(viewer->windowTitle(), "station_Errors.log");
    const auto* page = viewer->findChild<QPlainTextEdit*>();
    EXPECT_TRUE(page->isReadOnly());
    EXPECT_EQ(page->toPlainText(), QString::fromUtf8("First\nA\xC3\xB1o\n"));
    viewer->close();
    EXPECT_FALSE(Screen.ViewText(path + ".missing", ui::WindowState::Normal));
}

TEST_F(Windows, show_a_text_themselves_where_the_viewer_ends_badly) {
    const TempFolder folder;
    const std::string path = folder.Path() + "/station_Errors.log";
    std::ofstream(path, std::ios::binary) << "First\r\n";
    qt::QtScreen screen([](const std::string&, ui::WindowState) { return true; });
    int looks = 0;
    screen.WatchViewer([&looks] { return ++looks == 2; });
    EXPECT_TRUE(screen.ViewText(path, ui::WindowState::Normal));
    EXPECT_EQ(FindWindow("TextWindow"), nullptr);
    EXPECT_TRUE(QTest::qWaitFor([] { return FindWindow("TextWindow") != nullptr; }));
    FindWindow("TextWindow")->close();
    EXPECT_EQ(looks, 2);
}

TEST(Screens, leave_texts_to_the_viewer_that_there_is) {
    std::string seen;
    qt::QtScreen screen([&seen](const std::string& path, ui::WindowState) {
        seen = path;
        return true;
    });
    EXPECT_TRUE(screen.ViewText("some.log", ui::WindowState::Maximised));
    EXPECT_EQ(seen, "some.log");
    EXPECT_EQ(FindWindow("TextWindow"), nullptr);
}

TEST(Screens, run_until_no_form_is_shown) {
    qt::QtScreen screen;
    screen.AddDesign({"Probe", SetUpProbe});
    auto form = std::make_shared<ProbeForm>(screen);
    form->Show();
    QTimer::singleShot(1, qApp, [&form] { form->Unload(); });
    EXPECT_EQ(screen.Run(), 0);
    EXPECT_EQ(screen.Run(), 0);
}

TEST(Screens, return_the_exit_code_of_the_program) {
    qt::QtScreen screen;
    screen.AddDesign({"Probe", SetUpProbe});
    auto form = std::make_shared<ProbeForm>(screen);
    form->Show();
    QTimer::singleShot(1, qApp, [&screen] { screen.EndProgram(4); });
    EXPECT_EQ(screen.Run(), 4);
}

TEST(Screens, wait_a_moment_without_taking_what_a_person_does) {
    qt::QtScreen screen;
    bool ran = false;
    QTimer::singleShot(1, qApp, [&ran] { ran = true; });
    screen.WaitAMoment();
    EXPECT_TRUE(ran);
}

TEST(Screens, close_open_boxes_when_the_program_ends) {
    qt::QtScreen screen;
    QTimer::singleShot(1, qApp, [&screen] { screen.EndProgram(1); });
    EXPECT_EQ(screen.Ask({.Title = "Title", .Text = "Text", .TheButtons = ui::Buttons::YesNo}),
              ui::Answer::No);
    EXPECT_EQ(screen.AskText("Title", "Prompt"), "");
    EXPECT_EQ(screen.ChooseFile({}), std::nullopt);
}

} // namespace gfc::test
