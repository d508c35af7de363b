#pragma once

namespace gfc::services {

// A day count from 30 December 1899 with the fraction as time of day; -1 stands for a date that does not
// exist. Before the first day the whole part counts backwards and the fraction's size alone is the time of
// day.
using Date = double;

inline constexpr Date NoDate = -1;

class Clock {
public:
    virtual ~Clock() = default;
    // The present local date and time, in whole seconds.
    [[nodiscard]] virtual Date LocalNow() const = 0;
};

} // namespace gfc::services
