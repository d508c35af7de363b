#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace gfc::report {

// One of the few ways in which a report writes, with the widths of what it has measured: most cells of a
// report stand in it many times.
class Hand {
public:
    Hand(const QString& family, QFont::StyleHint hint, double points, bool bold, QPaintDevice& paper);

    [[nodiscard]] const QFont& Font() const { return font_; }
    [[nodiscard]] double Ascent() const { return metrics_.ascent(); }
    [[nodiscard]] double LineHeight() const { return metrics_.height(); }
    [[nodiscard]] double WidthOf(const QString& text);
    // In lines that fit, broken at blanks, and within a word that is too long by itself.
    [[nodiscard]] QStringList Lines(const QString& text, double width);

private:
    [[nodiscard]] qsizetype Fitting(const QString& text, double width);

    QFont font_;
    QFontMetricsF metrics_;
    QHash<QString, double> widths_;
};

// Writes from the top of a page to its end and goes on on the next one. With a painter it paints, without one
// it only counts the pages; both ways it does the same.
class PageWriter {
public:
    // height: of a page without its foot. onNewPage is called before each page but the first.
    PageWriter(double height, QPainter* painter, std::function<void()> onNewPage)
        : height_(height), painter_(painter), onNewPage_(std::move(onNewPage)) {}

    [[nodiscard]] int Pages() const { return pages_; }
    [[nodiscard]] double At() const { return at_; }
    // Makes room for what must not be parted: true if that took a new page.
    bool Need(double height);
    void Skip(double height) { at_ += height; }
    // The texts' places are those of their upper left corners, from the top of the page.
    void Write(Hand& hand, double x, double y, const QString& text);
    void Line(double x1, double y1, double x2, double y2, double width);

private:
    double height_;
    QPainter* painter_;
    std::function<void()> onNewPage_;
    double at_ = 0;
    int pages_ = 1;
};

} // namespace gfc::report
