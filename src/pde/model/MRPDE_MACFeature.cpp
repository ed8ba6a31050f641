#include "MRPDE_MACFeature.h"

#include "MRPDE_MACChangeHandlerModel.h"
#include "MRPDE_MACFirstEventHandler.h"
#include "PDELog.h"
#include "PDESecrets.h"
#include "PDEUserInfo.h"
#include "PMPrintSettings.h"

#include <cups/ppd.h>

static const QString kSeparatorLine = QStringLiteral("-  -  -  -  -  -  -  -");

std::shared_ptr<MRPDE_MACFeature> MRPDE_MACFeature::featureWithppdOption(ppd_option_t* option, MRPDE_MACChangeHandlerModel* model)
{
    return std::make_shared<MRPDE_MACFeature>(option, model);
}

MRPDE_MACFeature::MRPDE_MACFeature() = default;

MRPDE_MACFeature::MRPDE_MACFeature(ppd_option_t* option, MRPDE_MACChangeHandlerModel* model)
{
    if (!option)
        return;
    m_ppdOption = option;
    m_modelDelegate = model;
    m_keyword = QString::fromUtf8(option->keyword);
    m_displayString = QString::fromUtf8(option->text);

    m_choices.reserve(option->num_choices);
    for (int i = 0; i < option->num_choices; ++i) {
        ppd_choice_t* ppdChoice = option->choices + i;
        const QString choiceKeyword = QString::fromUtf8(ppdChoice->choice);
        // A choice that the installed hardware rules out is not offered.
        if (model && model->isInstallableOptionConstrainedWithChoice(choiceKeyword, m_keyword))
            continue;
        PDEChoicePtr choice = PDE_MACChoice::choiceWithChoice(ppdChoice);
        m_choices.append(choice);
        if (qstrncmp(ppdChoice->choice, option->defchoice, PPD_MAX_NAME) == 0)
            m_defaultValue = choice;
        if (ppdChoice->marked) {
            _PDELog(this, kSeparatorLine);
            _PDELog(this, QStringLiteral("PDE_MACFeature(model):[%@]initWithPPDOption"), m_keyword);
            setCurrentValue(choice);
        }
    }
    if (!m_currentValue) {
        _PDELog(this, QStringLiteral("PDE_MACFeature(model):[%@]initWithPPDOption:: when self.currentValue == Nil(CurrentValue=DefaultValue)"),
                m_keyword);
        setCurrentValue(m_defaultValue);
    }
    if (m_choices.isEmpty()) {
        // Free text, or every choice ruled out by the installed hardware.
        m_isCurrentValueAPPDChoice = false;
        m_defaultValue = PDE_MACChoice::choiceWithKeywordDisplayString(QLatin1String(""), QLatin1String(""));
        restoreValues();
    }
    _PDELog(this, QStringLiteral("*"));
    _PDELog(this, QStringLiteral("PDE_MACFeature- CreatedFeature - %@"), this);
    _PDELog(this, QStringLiteral("*"));
}

MRPDE_MACFeature::~MRPDE_MACFeature() = default;

void MRPDE_MACFeature::setCurrentValue(const PDEChoicePtr& value)
{
    if (!value || value == m_currentValue)
        return;
    if (!value->selectable())
        return;
    if (!m_modelDelegate || !m_modelDelegate->willChangePPDOptionKeyValue(m_keyword, value->keyword()))
        return;
    _PDELog(this, QStringLiteral("PDE_MacFeature: {%@}SetCurrentValue->%@"), m_keyword, PDESecrets::forLog(m_keyword, value->keyword()));
    m_currentValue = value;
    _PDELog(this, kSeparatorLine);
    emit currentValueChanged(this);
}

bool MRPDE_MACFeature::setCurrentValueWithMatchingChoice(const std::function<bool(const PDE_MACChoice&)>& matches)
{
    for (const PDEChoicePtr& choice : std::as_const(m_choices)) {
        if (!matches(*choice))
            continue;
        if (!choice->selectable() || !m_modelDelegate
            || !m_modelDelegate->willChangePPDOptionKeyValue(m_keyword, choice->keyword()))
            return false;
        setCurrentValue(choice);
        return true;
    }
    return false;
}

bool MRPDE_MACFeature::setCurrentValueWithChoiceWithKeyword(const QString& keyword)
{
    return setCurrentValueWithMatchingChoice([&](const PDE_MACChoice& c) { return c.keyword() == keyword; });
}

bool MRPDE_MACFeature::setCurrentValueWithChoiceWithDisplayString(const QString& displayString)
{
    return setCurrentValueWithMatchingChoice([&](const PDE_MACChoice& c) { return c.displayString() == displayString; });
}

