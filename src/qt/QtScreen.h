#pragma once

#include "qt/Designs.h"
#include "ui/Exchange.h"
#include "ui/Screen.h"

#include <QObject>

#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

class QDialog;
class QEventLoop;
class QWidget;

namespace gfc::qt {

class FormWindow;

// The windows of the program. A modal form runs an event loop of its own inside the event that opened it, so
// that a chain of forms reads as the flow reads.
class QtScreen : public ui::Screen, public ui::Exchange {
public:
    // Opens a text file in the machine's viewer; false if there is none. Then, and without a viewer, a window
    // of the program's own shows it.
    using Viewer = std::function<bool(const std::string& path, ui::WindowState state)>;
    explicit QtScreen(Viewer viewer = {});
    // Asked for a while after the viewer was opened: true if it has ended badly, and shown nothing. The
    // window of the program's own then takes its place.
    void WatchViewer(std::function<bool()> hasFailed) { viewerFailed_ = std::move(hasFailed); }
    ~QtScreen() override;
    QtScreen(const QtScreen&) = delete;
    QtScreen& operator=(const QtScreen&) = delete;

    // The main loop: returns the exit code once no form is shown or the program has ended.
    int Run();
    // For a form that is none of the program's own: its design, to be given before it is shown.
    void AddDesign(const Design& design) { designs_.push_back(design); }

    void Appear(ui::Form& form) override;
    void RunModal(ui::Form& form) override;
    void Disappear(ui::Form& form) override;
    void Discard(ui::Form& form) override;
    ui::Answer Ask(const ui::Box& box) override;
    std::optional<std::string> ChooseFile(const ui::FileChoice& choice) override;
    std::string AskText(const std::string& title, const std::string& prompt) override;
    void PopUp(ui::MenuEntry& menu) override;
    void OpenHelp(const std::string& file, int context) override;
    bool ViewText(const std::string& path, ui::WindowState state) override;
    void CopyText(const std::string& text) override;
    std::optional<std::string> ChooseTarget(const ui::TargetChoice& choice) override;
    void DoEvents() override;
    void WaitAMoment() override;
    void Busy(const std::function<void()>& work) override;
    void EndProgram(int exitCode) override;
    [[nodiscard]] bool Ended() const override { return ended_; }

    // Null if that form has no window.
    [[nodiscard]] FormWindow* WindowOf(const ui::Form& form) const;
    [[nodiscard]] bool AnyShown() const { return !shown_.empty(); }

private:
    struct ModalLoop {
        ui::Form* Form;
        QEventLoop* Loop;
    };

    FormWindow& WindowFor(ui::Form& form);
    void ShowWindow(ui::Form& form, bool modal);
    void LoopWhileShown(ui::Form& form);
    void ActivateTop();
    // The window that a new one stands over; null if there is none.
    [[nodiscard]] QWidget* TopWindow() const;
    [[nodiscard]] bool IsModal(const ui::Form& form) const;
    int Execute(QDialog& dialog);

    void LookAfterViewer(const std::string& path, ui::WindowState state, int looks);

    Viewer viewer_;
    std::function<bool()> viewerFailed_;
    QObject looking_; // for as long as a viewer is looked after
    std::vector<Design> designs_;
    std::unordered_map<const ui::Form*, FormWindow*> windows_;
    std::vector<ui::Form*> shown_; // the one shown last stands at the end
    std::vector<ModalLoop> loops_;
    QEventLoop* mainLoop_ = nullptr;
    int exitCode_ = 0;
    bool ended_ = false;
};

} // namespace gfc::qt
