// The print dialog window, driven as a person would: panels chosen from the
// list, job controls typed into, buttons clicked. The tests' own panels
// (RecordingPanel A, B and C) stand after whatever panels the plug-in offers.
#include "LpCommand.h"
#include "LpCommandDialog.h"
#include "PDEAlerts.h"
#include "PresetStore.h"
#include "PrintDialogWindow.h"
#include "PrivateCupsServer.h"
#include "RecordingPanel.h"
#include "TestSupport.h"

#include <QtTest>
#include <QtWidgets>
#include <cups/cups.h>

namespace {
using Changes = QList<QPair<QString, QString>>;
}

class WindowTest : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QString m_ppd;
    QStringList m_journal;
    QStringList m_box;
    QMap<QString, std::shared_ptr<RecordingPanel>> m_panel;  // A, B and C
    std::unique_ptr<PrintDialogWindow> m_window;
    PrivateCupsServer m_cups;
    QString m_cupsSkipped;

    // The window on the fixture PPD (or a queue), panels A, B and C added,
    // shown, with A chosen.
    void openWindow(const QStringList& options = {}, const QStringList& documents = {}, const QString& queue = {})
    {
        m_window.reset();  // the window before goes first: it takes its alert handler along
        m_journal.clear();
        m_window = std::make_unique<PrintDialogWindow>();
        QString error;
        QVERIFY2(m_window->openSession({queue.isEmpty() ? m_ppd : QString(), queue, {}, {}, options}, &error), qPrintable(error));
        m_window->setDocuments(documents);
        for (const char* name : {"A", "B", "C"})
            m_window->addPanel(m_panel[name] = std::make_shared<RecordingPanel>(name, &m_journal));
        m_panel["A"]->summary = {{"Duplex", "None"}, {"PINCode", "4321"}, {"note", "free text"}};
        QCOMPARE(m_journal, QStringList({"A:restore", "B:restore", "C:restore"}));
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        click(QStringLiteral("A"));
        m_journal.clear();
    }

    void click(const QString& entry)
    {
        auto* list = widget<QListWidget>("panelList");
        QListWidgetItem* item = list->findItems(entry, Qt::MatchExactly).value(0);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(item).center());
    }

    void type(const char* spinBox, const QString& text)
    {
        auto* spin = widget<QSpinBox>(spinBox);
        spin->setFocus();
        QTest::keyClick(spin, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(spin, text);
    }

    // Clicks the button of that text in the next modal message box; keeps
    // the box's text, message and buttons in m_box, then the entry shown.
    void answerBox(const QString& button)
    {
        auto* poll = new QTimer(this);
        connect(poll, &QTimer::timeout, this, [this, poll, button] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                poll->stop();
                poll->deleteLater();
                m_box = QStringList{box->text(), box->informativeText()};
                for (QAbstractButton* b : box->buttons())
                    m_box << b->text().remove(QLatin1Char('&'));
                const int index = int(m_box.indexOf(button)) - 2;
                m_box << (m_window->currentPanel() ? m_window->currentPanel()->panelName() : QStringLiteral("Summary"));
                QTest::mouseClick(box->buttons().value(index), Qt::LeftButton);
            }
        });
        poll->start(20);
    }

    template <typename T>
    T* widget(const char* name) { return m_window->findChild<T*>(QLatin1String(name)); }
    QString notice() { return widget<QStatusBar>("statusBar")->currentMessage(); }

