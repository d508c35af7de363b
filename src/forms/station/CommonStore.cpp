#include "forms/station/CommonStore.h"

#include "config/Vocabulary.h"

namespace gfc::forms {

std::string YesOrNo(bool yes) {
    return std::string(yes ? config::Yes : config::No);
}

void StoreSource(config::StationConfig& station, std::string_view source, bool outside) {
    station.GasDensitySource = source;
    station.Measured = source == config::source::Measured;
    if (!config::IsGasModel(source))
        return;
    station.AGA8Method = config::DetailMethod;
    station.AGA8CalInput = outside ? config::CompositionMeasured : config::CompositionFixed;
}

void StorePressure(config::StationConfig& station, bool gage, bool outside, const std::string& atmPress) {
    station.PressType = gage ? config::Gage : config::Absolute;
    station.ExtAtmPress = YesOrNo(gage && outside);
    if (!gage || !outside)
        station.AtmPress = atmPress;
}

void StoreTraces(config::StationConfig& station, bool enabled, const std::string& device,
                 const std::string& number) {
    station.EnableDataTraces = YesOrNo(enabled);
    if (!enabled)
        return;
    station.DeviceDataTraces = device;
    station.NumberTraces = number;
}

} // namespace gfc::forms
