#include "Floors.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace gfc::bench {

namespace {

// A floor that does not do its work is no floor.
void Must(bool done) {
    if (!done) {
        std::perror("floor");
        std::abort();
    }
}

void FlushFolderOf(const std::string& path) {
    const int folder = ::open(path.substr(0, path.rfind('/')).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    Must(folder >= 0 && ::fsync(folder) == 0);
    ::close(folder);
}

} // namespace

std::string PlainRead(const std::string& path) {
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat state {};
    Must(file >= 0 && ::fstat(file, &state) == 0);
    std::string bytes(static_cast<std::size_t>(state.st_size), '\0');
    Must(::read(file, bytes.data(), bytes.size()) == state.st_size);
    ::close(file);
    return bytes;
}

std::string PlainScan(std::string_view bytes, std::string_view key) {
    std::string_view found;
    for (std::size_t begin = 0; begin < bytes.size();) {
        const std::size_t end = std::min(bytes.find('\n', begin), bytes.size());
        if (const auto line = bytes.substr(begin, end - begin); line.starts_with(key))
            found = line.substr(key.size());
        begin = end + 1;
    }
    return std::string(found);
}

void PlainReplace(const std::string& path, std::string_view bytes) {
    const std::string beside = path + ".new";
    const int file = ::open(beside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    Must(file >= 0);
    Must(::write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()));
    Must(::fsync(file) == 0);
    ::close(file);
    Must(::rename(beside.c_str(), path.c_str()) == 0);
    FlushFolderOf(path);
}

} // namespace gfc::bench
