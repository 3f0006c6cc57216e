#include "report/reportsettingsstore_p.h"

#include "base/durablefile_p.h"
#include "base/paths_p.h"
#include "local/uidata.h"
#include "report/reportnaming_p.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPointer>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>

namespace uiutils {

namespace {

const QLatin1String vectorStart("std::vector<");

void logUnreadable(const QString& reason)
{
    qWarning("ERROR: Could not parse Json text:\n%s", qUtf8Printable(reason));
}

void logUnwritable(const QString& path)
{
    qWarning("Could not open %s for writing", qUtf8Printable(path));
}

/// The contents of a settings file; none if it does not exist.
struct StoredText
{
    enum State { Read, Absent, Unreadable, TooLarge };
    State state = Unreadable;
    QByteArray text;

    /// Whether the file may contain settings that could not be read.
    bool isUnknown() const { return state == Unreadable || state == TooLarge; }
};

StoredText storedText(const QString& path)
{
    // Opening a pipe would wait for its other end.
    const int fd = ::open(QFile::encodeName(onDisk(path)).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
        return {errno == ENOENT ? StoredText::Absent : StoredText::Unreadable, QByteArray()};
    QFile file;
    file.open(fd, QIODevice::ReadOnly, QFile::AutoCloseHandle);
    struct stat info = {};
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode))
        return {};
    const QByteArray text = file.read(largestReportSettings + 1);
    if (file.error() != QFileDevice::NoError)
        return {};
    if (text.size() > largestReportSettings)
        return {StoredText::TooLarge, QByteArray()};
    return {StoredText::Read, text};
}

bool holds(const QString& place, const QByteArray& text)
{
    const QFileInfo info(place);
    QFile file(place);
    return info.isFile() && info.size() == text.size() && file.open(QIODevice::ReadOnly) && file.readAll() == text;
}

bool isChoice(const UiData& item, const QVariant& value)
{
    const UiDataEnums* choices = item.getUiEnumList();
    const QList<UiEnumType*> list = choices ? choices->getEnumList() : QList<UiEnumType*>();
    for (const UiEnumType* choice : list) {
        if (choice->getValue() == value.toDouble())
            return choice->isApplicable();
    }
    return false;
}

bool isAccepted(const UiData& item, QString text)
{
    const QValidator* validator = item.getValidator();
    int position = 0;
    return !validator || validator->validate(text, position) == QValidator::Acceptable;
}

bool isInRange(const UiData& item, double value)
{
    const QVariant minimum = item.getMinRange();
    const QVariant maximum = item.getMaxRange();
    return (!minimum.isValid() || value >= minimum.toDouble()) && (!maximum.isValid() || value <= maximum.toDouble());
}

/// Files are edited by hand, come from other versions and are cut short: a value that a user could not have entered is
/// discarded.
bool isAllowed(const UiData& item, const QJsonValue& value)
{
    const QString type = item.getType();
    const QString text = value.toString();
    if (type == UiData::TYPE_BOOL)
        return value.isBool();
    if (type == UiData::TYPE_ENUM)
        return value.isDouble() && isChoice(item, value.toVariant());
    if (type == UiData::TYPE_STRING || type.startsWith(vectorStart))
        return value.isString() && (text.isEmpty() || isAccepted(item, text));
    // The validator of a number reads it in the user's language.
    return value.isDouble() ? isInRange(item, value.toDouble()) : value.isString() && isAccepted(item, text);
}

bool isUntouched(const UiData& item, const SettingOrigin& origin)
{
    const QVariant value = item.getValue();
    return value == origin.initial || (origin.loaded.isValid() && value == origin.loaded);
}

/// Empty if the file does not exist or cannot be understood; no object at all if it cannot be read. The log has a line
/// then.
std::optional<QJsonObject> readSettings(const QString& path)
{
    const StoredText stored = storedText(path);
    if (stored.state == StoredText::TooLarge)
        logUnreadable(QStringLiteral("the file is too large"));
    else if (stored.state != StoredText::Read)
        qWarning("Could not open %s for reading", qUtf8Printable(path));
    if (stored.isUnknown())
        return std::nullopt;
    if (stored.state == StoredText::Absent)
        return QJsonObject();
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(stored.text, &error);
    if (error.error != QJsonParseError::NoError)
        logUnreadable(error.errorString());
    else if (!document.isObject())
        logUnreadable(QStringLiteral("the file holds no object"));
    return document.object();
}

/// The value that an untouched item takes with this file; its present value if the file has none for it.
QVariant valueToTake(const UiData& item, const SettingOrigin& origin, const QJsonValue& stored, const QString& path)
{
    const QVariant value = allowedValue(item, stored);
    if (value.isValid())
        return value;
    return origin.path == path ? item.getValue() : origin.initial;
}

} // namespace

