#include "qt/support/KeyboardDriver.h"

#include "qt/Texts.h"
#include "qt/support/WindowLooks.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTreeView>
#include <gtest/gtest.h>

namespace gfc::test {

namespace {

// More stops than any window has.
constexpr int longestWay = 120;

QString NameOf(const QObject* object) {
    return object == nullptr ? QStringLiteral("nothing") : object->objectName();
}

bool HasFocus(const QWidget& widget) {
    const QWidget* focused = QApplication::focusWidget();
    return focused != nullptr && (focused == &widget || widget.isAncestorOf(focused));
}

// Tab stops once at options that stand together; the arrows go on from there.
bool StandsWith(const QWidget* focused, const QWidget& target) {
    return focused != nullptr && focused != &target && focused->parentWidget() == target.parentWidget() &&
           qobject_cast<const QRadioButton*>(focused) != nullptr &&
           qobject_cast<const QRadioButton*>(&target) != nullptr;
}

// The arrow that points from one widget to the other.
Qt::Key ArrowTo(const QWidget& from, const QWidget& target) {
    const QPoint way = target.geometry().center() - from.geometry().center();
    if (std::abs(way.x()) > std::abs(way.y()))
        return way.x() > 0 ? Qt::Key_Right : Qt::Key_Left;
    return way.y() > 0 ? Qt::Key_Down : Qt::Key_Up;
}

// Notes whether a box comes up: a field that keeps the focus, or gives it to another one, says why.
class BoxWatch : public QObject {
public:
    BoxWatch() { qApp->installEventFilter(this); }
    [[nodiscard]] bool Any() const { return any_; }

