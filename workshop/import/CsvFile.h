#pragma once

#include <cstddef>
#include <filesystem>
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
    std::string Note; ///< how the file was read, where its reader should know; empty for a file in UTF-8
};

/// Reads a table as spreadsheets write it: fields parted by commas, semicolons or tabs, whichever the first
/// row has most of; lines ended in any way; UTF-8, or else Windows-1252. Blanks around unquoted fields are
/// taken away. Throws Failure when the file cannot be read, is no text, or its quotes do not pair.
[[nodiscard]] CsvTable ReadCsv(const std::filesystem::path& file);
/// The same with the bytes of the file, which is only named.
[[nodiscard]] CsvTable ReadCsv(std::string text, const std::filesystem::path& file);

} // namespace gfc::workshop
