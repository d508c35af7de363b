#pragma once

#include <QWidget>

class QAction;
class QVBoxLayout;

namespace gfc::workshop {

/// What stands in the place of the tables while no project is open: what can be done, one button for each,
/// with a line that says what comes of it.
class StartPage : public QWidget {
    Q_OBJECT
public:
    explicit StartPage(QWidget* parent = nullptr);

    /// A button that does what the entry of the menu does. The first one that is added has the focus.
    void Offer(QAction* action, const QString& text, const QString& explanation);

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QVBoxLayout* buttons_;
    QWidget* first_ = nullptr;
};

} // namespace gfc::workshop
