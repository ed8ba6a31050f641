#include "PDELazyPicture.h"

#include <QEvent>
#include <QImageReader>
#include <QLabel>
#include <QPixmap>

PDELazyPicture::PDELazyPicture(QLabel* label, const QString& path, const QSize& room)
    : QObject(label), m_label(label), m_path(path), m_ownMinimumSize(label->minimumSize())
{
    const QMargins m = label->contentsMargins();
    const int frame = 2 * label->frameWidth();
    label->setMinimumSize(m_ownMinimumSize.expandedTo(room + QSize(m.left() + m.right() + frame, m.top() + m.bottom() + frame)));
    label->installEventFilter(this);
}

void PDELazyPicture::release()
{
    m_label->removeEventFilter(this);
    m_label->setMinimumSize(m_ownMinimumSize);
}

bool PDELazyPicture::set(QLabel* label, const QString& path)
{
    if (!label)
        return false;
    // A picture still waiting gives way to this one.
    if (auto* waiting = label->findChild<PDELazyPicture*>(QString(), Qt::FindDirectChildrenOnly)) {
        waiting->release();
        delete waiting;
    }
    label->clear();
    QImageReader reader(path);
    const QSize size = path.isEmpty() ? QSize() : reader.size();
    if (!size.isValid() || !reader.canRead())
        return false;
    if (label->isVisible())
        label->setPixmap(QPixmap(path));
    else
        new PDELazyPicture(label, path, size);
    return true;
}

bool PDELazyPicture::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_label && event->type() == QEvent::Show) {
        release();
        m_label->setPixmap(QPixmap(m_path));
        deleteLater();
    }
    return QObject::eventFilter(watched, event);
}
