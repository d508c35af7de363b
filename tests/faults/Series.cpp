#include "faults/Series.h"

#include "faults/Records.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <iostream>
#include <random>

namespace gfc::test::faults {

namespace {

struct FaultRow {
    const char* Name;
    Plan ThePlan;
};

// clang-format off
const FaultRow Faults[] = {
    {"EIO",                     {Effect::Fails,      EIO,    0, 1}},
    {"ENOSPC",                  {Effect::Fails,      ENOSPC, 0, 1}},
    {"EACCES",                  {Effect::Fails,      EACCES, 0, 1}},
    {"EROFS",                   {Effect::Fails,      EROFS,  0, 1}},
    {"EDQUOT",                  {Effect::Fails,      EDQUOT, 0, 1}},
    {"EINTR",                   {Effect::Fails,      EINTR,  0, 1}},
    {"EPERM",                   {Effect::Fails,      EPERM,  0, 1}},
    {"ENOTSUP",                 {Effect::Fails,      ENOTSUP, 0, 1}}, // of a file system without links
    {"half done",               {Effect::Half,       0,      0, 1}},
    {"done, but EIO",           {Effect::FailsAfter, EIO,    0, 1}},
    {"EIO three times",         {Effect::Fails,      EIO,    0, 3}},
    {"EIO from there on",       {Effect::Fails,      EIO,    0, WithoutEnd}},
    {"ENOSPC from there on",    {Effect::Fails,      ENOSPC, 0, WithoutEnd}},
    {"EROFS from there on",     {Effect::Fails,      EROFS,  0, WithoutEnd}},
};
// clang-format on

// The short run kills at every third call, and looks at every third next start.
constexpr long QuickStep = 3;
// Every operation makes the same calls for its entry in the record, which have operations of their own: of
// these the short run takes each tenth, others in each operation.
constexpr long QuickStepInRecord = 10;
constexpr long MostTrials = 5; // for one death at a random moment

// What stands beside the file cannot go where its removal is what failed.
bool MayBeUntidy(const Plan& plan, const Ending& ending) {
    const auto failed = static_cast<std::size_t>(plan.First - 1);
    return plan.Count > 1 || plan.TheEffect == Effect::FailsAfter ||
           (failed < ending.Calls.size() && ending.Calls[failed].Name == "unlink");
}

// The call of that number, counted from 1, in words.
std::string CallOf(const std::vector<Call>& calls, long number) {
    const auto at = static_cast<std::size_t>(number - 1);
    return at < calls.size() ? " (" + calls[at].Name + " " + calls[at].Path + ")" : "";
}

} // namespace

void Series::Play(long kills) {
    if (!theatre_.IsReady())
        return Complain("setting up", "the operation did not begin");
    quiet_ = theatre_.Run({});
    CheckQuietRun();
    CheckOutsideEdit();
    if (faults_ > 0)
        return;
    settings_.Deep ? TryEveryFaultAtEveryCall() : TryOneFaultAtEveryCall();
    KillAtEveryCall();
    KillAtRandom(kills);
}

void Series::CheckQuietRun() {
    if (quiet_.Failed || quiet_.Counted == 0)
        return Complain("no fault", "the operation itself does not work");
    if (quiet_.Left == theatre_.Before())
        Complain("no fault", "the operation changes nothing");
    for (const auto& [name, entry] : quiet_.Left)
        if (IsRecord(name) &&
            ((IsBehind(entry) && !IsToldOfRecord(quiet_)) || !FaultInRecord(nullptr, &entry).empty()))
            Complain("no fault", name + " does not say what stands there: " + entry.Bytes);
    if (const std::string fault = FaultInOrder(quiet_.Calls); !fault.empty())
        Complain("no fault", fault);
}

// Somebody writes into the file while the windows of the operation stand open.
void Series::CheckOutsideEdit() {
    const std::string& file = operation_.ChangesKeysOf;
    if (file.empty() || faults_ > 0)
        return;
    const std::string addition = "[Mine]\r\nkept=yes\r\n";
    const Ending ending = theatre_.RunAfterAddition(file, addition);
    const auto left = ending.Left.find(file);
    std::string bytes = left == ending.Left.end() ? "" : left->second.Bytes;
    const auto at = bytes.find(addition);
    if (at != std::string::npos)
        bytes.erase(at, addition.size());
    if (at == std::string::npos || ending.Failed || bytes != quiet_.Left.at(file).Bytes)
        Complain("after an outside edit", "the edit is lost, or the operation is");
}

void Series::TryEveryFaultAtEveryCall() {
    for (const FaultRow& row : Faults)
        for (long call = 1; call <= quiet_.Counted; ++call)
            for (const bool persists : {false, true})
                Try(row.Name, row.ThePlan, call, persists);
}

void Series::TryOneFaultAtEveryCall() {
    for (long call = 1; call <= quiet_.Counted; ++call) {
        if (IsPassedOver(call))
            continue;
        const FaultRow& row = Faults[static_cast<std::size_t>(call) % std::size(Faults)];
        Try(row.Name, row.ThePlan, call, call % 2 == 0);
    }
}

void Series::Try(const std::string& what, Plan plan, long call, bool persists) {
    plan.First = call;
    const Ending ending = theatre_.Run(plan, 0, persists);
    const char* const person = persists ? ", tried again" : "";
    if (ending.Hit == 0 && !ending.Failed)
        return;
    const std::string when = what + " at call " + std::to_string(call) + CallOf(quiet_.Calls, call) + person;
    const bool behind = Note(failures_, when, ending, MayBeUntidy(plan, ending));
    if (behind && (settings_.Deep || failures_.Runs % QuickStep == 0))
        CheckNextStart(when);
    CheckNotHeldUp(when, plan, ending);
}

void Series::CheckNotHeldUp(const std::string& when, const Plan& plan, const Ending& ending) {
    const auto& calls = quiet_.Calls;
    const auto at = static_cast<std::size_t>(plan.First - 1);
    const bool inRecord = plan.Count == 1 && at < calls.size() && IsOfRecord(calls[at].Path);
    if (!inRecord || operation_.NeedsRecord)
        return;
    const Judge judge(operation_, theatre_.Before(), quiet_.Left);
    if (const std::string fault = judge.HeldUp(ending); !fault.empty())
        Complain(when, fault);
}

void Series::CheckNextStart(const std::string& when) {
    ++kills_.Restarts;
    if (!theatre_.StartsAgain())
        Complain(when, "the next start fails, or leaves something behind");
}

bool Series::IsPassedOver(long call) const {
    const auto& calls = quiet_.Calls;
    const auto at = static_cast<std::size_t>(call - 1);
    const auto own = static_cast<long>(operation_.Name.size());
    return at < calls.size() && IsOfRecord(calls[at].Path) && !operation_.IsOfRecord &&
           (call + own) % QuickStepInRecord != 0;
}

void Series::KillAtEveryCall() {
    for (long call = 1; call <= quiet_.Counted; call += settings_.Deep ? 1 : QuickStep)
        if (settings_.Deep || !IsPassedOver(call))
            NoteDeath("killed before call", call, theatre_.Run({Effect::Kills, 0, call, 1}));
    NoteDeath("killed after call", quiet_.Counted, theatre_.Run({Effect::KillsAfter, 0, quiet_.Counted, 1}));
}

void Series::KillAtRandom(long kills) {
    std::minstd_rand random(settings_.Seed);
    std::uniform_int_distribution<long> moment(1, Microseconds());
    const long before = kills_.Runs;
    // Who is quicker than the clock has not died, and does not count.
    for (long trial = 1; kills_.Runs - before < kills && trial <= kills * MostTrials; ++trial)
        NoteDeath("killed at random moment", trial, theatre_.Run({}, moment(random)));
}

// How long a trial takes, its ways to and fro included, so that the last moments are met too. The shortest of
// some, since the machine has other things to do.
long Series::Microseconds() {
    using Clock = std::chrono::steady_clock;
    auto shortest = Clock::duration::max();
    for (int i = 0; i < 5; ++i) {
        const auto start = Clock::now();
        (void)theatre_.Run({});
        shortest = std::min(shortest, Clock::now() - start);
    }
    return std::chrono::duration_cast<std::chrono::microseconds>(shortest).count() + 1;
}

void Series::NoteDeath(const std::string& what, long number, const Ending& ending) {
    const std::string when = what + " " + std::to_string(number);
    (void)Note(ending.Killed ? kills_ : spared_, when, ending, true);
    if (operation_.StartAgain && ending.Killed && (settings_.Deep || kills_.Runs % QuickStep == 0))
        CheckNextStart(when);
}

bool Series::Note(Tally& tally, const std::string& when, const Ending& ending, bool untidy) {
    const Verdict verdict = Judge(operation_, theatre_.Before(), quiet_.Left).Of(ending, untidy);
    ++tally.Runs;
    ++tally.Of[static_cast<std::size_t>(verdict.TheFound)];
    tally.Spoke += ending.Said.empty() ? 0 : 1;
    tally.NotTold += verdict.NotTold ? 1 : 0;
    if (!verdict.Fault.empty())
        Complain(when, verdict.Fault);
    return verdict.Behind && operation_.StartAgain;
}

void Series::Complain(const std::string& when, const std::string& fault) {
    ++faults_;
    std::cout << operation_.Name << ", " << when << ": " << fault << "\n";
}

} // namespace gfc::test::faults
