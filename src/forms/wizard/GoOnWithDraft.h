#pragma once

#include "drafts/Draft.h"

#include <string>

namespace gfc::forms {

struct Program;

// Takes up the pass of a draft where it stands, for that station of the project, which need not be the one
// that it was begun for. What stands in the way is said in a box, and the draft then stays as it is.
void GoOnWithDraft(Program& program, drafts::Draft draft, const std::string& station);

} // namespace gfc::forms
