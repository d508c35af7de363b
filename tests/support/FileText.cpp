#include "support/FileText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <string_view>

namespace gfc::test {

namespace {

constexpr const char* LineBreak = "\r\n";

bool IsHeader(const std::string& line) {
    return !line.empty() && line.front() == '[';
}

bool IsKey(const std::string& line) {
    return !line.empty() && line.front() != ';' && line.find('=') != std::string::npos;
}

std::string SwapCase(std::string text) {
    for (char& letter : text) {
        const auto byte = static_cast<unsigned char>(letter);
        letter = static_cast<char>(std::isupper(byte) != 0 ? std::tolower(byte) : std::toupper(byte));
    }
    return text;
}

// Names of sections and keys are plain letters.
bool SameName(std::string_view left, std::string_view right) {
    return std::ranges::equal(left, right, [](unsigned char a, unsigned char b) {
        return a == b || std::tolower(a) == std::tolower(b);
    });
}

std::vector<std::string> LinesOfText(const std::string& bytes, std::string& rest) {
    std::vector<std::string> lines;
    std::size_t begin = 0;
    for (auto end = bytes.find(LineBreak); end != std::string::npos; end = bytes.find(LineBreak, begin)) {
        lines.push_back(bytes.substr(begin, end - begin));
        begin = end + 2;
    }
    rest = bytes.substr(begin);
    return lines;
}

} // namespace

FileText::FileText(const std::string& bytes) : lines_(LinesOfText(bytes, rest_)) {}

FileText::Range FileText::LinesOf(const std::string& section) const {
    std::size_t begin = 0;
    const std::string header = "[" + section + "]";
    while (begin < lines_.size() && !SameName(lines_[begin], header))
        ++begin;
    begin = std::min(begin + 1, lines_.size());
    std::size_t end = begin;
    while (end < lines_.size() && !IsHeader(lines_[end]))
        ++end;
    return {begin, end};
}

std::optional<std::size_t> FileText::LineOf(const std::string& section, const std::string& key) const {
    const auto [begin, end] = LinesOf(section);
    for (std::size_t i = begin; i < end; ++i)
        if (const std::string& line = lines_[i]; line.size() > key.size() && line[key.size()] == '=' &&
                                                 IsKey(line) &&
                                                 SameName(std::string_view(line).substr(0, key.size()), key))
            return i;
    return std::nullopt;
}

std::optional<std::string> FileText::Value(const std::string& section, const std::string& key) const {
    const auto line = LineOf(section, key);
    if (!line)
        return std::nullopt;
    return lines_[*line].substr(lines_[*line].find('=') + 1);
}

FileText& FileText::Set(const std::string& section, const std::string& key, const std::string& value) {
    const std::string text = key + "=" + value;
    if (const auto line = LineOf(section, key)) {
        lines_[*line] = text;
        return *this;
    }
    auto [begin, end] = LinesOf(section);
    if (begin == 0 || !SameName(lines_[begin - 1], "[" + section + "]"))
        ADD_FAILURE() << "no section " << section << " for " << key;
    while (end > begin && !IsKey(lines_[end - 1]))
        --end;
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(end), text);
    return *this;
}

FileText& FileText::Touch(const std::string& section, const std::vector<std::string>& keys) {
    for (const auto& key : keys)
        if (const auto value = Value(section, key))
            Set(section, key, *value);
    return *this;
}

FileText& FileText::AddSection(const std::string& section) {
    lines_.push_back("[" + section + "]");
    return *this;
}

FileText& FileText::Remove(const std::string& section, const std::string& key) {
    if (const auto line = LineOf(section, key))
        lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(*line));
    return *this;
}

FileText& FileText::Replace(const std::string& section, const std::vector<std::string>& lines) {
    const auto [begin, end] = LinesOf(section);
    const auto first = lines_.begin() + static_cast<std::ptrdiff_t>(begin);
    lines_.erase(first, lines_.begin() + static_cast<std::ptrdiff_t>(end));
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(begin), lines.begin(), lines.end());
    return *this;
}

std::string FileText::Bytes() const {
    std::string bytes;
    for (const auto& line : lines_)
        bytes.append(line).append(LineBreak);
    return bytes + rest_;
}

void ExpectSameFile(const std::string& file, const std::string& expected) {
    std::string rest;
    const auto lines = LinesOfText(file, rest);
    const auto wanted = LinesOfText(expected, rest);
    const auto [here, there] = std::ranges::mismatch(lines, wanted);
    if (here != lines.end() && there != wanted.end()) {
        ADD_FAILURE() << "line " << here - lines.begin() + 1 << ": " << *here << "\nexpected: " << *there;
        return;
    }
    EXPECT_EQ(lines.size(), wanted.size());
    EXPECT_TRUE(file == expected) << "what stands behind the last line break differs";
}

std::string EditedByHand(const std::string& file) {
    std::string rest;
    std::string edited =
        "; looked after by the shift\r\n\r\n[Plant Notes]\r\nwritten = by hand\r\nno key\r\n";
    for (const auto& line : LinesOfText(file, rest)) {
        if (IsHeader(line)) {
            edited.append(LineBreak).append(line).append("\r\n; about ").append(line).append(LineBreak);
            continue;
        }
        const auto equals = line.find('=');
        edited.append(SwapCase(line.substr(0, equals))).append(line.substr(equals)).append(LineBreak);
    }
    return edited + "\r\n[Maintenance]\r\nRun2=greased\r\nlast = 2021";
}

} // namespace gfc::test
