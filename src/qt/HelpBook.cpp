#include "qt/HelpBook.h"

#include <QDir>
#include <QFile>
#include <QTextDocument>

#include <algorithm>

namespace gfc::qt {

namespace {

constexpr const char* contentsFile = "contents.txt";
constexpr int indent = 2; // blanks for each level of the contents

QString Read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// "  page.html 3000 3100 Step"; a page without a file if the line names none.
HelpPage PageOfLine(const QString& line) {
    const QStringList parts = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    HelpPage page;
    if (parts.isEmpty() || line.startsWith(QLatin1Char('#')))
        return page;
    page.File = parts.front();
    page.Level = static_cast<int>(line.indexOf(page.File)) / indent;
    for (const QString& part : parts.mid(1)) {
        bool isNumber = false;
        const int number = part.toInt(&isNumber);
        if (isNumber)
            page.Contexts.push_back(number);
        else
            page.Forms.push_back(part);
    }
    return page;
}

void ReadText(HelpPage& page, const QString& html) {
    QTextDocument document;
    document.setHtml(html);
    page.Title = document.metaInformation(QTextDocument::DocumentTitle);
    page.Text = document.toPlainText().simplified();
    if (page.Text.startsWith(page.Title))
        page.Text = page.Text.mid(page.Title.size()).trimmed();
}

QString All(const HelpPage& page) {
    return page.Title + QLatin1Char('\n') + page.Text;
}

bool HasAll(const QString& text, const QStringList& words) {
    return std::all_of(words.begin(), words.end(),
                       [&text](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

// Whole words to both sides of it; the beginning where only the title has it.
QString Around(const QString& text, const QString& word) {
    constexpr int reach = 45; // characters to each side
    const auto at = std::max<qsizetype>(0, text.indexOf(word, 0, Qt::CaseInsensitive));
    const auto before = at <= reach ? -1 : text.lastIndexOf(QLatin1Char(' '), at - reach);
    const auto behind = text.indexOf(QLatin1Char(' '), at + word.size() + reach);
    const QString part = text.mid(before + 1, behind < 0 ? -1 : behind - before - 1);
    return (before < 0 ? QString() : QStringLiteral("… ")) + part +
           (behind < 0 ? QString() : QStringLiteral(" …"));
}

HelpHit HitOn(const HelpPage& page, const QStringList& words) {
    HelpHit hit{&page, 0, Around(page.Text, words.front())};
    for (const QString& word : words)
        hit.Count += static_cast<int>(All(page).count(word, Qt::CaseInsensitive));
    return hit;
}

} // namespace

QStringList WordsOf(const QString& words) {
    return words.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

HelpBook::HelpBook(const QString& folder) {
    const QDir place(folder);
    for (const QString& line : Read(place.filePath(contentsFile)).split(QLatin1Char('\n'))) {
        HelpPage page = PageOfLine(line);
        const QString html = page.File.isEmpty() ? QString() : Read(place.filePath(page.File));
        if (html.isEmpty())
            continue;
        ReadText(page, html);
        pages_.push_back(std::move(page));
    }
}

const HelpPage* HelpBook::PageOf(int context) const {
    for (const HelpPage& page : pages_)
        if (std::find(page.Contexts.begin(), page.Contexts.end(), context) != page.Contexts.end())
            return &page;
    return pages_.empty() ? nullptr : &pages_.front();
}

const HelpPage* HelpBook::PageOfForm(const QString& form) const {
    const auto found = std::find_if(pages_.begin(), pages_.end(),
                                    [&form](const HelpPage& page) { return page.Forms.contains(form); });
    return found == pages_.end() ? PageOf(0) : &*found;
}

const HelpPage* HelpBook::PageIn(const QString& file) const {
    const auto found = std::find_if(pages_.begin(), pages_.end(),
                                    [&file](const HelpPage& page) { return page.File == file; });
    return found == pages_.end() ? nullptr : &*found;
}

std::vector<HelpHit> HelpBook::Find(const QString& words) const {
    const QStringList wanted = WordsOf(words);
    std::vector<HelpHit> hits;
    for (const HelpPage& page : pages_)
        if (!wanted.isEmpty() && HasAll(All(page), wanted))
            hits.push_back(HitOn(page, wanted));
    std::stable_sort(hits.begin(), hits.end(), [&wanted](const HelpHit& left, const HelpHit& right) {
        const bool inLeft = HasAll(left.Page->Title, wanted);
        const bool inRight = HasAll(right.Page->Title, wanted);
        return inLeft != inRight ? inLeft : left.Count > right.Count;
    });
    return hits;
}

} // namespace gfc::qt
