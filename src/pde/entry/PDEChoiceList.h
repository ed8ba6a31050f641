#pragma once
#include "MRAdvancedPDEChoice.h"
#include "MRPDEChoice.h"

#include <QComboBox>
#include <QList>
#include <QMetaType>
#include <QString>
#include <memory>
#include <optional>

class PDEBundle;
struct ppd_option_s;

// A pop-up item filled from a choice list carries its record as its user
// data (Qt::UserRole), always as the base record type.
Q_DECLARE_METATYPE(std::shared_ptr<MRPDEChoice>)

using MRAdvancedPDEChoiceArray = QList<std::shared_ptr<MRAdvancedPDEChoice>>;
using MRPDEChoiceArray = QList<std::shared_ptr<MRPDEChoice>>;

// The string tables of the standalone panels.
inline constexpr char kAdvancedOptionPDELocalizable[] = "AdvancedOptionPDELocalizable";
inline constexpr char kManualMarginPDELocalizable[] = "ManualMarginPDELocalizable";
inline constexpr char kSpecialPagePDELocalizable[] = "SpecialPagePDELocalizable";

// The choice-list helpers the standalone panels share: turn a PPD option into
// records, find a record by keyword, fill a pop-up, make an option's title.
// Each panel uses them under its own names (below); those differ only in the
// record class they build and the string table the pop-up titles come from.
template <class Record, const char* Table>
struct PDEChoiceList {
    using Array = QList<std::shared_ptr<Record>>;

    // One record per choice of the option, in PPD order; nothing for a null
    // option, an empty list for an option without choices.
    static std::optional<Array> arrayFromPPDOption(ppd_option_s* option);
    // The first record whose PPD title is keyword (exact, case-sensitive); for
    // a null keyword, the first record that is its option's default. Null
    // when nothing matches.
    static std::shared_ptr<Record> findChoiceForString(const QString& keyword, const Array& choices);
    // Empties the pop-up, then adds one item per record in order, carrying the
    // record. Its title is the bundle's translation of the PPD title in Table
    // (the PPD title itself when there is none), or without a bundle the
    // record's user title, the PPD's own text.
    static void initPopUpFromArray(QComboBox* popUp, const Array& choices, const PDEBundle* bundle);
    // The option's text, decoded as UTF-8; null for a null option or text
    // that is not UTF-8.
    static QString createOptionTitle(ppd_option_s* option);
    // The position of the first record whose PPD title is keyword, 0xFFFFFFFF
    // when there is none.
    static quint32 findPPDIndex(const QString& keyword, const Array& choices);
};

using PDEAdvancedOptionChoiceList = PDEChoiceList<MRAdvancedPDEChoice, kAdvancedOptionPDELocalizable>;
using PDEManualMarginChoiceList = PDEChoiceList<MRPDEChoice, kManualMarginPDELocalizable>;
using PDESpecialPageChoiceList = PDEChoiceList<MRPDEChoice, kSpecialPagePDELocalizable>;

extern template struct PDEChoiceList<MRAdvancedPDEChoice, kAdvancedOptionPDELocalizable>;
extern template struct PDEChoiceList<MRPDEChoice, kManualMarginPDELocalizable>;
extern template struct PDEChoiceList<MRPDEChoice, kSpecialPagePDELocalizable>;

// The record the pop-up's item at index carries (set by the pop-up fillers
// below), as Record; null for no such item, an item without a record, or a
// record of another class.
std::shared_ptr<MRPDEChoice> PDEItemChoice(const QComboBox* popUp, int index);
template <class Record = MRPDEChoice>
std::shared_ptr<Record> RepresentedChoiceOfItem(const QComboBox* popUp, int index)
{
    return std::dynamic_pointer_cast<Record>(PDEItemChoice(popUp, index));
}

// Advanced Options.
inline constexpr auto& ArrayFromPPDOption = PDEAdvancedOptionChoiceList::arrayFromPPDOption;
inline constexpr auto& FindChoiceForString = PDEAdvancedOptionChoiceList::findChoiceForString;
inline constexpr auto& InitPopUpFromArray = PDEAdvancedOptionChoiceList::initPopUpFromArray;
inline constexpr auto& CreateOptionTitle = PDEAdvancedOptionChoiceList::createOptionTitle;

// Manual Duplex: its pop-up titles live in the Advanced Options table.
inline constexpr auto& ManaulDArrayFromPPDOption = PDEAdvancedOptionChoiceList::arrayFromPPDOption;
inline constexpr auto& ManaulDFindChoiceForString = PDEAdvancedOptionChoiceList::findChoiceForString;
inline constexpr auto& ManaulDInitPopUpFromArray = PDEAdvancedOptionChoiceList::initPopUpFromArray;
inline constexpr auto& ManaulDCreateOptionTitle = PDEAdvancedOptionChoiceList::createOptionTitle;

// Secure Release: its pop-up titles live in the Advanced Options table.
inline constexpr auto& PSSArrayFromPPDOption = PDEAdvancedOptionChoiceList::arrayFromPPDOption;
inline constexpr auto& PSSFindChoiceForString = PDEAdvancedOptionChoiceList::findChoiceForString;
inline constexpr auto& PSSInitPopUpFromArray = PDEAdvancedOptionChoiceList::initPopUpFromArray;
inline constexpr auto& PSSCreateOptionTitle = PDEAdvancedOptionChoiceList::createOptionTitle;

// Manual Margin.
inline constexpr auto& ManualMarginArrayFromPPDOption = PDEManualMarginChoiceList::arrayFromPPDOption;
inline constexpr auto& ManualMarginFindChoiceForString = PDEManualMarginChoiceList::findChoiceForString;
inline constexpr auto& ManualMarginInitPopUpFromArray = PDEManualMarginChoiceList::initPopUpFromArray;
inline constexpr auto& ManualMarginCreateOptionTitle = PDEManualMarginChoiceList::createOptionTitle;

// Special Pages, which also looks up positions.
inline constexpr auto& SpecialPageArrayFromPPDOption = PDESpecialPageChoiceList::arrayFromPPDOption;
inline constexpr auto& SpecialPageFindChoiceForString = PDESpecialPageChoiceList::findChoiceForString;
inline constexpr auto& SpecialPageInitPopUpFromArray = PDESpecialPageChoiceList::initPopUpFromArray;
inline constexpr auto& SpecialPageCreateOptionTitle = PDESpecialPageChoiceList::createOptionTitle;
inline constexpr auto& FindPPDIndex = PDESpecialPageChoiceList::findPPDIndex;
