#pragma once

namespace gfc::test {

// Lets windows live in memory, on a screen of 1366 x 768 points at that scale, unless the environment names a
// platform. To be called before the application is made.
void UseOffscreenPlatform(int scale = 1);

// The palette that a system in its dark setting gives to the style. To be called once the application is
// made.
void UseDarkPalette();

} // namespace gfc::test
