#include "PDELazyPicture.h"

#include <QEvent>
#include <QFileInfo>
#include <QIconEngine>
#include <QImageReader>
#include <QLabel>
#include <QPixmap>

namespace {
// Decodes the picture: in the format found for it, without probing.
QPixmap readPicture(const QString& path, const QByteArray& format)
{
    QImageReader reader(path, format);
    reader.setAutoDetectImageFormat(format.isEmpty());
    return QPixmap::fromImageReader(&reader);
}
}

PDELazyPicture::PDELazyPicture(QLabel* label, const QString& path, const QByteArray& format, const QSize& room)
    : QObject(label), m_label(label), m_path(path), m_format(format), m_ownMinimumSize(label->minimumSize())
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
    QByteArray format;
    const QSize size = probe(path, &format);
    if (!size.isValid())
        return false;
    if (label->isVisible())
        label->setPixmap(readPicture(path, format));
    else
        new PDELazyPicture(label, path, format, size);
    return true;
}

// Answers sizes from the file's header; decodes the picture into a plain
// pixmap icon, which does all the drawing, the first time it is drawn.
class PDELazyIconEngine : public QIconEngine {
public:
    PDELazyIconEngine(const QString& path, const QByteArray& format, const QSize& size)
        : m_path(path), m_format(format), m_size(size)
    {
    }
    QIconEngine* clone() const override { return new PDELazyIconEngine(*this); }
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        if (!m_icon.isNull())
            return m_icon.actualSize(size, mode, state);
        // As a pixmap icon answers: the picture's size, scaled down to fit.
        return m_size.width() > size.width() || m_size.height() > size.height() ? m_size.scaled(size, Qt::KeepAspectRatio) : m_size;
    }
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        decoded().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return decoded().pixmap(size, mode, state);
    }

private:
    const QIcon& decoded()
    {
        if (m_icon.isNull())
            m_icon = QIcon(readPicture(m_path, m_format));
        return m_icon;
    }

    QString m_path;
    QByteArray m_format;
    QSize m_size;
    QIcon m_icon;
};

QIcon PDELazyPicture::icon(const QString& path)
{
    QByteArray format;
    const QSize size = probe(path, &format);
    return size.isValid() ? QIcon(new PDELazyIconEngine(path, format, size)) : QIcon();
}

QSize PDELazyPicture::probe(const QString& path, QByteArray* format)
{
    format->clear();
    if (path.isEmpty())
        return QSize();
    QImageReader bySuffix(path, QFileInfo(path).suffix().toLower().toLatin1());
    bySuffix.setAutoDetectImageFormat(false);
    if (bySuffix.canRead()) {
        *format = bySuffix.format();
        return bySuffix.size();
    }
    QImageReader byContent(path);
    return byContent.canRead() ? byContent.size() : QSize();
}

bool PDELazyPicture::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_label && event->type() == QEvent::Show) {
        release();
        m_label->setPixmap(readPicture(m_path, m_format));
        deleteLater();
    }
    return QObject::eventFilter(watched, event);
}
