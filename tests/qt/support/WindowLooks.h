#pragma once

#include <QModelIndex>
#include <QWidget>

#include <string>

class QAbstractItemView;
class QAction;

// What a person sees in a window, read from its widgets.
namespace gfc::test {

template <class W>
[[nodiscard]] W* FindIn(QWidget* window, const std::string& name) {
    return window == nullptr ? nullptr : window->findChild<W*>(QString::fromStdString(name));
}

// With "\r\n" between the lines, as captions have it.
[[nodiscard]] std::string TextOf(const QWidget& widget);
// Enabled by itself and by the menus in which it stands.
[[nodiscard]] bool IsUsable(const QAction& action);
// The node of that path, invalid if there is none.
[[nodiscard]] QModelIndex NodeAt(const QAbstractItemView& tree, const std::string& path);
// The control on which the focus rests; empty for none.
[[nodiscard]] std::string FocusIn(const QWidget& window);

} // namespace gfc::test
