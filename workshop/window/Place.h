#pragma once

#include <QScreen>
#include <QWidget>

namespace gfc::workshop {

/// Gives a window that size, or as much of it as the screen has room for under its title: on a small screen,
/// or one with large letters, its buttons must stay in reach.
inline void ResizeWithin(QWidget& window, QSize wanted) {
    constexpr int frame = 48; // pixels, of a title and its borders
    const QSize room = window.screen()->availableGeometry().size() - QSize(frame / 2, frame);
    window.resize(wanted.boundedTo(room));
}

} // namespace gfc::workshop
