#include "services/windows/MachinePage.h"

#include "services/WesternPage.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace gfc::services {
namespace {

// 0 where the page has no character at the byte.
char32_t CharacterAt(unsigned page, unsigned byte) {
    const auto text = static_cast<char>(byte);
    wchar_t character = 0;
    return ::MultiByteToWideChar(page, 0, &text, 1, &character, 1) == 1 ? character : char32_t{0};
}

char32_t SmallOf(char32_t code) {
    const auto capital = static_cast<wchar_t>(code);
    wchar_t letter = 0;
    const int length =
        ::LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_LOWERCASE, &capital, 1, &letter, 1, nullptr, nullptr, 0);
    return length == 1 ? letter : code;
}

} // namespace

CodePage PageOfNumber(unsigned number) {
    CPINFO info{};
    if (!::GetCPInfo(number, &info) || info.MaxCharSize != 1)
        return MakeWesternPage();
    CodePage::UpperHalf characters{};
    for (unsigned byte = 0x80; byte < 0x100; ++byte) {
        const char32_t code = CharacterAt(number, byte);
        characters.at(byte - 0x80) = {code, SmallOf(code)};
    }
    return CodePage(characters);
}

const CodePage MachinePage = PageOfNumber(::GetACP());

} // namespace gfc::services
