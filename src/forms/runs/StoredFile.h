#pragma once

#include <string>

namespace gfc::forms {

struct Program;

// An edit of keys would make a file that has gone anew, with nothing in it but these keys. False if the open
// station's file is not there; a message has then said so, behind what is lost: "The run was not saved."
[[nodiscard]] bool FileIsStillThere(Program& program, const std::string& lost);

} // namespace gfc::forms
