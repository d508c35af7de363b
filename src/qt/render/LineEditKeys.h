#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

class QContextMenuEvent;
class QInputMethodEvent;
class QKeyEvent;
class QLineEdit;

namespace gfc::qt {

// Asks about every character on its way into a line of text, in whatever way it comes: typed, composed by an
// input method, pasted by key, menu or middle mouse button. What is dragged onto the line is not taken.
class LineEditKeys : public QObject {
public:
    // The character that is taken, mostly the one that was asked about; none for one that is refused.
    using Filter = std::function<std::optional<char32_t>(char32_t)>;
    LineEditKeys(QLineEdit& line, Filter filter);

    // What is taken of a pasted text as a whole; nothing where each of its characters is to be asked about.
    std::function<std::optional<QString>(const QString&)> TakePasted;

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
