#pragma once

#include "platform/DynamicLibrary.h"
#include "project/AddOnInterface.h"

#include <string>
#include <vector>

// Under which names a library may export the functions of its interface.
namespace gfc::project {

// The bare name; then, of a function whose arguments' size is known, the names that compilers for 32-bit
// Windows make of it: "_name@bytes" and "name@bytes".
[[nodiscard]] std::vector<std::string> ExportedNames(const AddOnFunction& function);

// The function under the first of its names that the library has; null if it has none. The decorated names
// are looked for on 32-bit Windows alone.
[[nodiscard]] void* FindExport(const platform::DynamicLibrary& library, const AddOnFunction& function);

// The row of that name, which the table must hold.
[[nodiscard]] const AddOnFunction& AddOnFunctionNamed(std::string_view name);

} // namespace gfc::project
