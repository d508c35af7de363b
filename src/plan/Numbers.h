#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Names that are alike but for their numbers: "PT-101_PV" and "PT-201_PV". Stations that are built alike
// mostly differ by a number that is the same for all of their loops.
namespace gfc::plan {

struct NumberedName {
    std::string Frame; // folded, with a mark in the place of each number
    std::vector<std::int64_t> Numbers;
};

// A row of more than fifteen digits counts as letters.
[[nodiscard]] NumberedName NumbersOf(std::string_view name);

// By how much each number of a name is higher in another; of names with one frame alone.
using Shift = std::vector<std::int64_t>;
[[nodiscard]] Shift ShiftBetween(const NumberedName& from, const NumberedName& to);

// The shift that most pairs of names share, for each count of numbers.
class ShiftVotes {
public:
    // A name and one that it may be, and whether both stand at the same register.
    void Add(const Shift& shift, bool atSameRegister);
    // Names and registers that are alike count the same: where names are mere numbers, one tag that is
    // missing would let every shift but the right one explain more names. Of those that are as good it is the
    // lowest: the first run of a station goes to the first of a larger one. Nothing where none has a vote but
    // the one that leaves all numbers as they are.
    [[nodiscard]] std::optional<Shift> Best(std::size_t numbers) const;
    [[nodiscard]] int VotesFor(const Shift& shift) const;
    // More than one pair has it, and no other shift is nearly as good.
    [[nodiscard]] bool IsClear(const Shift& shift) const;
    // More names are explained by it than by leaving them as they are.
    [[nodiscard]] bool IsBetterThanNone(std::size_t numbers) const;

private:
    struct Votes {
        int Names = 0;
        int Registers = 0;
        [[nodiscard]] int Together() const { return Names + Registers; }
    };
    [[nodiscard]] Votes Of(const Shift& shift) const;

    std::map<Shift, Votes> votes_;
};

// "101 is 201 here"; the numbers that differ alone.
[[nodiscard]] std::string TextOf(const NumberedName& from, const NumberedName& to);

} // namespace gfc::plan
