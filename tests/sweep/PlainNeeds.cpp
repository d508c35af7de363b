#include "PlainNeeds.h"

namespace gfc::test::sweep {

namespace {

constexpr int aga7 = 1;

std::string Number(int number) {
    return std::to_string(number);
}

} // namespace

Room SourceNeed(int standard, int source) {
    if (standard == aga7)
        return source == 0 ? Room{6, 1, 3, 1} : Room{11, 2, 3, 1};
    return source == 0 ? Room{17, 1, 3, 0} : Room{23, 2, 3, 0};
}

std::optional<Room> CompositionNeed(int standard, int source) {
    if (source == 1)
        return standard == aga7 ? Room{32, 2, 4, 1} : Room{44, 2, 4, 0};
    if (source == 2)
        return standard == aga7 ? Room{15, 2, 4, 1} : Room{27, 2, 4, 0};
    return std::nullopt;
}

Room Times(const Room& need, int runs) {
    return {need.Floats * runs, need.Analogs * runs, need.Digitals * runs, need.Longs * runs};
}

bool Fits(const Room& room, const Room& need) {
    return room.Floats >= need.Floats && room.Analogs >= need.Analogs && room.Digitals >= need.Digitals &&
           room.Longs >= need.Longs;
}

int MostRuns(const Room& room, bool isAGA7) {
    const int k = isAGA7 ? 5 : 8;
    const int longs = isAGA7 ? room.Longs : 10;
    const auto inBand = [&](int runs) {
        return room.Floats >= runs * k && room.Floats < runs * k + 8 && room.Analogs >= runs && longs >= runs;
    };
    if (inBand(2) && room.Digitals >= 2)
        return 2;
    if (inBand(3) && room.Digitals >= 3)
        return 3;
    // Four runs ask for no digitals.
    if (inBand(4))
        return 4;
    return inBand(1) && room.Digitals >= 1 ? 1 : 0;
}

std::string MostRunsText(int runs) {
    switch (runs) {
    case 1:
        return "Only one Run can be configured";
    case 2:
        return "Only two Runs can be configured";
    case 3:
        return "Only three Runs can be configured";
    case 4:
        return "Only four Runs can be configured";
    default:
        return "";
    }
}

std::string ShortageTitle(bool isAGA7) {
    return isAGA7 ? "Error: Configuring AGA7" : "Error: Configuring AGA3";
}

std::string ShortageText(bool isAGA7, int runs) {
    const std::string a = Number((isAGA7 ? 6 : 17) * runs);
    const std::string b = Number((isAGA7 ? 11 : 23) * runs);
    const std::string c = Number((isAGA7 ? 32 : 44) * runs);
    const std::string r = Number(runs), r2 = Number(2 * runs), r3 = Number(3 * runs), r4 = Number(4 * runs);
    return "ERROR: The number of available tags/modules is below the minimum required for the flow computer "
           "software.\rPlease make sure that at least the following I/O memory is available for the flow "
           "computer software usage:\r- One LI or LO Virtual Module containing 8 registers for datalogging\r"
           "- One AI or AO Virtual Module containing 32 registers for datalogging\r"
           "- One FI or FO Virtual Module containing 128 registers for datalogging\r- " +
           a + " FI or FO, " + r + " AI or AO and " + r3 + " DI or DO registers for " + r +
           " enabled flow calculation runs\r- " + b + " FI or FO, " + r2 + " AI or AO and " + r3 +
           " DI or DO registers if AGA-8 calculation block is enabled\r- " + c + " FI or FO, " + r2 +
           " AI or AO and " + r4 +
           " DI or DO registers if AGA-8 is enabled and gas composition source is from an external gas "
           "chromatograph";
}

} // namespace gfc::test::sweep
