#pragma once

#include "config/FileIni.h"
#include "config/Recorder.h"
#include "forms/program/FormStore.h"
#include "forms/program/PatientLibrary.h"
#include "forms/program/Session.h"
#include "forms/program/Storage.h"
#include "ui/Screen.h"

namespace gfc::platform {
struct Machine;
}
namespace gfc::audit {
class ReportWriter;
}

namespace gfc::forms {

// All that a form can reach.
struct Program {
    // All must outlive it.
    Program(platform::Machine& machine, project::AddOnLibrary& library, ui::Screen& screen,
            config::Recorder& recorder);

    platform::Machine& Machine;
    PatientLibrary Library;
    ui::Screen& Screen;
    forms::Storage Storage;
    const config::FileIni& Ini; // reads alone
    config::Recorder& Recorder;
    audit::ReportWriter* Reports = nullptr; // null where none are made; must outlive it
    forms::Session Session;
    FormStore Forms;
};

// A form of this program.
class ProgramForm : public ui::Form {
public:
    ProgramForm(Program& program, std::string name, std::string caption = {})
        : ui::Form(program.Screen, std::move(name), std::move(caption)), program_(program),
          session_(program.Session) {}

protected:
    Program& program_;
    Session& session_;
};

} // namespace gfc::forms
