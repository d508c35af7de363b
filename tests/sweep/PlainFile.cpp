#include "PlainFile.h"

namespace gfc::test::sweep {

namespace {

std::string Lower(std::string text) {
    for (char& c : text)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return text;
}

} // namespace

void PlainFile::Put(std::string key, std::string value) {
    values_[Lower(sections_.back().Name + "|" + key)] = value;
    sections_.back().Keys.emplace_back(std::move(key), std::move(value));
}

std::vector<std::string> PlainFile::Lines() const {
    std::vector<std::string> lines;
    for (const auto& section : sections_) {
        lines.push_back("[" + section.Name + "]");
        for (const auto& [key, value] : section.Keys)
            lines.push_back(key + "=" + value);
    }
    return lines;
}

std::string PlainFile::Text() const {
    std::string text;
    for (const auto& line : Lines())
        text += line + "\r\n";
    return text;
}

std::string PlainFile::Value(const std::string& section, const std::string& key) const {
    const auto found = values_.find(Lower(section + "|" + key));
    return found == values_.end() ? "" : found->second;
}

} // namespace gfc::test::sweep
