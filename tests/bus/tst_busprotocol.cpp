#include "files.h"
#include "privatebus.h"
#include "bus/protocol_p.h"

#include <bus/busbackend.h>
#include <bus/busnames.h>
#include <bus/buspublisher.h>
#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <systemd/sd-bus.h>

#include <cmath>
#include <functional>
#include <limits>
#include <map>

using namespace kiv::bus;
using kiv::embedded::ItemDescription;

namespace {

constexpr char path[] = "/org/uiutils/kiv/probe";
constexpr char properties[] = "org.freedesktop.DBus.Properties";
constexpr char invalidArguments[] = "org.freedesktop.DBus.Error.InvalidArgs";
constexpr char rejected[] = "org.uiutils.kiv.Error.Rejected";

ItemDescription item(const char* id, const char* type, const QVariant& value = {})
{
    ItemDescription description;
    description.id = id;
    description.type = type;
    description.value = value;
    return description;
}

/// One value for each character of a signature.
void appendDefaults(sd_bus_message* message, const QByteArray& signature)
{
    if (signature == "aa{sv}")
        sd_bus_message_append(message, "aa{sv}", 0);
    else if (signature == "as")
        sd_bus_message_append(message, "as", 2, "a", "b");
    else
        for (const char type : signature) {
            if (type == 's')
                sd_bus_message_append(message, "s", "Name");
            else if (type == 'v')
                sd_bus_message_append(message, "v", "i", 1);
            else if (type == 'y')
                sd_bus_message_append(message, "y", 7);
            else if (type == 'u')
                sd_bus_message_append(message, "u", 0U);
            else if (type == 't')
                sd_bus_message_append(message, "t", quint64(0));
        }
}

using Append = std::function<void(sd_bus_message*)>;

} // namespace

class BusProtocolTest : public QObject
{
    Q_OBJECT

private:
    PrivateBus m_bus;
    std::unique_ptr<kiv::embedded::EmbeddedBackend> m_services;
    std::unique_ptr<BusPublisher> m_publisher;
    std::unique_ptr<Stranger> m_stranger;

    kiv::embedded::EmbeddedService* probe() const { return m_services->service("probe"); }
    KIVClientItem* number() const { return probe()->item(":config:probe:number:"); }

    Message newCall(const char* interface, const char* member) const
    {
        return m_stranger->connection.newCall("org.uiutils.kiv.probe", path, interface, member);
    }
    Message call(const char* interface, const char* member, const Append& append = {}) const
    {
        const Message message = newCall(interface, member);
        if (append)
            append(message.raw());
        return m_stranger->ask(message);
    }
    Message set(const char* id, const Append& append) const
    {
        return call(serviceInterface, "SetItem", [&](sd_bus_message* message) {
            sd_bus_message_append(message, "s", id);
            append(message);
        });
    }
    Message page(const char* prefix, quint32 from, quint32 count) const
    {
        return call(serviceInterface, "GetItems",
                [&](sd_bus_message* message) { sd_bus_message_append(message, "suu", prefix, from, count); });
    }
    /// Publishes a service beside the others, and waits until it is there.
    void publish(const kiv::embedded::ServiceDescription& description)
    {
        QVERIFY(m_services->publish(description));
        QVERIFY(m_publisher->publish(m_services->service(description.service)));
        QTRY_VERIFY_WITH_TIMEOUT(m_publisher->isPublished(description.service), patience);
    }
    /// The changes that a stranger was told since the last time: "NUMBER CODE SIGNATURE".
    QStringList changes() const
    {
        m_stranger->isConnected();
        QStringList lines;
        for (const Message& signal : qAsConst(m_stranger->signals_)) {
            sd_bus_message_rewind(signal.raw(), 1);
            Reader reader(signal);
            reader.skip("tt");
            reader.enter('a', "(uyv)");
            while (reader.enter('r', "uyv")) {
                const quint32 number = reader.uint32();
                const int code = reader.byte();
                lines += QString("%1 %2 %3").arg(number).arg(code).arg(QString(reader.variantContents()));
                reader.skip("v");
                reader.leave();
            }
        }
        m_stranger->signals_.clear();
        return lines;
    }
    /// Waits until the stranger has been told something, and returns it.
    QStringList told() const
    {
        waitUntil([this] { return !m_stranger->signals_.isEmpty(); });
        return changes();
    }

private Q_SLOTS:
    void init()
    {
        m_services = std::make_unique<kiv::embedded::EmbeddedBackend>();
        m_publisher = std::make_unique<BusPublisher>();
        m_stranger = std::make_unique<Stranger>();
        ItemDescription number = item(":config:probe:number:", "int", 5);
        number.minimum = 0;
        number.maximum = 10;
        ItemDescription mode = item(":config:probe:mode:", "int", 1);
        mode.choices = {{1, "One", "", true}, {2, "Two", "", true}};
        ItemDescription record = item(":config:probe:record:", "aggregate");
        record.members = {{"name", "std::string"}};
        kiv::embedded::ServiceDescription probe;
        probe.service = "probe";
        probe.items = {number, mode, record, item(":config:probe:text:", "std::string", "t"),
                item(":config:probe:names:stringARRAY:", "stringARRAY"), item(":action:probe:go:", "action")};
        probe.items.last().does = kiv::embedded::ActionDescription();
        publish(probe);
        QVERIFY(m_stranger->isConnected());
    }
    void cleanup()
    {
        // Whatever was sent: nobody has been thrown out.
        QVERIFY(m_stranger->isConnected());
        QVERIFY(m_publisher->isPublished("probe"));
        QCOMPARE(call(properties, "GetAll", [](sd_bus_message* m) { sd_bus_message_append(m, "s", ""); }).isError(),
                false);
        m_stranger.reset();
        m_publisher.reset();
        m_services.reset();
    }

