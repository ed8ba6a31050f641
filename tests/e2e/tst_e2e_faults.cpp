// Faults met while printing against a private cupsd: the server stopping in
// the middle of a job or restarting while the dialog is open, an lpoptions
// file that cannot be written, a queue given another PPD while the dialog is
// open. Each ends in a clear error or goes through, never in a job said to be
// sent that was not, and the user's choices stay.
#include "PresetStore.h"
#include "PrintDialogWindow.h"
#include "PrivateCupsServer.h"
#include "TestSupport.h"

#include <QApplication>
#include <QComboBox>
#include <QDeadlineTimer>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <algorithm>
#include <csignal>
#include <cups/cups.h>
#include <cups/ppd.h>
#include <fcntl.h>
#include <linux/capability.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

namespace {
// Sets or clears CAP_DAC_OVERRIDE in this thread's effective set: without it
// root too is held to a folder's permissions.
void setDacOverride(bool on)
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct data[2]{};
    if (::syscall(SYS_capget, &header, data) != 0)
        return;
    if (on)
        data[0].effective |= data[0].permitted & (1u << CAP_DAC_OVERRIDE);
    else
        data[0].effective &= ~(1u << CAP_DAC_OVERRIDE);
    ::syscall(SYS_capset, &header, data);
}
}

class TestE2EFaults : public QObject {
    Q_OBJECT

private:
    PrivateCupsServer m_server;
    QTemporaryDir m_docs;
    std::unique_ptr<PrintDialogWindow> m_window;
    QStringList m_boxes;  // the texts of the message boxes shown, each closed at once
    QTimer m_closer;

    void openWindow(const QString& queue, const QStringList& docs, const QString& options)
    {
        QString error;
        m_window.reset();  // the old window lets go of the alert handler first
        m_window = std::make_unique<PrintDialogWindow>();
        QVERIFY2(m_window->openSession({{}, queue, m_server.address(), {}, {options}}, &error), qPrintable(error));
        m_window->setDocuments(docs);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        widget<QSpinBox>("copiesSpin")->setValue(3);  // a choice made in the dialog
        QVERIFY(m_window->session()->prepareToPrint(nullptr));  // the panels' settings saved, as Print saves them
        m_boxes.clear();
    }

    template <typename T>
    T* widget(const char* name) { return m_window->findChild<T*>(QLatin1String(name)); }
    PrintDialogHost::OptionList choices() { return m_window->session()->host().jobOptions(); }

    // Clicks Print; answers the job sent, or 0.
    int clickPrint()
    {
        QSignalSpy submitted(m_window.get(), &PrintDialogWindow::jobSubmitted);
        QTest::mouseClick(widget<QPushButton>("printButton"), Qt::LeftButton);
        return submitted.isEmpty() ? 0 : submitted.first().first().toInt();
    }

