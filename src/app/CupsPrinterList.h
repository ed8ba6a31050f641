#pragma once
#include <QByteArray>
#include <QByteArrayList>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

// What one IPP request tells about the server's printers: every attribute
// the dialog uses, so that opening it asks the server once. The attributes
// libcups turns into destination options (cupsGetDests2) become options the
// same way; the cover pages, the URI, a class's members and the server's
// default bit are kept beside them.
class CupsPrinterList {
public:
    struct Printer {
        QByteArray name;
        QList<QPair<QByteArray, QByteArray>> options;  // as cupsGetDests2 gives them
        QStringList jobSheets;                          // job-sheets-supported
        QByteArray uri;                                 // printer-uri-supported
        QByteArrayList memberUris;                      // a class's members
        bool isServerDefault = false;                   // printer-type's default bit
    };

    // Every queue of the server: one CUPS-Get-Printers. server: "host:port",
    // or empty for the server already in use.
    static CupsPrinterList all(const QString& server);
    // One queue (an instance part is ignored): one Get-Printer-Attributes.
    static CupsPrinterList one(const QString& server, const QString& queue);

    // Whether the server answered; errorString() says why not (libcups' words).
    bool answered() const { return m_answered; }
    QString errorString() const { return m_error; }
    // When the server gave no answer because it cannot be reached, the
    // message that says so (PrintDialogHost::unreachableServer); else empty.
    QString unreachableServer(const QString& server) const;
    const QList<Printer>& printers() const { return m_printers; }
    // A printer by name, compared as CUPS does (without regard to case), or null.
    const Printer* find(const QByteArray& name) const;

private:
    static CupsPrinterList ask(struct _ipp_s* request);

    bool m_answered = false;
    QString m_error;
    QList<Printer> m_printers;
};