    void names()
    {
        const QString prefix = "org.uiutils.kiv.";
        const QVector<QPair<QString, QString>> table {{"basemgr", "basemgr"}, {"B9", "B9"}, {"9B", "_39B"},
                {"loopback_rtt", "loopback_5frtt"}, {"a.b-c/d", "a_2eb_2dc_2fd"}, {"ä", "_c3_a4"}, {" ", "_20"},
                {"_5f", "_5f5f"}, {QString(239, 'x'), QString(239, 'x')}};
        for (const auto& [service, element] : table) {
            QCOMPARE(serviceBusName(service), prefix + element);
            QCOMPARE(serviceOfBusName(serviceBusName(service).toLatin1()), service);
        }
        for (const QString& tooLong : {QString(240, 'x'), QString(80, '-'), QString()})
            QCOMPARE(serviceBusName(tooLong), QString());
        // Other spellings of ours would be a second name of one service.
        for (const char* other :
                {"org.uiutils.kiv._61", "org.uiutils.kiv._C3_A4", "org.uiutils.kiv.a_5", "org.uiutils.kiv.a.b",
                        "org.uiutils.kiv.", "org.uiutils.kiv", "org.uiutils.kivx", "org.uiutils.kiv._ff"})
            QCOMPARE(serviceOfBusName(other), QString());
    }

    void everyMethodWithEverySignature()
    {
        const QMap<QByteArray, QByteArray> methods {{"GetItems", "suu"}, {"Subscribe", ""}, {"Unsubscribe", ""},
                {"Acknowledge", "t"}, {"SetItem", "sv"}, {"SendAction", "ss"}, {"SendBatch", "ss"}, {"Get", "ss"}, {"GetAll", "s"},
                {"Set", "ssv"}, {"Introspect", ""}};
        const QByteArrayList signatures {
                "", "s", "ss", "sv", "ssv", "suu", "t", "u", "y", "v", "sss", "su", "suuu", "as", "aa{sv}"};
        for (auto it = methods.cbegin(); it != methods.cend(); ++it) {
            for (const QByteArray& signature : signatures) {
                if (signature == *it)
                    continue;
                const Message answer
                        = call(nullptr, it.key(), [&](sd_bus_message* message) { appendDefaults(message, signature); });
                QCOMPARE(answer.errorName(), QString(invalidArguments));
                QVERIFY2(answer.errorText().contains(it.key()) && answer.errorText().contains('"' + signature + '"'),
                        qPrintable(answer.errorText()));
            }
        }
        QCOMPARE(number()->getValue(), QVariant(5));
    }

