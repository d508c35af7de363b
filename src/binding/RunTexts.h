#pragma once

#include "binding/Catalogue.h"
#include "config/FileIni.h"

#include <string>
#include <string_view>
#include <vector>

namespace gfc::binding {

// What a section of a configuration file says of all variables of a run. The whole section is read at once:
// key by key it took longer than to look through a hundred thousand tags for them.
class RunTexts {
public:
    // What another section has said is gone. A key that is missing gives the empty text.
    void Read(const config::FileIni& ini, const std::string& section, const std::string& file);

    // As the check reads it.
    [[nodiscard]] config::TagBinding BindingOf(const VariableRow& row) const;
    // The run's diameters, or its corrections, come from tags.
    [[nodiscard]] const std::string& ExtMechParam() const;
    [[nodiscard]] const std::string& ExtCCorrFactors() const;

private:
    std::vector<std::string> texts_;
};

// Deliberate: the type of the calorific value is taken from the relative density's key, and its own key is
// not read.
[[nodiscard]] std::string CheckedTypeKey(const VariableRow& row);

} // namespace gfc::binding
