// Makes every operation on files fail and die at every call, and says what became of the files.
#include "faults/Judge.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <random>
#include <string_view>

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

struct Settings {
    bool Deep = false;
    long RandomKills = 0; // of all operations together
    unsigned Seed = 1;
    std::string Only; // a part of the operation's name
};

struct Tally {
    long Runs = 0;
    long Of[4] = {}; // by Found
    long Spoke = 0;  // trials in which a person was told something
    long Restarts = 0;

    Tally& operator+=(const Tally& other) {
        Runs += other.Runs;
        for (std::size_t i = 0; i < std::size(Of); ++i)
            Of[i] += other.Of[i];
        Spoke += other.Spoke;
        Restarts += other.Restarts;
        return *this;
    }
};

// The trials of one operation.
class Series {
public:
    Series(const Operation& operation, const Settings& settings)
        : operation_(operation), settings_(settings), theatre_(operation) {}

    // kills: how many at random moments.
    void Play(long kills) {
        if (!theatre_.IsReady())
            return Complain("setting up", {Found::Torn, "the operation did not begin"});
        quiet_ = theatre_.Run({});
        CheckQuietRun();
        CheckOutsideEdit();
        if (faults_ > 0)
            return;
        settings_.Deep ? TryEveryFaultAtEveryCall() : TryOneFaultAtEveryCall();
        KillAtEveryCall();
        KillAtRandom(kills);
    }

    [[nodiscard]] long Calls() const { return quiet_.Counted; }
    [[nodiscard]] const Tally& Failures() const { return failures_; }
    [[nodiscard]] const Tally& Kills() const { return kills_; }
    [[nodiscard]] long Faulty() const { return faults_; }

private:
    void CheckQuietRun() {
        if (quiet_.Failed || quiet_.Counted == 0)
            return Complain("no fault", {Found::Torn, "the operation itself does not work"});
        if (quiet_.Left == theatre_.Before())
            Complain("no fault", {Found::Torn, "the operation changes nothing"});
        if (const std::string fault = FaultInOrder(quiet_.Calls); !fault.empty())
            Complain("no fault", {Found::Torn, fault});
    }

    // Somebody writes into the file while the windows of the operation stand open.
    void CheckOutsideEdit() {
        const std::string& file = operation_.ChangesKeysOf;
        if (file.empty())
            return;
        const std::string addition = "[Mine]\r\nkept=yes\r\n";
        const Ending ending = theatre_.RunAfterAddition(file, addition);
        const auto left = ending.Left.find(file);
        std::string bytes = left == ending.Left.end() ? "" : left->second.Bytes;
        const auto at = bytes.find(addition);
        if (at != std::string::npos)
            bytes.erase(at, addition.size());
        if (at == std::string::npos || ending.Failed || bytes != quiet_.Left.at(file).Bytes)
            Complain("after an outside edit", {Found::Torn, "the edit is lost, or the operation is"});
    }

    void TryEveryFaultAtEveryCall() {
        for (const FaultRow& row : Faults)
            for (long call = 1; call <= quiet_.Counted; ++call)
                Try(row, call);
    }

    void TryOneFaultAtEveryCall() {
        for (long call = 1; call <= quiet_.Counted; ++call)
            Try(Faults[static_cast<std::size_t>(call) % std::size(Faults)], call);
    }

    void Try(const FaultRow& row, long call) {
        Plan plan = row.ThePlan;
        plan.First = call;
        const Ending ending = theatre_.Run(plan);
        if (ending.Hit > 0 || ending.Failed)
            Note(failures_, row.Name, call, ending, MayBeUntidy(plan, ending));
    }

    // What is beside the file cannot go where its removal is what failed.
    static bool MayBeUntidy(const Plan& plan, const Ending& ending) {
        const auto failed = static_cast<std::size_t>(plan.First - 1);
        return plan.Count > 1 || plan.TheEffect == Effect::FailsAfter ||
               (failed < ending.Calls.size() && ending.Calls[failed].Name == "unlink");
    }

    void KillAtEveryCall() {
        for (long call = 1; call <= quiet_.Counted; call += settings_.Deep ? 1 : QuickStep)
            NoteDeath("killed before", call, theatre_.Run({Effect::Kills, 0, call, 1}));
        NoteDeath("killed after", quiet_.Counted, theatre_.Run({Effect::KillsAfter, 0, quiet_.Counted, 1}));
    }

    void KillAtRandom(long kills) {
        std::minstd_rand random(settings_.Seed);
        std::uniform_int_distribution<long> moment(1, Microseconds());
        for (long kill = 1; kill <= kills; ++kill)
            NoteDeath("killed at random", kill, theatre_.Run({}, moment(random)));
    }

    // How long the operation takes, and a little more, so that the last moments are met too.
    long Microseconds() {
        timespec start{};
        timespec end{};
        ::clock_gettime(CLOCK_MONOTONIC, &start);
        (void)theatre_.Run({});
        ::clock_gettime(CLOCK_MONOTONIC, &end);
        return (end.tv_sec - start.tv_sec) * 1'000'000 + (end.tv_nsec - start.tv_nsec) / 1000 + 1;
    }

