#pragma once

#include <QPointer>
#include <QWidget>

namespace gfc::qt {

// A window beside the forms, for reading: it blocks nothing, stays usable while modal windows come and go,
// and closes when Escape is pressed in it. It deletes itself then, and with the screen at the latest.
class SideWindow : public QWidget {
public:
    // Closes the one of that name and makes it anew, over its owner if it has one.
    static SideWindow& Open(const char* name, QWidget* owner);
    // Null if none of that name is open.
    [[nodiscard]] static SideWindow* Named(const char* name);
    static void DeleteAll();

    // Stands over the window that a person works in, or a modal one would keep it from being used. Null for
    // none.
    void StandOver(QWidget* owner);
    // Moves it into the middle of what it stands over, as far as the screen reaches.
    void StandWithinScreen();
    // Takes the content and shows the window.
    void Fill(QWidget& content, QSize size);

protected:
    explicit SideWindow(const char* name);
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void StandOver(QWindow* under);

    QPointer<QWindow> under_;
};

} // namespace gfc::qt
