#pragma once

#include "services/CodePage.h"

#include <algorithm>
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

// Without the white space around it and without one pair of quotes. Most values have neither; whatever is
// neither white nor a quote stands behind both of them in the code page, but for a few signs.
constexpr std::string_view CleanValue(std::string_view value) {
    constexpr auto mayGo = [](char byte) { return static_cast<unsigned char>(byte) <= '\''; };
    if (value.empty() || !(mayGo(value.front()) || mayGo(value.back())))
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

// The lines between the header of the first section of that name and the next header; none if there is no
// such section.
[[nodiscard]] std::string_view LinesOf(std::string_view bytes, std::string_view section);

struct Entry {
    std::string_view Key;
    std::string_view Value; // clean
};

// The lines of a section, one by one.
class SectionLines {
public:
    // Those behind a header, up to the next one or to the end of the file.
    SectionLines(std::string_view bytes, std::size_t header) : bytes_(bytes), end_(LineEnd(bytes, header)) {}
    // All of these, as LinesOf gives them.
    explicit SectionLines(std::string_view lines) : bytes_(lines), end_(0) {}

    // False where no line is left.
    bool Next();
    [[nodiscard]] std::size_t Begin() const { return begin_; }
    [[nodiscard]] std::size_t End() const { return end_; } // behind the line break
    // False for nearly every line that does not hold the key, without a look at more than its first
    // character.
    [[nodiscard]] bool MayHold(std::string_view key) const;
    // Comments, blank lines and lines without "=" are no entries.
    [[nodiscard]] std::optional<Entry> AsEntry() const;

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

// Whether the first of these lines begins with just this key and its "="; if it does not, it may hold the key
// all the same. The key must be one that a line may bear.
[[nodiscard]] inline bool BeginWithKey(std::string_view lines, std::string_view key) {
    return lines.size() > key.size() && lines[key.size()] == '=' &&
           services::EqualBytesNoCase({lines.data(), key.size()}, key);
}

// Takes the first line off, which begins with a key of that length and its "="; gives its value. The line is
// cut only here, once it is known to be the wanted one.
inline std::string_view TakeValue(std::string_view& lines, std::size_t keyLength) {
    const char* const value = lines.data() + keyLength + 1;
    const char* const end = lines.data() + lines.size();
    const void* const found = std::memchr(value, '\n', static_cast<std::size_t>(end - value));
    const char* last = found == nullptr ? end : static_cast<const char*>(found);
    lines = {found == nullptr ? end : last + 1, end};
    while (last != value && last[-1] == '\r')
        --last;
    return CleanValue({value, last});
}

// Goes on to the key's entry; nothing if the section has none. Of equal names the first one is found.
[[nodiscard]] std::optional<Entry> FindEntry(SectionLines& lines, std::string_view key);

} // namespace gfc::platform::profile
