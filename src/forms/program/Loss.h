#pragma once

#include "forms/program/Program.h"

#include <string>

namespace gfc::forms {

// Asks, with the given words, whether what belongs to the station in hand may go: the box names the station
// below them, and Enter alone answers No. True for Yes, while the program goes on.
[[nodiscard]] inline bool MayLose(Program& program, const std::string& title, const std::string& text,
                                  ui::Icon icon = ui::Icon::None) {
    const auto answer = program.Screen.Ask({.Title = title,
                                            .Text = text,
                                            .TheIcon = icon,
                                            .TheButtons = ui::Buttons::YesNo,
                                            .AtStake = program.Session.Station.CurrentStation});
    return answer == ui::Answer::Yes && !program.Screen.Ended();
}

} // namespace gfc::forms
