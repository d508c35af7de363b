#include "drafts/DraftFields.h"
#include "drafts/DraftText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace gfc::drafts {
namespace {

std::string AnyText(std::mt19937& chance) {
    constexpr std::string_view letters("ab 1.=[]\\\t\n\r\0\"\xC3\xA9", 16);
    std::string text;
    for (unsigned size = chance() % 12; size > 0; --size)
        text += letters[chance() % letters.size()];
    return text;
}

// Each text of it is some text; the flags of the runs are what they may be.
Draft AnyDraft(std::mt19937& chance) {
    Draft draft;
    const Visit fill = [&chance](const std::string&, std::string& text) { text = AnyText(chance); };
    EachOwnText(draft, fill);
    EachCommonText(draft.Station, fill);
    int runs = 0;
    for (auto& flag : draft.Station.RunList) {
        const bool on = chance() % 2 == 0;
        flag.Flag = on ? "Yes" : "No";
        runs += on ? 1 : 0;
    }
    draft.Station.Runs.PrepareWholeStation(runs);
    EachRunText(draft.Station.Runs, fill);
    draft.Done = {{0, Dialog::CommonInputs}, {2, Dialog::Mechanical}, {1, Dialog::GasData}};
    OpenDialog& open = draft.Open[{2, Dialog::RunInputs}];
    for (unsigned i = chance() % 5; i > 0; --i)
        open.Bound.push_back({AnyText(chance), AnyText(chance), AnyText(chance)});
    open.Fields = {AnyText(chance), AnyText(chance)};
    return draft;
}

std::vector<std::string> TextsOf(Draft draft) {
    std::vector<std::string> texts;
    const Visit note = [&texts](const std::string& name, std::string& text) {
        texts.push_back(name + "=" + text);
    };
    EachOwnText(draft, note);
    EachCommonText(draft.Station, note);
    EachRunText(draft.Station.Runs, note);
    return texts;
}

// Two lines that stand for one text, as the two models' carbon dioxide, must not part.
void ExpectSame(const Draft& read, const Draft& written) {
    EXPECT_EQ(TextsOf(read), TextsOf(written));
    EXPECT_EQ(read.Done, written.Done);
    EXPECT_EQ(read.Open, written.Open);
    EXPECT_EQ(read.Station.Runs.IO, written.Station.Runs.IO);
    EXPECT_EQ(read.Station.Runs.Gas, written.Station.Runs.Gas);
}

TEST(DraftText, comes_back_byte_for_byte_beside_any_others) {
    const unsigned seed = std::random_device{}();
    std::mt19937 chance(seed);
    for (int round = 0; round < 50; ++round) {
        SCOPED_TRACE("seed " + std::to_string(seed) + ", round " + std::to_string(round));
        std::vector<Draft> written;
        std::string bytes;
        for (unsigned count = 1 + chance() % 3; count > 0; --count)
            bytes += BytesOf(written.emplace_back(AnyDraft(chance)));
        const auto read = DraftsIn(bytes);
        ASSERT_EQ(read.size(), written.size());
        for (std::size_t i = 0; i < read.size(); ++i) {
            ASSERT_TRUE(read[i].TheDraft);
            ExpectSame(*read[i].TheDraft, written[i]);
        }
    }
}

TEST(DraftText, tells_a_damaged_block_from_a_whole_one_and_loses_no_byte) {
    const unsigned seed = std::random_device{}();
    std::mt19937 chance(seed);
    const std::string first = BytesOf(AnyDraft(chance));
    const std::string second = BytesOf(AnyDraft(chance));
    for (int round = 0; round < 300; ++round) {
        SCOPED_TRACE("seed " + std::to_string(seed) + ", round " + std::to_string(round));
        std::string bytes = first + second;
        const std::size_t at = chance() % first.size();
        switch (chance() % 3) {
        case 0:
            bytes[at] = static_cast<char>(bytes[at] ^ (1U << chance() % 8));
            break;
        case 1:
            bytes.erase(at, 1 + chance() % (first.size() - at));
            break;
        default:
            bytes.insert(at, 1, static_cast<char>(chance()));
        }
        const auto read = DraftsIn(bytes);
        std::string all;
        for (const KeptDraft& kept : read)
            all += kept.Bytes;
        EXPECT_EQ(all, bytes);
        const auto whole = [](const KeptDraft& kept) { return kept.TheDraft.has_value(); };
        // That of the second, which nothing has touched, unless its first line went with the first's last.
        EXPECT_LE(std::ranges::count_if(read, whole), 1);
    }
}

TEST(DraftText, of_bytes_that_are_none_is_one_broken_block) {
    for (const char* bytes :
         {"x", "draft\t2\nend\t0\n", "\n\n", "draft\t1\n", "[General]\r\nStation=North\r\n"}) {
        const auto read = DraftsIn(bytes);
        ASSERT_EQ(read.size(), 1U) << bytes;
        EXPECT_FALSE(read[0].TheDraft) << bytes;
        EXPECT_EQ(read[0].Bytes, bytes);
    }
    EXPECT_TRUE(DraftsIn("").empty());
}

} // namespace
} // namespace gfc::drafts
