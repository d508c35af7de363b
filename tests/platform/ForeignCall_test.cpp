#include "platform/ForeignCall.h"

#include <gtest/gtest.h>

#include <cfenv>

namespace {

using namespace gfc::platform;

TEST(FloatingPointKept, brings_back_the_rounding_that_a_call_leaves_changed) {
    ASSERT_EQ(std::fegetround(), FE_TONEAREST);
    {
        const FloatingPointKept kept;
        std::fesetround(FE_UPWARD);
    }
    EXPECT_EQ(std::fegetround(), FE_TONEAREST);
}

#ifdef GFC_CALLEE_CLEARS_STACK
extern "C" {

static std::uint32_t __stdcall Clears0() {
    return 7;
}
static std::uint32_t __stdcall Clears3(std::uint32_t a, std::uint32_t b, std::uint32_t c) {
    return a * 100 + b * 10 + c;
}
static std::uint32_t __cdecl Leaves3(std::uint32_t a, std::uint32_t b, std::uint32_t c) {
    return a * 100 + b * 10 + c;
}
static std::int16_t __stdcall Narrow(std::uint32_t) {
    return -7;
}

} // extern "C"

template <class Function>
const void* At(Function* function) {
    return reinterpret_cast<const void*>(function);
}

TEST(CallForeign, hands_over_its_words_in_order_and_tells_what_was_taken_off) {
    EXPECT_EQ(CallForeign(At(&Clears0), {}).Value, 7u);
    EXPECT_EQ(CallForeign(At(&Clears0), {}).TakenOff, 0);
    const auto cleared = CallForeign(At(&Clears3), {1, 2, 3});
    EXPECT_EQ(cleared.Value, 123u);
    EXPECT_EQ(cleared.TakenOff, 12);
    const auto left = CallForeign(At(&Leaves3), {1, 2, 3});
    EXPECT_EQ(left.Value, 123u);
    EXPECT_EQ(left.TakenOff, 0);
    EXPECT_EQ(static_cast<std::int16_t>(CallForeign(At(&Narrow), {0}).Value), -7);
}

TEST(CallForeign, comes_back_whatever_was_taken_off) {
    for (int i = 0; i < 1000; ++i) {
        EXPECT_EQ(CallForeign(At(&Clears3), {1}).TakenOff, 12) << "more than it was given";
        EXPECT_EQ(CallForeign(At(&Narrow), {1, 2, 3, 4, 5}).TakenOff, 4) << "less";
        EXPECT_EQ(CallForeign(At(&Leaves3), {1, 2, 3, 4, 5}).TakenOff, 0) << "nothing";
    }
}
#endif

} // namespace
