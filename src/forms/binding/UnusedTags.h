#pragma once

#include "project/TagInventory.h"

#include <string>

namespace gfc::forms {

struct Program;

// Builds the lists of free tags of the station that is open, for an edit of its stored configuration: neither
// the tags of the working modules nor those that a binding of the file uses are offered, not even that of the
// variable being edited: it comes back when it is undone. The long ones are touched for AGA-7 only.
// Session.Expected is that of the file afterwards.
void OfferUnusedTags(Program& program, const project::WorkingModuleNames& working);

// The floats on offer for the atmospheric pressure that is common to the runs of the open station: neither
// those of the working module, nor what the runs of its file are bound to, nor what the pressure is bound to
// already.
[[nodiscard]] project::TagList UnusedFloats(const Program& program, const std::string& workingModule);

} // namespace gfc::forms
