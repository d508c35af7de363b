#include "qt/support/Reading.h"

#include "qt/Texts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollBar>
#include <QSplitterHandle>
#include <QStackedWidget>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>

namespace gfc::test {

namespace {

using Lines = std::vector<std::string>;

template <class W>
std::vector<const W*> VisibleIn(const QWidget& window) {
    std::vector<const W*> widgets;
    for (const W* widget : window.findChildren<W*>())
        if (widget->isVisible())
            widgets.push_back(widget);
    return widgets;
}

std::string NameOf(const QWidget& widget) {
    return qt::FromQt(widget.window()->objectName() + "." + widget.objectName());
}

void Expect(int needed, int given, const QWidget& widget, const QString& text, Lines& lines) {
    if (needed > given)
        lines.push_back(NameOf(widget) + ": '" + qt::FromQt(text) + "' takes " + std::to_string(needed) +
                        " of " + std::to_string(given));
}

int WidthOf(const QWidget& widget, const QString& text) {
    return widget.fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

void AddCutLabels(const QWidget& window, Lines& lines) {
    for (const QLabel* label : VisibleIn<QLabel>(window)) {
        if (label->text().isEmpty())
            continue;
        if (label->wordWrap())
            Expect(label->heightForWidth(label->width()), label->height(), *label, label->text(), lines);
        else
            Expect(label->fontMetrics().size(0, label->text()).width(), label->contentsRect().width(), *label,
                   label->text(), lines);
    }
}

void AddCutButtonsAndFrames(const QWidget& window, Lines& lines) {
    for (const auto* button : VisibleIn<QAbstractButton>(window))
        if (!button->text().isEmpty())
            Expect(std::min(button->sizeHint().width(), button->minimumSizeHint().width()), button->width(),
                   *button, button->text(), lines);
    for (const auto* frame : VisibleIn<QGroupBox>(window))
        Expect(WidthOf(*frame, frame->title()), frame->width(), *frame, frame->title(), lines);
}

void AddCutLists(const QWidget& window, Lines& lines) {
    for (const auto* list : VisibleIn<QComboBox>(window)) {
        QStyleOptionComboBox option;
        option.initFrom(list);
        const int room =
            list->style()
                ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, list)
                .width();
        Expect(WidthOf(*list, list->currentText()), room, *list, list->currentText(), lines);
    }
    for (const auto* bar : VisibleIn<QTabBar>(window))
        for (int tab = 0; tab < bar->count(); ++tab)
            Expect(WidthOf(*bar, bar->tabText(tab)), bar->tabRect(tab).width(), *bar, bar->tabText(tab),
                   lines);
}

void AddCutColumns(const QWidget& window, Lines& lines) {
    constexpr int looked = 50;
    for (const auto* table : VisibleIn<QTableView>(window))
        for (int column = 0; column < table->model()->columnCount(); ++column) {
            const auto heading = table->model()->headerData(column, Qt::Horizontal).toString();
            Expect(WidthOf(*table->horizontalHeader(), heading), table->columnWidth(column), *table, heading,
                   lines);
            for (int row = 0; row < std::min(looked, table->model()->rowCount()); ++row) {
                const auto text = table->model()->index(row, column).data().toString();
                Expect(WidthOf(*table, text), table->columnWidth(column), *table, text, lines);
            }
        }
}

// The toolkit's own parts, of which readers are told by the widget that they belong to.
bool IsAPart(const QWidget& widget) {
    return qobject_cast<const QScrollBar*>(&widget) != nullptr ||
           qobject_cast<const QHeaderView*>(&widget) != nullptr ||
           qobject_cast<const QSplitterHandle*>(&widget) != nullptr ||
           qobject_cast<const QStackedWidget*>(&widget) != nullptr ||
           widget.objectName().startsWith(QLatin1String("qt_")) || widget.objectName().isEmpty() ||
           qobject_cast<const QTabBar*>(widget.parentWidget()) != nullptr;
}

bool ShowsSomething(const QWidget& widget) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    return label == nullptr || !label->text().isEmpty() || !label->pixmap(Qt::ReturnByValue).isNull();
}

bool NeedsAName(const QWidget& widget) {
    if (widget.focusPolicy() != Qt::NoFocus)
        return true;
    return !widget.objectName().startsWith(QLatin1String("layout"));
}

bool IsAStop(const QWidget& widget) {
    return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.isVisible() && widget.isEnabled() &&
           !IsAPart(widget);
}

// Tab bars bear the toolkit's name, the pane around them bears the control's.
const QWidget* Stop(const QWidget* widget) {
    const bool bar = qobject_cast<const QTabBar*>(widget) != nullptr;
    return bar ? widget->parentWidget() : widget;
}

std::vector<const QWidget*> StopsOf(const QWidget& window) {
    std::vector<const QWidget*> stops;
    const QWidget* at = &window;
    do {
        const bool bar = qobject_cast<const QTabBar*>(at) != nullptr && at->isVisible() && at->isEnabled();
        if (at->window() == &window && (bar || IsAStop(*at)))
            stops.push_back(at);
        at = at->nextInFocusChain();
    } while (at != &window);
    return stops;
}

// The child of the two widgets' nearest common holder in which the one stands.
const QWidget* GroupOf(const QWidget* one, const QWidget* other) {
    while (one->parentWidget() != nullptr && !one->parentWidget()->isAncestorOf(other))
        one = one->parentWidget();
    return one;
}

bool GoesOn(const QWidget* from, const QWidget* to) {
    const QWidget* one = GroupOf(Stop(from), Stop(to));
    const QWidget* other = GroupOf(Stop(to), Stop(from));
    // From the headers of a pane to what stands on its page.
    if (one == nullptr || other == nullptr || one->parentWidget() != other->parentWidget())
        return true;
    const QRect a = one->geometry();
    const QRect b = other->geometry();
    const bool above = b.bottom() < a.top();
    const bool left = b.right() < a.left();
    const bool below = b.top() > a.bottom();
    const bool right = b.left() > a.right();
    return !(above && !right) && !(left && !below);
}

} // namespace

Lines CutTexts(const QWidget& window) {
    Lines lines;
    AddCutLabels(window, lines);
    AddCutButtonsAndFrames(window, lines);
    AddCutLists(window, lines);
    AddCutColumns(window, lines);
    return lines;
}

Lines Unnamed(const QWidget& window) {
    Lines lines;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || IsAPart(*widget) || !NeedsAName(*widget) || !ShowsSomething(*widget))
            continue;
        auto* pane = qobject_cast<QTabWidget*>(widget);
        QAccessibleInterface* read =
            QAccessible::queryAccessibleInterface(pane == nullptr ? widget : pane->tabBar());
        if (read != nullptr && !read->isValid())
            lines.push_back(NameOf(*widget) + " is taken for one that has gone");
        else if (read == nullptr || read->role() == QAccessible::NoRole ||
                 read->role() == QAccessible::Client)
            lines.push_back(NameOf(*widget) + " has no role");
        else if (read->text(QAccessible::Name).isEmpty())
            lines.push_back(NameOf(*widget) + " has no name");
    }
    return lines;
}

Lines StepsAgainstReading(const QWidget& window) {
    Lines lines;
    const auto stops = StopsOf(window);
    for (std::size_t i = 1; i < stops.size(); ++i)
        if (!GoesOn(stops[i - 1], stops[i]))
            lines.push_back(NameOf(*Stop(stops[i - 1])) + " -> " + NameOf(*Stop(stops[i])));
    return lines;
}

} // namespace gfc::test
