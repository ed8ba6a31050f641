#include "PDELogSink.h"

#include <cstdio>
#include <syslog.h>

PDELogSink& PDELogSink::instance()
{
    static PDELogSink sink;
    return sink;
}

PDELogSink::PDELogSink()
{
    m_echo = qEnvironmentVariableIsSet("PRINT_PANELS_LOG_STDERR");
}

void PDELogSink::write(const QString& line)
{
    const QByteArray utf8 = line.toUtf8();
    syslog(LOG_USER | LOG_DEBUG, "%s", utf8.constData());
    if (m_echo)
        std::fprintf(stderr, "%s\n", utf8.constData());
    if (m_capture)
        m_capture(line);
}

void PDELogSink::setCapture(std::function<void(const QString&)> capture)
{
    m_capture = std::move(capture);
}

PDELogCapture::PDELogCapture()
{
    PDELogSink::instance().setCapture([this](const QString& l) { m_lines.append(l); });
}

PDELogCapture::~PDELogCapture()
{
    PDELogSink::instance().setCapture(nullptr);
}

bool PDELogCapture::contains(const QString& text) const
{
    return m_lines.contains(text);
}

int PDELogCapture::count(const QString& text) const
{
    return int(m_lines.count(text));
}
