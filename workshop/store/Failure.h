// How the workshop's own code gives up: caught where the library or the command meets the outside, never
// beyond.
#pragma once

#include <stdexcept>

namespace gfc::workshop {

/// The text says what failed, where, and what to do about it.
class Failure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace gfc::workshop
