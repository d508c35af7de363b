#include "naming/Devices.h"

#include <algorithm>

namespace gfc::naming {

namespace {

struct Letters {
    std::string_view Text;
    Meanings Means;
};

// First letter of ISA-5.1; a D behind P is a difference. Plants write DPT for PDT as often as not.
const std::vector<Letters>& IsaFirst() {
    static const std::vector<Letters> table = {
        {"PD", {Subject::Pressure, Subject::Differential}},
        {"DP", {Subject::Pressure, Subject::Differential}},
        {"TD", {Subject::Temperature, Subject::Aside}},
        {"A", {Subject::Analyser}},
        {"D", {Subject::Density}},
        {"F", {Subject::Flow}},
        {"H", {Subject::Neutral}}, // by hand
        {"L", {Subject::Aside}},   // level
        {"P", {Subject::Pressure}},
        {"T", {Subject::Temperature}},
        {"U", {Subject::Aside}}, // several
        {"X", {Subject::Aside}}, // the plant's own
        {"Z", {Subject::Aside}}, // position
    };
    return table;
}

// Measuring circuits of KKS: function key C and the kind of measurement.
const std::vector<Letters>& KksKeys() {
    static const std::vector<Letters> table = {
        {"CP", {Subject::Pressure}}, {"CT", {Subject::Temperature}}, {"CF", {Subject::Flow}},
        {"CD", {Subject::Density}},  {"CQ", {Subject::Analyser}},    {"CL", {Subject::Aside}},
        {"AA", {Subject::Aside}},
    };
    return table;
}

constexpr std::string_view Transmitting = "TIE"; // transmitter, indicator, element
constexpr std::string_view Succeeding = "TIEYQSCVALHORGNZ";

// Null where the letters are none of an instrument's.
const Letters* IsaOf(std::string_view text) {
    for (const Letters& first : IsaFirst()) {
        if (!text.starts_with(first.Text) || text.size() == first.Text.size())
            continue;
        const auto rest = text.substr(first.Text.size());
        const auto known = [](char c) { return Succeeding.find(c) != std::string_view::npos; };
        if (rest.size() <= 3 && std::ranges::all_of(rest, known))
            return &first;
    }
    return nullptr;
}

// A valve, a switch or an alarm of the quantity is not the quantity.
bool ActsOn(std::string_view functions) {
    return functions.find_first_of("SVACHL") != std::string_view::npos;
}

void Take(TagName& name, std::size_t letters, std::size_t digits, const Meanings& means) {
    name.Device.Letters = name.Parts[letters].Text;
    name.Device.Loop = name.Parts[digits].Text;
    name.Device.Means = means;
    name.Parts[letters].Device = true;
    const std::size_t behind = digits + 1;
    if (behind < name.Parts.size() && name.Parts[behind].Kind == PartKind::Letters &&
        name.Parts[behind].Text.size() == 1) {
        name.Device.LoopSuffix = name.Parts[behind].Text;
        name.Parts[behind].Device = true;
    }
}

bool TakeIsa(TagName& name, std::size_t letters, std::size_t digits) {
    const std::string text = name.Parts[letters].Text;
    const Letters* first = name.Parts[digits].Text.size() >= 2 ? IsaOf(text) : nullptr;
    if (first == nullptr)
        return false;
    Take(name, letters, digits, first->Means);
    const std::string_view functions = std::string_view(text).substr(first->Text.size());
    name.Device.Transmits = functions.find_first_not_of(Transmitting) == std::string_view::npos;
    name.Device.Totalizes = first->Text == "F" && functions.find('Q') != std::string_view::npos;
    if (ActsOn(functions) && first->Text != "H")
        name.Device.Means.push_back(Subject::Aside);
    return true;
}

// "10EKG10CP001": two digits, the key, three digits.
bool TakeKks(TagName& name, std::size_t letters) {
    if (letters == 0 || letters + 1 >= name.Parts.size())
        return false;
    const Part& before = name.Parts[letters - 1];
    const Part& behind = name.Parts[letters + 1];
    if (before.Kind != PartKind::Digits || before.Text.size() != 2 || behind.Kind != PartKind::Digits ||
        behind.Text.size() != 3)
        return false;
    const auto key = std::ranges::find(KksKeys(), std::string_view(name.Parts[letters].Text), &Letters::Text);
    if (key == KksKeys().end())
        return false;
    Take(name, letters, letters + 1, key->Means);
    name.Device.IsKks = true;
    name.Device.Transmits = true;
    return true;
}

// The number right behind the letters, or behind one sign.
std::size_t DigitsBehind(const std::vector<Part>& parts, std::size_t letters) {
    std::size_t next = letters + 1;
    if (next < parts.size() && parts[next].Kind == PartKind::Sign && parts[next].Text.size() == 1)
        ++next;
    return next < parts.size() && parts[next].Kind == PartKind::Digits ? next : 0;
}

} // namespace

void ReadDevice(TagName& name) {
    for (std::size_t i = 0; i < name.Parts.size(); ++i) {
        if (name.Parts[i].Kind != PartKind::Letters)
            continue;
        const std::size_t digits = DigitsBehind(name.Parts, i);
        if (TakeKks(name, i) || (digits != 0 && TakeIsa(name, i, digits)))
            return;
    }
}

} // namespace gfc::naming
