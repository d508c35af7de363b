#pragma once

#include "qt/BusyPointer.h"
#include "qt/Designs.h"
#include "qt/FocusGate.h"
#include "ui/Form.h"

#include <QPointer>
#include <QWidget>

#include <map>
#include <memory>

class QMenuBar;
class QScrollArea;

namespace gfc::qt {

class Renderer;

// The window of one form. It is bound to the form, and keeps it, from its making until Release; then the form
// may go before the window, which lives until the event that it is in has returned.
class FormWindow : public QWidget, private ui::FormObserver {
public:
    // Without a design of its own it takes the one that bears the form's name.
    explicit FormWindow(ui::Form& form, const Design* design = nullptr);
    ~FormWindow() override;

    // Null once released.
    [[nodiscard]] ui::Form* Form() const { return form_; }
    void Release();
    // Releases it and takes it away, as soon as nothing that a person did in it is still going on: it may
    // well be dismissed from a window that one of its own events has opened.
    void Dismiss();

    // Shows it as a dialog that blocks the others, or as a window among them; over its owner, if it has one.
    void ShowAs(Qt::WindowModality modality, QWidget* owner);
    // The window is the active one: the focus stands where the form has it.
    void TakeFocus();

    // Carries out what a person did to a control, unless the window itself is being written to. Afterwards
    // the widget shows what the control holds.
    void Act(Renderer& renderer, const std::function<void()>& act);
    // Makes the window larger if what is seen now does not fit, as far as the screen goes.
    void GrowToContent();
    // Writes all controls to their widgets.
    void RefreshAll();

    [[nodiscard]] QWidget* WidgetNamed(const std::string& name) const;
    [[nodiscard]] Renderer* RendererOf(const ui::Control* control) const;
    // Made at first use.
    [[nodiscard]] QMenuBar& MenuBar();

    // While one lives, what widgets report is the window's own doing and goes to nobody.
    class Writing {
    public:
        explicit Writing(FormWindow& window) : window_(window) { ++window_.writing_; }
        ~Writing() { --window_.writing_; }
        Writing(const Writing&) = delete;
        Writing& operator=(const Writing&) = delete;

    private:
        FormWindow& window_;
    };
    [[nodiscard]] bool IsWriting() const { return writing_ > 0; }

    // While one lives, an event of this window is going on: neither the window nor its form goes.
    class InEvent {
    public:
        explicit InEvent(FormWindow& window);
        ~InEvent();
        InEvent(const InEvent&) = delete;
        InEvent& operator=(const InEvent&) = delete;

    private:
        FormWindow& window_;
        std::shared_ptr<ui::Form> form_;
    };

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ControlChanged(ui::Control& control) override;
    void FormChanged() override;
    void FocusMoved(ui::Control& control) override;

    void SetUpContent(const Design* design);
    void Bind();
    // The widget that shows it; null for what has none.
    void BindControl(ui::Control& control, QWidget* widget);
    void NameForReaders();
    void SetUpKeys();
    void SetUpFinding();
    void FitToScreen();
    void DropScrollBars();
    void PutOver(const QWidget* owner);
    [[nodiscard]] Qt::WindowFlags FlagsFor(Qt::WindowModality modality) const;
    bool PressKey(ui::Key key);
    void PressButton(ui::CommandButton* button);

    ui::Form* form_;
    // A form does not go before its window is released: the widgets read straight from its controls.
    std::shared_ptr<ui::Form> held_;
    QScrollArea* area_ = nullptr;
    QWidget* content_ = nullptr;
    QMenuBar* menuBar_ = nullptr;
    std::map<const ui::Control*, std::unique_ptr<Renderer>> renderers_;
    std::unique_ptr<FocusGate> gate_;
    BusyPointer busy_;
    QPointer<QWidget> focusBeforeDisabling_;
    int writing_ = 0;
    int events_ = 0;
    bool dismissed_ = false;
    QSize designed_; // the size that the design gives; not valid if it gives none
    bool sized_ = false;
};

} // namespace gfc::qt
