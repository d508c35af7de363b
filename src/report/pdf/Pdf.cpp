#include "report/pdf/Pdf.h"

#include "record/Sha256.h"
#include "report/Html.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QHashSeed>
#include <QPainter>
#include <QPdfWriter>
#include <QTextDocument>

#include <memory>
#include <vector>

namespace gfc::report {

namespace {

constexpr int dotsPerInch = 300;
constexpr double millimetres = dotsPerInch / 25.4;
constexpr double footerHeight = 9 * millimetres;

QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// What begins on a page of its own, and what stands in the footer of its pages.
struct Chapter {
    std::unique_ptr<QTextDocument> Text;
    QString Footer;
};

class Book {
public:
    Book(QPdfWriter& writer, const Report& report)
        : writer_(writer), size_(writer.width(), writer.height() - footerHeight) {
        Add(CoverHtml(report), "Content " + ContentHash(report));
        for (const StationPages& station : report.Stations)
            Add(StationHtml(station),
                station.Name + "  " + (station.FileHash.empty() ? "not configured" : station.FileHash));
        Add(SignaturesHtml(), "Content " + ContentHash(report));
    }

    void Print() {
        QPainter painter(&writer_);
        int pages = 0;
        for (const Chapter& chapter : chapters_)
            pages += chapter.Text->pageCount();
        int page = 0;
        for (const Chapter& chapter : chapters_)
            for (int own = 0; own < chapter.Text->pageCount(); ++own) {
                if (page++ > 0)
                    writer_.newPage();
                PrintPage(painter, chapter, own);
                PrintFooter(painter, chapter.Footer, QStringLiteral("%1 of %2").arg(page).arg(pages));
            }
    }

private:
    void Add(const std::string& html, const std::string& footer) {
        auto text = std::make_unique<QTextDocument>();
        text->documentLayout()->setPaintDevice(&writer_);
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setStyleHint(QFont::SansSerif);
        font.setPointSizeF(8.5);
        text->setDefaultFont(font);
        text->setDocumentMargin(0);
        text->setUndoRedoEnabled(false);
        text->setPageSize(size_); // before the text, which would else be laid out twice
        text->setDefaultStyleSheet(QStringLiteral("h1 { font-size: 18pt; } h2 { font-size: 14pt; } "
                                                  "h3 { font-size: 10pt; } code { font-size: 7pt; } "
                                                  "table { border-collapse: collapse; } "
                                                  "th { text-align: left; }"));
        text->setHtml(ToQt(html));
        chapters_.push_back({std::move(text), ToQt(footer)});
    }

    // Black, whatever colours the screen has.
    void PrintPage(QPainter& painter, const Chapter& chapter, int page) const {
        QAbstractTextDocumentLayout::PaintContext context;
        context.palette.setColor(QPalette::Text, Qt::black);
        context.clip = QRectF(0, page * size_.height(), size_.width(), size_.height());
        painter.save();
        painter.translate(0, -page * size_.height());
        painter.setClipRect(context.clip);
        chapter.Text->documentLayout()->draw(&painter, context);
        painter.restore();
    }

    void PrintFooter(QPainter& painter, const QString& left, const QString& right) const {
        QFont font = painter.font();
        font.setPointSizeF(7);
        painter.setFont(font);
        painter.setPen(QPen(Qt::black, 1));
        const QRectF place(0, size_.height() + 2 * millimetres, size_.width(),
                           footerHeight - 2 * millimetres);
        painter.drawLine(place.topLeft(), place.topRight());
        painter.drawText(place, Qt::AlignLeft | Qt::AlignBottom, left);
        painter.drawText(place, Qt::AlignRight | Qt::AlignBottom, right);
    }

    QPdfWriter& writer_;
    QSizeF size_; // of a page's text
    std::vector<Chapter> chapters_;
};

// Puts a text in the place of what stands between the marks, over and over; as long as what it replaces, so
// that the places of the file's parts stay true.
void Overwrite(QByteArray& pdf, const char* begin, const char* end, const QByteArray& text) {
    const QByteArray mark(begin);
    for (qsizetype at = pdf.indexOf(mark); at >= 0; at = pdf.indexOf(mark, at + 1)) {
        const qsizetype from = at + mark.size();
        const qsizetype size = pdf.indexOf(end, from) - from;
        if (size > 0 && size < 200)
            pdf.replace(from, size, text.leftJustified(size, '0', true));
    }
}

// "2023-03-15T12:00:00Z" as a PDF has it: "20230315120000Z".
QByteArray PdfTime(const std::string& time) {
    QByteArray digits;
    for (const char byte : time)
        if (byte >= '0' && byte <= '9')
            digits += byte;
    return digits;
}

} // namespace

// The fonts of a PDF stand in the order of a hash table, which is another one for each start else.
std::string ToPdf(const Report& report, Paper paper) {
    QHashSeed::setDeterministicGlobalSeed();
    QByteArray pdf;
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(dotsPerInch);
        writer.setPageSize(QPageSize(paper == Paper::A4 ? QPageSize::A4 : QPageSize::Letter));
        writer.setPageMargins(QMarginsF(15, 12, 12, 12), QPageLayout::Millimeter);
        writer.setTitle(QStringLiteral("Configuration report: ") + ToQt(report.Project));
        writer.setCreator(ToQt(report.Version));
        const std::string json = ToJson(report);
        writer.addFileAttachment(QStringLiteral("gfc-report.json"),
                                 QByteArray(json.data(), static_cast<qsizetype>(json.size())),
                                 QStringLiteral("application/json"));
        Book(writer, report).Print();
    }
    QHashSeed::resetRandomGlobalSeed();
    Overwrite(pdf, "/CreationDate (D:", "Z)", PdfTime(report.Time));
    return pdf.toStdString();
}

} // namespace gfc::report
