#pragma once

#include "project/Requirements.h"
#include "support/Story.h"
#include "support/World.h"

#include <functional>
#include <string>
#include <vector>

// What people do again and again, as pieces of stories.
namespace gfc::test::moves {

// A project of three stations: "North" and "South" large, "Empty" without tags.
void ThreeStations(FakeProgram& program);

// Splash, user id 4711, main window.
void StartUp(Story& story, const std::string& user = "4711");
void Exit(Story& story);
// Selects the station in the tree, chooses the wizard's command and confirms.
void OpenWizard(Story& story, const std::string& station);
// The box that lists the minimum I/O for so many runs, and its OK.
void ShortageBox(Story& story, project::ShortageKind kind, int runs);
// Ticks the runs (1 to 5) and accepts.
void SelectRuns(Story& story, const std::vector<int>& runs);

// What is chosen on the wizard's pages; the indices are those of the lists.
struct Choices {
    int Standard = 0;
    int Source = 0;
    bool Chromatograph = false;
    bool GageExternal = false;
    int Units = 0;
};
// From the first page to a click on the wizard's last button.
void WalkPages(Story& story, const Choices& choices);
// The announcement of the next dialog; text and step line are compared.
void Continue(Story& story, const std::string& announced, const std::string& step);
// Binds all of the stage open in TagRuns automatically and continues.
void AutoBind(Story& story);
// Accepts FrParMec, FrAccelabar, MDetail or frSGERG88 as it opens.
void AcceptEditor(Story& story, const std::string& form);
// Presses the cancel button of TagRuns, FrParMec, FrAccelabar, MDetail or frSGERG88; the question is first
// answered No, and the window stays, then Yes.
void CancelWindow(Story& story, const std::string& form);
// Takes the place of an editor's acceptance for one run.
using EditorActs = std::function<void(Story&, int run)>;
// Everything that the finish pass asks for these runs: every dialog is bound automatically, every editor
// accepted as it opens, unless acts stand in its place. With a mechanical and a gas editor in one pass the
// acts take the mechanical one.
void PassAllRuns(Story& story, const Choices& choices, const std::vector<int>& runs,
                 const EditorActs& acts = {});
// The pass for one run until its dialog number window, counted from 1, is open; announcements are passed
// over.
void PassUntil(Story& story, const Choices& choices, int run, int window);
// The closing page's button: saves and goes back to the main window.
void SaveAndClose(Story& story);

} // namespace gfc::test::moves
