#include "qt/FormWindow.h"
#include "qt/HelpWindow.h"
#include "qt/Icons.h"
#include "qt/MachineHelp.h"
#include "qt/QtScreen.h"
#include "qt/TextWindow.h"
#include "qt/Texts.h"
#include "qt/render/MenuEntryRenderer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>
#include <QWindow>

#include <array>

namespace gfc::qt {

namespace {

constexpr int looksAfterViewer = 100; // ten seconds

constexpr std::array<QMessageBox::Icon, 5> icons{QMessageBox::NoIcon, QMessageBox::Information,
                                                 QMessageBox::Question, QMessageBox::Warning,
                                                 QMessageBox::Critical};

// The help button opens the help and leaves the box as it is. Only its click is taken from the box: screen
// readers forget a button by its other signals, and would ask it after its end.
void AddHelp(QMessageBox& message, const std::function<void()>& openHelp) {
    QAbstractButton* help = message.addButton(QMessageBox::Help);
    QObject::disconnect(help, &QAbstractButton::clicked, nullptr, nullptr);
    QObject::connect(help, &QAbstractButton::clicked, &message, openHelp);
    auto* key = new QShortcut(QKeySequence(Qt::Key_F1), &message);
    QObject::connect(key, &QShortcut::activated, &message, openHelp);
}

// In the order of ui::Answer.
constexpr std::array<QMessageBox::StandardButton, 5> buttonsOfAnswers{
    QMessageBox::Ok, QMessageBox::Yes, QMessageBox::No, QMessageBox::Retry, QMessageBox::Close};

QMessageBox::StandardButton ButtonOf(ui::Answer answer) {
    return buttonsOfAnswers.at(static_cast<std::size_t>(answer));
}

void SetUpButtons(QMessageBox& message, ui::Buttons buttons) {
    const auto [first, last] = ui::AnswersOf(buttons);
    message.setStandardButtons(ButtonOf(first) | ButtonOf(last));
    message.setDefaultButton(ButtonOf(first));
    message.setEscapeButton(ButtonOf(last));
}

// Its words are no markup, whatever they are.
void ShowAtStake(QMessageBox& message, const QString& name) {
    message.setInformativeText(name);
    if (auto* line = message.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel")))
        line->setTextFormat(Qt::PlainText);
    message.setDefaultButton(QMessageBox::No);
}

ui::Answer AnswerOf(int button, ui::Buttons buttons) {
    const auto [first, last] = ui::AnswersOf(buttons);
    return button == ButtonOf(first) ? first : last;
}

} // namespace

// Boxes stand over the top window without belonging to it: that one may go while the box is open.
int QtScreen::Execute(QDialog& dialog) {
    QWidget* owner = TopWindow();
    dialog.setWindowIcon(IconNamed("App"));
    dialog.setWindowModality(Qt::ApplicationModal);
    (void)dialog.winId();
    if (owner != nullptr && owner->windowHandle() != nullptr) {
        dialog.windowHandle()->setTransientParent(owner->windowHandle());
        dialog.adjustSize();
        dialog.move(owner->geometry().center() - dialog.rect().center());
    }
    const int result = dialog.exec();
    // Not every window manager gives the focus back to where it was.
    if (QWidget* top = TopWindow(); top != nullptr && !ended_)
        top->activateWindow();
    return result;
}

ui::Answer QtScreen::Ask(const ui::Box& box) {
    if (ended_)
        return AnswerOf(QMessageBox::NoButton, box.TheButtons);
    QMessageBox message;
    message.setTextFormat(Qt::PlainText);
    message.setWindowTitle(ToQt(box.Title));
    message.setText(LinesOf(box.Text));
    message.setIcon(icons.at(static_cast<std::size_t>(box.TheIcon)));
    SetUpButtons(message, box.TheButtons);
    if (!box.AtStake.empty())
        ShowAtStake(message, ToQt(box.AtStake));
    if (box.HelpContext != 0)
        AddHelp(message, [this, &box] { OpenHelp(box.HelpFile, box.HelpContext); });
    return AnswerOf(Execute(message), box.TheButtons);
}

std::optional<std::string> QtScreen::ChooseFile(const ui::FileChoice& choice) {
    if (ended_)
        return std::nullopt;
    QFileDialog dialog;
    const QString name = ToQt(choice.FilterName);
    const bool namesPattern = name.contains(QLatin1Char('('));
    dialog.setWindowTitle(ToQt(choice.Title));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilter(namesPattern ? name : name + " (" + ToQt(choice.Pattern) + ")");
    if (Execute(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return FromQt(QDir::toNativeSeparators(dialog.selectedFiles().first()));
}

void QtScreen::CopyText(const std::string& text) {
    QGuiApplication::clipboard()->setText(ToQt(text));
}

std::optional<std::string> QtScreen::ChooseTarget(const ui::TargetChoice& choice) {
    if (ended_)
        return std::nullopt;
    QFileDialog dialog;
    QStringList kinds;
    for (const ui::TargetKind& kind : choice.Kinds)
        kinds << ToQt(kind.Name + " (" + kind.Pattern + ")");
    dialog.setWindowTitle(ToQt(choice.Title));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(kinds);
    dialog.selectFile(ToQt(choice.Name));
    // A name without an ending gets that of the kind that is chosen.
    const auto suffix = [&](const QString& kind) { return kind.section(QStringLiteral("*."), 1).chopped(1); };
    dialog.setDefaultSuffix(suffix(dialog.selectedNameFilter()));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&](const QString& kind) { dialog.setDefaultSuffix(suffix(kind)); });
    if (Execute(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return FromQt(QDir::toNativeSeparators(dialog.selectedFiles().first()));
}

std::string QtScreen::AskText(const std::string& title, const std::string& prompt) {
    if (ended_)
        return {};
    QInputDialog dialog;
    dialog.setInputMode(QInputDialog::TextInput);
    dialog.setWindowTitle(ToQt(title));
    dialog.setLabelText(LinesOf(prompt));
    return Execute(dialog) == QDialog::Accepted ? FromQt(dialog.textValue()) : std::string();
}

// Not waited for: what is chosen there runs after the event that opened it.
void QtScreen::PopUp(ui::MenuEntry& menu) {
    const FormWindow* window = WindowOf(menu.Owner());
    const auto* entry =
        window == nullptr ? nullptr : dynamic_cast<MenuEntryRenderer*>(window->RendererOf(&menu));
    if (entry != nullptr && entry->Menu() != nullptr && !ended_)
        entry->Menu()->popup(QCursor::pos());
}

void QtScreen::OpenHelp(const std::string& file, int context) {
    // The help is looked for beside the program, and whatever the helper looks for is found there too.
    QDir::setCurrent(QCoreApplication::applicationDirPath());
    if (!ended_ && !OpenMachineHelp(file, context))
        ShowHelpWindow(ManualFolder(), context, TopWindow());
}

bool QtScreen::ViewText(const std::string& path, ui::WindowState state) {
    if (ended_)
        return false;
    if (!viewer_ || !viewer_(path, state))
        return ShowTextWindow(path, state, TopWindow());
    if (viewerFailed_)
        LookAfterViewer(path, state, looksAfterViewer);
    return true;
}

// Nobody waits for a viewer, and one that has not ended by then is being read.
void QtScreen::LookAfterViewer(const std::string& path, ui::WindowState state, int looks) {
    constexpr int pause = 100; // milliseconds
    QTimer::singleShot(pause, &looking_, [this, path, state, looks] {
        if (ended_)
            return;
        if (viewerFailed_())
            (void)ShowTextWindow(path, state, TopWindow());
        else if (looks > 1)
            LookAfterViewer(path, state, looks - 1);
    });
}

} // namespace gfc::qt
