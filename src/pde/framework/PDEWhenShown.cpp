#include "PDEWhenShown.h"

#include <QEvent>
#include <QWidget>

PDEWhenShown::PDEWhenShown(QWidget* widget, const QString& key, std::function<void()> work) : QObject(widget), m_work(std::move(work))
{
    setObjectName(key);
    widget->installEventFilter(this);
}

void PDEWhenShown::cancel(QWidget* widget, const QString& key)
{
    if (widget)
        delete widget->findChild<PDEWhenShown*>(key, Qt::FindDirectChildrenOnly);
}

void PDEWhenShown::run(QWidget* widget, const QString& key, std::function<void()> work)
{
    if (!widget)
        return;
    cancel(widget, key);
    if (widget->isVisible())
        work();
    else
        new PDEWhenShown(widget, key, std::move(work));
}

bool PDEWhenShown::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && watched == parent()) {
        // Done once: the filter goes before the work runs, which may ask for more.
        watched->removeEventFilter(this);
        setParent(nullptr);
        const std::function<void()> work = std::move(m_work);
        deleteLater();
        work();
    }
    return QObject::eventFilter(watched, event);
}
