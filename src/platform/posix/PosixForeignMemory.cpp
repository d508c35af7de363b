#include "platform/ForeignMemory.h"
#include "platform/posix/Descriptor.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/uio.h>
#ifdef __linux__
#include <sys/syscall.h>
#endif
#include <unistd.h>

namespace gfc::platform {
namespace {

using posix::Descriptor;

// One byte of each page is written at a time, and so many of them fit into any pipe.
constexpr std::size_t PagesAtOnce = 512;

// The bare call where there is one: a sanitizer would take the question itself for an overrun.
ssize_t WriteAllOf(int fd, const iovec* parts, std::size_t count) {
#ifdef __linux__
    return ::syscall(SYS_writev, fd, parts, count);
#else
    return ::writev(fd, parts, static_cast<int>(count));
#endif
}

// The system copies what it can read into a pipe, and reports what it cannot instead of ending the process.
class Probe {
public:
    Probe() {
        std::array<int, 2> ends{-1, -1};
        if (::pipe(ends.data()) != 0)
            return;
        reader_ = Descriptor(ends[0]);
        writer_ = Descriptor(ends[1]);
        for (const int end : ends)
            ::fcntl(end, F_SETFD, FD_CLOEXEC);
    }
    explicit operator bool() const { return static_cast<bool>(writer_); }

    void Add(std::uintptr_t address) { bytes_[count_++] = {reinterpret_cast<void*>(address), 1}; }
    [[nodiscard]] bool IsFull() const { return count_ == bytes_.size(); }
    // True if all that was added since the last time can be read.
    [[nodiscard]] bool Passes() {
        ssize_t written = 0;
        do
            written = count_ == 0 ? 0 : WriteAllOf(writer_.Get(), bytes_.data(), count_);
        while (written < 0 && errno == EINTR);
        const bool all = written == static_cast<ssize_t>(count_);
        std::array<char, PagesAtOnce> drain{};
        if (written > 0)
            (void)!::read(reader_.Get(), drain.data(), drain.size());
        count_ = 0;
        return all;
    }

private:
    Descriptor reader_;
    Descriptor writer_;
    std::array<iovec, PagesAtOnce> bytes_{};
    std::size_t count_ = 0;
};

// Asked of the system in one call where it has that. False also where it has not, or does not know.
bool IsKnownReadable(std::uintptr_t first, std::uintptr_t last, std::uintptr_t page) {
#ifdef MADV_POPULATE_READ
    const std::uintptr_t start = first / page * page;
    return ::madvise(reinterpret_cast<void*>(start), last - start + 1, MADV_POPULATE_READ) == 0;
#else
    (void)first, (void)last, (void)page;
    return false;
#endif
}

} // namespace

bool IsReadable(const void* from, std::size_t size) {
    const auto first = reinterpret_cast<std::uintptr_t>(from);
    if (size == 0)
        return true;
    if (size - 1 > UINTPTR_MAX - first)
        return false;
    const auto page = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
    const std::uintptr_t last = first + (size - 1);
    if (IsKnownReadable(first, last, page))
        return true;
    Probe probe;
    if (!probe)
        return true;
    // The first byte, and then the first one of each further page.
    for (std::uintptr_t at = first; at <= last; at = (at / page + 1) * page) {
        probe.Add(at);
        if (probe.IsFull() && !probe.Passes())
            return false;
        if (last - at < page - at % page)
            break;
    }
    return probe.Passes();
}

} // namespace gfc::platform
