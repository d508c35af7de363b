#include "qt/support/WindowLooks.h"

#include "qt/Texts.h"
#include "qt/render/TreeModel.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QStatusBar>

namespace gfc::test {

namespace {

QString ShownBy(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text();
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget))
        return field->text();
    if (const auto* list = qobject_cast<const QComboBox*>(&widget))
        return list->currentIndex() < 0 ? list->placeholderText() : list->currentText();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text();
    if (const auto* frame = qobject_cast<const QGroupBox*>(&widget))
        return frame->title();
    if (const auto* bar = qobject_cast<const QStatusBar*>(&widget))
        return bar->findChild<QLabel*>()->text();
    return {};
}

} // namespace

std::string TextOf(const QWidget& widget) {
    QString text = ShownBy(widget);
    text.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    return qt::FromQt(text);
}

bool IsUsable(const QAction& action) {
    const QAction* at = &action;
    while (at->isEnabled() && at->isVisible()) {
        const QObject* place = at->parent();
        // A menu's own action is in the menu's care, and the menu in that of the one above.
        const auto* menu = qobject_cast<const QMenu*>(place);
        if (menu != nullptr && menu->menuAction() == at)
            menu = qobject_cast<const QMenu*>(menu->parent());
        if (menu == nullptr)
            return true;
        at = menu->menuAction();
    }
    return false;
}

QModelIndex NodeAt(const QAbstractItemView& tree, const std::string& path) {
    const auto* model = tree.model();
    const QModelIndex first = model->index(0, 0);
    const auto found = model->match(first, qt::TreeModel::PathRole, qt::ToQt(path), 1,
                                    Qt::MatchExactly | Qt::MatchRecursive | Qt::MatchCaseSensitive);
    return found.isEmpty() ? QModelIndex() : found.first();
}

std::string FocusIn(const QWidget& window) {
    const QWidget* at = window.focusWidget();
    // The inner parts of a widget bear names of the toolkit, or none.
    while (at != nullptr && at != &window &&
           (at->objectName().isEmpty() || at->objectName().startsWith(QLatin1String("qt_"))))
        at = at->parentWidget();
    return at == nullptr || at == &window ? std::string() : qt::FromQt(at->objectName());
}

} // namespace gfc::test
