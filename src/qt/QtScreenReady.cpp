#include "qt/FormWindow.h"
#include "qt/Icons.h"
#include "qt/QtScreen.h"
#include "qt/render/LetterWidths.h"
#include "ui/Furniture.h"

#include <QApplication>
#include <QFont>
#include <QPainter>
#include <QPixmap>
#include <QStyle>

// Windows that are made before they are shown.
namespace gfc::qt {

namespace {

// The toolkit reads a font and draws its letters when they are first asked for, each in up to four places
// between two points of the screen. The headings of tables are measured in bold, whether they are shown so or
// not.
void LoadLetters() {
    QString letters;
    for (char16_t letter = u' '; letter <= u'~'; ++letter)
        letters += QChar(letter);
    QPixmap unseen(1, 1);
    QPainter painter(&unseen);
    QFont font = QApplication::font();
    for (const bool bold : {false, true}) {
        font.setBold(bold);
        painter.setFont(font);
        for (const double place : {0.0, 0.25, 0.5, 0.75})
            painter.drawText(QPointF(place, 0), letters);
    }
    (void)LetterWidths::In(QApplication::font());
}

// The same goes for the pictures of its lists and trees.
void LoadPicturesOf(const ui::Form& form) {
    const int size = QApplication::style()->pixelMetric(QStyle::PM_SmallIconSize);
    QPixmap unseen(size, size);
    QPainter painter(&unseen);
    for (const ui::Control* control : form.Controls())
        if (const auto* images = dynamic_cast<const ui::ImageList*>(control))
            for (const std::string& name : images->Images())
                for (const auto mode : {QIcon::Normal, QIcon::Selected})
                    IconNamed(name).paint(&painter, unseen.rect(), Qt::AlignCenter, mode);
}

} // namespace

void QtScreen::MakeReady(const std::vector<ui::Form*>& forms) {
    for (ui::Form* form : forms)
        toCome_.push_back(form->KeepAlive());
    QTimer::singleShot(0, &idle_, LoadLetters);
    idle_.start(0);
}

void QtScreen::MakeNextReady() {
    if (toCome_.empty() || ended_)
        return idle_.stop();
    const auto form = toCome_.front().lock();
    toCome_.pop_front();
    if (form == nullptr || WindowOf(*form) != nullptr)
        return;
    WindowFor(*form).MakeReady();
    LoadPicturesOf(*form);
}

} // namespace gfc::qt
