#include "forms/program/Agreement.h"

#include "forms/program/Program.h"

namespace gfc::forms {

bool IsAgreed(Program& program, const std::string& title, const std::string& question,
              const std::string& station) {
    const auto answer = program.Screen.Ask({.Title = title,
                                            .Text = question,
                                            .TheIcon = ui::Icon::Question,
                                            .TheButtons = ui::Buttons::YesNo,
                                            .AtStake = station});
    return answer == ui::Answer::Yes && !program.Screen.Ended();
}

} // namespace gfc::forms
