// A PPD's text through the whole opening: libcups reads it, the host marks
// and resolves its defaults, the plug-in makes the model and every panel,
// each panel restores, shows and saves, and the job's options are listed.
#include "FuzzSupport.h"
#include "PDEPanel.h"
#include "PanelSession.h"

#include <QFile>
#include <QTemporaryDir>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzSupport::start();
    static QTemporaryDir dir;
    PanelSession::Options options;
    options.ppdPath = dir.filePath(QStringLiteral("input.ppd"));
    QFile file(options.ppdPath);
    FuzzSupport::check(file.open(QIODevice::WriteOnly | QIODevice::Truncate), "temporary PPD");
    file.write(reinterpret_cast<const char*>(data), qint64(size));
    file.close();

    QString error;
    auto session = PanelSession::open(options, &error);
    if (!session) {
        FuzzSupport::check(!error.isEmpty(), "a PPD refused without a reason");
        return 0;
    }
    for (const auto& panel : session->panels()) {
        panel->willShow();
        panel->summaryInfo();
        panel->saveValuesAndReturnError(&error);
    }
    session->host().jobOptions();
    session->describe();
    return 0;
}
