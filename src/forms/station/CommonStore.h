#pragma once

#include "config/VarINIFile.h"

#include <string>
#include <string_view>

// How what stands on a form becomes the texts that are stored; the same for all who commit the common
// parameters.
namespace gfc::forms {

[[nodiscard]] std::string YesOrNo(bool yes);

// The density source, one of the stored texts, with what follows from it. outside tells that the gas
// composition comes from outside; without a gas model that is not looked at.
void StoreSource(config::StationConfig& station, std::string_view source, bool outside);

// outside tells that a gage pressure takes the atmospheric pressure from a tag: the fixed one in the model
// then stays as it is.
void StorePressure(config::StationConfig& station, bool gage, bool outside, const std::string& atmPress);

// Without traces the model keeps what it holds of them, and that is what the file gets.
void StoreTraces(config::StationConfig& station, bool enabled, const std::string& device,
                 const std::string& number);

} // namespace gfc::forms
