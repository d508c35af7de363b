#pragma once

#include "platform/DynamicLibrary.h"
#include "project/AddOnGate.h"
#include "support/TempFolder.h"
#include "support/TestFolders.h"

#include <cstddef>
#include <string>

// The library of tests/tools that answers what none should, and what of its answers must be believed.
namespace gfc::test {

struct HostileWay {
    const char* Name;
    std::size_t Stations; // so many must be believed
    std::size_t Tags;
    int TagsGivenBack; // calls; an empty list is not given back, one that cannot be read is
};

// In the order of the library's own ways.
// clang-format off
inline constexpr HostileWay HostileWays[] = {
    {"null_arrays",         0, 0, 1},
    {"negative_counts",     0, 0, 0},
    {"largest_counts",      0, 0, 1},
    {"one_record_too_many", 0, 0, 1},
    {"wild_pointers",       0, 0, 1},
    {"no_access",           0, 0, 1},
    {"unterminated",        3, 3, 1},
    {"misaligned",          3, 3, 1},
    {"nothing_written",     0, 0, 1},
    {"writes_back",         3, 3, 1},
    {"upsets_floats",       3, 3, 1},
};
// clang-format on

// A folder with the library in it under the name by which it is looked for.
class HostileFolder {
public:
    explicit HostileFolder(const std::string& library = "hostile_library") {
        const std::string name = project::AddOnFileName();
        std::filesystem::copy_file(BinFolder() / (library + name.substr(name.rfind('.'))),
                                   folder_.Path(name));
    }
    [[nodiscard]] std::string Path() const { return folder_.Path(); }
    // Has it answer so, and take its time as delay does.
    static platform::LibraryLoad Load(const std::string& path, std::size_t way, void (*delay)()) {
        auto loaded = platform::LoadLibraryAt(path);
        if (loaded.Library == nullptr)
            return loaded;
        if (auto* const setWay = loaded.Library->FunctionOf<void(int)>("hostile_way"))
            setWay(static_cast<int>(way));
        if (auto* const setDelay = loaded.Library->FunctionOf<void(void (*)())>("hostile_delay"))
            setDelay(delay);
        return loaded;
    }
    // Tells how often a function of the library was called; the library stays when all that knows it has
    // gone.
    static int (*CallsOf(const platform::LibraryLoad& loaded))(const char*) {
        return loaded.Library == nullptr ? nullptr
                                         : loaded.Library->FunctionOf<int(const char*)>("hostile_calls");
    }

private:
    TempFolder folder_;
};

} // namespace gfc::test
