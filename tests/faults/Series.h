#pragma once

#include "faults/Judge.h"

#include <iterator>
#include <string>

namespace gfc::test::faults {

struct Settings {
    bool Deep = false;
    long RandomKills = 0; // of all operations together
    unsigned Seed = 1;
    std::string Only; // a part of the operation's name
    std::string One;  // the whole of it
};

struct Tally {
    long Runs = 0;
    long Of[4] = {};  // by Found
    long Spoke = 0;   // trials in which a person was told something
    long NotTold = 0; // those in which something was not stored without a word
    long Restarts = 0;

    Tally& operator+=(const Tally& other) {
        Runs += other.Runs;
        for (std::size_t i = 0; i < std::size(Of); ++i)
            Of[i] += other.Of[i];
        Spoke += other.Spoke;
        NotTold += other.NotTold;
        Restarts += other.Restarts;
        return *this;
    }
};

// The trials of one operation. What is wrong is printed as it is found.
class Series {
public:
    Series(const Operation& operation, const Settings& settings)
        : operation_(operation), settings_(settings), theatre_(operation) {}

    // kills: how many at random moments.
    void Play(long kills);

    [[nodiscard]] long Calls() const { return quiet_.Counted; }
    [[nodiscard]] const Tally& Failures() const { return failures_; }
    [[nodiscard]] const Tally& Kills() const { return kills_; }
    [[nodiscard]] long Faulty() const { return faults_; }

private:
    void CheckQuietRun();
    void CheckOutsideEdit();
    void TryEveryFaultAtEveryCall();
    void TryOneFaultAtEveryCall();
    [[nodiscard]] bool IsPassedOver(long call) const;
    void Try(const std::string& what, Plan plan, long call, bool persists);
    void KillAtEveryCall();
    void KillAtRandom(long kills);
    [[nodiscard]] long Microseconds();
    void CheckNotHeldUp(const std::string& when, const Plan& plan, const Ending& ending);
    void CheckNextStart(const std::string& when);
    void NoteDeath(const std::string& what, long number, const Ending& ending);
    // True if the next start has something to make up.
    bool Note(Tally& tally, const std::string& when, const Ending& ending, bool untidy);
    void Complain(const std::string& when, const std::string& fault);

    const Operation& operation_;
    const Settings& settings_;
    Theatre theatre_;
    Ending quiet_; // where nothing fails
    Tally failures_;
    Tally kills_;
    Tally spared_;
    long faults_ = 0;
};

} // namespace gfc::test::faults
