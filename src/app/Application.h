#pragma once

#include "forms/program/Program.h"
#include "platform/Machine.h"
#include "project/AddOnGate.h"

#include <memory>

namespace gfc::app {

// The program's objects, put together before any screen: the window's or another.
class Application {
public:
    // The machine's parts, the screen, the recorder and the writer must outlive it. Without a writer (null)
    // no reports are made.
    Application(platform::Machine machine, ui::Screen& screen, config::Recorder& recorder,
                audit::ReportWriter* reports = nullptr)
        : machine_(machine), screen_(screen), recorder_(recorder), reports_(reports) {}

    // Loads the add-on library from the program's own folder and shows the first window. False, once a box
    // has said why, if there is no library to work with.
    [[nodiscard]] bool Start(const project::LibraryLoader& load);
    // Null before a start that went well.
    [[nodiscard]] forms::Program* Program() const { return program_.get(); }

private:
    platform::Machine machine_;
    ui::Screen& screen_;
    config::Recorder& recorder_;
    audit::ReportWriter* reports_;
    std::unique_ptr<project::AddOnLibrary> library_;
    std::unique_ptr<forms::Program> program_;
};

} // namespace gfc::app
