#include "tour/TourScreen.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QPixmap>
#include <QStatusBar>
#include <QTabWidget>

namespace gfc::tour {

namespace {

QWidget* WindowInFront() {
    if (QWidget* modal = QApplication::activeModalWidget(); modal != nullptr)
        return modal;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows)
        if (window->isVisible() && window->isWindow() && !window->objectName().isEmpty())
            return window;
    return nullptr;
}

QString NameOf(const QWidget& window) {
    if (qobject_cast<const QMessageBox*>(&window) != nullptr)
        return QStringLiteral("Box");
    return window.objectName().isEmpty() ? QString::fromLatin1(window.metaObject()->className())
                                         : window.objectName();
}

} // namespace

TourScreen::TourScreen(QString folder, int pictures) : folder_(std::move(folder)), pictures_(pictures) {
    BeforeStep = [this] { Look(); };
}

QString TourScreen::SightOf(const QWidget& window) {
    QString sight = NameOf(window) + window.windowTitle();
    if (const auto* box = qobject_cast<const QMessageBox*>(&window))
        sight += box->text();
    const auto panes = window.findChildren<QTabWidget*>();
    for (const QTabWidget* pane : panes)
        if (pane->isVisible())
            sight += QString::number(pane->currentIndex());
    // What stands in the main window is told by its status bar.
    const auto bars = window.findChildren<QStatusBar*>();
    for (const QStatusBar* bar : bars)
        for (const QLabel* panel : bar->findChildren<QLabel*>())
            sight += panel->text();
    // So does a list that was empty, and the quiet line under a form.
    const auto lists = window.findChildren<QAbstractItemView*>();
    for (const QAbstractItemView* list : lists)
        if (list->isVisible() && list->model() != nullptr)
            sight += list->model()->rowCount() > 0 ? QLatin1Char('+') : QLatin1Char('-');
    if (const auto* notes = window.findChild<QLabel*>(QStringLiteral("Notes")); notes != nullptr)
        sight += notes->text();
    return sight;
}

bool TourScreen::ViewText(const std::string& path, ui::WindowState state) {
    const bool shown = QtScreen::ViewText(path, state);
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows)
        if (window->isVisible() && window->objectName() == QStringLiteral("TextWindow")) {
            TakePicture(*window);
            window->close();
        }
    return shown;
}

void TourScreen::Look() {
    QWidget* window = WindowInFront();
    if (window != nullptr && seen_.insert(SightOf(*window)).second)
        TakePicture(*window);
}

void TourScreen::TakePicture(QWidget& window) {
    ++pictures_;
    const QString name =
        QStringLiteral("%1-%2.png").arg(pictures_, 3, 10, QLatin1Char('0')).arg(NameOf(window));
    (void)window.grab().save(QDir(folder_).filePath(name));
}

} // namespace gfc::tour
