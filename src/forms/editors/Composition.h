#pragma once

#include "config/VarINIFile.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/TextBox.h"

#include <array>
#include <memory>

// The composition fields of MDetail, by their numbers: "Text1" and "Text8" to "Text27".
namespace gfc::forms {

// By number: whose text a check tests, and on a failure which field is selected, by the length of whose text.
struct LeavingCheck {
    int Tested;
    int Selected;
    int LengthOf;
};

struct ComponentRow {
    int Number;
    const char* Label;
    config::GasSlot Slot;
    const char* Default; // all defaults add up to exactly 1
    LeavingCheck Shape;
    LeavingCheck Range;
};

// In the order in which the form assigns them.
extern const std::array<ComponentRow, config::Components> ComponentRows;

// A label and a field for each row, in their order.
class CompositionFields {
public:
    explicit CompositionFields(ui::Frame& place);

    // By the field's number.
    [[nodiscard]] ui::TextBox& operator[](int number);

private:
    struct Entry {
        Entry(ui::Frame& place, const ComponentRow& row);
        ui::Label Label;
        ui::TextBox Text;
    };
    std::array<std::unique_ptr<Entry>, config::Components> entries_;
};

} // namespace gfc::forms
