#include "fuzz/Input.h"
#include "fuzz/Target.h"
#include "project/AddOnGate.h"
#include "project/Project.h"
#include "project/Requirements.h"
#include "project/WireRecords.h"
#include "services/CodePage.h"

#include <algorithm>
#include <memory>
#include <vector>

// Any bytes as what the add-on library hands over: the project's path, the stations, a station's tags.
namespace gfc::fuzz {

namespace {

using project::StationRecord;
using project::TagRecord;

// The least that the library may write back behind a text that it was given.
constexpr std::size_t textRoom = 255;

// What the library answers. The interface is one of C functions, which know no object.
struct Answers {
    std::string_view ProjectFile;
    std::int32_t Result = 0;
    std::int32_t Count = 0; // beyond the records that there are only if there is no array
    std::vector<char> Array;
    std::size_t Start = 0; // records start at any address
    bool IsLent = false;

    [[nodiscard]] void* Records() { return Array.size() > Start ? Array.data() + Start : nullptr; }
};

Answers& TheAnswers() {
    static Answers answers;
    return answers;
}

std::int32_t GetProjectFile(char* buffer, std::int32_t size) {
    const auto& answers = TheAnswers();
    answers.ProjectFile.copy(buffer, static_cast<std::size_t>(size));
    return answers.Result;
}

std::int16_t GetStaList(std::int32_t* count, void** stations, std::int32_t /*one*/, char* /*text*/) {
    auto& answers = TheAnswers();
    *count = answers.Count;
    *stations = answers.Records();
    answers.IsLent = answers.Count > 0 && *stations != nullptr && answers.Result != 0;
    return static_cast<std::int16_t>(answers.Result != 0);
}

void FreeData(void* stations) {
    Require(TheAnswers().IsLent && stations == TheAnswers().Records(), "what was lent is given back");
    TheAnswers().IsLent = false;
}

std::int32_t ReadTagList(project::TagRequest* /*request*/, void** tags) {
    auto& answers = TheAnswers();
    *tags = answers.Records();
    answers.IsLent = answers.Count > 0;
    return answers.Count;
}

void FreeTagList() {
    Require(TheAnswers().IsLent, "only a list that was lent is given back");
    TheAnswers().IsLent = false;
}

std::int32_t AddFileToLoad(char* station, char* local, char* target, std::int32_t /*flag*/, char* text) {
    for (char* argument : {station, local, target, text})
        TheAnswers().ProjectFile.copy(argument, textRoom);
    return TheAnswers().Result;
}

std::int16_t RemoveFileToLoad(char* station, char* local, char* target, char* text) {
    return static_cast<std::int16_t>(AddFileToLoad(station, local, target, 0, text));
}

void Nothing() {}

class AnyLibrary : public platform::DynamicLibrary {
public:
    [[nodiscard]] void* Symbol(const char* name) const override {
        const std::string_view called = name;
        if (called == "kdaddon_VBGetProjectFile")
            return reinterpret_cast<void*>(GetProjectFile);
        if (called == "kdaddon_VBGetStaList")
            return reinterpret_cast<void*>(GetStaList);
        if (called == "kdaddon_VBFreeData")
            return reinterpret_cast<void*>(FreeData);
        if (called == "kdaddon_VBReadTagList")
            return reinterpret_cast<void*>(ReadTagList);
        if (called == "kdaddon_VBFreeTagList")
            return reinterpret_cast<void*>(FreeTagList);
        if (called == "kdaddon_VBAddFileToLoad")
            return reinterpret_cast<void*>(AddFileToLoad);
        if (called == "kdaddon_VBRemoveFileToLoad")
            return reinterpret_cast<void*>(RemoveFileToLoad);
        return reinterpret_cast<void*>(Nothing);
    }
};

project::AddOnLibrary& Library() {
    static std::string error;
    static const auto library = project::LoadAddOnLibrary(
        [](const std::string&) {
            return platform::LibraryLoad{std::make_unique<AnyLibrary>(), {}};
        },
        "/", error);
    return *library;
}

// The number of records that the bytes hold, if the library tells the truth; none, or a number below zero, if
// it does not. Nobody could see through a number that is too high.
std::int32_t CountIn(std::size_t bytes, std::size_t record, std::uint8_t claim) {
    if (claim >= 0xF0)
        return static_cast<std::int32_t>(claim) - 0x100;
    return static_cast<std::int32_t>(std::min<std::size_t>(bytes / record, claim));
}

void Lend(std::string_view records, std::size_t size, std::uint8_t claim) {
    Answers& answers = TheAnswers();
    answers.Start = claim % 2;
    answers.Count = CountIn(records.size(), size, claim);
    answers.Array.assign(records.empty() ? 0 : answers.Start, '\0');
    answers.Array.insert(answers.Array.end(), records.begin(), records.end());
    answers.IsLent = false;
}

void CheckText(const std::string& text, std::size_t width) {
    Require(text.find('\0') == std::string::npos, "a text ends at its first NUL");
    const auto bytes = services::ToCodePage(text);
    Require(bytes && bytes->size() <= width, "a text ends at the width of its field");
}

// Whatever a name holds, its file stands in the project's folder.
void CheckFileOf(const project::Project& opened, const std::string& station) {
    const std::string file = opened.ConfigFileOf(station);
    if (file.empty())
        return;
    Require(file.starts_with(opened.Paths.ConfigFilePrefix), "the file stands in the project's folder");
    const auto name = file.substr(opened.Paths.ConfigFilePrefix.size());
    Require(name.find_first_of(std::string_view("/\\\r\n\0", 5)) == std::string::npos,
            "a name leads nowhere else");
}

void TakeStations() {
    project::Project opened;
    if (LoadProject(Library(), opened) != project::LoadOutcome::Loaded)
        return;
    opened.Paths = config::PathsOf(opened.ProjectFile);
    for (const auto& station : opened.Stations) {
        CheckText(station.Name, sizeof(StationRecord::Name));
        CheckText(station.Type, sizeof(StationRecord::Type));
        CheckText(station.Address, sizeof(StationRecord::Address));
        CheckFileOf(opened, station.Name);
    }
    const std::string& name = opened.Stations.front().Name;
    Library().AddFileToLoad(name, opened.ConfigFileOf(name), "target");
    (void)Library().RemoveFileToLoad(name, opened.ConfigFileOf(name), "target");
}

void SortTags(const project::TagList& tags) {
    project::TagInventory inventory;
    BuildInventory(tags, inventory);
    project::WorkingModuleCandidates candidates;
    (void)ChooseWorkingModules(inventory, candidates);
    const std::string module = tags.empty() ? "" : tags.front().ModuleName;
    BuildAvailableLists(inventory, {module, module, module}, true);
    const project::StationCapacity capacity{inventory, candidates};
    const int runs = MaximumRuns(capacity, tags.size() % 2 == 0);
    Require(runs >= 0 && runs <= 4, "the number of runs is one that has a text");
    config::WorkingModules working;
    ResolveWorkingModuleRegisters(inventory, {module, module, module}, working);
}

void TakeTags() {
    const auto tags = Library().ReadTags("North", "/jobs/plant.KPJ", nullptr);
    Require(tags.size() <= static_cast<std::size_t>(std::max(TheAnswers().Count, 0)), "no tag is made up");
    for (const auto& tag : tags) {
        CheckText(tag.TagName, sizeof(TagRecord::TagName));
        CheckText(tag.RegType, sizeof(TagRecord::RegType));
        CheckText(tag.ModuleName, sizeof(TagRecord::ModuleName));
        CheckText(tag.ModuleType, sizeof(TagRecord::ModuleType));
    }
    SortTags(tags);
}

} // namespace

void Wire(std::string_view bytes) {
    Input input(bytes);
    const bool ofStations = input.Below(2) == 0;
    const std::uint8_t claim = input.Byte();
    TheAnswers().Result = input.Byte();
    TheAnswers().ProjectFile = ofStations ? input.Text(255) : "";
    Lend(input.Rest(), ofStations ? sizeof(StationRecord) : sizeof(TagRecord), claim);
    if (ofStations)
        TakeStations();
    else
        TakeTags();
    Require(!TheAnswers().IsLent || TheAnswers().Records() == nullptr, "nothing that was lent is kept");
}

} // namespace gfc::fuzz
