#pragma once
#include <QString>

struct ppd_file_s;

// The words a PPD gives its options and choices, for the user; the keyword
// itself where the PPD has none.
class PPDTexts {
public:
    static QString optionText(ppd_file_s* ppd, const QString& key);
    static QString choiceText(ppd_file_s* ppd, const QString& key, const QString& choice);
};
