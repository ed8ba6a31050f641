#include "MRPDE_MACPopUpButtonController.h"

#include "PDELog.h"

#include <QComboBox>
#include <QStandardItemModel>

MRPDE_MACPopUpButtonController::MRPDE_MACPopUpButtonController(const PDEFeaturePtr& feature, QWidget* control,
                                                               MRPDE_MACChangeHandlerModel* model)
    : MRPDE_MACBaseController(feature, control, model)
{
    QComboBox* popUp = popUpButton();
    if (!popUp || !feature)
        return;
    if (!feature->selectable())
        popUp->setEnabled(false);
    // A fresh list of items, one per choice; per-item enabling is ours alone.
    // The combo box's own item list is refilled in one insertion: a list
    // model of our own would cost a round of connections per pop-up.
    auto* items = qobject_cast<QStandardItemModel*>(popUp->model());
    if (!items || items->QObject::parent() != popUp) {
        items = new QStandardItemModel(popUp);
        popUp->setModel(items);  // the combo box deletes a former list of its own
    }
    popUp->clear();
    QList<QStandardItem*> rows;
    int firstSelectable = -1;
    for (const PDEChoicePtr& choice : feature->choices()) {
        auto* item = new QStandardItem(choice->displayString());
        item->setEnabled(choice->selectable());
        if (firstSelectable < 0 && choice->selectable())
            firstSelectable = int(rows.size());
        rows.append(item);
    }
    items->invisibleRootItem()->appendRows(rows);
    // As with a new list: the first item the user may pick is the current one.
    popUp->setCurrentIndex(firstSelectable);
    connect(popUp, &QComboBox::activated, this, [this, popUp] { handlePopUpSelection(popUp); });
    observeFeatureCurrentValue(true);
}

MRPDE_MACPopUpButtonController::~MRPDE_MACPopUpButtonController() = default;

std::shared_ptr<MRPDE_MACPopUpButtonController>
MRPDE_MACPopUpButtonController::initiateControllerForFeatureWithControlModel(const PDEFeaturePtr& feature, QWidget* control,
                                                                             MRPDE_MACChangeHandlerModel* model)
{
    return std::make_shared<MRPDE_MACPopUpButtonController>(feature, control, model);
}

QComboBox* MRPDE_MACPopUpButtonController::popUpButton() const
{
    return qobject_cast<QComboBox*>(control());
}

void MRPDE_MACPopUpButtonController::selectItemWithTitle(const QString& title)
{
    QComboBox* popUp = popUpButton();
    if (!popUp)
        return;
    int index = -1;
    for (int i = 0; i < popUp->count() && index < 0; ++i)
        if (popUp->itemText(i) == title)
            index = i;
    popUp->setCurrentIndex(index);
}

void MRPDE_MACPopUpButtonController::observeValueForKeyPath(const QString& keyPath, QObject* object, void* context)
{
    if (keyPath == kCurrentValueKeyPath) {
        _PDELog(this, QStringLiteral("PopUpButton: observeValueForKeyPath - %@"), this);
        const PDEFeaturePtr f = feature();
        const PDEChoicePtr value = f ? f->currentValue() : nullptr;
        selectItemWithTitle(value ? value->displayString() : QString());
    }
    MRPDE_MACBaseController::observeValueForKeyPath(keyPath, object, context);
}

void MRPDE_MACPopUpButtonController::handlePopUpSelection(QComboBox* sender)
{
    _PDELog(this, QStringLiteral("OOOOOOOOOOOOOOOOO--> --> --> --> --> --> UIAction --::-- handlePopUpSelection (%@) "),
            PDEDescribeControl(sender));
    const PDEFeaturePtr f = feature();
    if (!f || !sender)
        return;
    if (!f->setCurrentValueWithChoiceWithDisplayString(sender->currentText())) {
        // Refused: show the value the feature kept.
        const PDEChoicePtr value = f->currentValue();
        selectItemWithTitle(value ? value->displayString() : QString());
    }
}

void MRPDE_MACPopUpButtonController::setEnabled(bool enabled)
{
    _PDELog(this, QStringLiteral("%@: setEnabled:%d"), this, enabled);
    const PDEFeaturePtr f = feature();
    if (f && f->selectable()) {
        MRPDE_MACBaseController::setEnabled(enabled);
    } else {
        _PDELog(this, QStringLiteral("%@: Feature not selectable hence setEnabled:NO"), this);
        MRPDE_MACBaseController::setEnabled(false);
    }
}
