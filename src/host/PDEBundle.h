#pragma once
#include <QString>
#include <QVariantMap>
#include <memory>

class QTranslator;

// The plug-in's bundle: its Info.json keys, its resources (data, images, help
// pages, sample printers) and its translations, one context per string table.
class PDEBundle {
public:
    // Opens the bundle in a directory (or a Qt resource path such as ":/bundle").
    // Answers null, with *error set, when the directory has no readable Info.json.
    static std::shared_ptr<PDEBundle> open(const QString& path, QString* error = nullptr);
    // The bundle built into the program.
    static std::shared_ptr<PDEBundle> embedded();
    // The program's bundle: the installed one beside the program
    // (../share/print-panels from its folder, whatever the prefix) when there
    // is one, else the built-in one (a program run from the build tree).
    static std::shared_ptr<PDEBundle> forProgram();

    ~PDEBundle();

    QString bundlePath() const { return m_path; }
    const QVariantMap& infoDictionary() const { return m_info; }
    QVariant objectForInfoDictionaryKey(const QString& key) const { return m_info.value(key); }
    QString bundleIdentifier() const;

    // The path of resource NAME of TYPE. The type "plist" maps to ".json"
    // files in data/, "png" and "gif" to images/NAME.png, "html" to help/. Null when absent.
    QString pathForResource(const QString& name, const QString& type) const;
    // The language the translations are loaded for ("en", "de", ...).
    QString language() const { return m_language; }
    // Loads the translations for a language (the user's by default).
    void setLanguage(const QString& language);
    // The translation of key in the table; the key itself when there is none.
    QString localizedString(const QString& key, const QString& table) const;

private:
    PDEBundle() = default;
    QString m_path;
    QVariantMap m_info;
    QString m_language;
    std::unique_ptr<QTranslator> m_translator;
};
