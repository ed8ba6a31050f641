#pragma once
#include <QString>
#include <QStringList>
#include <functional>

// Where the plug-in's diagnostic lines go: the system log (syslog), and
// optionally stderr. Tests install a capture to read the lines back.
class PDELogSink {
public:
    static PDELogSink& instance();

    void write(const QString& line);

    // Every line also goes to the capture while one is installed.
    void setCapture(std::function<void(const QString&)> capture);
    void setEchoToStderr(bool on) { m_echo = on; }

private:
    PDELogSink();
    std::function<void(const QString&)> m_capture;
    bool m_echo = false;
};

// Collects log lines for as long as it lives (tests).
class PDELogCapture {
public:
    PDELogCapture();
    ~PDELogCapture();
    const QStringList& lines() const { return m_lines; }
    bool contains(const QString& text) const;
    int count(const QString& text) const;
    void clear() { m_lines.clear(); }

private:
    QStringList m_lines;
};
