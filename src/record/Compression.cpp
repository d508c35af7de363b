#include "record/Compression.h"

#include "record/Failure.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <zlib.h>

namespace gfc::record {
namespace {

constexpr char behindLength = ':';
constexpr const char* noMemory = "There is not enough memory for an entry of the history.";
// What no configuration comes near to, and how many bytes one byte of a stream stands for at most (RFC 1951:
// 258 in two bits), so that a length that was tampered with takes no memory.
constexpr std::size_t longest = 256U << 20U;
constexpr std::size_t mostForOne = 1032;

const Bytef* Bytes(std::string_view text) {
    return reinterpret_cast<const Bytef*>(text.data());
}

// What a piece repeats of base must lie within 32 KiB before it. Where nothing was moved that is a piece and
// a reach away, and where it was, by no more than the reach, it is found, too.
constexpr std::size_t piece = 8U << 10U;
constexpr std::size_t reach = 11U << 10U;
constexpr int memoryLevel = 8; // zlib's own
constexpr int rawStream = -15; // without head and sum, and with the largest window

std::string_view Around(std::string_view base, std::size_t at) {
    const std::size_t from = at > reach ? at - reach : 0;
    return from >= base.size() ? std::string_view() : base.substr(from, at + piece + reach - from);
}

// A stream of zlib and its end.
class Stream {
public:
    enum class Way { In, Out };
    explicit Stream(Way way) : way_(way) {
        ok_ = (way == Way::In ? deflateInit2(&stream_, Z_BEST_COMPRESSION, Z_DEFLATED, rawStream, memoryLevel,
                                             Z_DEFAULT_STRATEGY)
                              : inflateInit2(&stream_, rawStream)) == Z_OK;
    }
    ~Stream() { way_ == Way::In ? deflateEnd(&stream_) : inflateEnd(&stream_); }
    Stream(const Stream&) = delete;
    Stream& operator=(const Stream&) = delete;

    // All that from holds into to, or as much as there is room for; nothing where it goes wrong. What was
    // read of from is taken off it.
    std::optional<std::size_t> Run(std::string_view known, std::string_view& from, std::string& to) {
        if (!ok_ || !(known.empty() || Know(known)))
            return std::nullopt;
        stream_.next_in = const_cast<Bytef*>(Bytes(from)); // zlib reads it alone
        stream_.avail_in = static_cast<uInt>(from.size());
        stream_.next_out = reinterpret_cast<Bytef*>(to.data());
        stream_.avail_out = static_cast<uInt>(to.size());
        if ((way_ == Way::In ? deflate(&stream_, Z_FINISH) : inflate(&stream_, Z_FINISH)) != Z_STREAM_END)
            return std::nullopt;
        from.remove_prefix(from.size() - stream_.avail_in);
        return to.size() - stream_.avail_out;
    }

private:
    bool Know(std::string_view known) {
        const auto length = static_cast<uInt>(known.size());
        return (way_ == Way::In ? deflateSetDictionary(&stream_, Bytes(known), length)
                                : inflateSetDictionary(&stream_, Bytes(known), length)) == Z_OK;
    }

    Way way_;
    z_stream stream_{};
    bool ok_;
};

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
    // The bound says how much it takes at most, so that only memory can be short.
    if (compress2(reinterpret_cast<Bytef*>(kept.data() + head), &size, Bytes(bytes),
                  static_cast<uLong>(bytes.size()), Z_BEST_SPEED) != Z_OK)
        throw Failure(noMemory);
    kept.resize(head + size);
    return kept;
}

std::optional<std::string> Expand(std::string_view kept) {
    const auto length = TakeLength(kept);
    if (!length || *length / mostForOne > kept.size())
        return std::nullopt;
    std::string bytes(*length, '\0');
    auto size = static_cast<uLongf>(*length);
    auto used = static_cast<uLong>(kept.size());
    if (uncompress2(reinterpret_cast<Bytef*>(bytes.data()), &size, Bytes(kept), &used) != Z_OK ||
        size != *length || used != kept.size())
        return std::nullopt;
    return bytes;
}

std::string CompressLike(std::string_view bytes, std::string_view base) {
    std::string kept = std::to_string(bytes.size()) + behindLength;
    for (std::size_t at = 0; at < bytes.size(); at += piece) {
        std::string_view from = bytes.substr(at, piece);
        std::string room(2 * piece, '\0'); // more than any piece takes
        const auto size = Stream(Stream::Way::In).Run(Around(base, at), from, room);
        if (!size)
            throw Failure(noMemory);
        kept.append(room, 0, *size);
    }
    return kept;
}

std::optional<std::string> ExpandLike(std::string_view kept, std::string_view base) {
    const auto length = TakeLength(kept);
    if (!length)
        return std::nullopt;
    std::string bytes;
    while (bytes.size() < *length) {
        std::string room(std::min(piece, *length - bytes.size()), '\0');
        const auto size = Stream(Stream::Way::Out).Run(Around(base, bytes.size()), kept, room);
        if (!size || *size != room.size())
            return std::nullopt;
        bytes += room;
    }
    return kept.empty() ? std::optional(std::move(bytes)) : std::nullopt;
}

} // namespace gfc::record
