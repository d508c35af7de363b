#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace gfc::platform {

// A value that is read holds at most this many characters; the rest is cut.
inline constexpr std::size_t ProfileValueLimit = 254;

// The bytes of one profile (INI) file and the accesses to it. All texts are bytes of the code page. Section
// and key match without regard to case, blanks around them in a call do not count, and of equal names the
// first one does. What an access does not concern comes back byte for byte.
class Profile {
public:
    Profile() = default;
    explicit Profile(std::string bytes) : bytes_(std::move(bytes)) {}

    // The value without the white space around it and without one pair of quotes, cut to the limit; the
    // fallback where section or key are missing. A key that stands without a value gives the empty text.
    [[nodiscard]] std::string Read(std::string_view section, std::string_view key,
                                   std::string_view fallback = {}) const;

    // Replaces the key's line in place, else adds one after the section's last key, else a section at the
    // end. Without a value it removes the line; what is not there changes nothing.
    void Write(std::string_view section, std::string_view key, std::optional<std::string_view> value);

    // Drops all lines of the section, comments too, and puts the items ("key=value") in their place; a
    // section that is missing is added at the end. An item ends at its first NUL and what stands behind it is
    // an item of its own; an empty item ends the list.
    void ReplaceSection(std::string_view section, std::span<const std::string> items);

    // The same with the items each ended by a NUL and the whole by one more.
    void ReplaceSection(std::string_view section, std::string_view body);

    [[nodiscard]] const std::string& Bytes() const { return bytes_; }

private:
    void WriteInto(std::size_t header, std::string_view key, std::string line);
    [[nodiscard]] std::size_t KeysEnd(std::size_t header) const;
    void Insert(std::size_t at, std::string text);
    void AddSection(std::string_view section, std::string_view lines);

    std::string bytes_;
};

} // namespace gfc::platform
