// Manual 2-sided printing: the printed sheet in each page orientation, one
// sided or bound along its long or short edge. The reverse orientations are
// the same pictures turned half a turn, print upside down.
#include "PictureRegistry.h"
#include "PictureStyle.h"

using namespace PictureStyle;

namespace {

enum class Binding { None, Long, Short };

void duplexSheet(QPainter& p, const QRectF& c, bool landscape, Binding binding, bool reverse)
{
    if (reverse) {
        p.translate(c.center());
        p.rotate(180);
        p.translate(-c.center());
    }
    const QSizeF size = landscape ? QSizeF(c.width() * 0.62, c.height() * 0.44) : QSizeF(c.width() * 0.44, c.height() * 0.62);
    // The long edge of a portrait sheet is at its side, of a landscape sheet at its top.
    const bool boundAtTop = (binding == Binding::Long) == landscape && binding != Binding::None;
    // Room for the turning arrow: above a sheet bound at the top, beside one bound at the side.
    QPointF shift;
    if (binding != Binding::None)
        shift = boundAtTop ? QPointF(-c.width() * 0.06, c.height() * 0.1) : QPointF(c.width() * 0.04, c.height() * 0.1);
    QRectF front(QPointF(0, 0), size);
    front.moveCenter(c.center() + shift);

    if (binding != Binding::None) {
        // The second side lies behind the first.
        const qreal d = c.width() * 0.05;
        sheet(p, front.translated(d, d));
    }
    sheet(p, front);
    printedLines(p, front.adjusted(0, front.height() * 0.25, 0, 0), landscape ? 3 : 5);
    pageNumber(p, QRectF(front.left(), front.top(), front.width() * 0.45, front.height() * 0.35), QStringLiteral("1"));
    if (binding == Binding::None)
        return;

    const qreal gap = c.width() * 0.04;
    if (boundAtTop) {
        bindingEdge(p, front, Edge::Top);
        // The sheet turns over its top edge: from the bottom, round the right, up to the top.
        curvedArrow(p, QPointF(front.right() + gap, front.bottom() - front.height() * 0.15),
                    QPointF(c.right() - gap * 0.5, front.center().y()), QPointF(front.right() + gap, front.top() + gap * 0.5), accent());
    } else {
        bindingEdge(p, front, Edge::Left);
        // The sheet turns over its left edge: from the right, over the top, to the left.
        curvedArrow(p, QPointF(front.right() - front.width() * 0.15, front.top() - gap),
                    QPointF(front.center().x(), c.top() + gap * 0.5), QPointF(front.left() + gap * 0.5, front.top() - gap), accent());
    }
}

QList<PictureSpec> duplexPictures()
{
    QList<PictureSpec> list;
    const struct {
        const char* part;
        Binding binding;
    } bindings[] = {{"none", Binding::None}, {"long", Binding::Long}, {"short", Binding::Short}};
    for (const auto& b : bindings) {
        for (const bool landscape : {false, true}) {
            for (const bool reverse : {false, true}) {
                const QString name = QStringLiteral("doubleside_") + (landscape ? QStringLiteral("land") : QString())
                                     + QString::fromLatin1(b.part) + (reverse ? QStringLiteral("_rotate") : QString());
                const Binding binding = b.binding;
                list.append({name, QSize(110, 110), [=](QPainter& p, const QRectF& r) { duplexSheet(p, r, landscape, binding, reverse); }});
            }
        }
    }
    return list;
}

const PictureRegistrar registrar(&duplexPictures);
}
