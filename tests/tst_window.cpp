// The print dialog window, driven as a person would: panels chosen from the
// list, job controls typed into, buttons clicked. The tests' own panels
// (RecordingPanel) stand beside whatever panels the plug-in offers.
#include "CommandLine.h"
#include "LpCommand.h"
#include "LpCommandDialog.h"
#include "PDEAlerts.h"
#include "PresetStore.h"
#include "PrintDialogWindow.h"
#include "PrivateCupsServer.h"
#include "RecordingPanel.h"
#include "TestSupport.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QImage>
#include <QInputDialog>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTemporaryFile>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <cups/cups.h>
#include <sys/stat.h>

namespace {
// A printer with a paper size that conflicts with long-edge duplex printing.
const char* kFixtureBody = R"PPD(*OpenUI *Duplex/2-Sided Printing: PickOne
*OrderDependency: 20 AnySetup *Duplex
*DefaultDuplex: DuplexNoTumble
*Duplex None/Off: "<</Duplex false>>setpagedevice"
*Duplex DuplexNoTumble/Long Edge: "<</Duplex true/Tumble false>>setpagedevice"
*CloseUI: *Duplex
*UIConstraints: *PageSize A4 *Duplex DuplexNoTumble
*UIConstraints: *Duplex DuplexNoTumble *PageSize A4
)PPD";

QString jobOption(PrintDialogWindow* w, const QString& key)
{
    for (const auto& [k, v] : w->session()->host().jobOptions())
        if (k == key)
            return v;
    return QString();
}

QString withoutMnemonic(QString s)
{
    return s.remove(QLatin1Char('&'));
}
}

class WindowTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanup();
    void switchingPanels_data();
    void switchingPanels();
    void refusedHide_data();
    void refusedHide();
    void jobControls_data();
    void jobControls();
    void resolutionNotice_data();
    void resolutionNotice();
    void summary();
    void help_data();
    void help();
    void panelViewResize();
    void alerts_data();
    void alerts();
    void printWithPPDOnly_data();
    void printWithPPDOnly();
    void printerSwitch();
    void commandLine_data();
    void commandLine();
    void presets();
    void printToQueue();
    void cleanupTestCase();

private:
    void openWindow(const QStringList& options = {}, const QStringList& documents = {}, const QString& queue = {});
    // Answers the next modal message box with the button of that text.
    void answerMessageBox(const QString& button);
    void click(const QString& entry);
    template <typename T>
    T* widget(const char* name)
    {
        T* w = m_window->findChild<T*>(QString::fromLatin1(name));
        if (!w)
            qWarning("no widget %s", name);
        return w;
    }
    QString notice() { return widget<QStatusBar>("statusBar")->currentMessage(); }

    QTemporaryDir m_dir;
    QString m_ppd;
    QStringList m_journal;
    std::shared_ptr<RecordingPanel> m_a, m_b, m_c;
    std::unique_ptr<PrintDialogWindow> m_window;
    std::unique_ptr<PrivateCupsServer> m_cups;  // where one can run
    QString m_cupsSkipped;
};

void WindowTest::initTestCase()
{
    // A private CUPS server for the presets and printing, before anything
    // asks libcups (it reads where its server is at its first call).
    QString why;
    if (PrivateCupsServer::canRun(&why)) {
        m_cups = std::make_unique<PrivateCupsServer>();
        QString error;
        QVERIFY2(m_cups->start(&error), qPrintable(error));
        m_cups->applyClientEnvironment();
        cupsSetServer(m_cups->address().toUtf8().constData());
        QVERIFY2(m_cups->addQueue(QStringLiteral("panels"), TestSupport::samplePPD(), &error), qPrintable(error));
    } else {
        m_cupsSkipped = why;
    }
    QVERIFY(m_dir.isValid());
    m_ppd = TestSupport::writePPD(m_dir, QStringLiteral("fixture.ppd"), QString::fromLatin1(kFixtureBody));
    QVERIFY(!m_ppd.isEmpty());
}

