// The validating formatters and text fields of the standalone panels.
#include "MRAngleFormatter.h"
#include "MRBookletGutterTextField.h"
#include "MRFontSizeFormatter.h"
#include "MRFontSizeTextField.h"
#include "MRGutterFormatter.h"
#include "MRMessageAngleField.h"
#include "MRMessageFormatter.h"
#include "MROverlapFormatter.h"
#include "MROverlapTextField.h"
#include "MRSecureIDFormatter.h"
#include "MRSheetPerSetFormatter.h"
#include "MRSheetPerSetTextField.h"
#include "PDEStepper.h"
#include "TestSupport.h"

#include <memory>

namespace {
std::unique_ptr<MRFormatter> formatter(const QString& name, bool metric)
{
    if (name == "angle") return std::make_unique<MRAngleFormatter>();
    if (name == "size") return std::make_unique<MRFontSizeFormatter>();
    if (name == "gutter") return std::make_unique<MRGutterFormatter>(metric, nullptr);
    if (name == "overlap") return std::make_unique<MROverlapFormatter>(metric, nullptr);
    if (name == "message") return std::make_unique<MRMessageFormatter>();
    if (name == "sheets") return std::make_unique<MRSheetPerSetFormatter>();
    return std::make_unique<MRSecureIDFormatter>();
}

std::unique_ptr<MRValidatingTextField> field(const QString& name, bool metric)
{
    if (name == "angle") return std::make_unique<MRMessageAngleField>();
    if (name == "size") return std::make_unique<MRFontSizeTextField>();
    if (name == "sheets") {
        auto f = std::make_unique<MRSheetPerSetTextField>();
        f->setMaximumPerSet(QStringLiteral("10"));
        return f;
    }
    if (name == "gutter") {
        auto f = std::make_unique<MRBookletGutterTextField>();
        f->setMetric(metric);
        return f;
    }
    auto f = std::make_unique<MROverlapTextField>();
    f->setMetric(metric);
    return f;
}
}

class ValidatorsTest : public QObject {
    Q_OBJECT

private slots:
    void formatters_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("metric");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("accepted");
        const QString max = QString(256, QLatin1Char('x'));
        const struct { const char* tag; const char* name; bool metric; QString text; bool accepted; } rows[] = {
            {"angle out of range while typing", "angle", false, "999", true},
            {"angle letter", "angle", false, "9a", false},
            {"angle inner minus", "angle", false, "1-", false},
            {"angle decimal", "angle", false, "4.5", false},
            {"angle four characters", "angle", false, "-100", false},
            {"size empty", "size", false, "", true},
            {"size 401", "size", false, "401", false},
            {"size letter", "size", false, "12a", false},
            {"gutter inch", "gutter", false, "0.98", true},
            {"gutter inch fifth character", "gutter", false, "0.985", false},
            {"gutter inch letter", "gutter", false, "1a", false},
            {"gutter mm", "gutter", true, "25", true},
            {"gutter mm third digit", "gutter", true, "250", false},
            {"overlap inch", "overlap", false, "1.00", true},
            {"overlap mm point", "overlap", true, "0.1", false},
            {"message 256", "message", false, max, true},
            {"message 257", "message", false, max + "x", false},
            {"message hostile", "message", false, "a,b'c\t|q*u&t", true},
            {"message with a wire marker", "message", false, "a,b'c\t|q*u&tn|", false},
            {"sheets fourth digit", "sheets", false, "1000", false},
            {"sheets decimal", "sheets", false, "1.5", false},
            {"id empty", "id", false, "", true},
            {"id letters and digits", "id", false, "abcXYZ019", true},
            {"id marks", "id", false, "`-~!#$%&()_{}'^.", true},
            {"id latin-1 letter", "id", false, QString::fromUtf8("\xc3\xa9"), false},
            {"id not latin-1", "id", false, QString::fromUtf8("\xe6\x97\xa5"), false},
        };
        for (const auto& r : rows)
            QTest::newRow(r.tag) << r.name << r.metric << r.text << r.accepted;
    }
    void formatters()
    {
        QFETCH(QString, text);
        int pos = int(text.size());
        QTEST(formatter(cell<QString>("name"), cell<bool>("metric"))->validate(text, pos) == QValidator::Acceptable, "accepted");
    }

    // Typed keys go through the formatter; the correction comes when editing
    // ends, and the stepper follows.
    void fields_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("metric");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<int>("stepper");
        QTest::newRow("angle lone minus") << "angle" << false << "-" << "0" << 0;
        QTest::newRow("angle -95") << "angle" << false << "-95" << "-90" << -90;
        QTest::newRow("angle 999") << "angle" << false << "999" << "90" << 90;
        QTest::newRow("size 5") << "size" << false << "5" << "8" << 8;
        QTest::newRow("size fourth digit refused") << "size" << false << "4000" << "400" << 400;
        QTest::newRow("sheets above maximum") << "sheets" << false << "12" << "10" << 10;
        QTest::newRow("sheets zero") << "sheets" << false << "0" << "1" << 1;
        QTest::newRow("gutter inch limited while typing") << "gutter" << false << "0.99" << "0.98" << 98;
        QTest::newRow("gutter mm") << "gutter" << true << "30" << "25" << 25;
        QTest::newRow("gutter mm point refused") << "gutter" << true << "1.5" << "15" << 15;
        QTest::newRow("overlap inch") << "overlap" << false << "1.5" << "1.00" << 100;
        QTest::newRow("overlap mm") << "overlap" << true << "26" << "25" << 25;
    }
    // The leading number of a text, as fields and PPD limits are read.
    void leadingNumbers_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("whole");
        QTest::addColumn<double>("decimal");
        QTest::newRow("plain") << "12" << 12 << 12.0;
        QTest::newRow("spaces and sign") << "  -7 " << -7 << -7.0;
        QTest::newRow("trailing words") << "8 characters" << 8 << 8.0;
        QTest::newRow("fraction") << "0.75in" << 0 << 0.75;
        QTest::newRow("point first") << "-.5" << 0 << -0.5;
        QTest::newRow("point only") << "." << 0 << 0.0;
        QTest::newRow("no number") << "abc" << 0 << 0.0;
        QTest::newRow("above int") << "99999999999" << std::numeric_limits<int>::max() << 99999999999.0;
        QTest::newRow("below int") << "-99999999999" << std::numeric_limits<int>::min() << -99999999999.0;
        QTest::newRow("not ASCII digits") << "٣" << 0 << 0.0;
    }
    void leadingNumbers()
    {
        QTEST(MRFormatter::intValue(cell<QString>("text")), "whole");
        QTEST(MRFormatter::doubleValue(cell<QString>("text")), "decimal");
    }
    void fields()
    {
        QFETCH(QString, name);
        QFETCH(bool, metric);
        auto f = field(name, metric);
        PDEStepper companion;
        companion.setRange(-1000, 1000);
        const bool hundredths = !metric && (name == "gutter" || name == "overlap");
        f->setCompanion(&companion, hundredths ? 100 : 1);
        f->setText(QStringLiteral("1"));
        f->show();
        f->setFocus();
        f->selectAll();
        QTest::keyClicks(f.get(), cell<QString>("typed"));
        QTest::keyClick(f.get(), Qt::Key_Return);
        QTEST(f->text(), "shown");
        QTEST(companion.value(), "stepper");
    }
};

QTEST_MAIN(ValidatorsTest)
#include "tst_validators.moc"
