#pragma once
#include "MRPDE_MACChangeHandlerModel.h"
#include "PDEBundle.h"
#include "PDEPluginCallback.h"
#include "PrintDialogHost.h"

#include <QLabel>
#include <QPixmap>
#include <QSet>
#include <QString>
#include <QTemporaryDir>
#include <QTest>
#include <QVariantMap>
#include <memory>

class PDEBundle;
class QTabWidget;

namespace TestSupport {
// A fixture PPD by file name, or a sample printer from the bundle.
QString fixture(const QString& name);
QString samplePPD(const QString& name = QStringLiteral("velmora-c5500"));
// A fixture file's text; null when it cannot be read.
QString fixtureText(const QString& name);
// A real host on a PPD file with the -o options applied; null (and a
// warning) when the PPD cannot be opened or the options are refused.
std::unique_ptr<PrintDialogHost> openHost(const QString& ppdPath, const QString& options = {});
// A file's bytes; empty when it cannot be read.
QByteArray readFile(const QString& path);
// Writes bytes to a file; answers its path, empty when it cannot be written.
QString writeFile(const QString& path, const QByteArray& bytes);
// A bundle in a temporary folder with the given Info keys, sharing the
// built-in bundle's other resources.
std::shared_ptr<PDEBundle> bundleWithInfo(QTemporaryDir& dir, const QVariantMap& info);
// Writes a PPD into dir: a minimal valid header and Letter page size, then
// body (options, attributes, constraints). Answers the file's path.
QString writePPD(QTemporaryDir& dir, const QString& name, const QString& body);
// The same, with the body read from a fixture file.
QString writePPDFromFixture(QTemporaryDir& dir, const QString& name, const QString& bodyFixture);
// Runs print-panels; answers the exit status and fills stdout/stderr.
// extraEnv: "NAME=value" sets, "-NAME" removes a variable.
int runApp(const QStringList& args, QString* out, QString* err, const QStringList& extraEnv = {});
// The texts of a tab widget's tabs, without mnemonic marks.
QStringList tabTexts(const QTabWidget* tabs);
// Options by key, the last value of a key kept.
QMap<QString, QString> optionMap(const PrintDialogHost::OptionList& options);
// A picture label's pixmap as the user sees it: the tabs that hold the label
// brought to the front and its window shown (pictures load when shown).
QPixmap shownPixmap(QLabel* label);

// One model-driven panel opened the way the dialog opens it: the PPD with
// the -o options applied, the model and panel made in the language given,
// its values restored, its view shown. Null when any step fails.
template <class EH, class Controller>
struct OpenedPanel {
    std::unique_ptr<PrintDialogHost> host;
    std::shared_ptr<MRPDE_MACChangeHandlerModel> model;
    std::shared_ptr<EH> eh;
    Controller* controller = nullptr;
    decltype(std::declval<Controller&>().ui()) ui = nullptr;

    static std::unique_ptr<OpenedPanel> open(const QString& ppd, const QString& options = {}, const QString& language = QStringLiteral("en"))
    {
        auto p = std::make_unique<OpenedPanel>();
        if (!(p->host = openHost(ppd, options)))
            return nullptr;
        auto bundle = PDEBundle::embedded();
        bundle->setLanguage(language);
        p->model = std::make_shared<MRPDE_MACChangeHandlerModel>(bundle, p->host.get());
        if (!(p->eh = EH::create(bundle, p->model)))
            return nullptr;
        p->controller = static_cast<Controller*>(p->eh->controller());
        p->ui = p->controller->ui();
        p->host->setPanels({p->eh.get()});
        p->eh->restoreValuesAndReturnError(nullptr);
        p->eh->panelView()->show();
        return p;
    }
    // The keyword of the feature's current value; empty without one.
    QString value(const QString& key) const
    {
        PDEFeaturePtr f = model->featureWithKey(key);
        return f && f->currentValue() ? f->currentValue()->keyword() : QString();
    }
};
}

// A callback that forwards to a real host but can leave operations out, as
// a print dialog that offers less would.
class PartialCallback : public PDEPluginCallback {
public:
    PartialCallback(PrintDialogHost* host, QSet<Operation> missing = {}) : m_host(host), m_missing(std::move(missing)) {}

    bool respondsToOperation(Operation op) const override { return !m_missing.contains(op) && m_host->respondsToOperation(op); }
    PMPrintSession* printSession() override { return m_host->printSession(); }
    PMPrintSettings* printSettings() override { return m_host->printSettings(); }
    PMPageFormat* pageFormat() override { return m_host->pageFormat(); }
    PMPrinter* pmPrinter() override { return m_host->pmPrinter(); }
    ppd_file_s* ppdFile() override { return m_host->ppdFile(); }
    bool willChangePPDOptionKeyValue(const QString& o, const QString& c) override
    {
        ++approvals;
        return m_host->willChangePPDOptionKeyValue(o, c);
    }
    void panelViewDidResize() override { ++resizes; }

    int approvals = 0;
    int resizes = 0;

private:
    PrintDialogHost* m_host;
    QSet<Operation> m_missing;
};

// The current data row's value in a column, for a column read once.
template <class T>
T cell(const char* column)
{
    return *static_cast<T*>(QTest::qData(column, qMetaTypeId<T>()));
}
