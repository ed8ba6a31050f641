#pragma once
#include <QString>
#include <QStringList>
#include <QVariantMap>

class QWidget;

// The panel protocol: what the print dialog asks of every panel a plug-in
// hands it.
class PDEPanel {
public:
    virtual ~PDEPanel() = default;

    virtual QString panelKind() = 0;
    virtual QString panelName() = 0;
    virtual QWidget* panelView() = 0;
    virtual bool willShow() = 0;
    virtual bool shouldHide() = 0;
    // Panels that have no print checks answer false from respondsToShouldPrint().
    virtual bool respondsToShouldPrint() const { return false; }
    virtual bool shouldPrint() { return true; }
    virtual QVariantMap summaryInfo() = 0;
    virtual QStringList supportedPPDOptionKeys() = 0;
    virtual bool restoreValuesAndReturnError(QString* error) = 0;
    virtual bool saveValuesAndReturnError(QString* error) = 0;
    virtual void PPDOptionKeyValueDidChange(const QString& option, const QString& choice) = 0;
    virtual bool shouldShowHelp() = 0;
};
