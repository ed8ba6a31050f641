// The standalone panels' toolkit: choice records over libcups choices, the
// choice-list functions under every panel's names, and the string helpers.
#include "MRAdvancedPDEChoice.h"
#include "MRPDEChoice.h"
#include "MRPDE_MACFirstEventHandler.h"
#include "PDEBundle.h"
#include "PDECharacterSet.h"
#include "PDEChoiceList.h"
#include "PDELog.h"
#include "PDELogSink.h"
#include "PDEStringExtension.h"
#include "TestSupport.h"

#include <QComboBox>
#include <QFile>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <cups/ppd.h>
#include <cstring>
#include <limits>
#include <typeinfo>
#include <vector>

// Every panel's names build the record class of that panel.
static_assert(std::is_same_v<decltype(ArrayFromPPDOption(nullptr)), std::optional<MRAdvancedPDEChoiceArray>>);
static_assert(std::is_same_v<decltype(ManaulDArrayFromPPDOption(nullptr)), std::optional<MRAdvancedPDEChoiceArray>>);
static_assert(std::is_same_v<decltype(PSSArrayFromPPDOption(nullptr)), std::optional<MRAdvancedPDEChoiceArray>>);
static_assert(std::is_same_v<decltype(ManualMarginArrayFromPPDOption(nullptr)), std::optional<MRPDEChoiceArray>>);
static_assert(std::is_same_v<decltype(SpecialPageArrayFromPPDOption(nullptr)), std::optional<MRPDEChoiceArray>>);
static_assert(std::is_same_v<decltype(FindChoiceForString(QString(), {})), std::shared_ptr<MRAdvancedPDEChoice>>);
static_assert(std::is_same_v<decltype(ManualMarginFindChoiceForString(QString(), {})), std::shared_ptr<MRPDEChoice>>);
static_assert(std::is_same_v<decltype(FindPPDIndex(QString(), {})), quint32>);

namespace {

const QString kUserTitleFailure = QStringLiteral("PDE: could not create userTitle!");
const QString kPPDTitleFailure = QStringLiteral("PDE: could not create ppdTitle!");
const QString kEncodingLine = QStringLiteral("PDE: Encoding set as 4");
const QString kSystemLine = QStringLiteral("(64-bit) Mac OS X 10.5 or later");

// The panel families, by the names they use.
enum Family { Advanced, ManualDuplex, SecureRelease, ManualMargin, SpecialPage };
const char* const kFamilyNames[] = {"Advanced Options", "ManaulD", "PSS", "ManualMargin", "SpecialPage"};

QString recordClassOf(int family)
{
    return family <= SecureRelease ? QStringLiteral("MRAdvancedPDEChoice") : QStringLiteral("MRPDEChoice");
}

template <class A>
std::optional<MRPDEChoiceArray> upcast(const std::optional<A>& array)
{
    if (!array)
        return std::nullopt;
    return MRPDEChoiceArray(array->begin(), array->end());
}

std::optional<MRPDEChoiceArray> arrayFor(int family, ppd_option_t* option)
{
    switch (family) {
    case Advanced: return upcast(ArrayFromPPDOption(option));
    case ManualDuplex: return upcast(ManaulDArrayFromPPDOption(option));
    case SecureRelease: return upcast(PSSArrayFromPPDOption(option));
    case ManualMargin: return ManualMarginArrayFromPPDOption(option);
    case SpecialPage: return SpecialPageArrayFromPPDOption(option);
    }
    return std::nullopt;
}

// The position in array of found: -1 for no record, -2 for a record that is
// not in the array.
template <class A, class R>
int positionOf(const A& array, const R& found)
{
    if (!found)
        return -1;
    const auto i = array.indexOf(found);
    return i < 0 ? -2 : int(i);
}

// Builds the family's list for option and looks keyword up in it with the
// family's own function.
int findIn(int family, ppd_option_t* option, const QString& keyword)
{
    switch (family) {
    case Advanced: {
        const auto a = ArrayFromPPDOption(option).value_or(MRAdvancedPDEChoiceArray());
        return positionOf(a, FindChoiceForString(keyword, a));
    }
    case ManualDuplex: {
        const auto a = ManaulDArrayFromPPDOption(option).value_or(MRAdvancedPDEChoiceArray());
        return positionOf(a, ManaulDFindChoiceForString(keyword, a));
    }
    case SecureRelease: {
        const auto a = PSSArrayFromPPDOption(option).value_or(MRAdvancedPDEChoiceArray());
        return positionOf(a, PSSFindChoiceForString(keyword, a));
    }
    case ManualMargin: {
        const auto a = ManualMarginArrayFromPPDOption(option).value_or(MRPDEChoiceArray());
        return positionOf(a, ManualMarginFindChoiceForString(keyword, a));
    }
    case SpecialPage: {
        const auto a = SpecialPageArrayFromPPDOption(option).value_or(MRPDEChoiceArray());
        return positionOf(a, SpecialPageFindChoiceForString(keyword, a));
    }
    }
    return -3;
}

// Fills popUp from option with the family's own functions; answers the list.
MRPDEChoiceArray fillIn(int family, QComboBox* popUp, ppd_option_t* option, const PDEBundle* bundle)
{
    switch (family) {
    case Advanced: {
        const auto a = ArrayFromPPDOption(option).value_or(MRAdvancedPDEChoiceArray());
        InitPopUpFromArray(popUp, a, bundle);
        return MRPDEChoiceArray(a.begin(), a.end());
    }
    case ManualDuplex: {
        const auto a = ManaulDArrayFromPPDOption(option).value_or(MRAdvancedPDEChoiceArray());
        ManaulDInitPopUpFromArray(popUp, a, bundle);
        return MRPDEChoiceArray(a.begin(), a.end());
    }
    case SecureRelease: {
        const auto a = PSSArrayFromPPDOption(option).value_or(MRAdvancedPDEChoiceArray());
        PSSInitPopUpFromArray(popUp, a, bundle);
        return MRPDEChoiceArray(a.begin(), a.end());
    }
    case ManualMargin: {
        const auto a = ManualMarginArrayFromPPDOption(option).value_or(MRPDEChoiceArray());
        ManualMarginInitPopUpFromArray(popUp, a, bundle);
        return a;
    }
    case SpecialPage: {
        const auto a = SpecialPageArrayFromPPDOption(option).value_or(MRPDEChoiceArray());
        SpecialPageInitPopUpFromArray(popUp, a, bundle);
        return a;
    }
    }
    return {};
}

QString titleIn(int family, ppd_option_t* option)
{
    switch (family) {
    case Advanced: return CreateOptionTitle(option);
    case ManualDuplex: return ManaulDCreateOptionTitle(option);
    case SecureRelease: return PSSCreateOptionTitle(option);
    case ManualMargin: return ManualMarginCreateOptionTitle(option);
    case SpecialPage: return SpecialPageCreateOptionTitle(option);
    }
    return QStringLiteral("?");
}

std::shared_ptr<MRPDEChoice> recordOfClass(int family, ppd_choice_t* choice)
{
    if (family <= SecureRelease)
        return MRAdvancedPDEChoice::choiceWithChoice(choice);
    return MRPDEChoice::choiceWithChoice(choice);
}

// Copies bytes into a fixed libcups field, without a terminator when they
// fill it.
template <size_t N>
void setField(char (&field)[N], const QByteArray& bytes)
{
    std::memset(field, 0, N);
    std::memcpy(field, bytes.constData(), size_t(qMin<qsizetype>(bytes.size(), N)));
}

// An option laid out as libcups lays out what it reads, made by hand to hold
// bytes that libcups would not hand over from a PPD file (it converts every
// text to UTF-8 when it reads a file).
struct HandMadeOption {
    HandMadeOption(const QByteArray& keyword, const QByteArray& defchoice, const QByteArray& text,
                   const QList<QPair<QByteArray, QByteArray>>& choiceList)
        : choices(size_t(choiceList.size()))
    {
        setField(option.keyword, keyword);
        setField(option.defchoice, defchoice);
        setField(option.text, text);
        option.ui = PPD_UI_PICKONE;
        option.num_choices = int(choiceList.size());
        option.choices = choices.empty() ? nullptr : choices.data();
        for (size_t i = 0; i < choices.size(); ++i) {
            setField(choices[i].choice, choiceList[qsizetype(i)].first);
            setField(choices[i].text, choiceList[qsizetype(i)].second);
            choices[i].option = &option;
        }
    }
    HandMadeOption(const HandMadeOption&) = delete;
    HandMadeOption& operator=(const HandMadeOption&) = delete;

