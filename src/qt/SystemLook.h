#pragma once

namespace gfc::qt {

// The look of the machine's own programs. The first is called before the application is made, the second
// after.
void PrepareSystemLook();
void TakeSystemLook();

// The toolkit's own look on every machine, as the windows have it that are painted in memory.
void TakeOwnLook();

} // namespace gfc::qt
