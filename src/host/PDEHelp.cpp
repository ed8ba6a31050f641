#include "PDEHelp.h"

#include "PDEBundle.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

static std::function<bool(const QString&)>& opener()
{
    static std::function<bool(const QString&)> f;
    return f;
}

bool PDEHelp::registerHelpBook(const PDEBundle& bundle)
{
    return QFileInfo(QDir(bundle.bundlePath()).filePath(QStringLiteral("help"))).isDir();
}

bool PDEHelp::gotoPage(const PDEBundle& bundle, const QString& page)
{
    const QString name = page.section(QLatin1Char('.'), 0, -2, QString::SectionSkipEmpty);
    QString path = bundle.pathForResource(name.isEmpty() ? page : name, QStringLiteral("html"));
    if (path.isEmpty())
        return false;
    if (opener())
        return opener()(path);
    // Pages inside the program's resources are copied out so a browser can read them.
    if (path.startsWith(QLatin1Char(':'))) {
        const QString dir = QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + QStringLiteral("/help");
        QDir().mkpath(dir);
        const QString out = dir + QLatin1Char('/') + QFileInfo(path).fileName();
        QFile::remove(out);
        if (!QFile::copy(path, out))
            return false;
        path = out;
    }
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

void PDEHelp::setOpener(std::function<bool(const QString&)> f)
{
    opener() = std::move(f);
}
