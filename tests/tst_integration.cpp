// The panels inside another Qt application's QPrintDialog: the tabs they add,
// what they are told as the tabs are shown and left, the options the job
// carries, the example program, and a job sent to a private cupsd.
#include "PresetStore.h"
#include "PrintPanelsIntegration.h"
#include "PrivateCupsServer.h"
#include "RecordingPanel.h"
#include "TestSupport.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <cups/cups.h>
#include <QProcess>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

namespace {
// The tab widget of the dialog's options: the one holding the panels' pages.
QTabWidget* optionTabs(QPrintDialog& dialog)
{
    for (QTabWidget* tabs : dialog.findChildren<QTabWidget*>())
        for (int i = 0; i < tabs->count(); ++i)
            if (tabs->widget(i)->objectName() == QLatin1String("printPanelsTab"))
                return tabs;
    return nullptr;
}

QStringList tabTexts(QTabWidget* tabs)
{
    QStringList out;
    for (int i = 0; tabs && i < tabs->count(); ++i)
        out << tabs->tabText(i);
    return out;
}

QString option(const PrintPanelsIntegration::OptionList& options, const QString& key)
{
    for (const auto& [k, v] : options)
        if (k == key)
            return v;
    return QString();
}
}

class IntegrationTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void cleanup();
    void tabs();
    void tabsTellThePanels();
    void viewsStayWithThePanels();
    void jobOptions_data();
    void jobOptions();
    void refusal();
    void examplePrintsItsTabs();
    void submitsToCups();

private:
    QTemporaryDir m_dir;
    QString m_noDuplexPPD;
    QStringList m_journal;
    std::unique_ptr<PrivateCupsServer> m_cups;
    QString m_cupsSkipped;
};

void IntegrationTest::initTestCase()
{
    // libcups reads where its server is at its first call: the private
    // server (where one can run) comes before anything else.
    QString why;
    if (PrivateCupsServer::canRun(&why)) {
        m_cups = std::make_unique<PrivateCupsServer>();
        QString error;
        QVERIFY2(m_cups->start(&error), qPrintable(error));
        m_cups->applyClientEnvironment();
        // Qt's own printer list and the job both ask the default server.
        cupsSetServer(m_cups->address().toUtf8().constData());
        QVERIFY2(m_cups->addQueue(QStringLiteral("panels"), TestSupport::samplePPD(), &error), qPrintable(error));
    } else {
        m_cupsSkipped = why;
    }
    m_noDuplexPPD = TestSupport::writePPD(m_dir, QStringLiteral("plain.ppd"), QString());
    QVERIFY(!m_noDuplexPPD.isEmpty());
}

void IntegrationTest::cleanupTestCase()
{
    if (m_cups)
        m_cups->stop();
}

void IntegrationTest::cleanup()
{
    m_journal.clear();
}

void IntegrationTest::tabs()
{
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    QPrintDialog dialog(&printer);
    PrintPanelsIntegration panels;
    QVERIFY(!optionTabs(dialog));
    QVERIFY2(panels.openPrinter(&printer, TestSupport::samplePPD()), qPrintable(panels.errorString()));
    auto a = std::make_shared<RecordingPanel>(QStringLiteral("A"), &m_journal);
    panels.addPanel(a);
    QVERIFY2(panels.addPanelsToDialog(&dialog, &printer), qPrintable(panels.errorString()));

    QTabWidget* tabs = optionTabs(dialog);
    QVERIFY(tabs);
    const QStringList names = panels.panelNames();
    QCOMPARE(names.last(), QStringLiteral("A"));
    // The dialog's own tabs first, then one per panel in the plug-in's order.
    const QStringList texts = tabTexts(tabs);
    QVERIFY(texts.size() > names.size());
    QCOMPARE(texts.mid(texts.size() - names.size()), names);
    QVERIFY(tabs->widget(tabs->count() - 1)->isAncestorOf(a->panelView()));
    // Adding again replaces the panels' tabs instead of repeating them.
    QVERIFY(panels.addPanelsToDialog(&dialog, &printer));
    QCOMPARE(tabTexts(optionTabs(dialog)), texts);
}

