#include "MRManualMarginPDE.h"

#include "MRAdvancedUnits.h"
#include "MRFormatter.h"
#include "PDEBundle.h"
#include "PDELog.h"
#include "PDEPluginCallback.h"
#include "PDEStepper.h"
#include "PMPrintSettings.h"
#include "ui_ManualMarginPDE.h"

#include <QButtonGroup>
#include <algorithm>
#include <cups/ppd.h>

namespace {
struct ValueInfo {
    const char* key;
    const char* name;
    const char* def;
};
// In the order of MRManualMarginPDE::Value.
constexpr ValueInfo kValues[] = {
    {"VELAutoReduction", "sAutoReductionValue", "Off"},
    {"VELBindingSameValue", "sSameFrontBackValue", "On"},
    {"VELBindingFrontSize", "sFrontSideValue", "0.4"},
    {"VELBindingBackSize", "sBackSideValue", "0.4"},
    {"VELISSameValue", "sISSameFrontBackValue", "On"},
    {"VELISFrontLROption", "sFrontLROptionValue", "0"},
    {"VELISFrontLRSize", "sFrontLRSizeValue", "0.4"},
    {"VELISFrontTBOption", "sFrontTBOptionValue", "0"},
    {"VELISFrontTBSize", "sFrontTBSizeValue", "0.4"},
    {"VELISBackLROption", "sBackLROptionValue", "0"},
    {"VELISBackLRSize", "sBackLRSizeValue", "0.4"},
    {"VELISBackTBOption", "sBackTBOptionValue", "0"},
    {"VELISBackTBSize", "sBackTBSizeValue", "0.4"},
};
using V = MRManualMarginPDE::Value;
constexpr V kBindingValues[] = {V::AutoReduction, V::SameFrontBack, V::FrontSide, V::BackSide};
constexpr V kShiftValues[] = {V::ISSameFrontBack, V::FrontLROption, V::FrontLRSize, V::FrontTBOption, V::FrontTBSize,
                              V::BackLROption,    V::BackLRSize,    V::BackTBOption, V::BackTBSize};

bool isSwitch(V v)
{
    return v == V::AutoReduction || v == V::SameFrontBack || v == V::ISSameFrontBack;
}
bool isDirection(V v)
{
    return v == V::FrontLROption || v == V::FrontTBOption || v == V::BackLROption || v == V::BackTBOption;
}
bool isBindingLength(V v)
{
    return v == V::FrontSide || v == V::BackSide;
}
bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}
// Stepper units per field unit: the inch steppers count hundredths.
int stepperScale(bool metric)
{
    return metric ? 1 : 100;
}
}

std::shared_ptr<MRManualMarginPDE> MRManualMarginPDE::create(PDEPluginCallback* callback, std::shared_ptr<PDEBundle> bundle)
{
    std::shared_ptr<MRManualMarginPDE> panel(new MRManualMarginPDE(callback, std::move(bundle)));
    const bool offered = panel->m_marginForOption || panel->m_bindingPositionOption;
    panel->logCreation(offered);
    return offered ? panel : nullptr;
}

MRManualMarginPDE::MRManualMarginPDE(PDEPluginCallback* callback, std::shared_ptr<PDEBundle> bundle)
    : MRStandalonePDE(callback, std::move(bundle)), m_metric(IsMetric())
{
    m_kManualMarginKindID = QStringLiteral("%1.ManualMarginKind").arg(pluginBundle() ? pluginBundle()->bundleIdentifier() : QString());
    if (ppd()) {
        m_marginForOption = ppdFindOption(ppd(), kNSMarginForKey);
        m_bindingPositionOption = ppdFindOption(ppd(), kNSBindingPositionKey);
        m_colorModelOption = ppdFindOption(ppd(), kNSColorModelKey);
    }
    m_marginForChoices = ManualMarginArrayFromPPDOption(m_marginForOption).value_or(MRPDEChoiceArray());
    m_bindingPositionChoices = ManualMarginArrayFromPPDOption(m_bindingPositionOption).value_or(MRPDEChoiceArray());
    updateMarkedSelections();
}

MRManualMarginPDE::~MRManualMarginPDE()
{
    delete m_viewPDE.data();
}

QString MRManualMarginPDE::keyOf(Value v)
{
    return QString::fromLatin1(kValues[v].key);
}

QString MRManualMarginPDE::defaultOf(Value v)
{
    return QString::fromLatin1(kValues[v].def);
}

// The dialog knows the panel by the bundle's identifier; the kind identifier
// built from it is kept for the log only.
QString MRManualMarginPDE::panelKind()
{
    return pluginBundle() ? pluginBundle()->bundleIdentifier() : QString();
}

