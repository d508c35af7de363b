#include "qt/render/LineEditKeys.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>

#include <memory>

namespace gfc::qt {

namespace {
constexpr char32_t backspace = 8;
constexpr char32_t enter = 13;
constexpr char32_t firstPrintable = 32;
constexpr char32_t del = 127;
} // namespace

LineEditKeys::LineEditKeys(QLineEdit& line, Filter filter) : line_(line), filter_(std::move(filter)) {
    line.setAcceptDrops(false);
    line.setDragEnabled(false);
    line.installEventFilter(this);
}

bool LineEditKeys::eventFilter(QObject* watched, QEvent* event) {
    if (!line_.isEnabled() || line_.isReadOnly())
        return QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::KeyPress:
        return Key(*static_cast<QKeyEvent*>(event));
    case QEvent::InputMethod:
        return Compose(*static_cast<QInputMethodEvent*>(event));
    case QEvent::ContextMenu:
        return ShowMenu(*static_cast<QContextMenuEvent*>(event));
    case QEvent::MouseButtonRelease:
        if (static_cast<QMouseEvent*>(event)->button() != Qt::MiddleButton)
            return false;
        Paste(QGuiApplication::clipboard()->text(QClipboard::Selection));
        return true;
    default:
        return false;
    }
}

bool LineEditKeys::Key(const QKeyEvent& event) {
    if (event.matches(QKeySequence::Paste)) {
        Paste(QGuiApplication::clipboard()->text());
        return true;
    }
    if (event.key() == Qt::Key_Enter || event.key() == Qt::Key_Return) {
        if (EnterIsForTheField)
            (void)filter_(enter);
        // A field that has no use for Enter leaves it to the window.
        return EnterIsForTheField;
    }
    if (event.key() == Qt::Key_Backspace)
        return !filter_(backspace);
    const QString text = event.text();
    const auto characters = text.toUcs4();
    if (characters.isEmpty() || characters.first() < firstPrintable || characters.first() == del ||
        (event.modifiers() & (Qt::ControlModifier | Qt::MetaModifier)) == Qt::ControlModifier)
        return false;
    const QString allowed = Allowed(text);
    if (allowed == text)
        return false;
    if (!allowed.isEmpty())
        line_.insert(allowed);
    return true;
}

bool LineEditKeys::Compose(QInputMethodEvent& event) {
    const QString composed = event.commitString();
    const QString allowed = composed.isEmpty() ? composed : Allowed(composed);
    if (allowed == composed)
        return false;
    event.setCommitString(allowed, event.replacementStart(), event.replacementLength());
    return false;
}

bool LineEditKeys::ShowMenu(const QContextMenuEvent& event) {
    const std::unique_ptr<QMenu> menu(line_.createStandardContextMenu());
    // The toolkit gives the action no name; its text it has everywhere.
    for (QAction* action : menu->actions()) {
        if (!action->text().startsWith(QLineEdit::tr("&Paste")))
            continue;
        QObject::disconnect(action, &QAction::triggered, nullptr, nullptr);
        QObject::connect(action, &QAction::triggered, this,
                         [this] { Paste(QGuiApplication::clipboard()->text()); });
    }
    menu->exec(event.globalPos());
    return true;
}

void LineEditKeys::Paste(const QString& text) {
    if (const auto taken = TakePasted ? TakePasted(text) : std::nullopt) {
        if (!taken->isEmpty())
            line_.insert(*taken);
        return;
    }
    // Lines are joined as the keys that end them would be: not at all.
    QString line = text;
    line.remove(QLatin1Char('\r')).remove(QLatin1Char('\n'));
    const QString allowed = Allowed(line);
    if (!allowed.isEmpty())
        line_.insert(allowed);
}

QString LineEditKeys::Allowed(const QString& text) {
    QString allowed;
    for (const char32_t character : text.toUcs4())
        if (const auto taken = filter_(character))
            allowed += QString::fromUcs4(&*taken, 1);
    return allowed;
}

} // namespace gfc::qt
