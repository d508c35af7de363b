#include "workshop/window/StartPage.h"

#include <QAction>
#include <QCommandLinkButton>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QVBoxLayout>

namespace gfc::workshop {

namespace {

constexpr int Widest = 520; // pixels; lines of text that are longer are hard to read

// The toolkit marks such a button where the mouse is, and nowhere where the keys are.
class StartButton : public QCommandLinkButton {
public:
    using QCommandLinkButton::QCommandLinkButton;

protected:
    void paintEvent(QPaintEvent* event) override {
        QCommandLinkButton::paintEvent(event);
        if (hasFocus()) {
            QStyleOptionFocusRect frame;
            frame.initFrom(this);
            frame.state |= QStyle::State_KeyboardFocusChange;
            QPainter painter(this);
            style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
        }
    }
};

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
    auto* button = MakeButton(text, explanation);
    button->setObjectName(QStringLiteral("Start") + action->objectName());
    connect(button, &QAbstractButton::clicked, action, &QAction::trigger);
    first_ = first_ == nullptr ? button : first_;
}

QPushButton* StartPage::MakeButton(const QString& text, const QString& explanation) {
    auto* button = new StartButton(text, explanation);
    button->setMaximumWidth(Widest);
    button->setMinimumWidth(Widest);
    buttons_->addWidget(button);
    return button;
}

void StartPage::OfferRecent(const QStringList& files) {
    qDeleteAll(recent_);
    recent_.clear();
    for (const QString& file : files) {
        const QFileInfo info(file);
        // A name may hold what would else be taken for the mark of a key.
        auto* button = MakeButton(info.fileName().replace(QLatin1Char('&'), QStringLiteral("&&")),
                                  tr("Open it again, from %1").arg(QDir::toNativeSeparators(info.path())));
        button->setObjectName(QStringLiteral("StartRecent"));
        connect(
            button, &QAbstractButton::clicked, this, [this, file] { Q_EMIT Opened(file); },
            Qt::QueuedConnection); // the button goes with what it does
        recent_ += button;
    }
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
