#include "workshop/text/Letters.h"

#include <algorithm>

namespace gfc::workshop {

namespace {

char Shifted(char c, char first, char last, int by) {
    return c >= first && c <= last ? static_cast<char>(c + by) : c;
}

char Small(char c) {
    return Shifted(c, 'A', 'Z', 'a' - 'A');
}

} // namespace

std::string Folded(std::string_view text) {
    std::string folded(text);
    std::transform(folded.begin(), folded.end(), folded.begin(), Small);
    return folded;
}

bool SameName(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char left, char right) { return Small(left) == Small(right); });
}

std::string Upper(std::string_view text) {
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](char c) { return Shifted(c, 'a', 'z', 'A' - 'a'); });
    return upper;
}

} // namespace gfc::workshop
