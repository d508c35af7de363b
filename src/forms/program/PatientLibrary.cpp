#include "forms/program/PatientLibrary.h"

#include <cstdlib>

namespace gfc::forms {

template <class Call>
auto PatientLibrary::Waiting(Call call) {
    decltype(call()) result{};
    Wait([&] { result = call(); });
    return result;
}

void PatientLibrary::Wait(const std::function<void()>& call) {
    screen_.Busy(call);
    if (library_.Fault().empty() || screen_.Ended())
        return;
    screen_.Ask(
        {.Title = "Gas Flow Computer",
         .Text = "The library of the I/O Workshop cannot be used.\r\n\r\n" + library_.Fault() +
                 "\r\n\r\nThe program ends here. Put the library of your I/O Workshop back in its place.",
         .TheIcon = ui::Icon::Critical});
    screen_.EndProgram(EXIT_FAILURE);
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
    Wait([&] { library_.AddFileToLoad(station, local, target); });
}

int PatientLibrary::RemoveFileToLoad(const std::string& station, const std::string& local,
                                     const std::string& target) {
    return Waiting([&] { return library_.RemoveFileToLoad(station, local, target); });
}

void PatientLibrary::CoInitialize() {
    Wait([this] { library_.CoInitialize(); });
}

} // namespace gfc::forms
