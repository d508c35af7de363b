#include "platform/Console.h"

#include <csignal>
#include <unistd.h>

namespace gfc::platform {

namespace {

volatile std::sig_atomic_t interrupted = 0; // a signal has nobody else to tell

void Note(int /*signal*/) {
    interrupted = 1;
}

} // namespace

std::vector<std::string> ConsoleArguments(int argc, const char* const* argv) {
    return argc < 2 ? std::vector<std::string>() : std::vector<std::string>(argv + 1, argv + argc);
}

bool GoesToScreen(Stream stream) {
    return ::isatty(stream == Stream::Results ? STDOUT_FILENO : STDERR_FILENO) != 0;
}

void NoteInterrupts() {
    struct sigaction noting = {};
    noting.sa_handler = Note;
    noting.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND); // files are read and written on
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction was = {};
        if (::sigaction(signal, nullptr, &was) == 0 && was.sa_handler != SIG_IGN)
            ::sigaction(signal, &noting, nullptr);
    }
}

bool WasInterrupted() {
    return interrupted != 0;
}

} // namespace gfc::platform
