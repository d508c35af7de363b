#pragma once

#include "suggest/Runs.h"

#include <map>
#include <set>
#include <string>

namespace gfc::suggest {

// Where a digit stands in a name, and what is alike about it in names of one plant.
struct DigitPlace {
    std::string Family; // the name with a star for the digit: who shares it differs by this digit alone
    std::string Manner; // the number with the star and the word before it: "RUN|*", "|10*"
    std::string Place;  // which number, which digit of how many
    std::string Module; // the module's name, where the digit is its; else empty
    std::string Number; // as it stands
    int Digit = 0;
};

// The digits of the tag's name that may be a run's; what a tool has put behind a name is no part of it. The
// digits of the module's name are taken instead where the tag's name has none.
[[nodiscard]] std::vector<DigitPlace> DigitPlacesOf(const TagFacts& tag);

// Names that differ by one digit.
struct Family {
    std::map<int, std::vector<std::size_t>> Members; // tags by their digit
    std::string Manner;
    std::string Place;
    std::set<const binding::VariableRow*> Rows; // that its tags mean
};

// All families of the tags that mean something, and what speaks for and against reading the digit as a run.
class Families {
public:
    Families(const Question& question, const std::vector<TagFacts>& facts, const std::vector<Known>& known);

    // What the digits of the tag say; run 0 where nothing does, or where two places say different things
    // alike well.
    [[nodiscard]] Reading Read(std::size_t tag) const;

private:
    void Gather(const std::vector<TagFacts>& facts, const std::vector<Known>& known);
    void JudgeManners();
    void LearnFromBound(const Question& question, const std::vector<TagFacts>& facts);
    [[nodiscard]] bool HasAllRuns(const Family& family) const;
    // How many variables have all runs by digits in this manner, or in this place.
    [[nodiscard]] int Coverage(const DigitPlace& place) const;

    const std::vector<int>& runs_;
    std::map<std::string, Family> families_;
    std::vector<std::vector<DigitPlace>> places_; // of each tag
    std::map<std::string, std::set<const binding::VariableRow*>> byManner_, byPlace_;
    std::set<std::string> refuted_; // manners that some family or some binding speaks against
    std::map<std::string, std::string>
        confirmed_; // families in which a binding has its own run's digit: its tag
};

} // namespace gfc::suggest
