#pragma once
#include <QString>
#include <functional>

class PDEBundle;

// Opens the bundle's help pages in the user's browser. Tests can divert the
// opening to see which page would be shown.
class PDEHelp {
public:
    // Registers the bundle's help book (its help/ folder); answers whether
    // the folder exists.
    static bool registerHelpBook(const PDEBundle& bundle);
    // Shows a page of the help book; answers whether it could be opened.
    static bool gotoPage(const PDEBundle& bundle, const QString& page);
    static void setOpener(std::function<bool(const QString& path)> opener);
};