    bool eventFilter(QObject* watched, QEvent* event) override {
        any_ = any_ || (event->type() == QEvent::Show && qobject_cast<QDialog*>(watched) != nullptr);
        return false;
    }

private:
    bool any_ = false;
};

// Where a key goes: to what has popped up, else to what has the focus.
QWidget* Listening() {
    if (QWidget* popup = QApplication::activePopupWidget(); popup != nullptr)
        return popup->focusWidget() == nullptr ? popup : popup->focusWidget();
    QWidget* focused = QApplication::focusWidget();
    return focused == nullptr ? QApplication::activeWindow() : focused;
}

bool IsAbove(const QModelIndex& index, const QModelIndex& target) {
    for (QModelIndex at = target.parent(); at.isValid(); at = at.parent())
        if (at == index)
            return true;
    return false;
}

} // namespace

// What has the focus may go at the press: the key is let go in whichever has it then.
void KeyboardDriver::Stroke(QKeyCombination key, const QString& text) {
    for (const auto action : {QTest::Press, QTest::Release})
        if (QWidget* listening = Listening(); listening != nullptr)
            QTest::sendKeyEvent(action, listening, key.key(), text, key.keyboardModifiers());
    Settle();
}

// Each arrow chooses the option to which it leads.
KeyboardDriver::Way KeyboardDriver::ArrowsTo(QWidget& target) {
    for (int i = 0; i < longestWay && StandsWith(target.window()->focusWidget(), target); ++i)
        Stroke(ArrowTo(*target.window()->focusWidget(), target));
    return HasFocus(target) ? Way::ByArrows : Way::Lost;
}

KeyboardDriver::Way KeyboardDriver::TabTo(QWidget& target) {
    const QPointer<QWidget> window = target.window();
    const BoxWatch boxes;
    for (int i = 0; i < longestWay && window != nullptr; ++i) {
        const QPointer<QWidget> before = window->focusWidget();
        if (HasFocus(target))
            return Way::ByTab;
        if (StandsWith(before, target))
            return ArrowsTo(target);
        Stroke(Qt::Key_Tab);
        if (boxes.Any() || window == nullptr || (before != nullptr && window->focusWidget() == before))
            return Way::Kept;
    }
    return Way::Lost;
}

KeyboardDriver::Way KeyboardDriver::GoTo(QWidget& target) {
    const QPointer<QWidget> from = QApplication::focusWidget();
    const QString name = NameOf(&target);
    const Way way = TabTo(target);
    EXPECT_NE(way, Way::Lost) << "Tab does not lead from " << qPrintable(NameOf(from)) << " to "
                              << qPrintable(name);
    return way;
}

bool KeyboardDriver::Enter(QWidget& target) {
    const Way way = GoTo(target);
    return way == Way::ByTab || way == Way::ByArrows;
}

void KeyboardDriver::Write(const std::string& text) {
    for (const char32_t character : qt::ToQt(text).toUcs4()) {
        const QString typed = QString::fromUcs4(&character, 1);
        if (character == U'\b')
            Stroke(Qt::Key_Backspace, typed);
        else if (character == U'\r')
            Stroke(Qt::Key_Return, typed);
        else
            Stroke(static_cast<Qt::Key>(typed.toUpper().front().unicode()), typed);
    }
}

void KeyboardDriver::Click(const std::string& form, const std::string& control) {
    if (FindIn<QAction>(FindWindow(form), control) != nullptr)
        return Menu(form, control);
    auto* button = Usable<QAbstractButton>(form, control);
    if (button == nullptr)
        return;
    // The arrow that led to an option has chosen it.
    if (GoTo(*button) == Way::ByTab)
        Stroke(Qt::Key_Space, QStringLiteral(" "));
}

void KeyboardDriver::Keys(const std::string& form, const std::string& control, const std::string& keys) {
    auto* field = Usable<QLineEdit>(form, control);
    if (field == nullptr || !Enter(*field))
        return;
    Stroke(Qt::Key_End);
    Write(keys);
}

void KeyboardDriver::Type(const std::string& form, const std::string& control, const std::string& text) {
    if (auto* field = Usable<QLineEdit>(form, control); field != nullptr && Enter(*field))
        Fill(*field, text);
}

void KeyboardDriver::Fill(QLineEdit& field, const std::string& text) {
    if (!Enter(field))
        return;
    Stroke(Qt::CTRL | Qt::Key_A);
    Stroke(Qt::Key_Delete);
    Write(text);
    // What completes a name.
    if (QApplication::activePopupWidget() != nullptr)
        Stroke(Qt::Key_Escape);
}

void KeyboardDriver::Focus(const std::string& form, const std::string& control) {
    auto* widget = Usable<QWidget>(form, control);
    auto* tabs = qobject_cast<QTabWidget*>(widget);
    if (widget != nullptr)
        (void)GoTo(tabs == nullptr ? *widget : *tabs->tabBar());
}

void KeyboardDriver::Select(const std::string& form, const std::string& list, int index) {
    auto* box = Usable<QComboBox>(form, list);
    if (box == nullptr || !Enter(*box))
        return;
    EXPECT_LT(index, box->count()) << form << "." << list;
    Stroke(Qt::ALT | Qt::Key_Down);
    EXPECT_NE(QApplication::activePopupWidget(), nullptr) << form << "." << list << " does not open";
    if (QApplication::activePopupWidget() == nullptr)
        return;
    Stroke(Qt::Key_Home);
    for (int row = 0; row < index; ++row)
        Stroke(Qt::Key_Down);
    Stroke(Qt::Key_Return);
}

void KeyboardDriver::SelectTab(const std::string& form, const std::string& pane, int tab) {
    const QPointer<QTabWidget> tabs = Usable<QTabWidget>(form, pane);
    if (tabs == nullptr || !Enter(*tabs->tabBar()))
        return;
    for (int i = 0; i < longestWay && tabs != nullptr && tabs->currentIndex() != tab; ++i)
        Stroke(tabs->currentIndex() < tab ? Qt::Key_Right : Qt::Key_Left);
}

void KeyboardDriver::ClickRow(const std::string& form, const std::string& list, int row) {
    const QPointer<QTableView> view = Usable<QTableView>(form, list);
    if (view == nullptr || !Enter(*view))
        return;
    EXPECT_LE(row, view->model()->rowCount()) << form << "." << list;
    if (view->currentIndex().row() == row - 1)
        return Stroke(Qt::Key_Return);
    GoToRow(form, list, row);
}

void KeyboardDriver::GoToRow(const std::string& form, const std::string& list, int row) {
    const QPointer<QTableView> view = Usable<QTableView>(form, list);
    if (view == nullptr || !Enter(*view) || view->currentIndex().row() == row - 1)
        return;
    Stroke(Qt::CTRL | Qt::Key_Home);
    while (view != nullptr && view->currentIndex().row() + 1 < std::min(row, view->model()->rowCount()))
        Stroke(Qt::Key_Down);
}

void KeyboardDriver::OpenRow(const std::string& form, const std::string& list, int row) {
    GoToRow(form, list, row);
    Stroke(Qt::Key_Return);
}

void KeyboardDriver::MarkRow(const std::string& form, const std::string& list, int row) {
    GoToRow(form, list, row);
    Stroke(Qt::Key_Space);
}

void KeyboardDriver::ClickNode(const std::string& form, const std::string& tree, const std::string& path) {
    const QPointer<QTreeView> view = Usable<QTreeView>(form, tree);
    if (view == nullptr || !Enter(*view))
        return;
    const QPersistentModelIndex target = NodeAt(*view, path);
    EXPECT_TRUE(target.isValid()) << form << "." << tree << " has no node " << path;
    const auto here = [&] { return view == nullptr || !target.isValid() || view->currentIndex() == target; };
    if (here())
        return Stroke(Qt::Key_Return);
    Stroke(Qt::Key_Home);
    const int nodes = 1000;
    for (int i = 0; i < nodes && !here(); ++i) {
        const QModelIndex at = view->currentIndex();
        const bool closed = IsAbove(at, target) && !view->isExpanded(at);
        Stroke(closed ? Qt::Key_Right : Qt::Key_Down);
    }
    EXPECT_TRUE(here()) << "the arrows do not lead to " << path;
}

void KeyboardDriver::RightClickNode(const std::string& form, const std::string& tree,
                                    const std::string& path) {
    ClickNode(form, tree, path);
    // The platform makes this of the menu key.
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(QApplication::focusWidget(), &asked);
    Settle();
}

void KeyboardDriver::ChooseInMenu(QMenu& menu, const QAction& entry) {
    const QPointer<QMenu> open = &menu;
    EXPECT_TRUE(IsUsable(entry)) << qPrintable(entry.objectName()) << " cannot be chosen";
    if (!IsUsable(entry))
        return;
    for (int i = 0; i < longestWay && open != nullptr && menu.activeAction() != &entry; ++i)
        Stroke(Qt::Key_Down);
    if (open != nullptr)
        Stroke(Qt::Key_Return);
}

void KeyboardDriver::OpenMenuOf(QAction& entry) {
    if (QApplication::activePopupWidget() != nullptr)
        return;
    const QKeySequence letter = QKeySequence::mnemonic(entry.text());
    if (!letter.isEmpty())
        return Stroke(letter[0]);
    Stroke(Qt::Key_Alt);
    const QPointer<QMenuBar> bar = qobject_cast<QMenuBar*>(QApplication::focusWidget());
    EXPECT_NE(bar, nullptr) << "Alt does not lead to the menu";
    for (int i = 0; i < longestWay && bar != nullptr && bar->activeAction() != &entry; ++i)
        Stroke(Qt::Key_Right);
    Stroke(Qt::Key_Return);
}

void KeyboardDriver::Menu(const std::string& form, const std::string& entry) {
    auto* action = FindIn<QAction>(FindWindow(form), entry);
    EXPECT_NE(action, nullptr) << form << " has no menu entry " << entry;
    if (action == nullptr)
        return;
    std::vector<QPointer<QMenu>> menus;
    for (QObject* place = action->parent(); place != nullptr; place = place->parent())
        if (auto* menu = qobject_cast<QMenu*>(place); menu != nullptr && menu->menuAction() != action)
            menus.insert(menus.begin(), menu);
    OpenMenuOf(menus.empty() ? *action : *menus.front()->menuAction());
    for (std::size_t i = 0; i < menus.size(); ++i)
        if (menus[i] != nullptr)
            ChooseInMenu(*menus[i], i + 1 < menus.size() ? *menus[i + 1]->menuAction() : *action);
    while (QApplication::activePopupWidget() != nullptr)
        Stroke(Qt::Key_Escape);
}

void KeyboardDriver::PressKey(const std::string& form, const std::string& key) {
    EXPECT_NE(FindWindow(form), nullptr) << "no window " << form << " is shown";
    Stroke(key == "F1" ? Qt::Key_F1 : key == "Escape" ? Qt::Key_Escape : Qt::Key_Return);
}

bool KeyboardDriver::Ready() const {
    const QWidget* modal = QApplication::activeModalWidget();
    return modal == nullptr ? QApplication::activeWindow() != nullptr : modal->isActiveWindow();
}

// As people do it: Enter for what is offered, Escape for what takes it back.
void KeyboardDriver::PressButton(QAbstractButton& button) {
    const auto* box = qobject_cast<QDialogButtonBox*>(button.parentWidget());
    const auto* push = qobject_cast<QPushButton*>(&button);
    if (push != nullptr && push->isDefault())
        return Stroke(Qt::Key_Return);
    if (box != nullptr && box->buttonRole(&button) == QDialogButtonBox::RejectRole)
        return Stroke(Qt::Key_Escape);
    if (Enter(button))
        Stroke(Qt::Key_Space, QStringLiteral(" "));
}

} // namespace gfc::test
