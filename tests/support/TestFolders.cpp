#include "support/TestFolders.h"

#include <fstream>
#include <iterator>

namespace gfc::test {

std::filesystem::path GoldenFolder() {
    return std::filesystem::path(GFC_TEST_DATA) / "golden";
}

std::filesystem::path SourceFolder() {
    return std::filesystem::path(GFC_TEST_DATA).parent_path() / "src";
}

std::filesystem::path BinFolder() {
    // With its drive where there are drives.
    return std::filesystem::absolute(GFC_BIN);
}

std::string Golden(const std::string& name) {
    std::ifstream file(GoldenFolder() / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace gfc::test
