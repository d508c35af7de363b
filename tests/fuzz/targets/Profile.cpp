#include "platform/Profile.h"

#include "fuzz/Input.h"
#include "fuzz/PlainProfile.h"
#include "fuzz/Target.h"
#include "platform/ProfileKeys.h"

#include <algorithm>
#include <optional>
#include <vector>

// The profile engine against its plain account: any accesses, with any texts, to any bytes.
namespace gfc::fuzz {

namespace {

constexpr std::size_t LongestText = 24;

// The part of the text that may be a key of a line.
std::string KeyIn(std::string_view text) {
    constexpr std::string_view white = " \t\v";
    text = text.substr(0, text.find_first_of("=\r\n"));
    text.remove_prefix(std::min(text.find_first_not_of(" \t\v;["), text.size()));
    return std::string(text.substr(0, text.find_last_not_of(white) + 1));
}

// What is read at once must be what is read alone.
void ReadTogether(std::string_view bytes, const PlainProfile& plain, std::string_view section,
                  std::string_view text) {
    const std::vector<std::string> names = {KeyIn(text), "longer than any text of a case"};
    std::vector<std::optional<std::string_view>> values(names.size());
    const auto lines = platform::profile::LinesOf(bytes, platform::profile::CallName(section));
    platform::ProfileKeys(names).Read(lines, [&values](std::size_t key, std::string_view value) {
        values.at(key) = values.at(key).value_or(value);
        return true;
    });
    for (std::size_t key = 0; key < names.size(); ++key)
        Require(values.at(key).value_or("") == plain.Read(section, names[key]), "both read the same at once");
}

void RunAccess(Input& input, platform::Profile& profile, PlainProfile& plain) {
    const std::size_t kind = input.Below(4);
    const std::string_view section = input.Text(LongestText);
    const std::string_view text = input.Text(LongestText);
    if (kind == 0) {
        Require(profile.Read(section, text) == plain.Read(section, text), "both read the same");
        ReadTogether(profile.Bytes(), plain, section, text);
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