QStringList MRManualMarginPDE::supportedPPDOptionKeys()
{
    if (!m_supportedOptions.isEmpty())
        return m_supportedOptions;
    m_supportedOptions.reserve(8);
    if (m_marginForOption) {
        _PDELog(this, QStringLiteral("Adding Margin For option"));
        m_supportedOptions.append(QString::fromLatin1(kNSMarginForKey));
    } else {
        _PDELog(this, QStringLiteral("Margin for option not supported!"));
    }
    if (m_bindingPositionOption) {
        _PDELog(this, QStringLiteral("Adding Binding Position option"));
        m_supportedOptions.append(QString::fromLatin1(kNSBindingPositionKey));
    } else {
        _PDELog(this, QStringLiteral("Binding Position option not supported!"));
    }
    return m_supportedOptions;
}

QWidget* MRManualMarginPDE::panelView()
{
    if (m_viewPDE)
        return m_viewPDE;
    m_ui = std::make_unique<Ui::ManualMarginPDE>();
    auto* view = new QWidget;
    m_ui->setupUi(view);
    m_viewPDE = view;
    Ui::ManualMarginPDE& u = *m_ui;
    const auto sizeOf = [](QWidget* w) { return QSizeF(w->sizeHint()); };
    m_sizeMarginView = sizeOf(u.viewBasic);
    m_sizeBindingView = sizeOf(u.viewBinindPosition);
    m_sizeISView = sizeOf(u.viewImageShift);
    m_sizeButtonView = sizeOf(u.viewButton);
    m_sizeConceptView = sizeOf(u.viewConcept);
    m_sizePDEView = sizeOf(view);

    // The direction buttons are radio pairs: left/right and top/bottom, per side.
    for (auto [a, b] : {std::pair{u.btnFrontLeft, u.btnFrontRight}, std::pair{u.btnFrontTop, u.btnFrontBottom},
                        std::pair{u.btnBackLeft, u.btnBackRight}, std::pair{u.btnBackTop, u.btnBackBottom}}) {
        auto* group = new QButtonGroup(view);
        group->addButton(a);
        group->addButton(b);
    }
    connect(u.pbtMarginfor, &QComboBox::activated, this, &MRManualMarginPDE::changeMarginFor);
    connect(u.pbtBindingPosition, &QComboBox::activated, this, &MRManualMarginPDE::changeBindingPosition);
    connect(u.btnAutoReduction, &QAbstractButton::clicked, this, &MRManualMarginPDE::changeAutoReduction);
    connect(u.btnSameValue, &QAbstractButton::clicked, this, &MRManualMarginPDE::changeSameValue);
    connect(u.btnSameValueImgShift, &QAbstractButton::clicked, this, &MRManualMarginPDE::changeSameValueIS);
    connect(u.btnConceptPreview, &QAbstractButton::clicked, this, &MRManualMarginPDE::changeConceptPreview);
    connect(u.btnFrontLeft, &QAbstractButton::clicked, this, &MRManualMarginPDE::changeFrontLeft);
    connect(u.btnFrontRight, &QAbstractButton::clicked, this, &MRManualMarginPDE::changeFrontRight);
    connect(u.btnFrontTop, &QAbstractButton::clicked, this, &MRManualMarginPDE::changeFrontTop);
    connect(u.btnFrontBottom, &QAbstractButton::clicked, this, &MRManualMarginPDE::changeFrontBottom);
    connect(u.btnBackLeft, &QAbstractButton::clicked, this, &MRManualMarginPDE::changeBackLeft);
    connect(u.btnBackRight, &QAbstractButton::clicked, this, &MRManualMarginPDE::changeBackRight);
    connect(u.btnBackTop, &QAbstractButton::clicked, this, &MRManualMarginPDE::changeBackTop);
    connect(u.btnBackBottom, &QAbstractButton::clicked, this, &MRManualMarginPDE::changeBackBottom);
    connect(u.stepFrontSide, &PDEStepper::stepped, this, &MRManualMarginPDE::changeFrontSide);
    connect(u.stepBackSide, &PDEStepper::stepped, this, &MRManualMarginPDE::changeBackSide);
    connect(u.stepFrontSideImgShift1, &PDEStepper::stepped, this, &MRManualMarginPDE::changeFrontStepper1);
    connect(u.stepFrontSideImgShift2, &PDEStepper::stepped, this, &MRManualMarginPDE::changeFrontStepper2);
    connect(u.stepBackSideImgShift1, &PDEStepper::stepped, this, &MRManualMarginPDE::changeBackStepper1);
    connect(u.stepBackSideImgShift2, &PDEStepper::stepped, this, &MRManualMarginPDE::changeBackStepper2);
    for (int tag = FrontMarginTag; tag <= BackTBTag; ++tag) {
        QLineEdit* field = lengthOfTag(tag).field;
        field->setProperty("tag", tag);
        connect(field, &QLineEdit::textEdited, this, [this, tag] { controlTextDidChange(tag); });
    }
    initializeUI();
    _PDELog(this, QStringLiteral("panelView:=NSView(%@, %p) "), view->objectName(), PDEAddress(view));
    return view;
}

