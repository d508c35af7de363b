#include "forms/editors/MDetailWorld.h"
#include "support/Named.h"

namespace gfc::forms {

using namespace mdetail;

TEST_F(MDetailForm, refuses_each_empty_field_and_stores_nothing) {
    for (const auto& component : components) {
        Put(component.Field, "");
        Story.Click(form, "Command1");
        Story.Box("Gas Flow Computer, V1.6.1", "Error: Gas composition not entered", ui::Icon::Exclamation);
        Story.SeeShown(form).Check([this](test::Driver&) {
            EXPECT_FALSE(World.Session.GasAccepted);
            EXPECT_EQ(Gas(Slot::GC_C2), "");
        });
        Put(component.Field, "1");
    }
    ShowAndAccept();
    EXPECT_EQ(Gas(Slot::GC_Ar), "1");
}

TEST_F(MDetailForm, filters_keys_in_all_fields) {
    for (const auto& component : components)
        Story.Type(form, component.Field, "a-1,\r25").SeeText(form, component.Field, "1.25");
    ShowAndAccept();
    EXPECT_EQ(Gas(Slot::GC_Ar), "1.25");
}

struct MDetailOrdinary : MDetailForm, testing::WithParamInterface<int> {};

// Fields that look at themselves alone.
TEST_P(MDetailOrdinary, field_is_held_by_its_own_shape_and_range) {
    const std::string field = "Text" + std::to_string(GetParam());
    Put(field, "1.2.3");
    LeaveAndSee(field, shapeText, field, 5);
    Put(field, "1000");
    LeaveAndSee(field, rangeText, field, 4);
    for (const auto* good : {"100", "100.0", "99.5", ".5", "", "0"}) {
        Put(field, good);
        LeaveFreely(field);
    }
    for (const auto* bad : {"101", "100.5", "150.0", "1000.5"}) {
        Put(field, bad);
        LeaveAndSee(field, rangeText, field, static_cast<int>(std::string(bad).size()));
    }
    Put(field, "1");
    ShowAndAccept();
}

INSTANTIATE_TEST_SUITE_P(Fields, MDetailOrdinary,
                         testing::Values(8, 9, 10, 11, 12, 13, 14, 15, 18, 19, 20, 23, 24, 25, 26),
                         test::ByNumber("Text"));

TEST_F(MDetailForm, field_one_selects_by_the_length_of_field_ten_at_a_range_failure) {
    Put("Text10", "0.96522200");
    Put("Text1", "1.2.3");
    LeaveAndSee("Text1", shapeText, "Text1", 5);
    Put("Text1", "1000");
    LeaveAndSee("Text1", rangeText, "Text1", 10);
    Put("Text1", "1");
    ShowAndAccept();
}

TEST_F(MDetailForm, fields_sixteen_and_22_select_by_the_length_of_field_thirteen_at_a_shape_failure) {
    Put("Text13", "0.0009770");
    for (const auto* field : {"Text16", "Text22"}) {
        Put(field, "1.2.3");
        LeaveAndSee(field, shapeText, field, 9);
        Put(field, "101");
        LeaveAndSee(field, rangeText, field, 3);
        Put(field, "1");
    }
    ShowAndAccept();
}

TEST_F(MDetailForm, field_seventeen_tests_field_sixteen_and_never_itself) {
    Put("Text17", "1.2.3");
    LeaveFreely("Text17");
    Put("Text17", "1000");
    LeaveFreely("Text17");
    Put("Text16", "1.2.34");
    LeaveAndSee("Text17", shapeText, "Text16", 6);
    Put("Text16", "1001");
    LeaveAndSee("Text17", rangeText, "Text16", 4);
    Put("Text16", "1");
    ShowAndAccept();
    EXPECT_EQ(Gas(Slot::GC_nC6), "1000");
}

TEST_F(MDetailForm, field_21_tests_the_shape_of_thirteen_and_the_range_of_twenty) {
    Put("Text21", "1.2.3");
    LeaveFreely("Text21");
    Put("Text21", "1000");
    LeaveFreely("Text21");
    Put("Text13", "1..3");
    LeaveAndSee("Text21", shapeText, "Text13", 4);
    Put("Text13", "1000"); // its range is not looked at from here
    LeaveFreely("Text21");
    Put("Text20", "1.2.3"); // nor the shape of this one
    LeaveFreely("Text21");
    Put("Text20", "10000");
    LeaveAndSee("Text21", rangeText, "Text20", 5);
    Put("Text20", "1");
    ShowAndAccept();
    EXPECT_EQ(Gas(Slot::GC_nC10), "1000");
}

TEST_F(MDetailForm, field_27_tests_itself_and_selects_field_thirteen) {
    Put("Text13", "0.0009770");
    Put("Text27", "1.2.3");
    LeaveAndSee("Text27", shapeText, "Text13", 9);
    Put("Text27", "1000");
    LeaveAndSee("Text27", rangeText, "Text13", 4);
    Put("Text27", "1");
    LeaveFreely("Text27");
    ShowAndAccept();
}

TEST_F(MDetailForm, shows_one_box_for_a_text_that_fails_both_checks) {
    Put("Text9", "1000.1.1");
    LeaveAndSee("Text9", shapeText, "Text9", 8);
    Put("Text9", "1");
    ShowAndAccept();
}

} // namespace gfc::forms
