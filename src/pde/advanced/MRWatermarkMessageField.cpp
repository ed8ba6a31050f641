#include "MRWatermarkMessageField.h"

#include "MRMessageFormatter.h"

MRWatermarkMessageField::MRWatermarkMessageField(QWidget* parent) : MRValidatingTextField(parent)
{
    setValidator(new MRMessageFormatter(this));
    initializeWatermarkStringField(QStringLiteral("No Watermark"));
}

void MRWatermarkMessageField::initializeWatermarkStringField(const QString& emptyText)
{
    setPlaceholderText(emptyText);
}
