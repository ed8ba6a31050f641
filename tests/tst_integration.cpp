// The panels inside another Qt application's QPrintDialog: the tabs they add
// (in the example program too), what the panels are told as the tabs are
// shown and left, who keeps their views, the options the job carries, and a
// job sent to a private cupsd.
#include "PrintPanelsIntegration.h"
#include "PrivateCupsServer.h"
#include "RecordingPanel.h"
#include "TestSupport.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QPainter>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

namespace {
// The texts of the dialog's option tabs (the tab widget holding the panels' pages).
QStringList optionTabs(QPrintDialog& dialog, QTabWidget** found = nullptr)
{
    QStringList out;
    for (QTabWidget* tabs : dialog.findChildren<QTabWidget*>()) {
        if (!tabs->count() || tabs->widget(tabs->count() - 1)->objectName() != QLatin1String("printPanelsTab"))
            continue;
        out << TestSupport::tabTexts(tabs);
        if (found)
            *found = tabs;
    }
    return out;
}
}

class IntegrationTest : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QStringList m_journal;
    PrivateCupsServer m_cups;
    QString m_cupsSkipped;

    std::shared_ptr<RecordingPanel> panel(const QString& name) { return std::make_shared<RecordingPanel>(name, &m_journal); }
    // The panels of ppd (of the printer's queue when empty) and the tests'
    // own after them, added to the dialog.
    bool addPanels(PrintPanelsIntegration& panels, QPrintDialog& dialog, QPrinter& printer, const QString& ppd,
                   const QList<std::shared_ptr<RecordingPanel>>& ours)
    {
        if (!panels.openPrinter(&printer, ppd))
            return false;
        for (const auto& p : ours)
            panels.addPanel(p);
        m_journal.clear();
        return panels.addPanelsToDialog(&dialog, &printer);
    }