void WindowTest::cleanupTestCase()
{
    if (m_cups)
        m_cups->stop();
}

void WindowTest::cleanup()
{
    m_window.reset();
    m_a.reset();
    m_b.reset();
    m_c.reset();
    m_journal.clear();
}

void WindowTest::openWindow(const QStringList& options, const QStringList& documents, const QString& queue)
{
    m_window = std::make_unique<PrintDialogWindow>();
    PanelSession::Options o;
    if (queue.isEmpty())
        o.ppdPath = m_ppd;
    o.printer = queue;
    o.optionStrings = options;
    QString error;
    QVERIFY2(m_window->openSession(o, &error), qPrintable(error));
    m_window->setDocuments(documents);
    m_a = std::make_shared<RecordingPanel>(QStringLiteral("A"), &m_journal);
    m_b = std::make_shared<RecordingPanel>(QStringLiteral("B"), &m_journal);
    m_c = std::make_shared<RecordingPanel>(QStringLiteral("C"), &m_journal);
    for (const auto& p : {m_a, m_b, m_c})
        m_window->addPanel(p);
    QCOMPARE(m_journal, QStringList({"A:restore", "B:restore", "C:restore"}));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    click(QStringLiteral("A"));
    QCOMPARE(m_window->currentPanel(), m_a.get());
    m_journal.clear();
}

void WindowTest::answerMessageBox(const QString& button)
{
    auto* poll = new QTimer(this);
    connect(poll, &QTimer::timeout, this, [poll, button] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        poll->stop();
        poll->deleteLater();
        for (QAbstractButton* b : box->buttons())
            if (withoutMnemonic(b->text()) == button)
                QTest::mouseClick(b, Qt::LeftButton);
    });
    poll->start(20);
}

void WindowTest::click(const QString& entry)
{
    auto* list = widget<QListWidget>("panelList");
    const QList<QListWidgetItem*> items = list->findItems(entry, Qt::MatchExactly);
    QCOMPARE(items.size(), 1);
    list->scrollToItem(items.first());
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(items.first()).center());
}

void WindowTest::switchingPanels_data()
{
    QTest::addColumn<QStringList>("clicks");
    QTest::addColumn<QStringList>("journal");
    QTest::addColumn<QString>("shown");  // panel shown at the end, or "Summary"

    QTest::newRow("to the next panel") << QStringList{"B"} << QStringList{"A:shouldHide", "B:willShow"} << "B";
    QTest::newRow("there and back") << QStringList{"C", "A"}
                                    << QStringList{"A:shouldHide", "C:willShow", "C:shouldHide", "A:willShow"} << "A";
    QTest::newRow("through the summary") << QStringList{"Summary", "B"} << QStringList{"A:shouldHide", "B:willShow"} << "B";
    QTest::newRow("to the summary") << QStringList{"Summary"} << QStringList{"A:shouldHide"} << "Summary";
    QTest::newRow("the panel shown again") << QStringList{"A"} << QStringList{} << "A";
}

void WindowTest::switchingPanels()
{
    QFETCH(QStringList, clicks);
    QFETCH(QStringList, journal);
    QFETCH(QString, shown);
    openWindow();
    for (const QString& c : clicks)
        click(c);
    QCOMPARE(m_journal, journal);

    auto* area = widget<QScrollArea>("panelArea");
    auto* stack = widget<QStackedWidget>("pageStack");
    if (shown == QLatin1String("Summary")) {
        QCOMPARE(stack->currentWidget()->objectName(), QStringLiteral("summaryPage"));
        QVERIFY(!m_window->currentPanel());
        QVERIFY(!area->widget());
    } else {
        QCOMPARE(stack->currentWidget()->objectName(), QStringLiteral("panelPage"));
        QCOMPARE(m_window->currentPanel()->panelName(), shown);
        // The panel's own view is what the area shows, and only that panel's.
        QCOMPARE(area->widget(), m_window->currentPanel()->panelView());
        QVERIFY(m_window->currentPanel()->panelView()->isVisible());
        for (const auto& p : {m_a, m_b, m_c})
            if (p.get() != m_window->currentPanel())
                QVERIFY(!p->panelView()->isVisible());
    }
}

