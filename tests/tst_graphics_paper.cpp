// The Graphics/Paper panel on the sample printers and on small PPDs of our
// own: which tabs and rows show, the document-type, colour-model, media-type
// and preferred-colour rules, the layout corrections, driven through the
// controls and through -o.
#include "MRPDE_MACGraphicsPaperController.h"
#include "MRPDE_MACGraphicsPaperEH.h"
#include "PDEHelp.h"
#include "PanelDescriber.h"
#include "PanelHarness.h"
#include "ui_GraphicsAndPaper.h"

#include <QtCore>

namespace {
using Panel = TestSupport::OpenedPanel<MRPDE_MACGraphicsPaperEH, MRPDE_MACGraphicsPaperController>;

// Clicks a check box on its box, where a person clicks.
void click(QCheckBox* box)
{
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
}

}

class GraphicsPaperTest : public QObject {
    Q_OBJECT
    QTemporaryDir m_dir;

private slots:
    void tabsAndRows_data()
    {
        QTest::addColumn<QString>("ppd");
        QTest::addColumn<QStringList>("tabs");
        QTest::addColumn<QStringList>("qualityLabels");

        QTest::newRow("colour MFP") << TestSupport::samplePPD() << QStringList{"Quality", "Color", "Levels", "Paper"}
                                    << QStringList{"Document Type:", "X-Ray Contrast:", "Resolution:", "Toner Save:", "Print Density:",
                                                   "Darken Text:", "Edge Enhancement:", "Fine Edge:"};
        QTest::newRow("monochrome") << TestSupport::samplePPD(QStringLiteral("velmora-m200")) << QStringList{"Quality", "Paper"}
                                    << QStringList{"Resolution:"};
        QTest::newRow("colour model without RGBA") << TestSupport::writePPDFromFixture(m_dir, "c.ppd", "graphics-colour-no-rgba.txt")
                                                   << QStringList{} << QStringList{};
    }

    void tabsAndRows()
    {
        QFETCH(QStringList, tabs);
        auto p = Panel::open(cell<QString>("ppd"));
        QVERIFY(p);
        QCOMPARE(TestSupport::tabTexts(p->ui->m_tabView), tabs);
        const QJsonObject controls = PanelDescriber::describeControls(p->eh->panelView());
        // The rows close up: the first labels show, the rest are hidden.
        QStringList shown;
        for (int i = 1; i <= 8; ++i) {
            const QJsonObject label = controls.value(QStringLiteral("tab1Label%1").arg(i)).toObject();
            if (label.value(QStringLiteral("visible")).toBool())
                shown << label.value(QStringLiteral("text")).toString();
        }
        QTEST(shown, "qualityLabels");
        // A removed tab's controls are gone with it.
        QCOMPARE(controls.contains(QStringLiteral("tab2PopUpButton1")), tabs.contains(QStringLiteral("Color")));
        // Without an "RGBA" colour model there is no colour tab, whatever else the printer has.
        if (tabs.isEmpty())
            QVERIFY(p->model->featureWithKey(QStringLiteral("HalftoneLPI")) && p->model->featureWithKey(QStringLiteral("BlackOptimization")));
    }

