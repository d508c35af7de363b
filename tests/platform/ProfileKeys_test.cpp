#include "platform/Profile.h"
#include "platform/ProfileKeys.h"

#include <gmock/gmock.h>

namespace gfc::platform {
namespace {

using Names = std::vector<std::string>;

// What a reading of all keys at once gives, which must be what one gives that asks for each by itself.
Names ReadAll(const std::string& bytes, std::string_view section, const Names& names) {
    Names texts(names.size());
    std::vector<bool> found(names.size());
    ProfileKeys(names).Read(profile::LinesOf(bytes, profile::CallName(section)),
                            [&](std::size_t key, std::string_view value) {
                                if (!found.at(key))
                                    texts.at(key) = value;
                                found[key] = true;
                                return true;
                            });
    const Profile profile(bytes);
    for (std::size_t key = 0; key < names.size(); ++key)
        EXPECT_EQ(texts.at(key), profile.Read(section, names[key])) << section << " " << names[key];
    return texts;
}

TEST(ProfileKeys, are_found_in_any_order) {
    const std::string bytes = "[A]\r\na=1\r\nb=2\r\nc=3\r\n";
    EXPECT_EQ(ReadAll(bytes, "A", {"a", "b", "c"}), (Names{"1", "2", "3"}));
    EXPECT_EQ(ReadAll(bytes, "A", {"c", "a", "b"}), (Names{"3", "1", "2"}));
    EXPECT_EQ(ReadAll(bytes, "A", {"c", "none", "a"}), (Names{"3", "", "1"}));
    EXPECT_EQ(ReadAll(bytes, "A", {}), Names{});
}

TEST(ProfileKeys, match_without_regard_to_case_and_to_white_space_in_the_file) {
    EXPECT_EQ(ReadAll("[a]\r\n KEY =1\r\nk\xC9y=2\r\n\t late\t=3\r\n", " A ", {"Key", "K\xE9Y", "Late"}),
              (Names{"1", "2", "3"}));
}

TEST(ProfileKeys, count_where_they_stand_first) {
    EXPECT_EQ(ReadAll("[A]\r\nk=1\r\nK=2\r\nm=3\r\nm=4\r\n[B]\r\nn=5\r\n[A]\r\nk=6\r\nn=7\r\n", "A",
                      {"k", "m", "n"}),
              (Names{"1", "3", ""}));
    EXPECT_EQ(ReadAll("[A]\r\nk=\r\nk=2\r\n", "A", {"k", "m"}), (Names{"", ""})) << "empty is a value, too";
}

TEST(ProfileKeys, are_not_found_in_comments_and_beginnings) {
    EXPECT_EQ(ReadAll("[A]\r\n;k=1\r\nkey=2\r\nk\r\nk.=3\r\n", "A", {"k", "ke"}), (Names{"", ""}));
}

TEST(ProfileKeys, give_values_without_white_space_and_one_pair_of_quotes) {
    EXPECT_EQ(ReadAll("[A]\r\na= ' v ' \r\nb=\"\"w\"\"\r\nc=\"\r\nd==\r\ne=x\r\r\n", "A",
                      {"a", "b", "c", "d", "e"}),
              (Names{" v ", "\"w\"", "\"", "=", "x"}));
}

TEST(ProfileKeys, give_values_cut_at_the_limit) {
    EXPECT_EQ(ReadAll("[A]\nk=" + std::string(300, 'x'), "A", {"k"}), Names{std::string(254, 'x')});
}

TEST(ProfileKeys, are_all_empty_without_their_section) {
    EXPECT_EQ(ReadAll("k=1\r\n[B]\r\nk=2\r\n", "A", {"k"}), Names{""});
    EXPECT_EQ(ReadAll("", "A", {"k", "m"}), (Names{"", ""}));
}

TEST(ProfileKeys, stand_by_each_other_with_one_name_the_beginning_of_the_next) {
    const std::string bytes = "[A]\r\nRun=0\r\nRun1=1\r\nRun11=2\r\nRun1=3\r\n";
    EXPECT_EQ(ReadAll(bytes, "A", {"Run1", "Run11", "Run"}), (Names{"1", "2", "0"}));
}

TEST(ProfileKeys, come_in_the_order_of_the_lines_until_the_caller_has_enough) {
    const std::string lines = "b=1\r\nx=2\r\na=3\r\nB=4\r\nc=5\r\n";
    std::string calls;
    const auto take = [&calls](std::size_t key, std::string_view value) {
        calls += std::to_string(key) + "=" + std::string(value) + " ";
        return value != "4";
    };
    ProfileKeys({"a", "b", "c"}).Read(lines, take);
    EXPECT_EQ(calls, "1=1 0=3 1=4 ");
}

// A file that leaves out more than the next few keys, or less, gives the same.
TEST(ProfileKeys, may_be_left_out) {
    Names names;
    for (int i = 0; i < 100; ++i)
        names.push_back("Key" + std::to_string(i));
    for (const int step : {1, 2, 5, 31, 32, 33, 34, 60}) {
        std::string bytes = "[A]\r\n";
        for (int i = step - 1; i < 100; i += step)
            bytes += names[static_cast<std::size_t>(i)] + "=" + std::to_string(i) + "\r\n";
        const Names texts = ReadAll(bytes, "A", names);
        EXPECT_EQ(texts[static_cast<std::size_t>(step - 1)], std::to_string(step - 1));
    }
}

TEST(ProfileKeys, may_be_many) {
    Names names;
    std::string bytes = "[A]\r\n";
    for (int i = 0; i < 500; ++i) {
        names.push_back("Key" + std::to_string(i));
        bytes += "kEY" + std::to_string((i * 7) % 1000) + "=" + std::to_string(i) + "\r\n";
    }
    const Names texts = ReadAll(bytes, "A", names);
    EXPECT_EQ(texts[0], "0");
    EXPECT_EQ(texts[7], "1");
}

} // namespace
} // namespace gfc::platform
