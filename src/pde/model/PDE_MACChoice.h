#pragma once
#include <QString>
#include <memory>

struct ppd_choice_s;

// One choice of a feature: the PPD choice keyword (the value written to the
// print settings) and its translated text. A free-text value is a choice whose
// keyword and display string are both the text.
class PDE_MACChoice {
public:
    static std::shared_ptr<PDE_MACChoice> choiceWithKeywordDisplayString(const QString& keyword, const QString& displayString);
    static std::shared_ptr<PDE_MACChoice> choiceWithChoice(const ppd_choice_s* choice);
    ~PDE_MACChoice();

    QString keyword() const { return m_keyword; }
    void setKeyword(const QString& k) { m_keyword = k; }
    QString displayString() const { return m_displayString; }
    void setDisplayString(const QString& d) { m_displayString = d; }
    bool selectable() const { return m_selectable; }
    void setSelectable(bool s) { m_selectable = s; }

    QString description() const;

private:
    QString m_keyword;
    QString m_displayString;
    bool m_selectable = true;
};

using PDEChoicePtr = std::shared_ptr<PDE_MACChoice>;
