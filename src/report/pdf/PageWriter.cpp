#include "report/pdf/PageWriter.h"

namespace gfc::report {

namespace {

QFont MakeFont(const QString& family, QFont::StyleHint hint, double points, bool bold) {
    QFont font(family);
    font.setStyleHint(hint);
    font.setPointSizeF(points);
    font.setBold(bold);
    return font;
}

} // namespace

Hand::Hand(const QString& family, QFont::StyleHint hint, double points, bool bold, QPaintDevice& paper)
    : font_(MakeFont(family, hint, points, bold), &paper), metrics_(font_, &paper) {}

double Hand::WidthOf(const QString& text) {
    auto found = widths_.constFind(text);
    if (found == widths_.constEnd())
        found = widths_.insert(text, metrics_.horizontalAdvance(text));
    return *found;
}

// How many of its first characters fit; at least one.
qsizetype Hand::Fitting(const QString& text, double width) {
    qsizetype fits = 1;
    for (qsizetype tooMany = text.size() + 1; tooMany - fits > 1;) {
        const qsizetype middle = fits + (tooMany - fits) / 2;
        metrics_.horizontalAdvance(text.left(middle)) <= width ? fits = middle : tooMany = middle;
    }
    return fits;
}

QStringList Hand::Lines(const QString& text, double width) {
    if (WidthOf(text) <= width)
        return {text};
    QStringList lines;
    for (QString rest = text; !rest.isEmpty();) {
        const qsizetype fits = Fitting(rest, width);
        const qsizetype blank = fits < rest.size() ? rest.lastIndexOf(QLatin1Char(' '), fits) : -1;
        lines << rest.left(blank > 0 ? blank : fits);
        rest.remove(0, blank > 0 ? blank + 1 : fits);
    }
    return lines;
}

bool PageWriter::Need(double height) {
    if (at_ + height <= height_ || at_ == 0)
        return false;
    ++pages_;
    at_ = 0;
    onNewPage_();
    return true;
}

void PageWriter::Write(Hand& hand, double x, double y, const QString& text) {
    if (painter_ == nullptr || text.isEmpty())
        return;
    if (painter_->font() != hand.Font())
        painter_->setFont(hand.Font());
    painter_->drawText(QPointF(x, y + hand.Ascent()), text);
}

void PageWriter::Line(double x1, double y1, double x2, double y2, double width) {
    if (painter_ == nullptr)
        return;
    painter_->setPen(QPen(Qt::black, width));
    painter_->drawLine(QPointF(x1, y1), QPointF(x2, y2));
}

} // namespace gfc::report
