#include "MRFontCatalog.h"

#include <QCollator>
#include <QSet>
#include <fontconfig/fontconfig.h>
#include <algorithm>
#include <cstdlib>

namespace {
QString stringOf(FcPattern* pattern, const char* object)
{
    FcChar8* value = nullptr;
    return FcPatternGetString(pattern, object, 0, &value) == FcResultMatch && value
               ? QString::fromUtf8(reinterpret_cast<const char*>(value))
               : QString();
}

// Lists the fonts matching pattern with the given properties.
template <typename F>
void forEachFont(FcPattern* pattern, std::initializer_list<const char*> objects, F&& f)
{
    if (!FcInit())
        return;
    FcObjectSet* set = FcObjectSetCreate();
    for (const char* o : objects)
        FcObjectSetAdd(set, o);
    if (FcFontSet* fonts = FcFontList(nullptr, pattern, set)) {
        for (int i = 0; i < fonts->nfont; ++i)
            f(fonts->fonts[i]);
        FcFontSetDestroy(fonts);
    }
    FcObjectSetDestroy(set);
}

int styleRank(const QString& style)
{
    static const QStringList regular{QStringLiteral("Regular"), QStringLiteral("Book"), QStringLiteral("Roman"),
                                     QStringLiteral("Normal"), QStringLiteral("Medium")};
    const int i = int(regular.indexOf(style));
    return i < 0 ? int(regular.size()) : i;
}
}

QStringList MRFontCatalog::familyNames()
{
    // Listed once per process, as Qt's own font database does.
    static const QStringList families = listFamilies();
    return families;
}

QStringList MRFontCatalog::listFamilies()
{
    QSet<QString> names;
    FcPattern* all = FcPatternCreate();
    forEachFont(all, {FC_FAMILY}, [&](FcPattern* font) {
        // A font names its family in several languages; the first is the default one.
        const QString family = stringOf(font, FC_FAMILY);
        if (!family.isEmpty())
            names.insert(family);
    });
    FcPatternDestroy(all);
    QStringList list(names.cbegin(), names.cend());
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::sort(list.begin(), list.end(), [&](const QString& a, const QString& b) { return collator.compare(a, b) < 0; });
    return list;
}

QList<MRFontCatalog::Member> MRFontCatalog::members(const QString& family)
{
    QList<Member> list;
    if (family.isEmpty())
        return list;
    const QByteArray name = family.toUtf8();
    FcPattern* pattern = FcPatternCreate();
    FcPatternAddString(pattern, FC_FAMILY, reinterpret_cast<const FcChar8*>(name.constData()));
    QSet<QString> seen;
    forEachFont(pattern, {FC_STYLE, FC_POSTSCRIPT_NAME}, [&](FcPattern* font) {
        Member m{stringOf(font, FC_STYLE), stringOf(font, FC_POSTSCRIPT_NAME)};
        if (!m.style.isEmpty() && !seen.contains(m.style)) {
            seen.insert(m.style);
            list.append(m);
        }
    });
    FcPatternDestroy(pattern);
    std::sort(list.begin(), list.end(), [](const Member& a, const Member& b) {
        const int ra = styleRank(a.style), rb = styleRank(b.style);
        return ra != rb ? ra < rb : a.style < b.style;
    });
    return list;
}

void MRFontCatalog::releaseFontconfigAtExit()
{
    std::atexit([] { FcFini(); });
}

QString MRFontCatalog::resolvedFamily(const QString& family)
{
    const QStringList installed = familyNames();
    if (installed.contains(family))
        return family;
    if (!FcInit())
        return QString();
    const QByteArray name = family.toUtf8();
    FcPattern* pattern = FcPatternCreate();
    FcPatternAddString(pattern, FC_FAMILY, reinterpret_cast<const FcChar8*>(name.constData()));
    FcConfigSubstitute(nullptr, pattern, FcMatchPattern);
    FcDefaultSubstitute(pattern);
    FcResult result = FcResultNoMatch;
    QString resolved;
    if (FcPattern* match = FcFontMatch(nullptr, pattern, &result)) {
        resolved = stringOf(match, FC_FAMILY);
        FcPatternDestroy(match);
    }
    FcPatternDestroy(pattern);
    return installed.contains(resolved) ? resolved : QString();
}
