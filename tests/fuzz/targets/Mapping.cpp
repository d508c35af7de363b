#include "fuzz/Input.h"
#include "fuzz/Target.h"
#include "workshop/import/SavedMapping.h"
#include "workshop/import/TagTable.h"
#include "workshop/store/Failure.h"

#include <algorithm>
#include <array>

// Any bytes as a kept mapping: refused in words, or taken, written and then the same. What a person can say
// of a table is kept and comes back, whatever its titles are.
namespace gfc::fuzz {

namespace {

using workshop::TableWishes;

constexpr std::array<std::string_view, 8> Ours = {"Station", "Module", "ModuleType", "Tag",
                                                  "Class",   "-",      "Register",   "Description"};

void CheckKept(const TableWishes& wishes) {
    Require(workshop::WishesFrom(LinesOf(wishes), "kept.mapping") == wishes, "what is kept comes back");
}

void CheckTaken(const std::string& lines) {
    const TableWishes wishes = workshop::WishesFrom(lines, "kept.mapping");
    const auto mayStand = [](const workshop::ColumnWish& wish) {
        return wish.Ours == workshop::LeftOut || workshop::ColumnNamed(wish.Ours) != nullptr;
    };
    Require(std::ranges::all_of(wishes.Columns, mayStand), "every column is one of ours or left out");
    Require(wishes.Direction.empty() || wishes.Direction == "in" || wishes.Direction == "out",
            "a direction is one");
    Require(wishes.RegisterBase.value_or(0) >= 0, "no register stands before 0");
    CheckKept(wishes);
}

// As the window and the command make them.
TableWishes AnyWishes(Input& input) {
    constexpr std::size_t longest = 24;
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
        wishes.Columns.push_back(
            {std::string(input.Text(longest)), std::string(Ours.at(input.Below(Ours.size())))});
    for (std::size_t count = input.Below(4); count > 0; --count)
        wishes.ModuleTypes.push_back({std::string(input.Text(longest)), std::string(input.Text(longest))});
    return wishes;
}

} // namespace

void Mapping(std::string_view bytes) {
    Input input(bytes);
    try {
        if (input.Below(2) == 0)
            CheckTaken(std::string(input.Rest()));
        else
            CheckKept(AnyWishes(input));
    } catch (const workshop::Failure& failure) {
        Require(*failure.what() != '\0', "a refusal says why");
    }
}

} // namespace gfc::fuzz
