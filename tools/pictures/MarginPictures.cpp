// The Manual Margin concepts: a binding margin on the left, right or top
// edge, and an image shift, each for portrait and landscape pages, in colour
// and in grey; and the eight arrows that tell where the image moves on the
// front and the back.
#include "PictureRegistry.h"
#include "PictureStyle.h"

using namespace PictureStyle;

namespace {
const QSize kConcept(200, 150);
const QSize kArrow(32, 32);

// The printed image: a picture block over lines of text, in colour or grey.
void printedImage(QPainter& p, const QRectF& r, bool colour)
{
    const QRectF block(r.left(), r.top(), r.width(), r.height() * 0.45);
    const QColor bands[3] = {colour ? QColor(0xd9, 0x4f, 0x3d) : QColor(0x70, 0x70, 0x70),
                             colour ? QColor(0x3c, 0xa5, 0x5c) : QColor(0x9a, 0x9a, 0x9a), colour ? accent() : QColor(0xb8, 0xb8, 0xb8)};
    p.save();
    p.setPen(Qt::NoPen);
    for (int i = 0; i < 3; ++i) {
        p.setBrush(bands[i]);
        p.drawRect(QRectF(block.left() + block.width() * i / 3, block.top(), block.width() / 3, block.height()));
    }
    p.setPen(QPen(colour ? ink() : QColor(0x60, 0x60, 0x60), lineWidth(p.window()) * 1.2, Qt::SolidLine, Qt::RoundCap));
    const qreal step = r.height() * 0.55 / 4;
    for (int i = 0; i < 4; ++i) {
        const qreal y = block.bottom() + step * (i + 0.6);
        p.drawLine(QPointF(r.left(), y), QPointF(i == 3 ? r.center().x() : r.right(), y));
    }
    p.restore();
}

QRectF pageRect(const QRectF& c, bool portrait)
{
    const qreal h = c.height() * 0.86;
    const qreal w = portrait ? h * 0.72 : h * 1.38;
    return QRectF(c.center().x() - w / 2, c.center().y() - h / 2, w, h);
}

// The margin's width: an arrow across it, from the image to the bound edge.
void measure(QPainter& p, const QPointF& edge, const QPointF& image)
{
    arrow(p, image, edge, accent());
}

void binding(QPainter& p, const QRectF& c, bool portrait, Edge edge, bool colour)
{
    const QRectF page = pageRect(c, portrait);
    sheet(p, page);
    bindingEdge(p, page, edge);
    const qreal m = qMin(page.width(), page.height()) * 0.1;
    const qreal gutter = qMin(page.width(), page.height()) * 0.34;
    QRectF image = page.adjusted(m, m, -m, -m);
    switch (edge) {
    case Edge::Left: image.setLeft(page.left() + gutter); break;
    case Edge::Right: image.setRight(page.right() - gutter); break;
    default: image.setTop(page.top() + gutter); break;
    }
    printedImage(p, image, colour);
    const qreal y = page.center().y();
    const qreal x = page.center().x();
    switch (edge) {
    case Edge::Left: measure(p, QPointF(page.left() + 3, y), QPointF(image.left() - 2, y)); break;
    case Edge::Right: measure(p, QPointF(page.right() - 3, y), QPointF(image.right() + 2, y)); break;
    default: measure(p, QPointF(x, page.top() + 3), QPointF(x, image.top() - 2)); break;
    }
}

void imageShift(QPainter& p, const QRectF& c, bool portrait, bool colour)
{
    const QRectF page = pageRect(c, portrait);
    sheet(p, page);
    const qreal m = qMin(page.width(), page.height()) * 0.2;
    const QRectF original = page.adjusted(m, m, -m, -m);
    const QRectF shifted = original.translated(m * 0.6, m * 0.6);
    p.save();
    QPen dashed(shade(), lineWidth(p.window()), Qt::DashLine);
    p.setPen(dashed);
    p.setBrush(Qt::NoBrush);
    p.drawRect(original);
    p.restore();
    printedImage(p, shifted, colour);
    arrow(p, original.topLeft(), shifted.topLeft(), accent());
}

// A diagonal arrow towards one corner; the front's in the accent colour, the
// back's in ink.
void cornerArrow(QPainter& p, const QRectF& c, bool front, bool right, bool bottom)
{
    const qreal m = c.width() * 0.18;
    const QPointF to(right ? c.right() - m : c.left() + m, bottom ? c.bottom() - m : c.top() + m);
    const QPointF from(right ? c.left() + m * 1.6 : c.right() - m * 1.6, bottom ? c.top() + m * 1.6 : c.bottom() - m * 1.6);
    arrow(p, from, to, front ? accent() : ink());
}

QList<PictureSpec> marginPictures()
{
    QList<PictureSpec> specs;
    for (bool portrait : {true, false}) {
        const QString o = portrait ? QStringLiteral("portrait_") : QStringLiteral("landscope_");
        for (bool colour : {true, false}) {
            const QString c = colour ? QStringLiteral("color") : QStringLiteral("gray");
            specs.append({QStringLiteral("IS_") + o + c, kConcept, [=](QPainter& p, const QRectF& r) { imageShift(p, r, portrait, colour); }});
            const struct {
                const char* name;
                Edge edge;
            } edges[] = {{"left_", Edge::Left}, {"right_", Edge::Right}, {"top_", Edge::Top}};
            for (const auto& e : edges) {
                const Edge edge = e.edge;
                specs.append({QStringLiteral("binding_") + o + QString::fromLatin1(e.name) + c, kConcept,
                              [=](QPainter& p, const QRectF& r) { binding(p, r, portrait, edge, colour); }});
            }
        }
    }
    for (bool front : {true, false})
        for (bool right : {false, true})
            for (bool bottom : {false, true}) {
                const QString name = QString::fromLatin1(front ? "front_" : "back_") + QString::fromLatin1(right ? "right_" : "left_")
                                     + QString::fromLatin1(bottom ? "bottom" : "top");
                specs.append({name, kArrow, [=](QPainter& p, const QRectF& r) { cornerArrow(p, r, front, right, bottom); }});
            }
    return specs;
}

const PictureRegistrar registrar(&marginPictures);
}
