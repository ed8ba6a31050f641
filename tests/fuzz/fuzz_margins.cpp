// The Manual Margin panel's lengths and the validators of the typed fields.
// The first byte picks the length field (its tag) and the unit system, the
// rest is the text. It goes through every field's rule, into the panel as a
// stored value and as typed text; what the panel then saves is within the
// field's range. A page range the dialog's validator accepts is one the
// host accepts too.
#include "FuzzSupport.h"
#include "MRAngleFormatter.h"
#include "MRFontSizeFormatter.h"
#include "MRGutterFormatter.h"
#include "MRManualMarginPDE.h"
#include "MRMessageFormatter.h"
#include "MROverlapFormatter.h"
#include "MRPDEStringFormatter.h"
#include "MRSecureIDFormatter.h"
#include "MRSheetPerSetFormatter.h"
#include "PageRangeValidator.h"
#include "PrintDialogHost.h"

#include <QLineEdit>
#include <memory>

namespace {
void validateEverywhere(QString text)
{
    MRAngleFormatter angle;
    MRFontSizeFormatter fontSize;
    MRGutterFormatter gutter;
    MRMessageFormatter message;
    MROverlapFormatter overlap;
    MRSecureIDFormatter secureID;
    MRSheetPerSetFormatter sheets;
    MRPDEStringFormatter string;
    for (QValidator* v : std::initializer_list<QValidator*>{&angle, &fontSize, &gutter, &message, &overlap, &secureID, &sheets, &string}) {
        QString copy = text;
        int pos = int(copy.size());
        v->validate(copy, pos);
    }
    MRFormatter::intValue(text);
    MRFormatter::doubleValue(text);
    PageRangeValidator ranges;
    int pos = int(text.size());
    if (ranges.validate(text, pos) == QValidator::Acceptable) {
        QString error;
        FuzzSupport::check(PrintDialogHost::checkJobValue(QStringLiteral("page-ranges"), PageRangeValidator::normalized(text), &error),
                           "a page range the dialog accepts is refused by the host", text + QLatin1Char(' ') + error);
    }
}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzSupport::start();
    if (size == 0)
        return 0;
    const int tag = MRManualMarginPDE::FrontMarginTag + data[0] % 6;
    const bool metric = data[0] & 0x80;
    const QString text = FuzzSupport::text(data + 1, size - 1);
    validateEverywhere(text);
    const bool acceptable = MRManualMarginPDE::isAcceptableInput(text, tag, metric);
    MRManualMarginPDE::displayValue(text, metric);
    MRManualMarginPDE::getInchValue(MRFormatter::doubleValue(text), metric);

    QString error;
    auto host = FuzzSupport::sampleHost();
    // The stored value of every length, and the PPD's choice of what the
    // margin is for, as a saved setting would bring them.
    for (int v = MRManualMarginPDE::FrontSide; v < MRManualMarginPDE::ValueCount; ++v)
        host->printSettings()->setValue(MRManualMarginPDE::keyOf(MRManualMarginPDE::Value(v)), text);
    host->applyOptions(tag <= MRManualMarginPDE::BackMarginTag ? QStringLiteral("VELMarginFor=BindingMargin") : QStringLiteral("VELMarginFor=ImageShift"), &error);
    auto panel = MRManualMarginPDE::create(host.get(), PDEBundle::embedded());
    FuzzSupport::check(panel != nullptr, "manual margin panel");
    panel->setMetric(metric);
    panel->restoreValuesAndReturnError(&error);
    panel->willShow();
    for (QLineEdit* field : panel->panelView()->findChildren<QLineEdit*>()) {
        if (field->property("tag").toInt() != tag)
            continue;
        field->setText(text);
        panel->controlTextDidChange(tag);
        FuzzSupport::check(!acceptable || field->text() == text, "an acceptable length was refused", text);
    }
    panel->saveValuesAndReturnError(&error);
    using V = MRManualMarginPDE;
    const std::pair<V::Value, int> lengths[] = {{V::FrontSide, V::FrontMarginTag}, {V::BackSide, V::BackMarginTag},
                                                {V::FrontLRSize, V::FrontLRTag},   {V::FrontTBSize, V::FrontTBTag},
                                                {V::BackLRSize, V::BackLRTag},     {V::BackTBSize, V::BackTBTag}};
    for (const auto& [value, lengthTag] : lengths) {
        const QString saved = host->printSettings()->value(V::keyOf(value));
        bool ok = false;
        const double inches = saved.toDouble(&ok);
        FuzzSupport::check(ok && inches >= 0 && inches <= V::maximumInches(lengthTag) + 1e-9, "a saved length is out of range",
                           V::keyOf(value) + QLatin1Char('=') + saved);
    }
    return 0;
}
