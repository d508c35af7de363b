#pragma once

#include <QObject>

#include <functional>

class QContextMenuEvent;
class QInputMethodEvent;
class QKeyEvent;
class QLineEdit;
class QString;

namespace gfc::qt {

// Asks about every character on its way into a line of text, in whatever way it comes: typed, composed by an
// input method, pasted by key, menu or middle mouse button. What is dragged onto the line is not taken.
class LineEditKeys : public QObject {
public:
    using Filter = std::function<bool(char32_t)>;
    LineEditKeys(QLineEdit& line, Filter filter);

    // Enter is asked about as a character; else it goes on to the window.
    bool EnterIsForTheField = true;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // True if the event ends here.
    bool Key(const QKeyEvent& event);
    bool Compose(QInputMethodEvent& event);
    bool ShowMenu(const QContextMenuEvent& event);
    void Paste(const QString& text);
    [[nodiscard]] QString Allowed(const QString& text);

    QLineEdit& line_;
    Filter filter_;
};

} // namespace gfc::qt
