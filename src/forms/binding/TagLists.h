#pragma once

#include "config/VarINIFile.h"
#include "project/TagInventory.h"
#include "ui/ListView.h"

#include <string_view>

// Lists of free tags as they stand on a form: number, name, type, register.
namespace gfc::forms {

namespace tag_column {
constexpr int Name = 1;
constexpr int Type = 2;
constexpr int Register = 3;
} // namespace tag_column

// Empties the list and gives it its columns; heading is that of the number column.
void HeadTagList(ui::ListView& list, std::string_view heading);

// Adds one row per tag; a tag of no register class gives a row with a number only. rowOffset is added to the
// numbers.
void FillTagList(ui::ListView& list, const project::TagList& tags, int rowOffset);

// Gives the rows the numbers that they are filled with.
void NumberAsFilled(ui::ListView& list);

// The list's rows as tags; a register that is no number counts as 0.
[[nodiscard]] project::TagList TagsInList(const ui::ListView& list);

[[nodiscard]] config::TagBinding BindingInRow(const ui::ListView& list, int row);

// The first row of the tag's address and type, whatever its name; 0 for none.
[[nodiscard]] int RowWith(const ui::ListView& list, const config::TagBinding& tag);

} // namespace gfc::forms
