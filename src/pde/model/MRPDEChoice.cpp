#include "MRPDEChoice.h"

#include "PDELog.h"
#include "PDEVersionChecks.h"

#include <QSet>
#include <QStringDecoder>
#include <cups/ppd.h>

static constexpr int kUTF8Encoding = 4;

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
        _PDELog(nullptr, QStringLiteral("Encoding set as %i"), kUTF8Encoding);
    }
    m_choice = choice;
    if (!choice || !choice->text[0])
        _PDELog(this, QStringLiteral("choice->text is NULL!"));
    if (!choice || !choice->choice[0])
        _PDELog(this, QStringLiteral("choice->choice is NULL!"));
}

MRPDEChoice::~MRPDEChoice() = default;

int MRPDEChoice::ppdEncoding()
{
    return kUTF8Encoding;
}

QString MRPDEChoice::userTitle()
{
    if (m_userTitle.isNull() && m_choice) {
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString text = decoder(QByteArrayView(m_choice->text, qstrnlen(m_choice->text, PPD_MAX_TEXT)));
        if (!decoder.hasError())
            m_userTitle = text;
    }
    if (m_userTitle.isNull())
        _PDELog(this, QStringLiteral("could not create userTitle!"));
    return m_userTitle;
}

QString MRPDEChoice::ppdTitle()
{
    if (m_ppdTitle.isNull() && m_choice) {
        const QByteArray keyword(m_choice->choice, qstrnlen(m_choice->choice, PPD_MAX_NAME));
        bool ascii = true;
        for (char c : keyword)
            ascii = ascii && uchar(c) < 128;
        if (ascii)
            m_ppdTitle = QString::fromLatin1(keyword);
    }
    if (m_ppdTitle.isNull())
        _PDELog(this, QStringLiteral("could not create ppdTitle!"));
    return m_ppdTitle;
}

bool MRPDEChoice::isDefaultChoice() const
{
    return m_choice && m_choice->option && qstrncmp(m_choice->choice, m_choice->option->defchoice, PPD_MAX_NAME) == 0;
}

QString MRPDEChoice::description()
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
