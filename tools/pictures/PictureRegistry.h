#pragma once
#include <QList>
#include <QPainter>
#include <QRectF>
#include <QSize>
#include <QString>
#include <functional>

// One picture of the bundle: its resource name, its size in pixels and how
// it is drawn into a transparent canvas of that size.
struct PictureSpec {
    QString name;
    QSize size;
    std::function<void(QPainter&, const QRectF&)> draw;
};

// Every picture the generator knows. Each drawing file registers its own list
// with a static PictureRegistrar, so a new file needs no other change.
class PictureRegistry {
public:
    using Maker = QList<PictureSpec> (*)();
    static void add(Maker maker);
    static QList<PictureSpec> all();
};

struct PictureRegistrar {
    explicit PictureRegistrar(PictureRegistry::Maker maker) { PictureRegistry::add(maker); }
};
