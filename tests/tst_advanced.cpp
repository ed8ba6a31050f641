// The Advanced Options panel on the sample printers: its print-settings
// contract, the watermark, booklet and poster rules, its pictures.
#include "MRAdvancedOptionPDE.h"
#include "MRAdvancedUnits.h"
#include "MRManualDuplexController.h"
#include "MRPosterController.h"
#include "PanelHarness.h"
#include "ui_AdvancedOptionPDE.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {
// The panel on a sample printer with job options, in the given unit system.
Opened<MRAdvancedOptionPDE> openAdvanced(const QString& printer, const QString& options = QString(), bool metric = false)
{
    return openPanel<MRAdvancedOptionPDE>(TestSupport::samplePPD(printer), options, [metric](MRAdvancedOptionPDE& p) { p.setMetric(metric); });
}
}

class AdvancedTest : public QObject {
    Q_OBJECT

private slots:
    void escapes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("wire");
        QTest::newRow("comma and apostrophe") << "Don't copy, please" << "Don|q*u&tn|t copyc|$ma*&| please";
        QTest::newRow("only marks") << ",','" << "c|$ma*&||q*u&tn|c|$ma*&||q*u&tn|";
        QTest::newRow("control characters kept") << "a\tb\x01" << "a\tb\x01";
        QTest::newRow("longer than typing allows") << QString(300, QLatin1Char('x')) + "," << QString(300, QLatin1Char('x')) + "c|$ma*&|";
    }
    void escapes()
    {
        QFETCH(QString, text);
        // Through the print settings and the panel's field, in both directions.
        auto o = openAdvanced(QStringLiteral("velmora-c5500"));
        o.panel->ui()->watermarkMessageField->setText(text);
        o.panel->saveValuesAndReturnError(nullptr);
        QTEST(o.host->printSettings()->value(kNSWatermarkCustomeStrKey), "wire");
        o.panel->ui()->watermarkMessageField->clear();
        o.panel->restoreValuesAndReturnError(nullptr);
        QCOMPARE(o.panel->ui()->watermarkMessageField->text(), text);
    }

    // What is written for what was read or typed, in both unit systems.
    void contract_data()
    {
        QTest::addColumn<bool>("metric");
        QTest::addColumn<QString>("options");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("written");
        QTest::newRow("size 7") << false << "WMFontSize=7" << "" << "" << "WMFontSize" << "8";
        QTest::newRow("size 401") << false << "WMFontSize=401" << "" << "" << "WMFontSize" << "400";
        QTest::newRow("size malformed") << false << "WMFontSize=big" << "" << "" << "WMFontSize" << "120";
        QTest::newRow("size typed 5") << false << "" << "fontSizeTextField" << "5" << "WMFontSize" << "8";
        QTest::newRow("saved size stands over the watermark's") << false << "VELWatermarkOption=Confidential WMFontSize=200" << "" << ""
                                                             << "WMFontSize" << "200";
        QTest::newRow("the watermark's own size") << false << "VELWatermarkOption=Draft" << "" << "" << "WMFontSize" << "160";
        QTest::newRow("colour out of range") << false << "WMColor=9" << "" << "" << "WMColor" << "0";
        QTest::newRow("shade default") << false << "" << "" << "" << "WMShade" << "2";
        QTest::newRow("angle default") << false << "" << "" << "" << "WMAngleNumber" << "45";
        QTest::newRow("angle defined, free") << false << "WMAngle=2 WMAngleNumber=-30" << "" << "" << "WMAngleDefinedNumber" << "-30";
        QTest::newRow("angle defined, vertical") << false << "WMAngle=1" << "" << "" << "WMAngleDefinedNumber" << "90";
        QTest::newRow("overlap inch default") << false << "" << "" << "" << "PosterOverlap" << "0.16";
        QTest::newRow("overlap inch 1.5") << false << "PosterOverlap=1.5" << "" << "" << "PosterOverlap" << "1.00";
        QTest::newRow("overlap inch malformed") << false << "PosterOverlap=1..2" << "" << "" << "PosterOverlap" << "0.16";
        QTest::newRow("overlap not a number") << false << "PosterOverlap=nan" << "" << "" << "PosterOverlap" << "0.16";
        QTest::newRow("overlap negative") << false << "PosterOverlap=-1" << "" << "" << "PosterOverlap" << "0.16";
        QTest::newRow("overlap mm default") << true << "" << "" << "" << "PosterOverlap" << "0.16";
        QTest::newRow("overlap mm typed 30") << true << "" << "overlapField" << "30" << "PosterOverlap" << "0.98";
        QTest::newRow("overlap mm round trip") << true << "PosterOverlap=0.51" << "" << "" << "PosterOverlap" << "0.51";
        QTest::newRow("sheets default is the PPD's") << false << "" << "" << "" << "BookletSheetperSet" << "10";
        QTest::newRow("sheets above the PPD's") << false << "BookletSheetperSet=12" << "" << "" << "BookletSheetperSet" << "10";
        QTest::newRow("sheets negative") << false << "BookletSheetperSet=-5" << "" << "" << "BookletSheetperSet" << "1";
        QTest::newRow("gutter inch 1.2") << false << "BookletGutterSize=1.2" << "" << "" << "BookletGutterSize" << "0.98";
        QTest::newRow("gutter inch default") << false << "" << "" << "" << "BookletGutterSize" << "0.00";
        QTest::newRow("gutter mm typed 30") << true << "" << "GutterTextField" << "30" << "BookletGutterSize" << "0.98";
        QTest::newRow("right binding") << false << "BookletRightBinding=1" << "" << "" << "BookletRightBinding" << "1";
        QTest::newRow("n-up layout out of range") << false << "BookletNupLayout=-1" << "" << "" << "BookletNupLayout" << "0";
    }
    void contract()
    {
        QFETCH(QString, field);
        auto o = openAdvanced(QStringLiteral("velmora-c5500"), cell<QString>("options"), cell<bool>("metric"));
        if (!field.isEmpty())
            o.panel->panelView()->findChild<QLineEdit*>(field)->setText(cell<QString>("typed"));
        o.panel->tabViewDidSelectTabViewItem(1);  // a refresh keeps what is shown
        QVERIFY(o.panel->saveValuesAndReturnError(nullptr));
        QTEST(o.host->printSettings()->value(cell<QString>("key")), "written");
    }

    void watermarkEnabling_data()
    {
        QTest::addColumn<QString>("printer");
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("font");
        QTest::addColumn<bool>("colour");
        QTest::addColumn<bool>("message");
        QTest::addColumn<int>("angle");
        QTest::addColumn<bool>("freeAngle");
        QTest::newRow("none") << "velmora-c5500" << 0 << false << false << false << 2 << false;
        QTest::newRow("confidential, 45 degrees") << "velmora-c5500" << 1 << true << true << false << 2 << true;
        QTest::newRow("draft, horizontal") << "velmora-c5500" << 2 << true << true << false << 0 << false;
        QTest::newRow("top secret, vertical") << "velmora-c5500" << 3 << true << true << false << 1 << false;
        QTest::newRow("custom") << "velmora-c5500" << 4 << true << true << true << 2 << true;
        QTest::newRow("monochrome") << "velmora-m200" << 1 << true << false << false << 2 << true;
    }
    void watermarkEnabling()
    {
        QFETCH(int, index);
        auto o = openAdvanced(cell<QString>("printer"));
        Ui::AdvancedOptionPDE& u = *o.panel->ui();
        u.WatermarkPopUp->setCurrentIndex(index);
        o.panel->changeWatermarkOption();
        QCOMPARE(u.WatermarkPopUp->currentIndex(), index);
        QTEST(u.fontNameButton->isEnabled(), "font");
        QTEST(u.fontColorButton->isEnabled(), "colour");
        QTEST(u.watermarkMessageField->isEnabled(), "message");
        QTEST(u.messageAngleButton->currentIndex(), "angle");
        QTEST(u.messageAngleField->isVisibleTo(u.watermarkTab) && u.messageAngleField->isEnabled(), "freeAngle");
        if (!u.fontColorButton->isEnabled())
            QCOMPARE(u.fontColorButton->currentIndex(), 0);
        if (index == 1)
            QCOMPARE(u.messageAngleField->text(), QStringLiteral("45"));
    }

    void bookletEnabling_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<bool>("foldMethod");
        QTest::addColumn<bool>("sheets");
        QTest::addColumn<bool>("folding");
        QTest::addColumn<bool>("pageOrder");
        QTest::newRow("off") << "Finisher=FUBookletFinisher" << false << false << false << false;
        QTest::newRow("on, all sheets") << "VELBookletOption=Booklet" << true << false << true << false;
        QTest::newRow("on, by set, 4 up") << "VELBookletOption=Booklet VELFoldMethod=BySet BookletNupLayout=2" << true << true << true << true;
        QTest::newRow("on, no booklet finisher") << "VELBookletOption=Booklet Finisher=StapleFinisher" << true << false << false << false;
        QTest::newRow("third form") << "VELBookletOption=BookletNup" << false << false << true << false;
    }
    void bookletEnabling()
    {
        auto o = openAdvanced(QStringLiteral("velmora-c5500"), cell<QString>("options"));
        Ui::AdvancedOptionPDE& u = *o.panel->ui();
        QTEST(u.FoldermethodPopup->isEnabled(), "foldMethod");
        QTEST(u.SheetperSetField->isEnabled() && u.SheetStepper->isEnabled(), "sheets");
        QTEST(u.FoldingOptionsPopup->isEnabled(), "folding");
        QTEST(u.BookletNupPageOrderPopup->isEnabled(), "pageOrder");
        QCOMPARE(u.SheetStepper->maximum(), 10);
        QVERIFY(u.SheetperSetDes->text().endsWith(QStringLiteral("10)")));
    }

    void poster_data()
    {
        QTest::addColumn<QString>("printer");
        QTest::addColumn<QString>("options");
        QTest::addColumn<QString>("picture");
        QTest::addColumn<bool>("overlap");
        QTest::newRow("monochrome, none") << "velmora-m200" << "" << "poster_none" << false;
        QTest::newRow("colour landscape 2x2") << "velmora-c5500" << "VELPosterOption=Poster2x2 orientation-requested=4" << "C_Lposter2_2" << true;
        QTest::newRow("reverse portrait 4x4") << "velmora-c5500" << "VELPosterOption=Poster4x4 orientation-requested=6" << "C_R_poster4_4" << true;
        QTest::newRow("reverse landscape 3x3") << "velmora-m200" << "VELPosterOption=Poster3x3 orientation-requested=5" << "R_Lposter3_3" << true;
    }
    void poster()
    {
        auto o = openAdvanced(cell<QString>("printer"), cell<QString>("options"));
        Ui::AdvancedOptionPDE& u = *o.panel->ui();
        QTEST(u.posterView->property("imageName").toString(), "picture");
        QTEST(u.overlapField->isEnabled(), "overlap");
        QVERIFY(!TestSupport::shownPixmap(u.posterView).isNull());
    }

    // The host's update signal: more pages per sheet turn poster printing off,
    // through the dialog's approval.
    void posterOffForPagesPerSheet()
    {
        auto o = openAdvanced(QStringLiteral("velmora-c5500"), QStringLiteral("VELPosterOption=Poster3x3"));
        Ui::AdvancedOptionPDE& u = *o.panel->ui();
        QVERIFY(u.PosterPopUp->isEnabled());
        o.host->printSettings()->setValue(QStringLiteral("number-up"), QStringLiteral("4"));
        emit o.host->update();
        QCOMPARE(o.marked(QStringLiteral("VELPosterOption")), QStringLiteral("Off"));
        QCOMPARE(u.PosterPopUp->currentIndex(), 0);
        QVERIFY(!u.PosterPopUp->isEnabled());
        QCOMPARE(u.posterView->property("imageName").toString(), QStringLiteral("C_poster_none"));
    }

    // Choosing a poster takes the booklet off (the PPD's constraint), and the
    // panel follows the dialog's resolution.
    void posterResolvesBooklet()
    {
        auto o = openAdvanced(QStringLiteral("velmora-c5500"), QStringLiteral("VELBookletOption=Booklet"));
        o.host->setPanels({o.panel.get()});
        Ui::AdvancedOptionPDE& u = *o.panel->ui();
        u.PosterPopUp->setCurrentIndex(1);
        o.panel->changePosterOption();
        QCoreApplication::sendPostedEvents();
        QCOMPARE(o.marked(QStringLiteral("VELBookletOption")), QStringLiteral("Off"));
        QCOMPARE(u.BookletPopUp->currentIndex(), 0);
        const QString title = o.panel->getLocalizationWithKey(QStringLiteral("VELPosterOption"));
        QCOMPARE(o.panel->summaryInfo().value(title).toString(), o.panel->getLocalizationWithKey(QStringLiteral("Poster2x2")));
    }

    // The command line in both measurement systems: lengths are shown in the
    // user's unit and travel in inches.
    void headless_data()
    {
        QTest::addColumn<QString>("measurement");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("written");
        QTest::newRow("metric") << "de_DE.UTF-8" << "13" << "PosterOverlap=0.51";
        QTest::newRow("inch") << "en_US.UTF-8" << "0.50" << "PosterOverlap=0.50";
    }
    void headless()
    {
        const QStringList env{"LC_ALL=", "LANG=", "LC_MEASUREMENT=" + cell<QString>("measurement")};
        const QStringList options{"-o", "VELPosterOption=Poster2x2 PosterOverlap=0.5"};
        QString out, err;
        QCOMPARE(TestSupport::runApp(QStringList{"--describe"} + options, &out, &err, env), 0);
        QJsonObject panel;
        for (const QJsonValue& p : QJsonDocument::fromJson(out.toUtf8()).object().value("panels").toArray())
            if (p.toObject().value("kind").toString().endsWith(QStringLiteral("AdvancedOptionKind")))
                panel = p.toObject();
        const QJsonObject controls = panel.value("controls").toObject();
        QTEST(controls.value("overlapField").toObject().value("text").toString(), "shown");
        QCOMPARE(controls.value("posterView").toObject().value("image").toString(), QStringLiteral("C_poster2_2"));
        QCOMPARE(TestSupport::runApp(QStringList{"--print-options"} + options, &out, &err, env), 0);
        QTEST(out.split(QLatin1Char('\n')).filter(QStringLiteral("PosterOverlap=")).value(0), "written");
    }

    // Every concept and binding picture the panels can ask for is in the
    // bundle; other indexes and orientations have none.
    void pictures()
    {
        const std::shared_ptr<PDEBundle> bundle = PDEBundle::embedded();
        QStringList names{"folding_none", "folding_only", "folding_stitch", "itdrvM1", "itdrvM2", "itdrvM3",
                          "gray", "red", "yellow", "green", "cyan", "blue", "magenta"};
        for (const char* orientation : {"1", "2", "3", "4"}) {
            for (int index = 0; index < 4; ++index)
                for (bool colour : {false, true})
                    names << MRPosterController::conceptPictureName(index, colour, QString::fromLatin1(orientation));
            for (int index = 0; index < 3; ++index)
                names << MRManualDuplexController::bindingPictureName(index, QString::fromLatin1(orientation));
        }
        QCOMPARE(QSet<QString>(names.cbegin(), names.cend()).size(), 57);
        for (const QString& name : std::as_const(names))
            QVERIFY2(!bundle->pathForResource(name, QStringLiteral("png")).isEmpty(), qPrintable(name));
        QVERIFY(MRPosterController::conceptPictureName(4, true, QStringLiteral("1")).isNull());
        QVERIFY(MRPosterController::conceptPictureName(1, true, QStringLiteral("5")).isNull());
        QVERIFY(MRManualDuplexController::bindingPictureName(3, QStringLiteral("1")).isNull());
        QVERIFY(MRManualDuplexController::bindingPictureName(1, QStringLiteral("5")).isNull());
    }
};

QTEST_MAIN(AdvancedTest)
#include "tst_advanced.moc"
