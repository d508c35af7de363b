#include "forms/main_window/OfferWorkshop.h"

#include "forms/program/Program.h"
#include "platform/Machine.h"

namespace gfc::forms {

namespace {

#ifdef _WIN32
constexpr const char* WorkshopWindow = "\\io-workshop-window.exe";
#else
constexpr const char* WorkshopWindow = "/io-workshop-window";
#endif

} // namespace

void OfferWorkshop(Program& program) {
    const std::string window = program.Machine.Paths.ExecutableFolder() + WorkshopWindow;
    if (!program.Machine.Files.Exists(window))
        return;
    const auto answer = program.Screen.Ask({.Title = "Gas Flow Computer",
                                            .Text = "No project is open.\r\n\r\nThe window of the workshop "
                                                    "makes and opens projects. Show it now, and start "
                                                    "this program again once a project is open?",
                                            .TheIcon = ui::Icon::Question,
                                            .TheButtons = ui::Buttons::YesNo});
    if (answer == ui::Answer::Yes && !program.Machine.Launcher.Start(window, {}))
        program.Screen.Ask({.Title = "Gas Flow Computer",
                            .Text = window + " could not be started. Start it from the desktop's menu.",
                            .TheIcon = ui::Icon::Exclamation});
}

} // namespace gfc::forms