void WindowTest::refusedHide_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("to another panel") << "C";
    QTest::newRow("to the summary") << "Summary";
}

void WindowTest::refusedHide()
{
    QFETCH(QString, target);
    openWindow();
    m_a->allowHide = false;
    click(target);
    QCOMPARE(m_journal, QStringList{"A:shouldHide"});
    QCOMPARE(m_window->currentPanel(), m_a.get());
    QCOMPARE(widget<QListWidget>("panelList")->currentItem()->text(), QStringLiteral("A"));
    QCOMPARE(widget<QScrollArea>("panelArea")->widget(), m_a->panelView());
    QVERIFY(notice().contains(QStringLiteral("A")));

    // Once the panel lets go, the same click switches.
    m_a->allowHide = true;
    m_journal.clear();
    click(target);
    QCOMPARE(m_journal.value(0), QStringLiteral("A:shouldHide"));
    QVERIFY(m_window->currentPanel() != m_a.get());
}

void WindowTest::jobControls_data()
{
    QTest::addColumn<QString>("first");    // a button clicked first, or empty
    QTest::addColumn<QString>("control");  // the control typed into
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("thenKey");  // a key pressed after typing, or 0
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected");

    QTest::newRow("copies") << "" << "copiesSpin" << "3" << 0 << "copies" << "3";
    QTest::newRow("page range") << "pageRangeRadio" << "pageRangeEdit" << "2-4,7" << 0 << "page-ranges" << "2-4,7";
    QTest::newRow("paper size") << "" << "paperSizeCombo" << "A4" << 0 << "PageSize" << "A4";
    QTest::newRow("landscape") << "" << "orientationCombo" << "L" << 0 << "orientation-requested" << "4";
    QTest::newRow("reverse landscape") << "" << "orientationCombo" << "R" << int(Qt::Key_Down) << "orientation-requested" << "5";
    QTest::newRow("4 pages per sheet") << "" << "pagesPerSheetCombo" << "4" << 0 << "number-up" << "4";
    QTest::newRow("16 pages per sheet") << "" << "pagesPerSheetCombo" << "16" << 0 << "number-up" << "16";
    QTest::newRow("cover page") << "" << "coverPageCombo" << "St" << 0 << "job-sheets" << "standard";
}

void WindowTest::jobControls()
{
    QFETCH(QString, first);
    QFETCH(QString, control);
    QFETCH(QString, typed);
    QFETCH(int, thenKey);
    QFETCH(QString, key);
    QFETCH(QString, expected);
    openWindow();
    QVERIFY(jobOption(m_window.get(), key) != expected);
    QSignalSpy updates(&m_window->session()->host(), &PrintDialogHost::update);

    if (!first.isEmpty())
        QTest::mouseClick(widget<QAbstractButton>(first.toLatin1().constData()), Qt::LeftButton);
    QWidget* w = widget<QWidget>(control.toLatin1().constData());
    QVERIFY(w && w->isEnabled());
    w->setFocus();
    if (qobject_cast<QSpinBox*>(w))
        QTest::keyClick(w, Qt::Key_A, Qt::ControlModifier);  // select the number to type over it
    QTest::keyClicks(w, typed);
    if (thenKey)
        QTest::keyClick(w, Qt::Key(thenKey));

    QCOMPARE(jobOption(m_window.get(), key), expected);
    QVERIFY(updates.count() >= 1);
    // The panels read the same value from the host's print settings or PPD marks.
    if (key != QLatin1String("PageSize"))
        QCOMPARE(m_window->session()->host().printSettings()->value(key), expected);
}

