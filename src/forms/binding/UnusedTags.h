#pragma once

#include "project/TagInventory.h"

namespace gfc::forms {

struct Program;

// Builds the lists of free tags of the station that is open, for an edit of its stored configuration: neither
// the tags of the working modules nor those that a binding of the file uses are offered, not even that of the
// variable being edited: it comes back when it is undone. The long ones are touched for AGA-7 only.
// Session.Expected is that of the file afterwards.
void OfferUnusedTags(Program& program, const project::WorkingModuleNames& working);

} // namespace gfc::forms
