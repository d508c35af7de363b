#pragma once

#include <stdexcept>

namespace gfc::record {

// How the record's own code gives up; caught at the record's edge, never beyond. The text is a sentence that
// says what failed and what to do.
class Failure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace gfc::record
