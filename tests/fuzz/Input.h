#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace gfc::fuzz {

// Takes bytes apart from the front. Where they are used up, zeros and empty texts come.
class Input {
public:
    explicit Input(std::string_view bytes) : rest_(bytes) {}

    [[nodiscard]] bool IsEmpty() const { return rest_.empty(); }
    [[nodiscard]] std::size_t Left() const { return rest_.size(); }

    std::uint8_t Byte() {
        const std::string_view byte = Take(1);
        return byte.empty() ? 0 : static_cast<std::uint8_t>(byte.front());
    }

    // A number from 0 to limit - 1.
    std::size_t Below(std::size_t limit) { return Byte() % limit; }

    std::int32_t Number() {
        std::uint32_t number = 0;
        for (int i = 0; i < 4; ++i)
            number = number << 8 | Byte();
        return static_cast<std::int32_t>(number);
    }

    // Up to the next line feed, which is taken too.
    std::string_view Line() {
        const auto end = std::min(rest_.find('\n'), rest_.size());
        const std::string_view line = Take(end);
        Take(1);
        return line;
    }

    // At most that many bytes, as a length byte in front of them says.
    std::string_view Text(std::size_t longest) { return Take(Below(longest + 1)); }

    std::string_view Rest() { return Take(rest_.size()); }

    std::string_view Take(std::size_t size) {
        const std::string_view taken = rest_.substr(0, size);
        rest_.remove_prefix(taken.size());
        return taken;
    }

private:
    std::string_view rest_;
};

} // namespace gfc::fuzz
