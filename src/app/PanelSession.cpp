#include "PanelSession.h"

#include "CupsDestList.h"
#include "MRPDE_MACFirstEventHandler.h"
#include "PDEAlerts.h"
#include "PDEBundle.h"
#include "PDEPanel.h"
#include "PanelDescriber.h"
#include "QueuePPDFetch.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <algorithm>
#include <cups/cups.h>
#include <cups/ppd.h>

namespace {
// The host of a queue ("name" or "name/instance"): its saved options from the
// destinations (fetched for that queue alone when they lack it), its PPD with one GET.
std::unique_ptr<PrintDialogHost> openQueue(const QString& queue, const QString& server, std::shared_ptr<const CupsDestList> dests,
                                           QString* error, QStringList* warnings)
{
    const QByteArray name = queue.section(QLatin1Char('/'), 0, 0).toUtf8();
    if (!dests || !dests->printers().find(name))
        dests = std::make_shared<const CupsDestList>(CupsPrinterList::one(server, queue));
    const CupsPrinterList::Printer* printer = dests->printers().find(name);
    if (!printer) {
        const QString unreachable = dests->printers().unreachableServer(server);
        *error = unreachable.isEmpty() ? QStringLiteral("printer %1: %2").arg(queue, dests->printers().errorString()) : unreachable;
        return nullptr;
    }
    // An instance the files do not name has the queue's own options.
    const cups_dest_t* dest = dests->find(name, queue.section(QLatin1Char('/'), 1).toUtf8());
    if (!dest)
        dest = dests->find(name, QByteArray());
    const QString ppd = QueuePPDFetch::fetch(*printer, queue, error);
    if (ppd.isEmpty())
        return nullptr;
    return PrintDialogHost::openQueue(queue, server, ppd, dest->num_options, dest->options, error, warnings);
}
}

QString PanelSession::samplePrinterPPD(QTemporaryDir& dir, const QString& name)
{
    std::shared_ptr<PDEBundle> bundle = PDEBundle::forProgram();
    const QString source = bundle ? bundle->pathForResource(name, QStringLiteral("ppd")) : QString();
    if (source.isEmpty() || !dir.isValid())
        return QString();
    const QString target = dir.filePath(name + QStringLiteral(".ppd"));
    QFile::remove(target);
    if (!QFile::copy(source, target))
        return QString();
    QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
    return target;
}

std::unique_ptr<PanelSession> PanelSession::open(const Options& options, QString* error)
{
    std::unique_ptr<PanelSession> s(new PanelSession);
    s->m_bundle = options.bundlePath.isEmpty() ? PDEBundle::forProgram() : PDEBundle::open(options.bundlePath, error);
    if (!s->m_bundle) {
        if (error && error->isEmpty())
            *error = QStringLiteral("the plug-in bundle cannot be read");
        return nullptr;
    }
    s->m_options = options;
    // Without a printer or a PPD file: the user's default destination, as
    // every dialog on the desktop opens; the sample printer when there is no queue.
    if (options.printer.isEmpty() && options.ppdPath.isEmpty()) {
        if (!s->m_options.destinations)
            s->m_options.destinations = std::make_shared<const CupsDestList>(options.server);
        s->m_options.printer = s->m_options.destinations->defaultDestination();
    }
    // Resolution reports are queued; collected here until the session is open.
    auto collect = [session = s.get()](const PrintDialogHost::OptionList& changes) {
        for (const auto& change : changes) {
            auto it = std::find_if(session->m_resolutionChanges.begin(), session->m_resolutionChanges.end(),
                                   [&](const auto& c) { return c.first == change.first; });
            if (it != session->m_resolutionChanges.end())
                it->second = change.second;
            else
                session->m_resolutionChanges.append(change);
        }
    };
    if (!s->m_options.printer.isEmpty()) {
        s->m_host = openQueue(s->m_options.printer, options.server, s->m_options.destinations, error, &s->m_openingWarnings);
    } else {
        QString ppd = options.ppdPath;
        if (ppd.isEmpty())
            ppd = s->m_options.ppdPath = samplePrinterPPD(s->m_tempDir);
        s->m_host = PrintDialogHost::openPPDFile(ppd, error);
    }
    if (!s->m_host)
        return nullptr;
    QObject::connect(s->m_host.get(), &PrintDialogHost::optionsChangedByResolution, s->m_host.get(), collect);
    for (const QString& o : options.optionStrings)
        if (!s->m_host->applyOptions(o, error))
            return nullptr;
    for (const QString& o : options.carriedOptions) {
        QString refused;
        const QByteArray key = o.section(QLatin1Char('='), 0, 0).toUtf8();
        if (!s->m_host->ppd() || !ppdFindOption(s->m_host->ppd(), key.constData()) || !s->m_host->applyOptions(o, &refused))
            s->m_notCarried.append(o);
    }

    s->m_entry = std::make_unique<MRPDE_MACFirstEventHandler>();
    s->m_entry->initWithBundle(s->m_bundle);
    s->m_panels = s->m_entry->PDEPanelsForType(QStringLiteral("com.apple.print.pde.PrintDialogType"), s->m_host.get());
    QList<PDEPanel*> raw;
    for (const auto& p : std::as_const(s->m_panels))
        raw.append(p.get());
    s->m_host->setPanels(raw);
    for (const auto& p : std::as_const(s->m_panels)) {
        QString ignored;
        p->restoreValuesAndReturnError(&ignored);
    }
    // Changes made by conflict resolution reach the panels before anyone looks.
    QCoreApplication::sendPostedEvents();
    QObject::disconnect(s->m_host.get(), &PrintDialogHost::optionsChangedByResolution, s->m_host.get(), nullptr);
    return s;
}

