#pragma once

#include <string>
#include <vector>

// Every call by which this process touches files passes through here, those of the libraries too: the program
// that this is linked into puts its own open, write, rename and so on before the system's. Only calls on what
// stands in the watched folder count.
namespace gfc::test::faults {

enum class Effect {
    Nothing,
    Fails,      // with the error, and nothing is done
    FailsAfter, // it is done, and the error is reported all the same, as over a network
    Half,       // a read or write of more than one byte does half of it
    Kills,      // the process dies before it
    KillsAfter,
};

// What happens to the calls number First to First + Count - 1, counted from 1.
struct Plan {
    Effect TheEffect = Effect::Nothing;
    int Error = 0;
    long First = 0;
    long Count = 1;
};

inline constexpr long WithoutEnd = 1'000'000'000;

struct Call {
    std::string Name;
    std::string Path;  // of a call on an open file: the one it was opened by
    std::string Other; // the second path of a rename or link
    bool Done = false; // the system reported success
};

// While it is watched the folder itself takes no new file and lets none go, as another user's would.
void Close(bool closed);
[[nodiscard]] bool IsClosedTo(const std::string& path);

// Calls on what stands below the folder are counted from now on, and carried out as planned.
void Watch(const std::string& folder, const Plan& plan);
// From now on everything works again; calls are counted and told on.
void Heal();
void Unwatch();
[[nodiscard]] long CallsCounted();
// Calls that the plan had an effect on.
[[nodiscard]] long CallsHit();
[[nodiscard]] const std::vector<Call>& CallsMade();

} // namespace gfc::test::faults