    ppd_option_t option {};
    std::vector<ppd_choice_t> choices;
};

} // namespace

class HelpersTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    // Choice records.
    void eachRecordClassIsSetUpOnceOnFirstUse();
    void recordOfAChoiceWithoutTextOrKeyword_data();
    void recordOfAChoiceWithoutTextOrKeyword();
    void userTitleOfTextThatIsNotUTF8_data();
    void userTitleOfTextThatIsNotUTF8();
    void userTitleIsTriedAgainUntilMadeThenKept();
    void userTitleOfUTF8Text();
    void ppdTitleOfKeywordThatIsNotASCII();
    void isDefaultChoice_data();
    void isDefaultChoice();
    void description_data();
    void description();

    // The choice-list functions.
    void arrayFromPPDOption_data();
    void arrayFromPPDOption();
    void nullOption_data();
    void nullOption();
    void findChoiceForString_data();
    void findChoiceForString();
    void equalPPDTitlesFindTheFirstInPPDOrder_data();
    void equalPPDTitlesFindTheFirstInPPDOrder();
    void findPPDIndex_data();
    void findPPDIndex();
    void initPopUpFromArray_data();
    void initPopUpFromArray();
    void popUpItemsOfRecordsWithoutTitles();
    void createOptionTitle_data();
    void createOptionTitle();

    // The string helpers.
    void filteredNumberFromString_data();
    void filteredNumberFromString();
    void stringByRemovingCharactersInSet_data();
    void stringByRemovingCharactersInSet();

private:
    ppd_option_t* option(const char* keyword) const { return ppdFindOption(m_ppd, keyword); }

    QTemporaryDir m_dir;
    std::shared_ptr<PDEBundle> m_bundle;
    ppd_file_t* m_ppd = nullptr;
    // What the first and the second record of each class logged.
    QStringList m_firstAdvanced, m_secondAdvanced, m_firstPlain, m_secondPlain;
};

void HelpersTest::initTestCase()
{
    // The debug switch goes on before any record exists, so that each record
    // class's set-up line can be seen.
    QVERIFY(m_dir.isValid());
    m_bundle = TestSupport::bundleWithInfo(m_dir, {{QStringLiteral("DEBUG"), QStringLiteral("YES")}});
    QVERIFY(m_bundle);
    MRPDE_MACFirstEventHandler entry;
    QVERIFY(entry.initWithBundle(m_bundle));
    QVERIFY(PDEDebugEnabled());

    m_ppd = ppdOpenFile(qPrintable(TestSupport::fixture(QStringLiteral("choices.ppd"))));
    QVERIFY2(m_ppd, "choices.ppd cannot be opened");
    ppdMarkDefaults(m_ppd);
    ppd_option_t* watermark = option("VELWatermarkOption");
    QVERIFY(watermark && watermark->num_choices == 3);

    PDELogCapture capture;
    auto a1 = MRAdvancedPDEChoice::choiceWithChoice(&watermark->choices[0]);
    m_firstAdvanced = capture.lines();
    capture.clear();
    auto a2 = MRAdvancedPDEChoice::choiceWithChoice(&watermark->choices[1]);
    m_secondAdvanced = capture.lines();
    capture.clear();
    auto p1 = MRPDEChoice::choiceWithChoice(&watermark->choices[0]);
    m_firstPlain = capture.lines();
    capture.clear();
    auto p2 = MRPDEChoice::choiceWithChoice(&watermark->choices[1]);
    m_secondPlain = capture.lines();
}

void HelpersTest::cleanupTestCase()
{
    if (m_ppd)
        ppdClose(m_ppd);
}

void HelpersTest::eachRecordClassIsSetUpOnceOnFirstUse()
{
    // First use: the system check, then the encoding line, once.
    QCOMPARE(m_firstAdvanced.count(kEncodingLine), 1);
    QCOMPARE(m_firstAdvanced.count(kSystemLine), 1);
    QVERIFY(m_firstAdvanced.indexOf(kSystemLine) < m_firstAdvanced.indexOf(kEncodingLine));
    QCOMPARE(m_secondAdvanced.count(kEncodingLine), 0);
    QCOMPARE(m_secondAdvanced.count(kSystemLine), 0);
    // The other record class is set up on its own first use, even though the
    // first class was set up already.
    QCOMPARE(m_firstPlain.count(kEncodingLine), 1);
    QCOMPARE(m_firstPlain.count(kSystemLine), 1);
    QCOMPARE(m_secondPlain.count(kEncodingLine), 0);
    QCOMPARE(m_secondPlain.count(kSystemLine), 0);
    QCOMPARE(MRPDEChoice::ppdEncoding(), 4);
    QCOMPARE(MRAdvancedPDEChoice::ppdEncoding(), 4);
}

