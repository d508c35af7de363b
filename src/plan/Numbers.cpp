#include "plan/Numbers.h"

#include "naming/TagName.h"

#include <algorithm>
#include <charconv>
#include <functional>

namespace gfc::plan {

namespace {

constexpr std::size_t mostDigits = 15; // whatever is added to one of them fits as well
constexpr char mark = '\x01';          // no name holds it

bool IsDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

std::size_t DigitsAt(std::string_view text, std::size_t at) {
    std::size_t count = 0;
    while (at + count < text.size() && IsDigit(text[at + count]))
        ++count;
    return count;
}

std::int64_t ValueOf(std::string_view digits) {
    std::int64_t value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return value;
}

} // namespace

NumberedName NumbersOf(std::string_view name) {
    const std::string folded = naming::Fold(name);
    NumberedName numbered;
    for (std::size_t at = 0; at < folded.size();) {
        const std::size_t digits = DigitsAt(folded, at);
        const std::size_t length = std::max<std::size_t>(digits, 1);
        if (digits == 0 || digits > mostDigits) {
            numbered.Frame.append(folded, at, length);
        } else {
            numbered.Frame += mark;
            numbered.Numbers.push_back(ValueOf(std::string_view(folded).substr(at, digits)));
        }
        at += length;
    }
    return numbered;
}

Shift ShiftBetween(const NumberedName& from, const NumberedName& to) {
    Shift shift(from.Numbers.size());
    std::ranges::transform(to.Numbers, from.Numbers, shift.begin(), std::minus());
    return shift;
}

void ShiftVotes::Add(const Shift& shift, bool atSameRegister) {
    Votes& votes = votes_[shift];
    ++votes.Names;
    votes.Registers += atSameRegister ? 1 : 0;
}

ShiftVotes::Votes ShiftVotes::Of(const Shift& shift) const {
    const auto found = votes_.find(shift);
    return found == votes_.end() ? Votes() : found->second;
}

std::optional<Shift> ShiftVotes::Best(std::size_t numbers) const {
    const std::pair<const Shift, Votes>* best = nullptr;
    for (const auto& vote : votes_)
        if (vote.first.size() == numbers && vote.first != Shift(numbers) &&
            (best == nullptr || vote.second.Together() > best->second.Together()))
            best = &vote;
    return best == nullptr ? std::nullopt : std::optional(best->first);
}

int ShiftVotes::VotesFor(const Shift& shift) const {
    return Of(shift).Names;
}

bool ShiftVotes::IsClear(const Shift& shift) const {
    const Votes votes = Of(shift);
    constexpr double nearly = 0.75;
    return votes.Names > 1 && std::ranges::count_if(votes_, [&](const auto& vote) {
                                  return vote.first.size() == shift.size() &&
                                         vote.second.Together() > nearly * votes.Together();
                              }) == 1;
}

bool ShiftVotes::IsBetterThanNone(std::size_t numbers) const {
    const auto best = Best(numbers);
    return best && Of(*best).Together() > Of(Shift(numbers)).Together();
}

std::string TextOf(const NumberedName& from, const NumberedName& to) {
    std::string text;
    for (std::size_t i = 0; i < from.Numbers.size() && i < to.Numbers.size(); ++i)
        if (from.Numbers[i] != to.Numbers[i])
            text += (text.empty() ? "" : ", ") + std::to_string(from.Numbers[i]) + " is " +
                    std::to_string(to.Numbers[i]);
    return text + " here";
}

} // namespace gfc::plan
