#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <system_error>

namespace gfc::test {

// A folder of one test's own, gone with it.
class TempFolder {
public:
    TempFolder() {
        std::random_device random;
        do
            folder_ = std::filesystem::temp_directory_path() /
                      ("gfc-test-" + std::to_string(random()) + std::to_string(random()));
        while (!std::filesystem::create_directory(folder_));
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    [[nodiscard]] std::string Path() const { return folder_.string(); }
    [[nodiscard]] std::string Path(const std::string& name) const { return (folder_ / name).string(); }

    std::string Put(const std::string& name, const std::string& bytes) const {
        std::ofstream(folder_ / name, std::ios::binary) << bytes;
        return Path(name);
    }

    // The bytes of a file, empty if it is missing.
    [[nodiscard]] std::string Get(const std::string& name) const {
        std::ostringstream bytes;
        bytes << std::ifstream(folder_ / name, std::ios::binary).rdbuf();
        return bytes.str();
    }

    [[nodiscard]] std::size_t Count() const {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder_), {}));
    }

private:
    std::filesystem::path folder_;
};

} // namespace gfc::test
