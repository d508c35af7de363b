#pragma once

#include "platform/Files.h"
#include "services/Clock.h"
#include "services/TimeZone.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

// What the program asks of the machine besides files, each behind an interface that a test can stand in for.
// All texts and paths are UTF-8. No call throws.
namespace gfc::platform {

class SingleInstance {
public:
    virtual ~SingleInstance() = default;
    // True if no other running process holds the name; it is then held until this object goes or the process
    // ends, however it ends. On Windows the processes of all users of the machine count, elsewhere those of
    // this user. Where the machine gives no means to tell, true: the program is not kept from running.
    [[nodiscard]] virtual bool Acquire(std::string_view name) = 0;
};

enum class ViewerWindow { Normal, Maximised };

class Launcher {
public:
    virtual ~Launcher() = default;
    // Starts a program, by full path or by a name that is looked for on the search path, with these arguments
    // and without a shell; does not wait for it. False if it could not be started.
    [[nodiscard]] virtual bool Start(const std::string& program,
                                     const std::vector<std::string>& arguments) = 0;
    // Shows a text file in the viewer of the machine, in a window as asked where the machine lets one ask.
    [[nodiscard]] virtual bool OpenTextFile(const std::string& path, ViewerWindow window) = 0;
    // True, once, if the viewer that was started last has ended by now, and badly: it has shown nothing.
    // False too where the machine does not tell.
    [[nodiscard]] virtual bool ViewerFailed() { return false; }
};

class Paths {
public:
    virtual ~Paths() = default;
    // The folder of the running program, without a separator at its end; empty if the machine does not tell.
    [[nodiscard]] virtual std::string ExecutableFolder() = 0;
    // The folder in which a profile that is named without a folder is looked for; empty if there is none.
    [[nodiscard]] virtual std::string ProfileFolder() = 0;
    // The folder of this program among the person's own, for what it must find again itself, without a
    // separator at its end; made if need be. Empty if there is none and none can be made.
    [[nodiscard]] virtual std::string OwnFolder() = 0;
    // The name under which the person is logged on; empty if the machine does not tell.
    [[nodiscard]] virtual std::string UserName() = 0;
};

// The full path of a profile: a name without a folder stands in the profile folder, a path stays as it is.
[[nodiscard]] std::string ProfilePath(Paths& paths, std::string_view name);

[[nodiscard]] std::unique_ptr<services::TimeZone> MakeTimeZone();
[[nodiscard]] std::unique_ptr<services::Clock> MakeClock();
[[nodiscard]] std::unique_ptr<SingleInstance> MakeSingleInstance();
[[nodiscard]] std::unique_ptr<Launcher> MakeLauncher();
[[nodiscard]] std::unique_ptr<Paths> MakePaths();

// From then on the system fails a call on a drive without a disk, or on a damaged library, and puts up no box
// of its own about it, for which a command without a screen would wait for ever.
void SilenceSystem();

// Everything at once, as it is handed through the program; what it names must outlive it.
struct Machine {
    platform::Files& Files;
    services::TimeZone& TimeZone;
    services::Clock& Clock;
    platform::SingleInstance& SingleInstance;
    platform::Launcher& Launcher;
    platform::Paths& Paths;
};

// The machine that the program runs on.
class RealMachine {
public:
    RealMachine();
    [[nodiscard]] Machine Seams();

private:
    std::unique_ptr<Files> files_;
    std::unique_ptr<services::TimeZone> timeZone_;
    std::unique_ptr<services::Clock> clock_;
    std::unique_ptr<SingleInstance> singleInstance_;
    std::unique_ptr<Launcher> launcher_;
    std::unique_ptr<Paths> paths_;
};

} // namespace gfc::platform
