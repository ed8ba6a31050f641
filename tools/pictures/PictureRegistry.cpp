#include "PictureRegistry.h"

#include <algorithm>

static QList<PictureRegistry::Maker>& makers()
{
    static QList<PictureRegistry::Maker> list;
    return list;
}

void PictureRegistry::add(Maker maker)
{
    makers().append(maker);
}

QList<PictureSpec> PictureRegistry::all()
{
    QList<PictureSpec> pictures;
    for (Maker m : makers())
        pictures += m();
    std::sort(pictures.begin(), pictures.end(), [](const PictureSpec& a, const PictureSpec& b) { return a.name < b.name; });
    return pictures;
}
