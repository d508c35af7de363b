#include "audit/KnownKeys.h"
#include "audit/Subject.h"
#include "audit/ValueTable.h"
#include "config/CommonLayout.h"
#include "services/CodePage.h"
#include "services/Funciones_III.h"
#include "services/Text.h"

#include <algorithm>

namespace gfc::audit {

namespace {

std::string Joined(std::span<const std::string_view> words) {
    std::string text;
    for (const std::string_view word : words)
        text.append(text.empty() ? "" : ", ").append(word);
    return text;
}

void CheckWord(const ValueRow& row, const std::string& value, Sink& sink) {
    if (std::ranges::find(row.Words, value) != row.Words.end())
        return;
    const auto alike = std::ranges::find_if(
        row.Words, [&](std::string_view word) { return services::EqualNoCase(word, value); });
    if (alike != row.Words.end())
        sink.Add(RuleId::WordCase, {row.Key, value}, {row.Key, value, *alike});
    else
        sink.Add(RuleId::WordUnknown, {row.Key, value}, {row.Key, value, Joined(row.Words)});
}

// What the field takes, where the number is out of it; empty where it is not.
std::string RangePassed(const ValueRow& row, const std::string& value, double number) {
    if (row.Form == Form::Whole && number > row.Most)
        return "0 to " + std::to_string(static_cast<int>(row.Most));
    if (row.Form == Form::Fraction && number > 1)
        return "0 to 1";
    if (row.Form == Form::Percent && !services::WithinRange(value, services::PercentMaximum))
        return "0 to 100";
    return {};
}

void CheckNumber(const ValueRow& row, const std::string& value, Sink& sink) {
    const auto number = NumberOf(value);
    if (!number || (row.Form == Form::Whole && value.find('.') != std::string::npos)) {
        sink.Add(RuleId::NumberBad, {row.Key, value}, {row.Key, value});
        return;
    }
    if (const std::string range = RangePassed(row, value, *number); !range.empty())
        sink.Add(RuleId::NumberRange, {row.Key, value}, {row.Key, value, range});
    else if (row.IsPositive && *number == 0)
        sink.Add(RuleId::NumberZero, {row.Key, value}, {row.Key});
}

} // namespace

void CheckValue(const ValueRow& row, const std::string& value, Sink& sink) {
    if (!value.empty())
        row.Form == Form::Word ? CheckWord(row, value, sink) : CheckNumber(row, value, sink);
}

namespace {

void CheckEntries(const FileSection& section, const Choices& choices, const auto& isOwn, Sink& sink) {
    for (const auto& entry : section.Entries) {
        const ValueRow* row = ValueRowOf(entry.Key);
        if (row == nullptr || !isOwn(entry.Key))
            continue;
        const std::string value = services::FromCodePage(entry.Value);
        CheckValue(*row, value, sink);
        if (value.empty() && row->IsNeeded(choices))
            sink.Add(RuleId::ValueMissing, {row->Key}, {row->Key});
    }
}

// The keys of a run's section that say something of their own, and whose choices are made.
bool IsOwn(std::string_view key, const PresentGroups& present) {
    constexpr std::string_view own = "BCDFGKST";
    const KnownKeys& known = KnownKeys::OfRun();
    const auto place = known.Find(key);
    return place && !known.IsBinding(*place) && own.find(known.GroupOf(*place)) != std::string_view::npos &&
           present.Has(known.GroupOf(*place));
}

} // namespace

void CheckValues(const Subject& subject, Sink& sink) {
    static const config::RunMechanical none;
    const auto all = [](std::string_view) { return true; };
    for (const std::string& name : {std::string("General"), std::string("Station"), std::string("FlowRuns"),
                                    subject.FlowSection(), subject.GasSection()})
        if (const FileSection* section = name.empty() ? nullptr : subject.Text().Find(name)) {
            sink.AboutStation(name);
            CheckEntries(*section, {subject.Station(), none}, all, sink);
        }
    for (const RunSubject& run : subject.Runs())
        if (run.IsThere()) {
            sink.About(run.Number, run.On, run.Section);
            const PresentGroups present(subject.Station(), run.Mechanical);
            CheckEntries(
                *subject.Text().Find(run.Section), {subject.Station(), run.Mechanical},
                [&](std::string_view key) { return IsOwn(key, present); }, sink);
        }
}

} // namespace gfc::audit