void WindowTest::resolutionNotice_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("notice");  // empty: none expected
    QTest::addColumn<QList<QPair<QString, QString>>>("told");

    using Changes = QList<QPair<QString, QString>>;
    QTest::newRow("A4 turns long-edge duplex off")
        << QStringList{} << "2-Sided Printing set to Off" << Changes{{"PageSize", "A4"}, {"Duplex", "None"}};
    QTest::newRow("A4 with duplex already off") << QStringList{"Duplex=None"} << "" << Changes{{"PageSize", "A4"}};
}

void WindowTest::resolutionNotice()
{
    QFETCH(QStringList, options);
    QFETCH(QString, notice);
    using Changes = QList<QPair<QString, QString>>;
    QFETCH(Changes, told);
    openWindow(options);
    QVERIFY(this->notice().isEmpty());

    auto* paper = widget<QComboBox>("paperSizeCombo");
    paper->setFocus();
    QTest::keyClicks(paper, QStringLiteral("A4"));
    QCOMPARE(jobOption(m_window.get(), QStringLiteral("PageSize")), QStringLiteral("A4"));
    if (notice.isEmpty()) {
        QTest::qWait(100);
        QVERIFY2(this->notice().isEmpty(), qPrintable(this->notice()));
    } else {
        QTRY_VERIFY2(this->notice().contains(notice), qPrintable(this->notice()));
        QCOMPARE(jobOption(m_window.get(), QStringLiteral("Duplex")), QStringLiteral("None"));
    }
    QTRY_COMPARE(m_a->changesReceived, told);
    QCOMPARE(m_c->changesReceived, told);
}

void WindowTest::summary()
{
    openWindow();
    m_a->summary = {{"Duplex", "None"}, {"PINCode", "4321"}, {"note", "free text"}};
    click(QStringLiteral("Summary"));
    auto* tree = widget<QTreeWidget>("summaryTree");
    QMap<QString, QTreeWidgetItem*> groups;
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
        groups.insert(tree->topLevelItem(i)->text(0), tree->topLevelItem(i));
    // The job's settings, then every panel's, in the dialog's order.
    QCOMPARE(tree->topLevelItem(0)->text(0), QStringLiteral("Job"));
    QCOMPARE(tree->topLevelItemCount(), int(m_window->session()->panels().size()) + 1);
    for (const auto& p : m_window->session()->panels())
        QVERIFY(groups.contains(p->panelName()));
    auto rows = [](QTreeWidgetItem* g) {
        QMap<QString, QString> out;
        for (int i = 0; i < g->childCount(); ++i)
            out.insert(g->child(i)->text(0), g->child(i)->text(1));
        return out;
    };
    const QMap<QString, QString> a = rows(groups.value("A"));
    QCOMPARE(a.value("2-Sided Printing"), QStringLiteral("Off"));  // the PPD's texts
    QCOMPARE(a.value("note"), QStringLiteral("free text"));
    QCOMPARE(a.value("PINCode"), QStringLiteral("(hidden)"));
    QCOMPARE(rows(groups.value("Job")).value("Copies"), QStringLiteral("1"));
    QVERIFY(tree->findItems(QStringLiteral("4321"), Qt::MatchContains | Qt::MatchRecursive, 1).isEmpty());

    // A job setting changed while the summary is shown appears in it.
    auto* copies = widget<QSpinBox>("copiesSpin");
    copies->setFocus();
    QTest::keyClick(copies, Qt::Key_Up);
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
        if (tree->topLevelItem(i)->text(0) == QLatin1String("Job"))
            QCOMPARE(rows(tree->topLevelItem(i)).value("Copies"), QStringLiteral("2"));
}

void WindowTest::help_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("a");
    QTest::addColumn<int>("b");
    QTest::newRow("first panel") << "A" << 1 << 0;
    QTest::newRow("second panel") << "B" << 0 << 1;
    QTest::newRow("summary") << "Summary" << 0 << 0;
}

void WindowTest::help()
{
    QFETCH(QString, shown);
    QFETCH(int, a);
    QFETCH(int, b);
    openWindow();
    click(shown);
    auto* button = widget<QPushButton>("helpButton");
    QCOMPARE(button->isEnabled(), shown != QLatin1String("Summary"));
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(m_a->helpRequests, a);
    QCOMPARE(m_b->helpRequests, b);
    QCOMPARE(m_c->helpRequests, 0);
}