void HelpersTest::recordOfAChoiceWithoutTextOrKeyword_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<QByteArray>("keyword");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("expectedLines");

    for (int family : {Advanced, ManualMargin}) {
        const QByteArray cls = recordClassOf(family).toLatin1();
        QTest::addRow("%s: keyword and text", cls.constData())
            << family << QByteArray("Draft") << QByteArray("Draft Stamp") << QStringList();
        QTest::addRow("%s: no text", cls.constData())
            << family << QByteArray("Draft") << QByteArray() << QStringList{QStringLiteral("PDE: choice->text is NULL!")};
        QTest::addRow("%s: no keyword", cls.constData())
            << family << QByteArray() << QByteArray("Draft Stamp") << QStringList{QStringLiteral("PDE: choice->choice is NULL!")};
        QTest::addRow("%s: neither", cls.constData())
            << family << QByteArray() << QByteArray()
            << QStringList{QStringLiteral("PDE: choice->text is NULL!"), QStringLiteral("PDE: choice->choice is NULL!")};
    }
}

void HelpersTest::recordOfAChoiceWithoutTextOrKeyword()
{
    QFETCH(int, family);
    QFETCH(QByteArray, keyword);
    QFETCH(QByteArray, text);
    QFETCH(QStringList, expectedLines);

    HandMadeOption made("VELWatermarkOption", "None", "Watermark", {{keyword, text}});
    PDELogCapture capture;
    auto record = recordOfClass(family, &made.choices[0]);
    // The record is kept whatever is missing.
    QVERIFY(record);
    QCOMPARE(record->choice(), &made.choices[0]);
    QCOMPARE(capture.lines(), expectedLines);
    // An empty field still makes an empty title.
    capture.clear();
    QCOMPARE(record->userTitle(), QString::fromLatin1(text));
    QVERIFY(!record->userTitle().isNull());
    QCOMPARE(record->ppdTitle(), QString::fromLatin1(keyword));
    QVERIFY(!record->ppdTitle().isNull());
    QVERIFY(capture.lines().isEmpty());
}

void HelpersTest::userTitleOfTextThatIsNotUTF8_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<QByteArray>("text");

    const QList<QPair<const char*, QByteArray>> texts = {
        {"Latin-1 sharp s", QByteArray("Schwarzwei\xdf")},
        {"lone continuation byte", QByteArray("Gray \x80 Scale")},
        {"sequence cut at the end", QByteArray("Entw\xc3")},
        {"overlong slash", QByteArray("a\xc0\xaf")},
        {"encoded surrogate", QByteArray("\xed\xa0\x80")},
        {"byte FF", QByteArray("\xff")},
    };
    for (int family : {Advanced, ManualMargin})
        for (const auto& [name, bytes] : texts)
            QTest::addRow("%s: %s", qPrintable(recordClassOf(family)), name) << family << bytes;
}

void HelpersTest::userTitleOfTextThatIsNotUTF8()
{
    QFETCH(int, family);
    QFETCH(QByteArray, text);

    HandMadeOption made("ColorModel", "Gray", "Color Model", {{"Gray", text}, {"RGB", "Colour"}});
    auto record = recordOfClass(family, &made.choices[0]);
    PDELogCapture capture;
    for (int access = 1; access <= 3; ++access) {
        QVERIFY(record->userTitle().isNull());
        QCOMPARE(capture.count(kUserTitleFailure), access);
    }
    // The keyword is still read, without complaint.
    QCOMPARE(record->ppdTitle(), QStringLiteral("Gray"));
    QCOMPARE(capture.lines().size(), 3);
    // The description says so, and tried once more.
    QVERIFY(record->description().contains(QStringLiteral("userTitle:\"(null)\" ppdTitle:\"Gray\"")));
    QCOMPARE(capture.count(kUserTitleFailure), 4);
}

void HelpersTest::userTitleIsTriedAgainUntilMadeThenKept()
{
    HandMadeOption made("ColorModel", "Gray", "Color Model", {{"Gray", "Schwarzwei\xdf"}});
    auto record = MRAdvancedPDEChoice::choiceWithChoice(&made.choices[0]);
    PDELogCapture capture;
    QVERIFY(record->userTitle().isNull());
    // The text becomes readable: the next access makes the title.
    setField(made.choices[0].text, "Schwarzwei\xc3\x9f");
    QCOMPARE(record->userTitle(), QStringLiteral("Schwarzwei\u00df"));
    QCOMPARE(capture.count(kUserTitleFailure), 1);
    // Once made, the title is kept even if the libcups text changes.
    setField(made.choices[0].text, "Grau");
    QCOMPARE(record->userTitle(), QStringLiteral("Schwarzwei\u00df"));
    QCOMPARE(capture.count(kUserTitleFailure), 1);
}

void HelpersTest::userTitleOfUTF8Text()
{
    // A text that fills its libcups field to the last byte, without a
    // terminator: three-byte characters only.
    static_assert(PPD_MAX_TEXT % 3 == 0);
    QByteArray longText;
    while (longText.size() < PPD_MAX_TEXT)
        longText += "\xe5\x8d\xb0";  // U+5370
    HandMadeOption made("VELColor", "Mono", "Colour",
                        {{"Mono", "Schwarzwei\xc3\x9f \xe2\x80\x93 \xe7\x99\xbd\xe9\xbb\x92"}, {"Long", longText},
                         {"Bom", "\xef\xbb\xbfMark"}});
    PDELogCapture capture;
    auto mono = MRPDEChoice::choiceWithChoice(&made.choices[0]);
    QCOMPARE(mono->userTitle(), QStringLiteral("Schwarzwei\u00df \u2013 \u767d\u9ed2"));
    auto longRecord = MRAdvancedPDEChoice::choiceWithChoice(&made.choices[1]);
    QCOMPARE(longRecord->userTitle(), QString::fromUtf8(longText));
    QCOMPARE(longRecord->userTitle(), QString(PPD_MAX_TEXT / 3, QChar(0x5370)));
    // A byte order mark is a character of the text like any other.
    auto bom = MRPDEChoice::choiceWithChoice(&made.choices[2]);
    QCOMPARE(bom->userTitle(), QStringLiteral("\ufeffMark"));
    QVERIFY(!capture.contains(kUserTitleFailure));
}

