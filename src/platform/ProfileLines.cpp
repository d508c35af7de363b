#include "platform/ProfileLines.h"

#include "services/CodePage.h"

#include <algorithm>

namespace gfc::platform::profile {
namespace {

constexpr auto npos = std::string_view::npos;

constexpr bool IsBlank(char byte) {
    return byte == ' ';
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

} // namespace

std::string_view CallName(std::string_view text) {
    return Trimmed<IsBlank>(text);
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
    return Entry{Trimmed<IsWhite>(line.substr(0, equals)), CleanValue(line.substr(equals + 1))};
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
