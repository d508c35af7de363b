#include "app/Application.h"

#include "forms/program/StartUp.h"

namespace gfc::app {

bool Application::Start(const project::LibraryLoader& load) {
    std::string error;
    library_ = project::LoadAddOnLibrary(load, machine_.Paths.ExecutableFolder(), error);
    if (library_ == nullptr) {
        screen_.Ask({.Title = "Gas Flow Computer",
                     .Text = "The library of the I/O Workshop could not be loaded.\r\n\r\n" + error,
                     .TheIcon = ui::Icon::Critical});
        return false;
    }
    program_ = std::make_unique<forms::Program>(machine_, *library_, screen_, recorder_);
    program_->Reports = reports_;
    forms::StartProgram(*program_);
    return true;
}

} // namespace gfc::app
