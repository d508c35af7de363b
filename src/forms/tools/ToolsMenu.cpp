#include "forms/tools/ToolsMenu.h"

#include "forms/tools/FrCheckStations.h"
#include "forms/tools/FrPlanStations.h"

#include <array>

namespace gfc::forms {

std::span<const Tool> Tools() {
    static constexpr std::array tools = std::to_array<Tool>({
        {"checkStations", "Check all stations...",
         [](Program& program) { program.Forms.Get<FrCheckStations>().ShowModal(); }},
        {"copySeveral", "Copy to several stations...", CopyToSeveralCommand},
        {"bindAnew", "Bind anew...", BindAnewCommand},
    });
    return tools;
}

} // namespace gfc::forms
