#include "services/CodePage.h"

#include "services/Utf8.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace gfc::services {
namespace {

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

std::string FromCodePage(std::string_view bytes, const CodePage& page) {
    std::string utf8;
    AssignFromCodePage(utf8, bytes, page);
    return utf8;
}

void AssignFromCodePage(std::string& utf8, std::string_view bytes, const CodePage& page) {
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
            AppendUtf8(utf8, page.CharacterOf(byte));
    }
}

std::optional<std::string> ToCodePage(std::string_view utf8, const CodePage& page) {
    if (IsPlain(utf8))
        return std::string(utf8);
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty()) {
        const Utf8Character character = FirstCharacter(utf8);
        const auto byte = character.Valid ? page.ByteOf(character.Code) : std::nullopt;
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
