#pragma once

#include "project/AddOnLibrary.h"
#include "ui/Screen.h"

namespace gfc::forms {

// The add-on library, asked while the person sees that the program waits: how long it takes over an answer is
// its own affair, and no call of it can be broken off.
class PatientLibrary : public project::AddOnLibrary {
public:
    PatientLibrary(project::AddOnLibrary& library, ui::Screen& screen) : library_(library), screen_(screen) {}

    [[nodiscard]] std::string GetProjectFile() override;
    [[nodiscard]] std::optional<std::vector<project::Station>> GetStations() override;
    [[nodiscard]] project::TagList ReadTags(const std::string& station, const std::string& projectFile,
                                            const std::function<void(std::string_view)>& onTag) override;
    void AddFileToLoad(const std::string& station, const std::string& local,
                       const std::string& target) override;
    int RemoveFileToLoad(const std::string& station, const std::string& local,
                         const std::string& target) override;
    void CoInitialize() override;
    [[nodiscard]] std::string Fault() const override { return library_.Fault(); }

private:
    // What the call gives. A library that has shown itself to be no good ends the program in words.
    template <class Call>
    auto Waiting(Call call);
    void Wait(const std::function<void()>& call);

    project::AddOnLibrary& library_;
    ui::Screen& screen_;
};

} // namespace gfc::forms