    void NoteDeath(const char* what, long number, const Ending& ending) {
        Note(kills_, what, number, ending, true);
        const bool looks = settings_.Deep || kills_.Runs % QuickStep == 0;
        if (!operation_.StartAgain || !ending.Killed || !looks)
            return;
        ++kills_.Restarts;
        if (!theatre_.StartsAgain())
            Complain(std::string(what) + " " + std::to_string(number),
                     {Found::Torn, "the next start fails, or leaves something behind"});
    }

    void Note(Tally& tally, const char* what, long number, const Ending& ending, bool untidy) {
        const Judge judge(operation_, theatre_.Before(), quiet_.Left);
        const Verdict verdict = judge.Of(ending, untidy);
        ++tally.Runs;
        ++tally.Of[static_cast<std::size_t>(verdict.TheFound)];
        tally.Spoke += ending.Said.empty() ? 0 : 1;
        if (!verdict.Fault.empty())
            Complain(std::string(what) + " at call " + std::to_string(number) + At(ending, number), verdict);
    }

    [[nodiscard]] std::string At(const Ending& ending, long number) const {
        const auto& calls = ending.Calls.empty() ? quiet_.Calls : ending.Calls;
        const auto at = static_cast<std::size_t>(number - 1);
        return at < calls.size() ? " (" + calls[at].Name + " " + calls[at].Path + ")" : "";
    }

    void Complain(const std::string& when, const Verdict& verdict) {
        ++faults_;
        std::cout << operation_.Name << ", " << when << ": " << verdict.Fault << "\n";
    }

    const Operation& operation_;
    const Settings& settings_;
    Theatre theatre_;
    Ending quiet_;
    Tally failures_;
    Tally kills_;
    long faults_ = 0;
};

void PrintHead() {
    std::cout << std::left << std::setw(34) << "operation" << std::right << std::setw(6) << "calls"
              << " | " << std::setw(7) << "faults" << std::setw(7) << "old" << std::setw(7) << "new"
              << std::setw(9) << "between" << std::setw(6) << "torn" << std::setw(7) << "told"
              << " | " << std::setw(7) << "kills" << std::setw(7) << "old" << std::setw(7) << "new"
              << std::setw(9) << "between" << std::setw(6) << "torn" << std::setw(10) << "restarts"
              << "\n";
}

void PrintRow(const std::string& name, long calls, const Tally& failures, const Tally& kills) {
    std::cout << std::left << std::setw(34) << name << std::right << std::setw(6) << calls;
    for (const Tally* tally : {&failures, &kills}) {
        std::cout << " | " << std::setw(7) << tally->Runs << std::setw(7) << tally->Of[0] << std::setw(7)
                  << tally->Of[1] << std::setw(9) << tally->Of[2] << std::setw(6) << tally->Of[3];
        if (tally == &failures)
            std::cout << std::setw(7) << tally->Spoke;
        else
            std::cout << std::setw(10) << tally->Restarts;
    }
    std::cout << std::endl;
}

bool PlayAll(const Settings& settings) {
    std::vector<Operation> operations = ProgramOperations();
    for (Operation& operation : WorkshopOperations())
        operations.push_back(std::move(operation));
    Tally failures;
    Tally kills;
    long calls = 0;
    long faulty = 0;
    PrintHead();
    for (const Operation& operation : operations) {
        if (operation.Name.find(settings.Only) == std::string::npos)
            continue;
        Series series(operation, settings);
        series.Play(settings.RandomKills / static_cast<long>(operations.size()));
        PrintRow(operation.Name, series.Calls(), series.Failures(), series.Kills());
        failures += series.Failures();
        kills += series.Kills();
        calls += series.Calls();
        faulty += series.Faulty();
    }
    PrintRow("together", calls, failures, kills);
    std::cout << faulty << " faulty\n";
    return faulty == 0;
}

} // namespace

} // namespace gfc::test::faults

int main(int argc, char** argv) {
    using namespace gfc::test::faults;
    ::testing::InitGoogleTest(&argc, argv);
    Settings settings;
    for (int i = 1; i < argc; ++i) {
        const std::string_view word = argv[i];
        const bool more = i + 1 < argc;
        if (word == "--deep")
            settings.Deep = true;
        else if (word == "--kills" && more)
            settings.RandomKills = std::atol(argv[++i]);
        else if (word == "--seed" && more)
            settings.Seed = static_cast<unsigned>(std::atol(argv[++i]));
        else if (word == "--only" && more)
            settings.Only = argv[++i];
        else
            return std::cerr << "usage: faults [--deep] [--kills N] [--seed S] [--only PART]\n", EXIT_FAILURE;
    }
    return PlayAll(settings) ? EXIT_SUCCESS : EXIT_FAILURE;
}
