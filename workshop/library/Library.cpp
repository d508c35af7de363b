// The library's C interface. Each call is complete in itself: it asks which project is open, opens the file,
// answers and closes it. Whatever goes wrong ends in the failure result; nothing is thrown across this
// boundary.

#include "project/AddOnInterface.h"
#include "workshop/library/Records.h"
#include "workshop/store/Failure.h"
#include "workshop/store/FilesToLoad.h"
#include "workshop/store/OpenProject.h"
#include "workshop/text/CodePage.h"
#include "workshop/text/Paths.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <vector>

#ifdef _WIN32
#define GFC_EXPORT extern "C" __declspec(dllexport)
#else
#define GFC_EXPORT extern "C" __attribute__((visibility("default")))
#endif

namespace gfc::workshop {

namespace {

using project::StationRecord;
using project::TagRecord;
using project::TagRequest;

// The interface frees the tags without naming them, so that the library has to remember what it lent. Both
// are looked up by address, and a pointer that was never lent, or is handed back twice, is let go by.
struct Lent {
    std::map<void*, std::vector<StationRecord>> Stations;
    std::vector<TagRecord> Tags;
};

Lent& LentRecords() {
    static Lent lent;
    return lent;
}

template <typename Result, typename Call>
Result Guarded(Result failure, Call call) noexcept {
    try {
        return call();
    } catch (...) {
        return failure;
    }
}

std::filesystem::path OpenedProject() {
    const auto recorded = RecordedProject();
    if (!recorded || !std::filesystem::is_regular_file(*recorded)) {
        throw Failure("No project is open.");
    }
    return *recorded;
}

std::string TextOf(const char* argument) {
    return argument == nullptr ? std::string{} : FromCodePage(argument);
}

std::int32_t HandOutPath(std::span<char> buffer) {
    std::fill(buffer.begin(), buffer.end(), '\0');
    const std::string path = PathText(OpenedProject());
    if (!FitsCodePage(path) || CharacterCount(path) >= buffer.size()) {
        return 0;
    }
    FillField(buffer, path);
    return 1;
}

std::int16_t LendStations(std::int32_t& count, void*& stations) {
    Project project = Project::Open(OpenedProject(), Access::Read);
    std::vector<StationRecord> records = StationRecords(project);
    if (!records.empty()) {
        count = static_cast<std::int32_t>(records.size());
        stations = records.data();
        LentRecords().Stations.emplace(stations, std::move(records));
    }
    return 1;
}

// A request without a path means the project that is open.
std::filesystem::path ProjectOf(const TagRequest& request) {
    const std::string path = FromField(request.ProjectFile);
    return path.empty() ? OpenedProject() : PathOf(path);
}

std::int32_t LendTags(const TagRequest& request, void*& tags) {
    Project project = Project::Open(ProjectOf(request), Access::Read);
    std::vector<TagRecord>& lent = LentRecords().Tags;
    lent = TagRecords(project, FromField(request.Station));
    if (!lent.empty()) {
        tags = lent.data();
    }
    return static_cast<std::int32_t>(lent.size());
}

bool EnterFile(const char* station, const char* local, const char* target, std::int32_t flag) {
    const FileToLoad file{TextOf(station), TextOf(local), TextOf(target), flag};
    if (file.Local.empty() || file.Target.empty()) {
        return false;
    }
    Project project = Project::Open(OpenedProject(), Access::Write);
    return AddFileToLoad(project, file);
}

bool TakeFileOut(const char* station, const char* target) {
    Project project = Project::Open(OpenedProject(), Access::Write);
    return RemoveFileToLoad(project, TextOf(station), TextOf(target));
}

} // namespace

} // namespace gfc::workshop

using namespace gfc::workshop;

/// 1, or 0 with a buffer of NUL when no project is open or its path does not fit.
GFC_EXPORT std::int32_t GFC_ADDON_CALL kdaddon_VBGetProjectFile(char* buffer, std::int32_t size) {
    if (buffer == nullptr || size <= 0) {
        return 0;
    }
    return Guarded(0, [&] { return HandOutPath({buffer, static_cast<std::size_t>(size)}); });
}

/// 1 also for a project without stations, whose count is 0 and whose pointer is null. The number and the text
/// are taken as they come.
GFC_EXPORT std::int16_t GFC_ADDON_CALL kdaddon_VBGetStaList(std::int32_t* count, void** stations,
                                                            std::int32_t /*one*/, char* /*text*/) {
    if (count == nullptr || stations == nullptr) {
        return 0;
    }
    *count = 0;
    *stations = nullptr;
    return Guarded(std::int16_t{0}, [&] { return LendStations(*count, *stations); });
}

GFC_EXPORT void GFC_ADDON_CALL kdaddon_VBFreeData(void* stations) {
    Guarded(0, [&] { return static_cast<int>(LentRecords().Stations.erase(stations)); });
}

/// The number of tags; 0 for a station without tags or one that is unknown; -1 when the project cannot be
/// read. What an earlier call lent ends here.
GFC_EXPORT std::int32_t GFC_ADDON_CALL kdaddon_VBReadTagList(TagRequest* request, void** tags) {
    if (request == nullptr || tags == nullptr) {
        return -1;
    }
    *tags = nullptr;
    return Guarded(-1, [&] { return LendTags(*request, *tags); });
}

GFC_EXPORT void GFC_ADDON_CALL kdaddon_VBFreeTagList() {
    Guarded(0, [] {
        std::vector<TagRecord>().swap(LentRecords().Tags);
        return 1;
    });
}

/// 1, or 0 for an unknown station, an empty path or a project that cannot be written. Repeatable: a station
/// has one entry per target, and the last local path given counts. The text is left as it is.
GFC_EXPORT std::int32_t GFC_ADDON_CALL kdaddon_VBAddFileToLoad(char* station, char* local, char* target,
                                                               std::int32_t flag, char* /*text*/) {
    return Guarded(0, [&] { return EnterFile(station, local, target, flag) ? 1 : 0; });
}

/// 1 when an entry was taken out; 0 when there was none, which harms nothing, or it could not be done. The
/// local path is not compared, as the project may have been moved since.
GFC_EXPORT std::int16_t GFC_ADDON_CALL kdaddon_VBRemoveFileToLoad(char* station, char* /*local*/,
                                                                  char* target, char* /*text*/) {
    return Guarded(std::int16_t{0},
                   [&] { return static_cast<std::int16_t>(TakeFileOut(station, target) ? 1 : 0); });
}

GFC_EXPORT void GFC_ADDON_CALL kdaddon_VBCoInitialize() {} // nothing here needs to be set up

GFC_EXPORT void GFC_ADDON_CALL kdaddon_VBCoUninitialize() {}

/// There for completeness: always 0, nothing done.
GFC_EXPORT std::int16_t GFC_ADDON_CALL kdaddon_VBGetFilesToLoadList() {
    return 0;
}

/// There for completeness: always 0, nothing done.
GFC_EXPORT std::int16_t GFC_ADDON_CALL kdaddon_VBSetStaParam() {
    return 0;
}
