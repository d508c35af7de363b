#include "qt/FormWindow.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLayout>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QWindow>

#include <algorithm>

// How a window appears: its frame, its size and where it stands.
namespace gfc::qt {

Qt::WindowFlags FormWindow::FlagsFor(Qt::WindowModality modality) const {
    if (content_->property("frameless").toBool())
        return Qt::SplashScreen | Qt::FramelessWindowHint;
    const Qt::WindowFlags kind = modality == Qt::NonModal ? Qt::Window : Qt::Dialog;
    const Qt::WindowFlags title = Qt::CustomizeWindowHint | Qt::WindowTitleHint;
    if (!form_->HasCloseCommand())
        return kind | title;
    const Qt::WindowFlags close = title | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    return modality == Qt::NonModal ? kind | close | Qt::WindowMinMaxButtonsHint : kind | close;
}

void FormWindow::ShowAs(Qt::WindowModality modality, QWidget* owner) {
    if (form_ == nullptr)
        return;
    {
        const Writing writing(*this);
        hide();
        setWindowFlags(FlagsFor(modality));
        setWindowModality(modality);
        if (!sized_)
            FitToScreen();
        PutOver(owner);
        show();
        DropScrollBars();
        raise();
    }
    TakeFocus();
}

// The area takes the size that it is shown with for that of the window before, and makes bars for the
// difference; it sees that there is none with the next layout, which would be after the first picture of the
// window.
void FormWindow::DropScrollBars() {
    QEvent layout(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(area_, &layout);
}

void FormWindow::FitToScreen() {
    sized_ = true;
    const QSize room = screen()->availableGeometry().size() - QSize(20, 50);
    const QSize bar = menuBar_ == nullptr ? QSize(0, 0) : QSize(0, menuBar_->sizeHint().height());
    // What is hidden already still counts in the hints of nested layouts.
    if (content_->layout() != nullptr)
        content_->layout()->activate();
    QSize wanted =
        (designed_.isValid() ? designed_ : content_->sizeHint()).expandedTo(content_->minimumSizeHint());
    // Words that wrap say only for a width how high they stand.
    wanted.setHeight(std::max(wanted.height(), content_->heightForWidth(wanted.width())));
    resize((wanted + bar).boundedTo(room));
}

// What has come to view must not end in scroll bars while there is room on the screen.
void FormWindow::GrowToContent() {
    const QSize room = screen()->availableGeometry().size() - QSize(20, 50);
    // Without the scroll bars, which a first layout shows for a moment.
    const QSize seen = area_->size();
    const int height = std::max(content_->minimumSizeHint().height(), content_->heightForWidth(seen.width()));
    const QSize lacking = QSize(content_->minimumSizeHint().width(), height) - seen;
    const QSize wanted = size() + lacking.expandedTo(QSize(0, 0));
    if (sized_ && wanted != size())
        resize(wanted.boundedTo(room.expandedTo(size())));
}

void FormWindow::PutOver(const QWidget* owner) {
    (void)winId();
    if (owner == nullptr || owner->windowHandle() == nullptr) {
        windowHandle()->setTransientParent(nullptr);
        move(screen()->availableGeometry().center() - rect().center());
        return;
    }
    windowHandle()->setTransientParent(owner->windowHandle());
    const QRect room = screen()->availableGeometry();
    const QPoint corner = owner->geometry().center() - rect().center();
    const QPoint last = room.bottomRight() - rect().bottomRight();
    move(std::max(room.left(), std::min(corner.x(), last.x())),
         std::max(room.top(), std::min(corner.y(), last.y())));
}

} // namespace gfc::qt
