#include "MRStandalonePDE.h"

#include "PDELazyPicture.h"

#include "PDEBundle.h"
#include "PDEChoiceList.h"
#include "PDEHelp.h"
#include "PDELazyPicture.h"
#include "PDELog.h"
#include "PDEPluginCallback.h"
#include "PDEVersionChecks.h"
#include "PMPageFormat.h"
#include "PMPrintSettings.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLocale>
#include <QMetaMethod>
#include <QToolButton>
#include <cups/ppd.h>

namespace {
const char* yesNo(bool b)
{
    return b ? "YES" : "NO";
}
}

MRStandalonePDE::MRStandalonePDE(PDEPluginCallback* callback, std::shared_ptr<PDEBundle> bundle)
    : m_callback(callback), m_bundle(std::move(bundle))
{
    _PDELog(this, QStringLiteral("initWithCallback:(%@, %p) andBundle:(%@ %p)"), PDEAddress(callback), PDEAddress(callback),
            m_bundle ? m_bundle->bundlePath() : QString(), PDEAddress(m_bundle.get()));
    using Op = PDEPluginCallback::Operation;
    m_useConstraintHandling = m_callback && m_callback->respondsToOperation(Op::WillChangePPDOptionKeyValue);
    m_canResizeView = m_callback && m_callback->respondsToOperation(Op::PanelViewDidResize) && RunningOn105OrLater();
    _PDELog(this, QStringLiteral("Constraint Handling Available: %s"), yesNo(m_useConstraintHandling));
    _PDELog(this, QStringLiteral("Can resize on the fly: %s"), yesNo(m_canResizeView));
    if (m_callback && RunningOn105OrLater() && m_callback->respondsToOperation(Op::PPDFile))
        m_ppd = m_callback->ppdFile();

    // A host that is an object with an update() signal tells its panels when
    // a job setting they read changed; the panel follows it for its lifetime.
    if (auto* host = dynamic_cast<QObject*>(m_callback)) {
        const int signal = host->metaObject()->indexOfSignal("update()");
        const int slot = metaObject()->indexOfSlot("hostWillUpdate()");
        if (signal >= 0 && slot >= 0)
            connect(host, host->metaObject()->method(signal), this, metaObject()->method(slot));
    }
}

MRStandalonePDE::~MRStandalonePDE() = default;

void MRStandalonePDE::logCreation(bool created) const
{
    _PDELog(this, created ? QStringLiteral("initWithCallback:andBundle:=id(self)") : QStringLiteral("initWithCallback:=id(nil, nil)"));
}

QString MRStandalonePDE::localizationTable() const
{
    return QString::fromLatin1(kAdvancedOptionPDELocalizable);
}

QString MRStandalonePDE::panelName()
{
    if (m_thePDEName.isNull())
        m_thePDEName = getLocalizationWithKey(panelNameKey());
    _PDELog(this, QStringLiteral("panelName:=NSString(%@)"), m_thePDEName);
    return m_thePDEName;
}

bool MRStandalonePDE::shouldShowHelp()
{
    _PDELog(this, QStringLiteral("Opening Help Book"));
    const QString book = m_bundle ? m_bundle->objectForInfoDictionaryKey(QStringLiteral("CFBundleHelpBookName")).toString() : QString();
    // The help system answers a status: 0 when the page was opened.
    const int status = m_bundle && PDEHelp::gotoPage(*m_bundle, helpPage()) ? 0 : -1;
    if (status != 0)
        _PDELog(this, QStringLiteral("Result %i attempting to open %@"), status, book);
    return false;
}

void MRStandalonePDE::updatePrinterUI()
{
}

void MRStandalonePDE::hostWillUpdate()
{
    updatePrinterUI();
}

std::shared_ptr<MRAdvancedPDEChoice> MRStandalonePDE::selectionForPopUpWithKey(QComboBox* popUp, const QString& key)
{
    _PDELog(this, QStringLiteral("doSelectionForPopUp:(%@) withKey:(%@)"), popUp ? popUp->objectName() : QString(), key);
    std::shared_ptr<MRAdvancedPDEChoice> choice =
        popUp ? RepresentedChoiceOfItem<MRAdvancedPDEChoice>(popUp, popUp->currentIndex()) : nullptr;
    if (choice && m_useConstraintHandling) {
        m_callback->willChangePPDOptionKeyValue(key, choice->ppdTitle());
        updateMarkedSelections();
    }
    _PDELog(this, QStringLiteral("doSelectionForPopUp:withKey:=PDEChoice(%@)"), choice);
    return choice;
}

std::shared_ptr<MRPDEChoice> MRStandalonePDE::choiceSelectionForPopUpWithKey(QComboBox* popUp, const QString& key)
{
    _PDELog(this, QStringLiteral("selected index: %i"), popUp ? popUp->currentIndex() : -1);
    std::shared_ptr<MRPDEChoice> choice = popUp ? PDEItemChoice(popUp, popUp->currentIndex()) : nullptr;
    _PDELog(this, QStringLiteral("selected request: %@"), choice ? choice->ppdTitle() : QString());
    if (choice && m_useConstraintHandling) {
        m_callback->willChangePPDOptionKeyValue(key, choice->ppdTitle());
        updateMarkedSelections();
    }
    return choice;
}

int MRStandalonePDE::indexOfMarkedOptionForKey(const QString& key) const
{
    if (!m_ppd)
        return -1;
    const QByteArray keyword = key.toUtf8();
    ppd_option_t* option = ppdFindOption(m_ppd, keyword.constData());
    if (!option)
        return -1;
    ppd_choice_t* choice = ppdFindMarkedChoice(m_ppd, keyword.constData());
    if (!choice)
        choice = ppdFindChoice(option, option->defchoice);
    if (!choice) {
        _PDELog(this, QStringLiteral("returning a -1 index means there was no default choice"));
        return -1;
    }
    return int(choice - option->choices);
}

