// draw-pictures OUTDIR [NAME...]: draws the bundle's pictures as PNG files.
#include "PictureRegistry.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <cstdio>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments().mid(1);
    if (args.isEmpty()) {
        std::fprintf(stderr, "usage: draw-pictures OUTDIR [NAME...]\n");
        return 2;
    }
    QDir out(args.first());
    if (!out.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "draw-pictures: cannot create %s\n", qPrintable(args.first()));
        return 1;
    }
    const QStringList only = args.mid(1);
    int written = 0;
    for (const PictureSpec& picture : PictureRegistry::all()) {
        if (!only.isEmpty() && !only.contains(picture.name))
            continue;
        QImage image(picture.size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        picture.draw(painter, QRectF(QPointF(0, 0), QSizeF(picture.size)));
        painter.end();
        const QString path = out.filePath(picture.name + QStringLiteral(".png"));
        if (!image.save(path, "PNG")) {
            std::fprintf(stderr, "draw-pictures: cannot write %s\n", qPrintable(path));
            return 1;
        }
        ++written;
    }
    std::printf("draw-pictures: %d picture(s) written to %s\n", written, qPrintable(out.absolutePath()));
    return 0;
}
