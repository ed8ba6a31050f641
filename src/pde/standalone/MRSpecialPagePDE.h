#pragma once
#include "MRPageListTableModel.h"
#include "MRStandalonePDE.h"
#include "PDEChoiceList.h"

#include <QStringList>
#include <memory>

namespace Ui {
class PageListPDE;
}
struct ppd_option_s;

inline constexpr char kSpecialPagePanelNameKey[] = "SpecialPagePanelName";
inline constexpr char kSpecialPageHelpPage[] = "SpecialPagePDEHelp.html";
// The print-settings key of the list.
inline constexpr char kNSSpecialPageKey[] = "VELSpecialPage";
// PPD options: the kind of special page, paper source and type, the
// installable optional trays.
inline constexpr char kNSPageOptionKey[] = "VELPageOption";
inline constexpr char kNSPaperSourceKey[] = "InputSlot";
inline constexpr char kNSPaperTypeKey[] = "MediaType";
inline constexpr char kNSOptionalTrayKey[] = "OptionalTray";
// Features that exclude special pages, or reduce them to covers (booklet).
inline constexpr char kNSSpecialPosterKey[] = "VELPosterOption";
inline constexpr char kNSSpecialBookletKey[] = "VELBookletOption";
inline constexpr char kNSFoldingOptionsKey[] = "FoldingOptions";
inline constexpr char kNSSkipBlankPagesKey[] = "SkipBlankPages";

// The Special Pages panel: a list of pages printed differently (front and
// back covers, inserted sheets, exception pages with their own 2-sided
// setting), each with its paper source and type. The list is edited in a
// table and travels in the print settings as one string under
// "VELSpecialPage", entries joined by ";" and fields by "+":
//   Cover+Front+BlankPreprinted+Tray1+Plain;Insert+0+Tray1+Plain;Exception+3-5+None+Tray1+Plain
class MRSpecialPagePDE : public MRStandalonePDE {
    Q_OBJECT
public:
    // The longest page range an insert expands to, and the last page a range
    // may start at.
    static constexpr int kMaxInsertPages = 250;

    // initWithCallback:andBundle: null unless the PPD has VELPageOption,
    // InputSlot and MediaType.
    static std::shared_ptr<MRSpecialPagePDE> create(PDEPluginCallback* callback, std::shared_ptr<PDEBundle> bundle);
    ~MRSpecialPagePDE() override;

    // Panel protocol.
    QString panelKind() override;
    QWidget* panelView() override;
    bool willShow() override;
    bool shouldHide() override;
    bool respondsToShouldPrint() const override { return true; }
    bool shouldPrint() override;
    QVariantMap summaryInfo() override;
    QStringList supportedPPDOptionKeys() override;
    bool restoreValuesAndReturnError(QString* error) override;
    bool saveValuesAndReturnError(QString* error) override;
    void PPDOptionKeyValueDidChange(const QString& option, const QString& choice) override;
    void updatePrinterUI() override;

    void initializeUI();
    void updateUI();
    void updateUIDependency();
    void updateMarkedSelections() override;
    void getNonPPDSettingsFromPrintSettings();
    void writeNonPPDSettingsToPrintSettings();

    // The list.
    const QList<MRSpecialPageRow>& arrayPageTable() const { return m_model->rows(); }
    QString sSpecialPageValue() const { return m_sSpecialPageValue; }
    // The entries the controls describe now.
    QList<MRSpecialPageRow> makeDicForCurrentSelect() const;
    void reorderSpecialPage();
    QList<MRSpecialPageRow> getArrayWithType(const QString& pageType) const;
    // The exception rows of the list merged with new ones: a page the new
    // rows name takes their settings; pages in a row with equal settings
    // make one range again.
    QList<MRSpecialPageRow> getRemakePageOfException(const QList<MRSpecialPageRow>& added) const;
    int selectedRow() const;
    void selectRow(int row);

    // Actions.
    void actionAdd();
    void actionRemove();
    void actionUp();
    void actionDown();
    void actionUpdate();
    void actionPageOption();
    void actionPageCoverFront();
    void actionPageCoverBack();
    void actionPageCoverBoth();
    void actionPageInsertFirst();
    void actionPageInsertNext();
    // A paper source greys out the types it cannot take; the chosen type is
    // read when an entry is made.
    void actionPaperSource();
    void actionCoverBlank();
    void actionCover1Side();
    void actionCover2Side();
    void actionDuplexNone();
    void actionDuplexLong();
    void actionDuplexShort();
    void tableViewSelectionDidChange();
    // The user changed a page-number field: tag 1 the insert field, 2 the
    // exception field.
    void controlTextDidChange(int tag);

