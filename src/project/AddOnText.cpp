#include "project/AddOnText.h"

#include "services/CodePage.h"

#include <algorithm>

namespace gfc::project {

InOutText::InOutText(std::string_view text) {
    const auto bytes = services::ToCodePage(text);
    holds_ = bytes.has_value();
    buffer_.assign(AddOnTextRoom + (holds_ ? bytes->size() : 0), '\0');
    if (holds_)
        std::copy(bytes->begin(), bytes->end(), buffer_.begin());
}

} // namespace gfc::project
