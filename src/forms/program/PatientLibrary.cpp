#include "forms/program/PatientLibrary.h"

namespace gfc::forms {

template <class Call>
auto PatientLibrary::Waiting(Call call) {
    decltype(call()) result{};
    screen_.Busy([&] { result = call(); });
    return result;
}

std::string PatientLibrary::GetProjectFile() {
    return Waiting([this] { return library_.GetProjectFile(); });
}

std::optional<std::vector<project::Station>> PatientLibrary::GetStations() {
    return Waiting([this] { return library_.GetStations(); });
}

project::TagList PatientLibrary::ReadTags(const std::string& station, const std::string& projectFile,
                                          const std::function<void(std::string_view)>& onTag) {
    return Waiting([&] { return library_.ReadTags(station, projectFile, onTag); });
}

void PatientLibrary::AddFileToLoad(const std::string& station, const std::string& local,
                                   const std::string& target) {
    screen_.Busy([&] { library_.AddFileToLoad(station, local, target); });
}

int PatientLibrary::RemoveFileToLoad(const std::string& station, const std::string& local,
                                     const std::string& target) {
    return Waiting([&] { return library_.RemoveFileToLoad(station, local, target); });
}

void PatientLibrary::CoInitialize() {
    screen_.Busy([this] { library_.CoInitialize(); });
}

} // namespace gfc::forms
