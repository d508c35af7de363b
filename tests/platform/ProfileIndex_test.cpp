#include "platform/ProfileIndex.h"

#include <gtest/gtest.h>

namespace gfc::platform {
namespace {

// What one reading gives, both ways, and often enough for a table of the section to be made.
std::string Both(const Profile& profile, std::string_view section, std::string_view key) {
    ProfileIndex index(profile);
    const std::string read = profile.Read(section, key);
    for (int reading = 1; reading <= 20; ++reading)
        EXPECT_EQ(index.Read(section, key), read) << section << " " << key << ", reading " << reading;
    return read;
}

TEST(ProfileIndex, answers_as_a_reading_of_the_profile) {
    const Profile profile(
        "lost=1\r\n[A]\r\n ; k=0\r\n;k=0\r\n K = ' v ' \r\nk=2\r\nempty=\r\nno entry\r\n\r\n"
        "  [ b ] rest\nk=\"3\"\r\n=nameless\r\n[a]\r\nlate=4");
    EXPECT_EQ(Both(profile, "A", "k"), " v ");
    EXPECT_EQ(Both(profile, " a ", " K "), " v ");
    EXPECT_EQ(Both(profile, "B", "k"), "3");
    EXPECT_EQ(Both(profile, "b", ""), "nameless");
    EXPECT_EQ(Both(profile, "A", "empty"), "");
    EXPECT_EQ(Both(profile, "A", "late"), ""); // of equal sections the first one counts
    EXPECT_EQ(Both(profile, "A", "\tk"), "");
    EXPECT_EQ(Both(profile, "C", "k"), "");
    EXPECT_EQ(Both(profile, "A", "lost"), "");
    EXPECT_EQ(Both(profile, "A", ";k"), "");
}

TEST(ProfileIndex, folds_the_letters_of_the_code_page) {
    EXPECT_EQ(Both(Profile("[\xC9t\xE9]\r\n\xD1=1\r\n"), "\xE9T\xC9", "\xF1"), "1");
}

TEST(ProfileIndex, cuts_a_long_value_at_the_limit) {
    const Profile profile("[A]\r\nk=" + std::string(300, 'x') + "\r\n");
    EXPECT_EQ(Both(profile, "A", "k"), std::string(ProfileValueLimit, 'x'));
}

TEST(ProfileIndex, finds_each_of_many_keys) {
    std::string bytes = "[A]\r\n";
    for (int i = 0; i < 1000; ++i)
        bytes += "Key" + std::to_string(i % 500) + "=" + std::to_string(i) + "\r\n";
    const Profile profile(bytes);
    ProfileIndex index(profile);
    for (int i = 499; i >= 0; --i)
        EXPECT_EQ(index.Read("A", "kEY" + std::to_string(i)), std::to_string(i));
    EXPECT_EQ(index.Read("A", "Key500"), "");
}

TEST(ProfileIndex, keeps_many_sections_apart) {
    std::string bytes;
    for (int i = 0; i < 100; ++i)
        bytes += "[S" + std::to_string(i) + "]\r\nk=" + std::to_string(i) + "\r\n";
    const Profile profile(bytes);
    ProfileIndex index(profile);
    for (int i = 99; i >= 0; --i)
        EXPECT_EQ(index.Read("s" + std::to_string(i), "K"), std::to_string(i));
}

} // namespace
} // namespace gfc::platform
