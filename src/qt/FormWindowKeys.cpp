#include "qt/FindBar.h"
#include "qt/FormWindow.h"
#include "qt/HelpWindow.h"
#include "qt/Mnemonics.h"
#include "qt/Renderer.h"
#include "qt/Texts.h"
#include "ui/Buttons.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

// What a window does with the keyboard: the order of the Tab key, the keys that no control has used, letters
// and finding.
namespace gfc::qt {

void FormWindow::SetUpKeys() {
    // Tab goes through the controls in the order of the form.
    QWidget* before = nullptr;
    for (const ui::Control* control : form_->Controls()) {
        const Renderer* renderer = RendererOf(control);
        QWidget* widget = renderer == nullptr ? nullptr : renderer->FocusWidget();
        if (widget == nullptr)
            continue;
        if (before != nullptr)
            setTabOrder(before, widget);
        before = widget;
    }
    AssignMnemonics(*this);
    SetUpFinding();
}

void FormWindow::SetUpFinding() {
    const auto& controls = form_->Controls();
    const bool anyList = std::any_of(controls.begin(), controls.end(), [](const ui::Control* control) {
        return control->TheKind() == ui::Kind::ListView || control->TheKind() == ui::Kind::Tree;
    });
    if (!anyList)
        return;
    auto* bar = new FindBar(*this);
    static_cast<QVBoxLayout*>(layout())->addWidget(bar);
    const auto on = [this, bar](const QKeySequence& key, void (FindBar::*act)()) {
        QObject::connect(new QShortcut(key, this), &QShortcut::activated, bar, act);
    };
    on(QKeySequence::Find, &FindBar::Open);
    on(QKeySequence(Qt::Key_F3), &FindBar::Next);
    on(QKeySequence(Qt::SHIFT | Qt::Key_F3), &FindBar::Previous);
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_F1:
        return event->setAccepted(PressKey(ui::Key::F1));
    case Qt::Key_Escape:
        return event->setAccepted(PressKey(ui::Key::Escape));
    case Qt::Key_Enter:
    case Qt::Key_Return:
        return event->setAccepted(PressKey(ui::Key::Enter));
    default:
        return QWidget::keyPressEvent(event);
    }
}

bool FormWindow::PressKey(ui::Key key) {
    if (form_ == nullptr)
        return false;
    const InEvent going(*this);
    if (form_->PersonPresses(key) || form_ == nullptr)
        return true;
    // A form that has no help number has its page in the manual all the same.
    if (key == ui::Key::F1)
        ShowHelpWindow(ManualFolder(), ToQt(form_->Name()), this);
    if (key == ui::Key::Escape)
        PressButton(form_->CancelButton());
    // The button that has the focus comes before the one that Enter presses elsewhere.
    if (auto* focused = dynamic_cast<QPushButton*>(focusWidget());
        key == ui::Key::Enter && focused != nullptr)
        focused->click();
    else if (key == ui::Key::Enter)
        PressButton(form_->DefaultButton());
    return true;
}

void FormWindow::PressButton(ui::CommandButton* button) {
    Renderer* renderer = button == nullptr ? nullptr : RendererOf(button);
    if (renderer != nullptr)
        Act(*renderer, [button] { button->PersonClicks(); });
}

} // namespace gfc::qt
