// Opens a station of as many tags as its argument says, and tells the highest amount of memory that the
// process has had, in KiB: the library's records, as long as it keeps them, and all that the program makes of
// them.
#include "Material.h"
#include "project/AddOnGate.h"
#include "project/WorkingModules.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

namespace {

using namespace gfc;

// A C interface has nowhere else to keep it. Made by the call and gone with the next, as in a real library.
std::vector<project::TagRecord> delivered;
std::size_t wanted = 0;

std::int32_t ReadTagList(project::TagRequest*, void** tags) {
    delivered = bench::StationRecords(wanted);
    *tags = delivered.data();
    return static_cast<std::int32_t>(delivered.size());
}

void FreeTagList() {
    std::vector<project::TagRecord>().swap(delivered);
}

class TagLibrary : public platform::DynamicLibrary {
public:
    [[nodiscard]] void* Symbol(const char* name) const override {
        return std::string_view(name) == "kdaddon_VBReadTagList" ? reinterpret_cast<void*>(&ReadTagList)
                                                                 : reinterpret_cast<void*>(&FreeTagList);
    }
};

std::string PeakOfProcess() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmHWM:"))
            return line.substr(line.find_first_of("0123456789"));
    return "0";
}

} // namespace

int main(int, char* argv[]) {
    wanted = static_cast<std::size_t>(std::atoll(argv[1]));
    std::string error;
    const auto library = project::LoadAddOnLibrary(
        [](const std::string&) {
            return platform::LibraryLoad{std::make_unique<TagLibrary>(), {}};
        },
        "/opt/gfc", error);
    project::TagInventory inventory;
    project::WorkingModuleCandidates modules;
    const auto tags = library->ReadTags("North", "/jobs/plant.KPJ", {});
    project::BuildInventory(tags, inventory);
    if (!project::ChooseWorkingModules(inventory, modules))
        return EXIT_FAILURE;
    project::BuildAvailableLists(inventory, {"AX-0", "LX-0", "FX-0"}, true);
    std::printf("%s\n", PeakOfProcess().c_str());
    return EXIT_SUCCESS;
}
