#pragma once

#include "support/Story.h"

class QFileDialog;
class QInputDialog;
class QMessageBox;

// Each compares what stands there with what the story expects and answers with the dialog's own fields and
// buttons, which are in these hands.
namespace gfc::test {

class WindowDriver;

void Answer(WindowDriver& hands, QMessageBox& box, const ExpectedBox& expected);
void Answer(WindowDriver& hands, QFileDialog& dialog, const ExpectedFileChoice& expected);
void Answer(WindowDriver& hands, QInputDialog& dialog, const ExpectedPrompt& expected);

} // namespace gfc::test
