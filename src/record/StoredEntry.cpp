#include "record/StoredEntry.h"

#include "record/Sha256.h"

#include <array>
#include <utility>

namespace gfc::record {
namespace {

constexpr std::size_t columns = 4;
constexpr char there = '=';
constexpr std::string_view absent = "-";

struct Escape {
    char Byte;
    char Letter;
};
constexpr std::array<Escape, 3> escapes = {{{'\\', '\\'}, {'\t', 't'}, {'\n', 'n'}}};

void AppendEscaped(std::string& line, std::string_view text) {
    for (const char byte : text) {
        char letter = 0;
        for (const Escape& escape : escapes)
            if (escape.Byte == byte)
                letter = escape.Letter;
        letter == 0 ? void(line += byte) : void(line.append(1, '\\').append(1, letter));
    }
}

std::optional<std::string> Unescaped(std::string_view text) {
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '\\') {
            plain += text[at];
            continue;
        }
        const char letter = ++at < text.size() ? text[at] : '\0';
        bool known = false;
        for (const Escape& escape : escapes)
            if (escape.Letter == letter) {
                plain += escape.Byte;
                known = true;
            }
        if (!known)
            return std::nullopt;
    }
    return plain;
}

void AppendState(std::string& line, const std::optional<std::string>& text) {
    line += '\t';
    if (!text) {
        line += absent;
        return;
    }
    line += there;
    AppendEscaped(line, *text);
}

// False for a text that is neither there nor absent.
bool ReadState(std::string_view column, std::optional<std::string>& state) {
    if (column == absent)
        return true;
    if (column.empty() || column.front() != there)
        return false;
    state = Unescaped(column.substr(1));
    return state.has_value();
}

std::optional<std::array<std::string_view, columns>> Columns(std::string_view line) {
    std::array<std::string_view, columns> parts;
    for (std::size_t part = 0; part < columns; ++part) {
        const auto tab = line.find('\t');
        if ((tab == std::string_view::npos) != (part + 1 == columns))
            return std::nullopt;
        parts[part] = line.substr(0, tab);
        line.remove_prefix(tab == std::string_view::npos ? line.size() : tab + 1);
    }
    return parts;
}

std::optional<config::KeyChange> ReadChange(std::string_view line) {
    const auto parts = Columns(line);
    if (!parts)
        return std::nullopt;
    const auto section = Unescaped((*parts)[0]);
    const auto key = Unescaped((*parts)[1]);
    config::KeyChange change;
    if (!section || !key || !ReadState((*parts)[2], change.Old) || !ReadState((*parts)[3], change.New))
        return std::nullopt;
    change.Section = *section;
    change.Key = *key;
    return change;
}

} // namespace

std::string HashOf(const StoredEntry& entry) {
    const auto& facts = entry.Facts;
    const std::string number = std::to_string(facts.Number);
    std::string all = "gfc-record 1\n";
    for (const std::string* column :
         {&number, &facts.Time, &facts.User, &facts.MachineUser, &facts.Command, &facts.Station,
          &facts.FileHash, &entry.Changes, &entry.Content, &entry.Previous})
        all.append(std::to_string(column->size())).append(1, ':').append(*column).append(1, '\n');
    return Sha256(all);
}

std::string ChangesText(const std::vector<config::KeyChange>& changes) {
    std::string text;
    for (const config::KeyChange& change : changes) {
        AppendEscaped(text, change.Section);
        text += '\t';
        AppendEscaped(text, change.Key);
        AppendState(text, change.Old);
        AppendState(text, change.New);
        text += '\n';
    }
    return text;
}

std::optional<std::vector<config::KeyChange>> ReadChanges(std::string_view text) {
    std::vector<config::KeyChange> changes;
    while (!text.empty()) {
        const auto end = text.find('\n');
        const auto change = end == std::string_view::npos ? std::nullopt : ReadChange(text.substr(0, end));
        if (!change)
            return std::nullopt;
        changes.push_back(*change);
        text.remove_prefix(end + 1);
    }
    return changes;
}

} // namespace gfc::record
