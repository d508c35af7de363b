#include "record/KeptFile.h"

#include "record/Compression.h"

#include <charconv>

namespace gfc::record {

namespace {

// No length begins so.
constexpr char likeAnother = '~';
constexpr char behindBase = ':';

} // namespace

std::int64_t BaseOf(std::string_view content) {
    std::int64_t base = 0;
    if (content.empty() || content.front() != likeAnother)
        return 0;
    (void)std::from_chars(content.data() + 1, content.data() + content.size(), base);
    return base;
}

std::string KeepWhole(std::string_view file) {
    return Compress(file);
}

std::string KeepLike(std::string_view file, std::int64_t base, std::string_view baseFile) {
    return likeAnother + std::to_string(base) + behindBase + CompressLike(file, baseFile);
}

std::optional<std::string> FileIn(std::string_view content, std::string_view base) {
    if (BaseOf(content) == 0)
        return Expand(content);
    const auto behind = content.find(behindBase);
    return behind == std::string_view::npos ? std::nullopt : ExpandLike(content.substr(behind + 1), base);
}

} // namespace gfc::record
