#pragma once
#include "MRValidatingTextField.h"

// The watermark's own message (MRMessageFormatter); while empty it shows
// what an empty message means.
class MRWatermarkMessageField : public MRValidatingTextField {
    Q_OBJECT
public:
    explicit MRWatermarkMessageField(QWidget* parent = nullptr);
    // The text shown while the field is empty (the translation of "No Watermark").
    void initializeWatermarkStringField(const QString& emptyText);
};
