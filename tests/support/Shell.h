#pragma once

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <string>
#ifndef _WIN32
#include <sys/wait.h>
#endif

namespace gfc::test {

// What became of a command.
struct Outcome {
    int Status = -1;
    std::string Output; // what it wrote on either stream, byte for byte
};

#ifdef _WIN32
inline FILE* OpenShell(std::string command) {
    std::ranges::replace(command, '\'', '"');
    // The shell takes the outer quotes away.
    command = '"' + command + '"';
    return ::_wpopen(std::filesystem::path(std::u8string(command.begin(), command.end())).c_str(), L"rb");
}
inline int CloseShell(FILE* pipe) {
    return ::_pclose(pipe);
}
#else
inline FILE* OpenShell(const std::string& command) {
    return ::popen(command.c_str(), "r");
}
inline int CloseShell(FILE* pipe) {
    const int status = ::pclose(pipe);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}
#endif

// Has the machine's shell run a command; single quotes hold a word together.
inline Outcome RunInShell(const std::string& command) {
    FILE* pipe = OpenShell(command + " 2>&1");
    Outcome outcome;
    std::array<char, 4096> part{};
    while (const std::size_t size = std::fread(part.data(), 1, part.size(), pipe))
        outcome.Output.append(part.data(), size);
    outcome.Status = CloseShell(pipe);
    return outcome;
}

} // namespace gfc::test
