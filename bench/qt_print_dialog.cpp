// Qt 6's own print dialog on a CUPS queue, the reference bench/dialog times
// print-panels' window against: bare, or with --properties, its Properties
// dialog opened by a click on its button. It closes right after the last
// window's first paint (exit status 1), as PRINT_PANELS_EXIT_AFTER_SHOW does.
#include <QApplication>
#include <QEvent>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTimer>

#include <cstdio>

namespace {
// Watches every window's UpdateRequest (a top level paints and flushes while
// it handles one): after the print dialog's first, it closes the dialog or
// clicks Properties; after the Properties dialog's first, it closes both.
class FirstPaintCloser : public QObject
{
public:
    FirstPaintCloser(QPrintDialog* dialog, bool properties)
        : m_dialog(dialog)
        , m_properties(properties)
    {
    }
    bool failed = false;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::UpdateRequest || m_done)
            return false;
        if (watched == m_dialog && !m_clicked) {
            if (!m_properties) {
                m_done = true;
                QTimer::singleShot(0, m_dialog, &QDialog::reject);
                return false;
            }
            m_clicked = true;
            auto* button = m_dialog->findChild<QPushButton*>(QStringLiteral("properties"));
            if (!button || !button->isEnabled()) {
                failed = m_done = true;
                QTimer::singleShot(0, m_dialog, &QDialog::reject);
                return false;
            }
            QTimer::singleShot(0, button, &QPushButton::click);
        } else if (m_clicked && watched != m_dialog && qobject_cast<QDialog*>(watched)) {
            // The Properties dialog runs its own event loop: it closes
            // first, then the print dialog.
            m_done = true;
            auto* sheet = static_cast<QDialog*>(watched);
            QTimer::singleShot(0, sheet, [this, sheet] {
                sheet->reject();
                QTimer::singleShot(0, m_dialog, &QDialog::reject);
            });
        }
        return false;
    }

private:
    QPrintDialog* m_dialog;
    bool m_properties;
    bool m_clicked = false;
    bool m_done = false;
};
}

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    const QStringList args = app.arguments();
    const bool properties = args.size() == 3 && args[2] == QLatin1String("--properties");
    if (args.size() != 2 && !properties) {
        std::fprintf(stderr, "usage: qt_print_dialog QUEUE [--properties]\n");
        return 2;
    }
    QPrinter printer;
    printer.setPrinterName(args[1]);
    if (printer.printerName() != args[1]) {
        std::fprintf(stderr, "qt_print_dialog: Qt knows no printer %s\n", qPrintable(args[1]));
        return 2;
    }
    QPrintDialog dialog(&printer);
    FirstPaintCloser closer(&dialog, properties);
    app.installEventFilter(&closer);
    dialog.exec();
    if (closer.failed) {
        std::fprintf(stderr, "qt_print_dialog: the Properties button cannot be clicked\n");
        return 2;
    }
    return 1;
}
