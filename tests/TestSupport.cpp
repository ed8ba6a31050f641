#include "TestSupport.h"

#include "PDEBundle.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStackedWidget>
#include <QTabWidget>
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

QString fixtureText(const QString& name)
{
    QFile f(fixture(name));
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

std::unique_ptr<PrintDialogHost> openHost(const QString& ppdPath, const QString& options)
{
    QString error;
    auto host = PrintDialogHost::openPPDFile(ppdPath, &error);
    if (host && !options.isEmpty() && !host->applyOptions(options, &error))
        host.reset();
    if (!host)
        qWarning("cannot open %s with \"%s\": %s", qPrintable(ppdPath), qPrintable(options), qPrintable(error));
    return host;
}

QByteArray readFile(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QString writeFile(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    return f.open(QIODevice::WriteOnly | QIODevice::Truncate) && f.write(bytes) == bytes.size() ? path : QString();
}

std::shared_ptr<PDEBundle> bundleWithInfo(QTemporaryDir& dir, const QVariantMap& info)
{
    if (writeFile(dir.filePath(QStringLiteral("Info.json")), QJsonDocument(QJsonObject::fromVariantMap(info)).toJson()).isEmpty())
        return nullptr;
    // Resources and translations come from the built-in bundle.
    QDir(dir.path()).mkpath(QStringLiteral("translations"));
    for (const QString& lang : {QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("fr"), QStringLiteral("ja")})
        QFile::copy(QStringLiteral(":/bundle/translations/pde_%1.qm").arg(lang),
                    dir.filePath(QStringLiteral("translations/pde_%1.qm").arg(lang)));
    return PDEBundle::open(dir.path());
}

QString writePPD(QTemporaryDir& dir, const QString& name, const QString& body)
{
    const QString header = fixtureText(QStringLiteral("ppd-header.txt"));
    return header.isNull() ? QString() : writeFile(dir.filePath(name), (header + body + QLatin1Char('\n')).toUtf8());
}

QString writePPDFromFixture(QTemporaryDir& dir, const QString& name, const QString& bodyFixture)
{
    const QString body = fixtureText(bodyFixture);
    return body.isNull() ? QString() : writePPD(dir, name, body);
}

int runApp(const QStringList& args, QString* out, QString* err, const QStringList& extraEnv)
{
    QProcess p;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    for (const QString& kv : extraEnv) {
        if (kv.startsWith(QLatin1Char('-')))
            env.remove(kv.mid(1));
        else
            env.insert(kv.section(QLatin1Char('='), 0, 0), kv.section(QLatin1Char('='), 1));
    }
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

QStringList TestSupport::tabTexts(const QTabWidget* tabs)
{
    QStringList out;
    for (int i = 0; i < tabs->count(); ++i)
        out << tabs->tabText(i).remove(QLatin1Char('&'));
    return out;
}

QMap<QString, QString> TestSupport::optionMap(const PrintDialogHost::OptionList& options)
{
    QMap<QString, QString> out;
    for (const auto& [key, value] : options)
        out.insert(key, value);
    return out;
}

QPixmap TestSupport::shownPixmap(QLabel* label)
{
    for (QWidget* w = label; w->parentWidget(); w = w->parentWidget()) {
        if (auto* stack = qobject_cast<QStackedWidget*>(w->parentWidget()))
            if (auto* tabs = qobject_cast<QTabWidget*>(stack->parentWidget()))
                tabs->setCurrentWidget(w);
    }
    label->window()->show();
    return label->pixmap();
}
