#include "fuzz/Target.h"

#include <array>

namespace gfc::fuzz {

std::span<const Target> Targets() {
    static constexpr std::array<Target, 9> targets = {{
        {"profile", Profile},
        {"update", Update},
        {"reader", Reader},
        {"check", Check},
        {"wire", Wire},
        {"csv", Csv},
        {"project", Project},
        {"entry", Entry},
        {"contract_time", ContractTime},
    }};
    return targets;
}

} // namespace gfc::fuzz
