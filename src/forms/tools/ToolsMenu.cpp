#include "forms/tools/ToolsMenu.h"

#include "forms/tools/FrCheckStations.h"
#include "forms/tools/FrCompare.h"
#include "forms/tools/FrDrafts.h"
#include "forms/tools/FrHistory.h"
#include "forms/tools/FrPlanStations.h"
#include "forms/tools/FrReport.h"

#include <array>

namespace gfc::forms {

std::span<const Tool> Tools() {
    static constexpr std::array tools = std::to_array<Tool>({
        {"checkStations", "Check all stations...",
         [](Program& program) { program.Forms.Get<FrCheckStations>().ShowModal(); }},
        {"copySeveral", "Copy to several stations...", CopyToSeveralCommand},
        {"bindAnew", "Bind anew...", BindAnewCommand},
        {"drafts", "Drafts...", DraftsCommand},
        {"history", "History...", [](Program& program) { program.Forms.Get<FrHistory>().ShowModal(); }},
        {"compare", "Compare...", [](Program& program) { program.Forms.Get<FrCompare>().ShowModal(); }},
        {"report", "Report...", [](Program& program) { program.Forms.Get<FrReport>().ShowModal(); }},
    });
    return tools;
}

} // namespace gfc::forms
