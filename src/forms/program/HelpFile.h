#pragma once

namespace gfc::forms {

// The tool's own help, where it lies beside the program; elsewhere its numbers lead to the pages of the
// manual.
inline constexpr const char* HelpFile = "AGA.chm";

} // namespace gfc::forms
