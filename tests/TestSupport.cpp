#include "TestSupport.h"

#include "PDEBundle.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

namespace TestSupport {

QString fixture(const QString& name)
{
    return QDir(QStringLiteral(PDE_FIXTURES_DIR)).filePath(name);
}

QString samplePPD(const QString& name)
{
    return QDir(QStringLiteral(PDE_SOURCE_BUNDLE_DIR)).filePath(QStringLiteral("printers/") + name + QStringLiteral(".ppd"));
}

std::unique_ptr<PrintDialogHost> openHost(const QString& ppdPath)
{
    QString error;
    auto host = PrintDialogHost::openPPDFile(ppdPath, &error);
    if (!host)
        qWarning("cannot open %s: %s", qPrintable(ppdPath), qPrintable(error));
    return host;
}

std::shared_ptr<PDEBundle> bundleWithInfo(QTemporaryDir& dir, const QVariantMap& info)
{
    QFile f(dir.filePath(QStringLiteral("Info.json")));
    if (!f.open(QIODevice::WriteOnly))
        return nullptr;
    f.write(QJsonDocument(QJsonObject::fromVariantMap(info)).toJson());
    f.close();
    // Resources and translations come from the built-in bundle.
    QDir(dir.path()).mkpath(QStringLiteral("translations"));
    for (const QString& lang : {QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("fr"), QStringLiteral("ja")})
        QFile::copy(QStringLiteral(":/bundle/translations/pde_%1.qm").arg(lang),
                    dir.filePath(QStringLiteral("translations/pde_%1.qm").arg(lang)));
    return PDEBundle::open(dir.path());
}

int runApp(const QStringList& args, QString* out, QString* err, const QStringList& extraEnv)
{
    QProcess p;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    for (const QString& kv : extraEnv)
        env.insert(kv.section(QLatin1Char('='), 0, 0), kv.section(QLatin1Char('='), 1));
    p.setProcessEnvironment(env);
    p.start(QStringLiteral(PDE_APP_BINARY), args);
    if (!p.waitForFinished(60000)) {
        p.kill();
        return -1;
    }
    if (out)
        *out = QString::fromUtf8(p.readAllStandardOutput());
    if (err)
        *err = QString::fromUtf8(p.readAllStandardError());
    return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
}

}
