#include "columns.h"
#include "files.h"

#include "service/forgivingvalidator.h"
#include "service/inputrange_p.h"
#include "service/inputvalidator_p.h"
#include "service/kivdata.h"
#include "service/valuetext_p.h"

#include <kiv/baseformatter.h>

#include <QDoubleValidator>
#include <QIntValidator>

using uiutils::InputRange;
using uiutils::InputRule;

namespace {

class Tagger final : public BaseFormatter
{
public:
    QString format(const QVariant& value) const override { return "[" + value.toString() + "]"; }
    QString getUnitString() const override { return "dB"; }
};

QValidator::State stateOf(QValidator* validator, QString text)
{
    int position = 0;
    return validator->validate(text, position);
}

} // namespace

class InputsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale::c()); }

    void rangeTexts_data()
    {
        addColumns<unsigned, QVariant, QVariant, QString, bool, QString>();
        for (unsigned type : {8u, 9u, 10u, 11u, 12u, 17u, 18u, 19u}) {
            QTest::addRow("type %u without a minimum", type) << type << QVariant() << QVariant(5) << "int" << true << "";
            QTest::addRow("type %u without a maximum", type) << type << QVariant(5) << QVariant() << "int" << false << "";
        }
        for (const QStringList& row : tableIn("/inputs/rangetexts.txt")) {
            const auto limit = [&](int column) {
                return QJsonDocument::fromJson("[" + row.value(column).toUtf8() + "]").array().at(0).toVariant();
            };
            QTest::newRow(qPrintable(row.at(0))) << row.value(2).toUInt() << limit(3) << limit(4) << row.value(5)
                                                 << row.value(6).startsWith("with units") << row.value(1);
        }
    }
    void rangeTexts()
    {
        const auto [inputType, minimum, maximum, type, formatted, text]
                = currentRow<unsigned, QVariant, QVariant, QString, bool, QString>();
        const Tagger formatter;
        InputRange range;
        range.minimum = minimum;
        range.maximum = maximum;
        range.inputType = inputType;
        range.type = type;
        range.precision = 2;
        range.formatter = formatted ? &formatter : nullptr;
        QCOMPARE(uiutils::rangeDescription(range), text);
    }

    void numbersAsTexts()
    {
        QCOMPARE(uiutils::lengthExpression(8, 32), QString(".{8,32}"));
        QCOMPARE(uiutils::lengthExpression("8", 32.0), QString(".{8,32}"));
        QCOMPARE(uiutils::lengthExpression(QVariant(), 32), QString(".*"));
        QCOMPARE(uiutils::lengthExpression(8, "many"), QString(".*"));
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        QCOMPARE(uiutils::fixedPointText(12345.678, 2), QString("12345,68"));
        QLocale::setDefault(QLocale::c());
        QVERIFY(uiutils::fixedPointText(0.1, 2'000'000'000).size() < 400);
    }

    /// Only if a class escape precedes it, and no closing bracket follows.
    void escapedHyphens()
    {
        const std::pair<const char*, const char*> rows[] {{R"([\d-.])", R"([\d\-.])"},
                {R"(^[\w-.]+@[\w-_.]+$)", R"(^[\w\-.]+@[\w\-_.]+$)"}, {R"([\d-])", R"([\d-])"},
                {R"([a-z\d-x])", R"([a-z\d\-x])"}, {R"(\d-.)", R"(\d-.)"}, {R"([\\d-f])", R"([\\d-f])"},
                {R"([]\d-x])", R"([]\d\-x])"}, {R"([^\s-x])", R"([^\s\-x])"},
                {R"([[:alpha:]\d-.])", R"([[:alpha:]\d\-.])"}, {R"(\[\d-.)", R"(\[\d-.)"},
                {R"([\p{L}-.])", R"([\p{L}\-.])"}};
        for (const auto& [pattern, repaired] : rows)
            QCOMPARE(uiutils::withEscapedHyphens(pattern), QString(repaired));
    }

    void expressions_data()
    {
        addColumns<QString, QString, QString>();
        QTest::newRow("plain") << "[a-z]{2}" << "ab" << "abc";
        QTest::newRow("repaired") << R"([\d-.]+)" << "1-2.3" << "a";
        QTest::newRow("beyond repair") << "[unclosed" << "anything\nat all" << "";
        QTest::newRow("reversed lengths") << ".{8,2}" << "abc" << "";
        QTest::newRow("lengths beyond the engine") << ".{0,100000}" << "abc" << "";
        QTest::newRow("a comment to the end") << "(?x)[a-z]+ # a word" << "123" << "";
        QTest::newRow("only at the very beginning") << "(*UTF)[a-z]+" << "123" << "";
        QTest::newRow("extended") << "(?x) [a-z] +" << "abc" << "123";
        QTest::newRow("negative lengths") << ".{-5,10}" << "abc" << "";
        QTest::newRow("letters of any script") << R"(\w+)" << QString::fromUtf8("žлό") << "a b";
        const QString marked = QString::fromUtf8("नमस्ते") + "e" + QChar(0x301);
        QTest::newRow("marks of letters") << R"(\w+\[[^]:[:alpha:]][\w-.]+\W)" << marked + "[1" + marked + "-." << marked;
        QTest::newRow("quoted") << R"(\Q\w\E)" << R"(\w)" << "w";
    }
    void expressions()
    {
        const auto [pattern, accepted, refused] = currentRow<QString, QString, QString>();
        InputRule rule;
        rule.type = "std::string";
        rule.regex = pattern;
        QObject owner;
        QValidator* validator = uiutils::createValidator(rule, &owner);
        QCOMPARE(stateOf(validator, accepted), QValidator::Acceptable);
        QVERIFY(refused.isEmpty() || stateOf(validator, refused) != QValidator::Acceptable);
    }

    void unusableExpressionsAreLoggedOnce()
    {
        static int warnings = 0;
        const QtMessageHandler before = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
            warnings += text.contains("\"(once\" of an item cannot be used");
        });
        uiutils::inputExpression("(once");
        uiutils::inputExpression("(once");
        qInstallMessageHandler(before);
        QCOMPARE(warnings, 1);
    }

    void anEmptyEntryIsNeverInvalid()
    {
        ForgivingValidator validator(QRegularExpression("[1-9][0-9]"));
        QCOMPARE(validator.validate("", 0), ForgivingValidator::Intermediate);
        QCOMPARE(validator.validate("1", 1), ForgivingValidator::Intermediate);
        QCOMPARE(validator.validate("12", 2), ForgivingValidator::Acceptable);
        QCOMPARE(validator.validate("x", 1), ForgivingValidator::Invalid);
        QCOMPARE(ForgivingValidator(QRegularExpression(".*")).validate("", 0), ForgivingValidator::Acceptable);
        // QML calls the invokable, and a derived class can change it.
        ForgivingValidator::ValidatorState state = ForgivingValidator::Invalid;
        QVERIFY(QMetaObject::invokeMethod(&validator, "validate", Q_RETURN_ARG(ForgivingValidator::ValidatorState, state),
                Q_ARG(QString, "12"), Q_ARG(int, 2)));
        QCOMPARE(state, ForgivingValidator::Acceptable);
    }

    void numbers_data()
    {
        addColumns<QString, QVariant, QVariant, double, double>();
        QTest::newRow("int") << "int" << QVariant(-3) << QVariant("7") << -3.0 << 7.0;
        QTest::newRow("no range") << "int" << QVariant() << QVariant("many") << 0.0 << 0.0;
        QTest::newRow("beyond int") << "uint" << QVariant(0) << QVariant(4294967295.0) << 0.0 << 2147483647.0;
        QTest::newRow("nan") << "int" << QVariant(qQNaN()) << QVariant(qInf()) << 0.0 << 2147483647.0;
        QTest::newRow("real") << "double" << QVariant(0.25) << QVariant(2) << 0.25 << 2.0;
        QTest::newRow("real nan") << "double" << QVariant(qQNaN()) << QVariant() << 0.0 << 0.0;
        QTest::newRow("untyped") << "" << QVariant(1) << QVariant(2) << 1.0 << 2.0;
    }
    void numbers()
    {
        const auto [type, minimum, maximum, bottom, top] = currentRow<QString, QVariant, QVariant, double, double>();
        InputRule rule;
        rule.type = type;
        rule.minimum = minimum;
        rule.maximum = maximum;
        rule.precision = 2'000'000'000;
        QObject owner;
        QValidator* validator = uiutils::createValidator(rule, &owner);
        QCOMPARE(validator->property("bottom").toDouble(), bottom);
        QCOMPARE(validator->property("top").toDouble(), top);
        auto* real = qobject_cast<QDoubleValidator*>(validator);
        QCOMPARE(real != nullptr, type == "double");
        QVERIFY(!real || (real->notation() == QDoubleValidator::StandardNotation && real->decimals() == 2'000'000'000));
    }
};

QTEST_GUILESS_MAIN(InputsTest)
#include "tst_inputs.moc"
