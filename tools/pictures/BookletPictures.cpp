// The booklet finisher's folding pictures and the three steps of printing a
// booklet (or both sides) by hand.
#include "PictureRegistry.h"
#include "PictureStyle.h"

using namespace PictureStyle;

namespace {

// An open booklet sheet: two pages side by side.
void openSheet(QPainter& p, const QRectF& r, bool foldMark)
{
    sheet(p, r);
    const QRectF left(r.left(), r.top(), r.width() / 2, r.height());
    const QRectF right(r.center().x(), r.top(), r.width() / 2, r.height());
    printedLines(p, left, 4);
    printedLines(p, right, 4);
    if (foldMark)
        foldLine(p, QPointF(r.center().x(), r.top()), QPointF(r.center().x(), r.bottom()));
}

// A closed booklet seen from the front: its spine on the left.
void closedBooklet(QPainter& p, const QRectF& r, bool stitched)
{
    const qreal d = r.width() * 0.06;
    sheet(p, r.translated(d, -d));
    sheet(p, r);
    printedLines(p, r, 4);
    bindingEdge(p, r, Edge::Left);
    if (stitched) {
        // The staples sit in the fold; drawn just inside the cover to be seen.
        const qreal x = r.left() + r.width() * 0.14;
        staple(p, QPointF(x, r.top() + r.height() * 0.25), r.height() * 0.2, 90);
        staple(p, QPointF(x, r.top() + r.height() * 0.75), r.height() * 0.2, 90);
    }
}

// A printer: a box with its output slot on top.
QRectF printer(QPainter& p, const QRectF& r)
{
    p.save();
    p.setPen(QPen(ink(), lineWidth(p.window())));
    p.setBrush(shade());
    p.drawRoundedRect(r, r.height() * 0.12, r.height() * 0.12);
    p.setBrush(paper());
    const QRectF slot(r.left() + r.width() * 0.15, r.top() + r.height() * 0.18, r.width() * 0.7, r.height() * 0.14);
    p.drawRect(slot);
    p.restore();
    return slot;
}

void step(QPainter& p, const QRectF& c, int number)
{
    const qreal h = c.height();
    const QRectF box(c.width() * 0.06, h * 0.45, c.width() * 0.4, h * 0.45);
    const QRectF slot = printer(p, box);
    const QRectF paperRect(c.width() * 0.6, h * 0.12, c.width() * 0.3, h * 0.6);
    switch (number) {
    case 1:  // the fronts are printed
        sheet(p, paperRect);
        printedLines(p, paperRect, 5);
        arrow(p, QPointF(slot.center().x(), slot.top()), QPointF(paperRect.left() - 4, paperRect.center().y()));
        break;
    case 2:  // the stack is turned over
        sheet(p, paperRect.translated(-c.width() * 0.1, 0));
        printedLines(p, paperRect.translated(-c.width() * 0.1, 0), 5);
        sheet(p, paperRect.translated(c.width() * 0.04, h * 0.16), true);
        curvedArrow(p, QPointF(paperRect.left() - c.width() * 0.06, paperRect.top()),
                    QPointF(paperRect.center().x(), -h * 0.08),
                    QPointF(paperRect.right() + c.width() * 0.02, paperRect.top() + h * 0.14), accent());
        break;
    default:  // and fed again, blank side up
        sheet(p, paperRect, true);
        arrow(p, QPointF(paperRect.left(), paperRect.bottom()), QPointF(box.right() - box.width() * 0.2, box.top() + 2), accent());
        break;
    }
    pageNumber(p, QRectF(0, 0, c.width() * 0.3, h * 0.4), QString::number(number));
}

QList<PictureSpec> bookletPictures()
{
    return {
        {"folding_none", QSize(96, 72), [](QPainter& p, const QRectF& r) { openSheet(p, r.adjusted(8, 14, -8, -14), false); }},
        {"folding_only", QSize(96, 72), [](QPainter& p, const QRectF& r) { closedBooklet(p, r.adjusted(30, 12, -26, -8), false); }},
        {"folding_stitch", QSize(96, 72), [](QPainter& p, const QRectF& r) { closedBooklet(p, r.adjusted(30, 12, -26, -8), true); }},
        {"itdrvM1", QSize(120, 90), [](QPainter& p, const QRectF& r) { step(p, r, 1); }},
        {"itdrvM2", QSize(120, 90), [](QPainter& p, const QRectF& r) { step(p, r, 2); }},
        {"itdrvM3", QSize(120, 90), [](QPainter& p, const QRectF& r) { step(p, r, 3); }},
    };
}

const PictureRegistrar registrar(&bookletPictures);
}
