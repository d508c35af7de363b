#pragma once

#include <QWidget>

namespace gfc::qt {

// A window beside the forms, for reading: it blocks nothing, stays usable while a modal form is open, and
// goes when it is closed or Escape is pressed in it. One of each name at a time.
class SideWindow : public QWidget {
public:
    // Closes the one of that name and makes it anew, over its owner if it has one.
    static SideWindow& Open(const char* name, QWidget* owner);
    // Takes the content and shows the window.
    void Fill(QWidget& content, QSize size);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    SideWindow() = default;
};

} // namespace gfc::qt