    void documentTypeRules()
    {
        auto p = Panel::open(TestSupport::samplePPD());
        QVERIFY(p);
        auto& u = *p->ui;
        QVERIFY(!u.tab1PopUpButton2->isEnabled());  // X-ray contrast waits for X-ray documents
        pick(u.tab3PopUpButton1, QStringLiteral("+2"));
        QCOMPARE(p->value("n_Brightness"), QStringLiteral("Plus2"));

        pick(u.tab1PopUpButton1, QStringLiteral("Text"));
        QCOMPARE(p->value("DocType"), QStringLiteral("Text"));
        // Every image option is greyed out and back at its default.
        for (QWidget* w : QList<QWidget*>{u.tab2PopUpButton1, u.tab2PopUpButton2, u.tab2PopUpButton5, u.tab2PopUpButton6, u.tab3PopUpButton1,
                                          u.tab1PopUpButton3, u.tab1PopUpButton7, u.preferredColorCheckButton})
            QVERIFY2(!w->isEnabled(), qPrintable(w->objectName()));
        QCOMPARE(p->value("n_Brightness"), QStringLiteral("Normal"));
        QCOMPARE(u.tab3PopUpButton1->currentText(), QStringLiteral("0"));
        QVERIFY(!u.tab1PopUpButton2->isEnabled());

        pick(u.tab1PopUpButton1, QStringLiteral("X-Ray Image"));
        QVERIFY(u.tab1PopUpButton2->isEnabled());
        pick(u.tab1PopUpButton2, QStringLiteral("High"));
        pick(u.tab1PopUpButton1, QStringLiteral("Standard"));
        QVERIFY(!u.tab1PopUpButton2->isEnabled());
        QCOMPARE(p->value("XrayContrast"), QStringLiteral("Normal"));
        QVERIFY(u.tab2PopUpButton5->isEnabled() && u.tab3PopUpButton1->isEnabled());
    }

    void grayColourModelRules()
    {
        auto p = Panel::open(TestSupport::samplePPD());
        QVERIFY(p);
        auto& u = *p->ui;
        pick(u.tab2PopUpButton2, QStringLiteral("On"));
        pick(u.tab2PopUpButton1, QStringLiteral("Grayscale"));
        QCOMPARE(p->value("ColorModel"), QStringLiteral("Gray"));
        // Colour-only rows go grey and back to their defaults ...
        for (QWidget* w : QList<QWidget*>{u.tab2PopUpButton2, u.tab2PopUpButton4, u.tab2PopUpButton5, u.tab3PopUpButton3,
                                          u.tab3PrefPopUpButton1, u.preferredColorCheckButton})
            QVERIFY2(!w->isEnabled(), qPrintable(w->objectName()));
        QCOMPARE(p->value("BlackOptimization"), QStringLiteral("Off"));
        // ... the rest stay usable.
        for (QWidget* w : QList<QWidget*>{u.tab2PopUpButton1, u.tab3PopUpButton1, u.tab3PopUpButton2, u.tab2PopUpButton6,
                                          u.tab1PopUpButton7, u.tab1PopUpButton3})
            QVERIFY2(w->isEnabled(), qPrintable(w->objectName()));
        pick(u.tab2PopUpButton1, QStringLiteral("Color"));
        QVERIFY(u.tab2PopUpButton2->isEnabled());
    }

    void preferredColour()
    {
        auto p = Panel::open(TestSupport::samplePPD());
        QVERIFY(p);
        auto& u = *p->ui;
        // Only brightness, contrast and saturation stay on the tab; the balances move below.
        QVERIFY(u.tab3PopUpButton3->isVisibleTo(u.tabViewItemLevels) && !u.tab3PopUpButton4->isVisibleTo(u.tabViewItemLevels));
        QCOMPARE(u.preferredColorView->y(), u.tab3PopUpButton3->y() + u.tab3PopUpButton3->height() + 10);
        QVERIFY(u.preferredColorOFFView->isVisibleTo(u.preferredColorView));
        QVERIFY(!u.preferredColorONView->isVisibleTo(u.preferredColorView));

        pick(u.tab3PrefPopUpButton1, QStringLiteral("+1"));
        QCOMPARE(p->value("n_RCBalance"), QStringLiteral("Plus1"));
        u.m_tabView->setCurrentWidget(u.tabViewItemLevels);
        click(u.preferredColorCheckButton);
        QCOMPARE(p->value("PreferredColorCheck"), QStringLiteral("On"));
        QVERIFY(!u.preferredColorOFFView->isVisibleTo(u.preferredColorView));
        QVERIFY(u.preferredColorONView->isVisibleTo(u.preferredColorView));
        QCOMPARE(p->value("n_RCBalance"), QStringLiteral("Normal"));

        pick(u.tab3PrefPopUpButton4, QStringLiteral("-2"));
        QCOMPARE(p->value("n_Skin"), QStringLiteral("Minus2"));
        click(u.preferredColorCheckButton);
        QCOMPARE(p->value("PreferredColorCheck"), QStringLiteral("Off"));
        QCOMPARE(p->value("n_Skin"), QStringLiteral("Normal"));
        QVERIFY(u.preferredColorOFFView->isVisibleTo(u.preferredColorView));
    }

