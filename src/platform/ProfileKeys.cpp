#include "platform/ProfileKeys.h"

#include "platform/Profile.h"
#include "platform/ProfileLines.h"

#include <utility>

namespace gfc::platform {
namespace {

// The values of a section, each at the place of its key.
class Values {
public:
    explicit Values(const NameTable& names) : names_(names), values_(names.Count()) {}

    [[nodiscard]] bool Complete() const { return found_ == values_.size(); }

    // Takes the next line; false where none is left. A file that was written from a table bears the keys in
    // the table's order, so that the one behind the last is tried before the name is looked for.
    bool Take(profile::SectionLines& lines) {
        if (next_ < values_.size() && values_[next_].data() == nullptr)
            if (const auto value = lines.NextValueOf(names_[next_])) {
                Put(next_, *value);
                return true;
            }
        if (!lines.Next())
            return false;
        if (const auto entry = lines.AsEntry())
            if (const auto key = names_.Find(entry->Key))
                Put(*key, entry->Value);
        return true;
    }

    [[nodiscard]] std::vector<std::string_view> Release() { return std::move(values_); }

private:
    // Of equal names the first one counts.
    void Put(std::size_t key, std::string_view value) {
        next_ = key + 1;
        if (values_[key].data() != nullptr)
            return;
        values_[key] = value.substr(0, ProfileValueLimit);
        ++found_;
    }

    const NameTable& names_;
    std::vector<std::string_view> values_; // of no bytes at all, not even empty ones, until it is found
    std::size_t found_ = 0;
    std::size_t next_ = 0;
};

} // namespace

ProfileKeys::ProfileKeys(std::vector<std::string> names)
    : names_(std::move(names)), table_({names_.begin(), names_.end()}) {}

ProfileKeys::Reading ProfileKeys::Read(std::string_view bytes, std::string_view section) const {
    Values values(table_);
    const auto header = profile::FindHeader(bytes, profile::CallName(section));
    if (!header)
        return {values.Release(), {}};
    profile::SectionLines lines(bytes, *header);
    while (!values.Complete() && values.Take(lines)) {
    }
    return {values.Release(), bytes.substr(*header, lines.End() - *header)};
}

} // namespace gfc::platform
