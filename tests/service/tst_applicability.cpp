#include "columns.h"
#include "recordedservice.h"

#include "service/applicability_p.h"
#include "service/kivdata.h"
#include "service/manifest.h"

#include <QQmlContext>
#include <QQmlEngine>

#include <cstdio>
#include <memory>
#include <unistd.h>

namespace {

/// Collects standard output from its construction to text().
class CapturedOutput
{
public:
    CapturedOutput()
    {
        m_file.open();
        std::fflush(stdout);
        dup2(m_file.handle(), STDOUT_FILENO);
    }
    ~CapturedOutput() { text(); }

    QString text()
    {
        std::fflush(stdout);
        dup2(m_stdout, STDOUT_FILENO);
        return m_file.seek(0) ? QString::fromUtf8(m_file.readAll()) : QString();
    }

private:
    QTemporaryFile m_file;
    const int m_stdout = dup(STDOUT_FILENO);
};

} // namespace

class ApplicabilityTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<RecordedClient> m_client;
    std::unique_ptr<Manifest> m_manifest;
    RecordedItem<KIVClientItem>* m_mode = nullptr;

    KivData* itemWith(const QString& expression, const QString& id = ":config:rec:asking:")
    {
        m_client->add(id)->state->expression = expression;
        m_manifest = std::make_unique<Manifest>(m_client.get(), "tag", "rec");
        Manifest::setQmlContext(m_engine->rootContext());
        return Manifest::getKivData(id);
    }

