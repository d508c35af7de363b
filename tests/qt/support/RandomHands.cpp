#include "qt/support/RandomHands.h"

#include "qt/Texts.h"
#include "qt/support/WindowLooks.h"
#include "ui/DropDownList.h"
#include "ui/Form.h"
#include "ui/OpenableList.h"
#include "ui/Tree.h"

#include <QApplication>
#include <QComboBox>
#include <QTableView>
#include <QTest>
#include <QTreeView>
#include <QWheelEvent>
#include <QWindow>

#include <array>
#include <set>

namespace gfc::test {

namespace {

// Views and drop-down lists that can be seen; those of popups stand in windows of their own.
std::vector<QWidget*> Targets(const QWidget& window) {
    std::vector<QWidget*> targets;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        const auto* view = qobject_cast<QAbstractItemView*>(widget);
        const bool target = qobject_cast<QComboBox*>(widget) != nullptr ||
                            qobject_cast<QTableView*>(widget) != nullptr ||
                            qobject_cast<QTreeView*>(widget) != nullptr;
        if (target && widget->isVisible() && widget->window() == &window)
            targets.push_back(view == nullptr ? widget : view->viewport());
    }
    return targets;
}

constexpr std::array<Qt::MouseButton, 7> buttons{Qt::LeftButton, Qt::LeftButton,  Qt::LeftButton,
                                                 Qt::LeftButton, Qt::RightButton, Qt::MiddleButton,
                                                 Qt::BackButton};
constexpr std::array<Qt::KeyboardModifier, 6> modifiers{
    Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier, Qt::NoModifier};
constexpr std::array<Qt::Key, 22> keys{
    Qt::Key_Down, Qt::Key_Down,     Qt::Key_Down,   Qt::Key_Up,   Qt::Key_Up,    Qt::Key_Home,
    Qt::Key_End,  Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Left, Qt::Key_Right, Qt::Key_Space,
    Qt::Key_Tab,  Qt::Key_Backtab,  Qt::Key_Return, Qt::Key_Plus, Qt::Key_Minus, Qt::Key_1,
    Qt::Key_3,    Qt::Key_F,        Qt::Key_R,      Qt::Key_G};

} // namespace

