// The Special Pages pictures: where covers, inserted sheets and exception
// pages go in the stack of printed pages; how a cover is printed (blank, on
// one side, on both); and how an exception page is printed on both sides
// (not at all, bound on the long edge, on the short edge), for portrait and
// landscape pages.
#include "PictureRegistry.h"
#include "PictureStyle.h"

using namespace PictureStyle;

namespace {
const QSize kPicture(96, 72);

// A stack of pages seen from the side, fanned to the right; the pages in
// `special` are drawn in the accent colour. Page 0 is the front.
void stack(QPainter& p, const QRectF& c, int count, const QList<int>& special, const QList<int>& thin = {})
{
    const qreal w = c.width() * 0.34, h = c.height() * 0.6;
    const qreal dx = (c.width() * 0.9 - w) / qMax(1, count - 1);
    const qreal dy = (c.height() * 0.3) / qMax(1, count - 1);
    for (int i = count - 1; i >= 0; --i) {
        const QRectF r(c.width() * 0.05 + dx * i, c.height() * 0.06 + dy * i, w, h);
        sheet(p, r);
        if (special.contains(i)) {
            p.save();
            p.setPen(Qt::NoPen);
            QColor fill = accent();
            fill.setAlpha(thin.contains(i) ? 90 : 200);
            p.setBrush(fill);
            p.drawRect(r.adjusted(lineWidth(p.window()), lineWidth(p.window()), -lineWidth(p.window()), -lineWidth(p.window())));
            p.restore();
        } else {
            printedLines(p, r, 3);
        }
    }
}

// One sheet with print on none, one or both of its sides: the front in full,
// the back as a sheet behind it, offset.
void coverSheet(QPainter& p, const QRectF& c, int printedSides)
{
    const QRectF back(c.width() * 0.38, c.height() * 0.08, c.width() * 0.42, c.height() * 0.72);
    const QRectF front(c.width() * 0.18, c.height() * 0.2, c.width() * 0.42, c.height() * 0.72);
    sheet(p, back);
    if (printedSides == 2)
        printedLines(p, back, 4);
    sheet(p, front, true);
    if (printedSides >= 1)
        printedLines(p, front, 4);
}

QList<PictureSpec> coverInsertPictures()
{
    QList<PictureSpec> specs{
        {"cover_front", kPicture, [](QPainter& p, const QRectF& r) { stack(p, r, 5, {0}); }},
        {"cover_back", kPicture, [](QPainter& p, const QRectF& r) { stack(p, r, 5, {4}); }},
        {"cover_same", kPicture, [](QPainter& p, const QRectF& r) { stack(p, r, 5, {0, 4}); }},
        {"insert", kPicture, [](QPainter& p, const QRectF& r) { stack(p, r, 5, {2}); }},
        {"transparency", kPicture, [](QPainter& p, const QRectF& r) { stack(p, r, 5, {1, 3}, {1, 3}); }},
        {"blank", kPicture, [](QPainter& p, const QRectF& r) { coverSheet(p, r, 0); }},
        {"on1side", kPicture, [](QPainter& p, const QRectF& r) { coverSheet(p, r, 1); }},
        {"on2side", kPicture, [](QPainter& p, const QRectF& r) { coverSheet(p, r, 2); }},
    };
    return specs;
}

const PictureRegistrar registrar(&coverInsertPictures);
}
