#include "PlainStation.h"

namespace gfc::test::sweep {

namespace {

void AddModule(std::vector<PlainTag>& tags, const std::string& module, const std::string& moduleType,
               const std::string& type, int count, int firstAddress) {
    for (int i = 0; i < count; ++i)
        tags.push_back({module + "-" + std::to_string(i + 1), std::to_string(firstAddress + i), type, module,
                        moduleType});
}

std::vector<PlainTag> Deliver() {
    std::vector<PlainTag> tags;
    // Outputs are delivered before inputs and physical modules before virtual ones, so that the order of the
    // lists differs from that of the tags.
    AddModule(tags, "DO", "Physical DO", "Y", 6, 501);
    AddModule(tags, "FO", "Virtual FO", "FY", 100, 2001);
    AddModule(tags, "AO", "Physical AO", "AY", 6, 301);
    AddModule(tags, "VD", "Virtual DI", "X", 5, 601);
    AddModule(tags, "ALOG", "Virtual AI", "AX", 32, 11);
    AddModule(tags, "FP", "Physical FI", "FX", 3, 901);
    AddModule(tags, "FLOG", "Virtual FI", "FX", 128, 21);
    AddModule(tags, "FI", "Virtual FI", "FX", 120, 1001);
    AddModule(tags, "LO", "Virtual LO", "LY", 6, 701);
    AddModule(tags, "LLOG", "Virtual LI", "LX", 8, 31);
    AddModule(tags, "LP", "Physical LI", "LX", 2, 951);
    AddModule(tags, "ODD", "Virtual ZZ", "ZZ", 2, 991);
    AddModule(tags, "AI", "Physical AI", "AX", 3, 201);
    AddModule(tags, "VA", "Virtual AO", "AY", 3, 351);
    AddModule(tags, "DI", "Physical DI", "X", 7, 401);
    AddModule(tags, "VO", "Virtual DO", "Y", 4, 651);
    return tags;
}

// All tags of the type in virtual or in physical modules, without those of one module.
void Take(std::deque<PlainTag>& pool, const std::string& type, bool isVirtual,
          const std::string& without = "") {
    for (const PlainTag& tag : StationTags())
        if (tag.Type == type && tag.ModuleType.starts_with("Virtual ") == isVirtual && tag.Module != without)
            pool.push_back(tag);
}

Pools Sort() {
    Pools pools;
    Take(pools.Floats, "FX", true, "FLOG");
    Take(pools.Floats, "FY", true, "FLOG");
    Take(pools.Longs, "LX", true, "LLOG");
    Take(pools.Longs, "LY", true, "LLOG");
    Take(pools.Analogs, "AX", true, "ALOG");
    Take(pools.Analogs, "AY", true, "ALOG");
    Take(pools.Analogs, "AX", false);
    Take(pools.Analogs, "AY", false);
    Take(pools.Digitals, "X", false);
    Take(pools.Digitals, "Y", false);
    Take(pools.Digitals, "X", true);
    Take(pools.Digitals, "Y", true);
    return pools;
}

} // namespace

const std::vector<PlainTag>& StationTags() {
    static const auto tags = Deliver();
    return tags;
}

const Pools& FreeTags() {
    static const auto pools = Sort();
    return pools;
}

} // namespace gfc::test::sweep
