#include "services/TypedNumber.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace gfc::services {
namespace {

TEST(TypedKey, takes_the_decimal_comma_for_the_point_once) {
    EXPECT_EQ(InsteadOf(U',', "12").Instead, U'.');
    EXPECT_EQ(InsteadOf(U',', "12").Why, "");
    EXPECT_EQ(InsteadOf(U',', "1.2").Instead, char32_t{0});
    EXPECT_EQ(InsteadOf(U',', "1.2").Why, "There is a decimal point already.");
}

TEST(TypedKey, says_why_a_letter_is_refused_and_nothing_of_control_keys) {
    EXPECT_EQ(InsteadOf(U'x', "").Why, "Only digits and a decimal point can be entered here.");
    EXPECT_EQ(InsteadOf(U'x', "").Instead, char32_t{0});
    EXPECT_EQ(InsteadOf(char32_t{13}, "").Why, "");
}

TEST(NumberPasted, takes_numbers_as_they_are_written) {
    const std::array<std::array<const char*, 2>, 9> taken = {{{"1556", "1556"},
                                                              {"14.696", "14.696"},
                                                              {" 0,581\r\n", "0.581"},
                                                              {"1,5", "1.5"},
                                                              {"12,3456", "12.3456"},
                                                              {"1556,789", "1556.789"},
                                                              {",5", ".5"},
                                                              {"000,581", "000.581"},
                                                              {"\t", ""}}};
    for (const auto& [text, number] : taken) {
        EXPECT_EQ(NumberPasted(text, "").Text, number) << text;
        EXPECT_EQ(NumberPasted(text, "").Why, "") << text;
    }
}

TEST(NumberPasted, refuses_in_words_what_may_be_another_number) {
    for (const char* text : {"1,556", "1,556.7", "1.556,7", "1 556", "1'556",
                             "1\xC2\xA0"
                             "556",
                             "1,234,567", "12.345.678", "1e5", "-5", "12 in", "1.2.3", "1,2,3", "x"}) {
        EXPECT_EQ(NumberPasted(text, "").Text, "") << text;
        EXPECT_EQ(NumberPasted(text, "").Why.find("Not pasted: "), std::size_t{0}) << text;
    }
    EXPECT_EQ(NumberPasted("1,556", "").Why,
              "Not pasted: \"1,556\" may have marks between the thousands. Please type it.");
}

TEST(NumberPasted, gives_no_second_point_to_a_field_that_has_one) {
    EXPECT_EQ(NumberPasted("5", "1.2").Text, "5");
    EXPECT_EQ(NumberPasted("5.1", "1.2").Text, "");
    EXPECT_EQ(NumberPasted("5,1", "1.2").Why, "Not pasted: There is a decimal point already.");
}

std::string WithMarks(std::string digits, const std::string& mark) {
    for (int at = static_cast<int>(digits.size()) - 3; at > 0; at -= 3)
        digits.insert(static_cast<std::size_t>(at), mark);
    return digits;
}

// However a person's tables write a number, it is taken as that number or not at all. A point without any
// other mark is the decimal point, as in the file.
TEST(NumberPasted, is_never_another_number_than_was_meant) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const std::array<std::array<const char*, 2>, 8> ways = {{{"", "."},
                                                             {"", ","},
                                                             {",", "."},
                                                             {".", ","},
                                                             {" ", ","},
                                                             {"\xC2\xA0", ","},
                                                             {"'", "."},
                                                             {"\xE2\x80\x99", "."}}};
    int taken = 0;
    for (int i = 0; i < 5000; ++i) {
        const std::string whole = std::to_string(random() % (i % 2 == 0 ? 1000U : 10'000'000U));
        std::string decimals = std::to_string(random() % 100'000U);
        decimals.resize(random() % (decimals.size() + 1));
        const auto& [mark, point] = ways.at(random() % ways.size());
        if (*mark == '.' && decimals.empty())
            continue;
        const std::string meant = decimals.empty() ? whole : whole + "." + decimals;
        const std::string written = WithMarks(whole, mark) + (decimals.empty() ? "" : point + decimals);
        const auto pasted = NumberPasted(written, "");
        EXPECT_EQ(pasted.Text.empty(), !pasted.Why.empty()) << written;
        if (!pasted.Text.empty())
            ASSERT_EQ(pasted.Text, meant) << written;
        taken += pasted.Text.empty() ? 0 : 1;
    }
    EXPECT_GT(taken, 1000);
}

} // namespace
} // namespace gfc::services
