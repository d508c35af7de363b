#pragma once

#include "plan/Numbers.h"
#include "plan/Rebind.h"

#include <map>
#include <set>
#include <unordered_map>

namespace gfc::plan {

// Looks for the tags of lines, evidence by evidence. All that it is given must outlive it.
class Proposer {
public:
    Proposer(const BoundStation& source, const Destination& to, std::vector<Line>& lines);

    // Those of the working modules must have been proposed: their tags are offered to nobody.
    void Propose();

private:
    // What has one register in the source; it is looked for once.
    struct Wanted {
        std::vector<std::size_t> Lines;
        const binding::VariableRow* Row = nullptr;
        config::TagBinding Source;
        bool IsFound = false;
    };

    void Gather();
    void Index();
    void CountShifts();
    // Where a shift explains more names, those that are the same by chance wait for it.
    enum class Chance { Excluded, Included };
    void TakeSameNames(Chance chance);
    void TakeSameRegisters();
    void TakeStationNames();
    void TakeNumbers();
    void TakePlaces();
    void TakeSuggestions();
    void ExplainMissing();

    // tag is a place among those offered.
    void Take(Wanted& wanted, std::size_t tag, Evidence why, bool isSure, const std::string& reason);
    [[nodiscard]] bool MayTake(const Wanted& wanted, std::size_t tag) const;
    // The one of that name that may be taken; of several the one that is of the source's type, or none.
    [[nodiscard]] const std::size_t* OneNamed(const Wanted& wanted, const std::string& name) const;
    [[nodiscard]] std::vector<std::size_t> LikeFrame(const Wanted& wanted, const NumberedName& name) const;

    const BoundStation& source_;
    const Destination& to_;
    std::vector<Line>& lines_;
    bool isOwn_;
    project::TagList offered_;
    std::vector<Wanted> wanted_;
    std::set<std::size_t> taken_;
    std::unordered_map<std::string, std::vector<std::size_t>> byName_;     // folded
    std::unordered_map<std::string, std::vector<std::size_t>> byFrame_;    // of their numbers
    std::unordered_map<std::string, std::vector<std::size_t>> byRegister_; // "FX 12"
    std::vector<NumberedName> numbers_;                                    // of those offered
    std::vector<NumberedName> wantedNumbers_;
    ShiftVotes shifts_;
};

// The same for a working module, by its name or because there is no other.
void ProposeModule(const BoundStation& source, const Destination& to, Line& line);

// The name with that of the station in it replaced by another; empty where it does not hold it.
[[nodiscard]] std::string WithOtherStation(std::string_view name, std::string_view from, std::string_view to);

} // namespace gfc::plan
