#include "qt/BusyPointer.h"

#include <QAbstractEventDispatcher>
#include <QCursor>
#include <QGuiApplication>

#include <utility>

namespace gfc::qt {

BusyPointer::BusyPointer(int patience) : patience_(patience) {
    if (auto* events = QAbstractEventDispatcher::instance(); events != nullptr)
        QObject::connect(events, &QAbstractEventDispatcher::aboutToBlock, this, [this] { Rest(); });
}

// What goes on after a person was waited for begins anew.
void BusyPointer::Note() {
    if (!since_.isValid())
        since_.start();
    if (busy_ || since_.elapsed() < patience_)
        return;
    busy_ = true;
    QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
}

void BusyPointer::Rest() {
    since_.invalidate();
    if (std::exchange(busy_, false))
        QGuiApplication::restoreOverrideCursor();
}

} // namespace gfc::qt
