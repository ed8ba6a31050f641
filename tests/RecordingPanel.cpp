#include "RecordingPanel.h"

#include "PDEPluginCallback.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QWidget>

RecordingPanel::RecordingPanel(const QString& name, QStringList* journal)
    : m_name(name), m_journal(journal), m_view(std::make_unique<QWidget>())
{
    m_view->setObjectName(QStringLiteral("recordingView_") + name);
    auto* layout = new QVBoxLayout(m_view.get());
    auto* label = new QLabel(QStringLiteral("Settings of %1").arg(name), m_view.get());
    label->setObjectName(QStringLiteral("recordingLabel"));
    auto* field = new QLineEdit(m_view.get());
    field->setObjectName(QStringLiteral("recordingField"));
    layout->addWidget(label);
    layout->addWidget(field);
    layout->addStretch();
}

RecordingPanel::~RecordingPanel() = default;

void RecordingPanel::note(const QString& call)
{
    if (m_journal)
        m_journal->append(m_name + QLatin1Char(':') + call);
}

QString RecordingPanel::panelKind()
{
    return QStringLiteral("org.printpanels.tests.") + m_name;
}

bool RecordingPanel::willShow()
{
    note(QStringLiteral("willShow"));
    return true;
}

bool RecordingPanel::shouldHide()
{
    note(QStringLiteral("shouldHide"));
    return allowHide;
}

bool RecordingPanel::shouldPrint()
{
    note(QStringLiteral("shouldPrint"));
    return printAnswer.value_or(true);
}

bool RecordingPanel::restoreValuesAndReturnError(QString*)
{
    note(QStringLiteral("restore"));
    return true;
}

bool RecordingPanel::saveValuesAndReturnError(QString*)
{
    note(QStringLiteral("save"));
    return true;
}

void RecordingPanel::PPDOptionKeyValueDidChange(const QString& option, const QString& choice)
{
    changesReceived.append({option, choice});
}

bool RecordingPanel::shouldShowHelp()
{
    ++helpRequests;
    note(QStringLiteral("help"));
    return true;
}

void RecordingPanel::resizeView(PDEPluginCallback* callback, const QSize& size)
{
    m_view->resize(size);
    callback->panelViewDidResize();
}
