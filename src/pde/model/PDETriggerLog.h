#pragma once
#include <QString>

// The framed log entry a trigger writes after each evaluation: three lines of
// "'", a row of "~" with the tag in it, the message, a closing row of "~".
void PDELogTriggerEvaluation(const void* sender, const QString& tag, const QString& format, const QString& description);
