// What other tools write for a class, a direction or a register, in the words of this workshop.
#pragma once

#include "workshop/import/Columns.h"

#include <string>
#include <string_view>
#include <vector>

namespace gfc::workshop {

/// A whole number as tables have it: 1201, 1201.0 or 1201,0, R:1201, 0x4B1, 4B1h, &H4B1 or 16#4B1. Nothing
/// for all else: "1,2" and "1.201" may be fractions or thousands, and are not guessed.
[[nodiscard]] std::optional<std::int64_t> ReadRegister(std::string_view text);

enum class Direction { Untold, In, Out };
/// Of a column of its own or an option: "in", "Salida", "R/W" (what can be written is an output).
[[nodiscard]] std::optional<Direction> ReadDirection(std::string_view text);

struct ValueFault {
    const Column* Where;
    std::string Text;
};
/// Puts the row's class, direction, register and description into the forms that the project has. `otherwise`
/// is the direction of a class that does not tell it. What cannot be understood stays as it is, and is a
/// fault here only where the checks of the columns would not say enough of it.
[[nodiscard]] std::vector<ValueFault> PutInOurWords(TableRow& row, Direction otherwise);

/// Where an area of a register map begins: a table that numbers its registers 40001, 40002 ... means 1, 2 ...
struct RegisterArea {
    std::int64_t First;
    std::int64_t Last;
};
/// The area in which all registers of the rows stand; nothing where they stand in none or in several, or
/// where one of them is no number.
[[nodiscard]] std::optional<RegisterArea> AreaOf(const std::vector<TableRow>& rows);
/// Counts the row's register from that address of register 1. False, with the row as it was, where the result
/// would be below 0.
[[nodiscard]] bool CountFrom(std::int64_t base, TableRow& row);

} // namespace gfc::workshop
