#pragma once
#include <QWidget>

class QToolButton;

// A stepper: an up and a down arrow and nothing else; the number it steps is
// shown by a separate field beside it. A click (or the Up/Down key while it
// has focus) moves the value by singleStep within minimum..maximum, wrapping
// around at the ends when wrapping is on, and then emits stepped(), the
// stepper's action. Setting the value from code clamps it to the range and
// emits only valueChanged().
class PDEStepper : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(bool wrapping READ wrapping WRITE setWrapping)
public:
    explicit PDEStepper(QWidget* parent = nullptr);

    int value() const { return m_value; }
    int minimum() const { return m_minimum; }
    // A minimum above the maximum raises the maximum with it.
    void setMinimum(int minimum);
    int maximum() const { return m_maximum; }
    // A maximum below the minimum lowers the minimum with it.
    void setMaximum(int maximum);
    void setRange(int minimum, int maximum);
    int singleStep() const { return m_singleStep; }
    void setSingleStep(int step) { m_singleStep = step; }
    bool wrapping() const { return m_wrapping; }
    void setWrapping(bool on) { m_wrapping = on; }

    QToolButton* upButton() const { return m_up; }
    QToolButton* downButton() const { return m_down; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

public slots:
    void setValue(int value);
    // What a click on an arrow does: step once, then emit stepped().
    void stepUp();
    void stepDown();

signals:
    void valueChanged(int value);
    // The user stepped the value (after valueChanged).
    void stepped();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void stepBy(int steps);

    QToolButton* m_up = nullptr;
    QToolButton* m_down = nullptr;
    int m_value = 0;
    int m_minimum = 0;
    int m_maximum = 99;
    int m_singleStep = 1;
    bool m_wrapping = false;
};
