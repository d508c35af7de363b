#include "project/AddOnExports.h"

#include <algorithm>

namespace gfc::project {
namespace {

#if defined(_WIN32) && !defined(_WIN64)
constexpr bool namesAreDecorated = true;
#else
constexpr bool namesAreDecorated = false;
#endif

} // namespace

std::vector<std::string> ExportedNames(const AddOnFunction& function) {
    const std::string bare(function.Name);
    if (function.StackBytes < 0)
        return {bare};
    const std::string sized = bare + '@' + std::to_string(function.StackBytes);
    return {bare, '_' + sized, sized};
}

void* FindExport(const platform::DynamicLibrary& library, const AddOnFunction& function) {
    for (const std::string& name : ExportedNames(function)) {
        if (void* const found = library.Symbol(name.c_str()); found != nullptr || !namesAreDecorated)
            return found;
    }
    return nullptr;
}

const AddOnFunction& AddOnFunctionNamed(std::string_view name) {
    return *std::find_if(AddOnFunctions.begin(), AddOnFunctions.end(),
                         [name](const AddOnFunction& function) { return function.Name == name; });
}

} // namespace gfc::project
