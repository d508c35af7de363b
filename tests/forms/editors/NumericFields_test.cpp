#include "forms/editors/NumericFields.h"
#include "support/HeadlessScreen.h"
#include "ui/Form.h"

#include <gtest/gtest.h>

namespace gfc::forms {

namespace {

const std::string formatText = "Error: Data format should be as follows:\r\r.####\r#.####\r##.####\r###.####";

class Sheet : public ui::Form {
public:
    explicit Sheet(ui::Screen& screen) : ui::Form(screen, "Sheet") {
        MakeNumeric(screen, Number);
        FilterKeys(Digits);
    }

    ui::TextBox Number{*this, "Number"};
    ui::TextBox Digits{*this, "Digits"};
    ui::TextBox Other{*this, "Other", "abc"};
};

struct NumericFields : testing::Test {
    NumericFields() { Form->Show(); }

    test::HeadlessScreen Screen;
    std::shared_ptr<Sheet> Form = std::make_shared<Sheet>(Screen);
    test::Driver& Hands = Screen.Hands();
};

TEST_F(NumericFields, take_a_decimal_comma_for_the_point) {
    Hands.Type("Sheet", "Digits", "1,5,6");
    EXPECT_EQ(Form->Digits.Text(), "1.56");
    Form->Digits.NoteSelection(0, 4);
    EXPECT_EQ(Form->Digits.PersonTypes(U','), U'.') << "the point goes with what is selected";
}

TEST_F(NumericFields, say_why_a_key_was_refused_until_the_next_one) {
    EXPECT_EQ(Form->Digits.PersonTypes(U'x'), std::nullopt);
    EXPECT_EQ(Form->Digits.Refusal(), "Only digits and a decimal point can be entered here.");
    EXPECT_EQ(Form->Digits.PersonTypes(U'1'), U'1');
    EXPECT_EQ(Form->Digits.Refusal(), "");
}

} // namespace

TEST_F(NumericFields, take_digits_points_and_backspace_only) {
    Hands.Keys("Sheet", "Digits", "1a2-.3\r4\b.");
    EXPECT_EQ(Form->Digits.Text(), "12.3.");
}

TEST_F(NumericFields, with_two_points_hold_the_focus_and_stand_selected) {
    Hands.Type("Sheet", "Number", "1.2.3");
    Screen.TheStory.Box("Incorrect value", formatText, ui::Icon::Exclamation);
    Hands.Focus("Sheet", "Other");
    EXPECT_EQ(Hands.Focused("Sheet"), "Number");
    EXPECT_EQ(Form->Number.SelStart(), 0);
    EXPECT_EQ(Form->Number.SelLength(), 5);
    EXPECT_EQ(Form->Number.Text(), "1.2.3");
}

TEST_F(NumericFields, are_left_when_empty_or_with_one_point) {
    Hands.Focus("Sheet", "Number");
    Hands.Focus("Sheet", "Other");
    EXPECT_EQ(Hands.Focused("Sheet"), "Other");
    Hands.Type("Sheet", "Number", "123456789.0123456789");
    Hands.Focus("Sheet", "Other");
    EXPECT_EQ(Hands.Focused("Sheet"), "Other");
}

TEST_F(NumericFields, with_a_key_filter_alone_are_not_checked_on_leaving) {
    Hands.Type("Sheet", "Digits", "1.2.3");
    Hands.Focus("Sheet", "Other");
    EXPECT_EQ(Hands.Focused("Sheet"), "Other");
}

TEST_F(NumericFields, failed_check_may_select_another_field_by_the_length_of_a_third) {
    Form->Number.SetText("1..2");
    Form->Digits.SetText("1234567");
    Screen.TheStory.Box("Incorrect value", formatText, ui::Icon::Exclamation);
    EXPECT_FALSE(CheckShape(Screen, CheckedFields(Form->Number, Form->Other, Form->Digits)));
    EXPECT_EQ(Hands.Focused("Sheet"), "Other");
    EXPECT_EQ(Form->Other.SelLength(), 7);
}

TEST_F(NumericFields, selection_counts_characters_and_not_bytes) {
    Form->Number.SetText("º.º.");
    Screen.TheStory.Box("Incorrect value", formatText, ui::Icon::Exclamation);
    EXPECT_FALSE(CheckShape(Screen, CheckedFields(Form->Number)));
    EXPECT_EQ(Form->Number.SelLength(), 4);
}

TEST_F(NumericFields, range_check_names_the_range_it_is_given) {
    Form->Number.SetText("101");
    Screen.TheStory.Box("Incorrect value", "Error: The range should be: [0-100]%", ui::Icon::Exclamation);
    EXPECT_FALSE(CheckRange(Screen, CheckedFields(Form->Number), 100, " [0-100]%"));
    EXPECT_EQ(Hands.Focused("Sheet"), "Number");
    Form->Number.SetText("100");
    EXPECT_TRUE(CheckRange(Screen, CheckedFields(Form->Number), 100, " [0-100]%"));
}

TEST_F(NumericFields, entry_error_carries_any_title_and_message) {
    Screen.TheStory.Box("Gas Flow Computer, V1.6.1", "Error: Gas composition not entered",
                        ui::Icon::Exclamation);
    EntryError(Screen, "Gas Flow Computer, V1.6.1", "Gas composition not entered");
    EXPECT_EQ(Screen.BoxesShown.size(), 1U);
}

} // namespace gfc::forms
