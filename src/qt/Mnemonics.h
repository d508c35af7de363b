#pragma once

namespace gfc::qt {

class FormWindow;

// Gives each control that a person can use a letter or a digit, pressed with Alt, without a change to what is
// shown: the tool tip tells it. It presses a button, ticks a box, chooses an option and takes the focus to
// anything else. Letters that captions mark themselves are left to these. Controls on different pages of a
// pane, which are never seen together, may have the same one.
void AssignMnemonics(FormWindow& window);

} // namespace gfc::qt
