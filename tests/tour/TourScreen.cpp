#include "tour/TourScreen.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPixmap>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolTip>

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

// A tip is a window of its own, above the one that it speaks of.
void PaintTips(const QWidget& window, QPixmap& picture) {
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* tip : windows)
        if (tip->isVisible() && tip->windowType() == Qt::ToolTip)
            QPainter(&picture).drawPixmap(window.mapFromGlobal(tip->pos()), tip->grab());
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
    // So do a list that was empty or is sorted otherwise, a tip, and the lines that a form writes itself.
    const auto lists = window.findChildren<QAbstractItemView*>();
    for (const QAbstractItemView* list : lists)
        if (list->isVisible() && list->model() != nullptr)
            sight += list->model()->rowCount() > 0 ? QLatin1Char('+') : QLatin1Char('-');
    const auto headings = window.findChildren<QHeaderView*>();
    for (const QHeaderView* heading : headings)
        if (heading->isSortIndicatorShown())
            sight += QString::number(heading->sortIndicatorSection());
    for (const char* line : {"Notes", "Progress", "FilterSays", "layoutFindResult"})
        if (const auto* label = window.findChild<QLabel*>(QLatin1String(line));
            label != nullptr && label->isVisible())
            sight += label->text();
    return sight + (QToolTip::isVisible() ? QToolTip::text() : QString());
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
    QPixmap picture = window.grab();
    PaintTips(window, picture);
    (void)picture.save(QDir(folder_).filePath(name));
}

} // namespace gfc::tour
