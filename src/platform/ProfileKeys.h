#pragma once

#include "platform/NameTable.h"
#include "platform/Profile.h"
#include "platform/ProfileLines.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gfc::platform {

// The keys of a section that are read together. Made once for all files; a reading then goes through the
// section once, whatever the number of keys.
class ProfileKeys {
public:
    // Bytes of the code page, each as a line may bear it: without "=" and line breaks, without white space
    // around it, and with neither ";" nor "[" at its start. No two may be equal but for case; best they come
    // in the order in which they stand in a file.
    explicit ProfileKeys(std::vector<std::string> names);
    ProfileKeys(const ProfileKeys&) = delete;
    ProfileKeys& operator=(const ProfileKeys&) = delete;
    ProfileKeys(ProfileKeys&&) = default;

    [[nodiscard]] std::size_t Count() const { return names_.size(); }

    // Calls put(key, value) for the keys that stand in these lines, as profile::LinesOf gives them, line by
    // line until it answers false: with the key's place among the names and the value as Profile::Read gives
    // it, a part of the lines. A key that stands there again comes again; the first one counts.
    template <class Put>
    void Read(std::string_view lines, const Put& put) const;

private:
    // What the first line says, and the lines behind it.
    struct Line {
        std::optional<std::size_t> Key;
        std::string_view Value;
        std::string_view Rest;
    };
    // For a line that does not begin with the key of that number.
    [[nodiscard]] Line LookUp(std::string_view lines, std::size_t other) const;

    std::vector<std::string> names_;
    NameTable table_;
};

// A file that was written from a table bears the keys in the table's order, so that the one behind the last
// is tried before anything else is done with a line.
template <class Put>
void ProfileKeys::Read(std::string_view lines, const Put& put) const {
    for (std::size_t next = 0; !lines.empty();) {
        std::size_t key = next;
        std::string_view value;
        if (key < names_.size() && profile::BeginWithKey(lines, names_[key])) {
            value = profile::TakeValue(lines, names_[key].size());
        } else {
            const Line line = LookUp(lines, next);
            lines = line.Rest;
            if (!line.Key)
                continue;
            key = *line.Key;
            value = line.Value;
        }
        next = key + 1;
        if (!put(key, value.substr(0, ProfileValueLimit)))
            return;
    }
}

} // namespace gfc::platform
