#pragma once

#include <string>
#include <utility>

namespace gfc::config {

// What stands in a file's place when a change of it has failed.
enum class Standing {
    AsBefore,
    AsWanted, // but the system has not confirmed that it is safe there
    Missing,
    Other, // somebody else has written it meanwhile
    Unreadable,
};

// What became of a change of a file. Nobody may pass over one that failed: whoever began it tells a person.
class [[nodiscard]] Outcome {
public:
    // The change stands on the disk.
    Outcome() = default;
    // reason: the system's own words.
    Outcome(std::string reason, Standing standing)
        : done_(false), reason_(std::move(reason)), standing_(standing) {}

    explicit operator bool() const { return done_; }
    // These two of a change that failed.
    [[nodiscard]] const std::string& Reason() const { return reason_; }
    [[nodiscard]] Standing Stands() const { return standing_; }

private:
    bool done_ = true;
    std::string reason_;
    Standing standing_ = Standing::AsWanted;
};

} // namespace gfc::config
