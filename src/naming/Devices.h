#pragma once

#include "naming/TagName.h"

namespace gfc::naming {

// Looks for the letters of an instrument with the number of its loop, marks their parts and fills Device.
void ReadDevice(TagName& name);

} // namespace gfc::naming
