#include "qt/render/NaturalOrder.h"

namespace gfc::qt {

namespace {

// The digits from there on, without the zeros in front of them; at goes behind them.
QStringView TakeNumber(const QString& text, qsizetype& at) {
    while (at < text.size() && text[at] == QLatin1Char('0'))
        ++at;
    const qsizetype first = at;
    while (at < text.size() && text[at].isDigit())
        ++at;
    return QStringView(text).sliced(first, at - first);
}

int CompareNumbers(QStringView left, QStringView right) {
    if (left.size() != right.size())
        return left.size() < right.size() ? -1 : 1;
    return left.compare(right);
}

} // namespace

int CompareNaturally(const QString& left, const QString& right) {
    qsizetype l = 0;
    qsizetype r = 0;
    while (l < left.size() && r < right.size()) {
        int order = 0;
        if (left[l].isDigit() && right[r].isDigit()) {
            const QStringView number = TakeNumber(left, l);
            order = CompareNumbers(number, TakeNumber(right, r));
        } else {
            order = QStringView(left).sliced(l++, 1).compare(QStringView(right).sliced(r++, 1),
                                                             Qt::CaseInsensitive);
        }
        if (order != 0)
            return order;
    }
    return static_cast<int>(l < left.size()) - static_cast<int>(r < right.size());
}

} // namespace gfc::qt
