#pragma once
#include <QMainWindow>

class QPlainTextEdit;

// A small text editor that prints through its own QPrintDialog, with the
// Print Panels added to the dialog's options.
class EditorWindow : public QMainWindow {
    Q_OBJECT
public:
    // ppdFile: the panels' PPD when the printer has no CUPS queue (or another PPD is wanted).
    explicit EditorWindow(const QString& ppdFile, QWidget* parent = nullptr);

    void print();

private:
    QPlainTextEdit* m_editor;
    QString m_ppdFile;
};
