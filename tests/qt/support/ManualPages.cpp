#include "qt/support/ManualPages.h"

#include "qt/HelpWindow.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTextDocument>

namespace gfc::test {

QString Html(const QString& file) {
    QFile page(QDir(qt::ManualFolder()).filePath(file));
    return page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()) : QString();
}

QString PlainText(const QString& html) {
    QTextDocument document;
    document.setHtml(html);
    return document.toPlainText().simplified();
}

QStringList Captured(const QString& html, const QString& pattern) {
    const QRegularExpression wanted(pattern, QRegularExpression::DotMatchesEverythingOption);
    QStringList found;
    for (auto at = wanted.globalMatch(html); at.hasNext();)
        found << at.next().captured(1);
    return found;
}

QStringList Marked(const QString& html, const QString& element, const QString& mark) {
    QStringList texts = Captured(html, QStringLiteral("<%1 class=\"%2\">(.*?)</%1>").arg(element, mark));
    for (QString& text : texts)
        text = PlainText(text);
    return texts;
}

QStringList FormsOf(const QString& html) {
    return Captured(html, QStringLiteral("name=\"forms\" content=\"([^\"]*)\""))
        .value(0)
        .split(QLatin1Char(' '));
}

} // namespace gfc::test