MRManualMarginPDE::Length MRManualMarginPDE::lengthOfTag(int tag) const
{
    Ui::ManualMarginPDE& u = *m_ui;
    switch (tag) {
    case FrontMarginTag: return {u.tfFrontSideInput, u.stepFrontSide, FrontSide};
    case BackMarginTag: return {u.tfBackSideInput, u.stepBackSide, BackSide};
    case FrontLRTag: return {u.tfFrontSideInputImgShift1, u.stepFrontSideImgShift1, FrontLRSize};
    case FrontTBTag: return {u.tfFrontSideInputImgShift2, u.stepFrontSideImgShift2, FrontTBSize};
    case BackLRTag: return {u.tfBackSideInputImgShift1, u.stepBackSideImgShift1, BackLRSize};
    default: return {u.tfBackSideInputImgShift2, u.stepBackSideImgShift2, BackTBSize};
    }
}

void MRManualMarginPDE::initializeUI()
{
    if (hasInited() || !m_ui)
        return;
    Ui::ManualMarginPDE& u = *m_ui;
    const auto label = [this](const char* key) { return QStringLiteral("%1:").arg(getLocalizationWithKey(QString::fromLatin1(key))); };
    u.tfMarginforLabel->setText(label("Margin for"));
    u.tfBindingPositionLabel->setText(label(kNSBindingPositionKey));
    u.btnAutoReduction->setText(getLocalizationWithKey(QStringLiteral("Auto Reduction")));
    u.btnSameValue->setText(getLocalizationWithKey(QStringLiteral("Same value for front and back")));
    u.btnSameValueImgShift->setText(getLocalizationWithKey(QStringLiteral("Same value for front and back")));
    for (QLabel* l : {u.tfFrontSideLabel, u.tfFrontSideLabelImgShift})
        l->setText(label("Front side"));
    for (QLabel* l : {u.tfBackSideLabel, u.tfBackSideLabelImgShift})
        l->setText(label("Back side"));
    for (QAbstractButton* b : {u.btnFrontLeft, u.btnBackLeft})
        b->setText(getLocalizationWithKey(QStringLiteral("LeftPosition")));
    for (QAbstractButton* b : {u.btnFrontRight, u.btnBackRight})
        b->setText(getLocalizationWithKey(QStringLiteral("RightPosition")));
    for (QAbstractButton* b : {u.btnFrontTop, u.btnBackTop})
        b->setText(getLocalizationWithKey(QStringLiteral("TopPosition")));
    for (QAbstractButton* b : {u.btnFrontBottom, u.btnBackBottom})
        b->setText(getLocalizationWithKey(QStringLiteral("BottomPosition")));
    u.tfConceptPreview->setText(getLocalizationWithKey(QStringLiteral("Concept Preview")));

    const PDEBundle* bundle = pluginBundle().get();
    _PDELog(this, QStringLiteral("initializing Margin For"));
    ManualMarginInitPopUpFromArray(u.pbtMarginfor, m_marginForChoices, bundle);
    if (!m_marginForOption) {
        _PDELog(this, QStringLiteral("disabling margin for"));
        u.pbtMarginfor->setEnabled(false);
    }
    _PDELog(this, QStringLiteral("initializing binding position"));
    ManualMarginInitPopUpFromArray(u.pbtBindingPosition, m_bindingPositionChoices, bundle);
    if (!m_bindingPositionOption) {
        _PDELog(this, QStringLiteral("disabling binding position"));
        u.pbtBindingPosition->setEnabled(false);
    }
    setupSteppers();
    const struct {
        QLabel* view;
        const char* name;
    } arrows[] = {{u.imviewFrontLeftTop, "front_left_top"},       {u.imviewFrontLeftBottom, "front_left_bottom"},
                  {u.imviewFrontRightTop, "front_right_top"},     {u.imviewFrontRightBottom, "front_right_bottom"},
                  {u.imviewBackLeftTop, "back_left_top"},         {u.imviewBackLeftBottom, "back_left_bottom"},
                  {u.imviewBackRightTop, "back_right_top"},       {u.imviewBackRightBottom, "back_right_bottom"}};
    for (const auto& a : arrows) {
        setImage(a.view, bundle, QString::fromLatin1(a.name));
        a.view->hide();
    }
    // A dialog that cannot resize shows the concept for good.
    u.viewButton->setVisible(canResizeView());
    setHasInited(true);
}

void MRManualMarginPDE::setupSteppers()
{
    Ui::ManualMarginPDE& u = *m_ui;
    const QString marginUnit = getLocalizationWithKey(m_metric ? QStringLiteral("(0 - 50 mm)") : QStringLiteral("(0.00 - 2.00 inches)"));
    const QString shiftUnit = getLocalizationWithKey(m_metric ? QStringLiteral("(0 - 25 mm)") : QStringLiteral("(0.00 - 1.00 inches)"));
    for (int tag = FrontMarginTag; tag <= BackTBTag; ++tag) {
        PDEStepper* stepper = lengthOfTag(tag).stepper;
        stepper->setRange(0, qRound(maximumInches(tag) * (m_metric ? 25 : 100)));
        stepper->setSingleStep(m_metric ? 1 : 4);
    }
    u.tfFrontSideUnit->setText(marginUnit);
    u.tfBackSideUnit->setText(marginUnit);
    for (QLabel* l : {u.tfFrontSideUnitImgShift1, u.tfFrontSideUnitImgShift2, u.tfBackSideUnitImgShift1, u.tfBackSideUnitImgShift2})
        l->setText(shiftUnit);
}

