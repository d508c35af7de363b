#pragma once

#include <QObject>
#include <QString>

namespace gfc::qt {

class FormWindow;

// Keeps how large a person made each window and the columns of its tables, where its splitters stand, and
// which node was selected last in a tree whose design asks for that, in a file of the user's own, and gives
// that back at the next start. A file that cannot be read or written, or that holds nonsense, leaves
// the windows as they are designed.
class WindowPlaces : public QObject {
public:
    // Watches all windows of the application from here on.
    explicit WindowPlaces(QString file);

    // In the user's folder for settings.
    [[nodiscard]] static QString FileOfUser();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void GiveBack(FormWindow& window) const;
    void Keep(const FormWindow& window) const;

    QString file_;
};

} // namespace gfc::qt
