#include "qt/Icons.h"

#include "qt/Texts.h"
#include "qt/icons/drawing/Ink.h"

#include <QDataStream>
#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPicture>
#include <QPixmapCache>

#include <memory>

// Outside every namespace, as the resource compiler's own name is.
static void LoadIconSet() {
    Q_INIT_RESOURCE(icons);
}

namespace gfc::qt {

namespace {

QString PathOf(std::string_view name) {
    return QStringLiteral(":/icons/") + ToQt(name) + QStringLiteral(".pic");
}

// A colour as it stands in the recorded strokes: red, green and blue, 16 bits each.
QByteArray Recorded(const QColor& color) {
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << color.rgba64().red() << color.rgba64().green() << color.rgba64().blue();
    return bytes;
}

// The recorded strokes with that ink in place of the one that they were recorded with. Behind the four
// letters of its kind a record bears a sum of all that comes then, and is taken for broken without it.
QPicture Inked(QByteArray strokes, const QColor& ink) {
    constexpr qsizetype kind = 4;
    constexpr qsizetype sum = 2;
    strokes.replace(Recorded(RecordedInk), Recorded(ink));
    const quint16 reckoned = qChecksum(QByteArrayView(strokes).sliced(kind + sum));
    const char bytes[sum] = {static_cast<char>(reckoned >> 8), static_cast<char>(reckoned & 0xff)};
    strokes.replace(kind, sum, bytes, sum);
    QPicture picture;
    picture.setData(strokes.constData(), static_cast<uint>(strokes.size()));
    return picture;
}

// As large as fits into the size, in its middle.
void Play(QPicture picture, QPixmap& on) {
    const QRectF drawn = picture.boundingRect();
    const QSizeF fitting = drawn.size().scaled(on.size(), Qt::KeepAspectRatio);
    QPainter painter(&on);
    painter.translate((on.width() - fitting.width()) / 2, (on.height() - fitting.height()) / 2);
    painter.scale(fitting.width() / drawn.width(), fitting.height() / drawn.height());
    painter.translate(-drawn.topLeft());
    picture.play(&painter);
}

void Fade(QPixmap& picture) {
    constexpr int faded = 255 * 45 / 100;
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(picture.rect(), QColor(0, 0, 0, faded));
}

// Lines that stand on the window's own ground are drawn in the colour of its text, so that they can be read
// on a light and on a dark one.
class Picture final : public QIconEngine {
public:
    explicit Picture(const QString& path) : path_(path) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            strokes_ = file.readAll();
    }

    [[nodiscard]] QIconEngine* clone() const override { return std::make_unique<Picture>(*this).release(); }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        painter->drawPixmap(rect, pixmap(rect.size(), mode, state));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        const QColor ink = InkOf(mode);
        const QString key = path_ + ink.name() + QString::number(size.width()) + "x" +
                            QString::number(size.height()) + QString::number(mode);
        QPixmap drawn;
        if (QPixmapCache::find(key, &drawn))
            return drawn;
        drawn = Draw(size, mode, ink);
        QPixmapCache::insert(key, drawn);
        return drawn;
    }

private:
    static QColor InkOf(QIcon::Mode mode) {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        return QGuiApplication::palette().color(group, QPalette::WindowText);
    }

    [[nodiscard]] QPixmap Draw(const QSize& size, QIcon::Mode mode, const QColor& ink) const {
        QPixmap drawn(size);
        drawn.fill(Qt::transparent);
        Play(Inked(strokes_, ink), drawn);
        if (mode == QIcon::Disabled)
            Fade(drawn);
        return drawn;
    }

    QString path_;
    QByteArray strokes_;
};

} // namespace

bool HasIcon(std::string_view name) {
    LoadIconSet();
    return !name.empty() && QFile::exists(PathOf(name));
}

// The icon owns its engine.
QIcon IconNamed(std::string_view name) {
    return HasIcon(name) ? QIcon(std::make_unique<Picture>(PathOf(name)).release()) : QIcon();
}

} // namespace gfc::qt
