#include "platform/Profile.h"

#include "platform/ProfileLines.h"

#include <algorithm>
#include <utility>

namespace gfc::platform {
namespace {

using profile::CallName;
using profile::FindEntry;
using profile::LineEnd;
using profile::SectionLines;

constexpr std::string_view LineBreak = "\r\n";

void AppendLine(std::string& lines, std::string_view line) {
    lines += line;
    lines += LineBreak;
}

} // namespace

std::string Profile::Read(std::string_view section, std::string_view key, std::string_view fallback) const {
    std::string_view value = fallback;
    if (const auto header = profile::FindHeader(bytes_, CallName(section))) {
        SectionLines lines(bytes_, *header);
        if (const auto entry = FindEntry(lines, CallName(key)))
            value = entry->Value;
    }
    return std::string(value.substr(0, ProfileValueLimit));
}

void Profile::Write(std::string_view section, std::string_view key, std::optional<std::string_view> value) {
    section = CallName(section);
    key = CallName(key);
    const auto header = profile::FindHeader(bytes_, section);
    std::string line;
    if (value)
        AppendLine(line.append(key).append("="), *value);
    if (header)
        WriteInto(*header, key, std::move(line));
    else if (value)
        AddSection(section, line);
}

// An empty line removes the key's.
void Profile::WriteInto(std::size_t header, std::string_view key, std::string line) {
    SectionLines lines(bytes_, header);
    if (FindEntry(lines, key))
        bytes_.replace(lines.Begin(), lines.End() - lines.Begin(), line);
    else
        Insert(KeysEnd(header), std::move(line));
}

// Behind the section's last entry, else behind its header.
std::size_t Profile::KeysEnd(std::size_t header) const {
    std::size_t end = LineEnd(bytes_, header);
    for (SectionLines lines(bytes_, header); lines.Next();)
        if (lines.AsEntry())
            end = lines.End();
    return end;
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
    const auto header = profile::FindHeader(bytes_, section);
    if (!header)
        return AddSection(section, lines);
    const std::size_t begin = LineEnd(bytes_, *header);
    std::size_t end = begin;
    for (SectionLines old(bytes_, *header); old.Next();)
        end = old.End();
    bytes_.erase(begin, end - begin);
    Insert(begin, std::move(lines));
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
