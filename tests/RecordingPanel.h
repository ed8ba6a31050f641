#pragma once
#include "PDEPanel.h"

#include <QList>
#include <QPair>
#include <QSize>
#include <QStringList>
#include <QVariantMap>
#include <memory>
#include <optional>

class PDEPluginCallback;
class QWidget;

// A panel of the tests' own, for dialogs whose behaviour does not depend on
// which panels the plug-in offers: a real view with a label and a text field,
// answers taken from its fields, and every protocol call it gets written to
// a journal ("NAME:willShow", "NAME:shouldHide", ...) shared by the panels
// of a test.
class RecordingPanel : public PDEPanel {
public:
    RecordingPanel(const QString& name, QStringList* journal);
    ~RecordingPanel() override;

    QString panelKind() override;
    QString panelName() override { return m_name; }
    QWidget* panelView() override { return m_view.get(); }
    bool willShow() override;
    bool shouldHide() override;
    bool respondsToShouldPrint() const override { return printAnswer.has_value(); }
    bool shouldPrint() override;
    QVariantMap summaryInfo() override { return summary; }
    QStringList supportedPPDOptionKeys() override { return summary.keys(); }
    bool restoreValuesAndReturnError(QString* error) override;
    bool saveValuesAndReturnError(QString* error) override;
    void PPDOptionKeyValueDidChange(const QString& option, const QString& choice) override;
    bool shouldShowHelp() override;

    // Resizes the view and tells the dialog, as a panel whose content grew does.
    void resizeView(PDEPluginCallback* callback, const QSize& size);

    bool allowHide = true;             // shouldHide's answer
    std::optional<bool> printAnswer;   // shouldPrint's answer; none: the panel has no print checks
    QVariantMap summary;          // summaryInfo's answer
    int helpRequests = 0;
    QList<QPair<QString, QString>> changesReceived;  // PPDOptionKeyValueDidChange calls

private:
    void note(const QString& call);

    QString m_name;
    QStringList* m_journal;
    std::unique_ptr<QWidget> m_view;
};
