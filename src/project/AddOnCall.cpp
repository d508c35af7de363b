#include "project/AddOnCall.h"

namespace gfc::project {

void AddOnFault::Note(const AddOnFunction& function, int takenOff) {
    if (!Text.empty())
        return;
    const std::string expected = std::to_string(function.StackBytes);
    Text = "The function " + std::string(function.Name) + " took " + std::to_string(takenOff) + " of the " +
           expected + " bytes that it was handed: ";
    Text += takenOff == 0 ? "it is made for another calling convention (cdecl instead of stdcall)."
                          : "it is made for other arguments.";
}

} // namespace gfc::project
