#include "services/HtmlText.h"

namespace gfc::services {

std::string HtmlText(std::string_view text) {
    std::string html;
    for (const char byte : text)
        switch (byte) {
        case '<':
            html += "&lt;";
            break;
        case '>':
            html += "&gt;";
            break;
        case '&':
            html += "&amp;";
            break;
        case '"':
            html += "&quot;";
            break;
        default:
            html += byte;
        }
    return html;
}

} // namespace gfc::services
