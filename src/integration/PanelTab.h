#pragma once
#include <QPointer>
#include <QWidget>
#include <memory>

class PDEPanel;
class QScrollArea;

// One panel as a tab page of an application's print dialog: the panel's own
// view in a scroll area, titled with the panel's name. Showing the tab tells
// the panel willShow, leaving it shouldHide (a tab switch cannot be refused).
// The view stays the panel's: it is given back to its own parent when the
// page goes with its dialog.
class PanelTab : public QWidget {
    Q_OBJECT
public:
    explicit PanelTab(std::shared_ptr<PDEPanel> panel, QWidget* parent = nullptr);
    ~PanelTab() override;

    PDEPanel* panel() const { return m_panel.get(); }
    // Fits the page to the size the panel gave its view (after panelViewDidResize).
    void fitToView();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    std::shared_ptr<PDEPanel> m_panel;
    QScrollArea* m_area = nullptr;
    QPointer<QWidget> m_view;
    QPointer<QWidget> m_viewParent;
    bool m_shown = false;
};