QStringList PanelSession::openingNotes() const
{
    QStringList notes;
    for (const QString& warning : m_openingWarnings)
        notes.append(QStringLiteral("a saved option is not used: ") + warning);
    if (!m_resolutionChanges.isEmpty())
        notes.append(QStringLiteral("to resolve a conflict, ") + m_host->describeChanges(m_resolutionChanges));
    return notes;
}

PanelSession::~PanelSession()
{
    if (m_host)
        m_host->setPanels({});
    m_panels.clear();
}

void PanelSession::addPanel(std::shared_ptr<PDEPanel> panel)
{
    if (!panel)
        return;
    m_panels.append(panel);
    QList<PDEPanel*> raw;
    for (const auto& p : std::as_const(m_panels))
        raw.append(p.get());
    m_host->setPanels(raw);
    QString ignored;
    panel->restoreValuesAndReturnError(&ignored);
}

bool PanelSession::prepareToPrint(QString* refusal, const std::function<void(PDEPanel*)>& asking)
{
    for (const auto& p : std::as_const(m_panels)) {
        PDEAlerts::clearLastAlertText();
        if (!p->respondsToShouldPrint())
            continue;
        if (asking)
            asking(p.get());
        if (!p->shouldPrint()) {
            if (refusal) {
                *refusal = PDEAlerts::lastAlertText();
                if (refusal->isEmpty())
                    *refusal = QStringLiteral("the %1 panel refused to print").arg(p->panelName());
            }
            return false;
        }
    }
    // A panel whose entries are not valid refuses to save: nothing is printed.
    for (const auto& p : std::as_const(m_panels)) {
        PDEAlerts::clearLastAlertText();
        if (asking)
            asking(p.get());
        QString error;
        if (!p->saveValuesAndReturnError(&error)) {
            if (refusal) {
                *refusal = PDEAlerts::lastAlertText();
                if (refusal->isEmpty())
                    *refusal = error.isEmpty() ? QStringLiteral("the settings of the %1 panel are not complete").arg(p->panelName()) : error;
            }
            return false;
        }
    }
    QCoreApplication::sendPostedEvents();
    return true;
}

QJsonObject PanelSession::describe()
{
    QJsonArray panels;
    // Each panel as the user sees it when it is shown.
    for (const auto& p : std::as_const(m_panels)) {
        p->willShow();
        panels.append(PanelDescriber::describe(*p));
        p->shouldHide();
    }
    return QJsonObject{{QStringLiteral("panels"), panels}};
}
