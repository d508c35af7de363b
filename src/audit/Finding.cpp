#include "audit/Finding.h"

#include "services/Counted.h"

#include <algorithm>

namespace gfc::audit {

void SortBySeverity(Findings& findings) {
    std::stable_sort(findings.begin(), findings.end(), [](const Finding& left, const Finding& right) {
        return left.Severity < right.Severity;
    });
}

std::size_t CountOf(const Findings& findings, Severity severity) {
    return static_cast<std::size_t>(std::ranges::count(findings, severity, &Finding::Severity));
}

std::string CountText(const Findings& findings) {
    std::string text;
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note})
        if (const std::size_t count = CountOf(findings, severity)) {
            const std::string word(WordOf(severity));
            text.append(text.empty() ? "" : ", ").append(services::Counted(count, word, word + "s"));
        }
    return text.empty() ? "nothing to report" : text;
}

void Sink::About(int run, bool isOn, std::string section) {
    run_ = run;
    isOn_ = isOn;
    section_ = std::move(section);
}

Finding& Sink::Add(RuleId rule, const Place& place, std::initializer_list<std::string_view> words) {
    const Rule& row = RuleOf(rule);
    Finding finding;
    finding.Rule = rule;
    finding.Severity = isOn_ ? row.Severity : Severity::Note;
    finding.Run = run_;
    finding.Section = section_;
    finding.Key = place.Key;
    finding.Variable = VariableOf(place.Key);
    finding.Value = place.Value;
    finding.Tag = place.Tag;
    finding.Text = TextOf(row, words);
    return findings_.emplace_back(std::move(finding));
}

std::string TextOf(const Rule& rule, std::initializer_list<std::string_view> words) {
    std::string text;
    std::string_view rest = rule.Text;
    for (const std::string_view word : words) {
        const auto open = rest.find('{');
        const auto close = rest.find('}');
        if (open == std::string_view::npos || close == std::string_view::npos)
            break;
        text.append(rest.substr(0, open)).append(word);
        rest.remove_prefix(close + 1);
    }
    return text.append(rest);
}

} // namespace gfc::audit
