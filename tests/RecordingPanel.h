#pragma once
#include "PDEPanel.h"

#include <QLabel>
#include <QList>
#include <QPair>
#include <functional>
#include <memory>

// A panel of the tests' own, for dialogs whose behaviour does not depend on
// which panels the plug-in offers: a real view (in a parent of the panel's,
// as a panel's view is), answers set by the test, and every protocol call it
// gets written to a journal ("NAME:willShow", "NAME:shouldHide", ...) shared
// by the panels of a test.
class RecordingPanel : public PDEPanel {
public:
    RecordingPanel(const QString& name, QStringList* journal)
        : m_name(name), m_journal(journal), m_viewParent(std::make_unique<QWidget>()),
          m_view(new QLabel(QStringLiteral("Settings of ") + name, m_viewParent.get()))
    {
    }

    QString panelKind() override { return QStringLiteral("org.printpanels.tests.") + m_name; }
    QString panelName() override { return m_name; }
    QWidget* panelView() override { return m_view; }
    QWidget* viewParent() const { return m_viewParent.get(); }  // where the view belongs when not shown
    bool willShow() override { return note("willShow"); }
    bool shouldHide() override { return note("shouldHide") && allowHide; }
    bool respondsToShouldPrint() const override { return bool(printCheck); }
    bool shouldPrint() override { return note("shouldPrint") && (!printCheck || printCheck()); }
    QVariantMap summaryInfo() override { return summary; }
    QStringList supportedPPDOptionKeys() override { return {}; }
    bool restoreValuesAndReturnError(QString*) override { return note("restore"); }
    bool saveValuesAndReturnError(QString*) override { return note("save"); }
    void PPDOptionKeyValueDidChange(const QString& option, const QString& choice) override
    {
        changesReceived.append({option, choice});
        if (forward)
            forward(option, choice);
    }
    bool shouldShowHelp() override { return note("help"); }

    bool allowHide = true;            // shouldHide's answer
    std::function<bool()> printCheck; // shouldPrint's own checks; none: the panel has no print checks
    QVariantMap summary;              // summaryInfo's answer
    QList<QPair<QString, QString>> changesReceived;
    std::function<void(const QString&, const QString&)> forward;  // e.g. to a model, as a panel hands changes on

private:
    bool note(const char* call)
    {
        m_journal->append(m_name + QLatin1Char(':') + QLatin1String(call));
        return true;
    }

    QString m_name;
    QStringList* m_journal;
    std::unique_ptr<QWidget> m_viewParent;
    QLabel* m_view;
};