void WindowTest::panelViewResize()
{
    openWindow();
    auto* area = widget<QScrollArea>("panelArea");
    const int frame = 2 * area->frameWidth();
    const QSize asked(760, 540);
    QVERIFY(area->width() < asked.width() || area->height() < asked.height());
    m_a->resizeView(&m_window->session()->host(), asked);
    QCOMPARE(area->minimumSize(), asked + QSize(frame, frame));
    QTRY_VERIFY(area->width() >= asked.width() + frame && area->height() >= asked.height() + frame);
    QVERIFY(m_window->width() > asked.width() && m_window->height() > asked.height());

    // Another panel, then back: the size the panel asked for still holds.
    click(QStringLiteral("B"));
    QVERIFY(area->minimumSize() != asked + QSize(frame, frame));
    click(QStringLiteral("A"));
    QCOMPARE(area->minimumSize(), asked + QSize(frame, frame));
}

void WindowTest::alerts_data()
{
    QTest::addColumn<QString>("clicked");
    QTest::addColumn<int>("answer");
    QTest::newRow("default button") << "Print Anyway" << int(PDEAlerts::DefaultButton);
    QTest::newRow("alternate button") << "Cancel" << int(PDEAlerts::AlternateButton);
    QTest::newRow("other button") << "Later" << int(PDEAlerts::OtherButton);
}

void WindowTest::alerts()
{
    QFETCH(QString, clicked);
    QFETCH(int, answer);
    openWindow();
    QString seenText, seenMessage;
    QStringList seenButtons;
    // The box is modal: it is answered from the event loop it runs.
    QTimer poll;
    connect(&poll, &QTimer::timeout, this, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        poll.stop();
        seenText = box->text();
        seenMessage = box->informativeText();
        for (QAbstractButton* b : box->buttons()) {
            seenButtons << b->text();
            if (b->text() == clicked)
                QTest::mouseClick(b, Qt::LeftButton);
        }
    });
    poll.start(20);
    PDEAlerts::Alert alert;
    alert.title = QStringLiteral("The PIN is too short");
    alert.message = QStringLiteral("Enter four digits.");
    alert.defaultButton = QStringLiteral("Print Anyway");
    alert.alternateButton = QStringLiteral("Cancel");
    alert.otherButton = QStringLiteral("Later");
    QCOMPARE(PDEAlerts::runAlertPanel(alert), answer);
    QCOMPARE(seenText, alert.title);
    QCOMPARE(seenMessage, alert.message);
    seenButtons.sort();
    QCOMPARE(seenButtons, QStringList({"Cancel", "Later", "Print Anyway"}));
}

void WindowTest::printWithPPDOnly_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("documents");  // created in a temporary folder
    QTest::addColumn<QStringList>("contains");
    QTest::addColumn<QStringList>("lacks");
    QTest::addColumn<bool>("secretsNote");

    QTest::newRow("no documents") << QStringList{} << QStringList{}
                                  << QStringList{"lp -d fixture ", "-o copies=2", "-o PageSize=Letter"} << QStringList{} << false;
    QTest::newRow("a document with a blank") << QStringList{} << QStringList{"my report.txt"}
                                             << QStringList{"-o copies=2", "/my report.txt'"} << QStringList{} << false;
    QTest::newRow("a value with blanks and quotes")
        << QStringList{"note='say \"hi\" now'"} << QStringList{}
        << QStringList{R"('note="say \"hi\" now"')"} << QStringList{} << false;
    QTest::newRow("a PIN") << QStringList{"PINCode=9876"} << QStringList{}
                           << QStringList{"PINCode=\"<hidden>\""} << QStringList{"9876"} << true;
}

