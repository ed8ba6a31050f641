// The Finishing panel on the sample printers and on a V-fold printer of our
// own: which rows and folding controls show, the staple and punch position
// rules, the folding group's defaults, pictures and divide-set number, and
// the panel's height as rows come and go.
#include "MRPDEFoldingOptionsViewController.h"
#include "MRPDE_MACFinishingEH.h"
#include "MRPDE_MACFinishingPDEController.h"
#include "PDEStepper.h"
#include "PanelHarness.h"
#include "ui_Finishing.h"
#include "ui_FoldingOptions.h"

#include <QRegularExpression>

namespace {
using Panel = TestSupport::OpenedPanel<MRPDE_MACFinishingEH, MRPDE_MACFinishingPDEController>;
}

class FinishingTest : public QObject {
    Q_OBJECT
private slots:
    void rowsAndHeight_data()
    {
        QTest::addColumn<QString>("ppd");
        QTest::addColumn<QStringList>("labels");
        QTest::addColumn<bool>("folding");
        QTest::newRow("finisher with folding unit")
            << TestSupport::samplePPD()
            << QStringList{"Sorting:", "Staple:", "Staple Position:", "Hole Punch:", "Punch Position:", "Output Mode:", "Output Bin:"} << true;
        QTest::newRow("small printer") << TestSupport::samplePPD("velmora-m200") << QStringList{"Sorting:", "Output Bin:"} << false;
        QTest::newRow("V-fold only") << TestSupport::fixture("finishing-vfold.ppd") << QStringList{"Staple Position:"} << true;
    }

    void rowsAndHeight()
    {
        QFETCH(QStringList, labels);
        QFETCH(bool, folding);
        auto p = Panel::open(cell<QString>("ppd"));
        QVERIFY(p);
        QWidget* view = p->eh->panelView();
        QStringList shown;
        for (QLabel* l : view->findChildren<QLabel*>(QRegularExpression("^tab1Label")))
            if (l->isVisibleTo(view))
                shown << l->text();
        QCOMPARE(shown, labels);
        // The group sits below the last row, collapsed while folding is off.
        QCOMPARE(p->controller->foldingOptionsViewController()->ui()->_foldingOptionsPopUpButton->isVisibleTo(view), folding);
        QCOMPARE(view->height(), 14 + 30 * int(labels.size()) + (folding ? 30 : 0) + 14);
        // Without stapling, the staple position can always be chosen.
        if (labels.first() == QLatin1String("Staple Position:"))
            QVERIFY(p->controller->ui()->tab1PopUpButton1->isEnabled());
    }

