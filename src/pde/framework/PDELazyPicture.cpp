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
    label->clear();
    if (path.isEmpty() || !QImageReader(path).canRead()) {
        PDEWhenShown::cancel(label, key);
        return false;
    }
    PDEWhenShown::run(label, key, [label, path] { label->setPixmap(QPixmap(path)); });
    return true;
}
