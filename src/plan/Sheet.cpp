#include "plan/Sheet.h"

#include "services/CodePage.h"
#include "services/Utf8.h"

#include <algorithm>

namespace gfc::plan {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool IsUtf8(std::string_view text) {
    while (!text.empty()) {
        const auto character = services::FirstCharacter(text);
        if (!character.Valid)
            return false;
        text.remove_prefix(character.Length);
    }
    return true;
}

std::string AsUtf8(std::string_view bytes) {
    if (bytes.starts_with(byteOrderMark))
        bytes.remove_prefix(byteOrderMark.size());
    return IsUtf8(bytes) ? std::string(bytes) : services::FromCodePage(bytes);
}

constexpr std::string_view blanks = " \t\r\n";

bool IsBlank(std::string_view text) {
    return text.find_first_not_of(blanks) == std::string_view::npos;
}

std::string Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return std::string(text.substr(first, text.find_last_not_of(blanks) - first + 1));
}

bool IsEmpty(const std::vector<std::string>& cells) {
    return std::ranges::all_of(cells, &std::string::empty);
}

// Goes through the text cell by cell.
class Reader {
public:
    // Each of the separators ends a cell.
    Reader(std::string_view text, std::string_view separators) : text_(text), separators_(separators) {}

    [[nodiscard]] bool AtEnd() const { return at_ >= text_.size(); }
    [[nodiscard]] bool IsOpen() const { return open_; }
    // The separators of the row that was read last.
    [[nodiscard]] const std::string& Met() const { return met_; }

    std::vector<std::string> NextRow() {
        std::vector<std::string> cells;
        met_.clear();
        do
            cells.push_back(Trimmed(NextCell()));
        while (!ended_ && !AtEnd());
        return cells;
    }

private:
    std::string NextCell() {
        std::string cell;
        bool quoted = false;
        ended_ = false;
        for (; at_ < text_.size(); ++at_) {
            const char c = text_[at_];
            if (c == '"' && quoted && at_ + 1 < text_.size() && text_[at_ + 1] == '"') {
                cell += c;
                ++at_;
            } else if (c == '"' && (quoted || IsBlank(cell))) {
                quoted = !quoted;
            } else if (!quoted && separators_.find(c) != std::string_view::npos) {
                met_ += c;
                ++at_;
                return cell;
            } else if (!quoted && (c == '\n' || c == '\r')) {
                ended_ = true;
                at_ += text_.substr(at_).starts_with("\r\n") ? 2 : 1;
                return cell;
            } else {
                cell += c;
            }
        }
        open_ = quoted;
        ended_ = true;
        return cell;
    }

    std::string_view text_;
    std::string_view separators_;
    std::string met_;
    std::size_t at_ = 0;
    bool ended_ = false;
    bool open_ = false;
};

// By the first row that is not empty. Until it is known, any of them ends a cell.
char SeparatorOf(std::string_view text) {
    constexpr std::string_view separators = ",;\t";
    Reader reader(text.substr(std::min(text.size(), text.find_first_not_of("\r\n"))), separators);
    (void)reader.NextRow();
    const std::string_view met = reader.Met();
    return *std::ranges::max_element(separators, {},
                                     [&](char separator) { return std::ranges::count(met, separator); });
}

std::string Quoted(const std::string& cell) {
    if (cell.find_first_of(",;\t\"\r\n") == std::string::npos)
        return cell;
    std::string quoted = "\"";
    for (const char c : cell)
        quoted.append(c == '"' ? 2 : 1, c);
    return quoted + '"';
}

} // namespace

std::string Fault::Line() const {
    std::string where = Row > 0 ? "row " + std::to_string(Row) : std::string();
    if (!Column.empty())
        where += (where.empty() ? "column " : ", column ") + Column;
    if (!Value.empty())
        where += " (\"" + Value + "\")";
    return where.empty() ? Text : where + ": " + Text;
}

Sheet ReadSheet(std::string_view bytes, Faults& faults) {
    // A workbook, "Unicode text" or no table at all: no CSV has a NUL.
    if (bytes.find('\0') != std::string_view::npos) {
        faults.push_back(
            {0, {}, {}, "This is no table in CSV. Save it from the spreadsheet as \"CSV UTF-8\"."});
        return {};
    }
    const std::string text = AsUtf8(bytes);
    const std::string separator(1, SeparatorOf(text));
    Reader reader(text, separator);
    Sheet sheet;
    for (int number = 1; !reader.AtEnd(); ++number) {
        auto cells = reader.NextRow();
        if (IsEmpty(cells))
            continue;
        if (sheet.Titles.empty()) {
            sheet.Titles = std::move(cells);
            continue;
        }
        if (cells.size() > sheet.Titles.size() &&
            std::ranges::any_of(cells.begin() + static_cast<std::ptrdiff_t>(sheet.Titles.size()), cells.end(),
                                [](const std::string& cell) { return !cell.empty(); }))
            faults.push_back({number, {}, {}, "There are more cells than titles."});
        cells.resize(sheet.Titles.size());
        sheet.Rows.push_back({number, std::move(cells)});
    }
    if (sheet.Titles.empty())
        faults.push_back({0, {}, {}, "The table is empty. \"template\" makes one to start from."});
    if (reader.IsOpen())
        faults.push_back({0, {}, {}, "A quotation mark is opened and never closed."});
    return sheet;
}

std::string WriteSheet(const std::vector<std::vector<std::string>>& rows) {
    std::string text(byteOrderMark);
    for (const auto& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i)
            text.append(i == 0 ? "" : ",").append(Quoted(row[i]));
        text += "\r\n";
    }
    return text;
}

} // namespace gfc::plan
