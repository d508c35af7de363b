#include "qt/support/DialogAnswers.h"

#include "qt/Texts.h"
#include "qt/support/WindowDriver.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <gtest/gtest.h>

namespace gfc::test {

namespace {

constexpr QMessageBox::StandardButton buttons[]{QMessageBox::Ok, QMessageBox::Yes, QMessageBox::No,
                                                QMessageBox::Retry, QMessageBox::Close};
constexpr QMessageBox::Icon icons[]{QMessageBox::NoIcon, QMessageBox::Information, QMessageBox::Question,
                                    QMessageBox::Warning, QMessageBox::Critical};

void Press(WindowDriver& hands, QDialog& dialog, QDialogButtonBox::StandardButton which) {
    auto* box = dialog.findChild<QDialogButtonBox*>();
    hands.PressButton(*box->button(which));
}

} // namespace

void Answer(WindowDriver& hands, QMessageBox& box, const ExpectedBox& expected) {
    EXPECT_EQ(qt::FromQt(box.windowTitle()), expected.Title);
    if (!expected.Text.empty()) {
        EXPECT_EQ(qt::FromQt(box.text()), qt::FromQt(qt::LinesOf(expected.Text)));
    }
    EXPECT_EQ(box.icon(), icons[static_cast<int>(expected.TheIcon)]) << "icon of " << qPrintable(box.text());
    QAbstractButton* button = box.button(buttons[static_cast<int>(expected.TheAnswer)]);
    EXPECT_NE(button, nullptr) << "buttons of " << qPrintable(box.text());
    if (button == nullptr)
        button = box.escapeButton();
    hands.PressButton(*button);
}

void Answer(WindowDriver& hands, QFileDialog& dialog, const ExpectedFileChoice& expected) {
    if (!expected.Path)
        return Press(hands, dialog, QDialogButtonBox::Cancel);
    // The files of a test are not on this machine's disk.
    dialog.setFileMode(QFileDialog::AnyFile);
    hands.Fill(*dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit")), *expected.Path);
    Press(hands, dialog,
          dialog.acceptMode() == QFileDialog::AcceptSave ? QDialogButtonBox::Save : QDialogButtonBox::Open);
}

void Answer(WindowDriver& hands, QInputDialog& dialog, const ExpectedPrompt& expected) {
    EXPECT_EQ(qt::FromQt(dialog.windowTitle()), expected.Title);
    hands.Fill(*dialog.findChild<QLineEdit*>(), expected.Answer);
    Press(hands, dialog, expected.Answer.empty() ? QDialogButtonBox::Cancel : QDialogButtonBox::Ok);
}

} // namespace gfc::test
