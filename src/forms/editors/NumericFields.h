#pragma once

#include "config/VarINIFile.h"
#include "ui/Screen.h"
#include "ui/TextBox.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

// The entry rules of Funciones_III put on fields: what a key press may bring in, and what a field is held to
// when the focus leaves it. A failed check shows one box and gives the focus back; it never changes a text.
namespace gfc::forms {

// The one box of all the checks: "Error: " and the message, exclamation mark, OK.
void EntryError(ui::Screen& screen, const std::string& title, const std::string& message);

// Which field a check looks at, and what a failure does: it selects as many characters as LengthOf's text
// has, from the start of Selected, and gives Selected the focus. In nearly every check all three are the
// field that was left.
struct CheckedFields {
    explicit CheckedFields(ui::TextBox& field) : Tested(field), Selected(field), LengthOf(field) {}
    CheckedFields(ui::TextBox& tested, ui::TextBox& selected, ui::TextBox& lengthOf)
        : Tested(tested), Selected(selected), LengthOf(lengthOf) {}

    ui::TextBox& Tested;
    ui::TextBox& Selected;
    ui::TextBox& LengthOf;
};

// At most one point. False, after the box, if the text failed.
bool CheckShape(ui::Screen& screen, const CheckedFields& fields);
// services::WithinRange, which is meant for a maximum of 100. range is the text that names the range, "
// [0-100]%".
bool CheckRange(ui::Screen& screen, const CheckedFields& fields, std::int32_t maximum,
                std::string_view range);
// The box of a failed range check, for a field with a test of its own.
void RefuseRange(ui::Screen& screen, const CheckedFields& fields, std::string_view range);

// The field's tip says what is expected of the key's value: range and unit, by the tables that judge it.
// station gives the choices and units as they are when the tip is asked for.
void TellExpected(ui::TextBox& field, std::string key, std::function<config::StationConfig()> station);

// The field takes digits, the point and Backspace only. A decimal comma becomes the point, and what is
// refused is told beside the field.
void FilterKeys(ui::TextBox& field);
// The field runs the shape check when the focus leaves it.
void CheckShapeOnLeaving(ui::Screen& screen, ui::TextBox& field);
// Both.
void MakeNumeric(ui::Screen& screen, ui::TextBox& field);

} // namespace gfc::forms
