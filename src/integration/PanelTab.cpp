#include "PanelTab.h"

#include "PDEPanel.h"

#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

PanelTab::PanelTab(std::shared_ptr<PDEPanel> panel, QWidget* parent)
    : QWidget(parent), m_panel(std::move(panel))
{
    setObjectName(QStringLiteral("printPanelsTab"));
    setWindowTitle(m_panel->panelName());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_area = new QScrollArea(this);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    layout->addWidget(m_area);
    m_view = m_panel->panelView();
    if (m_view) {
        m_viewParent = m_view->parentWidget();
        m_area->setWidget(m_view);
        fitToView();
    } else {
        auto* label = new QLabel(tr("This panel has no settings to show."));
        label->setAlignment(Qt::AlignCenter);
        m_area->setWidgetResizable(true);
        m_area->setWidget(label);
    }
}

PanelTab::~PanelTab()
{
    // The scroll area would delete the view with itself: the view is the panel's.
    if (m_view && m_area->widget() == m_view) {
        m_area->takeWidget();
        if (m_viewParent)
            m_view->setParent(m_viewParent);
    }
}

void PanelTab::fitToView()
{
    if (!m_view)
        return;
    const int frame = 2 * m_area->frameWidth();
    // As large as the view, within what a dialog's options area can take.
    m_area->setMinimumSize((m_view->size() + QSize(frame, frame)).boundedTo(QSize(900, 640)));
}

void PanelTab::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!m_shown) {
        m_shown = true;
        m_panel->willShow();
    }
}

void PanelTab::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    // A hide of the whole dialog (spontaneous or not) also leaves the panel.
    if (m_shown) {
        m_shown = false;
        m_panel->shouldHide();
    }
}
