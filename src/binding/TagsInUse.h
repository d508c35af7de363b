#pragma once

#include "binding/ExpectedTags.h"

namespace gfc::binding {

// Every tag that the file binds, sorted into the same lists. Unlike the check this looks at runs that are
// configured and off as well, at the atmospheric pressure of every algorithm, and at variables that the check
// passes over: who gave their tags to another variable would have two of them share a register.
[[nodiscard]] ExpectedTags TagsInUse(const config::FileIni& ini, const std::string& file);

} // namespace gfc::binding
