#include "platform/Machine.h"
#include "platform/posix/Descriptor.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace gfc::platform {
namespace {

using posix::Descriptor;

constexpr const char* TextViewer = "xdg-open";

bool IsProgram(const std::string& path) {
    struct stat state {};
    return ::stat(path.c_str(), &state) == 0 && S_ISREG(state.st_mode) && ::access(path.c_str(), X_OK) == 0;
}

std::optional<std::string> OnSearchPath(const std::string& name) {
    const char* variable = std::getenv("PATH");
    std::string_view folders = variable ? variable : "";
    while (!folders.empty()) {
        const std::string_view folder = folders.substr(0, folders.find(':'));
        folders.remove_prefix(std::min(folder.size() + 1, folders.size()));
        // An entry that is no full path would mean whatever folder the program happens to stand in.
        std::string candidate = std::string(folder) + '/' + name;
        if (folder.starts_with('/') && IsProgram(candidate))
            return candidate;
    }
    return std::nullopt;
}

std::optional<std::string> Resolve(const std::string& program) {
    if (program.find('/') == std::string::npos)
        return program.empty() ? std::nullopt : OnSearchPath(program);
    return IsProgram(program) ? std::optional(program) : std::nullopt;
}

// What the new process needs, made before it exists: between fork and exec only plain system calls are safe.
struct Command {
    Command(std::string path, const std::vector<std::string>& arguments) : Path(std::move(path)) {
        Words.push_back(Path);
        Words.insert(Words.end(), arguments.begin(), arguments.end());
        for (std::string& word : Words)
            Pointers.push_back(word.data());
        Pointers.push_back(nullptr);
    }
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

    std::string Path;
    std::vector<std::string> Words;
    std::vector<char*> Pointers;
};

// Runs in the grandchild. Its own session, so that it outlives this program; a failure to start goes down the
// pipe.
[[noreturn]] void Become(const Command& command, int report) {
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
    ::signal(SIGPIPE, SIG_DFL);
    const int empty = ::open("/dev/null", O_RDWR);
    if (empty >= 0)
        ::dup2(empty, STDIN_FILENO);
    ::execv(command.Path.c_str(), command.Pointers.data());
    const int error = errno;
    (void)!::write(report, &error, sizeof error);
    ::_exit(127);
}

// Keeps nothing that this program has open, its locks least of all: the watch may outlive it.
int KeepOnly(int end) {
    constexpr int kept = STDERR_FILENO + 1;
    if (end != kept)
        ::dup2(end, kept);
    ::close_range(kept + 1, ~0U, 0);
    return kept;
}

// Runs in the grandchild, which starts the program in its turn, and says a word if that ends badly.
[[noreturn]] void Watch(const Command& command, int report, int outcome) {
    const pid_t watched = ::fork();
    if (watched == 0)
        Become(command, report);
    const int out = KeepOnly(outcome);
    int status = 0;
    while (watched > 0 && ::waitpid(watched, &status, 0) < 0 && errno == EINTR) {
    }
    if (watched < 0 || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
        (void)!::write(out, "x", 1);
    ::_exit(0);
}

// Runs in the child, which ends at once: the grandchild then belongs to the system, and leaves no zombie
// here. An outcome of -1 is that of a program that nobody watches.
[[noreturn]] void StepAside(const Command& command, int report, int outcome) {
    ::setsid();
    const pid_t grandchild = ::fork();
    if (grandchild == 0)
        outcome < 0 ? Become(command, report) : Watch(command, report, outcome);
    ::_exit(grandchild < 0 ? 1 : 0);
}

// True if the child could start its own; who ignores SIGCHLD has no child left to ask, and then the pipe
// tells.
bool ChildSucceeded(pid_t child) {
    int status = 0;
    pid_t waited = -1;
    do
        waited = ::waitpid(child, &status, 0);
    while (waited < 0 && errno == EINTR);
    return waited < 0 || (WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

// The pipe closes without a word when the program has started.
bool HeardNothing(int report) {
    int error = 0;
    ssize_t got = -1;
    do
        got = ::read(report, &error, sizeof error);
    while (got < 0 && errno == EINTR);
    return got == 0;
}

struct Pipe {
    Descriptor Reader, Writer;
};

std::optional<Pipe> MakePipe(int flags) {
    std::array<int, 2> ends{-1, -1};
    if (::pipe2(ends.data(), O_CLOEXEC | flags) != 0)
        return std::nullopt;
    return Pipe{Descriptor(ends[0]), Descriptor(ends[1])};
}

bool Launch(const std::string& program, const std::vector<std::string>& arguments, int outcome) {
    const auto path = Resolve(program);
    auto report = MakePipe(0);
    if (!path || !report)
        return false;
    const Command command(*path, arguments);
    const pid_t child = ::fork();
    if (child == 0)
        StepAside(command, report->Writer.Get(), outcome);
    (void)report->Writer.Close();
    return child > 0 && ChildSucceeded(child) && HeardNothing(report->Reader.Get());
}

class PosixLauncher : public Launcher {
public:
    bool Start(const std::string& program, const std::vector<std::string>& arguments) override {
        return Launch(program, arguments, -1);
    }

    // Nobody but the viewer itself knows here how its window is to stand.
    bool OpenTextFile(const std::string& path, ViewerWindow) override {
        auto outcome = MakePipe(O_NONBLOCK);
        if (!outcome || !Launch(TextViewer, {path}, outcome->Writer.Get()))
            return false;
        outcome_ = std::move(outcome->Reader);
        return true;
    }

    bool ViewerFailed() override {
        char word = 0;
        const auto said = outcome_ ? ::read(outcome_.Get(), &word, 1) : 0;
        if (said >= 0)
            outcome_ = Descriptor();
        return said > 0;
    }

private:
    Descriptor outcome_; // of the viewer that was started last
};

} // namespace

std::unique_ptr<Launcher> MakeLauncher() {
    return std::make_unique<PosixLauncher>();
}

} // namespace gfc::platform
