#pragma once

#include "workshop/import/TableWishes.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace gfc::workshop {

/// What spreadsheets put before a table in UTF-8, and look for to read it as such.
inline constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

struct CsvRow {
    std::size_t Row; ///< as a spreadsheet counts, from 1, blank lines included
    std::vector<std::string> Fields;
};

struct CsvTable {
    std::vector<CsvRow> Rows; ///< those that are not blank, in UTF-8
    std::string Note;     ///< how the file was read, where its reader should know; empty for a file in UTF-8
    std::string Encoding; ///< what the bytes were taken for
    char Separator = ','; ///< what parts the fields
};

/// How a table is to be read where its bytes do not tell.
struct CsvReading {
    std::string Encoding; ///< by its name; empty to find out
    /// How many fields of a row are titles: the separator is the one by which some row near the top has most.
    std::function<std::size_t(const std::vector<std::string>&)> Titles;
    Progress Told;
};

/// Reads a table as spreadsheets write it: fields parted by commas, semicolons, tabs or bars, whichever gives
/// most titles, or else the first row has most of; lines ended in any way; UTF-8, UTF-16, or else
/// Windows-1252. Blanks around unquoted fields are taken away. Throws Failure when the file cannot be read,
/// is no text, or its quotes do not pair.
[[nodiscard]] CsvTable ReadCsv(const std::filesystem::path& file, const CsvReading& reading = {});
/// The same with the bytes of the file, which is only named.
[[nodiscard]] CsvTable ReadCsv(std::string bytes, const std::filesystem::path& file,
                               const CsvReading& reading = {});

} // namespace gfc::workshop
