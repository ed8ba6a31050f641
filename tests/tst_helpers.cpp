// The standalone panels' toolkit: choice records over libcups choices, the
// choice-list functions under every panel's names, and the string helpers.
#include "MRPDE_MACFirstEventHandler.h"
#include "PDEBundle.h"
#include "PDEChoiceList.h"
#include "PDELog.h"
#include "PDELogSink.h"
#include "PDEStringExtension.h"
#include "TestSupport.h"

#include <QTest>
#include <cups/ppd.h>
#include <cstring>
#include <vector>

namespace {

const QString kUserTitleFailure = QStringLiteral("PDE: could not create userTitle!");
const QString kPPDTitleFailure = QStringLiteral("PDE: could not create ppdTitle!");
const QString kEncodingLine = QStringLiteral("PDE: Encoding set as 4");
const QString kSystemLine = QStringLiteral("(64-bit) Mac OS X 10.5 or later");
const quint32 kNone = 0xFFFFFFFFu;

std::shared_ptr<MRPDEChoice> recordOf(bool advanced, ppd_choice_t* choice)
{
    return advanced ? MRAdvancedPDEChoice::choiceWithChoice(choice) : MRPDEChoice::choiceWithChoice(choice);
}

// The position of found in array, -1 for no record.
template <class A, class R>
int positionOf(const A& array, const R& found)
{
    return found ? int(array.indexOf(found)) : -1;
}

// Copies bytes into a fixed libcups field, without a terminator when they fill it.
template <size_t N>
void setField(char (&field)[N], const QByteArray& bytes)
{
    std::memset(field, 0, N);
    std::memcpy(field, bytes.constData(), size_t(qMin<qsizetype>(bytes.size(), N)));
}

// An option laid out as libcups lays out what it reads, made by hand to hold
// what libcups would not hand over from a PPD file: bytes that are not UTF-8
// (it converts texts when it reads) and repeated keywords (cupstestppd
// refuses those).
struct HandMadeOption {
    HandMadeOption(const QByteArray& defchoice, const QByteArray& text, const QList<QPair<QByteArray, QByteArray>>& list)
        : choices(size_t(list.size()))
    {
        setField(option.defchoice, defchoice);
        setField(option.text, text);
        option.num_choices = int(list.size());
        option.choices = choices.data();
        for (size_t i = 0; i < choices.size(); ++i) {
            setField(choices[i].choice, list[qsizetype(i)].first);
            setField(choices[i].text, list[qsizetype(i)].second);
            choices[i].option = &option;
        }
    }
    ppd_option_t option {};
    std::vector<ppd_choice_t> choices;
};

} // namespace

class HelpersTest : public QObject {
    Q_OBJECT

private slots:
    void cleanupTestCase() { ppdClose(m_ppd); }
    void initTestCase()
    {
        // The debug switch goes on before any record exists, so that each record
        // class's set-up lines can be seen.
        m_bundle = TestSupport::bundleWithInfo(m_dir, {{QStringLiteral("DEBUG"), QStringLiteral("YES")}});
        MRPDE_MACFirstEventHandler entry;
        QVERIFY(entry.initWithBundle(m_bundle));
        m_ppd = ppdOpenFile(qPrintable(TestSupport::fixture(QStringLiteral("choices.ppd"))));
        QVERIFY2(m_ppd, "choices.ppd cannot be opened");
        ppdMarkDefaults(m_ppd);
        // Each record class is set up on its own first use, even after the other
        // class: the system check, then the encoding line; nothing on later use.
        for (bool advanced : {true, false}) {
            PDELogCapture capture;
            recordOf(advanced, &option("VELWatermarkOption")->choices[0]);
            QCOMPARE(capture.lines(), QStringList({kSystemLine, kEncodingLine}));
            capture.clear();
            recordOf(advanced, &option("VELWatermarkOption")->choices[1]);
            QVERIFY(capture.lines().isEmpty());
        }
    }

