#include "files.h"
#include "jsonschema_p.h"

#include "check/services/schemawords.h"
#include "check/services/servicecheck.h"

#include <embedded/embeddedbackend.h>
#include <simulation/simulation_p.h>

#include <QJsonDocument>
#include <QtTest>

#include <random>

using kiv::embedded::EmbeddedBackend;
using namespace uiutils::check;

namespace {

const QString sources[] {UIUTILS_SOURCE_DIR "/platform/reference/services/optical.service.json",
        UIUTILS_SOURCE_DIR "/examples/page/services/powermeter.service.json",
        UIUTILS_TEST_DATA_DIR "/services/station.service.json", UIUTILS_TEST_DATA_DIR "/services/kinds.service.json"};

/// Changes files at random, the same ones on every machine.
class Mutations
{
public:
    explicit Mutations(unsigned seed)
        : m_random(seed)
    {
    }

    int below(int end) { return int(m_random() % unsigned(end)); }

    /// Bytes that were removed, replaced or doubled.
    QByteArray ofText(QByteArray text)
    {
        static const QByteArray letters("{}[]\":,\\0-1.eE\n\x80\xff ntfa'/");
        for (int count = 1 + below(3); count > 0; --count) {
            const int at = below(text.size());
            switch (below(4)) {
            case 0:
                text.remove(at, 1 + below(5));
                break;
            case 1:
                text[at] = letters.at(below(letters.size()));
                break;
            case 2:
                text.insert(at, letters.at(below(letters.size())));
                break;
            default:
                text.insert(at, text.mid(below(text.size()), 1 + below(40)));
            }
        }
        return text;
    }

    /// Values of other kinds, other keys, missing keys: JSON in any case.
    QJsonObject ofDocument(const QJsonObject& document)
    {
        QJsonValue value = document;
        for (int count = 1 + below(3); count > 0; --count)
            value = changed(value, 1 + below(5));
        return value.toObject();
    }

private:
    QJsonValue other()
    {
        switch (below(12)) {
        case 0:
            return QJsonValue::Null;
        case 1:
            return below(2) == 0;
        case 2:
            return below(200) - 100;
        case 3:
            return 2.5;
        case 4:
            return 1e12;
        case 5:
            return QString();
        case 6:
            return QString("double");
        case 7:
            return QString(":config:a:b:");
        case 8:
            return QJsonArray();
        case 9:
            return QJsonArray {1, "a"};
        case 10:
            return QJsonObject();
        default:
            return QJsonObject {{"from", 5}, {"to", 1}};
        }
    }

    QString otherKey()
    {
        static const QStringList keys {"value", "type", "from", "to", "as", "moves", "does", "set", "runs", "fail", "fails",
                "choices", "members", "judged", "ready", "minimum", "id", "happens", "after", "every", "unknown", "delay"};
        return keys.at(below(keys.size()));
    }

    QJsonValue changed(const QJsonValue& value, int depth)
    {
        if (value.isObject() && !value.toObject().isEmpty()) {
            QJsonObject object = value.toObject();
            const QString key = object.keys().at(below(object.size()));
            const int way = depth > 0 ? 3 : below(3);
            if (way == 0)
                object.remove(key);
            else if (way == 1)
                object.insert(otherKey(), other());
            else
                object.insert(key, way == 3 ? changed(object.value(key), depth - 1) : other());
            return object;
        }
        if (value.isArray() && !value.toArray().isEmpty() && depth > 0) {
            QJsonArray array = value.toArray();
            const int at = below(array.size());
            array.replace(at, changed(array.at(at), depth - 1));
            return array;
        }
        return other();
    }

    std::mt19937 m_random;
};

bool hasErrors(const QVector<Finding>& findings)
{
    return std::any_of(findings.cbegin(), findings.cend(), [](const Finding& finding) { return finding.weight == Finding::Error; });
}

QString textOf(const QVector<Finding>& findings)
{
    QString text;
    for (const Finding& finding : findings)
        text += toLine(finding) + '\n';
    return text;
}

} // namespace

