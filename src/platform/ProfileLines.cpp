#include "platform/ProfileLines.h"

#include "services/CodePage.h"

#include <algorithm>

namespace gfc::platform::profile {
namespace {

constexpr auto npos = std::string_view::npos;

constexpr bool IsWhite(char byte) {
    return byte == ' ' || byte == '\t' || byte == '\v';
}

constexpr bool IsBlank(char byte) {
    return byte == ' ';
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

// A name ends at the first closing bracket; one that is never closed takes the whole line.
std::string_view HeaderName(std::string_view line) {
    line.remove_prefix(1);
    return Trimmed<IsWhite>(line.substr(0, line.find(']')));
}

// Where the line starts that has nothing but white space before that place; nothing if it has more.
std::optional<std::size_t> StartOfLine(std::string_view bytes, std::size_t at) {
    while (at > 0 && IsWhite(bytes[at - 1]))
        --at;
    return at == 0 || bytes[at - 1] == '\n' ? std::optional(at) : std::nullopt;
}

constexpr std::string_view WithoutQuotes(std::string_view value) {
    const bool quoted =
        value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

constexpr std::string_view ValueBehind(std::string_view line, std::size_t equals) {
    return WithoutQuotes(Trimmed<IsWhite>(line.substr(equals + 1)));
}

} // namespace

std::string_view CallName(std::string_view text) {
    return Trimmed<IsBlank>(text);
}

std::size_t LineEnd(std::string_view bytes, std::size_t begin) {
    const auto found = bytes.find('\n', begin);
    return found == npos ? bytes.size() : found + 1;
}

// From bracket to bracket, and not from line to line: there are few of them, and a file is read for each
// access.
std::optional<std::size_t> FindHeader(std::string_view bytes, std::string_view section) {
    for (auto at = bytes.find('['); at != npos; at = bytes.find('[', at + 1)) {
        const auto begin = StartOfLine(bytes, at);
        if (!begin)
            continue;
        const auto line = Trimmed<IsWhite>(WithoutBreak(bytes.substr(at, LineEnd(bytes, at) - at)));
        if (services::EqualBytesNoCase(HeaderName(line), section))
            return begin;
    }
    return std::nullopt;
}

bool SectionLines::Next() {
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

bool SectionLines::MayHold(std::string_view key) const {
    return key.empty() || (first_ < end_ && services::FoldByte(bytes_[first_]) == services::FoldByte(key[0]));
}

std::optional<Entry> SectionLines::AsEntry() const {
    if (first_ >= end_ || bytes_[first_] == ';')
        return std::nullopt;
    const std::string_view line = WithoutBreak(bytes_.substr(first_, end_ - first_));
    const auto equals = line.find('=');
    if (equals == npos)
        return std::nullopt;
    return Entry{Trimmed<IsWhite>(line.substr(0, equals)), ValueBehind(line, equals)};
}

std::optional<std::string_view> SectionLines::ValueOf(std::string_view key) const {
    const std::string_view line = bytes_.substr(first_, end_ - first_);
    if (line.size() <= key.size() || line[key.size()] != '=' || !line.starts_with(key))
        return std::nullopt;
    return ValueBehind(WithoutBreak(line), key.size());
}

std::optional<Entry> FindEntry(SectionLines& lines, std::string_view key) {
    while (lines.Next()) {
        const auto entry = lines.MayHold(key) ? lines.AsEntry() : std::nullopt;
        if (entry && services::EqualBytesNoCase(entry->Key, key))
            return entry;
    }
    return std::nullopt;
}

} // namespace gfc::platform::profile
