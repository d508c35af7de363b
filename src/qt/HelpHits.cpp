#include "qt/HelpHits.h"

#include "qt/HelpBook.h"

#include <QPainter>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

namespace gfc::qt {

namespace {

constexpr int fileRole = Qt::UserRole;
constexpr int margin = 4; // pixels

QFont Bold(QFont font) {
    font.setBold(true);
    return font;
}

// The first line of the text stands out, the rest is wrapped below it.
class TitleAndText : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        const Parts parts = PartsOf(item, index);
        item.text.clear();
        item.widget->style()->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
        const bool selected = item.state.testFlag(QStyle::State_Selected);
        painter->save();
        painter->setPen(item.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
        painter->drawText(parts.TextPlace, Qt::TextWordWrap, parts.Text);
        painter->setFont(Bold(item.font));
        painter->drawText(parts.TitlePlace, Qt::TextWordWrap, parts.Title);
        painter->restore();
    }
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        item.rect.setTopLeft({0, 0});
        if (const auto* list = qobject_cast<const QListWidget*>(item.widget); list != nullptr)
            item.rect.setWidth(list->viewport()->width());
        return {item.rect.width(), PartsOf(item, index).TextPlace.bottom() + margin};
    }

private:
    struct Parts {
        QString Title, Text;
        QRect TitlePlace, TextPlace;
    };
    static Parts PartsOf(const QStyleOptionViewItem& item, const QModelIndex& index) {
        // Not the text of the option, in which line breaks are no line breaks any more.
        const QString text = index.data().toString();
        Parts parts{text.section(QLatin1Char('\n'), 0, 0), text.section(QLatin1Char('\n'), 1), {}, {}};
        const QRect inside = item.rect.adjusted(margin, margin, -margin, 0);
        const QRect endless(inside.topLeft(), QSize(inside.width(), QWIDGETSIZE_MAX));
        parts.TitlePlace = QFontMetrics(Bold(item.font)).boundingRect(endless, Qt::TextWordWrap, parts.Title);
        const QRect below = endless.translated(0, parts.TitlePlace.height());
        parts.TextPlace = item.fontMetrics.boundingRect(below, Qt::TextWordWrap, parts.Text);
        return parts;
    }
};

} // namespace

HelpHits::HelpHits() {
    setItemDelegate(new TitleAndText(this));
    setResizeMode(QListView::Adjust);
    setAlternatingRowColors(true);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void HelpHits::Show(const std::vector<HelpHit>& hits) {
    const QSignalBlocker quiet(this);
    clear();
    for (const HelpHit& hit : hits) {
        auto* item = new QListWidgetItem(hit.Page->Title + QLatin1Char('\n') + hit.Around, this);
        item->setData(fileRole, hit.Page->File);
    }
}

QString HelpHits::FileOf(const QListWidgetItem* item) {
    return item == nullptr ? QString() : item->data(fileRole).toString();
}

} // namespace gfc::qt
