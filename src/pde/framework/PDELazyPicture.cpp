#include "PDELazyPicture.h"

#include "PDEWhenShown.h"

#include <QImageReader>
#include <QLabel>
#include <QPixmap>

bool PDELazyPicture::set(QLabel* label, const QString& path)
{
    if (!label)
        return false;
    static const QString key = QStringLiteral("picture");
    // A picture still waiting gives its place back first.
    PDEWhenShown::cancel(label, key);
    if (const QVariant pinned = label->property("pdePictureMinimumSize"); pinned.isValid()) {
        label->setMinimumSize(pinned.toSize());
        label->setProperty("pdePictureMinimumSize", QVariant());
    }
    label->clear();
    QImageReader reader(path);
    const QSize size = path.isEmpty() ? QSize() : reader.size();
    if (!size.isValid() || !reader.canRead())
        return false;
    if (label->isVisible()) {
        label->setPixmap(QPixmap(path));
        return true;
    }
    // Until it is decoded, the label keeps the room the picture will take, so
    // that sizes worked out before the first showing come out the same.
    const QSize original = label->minimumSize();
    const QMargins m = label->contentsMargins();
    const int frame = 2 * label->frameWidth();
    label->setProperty("pdePictureMinimumSize", original);
    label->setMinimumSize(original.expandedTo(size + QSize(m.left() + m.right() + frame, m.top() + m.bottom() + frame)));
    PDEWhenShown::run(label, key, [label, path, original] {
        label->setProperty("pdePictureMinimumSize", QVariant());
        label->setMinimumSize(original);
        label->setPixmap(QPixmap(path));
    });
    return true;
}
