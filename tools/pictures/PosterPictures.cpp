// The poster concept pictures: the page on the left, the sheets it is
// enlarged onto on the right (dashed lines where neighbouring sheets
// overlap). Named [C_][R_][L]posterN_N: colour printer, reverse orientation,
// landscape, tiles per side.
#include "PictureRegistry.h"
#include "PictureStyle.h"

using namespace PictureStyle;

namespace {

struct Concept {
    int tiles;       // 1 for no poster
    bool colour;
    bool landscape;
    bool reverse;
};

// What is printed on the page: a sun over a hill, with an "A" that shows
// which way up the page is.
void artwork(QPainter& p, const QRectF& r, const Concept& c)
{
    p.save();
    p.translate(r.center());
    if (c.reverse)
        p.rotate(180);
    const QRectF box(-r.width() / 2, -r.height() / 2, r.width(), r.height());
    const qreal u = qMin(box.width(), box.height());
    const QColor sky = c.colour ? QColor(0xf2, 0xa5, 0x3a) : QColor(0x9a, 0xa1, 0xa9);
    const QColor hill = c.colour ? QColor(0x2e, 0x93, 0x3c) : QColor(0x6c, 0x74, 0x7d);
    p.setPen(Qt::NoPen);
    p.setBrush(sky);
    p.drawEllipse(QPointF(box.right() - u * 0.28, box.top() + u * 0.28), u * 0.14, u * 0.14);
    p.setBrush(hill);
    QPolygonF mountain({QPointF(box.left() + box.width() * 0.1, box.bottom() - u * 0.1),
                        QPointF(box.left() + box.width() * 0.45, box.top() + box.height() * 0.4),
                        QPointF(box.right() - box.width() * 0.1, box.bottom() - u * 0.1)});
    p.drawPolygon(mountain);
    pageNumber(p, QRectF(box.left(), box.top(), box.width() * 0.5, box.height() * 0.45), QStringLiteral("A"),
               c.colour ? accent() : ink());
    p.restore();
}

// The largest page of the concept's orientation (4:3) that fits in box, centred.
QRectF fitPage(const Concept& c, const QRectF& box)
{
    const qreal ratio = c.landscape ? 4.0 / 3.0 : 3.0 / 4.0;
    QSizeF s(box.width(), box.width() / ratio);
    if (s.height() > box.height())
        s = QSizeF(box.height() * ratio, box.height());
    return QRectF(box.center() - QPointF(s.width() / 2, s.height() / 2), s);
}

void drawConcept(QPainter& p, const QRectF& canvas, const Concept& c)
{
    const qreal w = canvas.width(), h = canvas.height();
    if (c.tiles == 1) {
        // No poster: one page on one sheet.
        const QRectF page = fitPage(c, QRectF(w * 0.2, h * 0.1, w * 0.6, h * 0.8));
        sheet(p, page);
        artwork(p, page.adjusted(3, 3, -3, -3), c);
        return;
    }
    const QRectF original = fitPage(c, QRectF(w * 0.03, h * 0.25, w * 0.26, h * 0.5));
    sheet(p, original);
    artwork(p, original.adjusted(2, 2, -2, -2), c);
    const QRectF poster = fitPage(c, QRectF(w * 0.43, h * 0.04, w * 0.54, h * 0.92));
    arrow(p, QPointF(original.right() + w * 0.03, h / 2), QPointF(poster.left() - w * 0.03, h / 2));

    const qreal tw = poster.width() / c.tiles, th = poster.height() / c.tiles;
    for (int row = 0; row < c.tiles; ++row)
        for (int col = 0; col < c.tiles; ++col)
            sheet(p, QRectF(poster.left() + col * tw, poster.top() + row * th, tw, th));
    artwork(p, poster.adjusted(4, 4, -4, -4), c);
    // The overlap strips, where one sheet is pasted over the next.
    const qreal o = qMin(tw, th) * 0.1;
    for (int i = 1; i < c.tiles; ++i) {
        foldLine(p, QPointF(poster.left() + i * tw + o, poster.top()), QPointF(poster.left() + i * tw + o, poster.bottom()));
        foldLine(p, QPointF(poster.left(), poster.top() + i * th + o), QPointF(poster.right(), poster.top() + i * th + o));
    }
}

QList<PictureSpec> posterPictures()
{
    QList<PictureSpec> specs;
    const QList<QPair<QString, int>> layouts{{"poster_none", 1}, {"poster2_2", 2}, {"poster3_3", 3}, {"poster4_4", 4}};
    for (bool colour : {false, true})
        for (bool reverse : {false, true})
            for (bool landscape : {false, true})
                for (const auto& [layout, tiles] : layouts) {
                    const Concept c{tiles, colour, landscape, reverse};
                    const QString name = QString(colour ? "C_" : "") + (reverse ? "R_" : "") + (landscape ? "L" : "") + layout;
                    specs.append({name, QSize(200, 150), [c](QPainter& p, const QRectF& r) { drawConcept(p, r, c); }});
                }
    return specs;
}

const PictureRegistrar registrar(&posterPictures);
}
