// The Special Pages panel on the sample printers: the page parsers and their
// limits, the typed page numbers, the list string read, edited and written,
// the features that suppress or reduce the list, the tray constraints and
// the question asked before printing an empty list.
#include "MRSpecialPagePDE.h"
#include "PDEAlerts.h"
#include "PanelHarness.h"
#include "ui_PageListPDE.h"

#include <QScopeGuard>
#include <QStandardItemModel>
#include <cups/ppd.h>

namespace {
Opened<MRSpecialPagePDE> openSpecial(const QString& options = QString())
{
    return openPanel<MRSpecialPagePDE>(TestSupport::samplePPD(), options);
}

QString written(Opened<MRSpecialPagePDE>& o)
{
    o.panel->saveValuesAndReturnError(nullptr);
    return o.host->printSettings()->value(QString::fromLatin1(kNSSpecialPageKey));
}

QStringList disabledItems(QComboBox* popUp)
{
    QStringList items;
    auto* model = qobject_cast<QStandardItemModel*>(popUp->model());
    for (int i = 0; i < popUp->count(); ++i)
        if (!model->item(i)->isEnabled())
            items << PDEItemChoice(popUp, i)->ppdTitle();
    return items;
}

const QString kList = QStringLiteral("Cover+Front+BlankPreprinted+Tray1+Plain;Insert+3+Tray2+Thick;Exception+5-7+DuplexTumble+Tray1+Plain;"
                                     "Cover+Back+2SidedPrinted+Tray2+Thick");
}

class SpecialPagesTest : public QObject {
    Q_OBJECT

private slots:
    // Insert pages are single pages from 1 to 250 (a range from its lower
    // end, at most 250 of them); exception pages are ranges kept as ranges.
    void pageParsers_data()
    {
        QTest::addColumn<bool>("insert");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("pages");
        QStringList upTo250, from200;
        for (int i = 1; i <= 250; ++i)
            upTo250 << QString::number(i), from200 << QString::number(i + 199);
        QTest::newRow("insert reversed range") << true << "5-3" << QStringList{"3", "4", "5"};
        QTest::newRow("insert beyond 250") << true << "300-310" << QStringList{};
        QTest::newRow("insert open start") << true << "-2" << QStringList{"1", "2"};
        QTest::newRow("insert open end") << true << "3-" << QStringList{"1", "2", "3"};
        QTest::newRow("insert single pages kept as typed") << true << "7,,400" << QStringList{"7", "400"};
        QTest::newRow("insert no page") << true << "-,1-2-3" << QStringList{};
        QTest::newRow("insert at most 250 pages") << true << "1-400" << upTo250;
        QTest::newRow("insert 250 pages from a start") << true << "200-9999" << from200;
        QTest::newRow("exception open end") << false << "7-" << QStringList{"1-7"};
        QTest::newRow("exception open start") << false << "-4" << QStringList{"1-4"};
        QTest::newRow("exception reversed") << false << "9-3,12" << QStringList{"3-9", "12"};
        QTest::newRow("exception empty tokens") << false << ",3,,5," << QStringList{"3", "5"};
        QTest::newRow("exception no page") << false << "-" << QStringList{};
    }
    void pageParsers()
    {
        QFETCH(QString, text);
        QTEST(cell<bool>("insert") ? MRSpecialPagePDE::makeInsertPageNumArray(text) : MRSpecialPagePDE::makeExceptionPageNumArray(text), "pages");
    }