void WindowTest::printWithPPDOnly()
{
    QFETCH(QStringList, options);
    QFETCH(QStringList, documents);
    QFETCH(QStringList, contains);
    QFETCH(QStringList, lacks);
    QFETCH(bool, secretsNote);
    QTemporaryDir docs;
    QStringList paths;
    for (const QString& d : documents) {
        QFile f(docs.filePath(d));
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("hello\n");
        paths << f.fileName();
    }
    openWindow(options, paths);
    auto* copies = widget<QSpinBox>("copiesSpin");
    copies->setFocus();
    QTest::keyClick(copies, Qt::Key_Up);

    auto* print = widget<QPushButton>("printButton");
    QCOMPARE(withoutMnemonic(print->text()), QStringLiteral("Show lp Command…"));
    QVERIFY(print->isEnabled());
    QTest::mouseClick(print, Qt::LeftButton);
    LpCommandDialog* shown = nullptr;
    QTRY_VERIFY((shown = m_window->findChild<LpCommandDialog*>()) && shown->isVisible());
    // Every panel was asked, then saved, before the command was made.
    for (const char* p : {"A", "B", "C"})
        QVERIFY2(m_journal.contains(p + QStringLiteral(":save")), qPrintable(m_journal.join(' ')));

    const QString command = shown->findChild<QPlainTextEdit*>(QStringLiteral("lpCommandText"))->toPlainText();
    QCOMPARE(command, shown->command());
    QVERIFY(command.startsWith(QStringLiteral("lp -d fixture ")));
    for (const QString& c : contains)
        QVERIFY2(command.contains(c), qPrintable(command));
    for (const QString& l : lacks)
        QVERIFY2(!command.contains(l), qPrintable(command));
    QCOMPARE(shown->findChild<QLabel*>(QStringLiteral("secretsLabel"))->isVisibleTo(shown), secretsNote);
    // lp reads the arguments back as the options the job carries.
    QCOMPARE(command, LpCommand(QStringLiteral("fixture"), m_window->session()->host().jobOptions(), paths).commandLine());

    QGuiApplication::clipboard()->clear();
    QTest::mouseClick(shown->findChild<QPushButton*>(QStringLiteral("copyButton")), Qt::LeftButton);
    QCOMPARE(QGuiApplication::clipboard()->text(), command);
    QVERIFY(m_window->isVisible());  // nothing was printed: the dialog stays
}

void WindowTest::printerSwitch()
{
    openWindow();
    auto* copies = widget<QSpinBox>("copiesSpin");
    copies->setFocus();
    QTest::keyClick(copies, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(copies, QStringLiteral("3"));
    PanelSession* before = m_window->session();

    // The printer is picked from the pop-up's list.
    auto* printers = widget<QComboBox>("printerCombo");
    const int m200 = printers->findText(QStringLiteral("Velmora M200 (sample PPD file)"));
    QVERIFY(m200 >= 0);
    QTest::mouseClick(printers, Qt::LeftButton);
    QAbstractItemView* list = printers->view();
    QTRY_VERIFY(list->isVisible());
    // A pop-up ignores a release that comes as fast as a double click.
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    const QRect item = list->visualRect(printers->model()->index(m200, 0));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, item.center());
    QTRY_VERIFY(!list->isVisible());

    QVERIFY(m_window->session() != before);
    QVERIFY(m_window->session()->host().ppdPath().endsWith(QStringLiteral("velmora-m200.ppd")));
    QCOMPARE(printers->currentText(), QStringLiteral("Velmora M200 (sample PPD file)"));
    // The panel shown was left; the new printer has the plug-in's panels only.
    QCOMPARE(m_journal.value(0), QStringLiteral("A:shouldHide"));
    QVERIFY(widget<QListWidget>("panelList")->findItems(QStringLiteral("A"), Qt::MatchExactly).isEmpty());
    // The job settings chosen go along; the paper sizes are the new printer's.
    QCOMPARE(copies->value(), 3);
    QCOMPARE(m_window->session()->host().printSettings()->value(QStringLiteral("copies")), QStringLiteral("3"));
    QVERIFY(widget<QComboBox>("paperSizeCombo")->findText(QStringLiteral("US Legal")) >= 0);
}

