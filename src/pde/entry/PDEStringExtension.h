#pragma once
#include "PDECharacterSet.h"

#include <QString>
#include <optional>

// The string encoding numbers the PPD helpers decode texts with.
inline constexpr int kPDEASCIIStringEncoding = 1;
inline constexpr int kPDEUTF8StringEncoding = 4;

// A copy of text with every character of set removed; a null set removes nothing.
QString stringByRemovingCharactersInSet(const QString& text, const PDECharacterSet* set);

// The first run of the digits 0-9 in text as a number: "12abc34" gives 12,
// "ab7" gives 7, text without any digit gives 0, the empty text (or white
// space only) gives nothing. Leading white space is skipped; a run too long
// for a 32-bit signed integer gives its largest value.
std::optional<int> filteredNumberFromString(const QString& text);

// The zero-terminated bytes at cString, read up to maxLength bytes (a fixed
// libcups field may be full and lack its terminator), decoded with one of the
// encodings above. Null when cString is null, when the bytes are not valid in
// the encoding (bytes above 127 in ASCII, malformed UTF-8) or when the
// encoding is not one of those; an empty C string gives an empty, non-null text.
QString stringWithCString(const char* cString, qsizetype maxLength, int encoding);