    void titles_data()
    {
        QTest::addColumn<bool>("advanced");
        QTest::addColumn<QByteArray>("keyword");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("userTitle");  // null: cannot be made
        QTest::addColumn<QString>("ppdTitle");
        QTest::addColumn<QStringList>("madeLines");  // logged when the record is made

        // Fields full to the last byte (81 and 41), without a terminator.
        const QByteArray fullText = QByteArray("\xe5\x8d\xb0").repeated(PPD_MAX_TEXT / 3), fullKeyword(PPD_MAX_NAME, 'K');
        const QStringList none;
        QTest::newRow("UTF-8") << true << QByteArray("Mono") << QByteArray("Schwarzwei\xc3\x9f \xe2\x80\x93 \xe7\x99\xbd\xe9\xbb\x92")
                               << "Schwarzwei\u00df \u2013 \u767d\u9ed2" << "Mono" << none;
        QTest::newRow("full fields") << false << fullKeyword << fullText << QString(PPD_MAX_TEXT / 3, QChar(0x5370))
                                     << QString::fromLatin1(fullKeyword) << none;
        QTest::newRow("byte order mark kept") << true << QByteArray("B") << QByteArray("\xef\xbb\xbfM") << QStringLiteral("\ufeffM") << "B" << none;
        QTest::newRow("Latin-1") << false << QByteArray("Gray") << QByteArray("Stra\xdf" "e") << QString() << "Gray" << none;
        QTest::newRow("sequence cut at the end") << false << QByteArray("Gray") << QByteArray("Entw\xc3") << QString() << "Gray" << none;
        QTest::newRow("keyword not ASCII") << true << QByteArray("Gr\xc3\xbcn") << QByteArray("Green") << "Green" << QString() << none;
        // A missing field is logged, and the record is kept with an empty title.
        QTest::newRow("no text") << true << QByteArray("Draft") << QByteArray() << "" << "Draft" << QStringList{"PDE: choice->text is NULL!"};
        QTest::newRow("neither") << false << QByteArray() << QByteArray() << "" << ""
                                 << QStringList{"PDE: choice->text is NULL!", "PDE: choice->choice is NULL!"};
    }