void IntegrationTest::tabsTellThePanels()
{
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    QPrintDialog dialog(&printer);
    PrintPanelsIntegration panels;
    QVERIFY(panels.openPrinter(&printer, m_noDuplexPPD));
    auto a = std::make_shared<RecordingPanel>(QStringLiteral("A"), &m_journal);
    auto b = std::make_shared<RecordingPanel>(QStringLiteral("B"), &m_journal);
    panels.addPanel(a);
    panels.addPanel(b);
    QVERIFY(panels.addPanelsToDialog(&dialog, &printer));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    m_journal.clear();

    // The options are behind the dialog's "Options" button.
    QTabWidget* tabs = optionTabs(dialog);
    if (!tabs->isVisible()) {
        for (QAbstractButton* button : dialog.findChildren<QAbstractButton*>())
            if (button->isVisible() && button->text().remove(QLatin1Char('&')).startsWith(QStringLiteral("Options")))
                QTest::mouseClick(button, Qt::LeftButton);
    }
    QTRY_VERIFY(tabs->isVisible());
    QTabBar* bar = tabs->tabBar();
    const int ia = tabs->indexOf(tabs->widget(tabs->count() - 2));
    const int ib = tabs->count() - 1;
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(ia).center());
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(ib).center());
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(0).center());
    QCOMPARE(m_journal, QStringList({"A:willShow", "A:shouldHide", "B:willShow", "B:shouldHide"}));
    dialog.reject();
}

void IntegrationTest::viewsStayWithThePanels()
{
    auto a = std::make_shared<RecordingPanel>(QStringLiteral("A"), &m_journal);
    QPointer<QWidget> view = a->panelView();
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    {
        PrintPanelsIntegration panels;
        QVERIFY(panels.openPrinter(&printer, m_noDuplexPPD));
        panels.addPanel(a);
        auto dialog = std::make_unique<QPrintDialog>(&printer);
        QVERIFY(panels.addPanelsToDialog(dialog.get(), &printer));
        QVERIFY(dialog->isAncestorOf(view));
        // The dialog goes first: the panel keeps its view.
        dialog.reset();
        QVERIFY(view);
        QVERIFY(!view->parentWidget());

        // The integration goes first: its tabs go with it, the dialog stays.
        QPrintDialog second(&printer);
        auto other = std::make_unique<PrintPanelsIntegration>();
        QVERIFY(other->openPrinter(&printer, m_noDuplexPPD));
        other->addPanel(a);
        QVERIFY(other->addPanelsToDialog(&second, &printer));
        QTabWidget* tabs = optionTabs(second);
        QVERIFY(tabs && second.isAncestorOf(view));
        const int withPanels = tabs->count();
        const int ours = int(other->panelNames().size());
        other.reset();
        QCOMPARE(tabs->count(), withPanels - ours);
        QVERIFY(view && !second.isAncestorOf(view));
    }
    QVERIFY(view);
}

void IntegrationTest::jobOptions_data()
{
    QTest::addColumn<int>("copies");
    QTest::addColumn<bool>("collate");
    QTest::addColumn<QString>("copiesOption");  // expected, or empty for none
    QTest::addColumn<QString>("collateOption");
    QTest::newRow("one copy") << 1 << true << "" << "";
    QTest::newRow("three collated copies") << 3 << true << "3" << "true";
    QTest::newRow("two uncollated copies") << 2 << false << "2" << "false";
}

void IntegrationTest::jobOptions()
{
    QFETCH(int, copies);
    QFETCH(bool, collate);
    QFETCH(QString, copiesOption);
    QFETCH(QString, collateOption);
    QPrinter printer;
    QPrintDialog dialog(&printer);
    // Not a queue (whatever printer the dialog found): the panels of a PPD file.
    printer.setOutputFormat(QPrinter::PdfFormat);
    PrintPanelsIntegration panels;
    QVERIFY(panels.openPrinter(&printer, TestSupport::samplePPD()));
    auto a = std::make_shared<RecordingPanel>(QStringLiteral("A"), &m_journal);
    panels.addPanel(a);
    QVERIFY(panels.addPanelsToDialog(&dialog, &printer));
    // What the user chose in Qt's own tabs.
    printer.setCopyCount(copies);
    printer.setCollateCopies(collate);
    m_journal.clear();

    QVERIFY2(panels.applyToPrinter(&printer), qPrintable(panels.errorString()));
    QVERIFY(m_journal.contains(QStringLiteral("A:save")));
    const auto options = panels.jobOptions();
    QCOMPARE(option(options, "copies"), copiesOption);
    QCOMPARE(option(options, "collate"), collateOption);
    // The sample printer's marked choices, as the panels left them.
    QCOMPARE(option(options, "PageSize"), QStringLiteral("Letter"));
    QCOMPARE(option(options, "Duplex"), QStringLiteral("None"));

    // The pages go to a PDF file of the integration's own, drawn once.
    QCOMPARE(printer.outputFormat(), QPrinter::PdfFormat);
    const QString spool = printer.outputFileName();
    QVERIFY(spool.endsWith(QStringLiteral(".pdf")));
    QCOMPARE(printer.copyCount(), 1);
    {
        QPainter painter(&printer);
        painter.drawText(100, 100, QStringLiteral("Hello"));
    }
    QFile f(spool);
    QVERIFY(f.open(QIODevice::ReadOnly));
    QVERIFY(f.read(5) == "%PDF-");
    // A PPD file alone has no queue to send it to.
    QCOMPARE(panels.submitJob(), 0);
    QVERIFY2(panels.errorString().contains(QStringLiteral("CUPS queue")), qPrintable(panels.errorString()));
}

