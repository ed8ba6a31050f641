#include "PDEBundle.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QTranslator>

static void initBundleResources()
{
    Q_INIT_RESOURCE(bundle);
}

std::shared_ptr<PDEBundle> PDEBundle::open(const QString& path, QString* error)
{
    QFile info(QDir(path).filePath(QStringLiteral("Info.json")));
    if (!info.open(QIODevice::ReadOnly)) {
        if (error)
            *error = QStringLiteral("cannot read %1: %2").arg(info.fileName(), info.errorString());
        return nullptr;
    }
    QJsonParseError parseError;
    const QJsonDocument doc = QJsonDocument::fromJson(info.readAll(), &parseError);
    if (!doc.isObject()) {
        if (error)
            *error = QStringLiteral("%1 is not a JSON object: %2").arg(info.fileName(), parseError.errorString());
        return nullptr;
    }
    std::shared_ptr<PDEBundle> bundle(new PDEBundle);
    bundle->m_path = path;
    bundle->m_info = doc.object().toVariantMap();
    bundle->setLanguage(QString());
    return bundle;
}

std::shared_ptr<PDEBundle> PDEBundle::embedded()
{
    initBundleResources();
    return open(QStringLiteral(":/bundle"));
}

std::shared_ptr<PDEBundle> PDEBundle::forProgram()
{
    if (QCoreApplication::instance()) {
        const QString installed = QDir::cleanPath(QDir(QCoreApplication::applicationDirPath())
                                                      .filePath(QStringLiteral(PRINT_PANELS_BUNDLE_FROM_BIN)));
        if (QFileInfo::exists(QDir(installed).filePath(QStringLiteral("Info.json"))))
            return open(installed);
    }
    return embedded();
}

PDEBundle::~PDEBundle() = default;

QString PDEBundle::bundleIdentifier() const
{
    return m_info.value(QStringLiteral("CFBundleIdentifier")).toString();
}

QString PDEBundle::pathForResource(const QString& name, const QString& type) const
{
    QString folder, suffix = type;
    if (type == QLatin1String("plist") || type == QLatin1String("json")) {
        folder = QStringLiteral("data");
        suffix = QStringLiteral("json");
    } else if (type == QLatin1String("png") || type == QLatin1String("gif")) {
        // Every picture is drawn as a PNG, whatever type its caller names.
        folder = QStringLiteral("images");
        suffix = QStringLiteral("png");
    } else if (type == QLatin1String("html")) {
        folder = QStringLiteral("help");
    } else if (type == QLatin1String("ppd")) {
        folder = QStringLiteral("printers");
    }
    const QString file = QDir(m_path).filePath(folder + QLatin1Char('/') + name + QLatin1Char('.') + suffix);
    return QFileInfo::exists(file) ? file : QString();
}

void PDEBundle::setLanguage(const QString& language)
{
    m_translator = std::make_unique<QTranslator>();
    const QString dir = QDir(m_path).filePath(QStringLiteral("translations"));
    if (!language.isEmpty()) {
        m_language = m_translator->load(QStringLiteral("pde_") + language, dir) ? language : QStringLiteral("en");
        return;
    }
    // The user's languages in order of preference; English when none matches.
    if (m_translator->load(QLocale(), QStringLiteral("pde"), QStringLiteral("_"), dir)) {
        m_language = m_translator->language().section(QLatin1Char('_'), 0, 0);
    } else {
        // The texts are keys: without the English table a user would read them.
        m_language = QStringLiteral("en");
        m_translator->load(QStringLiteral("pde_en"), dir);
    }
}

QString PDEBundle::localizedString(const QString& key, const QString& table) const
{
    if (key.isEmpty())
        return key;
    const QString t = m_translator ? m_translator->translate(table.toUtf8().constData(), key.toUtf8().constData())
                                   : QString();
    return t.isEmpty() ? key : t;
}
