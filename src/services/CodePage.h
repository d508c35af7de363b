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

// Nothing if the text holds a character that the page lacks, or is no valid UTF-8.
[[nodiscard]] std::optional<std::string> ToCodePage(std::string_view utf8);

[[nodiscard]] bool CodePageHolds(std::string_view utf8);

// The lower-case form of each byte of the page, letters with accents included; all others stand for
// themselves.
[[nodiscard]] const std::array<unsigned char, 256>& CodePageFold();

[[nodiscard]] inline unsigned char FoldByte(char byte) {
    return CodePageFold()[static_cast<unsigned char>(byte)];
}

// Compares two texts of code page bytes without regard to case.
[[nodiscard]] bool EqualBytesNoCase(std::string_view left, std::string_view right);

} // namespace gfc::services
