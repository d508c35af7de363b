#include "qt/Texts.h"
#include "qt/render/TreeModel.h"
#include "qt/support/WindowDriver.h"
#include "qt/support/WindowLooks.h"

#include <QAbstractButton>
#include <QAction>
#include <QTabWidget>
#include <QTableView>
#include <QTreeView>
#include <gtest/gtest.h>

namespace gfc::test {

namespace {

// Null, with a failure reported, if the window is not shown or has no such widget.
template <class W>
W* Look(const std::string& form, const std::string& control) {
    auto* widget = FindIn<W>(FindWindow(form), control);
    EXPECT_NE(widget, nullptr) << "nothing to be seen of " << form << "." << control;
    return widget;
}

} // namespace

bool WindowDriver::IsShown(const std::string& form) {
    return FindWindow(form) != nullptr;
}

std::string WindowDriver::Caption(const std::string& form) {
    const QWidget* window = FindWindow(form);
    EXPECT_NE(window, nullptr) << "no window " << form << " is shown";
    return window == nullptr ? std::string() : qt::FromQt(window->windowTitle());
}

bool WindowDriver::Visible(const std::string& form, const std::string& control) {
    if (const auto* action = FindIn<QAction>(FindWindow(form), control))
        return action->isVisible();
    const auto* widget = Look<QWidget>(form, control);
    return widget != nullptr && widget->isVisible();
}

bool WindowDriver::Enabled(const std::string& form, const std::string& control) {
    if (const auto* action = FindIn<QAction>(FindWindow(form), control))
        return IsUsable(*action);
    const auto* widget = Look<QWidget>(form, control);
    return widget != nullptr && widget->isEnabled();
}

std::string WindowDriver::Text(const std::string& form, const std::string& control) {
    if (const auto* action = FindIn<QAction>(FindWindow(form), control))
        return qt::FromQt(action->text());
    const auto* widget = Look<QWidget>(form, control);
    return widget == nullptr ? std::string() : TextOf(*widget);
}

bool WindowDriver::Checked(const std::string& form, const std::string& control) {
    const auto* button = Look<QAbstractButton>(form, control);
    return button != nullptr && button->isChecked();
}

int WindowDriver::Rows(const std::string& form, const std::string& list) {
    const auto* view = Look<QTableView>(form, list);
    return view == nullptr ? -1 : view->model()->rowCount();
}

std::string WindowDriver::Cell(const std::string& form, const std::string& list, int row, int column) {
    const auto* view = Look<QTableView>(form, list);
    if (view == nullptr || row < 1 || row > view->model()->rowCount())
        return "no such row";
    return qt::FromQt(view->model()->index(row - 1, column).data().toString());
}

std::string WindowDriver::NodeImage(const std::string& form, const std::string& tree,
                                    const std::string& path) {
    const auto* view = Look<QTreeView>(form, tree);
    const QModelIndex node = view == nullptr ? QModelIndex() : NodeAt(*view, path);
    return node.isValid() ? qt::FromQt(node.data(qt::TreeModel::ImageRole).toString())
                          : std::string("no such node");
}

int WindowDriver::Tab(const std::string& form, const std::string& pane) {
    const auto* tabs = Look<QTabWidget>(form, pane);
    return tabs == nullptr ? -1 : tabs->currentIndex();
}

std::string WindowDriver::Focused(const std::string& form) {
    const QWidget* window = FindWindow(form);
    return window == nullptr ? std::string() : FocusIn(*window);
}

} // namespace gfc::test