    void whatIsNotThere()
    {
        const QString error = "org.freedesktop.DBus.Error.";
        QCOMPARE(call(serviceInterface, "Nothing").errorName(), error + "UnknownMethod");
        QCOMPARE(call("org.freedesktop.DBus.Peer", "Nothing").errorName(), error + "UnknownMethod");
        QCOMPARE(call("org.example.Other", "Subscribe").errorName(), error + "UnknownInterface");
        const auto property = [this](const char* interface, const char* name) {
            return call(properties, "Get",
                    [&](sd_bus_message* message) { sd_bus_message_append(message, "ss", interface, name); })
                    .errorName();
        };
        QCOMPARE(property(serviceInterface, "Nothing"), error + "UnknownProperty");
        QCOMPARE(property("org.example.Other", "Version"), error + "UnknownInterface");
        QCOMPARE(call(properties, "Set", [](sd_bus_message* m) {
            sd_bus_message_append(m, "ssv", serviceInterface, "Version", "s", "2.0");
        }).errorName(), error + "PropertyReadOnly");
        for (const char* other : {"/", "/org/uiutils/kiv", "/org/uiutils/kiv/probe/number", "/org/uiutils/kiv/other"}) {
            const Message message
                    = m_stranger->connection.newCall("org.uiutils.kiv.probe", other, serviceInterface, "Subscribe");
            QCOMPARE(m_stranger->ask(message).errorName(), error + "UnknownObject");
        }
        QCOMPARE(set(":config:probe:none:", [](sd_bus_message* m) { sd_bus_message_append(m, "v", "i", 1); })
                         .errorText(),
                QString("The service probe has no item :config:probe:none:."));
    }

    /// What the installed file says is there.
    void introspection()
    {
        const QByteArray installed
                = contentsOf(UIUTILS_SOURCE_DIR "/platform/reference/bus/org.uiutils.kiv.Service.xml");
        const Message answer = call("org.freedesktop.DBus.Introspectable", "Introspect");
        QCOMPARE(Reader(answer).text().toUtf8(), installed);
        QXmlStreamReader xml(installed);
        QByteArray interface, method, in, out;
        QStringList seen;
        while (!xml.atEnd()) {
            const bool begins = xml.readNext() == QXmlStreamReader::StartElement;
            const QByteArray name = xml.attributes().value("name").toUtf8();
            if (begins && xml.name() == "interface") {
                interface = name;
            } else if (begins && xml.name() == "method") {
                method = name;
                in = out = QByteArray();
            } else if (begins && xml.name() == "arg") {
                (xml.attributes().value("direction") == "in" ? in : out) += xml.attributes().value("type").toUtf8();
            } else if (begins && xml.name() == "property") {
                const Message value = call(properties, "Get",
                        [&](sd_bus_message* m) { sd_bus_message_append(m, "ss", interface.data(), name.data()); });
                QCOMPARE(Reader(value).variantContents(), xml.attributes().value("type").toUtf8());
                seen += name;
            } else if (xml.isEndElement() && xml.name() == "method") {
                const Message reply = call(interface, method, [&](sd_bus_message* m) { appendDefaults(m, in); });
                if (reply.isError())
                    QVERIFY2((QStringList {"SetItem", "SendAction", "Get", "Set"}.contains(method))
                                    || (method == "GetMachineId" && !QFile::exists("/etc/machine-id")),
                            qPrintable(reply.errorText()));
                else
                    QCOMPARE(reply.signature(), out);
                QVERIFY(reply.errorName() != invalidArguments);
                seen += method;
            }
        }
        QVERIFY(!xml.hasError());
        QCOMPARE(seen.size(), 16);
    }

    /// The codes as they stand in the interface; who renumbers one breaks every program that others have written.
    void everyFieldHasItsCode()
    {
        call(serviceInterface, "Subscribe");
        kiv::embedded::EmbeddedService* service = probe();
        const QString number = ":config:probe:number:", mode = ":config:probe:mode:";
        const QVector<QPair<std::function<void()>, QStringList>> table {
                {[&] { service->setValue(number, 6); }, {"1 1 i"}},
                {[&] { service->setLabel(number, "L"); }, {"1 2 s"}},
                {[&] { service->setUnit(number, "m"); }, {"1 3 s"}},
                {[&] { service->setReady(number, false); }, {"1 4 b"}},
                {[&] { service->setQuality(number, KIVClientItem::QualityFailing); }, {"1 5 i"}},
                {[&] { service->setApplicable(number, false); }, {"1 6 b"}},
                {[&] { service->setRange(number, 1, QVariant()); }, {"1 7 i", "1 136 y"}},
                {[&] { service->setRange(number, QVariant(), 9); }, {"1 135 y", "1 8 i"}},
                {[&] { service->setChoices(mode, {{1, "One", "", true}}); }, {"2 9 a(issb)"}},
                {[&] { service->setAttribute(number, "a", 1); }, {"1 10 a{sv}"}},
                {[&] { service->setValue(number, QVariant()); }, {"1 129 y"}},
                {[&] { service->setMounted("/mnt/usb", true); }, {"0 1 as"}},
                // One message for all that changes within a turn, each field once and in its order.
                {[&] {
                    service->setValue(mode, 2);
                    service->setValue(number, 1);
                    service->setReady(number, true);
                    service->setValue(number, 2);
                }, {"1 1 i", "1 4 b", "2 1 i"}},
        };
        for (const auto& [change, lines] : table) {
            change();
            QCOMPARE(told(), lines);
        }
        const QVector<QPair<int, QString>> codes {{1, "value"}, {2, "label"}, {3, "unit"}, {4, "ready"}, {5, "quality"},
                {6, "applicable"}, {7, "minimum"}, {8, "maximum"}, {9, "choices"}, {10, "attributes"}};
        const QString xml = QString::fromUtf8(
                contentsOf(UIUTILS_SOURCE_DIR "/platform/reference/bus/org.uiutils.kiv.Service.xml"));
        for (const auto& [code, name] : codes)
            QVERIFY(xml.contains(QRegularExpression(
                    QString("^ +%1 +%2 ").arg(code).arg(name), QRegularExpression::MultilineOption)));
    }

