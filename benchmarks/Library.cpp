#include "Library.h"

#include "project/AddOnGate.h"
#include "project/AddOnInterface.h"

#include <string_view>

namespace gfc::bench {

namespace {

// A C interface has nowhere else to keep it.
const std::vector<project::TagRecord>* delivered = nullptr;

std::int32_t ReadTagList(project::TagRequest*, void** tags) {
    *tags = const_cast<project::TagRecord*>(delivered->data());
    return static_cast<std::int32_t>(delivered->size());
}

void Nothing() {}

class RecordLibrary : public platform::DynamicLibrary {
public:
    [[nodiscard]] void* Symbol(const char* name) const override {
        // The others are never called here.
        return std::string_view(name) == "kdaddon_VBReadTagList" ? reinterpret_cast<void*>(&ReadTagList)
                                                                 : reinterpret_cast<void*>(&Nothing);
    }
};

} // namespace

std::unique_ptr<project::AddOnLibrary> LibraryOver(const std::vector<project::TagRecord>& records) {
    delivered = &records;
    std::string error;
    return project::LoadAddOnLibrary(
        [](const std::string&) {
            return platform::LibraryLoad{std::make_unique<RecordLibrary>(), {}};
        },
        "/opt/gfc", error);
}

} // namespace gfc::bench
