#include "workshop/text/Paths.h"

#include <algorithm>

namespace gfc::workshop {

std::string PathText(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::filesystem::path PathOf(std::string_view text) {
    return std::u8string(text.begin(), text.end());
}

bool IsFileName(std::string_view text) {
    constexpr std::string_view Forbidden = "/\\:*?\"<>|";
    const bool bad = std::any_of(text.begin(), text.end(), [&](char c) {
        return static_cast<unsigned char>(c) < ' ' || Forbidden.find(c) != std::string_view::npos;
    });
    return !bad && !text.empty() && text.front() != ' ' && text.back() != ' ' && text.back() != '.';
}

} // namespace gfc::workshop
