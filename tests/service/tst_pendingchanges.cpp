#include "recordedservice.h"

#include "service/kivdata.h"
#include "service/manifest.h"
#include "service/pendingchanges.h"

#include <kiv/kivrejectedsettings.h>

#include <QAbstractItemModelTester>
#include <QJsonDocument>
#include <QJsonObject>
#include <QQmlPropertyMap>
#include <QRandomGenerator>
#include <QtTest>

#include <array>
#include <memory>

using uiutils::PendingChanges;

namespace {

/// A client that says which settings its service rejects.
class TellingClient : public RecordedClient, public KIVRejectedSettings
{
    Q_OBJECT
    Q_INTERFACES(KIVRejectedSettings)

public:
    QMap<QString, QString> rejectedSettings() const override { return rejected; }

    QMap<QString, QString> rejected;
};

/// A service with settings that are whole numbers, and its manifest.
struct Service
{
    explicit Service(const QString& serviceName, const QStringList& names = {"a", "b", "c"})
        : name(serviceName)
    {
        client.list += ":result:" + name + ":manifest:";
        for (const QString& setting : names) {
            RecordedState* state = client.add(id(setting), 5)->state;
            state->type = "int";
            state->attributes = {{"label", "Label " + setting}};
        }
        manifest = std::make_unique<Manifest>(&client, name, name);
    }

    QString id(const QString& setting) const { return ":config:" + name + ":" + setting + ":"; }
    KivData* item(const QString& setting) const { return Manifest::getKivData(id(setting)); }
    /// The service says what a setting is.
    void report(const QString& setting, const QVariant& value)
    {
        KIVClientItem* source = client.getItem(id(setting));
        const auto* choices = qobject_cast<KIVEnumClientItem*>(source);
        RecordedState* state = choices ? static_cast<const RecordedEnum*>(choices)->state
                                       : static_cast<RecordedItem<KIVClientItem>*>(source)->state;
        state->value = value;
        Q_EMIT source->valueChanged();
    }
    /// The batches that it got, as compact texts.
    QStringList batches() const
    {
        QStringList texts;
        for (const RecordedClient::Call& call : client.calls) {
            if (call.what == "send" && call.id == ":action:" + name + ":applyconfig:")
                texts += QJsonDocument::fromJson(call.argument.toString().toLatin1()).toJson(QJsonDocument::Compact);
        }
        return texts;
    }

    QString name;
    TellingClient client;
    std::unique_ptr<Manifest> manifest;
};

/// One word for each row: what the service has, what was set, the state and the reason.
QStringList rowsOf(const PendingChanges& changes)
{
    static const QStringList states {"waiting", "overtaken", "refused"};
    QStringList rows;
    for (int row = 0; row < changes.count(); ++row) {
        const QModelIndex index = changes.index(row);
        const auto* item = index.data(PendingChanges::ItemRole).value<KivData*>();
        rows += QString("%1 %2>%3 %4 %5")
                        .arg(item ? item->getId().section(':', -2, -2) : "?",
                                index.data(PendingChanges::OldTextRole).toString(),
                                index.data(PendingChanges::NewTextRole).toString(),
                                states.at(index.data(PendingChanges::StateRole).toInt()),
                                index.data(PendingChanges::ProblemRole).toString())
                        .trimmed();
    }
    return rows;
}

using Rows = QStringList;

} // namespace

class PendingChangesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Service> m_rec;
    std::unique_ptr<PendingChanges> m_changes;
    std::unique_ptr<QAbstractItemModelTester> m_tester;

