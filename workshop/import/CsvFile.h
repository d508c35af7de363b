#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace gfc::workshop {

struct CsvRow {
    std::size_t Row; ///< as a spreadsheet counts, from 1, blank lines included
    std::vector<std::string> Fields;
};

/// All rows that are not blank, blanks around unquoted fields taken away. Throws Failure when the file cannot
/// be read or its quotes do not pair.
[[nodiscard]] std::vector<CsvRow> ReadCsv(const std::filesystem::path& file);

} // namespace gfc::workshop
