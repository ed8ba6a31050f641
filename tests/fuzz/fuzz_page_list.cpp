// The Special Pages list and its page-number fields. The input's first line
// is the list string as the print settings carry it, the second and third
// are typed into the insert and the exception page fields. The list read
// back from its own string is the same list; a field keeps only text of its
// rule; inserts expand to at most the longest range.
#include "FuzzSupport.h"
#include "MRSpecialPagePDE.h"
#include "PrintDialogHost.h"
#include "ui_PageListPDE.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzSupport::start();
    QStringList in = FuzzSupport::text(data, size).split(QLatin1Char('\n'));
    in.resize(qMax(in.size(), qsizetype(3)));  // missing lines read as empty
    const QString& list = in[0];
    const QString& inserts = in[1];
    const QString& exceptions = in[2];
    MRSpecialPagePDE::bookletCovers(list);
    for (const QString& field : {inserts, exceptions}) {
        if (MRSpecialPagePDE::isAcceptablePageText(field))
            FuzzSupport::check(MRSpecialPagePDE::makeInsertPageNumArray(field).size() <= MRSpecialPagePDE::kMaxInsertPages * (field.count(QLatin1Char(',')) + 1),
                               "inserts beyond the longest range", field);
        MRSpecialPagePDE::makeExceptionPageNumArray(field);
    }

    QString error;
    auto host = FuzzSupport::sampleHost();
    host->printSettings()->setValue(QString::fromLatin1(kNSSpecialPageKey), list);
    auto panel = MRSpecialPagePDE::create(host.get(), PDEBundle::embedded());
    FuzzSupport::check(panel != nullptr, "special pages panel");
    panel->restoreValuesAndReturnError(&error);
    panel->willShow();
    const QList<MRSpecialPageRow> rows = panel->arrayPageTable();
    FuzzSupport::check(panel->rowsFromString(MRSpecialPagePDE::stringFromRows(rows)) == rows, "the list changes through its string", list);

    // An entry of every kind, with the typed pages.
    Ui::PageListPDE& u = *panel->ui();
    for (int kind = 0; kind < u.pbtPageOption->count(); ++kind) {
        u.pbtPageOption->setCurrentIndex(kind);
        panel->actionPageOption();
        u.etfPageInsertNum->setText(inserts);
        panel->controlTextDidChange(1);
        u.etfPageExcept->setText(exceptions);
        panel->controlTextDidChange(2);
        FuzzSupport::check(MRSpecialPagePDE::isAcceptablePageText(u.etfPageInsertNum->text()), "insert field holds refused text");
        FuzzSupport::check(MRSpecialPagePDE::isAcceptablePageText(u.etfPageExcept->text()), "exception field holds refused text");
        panel->actionAdd();
    }
    panel->shouldPrint();
    panel->saveValuesAndReturnError(&error);
    return 0;
}
