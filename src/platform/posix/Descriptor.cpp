#include "platform/posix/Descriptor.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace gfc::platform::posix {

Descriptor::Descriptor(Descriptor&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    if (this != &other) {
        (void)Close();
        fd_ = std::exchange(other.fd_, -1);
    }
    return *this;
}

bool Descriptor::Close() {
    const int fd = std::exchange(fd_, -1);
    // After EINTR the descriptor is gone all the same; a second close could hit another file.
    return fd < 0 || ::close(fd) == 0 || errno == EINTR;
}

Descriptor Open(const char* path, int flags, unsigned mode) {
    int fd = -1;
    do
        fd = ::open(path, flags | O_CLOEXEC, static_cast<mode_t>(mode));
    while (fd < 0 && errno == EINTR);
    return Descriptor(fd);
}

bool WriteAll(int fd, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(fd, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written == 0)
            errno = ENOSPC; // no call should end so, and none that does has said why
        if (written <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool Flush(int fd) {
    int result = -1;
    do
        result = ::fsync(fd);
    while (result < 0 && errno == EINTR);
    return result == 0;
}

} // namespace gfc::platform::posix
