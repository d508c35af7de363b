#pragma once

#include <string>

namespace gfc::forms {

struct Program;

// Asks about something that cannot be had back at once: Enter alone answers No, and the station that it is
// about stands below the question. False too where the program ends meanwhile.
[[nodiscard]] bool IsAgreed(Program& program, const std::string& title, const std::string& question,
                            const std::string& station);

} // namespace gfc::forms
