#include "platform/Console.h"

#include "platform/windows/Wide.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

namespace gfc::platform {

namespace {

std::atomic<bool> noting = false;
std::atomic<bool> interrupted = false; // the system tells of it on a thread of its own
UINT pageBefore = 0;                   // the console's, which outlives this program; 0 without a console

void PutPageBack() {
    if (pageBefore != 0)
        ::SetConsoleOutputCP(pageBefore);
}

BOOL WINAPI Note(DWORD event) {
    const bool keys = event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT;
    if (keys && noting && !interrupted.exchange(true))
        return TRUE;
    PutPageBack(); // the program ends
    return FALSE;
}

} // namespace

// The arguments that a program gets by itself are in the machine's own code page, which holds few of the
// names that a folder can have.
std::vector<std::string> ConsoleArguments(int, const char* const*) {
    pageBefore = ::GetConsoleOutputCP();
    ::SetConsoleOutputCP(CP_UTF8);
    std::atexit(PutPageBack);
    ::SetConsoleCtrlHandler(Note, TRUE);
    // What is given out may be a file of a station or a report, whose line ends are its own.
    for (FILE* const stream : {stdout, stderr})
        (void)::_setmode(::_fileno(stream), _O_BINARY);
    int count = 0;
    wchar_t** const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; words != nullptr && i < count; ++i)
        arguments.push_back(windows::Utf8(words[i]));
    ::LocalFree(words);
    return arguments;
}

bool GoesToScreen(Stream stream) {
    return ::_isatty(::_fileno(stream == Stream::Results ? stdout : stderr)) != 0;
}

void NoteInterrupts() {
    noting = true;
}

bool WasInterrupted() {
    return interrupted;
}

} // namespace gfc::platform