QVariant allowedValue(const UiData& item, const QJsonValue& stored)
{
    if (!isAllowed(item, stored))
        return {};
    return item.getType() == UiData::TYPE_ENUM ? QVariant(stored.toInt()) : stored.toVariant();
}

QString reportSettingsPath(const QString& folder)
{
    return paths::reportSettings + safeFolder(folder) + QLatin1String(".json");
}

void settleReportSettings(const ReportSettings& items, SettingOrigins& origins)
{
    for (auto it = items.cbegin(); it != items.cend(); ++it) {
        SettingOrigin& origin = origins[it.key()];
        if (origin.isNew)
            origin.initial = (*it)->getValue();
        origin.isNew = false;
    }
}

void loadReportSettings(
        const QString& path, const ReportSettings& items, const std::shared_ptr<SettingOrigins>& origins)
{
    settleReportSettings(items, *origins);
    const std::optional<QJsonObject> values = readSettings(path);
    if (!values) {
        for (SettingOrigin& origin : *origins)
            origin.path.clear();
        return;
    }
    // A slot that is notified of a value may add or delete settings, and the controller with them.
    QMap<QString, QPointer<UiData>> takers;
    for (auto it = items.cbegin(); it != items.cend(); ++it)
        takers.insert(it.key(), *it);
    const std::shared_ptr<SettingOrigins> kept = origins;
    for (auto it = takers.cbegin(); it != takers.cend(); ++it) {
        if (!*it)
            continue;
        SettingOrigin& origin = (*kept)[it.key()];
        const bool takes = isUntouched(**it, origin);
        const QVariant value = takes ? valueToTake(**it, origin, values->value(it.key()), path) : QVariant();
        origin.path = path;
        if (!takes)
            continue;
        origin.loaded = value;
        if ((*it)->getValue() != value)
            (*it)->setValue(value);
        // A slot may have loaded those of another folder.
        const auto now = kept->find(it.key());
        if (now == kept->end() || now->path != path)
            return;
        if (*it)
            now->loaded = (*it)->getValue();
    }
}

void saveReportSettings(const QString& path, const ReportSettings& items, const SettingOrigins& origins)
{
    const QString place = onDisk(path);
    const bool isLoaded = std::all_of(
            items.keyBegin(), items.keyEnd(), [&](const QString& name) { return origins.value(name).path == path; });
    const StoredText former = isLoaded ? StoredText() : storedText(path);
    if (!isLoaded && former.isUnknown()) {
        logUnwritable(path);
        return;
    }
    const QJsonObject stored = QJsonDocument::fromJson(former.text).object();
    QVariantMap values;
    for (auto it = items.cbegin(); it != items.cend(); ++it) {
        const SettingOrigin origin = origins.value(it.key());
        const QJsonValue own = stored.value(it.key());
        const bool staysStored = origin.path != path && isUntouched(**it, origin) && isAllowed(**it, own);
        values.insert(it.key(), staysStored ? own.toVariant() : (*it)->getValue());
    }
    const QByteArray text = QJsonDocument(QJsonObject::fromVariantMap(values)).toJson();
    // Most saves change nothing, and reading a file is faster than writing it durably.
    if (holds(place, text))
        return;
    makeFolderDurably(QFileInfo(place).path());
    if (!writeFileDurably(place, text))
        logUnwritable(path);
}

} // namespace uiutils
