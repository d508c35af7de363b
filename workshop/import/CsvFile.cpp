#include "workshop/import/CsvFile.h"

#include "workshop/store/Failure.h"
#include "workshop/store/WholeFile.h"
#include "workshop/text/CodePage.h"
#include "workshop/text/Paths.h"

#include <csv.h>

#include <algorithm>

namespace gfc::workshop {

namespace {

constexpr std::string_view LineEnds = "\r\n";

// Cuts the first line off, its end included, be that LF, CR LF or CR.
std::string_view TakeLine(std::string_view& rest) {
    std::size_t size = std::min(rest.find_first_of(LineEnds), rest.size() - 1) + 1;
    if (rest.substr(size - 1).starts_with("\r\n")) {
        ++size;
    }
    const std::string_view line = rest.substr(0, size);
    rest.remove_prefix(size);
    return line;
}

bool IsBlank(std::string_view line) {
    return line.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

class Parser {
public:
    Parser(const std::filesystem::path& file, char separator) : file_(file) {
        csv_init(&parser_, CSV_STRICT | CSV_STRICT_FINI);
        csv_set_delim(&parser_, static_cast<unsigned char>(separator));
    }
    ~Parser() { csv_free(&parser_); }
    Parser(const Parser&) = delete;
    Parser& operator=(const Parser&) = delete;

    // Line by line, so that each row knows where it stands. A quoted field may hold line ends.
    void Take(std::string_view line) {
        row_ += inQuotes_ ? 0 : 1;
        const std::size_t before = rows_.size();
        if (csv_parse(&parser_, line.data(), line.size(), TakeField, TakeRow, this) != line.size()) {
            Fail();
        }
        inQuotes_ = rows_.size() == before && (inQuotes_ || !IsBlank(line));
    }
    [[nodiscard]] std::vector<CsvRow> Finish() {
        if (csv_fini(&parser_, TakeField, TakeRow, this) != 0) {
            Fail();
        }
        return std::move(rows_);
    }

private:
    static void TakeField(void* text, std::size_t size, void* self) {
        static_cast<Parser*>(self)->fields_.emplace_back(static_cast<const char*>(text), size);
    }
    static void TakeRow(int /*end*/, void* self) {
        auto& parser = *static_cast<Parser*>(self);
        parser.rows_.push_back({parser.row_, std::move(parser.fields_)});
        parser.fields_.clear();
    }
    [[noreturn]] void Fail() const {
        throw Failure(PathText(file_) + ": row " + std::to_string(row_) +
                      ": the quotes of the row do not pair; write a quote inside a field twice.");
    }

    const std::filesystem::path& file_;
    csv_parser parser_{};
    std::vector<CsvRow> rows_;
    std::vector<std::string> fields_;
    std::size_t row_ = 0;
    bool inQuotes_ = false;
};

struct Signature {
    std::string_view Start;
    const char* Means;
};

// What a file starts with that a spreadsheet saves under another choice than CSV.
constexpr Signature Strangers[] = {
    {"\xFF\xFE", "is a text in UTF-16"},
    {"\xFE\xFF", "is a text in UTF-16"},
    {"PK\x03\x04", "is a workbook of a spreadsheet"},
    {"\xD0\xCF\x11\xE0", "is a workbook of a spreadsheet"},
};

void RefuseStrangers(const std::filesystem::path& file, std::string_view bytes) {
    for (const Signature& stranger : Strangers) {
        if (bytes.starts_with(stranger.Start)) {
            throw Failure(PathText(file) + ": " + stranger.Means +
                          ", not a table in CSV; save it from the spreadsheet as \"CSV UTF-8\".");
        }
    }
}

std::size_t RowOf(std::string_view text, std::size_t at) {
    return 1 + static_cast<std::size_t>(std::count(text.begin(), text.begin() + at, '\n'));
}

// Makes the bytes UTF-8; gives the note on it.
std::string Decode(std::string& bytes) {
    if (bytes.starts_with(ByteOrderMark)) {
        bytes.erase(0, ByteOrderMark.size());
    }
    const std::size_t fault = FirstByteNotUtf8(bytes);
    if (fault == std::string::npos) {
        return {};
    }
    std::string note = "line " + std::to_string(RowOf(bytes, fault)) +
                       " is not UTF-8, so the whole file was read as Windows-1252; if letters come out "
                       "wrong, save it as UTF-8";
    bytes = FromCodePage(bytes);
    return note;
}

// Some spreadsheets tell the separator in a first line "sep=;". NUL where there is no such line.
char ToldSeparator(std::string_view text) {
    constexpr std::string_view Telling = "sep=";
    const std::string_view line = text.substr(0, text.find_first_of(LineEnds));
    const bool tells = line.size() == Telling.size() + 1 && line.starts_with(Telling);
    return tells && std::string_view(",;\t|").find(line.back()) != std::string_view::npos ? line.back()
                                                                                          : '\0';
}

// The first row holds titles, none of which has a separator in it.
char SeparatorOf(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \r\n"), text.size()));
    const std::string_view line = text.substr(0, text.find_first_of(LineEnds));
    char most = ',';
    for (const char candidate : {';', '\t'}) {
        if (std::count(line.begin(), line.end(), candidate) > std::count(line.begin(), line.end(), most)) {
            most = candidate;
        }
    }
    return most;
}

} // namespace

CsvTable ReadCsv(const std::filesystem::path& file) {
    return ReadCsv(ReadWhole(file), file);
}

CsvTable ReadCsv(std::string text, const std::filesystem::path& file) {
    RefuseStrangers(file, text);
    CsvTable table;
    table.Note = Decode(text);
    const char told = ToldSeparator(text);
    Parser parser(file, told != '\0' ? told : SeparatorOf(text));
    std::string_view rest = text;
    if (told != '\0') {
        static_cast<void>(TakeLine(rest));
        parser.Take("\n"); // keeps the count of the rows
    }
    while (!rest.empty()) {
        parser.Take(TakeLine(rest));
    }
    table.Rows = parser.Finish();
    return table;
}

} // namespace gfc::workshop
