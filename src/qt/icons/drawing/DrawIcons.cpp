// Runs while building, on the machine that builds. Makes of a drawing what the program shows, so that the
// program itself needs no library that reads drawings; nothing of Qt for the Windows form does.
//   draw-icons picture DRAWING PICTURE      the recorded strokes, sharp at every size
//   draw-icons image DRAWING SIZE IMAGE     one PNG, that many pixels wide and high
#include "qt/icons/drawing/Ink.h"

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPicture>
#include <QSvgRenderer>

#include <cstdio>
#include <cstdlib>

namespace {

QByteArray Drawing(const QString& path, const QColor& ink) {
    QFile file(path);
    const bool isOpen = file.open(QIODevice::ReadOnly);
    return isOpen ? file.readAll().replace("currentColor", ink.name().toLatin1()) : QByteArray();
}

bool Record(const QString& drawing, const QString& path) {
    QSvgRenderer renderer(Drawing(drawing, gfc::qt::RecordedInk));
    QPicture picture;
    // The whole sheet, and not what of it is drawn on; it is taken down before the first stroke.
    picture.setBoundingRect(renderer.viewBox());
    QPainter painter(&picture);
    renderer.render(&painter, renderer.viewBoxF());
    painter.end();
    return renderer.isValid() && picture.save(path);
}

bool Paint(const QString& drawing, int size, const QString& path) {
    QSvgRenderer renderer(Drawing(drawing, Qt::black));
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    return renderer.isValid() && image.save(path, "PNG");
}

// That there is no folder of a logged-in person says nothing of a drawing.
void Report(QtMsgType, const QMessageLogContext&, const QString& text) {
    if (!text.startsWith(QStringLiteral("QStandardPaths")))
        std::fprintf(stderr, "draw-icons: %s\n", qPrintable(text));
}

} // namespace

int main(int argc, char* argv[]) {
    // There may be no screen where this runs.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(Report);
    const QGuiApplication application(argc, argv);
    const QStringList words = QGuiApplication::arguments();
    bool isDone = false;
    if (words.size() == 4 && words[1] == QStringLiteral("picture"))
        isDone = Record(words[2], words[3]);
    if (words.size() == 5 && words[1] == QStringLiteral("image"))
        isDone = Paint(words[2], words[3].toInt(), words[4]);
    if (!isDone)
        std::fprintf(stderr, "draw-icons: %s cannot be drawn\n", argc > 2 ? argv[2] : "nothing");
    return isDone ? EXIT_SUCCESS : EXIT_FAILURE;
}
