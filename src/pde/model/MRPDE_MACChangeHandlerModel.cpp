#include "MRPDE_MACChangeHandlerModel.h"

#include "PDEBundle.h"
#include "PDELog.h"
#include "PDEPluginCallback.h"
#include "PDESecrets.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <cups/ppd.h>

using Op = PDEPluginCallback::Operation;

static QString& folderFormatOverride()
{
    static QString format;
    return format;
}

MRPDE_MACChangeHandlerModel::MRPDE_MACChangeHandlerModel(std::shared_ptr<PDEBundle> bundle, PDEPluginCallback* callback)
    : m_pdeCallBack(callback), m_pdeBundle(std::move(bundle))
{
    const bool has = callback != nullptr;
    if (has && callback->respondsToOperation(Op::PrintSession))
        m_printSession = callback->printSession();
    else
        _PDELog(this, QStringLiteral("ChangeHandlerModel(Model): ERROR : printSession is nil"));
    if (has && callback->respondsToOperation(Op::PageFormat))
        m_pageFormat = callback->pageFormat();
    else
        _PDELog(this, QStringLiteral("ChangeHandlerModel(Model): ERROR : m_pageFormat is nil"));
    if (has && callback->respondsToOperation(Op::PMPrinter))
        m_printer = callback->pmPrinter();
    else
        _PDELog(this, QStringLiteral("ChangeHandlerModel(Model): ERROR : PMPrinter is nil"));
    if (has && callback->respondsToOperation(Op::PPDFile))
        m_ppdFile = callback->ppdFile();
    else
        _PDELog(this, QStringLiteral("ChangeHandlerModel(Model): ERROR : ppd_file_t is nil"));
    initializeInstallableOptionsConstraints();
    makeCustomFeatures();
}

MRPDE_MACChangeHandlerModel::~MRPDE_MACChangeHandlerModel()
{
    m_pdeCallBack = nullptr;
    m_features.clear();
    m_ppdAttributes.clear();
}

PMPrintSettings* MRPDE_MACChangeHandlerModel::printSettings()
{
    if (m_pdeCallBack && m_pdeCallBack->respondsToOperation(Op::PrintSettings))
        m_printSettings = m_pdeCallBack->printSettings();
    else
        _PDELog(this, QStringLiteral("ChangeHandlerModel(Model): ERROR : printSettings is nil"));
    return m_printSettings;
}

PDEFeaturePtr MRPDE_MACChangeHandlerModel::featureWithKey(const QString& key)
{
    for (const PDEFeaturePtr& f : std::as_const(m_features))
        if (f->keyword() == key)
            return f;
    if (!m_ppdFile || key.isEmpty())
        return nullptr;
    ppd_option_t* option = ppdFindOption(m_ppdFile, key.toUtf8().constData());
    if (!option)
        return nullptr;
    PDEFeaturePtr feature = MRPDE_MACFeature::featureWithppdOption(option, this);
    if (!m_features.contains(feature))
        m_features.append(feature);
    return feature;
}

PDEAttributePtr MRPDE_MACChangeHandlerModel::attributeWithKey(const QString& key)
{
    for (const PDEAttributePtr& a : std::as_const(m_ppdAttributes))
        if (a->keyword() == key)
            return a;
    if (!m_ppdFile || key.isEmpty())
        return nullptr;
    ppd_attr_t* attr = ppdFindAttr(m_ppdFile, key.toUtf8().constData(), nullptr);
    if (!attr)
        return nullptr;
    PDEAttributePtr attribute = MRPDEAttribute::attributeWithppdAttribute(attr, this);
    m_ppdAttributes.append(attribute);
    return attribute;
}