void MRManualMarginPDE::setMetric(bool metric)
{
    m_metric = metric;
    if (!hasInited())
        return;
    setupSteppers();
    for (int tag = FrontMarginTag; tag <= BackTBTag; ++tag)
        showLength(tag);
}

// ---- Units and typed input ----

double MRManualMarginPDE::maximumInches(int tag)
{
    return tag == FrontMarginTag || tag == BackMarginTag ? 2.0 : 1.0;
}

QString MRManualMarginPDE::getInchValue(double number, bool metric)
{
    return metric ? MRAdvancedUnits::inchText(number / 25.4) : MRAdvancedUnits::inchText(number);
}

QString MRManualMarginPDE::displayValue(const QString& inches, bool metric)
{
    const double value = MRFormatter::doubleValue(inches);
    return metric ? QString::number(MRAdvancedUnits::millimetresFromInches(float(value))) : MRAdvancedUnits::inchText(value);
}

bool MRManualMarginPDE::isAcceptableInput(const QString& text, int tag, bool metric)
{
    if (text.isEmpty())
        return false;
    if (metric) {
        if (!MRFormatter::onlyDigits(text) || (text[0] == QLatin1Char('0') && text.size() > 1))
            return false;
        return text.size() <= 3 && text.toInt() <= qRound(maximumInches(tag) * 25);
    }
    if (text[0] == QLatin1Char('.') || (text[0] == QLatin1Char('0') && text.size() > 1 && text[1] != QLatin1Char('.')))
        return false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == QLatin1Char('.') ? i != 1 : !isDigit(text[i]))
            return false;
    }
    const qsizetype dot = text.indexOf(QLatin1Char('.'));
    if (dot >= 0 && text.size() - dot - 1 > 2)
        return false;
    return text.size() <= 4 && MRFormatter::doubleValue(text) <= maximumInches(tag);
}

void MRManualMarginPDE::setValueOfFieldOfStepperValue(QLineEdit* field, PDEStepper* stepper, const QString& value) const
{
    if (value.isNull()) {
        if (field)
            field->clear();
        return;
    }
    const QString shown = displayValue(value, m_metric);
    if (field)
        field->setText(shown);
    if (stepper)
        stepper->setValue(qRound(MRFormatter::doubleValue(shown) * stepperScale(m_metric)));
}

void MRManualMarginPDE::showLength(int tag) const
{
    const Length l = lengthOfTag(tag);
    setValueOfFieldOfStepperValue(l.field, l.stepper, m_values[l.value]);
}

// Stores a length and, for a front length whose group has the same-value
// switch on, copies it to the back.
void MRManualMarginPDE::setLength(int tag, const QString& inches)
{
    m_values[lengthOfTag(tag).value] = inches;
    int back = 0;
    if (tag == FrontMarginTag && m_ui->btnSameValue->isChecked())
        back = BackMarginTag;
    else if ((tag == FrontLRTag || tag == FrontTBTag) && m_ui->btnSameValueImgShift->isChecked())
        back = tag == FrontLRTag ? BackLRTag : BackTBTag;
    if (back) {
        m_values[lengthOfTag(back).value] = inches;
        showLength(back);
    }
}

void MRManualMarginPDE::controlTextDidChange(int tag)
{
    if (!m_ui || tag < FrontMarginTag || tag > BackTBTag)
        return;
    const Length l = lengthOfTag(tag);
    const QString text = l.field->text();
    if (isAcceptableInput(text, tag, m_metric)) {
        setLength(tag, getInchValue(MRFormatter::doubleValue(text), m_metric));
        l.stepper->setValue(qRound(MRFormatter::doubleValue(text) * stepperScale(m_metric)));
    } else {
        showLength(tag);
    }
}

void MRManualMarginPDE::stepped(int tag)
{
    const Length l = lengthOfTag(tag);
    setLength(tag, getInchValue(double(l.stepper->value()) / stepperScale(m_metric), m_metric));
    showLength(tag);
}

void MRManualMarginPDE::changeFrontSide()
{
    stepped(FrontMarginTag);
}

void MRManualMarginPDE::changeBackSide()
{
    stepped(BackMarginTag);
}

void MRManualMarginPDE::changeFrontStepper1()
{
    stepped(FrontLRTag);
}

void MRManualMarginPDE::changeFrontStepper2()
{
    stepped(FrontTBTag);
}

void MRManualMarginPDE::changeBackStepper1()
{
    stepped(BackLRTag);
}

