#pragma once
#include "PDE_MACChoice.h"

#include <QList>
#include <QObject>
#include <functional>
#include <memory>

struct ppd_option_s;
class MRPDE_MACChangeHandlerModel;

// One PPD main option as the panels see it: its choices, current and default
// value. Every change of the current value is approved by the model first;
// observers of the current value are told after it is stored, synchronously
// and in the order they registered.
class MRPDE_MACFeature : public QObject {
    Q_OBJECT
public:
    static std::shared_ptr<MRPDE_MACFeature> featureWithppdOption(ppd_option_s* option, MRPDE_MACChangeHandlerModel* model);
    // A feature made by hand: no choices, selectable, value must be a PPD choice.
    MRPDE_MACFeature();
    // A feature made from a PPD option (initWithPPDOption:modelDelegate:).
    MRPDE_MACFeature(ppd_option_s* option, MRPDE_MACChangeHandlerModel* model);
    ~MRPDE_MACFeature() override;

    QString keyword() const { return m_keyword; }
    void setKeyword(const QString& k) { m_keyword = k; }
    QString displayString() const { return m_displayString; }
    void setDisplayString(const QString& d) { m_displayString = d; }
    PDEChoicePtr currentValue() const { return m_currentValue; }
    void setCurrentValue(const PDEChoicePtr& value);
    PDEChoicePtr defaultValue() const { return m_defaultValue; }
    void setDefaultValue(const PDEChoicePtr& value) { m_defaultValue = value; }
    QList<PDEChoicePtr>& choices() { return m_choices; }
    const QList<PDEChoicePtr>& choices() const { return m_choices; }
    MRPDE_MACChangeHandlerModel* modelDelegate() const { return m_modelDelegate; }
    void setModelDelegate(MRPDE_MACChangeHandlerModel* m) { m_modelDelegate = m; }
    bool selectable() const { return m_selectable; }
    void setSelectable(bool s) { m_selectable = s; }
    bool isCurrentValueAPPDChoice() const { return m_isCurrentValueAPPDChoice; }
    void setIsCurrentValueAPPDChoice(bool b) { m_isCurrentValueAPPDChoice = b; }
    ppd_option_s* ppdOption() const { return m_ppdOption; }

    bool setCurrentValueWithChoiceWithKeyword(const QString& keyword);
    bool setCurrentValueWithChoiceWithDisplayString(const QString& displayString);
    PDEChoicePtr getChoiceWithKeyword(const QString& keyword) const;

    void saveValues();
    void restoreValues();
    void setDefaultValueForOutsideFeature(const QString& keyword);

    QString description() const;

    // Observes the current value: handler runs after every stored change, and
    // once at once when `initial` is set. The connection ends with receiver.
    QMetaObject::Connection observeCurrentValue(QObject* receiver, std::function<void(MRPDE_MACFeature*)> handler,
                                                bool initial);

    // How many observers the current value has (teardown leaves none behind).
    int observerCount() const { return receivers(SIGNAL(currentValueChanged(MRPDE_MACFeature*))); }

signals:
    void currentValueChanged(MRPDE_MACFeature* feature);

private:
    bool setCurrentValueWithMatchingChoice(const std::function<bool(const PDE_MACChoice&)>& matches);

    QString m_keyword;
    QString m_displayString;
    PDEChoicePtr m_currentValue;
    PDEChoicePtr m_defaultValue;
    QList<PDEChoicePtr> m_choices;
    ppd_option_s* m_ppdOption = nullptr;
    MRPDE_MACChangeHandlerModel* m_modelDelegate = nullptr;
    bool m_selectable = true;
    bool m_isCurrentValueAPPDChoice = true;
};

using PDEFeaturePtr = std::shared_ptr<MRPDE_MACFeature>;
