#include "workshop/command/ProgressLine.h"

#include <chrono>
#include <cstdio>
#include <memory>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace gfc::workshop {

namespace {

bool SomebodyLooks() {
#ifdef _WIN32
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(STDERR_FILENO) != 0;
#endif
}

class Line {
public:
    ~Line() {
        if (shown_) {
            std::fputs("\r                    \r", stderr);
        }
    }
    Line() = default;
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    void Show(double share) {
        using namespace std::chrono_literals;
        const auto now = std::chrono::steady_clock::now();
        if (now - shownAt_ > 500ms) {
            std::fprintf(stderr, "\rWorking: %3d %%  ", static_cast<int>(share * 100));
            shownAt_ = now;
            shown_ = true;
        }
    }

private:
    std::chrono::steady_clock::time_point shownAt_ = std::chrono::steady_clock::now();
    bool shown_ = false;
};

} // namespace

Progress ProgressLine() {
    if (!SomebodyLooks()) {
        return {};
    }
    return [line = std::make_shared<Line>()](double share) {
        line->Show(share);
        return true;
    };
}

} // namespace gfc::workshop
