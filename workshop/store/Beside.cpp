#include "workshop/store/Beside.h"

#include "workshop/store/Failure.h"
#include "workshop/text/Paths.h"

#include <system_error>

#ifndef _WIN32
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace gfc::workshop {

namespace {

namespace fs = std::filesystem;

#ifdef _WIN32
// The system writes a renamed file's bytes in good time, and gives no flush of a folder.
std::error_code Flush(const fs::path&) {
    return {};
}
#else
std::error_code Flush(const fs::path& path) {
    const int handle = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    // Some file systems know no flush of a folder; there is nothing more to be done there.
    const bool flushed = handle >= 0 && (::fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP);
    const std::error_code error =
        flushed ? std::error_code() : std::error_code(errno, std::generic_category());
    if (handle >= 0) {
        ::close(handle);
    }
    return error;
}
#endif

// A link stays, and what it names is replaced.
fs::path BehindLinks(const fs::path& place) {
    std::error_code error;
    const fs::path behind = fs::is_symlink(place, error) ? fs::weakly_canonical(place, error) : place;
    return error ? place : behind;
}

// Hidden, and by a name that nobody else gives: it is removed unasked.
fs::path HiddenBeside(const fs::path& place) {
    return place.parent_path() / PathOf("." + PathText(place.filename()) + ".io-workshop-new");
}

} // namespace

Beside::Beside(const fs::path& place) : place_(BehindLinks(place)), beside_(HiddenBeside(place_)) {
    Remove();
}

Beside::~Beside() {
    Remove();
}

void Beside::Remove() const {
    std::error_code ignored;
    // That of a project has a journal while it is made.
    for (const char* end : {"", "-journal"}) {
        fs::remove(fs::path(beside_) += end, ignored);
    }
}

void Beside::MoveIntoPlace() {
    std::error_code error;
    if (const fs::file_status there = fs::status(place_, error); fs::is_regular_file(there)) {
        fs::permissions(beside_, there.permissions(), error);
    }
    error = Flush(beside_);
    if (!error) {
        fs::rename(beside_, place_, error);
    }
    if (!error) {
        error = Flush(beside_.has_parent_path() ? beside_.parent_path() : fs::path("."));
    }
    if (error) {
        throw Failure(PathText(place_) + ": cannot be written: " + error.message() + ".");
    }
}

} // namespace gfc::workshop
