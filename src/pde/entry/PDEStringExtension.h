#pragma once
#include "PDECharacterSet.h"

#include <QString>
#include <optional>

// A copy of text with every character of set removed; a null set removes nothing.
QString stringByRemovingCharactersInSet(const QString& text, const PDECharacterSet* set);
// The first run of the digits 0-9 in text as a number: "12abc34" gives 12,
// "ab7" gives 7, text without any digit gives 0, the empty text gives nothing.
std::optional<int> filteredNumberFromString(const QString& text);