void IntegrationTest::refusal()
{
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    QPrintDialog dialog(&printer);
    PrintPanelsIntegration panels;
    QVERIFY(panels.openPrinter(&printer, m_noDuplexPPD));
    auto a = std::make_shared<RecordingPanel>(QStringLiteral("A"), &m_journal);
    a->printAnswer = false;
    panels.addPanel(a);
    QVERIFY(panels.addPanelsToDialog(&dialog, &printer));
    QVERIFY(!panels.applyToPrinter(&printer));
    QVERIFY(!panels.errorString().isEmpty());
    QVERIFY(m_journal.contains(QStringLiteral("A:shouldPrint")));
    QVERIFY(!m_journal.contains(QStringLiteral("A:save")));
    QVERIFY(printer.outputFileName().isEmpty());
}

void IntegrationTest::examplePrintsItsTabs()
{
    QProcess example;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    example.setProcessEnvironment(env);
    example.start(QStringLiteral(PRINT_PANELS_EXAMPLE_BINARY), {"--list-tabs", "--ppd", TestSupport::samplePPD()});
    QVERIFY(example.waitForFinished(60000));
    QCOMPARE(example.exitCode(), 0);
    const QStringList lines = QString::fromUtf8(example.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);

    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    PrintPanelsIntegration panels;
    QVERIFY(panels.openPrinter(&printer, TestSupport::samplePPD()));
    const QStringList names = panels.panelNames();
    QVERIFY(lines.size() > names.size());
    QCOMPARE(lines.mid(lines.size() - names.size()), names);
}

void IntegrationTest::submitsToCups()
{
    if (!m_cups)
        QSKIP(qPrintable(QStringLiteral("no private cupsd: ") + m_cupsSkipped));
    QPrinter printer;
    printer.setPrinterName(QStringLiteral("panels"));
    QCOMPARE(printer.printerName(), QStringLiteral("panels"));
    QCOMPARE(printer.outputFormat(), QPrinter::NativeFormat);
    QPrintDialog dialog(&printer);
    PrintPanelsIntegration panels;
    QVERIFY2(panels.addPanelsToDialog(&dialog, &printer), qPrintable(panels.errorString()));
    QCOMPARE(panels.queue(), QStringLiteral("panels"));
    printer.setCopyCount(2);
    QVERIFY2(panels.applyToPrinter(&printer), qPrintable(panels.errorString()));
    {
        QPainter painter(&printer);
        painter.drawText(100, 100, QStringLiteral("Hello from a Qt application"));
    }
    const int before = int(m_cups->capturedJobs(QStringLiteral("panels")).size());
    const int job = panels.submitJob(QStringLiteral("Integration report"));
    QVERIFY2(job > 0, qPrintable(panels.errorString()));
    QVERIFY2(m_cups->waitForJobs(QStringLiteral("panels"), before + 1), qPrintable(m_cups->errorLog()));
    PrivateCupsServer::CapturedJob captured;
    for (const auto& j : m_cups->capturedJobs(QStringLiteral("panels")))
        if (j.id == job)
            captured = j;
    QCOMPARE(captured.id, job);
    QCOMPARE(captured.title(), QStringLiteral("Integration report"));
    QCOMPARE(captured.copies(), 2);
    QVERIFY(captured.documents.value(0).startsWith("%PDF-"));
    // Every option of the panels reaches the printer's filters as it was.
    const QMap<QString, QString> received = captured.parsedOptions();
    int checked = 0;
    for (const auto& [key, value] : panels.jobOptions()) {
        // The scheduler keeps these for itself (the copies are an argument of
        // their own).
        static const QStringList scheduler{"copies", "job-hold-until", "job-priority", "job-sheets", "job-cancel-after"};
        if (scheduler.contains(key))
            continue;
        // The queue's own attributes (device-uri, printer-info...) come along
        // with its saved options but are not job options: the server drops them.
        if (PresetStore::isPrinterAttribute(key))
            continue;
        // IPP carries "True" and "False" as booleans: they arrive in lower case.
        const bool boolean = value.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0
                             || value.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0;
        const bool same = boolean ? received.value(key).compare(value, Qt::CaseInsensitive) == 0 : received.value(key) == value;
        QVERIFY2(same, qPrintable(key + QStringLiteral(": ") + received.value(key) + QStringLiteral(" != ") + value));
        ++checked;
    }
    QVERIFY(checked >= 20);  // the sample printer marks dozens of options
}

QTEST_MAIN(IntegrationTest)
#include "tst_integration.moc"