bool MRPDE_MACChangeHandlerModel::willChangePPDOptionKeyValue(const QString& option, const QString& choice)
{
    if (option.isNull() || choice.isNull() || !m_pdeCallBack
        || !m_pdeCallBack->respondsToOperation(Op::WillChangePPDOptionKeyValue))
        return false;
    _PDELog(this, QStringLiteral("ChangeHandlerModel(Model): willChangePPDOptionKeyValue(%@->%@)"), option,
            PDESecrets::forLog(option, choice));
    return m_pdeCallBack->willChangePPDOptionKeyValue(option, choice);
}

void MRPDE_MACChangeHandlerModel::PPDOptionKeyValueDidChange(const QString& option, const QString& choice)
{
    _PDELog(this, QStringLiteral("ChangeHandlerModel(model): PPDOptionKeyValueDidChange(%@->%@)"), option,
            PDESecrets::forLog(option, choice));
    for (const PDEFeaturePtr& f : std::as_const(m_features)) {
        if (f->keyword() == option) {
            f->setCurrentValueWithChoiceWithKeyword(choice);
            return;
        }
    }
    _PDELog(this, QStringLiteral("ChangeHandlerModel(model): PPDOptionKeyValueDidChange: ERROR: option[%@] choice[%@]"), option,
            PDESecrets::forLog(option, choice));
}

bool MRPDE_MACChangeHandlerModel::isInstallableOptionConstrainedWithChoice(const QString& choice, const QString& option) const
{
    return m_installableOptionsDictionary.value(option).contains(choice);
}

void MRPDE_MACChangeHandlerModel::addFeatureToInstallableOptionDictionary(const QString& option, const QString& choice)
{
    if (option.isNull() || choice.isNull())
        return;
    m_installableOptionsDictionary[option].append(choice);
}

void MRPDE_MACChangeHandlerModel::initializeInstallableOptionsConstraints()
{
    if (!m_ppdFile)
        return;
    ppd_group_t* installable = nullptr;
    for (int g = 0; g < m_ppdFile->num_groups && !installable; ++g)
        if (qstricmp(m_ppdFile->groups[g].name, "InstallableOptions") == 0)
            installable = m_ppdFile->groups + g;
    if (!installable)
        return;
    for (int i = 0; i < m_ppdFile->num_consts; ++i) {
        const ppd_const_t& c = m_ppdFile->consts[i];
        ppd_option_t* option1 = nullptr;
        for (int o = 0; o < installable->num_options && !option1; ++o)
            if (qstricmp(installable->options[o].keyword, c.option1) == 0)
                option1 = installable->options + o;
        if (!option1)
            continue;
        const ppd_choice_t* marked = ppdFindMarkedChoice(m_ppdFile, option1->keyword);
        const char* markedChoice = marked ? marked->choice : "";
        const bool applies = c.choice1[0] ? qstricmp(c.choice1, markedChoice) == 0
                                          : (marked && qstricmp(markedChoice, "None") != 0 && qstricmp(markedChoice, "False") != 0);
        if (!applies)
            continue;
        const QString option2 = QString::fromUtf8(c.option2);
        if (c.choice2[0]) {
            addFeatureToInstallableOptionDictionary(option2, QString::fromUtf8(c.choice2));
        } else if (ppd_option_t* o2 = ppdFindOption(m_ppdFile, c.option2)) {
            for (int k = 0; k < o2->num_choices; ++k)
                addFeatureToInstallableOptionDictionary(option2, QString::fromUtf8(o2->choices[k].choice));
        }
    }
}

QString MRPDE_MACChangeHandlerModel::localizedString(const QString& key) const
{
    return m_pdeBundle ? m_pdeBundle->localizedString(key, QStringLiteral("Localizable")) : key;
}

void MRPDE_MACChangeHandlerModel::makeCustomFeatures()
{
    if (m_ppdFile && ppdFindOption(m_ppdFile, "VELSecureReleaseOption2") && !ppdFindOption(m_ppdFile, "PSSUSERID")) {
        auto userID = std::make_shared<MRPDE_MACFeature>();
        userID->setKeyword(QStringLiteral("PSSUSERID"));
        userID->setDisplayString(localizedString(QStringLiteral("UserID")));
        userID->setModelDelegate(this);
        m_features.append(userID);
    }
    makeUserDefinedColorFeature();
}

