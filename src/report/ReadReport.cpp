#include "report/Html.h"
#include "report/PdfAttachment.h"
#include "report/Report.h"

namespace gfc::report {

// The last one: what a station's texts say stands before it.
std::optional<Report> ReadReport(std::string_view bytes) {
    if (bytes.starts_with("%PDF"))
        if (const auto json = AttachmentIn(bytes))
            return FromJson(*json);
    const auto begin = bytes.rfind(EmbeddedBegin);
    if (begin == std::string_view::npos)
        return FromJson(bytes);
    const auto json = bytes.substr(begin + EmbeddedBegin.size());
    return FromJson(json.substr(0, json.find(EmbeddedEnd)));
}

} // namespace gfc::report