    // A printer with the paper tab alone: unused check boxes close up, the
    // separator rows follow the media type.
    void paperTabOnly()
    {
        auto full = Panel::open(TestSupport::samplePPD());
        auto p = Panel::open(TestSupport::writePPDFromFixture(m_dir, "paper.ppd", "graphics-paper-tab-only.txt"));
        QVERIFY(full && p);
        auto& u = *p->ui;
        QCOMPARE(TestSupport::tabTexts(p->ui->m_tabView), QStringList{"Paper"});
        QCOMPARE(full->controller->numberOfUnusedCheckBoxes(), 0);
        QCOMPARE(p->controller->numberOfUnusedCheckBoxes(), 2);
        QVERIFY(u.skipBlankPagesCheckBoxButton->isVisibleTo(u.tabViewItemPaper));
        QVERIFY(!u.pageCurlReductionCheckBoxButton->isVisibleTo(u.tabViewItemPaper));
        QVERIFY(!u.reverseDuplexCheckBoxButton->isVisibleTo(u.tabViewItemPaper));
        for (const char* name : {"tab4SeperatorSourcePopUpButton", "tab4SeperatorSourceLabel", "tab4SeperatorOptionPopUpButton",
                                 "tab4SeperatorOptionLabel"}) {
            auto* a = full->eh->panelView()->findChild<QWidget*>(QString::fromLatin1(name));
            QCOMPARE(a->y() - p->eh->panelView()->findChild<QWidget*>(QString::fromLatin1(name))->y(), 52);
        }

        p->eh->willShow();
        QVERIFY(!u.tab4SeperatorOptionPopUpButton->isVisibleTo(u.tabViewItemPaper));
        QVERIFY(!u.tab4SeperatorSourceLabel->isVisibleTo(u.tabViewItemPaper));
        pick(u.tab4PopUpButton1, QStringLiteral("Transparency"));
        QVERIFY(u.tab4SeperatorOptionPopUpButton->isVisibleTo(u.tabViewItemPaper));
        QVERIFY(u.tab4SeperatorSourceLabel->isVisibleTo(u.tabViewItemPaper));
        // The tab is laid out again: the panel grows to the visible rows, and the dialog is told.
        const int rows = *p->controller->totalHeightOfActiveViewContentRowsInTabViewItem(u.tabViewItemPaper);
        QCOMPARE(p->eh->panelView()->height(), std::max(rows + 55, 180));
        const int withSeparators = p->eh->panelView()->height();
        pick(u.tab4PopUpButton1, QStringLiteral("Plain"));
        QVERIFY(!u.tab4SeperatorOptionPopUpButton->isVisibleTo(u.tabViewItemPaper));
        QVERIFY(p->eh->panelView()->height() < withSeparators);
    }

