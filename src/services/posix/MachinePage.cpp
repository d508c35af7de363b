#include "services/WesternPage.h"

namespace gfc::services {

// The machine works in UTF-8; its files and its library are those of the tool, as Windows writes them.
constinit const CodePage MachinePage = MakeWesternPage();

} // namespace gfc::services