void MRManualMarginPDE::changeBackStepper2()
{
    stepped(BackTBTag);
}

// ---- Switches and directions ----

void MRManualMarginPDE::changeAutoReduction()
{
    m_values[AutoReduction] = m_ui->btnAutoReduction->isChecked() ? QStringLiteral("On") : QStringLiteral("Off");
}

void MRManualMarginPDE::changeSameValue()
{
    const bool on = m_ui->btnSameValue->isChecked();
    m_values[SameFrontBack] = on ? QStringLiteral("On") : QStringLiteral("Off");
    if (on) {
        m_values[BackSide] = m_values[FrontSide];
        showLength(BackMarginTag);
    }
    updateUIDependency();
}

void MRManualMarginPDE::changeSameValueIS()
{
    Ui::ManualMarginPDE& u = *m_ui;
    const bool on = u.btnSameValueImgShift->isChecked();
    m_values[ISSameFrontBack] = on ? QStringLiteral("On") : QStringLiteral("Off");
    if (on) {
        m_values[BackLRSize] = m_values[FrontLRSize];
        m_values[BackTBSize] = m_values[FrontTBSize];
        m_values[BackLROption] = m_values[FrontLROption];
        m_values[BackTBOption] = m_values[FrontTBOption];
        u.btnBackLeft->setChecked(u.btnFrontLeft->isChecked());
        u.btnBackRight->setChecked(u.btnFrontRight->isChecked());
        u.btnBackTop->setChecked(u.btnFrontTop->isChecked());
        u.btnBackBottom->setChecked(u.btnFrontBottom->isChecked());
    }
    updateUI();
    updateConceptImage();
}

void MRManualMarginPDE::setDirection(Value option, const QString& value)
{
    Ui::ManualMarginPDE& u = *m_ui;
    m_values[option] = value;
    const bool first = value == QLatin1String("0");
    const auto pair = [&](Value o) -> std::pair<QAbstractButton*, QAbstractButton*> {
        switch (o) {
        case FrontLROption: return {u.btnFrontLeft, u.btnFrontRight};
        case FrontTBOption: return {u.btnFrontTop, u.btnFrontBottom};
        case BackLROption: return {u.btnBackLeft, u.btnBackRight};
        default: return {u.btnBackTop, u.btnBackBottom};
        }
    };
    auto [a, b] = pair(option);
    a->setChecked(first);
    b->setChecked(!first);
    if ((option == FrontLROption || option == FrontTBOption) && u.btnSameValueImgShift->isChecked()) {
        const Value back = option == FrontLROption ? BackLROption : BackTBOption;
        m_values[back] = value;
        auto [c, d] = pair(back);
        c->setChecked(first);
        d->setChecked(!first);
    }
    updateConceptImage();
}

void MRManualMarginPDE::changeFrontLeft()
{
    setDirection(FrontLROption, QStringLiteral("0"));
}

void MRManualMarginPDE::changeFrontRight()
{
    setDirection(FrontLROption, QStringLiteral("1"));
}

void MRManualMarginPDE::changeFrontTop()
{
    setDirection(FrontTBOption, QStringLiteral("0"));
}

void MRManualMarginPDE::changeFrontBottom()
{
    setDirection(FrontTBOption, QStringLiteral("1"));
}

void MRManualMarginPDE::changeBackLeft()
{
    setDirection(BackLROption, QStringLiteral("0"));
}

void MRManualMarginPDE::changeBackRight()
{
    setDirection(BackLROption, QStringLiteral("1"));
}

void MRManualMarginPDE::changeBackTop()
{
    setDirection(BackTBOption, QStringLiteral("0"));
}

void MRManualMarginPDE::changeBackBottom()
{
    setDirection(BackTBOption, QStringLiteral("1"));
}

// ---- Pop-ups and selections ----

void MRManualMarginPDE::updateMarkedSelections()
{
    const auto marked = [this](const char* key, const MRPDEChoiceArray& choices) -> std::shared_ptr<MRPDEChoice> {
        const int index = indexOfMarkedOptionForKey(QString::fromLatin1(key));
        return index >= 0 && index < choices.size() ? choices[index] : ManualMarginFindChoiceForString(QString(), choices);
    };
    m_marginForSelection = marked(kNSMarginForKey, m_marginForChoices);
    m_bindingPositionSelection = marked(kNSBindingPositionKey, m_bindingPositionChoices);
}

int MRManualMarginPDE::marginForIndex() const
{
    return m_marginForSelection ? int(m_marginForChoices.indexOf(m_marginForSelection)) : -1;
}

int MRManualMarginPDE::bindingPositionIndex() const
{
    return m_bindingPositionSelection ? int(m_bindingPositionChoices.indexOf(m_bindingPositionSelection)) : -1;
}

void MRManualMarginPDE::changeMarginFor()
{
    if (auto choice = choiceSelectionForPopUpWithKey(m_ui->pbtMarginfor, QString::fromLatin1(kNSMarginForKey)); choice && !useConstraintHandling())
        m_marginForSelection = choice;
    updateUI();
    makePDEView();
    updateConceptImage();
    if (canResizeView())
        pdePluginCallbackObject()->panelViewDidResize();
}

