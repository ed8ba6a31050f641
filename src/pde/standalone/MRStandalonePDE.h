#pragma once
#include "MRAdvancedPDEChoice.h"
#include "PDEPanel.h"

#include <QAbstractButton>
#include <QObject>
#include <QPointer>
#include <QSize>
#include <QString>
#include <memory>

class PDEBundle;
class PDEPluginCallback;
class PMPrintSettings;

class QComboBox;
class QLabel;
class QWidget;
struct ppd_file_s;

// What every standalone panel (Secure Release, Advanced Options, Manual
// Duplex, Special Pages, Manual Margin) does alike: it keeps the dialog's
// callback and the plug-in bundle, reads the PPD and the print settings
// directly, reports pop-up choices to the dialog for approval, looks its texts
// up in its string table, opens its help page, shows an optional advanced part
// behind a disclosure button and refreshes itself on the host's update signal.
//
// A panel derives from this class, answers panelKind(), panelNameKey() and
// helpPage(), and overrides updatePrinterUI() and updateMarkedSelections()
// where it has something to do.
class MRStandalonePDE : public QObject, public PDEPanel {
    Q_OBJECT
public:
    ~MRStandalonePDE() override;

    PDEPluginCallback* pdePluginCallbackObject() const { return m_callback; }
    std::shared_ptr<PDEBundle> pluginBundle() const { return m_bundle; }
    ppd_file_s* ppd() const { return m_ppd; }
    // The callback approves PPD changes (willChangePPDOptionKeyValue).
    bool useConstraintHandling() const { return m_useConstraintHandling; }
    // The callback lays the dialog out again on request (panelViewDidResize).
    bool canResizeView() const { return m_canResizeView; }
    // The panel's controls were filled once.
    bool hasInited() const { return m_hasInited; }
    bool willShowCalled() const { return m_bWillShow; }

    // Panel protocol answers shared by every standalone panel.
    QString panelName() override;
    bool shouldShowHelp() override;

    // The host's "application will update" notice: a job setting that panels
    // read (copies, orientation, pages per sheet, cover page, printer) changed.
    virtual void updatePrinterUI();

    // The record the pop-up's selected item carries; with constraint handling
    // the choice is first reported to the dialog (which may resolve conflicts)
    // and the marked selections are read again. Null without a selection.
    std::shared_ptr<MRAdvancedPDEChoice> selectionForPopUpWithKey(QComboBox* popUp, const QString& key);
    // The position of the marked (else the default) choice of the PPD option
    // within its choices; -1 when there is none.
    int indexOfMarkedOptionForKey(const QString& key) const;
    // Sets the text of the view's label named `tag` to the PPD option's own
    // title (its text in the PPD); nothing when either is missing.
    void setViewTitleByTagFromOptions(QWidget* view, const QString& tag, const QString& optionKey) const;
    // The user's language of the bundle ("en", "de", ...).
    QString LocalizationsInfo() const;
    // The translation of key in the panel's string table (the key when none).
    QString getLocalizationWithKey(const QString& key) const;
    // The page orientation as text: "1" portrait, "2" landscape, "3" reverse
    // portrait, "4" reverse landscape; "1" when the page format cannot tell.
    QString ReadOrientation() const;
    // The dialog's pages-per-sheet layout and the copy count.
    int layoutRows() const;
    int layoutColumns() const;
    int nupValue() const { return layoutRows() * layoutColumns(); }
    unsigned copiesValue() const;
    PMPrintSettings* printSettings() const;

    // The advanced part behind the disclosure button: showAdvanced() shows or
    // hides it; showAdvancedOptions() is the button's action and asks the
    // dialog to lay itself out again when it can.
    void showAdvanced(bool show);
    void showAdvancedOptions(bool state);
    QAbstractButton* advancedButton() const { return m_advancedButton; }

    // Whether lengths are shown in millimetres: the user's measurement system
    // (LC_MEASUREMENT, LC_ALL or LANG) is metric.
    static bool IsMetric();
    // Shows the bundle's picture NAME in an image view and keeps the name on
    // it ("imageName"); a missing picture empties the view (name null).
    static void setImage(QLabel* view, const PDEBundle* bundle, const QString& name);
    // Shows a picture from a file path (a PPD may name its own pictures).
    static void setImageFromFile(QLabel* view, const QString& path);
    // Sets a text's size as a system font of that many points at the usual
    // 13-point system size: 11 is a little smaller than the desktop's font.
    static void setSystemFontSize(QWidget* widget, int points);
    // Draws a label's text black (active) or grey (inactive).
    static void setLabelActive(QWidget* label, bool active);

protected:
    // Logs the creation, keeps the callback and the bundle, works out what the
    // callback offers, fetches the PPD and starts listening to the host's
    // update signal (when the callback is an object that sends one).
    MRStandalonePDE(PDEPluginCallback* callback, std::shared_ptr<PDEBundle> bundle);

    // The localization key of the panel's name and its help page.
    virtual QString panelNameKey() const = 0;
    virtual QString helpPage() const = 0;
    // The string table of the panel's texts.
    virtual QString localizationTable() const;
    // Reads the panel's selections again from the PPD's marks.
    virtual void updateMarkedSelections() {}

    // selectionForPopUpWithKey() for pop-ups whose items carry MRPDEChoice
    // records (the Manual Margin and Special Pages pop-ups).
    std::shared_ptr<MRPDEChoice> choiceSelectionForPopUpWithKey(QComboBox* popUp, const QString& key);

    void setHasInited(bool inited) { m_hasInited = inited; }
    void setWillShowCalled(bool shown) { m_bWillShow = shown; }
    // Logs the result of the creation: the panel exists, or refuses to.
    void logCreation(bool created) const;
    // The panel's views for the disclosure: the panel view is resized between
    // the basic size and the basic size plus the advanced part's height.
    void setDisclosureViews(QWidget* panelView, QWidget* basicView, QAbstractButton* advancedButton, QWidget* advancedView);

private slots:
    void hostWillUpdate();

private:
    PDEPluginCallback* m_callback = nullptr;
    std::shared_ptr<PDEBundle> m_bundle;
    ppd_file_s* m_ppd = nullptr;
    QString m_thePDEName;
    bool m_useConstraintHandling = false;
    bool m_canResizeView = false;
    bool m_hasInited = false;
    bool m_bWillShow = false;
    QPointer<QWidget> m_pdeView;
    QPointer<QWidget> m_basicView;
    QPointer<QAbstractButton> m_advancedButton;
    QPointer<QWidget> m_advancedView;
};
