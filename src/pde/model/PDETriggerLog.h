#pragma once
#include <QString>

class PDETriggerProtocol;

// The framed log entry a trigger writes after each evaluation: three lines of
// "'", a row of "~" with the tag in it, the message with the trigger's
// description, a closing row of "~". Nothing is built while logging is off.
void PDELogTriggerEvaluation(const PDETriggerProtocol* trigger, const QString& tag, const QString& format);
