#include "EditorWindow.h"

#include "PrintPanelsIntegration.h"

#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QStatusBar>

EditorWindow::EditorWindow(const QString& ppdFile, QWidget* parent)
    : QMainWindow(parent), m_editor(new QPlainTextEdit(this)), m_ppdFile(ppdFile)
{
    setWindowTitle(tr("Print Panels example"));
    m_editor->setPlainText(tr("Type a text, then choose File > Print…: the printer's panels are tabs of the print dialog's options."));
    setCentralWidget(m_editor);
    QMenu* file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("&Print…"), QKeySequence::Print, this, &EditorWindow::print);
    file->addAction(tr("&Quit"), QKeySequence::Quit, this, &QWidget::close);
    resize(640, 420);
}

void EditorWindow::print()
{
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, this);
    // Declared after the dialog, so it goes first and takes its tabs along.
    PrintPanelsIntegration panels;
    const bool withPanels = panels.addPanelsToDialog(&dialog, &printer, m_ppdFile);
    if (!withPanels)
        statusBar()->showMessage(tr("Printing without the panels: %1").arg(panels.errorString()));
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (withPanels && !panels.applyToPrinter(&printer)) {
        QMessageBox::warning(this, windowTitle(), tr("Not printed: %1").arg(panels.errorString()));
        return;
    }
    m_editor->document()->print(&printer);
    if (!withPanels)
        return;
    if (const int job = panels.submitJob(windowTitle()))
        statusBar()->showMessage(tr("Sent to %1 as job %2.").arg(panels.queue()).arg(job));
    else if (!panels.errorString().isEmpty())
        QMessageBox::warning(this, windowTitle(), tr("Not printed: %1").arg(panels.errorString()));
    else
        statusBar()->showMessage(tr("Printed to %1.").arg(printer.outputFileName()));
}
