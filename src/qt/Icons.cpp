#include "qt/Icons.h"

#include "qt/Texts.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <memory>

// Outside every namespace, as the resource compiler's own name is.
static void LoadIconSet() {
    Q_INIT_RESOURCE(icons);
}

namespace gfc::qt {

namespace {

QString PathOf(std::string_view name) {
    return QStringLiteral(":/icons/") + ToQt(name) + QStringLiteral(".svg");
}

// Lines that stand on the window's own ground are drawn in the colour of its text, so that they can be read
// on a light and on a dark one.
class Picture final : public QIconEngine {
public:
    explicit Picture(const QString& path) : path_(path) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            drawing_ = file.readAll();
    }

    [[nodiscard]] QIconEngine* clone() const override { return std::make_unique<Picture>(*this).release(); }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        painter->drawPixmap(rect, pixmap(rect.size(), mode, state));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        const QByteArray ink = InkOf(mode);
        const QString key = path_ + QLatin1String(ink) + QString::number(size.width()) + "x" +
                            QString::number(size.height()) + QString::number(mode);
        QPixmap drawn;
        if (QPixmapCache::find(key, &drawn))
            return drawn;
        drawn = Draw(size, mode, ink);
        QPixmapCache::insert(key, drawn);
        return drawn;
    }

private:
    static QByteArray InkOf(QIcon::Mode mode) {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        return QGuiApplication::palette().color(group, QPalette::WindowText).name().toLatin1();
    }

    [[nodiscard]] QPixmap Draw(const QSize& size, QIcon::Mode mode, const QByteArray& ink) const {
        QPixmap drawn(size);
        drawn.fill(Qt::transparent);
        QSvgRenderer drawing(QByteArray(drawing_).replace("currentColor", ink));
        drawing.setAspectRatioMode(Qt::KeepAspectRatio);
        QPainter painter(&drawn);
        constexpr double faded = 0.45;
        painter.setOpacity(mode == QIcon::Disabled ? faded : 1);
        drawing.render(&painter);
        return drawn;
    }

    QString path_;
    QByteArray drawing_;
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
