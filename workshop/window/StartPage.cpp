#include "workshop/window/StartPage.h"

#include <QAction>
#include <QCommandLinkButton>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace gfc::workshop {

namespace {

constexpr int Widest = 520; // pixels; lines of text that are longer are hard to read

} // namespace

StartPage::StartPage(QWidget* parent) : QWidget(parent), buttons_(new QVBoxLayout) {
    setObjectName(QStringLiteral("StartPage"));
    auto* says = new QLabel(tr("No project is open"));
    QFont large = says->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    says->setFont(large);
    buttons_->addWidget(says);
    auto* across = new QHBoxLayout;
    across->addStretch();
    across->addLayout(buttons_, 1);
    across->addStretch();
    auto* down = new QVBoxLayout(this);
    down->addStretch(1);
    down->addLayout(across);
    down->addStretch(2);
}

void StartPage::Offer(QAction* action, const QString& text, const QString& explanation) {
    auto* button = new QCommandLinkButton(text, explanation);
    button->setObjectName(QStringLiteral("Start") + action->objectName());
    button->setMaximumWidth(Widest);
    button->setMinimumWidth(Widest);
    connect(button, &QAbstractButton::clicked, action, &QAction::trigger);
    buttons_->addWidget(button);
    first_ = first_ == nullptr ? button : first_;
}

void StartPage::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (first_ != nullptr) {
        first_->setFocus();
    }
}

// Outside of a dialog a button leaves Enter to what it stands in.
void StartPage::keyPressEvent(QKeyEvent* event) {
    auto* button = qobject_cast<QAbstractButton*>(focusWidget());
    if (button != nullptr && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        button->click();
        return;
    }
    QWidget::keyPressEvent(event);
}

} // namespace gfc::workshop