private Q_SLOTS:
    void init()
    {
        m_engine = std::make_unique<QQmlEngine>();
        m_client = std::make_unique<RecordedClient>();
        m_mode = m_client->add(":config:rec:mode:", 2);
        m_client->add(QString::fromUtf8(":config:rec:größe٣:"), 4);
        m_client->add(":result:rec:name:", "fiber")->state->ready = false;
        m_client->add<RecordedItem<KIVVecClientItem>>(":result:rec:list:doubleARRAY:", QVariantList {1.5, 2.5});
    }
    void cleanup()
    {
        m_manifest.reset();
        m_client.reset();
        m_engine.reset();
    }

    void translations()
    {
        const std::pair<const char*, const char*> rows[] {{"cfg.mode == 2", "t_cfg_mode.value == 2"},
                {"module.res.state!=0", "module_res_state.value != 0"}, {"cfg.mode.isReady", "t_cfg_mode.isReady"},
                {"cfg.limits.value.low > 1", "t_cfg_limits.value.low > 1"},
                {"cfg.mode.enumLabel(0)=='a'", "t_cfg_mode.enumLabel (0 ) == 'a'"},
                {"res.list[1] > 2", "t_res_list.value[1 ]  > 2"},
                {"!(cfg.a||cfg.b)&&true", " ! (t_cfg_a.value || t_cfg_b.value )  && true"},
                {"cfg.a == ')(\\''", "t_cfg_a.value == ')(\\''"}, {"cfg.res.isReady", "t_cfg_res.isReady"},
                {"res.pressures.at(0) == cfg.features", "t_res_pressures.at(0) == t_cfg_features.value"},
                {"res.state == 'No measures.cfg.x'", "t_res_state.value == 'No measures.cfg.x'"},
                {"t_cfg_mode == 2", "t_cfg_mode.value == 2"},
                {"größe.res.ⅷ == cfg.Ж٣_ा", "größe_res_ⅷ.value == t_cfg_Ж٣_ा.value"},
                {"cfg.a - -1", "t_cfg_a.value -  - 1"}};
        for (const auto& [expression, translated] : rows) {
            QString problem;
            const std::optional<QString> result = uiutils::translatedApplicability(expression, "t", &problem);
            QVERIFY2(result, qPrintable(problem));
            QCOMPARE(result->simplified().remove(' '), QString(translated).remove(' '));
        }
    }

    void rejections()
    {
        const QStringList refused {QString(100000, '('), QString("cfg.a+").repeated(70) + "1", "cfg.mode = 2",
                "cfg.mode += 2", "cfg.mode++", "--cfg.mode", "cfg.mode.value = 3", "function(){return true}()",
                "(() => true)()", "Qt.quit()", "applicable", "value == 2", "cfg.mode.setValue(3)", "cfg.mode.invoke()",
                "cfg.mode.apply()", "cfg.mode.destroy()", "cfg.mode.value.constructor('x')", "cfg.mode.enumLabel",
                "cfg.mode.client", "cfg.mode.validator.bottom", "cfg.mode.parent", "(cfg.mode)(1)", "'a'.repeat(9)",
                "/x/.test('x')", "`x`", "cfg.mode; cfg.mode", "{}", "[1]", "cfg.mode['setValue'](3)",
                "cfg.mode.value['constructor']", "new Date()", "delete cfg.mode", "typeof cfg.mode", "eval('1')",
                "this", "cfg.", "cfg.mode.", "a.cfg.mode.value.x()", "1x", "\\u0061", "cfg.mode == 'open",
                "cfg.mode == == 1", "", "(cfg.mode", "cfg.mode)", "cfg.mode ? 1", "1 : 2", "(cfg.mode ? 1) : 2",
                "cfg.mode, 1", "cfg.mode 1", "cfg.list.at()", "!", "cfg.b.applicable", "0777", "'\\u'",
                "cfg.a == 'a\nb'", "cfg.m\u00b2", "cfg.\u0663", "cfg.\u0870", "cfg.a == \u0663", "cfg.a == '\u2028'"};
        for (const QString& expression : refused) {
            QString problem;
            QVERIFY2(!uiutils::translatedApplicability(expression, "t", &problem), qPrintable(expression.left(99)));
            QVERIFY2(!problem.isEmpty(), qPrintable(expression.left(99)));
        }
    }

    void answers_data()
    {
        addColumns<QString, bool>();
        QTest::newRow("true") << "true" << true;
        QTest::newRow("value") << "cfg.mode == 2" << true;
        QTest::newRow("other value") << "cfg.mode == 3" << false;
        QTest::newRow("text") << "res.name == 'fiber' && cfg.mode >= 2" << true;
        QTest::newRow("readiness") << "res.name.isReady" << false;
        QTest::newRow("element") << "res.list.at(1) == 2.5 && res.list[0] == 1.5" << true;
        QTest::newRow("choice of two") << "cfg.mode == 2 ? false : true" << false;
        QTest::newRow("module") << "tag.cfg.mode == 2" << true;
        QTest::newRow("beyond ASCII") << QString::fromUtf8("cfg.größe٣ == 4") << true;
    }
    void answers()
    {
        const auto [expression, answer] = currentRow<QString, bool>();
        CapturedOutput output;
        QCOMPARE(itemWith(expression)->isApplicable(), answer);
        QCOMPARE(output.text(), QString());
    }

    void withoutAnExpressionTheItemDecides()
    {
        KivData* asking = itemWith(QString());
        auto* item = static_cast<RecordedItem<KIVClientItem>*>(m_client->getItem(":config:rec:asking:"));
        QVERIFY(asking->isApplicable());
        item->state->applicable = false;
        QVERIFY(!asking->isApplicable());
        QVERIFY(itemWith("cfg.mode == 3", ":action:rec:asking:")->isApplicable());
    }

    void faultyExpressionsAreNotApplicable_data()
    {
        addColumns<QString, QString>();
        QTest::newRow("refused") << "Qt.quit()" << "Applicable expression error: asking \"Qt\" is not allowed here\n";
        QTest::newRow("unknown item") << "cfg.nothing == 1" << "ReferenceError: tag_cfg_nothing is not defined\n";
    }
    void faultyExpressionsAreNotApplicable()
    {
        const auto [expression, line] = currentRow<QString, QString>();
        CapturedOutput output;
        KivData* asking = itemWith(expression);
        QVERIFY(!asking->isApplicable());
        QVERIFY(!asking->isApplicable());
        const QString text = output.text();
        QVERIFY2(text.contains(line), qPrintable(text));
        QVERIFY(text.startsWith("Applicable expression error: asking "));
    }

    void itemsOfAnotherServiceMayComeLater()
    {
        CapturedOutput output;
        KivData* asking = itemWith("other.res.late == 5");
        QVERIFY(!asking->isApplicable());
        RecordedClient other;
        other.add(":result:other:late:", 5);
        Manifest otherManifest(&other, "other", "other");
        Manifest::setQmlContext(m_engine->rootContext());
        QVERIFY(asking->isApplicable());
    }

    void anotherEngine()
    {
        KivData* asking = itemWith("cfg.mode == 2");
        QVERIFY(asking->isApplicable());
        // A change of another item has an effect.
        QSignalSpy changes(asking, &KivData::applicableChanged);
        for (const int mode : {3, 2}) {
            m_mode->state->value = mode;
            Q_EMIT m_mode->valueChanged();
            QCOMPARE(asking->isApplicable(), mode == 2);
        }
        QCOMPARE(changes.size(), 2);
        m_engine.reset();
        QVERIFY(asking->isApplicable());
        m_engine = std::make_unique<QQmlEngine>();
        Manifest::setQmlContext(m_engine->rootContext());
        m_mode->state->value = 3;
        Q_EMIT m_mode->valueChanged();
        QVERIFY(!asking->isApplicable());
    }
};

QTEST_GUILESS_MAIN(ApplicabilityTest)
#include "tst_applicability.moc"
