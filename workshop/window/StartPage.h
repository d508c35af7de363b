#pragma once

#include <QWidget>

class QAction;
class QPushButton;
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

    /// Below these a button for each of the files; Opened tells of the one that is pressed.
    void OfferRecent(const QStringList& files);

Q_SIGNALS:
    void Opened(const QString& file);

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QPushButton* MakeButton(const QString& text, const QString& explanation);

    QVBoxLayout* buttons_;
    QList<QWidget*> recent_;
    QWidget* first_ = nullptr;
};

} // namespace gfc::workshop
