#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

// The single-byte code page (Windows-1252) of the files and of the add-on library. In memory all text is
// UTF-8; the two meet here and nowhere else. All 256 bytes have a character: the five that the page leaves
// undefined (81 8D 8F 90 9D) stand for U+0081 and so on, so that every file comes back byte for byte.
namespace gfc::services {

// True where every byte stands for itself in both codes.
[[nodiscard]] bool IsPlain(std::string_view text);

// Never fails: each byte becomes one character.
[[nodiscard]] std::string FromCodePage(std::string_view bytes);

// The same into a text that is there, whose memory serves on.
void AssignFromCodePage(std::string& utf8, std::string_view bytes);

// Nothing if the text holds a character that the page lacks, or is no valid UTF-8.
[[nodiscard]] std::optional<std::string> ToCodePage(std::string_view utf8);

[[nodiscard]] bool CodePageHolds(std::string_view utf8);

namespace detail {

constexpr std::array<unsigned char, 256> MakeCodePageFold() {
    std::array<unsigned char, 256> fold{};
    for (unsigned byte = 0; byte < 256; ++byte) {
        const bool latin = byte >= 'A' && byte <= 'Z';
        const bool accented = byte >= 0xC0 && byte <= 0xDE && byte != 0xD7; // D7 is the multiplication sign
        fold[byte] = static_cast<unsigned char>(latin || accented ? byte + 0x20 : byte);
    }
    // The four letters whose small form is not 20 further on in the page's own block.
    fold[0x8A] = 0x9A;
    fold[0x8C] = 0x9C;
    fold[0x8E] = 0x9E;
    fold[0x9F] = 0xFF;
    return fold;
}

// Here and not behind a call, since whoever folds does so for each byte of a file.
inline constexpr std::array<unsigned char, 256> CodePageFold = MakeCodePageFold();

} // namespace detail

// The lower-case form of the byte, letters with accents included; all others stand for themselves.
[[nodiscard]] inline unsigned char FoldByte(char byte) {
    return detail::CodePageFold[static_cast<unsigned char>(byte)];
}

namespace detail {

[[nodiscard]] bool EqualFolded(std::string_view left, std::string_view right);

} // namespace detail

// Compares two texts of code page bytes without regard to case. Most that are equal are so byte for byte.
[[nodiscard]] inline bool EqualBytesNoCase(std::string_view left, std::string_view right) {
    return left == right || detail::EqualFolded(left, right);
}

} // namespace gfc::services
