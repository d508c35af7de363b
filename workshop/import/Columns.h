// The columns of a tag table: their titles, what may stand under each, and by which names other tools know
// them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace gfc::workshop {

/// One row as it was read; every field is text, and empty where the table has no such column.
struct TableRow {
    std::size_t Row = 0;
    std::string Station;
    std::string StationType;
    std::string Address;
    std::string SerialNumber;
    std::string Module;
    std::string ModuleType;
    std::string Tag;
    std::string Class;
    std::string Register;
    std::string Description;
    std::string Direction; ///< of tables that name the direction apart from the class; ends in the class
};

enum class Kind { Text, FileName, Number, Register, Class, Note, Direction };
enum class Need { Always, WithTag, Never }; ///< where the field must not be empty

struct Column {
    std::string_view Title;
    std::string TableRow::*Field;
    Kind Holds;
    Need Needed;
    std::size_t Width; ///< characters, as the library's records have room for
};

/// All that a table may have. The last one, Direction, is read and never written.
[[nodiscard]] std::span<const Column> AllColumns();

/// By its title, whatever the case of its letters; nullptr for none.
[[nodiscard]] const Column* ColumnNamed(std::string_view title);

/// By a name that other tools give it, in English, Spanish or Portuguese, whatever its case, accents and
/// signs between the words; nullptr for none. "Address" alone is no name of one: it may be a register or a
/// station's.
[[nodiscard]] const Column* ColumnKnownAs(std::string_view name);

/// True for the name of a column of addresses that does not tell which kind they are of.
[[nodiscard]] bool NamesSomeAddress(std::string_view name);

/// What keeps the text from standing in the column, as "..." and a reason; empty when it may. The text is not
/// empty.
[[nodiscard]] std::string FaultOf(const Column& column, const std::string& text);

/// A whole number from 0 to 2147483647 in decimal digits.
[[nodiscard]] std::optional<std::int32_t> ParseNumber(std::string_view text);

} // namespace gfc::workshop
