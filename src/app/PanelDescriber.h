#pragma once
#include <QJsonObject>

class PDEPanel;
class QWidget;

// Describes a panel as JSON: kind, name, supported keys, summary and every
// named control in its view with its type, state and value.
class PanelDescriber {
public:
    static QJsonObject describe(PDEPanel& panel);
    static QJsonObject describeControls(QWidget* view);
    // One control, or an empty object for a widget that is not a control.
    static QJsonObject describeControl(QWidget* widget, QWidget* view);
};