RandomHands::~RandomHands() {
    while (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    if (down_ != Qt::NoButton && still_ != nullptr && still_->windowHandle() != nullptr)
        QTest::mouseRelease(still_->windowHandle(), down_);
}

QPoint RandomHands::SomePoint() {
    const auto targets = Targets(window_);
    // The button that is down may be let go of beside them all, too.
    if (targets.empty() || (down_ != Qt::NoButton && OneIn(10)))
        return {Draw(window_.width()), Draw(window_.height())};
    const QWidget& target = *targets[static_cast<std::size_t>(Draw(static_cast<int>(targets.size())))];
    const QPoint inside(Draw(std::max(1, target.width())), Draw(std::max(1, std::min(160, target.height()))));
    return target.mapTo(&window_, inside);
}

// The button that is down is let go of sooner or later, perhaps elsewhere.
std::string RandomHands::Mouse() {
    QWindow* handle = window_.windowHandle();
    const bool letsGo = down_ != Qt::NoButton;
    const QPoint at = letsGo && OneIn(3) ? last_ : SomePoint();
    last_ = at;
    const std::string place = " at " + std::to_string(at.x()) + ", " + std::to_string(at.y());
    if (down_ == Qt::NoButton) {
        down_ = buttons[static_cast<std::size_t>(Draw(buttons.size()))];
        const auto modifier = modifiers[static_cast<std::size_t>(Draw(modifiers.size()))];
        if (OneIn(6)) {
            QTest::mouseDClick(handle, std::exchange(down_, Qt::NoButton), modifier, at);
            return "double click" + place;
        }
        QTest::mousePress(handle, down_, modifier, at);
        return "press of " + std::to_string(down_) + " with " + std::to_string(modifier) + place;
    }
    if (OneIn(2)) {
        QTest::mouseRelease(handle, std::exchange(down_, Qt::NoButton), {}, at);
        return "release" + place;
    }
    QMouseEvent move(QEvent::MouseMove, at, handle->mapToGlobal(at), Qt::NoButton, down_, Qt::NoModifier);
    QCoreApplication::sendEvent(handle, &move);
    return "move" + place;
}

std::string RandomHands::Wheel() {
    const QPoint at = SomePoint();
    const QPoint turn(0, OneIn(2) ? 120 : -120);
    QWheelEvent wheel(at, window_.mapToGlobal(at), {}, turn, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QWidget* under = window_.childAt(at);
    QCoreApplication::sendEvent(under == nullptr ? &window_ : under, &wheel);
    return "wheel";
}

std::string RandomHands::Key() {
    const Qt::Key key = keys[static_cast<std::size_t>(Draw(keys.size()))];
    const auto modifier = modifiers[static_cast<std::size_t>(Draw(modifiers.size()))];
    QTest::keyClick(window_.windowHandle(), key, modifier);
    return "key " + std::to_string(key) + " with " + std::to_string(modifier);
}

std::string RandomHands::Popup(QWidget& popup) {
    constexpr std::array<Qt::Key, 7> answers{Qt::Key_Down, Qt::Key_Up,     Qt::Key_End,   Qt::Key_R,
                                             Qt::Key_Home, Qt::Key_Return, Qt::Key_Escape};
    QWidget* listening = popup.focusWidget() == nullptr ? &popup : popup.focusWidget();
    const Qt::Key key = answers[static_cast<std::size_t>(Draw(answers.size()))];
    QTest::keyClick(listening, key);
    return "key " + std::to_string(key) + " in a popup";
}

std::string RandomHands::Act() {
    if (QWidget* popup = QApplication::activePopupWidget(); popup != nullptr) {
        return Popup(*popup);
    }
    switch (Draw(8)) {
    case 0:
        return Wheel();
    case 1:
    case 2:
    case 3:
        return Key();
    default:
        return Mouse();
    }
}

namespace {

using ::testing::AssertionFailure;
using ::testing::AssertionResult;
using ::testing::AssertionSuccess;

// Both the highlighted rows or nodes and the one on which the arrow keys stand, told by what stands there.
AssertionResult Highlights(const QAbstractItemView& view, const QModelIndex& selected, const char* name) {
    std::set<QModelIndex> highlighted;
    for (const QModelIndex& index : view.selectionModel()->selectedIndexes())
        highlighted.insert(index.siblingAtColumn(0));
    const QModelIndex current = view.currentIndex().siblingAtColumn(0);
    const std::set<QModelIndex> wanted =
        selected.isValid() ? std::set<QModelIndex>{selected} : std::set<QModelIndex>{};
    if (highlighted == wanted && current == selected)
        return AssertionSuccess();
    auto failure = AssertionFailure() << name << " has selected row " << selected.row() << ", and highlights";
    for (const QModelIndex& index : highlighted)
        failure << " " << index.row();
    return failure << " with the keys on " << current.row();
}

// Where the selected row stands. In a table that a person may sort, by the number that stands in it.
QModelIndex PlaceOfSelected(const ui::ListView& list, const QAbstractItemModel& rows) {
    const int selected = list.SelectedRow();
    const auto* openable = dynamic_cast<const ui::OpenableList*>(&list);
    if (selected == 0 || openable == nullptr || !openable->SortsByHeading)
        return rows.index(list.PlaceOfRow(selected) - 1, 0);
    for (int place = 0; place < rows.rowCount(); ++place)
        if (rows.index(place, 0).data().toString().toStdString() == list.Cell(selected, 0))
            return rows.index(place, 0);
    return {};
}

AssertionResult OfList(const ui::ListView& list, QWidget& window) {
    const auto* view = FindIn<QTableView>(&window, list.Name());
    return Highlights(*view, PlaceOfSelected(list, *view->model()), list.Name().c_str());
}

AssertionResult OfTree(const ui::Tree& tree, QWidget& window) {
    const auto* view = FindIn<QTreeView>(&window, tree.Name());
    const int node = tree.SelectedNode();
    return Highlights(*view, node == 0 ? QModelIndex() : NodeAt(*view, tree.FullPath(node)),
                      tree.Name().c_str());
}

AssertionResult OfDropDownList(const ui::DropDownList& list, QWidget& window) {
    const auto* box = FindIn<QComboBox>(&window, list.Name());
    if (box->currentIndex() == list.ListIndex())
        return AssertionSuccess();
    return AssertionFailure() << list.Name() << " has " << list.ListIndex() << " and shows "
                              << box->currentIndex();
}

} // namespace

AssertionResult HighlightsWhatIsSelected(const ui::Form& form, QWidget& window) {
    for (const ui::Control* control : form.Controls()) {
        AssertionResult each = AssertionSuccess();
        if (const auto* list = dynamic_cast<const ui::ListView*>(control))
            each = OfList(*list, window);
        else if (const auto* tree = dynamic_cast<const ui::Tree*>(control))
            each = OfTree(*tree, window);
        else if (const auto* box = dynamic_cast<const ui::DropDownList*>(control))
            each = OfDropDownList(*box, window);
        if (!each)
            return each;
    }
    return AssertionSuccess();
}

} // namespace gfc::test
