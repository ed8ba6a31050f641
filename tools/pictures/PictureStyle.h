#pragma once
#include <QColor>
#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QString>

// The one schematic style of every picture: white sheets with a dark outline,
// dashed fold lines, solid arrows, a thick binding edge, an accent colour for
// what the picture is about. Sizes scale with the canvas.
namespace PictureStyle {
enum class Edge { Left, Right, Top, Bottom };

QColor ink();      // outlines and arrows
QColor paper();    // sheet fill
QColor accent();   // the point of the picture (binding, staple, hole, marks)
QColor shade();    // a sheet behind another, printed areas

// Pen width for a canvas of this size.
qreal lineWidth(const QRectF& canvas);

// A sheet, optionally with a dog-ear at the top right.
void sheet(QPainter& p, const QRectF& r, bool dogEar = false);
// Lines of "text" inside a sheet, to show where the print is.
void printedLines(QPainter& p, const QRectF& sheetRect, int lines = 5);
// A dashed fold line.
void foldLine(QPainter& p, const QPointF& a, const QPointF& b);
// An arrow with a filled head at `to`.
void arrow(QPainter& p, const QPointF& from, const QPointF& to, const QColor& color = ink());
// A curved arrow (quarter turn) from `from` to `to` bending through `via`.
void curvedArrow(QPainter& p, const QPointF& from, const QPointF& via, const QPointF& to, const QColor& color = ink());
// A thick bar along one edge of a sheet: where it is bound.
void bindingEdge(QPainter& p, const QRectF& sheetRect, Edge edge);
// A small staple mark centred at c, along the given angle in degrees.
void staple(QPainter& p, const QPointF& c, qreal length, qreal angleDegrees = 0);
// A punched hole.
void hole(QPainter& p, const QPointF& c, qreal radius);
// A large centred digit or short text, for page numbers.
void pageNumber(QPainter& p, const QRectF& r, const QString& text, const QColor& color = ink());
}
