#pragma once
#include "CupsDestinations.h"
#include "PanelSession.h"

#include <QTemporaryDir>
#include <QWidget>
#include <functional>
#include <memory>

class CupsDestList;

namespace Ui {
class PrinterPresetBar;
}

// The printer chooser and the preset controls above the dialog: the queues of
// the CUPS server, the bundled sample printers and any PPD file; the presets
// of the queue chosen (Save As, Delete), and the user's defaults (the
// queue's saved settings, the default printer). Choosing asks the window to open
// another printer; the bar shows whatever the window opened.
class PrinterPresetBar : public QWidget {
    Q_OBJECT
public:
    // Gives the settings a preset keeps (the panels saved first); false with *error.
    using SettingsSource = std::function<bool(PrintDialogHost::OptionList*, QString*)>;

    explicit PrinterPresetBar(QWidget* parent = nullptr);
    ~PrinterPresetBar() override;

    void setSettingsSource(SettingsSource source) { m_settings = std::move(source); }
    // Shows the printer of the session opened: opened.printer is the queue
    // ("QUEUE[/PRESET]") for a queue, opened.ppdPath the file otherwise;
    // the lists are filled from the destinations the session was opened with.
    void showSession(PanelSession* session, const PanelSession::Options& opened, std::shared_ptr<const CupsDestList> dests);
    // Fills the lists again (after a failed open, a language change), the
    // lpoptions files read again, the server not asked again.
    void refresh();

signals:
    // The user chose another printer or preset; carry: the job settings
    // changed in the dialog go along.
    void openRequested(const PanelSession::Options& options, bool carry);
    // The preset in use changed without another open (saved, deleted):
    // printer is "QUEUE[/PRESET]".
    void presetRenamed(const QString& printer);
    void notice(const QString& text);

protected:
    void changeEvent(QEvent* event) override;

private:
    enum EntryKind { QueueEntry, PPDEntry, SampleEntry, BrowseEntry };

    // "idle", "printing", "stopped", each with ", not accepting jobs" where so.
    static QString stateText(const CupsDestinations::Queue& queue);

    void fillPrinters(const CupsDestList& dests);
    void fillPresets(const CupsDestList& dests);
    void printerChosen(int index);
    void presetChosen(int index);
    void savePreset();
    void saveAs(const QString& name);
    void deletePreset();
    // The current settings as the queue's own user defaults (lpoptions -p).
    void useAsDefaults();
    // The queue, or its preset, as the user's default destination (lpoptions -d).
    void makeDefaultPrinter();
    void usePreset(const QString& name);
    PanelSession::Options optionsFor() const;  // the server and bundle of the session

    bool isQueue() const;
    QString queueName() const;   // the queue without an instance
    QString presetName() const;  // the instance, or empty

    std::unique_ptr<Ui::PrinterPresetBar> ui;
    PanelSession* m_session = nullptr;
    PanelSession::Options m_opened;
    std::shared_ptr<const CupsDestList> m_dests;
    QTemporaryDir m_sampleDir;  // sample printers copied out of the program
    int m_sampleIndex = -1;     // the chooser's entry of the sample printer in use
    SettingsSource m_settings;
};