void MRStandalonePDE::setViewTitleByTagFromOptions(QWidget* view, const QString& tag, const QString& optionKey) const
{
    QLabel* label = view ? view->findChild<QLabel*>(tag) : nullptr;
    ppd_option_t* option = m_ppd ? ppdFindOption(m_ppd, optionKey.toUtf8().constData()) : nullptr;
    const QString title = CreateOptionTitle(option);
    if (label && !title.isNull())
        label->setText(title);
}

QString MRStandalonePDE::LocalizationsInfo() const
{
    return m_bundle ? m_bundle->language() : QStringLiteral("en");
}

QString MRStandalonePDE::getLocalizationWithKey(const QString& key) const
{
    return m_bundle ? m_bundle->localizedString(key, localizationTable()) : key;
}

QString MRStandalonePDE::ReadOrientation() const
{
    PMOrientation orientation = kPMPortrait;
    PMPageFormat* format = m_callback && m_callback->respondsToOperation(PDEPluginCallback::Operation::PageFormat)
                               ? m_callback->pageFormat()
                               : nullptr;
    if (!format || PMGetOrientation(format, &orientation) != 0)
        orientation = kPMPortrait;
    return QString::number(int(orientation));
}

PMPrintSettings* MRStandalonePDE::printSettings() const
{
    return m_callback && m_callback->respondsToOperation(PDEPluginCallback::Operation::PrintSettings) ? m_callback->printSettings()
                                                                                                       : nullptr;
}

int MRStandalonePDE::layoutRows() const
{
    int rows = 1;
    if (PMPrintSettings* s = printSettings(); !s || PMPrintSettingsGetDerivedInt(s, QString::fromLatin1(kPMLayoutRows), &rows) != 0)
        rows = 1;
    return qMax(1, rows);
}

int MRStandalonePDE::layoutColumns() const
{
    int columns = 1;
    if (PMPrintSettings* s = printSettings(); !s || PMPrintSettingsGetDerivedInt(s, QString::fromLatin1(kPMLayoutColumns), &columns) != 0)
        columns = 1;
    return qMax(1, columns);
}

unsigned MRStandalonePDE::copiesValue() const
{
    unsigned copies = 1;
    if (PMPrintSettings* s = printSettings(); !s || PMGetCopies(s, &copies) != 0)
        copies = 1;
    return copies;
}

void MRStandalonePDE::setDisclosureViews(QWidget* panelView, QWidget* basicView, QAbstractButton* advancedButton, QWidget* advancedView)
{
    m_pdeView = panelView;
    m_basicView = basicView;
    m_advancedButton = advancedButton;
    m_advancedView = advancedView;
    if (m_advancedButton) {
        m_advancedButton->setCheckable(true);
        connect(m_advancedButton, &QAbstractButton::clicked, this, [this](bool on) { showAdvancedOptions(on); });
    }
}

void MRStandalonePDE::showAdvanced(bool show)
{
    if (m_advancedButton)
        m_advancedButton->setChecked(show);
    // A disclosure triangle points down while its part is open.
    if (auto* triangle = qobject_cast<QToolButton*>(m_advancedButton.data()); triangle && triangle->arrowType() != Qt::NoArrow)
        triangle->setArrowType(show ? Qt::DownArrow : Qt::RightArrow);
    if (m_advancedView)
        m_advancedView->setVisible(show);
    if (m_pdeView)
        m_pdeView->adjustSize();
}

void MRStandalonePDE::showAdvancedOptions(bool state)
{
    _PDELog(this, QStringLiteral("showAdvancedOptions:(%@, %p, %i)"), m_advancedButton ? m_advancedButton->objectName() : QString(),
            PDEAddress(m_advancedButton.data()), int(state));
    if (!m_canResizeView) {
        _PDELog(this, QStringLiteral("showAdvancedOptions: view not resized due to lack of support"));
        return;
    }
    _PDELog(this, state ? QStringLiteral("showAdvancedOptions: showing advanced options")
                        : QStringLiteral("showAdvancedOptions: hiding advanced options"));
    showAdvanced(state);
    m_callback->panelViewDidResize();
}

bool MRStandalonePDE::IsMetric()
{
    return QLocale::system().measurementSystem() == QLocale::MetricSystem;
}

void MRStandalonePDE::setImage(QLabel* view, const PDEBundle* bundle, const QString& name)
{
    if (!view)
        return;
    const QString path = bundle && !name.isEmpty() ? bundle->pathForResource(name, QStringLiteral("png")) : QString();
    const bool shown = PDELazyPicture::set(view, path);
    view->setProperty("imageName", shown ? QVariant(name) : QVariant(QString()));
}

void MRStandalonePDE::setImageFromFile(QLabel* view, const QString& path)
{
    if (!view)
        return;
    const bool shown = PDELazyPicture::set(view, path);
    view->setProperty("imageName", shown ? QVariant(path) : QVariant(QString()));
}

void MRStandalonePDE::setSystemFontSize(QWidget* widget, int points)
{
    if (!widget)
        return;
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * points / 13.0);
    widget->setFont(font);
}

void MRStandalonePDE::setLabelActive(QWidget* label, bool active)
{
    if (!label)
        return;
    QPalette palette = label->palette();
    const QColor colour = active ? QColor(Qt::black) : QColor(Qt::gray);
    palette.setColor(QPalette::WindowText, colour);
    palette.setColor(QPalette::ButtonText, colour);
    palette.setColor(QPalette::Text, colour);
    label->setPalette(palette);
}
