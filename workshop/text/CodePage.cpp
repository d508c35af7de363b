#include "workshop/text/CodePage.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace gfc::workshop {

namespace {

constexpr char32_t Malformed = 0xFFFFFFFF;

// Bytes 80 to 9F; the five that the code page leaves open stand for the control character of the same number.
// clang-format off
constexpr std::array<char16_t, 32> UpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

struct LeadByte {
    std::uint8_t Mask;
    std::uint8_t Value;
    int Followers;
    char32_t Least; // a smaller number in this many bytes is an overlong form
};
constexpr std::array<LeadByte, 4> LeadBytes = {{
    {0x80, 0x00, 0, 0},
    {0xE0, 0xC0, 1, 0x80},
    {0xF0, 0xE0, 2, 0x800},
    {0xF8, 0xF0, 3, 0x10000},
}};
// clang-format on

bool Follows(std::string_view text, std::size_t at) {
    return at < text.size() && (static_cast<std::uint8_t>(text[at]) & 0xC0U) == 0x80U;
}

bool IsCharacter(char32_t code, char32_t least) {
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    return code >= least && code <= 0x10FFFF && !surrogate;
}

char32_t ReadFollowers(std::string_view text, std::size_t& at, const LeadByte& lead, std::uint8_t first) {
    char32_t code = first & static_cast<std::uint8_t>(~lead.Mask);
    for (int left = lead.Followers; left > 0; --left) {
        if (!Follows(text, at)) {
            return Malformed;
        }
        code = (code << 6U) | (static_cast<std::uint8_t>(text[at++]) & 0x3FU);
    }
    return IsCharacter(code, lead.Least) ? code : Malformed;
}

// Takes at least one byte, so that a walk over any bytes ends.
char32_t TakeCharacter(std::string_view text, std::size_t& at) {
    const auto first = static_cast<std::uint8_t>(text[at++]);
    for (const LeadByte& lead : LeadBytes) {
        if ((first & lead.Mask) == lead.Value) {
            return ReadFollowers(text, at, lead, first);
        }
    }
    return Malformed;
}

std::optional<char> ByteOf(char32_t code) {
    if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) {
        return static_cast<char>(code);
    }
    const auto found = std::find(UpperControls.begin(), UpperControls.end(), code);
    if (found == UpperControls.end()) {
        return std::nullopt;
    }
    return static_cast<char>(0x80 + (found - UpperControls.begin()));
}

char32_t CharacterOf(std::uint8_t byte) {
    return byte >= 0x80 && byte < 0xA0 ? UpperControls[byte - 0x80U] : byte;
}

void AppendUtf8(std::string& text, char32_t code) {
    if (code < 0x80) {
        text += static_cast<char>(code);
    } else if (code < 0x800) {
        text += static_cast<char>(0xC0U | (code >> 6U));
        text += static_cast<char>(0x80U | (code & 0x3FU));
    } else { // nothing in the code page lies above FFFF
        text += static_cast<char>(0xE0U | (code >> 12U));
        text += static_cast<char>(0x80U | ((code >> 6U) & 0x3FU));
        text += static_cast<char>(0x80U | (code & 0x3FU));
    }
}

// Nearly all texts are plain to their end, and a table has millions of them.
std::size_t EndOfPlain(std::string_view text) {
    const auto special =
        std::find_if(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
    return static_cast<std::size_t>(special - text.begin());
}

} // namespace

bool FitsCodePage(std::string_view utf8) {
    for (std::size_t at = EndOfPlain(utf8); at < utf8.size();) {
        if (!ByteOf(TakeCharacter(utf8, at))) {
            return false;
        }
    }
    return true;
}

std::size_t FirstByteNotUtf8(std::string_view bytes) {
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t first = at;
        if (TakeCharacter(bytes, at) == Malformed) {
            return first;
        }
    }
    return std::string_view::npos;
}

std::size_t CharacterCount(std::string_view utf8) {
    std::size_t count = EndOfPlain(utf8);
    for (std::size_t at = count; at < utf8.size(); ++count) {
        TakeCharacter(utf8, at);
    }
    return count;
}

std::string ToCodePage(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        bytes += ByteOf(TakeCharacter(utf8, at)).value_or('?');
    }
    return bytes;
}

void FillField(std::span<char> field, std::string_view utf8) {
    auto out = field.begin();
    for (std::size_t at = 0; at < utf8.size() && out != field.end(); ++out) {
        *out = ByteOf(TakeCharacter(utf8, at)).value_or('?');
    }
    std::fill(out, field.end(), '\0');
}

std::string FromCodePage(std::string_view bytes) {
    std::string utf8;
    utf8.reserve(bytes.size());
    for (const char byte : bytes) {
        AppendUtf8(utf8, CharacterOf(static_cast<std::uint8_t>(byte)));
    }
    return utf8;
}

std::string FromField(std::span<const char> field) {
    const auto end = std::find(field.begin(), field.end(), '\0');
    return FromCodePage({field.data(), static_cast<std::size_t>(end - field.begin())});
}

} // namespace gfc::workshop
