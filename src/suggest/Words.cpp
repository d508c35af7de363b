#include "suggest/Words.h"

namespace gfc::suggest {

std::string TextOf(const Found& found) {
    std::string text(RowOf(found.Kind).Words);
    if (const auto place = text.find('%'); place != std::string::npos)
        text.replace(place, 1, found.Text);
    return text;
}

std::string ReasonOf(const std::vector<Found>& evidence, const Found& run) {
    std::string reason;
    const auto add = [&reason](const Found& found) {
        const std::string text = TextOf(found);
        if (!text.empty())
            reason += (reason.empty() ? "" : ", ") + text;
    };
    for (const Found& found : evidence)
        add(found);
    add(run);
    return reason;
}

} // namespace gfc::suggest
