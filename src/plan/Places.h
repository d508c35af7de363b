#pragma once

#include "project/TagInventory.h"

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace gfc::plan {

// Where the tags of a station stand in its modules: which module of its kind, and which of its registers.
class Places {
public:
    // The list must outlive it.
    explicit Places(const project::TagList& tags);

    struct Place {
        std::string Kind; // register type, and whether the module is virtual
        std::string Module;
        std::size_t ModuleOfKind = 0; // counted from 0 in delivery order
        std::size_t Register = 0;     // likewise, within the module
        std::size_t Registers = 0;    // of the module
    };

    // type in any case, address in decimal. Nothing for a register that the station lacks.
    [[nodiscard]] std::optional<Place> PlaceOf(const std::string& type, const std::string& address) const;

    // The tag at a place of another station: in the module of the same name, else in the one that comes as
    // the same of its kind, if that has as many registers. Null where there is none.
    [[nodiscard]] const project::Tag* TagAt(const Place& place) const;

private:
    struct Module {
        std::string Name;
        std::vector<const project::Tag*> Tags;
    };
    [[nodiscard]] const Module* ModuleAt(const Place& place) const;

    std::unordered_map<std::string, std::vector<Module>> kinds_;
    std::unordered_map<std::string, Place> places_; // by type and address
};

} // namespace gfc::plan
