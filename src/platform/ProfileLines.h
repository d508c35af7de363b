#pragma once

#include <cstddef>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

// How the bytes of a profile fall into lines, headers and entries. What is done for each line stands here and
// not behind a call: a file is gone through for each access.
namespace gfc::platform::profile {

constexpr bool IsWhite(char byte) {
    return byte == ' ' || byte == '\t' || byte == '\v';
}

template <bool IsDropped(char)>
constexpr std::string_view Trimmed(std::string_view text) {
    while (!text.empty() && IsDropped(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsDropped(text.back()))
        text.remove_suffix(1);
    return text;
}

constexpr std::string_view WithoutBreak(std::string_view line) {
    while (line.ends_with('\n') || line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

// Without the white space around it and without one pair of quotes. Most values have neither.
constexpr std::string_view CleanValue(std::string_view value) {
    constexpr auto isEdge = [](char byte) { return IsWhite(byte) || byte == '"' || byte == '\''; };
    if (value.empty() || !(isEdge(value.front()) || isEdge(value.back())))
        return value;
    value = Trimmed<IsWhite>(value);
    const bool quoted =
        value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

// In a call only blanks are dropped: a tab there is part of the name.
[[nodiscard]] std::string_view CallName(std::string_view text);

// Behind the break of the line that starts there.
[[nodiscard]] inline std::size_t LineEnd(std::string_view bytes, std::size_t begin) {
    const auto found = bytes.find('\n', begin);
    return found == std::string_view::npos ? bytes.size() : found + 1;
}

// Where the header line of the first section of that name starts. Case does not count.
[[nodiscard]] std::optional<std::size_t> FindHeader(std::string_view bytes, std::string_view section);

struct Entry {
    std::string_view Key;
    std::string_view Value; // clean
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
    // Goes on to the next line, and gives its value, only if that line begins with just this key and its "=";
    // nothing does not mean that it holds another key. The key must be one that a line may bear.
    std::optional<std::string_view> NextValueOf(std::string_view key);

private:
    std::string_view bytes_;
    std::size_t begin_ = 0;
    std::size_t first_ = 0; // of the line's first character that is no white space
    std::size_t end_;
};

inline bool SectionLines::Next() {
    begin_ = end_;
    if (begin_ >= bytes_.size())
        return false;
    first_ = begin_;
    while (first_ < bytes_.size() && IsWhite(bytes_[first_]))
        ++first_;
    if (first_ < bytes_.size() && bytes_[first_] == '[')
        return false;
    end_ = LineEnd(bytes_, begin_);
    return true;
}

// The line is cut only once it is known to be the one.
inline std::optional<std::string_view> SectionLines::NextValueOf(std::string_view key) {
    const char* const line = bytes_.data() + end_;
    if (bytes_.size() - end_ <= key.size() || line[key.size()] != '=' ||
        std::memcmp(line, key.data(), key.size()) != 0)
        return std::nullopt;
    begin_ = first_ = end_;
    const std::size_t value = begin_ + key.size() + 1;
    end_ = LineEnd(bytes_, value);
    return CleanValue(WithoutBreak({bytes_.data() + value, end_ - value}));
}

// Goes on to the key's entry; nothing if the section has none. Of equal names the first one is found.
[[nodiscard]] std::optional<Entry> FindEntry(SectionLines& lines, std::string_view key);

} // namespace gfc::platform::profile