    // Features that suppress the list (poster, the dialog's cover page,
    // C-folding, skip blank pages) or keep only its covers (booklet).
    bool isPosterOn() const;
    bool isBookletOn() const;
    bool isCFoldingOn() const;
    bool isSkipBlankPageOn() const;
    bool isCoverOn() const;
    bool isListSuppressed() const;

    // Constraints of the PPD between paper sources, optional trays and paper
    // types.
    void loadConstraint();
    void checkInstallableOption();
    void checkConstraintWithSelection(const std::shared_ptr<MRPDEChoice>& paperSource);
    struct Constraint {
        QString option1, choice1, option2, choice2;
    };
    // Whether the constraint names this option and choice on either side.
    static bool doesUIConstraintConstains(const Constraint& constraint, const QString& option, const QString& choice);
    const QList<Constraint>& arrayConstraint() const { return m_arrayConstraint; }
    // An empty list asks the user whether to print anyway.
    bool validateAndAlert();

    // The page lists typed into the fields: inserts expand to single pages
    // ("5-3" gives 3, 4, 5; ranges from beyond page 250 give nothing; a range
    // holds at most 250 pages); exceptions stay ranges ("7-" and "-7" give
    // "1-7"). Tokens that name no page ("-", "1-2-3") are left out.
    static QStringList makeInsertPageNumArray(const QString& text);
    static QStringList makeExceptionPageNumArray(const QString& text);
    // Whether a page-number field may hold this text: digits, "," and "-",
    // no two separators in a row, no number starting with 0 or longer than 4.
    static bool isAcceptablePageText(const QString& text);
    // The list as its print-settings string, and back. Entries that cannot be
    // read are reported and left out; a source or type the printer does not
    // have counts as unreadable.
    static QString stringFromRows(const QList<MRSpecialPageRow>& rows);
    QList<MRSpecialPageRow> rowsFromString(const QString& value, QStringList* rejected = nullptr) const;
    // What booklet printing keeps of a list string: its front and back cover
    // when it starts with the one and ends with the other, else nothing.
    static QString bookletCovers(const QString& value);
    // The sort key of a row: front cover first, back cover last, others by page.
    static int sortKey(const MRSpecialPageRow& row);
    static void reorder(QList<MRSpecialPageRow>& rows);

    // The text of a table cell.
    QString cellText(const MRSpecialPageRow& row, int column) const;

    std::shared_ptr<MRPDEChoice> pageOptionSelection() const { return m_pageOptionSelection; }
    bool bHidded() const { return m_bHidded; }
    Ui::PageListPDE* ui() const { return m_ui.get(); }
    MRPageListTableModel* model() const { return m_model; }

protected:
    MRSpecialPagePDE(PDEPluginCallback* callback, std::shared_ptr<PDEBundle> bundle);
    QString panelNameKey() const override { return QString::fromLatin1(kSpecialPagePanelNameKey); }
    QString helpPage() const override { return QString::fromLatin1(kSpecialPageHelpPage); }
    QString localizationTable() const override { return QString::fromLatin1(kSpecialPagePDELocalizable); }
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int markedIndex(const char* key) const;
    void setRows(QList<MRSpecialPageRow> rows);
    void listChanged(int select);
    void addRows(QList<MRSpecialPageRow> rows);
    void showPageOption();
    void showRowInControls(const MRSpecialPageRow& row);
    void updatePictures();
    QString choiceTitle(QComboBox* popUp, const MRPDEChoiceArray& choices, const QString& keyword) const;
    static void selectKeyword(QComboBox* popUp, const MRPDEChoiceArray& choices, const QString& keyword);
    static void setItemEnabled(QComboBox* popUp, int index, bool enabled);
    static void selectFirstEnabledItem(QComboBox* popUp);
    bool constrains(const QString& option1, const QString& choice1, const QString& option2, const QString& choice2) const;

    QString m_kSpecialPageKindID;
    QString m_sSpecialPageValue;
    ppd_option_s* m_pageOption = nullptr;
    ppd_option_s* m_paperSourceOption = nullptr;
    ppd_option_s* m_paperTypeOption = nullptr;
    ppd_option_s* m_optionalTrayOption = nullptr;
    MRPDEChoiceArray m_pageOptionChoices;
    MRPDEChoiceArray m_paperSourceChoices;
    MRPDEChoiceArray m_paperTypeChoices;
    MRPDEChoiceArray m_optionalTrayChoices;
    std::shared_ptr<MRPDEChoice> m_pageOptionSelection;
    std::shared_ptr<MRPDEChoice> m_optionalTraySelection;
    QString m_sEtfInsertNum;
    QString m_sEtfExceptNum;
    QString m_sInstallableOption;
    QList<Constraint> m_arrayConstraint;
    QStringList m_supportedOptions;
    bool m_bHidded = true;

    std::unique_ptr<Ui::PageListPDE> m_ui;
    QPointer<QWidget> m_viewPDE;
    MRPageListTableModel* m_model = nullptr;
};
