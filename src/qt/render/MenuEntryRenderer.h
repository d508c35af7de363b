#pragma once

#include "qt/FormWindow.h"
#include "qt/Renderer.h"
#include "qt/Texts.h"
#include "ui/Menu.h"

#include <QAction>
#include <QMenu>

namespace gfc::qt {

// An entry of the menu bar or of a menu; one in which others stand is a menu itself.
class MenuEntryRenderer final : public Renderer {
public:
    MenuEntryRenderer(FormWindow& window, ui::MenuEntry& control);

    // Null for an entry that is no menu.
    [[nodiscard]] QMenu* Menu() const { return menu_; }
    void Refresh() override;

private:
    // The menu in which the entry stands, or the menu bar. Menus are declared before their entries.
    [[nodiscard]] QWidget* PlaceOf(const ui::MenuEntry& control) const;
    void Click();

    ui::MenuEntry& control_;
    QMenu* menu_ = nullptr;
    QAction* action_ = nullptr;
    std::string image_;
};

} // namespace gfc::qt