    void longLanguagesGetWiderControls_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("shift");
        QTest::newRow("German") << "de" << 48;
        QTest::newRow("French") << "fr" << 48;
        QTest::newRow("Japanese") << "ja" << 0;
    }

    void longLanguagesGetWiderControls()
    {
        QFETCH(QString, language);
        QFETCH(int, shift);
        auto reference = Panel::open(TestSupport::samplePPD());
        auto p = Panel::open(TestSupport::samplePPD(), {}, language);
        QVERIFY(reference && p);
        QCOMPARE(reference->ui->tab4Label1->width() - p->ui->tab4Label1->width(), shift);
        QCOMPARE(reference->ui->tab4PopUpButton1->x() - p->ui->tab4PopUpButton1->x(), shift);
        QCOMPARE(p->ui->tab4PopUpButton1->width() - reference->ui->tab4PopUpButton1->width(), shift);
        QCOMPARE(p->ui->reverseDuplexCheckBoxButton->x() + p->ui->reverseDuplexCheckBoxButton->width(),
                 reference->ui->reverseDuplexCheckBoxButton->x() + reference->ui->reverseDuplexCheckBoxButton->width());
        // The tab names come from the bundle in the user's language.
        if (language == QLatin1String("de"))
            QCOMPARE(TestSupport::tabTexts(p->ui->m_tabView), (QStringList{"Qualität", "Farbe", "Stufen", "Papier"}));
    }

    void protocolAnswers()
    {
        auto p = Panel::open(TestSupport::samplePPD());
        QVERIFY(p);
        // The help answer is inverted: an opened page answers false.
        QString opened;
        PDEHelp::setOpener([&](const QString& path) { opened = path; return true; });
        QVERIFY(!p->eh->shouldShowHelp());
        QVERIFY(opened.endsWith(QStringLiteral("GraphicsPaperPDEHelp.html")));
        PDEHelp::setOpener([](const QString&) { return false; });
        QVERIFY(p->eh->shouldShowHelp());
        PDEHelp::setOpener(nullptr);

        QVERIFY(p->eh->willShow());
        QVERIFY(p->controller->currentlyActive());
        QVERIFY(p->eh->shouldHide());
        QVERIFY(!p->controller->currentlyActive());
    }

    // Values given with the job, as the panel opens on them.
    void givenWithTheJob_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QStringList>("expected");
        QTest::addColumn<bool>("halftoneEnabled");
        // Grey printing resets the colour-only options that came with it.
        QTest::newRow("gray resets saturation") << "ColorModel=Gray n_Saturation=Plus1 n_Brightness=Plus1"
                                                << QStringList{"ColorModel=Gray", "n_Saturation=Normal", "n_Brightness=Plus1"} << true;
        QTest::newRow("text resets the image options") << "DocType=Text RGBColor=Natural XrayContrast=High"
                                                       << QStringList{"DocType=Text", "RGBColor=Vivid", "XrayContrast=Normal"} << false;
        QTest::newRow("x-ray keeps its contrast") << "DocType=XRay XrayContrast=High" << QStringList{"DocType=XRay", "XrayContrast=High"}
                                                  << false;
        QTest::newRow("standard keeps colour") << "RGBColor=Natural" << QStringList{"RGBColor=Natural", "DocType=Standard"} << true;
        // Nine quality rows, eight pop-ups: the ninth row has no control but its rules still run.
        QTest::newRow("photo resets the ninth row") << "DocType=Photo id_Trapping=On" << QStringList{"DocType=Photo", "id_Trapping=Off"}
                                                    << false;
        // Values given at opening survive the Preferred Color observation.
        QTest::newRow("memory colour kept") << "n_Skin=Plus1" << QStringList{"n_Skin=Plus1"} << true;
        QTest::newRow("balance kept") << "PreferredColorCheck=On n_RCBalance=Plus1"
                                      << QStringList{"PreferredColorCheck=On", "n_RCBalance=Plus1"} << true;
    }

    void givenWithTheJob()
    {
        auto p = Panel::open(TestSupport::samplePPD(), cell<QString>("options"));
        QVERIFY(p);
        for (const QString& e : cell<QStringList>("expected"))
            QCOMPARE(e.section(QLatin1Char('='), 0, 0) + QLatin1Char('=') + p->value(e.section(QLatin1Char('='), 0, 0)), e);
        QTEST(p->ui->tab2PopUpButton6->isEnabled(), "halftoneEnabled");
    }
};

QTEST_MAIN(GraphicsPaperTest)
#include "tst_graphics_paper.moc"
