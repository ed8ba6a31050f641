// The fold patterns of the Finishing panel's folding group. Each picture
// shows the flat sheet with its dashed fold lines and numbered arrows for the
// order of the folds, and beside it the folded sheet seen from the side, with
// the printed face marked in the accent colour.
//   pattern1: C-fold, printed inside, right panel first
//   pattern2: C-fold, printed inside, left panel first
//   pattern3: C-fold, printed outside, right panel first
//   pattern4: C-fold, printed outside, left panel first
//   vfolding_inside / vfolding_outside: V-fold in the middle, printed inside / outside
#include "PictureRegistry.h"
#include "PictureStyle.h"

#include <QPainterPath>

using namespace PictureStyle;

namespace {
const QSize kSize(150, 100);
const QRectF kSheet(8, 30, 84, 40);

// Mirrors x inside the flat sheet's area or inside the side view's area, so
// that left-first patterns are drawn as the right-first ones turned around.
qreal sheetX(qreal x, bool mirror) { return mirror ? 100 - x : x; }
qreal sideX(qreal x, bool mirror) { return mirror ? 246 - x : x; }

void flatSheet(QPainter& p, bool printedInside, int panels)
{
    // Printed inside: the print faces us before folding, panel by panel;
    // printed outside: we see the blank back (the turned corner).
    sheet(p, kSheet, !printedInside);
    if (!printedInside)
        return;
    const qreal width = kSheet.width() / panels;
    for (int i = 0; i < panels; ++i)
        printedLines(p, QRectF(kSheet.left() + i * width, kSheet.top(), width, kSheet.height()), 3);
}

void polyline(QPainter& p, const QList<QPointF>& points, const QColor& color, qreal width)
{
    p.save();
    p.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPolyline(QPolygonF(points));
    p.restore();
}

void stepNumber(QPainter& p, const QPointF& centre, const QString& n)
{
    pageNumber(p, QRectF(centre.x() - 8, centre.y() - 8, 16, 16), n);
}

void drawCFold(QPainter& p, const QRectF& canvas, bool printedInside, bool leftFirst)
{
    const qreal w = lineWidth(canvas);
    const bool m = leftFirst;
    flatSheet(p, printedInside, 3);
    foldLine(p, {36, 26}, {36, 74});
    foldLine(p, {64, 26}, {64, 74});
    // First fold over the top of the sheet, second under it.
    curvedArrow(p, {sheetX(78, m), 28}, {sheetX(64, m), 6}, {sheetX(50, m), 28}, accent());
    stepNumber(p, {sheetX(90, m), 16}, QStringLiteral("1"));
    curvedArrow(p, {sheetX(22, m), 72}, {sheetX(36, m), 94}, {sheetX(50, m), 72});
    stepNumber(p, {sheetX(10, m), 84}, QStringLiteral("2"));

    // Side view: middle panel at the bottom, the first panel folded onto it,
    // the second on top, each hinged where it was folded.
    polyline(p, {{sideX(108, m), 56}, {sideX(140, m), 56}, {sideX(140, m), 68}, {sideX(106, m), 68}, {sideX(106, m), 44}, {sideX(138, m), 44}},
             ink(), w);
    const qreal d = printedInside ? 3 : -3;  // the printed face: towards the inside or the outside
    polyline(p, {{sideX(110, m), 68 - d}, {sideX(137, m), 68 - d}}, accent(), w);
    polyline(p, {{sideX(110, m), 56 + d}, {sideX(137, m), 56 + d}}, accent(), w);
    polyline(p, {{sideX(109, m), 44 + d}, {sideX(135, m), 44 + d}}, accent(), w);
}

void drawVFold(QPainter& p, const QRectF& canvas, bool printedInside)
{
    const qreal w = lineWidth(canvas);
    flatSheet(p, printedInside, 2);
    foldLine(p, {50, 26}, {50, 74});
    curvedArrow(p, {71, 28}, {50, 4}, {29, 28}, accent());
    stepNumber(p, {84, 16}, QStringLiteral("1"));

    // Side view: the two halves meet at the fold on the left.
    polyline(p, {{140, 42}, {106, 57}, {140, 72}}, ink(), w);
    if (printedInside)
        polyline(p, {{138, 47}, {113, 57}, {138, 67}}, accent(), w);
    else
        polyline(p, {{140, 37}, {99, 57}, {140, 77}}, accent(), w);
}

PictureSpec cFold(const QString& name, bool printedInside, bool leftFirst)
{
    return {name, kSize, [=](QPainter& p, const QRectF& r) { drawCFold(p, r, printedInside, leftFirst); }};
}

PictureSpec vFold(const QString& name, bool printedInside)
{
    return {name, kSize, [=](QPainter& p, const QRectF& r) { drawVFold(p, r, printedInside); }};
}

QList<PictureSpec> foldingPictures()
{
    return {cFold(QStringLiteral("pattern1"), true, false),  cFold(QStringLiteral("pattern2"), true, true),
            cFold(QStringLiteral("pattern3"), false, false), cFold(QStringLiteral("pattern4"), false, true),
            vFold(QStringLiteral("vfolding_inside"), true),  vFold(QStringLiteral("vfolding_outside"), false)};
}

const PictureRegistrar registrar(&foldingPictures);
}