    void titles()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, userTitle);
        QFETCH(QString, ppdTitle);
        HandMadeOption made("Gray", "Colour", {{cell<QByteArray>("keyword"), text}, {"RGB", "Colour"}});
        PDELogCapture capture;
        auto record = recordOf(cell<bool>("advanced"), &made.choices[0]);
        QTEST(capture.lines(), "madeLines");
        capture.clear();
        // A title that cannot be made is null and logged on every access.
        for (int access = 1; access <= 3; ++access) {
            QCOMPARE(PDEDescribe(record->userTitle()), PDEDescribe(userTitle));  // "(null)" for null
            QCOMPARE(PDEDescribe(record->ppdTitle()), PDEDescribe(ppdTitle));
            QCOMPARE(capture.count(kUserTitleFailure), userTitle.isNull() ? access : 0);
            QCOMPARE(capture.count(kPPDTitleFailure), ppdTitle.isNull() ? access : 0);
        }
        QCOMPARE(capture.lines().size(), 3 * (int(userTitle.isNull()) + int(ppdTitle.isNull())));
        if (userTitle.isNull()) {
            QVERIFY(record->description().contains(QStringLiteral("userTitle:\"(null)\" ppdTitle:\"Gray\"")));
            // Tried again until made, then kept.
            setField(made.choices[0].text, "Grau");
            QCOMPARE(record->userTitle(), QStringLiteral("Grau"));
            setField(made.choices[0].text, "Blau");
            QCOMPARE(record->userTitle(), QStringLiteral("Grau"));
            QCOMPARE(capture.count(kUserTitleFailure), 4);
        }
    }

    void isDefaultChoice_data()
    {
        QTest::addColumn<QByteArray>("keyword");
        QTest::addColumn<QByteArray>("defchoice");
        QTest::addColumn<bool>("expected");
        // Full fields lack a terminator: only their 41 bytes count, not the
        // (different) texts that lie behind them.
        const QByteArray full(PPD_MAX_NAME, 'K');
        QTest::newRow("case differs") << QByteArray("a4") << QByteArray("A4") << false;
        QTest::newRow("keyword is a prefix of the default") << QByteArray("A4") << QByteArray("A4Small") << false;
        QTest::newRow("default is a prefix of the keyword") << QByteArray("A4Small") << QByteArray("A4") << false;
        QTest::newRow("full fields, equal") << full << full << true;
        QTest::newRow("full fields, last byte differs") << full << full.left(PPD_MAX_NAME - 1) + 'L' << false;
    }

    void isDefaultChoice()
    {
        QFETCH(bool, expected);
        HandMadeOption made(cell<QByteArray>("defchoice"), "Option text", {{cell<QByteArray>("keyword"), "Choice text"}});
        QCOMPARE(MRAdvancedPDEChoice::choiceWithChoice(&made.choices[0])->isDefaultChoice(), expected);
        QCOMPARE(MRPDEChoice::choiceWithChoice(&made.choices[0])->isDefaultChoice(), expected);
        made.choices[0].option = nullptr;  // a choice without its option is no default
        QVERIFY(!MRPDEChoice::choiceWithChoice(&made.choices[0])->isDefaultChoice());
    }

    void eachPanelsNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("german");  // the watermark option's items from the panel's table
        // "None" has a different translation in each table; a keyword missing
        // from the table shows as itself. (Manual Duplex and Secure Release
        // use the Advanced Options functions themselves.)
        QTest::newRow("Advanced Options") << "Advanced Options" << QStringList{"Keine", "Vertraulich", "Entwurf"};
        QTest::newRow("ManualMargin") << "ManualMargin" << QStringList{"Kein Rand", "Confidential", "Draft"};
        QTest::newRow("SpecialPage") << "SpecialPage" << QStringList{"Keine Sonderseiten", "Confidential", "Draft"};
    }

    void eachPanelsNames()
    {
        QFETCH(QString, name);
        if (name == QLatin1String("Advanced Options"))
            checkNames(ArrayFromPPDOption, FindChoiceForString, InitPopUpFromArray, CreateOptionTitle, true);
        else if (name == QLatin1String("ManualMargin"))
            checkNames(ManualMarginArrayFromPPDOption, ManualMarginFindChoiceForString, ManualMarginInitPopUpFromArray,
                       ManualMarginCreateOptionTitle, false);
        else
            checkNames(SpecialPageArrayFromPPDOption, SpecialPageFindChoiceForString, SpecialPageInitPopUpFromArray,
                       SpecialPageCreateOptionTitle, false);
    }

    void findChoiceAndIndex_data()
    {
        QTest::addColumn<QByteArray>("optionKeyword");
        QTest::addColumn<bool>("nil");
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<int>("found");  // position, -1 for no record
        QTest::addColumn<quint32>("index");
        QTest::newRow("a keyword") << QByteArray("VELPageOption") << false << "Exception" << 3 << 3u;
        QTest::newRow("case matters") << QByteArray("VELPageOption") << false << "exception" << -1 << kNone;
        QTest::newRow("a user title is no keyword") << QByteArray("VELPageOption") << false << "Covers" << -1 << kNone;
        QTest::newRow("nil: the default, no index") << QByteArray("VELPageOption") << true << "" << 0 << kNone;
        QTest::newRow("empty is not nil") << QByteArray("VELPageOption") << false << "" << -1 << kNone;
        QTest::newRow("default matches no choice") << QByteArray("VELFeedMode") << false << "Manual" << 1 << 1u;
        QTest::newRow("no choices") << QByteArray("VELReserved") << false << "Unknown" << -1 << kNone;
        QTest::newRow("equal keywords: the first") << QByteArray("repeated") << false << "Cover" << 1 << 1u;
        QTest::newRow("equal keywords, nil: the first") << QByteArray("repeated") << true << "" << 1 << kNone;
        // A keyword that is not ASCII has no PPD title: it matches nothing, not
        // even the empty keyword, but is still the default.
        QTest::newRow("not ASCII, empty") << QByteArray("not ASCII") << false << "" << -1 << kNone;
        QTest::newRow("not ASCII, nil") << QByteArray("not ASCII") << true << "" << 0 << kNone;
    }

    void findChoiceAndIndex()
    {
        QFETCH(bool, nil);
        QFETCH(QString, keyword);
        const MRPDEChoiceArray array = SpecialPageArrayFromPPDOption(option(cell<QByteArray>("optionKeyword"))).value();
        QTEST(positionOf(array, SpecialPageFindChoiceForString(nil ? QString() : keyword, array)), "found");
        QTEST(FindPPDIndex(nil ? QString() : keyword, array), "index");
    }

    void stringHelpers_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("set");  // "number", or for removing: "digits", "non-digits", "nil" or the members
        QTest::addColumn<QString>("expected");  // the number, or "none"
        QTest::newRow("number: digits first") << "12abc34" << "number" << "12";
        QTest::newRow("number: no digit at all") << "abc" << "number" << "0";
        QTest::newRow("number: a sign is not a digit") << "-5" << "number" << "5";
        QTest::newRow("number: empty") << "" << "number" << "none";
        QTest::newRow("number: white space only") << " \t\n " << "number" << "none";
        QTest::newRow("number: leading white space") << "\t\n 42" << "number" << "42";
        QTest::newRow("number: one past the largest") << "2147483648" << "number" << "2147483647";
        QTest::newRow("number: too long for 64 bits") << "id99999999999999999999999" << "number" << "2147483647";
        QTest::newRow("number: only 0-9 are digits") << "\u0661\u0662 \uff11" << "number" << "0";
        QTest::newRow("removing digits") << "12ab34" << "digits" << "ab";
        QTest::newRow("removing all but digits") << "1a 2-b3" << "non-digits" << "123";
        QTest::newRow("removing members") << "a b\tc,d" << " \t," << "abcd";
        QTest::newRow("removing a non-ASCII member") << "Grüße" << "ü" << "Grße";
        QTest::newRow("removing with a nil set") << "1 2-3" << "nil" << "1 2-3";
    }

    void stringHelpers()
    {
        QFETCH(QString, text);
        QFETCH(QString, set);
        if (set == QLatin1String("number")) {
            const std::optional<int> number = ::filteredNumberFromString(text);
            QTEST(number ? QString::number(*number) : QStringLiteral("none"), "expected");
            return;
        }
        PDECharacterSet members = PDECharacterSet::fromString(set);
        if (set == QLatin1String("digits"))
            members = PDECharacterSet::decimalDigits();
        else if (set == QLatin1String("non-digits"))
            members = PDECharacterSet::decimalDigits().inverted();
        QTEST(::stringByRemovingCharactersInSet(text, set == QLatin1String("nil") ? nullptr : &members), "expected");
    }