PDEChoicePtr MRPDE_MACFeature::getChoiceWithKeyword(const QString& keyword) const
{
    if (keyword.isNull())
        return nullptr;
    for (const PDEChoicePtr& choice : m_choices)
        if (choice->keyword() == keyword)
            return choice;
    return nullptr;
}

void MRPDE_MACFeature::saveValues()
{
    if (!m_modelDelegate)
        return;
    // A feature without a value has nothing to say: what another panel or
    // the command line wrote under its key (a user ID) stays.
    if (!m_currentValue)
        return;
    PMPrintSettings* settings = m_modelDelegate->printSettings();
    const QString value = m_currentValue->keyword();
    if (PMPrintSettingsSetValue(settings, m_keyword, value, false) != kPMNoError)
        _PDELog(this, QStringLiteral("PDE_MACFeature: saveValues failed for keyword(%@) currentValue(%@) "), m_keyword,
                PDESecrets::forLog(m_keyword, value));
    if (MRPDE_MACFirstEventHandler::debug()) {
        QString readBack;
        if (PMPrintSettingsGetValue(settings, m_keyword, &readBack) == kPMNoError)
            PDENSLog(QStringLiteral("SavedValuesPDEFeature: keyword(%@) value(%@)"), m_keyword, PDESecrets::loggable(m_keyword, readBack));
        else
            PDENSLog(QStringLiteral("Error:: Unable to find feature(%@)"), m_keyword);
    }
}

void MRPDE_MACFeature::restoreValues()
{
    QString value = QLatin1String("");
    const int status = m_modelDelegate ? PMPrintSettingsGetValue(m_modelDelegate->printSettings(), m_keyword, &value)
                                       : int(kPMInvalidParameter);
    if (status != kPMNoError)
        _PDELog(this, QStringLiteral("Error::(%@) Unable to restore ppdAttribute(%@)"), this, m_keyword);
    if (value.isNull() && m_modelDelegate && m_modelDelegate->ppd()) {
        if (const ppd_choice_t* marked = ppdFindMarkedChoice(m_modelDelegate->ppd(), m_keyword.toUtf8().constData()))
            value = QString::fromUtf8(marked->choice);
    }
    if (!value.isNull()) {
        _PDELog(this, QStringLiteral("|"));
        _PDELog(this, QStringLiteral("|"));
        _PDELog(this, QStringLiteral("PDE_MACFeature(model): restoreValues"));
        if (!m_isCurrentValueAPPDChoice)
            setCurrentValue(PDE_MACChoice::choiceWithKeywordDisplayString(value, value));
        else
            setCurrentValueWithChoiceWithKeyword(value);
    } else if (m_defaultValue) {
        setCurrentValue(m_defaultValue);
    }
    if (status != kPMNoError
        && (m_keyword == QLatin1String("JOBNAME") || m_keyword == QLatin1String("USERID") || m_keyword == QLatin1String("AccountID")))
        setDefaultValueForOutsideFeature(m_keyword);
}

void MRPDE_MACFeature::setDefaultValueForOutsideFeature(const QString& keyword)
{
    if (keyword != QLatin1String("USERID") && keyword != QLatin1String("AccountID"))
        return;
    QString name = PDEUserInfo::fullUserName();
    bool ascii = true;
    for (QChar c : std::as_const(name))
        ascii = ascii && c.unicode() < 128;
    if (!ascii)
        name = QStringLiteral("Unknown");
    PDEChoicePtr choice = PDE_MACChoice::choiceWithKeywordDisplayString(name, name);
    setCurrentValue(choice);
    m_defaultValue = choice;
}

QString MRPDE_MACFeature::description() const
{
    // A password's or PIN's value is never described.
    const bool secret = PDESecrets::isSecretKey(m_keyword);
    const QString hidden = QStringLiteral("<hidden>");
    return PDEStringWithFormat(QStringLiteral("%@: K(%@/%@) cv(%@) df(%@) choices(%@)"),
                               {PDEBaseDescription("MRPDE_MACFeature", this), PDEDescribe(m_keyword), PDEDescribe(m_displayString),
                                secret ? hidden : PDEDescribe(m_currentValue), secret ? hidden : PDEDescribe(m_defaultValue),
                                PDEDescribe(m_choices)});
}

QMetaObject::Connection MRPDE_MACFeature::observeCurrentValue(QObject* receiver, std::function<void(MRPDE_MACFeature*)> handler,
                                                              bool initial)
{
    QMetaObject::Connection c = connect(this, &MRPDE_MACFeature::currentValueChanged, receiver, handler, Qt::DirectConnection);
    if (initial)
        handler(this);
    return c;
}