    // Jobs the server finished printing (not cancelled nor aborted ones).
    static int completedJobs()
    {
        cups_job_t* jobs = nullptr;
        const int count = cupsGetJobs2(CUPS_HTTP_DEFAULT, &jobs, nullptr, 0, CUPS_WHICHJOBS_ALL);
        const int done = int(std::count_if(jobs, jobs + qMax(count, 0), [](const cups_job_t& j) { return j.state == IPP_JSTATE_COMPLETED; }));
        cupsFreeJobs(count, jobs);
        return count < 0 ? -1 : done;
    }

private slots:
    void initTestCase()
    {
        QString why;
        if (!PrivateCupsServer::canRun(&why))
            QSKIP(qPrintable(QStringLiteral("faults against a private cupsd skipped: ") + why));
        QVERIFY2(m_server.start(&why) && m_server.addQueue("q", TestSupport::samplePPD(), &why), qPrintable(why));
        std::signal(SIGPIPE, SIG_IGN);  // a document fed after its reader gave up
        std::signal(SIGXFSZ, SIG_IGN);  // a write past the file size limit fails instead
        connect(&m_closer, &QTimer::timeout, this, [this] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                m_boxes << box->text(), box->reject();
        });
        m_closer.start(20);
    }

    void cleanupTestCase()
    {
        m_window.reset();
        m_server.stop();
    }

    void serverStopsMidPrint_data()
    {
        QTest::addColumn<bool>("dialog");
        QTest::newRow("print-panels --print") << false;
        QTest::newRow("the dialog's Print button") << true;
    }

    // The document is a pipe the test feeds: a first part, then the server
    // is stopped, then the rest. The job fails with an error, nothing says it
    // was sent, and the restarted server prints nothing of it.
    void serverStopsMidPrint()
    {
        QFETCH(bool, dialog);
        const QString fifo = m_docs.filePath(QStringLiteral("stream-%1.txt").arg(dialog));
        QVERIFY(::mkfifo(QFile::encodeName(fifo).constData(), 0600) == 0);
        const int completed = completedJobs();
        if (dialog)
            openWindow("q", {fifo}, "Duplex=DuplexNoTumble");
        const PrintDialogHost::OptionList before = dialog ? choices() : PrintDialogHost::OptionList();
        const qint64 pid = m_server.pid();
        const quint16 port = m_server.address().section(':', 1).toUShort();
        std::thread feeder([&] {
            const QByteArray block(256 * 1024, 'x');
            // Opened once the job reads it (not at all when it never does).
            int fd = -1;
            for (const QDeadlineTimer deadline(20000); fd < 0 && !deadline.hasExpired(); QThread::msleep(10))
                fd = ::open(QFile::encodeName(fifo).constData(), O_WRONLY | O_NONBLOCK);
            if (fd < 0)
                return;
            ::fcntl(fd, F_SETFL, 0);
            // A pipe holds 64 KiB: once a megabyte is written, the job is on its way.
            for (int i = 0; i < 4; ++i)
                (void)::write(fd, block.constData(), block.size());
            ::kill(pid_t(pid), SIGTERM);
            while (http_t* http = httpConnect2("127.0.0.1", port, nullptr, AF_INET, HTTP_ENCRYPTION_NEVER, 0, 200, nullptr))
                httpClose(http), QThread::msleep(10);
            for (int i = 0; i < 32; ++i)
                if (::write(fd, block.constData(), block.size()) < 0)
                    break;  // the reader gave up
            ::close(fd);
        });
        QString out, err;
        int status = 0, job = 0;
        if (dialog)
            job = clickPrint();
        else
            status = m_server.print({"--printer", "q", "--print", fifo}, &out, &err);
        feeder.join();
        QString error;
        QVERIFY2(m_server.restart(&error), qPrintable(error));
        if (dialog) {
            QCOMPARE(job, 0);
            QVERIFY(m_window->isVisible());
            QCOMPARE(m_boxes.size(), 1);
            err = m_boxes.first();
            QVERIFY2(err.startsWith("The job was not printed: "), qPrintable(err));
            QCOMPARE(choices(), before);
            QCOMPARE(widget<QSpinBox>("copiesSpin")->value(), 3);
        } else {
            QCOMPARE(status, 1);
            QVERIFY2(err.startsWith("print-panels: ") && err.count('\n') == 1, qPrintable(err));
            QVERIFY2(!out.contains("request id is"), qPrintable(out));
        }
        QVERIFY2(err.contains(QStringLiteral("the connection to the CUPS server %1 was lost").arg(m_server.address())), qPrintable(err));
        QCOMPARE(completedJobs(), completed);
    }

    void serverChangesWhileDialogIsOpen_data()
    {
        QTest::addColumn<bool>("newPPD");
        QTest::newRow("cupsd restarts on the same port") << false;
        QTest::newRow("the queue gets another PPD (lpadmin -P)") << true;
    }

    // A restarted server is used again: the job goes through with the
    // user's choices. A queue given another PPD prints nothing at first: the
    // dialog loads the new PPD with the choices it has room for, names the
    // one it has not, and the next Print sends them.
    void serverChangesWhileDialogIsOpen()
    {
        QFETCH(bool, newPPD);
        QString error, out;
        const QString queue = newPPD ? "changing" : "restarting";
        QVERIFY2(m_server.addQueue(queue, TestSupport::samplePPD(), &error), qPrintable(error));
        openWindow(queue, {TestSupport::fixture("model-options.txt")}, "ColorModel=Gray MediaType=Thick");
        if (newPPD)
            QVERIFY(m_server.runClient("lpadmin", {"-p", queue, "-P", TestSupport::samplePPD("velmora-m200")}, &out));
        else
            QVERIFY2(m_server.restart(&error), qPrintable(error));
        int id = clickPrint();
        if (newPPD) {
            QCOMPARE(id, 0);
            QVERIFY(m_window->isVisible());
            QCOMPARE(m_boxes.size(), 1);
            QVERIFY2(m_boxes.first().contains("was changed on the server") && m_boxes.first().contains("Grayscale")
                         && !m_boxes.first().contains("Thick"), qPrintable(m_boxes.first()));
            QVERIFY(!ppdFindOption(m_window->session()->host().ppd(), "ColorModel"));
            QCOMPARE(widget<QSpinBox>("copiesSpin")->value(), 3);
            id = clickPrint();
        }
        QVERIFY2(id > 0, qPrintable(m_boxes.join('\n')));
        PrivateCupsServer::CapturedJob job;
        QVERIFY2(m_server.waitForJob(queue, id, &job), qPrintable(m_server.errorLog()));
        QCOMPARE(job.copies(), 3);
        QCOMPARE(job.parsedOptions().value("MediaType"), QStringLiteral("Thick"));
        QCOMPARE(job.parsedOptions().value("ColorModel"), newPPD ? QString() : QStringLiteral("Gray"));
    }

    void lpoptionsCannotBeWritten_data()
    {
        QTest::addColumn<bool>("fullDisk");
        QTest::newRow("read-only ~/.cups") << false;
        QTest::newRow("full disk") << true;
    }

    // Saving a preset and the queue's defaults fail with a clear error; the
    // file stays byte for byte, the presets and the choices as they were.
    void lpoptionsCannotBeWritten()
    {
        QFETCH(bool, fullDisk);
        QString error;
        QVERIFY2(PresetStore("q").save("Kept", {{"Duplex", "DuplexNoTumble"}}, &error), qPrintable(error));
        const QString file = PresetStore::lpoptionsPath();
        const QByteArray old = TestSupport::readFile(file);
        openWindow("q", {}, "ColorModel=Gray");
        const PrintDialogHost::OptionList before = choices();
        auto* presets = widget<QComboBox>("presetCombo");
        const int presetCount = presets->count();

        const QString dir = QFileInfo(file).absolutePath();
        const rlimit unlimited{RLIM_INFINITY, RLIM_INFINITY}, full{16, RLIM_INFINITY};
        if (fullDisk) {
            QVERIFY(::setrlimit(RLIMIT_FSIZE, &full) == 0);
        } else {
            QVERIFY(QFile::setPermissions(dir, QFile::ReadOwner | QFile::ExeOwner));
            setDacOverride(false);
        }
        QTest::mouseClick(widget<QPushButton>("savePresetButton"), Qt::LeftButton);
        QInputDialog* ask = nullptr;
        QTRY_VERIFY((ask = m_window->findChild<QInputDialog*>()) && ask->isVisible());
        QTest::keyClicks(ask->findChild<QLineEdit*>(), QStringLiteral("Lost"));
        QTest::keyClick(ask->findChild<QLineEdit*>(), Qt::Key_Return);
        QTRY_COMPARE(m_boxes.size(), 1);
        widget<QAction>("useAsDefaultsAction")->trigger();
        ::setrlimit(RLIMIT_FSIZE, &unlimited);
        setDacOverride(true);
        QFile::setPermissions(dir, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

        QCOMPARE(m_boxes.size(), 2);
        const QString why = QStringLiteral("%1 cannot be written: ").arg(file);
        QVERIFY2(m_boxes[0].startsWith("The preset cannot be saved: " + why), qPrintable(m_boxes[0]));
        QVERIFY2(m_boxes[1].startsWith("The defaults cannot be saved: " + why), qPrintable(m_boxes[1]));
        QCOMPARE(TestSupport::readFile(file), old);
        QCOMPARE(QDir(dir).entryList(QDir::Files), QStringList{"lpoptions"});  // no temporary file left
        QCOMPARE(presets->count(), presetCount);
        QCOMPARE(presets->currentText(), QStringLiteral("Default settings"));
        QCOMPARE(choices(), before);
    }

};

QTEST_MAIN(TestE2EFaults)
#include "tst_e2e_faults.moc"