void MRManualMarginPDE::changeBindingPosition()
{
    if (auto choice = choiceSelectionForPopUpWithKey(m_ui->pbtBindingPosition, QString::fromLatin1(kNSBindingPositionKey));
        choice && !useConstraintHandling())
        m_bindingPositionSelection = choice;
    updateUI();
    updateConceptImage();
}

void MRManualMarginPDE::PPDOptionKeyValueDidChange(const QString& option, const QString& choice)
{
    if (option.isEmpty() || choice.isEmpty())
        return;
    std::shared_ptr<MRPDEChoice>* selection = option == QLatin1String(kNSMarginForKey)          ? &m_marginForSelection
                                              : option == QLatin1String(kNSBindingPositionKey) ? &m_bindingPositionSelection
                                                                                                : nullptr;
    if (!selection)
        return;
    *selection = ManualMarginFindChoiceForString(choice, option == QLatin1String(kNSMarginForKey) ? m_marginForChoices : m_bindingPositionChoices);
    _PDELog(this, QStringLiteral("new choice is %@/%@"), *selection ? (*selection)->userTitle() : QString(),
            *selection ? (*selection)->ppdTitle() : QString());
    if (hasInited()) {
        updateUI();
        makePDEView();
        updateConceptImage();
    }
}

void MRManualMarginPDE::selectInPopUp(QComboBox* popUp, const std::shared_ptr<MRPDEChoice>& selection, const MRPDEChoiceArray& choices,
                                      const char* notFound)
{
    const int index = selection ? int(choices.indexOf(selection)) : -1;
    if (index < 0 || index >= popUp->count())
        _PDELog(this, QString::fromLatin1(notFound));
    else
        popUp->setCurrentIndex(index);
}

// ---- Refresh, enabling, layout, concept ----

void MRManualMarginPDE::updateUI()
{
    if (!hasInited())
        return;
    Ui::ManualMarginPDE& u = *m_ui;
    m_nupRows = QString::number(layoutRows());
    m_nupColumns = QString::number(layoutColumns());
    m_nupvalue = quint32(layoutRows() * layoutColumns());
    selectInPopUp(u.pbtMarginfor, m_marginForSelection, m_marginForChoices, "margin for selection not found!");
    if (m_nupvalue < 2) {
        u.pbtMarginfor->setEnabled(m_marginForOption);
        setLabelActive(u.tfMarginforLabel, true);
    } else {
        // Margins are not offered for jobs with several pages per sheet.
        if (u.pbtMarginfor->count() > 0 && marginForIndex() != 0) {
            u.pbtMarginfor->setCurrentIndex(0);
            if (auto choice = choiceSelectionForPopUpWithKey(u.pbtMarginfor, QString::fromLatin1(kNSMarginForKey)); choice && !useConstraintHandling())
                m_marginForSelection = choice;
            selectInPopUp(u.pbtMarginfor, m_marginForSelection, m_marginForChoices, "margin for selection not found!");
        }
        u.pbtMarginfor->setEnabled(false);
        setLabelActive(u.tfMarginforLabel, false);
    }
    selectInPopUp(u.pbtBindingPosition, m_bindingPositionSelection, m_bindingPositionChoices, "binding positionselection not found!");
    u.btnAutoReduction->setChecked(m_values[AutoReduction] == QLatin1String("On"));
    u.btnSameValue->setChecked(m_values[SameFrontBack] != QLatin1String("Off"));
    u.btnSameValueImgShift->setChecked(m_values[ISSameFrontBack] != QLatin1String("Off"));
    const auto direction = [](QAbstractButton* first, QAbstractButton* second, const QString& v) {
        first->setChecked(v != QLatin1String("1"));
        second->setChecked(v == QLatin1String("1"));
    };
    direction(u.btnFrontLeft, u.btnFrontRight, m_values[FrontLROption]);
    direction(u.btnFrontTop, u.btnFrontBottom, m_values[FrontTBOption]);
    direction(u.btnBackLeft, u.btnBackRight, m_values[BackLROption]);
    direction(u.btnBackTop, u.btnBackBottom, m_values[BackTBOption]);
    for (int tag = FrontMarginTag; tag <= BackTBTag; ++tag)
        showLength(tag);
    updateUIDependency();
}

