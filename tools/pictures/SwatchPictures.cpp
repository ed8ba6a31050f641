// The watermark colours' swatches, shown beside each colour's name.
#include "PictureRegistry.h"
#include "PictureStyle.h"

using namespace PictureStyle;

namespace {
QList<PictureSpec> swatchPictures()
{
    const QList<QPair<QString, QColor>> colours{{"gray", QColor(0x8a, 0x8f, 0x96)},   {"red", QColor(0xd7, 0x26, 0x3d)},
                                                {"yellow", QColor(0xf2, 0xc1, 0x4e)}, {"green", QColor(0x2e, 0x93, 0x3c)},
                                                {"cyan", QColor(0x1f, 0xb5, 0xc9)},   {"blue", QColor(0x1f, 0x4f, 0xc5)},
                                                {"magenta", QColor(0xc2, 0x18, 0x9b)}};
    QList<PictureSpec> specs;
    for (const auto& [name, colour] : colours)
        specs.append({name, QSize(24, 16), [colour = colour](QPainter& p, const QRectF& r) {
                          p.setPen(QPen(ink(), 1));
                          p.setBrush(colour);
                          p.drawRoundedRect(r.adjusted(1.5, 1.5, -1.5, -1.5), 3, 3);
                      }});
    return specs;
}

const PictureRegistrar registrar(&swatchPictures);
}
