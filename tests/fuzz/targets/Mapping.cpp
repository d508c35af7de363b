#include "fuzz/Input.h"
#include "fuzz/Target.h"
#include "workshop/import/SavedMapping.h"
#include "workshop/import/TagTable.h"
#include "workshop/store/Failure.h"

#include <algorithm>
#include <array>
#include <optional>

// Any bytes as a kept mapping: refused in words, or taken, written and then the same. What a person can say
// of a table is kept and comes back, whatever its titles are.
namespace gfc::fuzz {

namespace {

using workshop::TableWishes;

constexpr std::size_t LongestText = 24;
constexpr std::array<std::string_view, 8> Ours = {"Station", "Module", "Module Type", "Tag",
                                                  "Class",   "-",      "Register",    "Description"};

// Nothing if they are refused, which says why.
std::optional<TableWishes> Taken(const std::string& lines) {
    try {
        return workshop::WishesFrom(lines, "kept.mapping");
    } catch (const workshop::Failure& failure) {
        Require(std::string_view(failure.what()).size() > 1, "a refusal says why");
        return std::nullopt;
    }
}

void CheckKept(const TableWishes& wishes) {
    Require(Taken(LinesOf(wishes)) == wishes, "what is kept comes back");
}

void CheckTaken(const TableWishes& wishes) {
    const auto mayStand = [](const workshop::ColumnWish& wish) {
        return wish.Ours == workshop::LeftOut || workshop::ColumnNamed(wish.Ours) != nullptr;
    };
    Require(std::ranges::all_of(wishes.Columns, mayStand), "every column is one of ours or left out");
    Require(wishes.Direction.empty() || wishes.Direction == "in" || wishes.Direction == "out",
            "a direction is one");
    Require(wishes.RegisterBase.value_or(0) >= 0, "no register stands before 0");
    CheckKept(wishes);
}

// No half of a pair may be empty.
std::string AnyHalf(Input& input) {
    const std::string_view text = input.Text(LongestText);
    return text.empty() ? "x" : std::string(text);
}

// As the window and the command make them.
TableWishes AnyWishes(Input& input) {
    TableWishes wishes;
    wishes.IgnoreUnknown = input.Below(2) == 1;
    wishes.Direction = std::array{"", "in", "out"}.at(input.Below(3));
    if (input.Below(2) == 1)
        wishes.RegisterBase = input.Number() & 0x7FFFFFFF;
    // No field takes a line end, but the titles of a table may hold some.
    wishes.Station = input.Line();
    wishes.Module = input.Line();
    wishes.Encoding = input.Line();
    for (std::size_t count = input.Below(4); count > 0; --count)
        wishes.Columns.push_back({AnyHalf(input), std::string(Ours.at(input.Below(Ours.size())))});
    for (std::size_t count = input.Below(4); count > 0; --count)
        wishes.ModuleTypes.push_back({AnyHalf(input), AnyHalf(input)});
    return wishes;
}

} // namespace

void Mapping(std::string_view bytes) {
    Input input(bytes);
    if (input.Below(2) != 0)
        return CheckKept(AnyWishes(input));
    if (const auto wishes = Taken(std::string(input.Rest())))
        CheckTaken(*wishes);
}

} // namespace gfc::fuzz