/// Whatever is written in a service file: words, never a crash, and the same verdict as of those who load it.
class ServiceMutationsTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

private Q_SLOTS:
    /// The walk in words finds fault with the same documents as the validator.
    void schemaAgrees()
    {
        const JsonTree schema = readJson(contentsOf(UIUTILS_SOURCE_DIR "/docs/service-file.schema.json"));
        const QJsonObject schemaObject
                = QJsonDocument::fromJson(contentsOf(UIUTILS_SOURCE_DIR "/docs/service-file.schema.json")).object();
        QVERIFY(schema.isRead);
        Mutations mutations(5);
        int wrong = 0;
        constexpr int count = 400;
        for (int i = 0; i < count; ++i) {
            const QJsonObject source = QJsonDocument::fromJson(contentsOf(sources[i % 4])).object();
            const QJsonObject document = mutations.ofDocument(source);
            const QByteArray text = QJsonDocument(document).toJson();
            const QVector<Violation> words = violations(schema.root, readJson(text).root);
            const QString verdict = kiv::embedded::schemaViolation(schemaObject, document);
            wrong += words.isEmpty() ? 0 : 1;
            QVERIFY2(words.isEmpty() == verdict.isEmpty(),
                    qPrintable(QString("%1\nvalidator: %2\nwords: %3").arg(QString::fromUtf8(text), verdict, words.isEmpty() ? QString() : words.at(0).message)));
        }
        QVERIFY(wrong > count / 4 && wrong < count);
    }

    /// JSON is read where Qt reads it, and only there. Bytes that are not UTF-8 are told before.
    void jsonAgrees()
    {
        Mutations mutations(6);
        int wrong = 0;
        constexpr int count = 2000;
        for (int i = 0; i < count; ++i) {
            const QByteArray text = mutations.ofText(contentsOf(sources[i % 4]));
            QJsonParseError error {};
            const QJsonDocument document = QJsonDocument::fromJson(text, &error);
            const JsonTree tree = readJson(text);
            wrong += tree.isRead ? 0 : 1;
            if (QString::fromUtf8(text).toUtf8() != text)
                continue;
            QVERIFY2(tree.isRead == (error.error == QJsonParseError::NoError),
                    qPrintable(QString("%1 | %2 at %3\n").arg(tree.problem.message, error.errorString()).arg(error.offset) + QString::fromUtf8(text)));
            QVERIFY(tree.isRead || !tree.problem.message.isEmpty());
        }
        QVERIFY(wrong > count / 4 && wrong < count);
    }

    /// A file without an error is loaded, and one that is not loaded has an error.
    void verdictsAgree()
    {
        const QString path = m_folder.filePath("a.service.json");
        Mutations mutations(7);
        int loaded = 0;
        constexpr int count = 400;
        for (int i = 0; i < count; ++i) {
            const QByteArray source = contentsOf(sources[i % 4]);
            const QByteArray text = i % 2 == 0 ? mutations.ofText(source)
                                               : QJsonDocument(mutations.ofDocument(QJsonDocument::fromJson(source).object())).toJson();
            writeFile(path, text);
            EmbeddedBackend backend;
            kiv::simulation::simulate(backend, kiv::simulation::Simulated::Actions);
            QString problem;
            const bool isLoaded = backend.loadFile(path, &problem);
            const QVector<Finding> findings = checkServices({path}, nullptr);
            loaded += isLoaded ? 1 : 0;
            QVERIFY2(isLoaded || hasErrors(findings), qPrintable(problem + '\n' + textOf(findings)));
            for (const Finding& finding : findings)
                QVERIFY2(finding.line > 0 || finding.column == 0, qPrintable(toLine(finding)));
        }
        QVERIFY(loaded > 20 && loaded < count);
    }
};

QTEST_GUILESS_MAIN(ServiceMutationsTest)
#include "tst_servicemutations.moc"
