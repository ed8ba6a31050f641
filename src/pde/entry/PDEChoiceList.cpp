#include "PDEChoiceList.h"

#include "PDEBundle.h"
#include "PDEStringExtension.h"

#include <QVariant>
#include <cups/ppd.h>

// A title equals a keyword only when both exist.
static bool sameTitle(const QString& title, const QString& keyword)
{
    return !title.isNull() && !keyword.isNull() && title == keyword;
}

template <class Record, const char* Table>
auto PDEChoiceList<Record, Table>::arrayFromPPDOption(ppd_option_t* option) -> std::optional<Array>
{
    if (!option)
        return std::nullopt;
    const int count = option->choices ? option->num_choices : 0;
    Array choices;
    choices.reserve(qMax(count, 0));
    for (int i = 0; i < count; ++i)
        choices.append(Record::choiceWithChoice(&option->choices[i]));
    return choices;
}

template <class Record, const char* Table>
std::shared_ptr<Record> PDEChoiceList<Record, Table>::findChoiceForString(const QString& keyword, const Array& choices)
{
    for (const std::shared_ptr<Record>& record : choices) {
        if (!record)
            continue;
        if (keyword.isNull() ? record->isDefaultChoice() : sameTitle(record->ppdTitle(), keyword))
            return record;
    }
    return nullptr;
}

template <class Record, const char* Table>
void PDEChoiceList<Record, Table>::initPopUpFromArray(QComboBox* popUp, const Array& choices, const PDEBundle* bundle)
{
    if (!popUp)
        return;
    popUp->clear();
    const QString table = QString::fromLatin1(Table);
    for (const std::shared_ptr<Record>& record : choices) {
        QString title;
        if (record)
            title = bundle ? bundle->localizedString(record->ppdTitle(), table) : record->userTitle();
        popUp->addItem(title, QVariant::fromValue(std::shared_ptr<MRPDEChoice>(record)));
    }
}

template <class Record, const char* Table>
QString PDEChoiceList<Record, Table>::createOptionTitle(ppd_option_t* option)
{
    return option ? stringWithCString(option->text, PPD_MAX_TEXT, kPDEUTF8StringEncoding) : QString();
}

template <class Record, const char* Table>
quint32 PDEChoiceList<Record, Table>::findPPDIndex(const QString& keyword, const Array& choices)
{
    for (qsizetype i = 0; i < choices.size(); ++i)
        if (choices[i] && sameTitle(choices[i]->ppdTitle(), keyword))
            return quint32(i);
    return 0xFFFFFFFFu;
}

template struct PDEChoiceList<MRAdvancedPDEChoice, kAdvancedOptionPDELocalizable>;
template struct PDEChoiceList<MRPDEChoice, kManualMarginPDELocalizable>;
template struct PDEChoiceList<MRPDEChoice, kSpecialPagePDELocalizable>;

std::shared_ptr<MRPDEChoice> PDEItemChoice(const QComboBox* popUp, int index)
{
    if (!popUp || index < 0 || index >= popUp->count())
        return nullptr;
    return popUp->itemData(index).value<std::shared_ptr<MRPDEChoice>>();
}
