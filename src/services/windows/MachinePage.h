#pragma once

#include "services/CodePage.h"

namespace gfc::services {

// The page as Windows converts by it, with the pairs of letters of Windows' own comparison without case.
// Western Europe's for one that has characters of several bytes, UTF-8 among them, or that is not installed.
[[nodiscard]] CodePage PageOfNumber(unsigned number);

} // namespace gfc::services
