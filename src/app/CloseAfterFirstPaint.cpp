#include "CloseAfterFirstPaint.h"

#include <QDialog>
#include <QEvent>
#include <QTimer>

CloseAfterFirstPaint::CloseAfterFirstPaint(QDialog* dialog)
    : QObject(dialog)
    , m_dialog(dialog)
{
    dialog->installEventFilter(this);
}

bool CloseAfterFirstPaint::eventFilter(QObject* watched, QEvent* event)
{
    // A top-level window paints and flushes its backing store while it
    // handles UpdateRequest; the queued close runs once that is done.
    if (m_armed && watched == m_dialog && event->type() == QEvent::UpdateRequest) {
        m_armed = false;
        QTimer::singleShot(0, m_dialog, &QDialog::reject);
    }
    return false;
}
