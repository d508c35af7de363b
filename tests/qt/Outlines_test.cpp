#include "qt/support/Offscreen.h"

#include <QApplication>
#include <QCheckBox>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPalette>
#include <QPixmap>
#include <QRadioButton>
#include <QStyleFactory>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>

namespace gfc::test {

namespace {

// The luminance of WCAG 2.1, from 0 for black to 1 for white.
double Luminance(QRgb colour) {
    const auto part = [](int channel) {
        const double value = channel / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(qRed(colour)) + 0.7152 * part(qGreen(colour)) + 0.0722 * part(qBlue(colour));
}

double Contrast(QRgb one, QRgb other) {
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

// The strongest contrast to the ground in the left part of the widget, where its mark is.
double OutlineOf(QWidget& widget, QPalette::ColorRole ground) {
    widget.resize(120, 24);
    const QImage picture = widget.grab().toImage();
    const QRgb on = widget.palette().color(ground).rgb();
    constexpr int mark = 9;
    double strongest = 1;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < mark; ++x)
            strongest = std::max(strongest, Contrast(picture.pixel(x, y), on));
    return strongest;
}

QImage Drawn(QWidget& widget, QStyle* style) {
    widget.setStyle(style);
    widget.resize(120, 24);
    return widget.grab().toImage();
}

class Outlines : public ::testing::Test {
protected:
    ~Outlines() override { QApplication::setPalette(light_); }

private:
    const QPalette light_ = QApplication::palette();
};

} // namespace

// 3 to 1 is what WCAG 2.1 asks for of what a person works on.
TEST_F(Outlines, of_what_is_empty_can_be_seen) {
    for (const bool dark : {false, true}) {
        if (dark)
            UseDarkPalette();
        QCheckBox box;
        EXPECT_GE(OutlineOf(box, QPalette::Window), 3) << dark;
        QRadioButton option;
        EXPECT_GE(OutlineOf(option, QPalette::Window), 3) << dark;
    }
    QLineEdit field;
    EXPECT_GE(OutlineOf(field, QPalette::Window), 3);
    QListWidget list;
    list.setFrameShape(QFrame::NoFrame);
    (new QListWidgetItem(&list))->setCheckState(Qt::Unchecked);
    EXPECT_GE(OutlineOf(list, QPalette::Base), 3);
}

TEST_F(Outlines, of_a_field_on_a_light_ground_is_the_toolkits) {
    const std::unique_ptr<QStyle> plain(QStyleFactory::create(QStringLiteral("Fusion")));
    QLineEdit field;
    EXPECT_EQ(Drawn(field, QApplication::style()), Drawn(field, plain.get()));
}

} // namespace gfc::test
