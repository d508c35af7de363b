#include "qt/HelpFixture.h"

#include <QAccessible>
#include <QMessageBox>
#include <QPushButton>

namespace gfc::test {

TEST_F(HelpWindows, let_the_forms_be_used) {
    Open(0);
    ClickOn(&Widget<QPushButton>("go"));
    EXPECT_THAT(Form->Log, ::testing::Contains("go"));
    EXPECT_NE(Help(), nullptr);
}

TEST_F(HelpWindows, stay_usable_when_a_modal_window_opens) {
    Open(5100);
    auto second = std::make_shared<ProbeForm>(Screen, "Second");
    InModal([&] {
        ClickOn(&Widget<QPushButton>("go"));
        EXPECT_THAT(Form->Log, ::testing::Not(::testing::Contains("go"))) << "nothing blocks the first form";
        ExpectUsable();
        EXPECT_TRUE(second->IsShown());
        second->Unload();
    });
    second->ShowModal();
    ASSERT_NE(Help(), nullptr);
    ExpectUsable();
}

TEST_F(HelpWindows, open_by_F1_over_a_form_that_has_no_number) {
    auto second = std::make_shared<ProbeForm>(Screen, "Second");
    second->HasHelp = false;
    InModal([&] {
        Press(QApplication::activeModalWidget(), Qt::Key_F1);
        EXPECT_NE(Help(), nullptr);
        second->Unload();
    });
    second->ShowModal();
    ASSERT_NE(Help(), nullptr);
    EXPECT_EQ(Shown(), "index.html") << "the manual tells nothing of it";
}

TEST_F(HelpWindows, opened_over_a_modal_window_outlive_it) {
    auto second = std::make_shared<ProbeForm>(Screen, "Second");
    InModal([&] {
        Open(5100);
        ExpectUsable();
        second->Unload();
    });
    second->ShowModal();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_NE(Help(), nullptr);
    ExpectUsable();
}

TEST_F(HelpWindows, stay_usable_through_a_chain_of_modal_windows) {
    Open(0);
    auto second = std::make_shared<ProbeForm>(Screen, "Second");
    InModal([&] {
        InModal([&] {
            ExpectUsable();
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            ClickOn(box->button(QMessageBox::Ok));
        });
        (void)Screen.Ask({.Title = "Title", .Text = "Text"});
        ExpectUsable();
        second->Unload();
    });
    second->ShowModal();
    ExpectUsable();
}

TEST_F(HelpWindows, open_from_the_help_button_of_a_box_and_leave_it_open) {
    bool stayed = false;
    InModal([&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        ClickOn(box->button(QMessageBox::Help));
        stayed = box->isVisible();
        ASSERT_NE(Help(), nullptr);
        EXPECT_EQ(Shown(), "minimum-io.html");
        EXPECT_EQ(Help()->windowHandle()->transientParent(), box->windowHandle());
        ClickOn(&Part<QToolButton>("HelpHome"));
        Press(Help(), Qt::Key_Escape);
        EXPECT_EQ(Help(), nullptr);
        Press(box, Qt::Key_F1);
        EXPECT_NE(Help(), nullptr);
        ClickOn(box->button(QMessageBox::Ok));
    });
    (void)Screen.Ask({.Title = "Title", .Text = "Text", .HelpContext = 7300, .HelpFile = "AGA.chm"});
    EXPECT_TRUE(stayed);
}

// A screen reader that still knew the button would ask what has gone.
TEST_F(HelpWindows, leave_screen_readers_no_button_of_a_box_that_has_gone) {
    QAccessible::Id known = 0;
    InModal([&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        known = QAccessible::uniqueId(QAccessible::queryAccessibleInterface(box->button(QMessageBox::Help)));
        EXPECT_NE(QAccessible::accessibleInterface(known), nullptr);
        ClickOn(box->button(QMessageBox::Ok));
    });
    (void)Screen.Ask({.Title = "Title", .Text = "Text", .HelpContext = 7300, .HelpFile = "AGA.chm"});
    EXPECT_EQ(QAccessible::accessibleInterface(known), nullptr);
}

TEST_F(HelpWindows, go_with_the_screen) {
    auto screen = std::make_unique<qt::QtScreen>();
    screen->OpenHelp("AGA.chm", 0);
    ASSERT_NE(Help(), nullptr);
    screen.reset();
    EXPECT_EQ(Help(), nullptr);
}

} // namespace gfc::test
