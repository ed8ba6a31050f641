#pragma once
#include <QList>
#include <QPair>
#include <QSet>
#include <QStringList>
#include <QWidget>
#include <memory>

namespace Ui {
class JobControls;
}
class PrintDialogHost;

// The job settings every print dialog has, which the panels read from the
// host: copies, page range, paper size (the PPD's PageSize), orientation,
// pages per sheet (number-up) and cover page (job-sheets). A change is
// written to the host's print settings, the paper size through the host's
// approval so that conflict resolution applies, and announced by changed().
class JobControls : public QWidget {
    Q_OBJECT
public:
    explicit JobControls(QWidget* parent = nullptr);
    ~JobControls() override;

    // Shows the host's settings; coverPages are the job-sheets names offered.
    void setHost(PrintDialogHost* host, const QStringList& coverPages);
    // Reads the host's settings again (after conflict resolution, a panel or
    // a preset changed them). Writes nothing.
    void syncFromHost();
    // The settings the user changed here, as lp -o options, so that they can
    // be carried to another printer.
    QStringList chosenOptions() const;
    // Whether the settings can be printed: false, with the page range field
    // marked and focused and *error set, while the range typed is not valid.
    bool checkInput(QString* error);
    // Each control's label and shown value, for the dialog's summary.
    QList<QPair<QString, QString>> summary() const;

signals:
    // A job setting was written to the host; key is the option written.
    void changed(const QString& key);
    // The host refused a choice; message tells the user why.
    void refused(const QString& message);

protected:
    void changeEvent(QEvent* event) override;

private:
    void fillFixedChoices();
    void fillPaperSizes();
    void fillCoverPages();
    void writeSetting(const QString& key, const QString& value);
    void copiesChanged(int copies);
    void pageRangeModeChanged();
    void pageRangeEdited();
    bool pageRangeValid() const;  // all pages, or a valid range
    void markPageRange(bool invalid);
    void paperSizeChosen(int index);
    void orientationChosen(int index);
    void pagesPerSheetChosen(int index);
    void coverPageChosen(int index);
    static QString coverPageTitle(const QString& name);

    std::unique_ptr<Ui::JobControls> ui;
    PrintDialogHost* m_host = nullptr;
    QStringList m_coverPages;
    QSet<QString> m_chosen;  // keys the user set here
    bool m_syncing = false;
};
