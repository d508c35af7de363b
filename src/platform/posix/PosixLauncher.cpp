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

// Runs in the child, which ends at once: the grandchild then belongs to the system, and leaves no zombie
// here.
[[noreturn]] void StepAside(const Command& command, int report) {
    ::setsid();
    const pid_t grandchild = ::fork();
    if (grandchild == 0)
        Become(command, report);
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

class PosixLauncher : public Launcher {
public:
    bool Start(const std::string& program, const std::vector<std::string>& arguments) override {
        const auto path = Resolve(program);
        std::array<int, 2> ends{-1, -1};
        if (!path || ::pipe(ends.data()) != 0)
            return false;
        Descriptor reader(ends[0]);
        Descriptor writer(ends[1]);
        ::fcntl(reader.Get(), F_SETFD, FD_CLOEXEC);
        ::fcntl(writer.Get(), F_SETFD, FD_CLOEXEC);
        const Command command(*path, arguments);
        const pid_t child = ::fork();
        if (child == 0)
            StepAside(command, writer.Get());
        (void)writer.Close();
        return child > 0 && ChildSucceeded(child) && HeardNothing(reader.Get());
    }

    bool OpenTextFile(const std::string& path) override { return Start(TextViewer, {path}); }
};

} // namespace

std::unique_ptr<Launcher> MakeLauncher() {
    return std::make_unique<PosixLauncher>();
}

} // namespace gfc::platform
