#include "platform/windows/LibraryFile.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <optional>

namespace gfc::platform::windows {
namespace {

struct Machine {
    WORD Code; // as a library's header names it
    const char* Name;
};

constexpr std::array<Machine, 5> Machines = {{
    {0x014C, "32-bit"},
    {0x8664, "64-bit"},
    {0x01C4, "32-bit ARM"},
    {0xAA64, "64-bit ARM"},
    {0x0200, "64-bit Itanium"},
}};

#ifdef _WIN64
constexpr WORD OwnMachine = 0x8664;
#else
constexpr WORD OwnMachine = 0x014C;
#endif

const char* NameOf(WORD code) {
    for (const Machine& machine : Machines)
        if (machine.Code == code)
            return machine.Name;
    return "foreign";
}

template <class Value>
std::optional<Value> ValueAt(const std::string& bytes, std::size_t at) {
    Value value{};
    if (at > bytes.size() || bytes.size() - at < sizeof value)
        return std::nullopt;
    std::memcpy(&value, bytes.data() + at, sizeof value);
    return value;
}

// The file's first bytes, in which a library of any making has its header.
std::string StartOf(const std::string& path) {
    std::string bytes(4096, '\0');
    const Handle file(::CreateFileW(Wide(path).c_str(), GENERIC_READ,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD got = 0;
    if (!file || !::ReadFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &got, nullptr))
        got = 0;
    bytes.resize(got);
    return bytes;
}

// The machine that the library is made for; nothing if it has no such header.
std::optional<WORD> MachineOf(const std::string& path) {
    const std::string start = StartOf(path);
    const auto header = ValueAt<std::uint32_t>(start, 60);
    if (!start.starts_with("MZ") || !header)
        return std::nullopt;
    if (ValueAt<std::uint32_t>(start, *header) != 0x4550u) // "PE" and two NUL
        return std::nullopt;
    return ValueAt<WORD>(start, *header + 4);
}

std::string ReasonAgainstFormat(const std::string& path) {
    const auto machine = MachineOf(path);
    if (!machine)
        return "it is no library of Windows, or a damaged one. Install it again.";
    if (*machine == OwnMachine)
        return "it is damaged, or one of the libraries that it stands on is made for another width of "
               "addresses. Install it again.";
    const std::string its = NameOf(*machine);
    const std::string own = NameOf(OwnMachine);
    return "it is a " + its + " library, and this is the " + own + " form of the program. Put the " + its +
           " form of the program beside it, or the " + own + " library in its place.";
}

bool Stands(const std::string& path) {
    return ::GetFileAttributesW(Wide(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

} // namespace

std::string ReasonAgainstLibrary(const std::string& path, DWORD error) {
    if (error == ERROR_BAD_EXE_FORMAT)
        return ReasonAgainstFormat(path);
    if (error == ERROR_MOD_NOT_FOUND && Stands(path))
        return "it stands there, but a library that it needs does not. Install the I/O Workshop again.";
    return ErrorText(error, path);
}

} // namespace gfc::platform::windows