    void positionTriggers_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("on");
        QTest::addColumn<QString>("choice");
        QTest::newRow("one staple") << 2 << "2 Staples" << "1 Staple";
        QTest::newRow("staples off") << 2 << "2 Staples" << "Off";
        QTest::newRow("three holes") << 4 << "2 Holes" << "3 Holes";
        QTest::newRow("punch off") << 4 << "4 Holes" << "Off";
    }

    void positionTriggers()
    {
        QFETCH(int, row);
        QFETCH(QString, choice);
        auto p = Panel::open(TestSupport::samplePPD());
        QVERIFY(p);
        auto* trigger = p->eh->panelView()->findChild<QComboBox*>(QStringLiteral("tab1PopUpButton%1").arg(row));
        auto* position = p->eh->panelView()->findChild<QComboBox*>(QStringLiteral("tab1PopUpButton%1").arg(row + 1));
        auto* label = p->eh->panelView()->findChild<QLabel*>(QStringLiteral("tab1Label%1").arg(row + 1));
        // Off at first: the position waits for stapling or punching.
        QVERIFY(!position->isEnabled() && !label->isEnabled());
        pick(trigger, cell<QString>("on"));
        QVERIFY(position->isEnabled() && label->isEnabled());
        pick(trigger, choice);
        QCOMPARE(position->isEnabled() && label->isEnabled(), choice != QLatin1String("Off"));
    }

    void folding_data()
    {
        QTest::addColumn<QString>("ppd");
        QTest::addColumn<QString>("fold");
        QTest::addColumn<QString>("kind");  // C or V
        QTest::addColumn<QStringList>("patterns");  // first keyword and picture, last title and picture
        QTest::addColumn<int>("maximum");
        const QStringList c{"Pattern1", "pattern1", "Pattern 4", "pattern4"};
        const QStringList v{"Inside", "vfolding_inside", "Print Outside", "vfolding_outside"};
        QTest::newRow("C-fold") << TestSupport::samplePPD() << "C-Fold" << "C" << c << 5;
        QTest::newRow("V-fold beside C-fold") << TestSupport::samplePPD() << "V-Fold" << "V" << v << 3;
        QTest::newRow("V-fold only") << TestSupport::fixture("finishing-vfold.ppd") << "V-Fold" << "V" << v << 12;
    }

    void folding()
    {
        QFETCH(QString, kind);
        QFETCH(QStringList, patterns);
        QFETCH(int, maximum);
        auto p = Panel::open(cell<QString>("ppd"));
        QVERIFY(p);
        auto& f = *p->controller->foldingOptionsViewController()->ui();
        QWidget* view = p->eh->panelView();
        const int collapsed = view->height();
        QVERIFY(!f._foldingPatternPopUpButton->isVisibleTo(view));

        pick(f._foldingOptionsPopUpButton, cell<QString>("fold"));
        // Folding starts with the first real pattern, its picture and one set.
        QCOMPARE(p->value(kind + "FoldingPattern"), patterns[0]);
        QCOMPARE(f._foldingOptionsImageView->property("imageName").toString(), patterns[1]);
        QCOMPARE(f._foldingDivideSetRangeLabel->text(), QStringLiteral("(1 - %1)").arg(maximum));
        QCOMPARE(p->value(kind + "FoldingDividedSet"), QStringLiteral("1"));
        QVERIFY(f._foldingPatternPopUpButton->isVisibleTo(view) && f._foldingDivideSetStepper->isEnabled());
        QCOMPARE(view->height(), collapsed + MRPDEFoldingOptionsViewController::kExpandedHeight - MRPDEFoldingOptionsViewController::kCollapsedHeight);

        pick(f._foldingPatternPopUpButton, patterns[2]);
        QCOMPARE(f._foldingOptionsImageView->property("imageName").toString(), patterns[3]);
        // Stepped up, then an empty field or a number above the maximum is put back.
        f._foldingDivideSetStepper->stepUp();
        QCOMPARE(p->value(kind + "FoldingDividedSet"), QStringLiteral("2"));
        type(f._foldingDivideSetTextField, QString::number(maximum + 1));
        QCOMPARE(f._foldingDivideSetTextField->text(), QStringLiteral("2"));

        pick(f._foldingOptionsPopUpButton, QStringLiteral("Off"));
        // Off: disabled, put away, back to one set in the controls, the panel shrinks.
        QVERIFY(!f._foldingPatternPopUpButton->isEnabled() && !f._foldingDivideSetTextField->isEnabled());
        QVERIFY(f._foldingDivideSetStepper->value() == 1 && f._foldingDivideSetTextField->text() == QLatin1String("1"));
        QVERIFY(!f._foldingPatternPopUpButton->isVisibleTo(view));
        QCOMPARE(view->height(), collapsed);
    }

    // A pattern and a number given with the job stay, though folding is on from the start.
    void foldingGivenWithTheJob()
    {
        auto p = Panel::open(TestSupport::samplePPD(), "FoldingOptions=VFolding VFoldingPattern=Outside VFoldingDividedSet=3");
        QVERIFY(p);
        QCOMPARE(p->value("VFoldingPattern") + p->value("VFoldingDividedSet"), QStringLiteral("Outside3"));
    }
};

QTEST_MAIN(FinishingTest)
#include "tst_finishing.moc"
