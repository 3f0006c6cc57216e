#include "columns.h"

#include <embedded/embeddedbackend.h>
#include <kiv/baseformatter.h>

#include <memory>

/// Formatters as the platform returns them.
class FormattersTest : public QObject
{
    Q_OBJECT

private:
    kiv::embedded::EmbeddedBackend m_backend;

private Q_SLOTS:
    void texts_data()
    {
        addColumns<QString, QVariant, int, QString, QString>();
        const QString micro(QChar(0xb5));
        QTest::newRow("decimal") << "decimal" << QVariant(12345.678) << -1 << "12,345.678" << "";
        QTest::newRow("decimal, rounded") << "decimal:V" << QVariant(0.005) << 1 << "0.0 V" << "V";
        QTest::newRow("scientific") << "scientific" << QVariant(12345.678) << 2 << "1.23e+04" << "";
        QTest::newRow("kilo") << "frequency" << QVariant(12345.678) << -1 << "12.346 kHz" << "kHz";
        QTest::newRow("giga") << "bitrate" << QVariant(10e9) << 0 << "10 Gbit/s" << "Gbit/s";
        QTest::newRow("micro") << "si:s" << QVariant(-0.00000512) << 2 << "-5.12 " + micro + "s" << micro + "s";
        QTest::newRow("rounds up to the next prefix") << "distance" << QVariant(999.9996) << 3 << "1.000 km" << "km";
        QTest::newRow("just below it") << "distance" << QVariant(999.9994) << 3 << "999.999 m" << "m";
        QTest::newRow("nothing") << "distance" << QVariant(0.0) << 1 << "0.0 m" << "m";
        QTest::newRow("below every prefix") << "si" << QVariant(1e-20) << 5 << "0.00001 f" << "f";
        QTest::newRow("above every prefix") << "si" << QVariant(5e21) << 0 << "5,000 E" << "E";
        QTest::newRow("dB") << "dB" << QVariant(-3.456) << -1 << "-3.46 dB" << "dB";
        QTest::newRow("dBm") << "dBm" << QVariant(1) << 1 << "1.0 dBm" << "dBm";
        QTest::newRow("percent") << "percent" << QVariant(99.999) << -1 << "100.00 %" << "%";
        QTest::newRow("duration") << "duration" << QVariant(7) << -1 << "0:00:07" << "";
        QTest::newRow("long duration") << "duration" << QVariant(445506.25) << -1 << "123:45:06.250" << "";
        QTest::newRow("duration that rounds up") << "duration" << QVariant(59.9996) << -1 << "0:01:00.000" << "";
        QTest::newRow("before") << "duration" << QVariant(-61) << -1 << "-0:01:01" << "";
        QTest::newRow("text that is a number") << "dB" << QVariant("2.5") << 1 << "2.5 dB" << "dB";
        QTest::newRow("no number") << "dB" << QVariant("off") << 1 << "off" << "dB";
        QTest::newRow("no value") << "frequency" << QVariant() << 1 << "" << "Hz";
        QTest::newRow("not a number") << "frequency" << QVariant(qQNaN()) << 1 << "nan" << "Hz";
        QTest::newRow("huge precision") << "decimal" << QVariant(0.5) << 2'000'000'000 << "0.500000000000000" << "";
    }
    void texts()
    {
        const auto [name, value, precision, text, unit] = currentRow<QString, QVariant, int, QString, QString>();
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        const std::unique_ptr<BaseFormatter> formatter(getFormatter(name));
        QVERIFY(formatter);
        formatter->setPrecision(precision);
        formatter->setValue(value);
        QCOMPARE(formatter->format(value), text);
        QCOMPARE(formatter->getUnitString(), unit);
        formatter->setShowUnits(false);
        QVERIFY(unit.isEmpty() || !formatter->format(value).endsWith(unit));
    }

    void usersLocale()
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        const std::unique_ptr<BaseFormatter> formatter(getFormatter("dB"));
        QCOMPARE(formatter->format(-1234.5), QString("-1.234,50 dB"));
        const std::unique_ptr<BaseFormatter> duration(getFormatter("duration"));
        QCOMPARE(duration->format(1.5), QString("0:00:01,500"));
    }

    void eachCallerGetsItsOwn()
    {
        const std::unique_ptr<BaseFormatter> first(getFormatter("dB"));
        const std::unique_ptr<BaseFormatter> second(getFormatter("dB"));
        QVERIFY(first != second);
        QTest::ignoreMessage(QtWarningMsg, "There is no formatter \"unknown\": values are shown without one.");
        QVERIFY(!getFormatter("unknown"));
        QVERIFY(!getFormatter(""));
        QVERIFY(!getFormatter("dBm:V"));
    }
};

QTEST_GUILESS_MAIN(FormattersTest)
#include "tst_formatters.moc"
