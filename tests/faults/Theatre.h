#pragma once

#include "faults/Operation.h"
#include "faults/Seam.h"

#include <array>
#include <string>
#include <sys/types.h>
#include <vector>

namespace gfc::test::faults {

// How one trial ended, and what it left in the folder.
struct Ending {
    bool Killed = false;
    bool Persisted = false; // the person tries again what failed, and has done so
    bool Failed = false;    // crashed, hung, did not come to its end, or a check in it failed
    long Counted = 0;       // calls
    long Hit = 0;           // calls that the plan had an effect on
    Words Said;
    std::vector<Call> Calls;
    Content Left;
};

// Plays an operation up to its beginning once, in a process of its own, and from there on as often as it is
// asked, each time in a fork of that process and on the same folder.
class Theatre {
public:
    explicit Theatre(const Operation& operation);
    ~Theatre();
    Theatre(const Theatre&) = delete;
    Theatre& operator=(const Theatre&) = delete;

    // False if the operation did not come to its beginning.
    [[nodiscard]] bool IsReady() const { return ready_; }
    // What stood in the folder at the beginning, as its users see it.
    [[nodiscard]] const Content& Before() const { return before_; }
    [[nodiscard]] std::string Folder() const { return room_.Folder().string(); }
    // Also kills after so many microseconds, unless that is 0. persists: the person tries again.
    [[nodiscard]] Ending Run(const Plan& plan, long killAfter = 0, bool persists = false);
    // Nothing fails, but another program has added to the file since the operation's windows were opened.
    [[nodiscard]] Ending RunAfterAddition(const std::string& file, const std::string& addition);
    // The next start, on what the last trial left: false if it fails, or if the save of every file leaves
    // behind what the dead one had begun.
    [[nodiscard]] bool StartsAgain() const;

private:
    [[nodiscard]] Content Look() const;
    // In the stage's process; returns in each trial's alone.
    void Serve();
    void Say(const std::string& words);
    [[nodiscard]] bool TriesAgain();
    [[nodiscard]] Ending RunAsLaid(const Plan& plan, long killAfter, bool persists);
    [[nodiscard]] bool HearStatus(int& status) const;

    const Operation& operation_;
    Room room_;
    Content laid_; // as it stands on disk
    Content before_;
    bool ready_ = false;
    pid_t stage_ = -1;
    std::array<int, 2> orders_{-1, -1};
    std::array<int, 2> answers_{-1, -1};
    std::string said_; // in a trial
    long attempts_ = 0;
};

} // namespace gfc::test::faults
