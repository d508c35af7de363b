#include "report/pdf/Pdf.h"

#include "report/Content.h"
#include "report/pdf/Chapter.h"

#include <QBuffer>
#include <QHashSeed>
#include <QPainter>
#include <QPdfWriter>

#include <optional>

namespace gfc::report {

namespace {

constexpr int dotsPerInch = 300;
constexpr double millimetres = dotsPerInch / 25.4;
constexpr double footHeight = 9 * millimetres;

QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

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

// The fonts of a PDF stand in the order of a hash table, which is another one for each start else.
class SameOrder {
public:
    SameOrder() { QHashSeed::setDeterministicGlobalSeed(); }
    ~SameOrder() { QHashSeed::resetRandomGlobalSeed(); }
    SameOrder(const SameOrder&) = delete;
    SameOrder& operator=(const SameOrder&) = delete;
};

// Each chapter is laid out twice: how many pages there are must be known before the first one is written, and
// one chapter at a time is all that is held.
class PdfRendering : public Rendering {
public:
    PdfRendering(const Report& report, Paper paper) : report_(report) {
        buffer_.setBuffer(&pdf_);
        buffer_.open(QIODevice::WriteOnly);
        writer_.emplace(&buffer_);
        SetUp(paper);
        hands_.emplace(*writer_);
    }
    ~PdfRendering() override {
        if (painter_.isActive())
            painter_.end();
    }

    bool Advance() override {
        const std::size_t chapters = report_.Stations.size() + 2;
        if (next_ < chapters)
            pages_ += Write(next_, nullptr);
        else if (next_ < 2 * chapters)
            Print(next_ - chapters);
        ++next_;
        if (next_ == 2 * chapters)
            painter_.end();
        return next_ < 2 * chapters;
    }

    std::string Bytes() override {
        Overwrite(pdf_, "/CreationDate (D:", "Z)", PdfTime(report_.Time));
        return pdf_.toStdString();
    }

private:
    void SetUp(Paper paper) {
        writer_->setResolution(dotsPerInch);
        writer_->setPageSize(QPageSize(paper == Paper::A4 ? QPageSize::A4 : QPageSize::Letter));
        writer_->setPageMargins(QMarginsF(15, 12, 12, 12), QPageLayout::Millimeter);
        writer_->setTitle(QStringLiteral("Configuration report: ") + ToQt(report_.Project));
        writer_->setCreator(ToQt(report_.Version));
        const std::string json = ToJson(report_);
        writer_->addFileAttachment(QStringLiteral("gfc-report.json"),
                                   QByteArray(json.data(), static_cast<qsizetype>(json.size())),
                                   QStringLiteral("application/json"));
    }

    [[nodiscard]] Parts PartsAt(std::size_t chapter) const {
        if (chapter == 0)
            return CoverOf(report_);
        return chapter > report_.Stations.size() ? SignaturesOf() : PartsOf(report_.Stations[chapter - 1]);
    }
    [[nodiscard]] QString FooterAt(std::size_t chapter) const {
        const bool station = chapter > 0 && chapter <= report_.Stations.size();
        return ToQt(station ? FooterOf(report_.Stations[chapter - 1]) : FooterOf(report_));
    }

    // How many pages that took.
    int Write(std::size_t chapter, QPainter* painter) {
        const double width = writer_->width();
        const QString footer = painter == nullptr ? QString() : FooterAt(chapter);
        PageWriter page(writer_->height() - footHeight, painter, [&] {
            if (painter != nullptr)
                TurnPage(footer);
        });
        Chapter(PartsAt(chapter), *hands_, width).WriteTo(page);
        return page.Pages();
    }

    // A foot is written when its page is begun.
    void Print(std::size_t chapter) {
        if (!painter_.isActive())
            painter_.begin(&*writer_);
        TurnPage(FooterAt(chapter));
        (void)Write(chapter, &painter_);
    }

    void TurnPage(const QString& left) {
        if (page_++ > 0)
            writer_->newPage();
        const double width = writer_->width();
        const double top = writer_->height() - footHeight + 2 * millimetres;
        const QString right = QStringLiteral("%1 of %2").arg(page_).arg(pages_);
        PageWriter foot(writer_->height(), &painter_, {});
        foot.Line(0, top, width, top, 1);
        foot.Write(hands_->Foot, 0, top + millimetres, left);
        foot.Write(hands_->Foot, width - hands_->Foot.WidthOf(right), top + millimetres, right);
    }

    SameOrder sameOrder_; // the first, since all below goes by it
    const Report& report_;
    QByteArray pdf_;
    QBuffer buffer_;
    std::optional<QPdfWriter> writer_;
    std::optional<Hands> hands_;
    QPainter painter_; // after the writer, which it uses
    std::size_t next_ = 0;
    int pages_ = 0;
    int page_ = 0;
};

} // namespace

std::unique_ptr<Rendering> RenderPdf(const Report& report, Paper paper) {
    return std::make_unique<PdfRendering>(report, paper);
}

std::unique_ptr<Rendering> MakePdf(const Report& report, bool letter) {
    return RenderPdf(report, letter ? Paper::Letter : Paper::A4);
}

std::string ToPdf(const Report& report, Paper paper) {
    const auto rendering = RenderPdf(report, paper);
    while (rendering->Advance()) {
    }
    return rendering->Bytes();
}

} // namespace gfc::report
