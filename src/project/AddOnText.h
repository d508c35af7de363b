#pragma once

#include "project/AddOnInterface.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// How a text of any length crosses the boundary of the add-on library. This is the one place that knows: a
// library that wants its texts otherwise (as a counted string by reference, say) needs another Pointer here
// and another AddOnText in the interface, and no other line.
namespace gfc::project {

// What the library may write back behind a text or a request that it was given, in bytes.
inline constexpr std::size_t AddOnTextRoom = 512;

// A text in writable memory of its own, closed by a NUL, with room behind it for what comes back.
class InOutText {
public:
    // Of a text in UTF-8.
    explicit InOutText(std::string_view text);

    // False if the code page lacks a character of the text; it is then empty.
    [[nodiscard]] bool Holds() const { return holds_; }
    // What the library is handed; valid as long as this object.
    [[nodiscard]] AddOnText Pointer() { return buffer_.data(); }

private:
    std::vector<char> buffer_;
    bool holds_ = false;
};

} // namespace gfc::project
