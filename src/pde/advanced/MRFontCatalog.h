#pragma once
#include <QList>
#include <QString>
#include <QStringList>

// The fonts installed on this machine, as fontconfig lists them: the family
// names and, for each family, its members' style names and PostScript names.
class MRFontCatalog {
public:
    struct Member {
        QString style;           // "Bold Italic"
        QString postScriptName;  // "DejaVuSans-BoldOblique"
    };

    // Every family name, sorted without regard to case.
    static QStringList familyNames();
    // The members of a family, regular first, then by style name.
    static QList<Member> members(const QString& family);
    // The installed family that stands in for a family name: the name itself
    // when installed, else the family fontconfig substitutes for it.
    static QString resolvedFamily(const QString& family);
    // Frees fontconfig's set-up when the process ends. Only for a process in
    // which nothing else uses fontconfig (Qt's minimal platform).
    static void releaseFontconfigAtExit();

private:
    static QStringList listFamilies();
};
