#include "qt/SideWindow.h"

#include "qt/Icons.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

namespace gfc::qt {

SideWindow::SideWindow(const char* name) {
    setObjectName(name);
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowIcon(IconNamed("App"));
    (void)winId();
}

SideWindow* SideWindow::Named(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == QLatin1String(name) && window->isVisible())
            return dynamic_cast<SideWindow*>(window);
    return nullptr;
}

SideWindow& SideWindow::Open(const char* name, QWidget* owner) {
    if (SideWindow* open = Named(name); open != nullptr)
        open->close();
    auto* window = new SideWindow(name);
    window->StandOver(owner);
    return *window;
}

void SideWindow::DeleteAll() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* side = dynamic_cast<SideWindow*>(window); side != nullptr)
            delete side;
}

void SideWindow::StandOver(QWidget* owner) {
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* under = modal == nullptr ? owner : modal;
    StandOver(under == nullptr ? nullptr : under->windowHandle());
}

void SideWindow::StandOver(QWindow* under) {
    if (under_ != nullptr)
        under_->removeEventFilter(this);
    under_ = under;
    if (under_ != nullptr)
        under_->installEventFilter(this);
    windowHandle()->setTransientParent(under);
}

void SideWindow::Fill(QWidget& content, QSize size) {
    auto* whole = new QVBoxLayout(this);
    whole->addWidget(&content);
    resize(size);
    StandWithinScreen();
    show();
    activateWindow();
}

// Left to themselves some systems place a window a step beyond the last one, wherever its far edges come to
// be.
void SideWindow::StandWithinScreen() {
    constexpr QMargins frame(8, 32, 8, 8);
    const QRect room = screen()->availableGeometry().marginsRemoved(frame);
    QRect place(QPoint(), size());
    place.moveCenter(under_ == nullptr ? room.center() : under_->geometry().center());
    place.moveRight(std::min(place.right(), room.right()));
    place.moveBottom(std::min(place.bottom(), room.bottom()));
    place.moveLeft(std::max(place.left(), room.left()));
    place.moveTop(std::max(place.top(), room.top()));
    move(place.topLeft() - QPoint(frame.left(), frame.top()));
}

// A modal window that has just opened keeps all others from being used but those that stand over it.
bool SideWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked)
        StandOver(QGuiApplication::modalWindow());
    return QWidget::event(event);
}

// What it stood over goes: the modal window below that one, if there is any, would block it unasked.
bool SideWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == under_ && event->type() == QEvent::Hide) {
        QWindow* below = QGuiApplication::modalWindow();
        StandOver(below == nullptr ? under_->transientParent() : below);
    }
    return QWidget::eventFilter(watched, event);
}

void SideWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

// Not every window manager gives the focus back to where it was.
void SideWindow::closeEvent(QCloseEvent* event) {
    QWidget::closeEvent(event);
    if (under_ != nullptr && under_->isVisible() && isActiveWindow())
        under_->requestActivate();
}

} // namespace gfc::qt