void HelpersTest::ppdTitleOfKeywordThatIsNotASCII()
{
    HandMadeOption made("VELColor", "Gr\xc3\xbcn", "Colour", {{"Gr\xc3\xbcn", "Green"}, {"Blue", "Blue"}});
    auto record = MRPDEChoice::choiceWithChoice(&made.choices[0]);
    auto blue = MRPDEChoice::choiceWithChoice(&made.choices[1]);
    PDELogCapture capture;
    QVERIFY(record->ppdTitle().isNull());
    QVERIFY(record->ppdTitle().isNull());
    QCOMPARE(capture.count(kPPDTitleFailure), 2);
    QCOMPARE(record->userTitle(), QStringLiteral("Green"));
    // A record without a PPD title matches no keyword, not even the empty one,
    // but is still its option's default.
    const MRPDEChoiceArray array {record, blue};
    QVERIFY(!ManualMarginFindChoiceForString(QStringLiteral(""), array));
    QCOMPARE(ManualMarginFindChoiceForString(QString(), array), record);
    QCOMPARE(FindPPDIndex(QStringLiteral(""), array), 0xFFFFFFFFu);
    QCOMPARE(FindPPDIndex(QStringLiteral("Blue"), array), 1u);
}

void HelpersTest::isDefaultChoice_data()
{
    QTest::addColumn<QByteArray>("keyword");
    QTest::addColumn<QByteArray>("defchoice");
    QTest::addColumn<bool>("hasOption");
    QTest::addColumn<bool>("expected");

    const QByteArray full41(PPD_MAX_NAME, 'K');
    QByteArray full41Other = full41;
    full41Other[PPD_MAX_NAME - 1] = 'L';
    QTest::newRow("same keyword") << QByteArray("A4") << QByteArray("A4") << true << true;
    QTest::newRow("other keyword") << QByteArray("A4") << QByteArray("Letter") << true << false;
    QTest::newRow("keyword is a prefix of the default") << QByteArray("A4") << QByteArray("A4Small") << true << false;
    QTest::newRow("default is a prefix of the keyword") << QByteArray("A4Small") << QByteArray("A4") << true << false;
    QTest::newRow("case differs") << QByteArray("a4") << QByteArray("A4") << true << false;
    QTest::newRow("no default") << QByteArray("A4") << QByteArray() << true << false;
    // Both fields full to their width, without a terminator: only their 41
    // bytes count, not the texts that lie behind them (which differ).
    QTest::newRow("full fields, equal") << full41 << full41 << true << true;
    QTest::newRow("full fields, last byte differs") << full41 << full41Other << true << false;
    QTest::newRow("choice without option") << QByteArray("A4") << QByteArray("A4") << false << false;
}

void HelpersTest::isDefaultChoice()
{
    QFETCH(QByteArray, keyword);
    QFETCH(QByteArray, defchoice);
    QFETCH(bool, hasOption);
    QFETCH(bool, expected);

    HandMadeOption made("PageSize", defchoice, "Option text", {{keyword, "Choice text"}});
    if (!hasOption)
        made.choices[0].option = nullptr;
    QCOMPARE(MRAdvancedPDEChoice::choiceWithChoice(&made.choices[0])->isDefaultChoice(), expected);
    QCOMPARE(MRPDEChoice::choiceWithChoice(&made.choices[0])->isDefaultChoice(), expected);
}

void HelpersTest::description_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<QByteArray>("optionKeyword");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("expectedAfterAddress");

    // ppdMarkDefaults has marked each option's default.
    for (int family : {Advanced, ManualMargin}) {
        const QByteArray cls = recordClassOf(family).toLatin1();
        QTest::addRow("%s: marked default, first of three", cls.constData())
            << family << QByteArray("VELWatermarkOption") << 0
            << QStringLiteral(" userTitle:\"No Watermark\" ppdTitle:\"None\" marked:YES choice:1 of 3>");
        QTest::addRow("%s: unmarked, second of three", cls.constData())
            << family << QByteArray("VELWatermarkOption") << 1
            << QStringLiteral(" userTitle:\"Confidential Stamp\" ppdTitle:\"Confidential\" marked:NO choice:2 of 3>");
        QTest::addRow("%s: last of four", cls.constData())
            << family << QByteArray("VELPageOption") << 3
            << QStringLiteral(" userTitle:\"Exception Pages\" ppdTitle:\"Exception\" marked:NO choice:4 of 4>");
        QTest::addRow("%s: option without a default", cls.constData())
            << family << QByteArray("VELFeedMode") << 1
            << QStringLiteral(" userTitle:\"Manual Feed\" ppdTitle:\"Manual\" marked:NO choice:2 of 2>");
    }
}

void HelpersTest::description()
{
    QFETCH(int, family);
    QFETCH(QByteArray, optionKeyword);
    QFETCH(int, index);
    QFETCH(QString, expectedAfterAddress);

    ppd_option_t* o = option(optionKeyword.constData());
    QVERIFY(o);
    auto record = recordOfClass(family, &o->choices[index]);
    const QString text = record->description();
    const QRegularExpression form(QStringLiteral("^<(\\w+) 0x([0-9a-f]+)(.*)$"));
    const QRegularExpressionMatch m = form.match(text);
    QVERIFY2(m.hasMatch(), qPrintable(text));
    QCOMPARE(m.captured(1), recordClassOf(family));
    bool ok = false;
    QCOMPARE(m.captured(2).toULongLong(&ok, 16), quint64(quintptr(record.get())));
    QVERIFY(ok);
    QCOMPARE(m.captured(3), expectedAfterAddress);
    // The log formats use the same text for "%@".
    QCOMPARE(PDEDescribe(record), text);
}

