#include "qt/support/DialogAnswers.h"

#include "qt/Texts.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace gfc::test {

namespace {

constexpr QMessageBox::StandardButton buttons[]{QMessageBox::Ok, QMessageBox::Yes, QMessageBox::No};
constexpr QMessageBox::Icon icons[]{QMessageBox::NoIcon, QMessageBox::Information, QMessageBox::Question,
                                    QMessageBox::Warning, QMessageBox::Critical};

void ClickButton(QDialog& dialog, QDialogButtonBox::StandardButton which) {
    auto* box = dialog.findChild<QDialogButtonBox*>();
    QTest::mouseClick(box->button(which), Qt::LeftButton);
}

} // namespace

void Answer(QMessageBox& box, const ExpectedBox& expected) {
    EXPECT_EQ(qt::FromQt(box.windowTitle()), expected.Title);
    if (!expected.Text.empty()) {
        EXPECT_EQ(qt::FromQt(box.text()), qt::FromQt(qt::LinesOf(expected.Text)));
    }
    EXPECT_EQ(box.icon(), icons[static_cast<int>(expected.TheIcon)]) << "icon of " << qPrintable(box.text());
    QAbstractButton* button = box.button(buttons[static_cast<int>(expected.TheAnswer)]);
    EXPECT_NE(button, nullptr) << "buttons of " << qPrintable(box.text());
    if (button == nullptr)
        button = box.escapeButton();
    QTest::mouseClick(button, Qt::LeftButton);
}

void Answer(QFileDialog& dialog, const ExpectedFileChoice& expected) {
    if (!expected.Path)
        return ClickButton(dialog, QDialogButtonBox::Cancel);
    // The files of a test are not on this machine's disk.
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(qt::ToQt(*expected.Path));
    ClickButton(dialog, QDialogButtonBox::Open);
}

void Answer(QInputDialog& dialog, const ExpectedPrompt& expected) {
    EXPECT_EQ(qt::FromQt(dialog.windowTitle()), expected.Title);
    auto* field = dialog.findChild<QLineEdit*>();
    field->selectAll();
    QTest::keyClicks(field, qt::ToQt(expected.Answer));
    ClickButton(dialog, expected.Answer.empty() ? QDialogButtonBox::Cancel : QDialogButtonBox::Ok);
}

} // namespace gfc::test
