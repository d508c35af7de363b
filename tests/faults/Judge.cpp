#include "faults/Judge.h"

#include "faults/Records.h"

#include <algorithm>
#include <set>

namespace gfc::test::faults {

namespace {

const Entry* In(const Content& content, const std::string& name) {
    const auto found = content.find(name);
    return found == content.end() ? nullptr : &found->second;
}

bool Same(const Entry* one, const Entry* other) {
    return one == nullptr || other == nullptr ? one == other : *one == *other;
}

std::set<std::string> NamesOf(const Content& one, const Content& two, const Content& three) {
    std::set<std::string> names;
    for (const Content* content : {&one, &two, &three})
        for (const auto& [name, entry] : *content)
            names.insert(name);
    return names;
}

std::string FolderOf(const std::string& path) {
    return path.substr(0, path.find_last_of('/'));
}

bool IsOneOf(const std::string& name, std::initializer_list<const char*> names) {
    return std::ranges::find(names, name) != names.end();
}

} // namespace

bool IsToldOfRecord(const Ending& ending) {
    return std::ranges::any_of(ending.Said, [](const std::string& words) {
        return words.starts_with(FailureMark) && (words.find("istory") != std::string::npos ||
                                                  words.find("cannot be read") != std::string::npos);
    });
}

bool Judge::IsBetween(const std::string& name, const Entry* now) const {
    if (operation_.Between.empty() || !name.ends_with(operation_.Between))
        return false;
    if (now == nullptr)
        return true;
    const Entry* source = In(before_, operation_.BetweenAs);
    return source != nullptr && now->Bytes == source->Bytes;
}

Found Judge::FoundAt(const std::string& name, const Entry* now) const {
    const Entry* before = In(before_, name);
    const Entry* after = In(after_, name);
    if (Same(now, before))
        return Found::Old;
    if (Same(now, after))
        return Found::New;
    return IsBetween(name, now) ? Found::Between : Found::Torn;
}

std::string Judge::RefusedInVain(const Ending& ending) const {
    const bool refused =
        !operation_.Refusal.empty() && std::ranges::any_of(ending.Said, [this](const std::string& words) {
            return words.find(operation_.Refusal) != std::string::npos;
        });
    const bool isThere = !Same(In(ending.Left, operation_.Between), In(before_, operation_.Between));
    return refused && isThere ? operation_.Between + " is there although it was said to have failed" : "";
}

bool Judge::IsStored(const Ending& ending) const {
    return std::ranges::all_of(after_,
                               [&](const auto& file) {
                                   const Entry* now = In(ending.Left, file.first);
                                   return IsRecord(file.first) || (now != nullptr && *now == file.second);
                               }) &&
           std::ranges::all_of(before_, [&](const auto& file) {
               return after_.contains(file.first) || !ending.Left.contains(file.first);
           });
}

// A record that could not be made, though there is something to be entered in it.
bool Judge::IsMissed(const std::string& record, const Content& left) const {
    const std::string start = record.substr(0, record.rfind('_') + 1);
    return In(after_, record) != nullptr && std::ranges::any_of(left, [&](const auto& file) {
               return file.first.starts_with(start) && file.first.ends_with(".ini");
           });
}

// A record that cannot be written holds nothing up. It is told, but where the program died.
void Judge::JudgeRecord(const std::string& name, const Ending& ending, Verdict& verdict) const {
    const Entry* now = In(ending.Left, name);
    if (const std::string fault = FaultInRecord(In(before_, name), now); !fault.empty())
        verdict = {Found::Torn, name + ": " + fault};
    if (now == nullptr ? !IsMissed(name, ending.Left) : !IsBehind(*now))
        return;
    verdict.Behind = true;
    if (!ending.Killed && !IsToldOfRecord(ending) && verdict.Fault.empty())
        verdict.Fault = "the record lacks an entry, and nobody was told";
}

std::string Judge::HeldUp(const Ending& ending) const {
    if (!IsStored(ending))
        return "a failure in the record kept something else from being stored";
    return "";
}

// Who gives up knows what was not done; who tries again gets it done.
void Judge::JudgeWords(const Ending& ending, Verdict& verdict) const {
    if (IsStored(ending))
        return;
    verdict.NotTold = std::ranges::none_of(
        ending.Said, [](const std::string& words) { return words.starts_with(FailureMark); });
    if (verdict.NotTold)
        verdict.Fault = "something was not stored, and nobody was told";
    else if (ending.Persisted)
        verdict.Fault = "it was tried again, and is not stored";
}

Verdict Judge::Of(const Ending& ending, bool untidy) const {
    Verdict verdict;
    if (ending.Failed)
        return {Found::Torn, "the program crashed, hung or lost its way"};
    for (const std::string& name : NamesOf(before_, after_, ending.Left)) {
        if (IsRecord(name)) {
            JudgeRecord(name, ending, verdict);
            if (verdict.TheFound == Found::Torn)
                return verdict;
            continue;
        }
        const Entry* now = In(ending.Left, name);
        const bool leftover = IsLeftover(name) && In(before_, name) == nullptr;
        if (leftover && untidy)
            continue;
        const Found found = leftover && now != nullptr ? Found::Torn : FoundAt(name, now);
        if (found == Found::Torn)
            return {found, name + (leftover ? " was left behind" : " is neither old nor new")};
        verdict.TheFound = std::max(verdict.TheFound, found);
    }
    if (!untidy && !ending.Persisted && verdict.Fault.empty())
        verdict.Fault = RefusedInVain(ending);
    if (verdict.Fault.empty() && !ending.Killed)
        JudgeWords(ending, verdict);
    return verdict;
}

std::string FaultInOrder(const std::vector<Call>& calls) {
    std::set<std::string> unflushed;
    std::set<std::string> foldersToFlush;
    for (const Call& call : calls) {
        if (!call.Done)
            continue;
        if (IsOneOf(call.Name, {"write", "ftruncate"}))
            unflushed.insert(call.Path);
        if (IsOneOf(call.Name, {"fsync", "fdatasync"})) {
            unflushed.erase(call.Path);
            foldersToFlush.erase(call.Path.ends_with('/') ? FolderOf(call.Path) : call.Path);
        }
        if (!IsOneOf(call.Name, {"rename", "link"}))
            continue;
        if (unflushed.contains(call.Path))
            return call.Other + " was put in its place before its bytes were flushed";
        foldersToFlush.insert(FolderOf(call.Other));
    }
    return foldersToFlush.empty() ? "" : *foldersToFlush.begin() + " was not flushed after a change";
}

} // namespace gfc::test::faults
