#include "fuzz/Target.h"

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

// A finding is an exception that nobody catches: the fuzzer then keeps the bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto run = TargetOf(GFC_FUZZ_TARGET);
    run({reinterpret_cast<const char*>(data), size});
    return 0;
}
