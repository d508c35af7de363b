#include "workshop/import/CsvFile.h"

#include "workshop/import/Decoding.h"
#include "workshop/store/Failure.h"
#include "workshop/store/WholeFile.h"
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

// What a file starts with that a spreadsheet saves under another choice than CSV. No library that we could
// lean on reads these.
constexpr Signature Strangers[] = {
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

// Some spreadsheets tell the separator in a first line "sep=;". NUL where there is no such line.
char ToldSeparator(std::string_view text) {
    constexpr std::string_view Telling = "sep=";
    const std::string_view line = text.substr(0, text.find_first_of(LineEnds));
    const bool tells = line.size() == Telling.size() + 1 && line.starts_with(Telling);
    return tells && std::string_view(",;\t|").find(line.back()) != std::string_view::npos ? line.back()
                                                                                          : '\0';
}

constexpr std::string_view Separators = ",;\t|";

// The lines up to the titles of any list of points, and some more.
std::string_view HeadOf(std::string_view text) {
    constexpr std::size_t Lines = 60;
    std::string_view rest = text;
    for (std::size_t line = 0; line < Lines && !rest.empty(); ++line) {
        static_cast<void>(TakeLine(rest));
    }
    return text.substr(0, text.size() - rest.size());
}

std::vector<CsvRow> ParseHead(std::string_view head, const std::filesystem::path& file, char separator) {
    try {
        Parser parser(file, separator);
        while (!head.empty()) {
            parser.Take(TakeLine(head));
        }
        return parser.Finish();
    } catch (const Failure&) {
        return {}; // parted by this one, its quotes do not pair
    }
}

std::size_t TitlesBy(char separator, std::string_view head, const std::filesystem::path& file,
                     const CsvReading& reading) {
    std::size_t most = 0;
    for (const CsvRow& row : ParseHead(head, file, separator)) {
        most = std::max(most, reading.Titles(row.Fields));
    }
    return most;
}

// Of a table without titles that anybody knows: what the first row that has any of them has most of.
char MostIn(std::string_view text) {
    const std::size_t first = text.find_first_of(Separators);
    const std::size_t before = first == std::string_view::npos ? first : text.find_last_of(LineEnds, first);
    text.remove_prefix(before == std::string_view::npos ? 0 : before + 1);
    const std::string_view line = text.substr(0, text.find_first_of(LineEnds));
    const auto fewer = [&](char a, char b) {
        return std::count(line.begin(), line.end(), a) < std::count(line.begin(), line.end(), b);
    };
    return *std::max_element(Separators.begin(), Separators.end(), fewer);
}

char SeparatorOf(std::string_view text, const std::filesystem::path& file, const CsvReading& reading) {
    char best = MostIn(text);
    if (!reading.Titles) {
        return best;
    }
    const std::string_view head = HeadOf(text);
    std::size_t most = TitlesBy(best, head, file, reading);
    for (const char candidate : Separators) {
        if (const std::size_t titles = TitlesBy(candidate, head, file, reading); titles > most) {
            best = candidate;
            most = titles;
        }
    }
    return best;
}

std::vector<CsvRow> ParseAll(std::string_view text, Parser& parser, const Progress& told) {
    constexpr std::size_t Often = 1 << 20;
    std::size_t next = Often;
    std::string_view rest = text;
    while (!rest.empty()) {
        parser.Take(TakeLine(rest));
        if (const std::size_t done = text.size() - rest.size(); done > next) {
            TellProgress(told, static_cast<double>(done) / static_cast<double>(text.size()));
            next = done + Often;
        }
    }
    return parser.Finish();
}

} // namespace

CsvTable ReadCsv(const std::filesystem::path& file, const CsvReading& reading) {
    return ReadCsv(ReadWhole(file), file, reading);
}

CsvTable ReadCsv(std::string bytes, const std::filesystem::path& file, const CsvReading& reading) {
    RefuseStrangers(file, bytes);
    DecodedText text = reading.Encoding.empty() ? Decode(std::move(bytes), PathText(file))
                                                : DecodeAs(bytes, reading.Encoding, PathText(file));
    CsvTable table;
    table.Note = std::move(text.Note);
    table.Encoding = std::move(text.Encoding);
    std::string_view rest = text.Utf8;
    const char told = ToldSeparator(rest);
    table.Separator = told != '\0' ? told : SeparatorOf(rest, file, reading);
    Parser parser(file, table.Separator);
    if (told != '\0') {
        static_cast<void>(TakeLine(rest));
        parser.Take("\n"); // keeps the count of the rows
    }
    table.Rows = ParseAll(rest, parser, reading.Told);
    return table;
}

} // namespace gfc::workshop
