#include "PDEAlerts.h"

#include <QApplication>
#include <cstdio>

namespace {
PDEAlerts::Handler& handler()
{
    static PDEAlerts::Handler h;
    return h;
}
QString& lastText()
{
    static QString t;
    return t;
}
}

int PDEAlerts::runAlertPanel(const Alert& alert)
{
    lastText() = alert.message.isEmpty() ? alert.title : alert.title + QStringLiteral(": ") + alert.message;
    if (handler())
        return handler()(alert);
    std::fprintf(stderr, "%s\n", lastText().toUtf8().constData());
    return DefaultButton;
}

void PDEAlerts::beep()
{
    if (qobject_cast<QApplication*>(QCoreApplication::instance()))
        QApplication::beep();
}

void PDEAlerts::setHandler(Handler h)
{
    handler() = std::move(h);
}

void PDEAlerts::clearLastAlertText()
{
    lastText().clear();
}

bool PDEAlerts::showsWindows()
{
    if (!handler() || !qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return false;
    const QString platform = QGuiApplication::platformName();
    return !platform.startsWith(QLatin1String("offscreen")) && !platform.startsWith(QLatin1String("minimal"));
}

QString PDEAlerts::lastAlertText()
{
    return lastText();
}
