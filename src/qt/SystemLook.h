#pragma once

namespace gfc::qt {

// The look of the machine's own programs. The first is called before the application is made, the second
// after.
void PrepareSystemLook();
void TakeSystemLook();

} // namespace gfc::qt
