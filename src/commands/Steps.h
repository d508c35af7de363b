#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>

namespace gfc::commands {

// The stations of a long work, one after the other: a line on the screen counts them where a person watches
// and it takes more than half a second, and Ctrl+C ends it between two of them. The line goes with the
// object.
class Steps {
public:
    // `doing` begins the line, as "Writing"; all may be 0 where nobody knows yet how many come.
    Steps(std::string doing, std::size_t all);
    ~Steps();
    Steps(const Steps&) = delete;
    Steps& operator=(const Steps&) = delete;

    // False once it was broken off; the station is then not to be begun.
    [[nodiscard]] bool Begin(std::string_view station);

private:
    void Show(std::string_view station);

    std::string doing_;
    std::size_t all_;
    std::size_t begun_ = 0;
    std::size_t shown_ = 0; // characters
    bool watched_;
    std::chrono::steady_clock::time_point shownAt_ = std::chrono::steady_clock::now();
};

// Ends the command where it was broken off before the first file was written.
void EndIfBrokenOff();

} // namespace gfc::commands
