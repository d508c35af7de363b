#include "qt/Icons.h"
#include "support/TestFolders.h"

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <gmock/gmock.h>
#ifdef QT_SVG_LIB
#include <QSvgRenderer>
#endif

#include <algorithm>
#include <filesystem>

namespace {

using namespace gfc;

std::vector<std::string> Drawings() {
    std::vector<std::string> names;
    for (const auto& file : std::filesystem::directory_iterator(test::SourceFolder() / "qt" / "icons"))
        if (file.path().extension() == ".svg")
            names.push_back(file.path().stem().string());
    return names;
}

QImage Shown(const std::string& name, QSize size, QIcon::Mode mode = QIcon::Normal) {
    return qt::IconNamed(name)
        .pixmap(size, mode)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

int StrongestAlpha(const QImage& image) {
    int strongest = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            strongest = std::max(strongest, qAlpha(image.pixel(x, y)));
    return strongest;
}

TEST(Icons, show_each_drawing_and_fade_what_is_disabled) {
    const auto names = Drawings();
    ASSERT_THAT(names, testing::SizeIs(testing::Ge(20U)));
    for (const std::string& name : names) {
        EXPECT_TRUE(qt::HasIcon(name)) << name;
        EXPECT_EQ(StrongestAlpha(Shown(name, {16, 16})), 255) << name;
        EXPECT_EQ(StrongestAlpha(Shown(name, {16, 16}, QIcon::Disabled)), 114) << name;
    }
    EXPECT_FALSE(qt::HasIcon("NoSuchIcon"));
    EXPECT_TRUE(qt::IconNamed("").isNull());
}

#ifdef QT_SVG_LIB
QImage Painted(const std::string& name, QSize size, const QColor& ink) {
    QFile file(QString::fromStdString((test::SourceFolder() / "qt" / "icons" / (name + ".svg")).string()));
    (void)file.open(QIODevice::ReadOnly);
    QSvgRenderer renderer(file.readAll().replace("currentColor", ink.name().toLatin1()));
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

// The share of pixels in which a channel differs by more than the rounding of a colour. At the edge of a
// sheet that does not end with a pixel there are some.
double Difference(const QImage& left, const QImage& right) {
    int differing = 0;
    for (int y = 0; y < left.height(); ++y)
        for (int x = 0; x < left.width(); ++x) {
            const QRgb a = left.pixel(x, y);
            const QRgb b = right.pixel(x, y);
            const int most = std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                       std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
            differing += most > 2 ? 1 : 0;
        }
    return double(differing) / (left.width() * left.height());
}

TEST(Icons, look_as_they_are_drawn_at_every_size_and_in_the_colour_of_the_text) {
    const QPalette before = QGuiApplication::palette();
    for (const QColor& ink : {QColor(Qt::black), QColor(Qt::white), QColor("#3b7a1c")}) {
        QPalette palette = before;
        palette.setColor(QPalette::WindowText, ink);
        QGuiApplication::setPalette(palette);
        for (const std::string& name : Drawings())
            for (const QSize size : {QSize(16, 16), QSize(23, 23), QSize(96, 48)})
                EXPECT_LE(Difference(Shown(name, size), Painted(name, size, ink)), 0.05)
                    << name << " at " << size.width() << " by " << size.height();
    }
    QGuiApplication::setPalette(before);
}
#endif

} // namespace
