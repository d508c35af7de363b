#pragma once

#include "config/CommonLayout.h"
#include "config/RunLayout.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

// The columns of a plan: a table of stations to be configured. They are made from the layout of the
// configuration file, so that whatever the file holds has its column and bears the name of its key.
namespace gfc::plan {

enum class ColumnKind {
    Station,
    Runs,   // those that the row is for: "1 3"
    Tags,   // how variables are bound for which no tag is named
    Common, // a text that all runs of the station share
    CommonTag,
    Run, // a text of the runs of the row
    RunTag
};

struct Column {
    std::string Title;
    ColumnKind Kind = ColumnKind::Station;
    std::string Key; // of the configuration; another title for the column. Of a tag, that of its name
    const config::CommonRow* OfStation = nullptr;
    const config::RunRow* OfRun = nullptr;
};

// In the order in which a template has them. They live as long as the program.
[[nodiscard]] std::span<const Column> Columns();
// By title or key, without regard to case; null for another title.
[[nodiscard]] const Column* ColumnOf(std::string_view title);
// The column in which what a finding of the check names was said; null where there is none.
[[nodiscard]] const Column* ColumnOfKey(std::string_view key, bool ofRun);

// What a row says for variables without a named tag.
namespace tags {
inline constexpr std::string_view Automatic = "automatic"; // the next that are free, in delivery order
inline constexpr std::string_view Suggested = "suggested"; // the one that is surely meant
} // namespace tags

// The text that is stored for a choice, which may also be said as the windows show it; without regard to
// case. Empty for none.
[[nodiscard]] std::string_view StoredChoice(std::string_view key, std::string_view said);
// The texts that would do, for a column of choices: "AGA3, AGA7"; empty for another column.
[[nodiscard]] std::string ChoicesOf(std::string_view key);

} // namespace gfc::plan
