#include "workshop/import/CsvFile.h"

#include "workshop/store/Failure.h"
#include "workshop/text/Paths.h"

#include <csv.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string_view>

namespace gfc::workshop {

namespace {

struct Collected {
    std::vector<CsvRow> Rows;
    std::vector<std::string> Fields;
    std::size_t Line = 0;
};

void TakeField(void* text, std::size_t size, void* data) {
    static_cast<Collected*>(data)->Fields.emplace_back(static_cast<const char*>(text), size);
}

void TakeRow(int /*end*/, void* data) {
    auto& collected = *static_cast<Collected*>(data);
    collected.Rows.push_back({collected.Line, std::move(collected.Fields)});
    collected.Fields.clear();
}

class Parser {
public:
    explicit Parser(const std::filesystem::path& file) : file_(file) {
        csv_init(&parser_, CSV_STRICT | CSV_STRICT_FINI);
    }
    ~Parser() { csv_free(&parser_); }
    Parser(const Parser&) = delete;
    Parser& operator=(const Parser&) = delete;

    // Line by line, so that each row knows where it stands.
    void Take(std::string_view line) {
        ++collected_.Line;
        if (csv_parse(&parser_, line.data(), line.size(), TakeField, TakeRow, &collected_) != line.size()) {
            Fail();
        }
    }
    [[nodiscard]] std::vector<CsvRow> Finish() {
        if (csv_fini(&parser_, TakeField, TakeRow, &collected_) != 0) {
            Fail();
        }
        return std::move(collected_.Rows);
    }

private:
    [[noreturn]] void Fail() const {
        throw Failure(PathText(file_) + ": row " + std::to_string(collected_.Line) +
                      ": the quotes of the row do not pair; write a quote inside a field twice.");
    }

    const std::filesystem::path& file_;
    csv_parser parser_{};
    Collected collected_;
};

std::string ReadWhole(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in || std::filesystem::is_directory(file)) { // a folder opens like a file and fails later
        throw Failure(PathText(file) + ": cannot be read; check the path and the access rights.");
    }
    return {std::istreambuf_iterator<char>(in), {}};
}

std::string_view WithoutMark(std::string_view text) {
    constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
    return text.starts_with(ByteOrderMark) ? text.substr(ByteOrderMark.size()) : text;
}

} // namespace

std::vector<CsvRow> ReadCsv(const std::filesystem::path& file) {
    const std::string whole = ReadWhole(file);
    std::string_view rest = WithoutMark(whole);
    Parser parser(file);
    while (!rest.empty()) {
        const std::size_t size = std::min(rest.find('\n'), rest.size() - 1) + 1;
        parser.Take(rest.substr(0, size));
        rest.remove_prefix(size);
    }
    return parser.Finish();
}

} // namespace gfc::workshop
