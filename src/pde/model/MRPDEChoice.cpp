#include "MRPDEChoice.h"

#include "PDELog.h"
#include "PDEStringExtension.h"
#include "PDEVersionChecks.h"

#include <QSet>
#include <cups/ppd.h>

std::shared_ptr<MRPDEChoice> MRPDEChoice::choiceWithChoice(ppd_choice_t* choice)
{
    return std::make_shared<MRPDEChoice>(choice);
}

MRPDEChoice::MRPDEChoice(ppd_choice_t* choice)
{
    initialize(choice, "MRPDEChoice");
}

MRPDEChoice::MRPDEChoice(ppd_choice_t* choice, const char* className)
{
    initialize(choice, className);
}

void MRPDEChoice::initialize(ppd_choice_t* choice, const char* className)
{
    // Once per record class, on its first use.
    static QSet<QByteArray> initialized;
    if (!initialized.contains(className)) {
        initialized.insert(className);
        RunningOn105OrLater();
        _PDELog(nullptr, QStringLiteral("Encoding set as %i"), ppdEncoding());
    }
    m_choice = choice;
    // libcups keeps both as fixed character fields: absent means empty.
    if (!choice || !choice->text[0])
        _PDELog(this, QStringLiteral("choice->text is NULL!"));
    if (!choice || !choice->choice[0])
        _PDELog(this, QStringLiteral("choice->choice is NULL!"));
}

MRPDEChoice::~MRPDEChoice() = default;

int MRPDEChoice::ppdEncoding()
{
    return kPDEUTF8StringEncoding;
}

QString MRPDEChoice::userTitle() const
{
    if (m_userTitle.isNull() && m_choice)
        m_userTitle = stringWithCString(m_choice->text, PPD_MAX_TEXT, ppdEncoding());
    if (m_userTitle.isNull())
        _PDELog(this, QStringLiteral("could not create userTitle!"));
    return m_userTitle;
}

QString MRPDEChoice::ppdTitle() const
{
    if (m_ppdTitle.isNull() && m_choice)
        m_ppdTitle = stringWithCString(m_choice->choice, PPD_MAX_NAME, kPDEASCIIStringEncoding);
    if (m_ppdTitle.isNull())
        _PDELog(this, QStringLiteral("could not create ppdTitle!"));
    return m_ppdTitle;
}

bool MRPDEChoice::isDefaultChoice() const
{
    return m_choice && m_choice->option && strncmp(m_choice->choice, m_choice->option->defchoice, PPD_MAX_NAME) == 0;
}

QString MRPDEChoice::description() const
{
    int position = 0, count = 0;
    bool marked = false;
    if (m_choice) {
        marked = m_choice->marked != 0;
        if (m_choice->option) {
            position = int(m_choice - m_choice->option->choices) + 1;
            count = m_choice->option->num_choices;
        }
    }
    return PDEStringWithFormat(QStringLiteral("<%@ %p userTitle:\"%@\" ppdTitle:\"%@\" marked:%s choice:%i of %i>"),
                               {QString::fromLatin1(className()), PDEAddress(this), PDEDescribe(userTitle()),
                                PDEDescribe(ppdTitle()), marked ? QStringLiteral("YES") : QStringLiteral("NO"),
                                QString::number(position), QString::number(count)});
}
