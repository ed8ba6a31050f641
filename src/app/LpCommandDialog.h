#pragma once
#include <QDialog>
#include <memory>

namespace Ui {
class LpCommandDialog;
}

// Shows the lp command line that prints the documents with the dialog's
// settings, for a printer that is only a PPD file, with a button that copies
// it to the clipboard.
class LpCommandDialog : public QDialog {
    Q_OBJECT
public:
    // hidesSecrets: the command shows passwords or PINs as a placeholder.
    LpCommandDialog(const QString& command, bool hidesSecrets, QWidget* parent = nullptr);
    ~LpCommandDialog() override;
    QString command() const { return m_command; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void copyToClipboard();

    std::unique_ptr<Ui::LpCommandDialog> ui;
    QString m_command;
};