private slots:
    void initTestCase()
    {
        // libcups reads where its server is at its first call: the private
        // server (where one can run) comes before anything else.
        if (PrivateCupsServer::canRun(&m_cupsSkipped))
            QVERIFY2(m_cups.start(&m_cupsSkipped) && m_cups.addQueue("panels", TestSupport::samplePPD(), &m_cupsSkipped)
                         && m_cups.addQueue("mono", TestSupport::samplePPD("velmora-m200"), &m_cupsSkipped),
                     qPrintable(m_cupsSkipped));
    }

    // The example program and a dialog here show the dialog's own tabs, then
    // one per panel in the plug-in's order; a tab shown and left tells its
    // panel; adding again replaces the tabs. Whichever goes first, the dialog
    // or the integration, the panel keeps its view.
    void tabs()
    {
        QProcess example;
        example.start(QStringLiteral(PRINT_PANELS_EXAMPLE_BINARY), {"--list-tabs", "--ppd", TestSupport::samplePPD()});
        QVERIFY(example.waitForFinished(60000) && example.exitCode() == 0);
        const QStringList lines = QString::fromUtf8(example.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);

        QPrinter printer;
        printer.setOutputFormat(QPrinter::PdfFormat);
        auto dialog = std::make_unique<QPrintDialog>(&printer);
        PrintPanelsIntegration panels;
        auto a = panel(QStringLiteral("A"));
        QPointer<QWidget> view = a->panelView();
        QVERIFY2(addPanels(panels, *dialog, printer, TestSupport::samplePPD(), {a, panel(QStringLiteral("B"))}),
                 qPrintable(panels.errorString()));
        const QStringList names = panels.panelNames(), plugins = names.mid(0, names.size() - 2);
        QCOMPARE(lines.mid(lines.size() - plugins.size()), plugins);
        QTabWidget* tabs = nullptr;
        const QStringList texts = optionTabs(*dialog, &tabs);
        QVERIFY(texts.size() > names.size() && names.mid(names.size() - 2) == QStringList({"A", "B"}));
        QCOMPARE(texts.mid(texts.size() - names.size()), names);
        QVERIFY(tabs->widget(tabs->count() - 2)->isAncestorOf(view));

        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
        // The options are behind the dialog's "Options" button.
        for (QAbstractButton* button : dialog->findChildren<QAbstractButton*>())
            if (!tabs->isVisible() && button->isVisible() && button->text().remove(QLatin1Char('&')).startsWith(QStringLiteral("Options")))
                QTest::mouseClick(button, Qt::LeftButton);
        QTRY_VERIFY(tabs->isVisible());
        for (int i : {tabs->count() - 2, tabs->count() - 1, 0})
            QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(i).center());
        QCOMPARE(m_journal, QStringList({"A:willShow", "A:shouldHide", "B:willShow", "B:shouldHide"}));
        dialog->reject();

        QVERIFY(panels.addPanelsToDialog(dialog.get(), &printer));
        QCOMPARE(optionTabs(*dialog), texts);
        dialog.reset();
        QVERIFY(view && view->parentWidget() == a->viewParent());
        QPrintDialog second(&printer);
        auto other = std::make_unique<PrintPanelsIntegration>();
        QVERIFY(addPanels(*other, second, printer, TestSupport::writePPD(m_dir, "plain.ppd", QString()), {a}));
        QVERIFY(second.isAncestorOf(view) && optionTabs(second, &tabs).size() > 1);
        const int before = tabs->count(), ours = int(other->panelNames().size());
        other.reset();
        QVERIFY(view && view->parentWidget() == a->viewParent());
        QCOMPARE(tabs->count(), before - ours);  // the panels' tabs went, the dialog's own stay
    }

    void jobOptions_data()
    {
        QTest::addColumn<int>("copies");
        QTest::addColumn<bool>("collate");
        QTest::addColumn<bool>("refuse");           // the panel refuses to print
        QTest::addColumn<QStringList>("expected");  // copies, collate (empty for none)
        QTest::newRow("one copy") << 1 << true << false << QStringList{"", ""};
        QTest::newRow("three collated copies") << 3 << true << false << QStringList{"3", "true"};
        QTest::newRow("two uncollated copies") << 2 << false << false << QStringList{"2", "false"};
        QTest::newRow("a panel refuses") << 2 << false << true << QStringList();
    }

    // On a PPD file: the panels' checks and save, the options of the panels
    // and of Qt's own tabs, the pages drawn once into a PDF file of the
    // integration's own, and no queue to send them to.
    void jobOptions()
    {
        QFETCH(bool, refuse);
        QPrinter printer;
        QPrintDialog dialog(&printer);
        printer.setOutputFormat(QPrinter::PdfFormat);  // not a queue, whatever printer the dialog found
        PrintPanelsIntegration panels;
        auto a = panel(QStringLiteral("A"));
        if (refuse)
            a->printCheck = [] { return false; };
        QVERIFY2(addPanels(panels, dialog, printer, TestSupport::samplePPD(), {a}), qPrintable(panels.errorString()));
        printer.setCopyCount(cell<int>("copies"));
        printer.setCollateCopies(cell<bool>("collate"));
        QCOMPARE(panels.applyToPrinter(&printer), !refuse);
        QCOMPARE(m_journal.contains(QStringLiteral("A:save")), !refuse);
        if (refuse) {
            QVERIFY(printer.outputFileName().isEmpty() && !panels.errorString().isEmpty());
            return;
        }
        const QMap<QString, QString> options = TestSupport::optionMap(panels.jobOptions());
        QTEST((QStringList{options.value("copies"), options.value("collate")}), "expected");
        QCOMPARE(options.value("PageSize") + options.value("Duplex"), QStringLiteral("LetterNone"));  // the sample's marks
        QVERIFY(printer.outputFormat() == QPrinter::PdfFormat && printer.outputFileName().endsWith(QStringLiteral(".pdf")));
        QCOMPARE(printer.copyCount(), 1);  // the copies are made by CUPS, not drawn again
        QPainter(&printer).drawText(100, 100, QStringLiteral("Hello from a Qt application"));
        QCOMPARE(panels.submitJob(QStringLiteral("Integration report")), 0);
        QVERIFY2(panels.errorString().contains(QStringLiteral("CUPS queue")), qPrintable(panels.errorString()));
    }

    // Another printer chosen in Qt's own list: the panels are the new
    // printer's, carrying the choices it offers and approves; the job sent
    // to the queue carries its options, Qt's copies and collation among them.
    void printerSwitch()
    {
        if (!m_cups.isRunning())
            QSKIP(qPrintable(QStringLiteral("no private cupsd: ") + m_cupsSkipped));
        // Choices on the colour printer: resolution (both offer it), two-sided
        // (the mono printer has no duplex unit installed), colour (it has none).
        QVERIFY(m_cups.runClient("lpoptions", {"-p", "panels", "-o", "VELResolution=1200dpi Duplex=DuplexTumble ColorModel=Gray note=kept"}));
        QPrinter printer;
        printer.setPrinterName(QStringLiteral("panels"));
        QPrintDialog dialog(&printer);
        PrintPanelsIntegration panels;
        QVERIFY2(panels.addPanelsToDialog(&dialog, &printer), qPrintable(panels.errorString()));
        auto* printers = dialog.findChild<QComboBox*>(QStringLiteral("printers"));
        QVERIFY(printers && printers->findText("mono") >= 0);
        printers->setCurrentIndex(printers->findText("mono"));
        QCOMPARE(panels.queue(), QStringLiteral("mono"));
        QCOMPARE(optionTabs(dialog).mid(optionTabs(dialog).size() - panels.panelNames().size()), panels.panelNames());
        dialog.accept();  // Qt's dialog sets the printer chosen
        printer.setCopyCount(2);
        printer.setCollateCopies(true);
        QVERIFY2(panels.applyToPrinter(&printer), qPrintable(panels.errorString()));
        QPainter(&printer).drawText(100, 100, QStringLiteral("switched"));
        const int id = panels.submitJob(QStringLiteral("Integration report"));
        PrivateCupsServer::CapturedJob job;
        QVERIFY2(id > 0 && m_cups.waitForJob("mono", id, &job), qPrintable(panels.errorString() + m_cups.errorLog()));
        QVERIFY(job.title() == QLatin1String("Integration report") && job.copies() == 2 && job.document.startsWith("%PDF-"));
        const QMap<QString, QString> got = job.parsedOptions();
        QCOMPARE((QStringList{got.value("VELResolution"), got.value("Duplex"), got.value("note"), got.value("ColorModel", "absent"), got.value("collate")}),
                 (QStringList{"1200dpi", "None", "kept", "absent", "true"}));
    }
};

QTEST_MAIN(IntegrationTest)
#include "tst_integration.moc"
