#include "MRPDE_MACDatePickerController.h"

#include "PDELog.h"

#include <QDateTimeEdit>
#include <QSignalBlocker>

const QString MRPDE_MACDatePickerController::kDatePattern = QStringLiteral("MM/dd/yyyy//HH:mm");

MRPDE_MACDatePickerController::MRPDE_MACDatePickerController(const PDEFeaturePtr& feature, QWidget* control,
                                                             MRPDE_MACChangeHandlerModel* model)
    : MRPDE_MACBaseController(feature, control, model)
{
    QDateTimeEdit* picker = datePicker();
    if (!picker || !feature)
        return;
    {
        const QSignalBlocker quiet(picker);
        picker->setDateTime(QDateTime::currentDateTime());
    }
    stepperButtonClicked(picker);
    // Changes made by the controller itself are made with the signals blocked,
    // so this is the user's action only.
    connect(picker, &QDateTimeEdit::dateTimeChanged, this, [this, picker] { stepperButtonClicked(picker); });
    observeFeatureCurrentValue(false);
}

MRPDE_MACDatePickerController::~MRPDE_MACDatePickerController() = default;

std::shared_ptr<MRPDE_MACDatePickerController>
MRPDE_MACDatePickerController::initiateControllerForFeatureWithControlModel(const PDEFeaturePtr& feature, QWidget* control,
                                                                            MRPDE_MACChangeHandlerModel* model)
{
    return std::make_shared<MRPDE_MACDatePickerController>(feature, control, model);
}

QDateTimeEdit* MRPDE_MACDatePickerController::datePicker() const
{
    return qobject_cast<QDateTimeEdit*>(control());
}

void MRPDE_MACDatePickerController::stepperButtonClicked(QDateTimeEdit* sender)
{
    _PDELog(this, QStringLiteral(" UIDelegate --::-- stepperButtonClicked (%@) "), PDEDescribeControl(sender));
    const PDEFeaturePtr f = feature();
    if (!f || !sender)
        return;
    const QString text = sender->dateTime().toLocalTime().toString(kDatePattern);
    const PDEChoicePtr value = f->currentValue();
    if (value && value->keyword() == text)
        return;
    f->setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(text, text));
}

void MRPDE_MACDatePickerController::observeValueForKeyPath(const QString& keyPath, QObject*, void*)
{
    if (keyPath != kCurrentValueKeyPath)
        return;
    const PDEFeaturePtr f = feature();
    const PDEChoicePtr value = f ? f->currentValue() : nullptr;
    QDateTimeEdit* picker = datePicker();
    if (!value || !picker)
        return;
    const QDateTime moment = QDateTime::fromString(value->keyword(), kDatePattern);
    // A text that is not a moment gives the picker no date: a date edit
    // cannot be empty, so it keeps the one it shows.
    if (!moment.isValid())
        return;
    const QSignalBlocker quiet(picker);
    picker->setDateTime(moment);
}
