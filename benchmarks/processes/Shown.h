#pragma once

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>

namespace gfc::bench {

// Once everything is painted, tells whoever started the process, and ends it.
inline void EndOnceShown() {
    QTimer::singleShot(0, [] {
        QCoreApplication::processEvents();
        std::fputs("shown\n", stdout);
        std::fflush(stdout);
        std::_Exit(0);
    });
}

} // namespace gfc::bench