void HelpersTest::arrayFromPPDOption_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<QByteArray>("optionKeyword");
    QTest::addColumn<QStringList>("ppdTitles");
    QTest::addColumn<QStringList>("userTitles");

    const QList<QPair<int, QByteArray>> own = {{Advanced, "VELWatermarkOption"},
                                               {ManualDuplex, "VELManualDuplexOption"},
                                               {SecureRelease, "VELSecureReleaseOption"},
                                               {ManualMargin, "VELMarginFor"},
                                               {SpecialPage, "VELPageOption"}};
    const QMap<QByteArray, QPair<QStringList, QStringList>> expected = {
        {"VELWatermarkOption", {{"None", "Confidential", "Draft"}, {"No Watermark", "Confidential Stamp", "Draft Stamp"}}},
        {"VELManualDuplexOption",
         {{"None", "LongEdge", "ShortEdge"}, {"Off", "Turn Over on the Long Edge", "Turn Over on the Short Edge"}}},
        {"VELSecureReleaseOption", {{"None", "HoldForUser"}, {"Print Now", "Hold Until Released"}}},
        {"VELMarginFor", {{"None", "BindingMargin", "ImageShift"}, {"No Margin Change", "Binding Margin", "Image Shift"}}},
        {"VELPageOption",
         {{"None", "Cover", "Insert", "Exception"}, {"Off", "Covers", "Inserted Sheets", "Exception Pages"}}},
    };
    for (const auto& [family, keyword] : own)
        QTest::addRow("%s: %s", kFamilyNames[family], keyword.constData())
            << family << keyword << expected[keyword].first << expected[keyword].second;
    for (int family = Advanced; family <= SpecialPage; ++family)
        QTest::addRow("%s: option without choices", kFamilyNames[family])
            << family << QByteArray("VELReserved") << QStringList() << QStringList();
    QTest::addRow("%s: another panel's option", kFamilyNames[ManualDuplex])
        << int(ManualDuplex) << QByteArray("VELPageOption") << expected["VELPageOption"].first
        << expected["VELPageOption"].second;
}

void HelpersTest::arrayFromPPDOption()
{
    QFETCH(int, family);
    QFETCH(QByteArray, optionKeyword);
    QFETCH(QStringList, ppdTitles);
    QFETCH(QStringList, userTitles);

    ppd_option_t* o = option(optionKeyword.constData());
    QVERIFY(o);
    QCOMPARE(o->num_choices, int(ppdTitles.size()));
    const std::optional<MRPDEChoiceArray> array = arrayFor(family, o);
    QVERIFY(array.has_value());
    QCOMPARE(array->size(), ppdTitles.size());
    for (qsizetype i = 0; i < array->size(); ++i) {
        const std::shared_ptr<MRPDEChoice>& record = array->at(i);
        QVERIFY(record);
        // In PPD order, each over its own libcups choice.
        QCOMPARE(record->choice(), &o->choices[i]);
        QCOMPARE(record->ppdTitle(), ppdTitles[i]);
        QCOMPARE(record->userTitle(), userTitles[i]);
        const MRPDEChoice& object = *record;
        if (family <= SecureRelease)
            QVERIFY(typeid(object) == typeid(MRAdvancedPDEChoice));
        else
            QVERIFY(typeid(object) == typeid(MRPDEChoice));
        QVERIFY(record->description().startsWith(QLatin1Char('<') + recordClassOf(family) + QLatin1Char(' ')));
    }
    // A fresh list each time: the records are new, the choices the same.
    const std::optional<MRPDEChoiceArray> again = arrayFor(family, o);
    QVERIFY(again.has_value());
    QCOMPARE(again->size(), array->size());
    for (qsizetype i = 0; i < array->size(); ++i) {
        QVERIFY(again->at(i) != array->at(i));
        QCOMPARE(again->at(i)->choice(), array->at(i)->choice());
    }
}

void HelpersTest::nullOption_data()
{
    QTest::addColumn<int>("family");
    for (int family = Advanced; family <= SpecialPage; ++family)
        QTest::newRow(kFamilyNames[family]) << family;
}

void HelpersTest::nullOption()
{
    QFETCH(int, family);
    QVERIFY(!arrayFor(family, nullptr).has_value());
    QCOMPARE(findIn(family, nullptr, QString()), -1);
    QCOMPARE(findIn(family, nullptr, QStringLiteral("None")), -1);
    QVERIFY(titleIn(family, nullptr).isNull());
}

void HelpersTest::findChoiceForString_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<QByteArray>("optionKeyword");
    QTest::addColumn<bool>("nilKeyword");
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<int>("expected");  // position in the list, -1 for none

    QTest::newRow("Advanced Options: a keyword") << int(Advanced) << QByteArray("VELWatermarkOption") << false << "Draft" << 2;
    QTest::newRow("Advanced Options: nil gives the default") << int(Advanced) << QByteArray("VELWatermarkOption") << true << "" << 0;
    QTest::newRow("Advanced Options: case matters") << int(Advanced) << QByteArray("VELWatermarkOption") << false << "draft" << -1;
    QTest::newRow("Advanced Options: no such keyword") << int(Advanced) << QByteArray("VELWatermarkOption") << false << "Poster" << -1;
    QTest::newRow("Advanced Options: the user title is not a keyword")
        << int(Advanced) << QByteArray("VELWatermarkOption") << false << "Draft Stamp" << -1;
    QTest::newRow("Advanced Options: empty keyword is not nil")
        << int(Advanced) << QByteArray("VELWatermarkOption") << false << "" << -1;
    QTest::newRow("Advanced Options: keyword with trailing space")
        << int(Advanced) << QByteArray("VELWatermarkOption") << false << "Draft " << -1;
    QTest::newRow("ManaulD: a keyword") << int(ManualDuplex) << QByteArray("VELManualDuplexOption") << false << "ShortEdge" << 2;
    QTest::newRow("ManaulD: nil gives the default") << int(ManualDuplex) << QByteArray("VELManualDuplexOption") << true << "" << 0;
    QTest::newRow("PSS: a keyword") << int(SecureRelease) << QByteArray("VELSecureReleaseOption") << false << "HoldForUser" << 1;
    QTest::newRow("PSS: nil gives the default") << int(SecureRelease) << QByteArray("VELSecureReleaseOption") << true << "" << 0;
    QTest::newRow("ManualMargin: a keyword") << int(ManualMargin) << QByteArray("VELMarginFor") << false << "ImageShift" << 2;
    QTest::newRow("ManualMargin: nil gives the default") << int(ManualMargin) << QByteArray("VELMarginFor") << true << "" << 0;
    QTest::newRow("SpecialPage: a keyword") << int(SpecialPage) << QByteArray("VELPageOption") << false << "Exception" << 3;
    QTest::newRow("SpecialPage: nil gives the default") << int(SpecialPage) << QByteArray("VELPageOption") << true << "" << 0;
    for (int family = Advanced; family <= SpecialPage; ++family) {
        QTest::addRow("%s: nil, default matches no choice", kFamilyNames[family])
            << family << QByteArray("VELFeedMode") << true << "" << -1;
        QTest::addRow("%s: a keyword where the default matches no choice", kFamilyNames[family])
            << family << QByteArray("VELFeedMode") << false << "Manual" << 1;
        QTest::addRow("%s: nil, no choices", kFamilyNames[family])
            << family << QByteArray("VELReserved") << true << "" << -1;
        QTest::addRow("%s: the default's keyword, no choices", kFamilyNames[family])
            << family << QByteArray("VELReserved") << false << "Unknown" << -1;
    }
}