    /// Values that no item of the type can have, in every form that a bus can carry.
    void hostileValues()
    {
        const auto variant = [](auto... arguments) {
            return [=](sd_bus_message* message) { sd_bus_message_append(message, "v", arguments...); };
        };
        const auto nested = [](int depth) {
            return [depth](sd_bus_message* message) {
                for (int i = 0; i < depth; ++i)
                    sd_bus_message_open_container(message, 'v', i + 1 < depth ? "v" : "i");
                sd_bus_message_append(message, "i", 1);
                for (int i = 0; i < depth; ++i)
                    sd_bus_message_close_container(message);
            };
        };
        const char* number = ":config:probe:number:";
        const QVector<QPair<const char*, Append>> refused {{number, variant("i", 11)}, {number, variant("i", -1)},
                {number, variant("d", std::nan(""))}, {number, variant("d", 1e300)}, {number, variant("d", 1.5)},
                {number, variant("s", "abc")}, {number, variant("u", 4294967295U)}, {number, variant("ay", 1, 65)},
                {number, variant("as", 1, "5")}, {number, variant("a{sv}", 0)}, {number, variant("(ii)", 1, 2)},
                {number, variant("aav", 0)}, {number, nested(2)}, {number, nested(50)}, {number, variant("av", 0)},
                {":config:probe:mode:", variant("i", 3)}, {":config:probe:text:", variant("as", 1, "a")},
                {":config:probe:names:stringARRAY:", variant("a{sv}", 1, "0", "s", "x")},
                {":config:probe:record:", variant("a{sv}", 1, "other", "s", "x")},
                {":config:probe:record:", nested(60)}, {":action:probe:go:", variant("i", 1)}};
        for (const auto& [id, append] : refused) {
            const Message answer = set(id, append);
            QVERIFY2(answer.errorName() == rejected || answer.errorName() == invalidArguments,
                    qPrintable(answer.errorName()));
            QVERIFY(!answer.errorText().isEmpty());
            QCOMPARE(number == id ? this->number()->getValue() : QVariant(5), QVariant(5));
        }
        const QVector<QPair<Append, QVariant>> taken {
                {variant("d", 7.0), 7}, {variant("s", "8"), 8}, {variant("u", 9U), 9}};
        for (const auto& [append, value] : taken) {
            QVERIFY(!set(number, append).isError());
            QCOMPARE(this->number()->getValue(), value);
        }
    }

