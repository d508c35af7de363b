#include "qt/TextWindow.h"

#include "qt/SideWindow.h"
#include "qt/Texts.h"
#include "services/CodePage.h"

#include <QFile>
#include <QFileInfo>
#include <QPlainTextEdit>

namespace gfc::qt {

bool ShowTextWindow(const std::string& path, ui::WindowState state, QWidget* owner) {
    QFile file(ToQt(path));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray bytes = file.readAll();
    const std::string text =
        services::FromCodePage({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    SideWindow& window = SideWindow::Open("TextWindow", owner);
    window.setWindowTitle(QFileInfo(file).fileName());
    auto* page = new QPlainTextEdit(LinesOf(text), &window);
    page->setObjectName("TextPage");
    page->setAccessibleName(QStringLiteral("Text of the file"));
    page->setReadOnly(true);
    page->setLineWrapMode(QPlainTextEdit::NoWrap);
    if (state == ui::WindowState::Maximised)
        window.setWindowState(Qt::WindowMaximized);
    window.Fill(*page, QSize(760, 480));
    return true;
}

} // namespace gfc::qt
