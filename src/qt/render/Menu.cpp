#include "ui/Menu.h"

#include "qt/Icons.h"
#include "qt/render/MenuEntryRenderer.h"
#include "qt/render/MenuLetters.h"
#include "qt/render/Renderers.h"
#include "ui/Form.h"

#include <QMenuBar>

#include <algorithm>

namespace gfc::qt {

namespace {
bool HasEntries(const ui::MenuEntry& entry) {
    const auto& controls = entry.Owner().Controls();
    return std::any_of(controls.begin(), controls.end(),
                       [&entry](const ui::Control* control) { return control->Container() == &entry; });
}
} // namespace

MenuEntryRenderer::MenuEntryRenderer(FormWindow& window, ui::MenuEntry& control)
    : Renderer(window), control_(control) {
    QWidget* place = PlaceOf(control);
    if (HasEntries(control)) {
        menu_ = new QMenu(place);
        new MenuLetters(*menu_);
        action_ = menu_->menuAction();
        QObject::connect(menu_, &QMenu::aboutToShow, this, [this] { Click(); });
    } else {
        action_ = new QAction(place);
        QObject::connect(action_, &QAction::triggered, this, [this] { Click(); });
    }
    action_->setObjectName(ToQt(control.Name()));
    action_->setSeparator(control.IsSeparator());
    place->addAction(action_);
}

QWidget* MenuEntryRenderer::PlaceOf(const ui::MenuEntry& control) const {
    const auto* above = dynamic_cast<MenuEntryRenderer*>(window_.RendererOf(control.Container()));
    if (above == nullptr || above->menu_ == nullptr)
        return &window_.MenuBar();
    return above->menu_;
}

void MenuEntryRenderer::Click() {
    window_.Act(*this, [this] { (void)control_.PersonClicks(); });
}

void MenuEntryRenderer::Refresh() {
    if (const QString text = ToQt(control_.Caption()); !control_.IsSeparator() && action_->text() != text)
        action_->setText(text);
    if (image_ != control_.Image()) {
        image_ = control_.Image();
        action_->setIcon(IconNamed(image_));
    }
    // An entry without keys of its own may have been given a letter by the window.
    if (const QKeySequence keys(ToQt(control_.Shortcut())); !keys.isEmpty() && action_->shortcut() != keys)
        action_->setShortcut(keys);
    action_->setEnabled(control_.Enabled());
    action_->setVisible(control_.Visible());
}

RendererPtr RenderMenuEntry(FormWindow& window, ui::Control& control, QWidget*) {
    return std::make_unique<MenuEntryRenderer>(window, dynamic_cast<ui::MenuEntry&>(control));
}

} // namespace gfc::qt
