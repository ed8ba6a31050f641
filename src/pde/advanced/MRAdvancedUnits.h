#pragma once
#include <QString>

// Lengths of the advanced options: the print settings carry inches with two
// decimals; the user sees millimetres (whole numbers) in a metric locale.
// Both conversions round half up.
class MRAdvancedUnits {
public:
    // Millimetres to inches as "%0.2f" text: 4 gives "0.16", 25 gives "0.98".
    static QString inchTextFromMillimetres(int millimetres);
    // Inches to whole millimetres: 0.16 gives 4, 0.98 and 1.0 give 25.
    static int millimetresFromInches(float inches);
    // A length in inches with two decimals ("%0.2f").
    static QString inchText(double inches);
};
