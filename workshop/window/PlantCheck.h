#pragma once

#include "workshop/store/Project.h"

#include <QString>

#include <set>
#include <string>

class QWidget;

namespace gfc::workshop {

struct PlantErrors {
    std::set<std::string> Stations; ///< whose files have errors
    QString Found;                  ///< one line for each error
    QString Fault;                  ///< why nothing could be checked; empty where it was, or nothing can
    bool Cancelled = false;
};

/// The check of the configurator's files, as the command has it before a download: by gfc-audit, where that
/// stands beside this program. `parent` shows that it goes on, and can break it off.
[[nodiscard]] PlantErrors CheckPlant(const Project& project, QWidget* parent);

} // namespace gfc::workshop
