#include "commands/Steps.h"

#include "commands/Commands.h"
#include "platform/Console.h"

#include <algorithm>
#include <iostream>

namespace gfc::commands {

Steps::Steps(std::string doing, std::size_t all)
    : doing_(std::move(doing)), all_(all), watched_(platform::GoesToScreen(platform::Stream::Errors)) {}

Steps::~Steps() {
    if (shown_ > 0)
        std::cerr << '\r' << std::string(shown_, ' ') << '\r' << std::flush;
}

bool Steps::Begin(std::string_view station) {
    if (platform::WasInterrupted())
        return false;
    ++begun_;
    using namespace std::chrono_literals;
    if (const auto now = std::chrono::steady_clock::now(); watched_ && now - shownAt_ > 500ms) {
        shownAt_ = now;
        Show(station);
    }
    return true;
}

// What a longer line has left is written over.
void Steps::Show(std::string_view station) {
    std::string line = doing_ + ": " + std::to_string(begun_);
    if (all_ > 0)
        line += " of " + std::to_string(all_);
    line += ", " + std::string(station);
    shown_ = std::max(shown_, line.size());
    line.resize(shown_, ' ');
    std::cerr << '\r' << line << std::flush;
}

void EndIfBrokenOff() {
    if (platform::WasInterrupted())
        throw Failure(exitcode::BrokenOff, "broken off; nothing was written.");
}

} // namespace gfc::commands