private Q_SLOTS:
    void init()
    {
        QLocale::setDefault(QLocale::c());
        m_rec = std::make_unique<Service>("rec");
        m_changes = std::make_unique<PendingChanges>();
        m_tester = std::make_unique<QAbstractItemModelTester>(
                m_changes.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    }
    void cleanup()
    {
        m_tester.reset();
        m_changes.reset();
        m_rec.reset();
    }

    void whatWaits()
    {
        QSignalSpy counts(m_changes.get(), &PendingChanges::countChanged);
        QSignalSpy transactions(m_changes.get(), &PendingChanges::isChangingChanged);
        // Without a transaction nothing waits.
        m_rec->item("a")->setValue(4);
        m_rec->report("a", 5);
        QVERIFY(!m_changes->isChanging() && rowsOf(*m_changes).isEmpty());
        m_changes->begin();
        QVERIFY(m_changes->isChanging() && m_rec->manifest->isChanging());
        QCOMPARE(transactions.size(), 1);

        m_rec->item("b")->setValue(7);
        m_rec->item("a")->setValue(8);
        QCOMPARE(rowsOf(*m_changes), (Rows {"b 5>7 waiting", "a 5>8 waiting"}));
        const QModelIndex first = m_changes->index(0);
        QCOMPARE(first.data(PendingChanges::IdRole), QVariant(":config:rec:b:"));
        QCOMPARE(first.data(PendingChanges::LabelRole), QVariant("Label b"));
        QCOMPARE(first.data(PendingChanges::OldValueRole), QVariant(5));
        QCOMPARE(first.data(PendingChanges::NewValueRole), QVariant(7));
        QCOMPARE(first.data(PendingChanges::ServiceRole), QVariant("rec"));
        QCOMPARE(counts.size(), 2);

        // Set again, a change keeps its place; also when an entry reverts the item first.
        QSignalSpy changed(m_changes.get(), &PendingChanges::dataChanged);
        m_rec->item("b")->setValue(9);
        QCOMPARE(changed.size(), 1);
        m_rec->item("b")->revert();
        m_rec->item("b")->revert();
        m_rec->item("b")->setValue(6);
        QCOMPARE(rowsOf(*m_changes), (Rows {"b 5>6 waiting", "a 5>8 waiting"}));
        // What the service has is no change, whatever its type.
        m_rec->item("b")->setValue(5.0);
        QCOMPARE(rowsOf(*m_changes), Rows {"a 5>8 waiting"});
        QCOMPARE(m_changes->waiting(), 1);

        m_rec->manifest->applyChanges();
        QVERIFY(rowsOf(*m_changes).isEmpty() && !m_changes->isChanging() && m_changes->waiting() == 0);
        QCOMPARE(transactions.size(), 2);
        // The service reports later what it has accepted, or something else.
        m_rec->report("a", 8);
        m_rec->report("b", 1);
        QVERIFY(rowsOf(*m_changes).isEmpty());
    }

    void whatIsUndone()
    {
        m_changes->begin();
        for (const int value : {6, 7, 8}) {
            m_rec->item("a")->setValue(value);
            m_rec->item("b")->setValue(value);
            m_rec->item("c")->setValue(value);
        }
        // An item goes back one write; a row goes back to the service's value.
        QVERIFY(m_changes->revert(1));
        QCOMPARE(m_rec->item("b")->getValue(), QVariant(5));
        QCOMPARE(rowsOf(*m_changes), (Rows {"a 5>8 waiting", "c 5>8 waiting"}));
        QVERIFY(!m_changes->revert(2) && !m_changes->revert(-1) && !m_changes->dismiss(0) && !m_changes->setAgain(0));
        QVERIFY(m_changes->isChanging());
        QSignalSpy removals(m_changes.get(), &PendingChanges::rowsRemoved);
        m_changes->revertAll();
        QCOMPARE(removals.size(), 1);
        QCOMPARE(m_rec->item("a")->getValue(), QVariant(5));
        QCOMPARE(m_rec->item("c")->getValue(), QVariant(5));
        QVERIFY(rowsOf(*m_changes).isEmpty() && !m_rec->manifest->isChanging());
        QVERIFY(m_rec->batches().isEmpty());

        // The manifest's own way leads back one write, and ends the change all the same.
        m_changes->begin();
        m_rec->item("a")->setValue(6);
        m_rec->item("a")->setValue(7);
        m_rec->manifest->revertChanges();
        QCOMPARE(m_rec->item("a")->getValue(), QVariant(6));
        QVERIFY(rowsOf(*m_changes).isEmpty() && !m_changes->isChanging());
    }

    void aReportOvertakesAChange()
    {
        m_changes->begin();
        m_rec->item("a")->setValue(7);
        m_rec->item("b")->setValue(8);
        m_rec->item("c")->setValue(9);
        m_rec->report("a", 6);
        // What was wanted has come true.
        m_rec->report("b", 8.0);
        QCOMPARE(rowsOf(*m_changes), (Rows {"a 6>7 overtaken", "c 5>9 waiting"}));
        QCOMPARE(m_rec->item("a")->getValue(), QVariant(6));
        QVERIFY(m_changes->waiting() == 1 && m_changes->overtaken() == 1);
        QVERIFY(!m_changes->revert(0));
        // It is compared with what the service says now, and is not sent.
        m_rec->report("a", 3);
        QCOMPARE(rowsOf(*m_changes), (Rows {"a 3>7 overtaken", "c 5>9 waiting"}));
        QVERIFY(m_changes->apply());
        QCOMPARE(m_rec->batches(), QStringList {R"({"c":9})"});
        QCOMPARE(rowsOf(*m_changes), Rows {"a 3>7 overtaken"});

        // Set again, it waits again, in a transaction.
        QVERIFY(!m_rec->manifest->isChanging());
        QVERIFY(m_changes->setAgain(0));
        QVERIFY(m_rec->manifest->isChanging());
        QCOMPARE(rowsOf(*m_changes), Rows {"a 3>7 waiting"});
        QVERIFY(m_changes->overtaken() == 0 && m_changes->waiting() == 1);
        m_rec->report("a", 2);
        m_rec->item("b")->setValue(1);
        QVERIFY(m_changes->dismiss(0));
        QCOMPARE(rowsOf(*m_changes), Rows {"b 8>1 waiting"});
        QCOMPARE(m_rec->item("a")->getValue(), QVariant(2));
        // A report of what had been wanted settles it.
        m_rec->report("b", 2);
        QCOMPARE(rowsOf(*m_changes), Rows {"b 2>1 overtaken"});
        m_rec->report("b", 1);
        QVERIFY(rowsOf(*m_changes).isEmpty());
        // What the page sets meanwhile is a change like any other.
        m_rec->item("b")->setValue(4);
        m_rec->report("b", 2);
        m_rec->item("b")->setValue(3);
        QCOMPARE(rowsOf(*m_changes), Rows {"b 2>3 waiting"});
    }

    void aRejectedSettingSaysWhy()
    {
        m_changes->begin();
        const Service idle("idle");
        m_rec->item("a")->setValue(7);
        m_rec->item("b")->setValue(8);
        m_rec->client.refusal = "Nothing was set.";
        m_rec->client.rejected = {{"b", "8 is too much."}};
        QVERIFY(!m_changes->apply());
        QCOMPARE(rowsOf(*m_changes), (Rows {"a 5>7 waiting", "b 5>8 refused 8 is too much."}));
        QVERIFY(m_changes->waiting() == 2 && m_changes->problem().isEmpty());
        // What is corrected now has to wait. A service that has nothing to do with it goes on taking what is set.
        QVERIFY(m_changes->isChanging() && !idle.manifest->isChanging());
        m_rec->item("b")->setValue(6);
        QCOMPARE(rowsOf(*m_changes), (Rows {"a 5>7 waiting", "b 5>6 waiting"}));
        m_rec->client.rejected = {{"a", "No."}};
        QVERIFY(!m_changes->apply());
        QCOMPARE(rowsOf(*m_changes), (Rows {"a 5>7 refused No.", "b 5>6 waiting"}));

        // Nothing is named: the batch has one reason, until something is changed.
        m_rec->client.rejected.clear();
        QSignalSpy problems(m_changes.get(), &PendingChanges::problemChanged);
        QVERIFY(!m_changes->apply());
        QCOMPARE(rowsOf(*m_changes), (Rows {"a 5>7 waiting", "b 5>6 waiting"}));
        QCOMPARE(m_changes->problem(), QString("Nothing was set."));
        m_rec->item("a")->setValue(4);
        QCOMPARE(m_changes->problem(), QString());
        QCOMPARE(problems.size(), 2);
        // Also the manifest's own way, which ends the transaction.
        m_rec->client.rejected = {{"b", "Never."}};
        m_rec->manifest->applyChanges();
        QCOMPARE(rowsOf(*m_changes), (Rows {"a 5>4 waiting", "b 5>6 refused Never."}));
        QVERIFY(!m_changes->isChanging());
        // One that is sent alone.
        m_rec->item("a")->apply();
        QCOMPARE(rowsOf(*m_changes), (Rows {"a 5>4 refused Nothing was set.", "b 5>6 refused Never."}));

        m_rec->client.refusal.clear();
        m_rec->client.rejected.clear();
        m_rec->item("b")->apply();
        QVERIFY(m_changes->apply());
        QVERIFY(rowsOf(*m_changes).isEmpty());
    }

    void aServiceThatReportsBeforeItRejects()
    {
        m_changes->begin();
        m_rec->item("a")->setValue(7);
        m_rec->item("b")->setValue(8);
        m_rec->client.refusal = "No.";
        m_rec->client.onSend = [this] {
            m_rec->report("a", 6);
            m_rec->report("b", 8);
        };
        QVERIFY(!m_changes->apply());
        QCOMPARE(rowsOf(*m_changes), Rows {"a 6>7 overtaken"});
        // One that is sent alone.
        m_rec->item("c")->setValue(9);
        m_rec->client.onSet = [this](const QVariant&) { m_rec->report("c", 1); };
        m_rec->item("c")->apply();
        QCOMPARE(rowsOf(*m_changes), (Rows {"a 6>7 overtaken", "c 1>9 overtaken"}));
    }

    void eachServiceGetsItsOwn()
    {
        Service other("other", {"a", "b"});
        const QVariant rec = QVariant::fromValue(m_rec->manifest.get());
        const QVariant both = QVariant::fromValue(other.manifest.get());
        PendingChanges ofRec;
        ofRec.setManifests({rec});
        PendingChanges ofOther;
        ofOther.setManifests({both, rec});
        ofOther.begin();
        m_rec->item("a")->setValue(1);
        other.item("a")->setValue(2);
        QCOMPARE(rowsOf(ofRec), Rows {"a 5>1 waiting"});
        QCOMPARE(rowsOf(ofOther), (Rows {"a 5>1 waiting", "a 5>2 waiting"}));
        // In the order of the manifests, up to the first rejection, after which all wait again.
        other.client.refusal = "Other says no.";
        QVERIFY(!ofOther.apply());
        QVERIFY(m_rec->batches().isEmpty());
        QCOMPARE(ofOther.problem(), QString("Other says no."));
        QCOMPARE(ofRec.problem(), QString());
        QVERIFY(other.manifest->isChanging() && m_rec->manifest->isChanging());
        // Only what is listed is sent and reverted.
        QVERIFY(ofRec.apply());
        QCOMPARE(m_rec->batches(), QStringList {R"({"a":1})"});
        QVERIFY(!m_rec->manifest->isChanging() && other.manifest->isChanging());
        ofRec.revertAll();
        QCOMPARE(rowsOf(ofOther), Rows {"a 5>2 waiting"});
        other.client.refusal.clear();
        ofRec.begin();
        m_rec->item("a")->setValue(3);
        // The first one is accepted, the second one not.
        m_rec->client.refusal = "No.";
        QVERIFY(!ofOther.apply());
        QCOMPARE(other.batches().last(), QString(R"({"a":2})"));
        QCOMPARE(rowsOf(ofOther), Rows {"a 5>3 waiting"});
        QVERIFY(other.manifest->isChanging() && m_rec->manifest->isChanging());

        // A model of a manifest that has gone has nothing, not everything.
        const QSignalSpy states(&ofRec, &PendingChanges::isChangingChanged);
        m_rec->manifest.reset();
        QVERIFY(rowsOf(ofRec).isEmpty() && !ofRec.isChanging() && states.size() == 1);
        other.item("b")->setValue(2);
        QVERIFY(rowsOf(ofRec).isEmpty());
        Service idle("idle");
        ofRec.setManifests({QVariant::fromValue(idle.manifest.get())});
        ofRec.begin();
        QVERIFY(ofRec.isChanging());
        idle.manifest.reset();
        QCOMPARE(states.size(), 3);
        ofRec.setManifests({QVariant()});
        QVERIFY(rowsOf(ofRec).isEmpty());
        // Another one may be made where one was.
        alignas(Manifest) std::array<unsigned char, sizeof(Manifest)> place {};
        for (int times = 0; times < 2; ++times) {
            auto* const manifest = new (place.data()) Manifest(&idle.client, "idle", "idle");
            ofRec.setManifests({QVariant::fromValue(manifest)});
            ofRec.begin();
            QVERIFY(manifest->isChanging());
            manifest->~Manifest();
        }
        ofRec.setManifests({});
        QCOMPARE(rowsOf(ofRec), Rows {"b 5>2 waiting"});
    }

    void namesakes()
    {
        Service twice("twice", {"x:level", "y:level"});
        m_changes->begin();
        Manifest::getKivData(":config:twice:x:level:")->setValue(1);
        Manifest::getKivData(":config:twice:y:level:")->setValue(2);
        QVERIFY(m_changes->apply());
        QCOMPARE(twice.batches(), (QStringList {R"({"level":1})", R"({"level":2})"}));
        // Of two wrappers of an item the latest sends, and the other one's change is discarded.
        KivData* const earlier = m_rec->item("a");
        Manifest later(&m_rec->client, "later", "rec");
        m_changes->begin();
        earlier->setValue(1);
        m_rec->item("a")->setValue(2);
        QCOMPARE(rowsOf(*m_changes), (Rows {"a 5>1 waiting", "a 5>2 waiting"}));
        QVERIFY(m_changes->apply());
        QCOMPARE(m_rec->batches(), QStringList {R"({"a":2})"});
        QCOMPARE(earlier->getValue(), QVariant(5));
        QVERIFY(rowsOf(*m_changes).isEmpty());
    }

    void aServiceThatIsAway()
    {
        m_changes->begin();
        m_rec->item("a")->setValue(1234);
        m_rec->item("b")->setValue(7);
        QLocale::setDefault(QLocale(QLocale::German));
        m_rec->client.remove(m_rec->id("a"));
        const QModelIndex row = m_changes->index(0);
        QCOMPARE(rowsOf(*m_changes).first(), QString("a 5>1234 waiting"));
        QCOMPARE(row.data(PendingChanges::LabelRole), QVariant("Label a"));
        // What is there is sent, and what is not says why it waits.
        QVERIFY(!m_changes->apply());
        QCOMPARE(m_rec->batches(), QStringList {R"({"b":7})"});
        QCOMPARE(rowsOf(*m_changes),
                Rows {"a 5>1234 refused The service rec cannot be reached. The change waits until it returns."});
        // One that is made meanwhile has no label yet.
        m_rec->client.remove(m_rec->id("c"));
        m_rec->item("c")->setValue(8);
        QCOMPARE(m_changes->index(1).data(PendingChanges::LabelRole), QVariant("c"));

        // It returns with the value that it had: the change waits. With another one it has been overtaken.
        m_rec->client.add(m_rec->id("c"), 5)->state->attributes = {{"label", "Label c"}};
        m_rec->client.add(m_rec->id("a"), 6);
        Q_EMIT m_rec->client.itemsChanged();
        QCOMPARE(rowsOf(*m_changes), (Rows {"a 6>1.234 overtaken", "c 5>8 waiting"}));
        QCOMPARE(m_changes->index(1).data(PendingChanges::LabelRole), QVariant("Label c"));
    }

    void values_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QVariantMap>("attributes");
        QTest::addColumn<QVariant>("served");
        QTest::addColumn<QVariant>("wanted");
        QTest::addColumn<QString>("texts");
        const QVariantMap none;
        QTest::newRow("text") << "std::string" << none << QVariant("A") << QVariant("B") << "A>B";
        QTest::newRow("switch") << "bool" << none << QVariant(false) << QVariant(true) << "Off>On";
        QTest::newRow("number") << "int" << none << QVariant(1000) << QVariant(-2000) << "1.000 dB>-2.000 dB";
        QTest::newRow("decimals") << "double" << QVariantMap {{"precision", 2}} << QVariant(1.5) << QVariant(2) << "1,50 dB>2,00 dB";
        QTest::newRow("any decimals") << "double" << none << QVariant(1.5) << QVariant(0.125) << "1,5 dB>0,125 dB";
        QTest::newRow("list") << "std::vector<double>" << none << QVariant(QVariantList {1.5}) << QVariant(QVariantList {1.5, 2.0})
                              << "1,5 dB>1,5, 2 dB";
        QTest::newRow("list of whole numbers") << "std::vector<double>" << QVariantMap {{"precision", 2}} << QVariant(QVariantList {1.5})
                                               << QVariant(QVariantList {1, 2}) << "1,50 dB>1,00, 2,00 dB";
        QTest::newRow("empty list") << "std::vector<double>" << none << QVariant(QVariantList {1.5}) << QVariant(QVariantList {}) << "1,5 dB>";
        QTest::newRow("digits that a double has not") << "int" << none << QVariant(9'007'199'254'740'992LL) << QVariant(9'007'199'254'740'993LL)
                                                      << "9.007.199.254.740.992 dB>9.007.199.254.740.993 dB";
        // Its own unit follows its own value; "stale" would be the one of the value before.
        QTest::newRow("formatter") << "double" << QVariantMap {{"formatter", "scaling"}} << QVariant(900.0) << QVariant(1500.0)
                                   << "900 Hz>1.5 kHz";
        QTest::newRow("formatter of a list") << "std::vector<double>" << QVariantMap {{"formatter", "scaling"}} << QVariant(QVariantList {900.0})
                                             << QVariant(QVariantList {1500.0, 2.0}) << "900 Hz>1.5 kHz, 2 Hz";
    }

    void values()
    {
        QFETCH(const QString, type);
        QFETCH(const QVariantMap, attributes);
        QFETCH(const QVariant, served);
        QFETCH(const QVariant, wanted);
        struct Scaling : BaseFormatter
        {
            static bool isLarge(const QVariant& value) { return value.toDouble() >= 1000; }
            static QString unitOf(const QVariant& value) { return isLarge(value) ? "kHz" : "Hz"; }
            QString format(const QVariant& value) const override
            {
                const QString number = QString::number(isLarge(value) ? value.toDouble() / 1000 : value.toDouble());
                return getShowUnits() ? number + ' ' + unitOf(value) : number;
            }
            QString getUnitString() const override { return unitOf(getValue()); }
        };
        struct Backend : RecordedBackend
        {
            BaseFormatter* createFormatter(const QString&) const override { return new Scaling; }
        };
        Backend backend;
        QLocale::setDefault(QLocale(QLocale::German));
        RecordedState* const state = m_rec->client.add(m_rec->id("d"), served)->state;
        state->type = type;
        state->attributes = attributes;
        state->unit = attributes.contains("formatter") ? "Hz" : type == "std::string" || type == "bool" ? "" : "dB";
        Q_EMIT m_rec->client.itemsChanged();
        m_changes->begin();
        m_rec->item("d")->setValue(wanted);
        QTEST(rowsOf(*m_changes).value(0).section(' ', 1, -2), "texts");
    }

    void choices()
    {
        auto* source = m_rec->client.add<RecordedEnum>(m_rec->id("mode"), 1);
        source->state->type = "int";
        source->choices.choices = {{1, "One", "first"}, {2, "Two", "second"}};
        source->state->unit = "gear";
        Q_EMIT m_rec->client.itemsChanged();
        QCOMPARE(m_changes->enter(m_rec->item("mode"), 2), QString());
        QCOMPARE(rowsOf(*m_changes), Rows {"mode first gear>second gear waiting"});
        source->state->unit.clear();
        QCOMPARE(m_changes->enter(m_rec->item("mode"), 7), QString("Invalid enum value 7"));
        // Labels may change, and a choice may vanish while its change is overtaken.
        source->choices.choices = {{1, "One", "erste"}, {2, "Two", "zweite"}, {3, "Three", "dritte"}};
        Q_EMIT source->choices.valueChanged();
        QCOMPARE(rowsOf(*m_changes), Rows {"mode erste>zweite waiting"});
        m_rec->report("mode", 3);
        source->choices.choices.remove(1);
        Q_EMIT source->choices.valueChanged();
        QVERIFY(!m_changes->setAgain(0));
        QCOMPARE(rowsOf(*m_changes), Rows {"mode dritte>2 overtaken Invalid enum value 2"});
        QVERIFY(m_changes->dismiss(0));
    }

    /// A member that is set changes its aggregate, whose members are shown in their own order.
    void aggregates()
    {
        auto* const source = m_rec->client.add<RecordedAggregate>(m_rec->id("limits"));
        const auto says = [source](int low, int high) {
            source->aggregate = KivAggregate({{"low", low}, {"high", high}});
            source->state->value = source->aggregate.toVariant();
            Q_EMIT source->valueChanged();
        };
        says(1, 9);
        Q_EMIT m_rec->client.itemsChanged();
        m_changes->begin();
        auto* const map = m_rec->item("limits")->getValue().value<QQmlPropertyMap*>();
        const auto write = [map](const QString& member, const QVariant& value) { map->setProperty(qPrintable(member), value); };
        write("low", 2);
        QCOMPARE(m_changes->index(0).data(PendingChanges::OldTextRole), QVariant("1, 9"));
        QCOMPARE(m_changes->index(0).data(PendingChanges::NewTextRole), QVariant("2, 9"));
        says(3, 9);
        QCOMPARE(m_changes->overtaken(), 1);
        QVERIFY(m_changes->setAgain(0));
        QVERIFY(m_changes->apply());
        QCOMPARE(m_rec->batches(), QStringList {R"({"limits":{"high":9,"low":2}})"});
        QCOMPARE(m_changes->count(), 0);
        says(2, 9);
        // Numbers of the other type mean the same.
        m_changes->begin();
        write("low", 2.0);
        QCOMPARE(m_changes->count(), 0);
        write("low", 4);
        QVERIFY(m_changes->revert(0));
        QCOMPARE(m_changes->enter(m_rec->item("limits"), QVariantMap {{"low", 0}, {"high", 7}}), QString());
        QCOMPARE(m_changes->index(0).data(PendingChanges::NewTextRole), QVariant("0, 7"));
        says(0, 7);
        QCOMPARE(m_changes->count(), 0);
    }

    void enter()
    {
        KivData* const a = m_rec->item("a");
        QCOMPARE(m_changes->enter(a, 7), QString());
        QVERIFY(m_changes->isChanging() && m_rec->client.calls.isEmpty());
        QCOMPARE(m_changes->enter(a, "8"), QString());
        QCOMPARE(rowsOf(*m_changes), Rows {"a 5>8 waiting"});
        // The manifest's way back leads to the service's value too.
        m_rec->manifest->revertChanges();
        QCOMPARE(a->getValue(), QVariant(5));
        m_changes->enter(a, 9);
        m_changes->enter(a, "5");
        QVERIFY(rowsOf(*m_changes).isEmpty());
        m_rec->manifest->applyChanges();
        QCOMPARE(m_rec->batches(), QStringList {"{}"});
        QCOMPARE(m_changes->enter(nullptr, 1), QString());
        // What cannot be set does not take an entry, and holds nothing back.
        m_rec->client.add(":result:rec:power:", 5);
        Q_EMIT m_rec->client.itemsChanged();
        QCOMPARE(m_changes->enter(Manifest::getKivData(":result:rec:power:"), 1), QString("The entry was rejected."));
        QVERIFY(!m_changes->isChanging());
        // The item of another manifest has to wait too.
        Service other("other");
        m_changes->setManifests({QVariant::fromValue(m_rec->manifest.get())});
        m_changes->enter(other.item("a"), 3);
        QVERIFY(other.manifest->isChanging() && other.client.calls.isEmpty());
    }

    void allModelsListTheSame()
    {
        m_changes->begin();
        m_rec->item("a")->setValue(7);
        m_rec->item("b")->setValue(8);
        m_rec->report("a", 6);
        auto later = std::make_unique<PendingChanges>();
        QCOMPARE(rowsOf(*later), (Rows {"a 6>7 overtaken", "b 5>8 waiting"}));
        QVERIFY(later->count() == 2 && later->overtaken() == 1 && later->isChanging());
        QVERIFY(later->dismiss(0));
        QCOMPARE(rowsOf(*m_changes), Rows {"b 5>8 waiting"});

        // Without a model nobody looks; the next one finds what waits.
        QVERIFY(later->revert(0));
        later.reset();
        cleanup();
        m_rec = std::make_unique<Service>("rec");
        m_rec->manifest->startChanges();
        m_rec->item("c")->setValue(8);
        m_rec->item("a")->setValue(8);
        m_rec->report("a", 7);
        const PendingChanges next;
        QVERIFY(next.waiting() == 1 && next.isChanging());
        QCOMPARE(rowsOf(next), Rows {"c 5>8 waiting"});
    }

    void manyChangesAreAnnouncedAtOnce()
    {
        cleanup();
        QStringList names;
        for (int i = 0; i < 10'000; ++i)
            names += QString("n%1x").arg(i, 5, 10, QChar('0'));
        Service large("large", names);
        PendingChanges changes;
        changes.begin();
        for (const QString& name : qAsConst(names))
            large.item(name)->setValue(6);
        QCOMPARE(changes.waiting(), 10'000);
        QVERIFY(changes.revert(5000));
        QSignalSpy removals(&changes, &PendingChanges::rowsRemoved);
        QSignalSpy counts(&changes, &PendingChanges::countChanged);
        QVERIFY(changes.apply());
        QCOMPARE(changes.count(), 0);
        QVERIFY(removals.size() == 1 && counts.size() == 1);
        QCOMPARE(large.batches().size(), 1);

        // Each other one is rejected.
        changes.begin();
        for (int i = 0; i < names.size(); ++i) {
            large.item(names.at(i))->setValue(7);
            if (i % 2 == 0)
                large.client.rejected.insert(names.at(i), "No.");
        }
        large.client.refusal = "No.";
        QVERIFY(!changes.apply());
        QCOMPARE(changes.waiting(), 10'000);
        removals.clear();
        large.manifest->revertChanges();
        QCOMPARE(changes.count(), 0);
        QCOMPARE(removals.size(), 1);

        // They go with their manifest.
        changes.begin();
        for (const QString& name : qAsConst(names))
            large.item(name)->setValue(8);
        removals.clear();
        large.manifest.reset();
        QCOMPARE(changes.count(), 0);
        QCOMPARE(removals.size(), 1);
    }

    /// What a slot does while rows change is listed after that, each change once.
    void slotsMayChangeOthers()
    {
        m_changes->begin();
        m_rec->item("a")->setValue(6);
        connect(m_changes.get(), &PendingChanges::rowsInserted, m_rec->item("a"), [this] {
            for (const int value : {7, 8, 9})
                m_rec->item("a")->setValue(value);
            m_rec->item("a")->setValue(5);
        });
        m_rec->item("b")->setValue(7);
        QCOMPARE(rowsOf(*m_changes), Rows {"b 5>7 waiting"});
        QCOMPARE(m_changes->waiting(), 1);
    }

    /// A dialog that opens in the midst of an operation on many shows what it changes itself.
    void dialogsAreNotKeptWaiting()
    {
        m_changes->begin();
        m_rec->item("a")->setValue(6);
        QStringList seen;
        m_rec->client.onSend = [&] {
            QEventLoop dialog;
            QTimer::singleShot(0, this, [&] {
                m_rec->manifest->startChanges();
                m_rec->item("b")->setValue(7);
                seen = rowsOf(*m_changes);
                dialog.quit();
            });
            dialog.exec();
        };
        QVERIFY(m_changes->apply());
        QVERIFY2(seen.contains("b 5>7 waiting"), qPrintable(seen.join(',')));
    }

    void slotsMayDelete_data()
    {
        QTest::addColumn<QString>("what");
        for (const char* what : {"item", "manifest", "model", "dialog"})
            QTest::newRow(what) << what;
    }

    /// Who hears of a change deletes something, at each of the moments.
    void slotsMayDelete()
    {
        QFETCH(const QString, what);
        using Step = std::function<void(PendingChanges&, Service&)>;
        const std::vector<Step> steps {
                [](PendingChanges&, Service& rec) { rec.item("c")->setValue(9); },
                [](PendingChanges&, Service& rec) { rec.item("a")->setValue(9); },
                [](PendingChanges&, Service& rec) { rec.report("a", 1); },
                [](PendingChanges& changes, Service&) { changes.revert(1); },
                [](PendingChanges& changes, Service&) { changes.apply(); },
                [](PendingChanges& changes, Service&) { changes.revertAll(); },
                [](PendingChanges& changes, Service& rec) { changes.enter(rec.item("b"), 11); },
                [](PendingChanges&, Service& rec) { rec.manifest->applyChanges(); },
                [](PendingChanges&, Service& rec) { rec.client.remove(rec.id("a")); },
                [](PendingChanges&, Service& rec) { delete rec.item("a"); },
                [](PendingChanges&, Service& rec) { rec.manifest.reset(); },
                [](PendingChanges& changes, Service&) { changes.setManifests({QVariant()}); },
        };
        for (const Step& step : steps) {
            m_tester.reset();
            m_changes.reset();
            Service rec("deleting");
            auto changes = std::make_unique<PendingChanges>();
            changes->begin();
            rec.item("a")->setValue(6);
            rec.item("b")->setValue(7);
            bool isDone = false;
            QObject context;
            const auto act = [&] {
                if (std::exchange(isDone, true))
                    return;
                if (what == "item")
                    delete rec.item("b");
                else if (what == "manifest")
                    rec.manifest.reset();
                else if (what == "model")
                    changes.reset();
                if (what != "dialog")
                    return;
                QEventLoop dialog;
                QTimer::singleShot(0, &context, [&] {
                    if (rec.item("b"))
                        rec.item("b")->setValue(20);
                    dialog.quit();
                });
                dialog.exec();
            };
            PendingChanges* const model = changes.get();
            connect(model, &PendingChanges::modelAboutToBeReset, &context, act);
            connect(model, &PendingChanges::dataChanged, &context, act);
            connect(model, &PendingChanges::rowsInserted, &context, act);
            connect(model, &PendingChanges::rowsRemoved, &context, act);
            connect(model, &PendingChanges::countChanged, &context, act);
            connect(model, &PendingChanges::waitingChanged, &context, act);
            step(*model, rec);
            if (changes && what != "dialog")
                QVERIFY(!changes->index(0).isValid() || changes->index(0).data(PendingChanges::ItemRole).value<KivData*>());
        }
    }

    /// Whatever happens in whatever order: a setting waits while its last write during a transaction, since the service's
    /// last word, differs from that word.
    void anyOrder()
    {
        QRandomGenerator random(20261123);
        const QStringList names {"a", "b", "c"};
        QMap<QString, int> served {{"a", 5}, {"b", 5}, {"c", 5}};
        QMap<QString, int> written;
        m_rec->manifest->startChanges();
        for (int turn = 0; turn < 20'000; ++turn) {
            const QString name = names.at(int(random.bounded(3u)));
            const int value = int(random.bounded(4u));
            switch (random.bounded(8u)) {
            case 0:
            case 1:
            case 2:
                m_rec->item(name)->setValue(value);
                written[name] = value;
                break;
            case 3:
                if (served.value(name) == value)
                    break;
                m_rec->report(name, value);
                served[name] = value;
                written.remove(name);
                break;
            case 4: {
                const int row = int(random.bounded(4u));
                const QString id = m_changes->index(row).data(PendingChanges::IdRole).toString();
                if (m_changes->revert(row))
                    written.remove(id.section(':', -2, -2));
                break;
            }
            case 5:
                m_changes->dismiss(int(random.bounded(3u)));
                break;
            case 6: {
                const QModelIndex row = m_changes->index(int(random.bounded(4u)));
                const QString again = row.data(PendingChanges::IdRole).toString().section(':', -2, -2);
                const int wanted = row.data(PendingChanges::NewValueRole).toInt();
                if (row.isValid() && m_changes->setAgain(row.row()))
                    written[again] = wanted;
                break;
            }
            default:
                if (turn % 10 != 0)
                    break;
                QVERIFY(m_changes->apply());
                for (const QString& sent : names) {
                    if (written.contains(sent))
                        m_rec->report(sent, served[sent] = written.take(sent));
                }
                m_changes->begin();
            }
            QStringList expected;
            for (const QString& setting : names) {
                if (written.contains(setting) && written.value(setting) != served.value(setting))
                    expected += QString("%1 %2>%3").arg(setting).arg(served.value(setting)).arg(written.value(setting));
            }
            QStringList listed;
            for (const QString& row : rowsOf(*m_changes)) {
                if (row.endsWith("waiting"))
                    listed += row.section(' ', 0, 1);
            }
            listed.sort();
            QCOMPARE(listed, expected);
            QCOMPARE(m_changes->waiting() + m_changes->overtaken(), m_changes->count());
        }
    }
};

QTEST_MAIN(PendingChangesTest)
#include "tst_pendingchanges.moc"