private:
    ppd_option_t* option(const QByteArray& key)
    {
        if (key == "repeated")
            return &m_repeated.option;
        return key == "not ASCII" ? &m_notASCII.option : ppdFindOption(m_ppd, key.constData());
    }

    QTemporaryDir m_dir;
    std::shared_ptr<PDEBundle> m_bundle;
    ppd_file_t* m_ppd = nullptr;
    // A repeated keyword that is also the default; a default keyword that is not ASCII.
    HandMadeOption m_repeated {"Cover", "Special Pages", {{"None", "Off"}, {"Cover", "Covers"}, {"Cover", "Again"}, {"Insert", "In"}}};
    HandMadeOption m_notASCII {"Gr\xc3\xbcn", "Colour", {{"Gr\xc3\xbcn", "Green"}, {"Blue", "Blue"}}};

    template <class ArrayOf, class Find, class Init, class Title>
    void checkNames(ArrayOf arrayOf, Find find, Init init, Title title, bool advanced)
    {
        QFETCH(QStringList, german);
        ppd_option_t* o = option("VELWatermarkOption");

        // Records of the panel's class, in PPD order; ppdMarkDefaults has marked
        // the default. The log formats' "%@" gives the description.
        const auto array = arrayOf(o).value();
        QCOMPARE(array.size(), 3);
        const QString recordClass = advanced ? QStringLiteral("MRAdvancedPDEChoice") : QStringLiteral("MRPDEChoice");
        QCOMPARE(PDEDescribe(array[0]), QStringLiteral("<%1 0x%2 userTitle:\"No Watermark\" ppdTitle:\"None\" marked:YES choice:1 of 3>")
                                            .arg(recordClass).arg(quintptr(array[0].get()), 0, 16));
        QCOMPARE(array[2]->description(), QStringLiteral("<%1 0x%2 userTitle:\"Draft Stamp\" ppdTitle:\"Draft\" marked:NO choice:3 of 3>")
                                              .arg(recordClass).arg(quintptr(array[2].get()), 0, 16));
        QCOMPARE(positionOf(array, find(QStringLiteral("Draft"), array)), 2);
        QCOMPARE(positionOf(array, find(QString(), array)), 0);
        QVERIFY(!find(QString(), arrayOf(option("VELFeedMode")).value()));  // nil, and the default matches no choice

        // The pop-up drops what it showed; without a bundle the PPD's texts, with
        // it the panel's table. Each item carries its record.
        QComboBox popUp;
        init(&popUp, array, nullptr);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(popUp.itemText(i), array[i]->userTitle());
        m_bundle->setLanguage(QStringLiteral("de"));
        init(&popUp, array, m_bundle.get());
        QCOMPARE(popUp.count(), 3);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(popUp.itemText(i), german[i]);
            QCOMPARE(array[i]->choice(), &o->choices[i]);
            QCOMPARE(RepresentedChoiceOfItem(&popUp, i), std::shared_ptr<MRPDEChoice>(array[i]));
            QCOMPARE(bool(RepresentedChoiceOfItem<MRAdvancedPDEChoice>(&popUp, i)), advanced);
        }
        QVERIFY(!RepresentedChoiceOfItem(&popUp, 3) && !RepresentedChoiceOfItem(&popUp, -1));

        // No choices: an empty list and an empty pop-up. No option: nothing.
        const auto empty = arrayOf(option("VELReserved"));
        QVERIFY(empty.has_value() && empty->isEmpty());
        init(&popUp, *empty, m_bundle.get());
        QCOMPARE(popUp.count(), 0);
        QCOMPARE(popUp.currentIndex(), -1);
        QVERIFY(!arrayOf(nullptr).has_value());
        QVERIFY(title(nullptr).isNull());

        // The option's title, from UTF-8 only.
        QCOMPARE(title(o), QStringLiteral("Watermark"));
        HandMadeOption badText("A", "R\xfc" "ckseite", {{"A", "A"}});
        QVERIFY(title(&badText.option).isNull());
    }
};

QTEST_MAIN(HelpersTest)
#include "tst_helpers.moc"
