#pragma once

#include <QObject>

class QDialog;

// Closes a dialog (as if cancelled) right after its first paint has reached
// the screen: for timing a whole opening from outside the process.
class CloseAfterFirstPaint : public QObject
{
public:
    explicit CloseAfterFirstPaint(QDialog* dialog);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QDialog* m_dialog;
    bool m_armed = true;
};
