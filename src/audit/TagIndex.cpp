#include "audit/TagIndex.h"

#include <bitset>
#include <charconv>
#include <cstdint>
#include <optional>

namespace gfc::audit {

namespace {

// Registers by the low bits of their address: hardly any tag passes that.
class Asked {
public:
    explicit Asked(const std::vector<Bound>& bindings) {
        for (const Bound& bound : bindings) {
            const std::string& text = bound.Binding->RegAddr;
            std::int32_t address = 0;
            if (std::from_chars(text.data(), text.data() + text.size(), address).ec == std::errc{})
                bits_.set(LowBits(address));
        }
    }
    [[nodiscard]] bool Has(std::int32_t address) const { return bits_.test(LowBits(address)); }

private:
    static constexpr std::size_t Bits = 1 << 16;
    static std::size_t LowBits(std::int32_t address) { return static_cast<std::uint32_t>(address) % Bits; }
    std::bitset<Bits> bits_;
};

bool IsOfClass(const project::Tag& tag, const Bound& bound) {
    using enum binding::TagClass;
    const bool mustBeVirtual = bound.Row->Class == Float || bound.Row->Class == Long;
    return binding::ClassOf(tag.RegType) == bound.Row->Class && (!mustBeVirtual || project::IsVirtual(tag));
}

} // namespace

TagIndex::TagIndex(const std::vector<Bound>& bindings, const project::TagList& tags) {
    const Asked asked(bindings);
    for (const project::Tag& tag : tags)
        if (asked.Has(tag.RegAddr))
            tags_.emplace(std::to_string(tag.RegAddr), tag);
}

const project::Tag* TagIndex::Find(const Bound& bound, Match match) const {
    for (auto [tag, last] = tags_.equal_range(bound.Binding->RegAddr); tag != last; ++tag)
        if (tag->second.TagName == bound.Binding->Tag && match(tag->second, bound) &&
            IsOfClass(tag->second, bound))
            return &tag->second;
    return nullptr;
}

const project::Tag* TagIndex::TagOf(const Bound& bound) const {
    return Find(bound,
                [](const project::Tag& tag, const Bound& b) { return tag.RegType == b.Binding->Type; });
}

const project::Tag* TagIndex::OfAnotherType(const Bound& bound) const {
    return Find(bound,
                [](const project::Tag& tag, const Bound& b) { return tag.RegType != b.Binding->Type; });
}

} // namespace gfc::audit