void WindowTest::commandLine_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<bool>("screenshots");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("stderrHas");

    QTest::newRow("no display: the description instead")
        << QStringList{} << false << int(ExitOK) << "no display to show the dialog on";
    QTest::newRow("screenshots of the window") << QStringList{} << true << int(ExitOK) << "";
    QTest::newRow("a missing document") << QStringList{"/nonexistent/report.pdf"} << true << int(ExitBadInput)
                                        << "/nonexistent/report.pdf: no such file";
}

void WindowTest::commandLine()
{
    QFETCH(QStringList, args);
    QFETCH(bool, screenshots);
    QFETCH(int, exitCode);
    QFETCH(QString, stderrHas);
    QTemporaryDir shots;
    QStringList env{"DISPLAY=", "WAYLAND_DISPLAY="};
    if (screenshots)
        env << QStringLiteral("PRINT_PANELS_SCREENSHOTS=") + shots.path();
    QString out, err;
    QCOMPARE(TestSupport::runApp(QStringList{"--ppd", m_ppd} + args, &out, &err, env), exitCode);
    if (!stderrHas.isEmpty())
        QVERIFY2(err.contains(stderrHas), qPrintable(err));
    if (exitCode != ExitOK)
        return;
    if (!screenshots) {
        QCOMPARE(err.count(QStringLiteral("no display")), 1);
        QVERIFY(QJsonDocument::fromJson(out.toUtf8()).object().contains(QStringLiteral("panels")));
        return;
    }
    // One picture as the dialog opens, one per panel, one of the summary and
    // (a PPD file without a queue) one of the lp command.
    QString describeOut;
    QCOMPARE(TestSupport::runApp({"--ppd", m_ppd, "--describe"}, &describeOut, nullptr), 0);
    const int panels = int(QJsonDocument::fromJson(describeOut.toUtf8()).object().value("panels").toArray().size());
    const QStringList files = QDir(shots.path()).entryList({"*.png"}, QDir::Files, QDir::Name);
    QCOMPARE(files.size(), panels + 3);
    QVERIFY(files.contains("dialog.png") && files.contains("summary.png") && files.contains("lp-command.png"));
    const QImage image(QDir(shots.path()).filePath("dialog.png"));
    QVERIFY(image.width() >= 600 && image.height() >= 400);
}

