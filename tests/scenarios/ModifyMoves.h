#pragma once

#include "scenarios/StoredStation.h"

// What people do again and again while they edit one run of a stored configuration.
namespace gfc::test::modify {

inline constexpr const char* Form = "FrModificarTags";

// The command at a run's node, or at the node of all runs, where it means that run.
void Open(Story& story, const std::string& node, int run);
// Ticks the boxes by number and accepts.
void TickAndAccept(Story& story, const std::vector<int>& boxes);
// Gives the variable's tag back and takes the first one on offer.
void Rebind(Story& story, const std::string& variable);
void Continue(Story& story);
void AskedToSave(Story& story, ui::Icon icon, ui::Answer answer = ui::Answer::Yes);

// What a file becomes where bindings of a run are written key by key: names that the wizard writes in another
// form take the form in which they are read.
void OutputsWritten(FileText& file, int run);
void GasOutputsWritten(FileText& file, int run);
// AI-<n> in the place of the run's status.
void StatusIs(FileText& file, int run, int analog);

} // namespace gfc::test::modify
