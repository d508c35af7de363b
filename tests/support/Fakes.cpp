#include "support/Fakes.h"

#include <algorithm>

namespace gfc::test {

bool FakeLauncher::Start(const std::string& program, const std::vector<std::string>& arguments) {
    std::string command = program;
    for (const auto& argument : arguments)
        command += " " + argument;
    Started.push_back(command);
    return Works;
}

bool FakeLauncher::OpenTextFile(const std::string& path, platform::ViewerWindow) {
    Started.push_back("view " + path);
    return Works;
}

std::string FakeLibrary::GetProjectFile() {
    Calls.emplace_back("GetProjectFile");
    return ProjectFile;
}

std::optional<std::vector<project::Station>> FakeLibrary::GetStations() {
    Calls.emplace_back("GetStations");
    return StationListWorks ? std::optional(Stations) : std::nullopt;
}

project::TagList FakeLibrary::ReadTags(const std::string& station, const std::string&,
                                       const std::function<void(std::string_view)>& onTag) {
    Calls.push_back("ReadTags " + station);
    if (WhileAsked)
        WhileAsked();
    const auto found = TagsOf.find(station);
    if (found == TagsOf.end())
        return {};
    for (const auto& tag : found->second)
        if (onTag)
            onTag(tag.TagName);
    return found->second;
}

void FakeLibrary::AddFileToLoad(const std::string& station, const std::string& local,
                                const std::string& target) {
    Calls.push_back("AddFileToLoad " + station);
    const std::tuple entry{station, local, target};
    if (std::find(FilesToLoad.begin(), FilesToLoad.end(), entry) == FilesToLoad.end())
        FilesToLoad.push_back(entry);
}

int FakeLibrary::RemoveFileToLoad(const std::string& station, const std::string& local,
                                  const std::string& target) {
    Calls.push_back("RemoveFileToLoad " + station);
    return static_cast<int>(std::erase(FilesToLoad, std::tuple{station, local, target}));
}

project::TagList TagsInModule(const std::string& module, const std::string& moduleType,
                              const std::string& regType, const std::string& stem, int count,
                              int firstRegister) {
    project::TagList tags;
    for (int i = 0; i < count; ++i)
        tags.push_back({stem + std::to_string(i + 1), firstRegister + i, regType, module, moduleType});
    return tags;
}

project::TagList& operator+=(project::TagList& tags, const project::TagList& more) {
    tags.insert(tags.end(), more.begin(), more.end());
    return tags;
}

project::TagList LargeStationTags(int freeFloats) {
    project::TagList tags = TagsInModule("VL0", "Virtual LI", "LX", "LLOG-", 8);
    tags += TagsInModule("VL1", "Virtual LI", "LX", "PI-", 10, 101);
    tags += TagsInModule("VA0", "Virtual AI", "AX", "ALOG-", 32);
    tags += TagsInModule("AI-8", "Physical AI", "AX", "AI-", 20, 201);
    tags += TagsInModule("AO-8", "Physical AO", "AY", "AO-", 20, 301);
    tags += TagsInModule("VF0", "Virtual FI", "FX", "FLOG-", 128);
    tags += TagsInModule("VF1", "Virtual FI", "FX", "FT-", freeFloats, 1001);
    tags += TagsInModule("DI-16", "Physical DI", "X", "XS-", 40, 401);
    tags += TagsInModule("DO-16", "Physical DO", "Y", "XV-", 40, 501);
    return tags;
}

} // namespace gfc::test
