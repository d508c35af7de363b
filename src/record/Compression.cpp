#include "record/Compression.h"

#include <charconv>
#include <cstddef>
#include <zlib.h>

namespace gfc::record {
namespace {

constexpr char behindLength = ':';
// What no configuration comes near to, so that a length that was tampered with takes no memory.
constexpr std::size_t longest = 256U << 20U;

const Bytef* Bytes(std::string_view text) {
    return reinterpret_cast<const Bytef*>(text.data());
}

std::optional<std::size_t> TakeLength(std::string_view& kept) {
    std::size_t length = 0;
    const auto [end, error] = std::from_chars(kept.data(), kept.data() + kept.size(), length);
    if (error != std::errc() || end == kept.data() + kept.size() || *end != behindLength || length > longest)
        return std::nullopt;
    kept.remove_prefix(static_cast<std::size_t>(end - kept.data()) + 1);
    return length;
}

} // namespace

std::string Compress(std::string_view bytes) {
    std::string kept = std::to_string(bytes.size()) + behindLength;
    const std::size_t head = kept.size();
    auto size = compressBound(static_cast<uLong>(bytes.size()));
    kept.resize(head + size);
    // It fails only where the room is short, and the bound says how much it takes at most.
    (void)compress(reinterpret_cast<Bytef*>(kept.data() + head), &size, Bytes(bytes),
                   static_cast<uLong>(bytes.size()));
    kept.resize(head + size);
    return kept;
}

std::optional<std::string> Expand(std::string_view kept) {
    const auto length = TakeLength(kept);
    if (!length)
        return std::nullopt;
    std::string bytes(*length, '\0');
    auto size = static_cast<uLongf>(*length);
    auto used = static_cast<uLong>(kept.size());
    if (uncompress2(reinterpret_cast<Bytef*>(bytes.data()), &size, Bytes(kept), &used) != Z_OK ||
        size != *length || used != kept.size())
        return std::nullopt;
    return bytes;
}

} // namespace gfc::record
