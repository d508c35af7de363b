#include "fuzz/Target.h"

#include <sqlite3.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

void (*TargetOf(std::string_view name))(std::string_view) {
    for (const auto& target : gfc::fuzz::Targets())
        if (target.Name == name)
            return target.Run;
    std::abort();
}

} // namespace

// One thread needs none of the locks that would take a tenth of the time.
extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*arguments*/) {
    sqlite3_config(SQLITE_CONFIG_SINGLETHREAD);
    sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
    return 0;
}

// A finding is an exception that nobody catches: the fuzzer then keeps the bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto run = TargetOf(GFC_FUZZ_TARGET);
    run({reinterpret_cast<const char*>(data), size});
    return 0;
}
