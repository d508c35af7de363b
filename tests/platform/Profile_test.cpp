#include "platform/Profile.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using gfc::platform::Profile;

std::string Written(std::string bytes, std::string_view section, std::string_view key,
                    std::optional<std::string_view> value) {
    Profile profile(std::move(bytes));
    profile.Write(section, key, value);
    return profile.Bytes();
}

std::string Replaced(std::string bytes, std::string_view section, const std::vector<std::string>& items) {
    Profile profile(std::move(bytes));
    profile.ReplaceSection(section, items);
    return profile.Bytes();
}

TEST(ProfileRead, gives_the_fallback_only_where_the_key_is_missing) {
    const Profile profile("[A]\r\nk=\r\n");
    EXPECT_EQ(profile.Read("A", "k", "c:\\"), "");
    EXPECT_EQ(profile.Read("A", "x", "c:\\"), "c:\\");
    EXPECT_EQ(profile.Read("B", "k", "c:\\"), "c:\\");
    EXPECT_EQ(Profile().Read("A", "k", "c:\\"), "c:\\");
    EXPECT_EQ(Profile().Read("A", "k", std::string(300, 'x')).size(), 254u);
}

TEST(ProfileRead, cuts_a_value_to_254_characters) {
    EXPECT_EQ(Profile("[A]\nk=" + std::string(254, 'v')).Read("A", "k"), std::string(254, 'v'));
    EXPECT_EQ(Profile("[A]\nk=" + std::string(255, 'v')).Read("A", "k"), std::string(254, 'v'));
    EXPECT_EQ(Profile("[A]\nk=\"" + std::string(300, 'v') + "\"").Read("A", "k"), std::string(254, 'v'));
}

TEST(ProfileRead, keeps_a_lone_quote) {
    EXPECT_EQ(Profile("[A]\nk=\"\nm='").Read("A", "k"), "\"");
    EXPECT_EQ(Profile("[A]\nk=\"\nm='").Read("A", "m"), "'");
}

TEST(ProfileRead, takes_a_header_that_is_never_closed) {
    EXPECT_EQ(Profile("[Run1\r\nk=1\r\n").Read("Run1", "k"), "1");
    EXPECT_EQ(Profile("[A]\r\nk=1\r\n[B\r\nk=2\r\n").Read("A", "k"), "1");
    EXPECT_EQ(Profile("[A]\r\n[B\r\nk=2\r\n").Read("A", "k"), "");
}

TEST(ProfileRead, drops_more_than_one_carriage_return_at_a_lines_end) {
    EXPECT_EQ(Profile("[A]\r\r\nk=1\r\r\n").Read("A", "k"), "1");
}

TEST(ProfileRead, bears_any_bytes) {
    std::string bytes;
    for (int i = 0; i < 4096; ++i)
        bytes += static_cast<char>(i * 7 + i / 256);
    EXPECT_EQ(Profile(bytes).Read("A", "k", "none"), "none");
    EXPECT_EQ(Profile(std::string("[A]\nk=a\0b\n", 10)).Read("A", "k"), std::string("a\0b", 3));
}

TEST(ProfileWrite, changes_no_byte_but_its_line) {
    const std::string before = "\xEF\xBB\xBF; top\n\n [A] ; x\r\n\tk = 1 \n;k=2\r\nbare\n\n[B\nk=3";
    EXPECT_EQ(Written(before, "a", "K", "9"),
              "\xEF\xBB\xBF; top\n\n [A] ; x\r\nK=9\r\n;k=2\r\nbare\n\n[B\nk=3");
    EXPECT_EQ(Written(before, "b", "k", std::nullopt),
              "\xEF\xBB\xBF; top\n\n [A] ; x\r\n\tk = 1 \n;k=2\r\nbare\n\n[B\n");
}

TEST(ProfileWrite, adds_a_key_before_comments_and_blank_lines_at_the_sections_end) {
    EXPECT_EQ(Written("[A]\r\nk=1\r\n\r\n; end\r\n\r\n[B]\r\n", "A", "m", "2"),
              "[A]\r\nk=1\r\nm=2\r\n\r\n; end\r\n\r\n[B]\r\n");
}

TEST(ProfileWrite, adds_a_section_without_a_blank_line_before_it) {
    EXPECT_EQ(Written("", "A", "k", "1"), "[A]\r\nk=1\r\n");
    EXPECT_EQ(Written("[A]\r\nk=1", "B", "k", ""), "[A]\r\nk=1\r\n[B]\r\nk=\r\n");
}

TEST(ProfileWrite, keeps_the_value_as_it_stands) {
    EXPECT_EQ(Written("[A]\r\n", "A", "k", "  \" x ; y=z "), "[A]\r\nk=  \" x ; y=z \r\n");
    EXPECT_EQ(Written("[A]\r\n", "A", "k", std::string(5000, 'v')),
              "[A]\r\nk=" + std::string(5000, 'v') + "\r\n");
}

TEST(ProfileWrite, leaves_everything_where_there_is_nothing_to_delete) {
    for (const char* bytes : {"", "[A]", "[A]\nx=1", ";k=1\n[A]\nk\n;k=2\n"})
        EXPECT_EQ(Written(bytes, "A", "k", std::nullopt), bytes);
}

TEST(ProfileReplaceSection, drops_all_that_stood_in_the_section) {
    EXPECT_EQ(Replaced("[A] ; h\nk=1\n\n; c\nbare\n[B]\nx=1\n", "a", {"m=2"}), "[A] ; h\nm=2\r\n[B]\nx=1\n");
}

TEST(ProfileReplaceSection, does_not_grow_the_file_when_repeated) {
    const std::vector<std::string> items{"a=1", "b=", "c=3"};
    const std::string once = Replaced("[X]\r\n\r\n[Run1]\r\nold=1\r\n\r\n[Run2]\r\n", "Run1", items);
    EXPECT_EQ(Replaced(once, "Run1", items), once);
    EXPECT_EQ(once, "[X]\r\n\r\n[Run1]\r\na=1\r\nb=\r\nc=3\r\n[Run2]\r\n");
}

TEST(ProfileReplaceSection, replaces_the_first_of_two_sections_alone) {
    EXPECT_EQ(Replaced("[A]\nk=1\n[a]\nk=2\n", "A", {"n=1"}), "[A]\nn=1\r\n[a]\nk=2\n");
}

TEST(ProfileReplaceSection, makes_a_missing_section_even_without_items) {
    EXPECT_EQ(Replaced("", "A", {}), "[A]\r\n");
    EXPECT_EQ(Replaced("[A]", "A", {}), "[A]");
}

// Deliberate: the items travel as one text in which a NUL ends an item and an empty item ends the whole.
TEST(ProfileReplaceSection, ends_items_at_a_nul_and_the_list_at_an_empty_item) {
    EXPECT_EQ(Replaced("", "A", {std::string("k=a\0b=1", 7), "c=2"}), "[A]\r\nk=a\r\nb=1\r\nc=2\r\n");
    EXPECT_EQ(Replaced("", "A", {"k=1", "", "c=2"}), "[A]\r\nk=1\r\n");
}

TEST(ProfileReplaceSection, takes_one_text_of_items_too) {
    Profile profile;
    profile.ReplaceSection("A", std::string_view("a=1\0b=2\0\0c=3\0", 13));
    EXPECT_EQ(profile.Bytes(), "[A]\r\na=1\r\nb=2\r\n");
    profile.ReplaceSection("A", std::string_view("d=4"));
    EXPECT_EQ(profile.Bytes(), "[A]\r\nd=4\r\n");
}

} // namespace