    void pages()
    {
        kiv::embedded::ServiceDescription many;
        many.service = "many";
        for (int i = 0; i < 20'000; ++i)
            many.items += item(qPrintable(QString(":result:%1:%2:").arg(i % 2 ? "odd" : "even").arg(i)), "int", i);
        publish(many);
        const auto read = [this](const char* prefix, quint32 from, quint32 count, QVector<quint32>* numbers) {
            const Message call = m_stranger->connection.newCall(
                    "org.uiutils.kiv.many", "/org/uiutils/kiv/many", serviceInterface, "GetItems");
            sd_bus_message_append(call.raw(), "suu", prefix, from, count);
            Reader reader(m_stranger->ask(call));
            reader.skip("tt");
            reader.enter('a', "(usa{sv})");
            while (reader.enter('r', "usa{sv}")) {
                *numbers += reader.uint32();
                reader.skip("sa{sv}");
                reader.leave();
            }
            reader.leave();
            return reader.uint32();
        };
        QVector<quint32> numbers;
        int pages = 0;
        for (quint32 next = 0; pages == 0 || next > 0; ++pages)
            next = read("", next, 0, &numbers);
        QCOMPARE(numbers.size(), 20'000);
        for (int i = 0; i < numbers.size(); ++i)
            QCOMPARE(numbers.at(i), quint32(i + 1));
        QVERIFY(pages > 2 && pages < 20);
        numbers.clear();
        QCOMPARE(read(":result:odd:", 10, 3, &numbers), 16U);
        QCOMPARE(numbers, (QVector<quint32> {12, 14, 16}));
        for (const quint32 beyond : {20'000U, 4'294'967'295U}) {
            numbers.clear();
            QCOMPARE(read("", beyond, 4'294'967'295U, &numbers), 0U);
            QVERIFY(numbers.isEmpty());
        }
        // The last one alone ends the list.
        QCOMPARE(read("", 19'999, 1, &numbers), 0U);
        QCOMPARE(numbers, QVector<quint32> {20'000});
    }

    /// Who acknowledges nothing gets 64 messages or about a megabyte, and what it missed in one message afterwards.
    void thoseWhoDoNotAcknowledge()
    {
        call(serviceInterface, "Subscribe");
        const auto change = [this](const QString& id, const QVariant& value) {
            probe()->setValue(id, value);
            // A turn of its own.
            m_stranger->isConnected();
        };
        // Errors count as well.
        probe()->reportError("Too warm");
        for (int i = 0; i < 200; ++i)
            change(":config:probe:number:", i);
        QCOMPARE(changes().size(), 63);
        probe()->setLabel(":config:probe:number:", "Later");
        for (int i = 0; i < 40; ++i)
            probe()->reportError("Too cold");
        // Nothing was sent up to there: it counts for all that was.
        call(serviceInterface, "Acknowledge", [](sd_bus_message* m) { sd_bus_message_append(m, "t", quint64(20)); });
        QCOMPARE(changes().size(), 0);
        call(serviceInterface, "Acknowledge", [](sd_bus_message* m) { sd_bus_message_append(m, "t", ~quint64(0)); });
        const auto serial = [this] {
            waitUntil([this] { return !m_stranger->signals_.isEmpty(); });
            Reader reader(m_stranger->signals_.value(0));
            reader.skip("t");
            return reader.uint64();
        };
        QCOMPARE(serial(), quint64(65));
        QCOMPARE(changes(), (QStringList {"1 1 i", "1 2 s"}));
        // Of the errors 32 were kept.
        change(":config:probe:number:", 5);
        QCOMPARE(serial(), quint64(98));
        QCOMPARE(changes(), QStringList {"1 1 i"});

        // What it missed of a list that is no more has no numbers.
        call(serviceInterface, "Subscribe");
        for (int i = 0; i < 65; ++i)
            change(":config:probe:number:", i);
        change(":config:probe:names:stringARRAY:", QStringList {"x"});
        probe()->removeItem(":config:probe:names:stringARRAY:");
        QCOMPARE(changes().size(), 64);
        call(serviceInterface, "Acknowledge", [](sd_bus_message* m) { sd_bus_message_append(m, "t", ~quint64(0)); });
        QCOMPARE(serial(), quint64(65));
        QCOMPARE(changes(), QStringList());

        // Subscribing anew begins anew.
        qint64 bytes = 0;
        call(serviceInterface, "Subscribe");
        change(":config:probe:number:", 7);
        QCOMPARE(serial(), quint64(1));
        for (int i = 0; i < 40; ++i) {
            change(":config:probe:text:", QString(100'000, QChar('a' + i % 20)));
            bytes += changes().size() * 100'000;
        }
        QVERIFY2(bytes > 300'000 && bytes < 1'200'000, qPrintable(QString::number(bytes)));
        call(serviceInterface, "Unsubscribe");
        change(":config:probe:number:", 3);
        QCOMPARE(changes(), QStringList());
    }

    /// Clients and calls beyond the limits are refused, and clients that ended make room.
    void manyClients()
    {
        const auto subscribe = [](Stranger& stranger) {
            return stranger
                    .ask(stranger.connection.newCall("org.uiutils.kiv.probe", path, serviceInterface, "Subscribe"))
                    .errorName();
        };
        std::vector<std::unique_ptr<Stranger>> strangers(256);
        for (auto& stranger : strangers) {
            stranger = std::make_unique<Stranger>();
            QCOMPARE(subscribe(*stranger), QString());
        }
        QCOMPARE(subscribe(*m_stranger), QString("org.freedesktop.DBus.Error.LimitsExceeded"));
        QCOMPARE(subscribe(*strangers.back()), QString());
        probe()->setDelay(patience);
        const auto act = [](sd_bus_message* m) { sd_bus_message_append(m, "ss", ":action:probe:go:", ""); };
        for (int i = 0; i < 1024; ++i) {
            const Message message = newCall(serviceInterface, "SendAction");
            act(message.raw());
            m_stranger->connection.send(message);
        }
        QCOMPARE(call(serviceInterface, "SendAction", act).errorName(),
                QString("org.freedesktop.DBus.Error.LimitsExceeded"));
        strangers.clear();
        QTRY_COMPARE_WITH_TIMEOUT(subscribe(*m_stranger), QString(), patience);
    }

    /// Services that live in this process are called directly, also after the bus was away.
    void busThatReturns()
    {
        m_bus.kill();
        QTRY_VERIFY_WITH_TIMEOUT(!m_publisher->isPublished("probe"), patience);
        m_bus.start();
        QTRY_VERIFY_WITH_TIMEOUT(m_publisher->isPublished("probe"), patience);
        m_stranger = std::make_unique<Stranger>();
        BusBackend backend;
        KIVClientInterface* client = backend.serviceClient("probe", nullptr);
        QTRY_VERIFY_WITH_TIMEOUT(client->isValid(), patience);
        QVERIFY2(client->setItem(":config:probe:number:", 8), qPrintable(client->getLastError()));
        QCOMPARE(number()->getValue(), QVariant(8));
    }

    /// What a program puts into its items may be larger than any message, or no text: others go on.
    void whatCannotTravel()
    {
        // One of our own clients, which acknowledges by what it has read.
        BusBackend backend;
        QVERIFY(backend.waitForServices(patience));
        const QString number = ":config:probe:number:";
        const KIVClientItem* heard = backend.serviceClient("probe", nullptr)->getItem(number);
        call(serviceInterface, "Subscribe");
        kiv::embedded::EmbeddedService* service = probe();
        const QString text = ":config:probe:text:";
        const QString withNul = QString::fromLatin1("a\0b", 3);
        const QString large(5'000'000, QChar(0x20ac));
        const QVector<std::function<void()>> all {
                [&] { service->setValue(text, QString(17 * 1024 * 1024, 'x')); },
                [&] { service->setValue(text, withNul); },
                [&] { service->setLabel(text, withNul); },
                [&] { service->setAttribute(text, withNul, 1); },
                [&] { service->setChoices(":config:probe:mode:", {{1, large, large, true}}); },
                [&] { service->setUnit(text, QString(17 * 1024 * 1024, 'x')); },
                // Each fits, and not all.
                [&] {
                    service->setValue(text, large);
                    service->setLabel(text, large);
                    service->setAttribute(text, "note", large);
                },
                [&] {
                    QVariant deep = 1;
                    for (int i = 0; i < 200; ++i)
                        deep = QVariantList {deep};
                    // Of another item: this one says nothing of itself any more.
                    service->setAttribute(":config:probe:record:", "deep", deep);
                },
                [&] { service->setValue(text, QString(QChar(0xd800)) + "b"); },
        };
        for (int i = 0; i < all.size(); ++i) {
            all.at(i)();
            waitUntil([this] { return !m_stranger->signals_.isEmpty(); });
            QVERIFY2(m_publisher->isPublished("probe") && !page("", 0, 0).isError(), qPrintable(QString::number(i)));
            // Of what is large there may be more than one message.
            for (int more = 0; more < 4; ++more)
                call(serviceInterface, "Acknowledge",
                        [](sd_bus_message* m) { sd_bus_message_append(m, "t", ~quint64(0)); });
            changes();
            service->setValue(number, 100 + i);
            QVERIFY2(told().contains("1 1 i"), qPrintable(QString::number(i)));
            QTRY_COMPARE_WITH_TIMEOUT(heard->getValue(), QVariant(100 + i), patience);
        }
    }
};

QTEST_GUILESS_MAIN(BusProtocolTest)

#include "tst_busprotocol.moc"