void HelpersTest::findChoiceForString()
{
    QFETCH(int, family);
    QFETCH(QByteArray, optionKeyword);
    QFETCH(bool, nilKeyword);
    QFETCH(QString, keyword);
    QFETCH(int, expected);

    ppd_option_t* o = option(optionKeyword.constData());
    QVERIFY(o);
    QCOMPARE(findIn(family, o, nilKeyword ? QString() : keyword), expected);
}

void HelpersTest::equalPPDTitlesFindTheFirstInPPDOrder_data()
{
    QTest::addColumn<int>("family");
    for (int family = Advanced; family <= SpecialPage; ++family)
        QTest::newRow(kFamilyNames[family]) << family;
}

void HelpersTest::equalPPDTitlesFindTheFirstInPPDOrder()
{
    QFETCH(int, family);

    // libcups keeps a choice keyword that a PPD repeats (cupstestppd refuses
    // such a file, so it is made here from the fixture): the page option gets
    // a second "Cover", after the first and before "Insert", and becomes the
    // default.
    QFile source(TestSupport::fixture(QStringLiteral("choices.ppd")));
    QVERIFY(source.open(QIODevice::ReadOnly));
    QByteArray text = source.readAll();
    const QByteArray firstCover = "*VELPageOption Cover/Covers: \"\"\n";
    QVERIFY(text.contains(firstCover));
    text.replace(firstCover, firstCover + "*VELPageOption Cover/Covers Again: \"\"\n");
    text.replace("*DefaultVELPageOption: None", "*DefaultVELPageOption: Cover");
    QTemporaryDir dir;
    QFile repeated(dir.filePath(QStringLiteral("repeated.ppd")));
    QVERIFY(repeated.open(QIODevice::WriteOnly));
    repeated.write(text);
    repeated.close();
    ppd_file_t* ppd = ppdOpenFile(qPrintable(repeated.fileName()));
    QVERIFY(ppd);
    auto closer = qScopeGuard([ppd] { ppdClose(ppd); });
    ppd_option_t* o = ppdFindOption(ppd, "VELPageOption");
    QVERIFY(o);
    QCOMPARE(o->num_choices, 5);
    QCOMPARE(QByteArray(o->choices[2].choice), QByteArray("Cover"));
    QCOMPARE(QByteArray(o->choices[2].text), QByteArray("Covers Again"));

    QCOMPARE(findIn(family, o, QStringLiteral("Cover")), 1);
    QCOMPARE(findIn(family, o, QString()), 1);
    QCOMPARE(findIn(family, o, QStringLiteral("Insert")), 3);
    if (family == SpecialPage) {
        const MRPDEChoiceArray array = SpecialPageArrayFromPPDOption(o).value();
        QCOMPARE(FindPPDIndex(QStringLiteral("Cover"), array), 1u);
        QCOMPARE(SpecialPageFindChoiceForString(QStringLiteral("Cover"), array)->userTitle(), QStringLiteral("Covers"));
    }
}

void HelpersTest::findPPDIndex_data()
{
    QTest::addColumn<QByteArray>("optionKeyword");  // empty: an empty list made by hand
    QTest::addColumn<bool>("nilKeyword");
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<quint32>("expected");

    QTest::newRow("empty list") << QByteArray() << false << "None" << 0xFFFFFFFFu;
    QTest::newRow("empty list, nil") << QByteArray() << true << "" << 0xFFFFFFFFu;
    QTest::newRow("option without choices") << QByteArray("VELReserved") << false << "Unknown" << 0xFFFFFFFFu;
    QTest::newRow("first") << QByteArray("VELPageOption") << false << "None" << 0u;
    QTest::newRow("last") << QByteArray("VELPageOption") << false << "Exception" << 3u;
    QTest::newRow("case matters") << QByteArray("VELPageOption") << false << "exception" << 0xFFFFFFFFu;
    QTest::newRow("user title is not a keyword") << QByteArray("VELPageOption") << false << "Covers" << 0xFFFFFFFFu;
    QTest::newRow("nil is no keyword") << QByteArray("VELPageOption") << true << "" << 0xFFFFFFFFu;
    QTest::newRow("empty is no keyword") << QByteArray("VELPageOption") << false << "" << 0xFFFFFFFFu;
    QTest::newRow("default matches no choice") << QByteArray("VELFeedMode") << false << "Manual" << 1u;
}

void HelpersTest::findPPDIndex()
{
    QFETCH(QByteArray, optionKeyword);
    QFETCH(bool, nilKeyword);
    QFETCH(QString, keyword);
    QFETCH(quint32, expected);

    MRPDEChoiceArray array;
    if (!optionKeyword.isEmpty()) {
        ppd_option_t* o = option(optionKeyword.constData());
        QVERIFY(o);
        array = SpecialPageArrayFromPPDOption(o).value();
    }
    QCOMPARE(FindPPDIndex(nilKeyword ? QString() : keyword, array), expected);
}

