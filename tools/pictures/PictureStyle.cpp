#include "PictureStyle.h"

#include <QPainterPath>
#include <QtMath>

namespace PictureStyle {

QColor ink() { return QColor(0x30, 0x36, 0x3d); }
QColor paper() { return QColor(0xff, 0xff, 0xff); }
QColor accent() { return QColor(0x1f, 0x6f, 0xc5); }
QColor shade() { return QColor(0xc9, 0xd1, 0xd9); }

qreal lineWidth(const QRectF& canvas)
{
    return qMax<qreal>(1.0, qMin(canvas.width(), canvas.height()) / 48.0);
}

void sheet(QPainter& p, const QRectF& r, bool dogEar)
{
    p.save();
    p.setPen(QPen(ink(), lineWidth(p.window()), Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    p.setBrush(paper());
    if (!dogEar) {
        p.drawRect(r);
    } else {
        const qreal d = qMin(r.width(), r.height()) / 5;
        QPainterPath path;
        path.moveTo(r.topLeft());
        path.lineTo(r.right() - d, r.top());
        path.lineTo(r.right(), r.top() + d);
        path.lineTo(r.bottomRight());
        path.lineTo(r.bottomLeft());
        path.closeSubpath();
        p.drawPath(path);
        p.setBrush(shade());
        QPainterPath ear;
        ear.moveTo(r.right() - d, r.top());
        ear.lineTo(r.right() - d, r.top() + d);
        ear.lineTo(r.right(), r.top() + d);
        ear.closeSubpath();
        p.drawPath(ear);
    }
    p.restore();
}

void printedLines(QPainter& p, const QRectF& s, int lines)
{
    p.save();
    p.setPen(QPen(shade(), lineWidth(p.window()) * 1.5, Qt::SolidLine, Qt::RoundCap));
    const qreal margin = s.width() * 0.18;
    const qreal step = (s.height() - 2 * margin) / qMax(1, lines);
    for (int i = 0; i < lines; ++i) {
        const qreal y = s.top() + margin + step * (i + 0.5);
        const qreal right = (i == lines - 1) ? s.center().x() : s.right() - margin;
        p.drawLine(QPointF(s.left() + margin, y), QPointF(right, y));
    }
    p.restore();
}

void foldLine(QPainter& p, const QPointF& a, const QPointF& b)
{
    p.save();
    QPen pen(accent(), lineWidth(p.window()), Qt::DashLine);
    pen.setDashPattern({3, 2});
    p.setPen(pen);
    p.drawLine(a, b);
    p.restore();
}

static void head(QPainter& p, const QPointF& tip, qreal angle, const QColor& color)
{
    const qreal size = lineWidth(p.window()) * 4;
    const QPointF left = tip - QPointF(qCos(angle - 0.45) * size, qSin(angle - 0.45) * size);
    const QPointF right = tip - QPointF(qCos(angle + 0.45) * size, qSin(angle + 0.45) * size);
    p.setPen(Qt::NoPen);
    p.setBrush(color);
    p.drawPolygon(QPolygonF({tip, left, right}));
}

void arrow(QPainter& p, const QPointF& from, const QPointF& to, const QColor& color)
{
    p.save();
    p.setPen(QPen(color, lineWidth(p.window()), Qt::SolidLine, Qt::RoundCap));
    const qreal angle = qAtan2(to.y() - from.y(), to.x() - from.x());
    const qreal size = lineWidth(p.window()) * 3;
    p.drawLine(from, to - QPointF(qCos(angle) * size, qSin(angle) * size));
    head(p, to, angle, color);
    p.restore();
}

void curvedArrow(QPainter& p, const QPointF& from, const QPointF& via, const QPointF& to, const QColor& color)
{
    p.save();
    p.setPen(QPen(color, lineWidth(p.window()), Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    QPainterPath path(from);
    path.quadTo(via, to);
    p.drawPath(path);
    head(p, to, qAtan2(to.y() - via.y(), to.x() - via.x()), color);
    p.restore();
}

void bindingEdge(QPainter& p, const QRectF& s, Edge edge)
{
    const qreal w = lineWidth(p.window()) * 3;
    QRectF bar;
    switch (edge) {
    case Edge::Left: bar = QRectF(s.left() - w / 2, s.top(), w, s.height()); break;
    case Edge::Right: bar = QRectF(s.right() - w / 2, s.top(), w, s.height()); break;
    case Edge::Top: bar = QRectF(s.left(), s.top() - w / 2, s.width(), w); break;
    case Edge::Bottom: bar = QRectF(s.left(), s.bottom() - w / 2, s.width(), w); break;
    }
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(accent());
    p.drawRect(bar);
    p.restore();
}

void staple(QPainter& p, const QPointF& c, qreal length, qreal angleDegrees)
{
    p.save();
    p.translate(c);
    p.rotate(angleDegrees);
    p.setPen(QPen(accent(), lineWidth(p.window()) * 1.5, Qt::SolidLine, Qt::SquareCap));
    p.drawLine(QPointF(-length / 2, 0), QPointF(length / 2, 0));
    p.restore();
}

void hole(QPainter& p, const QPointF& c, qreal radius)
{
    p.save();
    p.setPen(QPen(ink(), lineWidth(p.window()) * 0.75));
    p.setBrush(accent());
    p.drawEllipse(c, radius, radius);
    p.restore();
}

void pageNumber(QPainter& p, const QRectF& r, const QString& text, const QColor& color)
{
    p.save();
    QFont f = p.font();
    f.setPixelSize(qMax(6, int(qMin(r.width(), r.height()) * 0.45)));
    f.setBold(true);
    p.setFont(f);
    p.setPen(color);
    p.drawText(r, Qt::AlignCenter, text);
    p.restore();
}

}
