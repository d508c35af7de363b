#pragma once

#include "project/RunNeeds.h"
#include "suggest/Suggest.h"

#include <string>
#include <string_view>
#include <vector>

// What the tags of a configuration are called in another station, or in its own after tags were renamed. It
// proposes and gives its reasons; whoever asks shows them and lets a person decide.
namespace gfc::plan {

// Why a tag is proposed. In the order in which they are tried: what is found by one is not looked for by the
// next.
enum class Evidence {
    SameName,
    SameRegister, // in the own station alone: the tag was renamed
    StationName,  // the same name but for that of the station
    Number,       // the loop numbers are shifted by as much as those of the others
    Place,        // the same place in the module
    Suggested,    // as the binding window would suggest it
    ByHand,
    Nothing
};

// The three modules that the package keeps for its own work are bound like variables.
enum class WorkingKind { None, Float, Long, Analog };

struct Line {
    suggest::Want Variable; // Row is null for a working module
    WorkingKind Module = WorkingKind::None;
    config::TagBinding Source;   // of a working module Tag is the module's name
    config::TagBinding Proposed; // RegAddr is empty where none is
    Evidence Why = Evidence::Nothing;
    bool IsSure = false;
    std::string Reason; // for people; says of Nothing what is missing

    // The register of a working module may be unknown: those of outputs are not looked up.
    [[nodiscard]] bool IsMissing() const {
        return Module == WorkingKind::None ? !Proposed.IsMade() : Proposed.Tag.empty();
    }
    // As the windows of the program name it.
    [[nodiscard]] std::string Caption() const;
    // "FT-101 (FX 12)"; empty for none.
    [[nodiscard]] static std::string TextOf(const config::TagBinding& binding);
};

// A station as its tool has it.
struct StationTags {
    std::string Station;
    project::TagList Tags; // all of them, in delivery order
};

// What a configuration binds.
struct BoundStation {
    StationTags From;
    config::WorkingModules Working;
    std::vector<suggest::BoundVariable> Bound;
    std::vector<int> Runs;                     // that are on, ascending
    std::vector<suggest::OtherStation> Others; // of the project, the source among them
};

// Knows a destination's tags, proposes, and says what a person may choose instead.
class Destination {
public:
    explicit Destination(StationTags tags);

    [[nodiscard]] const StationTags& Of() const { return tags_; }
    [[nodiscard]] const project::TagInventory& Inventory() const { return inventory_; }
    // False where the station lacks modules that the package needs for its own work.
    [[nodiscard]] bool HasWorkingModules() const { return hasModules_; }

    // The working modules first, then the variables in the order of the source. What has one register in the
    // source has one here, and no two registers of the source come to one.
    [[nodiscard]] std::vector<Line> Propose(const BoundStation& source) const;

    // What a line may be bound to instead, in delivery order: tags of the variable's class, or the modules
    // that are large enough. lines say which are in use by others.
    [[nodiscard]] std::vector<config::TagBinding> ChoicesFor(const Line& line,
                                                             const std::vector<Line>& lines) const;

    // Builds the inventory's lists of what may be bound.
    void Offer(const config::WorkingModules& working, bool isAGA7);
    // All of them, in delivery order. It keeps none.
    [[nodiscard]] project::TagList TakeTags() { return std::move(tags_.Tags); }

    // Whether the registers carry so many runs.
    [[nodiscard]] bool Carries(const project::RunNeed& need, int runs) const;

    // The candidates for one of the working modules, with type and address of their first register.
    [[nodiscard]] std::vector<config::TagBinding> ModulesFor(WorkingKind kind) const;
    // What may be bound at all, once those modules are set aside.
    [[nodiscard]] project::TagList OfferedWithout(const config::WorkingModules& working) const;

private:
    StationTags tags_;
    project::TagInventory inventory_;
    project::WorkingModuleCandidates candidates_;
    bool hasModules_ = false;
};

// The names of the modules that the lines keep for the package.
[[nodiscard]] config::WorkingModules WorkingIn(const std::vector<Line>& lines);
// As many lines as have no tag.
[[nodiscard]] std::size_t MissingIn(const std::vector<Line>& lines);
// What a person chose for a line, and for all others of the same register in the source.
void ChooseFor(std::vector<Line>& lines, std::size_t line, const config::TagBinding& chosen);

} // namespace gfc::plan
