#include "qt/SideWindow.h"

#include "qt/Icons.h"

#include <QApplication>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <QWindow>

namespace gfc::qt {

SideWindow& SideWindow::Open(const char* name, QWidget* owner) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == QLatin1String(name))
            window->close();
    // It goes when it is closed, and with the program at the latest.
    auto* window = new SideWindow;
    window->setObjectName(name);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setAttribute(Qt::WA_QuitOnClose, false);
    window->setWindowIcon(IconNamed("App"));
    (void)window->winId();
    // Over its owner, or a modal owner would keep it from being used.
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* under = modal == nullptr ? owner : modal;
    if (under != nullptr && under->windowHandle() != nullptr)
        window->windowHandle()->setTransientParent(under->windowHandle());
    return *window;
}

void SideWindow::Fill(QWidget& content, QSize size) {
    auto* whole = new QVBoxLayout(this);
    whole->addWidget(&content);
    resize(size);
    show();
    activateWindow();
}

void SideWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

} // namespace gfc::qt
