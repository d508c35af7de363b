#pragma once

#include "forms/program/Program.h"
#include "suggest/Known.h"
#include "suggest/Suggest.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

namespace gfc::forms {

// What is suggested for the variables of one showing of TagRuns, by their positions.
class TagSuggestions {
public:
    explicit TagSuggestions(Program& program) : program_(program) {}

    // Another stage is shown: what was known is of another run.
    void Forget();
    // Asks anew. shown is what the tree says of each variable, as it writes it.
    void Ask(const std::vector<config::TagBinding>& shown);
    // Spare registers for the variables that no tag was found for. False if there are none.
    bool AskForSpares(const std::vector<config::TagBinding>& shown);
    [[nodiscard]] bool WereAsked() const { return asked_; }
    // True if the last question did not go for each variable that is unbound now: one was bound at that time.
    [[nodiscard]] bool LackVariables(const std::vector<config::TagBinding>& shown) const;
    // The last question once more, with spare registers where those were asked for.
    void AskAgain(const std::vector<config::TagBinding>& shown);
    // Null where nothing is known of the position, or nothing was asked.
    [[nodiscard]] const suggest::Suggestion* At(int position) const;

    // Whether another run or stage of the station binds the register.
    [[nodiscard]] bool IsBoundElsewhere(std::string_view type, std::string_view address) const;
    // What other runs and stages of the station bind when this pass is stored: of runs in memory that is what
    // they hold there, and of the others what the file says.
    [[nodiscard]] std::vector<suggest::BoundVariable> InEffectElsewhere() const;
    // What the tree shows as bound, in its order; shown as for Ask.
    [[nodiscard]] std::vector<suggest::BoundVariable>
    BoundHere(const std::vector<config::TagBinding>& shown) const;
    // Null for a register that the station does not have.
    [[nodiscard]] const project::Tag* TagAt(std::string_view type, std::string_view address) const;
    // Empty for such a one, too.
    [[nodiscard]] std::string_view ModuleOf(std::string_view type, std::string_view address) const;
    [[nodiscard]] std::vector<std::string> PlacesOf(const config::TagBinding& binding,
                                                    const std::vector<config::TagBinding>& shown) const;

private:
    [[nodiscard]] std::vector<suggest::Want> Variables() const;
    [[nodiscard]] const std::vector<suggest::BoundVariable>& Elsewhere() const;
    void RememberElsewhere() const;
    void IndexTags() const;
    [[nodiscard]] std::vector<int> ActiveRuns() const;
    [[nodiscard]] suggest::Question QuestionFor(const std::vector<config::TagBinding>& shown) const;
    void AddOtherWants(suggest::Question& question) const;
    [[nodiscard]] bool HoldsAllRuns() const;
    [[nodiscard]] int RunHere() const;

    Program& program_;
    bool asked_ = false;
    bool withSpares_ = false;
    std::map<int, suggest::Suggestion> suggestions_;
    // Found out once for a showing, when first asked for.
    mutable std::optional<std::vector<suggest::BoundVariable>> elsewhere_;
    mutable std::size_t fromFile_ = 0;                                        // the first ones of elsewhere
    mutable std::unordered_set<std::string> boundElsewhere_;                  // registers
    mutable std::vector<std::pair<std::uint64_t, const project::Tag*>> tags_; // by register, ascending
};

} // namespace gfc::forms
