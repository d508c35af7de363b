#include "platform/ForeignMemory.h"

#include <cstdint>
#include <windows.h>

namespace gfc::platform {

bool IsReadable(const void* from, std::size_t size) {
    auto at = reinterpret_cast<std::uintptr_t>(from);
    if (size > UINTPTR_MAX - at)
        return false;
    for (const std::uintptr_t end = at + size; at < end;) {
        MEMORY_BASIC_INFORMATION region{};
        if (::VirtualQuery(reinterpret_cast<const void*>(at), &region, sizeof region) == 0)
            return false;
        if (region.State != MEM_COMMIT || (region.Protect & (PAGE_NOACCESS | PAGE_GUARD)) != 0)
            return false;
        at = reinterpret_cast<std::uintptr_t>(region.BaseAddress) + region.RegionSize;
    }
    return true;
}

} // namespace gfc::platform
