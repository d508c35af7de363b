#include "qt/WindowFixture.h"

#include <QApplication>
#include <QCursor>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace gfc::test {

struct Waiting : ProbeInWindow {
    // Does it in the middle of a wait, of which a machine that is busy may need several.
    void Meanwhile(const std::function<void()>& act) {
        bool done = false;
        QTimer::singleShot(1, qApp, [&] {
            act();
            done = true;
        });
        while (!done)
            Screen.WaitAMoment();
    }
};

TEST_F(Waiting, takes_neither_clicks_nor_keys) {
    auto& go = Widget<QPushButton>("go");
    Form->Log.clear();
    Meanwhile([&] {
        QTest::mouseClick(&go, Qt::LeftButton);
        go.setFocus();
        QTest::keyClick(&go, Qt::Key_Space);
        QTest::keyClick(&Window(), Qt::Key_F1);
    });
    QCoreApplication::processEvents();
    EXPECT_THAT(Form->Log, ::testing::Not(::testing::Contains("go")));
    QTest::mouseClick(&go, Qt::LeftButton);
    EXPECT_THAT(Form->Log, ::testing::Contains("go"));
}

TEST_F(Waiting, shows_a_busy_pointer) {
    Meanwhile([] {
        ASSERT_NE(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    });
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Waiting, is_shown_for_as_long_as_work_is_done) {
    bool done = false;
    Screen.Busy([&] {
        done = true;
        ASSERT_NE(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    });
    EXPECT_TRUE(done);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Waiting, lets_the_window_be_closed) {
    Meanwhile([&] { Window().close(); });
    EXPECT_FALSE(Form->IsShown());
}

} // namespace gfc::test
