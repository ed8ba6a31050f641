#include "PDEStepper.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

namespace {
QToolButton* makeArrow(QWidget* parent, Qt::ArrowType arrow, const char* name)
{
    auto* b = new QToolButton(parent);
    b->setObjectName(QString::fromLatin1(name));
    b->setArrowType(arrow);
    b->setAutoRepeat(true);
    b->setFocusPolicy(Qt::NoFocus);
    // The stepper's own size decides; the two arrows share it.
    b->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    return b;
}
}

PDEStepper::PDEStepper(QWidget* parent) : QWidget(parent)
{
    // The arrows are internal parts: "qt_" names keep them out of control listings.
    m_up = makeArrow(this, Qt::UpArrow, "qt_stepper_up");
    m_down = makeArrow(this, Qt::DownArrow, "qt_stepper_down");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_up);
    layout->addWidget(m_down);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(m_up, &QToolButton::clicked, this, &PDEStepper::stepUp);
    connect(m_down, &QToolButton::clicked, this, &PDEStepper::stepDown);
}

void PDEStepper::setMinimum(int minimum)
{
    m_minimum = minimum;
    m_maximum = std::max(m_maximum, minimum);
    setValue(m_value);
}

void PDEStepper::setMaximum(int maximum)
{
    m_maximum = maximum;
    m_minimum = std::min(m_minimum, maximum);
    setValue(m_value);
}

void PDEStepper::setRange(int minimum, int maximum)
{
    m_minimum = minimum;
    m_maximum = std::max(minimum, maximum);
    setValue(m_value);
}

void PDEStepper::setValue(int value)
{
    value = std::clamp(value, m_minimum, m_maximum);
    if (value == m_value)
        return;
    m_value = value;
    emit valueChanged(m_value);
}

void PDEStepper::stepUp()
{
    stepBy(1);
}

void PDEStepper::stepDown()
{
    stepBy(-1);
}

void PDEStepper::stepBy(int steps)
{
    qint64 next = qint64(m_value) + qint64(steps) * m_singleStep;
    if (next > m_maximum)
        next = m_wrapping ? m_minimum : m_maximum;
    else if (next < m_minimum)
        next = m_wrapping ? m_maximum : m_minimum;
    setValue(int(next));
    emit stepped();
}

void PDEStepper::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Up) {
        stepUp();
        return;
    }
    if (event->key() == Qt::Key_Down) {
        stepDown();
        return;
    }
    QWidget::keyPressEvent(event);
}

QSize PDEStepper::sizeHint() const
{
    // Two arrows on top of each other, about as tall as a line edit.
    const int h = std::max(22, fontMetrics().height() + 10);
    return QSize(std::max(15, h * 2 / 3), h);
}
