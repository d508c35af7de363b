#include "platform/Folder.h"

#include <exception>
#include <filesystem>
#include <system_error>

namespace gfc::platform {
namespace {

namespace fs = std::filesystem;

std::string Utf8(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::vector<std::string> NamesIn(fs::directory_iterator entry) {
    std::vector<std::string> names;
    for (const auto end = fs::directory_iterator(); entry != end;) {
        std::error_code error;
        if (entry->is_regular_file(error) && !error)
            names.push_back(Utf8(entry->path().filename()));
        entry.increment(error);
        if (error)
            break;
    }
    return names;
}

} // namespace

std::optional<std::vector<std::string>> FileNamesIn(const std::string& folder) {
    try {
        std::error_code error;
        const fs::path path(std::u8string(folder.begin(), folder.end()));
        const fs::directory_iterator entry(path.empty() ? fs::path(".") : path, error);
        return error ? std::nullopt : std::optional(NamesIn(entry));
    } catch (const std::exception&) {
        return std::nullopt; // a name that is no text
    }
}

std::optional<std::uint64_t> FileSize(const std::string& path) {
    std::error_code error;
    const auto size = fs::file_size(path, error);
    return error ? std::nullopt : std::optional<std::uint64_t>(size);
}

} // namespace gfc::platform
