#pragma once

#include "Library.h"
#include "Material.h"
#include "forms/program/Program.h"
#include "platform/Machine.h"

namespace gfc::bench {

// A project of that many stations, all configured, with the program's own objects over the real machine.
class Plant {
public:
    Plant(ui::Screen& screen, int stations);

    [[nodiscard]] forms::Program& Program() { return program_; }
    [[nodiscard]] std::vector<std::string> StationFiles() const;

private:
    void Configure();

    Folder folder_;
    std::vector<project::TagRecord> noTags_;
    std::unique_ptr<project::AddOnLibrary> library_ = LibraryOver(noTags_);
    platform::RealMachine machine_;
    platform::Machine seams_ = machine_.Seams();
    config::NoRecorder noRecord_;
    forms::Program program_;
};

} // namespace gfc::bench
