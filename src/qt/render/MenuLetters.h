#pragma once

#include <QMenu>

namespace gfc::qt {

// Lets the entries of an open menu whose captions mark no letter be reached by the first one of theirs, as
// menus of Windows do: an entry that is alone with it is chosen, several are gone through.
class MenuLetters : public QObject {
public:
    // Lives as long as the menu.
    explicit MenuLetters(QMenu& menu);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QList<QAction*> EntriesWith(const QString& letter) const;
    void GoTo(const QList<QAction*>& entries);

    QMenu& menu_;
};

} // namespace gfc::qt
