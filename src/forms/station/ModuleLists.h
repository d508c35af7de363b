#pragma once

#include "project/WorkingModules.h"
#include "ui/DropDownList.h"

#include <string>
#include <vector>

// The lists in which a window that edits a station keeps the choice of its working modules.
namespace gfc::forms {

// Replaces the entries by the names of the candidates, in their order; those without a name are left out.
void FillModuleNames(ui::DropDownList& list, const std::vector<project::Candidate>& candidates);

// Shows the module of that name, without regard to case. A name that is no candidate changes nothing.
void ShowModule(ui::DropDownList& list, const std::string& name);

} // namespace gfc::forms
