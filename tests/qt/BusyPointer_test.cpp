#include "qt/BusyPointer.h"

#include <QApplication>
#include <QCursor>
#include <QEventLoop>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>

namespace gfc::test {

namespace {

// Does it as an operation that an event has begun, then lets the loop wait again.
void AsAnEvent(const std::function<void()>& operation) {
    QEventLoop loop;
    QTimer::singleShot(0, &loop, operation);
    QTimer::singleShot(1, &loop, [&loop] { QTimer::singleShot(1, &loop, &QEventLoop::quit); });
    loop.exec();
}

bool IsBusy() {
    return QGuiApplication::overrideCursor() != nullptr &&
           QGuiApplication::overrideCursor()->shape() == Qt::WaitCursor;
}

constexpr int never = 1'000'000;

} // namespace

TEST(BusyPointer, shows_while_an_operation_takes_long_and_goes_when_it_ends) {
    gfc::qt::BusyPointer pointer(0);
    bool shown = false;
    AsAnEvent([&] {
        pointer.Note();
        pointer.Note();
        shown = IsBusy();
    });
    EXPECT_TRUE(shown);
    EXPECT_FALSE(IsBusy());
}

TEST(BusyPointer, stays_while_pending_events_run_inside_the_operation) {
    gfc::qt::BusyPointer pointer(0);
    bool shown = false;
    AsAnEvent([&] {
        pointer.Note();
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        shown = IsBusy();
    });
    EXPECT_TRUE(shown);
}

TEST(BusyPointer, goes_while_the_operation_waits_for_a_person) {
    gfc::qt::BusyPointer pointer(0);
    bool shown = true;
    AsAnEvent([&] {
        pointer.Note();
        AsAnEvent([] {});
        shown = IsBusy();
    });
    EXPECT_FALSE(shown);
}

TEST(BusyPointer, does_not_show_for_a_quick_operation) {
    gfc::qt::BusyPointer pointer(never);
    bool shown = true;
    AsAnEvent([&] {
        pointer.Note();
        shown = IsBusy();
    });
    EXPECT_FALSE(shown);
}

} // namespace gfc::test
