#pragma once

#include "config/Vocabulary.h"
#include "forms/program/Session.h"

#include <cctype>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>

// What the instances of parametrised tests are called: after what they are about, and not by a number.
namespace gfc::test {

// The text with all between its letters and digits made an underscore, as GoogleTest wants it; "empty" for
// none.
inline std::string TestName(std::string_view text) {
    std::string name;
    for (const char c : text)
        if (std::isalnum(static_cast<unsigned char>(c)) != 0)
            name += c;
        else if (!name.empty() && name.back() != '_')
            name += '_';
    return name.empty() ? "empty" : name;
}

// Of parameters that are texts.
inline const auto byText = [](const auto& row) { return TestName(row.param); };

// By what the member, or a function of the parameter, gives as text.
template <class Text>
auto By(Text text) {
    return [text](const auto& row) { return TestName(std::invoke(text, row.param)); };
}

// "run_2" for 2.
inline auto ByNumber(std::string_view kind) {
    return [kind](const auto& row) { return TestName(kind) + "_" + std::to_string(row.param); };
}

// By what is stored for an entry of one of the lists of choices, as config::UnitSystems.
template <class Choices>
std::string_view StoredOf(const Choices& choices, int entry) {
    return choices.at(static_cast<std::size_t>(entry)).Stored;
}

} // namespace gfc::test

// Where the kinds stand that GoogleTest would list byte by byte.
namespace gfc::forms {
inline void PrintTo(EditMode mode, std::ostream* out) {
    *out << "edit mode " << static_cast<int>(mode);
}
} // namespace gfc::forms

namespace gfc::binding {
inline void PrintTo(BindingStage stage, std::ostream* out) {
    *out << "stage " << static_cast<int>(stage);
}
} // namespace gfc::binding
