#pragma once

#include <string>
#include <string_view>

// How numbers are typed and pasted by people whose keyboard or whose tables write them otherwise than the
// file does. What is entered is never another number than the one that was meant: where that is not sure,
// nothing is taken, and the reason is said.
namespace gfc::services {

// One of the two is empty; both are for a key about which there is nothing to say.
struct TypedKey {
    char32_t Instead = 0; // the key that is taken in its place; 0 for none
    std::string Why;      // in words for people
};

// For a key that KeyAllowed refuses. The decimal comma becomes the point, unless besides, what else stands in
// the field, has one already.
[[nodiscard]] TypedKey InsteadOf(char32_t key, std::string_view besides);

struct PastedNumber {
    std::string Text; // the number as the file has it; empty where it was refused
    std::string Why;  // in words for people; empty where it was taken
};

// A text that is pasted as a whole: blanks around it are left out, and one comma becomes the point. Refused
// are thousands marks, a comma that may be one ("14,696"), a second point, and all else that is no number of
// the fields, which know neither signs nor powers. An empty text gives two empty ones.
[[nodiscard]] PastedNumber NumberPasted(std::string_view text, std::string_view besides);

} // namespace gfc::services
