#include "project/AddOnGate.h"

#include "platform/Files.h"
#include "platform/ForeignMemory.h"
#include "project/AddOnCall.h"
#include "project/AddOnText.h"
#include "services/CodePage.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <vector>

namespace gfc::project {

namespace {

constexpr std::int32_t projectFileSize = 255;

// The functions that are called.
struct Functions {
    const platform::DynamicLibrary& Library;
    AddOnCall<AddOnGetProjectFile> GetProjectFile{Library, "kdaddon_VBGetProjectFile"};
    AddOnCall<AddOnGetStaList> GetStaList{Library, "kdaddon_VBGetStaList"};
    AddOnCall<AddOnFreeData> FreeData{Library, "kdaddon_VBFreeData"};
    AddOnCall<AddOnReadTagList> ReadTagList{Library, "kdaddon_VBReadTagList"};
    AddOnCall<AddOnFreeTagList> FreeTagList{Library, "kdaddon_VBFreeTagList"};
    AddOnCall<AddOnAddFileToLoad> AddFileToLoad{Library, "kdaddon_VBAddFileToLoad"};
    AddOnCall<AddOnRemoveFileToLoad> RemoveFileToLoad{Library, "kdaddon_VBRemoveFileToLoad"};
    AddOnCall<AddOnCoInitialize> CoInitialize{Library, "kdaddon_VBCoInitialize"};
};

// A field up to its first NUL, or the whole field.
std::string_view BytesOf(const char* field, std::size_t width) {
    const auto* end = static_cast<const char*>(std::memchr(field, '\0', width));
    return {field, end == nullptr ? width : static_cast<std::size_t>(end - field)};
}

std::string TextOf(const char* field, std::size_t width) {
    return services::FromCodePage(BytesOf(field, width));
}

template <std::size_t Width>
std::string TextOf(const char (&field)[Width]) {
    return TextOf(field, Width);
}

// The rest of the field stays NUL; what does not fit is cut.
template <std::size_t Width>
bool PutText(const std::string& text, char (&field)[Width]) {
    const auto bytes = services::ToCodePage(text);
    if (!bytes)
        return false;
    std::memcpy(field, bytes->data(), std::min(bytes->size(), Width));
    return true;
}

// A request that is handed over with room behind it, as texts are.
struct RequestWithRoom {
    TagRequest Request{};
    std::array<char, AddOnTextRoom> Room{};
};

template <class Record>
std::size_t OffsetOf(std::int32_t index) {
    return static_cast<std::size_t>(index) * sizeof(Record);
}

// Record number index of the library's array, which may start at any address.
template <class Record>
Record RecordAt(const void* array, std::int32_t index) {
    Record record;
    std::memcpy(&record, static_cast<const char*>(array) + OffsetOf<Record>(index), sizeof(Record));
    return record;
}

// False for a count or a pointer that cannot be: none, or more records than there is memory to read behind
// it.
template <class Record>
bool HoldsRecords(const void* array, std::int32_t count) {
    if (array == nullptr || count <= 0 || static_cast<std::size_t>(count) > SIZE_MAX / sizeof(Record))
        return false;
    return platform::IsReadable(array, static_cast<std::size_t>(count) * sizeof(Record));
}

Station StationOf(const StationRecord& record) {
    return {TextOf(record.Name), TextOf(record.Type), TextOf(record.Address), record.SerialNumber};
}

// Makes tags of the records of one station, which stay where they are meanwhile: a hundred thousand take as
// long to be copied as to be read. Neighbours mostly stand in one module, and share its texts.
class TagMaker {
public:
    [[nodiscard]] Tag Make(const char* record) {
        if (before_ == nullptr || !SameModule(record)) {
            regType_ = Keep(record + offsetof(TagRecord, RegType), sizeof(TagRecord::RegType));
            moduleName_ = Keep(record + offsetof(TagRecord, ModuleName), sizeof(TagRecord::ModuleName));
            moduleType_ = Keep(record + offsetof(TagRecord, ModuleType), sizeof(TagRecord::ModuleType));
        }
        before_ = record;
        std::int32_t regAddr = 0; // may stand at any address
        std::memcpy(&regAddr, record + offsetof(TagRecord, RegAddr), sizeof regAddr);
        return {Keep(record + offsetof(TagRecord, TagName), sizeof(TagRecord::TagName)), regAddr, regType_,
                moduleName_, moduleType_};
    }

private:
    [[nodiscard]] bool SameModule(const char* record) const {
        constexpr std::size_t type = offsetof(TagRecord, RegType);
        constexpr std::size_t module = offsetof(TagRecord, ModuleName);
        constexpr std::size_t moduleEnd = offsetof(TagRecord, ModuleType) + sizeof(TagRecord::ModuleType);
        return std::memcmp(record + type, before_ + type, sizeof(TagRecord::RegType)) == 0 &&
               std::memcmp(record + module, before_ + module, moduleEnd - module) == 0;
    }
    TagText Keep(const char* field, std::size_t width) {
        const std::string_view bytes = BytesOf(field, width);
        return texts_.Keep(services::IsPlain(bytes) ? bytes
                                                    : std::string_view(services::FromCodePage(bytes)));
    }

