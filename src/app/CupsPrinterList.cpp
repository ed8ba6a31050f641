#include "CupsPrinterList.h"

#include "PrintDialogHost.h"

#include <cups/cups.h>
#include <iterator>

namespace {
// What libcups asks for its destinations, and what the dialog needs beside it.
const char* const kRequested[] = {
    "auth-info-required", "device-uri", "job-sheets-default", "marker-change-time", "marker-colors",
    "marker-high-levels", "marker-levels", "marker-low-levels", "marker-message", "marker-names", "marker-types",
    "printer-commands", "printer-defaults", "printer-info", "printer-is-accepting-jobs", "printer-is-shared",
    "printer-is-temporary", "printer-location", "printer-make-and-model", "printer-mandatory-job-attributes",
    "printer-name", "printer-state", "printer-state-change-time", "printer-state-reasons", "printer-type",
    "printer-uri-supported", "job-sheets-supported", "member-uris"};

constexpr int kServerDefaultBit = 0x20000;  // CUPS_PRINTER_DEFAULT

// An attribute's values as one option value, written as libcups writes them
// into a destination: one text value as it is, numbers and several values
// joined by commas, blanks, quotes and backslashes of texts escaped.
QByteArray optionValue(ipp_attribute_t* a)
{
    const ipp_tag_t tag = ippGetValueTag(a);
    const bool numeric = tag == IPP_TAG_INTEGER || tag == IPP_TAG_ENUM || tag == IPP_TAG_BOOLEAN || tag == IPP_TAG_RANGE;
    if (ippGetCount(a) == 1 && !numeric)
        return QByteArray(ippGetString(a, 0, nullptr));
    QByteArrayList values;
    for (int i = 0; i < ippGetCount(a); ++i) {
        if (tag == IPP_TAG_INTEGER || tag == IPP_TAG_ENUM) {
            values.append(QByteArray::number(ippGetInteger(a, i)));
        } else if (tag == IPP_TAG_BOOLEAN) {
            values.append(ippGetBoolean(a, i) ? "true" : "false");
        } else if (tag == IPP_TAG_RANGE) {
            int upper = 0;
            const int lower = ippGetRange(a, i, &upper);
            values.append(lower == upper ? QByteArray::number(lower) : QByteArray::number(lower) + '-' + QByteArray::number(upper));
        } else {
            QByteArray text;
            for (const char c : QByteArray(ippGetString(a, i, nullptr))) {
                if (QByteArrayView(" \t\n\\'\"").contains(c))
                    text += '\\';
                text += c;
            }
            values.append(text);
        }
    }
    return values.join(',');
}

// The option libcups makes of an attribute ("sides" of sides-default), or empty.
QByteArray optionName(ipp_attribute_t* a)
{
    const QByteArray name = ippGetName(a);
    if (PrintDialogHost::isPrinterAttribute(QString::fromLatin1(name)))
        return name;
    const ipp_tag_t tag = ippGetValueTag(a);
    const bool plain = tag == IPP_TAG_BOOLEAN || tag == IPP_TAG_ENUM || tag == IPP_TAG_INTEGER || tag == IPP_TAG_KEYWORD
                       || tag == IPP_TAG_NAME || tag == IPP_TAG_RANGE;
    const qsizetype suffix = name.indexOf("-default");
    if (!plain || suffix < 0 || name.startsWith("notify-") || name.startsWith("print-quality-"))
        return QByteArray();
    return name.left(suffix);
}

void addOption(CupsPrinterList::Printer& p, const QByteArray& name, const QByteArray& value)
{
    for (auto& option : p.options) {
        if (qstricmp(option.first.constData(), name.constData()) == 0) {
            option.second = value;
            return;
        }
    }
    p.options.append({name, value});
}
}

const CupsPrinterList::Printer* CupsPrinterList::find(const QByteArray& name) const
{
    for (const Printer& p : m_printers)
        if (qstricmp(p.name.constData(), name.constData()) == 0)
            return &p;
    return nullptr;
}

CupsPrinterList CupsPrinterList::all(const QString& server)
{
    if (!server.isEmpty())
        cupsSetServer(server.toUtf8().constData());
    return ask(ippNewRequest(IPP_OP_CUPS_GET_PRINTERS));
}

CupsPrinterList CupsPrinterList::one(const QString& server, const QString& queue)
{
    if (!server.isEmpty())
        cupsSetServer(server.toUtf8().constData());
    char uri[HTTP_MAX_URI];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", ippPort(), "/printers/%s",
                     queue.section(QLatin1Char('/'), 0, 0).toUtf8().constData());
    ipp_t* request = ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
    return ask(request);
}

CupsPrinterList CupsPrinterList::ask(ipp_t* request)
{
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", int(std::size(kRequested)), nullptr,
                  kRequested);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    ipp_t* response = cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/");
    CupsPrinterList list;
    // A server without queues answers CUPS-Get-Printers with "not found".
    const ipp_status_t status = cupsLastError();
    list.m_answered = response && (status <= IPP_STATUS_OK_EVENTS_COMPLETE || status == IPP_STATUS_ERROR_NOT_FOUND);
    list.m_error = QString::fromUtf8(cupsLastErrorString());
    Printer printer;
    auto finish = [&] {
        if (!printer.name.isEmpty())
            list.m_printers.append(printer);
        printer = Printer();
    };
    for (ipp_attribute_t* a = ippFirstAttribute(response); a; a = ippNextAttribute(response)) {
        if (ippGetGroupTag(a) != IPP_TAG_PRINTER || !ippGetName(a)) {
            finish();
            continue;
        }
        const QByteArray name = ippGetName(a);
        if (name == "printer-name" && ippGetValueTag(a) == IPP_TAG_NAME)
            printer.name = ippGetString(a, 0, nullptr);
        else if (name == "job-sheets-supported")
            for (int i = 0; i < ippGetCount(a); ++i)
                printer.jobSheets.append(QString::fromUtf8(ippGetString(a, i, nullptr)));
        else if (name == "member-uris")
            for (int i = 0; i < ippGetCount(a); ++i)
                printer.memberUris.append(ippGetString(a, i, nullptr));
        if (name == "printer-uri-supported")
            printer.uri = ippGetString(a, 0, nullptr);
        if (name == "printer-type")
            printer.isServerDefault = ippGetInteger(a, 0) & kServerDefaultBit;
        const QByteArray option = optionName(a);
        if (!option.isEmpty())
            addOption(printer, option, optionValue(a));
    }
    finish();
    ippDelete(response);
    return list;
}

QString CupsPrinterList::unreachableServer(const QString& server) const
{
    return m_answered ? QString() : PrintDialogHost::unreachableServer(server);
}
