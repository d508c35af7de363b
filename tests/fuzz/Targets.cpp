#include "fuzz/Target.h"

#include <array>

namespace gfc::fuzz {

std::span<const Target> Targets() {
    static constexpr auto targets = std::to_array<Target>({
        {"profile", Profile},
        {"update", Update},
        {"reader", Reader},
        {"check", Check},
        {"wire", Wire},
        {"csv", Csv},
        {"project", Project},
        {"entry", Entry},
        {"contract_time", ContractTime},
        {"drafts", Drafts},
        {"mapping", Mapping},
        {"plan", Plan},
        {"record", Record},
        {"report", Report},
    });
    return targets;
}

} // namespace gfc::fuzz
