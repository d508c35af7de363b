#include "qt/Waiting.h"

#include <QApplication>
#include <QEvent>

namespace gfc::qt {

namespace {

bool IsOfHands(QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
        return true;
    default:
        return false;
    }
}

} // namespace

Waiting::Waiting() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    qApp->installEventFilter(this);
}

Waiting::~Waiting() {
    QApplication::restoreOverrideCursor();
}

bool Waiting::eventFilter(QObject* watched, QEvent* event) {
    if (!IsOfHands(event->type()))
        return QObject::eventFilter(watched, event);
    // One that is taken here is no shortcut either.
    event->accept();
    return true;
}

} // namespace gfc::qt
