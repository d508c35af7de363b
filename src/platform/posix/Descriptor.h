#pragma once

#include <string_view>

namespace gfc::platform::posix {

// A file descriptor that is closed with its owner.
class Descriptor {
public:
    explicit Descriptor(int fd = -1) : fd_(fd) {}
    Descriptor(Descriptor&& other) noexcept;
    Descriptor& operator=(Descriptor&& other) noexcept;
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { (void)Close(); }

    explicit operator bool() const { return fd_ >= 0; }
    [[nodiscard]] int Get() const { return fd_; }
    // False if the close reported a failure, such as a write that came too late to tell of.
    [[nodiscard]] bool Close();

private:
    int fd_;
};

// open(2), begun again when a signal breaks it; always closed on exec.
[[nodiscard]] Descriptor Open(const char* path, int flags, unsigned mode = 0);

// Writes all bytes, in as many pieces as the system takes; false on the first failure.
[[nodiscard]] bool WriteAll(int fd, std::string_view bytes);

// fsync(2), begun again when a signal breaks it.
[[nodiscard]] bool Flush(int fd);

} // namespace gfc::platform::posix
