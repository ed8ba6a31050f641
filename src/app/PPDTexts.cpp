#include "PPDTexts.h"

#include <cups/ppd.h>

QString PPDTexts::optionText(ppd_file_s* ppd, const QString& key)
{
    const ppd_option_t* o = ppd ? ppdFindOption(ppd, key.toUtf8().constData()) : nullptr;
    return o && o->text[0] ? QString::fromUtf8(o->text) : key;
}

QString PPDTexts::choiceText(ppd_file_s* ppd, const QString& key, const QString& choice)
{
    ppd_option_t* o = ppd ? ppdFindOption(ppd, key.toUtf8().constData()) : nullptr;
    const ppd_choice_t* c = o ? ppdFindChoice(o, choice.toUtf8().constData()) : nullptr;
    return c && c->text[0] ? QString::fromUtf8(c->text) : choice;
}
