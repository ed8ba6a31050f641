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

// A sheet printed on both sides, with the binding edge and the turn it takes.
void duplex(QPainter& p, const QRectF& c, int binding, bool landscape)
{
    const qreal h = landscape ? c.height() * 0.56 : c.height() * 0.8;
    const qreal w = landscape ? c.width() * 0.56 : c.width() * 0.4;
    const QRectF front(c.width() * 0.08, c.height() * 0.1, w, h);
    sheet(p, front);
    printedLines(p, front, 4);
    if (binding == 0)
        return;
    const QRectF back = front.translated(c.width() * 0.3, landscape ? c.height() * 0.3 : c.height() * 0.06);
    sheet(p, back);
    printedLines(p, back, 4);
    // Long edge: the long side of the page; short edge: the short one.
    const bool vertical = (binding == 1) != landscape;
    bindingEdge(p, front, vertical ? Edge::Left : Edge::Top);
    bindingEdge(p, back, vertical ? Edge::Left : Edge::Top);
    if (vertical)
        curvedArrow(p, QPointF(front.center().x(), front.bottom() - 4), QPointF(c.width() * 0.5, c.height() * 1.02),
                    QPointF(back.center().x(), back.bottom() - 2), accent());
    else
        curvedArrow(p, QPointF(front.right() - 4, front.center().y()), QPointF(c.width() * 1.02, c.height() * 0.3),
                    QPointF(back.right() - 2, back.center().y() + 6), accent());
}

QList<PictureSpec> specialPagePictures()
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
    const char* bindings[] = {"_none", "_long", "_short"};
    for (int b = 0; b < 3; ++b)
        for (bool landscape : {false, true})
            specs.append({QStringLiteral("doubleside") + QString::fromLatin1(bindings[b]) + (landscape ? QStringLiteral("_land") : QString()),
                          kPicture, [=](QPainter& p, const QRectF& r) { duplex(p, r, b, landscape); }});
    return specs;
}

const PictureRegistrar registrar(&specialPagePictures);
}
