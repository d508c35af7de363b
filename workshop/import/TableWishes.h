// What a person says of a table that was not made for this workshop.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gfc::workshop {

/// A column of theirs and the title under which it is to be read.
struct ColumnWish {
    std::string Theirs; ///< as the table titles it, but for the case of its letters
    std::string Ours;   ///< one of AllColumns(), or LeftOut

    bool operator==(const ColumnWish&) const = default;
};

/// Of a column that is not to be read, though its title is known.
inline constexpr std::string_view LeftOut = "-";

struct ModuleWish {
    std::string Module;
    std::string Type;

    bool operator==(const ModuleWish&) const = default;
};

struct TableWishes {
    std::vector<ColumnWish> Columns;
    std::string Station;        ///< of rows that name none; empty for a fault in those
    std::string Module;         ///< likewise
    bool IgnoreUnknown = false; ///< columns that nobody knows are left out instead of being a fault
    std::string Direction;      ///< "in" or "out", of classes that do not tell; empty for a fault in those
    std::vector<ModuleWish> ModuleTypes;
    std::optional<std::int32_t> RegisterBase; ///< the address of register 1; else what the column shows
    std::string Encoding;                     ///< by its usual name, such as "ISO-8859-15"; empty to find out

    bool operator==(const TableWishes&) const = default;
};

/// "THEIRS=OURS" in its two texts, of which either may stand in quotes as in CSV; without quotes the last "="
/// parts them. Throws Failure, led by `option`, when the text is not made so.
struct TextPair {
    std::string Left;
    std::string Right;
};
[[nodiscard]] TextPair SplitPair(std::string_view text, std::string_view option);
/// The pair as one text that is split into the same again.
[[nodiscard]] std::string JoinPair(const TextPair& pair);

/// Told how much of a table was worked off, from 0 to 1; answers false to give up, which throws Failure.
using Progress = std::function<bool(double)>;
/// Throws Failure when `progress`, which may be empty, gives up.
void TellProgress(const Progress& progress, double share);

} // namespace gfc::workshop