    TagTexts texts_;
    const char* before_ = nullptr;
    TagText regType_, moduleName_, moduleType_;
};

class AddOnGate : public AddOnLibrary {
public:
    AddOnGate(std::unique_ptr<platform::DynamicLibrary> library, std::string path)
        : library_(std::move(library)), path_(std::move(path)), call_{*library_} {}

    std::string GetProjectFile() override {
        std::array<char, projectFileSize + AddOnTextRoom> buffer{};
        // Whether a project is open is told by the buffer, not by the result.
        (void)call_.GetProjectFile(fault_, buffer.data(), projectFileSize);
        return fault_.Text.empty() ? TextOf(buffer.data(), projectFileSize) : std::string();
    }

    std::optional<std::vector<Station>> GetStations() override;
    TagList ReadTags(const std::string& station, const std::string& projectFile,
                     const std::function<void(std::string_view)>& onTag) override;
    void AddFileToLoad(const std::string& station, const std::string& local,
                       const std::string& target) override;
    int RemoveFileToLoad(const std::string& station, const std::string& local,
                         const std::string& target) override;
    void CoInitialize() override { call_.CoInitialize(fault_); }
    std::string Fault() const override {
        return fault_.Text.empty() ? std::string() : path_ + ": " + fault_.Text;
    }

private:
    std::unique_ptr<platform::DynamicLibrary> library_;
    std::string path_;
    Functions call_;
    AddOnFault fault_;
};

std::optional<std::vector<Station>> AddOnGate::GetStations() {
    std::int32_t count = 0;
    void* array = nullptr;
    // The library wants 1 and an empty text here.
    InOutText text{{}};
    if (call_.GetStaList(fault_, &count, &array, 1, text.Pointer()) == 0)
        return std::nullopt;
    std::vector<Station> stations;
    if (!HoldsRecords<StationRecord>(array, count))
        return stations;
    for (std::int32_t i = 0; i < count; ++i)
        stations.push_back(StationOf(RecordAt<StationRecord>(array, i)));
    call_.FreeData(fault_, array);
    return stations;
}

TagList AddOnGate::ReadTags(const std::string& station, const std::string& projectFile,
                            const std::function<void(std::string_view)>& onTag) {
    // Blank before each call, since the library writes into it.
    RequestWithRoom handedOver;
    TagRequest& request = handedOver.Request;
    if (!PutText(station, request.Station) || !PutText(projectFile, request.ProjectFile))
        return {};
    void* array = nullptr;
    const std::int32_t count = call_.ReadTagList(fault_, &request, &array);
    // An empty list is deliberately not given back to the library.
    if (count <= 0)
        return {};
    TagList tags;
    const std::int32_t held = HoldsRecords<TagRecord>(array, count) ? count : 0;
    tags.reserve(static_cast<std::size_t>(held));
    TagMaker maker;
    for (std::int32_t i = 0; i < held; ++i) {
        tags.push_back(maker.Make(static_cast<const char*>(array) + OffsetOf<TagRecord>(i)));
        if (onTag)
            onTag(tags.back().TagName);
    }
    call_.FreeTagList(fault_);
    return tags;
}

void AddOnGate::AddFileToLoad(const std::string& station, const std::string& local,
                              const std::string& target) {
    InOutText name(station);
    InOutText from(local);
    InOutText to(target);
    InOutText text{{}};
    if (name.Holds() && from.Holds() && to.Holds())
        (void)call_.AddFileToLoad(fault_, name.Pointer(), from.Pointer(), to.Pointer(), -1, text.Pointer());
}

int AddOnGate::RemoveFileToLoad(const std::string& station, const std::string& local,
                                const std::string& target) {
    InOutText name(station);
    InOutText from(local);
    InOutText to(target);
    InOutText text{{}};
    if (!name.Holds() || !from.Holds() || !to.Holds())
        return 0;
    return call_.RemoveFileToLoad(fault_, name.Pointer(), from.Pointer(), to.Pointer(), text.Pointer());
}

} // namespace

std::string AddOnFileName() {
#ifdef _WIN32
    return "kdaddon_VBwrapper.dll";
#else
    return "kdaddon_VBwrapper.so";
#endif
}

std::unique_ptr<AddOnLibrary> LoadAddOnLibrary(const LibraryLoader& load, const std::string& programFolder,
                                               std::string& error) {
    // Without a folder the path would lead to the root, and to whatever library stands there.
    if (programFolder.empty()) {
        error = "The folder of the program is not known";
        return nullptr;
    }
    const std::string path = programFolder + platform::Separator + AddOnFileName();
    auto loaded = load(path);
    error = loaded.Error;
    if (loaded.Library == nullptr)
        return nullptr;
    for (const auto& function : AddOnFunctions)
        // What is never called may be missing: it would keep nobody from working.
        if (function.Called && FindExport(*loaded.Library, function) == nullptr) {
            error = path + ": the function " + std::string(function.Name) + " is missing";
            return nullptr;
        }
    return std::make_unique<AddOnGate>(std::move(loaded.Library), path);
}

} // namespace gfc::project
