#include "workshop/store/WholeFile.h"

#include "workshop/store/Beside.h"
#include "workshop/store/Failure.h"
#include "workshop/text/Paths.h"

#include <fstream>
#include <iterator>
#include <system_error>

namespace gfc::workshop {

namespace fs = std::filesystem;

namespace {

bool WriteTo(const fs::path& file, std::string_view bytes) {
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out << bytes;
    out.close();
    return static_cast<bool>(out);
}

} // namespace

void MakeFolder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) {
        throw Failure(PathText(folder) + ": the folder cannot be made: " + error.message() + ".");
    }
}

std::string ReadWhole(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in || fs::is_directory(file)) { // a folder opens like a file and fails later
        throw Failure(PathText(file) + ": cannot be read; check the path and the access rights.");
    }
    return {std::istreambuf_iterator<char>(in), {}};
}

void ReplaceWhole(const fs::path& file, std::string_view bytes) {
    Beside beside(file);
    if (!WriteTo(beside.Path(), bytes)) {
        throw Failure(PathText(file) +
                      ": cannot be written; check the path, the access rights and the disk.");
    }
    beside.MoveIntoPlace();
}

} // namespace gfc::workshop
