#include "platform/Profile.h"

#include "fuzz/Input.h"
#include "fuzz/PlainProfile.h"
#include "fuzz/Target.h"

// The profile engine against its plain account: any accesses, with any texts, to any bytes.
namespace gfc::fuzz {

namespace {

constexpr std::size_t LongestText = 24;

void RunAccess(Input& input, platform::Profile& profile, PlainProfile& plain) {
    const std::size_t kind = input.Below(4);
    const std::string_view section = input.Text(LongestText);
    const std::string_view text = input.Text(LongestText);
    if (kind == 0) {
        Require(profile.Read(section, text) == plain.Read(section, text), "both read the same");
    } else if (kind == 1) {
        profile.Write(section, text, std::nullopt);
        plain.Write(section, text, std::nullopt);
    } else if (kind == 2) {
        const std::string_view value = input.Text(LongestText);
        profile.Write(section, text, value);
        plain.Write(section, text, value);
    } else {
        profile.ReplaceSection(section, text);
        plain.ReplaceSection(section, text);
    }
}

} // namespace

void Profile(std::string_view bytes) {
    Input input(bytes);
    const std::size_t accesses = 1 + input.Below(4);
    const std::string_view start = input.Text(255);
    platform::Profile profile{std::string(start)};
    PlainProfile plain(start);
    for (std::size_t i = 0; i < accesses; ++i)
        RunAccess(input, profile, plain);
    Require(profile.Bytes() == plain.Bytes(), "both end with the same bytes");
}

} // namespace gfc::fuzz
