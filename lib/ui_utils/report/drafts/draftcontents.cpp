#include "report/drafts/draftcontents_p.h"

#include "report/report.h"
#include "report/reportsettingsstore_p.h"

#include <QJsonArray>
#include <QPointer>

namespace uiutils {

namespace {

const QLatin1String settingsKey("settings");
const QLatin1String titleKey("title");
const QLatin1String subjectKey("subject");
const QLatin1String orientationKey("orientation");
const QLatin1String testTimeKey("testTime");
const QLatin1String testDurationKey("testDuration");
const QLatin1String screenshotsKey("screenshots");

struct TextField
{
    QLatin1String key;
    QString (Report::*get)() const;
    void (Report::*set)(const QString&);
};

const TextField textFields[] = {
        {titleKey, &Report::getTitle, &Report::setTitle},
        {subjectKey, &Report::getSubject, &Report::setSubject},
        {orientationKey, &Report::getOrientation, &Report::setOrientation},
        {testTimeKey, &Report::getTestTime, &Report::setTestTime},
        {testDurationKey, &Report::getTestDuration, &Report::setTestDuration},
};

QJsonObject settingsOf(const Report& report)
{
    QJsonObject values;
    const QVariantMap items = report.getSettings();
    for (auto it = items.cbegin(); it != items.cend(); ++it) {
        if (const auto* item = qobject_cast<UiData*>(it->value<QObject*>()))
            values.insert(it.key(), QJsonValue::fromVariant(item->getValue()));
    }
    return values;
}

/// Slots that are notified of a value may delete settings, and the controller with them.
void takeSettings(const Report& report, const QJsonObject& values)
{
    QVector<QPointer<UiData>> items;
    QVector<QJsonValue> wanted;
    const QVariantMap settings = report.getSettings();
    for (auto it = settings.cbegin(); it != settings.cend(); ++it) {
        items += qobject_cast<UiData*>(it->value<QObject*>());
        wanted += values.value(it.key());
    }
    for (int i = 0; i < items.size(); ++i) {
        const QVariant value = items.at(i) ? allowedValue(*items.at(i), wanted.at(i)) : QVariant();
        if (value.isValid() && items.at(i)->getValue() != value)
            items.at(i)->setValue(value);
    }
}

QStringList textsIn(const QJsonArray& list)
{
    QStringList texts;
    for (const QJsonValue& text : list)
        texts += text.toString();
    return texts;
}

} // namespace

QJsonObject reportState(const Report& report)
{
    QJsonObject state {{settingsKey, settingsOf(report)},
            {screenshotsKey, QJsonArray::fromStringList(report.getScreenshotList())}};
    for (const TextField& field : textFields)
        state.insert(field.key, (report.*field.get)());
    return state;
}

void takeReportState(Report* report, const QJsonObject& state)
{
    const QPointer<Report> alive(report);
    takeSettings(*report, state.value(settingsKey).toObject());
    for (const TextField& field : textFields) {
        // Where the template says the same, its value stays in charge.
        const QJsonValue text = state.value(field.key);
        if (alive && text.isString() && text.toString() != (report->*field.get)())
            (report->*field.set)(text.toString());
    }
    if (alive && state.value(screenshotsKey).isArray())
        report->setScreenshotList(textsIn(state.value(screenshotsKey).toArray()));
}

QString reportLabel(const Report& report)
{
    const KivData* const name = report.getConstSetting(QStringLiteral("reportName"));
    const QString text = name ? name->getValue().toString() : QString();
    return text.isEmpty() ? report.getTitle() : text;
}

} // namespace uiutils
