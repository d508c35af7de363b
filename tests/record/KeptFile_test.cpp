#include "record/Compression.h"
#include "record/KeptFile.h"

#include <gtest/gtest.h>

#include <random>

namespace gfc::record {
namespace {

std::string RandomText(std::mt19937& random, std::size_t size) {
    std::string text(size, '\0');
    for (char& byte : text)
        byte = static_cast<char>(random());
    return text;
}

TEST(KeptFile, AnyFileComesBackFromAnyOther) {
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    for (int round = 0; round < 60; ++round) {
        const std::string base = RandomText(random, random() % 70'000);
        std::string file = base.substr(0, random() % (base.size() + 1)) +
                           RandomText(random, random() % 9'000) + base.substr(random() % (base.size() + 1));
        const std::string content = KeepLike(file, 7, base);
        EXPECT_EQ(BaseOf(content), 7);
        ASSERT_EQ(FileIn(content, base), file);
        EXPECT_NE(FileIn(content.substr(0, content.size() - 1), base), file);
        EXPECT_EQ(BaseOf(KeepWhole(file)), 0);
        ASSERT_EQ(FileIn(KeepWhole(file), {}), file);
    }
}

// Nothing of it repeats within itself, so that only base can make it small: at the same place, and where as
// much as a run's section stands before it that base does not have.
TEST(KeptFile, WhatIsAlikeTakesNearlyNothing) {
    std::mt19937 random(3);
    const std::string base = RandomText(random, 50'000);
    EXPECT_LT(KeepLike(base, 1, base).size(), 1'500U);
    EXPECT_LT(KeepLike(RandomText(random, 9'000) + base, 1, base).size(), 11'000U);
    EXPECT_LT(KeepLike(base.substr(9'000), 1, base).size(), 1'500U);
}

TEST(KeptFile, WhatWasMadeByNobodyGivesNothing) {
    for (const char* content : {"", "x", "~", "~5", "~5:", "~5:9", "~5:9:", "~5:9:nonsense",
                                "9:", "9:nonsense", "99999999999999999999:x", "~5:999999999999:x"})
        EXPECT_EQ(FileIn(content, "base"), std::nullopt) << content;
    EXPECT_EQ(BaseOf("~-3:1:x"), -3) << "which is no entry's number";
    EXPECT_EQ(FileIn(KeepLike("", 5, "base"), "base"), "");
    EXPECT_EQ(ExpandLike(CompressLike("abc", "base") + "x", "base"), std::nullopt);
}

// A length that the stream cannot come to is refused beforehand; what repeats itself most comes to the bound.
TEST(KeptFile, WhatIsTheSameThroughoutComesBack) {
    for (const std::size_t size : {1U, 1'032U, 100'000U, 3'000'000U}) {
        const std::string file(size, '\0');
        const std::string kept = KeepWhole(file);
        EXPECT_EQ(FileIn(kept, {}), file) << size;
        EXPECT_EQ(FileIn("268435456" + kept.substr(kept.find(':')), {}), std::nullopt) << size;
    }
}

} // namespace
} // namespace gfc::record