private slots:
    void initTestCase()
    {
        // A private cupsd for the presets, before anything asks libcups.
        if (PrivateCupsServer::canRun(&m_cupsSkipped))
            QVERIFY2(m_cups.start(&m_cupsSkipped) && m_cups.addQueue("panels", TestSupport::samplePPD(), &m_cupsSkipped),
                     qPrintable(m_cupsSkipped));
        m_ppd = TestSupport::writePPDFromFixture(m_dir, QStringLiteral("fixture.ppd"), QStringLiteral("window-a4-duplex-conflict.txt"));
    }

    void panelList_data()
    {
        QTest::addColumn<QStringList>("clicks");
        QTest::addColumn<bool>("refuse");  // A refuses to be left
        QTest::addColumn<QStringList>("journal");
        QTest::addColumn<QString>("shown");  // the panel shown at the end, or "Summary"
        QTest::newRow("there and back") << QStringList{"C", "A"} << false
                                        << QStringList{"A:shouldHide", "C:willShow", "C:shouldHide", "A:willShow"} << "A";
        QTest::newRow("to the summary") << QStringList{"Summary"} << false << QStringList{"A:shouldHide"} << "Summary";
        QTest::newRow("the panel shown again") << QStringList{"A"} << false << QStringList{} << "A";
        QTest::newRow("refused: another panel") << QStringList{"C"} << true << QStringList{"A:shouldHide"} << "A";
        QTest::newRow("refused: the summary") << QStringList{"Summary"} << true << QStringList{"A:shouldHide"} << "A";
    }

    // willShow and shouldHide around every switch, in order; a panel that
    // refuses to be left stays, with a notice; Help asks the panel shown; the
    // summary lists every panel's settings in the PPD's words, secrets hidden.
    void panelList()
    {
        QFETCH(bool, refuse);
        QFETCH(QStringList, journal);
        QFETCH(QString, shown);
        openWindow();
        m_panel["A"]->allowHide = !refuse;
        for (const QString& c : cell<QStringList>("clicks"))
            click(c);
        QCOMPARE(m_journal, journal);
        QCOMPARE(widget<QListWidget>("panelList")->currentItem()->text(), shown);
        QCOMPARE(notice().contains(QStringLiteral("A cannot be left")), refuse);
        auto* help = widget<QPushButton>("helpButton");
        QCOMPARE(help->isEnabled(), shown != QLatin1String("Summary"));
        QTest::mouseClick(help, Qt::LeftButton);
        if (shown != QLatin1String("Summary")) {
            QCOMPARE(m_journal.mid(journal.size()), QStringList{shown + ":help"});
            // The area shows the panel's own view, and only that panel's.
            for (const auto& p : std::as_const(m_panel)) {
                QCOMPARE(p->panelView()->isVisible() && widget<QScrollArea>("panelArea")->widget() == p->panelView(), p->panelName() == shown);
                QCOMPARE(p->panelView()->parentWidget() == p->viewParent(), p->panelName() != shown);  // given back when left
            }
            return;
        }
        QVERIFY(!m_window->currentPanel() && !widget<QScrollArea>("panelArea")->widget());
        auto* tree = widget<QTreeWidget>("summaryTree");
        QCOMPARE(tree->topLevelItem(0)->text(0), QStringLiteral("Job"));
        QCOMPARE(tree->topLevelItemCount(), int(m_window->session()->panels().size()) + 1);
        QMap<QString, QString> rows;
        for (QTreeWidgetItem* group : {tree->topLevelItem(0), tree->findItems("A", Qt::MatchExactly).value(0)})
            for (int i = 0; i < group->childCount(); ++i)
                rows.insert(group->text(0) + ":" + group->child(i)->text(0), group->child(i)->text(1));
        QCOMPARE((QStringList{rows["A:2-Sided Printing"], rows["A:note"], rows["A:PINCode"], rows["Job:Copies"]}),
                 (QStringList{"Off", "free text", "(hidden)", "1"}));
        QVERIFY(tree->findItems(QStringLiteral("4321"), Qt::MatchContains | Qt::MatchRecursive, 1).isEmpty());
        // A job setting changed while the summary is shown appears in it.
        type("copiesSpin", QStringLiteral("2"));
        QCOMPARE(tree->topLevelItem(0)->child(0)->text(1), QStringLiteral("2"));
    }

    void jobControls_data()
    {
        QTest::addColumn<QString>("control");  // the control typed into
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QString>("notice");  // empty: none expected
        QTest::addColumn<Changes>("told");    // what every panel is told
        QTest::newRow("copies") << "copiesSpin" << "3" << "copies" << "3" << "" << Changes{};
        QTest::newRow("page range") << "pageRangeEdit" << "2-4,7" << "page-ranges" << "2-4,7" << "" << Changes{};
        QTest::newRow("landscape") << "orientationCombo" << "L" << "orientation-requested" << "4" << "" << Changes{};
        QTest::newRow("pages per sheet") << "pagesPerSheetCombo" << "16" << "number-up" << "16" << "" << Changes{};
        QTest::newRow("cover page") << "coverPageCombo" << "St" << "job-sheets" << "standard" << "" << Changes{};
        QTest::newRow("A4 turns long-edge duplex off") << "paperSizeCombo" << "A4" << "PageSize" << "A4"
                                                       << "2-Sided Printing set to Off" << Changes{{"PageSize", "A4"}, {"Duplex", "None"}};
    }

    // A change reaches the job's options and the print settings the panels
    // read, and the host's update signal; a change that conflict resolution
    // answers shows a notice and is told to every panel.
    void jobControls()
    {
        QFETCH(QString, key);
        QFETCH(QString, expected);
        QFETCH(QString, notice);
        QFETCH(Changes, told);
        openWindow();
        QVERIFY(!m_window->session()->host().jobOptions().contains({key, expected}) && this->notice().isEmpty());
        QSignalSpy updates(&m_window->session()->host(), &PrintDialogHost::update);
        if (key == QLatin1String("page-ranges"))
            QTest::mouseClick(widget<QRadioButton>("pageRangeRadio"), Qt::LeftButton);
        auto* w = widget<QWidget>(cell<QString>("control").toLatin1().constData());
        w->setFocus();
        if (qobject_cast<QSpinBox*>(w))
            QTest::keyClick(w, Qt::Key_A, Qt::ControlModifier);  // to type over the number
        QTest::keyClicks(w, cell<QString>("typed"));
        QCoreApplication::sendPostedEvents();  // where conflict resolution reports
        QVERIFY(m_window->session()->host().jobOptions().contains({key, expected}));
        QVERIFY(updates.count() >= 1);
        if (key != QLatin1String("PageSize"))
            QCOMPARE(m_window->session()->host().printSettings()->value(key), expected);
        QCOMPARE(m_panel["A"]->changesReceived, told);
        QCOMPARE(m_panel["C"]->changesReceived, told);
        QVERIFY2(notice.isEmpty() ? this->notice().isEmpty() : this->notice().contains(notice), qPrintable(this->notice()));
    }

    // The window grows to the size a panel asks for, and keeps it for the panel.
    void panelViewResize()
    {
        openWindow();
        auto* area = widget<QScrollArea>("panelArea");
        const QSize asked(760, 540), framed = asked + QSize(2 * area->frameWidth(), 2 * area->frameWidth());
        QVERIFY(area->width() < asked.width() || area->height() < asked.height());
        m_panel["A"]->panelView()->resize(asked);
        m_window->session()->host().panelViewDidResize();
        QCOMPARE(area->minimumSize(), framed);
        QTRY_VERIFY(area->width() >= framed.width() && area->height() >= framed.height());
        click(QStringLiteral("B"));
        QVERIFY(area->minimumSize() != framed);
        click(QStringLiteral("A"));
        QCOMPARE(area->minimumSize(), framed);
    }

    void alerts_data()
    {
        QTest::addColumn<QString>("clicked");
        QTest::addColumn<int>("answer");
        QTest::newRow("default button") << "Print Anyway" << int(PDEAlerts::DefaultButton);
        QTest::newRow("alternate button") << "Cancel" << int(PDEAlerts::AlternateButton);
        QTest::newRow("other button") << "Later" << int(PDEAlerts::OtherButton);
    }

    // A panel alerting in its print checks is brought to the front, then its
    // alert is a message box over the window, its buttons answered.
    void alerts()
    {
        QFETCH(int, answer);
        openWindow();
        int got = -2;
        m_panel["C"]->printCheck = [&got] {
            got = PDEAlerts::runAlertPanel({"The PIN is too short", "Enter four digits.", "Print Anyway", "Cancel", "Later"});
            return got == PDEAlerts::DefaultButton;
        };
        answerBox(cell<QString>("clicked"));
        QTest::mouseClick(widget<QPushButton>("printButton"), Qt::LeftButton);
        QCOMPARE(got, answer);
        QCOMPARE(m_box.takeLast(), QStringLiteral("C"));  // shown when the box appeared
        m_box.sort();
        QCOMPARE(m_box, QStringList({"Cancel", "Enter four digits.", "Later", "Print Anyway", "The PIN is too short"}));
        QCOMPARE(bool(m_window->findChild<LpCommandDialog*>()), answer == PDEAlerts::DefaultButton);
    }

    // Every panel saved, then the lp command that prints the same (a
    // document with a blank, a value with quotes, the PIN hidden), to copy.
    void printWithPPDOnly()
    {
        const QString document = TestSupport::writeFile(m_dir.filePath(QStringLiteral("my report.txt")), "hello\n");
        openWindow({"note='say \"hi\" now'", "PINCode=9876"}, {document});
        type("copiesSpin", QStringLiteral("2"));
        auto* print = widget<QPushButton>("printButton");
        QCOMPARE(print->text().remove(QLatin1Char('&')), QStringLiteral("Show lp Command…"));
        QTest::mouseClick(print, Qt::LeftButton);
        LpCommandDialog* shown = nullptr;
        QTRY_VERIFY((shown = m_window->findChild<LpCommandDialog*>()) && shown->isVisible());
        QCOMPARE(m_journal.filter(QStringLiteral(":save")), QStringList({"A:save", "B:save", "C:save"}));
        const QString command = shown->findChild<QPlainTextEdit*>(QStringLiteral("lpCommandText"))->toPlainText();
        QCOMPARE(command, LpCommand("fixture", m_window->session()->host().jobOptions(), {document}).commandLine());
        for (const char* part : {"lp -d fixture ", "-o copies=2", "-o PageSize=Letter", "/my report.txt'",
                                    "'note=\"say \\\"hi\\\" now\"'", "PINCode=\"<hidden>\""})
            QVERIFY2(command.contains(QString::fromUtf8(part)), qPrintable(command));
        QVERIFY(!command.contains(QStringLiteral("9876")));
        QVERIFY(shown->findChild<QLabel*>(QStringLiteral("secretsLabel"))->isVisible());
        QTest::mouseClick(shown->findChild<QPushButton*>(QStringLiteral("copyButton")), Qt::LeftButton);
        QCOMPARE(QGuiApplication::clipboard()->text(), command);
        QVERIFY(m_window->isVisible());  // nothing was printed: the dialog stays
    }

    // Another printer: the panel shown is left, the job settings chosen go
    // along. On a queue: Save As, choose and delete a preset.
    void printersAndPresets()
    {
        openWindow();
        type("copiesSpin", QStringLiteral("3"));
        auto* printers = widget<QComboBox>("printerCombo");
        printers->setCurrentIndex(printers->findText(QStringLiteral("Velmora M200 (sample PPD file)")));
        emit printers->activated(printers->currentIndex());
        QVERIFY(m_window->session()->host().ppdPath().endsWith(QStringLiteral("velmora-m200.ppd")));
        QCOMPARE(m_journal.value(0), QStringLiteral("A:shouldHide"));
        QVERIFY(widget<QListWidget>("panelList")->findItems(QStringLiteral("A"), Qt::MatchExactly).isEmpty());
        QCOMPARE(m_window->session()->host().printSettings()->value(QStringLiteral("copies")), QStringLiteral("3"));
        QVERIFY(widget<QComboBox>("paperSizeCombo")->findText(QStringLiteral("US Legal")) >= 0);
        if (!m_cups.isRunning())
            QSKIP(qPrintable(QStringLiteral("presets need a private cupsd: ") + m_cupsSkipped));

        printers->setCurrentIndex(printers->findText(QStringLiteral("panels"), Qt::MatchStartsWith));
        emit printers->activated(printers->currentIndex());
        auto* presets = widget<QComboBox>("presetCombo");
        QCOMPARE(presets->currentText(), QStringLiteral("Default settings"));
        type("copiesSpin", QStringLiteral("4"));
        QTest::mouseClick(widget<QPushButton>("savePresetButton"), Qt::LeftButton);
        QInputDialog* ask = nullptr;
        QTRY_VERIFY((ask = m_window->findChild<QInputDialog*>()) && ask->isVisible());
        QTest::keyClicks(ask->findChild<QLineEdit*>(), QStringLiteral("Draft"));
        QTest::keyClick(ask->findChild<QLineEdit*>(), Qt::Key_Return);
        QTRY_COMPARE(presets->currentText(), QStringLiteral("Draft"));
        // "draft" is the same preset to CUPS: the dialog asks, then replaces it.
        QTest::mouseClick(widget<QPushButton>("savePresetButton"), Qt::LeftButton);
        QTRY_VERIFY((ask = m_window->findChild<QInputDialog*>()) && ask->isVisible());
        ask->setTextValue(QStringLiteral("draft"));
        answerBox(QStringLiteral("Yes"));
        QTest::keyClick(ask->findChild<QLineEdit*>(), Qt::Key_Return);
        QTRY_COMPARE(presets->currentText(), QStringLiteral("draft"));
        QCOMPARE(presets->count(), 2);
        QVERIFY(m_box.value(0).contains(QStringLiteral("\"Draft\" exists")));
        PrintDialogHost::OptionList saved;
        QVERIFY(PresetStore(QStringLiteral("panels")).load(QStringLiteral("draft"), &saved) && saved.contains({"copies", "4"}));
        presets->setFocus();
        QTest::keyClick(presets, Qt::Key_Home);
        QTRY_COMPARE(widget<QSpinBox>("copiesSpin")->value(), 1);
        QTest::keyClick(presets, Qt::Key_End);
        QTRY_COMPARE(widget<QSpinBox>("copiesSpin")->value(), 4);
        answerBox(QStringLiteral("Yes"));
        QTest::mouseClick(widget<QPushButton>("deletePresetButton"), Qt::LeftButton);
        QTRY_VERIFY(presets->findText(QStringLiteral("draft")) < 0);
        QVERIFY(PresetStore(QStringLiteral("panels")).names().isEmpty());
        // The settings as the queue's own defaults, the queue as the default printer.
        widget<QAction>("useAsDefaultsAction")->trigger();
        QVERIFY(PresetStore(QStringLiteral("panels")).savedOptions(&saved) && saved.contains({"copies", "4"}));
        widget<QAction>("makeDefaultPrinterAction")->trigger();
        cups_dest_t* dest = cupsGetNamedDest(CUPS_HTTP_DEFAULT, nullptr, nullptr);
        QVERIFY(dest && qstrcmp(dest->name, "panels") == 0 && !dest->instance);
        cupsFreeDests(1, dest);
    }

    void printerChooser_data()
    {
        QTest::addColumn<QStringList>("commands");  // run against the private cupsd first
        QTest::addColumn<QString>("printer");       // as opened; empty: PanelSession picks
        QTest::addColumn<QString>("text");
        QTest::newRow("idle, a preset") << QStringList{"cupsenable", "cupsaccept"} << "panels/Fast"
                                        << QStringLiteral("panels \u2014 idle, Room 2");
        QTest::newRow("stopped") << QStringList{"cupsdisable"} << QString() << QStringLiteral("panels \u2014 stopped, Room 2");
        QTest::newRow("not accepting") << QStringList{"cupsenable", "cupsreject"} << QString()
                                       << QStringLiteral("panels \u2014 idle, not accepting jobs, Room 2");
    }

    // Each queue shows its state and location, its make and model in the
    // tooltip; the chooser and the presets show whichever printer the session opened.
    void printerChooser()
    {
        if (!m_cups.isRunning())
            QSKIP(qPrintable(QStringLiteral("needs a private cupsd: ") + m_cupsSkipped));
        QVERIFY(m_cups.runClient("lpadmin", {"-p", "panels", "-L", "Room 2"}));
        QVERIFY(m_cups.runClient("lpoptions", {"-p", "panels/Fast", "-o", "copies=2"}));
        for (const QString& c : cell<QStringList>("commands"))
            QVERIFY(m_cups.runClient(c, {"panels"}));
        m_window = std::make_unique<PrintDialogWindow>();
        QString error;
        QVERIFY2(m_window->openSession({{}, cell<QString>("printer"), {}, {}, {}}, &error), qPrintable(error));
        auto* printers = widget<QComboBox>("printerCombo");
        const int index = printers->findText(cell<QString>("text"));
        QVERIFY2(index >= 0, qPrintable(printers->itemText(0)));
        QVERIFY(printers->itemData(index, Qt::ToolTipRole).toString().contains(QStringLiteral("Make and model: Velmora C5500 MFP")));
        const PMPrinter* opened = m_window->session()->host().pmPrinter();
        QVERIFY2(printers->currentText().startsWith(opened->name().section(QLatin1Char('/'), 0, 0) + QStringLiteral(" \u2014")),
                 qPrintable(printers->currentText()));
        QCOMPARE(widget<QComboBox>("presetCombo")->currentData().toString(), opened->name().section(QLatin1Char('/'), 1));
        QVERIFY(m_cups.runClient("cupsenable", {"panels"}) && m_cups.runClient("cupsaccept", {"panels"})
                && m_cups.runClient("lpoptions", {"-x", "panels/Fast"}));
    }

    // A conflict resolved while the printer opened is told in the notice. An
    // invalid page range keeps the dialog open, the field marked: nothing is
    // printed. Which ranges are invalid is the host's rule (tst_host jobValues).
    void openingNoticeAndInvalidPageRange()
    {
        openWindow({"PageSize=A4"});
        QVERIFY2(notice().contains(QStringLiteral("To resolve a conflict, 2-Sided Printing set to Off.")), qPrintable(notice()));
        QTest::mouseClick(widget<QRadioButton>("pageRangeRadio"), Qt::LeftButton);
        QTest::keyClicks(widget<QLineEdit>("pageRangeEdit"), QStringLiteral("5-3"));
        QTest::mouseClick(widget<QPushButton>("printButton"), Qt::LeftButton);
        QVERIFY2(notice().contains(QStringLiteral("not valid")), qPrintable(notice()));
        QVERIFY(widget<QLineEdit>("pageRangeEdit")->property("invalidInput").toBool() && widget<QLineEdit>("pageRangeEdit")->hasFocus());
        QVERIFY(!m_window->findChild<LpCommandDialog*>() && m_journal.filter(QStringLiteral(":save")).isEmpty());
    }
};

// The tests get a screen the size of a laptop's, so that the window can grow
// as it would on a desktop.
int main(int argc, char** argv)
{
    QTemporaryFile screens;
    if (!screens.open())
        return 1;
    screens.write(R"({"screens":[{"name":"test","x":0,"y":0,"width":1280,"height":900}]})");
    screens.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(screens.fileName()));
    QApplication app(argc, argv);
    WindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_window.moc"