void MRManualMarginPDE::updateUIDependency()
{
    if (!m_ui)
        return;
    Ui::ManualMarginPDE& u = *m_ui;
    const bool backMargin = !u.btnSameValue->isChecked();
    setLabelActive(u.tfBackSideLabel, backMargin);
    setLabelActive(u.tfBackSideUnit, backMargin);
    u.tfBackSideInput->setEnabled(backMargin);
    u.stepBackSide->setEnabled(backMargin);
    const bool backShift = !u.btnSameValueImgShift->isChecked();
    for (QWidget* w : {static_cast<QWidget*>(u.tfBackSideLabelImgShift), static_cast<QWidget*>(u.tfBackSideUnitImgShift1),
                       static_cast<QWidget*>(u.tfBackSideUnitImgShift2)})
        setLabelActive(w, backShift);
    for (QWidget* w : std::initializer_list<QWidget*>{u.tfBackSideInputImgShift1, u.tfBackSideInputImgShift2, u.stepBackSideImgShift1,
                                                      u.stepBackSideImgShift2, u.btnBackLeft, u.btnBackRight, u.btnBackTop, u.btnBackBottom})
        w->setEnabled(backShift);
}

void MRManualMarginPDE::makePDEView()
{
    if (!m_ui)
        return;
    Ui::ManualMarginPDE& u = *m_ui;
    const int index = marginForIndex();
    _PDELog(this, QStringLiteral("markedChoice %d"), index);
    u.viewBinindPosition->setVisible(index == 1);
    u.viewImageShift->setVisible(index == 2);
    u.viewButton->setVisible(canResizeView());
    const bool showConcept = (index == 1 || index == 2) && (!canResizeView() || u.btnConceptPreview->isChecked());
    u.viewConcept->setVisible(showConcept);
    qreal height = m_sizeMarginView.height() + (canResizeView() ? m_sizeButtonView.height() : 0);
    if (index == 1)
        height += m_sizeBindingView.height();
    if (index == 2)
        height += m_sizeISView.height();
    if (showConcept)
        height += m_sizeConceptView.height();
    m_sizePDEView.setHeight(height);
    m_viewPDE->adjustSize();
}

void MRManualMarginPDE::changeConceptPreview()
{
    _PDELog(this, QStringLiteral("changeConceptPreview:(%@, %p, %i)"), m_ui->btnConceptPreview->objectName(), PDEAddress(m_ui->btnConceptPreview),
            int(m_ui->btnConceptPreview->isChecked()));
    if (!canResizeView()) {
        _PDELog(this, QStringLiteral("changeConceptPreview: view not resized due to lack of support"));
        return;
    }
    m_ui->btnConceptPreview->setArrowType(m_ui->btnConceptPreview->isChecked() ? Qt::DownArrow : Qt::RightArrow);
    _PDELog(this, m_ui->btnConceptPreview->isChecked() ? QStringLiteral("changeConceptPreview: showing Concept")
                                                       : QStringLiteral("changeConceptPreview: hiding aConcept"));
    makePDEView();
    pdePluginCallbackObject()->panelViewDidResize();
}

void MRManualMarginPDE::updateConceptImage()
{
    if (!m_ui)
        return;
    Ui::ManualMarginPDE& u = *m_ui;
    QLabel* arrows[] = {u.imviewFrontLeftTop, u.imviewFrontRightTop, u.imviewFrontLeftBottom, u.imviewFrontRightBottom,
                        u.imviewBackLeftTop,  u.imviewBackRightTop,  u.imviewBackLeftBottom,  u.imviewBackRightBottom};
    for (QLabel* a : arrows)
        a->hide();
    const QString orientation = ReadOrientation();
    const bool portrait = orientation == QLatin1String("1") || orientation == QLatin1String("3");
    const QString o = portrait ? QStringLiteral("portrait_") : QStringLiteral("landscope_");
    const bool colour = m_colorModelOption && indexOfMarkedOptionForKey(QString::fromLatin1(kNSColorModelKey)) == 0;
    const QString c = colour ? QStringLiteral("color") : QStringLiteral("gray");
    const int index = marginForIndex();
    QString name;
    if (index == 2) {
        name = QStringLiteral("IS_") + o + c;
        const auto show = [&](int first, const QString& lr, const QString& tb) {
            arrows[first + (lr == QLatin1String("1") ? 1 : 0) + (tb == QLatin1String("1") ? 2 : 0)]->show();
        };
        show(0, m_values[FrontLROption], m_values[FrontTBOption]);
        show(4, m_values[BackLROption], m_values[BackTBOption]);
    } else if (index == 1) {
        const int position = bindingPositionIndex();
        name = QStringLiteral("binding_") + o + (position == 0 ? QStringLiteral("left_") : position == 1 ? QStringLiteral("right_") : QStringLiteral("top_")) + c;
    }
    setImage(u.imviewConcept, pluginBundle().get(), name);
}

void MRManualMarginPDE::updatePrinterUI()
{
    if (!hasInited())
        return;
    // Pages per sheet may have changed: the margin choice follows it.
    const int before = marginForIndex();
    updateUI();
    if (marginForIndex() != before) {
        makePDEView();
        if (canResizeView())
            pdePluginCallbackObject()->panelViewDidResize();
    }
    updateConceptImage();
}

// ---- Panel protocol ----

bool MRManualMarginPDE::willShow()
{
    setWillShowCalled(true);
    panelView();
    initializeUI();
    updateUI();
    makePDEView();
    updateConceptImage();
    return true;
}

