#include "platform/Profile.h"

#include "services/CodePage.h"

#include <algorithm>
#include <utility>

namespace gfc::platform {
namespace {

using services::EqualBytesNoCase;

constexpr std::string_view LineBreak = "\r\n";
constexpr std::string_view White = " \t\v";
constexpr auto npos = std::string_view::npos;

std::string_view Trimmed(std::string_view text, std::string_view white) {
    const auto first = text.find_first_not_of(white);
    return first == npos ? std::string_view{} : text.substr(first, text.find_last_not_of(white) - first + 1);
}

// In a call only blanks are dropped: a tab there is part of the name.
std::string_view CallName(std::string_view text) {
    return Trimmed(text, " ");
}

// Behind the break of the line that starts there.
std::size_t LineEnd(std::string_view bytes, std::size_t begin) {
    const auto found = bytes.find('\n', begin);
    return found == npos ? bytes.size() : found + 1;
}

std::string_view Content(std::string_view bytes, std::size_t begin, std::size_t end) {
    std::string_view line = bytes.substr(begin, end - begin);
    while (line.ends_with('\n') || line.ends_with('\r'))
        line.remove_suffix(1);
    return Trimmed(line, White);
}

bool IsHeader(std::string_view line) {
    return line.starts_with('[');
}

// A name ends at the first closing bracket; one that is never closed takes the whole line.
std::string_view HeaderName(std::string_view line) {
    line.remove_prefix(1);
    return Trimmed(line.substr(0, line.find(']')), White);
}

struct Entry {
    std::string_view Key;
    std::string_view Value;
};

// Comments, blank lines and lines without "=" are no entries.
std::optional<Entry> EntryOf(std::string_view line) {
    const auto equals = line.find('=');
    if (equals == npos || line.front() == ';')
        return std::nullopt;
    return Entry{Trimmed(line.substr(0, equals), White), Trimmed(line.substr(equals + 1), White)};
}

std::string_view WithoutQuotes(std::string_view value) {
    const bool quoted =
        value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

void AppendLine(std::string& lines, std::string_view line) {
    lines += line;
    lines += LineBreak;
}

} // namespace

// Where the lines of the section start.
std::optional<std::size_t> Profile::FindSection(std::string_view section) const {
    for (std::size_t begin = 0; begin < bytes_.size();) {
        const std::size_t end = LineEnd(bytes_, begin);
        const std::string_view line = Content(bytes_, begin, end);
        if (IsHeader(line) && EqualBytesNoCase(HeaderName(line), section))
            return begin;
        begin = end;
    }
    return std::nullopt;
}

std::optional<Profile::Place> Profile::Find(std::string_view section, std::string_view key) const {
    const auto header = FindSection(section);
    if (!header)
        return std::nullopt;
    std::size_t begin = LineEnd(bytes_, *header);
    Place place{{*header, begin}, std::nullopt, begin, begin};
    for (; begin < bytes_.size(); begin = place.SectionEnd) {
        const std::size_t end = LineEnd(bytes_, begin);
        const std::string_view line = Content(bytes_, begin, end);
        if (IsHeader(line))
            break;
        const auto entry = EntryOf(line);
        if (entry && !place.Key && EqualBytesNoCase(entry->Key, key))
            place.Key = Span{begin, end};
        if (entry)
            place.KeysEnd = end;
        place.SectionEnd = end;
    }
    return place;
}

std::string Profile::Read(std::string_view section, std::string_view key, std::string_view fallback) const {
    key = CallName(key);
    const auto header = FindSection(CallName(section));
    if (!header)
        return std::string(fallback.substr(0, ProfileValueLimit));
    for (std::size_t begin = LineEnd(bytes_, *header); begin < bytes_.size();) {
        const std::size_t end = LineEnd(bytes_, begin);
        const std::string_view line = Content(bytes_, begin, end);
        if (IsHeader(line))
            break;
        const auto entry = EntryOf(line);
        if (entry && EqualBytesNoCase(entry->Key, key))
            return std::string(WithoutQuotes(entry->Value).substr(0, ProfileValueLimit));
        begin = end;
    }
    return std::string(fallback.substr(0, ProfileValueLimit));
}

void Profile::Write(std::string_view section, std::string_view key, std::optional<std::string_view> value) {
    section = CallName(section);
    key = CallName(key);
    const auto place = Find(section, key);
    if (!value) {
        if (place && place->Key)
            bytes_.erase(place->Key->Begin, place->Key->End - place->Key->Begin);
        return;
    }
    std::string line;
    AppendLine(line.append(key).append("="), *value);
    if (!place)
        AddSection(section, line);
    else if (place->Key)
        bytes_.replace(place->Key->Begin, place->Key->End - place->Key->Begin, line);
    else
        Insert(place->KeysEnd, std::move(line));
}

void Profile::ReplaceSection(std::string_view section, std::span<const std::string> items) {
    std::string body;
    for (const std::string& item : items)
        body.append(item).push_back('\0');
    ReplaceSection(section, body);
}

void Profile::ReplaceSection(std::string_view section, std::string_view body) {
    section = CallName(section);
    std::string lines;
    while (!body.empty() && body.front() != '\0') {
        const std::string_view item = body.substr(0, body.find('\0'));
        AppendLine(lines, item);
        body.remove_prefix(std::min(item.size() + 1, body.size()));
    }
    const auto place = Find(section, {});
    if (!place)
        return AddSection(section, lines);
    bytes_.erase(place->Header.End, place->SectionEnd - place->Header.End);
    Insert(place->Header.End, std::move(lines));
}

// A last line that lacks its break gets one before anything follows it.
void Profile::Insert(std::size_t at, std::string text) {
    if (text.empty())
        return;
    if (at > 0 && bytes_[at - 1] != '\n')
        text.insert(0, LineBreak);
    bytes_.insert(at, text);
}

void Profile::AddSection(std::string_view section, std::string_view lines) {
    std::string text;
    AppendLine(text.append("[").append(section), "]");
    Insert(bytes_.size(), text.append(lines));
}

} // namespace gfc::platform