void WindowTest::presets()
{
    if (!m_cups)
        QSKIP(qPrintable(QStringLiteral("no private cupsd: ") + m_cupsSkipped));
    openWindow({"PINCode=2468"}, {}, QStringLiteral("panels"));
    auto* presets = widget<QComboBox>("presetCombo");
    auto* copies = widget<QSpinBox>("copiesSpin");
    QVERIFY(presets->isEnabled());
    QCOMPARE(presets->currentText(), QStringLiteral("Default settings"));
    QVERIFY(!widget<QPushButton>("deletePresetButton")->isEnabled());
    copies->setFocus();
    QTest::keyClick(copies, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(copies, QStringLiteral("4"));

    // Save As...: a name is asked for, then the preset is kept.
    QTest::mouseClick(widget<QPushButton>("savePresetButton"), Qt::LeftButton);
    QInputDialog* ask = nullptr;
    QTRY_VERIFY((ask = m_window->findChild<QInputDialog*>(QStringLiteral("presetNameDialog"))) && ask->isVisible());
    auto* nameField = ask->findChild<QLineEdit*>();
    nameField->selectAll();
    QTest::keyClicks(nameField, QStringLiteral("Draft"));
    QTest::keyClick(nameField, Qt::Key_Return);
    QTRY_COMPARE(presets->currentText(), QStringLiteral("Draft"));
    QVERIFY(notice().contains(QStringLiteral("Draft")));
    QVERIFY(widget<QPushButton>("deletePresetButton")->isEnabled());

    // In the user's lpoptions, readable by the user only, without the PIN.
    QFile lpoptions(PresetStore::lpoptionsPath());
    QVERIFY2(lpoptions.open(QIODevice::ReadOnly), qPrintable(lpoptions.fileName()));
    const QByteArray saved = lpoptions.readAll();
    QVERIFY2(saved.contains("panels/Draft") && saved.contains("copies=4"), saved.constData());
    QVERIFY(!saved.contains("2468"));
    struct stat st {};
    QCOMPARE(::stat(QFile::encodeName(lpoptions.fileName()).constData(), &st), 0);
    QCOMPARE(int(st.st_mode & 0777), 0600);

    // The queue's defaults, then the preset again.
    presets->setFocus();
    QTest::keyClick(presets, Qt::Key_Home);
    QTRY_COMPARE(copies->value(), 1);
    QCOMPARE(presets->currentText(), QStringLiteral("Default settings"));
    QTest::keyClick(presets, Qt::Key_End);
    QTRY_COMPARE(copies->value(), 4);
    QCOMPARE(m_window->session()->host().pmPrinter()->name(), QStringLiteral("panels/Draft"));

    // Delete asks first; the preset goes from the list and the file.
    answerMessageBox(QStringLiteral("Yes"));
    QTest::mouseClick(widget<QPushButton>("deletePresetButton"), Qt::LeftButton);
    QTRY_VERIFY(presets->findText(QStringLiteral("Draft")) < 0);
    QVERIFY(lpoptions.seek(0));
    lpoptions.close();
    QVERIFY(lpoptions.open(QIODevice::ReadOnly));
    QVERIFY(!lpoptions.readAll().contains("panels/Draft"));
}

void WindowTest::printToQueue()
{
    if (!m_cups)
        QSKIP(qPrintable(QStringLiteral("no private cupsd: ") + m_cupsSkipped));
    QTemporaryDir docs;
    QFile doc(docs.filePath(QStringLiteral("letter one.txt")));
    QVERIFY(doc.open(QIODevice::WriteOnly));
    doc.write("Dear reader,\n");
    doc.close();
    openWindow({R"(note='say "hi" now')"}, {}, QStringLiteral("panels"));
    auto* print = widget<QPushButton>("printButton");
    QCOMPARE(withoutMnemonic(print->text()), QStringLiteral("Print"));
    QVERIFY(!print->isEnabled());  // nothing to print yet
    m_window->setDocuments({doc.fileName()});
    QVERIFY(print->isEnabled());
    auto* copies = widget<QSpinBox>("copiesSpin");
    copies->setFocus();
    QTest::keyClick(copies, Qt::Key_Up);

    const int before = int(m_cups->capturedJobs(QStringLiteral("panels")).size());
    QSignalSpy sent(m_window.get(), &PrintDialogWindow::jobSubmitted);
    QTest::mouseClick(print, Qt::LeftButton);
    QCOMPARE(sent.count(), 1);
    const int job = sent.first().first().toInt();
    QVERIFY(job > 0);
    QVERIFY(!m_window->isVisible());  // the dialog closes once the job is sent
    QCOMPARE(m_window->result(), int(QDialog::Accepted));
    QVERIFY(m_journal.contains(QStringLiteral("A:save")));  // the panels saved before the job went

    QVERIFY2(m_cups->waitForJobs(QStringLiteral("panels"), before + 1), qPrintable(m_cups->errorLog()));
    PrivateCupsServer::CapturedJob captured;
    for (const auto& j : m_cups->capturedJobs(QStringLiteral("panels")))
        if (j.id == job)
            captured = j;
    QCOMPARE(captured.id, job);
    QCOMPARE(captured.copies(), 2);
    QCOMPARE(captured.title(), QStringLiteral("letter one.txt"));
    QCOMPARE(captured.documents.value(0), QByteArray("Dear reader,\n"));
    const QMap<QString, QString> options = captured.parsedOptions();
    QCOMPARE(options.value(QStringLiteral("note")), QStringLiteral(R"(say "hi" now)"));
    QCOMPARE(options.value(QStringLiteral("PageSize")), QStringLiteral("Letter"));
}

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
