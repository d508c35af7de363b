#include "record/StoredEntry.h"

#include <gtest/gtest.h>

namespace gfc::record {
namespace {

// What parts lines and columns may stand in a text, too, and a text that is empty is another than none.
TEST(ChangesText, AnyTextComesBackAndNothingIsNotAnEmptyOne) {
    const std::vector<config::KeyChange> changes = {
        {"General", "User\tID", "a\\nb", "a\nb\t\\"},
        {"", "\\", std::nullopt, ""},
        {"FlowRun1\n", "-", "-", std::nullopt},
        {"=", "=", "=", "=-"},
    };
    const std::string text = ChangesText(changes);
    EXPECT_EQ(ReadChanges(text), changes);
    EXPECT_EQ(text.substr(0, text.find('\n')), "General\tUser\\tID\t=a\\\\nb\t=a\\nb\\t\\\\");
    EXPECT_EQ(ReadChanges(""), std::vector<config::KeyChange>{});
}

TEST(ChangesText, WhatItDidNotWriteIsNotRead) {
    ASSERT_TRUE(ReadChanges("s\tk\t=a\t-\n"));
    for (const char* text : {"s\tk\t=a\t-", "s\tk\t=a\n", "s\tk\t=a\t-\t-\n", "s\tk\ta\t-\n", "s\tk\t\t-\n",
                             "s\tk\t=\\x\t-\n", "s\tk\t=a\\\t-\n", "\\\tk\t=a\t-\n", "s\tk\t--\t-\n", "\n"})
        EXPECT_FALSE(ReadChanges(text)) << text;
}

} // namespace
} // namespace gfc::record
