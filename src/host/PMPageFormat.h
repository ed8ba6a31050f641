#pragma once
#include <QString>

class PMPrintSettings;

// The page format of the job, read from the job's options: the orientation
// and the sheet layout (pages per sheet as rows and columns).
class PMPageFormat {
public:
    explicit PMPageFormat(const PMPrintSettings* settings) : m_settings(settings) {}
    const PMPrintSettings* printSettings() const { return m_settings; }

private:
    const PMPrintSettings* m_settings;
};

enum PMOrientation : unsigned short {
    kPMPortrait = 1,
    kPMLandscape = 2,
    kPMReversePortrait = 3,
    kPMReverseLandscape = 4,
};

// Print-settings keys for the layout, derived from "number-up".
inline constexpr const char* kPMLayoutRows = "com.apple.print.PrintSettings.PMLayoutRows";
inline constexpr const char* kPMLayoutColumns = "com.apple.print.PrintSettings.PMLayoutColumns";
inline constexpr const char* kPMCoverPage = "com.apple.print.PrintSettings.PMCoverPage";

int PMGetOrientation(const PMPageFormat* format, PMOrientation* orientation);
// Reads one of the derived values above: the layout rows or columns from
// "number-up", and the cover page (2 when "job-sheets" starts with anything
// but "none", else 1) from "job-sheets". Other keys read the settings as ints.
int PMPrintSettingsGetDerivedInt(const PMPrintSettings* settings, const QString& key, int* value);
