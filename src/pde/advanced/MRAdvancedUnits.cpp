#include "MRAdvancedUnits.h"

#include <cmath>

QString MRAdvancedUnits::inchTextFromMillimetres(int millimetres)
{
    const float inches = float(millimetres / 25.4);
    const float hundredths = inches * 100.0f;
    const float whole = std::trunc(hundredths);
    const long n = long(whole) + (hundredths - whole >= 0.5f ? 1 : 0);
    return QString::asprintf("%0.2f", double(n) * 0.01);
}

int MRAdvancedUnits::millimetresFromInches(float inches)
{
    const float m = float(double(inches) * 25.4);
    const float whole = std::trunc(m);
    return int(whole) + (m - whole >= 0.5f ? 1 : 0);
}

QString MRAdvancedUnits::inchText(double inches)
{
    return QString::asprintf("%0.2f", inches);
}
