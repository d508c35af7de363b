#include "qt/support/WindowDriver.h"

#include "qt/Texts.h"
#include "qt/support/WindowLooks.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QTimerEvent>
#include <QTreeView>
#include <gtest/gtest.h>

namespace gfc::test {

namespace {

// Whether a modal window stands before this one.
bool IsBlocked(const QWidget& window) {
    const QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr && modal != &window;
}

// For whoever reads of a failure.
std::string InFront() {
    const QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr)
        return "no window";
    const auto* box = qobject_cast<const QMessageBox*>(modal);
    return box != nullptr ? "the box \"" + qt::FromQt(box->text()) + '"' : qt::FromQt(modal->objectName());
}

// A box or an option answers to a click on its mark and its words, not to one beside them.
QPoint PlaceToClick(const QWidget& widget) {
    const bool marked = qobject_cast<const QCheckBox*>(&widget) != nullptr ||
                        qobject_cast<const QRadioButton*>(&widget) != nullptr;
    return marked ? QPoint(8, widget.height() / 2) : widget.rect().center();
}

void PressCharacter(QWidget& field, char32_t character) {
    if (character == U'\b')
        return QTest::keyClick(&field, Qt::Key_Backspace);
    if (character == U'\r')
        return QTest::keyClick(&field, Qt::Key_Return);
    const QString text = QString::fromUcs4(&character, 1);
    QTest::sendKeyEvent(QTest::Click, &field, static_cast<Qt::Key>(text.toUpper().front().unicode()), text,
                        Qt::NoModifier);
}

} // namespace

QWidget* FindWindow(const std::string& form) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->objectName() == qt::ToQt(form))
            return window;
    return nullptr;
}

void Settle() {
    // What a queued call queues in turn is done as well.
    for (int pass = 0; pass < 3; ++pass)
        QCoreApplication::processEvents();
}

QWidget* WindowDriver::UsableWidget(const std::string& form, const std::string& control) {
    QWidget* window = FindWindow(form);
    auto* widget = FindIn<QWidget>(window, control);
    EXPECT_NE(window, nullptr) << "no window " << form << " is shown";
    if (window == nullptr)
        return nullptr;
    EXPECT_NE(widget, nullptr) << form << " has no " << control;
    EXPECT_FALSE(IsBlocked(*window)) << form << " is behind " << InFront();
    if (widget == nullptr || IsBlocked(*window))
        return nullptr;
    const bool usable = widget->isVisible() && widget->isEnabled();
    EXPECT_TRUE(usable) << form << "." << control << " cannot be used: visible " << widget->isVisible()
                        << ", enabled " << widget->isEnabled();
    return usable ? widget : nullptr;
}

void WindowDriver::Click(const std::string& form, const std::string& control) {
    if (FindIn<QAction>(FindWindow(form), control) != nullptr)
        return Menu(form, control);
    if (auto* button = Usable<QAbstractButton>(form, control))
        QTest::mouseClick(button, Qt::LeftButton, {}, PlaceToClick(*button));
    Settle();
}

// True once the field has the focus; the field that was left may have kept it.
bool WindowDriver::Enter(QLineEdit& field) {
    const QPointer<QLineEdit> still = &field;
    field.activateWindow();
    if (!field.hasFocus())
        QTest::mouseClick(&field, Qt::LeftButton);
    Settle();
    return still != nullptr && still->hasFocus();
}

void WindowDriver::Keys(const std::string& form, const std::string& control, const std::string& keys) {
    const QPointer<QLineEdit> field = Usable<QLineEdit>(form, control);
    if (field == nullptr || !Enter(*field))
        return;
    QTest::keyClick(field, Qt::Key_End);
    for (const char32_t character : qt::ToQt(keys).toUcs4())
        if (field != nullptr)
            PressCharacter(*field, character);
    Settle();
}

void WindowDriver::Type(const std::string& form, const std::string& control, const std::string& text) {
    auto* field = Usable<QLineEdit>(form, control);
    if (field == nullptr || !Enter(*field))
        return;
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Delete);
    Keys(form, control, text);
}

void WindowDriver::Focus(const std::string& form, const std::string& control) {
    if (auto* widget = Usable<QWidget>(form, control))
        widget->setFocus(Qt::TabFocusReason);
    Settle();
}

void WindowDriver::Select(const std::string& form, const std::string& list, int index) {
    auto* box = Usable<QComboBox>(form, list);
    if (box == nullptr)
        return;
    EXPECT_TRUE(index >= 0 && index < box->count()) << form << "." << list << " has no entry " << index;
    QTest::mousePress(box, Qt::LeftButton);
    Settle();
    QAbstractItemView* view = box->view();
    if (!view->isVisible())
        return;
    const QModelIndex entry = box->model()->index(index, 0);
    view->scrollTo(entry);
    // The list has just opened under the pointer, which has not let go of it yet.
    QTest::mouseMove(view->viewport(), view->visualRect(entry).center());
    QTest::keyClick(view, Qt::Key_Home);
    for (int row = 0; row < index; ++row)
        QTest::keyClick(view, Qt::Key_Down);
    QTest::keyClick(view, Qt::Key_Return);
    Settle();
}

