#pragma once

#include "support/Story.h"

class QFileDialog;
class QInputDialog;
class QMessageBox;

// Each compares what stands there with what the story expects and answers with the dialog's own buttons.
namespace gfc::test {

void Answer(QMessageBox& box, const ExpectedBox& expected);
void Answer(QFileDialog& dialog, const ExpectedFileChoice& expected);
void Answer(QInputDialog& dialog, const ExpectedPrompt& expected);

} // namespace gfc::test
