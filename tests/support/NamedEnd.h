#pragma once

namespace gfc::test {

// From here on a program that is ended by a signal says in which test; ctest starts many tests in one
// program, which would otherwise take the name with it. Under ctest a test that takes more than two minutes
// is ended so, too. To be called once, after InitGoogleTest.
void NameTheTestOfAnEnd();

} // namespace gfc::test
