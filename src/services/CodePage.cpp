#include "services/CodePage.h"

#include "services/Utf8.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace gfc::services {
namespace {

// clang-format off
// The characters of bytes 80 to 9F; all other bytes have the number of their character.
constexpr std::array<char32_t, 32> UpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
// clang-format on

char32_t CharacterOf(unsigned char byte) {
    return byte >= 0x80 && byte <= 0x9F ? UpperControls[byte - 0x80u] : char32_t{byte};
}

std::optional<char> ByteOf(char32_t code) {
    if (code < 0x80 || (code >= 0xA0 && code <= 0xFF))
        return static_cast<char>(static_cast<unsigned char>(code));
    const auto found = std::find(UpperControls.begin(), UpperControls.end(), code);
    if (found == UpperControls.end())
        return std::nullopt;
    return static_cast<char>(static_cast<unsigned char>(0x80 + (found - UpperControls.begin())));
}

bool IsPlainByte(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

} // namespace

// Eight bytes at a time: every text that is read or written passes here.
bool IsPlain(std::string_view text) {
    std::uint64_t bits = 0;
    for (; text.size() >= sizeof bits; text.remove_prefix(sizeof bits)) {
        std::uint64_t eight = 0;
        std::memcpy(&eight, text.data(), sizeof eight);
        bits |= eight;
    }
    for (const char byte : text)
        bits |= static_cast<unsigned char>(byte);
    return (bits & 0x8080808080808080U) == 0;
}

std::string FromCodePage(std::string_view bytes) {
    std::string utf8;
    AssignFromCodePage(utf8, bytes);
    return utf8;
}

void AssignFromCodePage(std::string& utf8, std::string_view bytes) {
    if (IsPlain(bytes)) {
        utf8.assign(bytes);
        return;
    }
    utf8.clear();
    utf8.reserve(bytes.size());
    for (const char byte : bytes) {
        if (IsPlainByte(byte))
            utf8 += byte;
        else
            AppendUtf8(utf8, CharacterOf(static_cast<unsigned char>(byte)));
    }
}

std::optional<std::string> ToCodePage(std::string_view utf8) {
    if (IsPlain(utf8))
        return std::string(utf8);
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty()) {
        const Utf8Character character = FirstCharacter(utf8);
        const auto byte = character.Valid ? ByteOf(character.Code) : std::nullopt;
        if (!byte)
            return std::nullopt;
        bytes += *byte;
        utf8.remove_prefix(character.Length);
    }
    return bytes;
}

bool CodePageHolds(std::string_view utf8) {
    return ToCodePage(utf8).has_value();
}

bool detail::EqualFolded(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return a == b || FoldByte(a) == FoldByte(b); });
}

} // namespace gfc::services