    // A refused text brings back the last good one ("1,2").
    void typedPages_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("leading zero") << "1,20,0" << false;
        QTest::newRow("zero after dash") << "1-05" << false;
        QTest::newRow("fifth digit") << "12345" << false;
        QTest::newRow("letter") << "1,2a" << false;
        QTest::newRow("two commas") << "1,,2" << false;
        QTest::newRow("dash after comma") << "1,-2" << false;
        QTest::newRow("range list") << "10,20-30,9999" << true;
        QTest::newRow("open range") << "-4" << true;
    }
    void typedPages()
    {
        QFETCH(QString, typed);
        auto o = openSpecial();
        for (int tag : {1, 2}) {
            QLineEdit* f = tag == 1 ? o.panel->ui()->etfPageInsertNum : o.panel->ui()->etfPageExcept;
            f->setText(QStringLiteral("1,2"));
            o.panel->controlTextDidChange(tag);
            f->setText(typed);
            o.panel->controlTextDidChange(tag);
            QCOMPARE(f->text(), cell<bool>("accepted") ? typed : QStringLiteral("1,2"));
        }
    }

    // Read, edit, write: the list is kept in page order.
    void roundTrip()
    {
        auto o = openSpecial(QStringLiteral("VELSpecialPage='%1'").arg(kList));
        QCOMPARE(o.panel->arrayPageTable().size(), 4);
        QCOMPARE(written(o), kList);
        Ui::PageListPDE& u = *o.panel->ui();
        // Both covers at once: two rows, replacing the covers present.
        u.pbtPageOption->setCurrentIndex(0);
        u.btnPageCoverBoth->setChecked(true);
        u.btnCoverOption1side->setChecked(true);
        o.panel->actionAdd();
        // Exceptions merge: 6-9 long edge joins 5-7 short edge page by page.
        u.pbtPageOption->setCurrentIndex(2);
        u.etfPageExcept->setText(QStringLiteral("9-6"));
        u.btnDuplexOptionLong->setChecked(true);
        o.panel->actionAdd();
        // Before page 1: right after the front cover.
        u.pbtPageOption->setCurrentIndex(1);
        u.btnPageInsertFirst->setChecked(true);
        o.panel->actionAdd();
        const QString expected = QStringLiteral(
            "Cover+Front+1SidedPrinted+Auto+Plain;Insert+0+Auto+Plain;Insert+3+Tray2+Thick;Exception+5+DuplexTumble+Tray1+Plain;"
            "Exception+6-9+DuplexNoTumble+Auto+Plain;Cover+Back+1SidedPrinted+Auto+Plain");
        QCOMPARE(o.host->printSettings()->value(QString::fromLatin1(kNSSpecialPageKey)), expected);
        QCOMPARE(o.panel->model()->rowCount(), 6);
        // Select, move, update, remove.
        o.panel->selectRow(2);
        QVERIFY(u.btnRemove->isEnabled() && u.btnUp->isEnabled() && u.btnDown->isEnabled());
        QCOMPARE(u.pbtPageOption->currentIndex(), 1);
        QCOMPARE(u.etfPageInsertNum->text(), QStringLiteral("3"));
        o.panel->actionUp();
        QCOMPARE(o.panel->selectedRow(), 1);
        QVERIFY(written(o).startsWith(QStringLiteral("Cover+Front+1SidedPrinted+Auto+Plain;Insert+3+Tray2+Thick;Insert+0")));
        u.etfPageInsertNum->setText(QStringLiteral("4"));
        o.panel->actionUpdate();
        QVERIFY(written(o).contains(QStringLiteral("Insert+4+Tray2+Thick")));
        QVERIFY(!written(o).contains(QStringLiteral("Insert+3")));
        o.panel->selectRow(0);
        o.panel->actionRemove();
        QVERIFY(written(o).startsWith(QStringLiteral("Insert+0")));
        QVERIFY(!u.btnRemove->isEnabled());
    }

    // Entries that cannot be read are reported and left out; the rest stays.
    void hostileString_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("kept");
        QTest::addColumn<int>("rejected");
        QTest::newRow("unknown source, type, option") << "Cover+Front+Glossy+Tray1+Plain;Insert+2+Tray9+Plain;Insert+4+Tray1+Paper;Insert+5+Tray1+Plain"
                                                      << "Insert+5+Tray1+Plain" << 3;
        QTest::newRow("bad pages") << "Insert+0005+Tray1+Plain;Exception+1-2-3+None+Tray1+Plain;Exception+2-1x+None+Auto+Plain"
                                   << "" << 3;
        QTest::newRow("extra fields and separators") << ";;Insert+3+Tray1+Plain+X;Cover+Back+BlankPreprinted+Auto+Plain;+;"
                                                     << "Cover+Back+BlankPreprinted+Auto+Plain" << 2;
        QTest::newRow("long") << QStringLiteral("Insert+1+Tray1+Plain;").repeated(2000) << QStringLiteral("Insert+1+Tray1+Plain;").repeated(2000).chopped(1) << 0;
    }
    void hostileString()
    {
        QFETCH(QString, value);
        auto o = openSpecial();
        QStringList refused;
        o.panel->rowsFromString(value, &refused);
        QTEST(int(refused.size()), "rejected");
        o.host->printSettings()->setValue(QString::fromLatin1(kNSSpecialPageKey), value);
        o.panel->restoreValuesAndReturnError(nullptr);
        QTEST(written(o), "kept");
    }

    // Poster, a cover page, folding and skipping blank pages suppress the list.
    void conflicts_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<int>("rows");
        QTest::newRow("none") << "" << kList << 4;
        QTest::newRow("poster") << "VELPosterOption=Poster2x2" << "" << 0;
        QTest::newRow("poster off by 2 up") << "VELPosterOption=Poster2x2 number-up=2" << kList << 4;
        QTest::newRow("cover page") << "job-sheets=standard,none" << "" << 0;
        QTest::newRow("C-fold") << "FoldingOptions=CFolding" << "" << 0;
        QTest::newRow("skip blank pages") << "SkipBlankPages=True" << "" << 0;
    }
    void conflicts()
    {
        auto o = openSpecial(QStringLiteral("VELSpecialPage='%1' %2").arg(kList, cell<QString>("options")));
        QTEST(written(o), "expected");
        QTEST(o.panel->model()->rowCount(), "rows");
        const bool suppressed = o.panel->model()->rowCount() == 0;
        QCOMPARE(o.panel->ui()->viewTable->isEnabled(), !suppressed);
    }

    // Booklet printing keeps only a front and a back cover, at the ends.
    void booklet_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("kept");
        QTest::newRow("front, insert, back") << "Cover+Front+BlankPreprinted+Auto+Plain;Insert+3+Auto+Plain;Cover+Back+BlankPreprinted+Auto+Plain"
                                             << "Cover+Front+BlankPreprinted+Auto+Plain;Cover+Back+BlankPreprinted+Auto+Plain";
        QTest::newRow("no back cover at the end") << "Cover+Front+BlankPreprinted+Auto+Plain;Insert+3+Auto+Plain" << "";
        QTest::newRow("one entry") << "Cover+Front+BlankPreprinted+Auto+Plain" << "";
    }
    void booklet()
    {
        auto o = openSpecial(QStringLiteral("VELBookletOption=Booklet VELSpecialPage='%1'").arg(cell<QString>("value")));
        QTEST(written(o), "kept");
        Ui::PageListPDE& u = *o.panel->ui();
        QVERIFY(!u.pbtPageOption->isEnabled() && !u.btnPageCoverFront->isEnabled() && !u.btnCoverOption1side->isEnabled());
        QVERIFY(u.btnPageCoverBoth->isChecked() && u.btnCoverOption2side->isEnabled());
        QCOMPARE(u.imviewPageOption->property("imageName").toString(), QStringLiteral("cover_same"));
    }

    // Sources of trays that are not installed cannot be picked; a source
    // greys out the paper types it cannot take.
    void trays_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QString>("source");
        QTest::addColumn<QStringList>("sources");
        QTest::addColumn<QStringList>("types");
        QTest::newRow("two trays") << "" << "Tray1" << QStringList{} << QStringList{};
        QTest::newRow("one tray") << "OptionalTray=OneTray" << "Tray3" << QStringList{"Tray4"} << QStringList{"Envelope", "Transparency"};
        QTest::newRow("no tray") << "OptionalTray=None" << "Tray2" << QStringList{"Tray3", "Tray4"} << QStringList{};
    }
    void trays()
    {
        QFETCH(QString, source);
        auto o = openSpecial(cell<QString>("options"));
        Ui::PageListPDE& u = *o.panel->ui();
        QTEST(disabledItems(u.pbtPaperOptionSource), "sources");
        u.pbtPaperOptionType->setCurrentIndex(u.pbtPaperOptionType->findText(QStringLiteral("Envelope")));
        u.pbtPaperOptionSource->setCurrentIndex(int(FindPPDIndex(source, SpecialPageArrayFromPPDOption(ppdFindOption(o.host->ppd(), "InputSlot")).value())));
        o.panel->actionPaperSource();
        QTEST(disabledItems(u.pbtPaperOptionType), "types");
        // A type the source cannot take is not kept.
        QVERIFY(!disabledItems(u.pbtPaperOptionType).contains(PDEItemChoice(u.pbtPaperOptionType, u.pbtPaperOptionType->currentIndex())->ppdTitle()));
    }

    // An empty list asks before printing from this panel; the default button
    // prints, the alternate one does not.
    void emptyListAlert_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("shown");
        QTest::addColumn<bool>("prints");
        QTest::newRow("yes") << int(PDEAlerts::DefaultButton) << true << true;
        QTest::newRow("no") << int(PDEAlerts::AlternateButton) << true << false;
        QTest::newRow("headless default") << -2 << true << true;
        QTest::newRow("another panel shown") << int(PDEAlerts::AlternateButton) << false << true;
    }
    void emptyListAlert()
    {
        QFETCH(int, answer);
        QFETCH(bool, shown);
        auto o = openSpecial();
        QString title;
        const auto reset = qScopeGuard([] { PDEAlerts::setHandler(nullptr); });
        if (answer != -2)
            PDEAlerts::setHandler([&](const PDEAlerts::Alert& a) {
                title = a.defaultButton + QLatin1Char('/') + a.alternateButton;
                return answer;
            });
        if (!shown)
            o.panel->shouldHide();
        QTEST(o.panel->shouldPrint(), "prints");
        QCOMPARE(title, shown && answer != -2 ? QStringLiteral("Yes/No") : QString());
        // A list that is not empty prints without asking (the "no" answer would refuse).
        o.panel->ui()->btnPageCoverFront->setChecked(true);
        o.panel->actionAdd();
        QVERIFY(o.panel->shouldPrint());
    }
};

QTEST_MAIN(SpecialPagesTest)
#include "tst_page_list.moc"