bool MRManualMarginPDE::shouldHide()
{
    setWillShowCalled(false);
    return true;
}

bool MRManualMarginPDE::restoreValuesAndReturnError(QString*)
{
    _PDELog(this, QStringLiteral("restoreValuesAndReturnError:(%p)"), PDEAddress(this));
    panelView();
    if (useConstraintHandling())
        updateMarkedSelections();
    getNonPPDSettingsFromPrintSettings();
    updateUI();
    makePDEView();
    if (hasInited() && canResizeView())
        pdePluginCallbackObject()->panelViewDidResize();
    updateConceptImage();
    return true;
}

bool MRManualMarginPDE::saveValuesAndReturnError(QString*)
{
    _PDELog(this, QStringLiteral("saveValuesAndReturnError:(%p)"), PDEAddress(this));
    writeNonPPDSettingsToPrintSettings();
    return true;
}

QVariantMap MRManualMarginPDE::summaryInfo()
{
    QVariantMap summary;
    const int index = indexOfMarkedOptionForKey(QString::fromLatin1(kNSMarginForKey));
    if (m_marginForSelection && index >= 0 && index < m_marginForChoices.size())
        summary.insert(getLocalizationWithKey(QString::fromLatin1(kNSMarginForKey)), getLocalizationWithKey(m_marginForChoices[index]->ppdTitle()));
    _PDELog(this, QStringLiteral("summaryInfo:NSDictionary(%@, %p)"), summary, PDEAddress(&summary));
    return summary;
}

// ---- Print settings ----

// A value read from the print settings that the panel cannot use is reported
// and replaced (a length beyond its range by the limit, anything else by the
// default); the other values are kept as they were written.
QString MRManualMarginPDE::sanitized(Value v, const QString& read) const
{
    QString used = read;
    if (isSwitch(v)) {
        if (read != QLatin1String("On") && read != QLatin1String("Off"))
            used = defaultOf(v);
    } else if (isDirection(v)) {
        if (read != QLatin1String("0") && read != QLatin1String("1"))
            used = defaultOf(v);
    } else {
        bool ok = false;
        const double inches = read.trimmed().toDouble(&ok);
        const double maximum = isBindingLength(v) ? 2.0 : 1.0;
        if (!ok || !(inches >= 0))
            used = defaultOf(v);
        else if (inches > maximum)
            used = MRAdvancedUnits::inchText(maximum);
        else if (MRAdvancedUnits::inchText(inches).toDouble() != inches)
            used = MRAdvancedUnits::inchText(inches);
    }
    if (used != read)
        PDENSLog(QStringLiteral("ManualMarginPDE: ERROR : the print setting %@ has the unusable value \"%@\"; \"%@\" is used instead"),
                 keyOf(v), read, used);
    return used;
}

void MRManualMarginPDE::getNonPPDSettingsFromPrintSettings()
{
    _PDELog(this, QStringLiteral("<getNonPPDSettingsFromPrintSettings>"));
    PMPrintSettings* settings = printSettings();
    if (!settings)
        return;
    for (int i = 0; i < ValueCount; ++i) {
        QString read;
        if (PMPrintSettingsGetValue(settings, keyOf(Value(i)), &read) != kPMNoError) {
            _PDELog(this, QStringLiteral("%@ is error."), QString::fromLatin1(kValues[i].name));
            m_values[i] = defaultOf(Value(i));
        } else {
            m_values[i] = sanitized(Value(i), read);
        }
    }
    m_nupRows = QString::number(layoutRows());
    m_nupColumns = QString::number(layoutColumns());
    m_nupvalue = quint32(layoutRows() * layoutColumns());
}

void MRManualMarginPDE::writeNonPPDSettingsToPrintSettings()
{
    _PDELog(this, QStringLiteral("writeNonPPDSettingsToPrintSettings"));
    PMPrintSettings* settings = printSettings();
    if (!settings || !m_marginForSelection)
        return;
    const auto write = [&](Value v) {
        const QString value = m_values[v].isNull() ? defaultOf(v) : m_values[v];
        if (const int status = PMPrintSettingsSetValue(settings, keyOf(v), value, false); status != kPMNoError)
            _PDELog(this, QStringLiteral("ManualMargin PDE got an error %d setting the value for %@ !"), status, keyOf(v));
    };
    const int index = useConstraintHandling() ? indexOfMarkedOptionForKey(QString::fromLatin1(kNSMarginForKey)) : marginForIndex();
    // The chosen kind's values are written; the other values only where the
    // settings hold them, so that a value read as unusable is replaced by the
    // one used instead of travelling on with the job.
    for (int i = 0; i < ValueCount; ++i) {
        const Value v = Value(i);
        const bool binding = std::find(std::begin(kBindingValues), std::end(kBindingValues), v) != std::end(kBindingValues);
        if ((index == 1 && binding) || (index == 2 && !binding) || settings->contains(keyOf(v)))
            write(v);
    }
}
