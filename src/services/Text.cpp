#include "services/Text.h"

#include "services/CodePage.h"
#include "services/Utf8.h"

namespace gfc::services {
namespace {

bool IsPlainByte(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

char FoldPlain(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 0x20) : byte;
}

bool SameNoCase(const Utf8Character& a, const Utf8Character& b) {
    return a.Valid == b.Valid &&
           (a.Valid ? MachinePage.Fold(a.Code) == MachinePage.Fold(b.Code) : a.Code == b.Code);
}

} // namespace

bool EqualNoCase(std::string_view left, std::string_view right) {
    while (!left.empty() && !right.empty()) {
        // Nearly all letters are plain, and names are compared by the hundred thousand.
        if (IsPlainByte(left.front()) && IsPlainByte(right.front())) {
            if (FoldPlain(left.front()) != FoldPlain(right.front()))
                return false;
            left.remove_prefix(1);
            right.remove_prefix(1);
            continue;
        }
        const Utf8Character a = FirstCharacter(left);
        const Utf8Character b = FirstCharacter(right);
        if (!SameNoCase(a, b))
            return false;
        left.remove_prefix(a.Length);
        right.remove_prefix(b.Length);
    }
    return left.empty() && right.empty();
}

std::string FoldCase(std::string_view utf8) {
    std::string folded;
    folded.reserve(utf8.size());
    while (!utf8.empty()) {
        if (IsPlainByte(utf8.front())) {
            folded += FoldPlain(utf8.front());
            utf8.remove_prefix(1);
            continue;
        }
        const Utf8Character character = FirstCharacter(utf8);
        if (character.Valid)
            AppendUtf8(folded, MachinePage.Fold(character.Code));
        else
            folded += utf8.front();
        utf8.remove_prefix(character.Length);
    }
    return folded;
}

} // namespace gfc::services