void HelpersTest::initPopUpFromArray_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<QByteArray>("optionKeyword");
    QTest::addColumn<QString>("language");  // empty: no bundle
    QTest::addColumn<QStringList>("titles");

    // Without a bundle: the PPD's own texts.
    QTest::newRow("Advanced Options, no bundle") << int(Advanced) << QByteArray("VELWatermarkOption") << ""
                                                 << QStringList{"No Watermark", "Confidential Stamp", "Draft Stamp"};
    QTest::newRow("SpecialPage, no bundle") << int(SpecialPage) << QByteArray("VELPageOption") << ""
                                            << QStringList{"Off", "Covers", "Inserted Sheets", "Exception Pages"};
    // With the bundle: each panel's table.
    QTest::newRow("Advanced Options, de") << int(Advanced) << QByteArray("VELWatermarkOption") << "de"
                                          << QStringList{"Keine", "Vertraulich", "Entwurf"};
    QTest::newRow("Advanced Options, en") << int(Advanced) << QByteArray("VELWatermarkOption") << "en"
                                          << QStringList{"None", "Confidential", "Draft"};
    QTest::newRow("ManaulD, de") << int(ManualDuplex) << QByteArray("VELManualDuplexOption") << "de"
                                 << QStringList{"Keine", "Bindung an der langen Kante", "Bindung an der kurzen Kante"};
    QTest::newRow("ManaulD, ja") << int(ManualDuplex) << QByteArray("VELManualDuplexOption") << "ja"
                                 << QStringList{"なし", "長辺とじ", "短辺とじ"};
    QTest::newRow("PSS, fr") << int(SecureRelease) << QByteArray("VELSecureReleaseOption") << "fr"
                             << QStringList{"Aucun", "Retenir jusqu'à la libération"};
    QTest::newRow("ManualMargin, de") << int(ManualMargin) << QByteArray("VELMarginFor") << "de"
                                      << QStringList{"Kein Rand", "Bindungsrand", "Bildverschiebung"};
    QTest::newRow("ManualMargin, en") << int(ManualMargin) << QByteArray("VELMarginFor") << "en"
                                      << QStringList{"No Margin", "Binding Margin", "Image Shift"};
    QTest::newRow("SpecialPage, ja") << int(SpecialPage) << QByteArray("VELPageOption") << "ja"
                                     << QStringList{"特殊ページなし", "表紙", "合紙", "例外ページ"};
    QTest::newRow("SpecialPage, fr") << int(SpecialPage) << QByteArray("VELPageOption") << "fr"
                                     << QStringList{"Aucune page spéciale", "Couvertures", "Intercalaires", "Pages d'exception"};
    // The table follows the panel, not the option: "None" is in all three
    // tables with different translations, and a keyword missing from the
    // panel's table shows as itself.
    QTest::newRow("ManualMargin on the watermark option, de") << int(ManualMargin) << QByteArray("VELWatermarkOption") << "de"
                                                              << QStringList{"Kein Rand", "Confidential", "Draft"};
    QTest::newRow("SpecialPage on the watermark option, de") << int(SpecialPage) << QByteArray("VELWatermarkOption") << "de"
                                                             << QStringList{"Keine Sonderseiten", "Confidential", "Draft"};
    QTest::newRow("PSS on the page option, de") << int(SecureRelease) << QByteArray("VELPageOption") << "de"
                                                << QStringList{"Keine", "Cover", "Insert", "Exception"};
    QTest::newRow("ManaulD on the margin option, fr") << int(ManualDuplex) << QByteArray("VELMarginFor") << "fr"
                                                      << QStringList{"Aucun", "BindingMargin", "ImageShift"};
    QTest::newRow("Advanced Options on the page option, en") << int(Advanced) << QByteArray("VELPageOption") << "en"
                                                             << QStringList{"None", "Cover", "Insert", "Exception"};
    for (int family = Advanced; family <= SpecialPage; ++family) {
        QTest::addRow("%s, no choices, de", kFamilyNames[family]) << family << QByteArray("VELReserved") << "de" << QStringList();
        QTest::addRow("%s, no choices, no bundle", kFamilyNames[family]) << family << QByteArray("VELReserved") << "" << QStringList();
    }
}

void HelpersTest::initPopUpFromArray()
{
    QFETCH(int, family);
    QFETCH(QByteArray, optionKeyword);
    QFETCH(QString, language);
    QFETCH(QStringList, titles);

    ppd_option_t* o = option(optionKeyword.constData());
    QVERIFY(o);
    if (!language.isEmpty()) {
        m_bundle->setLanguage(language);
        QCOMPARE(m_bundle->language(), language);
    }
    // A pop-up that still shows an earlier list.
    QComboBox popUp;
    popUp.addItems({QStringLiteral("earlier 1"), QStringLiteral("earlier 2")});
    popUp.setCurrentIndex(1);

    const MRPDEChoiceArray array = fillIn(family, &popUp, o, language.isEmpty() ? nullptr : m_bundle.get());
    QStringList shown;
    for (int i = 0; i < popUp.count(); ++i)
        shown << popUp.itemText(i);
    QCOMPARE(shown, titles);
    QCOMPARE(popUp.count(), int(array.size()));
    if (titles.isEmpty()) {
        QCOMPARE(popUp.currentIndex(), -1);
        QCOMPARE(popUp.currentText(), QString());
    }
    // Each item carries its record, which a panel gets back as its own class.
    for (int i = 0; i < popUp.count(); ++i) {
        QCOMPARE(RepresentedChoiceOfItem(&popUp, i), array[i]);
        QCOMPARE(RepresentedChoiceOfItem(&popUp, i)->choice(), &o->choices[i]);
        if (family <= SecureRelease) {
            QCOMPARE(RepresentedChoiceOfItem<MRAdvancedPDEChoice>(&popUp, i), array[i]);
        } else {
            QVERIFY(!RepresentedChoiceOfItem<MRAdvancedPDEChoice>(&popUp, i));
            QCOMPARE(RepresentedChoiceOfItem<MRPDEChoice>(&popUp, i), array[i]);
        }
    }
    QVERIFY(!RepresentedChoiceOfItem(&popUp, popUp.count()));
    QVERIFY(!RepresentedChoiceOfItem(&popUp, -1));
}

void HelpersTest::popUpItemsOfRecordsWithoutTitles()
{
    // A choice whose text is not UTF-8 still gets its item, with an empty
    // title; with the bundle its keyword is looked up as usual.
    HandMadeOption made("VELWatermarkOption", "None", "Watermark",
                        {{"None", "Kein \xe9"}, {"Draft", "Entwurf"}});
    const MRAdvancedPDEChoiceArray array = ArrayFromPPDOption(&made.option).value();
    QComboBox popUp;
    PDELogCapture capture;
    InitPopUpFromArray(&popUp, array, nullptr);
    QCOMPARE(popUp.count(), 2);
    QCOMPARE(popUp.itemText(0), QString());
    QCOMPARE(popUp.itemText(1), QStringLiteral("Entwurf"));
    QCOMPARE(capture.count(kUserTitleFailure), 1);
    QCOMPARE(RepresentedChoiceOfItem<MRAdvancedPDEChoice>(&popUp, 0), array[0]);

    m_bundle->setLanguage(QStringLiteral("de"));
    InitPopUpFromArray(&popUp, array, m_bundle.get());
    QCOMPARE(popUp.count(), 2);
    QCOMPARE(popUp.itemText(0), QStringLiteral("Keine"));
    QCOMPARE(popUp.itemText(1), QStringLiteral("Entwurf"));
    // The table is not consulted for the PPD's own text: still one failure.
    QCOMPARE(capture.count(kUserTitleFailure), 1);

    // No pop-up: nothing happens.
    InitPopUpFromArray(nullptr, array, m_bundle.get());
}

