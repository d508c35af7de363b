#pragma once

#include "audit/Rule.h"

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace gfc::audit {

// What a rule found, and where. All texts are UTF-8; one that says nothing is empty.
struct Finding {
    RuleId Rule = RuleId::Count;
    audit::Severity Severity = audit::Severity::Note; // that of the rule, but a note for a run that is off
    int Run = 0;                                      // 1 to 5; 0 for the station itself
    std::string Section;                              // of the station's file
    std::string Key;
    std::string Variable; // as the summaries call it, without its unit
    std::string Value;    // as the file holds it
    std::string Tag;
    std::string Text;

    [[nodiscard]] const audit::Rule& Row() const { return RuleOf(Rule); }
    bool operator==(const Finding&) const = default;
};

using Findings = std::vector<Finding>;

// Findings of the worst severity first, and otherwise as they were; the station's own before its runs'.
void SortBySeverity(Findings& findings);
[[nodiscard]] std::size_t CountOf(const Findings& findings, Severity severity);
// "2 errors, 1 warning"; "nothing to report" where there is none.
[[nodiscard]] std::string CountText(const Findings& findings);

// What a finding is about, besides its run.
struct Place {
    std::string_view Key;
    std::string_view Value = {};
    std::string_view Tag = {};
};

// Takes findings about one run, or about what the runs have in common.
class Sink {
public:
    explicit Sink(Findings& findings) : findings_(findings) {}

    // A run that is off runs nothing: whatever is found there is a note.
    void About(int run, bool isOn, std::string section);
    void AboutStation(std::string section) { About(0, true, std::move(section)); }
    // words fill the braces of the rule's text, in order.
    Finding& Add(RuleId rule, const Place& place, std::initializer_list<std::string_view> words = {});
    // One that was found before, as it is.
    void Take(Finding finding) { findings_.push_back(std::move(finding)); }

private:
    Findings& findings_;
    int run_ = 0;
    bool isOn_ = true;
    std::string section_;
};

// The rule's text with its words filled in.
[[nodiscard]] std::string TextOf(const Rule& rule, std::initializer_list<std::string_view> words);

// What the summaries call the value or the binding of a key, without a unit; the key itself where no summary
// shows it.
[[nodiscard]] std::string VariableOf(std::string_view key);

} // namespace gfc::audit
