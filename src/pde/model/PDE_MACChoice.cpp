#include "PDE_MACChoice.h"

#include "PDELog.h"

#include <cups/ppd.h>

PDEChoicePtr PDE_MACChoice::choiceWithKeywordDisplayString(const QString& keyword, const QString& displayString)
{
    auto c = std::make_shared<PDE_MACChoice>();
    c->m_keyword = keyword;
    c->m_displayString = displayString;
    return c;
}

PDEChoicePtr PDE_MACChoice::choiceWithChoice(const ppd_choice_t* choice)
{
    if (!choice)
        return nullptr;
    return choiceWithKeywordDisplayString(QString::fromUtf8(choice->choice), QString::fromUtf8(choice->text));
}

PDE_MACChoice::~PDE_MACChoice()
{
    m_keyword.clear();
    m_displayString.clear();
}

QString PDE_MACChoice::description() const
{
    return PDEStringWithFormat(QStringLiteral("%@: K(%@/%@)"),
                               {PDEBaseDescription("PDE_MACChoice", this), PDEDescribe(m_keyword), PDEDescribe(m_displayString)});
}
