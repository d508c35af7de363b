#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// How the bytes of a profile fall into lines, headers and entries.
namespace gfc::platform::profile {

// In a call only blanks are dropped: a tab there is part of the name.
[[nodiscard]] std::string_view CallName(std::string_view text);

// Behind the break of the line that starts there.
[[nodiscard]] std::size_t LineEnd(std::string_view bytes, std::size_t begin);

// Where the header line of the first section of that name starts. Case does not count.
[[nodiscard]] std::optional<std::size_t> FindHeader(std::string_view bytes, std::string_view section);

struct Entry {
    std::string_view Key;
    std::string_view Value; // without the white space around it and without one pair of quotes
};

// The lines behind a header, one by one, up to the next one or to the end of the file.
class SectionLines {
public:
    SectionLines(std::string_view bytes, std::size_t header) : bytes_(bytes), end_(LineEnd(bytes, header)) {}

    // False where no line is left.
    bool Next();
    [[nodiscard]] std::size_t Begin() const { return begin_; }
    [[nodiscard]] std::size_t End() const { return end_; } // behind the line break
    // False for nearly every line that does not hold the key, without a look at more than its first
    // character.
    [[nodiscard]] bool MayHold(std::string_view key) const;
    // Comments, blank lines and lines without "=" are no entries.
    [[nodiscard]] std::optional<Entry> AsEntry() const;
    // The entry's value if the line begins with just this key and its "="; nothing does not mean that the
    // line holds another key. The key must be one that a line may bear.
    [[nodiscard]] std::optional<std::string_view> ValueOf(std::string_view key) const;

private:
    std::string_view bytes_;
    std::size_t begin_ = 0;
    std::size_t first_ = 0; // of the line's first character that is no white space
    std::size_t end_;
};

// Goes on to the key's entry; nothing if the section has none. Of equal names the first one is found.
[[nodiscard]] std::optional<Entry> FindEntry(SectionLines& lines, std::string_view key);

} // namespace gfc::platform::profile
