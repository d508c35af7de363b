#pragma once

namespace gfc::forms {

struct Program;

// Where the stand-in for the I/O Workshop is what is installed, its window lies beside this program: whoever
// was told to open a project may do so there. Beside the real tool there is no such window, and nothing is
// asked.
void OfferWorkshop(Program& program);

} // namespace gfc::forms
