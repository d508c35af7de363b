#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// The single-byte code page of the files and of the add-on library. In memory all text is UTF-8; the two meet
// here and nowhere else. Each of the 256 bytes has a character of its own, so that every file comes back byte
// for byte, whatever it was written in.
namespace gfc::services {

// A code page whose lower half is ASCII.
class CodePage {
public:
    // What one of its bytes 80 to FF stands for, and the small letter where that is a capital; else the same
    // twice.
    struct Character {
        char32_t Code = 0;
        char32_t Small = 0;
    };
    using UpperHalf = std::array<Character, 128>;

    // A byte whose character is missing (0), plain or that of a byte before it gets one for private use. A
    // capital whose small letter has no byte of the upper half stands for itself.
    constexpr explicit CodePage(const UpperHalf& characters) {
        for (unsigned byte = 0; byte < 0x80; ++byte)
            fold_[byte] = static_cast<unsigned char>(byte >= 'A' && byte <= 'Z' ? byte + 0x20 : byte);
        for (unsigned byte = 0x80; byte < 0x100; ++byte) {
            const char32_t code = characters[byte - 0x80].Code;
            codes_[byte - 0x80] = code < 0x80 || PlaceOf(code) < byte - 0x80 ? 0xF700 + byte : code;
        }
        for (unsigned byte = 0x80; byte < 0x100; ++byte) {
            const std::size_t small = PlaceOf(characters[byte - 0x80].Small);
            fold_[byte] = static_cast<unsigned char>(small < codes_.size() ? 0x80 + small : byte);
        }
    }

    [[nodiscard]] constexpr char32_t CharacterOf(char byte) const {
        const auto number = static_cast<unsigned char>(byte);
        return number < 0x80 ? number : codes_[number - 0x80U];
    }
    [[nodiscard]] constexpr std::optional<char> ByteOf(char32_t code) const {
        if (code < 0x80)
            return static_cast<char>(code);
        const std::size_t place = PlaceOf(code);
        return place < codes_.size() ? std::optional(static_cast<char>(0x80 + place)) : std::nullopt;
    }

    // The small form of a letter, accented ones included; all else stands for itself, as does a character
    // that the page lacks.
    [[nodiscard]] constexpr unsigned char Fold(char byte) const {
        return fold_[static_cast<unsigned char>(byte)];
    }
    [[nodiscard]] constexpr char32_t Fold(char32_t code) const {
        const auto byte = ByteOf(code);
        return byte ? CharacterOf(static_cast<char>(Fold(*byte))) : code;
    }

private:
    // Most have the number of their byte in the page of Western Europe, which is the usual one.
    [[nodiscard]] constexpr std::size_t PlaceOf(char32_t code) const {
        if (code >= 0x80 && code < 0x100 && codes_[code - 0x80] == code)
            return code - 0x80;
        std::size_t place = 0;
        while (place < codes_.size() && codes_[place] != code)
            ++place;
        return place;
    }

    std::array<char32_t, 128> codes_{}; // of bytes 80 to FF
    std::array<unsigned char, 256> fold_{};
};

// That of this machine, where it has a single-byte one, and Western Europe's else. Settled before main, and
// not to be used by what is settled there as well.
extern const CodePage MachinePage;

// True where every byte stands for itself in both codes.
[[nodiscard]] bool IsPlain(std::string_view text);

// Never fails: each byte becomes one character.
[[nodiscard]] std::string FromCodePage(std::string_view bytes, const CodePage& page = MachinePage);

// The same into a text that is there, whose memory serves on.
void AssignFromCodePage(std::string& utf8, std::string_view bytes, const CodePage& page = MachinePage);

// Nothing if the text holds a character that the page lacks, or is no valid UTF-8.
[[nodiscard]] std::optional<std::string> ToCodePage(std::string_view utf8,
                                                    const CodePage& page = MachinePage);

[[nodiscard]] bool CodePageHolds(std::string_view utf8);

// The byte's small form in the page of the machine.
[[nodiscard]] inline unsigned char FoldByte(char byte) {
    return MachinePage.Fold(byte);
}

namespace detail {

[[nodiscard]] bool EqualFolded(std::string_view left, std::string_view right);

} // namespace detail

// Compares two texts of code page bytes without regard to case. Most that are equal are so byte for byte.
[[nodiscard]] inline bool EqualBytesNoCase(std::string_view left, std::string_view right) {
    return left == right || detail::EqualFolded(left, right);
}

} // namespace gfc::services
