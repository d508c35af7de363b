#pragma once

#include "faults/Theatre.h"

#include <string>

// What may be found in the folder after an operation that something was done to.
namespace gfc::test::faults {

// How the files were found that the operation is about.
enum class Found { Old, New, Between, Torn };

struct Verdict {
    Found TheFound = Found::Old;
    std::string Fault;    // empty: nothing is wrong
    bool NotTold = false; // something is not stored, and nobody was told
    bool Behind = false;  // a record lacks an entry that the next start has to make up
};

// Whether the person knows that the record lacks an entry, or that nobody can tell what stands there.
[[nodiscard]] bool IsToldOfRecord(const Ending& ending);

class Judge {
public:
    // after: what the operation leaves where nothing fails.
    Judge(const Operation& operation, const Content& before, const Content& after)
        : operation_(operation), before_(before), after_(after) {}

    // untidy: the process died, or could not take away what it had put beside the file.
    [[nodiscard]] Verdict Of(const Ending& ending, bool untidy) const;
    // Of a failure in the record alone: all else must be as if it had not been. Empty if it is.
    [[nodiscard]] std::string HeldUp(const Ending& ending) const;

private:
    [[nodiscard]] Found FoundAt(const std::string& name, const Entry* now) const;
    [[nodiscard]] bool IsBetween(const std::string& name, const Entry* now) const;
    [[nodiscard]] std::string RefusedInVain(const Ending& ending) const;
    [[nodiscard]] bool IsStored(const Ending& ending) const;
    [[nodiscard]] bool IsMissed(const std::string& record, const Content& left) const;
    void JudgeRecord(const std::string& name, const Ending& ending, Verdict& verdict) const;
    void JudgeWords(const Ending& ending, Verdict& verdict) const;

    const Operation& operation_;
    const Content& before_;
    const Content& after_;
};

// The order of things that a loss of power would show and a death of the process does not: no file is put in
// its place before its bytes are flushed, and its folder is flushed after it. Empty if it is kept.
[[nodiscard]] std::string FaultInOrder(const std::vector<Call>& calls);

} // namespace gfc::test::faults
