#include "services/Utf8.h"

namespace gfc::services {
namespace {

struct Lead {
    std::size_t Length;
    char32_t Bits;
    char32_t Smallest; // below it the form is overlong
};

Lead LeadOf(unsigned char byte) {
    if (byte < 0x80)
        return {1, byte, 0};
    if ((byte & 0xE0) == 0xC0)
        return {2, byte & 0x1Fu, 0x80};
    if ((byte & 0xF0) == 0xE0)
        return {3, byte & 0x0Fu, 0x800};
    if ((byte & 0xF8) == 0xF0)
        return {4, byte & 0x07u, 0x10000};
    return {0, 0, 0};
}

bool IsScalar(char32_t code) {
    return code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
}

} // namespace

Utf8Character FirstCharacter(std::string_view utf8) {
    const auto first = static_cast<unsigned char>(utf8.front());
    const Utf8Character broken{first, 1, false};
    const Lead lead = LeadOf(first);
    if (lead.Length == 0 || lead.Length > utf8.size())
        return broken;
    char32_t code = lead.Bits;
    for (std::size_t i = 1; i < lead.Length; ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        if ((byte & 0xC0) != 0x80)
            return broken;
        code = (code << 6) | (byte & 0x3Fu);
    }
    if (code < lead.Smallest || !IsScalar(code))
        return broken;
    return {code, lead.Length, true};
}

void AppendUtf8(std::string& utf8, char32_t code) {
    const auto tail = [&utf8, code](int shift) {
        utf8 += static_cast<char>(0x80 | ((code >> shift) & 0x3F));
    };
    if (code < 0x80) {
        utf8 += static_cast<char>(code);
    } else if (code < 0x800) {
        utf8 += static_cast<char>(0xC0 | (code >> 6));
        tail(0);
    } else if (code < 0x10000) {
        utf8 += static_cast<char>(0xE0 | (code >> 12));
        tail(6);
        tail(0);
    } else {
        utf8 += static_cast<char>(0xF0 | (code >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
}

} // namespace gfc::services
