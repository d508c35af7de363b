// The bytes of a table as UTF-8, whatever they were written in.
#pragma once

#include <string>
#include <string_view>

namespace gfc::workshop {

struct DecodedText {
    std::string Utf8;
    std::string Encoding; ///< the name of what the bytes were taken for
    std::string Note;     ///< where that was a guess which its reader should know of; else empty
};

/// UTF-8 and UTF-16 by their marks, UTF-16 without one by its zeros, else UTF-8 where all of it is, else
/// Windows-1252. Throws Failure, led by `file`, for UTF-16 that is broken.
[[nodiscard]] DecodedText Decode(std::string bytes, std::string_view file);

/// By the name of an encoding, such as "ISO-8859-15" or "CP850", as the system knows it. Throws Failure when
/// it does not, or when the bytes are not in it.
[[nodiscard]] DecodedText DecodeAs(std::string_view bytes, const std::string& encoding,
                                   std::string_view file);

} // namespace gfc::workshop
