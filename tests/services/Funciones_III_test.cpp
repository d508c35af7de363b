#include "services/Funciones_III.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace gfc::services;

TEST(KeyAllowed, lets_digits_the_point_and_backspace_through) {
    for (const char32_t key : std::u32string_view(U"0123456789."))
        EXPECT_TRUE(KeyAllowed(key));
    EXPECT_TRUE(KeyAllowed(8));
}

TEST(KeyAllowed, stops_everything_else) {
    for (const char32_t key : std::u32string_view(U",-+eE a/:;\r\n\t\u00B2\u0661"))
        EXPECT_FALSE(KeyAllowed(key)) << static_cast<unsigned>(key);
    EXPECT_FALSE(KeyAllowed(0));
    EXPECT_FALSE(KeyAllowed(127));
}

TEST(SingleDecimalPoint, passes_at_most_one_point) {
    EXPECT_TRUE(SingleDecimalPoint("1.2"));
    EXPECT_TRUE(SingleDecimalPoint("."));
    EXPECT_FALSE(SingleDecimalPoint("1.2.3"));
    EXPECT_FALSE(SingleDecimalPoint(".."));
}

TEST(SingleDecimalPoint, looks_at_points_alone) {
    EXPECT_TRUE(SingleDecimalPoint(""));
    EXPECT_TRUE(SingleDecimalPoint("abc"));
    EXPECT_TRUE(SingleDecimalPoint("123456789012345678901234567890.123456789"));
}

TEST(WithinRange, holds_its_narrow_reading_at_a_maximum_of_100) {
    for (const char* text : {"", "0", "100", "100.0", "100.0000", "100.", "050.0", "99.5", "99.9999", "9.99",
                             ".5", ".9999", ".", "0100", "abc"})
        EXPECT_TRUE(WithinRange(text, 100)) << text;
    for (const char* text : {"101", "1000", "1000.5", "0000.0", "100.0001", "100.5", "150.0", "050.5"})
        EXPECT_FALSE(WithinRange(text, 100)) << text;
}

TEST(WithinRange, lets_two_digits_pass_whatever_the_maximum) {
    EXPECT_TRUE(WithinRange("99.9", 1));
    EXPECT_TRUE(WithinRange(".9", 0));
    EXPECT_FALSE(WithinRange("99", 1));
}

TEST(WithinRange, takes_a_fraction_of_any_length) {
    EXPECT_TRUE(WithinRange("100.000000000000000000000000000000000000", 100));
    EXPECT_FALSE(WithinRange("100.000000000000000000000000000000000001", 100));
}

TEST(ValueOf, stops_at_the_first_character_that_is_no_part_of_a_number) {
    EXPECT_EQ(ValueOf("12abc"), 12);
    EXPECT_EQ(ValueOf("1.5.7"), 1.5);
    EXPECT_EQ(ValueOf("1,5"), 1);
    EXPECT_EQ(ValueOf("  7"), 7);
    EXPECT_EQ(ValueOf("-2.5x"), -2.5);
    EXPECT_EQ(ValueOf("+3"), 3);
    EXPECT_EQ(ValueOf(".25"), 0.25);
    EXPECT_EQ(ValueOf("1e2"), 100);
    EXPECT_EQ(ValueOf("1e"), 1);
}

TEST(ValueOf, reads_no_further_than_its_text) {
    EXPECT_EQ(ValueOf(std::string_view("1234", 2)), 12);
    EXPECT_EQ(ValueOf(std::string_view("1.25e3", 3)), 1.2);
}

TEST(ValueOf, gives_zero_where_no_number_starts) {
    for (const char* text : {"", "   ", "abc", "-", "+", ".", "+-5", "--5", "inf", "nan", "-inf", "x1"})
        EXPECT_EQ(ValueOf(text), 0) << text;
}

TEST(ValueOf, stays_finite_for_numbers_beyond_the_machine) {
    const double largest = std::numeric_limits<double>::max();
    EXPECT_EQ(ValueOf("1e999"), largest);
    EXPECT_EQ(ValueOf("-1e999"), -largest);
    EXPECT_EQ(ValueOf("1e-999"), 0);
    EXPECT_EQ(ValueOf(std::string(400, '9')), largest);
    EXPECT_EQ(ValueOf("1" + std::string(400, '0')), largest);
    EXPECT_EQ(ValueOf("0." + std::string(400, '0') + "1"), 0);
}

TEST(FormatMessage, names_the_forms_one_per_line) {
    EXPECT_EQ(IncorrectValueTitle, "Incorrect value");
    EXPECT_EQ(FormatMessage, "Data format should be as follows:\r\r.####\r#.####\r##.####\r###.####");
}

TEST(RangeMessage, joins_its_halves_without_a_break) {
    EXPECT_EQ(RangeMessage(PercentRange), "The range should be: [0-100]%");
    EXPECT_EQ(RangeMessage(" [0-1]%"), "The range should be: [0-1]%");
    EXPECT_EQ(EntryErrorPrefix, "Error: ");
    EXPECT_EQ(PercentMaximum, 100);
}

} // namespace
