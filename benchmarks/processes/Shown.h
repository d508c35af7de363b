#pragma once

#include <QCoreApplication>
#include <QTimer>

#include <chrono>
#include <cstdio>

namespace gfc::bench {

// Once everything is painted, tells whoever started the process, with the seconds that it has waited for
// nothing but the time to pass, and ends it.
inline void EndOnceShown(std::chrono::duration<double> waited = {}) {
    QTimer::singleShot(0, [waited] {
        QCoreApplication::processEvents();
        std::printf("shown %.6f\n", waited.count());
        std::fflush(stdout);
        std::_Exit(0);
    });
}

} // namespace gfc::bench
