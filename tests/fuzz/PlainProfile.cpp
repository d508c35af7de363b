#include "fuzz/PlainProfile.h"

#include "services/CodePage.h"

#include <algorithm>

namespace gfc::fuzz {

namespace {

std::string Stripped(std::string text, std::string_view of) {
    while (!text.empty() && of.find(text.back()) != std::string_view::npos)
        text.pop_back();
    while (!text.empty() && of.find(text.front()) != std::string_view::npos)
        text.erase(text.begin());
    return text;
}

std::string WithoutBreak(std::string line) {
    while (!line.empty() && (line.back() == '\n' || line.back() == '\r'))
        line.pop_back();
    return line;
}

std::string Inner(const std::string& line) {
    return Stripped(WithoutBreak(line), " \t\v");
}

bool IsHeaderLine(const std::string& line) {
    const std::string inner = Inner(line);
    return !inner.empty() && inner[0] == '[';
}

std::string NameIn(const std::string& header) {
    const std::string name = Inner(header).substr(1);
    return Stripped(name.substr(0, name.find(']')), " \t\v");
}

bool IsKeyLine(const std::string& line) {
    const std::string inner = Inner(line);
    return !inner.empty() && inner[0] != ';' && inner[0] != '[' && inner.find('=') != std::string::npos;
}

std::string KeyIn(const std::string& line) {
    const std::string inner = Inner(line);
    return Stripped(inner.substr(0, inner.find('=')), " \t\v");
}

std::string ValueIn(const std::string& line) {
    const std::string inner = Inner(line);
    std::string value = Stripped(inner.substr(inner.find('=') + 1), " \t\v");
    const bool quoted = value.size() > 1 && value[0] == value.back() && (value[0] == '"' || value[0] == '\'');
    value = quoted ? value.substr(1, value.size() - 2) : value;
    return value.substr(0, 254);
}

bool Alike(std::string_view left, std::string_view right) {
    return services::EqualBytesNoCase(left, right);
}

std::string Called(std::string_view name) {
    return Stripped(std::string(name), " ");
}

} // namespace

void PlainProfile::Split(const std::string& bytes) {
    lines_.assign(1, "");
    for (const char byte : bytes) {
        lines_.back() += byte;
        if (byte == '\n')
            lines_.emplace_back();
    }
    if (lines_.back().empty())
        lines_.pop_back();
}

std::string PlainProfile::Bytes() const {
    std::string bytes;
    for (const std::string& line : lines_)
        bytes += line;
    return bytes;
}

std::size_t PlainProfile::LineOfSection(std::string_view section) const {
    std::size_t at = 0;
    while (at < lines_.size() && !(IsHeaderLine(lines_[at]) && Alike(NameIn(lines_[at]), section)))
        ++at;
    return at;
}

std::size_t PlainProfile::EndOfSection(std::size_t header) const {
    std::size_t at = header + 1;
    while (at < lines_.size() && !IsHeaderLine(lines_[at]))
        ++at;
    return at;
}

std::string PlainProfile::Read(std::string_view section, std::string_view key) const {
    const std::size_t header = LineOfSection(Called(section));
    if (header == lines_.size())
        return "";
    for (std::size_t at = header + 1; at < EndOfSection(header); ++at)
        if (IsKeyLine(lines_[at]) && Alike(KeyIn(lines_[at]), Called(key)))
            return ValueIn(lines_[at]);
    return "";
}

void PlainProfile::InsertAt(std::size_t line, const std::string& text) {
    if (text.empty())
        return;
    if (line > 0 && lines_[line - 1].back() != '\n')
        lines_[line - 1] += "\r\n";
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(line), text);
    Split(Bytes());
}

void PlainProfile::Write(std::string_view section, std::string_view key,
                         std::optional<std::string_view> value) {
    const std::string line = Called(key) + "=" + std::string(value.value_or("")) + "\r\n";
    const std::size_t header = LineOfSection(Called(section));
    if (header == lines_.size()) {
        if (value)
            InsertAt(lines_.size(), "[" + Called(section) + "]\r\n" + line);
        return;
    }
    std::size_t behindKeys = header + 1;
    for (std::size_t at = header + 1; at < EndOfSection(header); ++at) {
        if (!IsKeyLine(lines_[at]))
            continue;
        behindKeys = at + 1;
        if (!Alike(KeyIn(lines_[at]), Called(key)))
            continue;
        lines_[at] = value ? line : "";
        return Split(Bytes());
    }
    if (value)
        InsertAt(behindKeys, line);
}

void PlainProfile::ReplaceSection(std::string_view section, std::string_view body) {
    std::string text;
    while (!body.empty() && body.front() != '\0') {
        const std::string item(body.substr(0, body.find('\0')));
        text += item + "\r\n";
        body.remove_prefix(std::min(item.size() + 1, body.size()));
    }
    const std::size_t header = LineOfSection(Called(section));
    if (header == lines_.size())
        return InsertAt(lines_.size(), "[" + Called(section) + "]\r\n" + text);
    const auto first = lines_.begin() + static_cast<std::ptrdiff_t>(header) + 1;
    lines_.erase(first, lines_.begin() + static_cast<std::ptrdiff_t>(EndOfSection(header)));
    InsertAt(header + 1, text);
}

std::vector<std::string> PlainProfile::LinesOutside(const std::vector<std::string>& sections) const {
    std::vector<std::string> outside;
    bool counts = true;
    for (const std::string& line : lines_) {
        if (IsHeaderLine(line))
            counts = std::ranges::none_of(
                sections, [&](const std::string& section) { return Alike(NameIn(line), section); });
        if (counts)
            outside.push_back(WithoutBreak(line));
    }
    return outside;
}

} // namespace gfc::fuzz
