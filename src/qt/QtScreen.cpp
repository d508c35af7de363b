#include "qt/QtScreen.h"

#include "qt/FormWindow.h"
#include "qt/SideWindow.h"
#include "qt/Waiting.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace gfc::qt {

QtScreen::QtScreen(Viewer viewer) : viewer_(std::move(viewer)) {}

QtScreen::~QtScreen() {
    for (const auto& [form, window] : windows_)
        delete window;
    SideWindow::DeleteAll();
}

int QtScreen::Run() {
    while (!ended_ && !shown_.empty()) {
        QEventLoop loop;
        mainLoop_ = &loop;
        loop.exec();
        mainLoop_ = nullptr;
    }
    return exitCode_;
}

FormWindow* QtScreen::WindowOf(const ui::Form& form) const {
    const auto found = windows_.find(&form);
    return found == windows_.end() ? nullptr : found->second;
}

FormWindow& QtScreen::WindowFor(ui::Form& form) {
    FormWindow*& window = windows_[&form];
    if (window != nullptr)
        return *window;
    const auto given = std::find_if(designs_.begin(), designs_.end(),
                                    [&form](const Design& design) { return design.Form == form.Name(); });
    window = new FormWindow(form, given == designs_.end() ? nullptr : &*given);
    return *window;
}

void QtScreen::ShowWindow(ui::Form& form, bool modal) {
    QWidget* owner = TopWindow();
    FormWindow& window = WindowFor(form);
    if (std::find(shown_.begin(), shown_.end(), &form) == shown_.end())
        shown_.push_back(&form);
    window.ShowAs(modal ? Qt::ApplicationModal : Qt::NonModal, owner == &window ? nullptr : owner);
    form.Activated();
}

void QtScreen::Appear(ui::Form& form) {
    // A form that was hidden and is shown again while its modal loop runs is still modal.
    if (!ended_)
        ShowWindow(form, IsModal(form));
}

void QtScreen::RunModal(ui::Form& form) {
    if (ended_)
        return;
    const auto alive = form.KeepAlive();
    ShowWindow(form, true);
    LoopWhileShown(form);
    ActivateTop();
}

void QtScreen::LoopWhileShown(ui::Form& form) {
    while (form.IsShown() && !ended_) {
        QEventLoop loop;
        loops_.push_back({&form, &loop});
        loop.exec();
        loops_.pop_back();
    }
}

// Whoever shines through again once a modal form has gone is the active window; a box that closes makes no
// one active.
void QtScreen::ActivateTop() {
    if (ended_ || shown_.empty() || !shown_.back()->IsShown())
        return;
    ui::Form& top = *shown_.back();
    if (FormWindow* window = WindowOf(top); window != nullptr)
        window->TakeFocus();
    top.Activated();
}

void QtScreen::Disappear(ui::Form& form) {
    shown_.erase(std::remove(shown_.begin(), shown_.end(), &form), shown_.end());
    if (FormWindow* window = WindowOf(form); window != nullptr)
        window->hide();
    for (const ModalLoop& loop : loops_)
        if (loop.Form == &form)
            loop.Loop->quit();
    if (shown_.empty() && mainLoop_ != nullptr)
        mainLoop_->quit();
}

void QtScreen::Discard(ui::Form& form) {
    Disappear(form);
    const auto found = windows_.find(&form);
    if (found == windows_.end())
        return;
    FormWindow* window = found->second;
    windows_.erase(found);
    window->Dismiss();
}

bool QtScreen::IsModal(const ui::Form& form) const {
    return std::any_of(loops_.begin(), loops_.end(),
                       [&form](const ModalLoop& loop) { return loop.Form == &form; });
}

QWidget* QtScreen::TopWindow() const {
    for (auto form = shown_.rbegin(); form != shown_.rend(); ++form)
        if (FormWindow* window = WindowOf(**form); window != nullptr && window->isVisible())
            return window;
    return nullptr;
}

void QtScreen::DoEvents() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtScreen::WaitAMoment() {
    constexpr int moment = 20; // milliseconds
    const Waiting waiting;
    const QDeadlineTimer end(moment);
    QTimer wake;
    wake.setSingleShot(true);
    wake.start(moment);
    while (!end.hasExpired() && !ended_)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void QtScreen::Busy(const std::function<void()>& work) {
    const Waiting waiting;
    work();
}

void QtScreen::EndProgram(int exitCode) {
    if (ended_)
        return;
    ended_ = true;
    exitCode_ = exitCode;
    for (const ModalLoop& loop : loops_)
        loop.Loop->quit();
    if (mainLoop_ != nullptr)
        mainLoop_->quit();
    while (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* dialog = qobject_cast<QDialog*>(window); dialog != nullptr && dialog->isVisible())
            dialog->reject();
}

} // namespace gfc::qt
