#include "platform/ForeignMemory.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#ifndef _WIN32
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace {

using gfc::platform::IsReadable;

TEST(ForeignMemory, of_ones_own_is_readable) {
    const std::vector<char> bytes(10'000'000, 'x');
    EXPECT_TRUE(IsReadable(bytes.data(), bytes.size()));
    EXPECT_TRUE(IsReadable(bytes.data() + 1, 1));
    EXPECT_TRUE(IsReadable(nullptr, 0));
}

TEST(ForeignMemory, at_addresses_of_nobody_is_not) {
    const char byte = 'x';
    EXPECT_FALSE(IsReadable(nullptr, 1));
    EXPECT_FALSE(IsReadable(reinterpret_cast<const void*>(std::uintptr_t{0x10}), 4));
    EXPECT_FALSE(IsReadable(&byte, SIZE_MAX)) << "beyond the end of all memory";
    EXPECT_FALSE(IsReadable(&byte, SIZE_MAX / 2));
}

#ifndef _WIN32
TEST(ForeignMemory, ends_where_the_pages_do) {
    const auto page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    // More pages than are looked at in one go.
    const std::size_t pages = 1025;
    auto* const room = static_cast<char*>(
        ::mmap(nullptr, (pages + 1) * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(room, MAP_FAILED);
    ASSERT_EQ(::mprotect(room + pages * page, page, PROT_NONE), 0);
    EXPECT_TRUE(IsReadable(room, pages * page));
    EXPECT_TRUE(IsReadable(room + pages * page - 1, 1));
    EXPECT_TRUE(IsReadable(room + 7, pages * page - 7));
    EXPECT_TRUE(IsReadable(room, 512 * page)) << "as many as in one go";
    EXPECT_FALSE(IsReadable(room, pages * page + 1));
    EXPECT_FALSE(IsReadable(room + pages * page - 1, 2));
    EXPECT_FALSE(IsReadable(room + pages * page, 1));
    ::munmap(room, (pages + 1) * page);
}

// The question goes through a pipe: where there can be none, the library is believed.
TEST(ForeignMemory, is_taken_for_readable_where_nothing_can_be_asked) {
    const pid_t child = ::fork();
    if (child == 0) {
        const rlimit none{0, 0};
        ::_exit(::setrlimit(RLIMIT_NOFILE, &none) == 0 && IsReadable(nullptr, 1) ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(WEXITSTATUS(status), 0);
}
#endif

} // namespace
