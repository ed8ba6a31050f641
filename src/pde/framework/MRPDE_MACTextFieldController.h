#pragma once
#include "MRPDE_MACBaseController.h"
#include "PDECharacterSet.h"

class QLineEdit;
class PDETextFieldDelegate;

// A single-line text field over a free-text feature. Each edit that keeps
// the text within minLength..maxLength (UTF-16 units, 0 = no limit) is
// written to the feature at once; other texts are not written, and editing
// cannot end while the text is shorter than minLength. Changes of the
// feature are shown in the field.
class MRPDE_MACTextFieldController : public MRPDE_MACBaseController {
    Q_OBJECT
public:
    // initWithControllerForFeature:withControl:model: — control is a QLineEdit.
    MRPDE_MACTextFieldController(const PDEFeaturePtr& feature, QWidget* control, MRPDE_MACChangeHandlerModel* model);
    ~MRPDE_MACTextFieldController() override;

    // initiateControllerForFeature:withControl:model:
    static std::shared_ptr<MRPDE_MACTextFieldController>
    initiateControllerForFeatureWithControlModel(const PDEFeaturePtr& feature, QWidget* control, MRPDE_MACChangeHandlerModel* model);

    QLineEdit* textField() const;

    qint64 minLength() const { return m_minLength; }
    void setMinLength(qint64 length) { m_minLength = length; }
    qint64 maxLength() const { return m_maxLength; }
    void setMaxLength(qint64 length) { m_maxLength = length; }

    // Installs a keystroke filter (MRPDEStringFormatter) on the field from the
    // allowed set, the disallowed set (null sets impose nothing) and the
    // maximum, and keeps maximum and minimum as maxLength and minLength.
    void setContentRestrictionWithAllowedCharacterSetDisallowedCharacterSetMaximumMinimum(const PDECharacterSet& allowed,
                                                                                         const PDECharacterSet& disallowed,
                                                                                         qint64 maximum, qint64 minimum);

    // Delegate: the user changed the text.
    virtual void controlTextDidChange(QLineEdit* field);
    // Delegate: may editing end? Only the minimum length is checked.
    virtual bool controlTextShouldEndEditing(QLineEdit* field);

protected:
    void observeValueForKeyPath(const QString& keyPath, QObject* object, void* context) override;
    // Whether the text's length keeps to minLength and to maxLength.
    bool minimumLengthHolds(const QString& text) const { return m_minLength == 0 || text.size() >= m_minLength; }
    bool maximumLengthHolds(const QString& text) const { return m_maxLength == 0 || text.size() <= m_maxLength; }

private:
    qint64 m_minLength = 0;
    qint64 m_maxLength = 0;
    PDETextFieldDelegate* m_delegate = nullptr;
};
