#include "qt/WindowPlaces.h"

#include "qt/FormWindow.h"
#include "qt/render/KeptProperties.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QStandardPaths>
#include <QTableView>
#include <QTreeView>

namespace gfc::qt {

namespace {

constexpr QLatin1StringView Size("size");
constexpr QLatin1StringView Maximised("maximised");
constexpr const char* GivenBack = "placeGivenBack"; // once, before the window shows for the first time

QString KeyOf(const QWidget& window, QLatin1StringView what) {
    return window.objectName() + QLatin1Char('/') + what;
}

QString KeyOf(const QWidget& window, const QSplitter& splitter) {
    return window.objectName() + QLatin1Char('/') + splitter.objectName();
}

QString KeyOf(const QWidget& window, const QWidget& view, QLatin1StringView what) {
    return KeyOf(window, what) + QLatin1Char('/') + view.objectName();
}

constexpr QLatin1StringView Columns("columns");
constexpr QLatin1StringView Node("node");
constexpr int LeastWidth = 8; // pixels
constexpr int MostWidth = 4000;

// "120 Station Name" for each column.
QStringList ListOf(const QVariantMap& widths) {
    QStringList list;
    for (const auto& [heading, width] : widths.asKeyValueRange())
        list << QString::number(width.toInt()) + QLatin1Char(' ') + heading;
    return list;
}

QVariantMap WidthsIn(const QStringList& list) {
    QVariantMap widths;
    for (const QString& each : list) {
        const int width = each.section(QLatin1Char(' '), 0, 0).toInt();
        if (width >= LeastWidth && width <= MostWidth)
            widths[each.section(QLatin1Char(' '), 1)] = width;
    }
    return widths;
}

bool CanBeSized(const QWidget& window) {
    return !window.windowFlags().testFlag(Qt::FramelessWindowHint);
}

} // namespace

WindowPlaces::WindowPlaces(QString file) : file_(std::move(file)) {
    QCoreApplication::instance()->installEventFilter(this);
}

QString WindowPlaces::FileOfUser() {
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
           QStringLiteral("/windows.ini");
}

bool WindowPlaces::eventFilter(QObject* watched, QEvent* event) {
    const auto type = event->type();
    if (type != QEvent::Show && type != QEvent::Hide)
        return false;
    auto* window = qobject_cast<QWidget*>(watched) != nullptr ? dynamic_cast<FormWindow*>(watched) : nullptr;
    if (window == nullptr || !CanBeSized(*window))
        return false;
    const bool isGiven = window->property(GivenBack).toBool();
    // A window that is being made ready hides, too, before it shows for the first time.
    if (type == QEvent::Hide && isGiven)
        Keep(*window);
    else if (type == QEvent::Show && !isGiven)
        GiveBack(*window);
    return false;
}

// The window stands where its size by design puts it, and grows or shrinks about its middle.
void WindowPlaces::GiveBack(FormWindow& window) const {
    window.setProperty(GivenBack, true);
    const QSettings kept(file_, QSettings::IniFormat);
    for (QSplitter* splitter : window.findChildren<QSplitter*>())
        splitter->restoreState(kept.value(KeyOf(window, *splitter)).toByteArray());
    for (QTableView* table : window.findChildren<QTableView*>())
        if (const auto widths = WidthsIn(kept.value(KeyOf(window, *table, Columns)).toStringList());
            !widths.isEmpty())
            table->setProperty(WidthsOfPerson, widths);
    for (QTreeView* tree : window.findChildren<QTreeView*>())
        if (tree->property(KeepsNode).toBool())
            tree->setProperty(PathToChoose, kept.value(KeyOf(window, *tree, Node)).toString());
    const QRect room = window.screen()->availableGeometry();
    const QSize size = kept.value(KeyOf(window, Size)).toSize().boundedTo(room.size());
    if (!size.isEmpty()) {
        const QPoint middle = window.geometry().center();
        window.resize(size.expandedTo(window.minimumSizeHint()));
        window.move(middle - window.rect().center());
    }
    if (kept.value(KeyOf(window, Maximised)).toString() == QLatin1String("true"))
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
}

void WindowPlaces::Keep(const FormWindow& window) const {
    QSettings kept(file_, QSettings::IniFormat);
    kept.setValue(KeyOf(window, Maximised), window.isMaximized());
    if (!window.isMaximized())
        kept.setValue(KeyOf(window, Size), window.size());
    for (const QSplitter* splitter : window.findChildren<QSplitter*>())
        kept.setValue(KeyOf(window, *splitter), splitter->saveState());
    for (const QTableView* table : window.findChildren<QTableView*>())
        if (const auto widths = table->property(WidthsOfPerson).toMap(); !widths.isEmpty())
            kept.setValue(KeyOf(window, *table, Columns), ListOf(widths));
    for (const QTreeView* tree : window.findChildren<QTreeView*>())
        if (const QString path = tree->property(SelectedPath).toString(); !path.isEmpty())
            kept.setValue(KeyOf(window, *tree, Node), path);
}

} // namespace gfc::qt
