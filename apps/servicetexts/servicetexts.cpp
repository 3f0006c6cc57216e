#include "servicetexts/servicetexts.h"

#include <embedded/embeddedbackend.h>
#include <kiv/baseformatter.h>
#include <kiv/kivbackend.h>

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <memory>

namespace uiutils::servicetexts {

namespace {

bool hasLetter(const QString& text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c.isLetter() || c.isSurrogate(); });
}

/// Knows the formatters of the reference platform; the platform of the process is the current one again afterwards.
class Formatters
{
public:
    Formatters() = default;
    ~Formatters()
    {
        m_backend.reset();
        KIVBackend::setCurrent(m_before);
    }
    Q_DISABLE_COPY_MOVE(Formatters)

private:
    KIVBackend* const m_before = KIVBackend::current();
    std::unique_ptr<kiv::embedded::EmbeddedBackend> m_backend = std::make_unique<kiv::embedded::EmbeddedBackend>();
};

/// Collects the texts of one file.
class Collector
{
public:
    explicit Collector(ServiceTexts* texts)
        : m_texts(texts)
    {
    }

    void take(const QJsonObject& service)
    {
        const QJsonArray items = service.value(QLatin1String("items")).toArray();
        for (const QJsonValue& item : items)
            takeItem(item.toObject());
        const QJsonArray happenings = service.value(QLatin1String("happens")).toArray();
        const QString id = service.value(QLatin1String("service")).toString();
        for (const QJsonValue& happening : happenings) {
            for (const char* key : {"refuse", "error"})
                add(happening[QLatin1String(key)], QStringLiteral("Error of the service"), id, QString());
        }
    }

private:
    void takeItem(const QJsonObject& item)
    {
        const QString id = item.value(QLatin1String("id")).toString();
        const auto addOf = [&](const QJsonValue& text, const char* what) {
            add(text, QLatin1String(what) + QStringLiteral(" of"), id, id);
        };
        addOf(item.value(QLatin1String("label")), "Label");
        addOf(item.value(QLatin1String("unit")), "Unit");
        addOf(unitOfFormatter(item.value(QLatin1String("attributes"))[QLatin1String("formatter")].toString()), "Unit");
        const QJsonArray choices = item.value(QLatin1String("choices")).toArray();
        for (const QJsonValue& choice : choices) {
            const QJsonValue label = choice[QLatin1String("label")];
            addOf(label.toString().isEmpty() ? choice[QLatin1String("name")] : label, "Choice");
        }
        addOf(item.value(QLatin1String("refuse")), "Error");
        addOf(item.value(QLatin1String("does"))[QLatin1String("fail")], "Error");
    }

    static QString unitOfFormatter(const QString& name)
    {
        const std::unique_ptr<BaseFormatter> formatter(getFormatter(name));
        return formatter ? formatter->getUnitString() : QString();
    }

    void add(const QJsonValue& value, const QString& what, const QString& where, const QString& id)
    {
        const QString text = value.toString();
        if (!hasLetter(text))
            return;
        Uses& uses = (*m_texts)[text];
        const QString place = what + QLatin1Char(' ') + where;
        if (!uses.places.contains(place))
            uses.places += place;
        if (!id.isEmpty() && !uses.ids.contains(id))
            uses.ids += id;
    }

    ServiceTexts* const m_texts;
};

} // namespace

QStringList serviceFilesIn(const QStringList& foldersAndFiles)
{
    QStringList files;
    for (const QString& path : foldersAndFiles) {
        if (!QFileInfo(path).isDir()) {
            files += path;
            continue;
        }
        const QFileInfoList entries
                = QDir(path).entryInfoList({QStringLiteral("*.service.json")}, QDir::Files, QDir::Name);
        for (const QFileInfo& entry : entries)
            files += entry.filePath();
    }
    return files;
}

ServiceTexts textsOf(const QStringList& files, QStringList* problems)
{
    const Formatters formatters;
    ServiceTexts texts;
    for (const QString& name : files) {
        QFile file(name);
        if (!file.open(QIODevice::ReadOnly)) {
            *problems += QStringLiteral("%1 cannot be read: %2.").arg(name, file.errorString());
            continue;
        }
        QJsonParseError error {};
        const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
        if (document.isObject())
            Collector(&texts).take(document.object());
        else
            *problems
                    += QStringLiteral("%1 is no service file: %2.")
                               .arg(name, document.isArray() ? QStringLiteral("it holds a list") : error.errorString());
    }
    return texts;
}

} // namespace uiutils::servicetexts