void HelpersTest::createOptionTitle_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<QByteArray>("optionKeyword");  // empty: the hand-made option
    QTest::addColumn<QByteArray>("text");           // of the hand-made option
    QTest::addColumn<bool>("nullTitle");
    QTest::addColumn<QString>("title");

    const QList<QPair<int, QByteArray>> own = {{Advanced, "VELWatermarkOption"},
                                               {ManualDuplex, "VELManualDuplexOption"},
                                               {SecureRelease, "VELSecureReleaseOption"},
                                               {ManualMargin, "VELMarginFor"},
                                               {SpecialPage, "VELPageOption"}};
    const QMap<QByteArray, QString> titles = {{"VELWatermarkOption", "Watermark"},
                                              {"VELManualDuplexOption", "Manual Duplex"},
                                              {"VELSecureReleaseOption", "Secure Release"},
                                              {"VELMarginFor", "Margin For"},
                                              {"VELPageOption", "Special Pages"}};
    for (const auto& [family, keyword] : own)
        QTest::addRow("%s: %s", kFamilyNames[family], keyword.constData())
            << family << keyword << QByteArray() << false << titles[keyword];
    for (int family = Advanced; family <= SpecialPage; ++family) {
        QTest::addRow("%s: UTF-8 text", kFamilyNames[family])
            << family << QByteArray() << QByteArray("Sonderseiten \xe2\x80\x93 R\xc3\xbc" "ckseite") << false
            << QStringLiteral("Sonderseiten \u2013 R\u00fcckseite");
        QTest::addRow("%s: text that is not UTF-8", kFamilyNames[family])
            << family << QByteArray() << QByteArray("R\xfc" "ckseite") << true << QString();
        QTest::addRow("%s: empty text", kFamilyNames[family])
            << family << QByteArray() << QByteArray() << false << QString();
    }
}

void HelpersTest::createOptionTitle()
{
    QFETCH(int, family);
    QFETCH(QByteArray, optionKeyword);
    QFETCH(QByteArray, text);
    QFETCH(bool, nullTitle);
    QFETCH(QString, title);

    HandMadeOption made("VELOption", "A", text, {{"A", "A"}});
    ppd_option_t* o = optionKeyword.isEmpty() ? &made.option : option(optionKeyword.constData());
    QVERIFY(o);
    const QString optionTitle = titleIn(family, o);
    QCOMPARE(optionTitle.isNull(), nullTitle);
    QCOMPARE(optionTitle, title);
}

void HelpersTest::filteredNumberFromString_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasNumber");
    QTest::addColumn<int>("number");

    QTest::newRow("digits first") << "12abc34" << true << 12;
    QTest::newRow("letters first") << "ab7" << true << 7;
    QTest::newRow("no digit at all") << "abc" << true << 0;
    QTest::newRow("no digit, trailing space") << "abc " << true << 0;
    QTest::newRow("a sign is not a digit") << "-5" << true << 5;
    QTest::newRow("plus sign") << "+12" << true << 12;
    QTest::newRow("empty") << "" << false << 0;
    QTest::newRow("white space only") << " \t\n " << false << 0;
    QTest::newRow("leading white space") << "  42" << true << 42;
    QTest::newRow("leading tabs and new lines") << "\t\n 8x" << true << 8;
    QTest::newRow("leading no-break space") << "\u00a09" << true << 9;
    QTest::newRow("space inside the prefix") << "ab 7" << true << 7;
    QTest::newRow("words around the number") << "No. 5 copies" << true << 5;
    QTest::newRow("second run ignored") << "x 12 y 34" << true << 12;
    QTest::newRow("decimal point ends the run") << "3.14" << true << 3;
    QTest::newRow("leading zeros") << "007" << true << 7;
    QTest::newRow("zero") << "0" << true << 0;
    QTest::newRow("largest 32-bit value") << "2147483647" << true << std::numeric_limits<int>::max();
    QTest::newRow("one past the largest") << "2147483648" << true << std::numeric_limits<int>::max();
    QTest::newRow("far past the largest") << "id99999999999999999999999" << true << std::numeric_limits<int>::max();
    QTest::newRow("only 0-9 are digits: Arabic-Indic") << "\u0661\u0662" << true << 0;
    QTest::newRow("only 0-9 are digits: full width") << "\uff11\uff12" << true << 0;
    QTest::newRow("full width before ASCII digits") << "\uff11 4" << true << 4;
}

void HelpersTest::filteredNumberFromString()
{
    QFETCH(QString, text);
    QFETCH(bool, hasNumber);
    QFETCH(int, number);

    const std::optional<int> result = ::filteredNumberFromString(text);
    QCOMPARE(result.has_value(), hasNumber);
    if (hasNumber)
        QCOMPARE(*result, number);
}

void HelpersTest::stringByRemovingCharactersInSet_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("setKind");  // "members", "digits", "non-digits", "nil", "empty"
    QTest::addColumn<QString>("members");
    QTest::addColumn<QString>("expected");

    QTest::newRow("digits removed") << "12ab34" << "digits" << "" << "ab";
    QTest::newRow("all but digits removed") << "1a 2-b3" << "non-digits" << "" << "123";
    QTest::newRow("separators removed") << "a-b-c" << "members" << "-" << "abc";
    QTest::newRow("several members") << "a b\tc,d" << "members" << " \t," << "abcd";
    QTest::newRow("every character removed") << "aaa" << "members" << "a" << "";
    QTest::newRow("nothing to remove") << "abc" << "members" << "xyz" << "abc";
    QTest::newRow("case matters") << "AbA" << "members" << "a" << "AbA";
    QTest::newRow("non-ASCII member") << "Grüße" << "members" << "ü" << "Grße";
    QTest::newRow("empty text") << "" << "digits" << "" << "";
    QTest::newRow("nil set") << "1 2-3" << "nil" << "" << "1 2-3";
    QTest::newRow("empty set") << "1 2-3" << "empty" << "" << "1 2-3";
}

void HelpersTest::stringByRemovingCharactersInSet()
{
    QFETCH(QString, text);
    QFETCH(QString, setKind);
    QFETCH(QString, members);
    QFETCH(QString, expected);

    PDECharacterSet set;
    if (setKind == QLatin1String("members"))
        set = PDECharacterSet::fromString(members);
    else if (setKind == QLatin1String("digits"))
        set = PDECharacterSet::decimalDigits();
    else if (setKind == QLatin1String("non-digits"))
        set = PDECharacterSet::decimalDigits().inverted();
    else if (setKind == QLatin1String("empty"))
        set = PDECharacterSet::fromString(QString());
    const QString original = text;
    const QString result = ::stringByRemovingCharactersInSet(text, setKind == QLatin1String("nil") ? nullptr : &set);
    QCOMPARE(result, expected);
    QCOMPARE(text, original);
}

QTEST_MAIN(HelpersTest)
#include "tst_helpers.moc"
