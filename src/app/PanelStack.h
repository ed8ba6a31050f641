#pragma once
#include <QList>
#include <QPair>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>

namespace Ui {
class PanelStack;
}
class PDEPanel;
class QSize;
struct ppd_file_s;

// The panels of the dialog, listed in order with a Summary after them, one
// shown at a time beside the list. Leaving a panel asks it (shouldHide);
// showing it tells it (willShow). The view shown stays its panel's: it is
// given back to its own parent when left. The summary lists the job's
// settings and every panel's, in the PPD's words, secrets hidden.
class PanelStack : public QWidget {
    Q_OBJECT
public:
    // The job settings' labels and values, for the summary's first group.
    using JobSummary = std::function<QList<QPair<QString, QString>>()>;

    explicit PanelStack(QWidget* parent = nullptr);
    ~PanelStack() override;

    void setJobSummary(JobSummary summary) { m_jobSummary = std::move(summary); }
    // Lists the panels (the PPD gives the summary its words) and shows row selectRow.
    void setPanels(const QList<std::shared_ptr<PDEPanel>>& panels, ppd_file_s* ppd, int selectRow = 0);
    // Empties the list before the panels go, giving the view shown back;
    // tellPanel: the panel shown is left as when another is chosen (shouldHide).
    void clear(bool tellPanel = true);
    // Adds a panel before the summary; the entry selected stays selected.
    void appendPanel(std::shared_ptr<PDEPanel> panel);

    // The panel shown, or null while the summary is shown.
    PDEPanel* currentPanel() const;
    // Rows: the panels, then the summary.
    int count() const;
    PDEPanel* panelAt(int row) const;
    // Selects a row as a click on the list does.
    void selectRow(int row);
    // Brings a panel to the front; false when the panel shown refuses to be left.
    bool showPanel(const PDEPanel* panel);
    // Fills the summary again if it is shown.
    void refreshSummary();
    // The panel shown gave its view a new size: the window follows.
    void panelViewResized();

signals:
    // Another entry is shown.
    void currentChanged();
    void notice(const QString& text);

protected:
    void changeEvent(QEvent* event) override;

private:
    void rowChanged(int row);
    bool switchTo(int row);
    void attachView(PDEPanel* panel);
    void detachView();
    void fitPanelArea(const QSize& wanted);
    void fillSummary();

    std::unique_ptr<Ui::PanelStack> ui;
    QList<std::shared_ptr<PDEPanel>> m_panels;  // as listed
    ppd_file_s* m_ppd = nullptr;
    JobSummary m_jobSummary;
    int m_currentRow = -1;
    QPointer<QWidget> m_shownView;
    QPointer<QWidget> m_shownViewParent;  // the view's own parent, restored when hidden
    QPointer<QWidget> m_placeholder;
};