void MRPDE_MACChangeHandlerModel::makeUserDefinedColorFeature()
{
    PDEAttributePtr mode = attributeWithKey(QStringLiteral("eCMSMode2"));
    if (!mode || mode->attributeValue() != QLatin1String("1")) {
        _PDELog(this, QStringLiteral("ChangeHandlerModel(model): makeCustomFeatures: ECMSMode2Key is 0 or not available"));
        return;
    }
    PDEAttributePtr manufacturer = attributeWithKey(QStringLiteral("Manufacturer"));
    PDEAttributePtr nickName = attributeWithKey(QStringLiteral("NickName"));
    if (!manufacturer || !nickName) {
        _PDELog(this, QStringLiteral("ChangeHandlerModel(model): makeCustomFeatures: ManufacturerKey or NickNameKey is not available"));
        return;
    }
    const QString folder = PDEStringWithFormat(colorProfileFolderFormat(), {manufacturer->attributeValue(), nickName->attributeValue()});
    auto path = std::make_shared<MRPDEAttribute>();
    path->setKeyword(QStringLiteral("VCMS2Path"));
    path->setAttributeValue(folder);
    path->setIsPrintSetting(true);
    path->setModelDelegate(this);
    m_ppdAttributes.append(path);

    if (!QFileInfo(folder).isDir()) {
        _PDELog(this, QStringLiteral("ChangeHandlerModel(model): makeCustomFeatures: UCS Path is not present in system."));
        return;
    }
    QStringList names{localizedString(QStringLiteral("None"))};
    QDirIterator it(folder, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString p = it.next();
        if (p.endsWith(QLatin1String(".ucs")))
            names.append(QFileInfo(p).fileName());
    }
    if (names.isEmpty()) {
        _PDELog(this, QStringLiteral("ChangeHandlerModel(model): makeCustomFeatures: No UCS files are available."));
        return;
    }
    auto feature = std::make_shared<MRPDE_MACFeature>();
    feature->setKeyword(QStringLiteral("UserDefinedColor"));
    feature->setDisplayString(localizedString(QStringLiteral("UDCTitle")));
    feature->setModelDelegate(this);
    for (const QString& n : std::as_const(names))
        feature->choices().append(PDE_MACChoice::choiceWithKeywordDisplayString(n, n));
    _PDELog(this, QStringLiteral("ChangeHandlerModel(Model): Setting the Value of UCS Feature to the 1st File at UCSPath"));
    feature->setCurrentValue(feature->choices().first());
    if (!m_features.contains(feature))
        m_features.append(feature);
}

bool MRPDE_MACChangeHandlerModel::restoreValuesAndReturnError(QString*)
{
    for (const PDEFeaturePtr& f : std::as_const(m_features))
        f->restoreValues();
    for (const PDEAttributePtr& a : std::as_const(m_ppdAttributes))
        a->restoreValues();
    return true;
}

bool MRPDE_MACChangeHandlerModel::saveValuesAndReturnError(QString*)
{
    for (const PDEFeaturePtr& f : std::as_const(m_features))
        f->saveValues();
    for (const PDEAttributePtr& a : std::as_const(m_ppdAttributes))
        a->saveValues();
    return true;
}

QString MRPDE_MACChangeHandlerModel::colorProfileFolderFormat()
{
    if (!folderFormatOverride().isEmpty())
        return folderFormatOverride();
    const QString env = qEnvironmentVariable("PRINT_PANELS_VCMS_FOLDER");
    return env.isEmpty() ? QStringLiteral("/usr/share/%@/Printer/VCMS/%@/") : env;
}

void MRPDE_MACChangeHandlerModel::setColorProfileFolderFormat(const QString& format)
{
    folderFormatOverride() = format;
}