void WindowDriver::SelectTab(const std::string& form, const std::string& pane, int tab) {
    if (auto* tabs = Usable<QTabWidget>(form, pane))
        QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(tab).center());
    Settle();
}

void WindowDriver::PressRow(const std::string& form, const std::string& list, int row, Press press) {
    auto* view = Usable<QTableView>(form, list);
    if (view == nullptr)
        return;
    const bool boxes = view->model()->flags(view->model()->index(0, 0)).testFlag(Qt::ItemIsUserCheckable);
    const QModelIndex at = view->model()->index(row - 1, boxes && press != Press::Box ? 1 : 0);
    EXPECT_TRUE(at.isValid()) << form << "." << list << " has no row " << row;
    view->scrollTo(at);
    const QPoint place = view->visualRect(at).topLeft() + QPoint(4, 4);
    if (at.isValid())
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
    if (at.isValid() && press == Press::Twice)
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, place);
    Settle();
}

void WindowDriver::ClickRow(const std::string& form, const std::string& list, int row) {
    PressRow(form, list, row, Press::Once);
}

void WindowDriver::OpenRow(const std::string& form, const std::string& list, int row) {
    PressRow(form, list, row, Press::Twice);
}

void WindowDriver::MarkRow(const std::string& form, const std::string& list, int row) {
    PressRow(form, list, row, Press::Box);
}

void WindowDriver::PressNode(const std::string& form, const std::string& tree, const std::string& path,
                             Qt::MouseButton button) {
    auto* view = Usable<QTreeView>(form, tree);
    if (view == nullptr)
        return;
    const QModelIndex at = NodeAt(*view, path);
    EXPECT_TRUE(at.isValid()) << form << "." << tree << " has no node " << path;
    view->scrollTo(at);
    if (at.isValid())
        QTest::mouseClick(view->viewport(), button, {}, view->visualRect(at).center());
    Settle();
}

void WindowDriver::ClickNode(const std::string& form, const std::string& tree, const std::string& path) {
    PressNode(form, tree, path, Qt::LeftButton);
}

void WindowDriver::RightClickNode(const std::string& form, const std::string& tree, const std::string& path) {
    PressNode(form, tree, path, Qt::RightButton);
}

void WindowDriver::PressMenu(QMenu& menu, QAction& entry) {
    if (!menu.isVisible())
        menu.popup(QPoint(0, 0));
    Settle();
    EXPECT_TRUE(IsUsable(entry)) << qPrintable(entry.objectName()) << " cannot be chosen";
    if (IsUsable(entry))
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&entry).center());
    Settle();
}

void WindowDriver::Menu(const std::string& form, const std::string& entry) {
    auto* action = FindIn<QAction>(FindWindow(form), entry);
    EXPECT_NE(action, nullptr) << form << " has no menu entry " << entry;
    if (action == nullptr || IsBlocked(*FindWindow(form)))
        return;
    std::vector<QMenu*> menus;
    for (QObject* place = action->parent(); place != nullptr; place = place->parent())
        if (auto* menu = qobject_cast<QMenu*>(place); menu != nullptr && menu->menuAction() != action)
            menus.insert(menus.begin(), menu);
    if (menus.empty()) {
        auto* bar = FindWindow(form)->findChild<QMenuBar*>();
        EXPECT_TRUE(action->isEnabled()) << entry;
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(action).center());
        return Settle();
    }
    for (std::size_t i = 0; i + 1 < menus.size(); ++i)
        PressMenu(*menus[i], *menus[i + 1]->menuAction());
    PressMenu(*menus.back(), *action);
    while (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
}

void WindowDriver::PressKey(const std::string& form, const std::string& key) {
    QWidget* window = FindWindow(form);
    EXPECT_NE(window, nullptr) << "no window " << form << " is shown";
    if (window == nullptr)
        return;
    QWidget* at = window->focusWidget() == nullptr ? window : window->focusWidget();
    const Qt::Key code = key == "F1" ? Qt::Key_F1 : key == "Escape" ? Qt::Key_Escape : Qt::Key_Return;
    QTest::keyClick(at, code);
    Settle();
}

void WindowDriver::PressButton(QAbstractButton& button) {
    QTest::mouseClick(&button, Qt::LeftButton);
}

void WindowDriver::Fill(QLineEdit& field, const std::string& text) {
    field.setText(qt::ToQt(text));
}

void WindowDriver::CloseWindow(const std::string& form) {
    if (QWidget* window = FindWindow(form); window != nullptr)
        window->close();
    Settle();
}

// The interval is over at once.
void WindowDriver::Tick(const std::string& form, const std::string& timer) {
    auto* found = FindIn<QTimer>(FindWindow(form), timer);
    EXPECT_NE(found, nullptr) << form << " has no timer " << timer;
    if (found == nullptr || !found->isActive())
        return;
    QTimerEvent over(found->timerId());
    QCoreApplication::sendEvent(found, &over);
    Settle();
}

} // namespace gfc::test
