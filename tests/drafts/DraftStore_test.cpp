#include "DraftRoom.h"

#include <gtest/gtest.h>

namespace gfc::drafts {
namespace {

using test::DraftRoom;

Draft DraftOf(const std::string& id) {
    Draft draft;
    draft.Id = id;
    return draft;
}

TEST(DraftStore, keeps_a_draft_beside_one_that_was_cut_off_within_a_line) {
    for (const std::string& cutOff : {std::string("x"), BytesOf(DraftOf("old")).substr(0, 12),
                                      BytesOf(DraftOf("a")) + "draft\t1\nId\tb"}) {
        DraftRoom room;
        room.Bytes() = cutOff;
        const KeptDraft shown = room.Store.All()->back();
        ASSERT_TRUE(room.Store.Keep(DraftOf("new")));
        const auto all = room.Store.All();
        ASSERT_TRUE(all && all->back().TheDraft) << cutOff;
        EXPECT_EQ(all->back().TheDraft->Id, "new");
        EXPECT_EQ((*all)[all->size() - 2].Bytes, shown.Bytes + '\n');
        // As a window removes it that showed it before.
        ASSERT_TRUE(room.Store.Remove(shown));
        EXPECT_EQ(room.Bytes(),
                  cutOff.substr(0, cutOff.size() - shown.Bytes.size()) + BytesOf(DraftOf("new")));
    }
}

} // namespace
} // namespace gfc::drafts
