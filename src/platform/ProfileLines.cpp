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
std::string_view HeaderName(std::string_view bytes, std::size_t bracket) {
    const std::size_t begin = bracket + 1;
    const std::string_view line = WithoutBreak(bytes.substr(begin, LineEnd(bytes, begin) - begin));
    return Trimmed<IsWhite>(line.substr(0, line.find(']')));
}

// Where the line starts that has nothing but white space before that place; nothing if it has more.
std::optional<std::size_t> StartOfLine(std::string_view bytes, std::size_t at) {
    while (at > 0 && IsWhite(bytes[at - 1]))
        --at;
    return at == 0 || bytes[at - 1] == '\n' ? std::optional(at) : std::nullopt;
}

// False for nearly every name but the section's, without a look at more than its first character.
bool MayBegin(std::string_view name, std::string_view section) {
    return name.empty() || section.empty() || IsWhite(name[0]) ||
           services::FoldByte(name[0]) == services::FoldByte(section[0]);
}

} // namespace

std::string_view CallName(std::string_view text) {
    return Trimmed<IsBlank>(text);
}

// From bracket to bracket, and not from line to line: there are few of them, and a file is read for each
// access.
std::optional<std::size_t> FindHeader(std::string_view bytes, std::string_view section) {
    for (auto at = bytes.find('['); at != npos; at = bytes.find('[', at + 1))
        if (MayBegin(bytes.substr(at + 1), section))
            if (const auto begin = StartOfLine(bytes, at))
                if (services::EqualBytesNoCase(HeaderName(bytes, at), section))
                    return begin;
    return std::nullopt;
}

std::string_view LinesOf(std::string_view bytes, std::string_view section) {
    const auto header = FindHeader(bytes, section);
    if (!header)
        return {};
    const std::size_t begin = LineEnd(bytes, *header);
    for (auto at = bytes.find('[', begin); at != npos; at = bytes.find('[', at + 1))
        if (const auto end = StartOfLine(bytes, at))
            return bytes.substr(begin, *end - begin);
    return bytes.substr(begin);
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
