#include "LpCommandDialog.h"

#include "ui_LpCommandDialog.h"

#include <QClipboard>
#include <QEvent>
#include <QFontDatabase>
#include <QGuiApplication>

LpCommandDialog::LpCommandDialog(const QString& command, bool hidesSecrets, QWidget* parent)
    : QDialog(parent), ui(std::make_unique<Ui::LpCommandDialog>()), m_command(command)
{
    ui->setupUi(this);
    ui->lpCommandText->setPlainText(command);
    ui->secretsLabel->setVisible(hidesSecrets);
    ui->lpCommandText->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    connect(ui->copyButton, &QPushButton::clicked, this, &LpCommandDialog::copyToClipboard);
}

LpCommandDialog::~LpCommandDialog() = default;

void LpCommandDialog::copyToClipboard()
{
    QGuiApplication::clipboard()->setText(m_command);
    ui->copiedLabel->setText(tr("Copied to the clipboard."));
}

void LpCommandDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QDialog::changeEvent(event);
}
