#include "forms/editors/NumericFields.h"

#include "audit/Ranges.h"
#include "services/Funciones_III.h"
#include "services/TypedNumber.h"

#include <algorithm>
#include <utility>

namespace gfc::forms {

namespace {

int Characters(const std::string& utf8) {
    const auto continues = [](unsigned char byte) { return (byte & 0xC0U) == 0x80U; };
    return static_cast<int>(utf8.size()) -
           static_cast<int>(std::count_if(utf8.begin(), utf8.end(), continues));
}

void Refuse(ui::Screen& screen, const CheckedFields& fields, const std::string& message) {
    EntryError(screen, std::string(services::IncorrectValueTitle), message);
    fields.Selected.Select(0, Characters(fields.LengthOf.Text()));
    fields.Selected.SetFocus();
}

} // namespace

void EntryError(ui::Screen& screen, const std::string& title, const std::string& message) {
    screen.Ask({.Title = title,
                .Text = std::string(services::EntryErrorPrefix) + message,
                .TheIcon = ui::Icon::Exclamation});
}

bool CheckShape(ui::Screen& screen, const CheckedFields& fields) {
    if (services::SingleDecimalPoint(fields.Tested.Text()))
        return true;
    Refuse(screen, fields, std::string(services::FormatMessage));
    return false;
}

bool CheckRange(ui::Screen& screen, const CheckedFields& fields, std::int32_t maximum,
                std::string_view range) {
    if (services::WithinRange(fields.Tested.Text(), maximum))
        return true;
    RefuseRange(screen, fields, range);
    return false;
}

void RefuseRange(ui::Screen& screen, const CheckedFields& fields, std::string_view range) {
    Refuse(screen, fields, services::RangeMessage(range));
}

void TellExpected(ui::TextBox& field, std::string key, std::function<config::StationConfig()> station) {
    field.HintOf = [key = std::move(key), station = std::move(station)] {
        return audit::ExpectedText(key, station());
    };
}

void FilterKeys(ui::TextBox& field) {
    field.OnKeyPress = services::KeyAllowed;
    field.OnRefused = [&field](char32_t key) {
        auto typed = services::InsteadOf(key, field.Unselected());
        return ui::TextBox::Instead{typed.Instead, std::move(typed.Why)};
    };
    field.OnPaste = [&field](const std::string& text) {
        auto pasted = services::NumberPasted(text, field.Unselected());
        return ui::TextBox::Pasted{std::move(pasted.Text), std::move(pasted.Why)};
    };
}

void CheckShapeOnLeaving(ui::Screen& screen, ui::TextBox& field) {
    field.OnLostFocus = [&screen, &field] { CheckShape(screen, CheckedFields(field)); };
}

void MakeNumeric(ui::Screen& screen, ui::TextBox& field) {
    FilterKeys(field);
    CheckShapeOnLeaving(screen, field);
}

} // namespace gfc::forms
