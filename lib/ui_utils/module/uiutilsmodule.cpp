#include "module/uiutilsmodule.h"

#include "core/status.h"
#include "core/userdata.h"
#include "document/reporttemplate.h"
#include "document/tablerows.h"
#include "files/fileutils.h"
#include "files/screenshot.h"
#include "languages/languages.h"
#include "local/uidata.h"
#include "local/uidatacontainer.h"
#include "report/drafts/reportdraft.h"
#include "report/pagereport.h"
#include "report/report.h"
#include "report/reportpreview.h"
#include "report/savedreports.h"
#include "service/forgivingvalidator.h"
#include "service/kivaggregatedata.h"
#include "service/kivlistaggregatedata.h"
#include "service/kivsignal.h"
#include "service/manifest.h"
#include "service/pendingchanges.h"
#include "service/qmlaggregate.h"
#include "service/qmllistaggregate.h"
#include "service/rowfilter.h"
#include "service/serviceitems.h"
#include "writers/pdffile/pdffile.h"

#include <kiv/kivnotificationmodelmanager.h>

#include <QtQml>

namespace uiutils {

namespace {

/// An object that all engines have in common, for the engine that asks for it now. Qt then makes a context in that
/// engine for the object, and warns when the object has one already. Nothing is evaluated in these contexts, so the one
/// that Qt has made in another engine is removed. A context that the application has chosen stays.
QObject* inCommon(QObject* object, QQmlEngine* engine)
{
    static QHash<const QObject*, QPointer<QQmlEngine>> engineOfContext;
    QQmlEngine::setObjectOwnership(object, QQmlEngine::CppOwnership);
    const QQmlContext* const context = QQmlEngine::contextForObject(object);
    const bool isMadeByQt = context && context->engine() == engineOfContext.value(object);
    if (isMadeByQt)
        delete context;
    if (!context || isMadeByQt)
        engineOfContext.insert(object, engine);
    return object;
}

QObject* userData(QQmlEngine* engine, QJSEngine*)
{
    return inCommon(UserData::getInstance(), engine);
}

QObject* languages(QQmlEngine* engine, QJSEngine*)
{
    Languages::instance()->follow(engine);
    return inCommon(Languages::instance(), engine);
}

template<typename Type> void registerOfManifest(const char* uri, const char* name)
{
    qmlRegisterUncreatableType<Type>(
            uri, 1, 0, name, QStringLiteral("%1 comes from the manifest of a service.").arg(QLatin1String(name)));
}

void registerServiceTypes(const char* uri)
{
    registerOfManifest<KivData>(uri, "KivData");
    registerOfManifest<KivAggregateData>(uri, "KivAggregateData");
    registerOfManifest<KivListAggregateData>(uri, "KivListAggregateData");
    registerOfManifest<QMLAggregate>(uri, "QMLAggregate");
    registerOfManifest<QMLListAggregate>(uri, "QMLListAggregate");
    qmlRegisterUncreatableType<Manifest>(uri, 1, 0, "Manifest",
            QStringLiteral("A manifest is made by the application, which has the service's client."));
    qmlRegisterUncreatableType<KIVClientInterface>(
            uri, 1, 0, "KIVClientInterface", QStringLiteral("Clients come from the platform."));
    qmlRegisterUncreatableType<BaseFormatter>(
            uri, 1, 0, "BaseFormatter", QStringLiteral("Formatters come from the platform."));
    qmlRegisterType<KIVSignal>(uri, 1, 0, "KIVSignal");
    qmlRegisterType<PendingChanges>(uri, 1, 0, "PendingChanges");
    qmlRegisterType<RowFilter>(uri, 1, 0, "RowFilter");
    qmlRegisterType<ServiceItems>(uri, 1, 0, "ServiceItems");
    qmlRegisterType<ForgivingValidator>(uri, 1, 0, "ForgivingValidator");
    qmlRegisterSingletonType<UserData>(uri, 1, 0, "UserData", userData);

    qRegisterMetaType<QQmlPropertyMap*>();
    qRegisterMetaType<QMLListAggregate*>("QMLListAggregate *");
    qmlRegisterAnonymousType<QValidator>(uri, 1);
}

template<typename Names> void registerCodes(const char* uri, const char* name)
{
    qmlRegisterUncreatableMetaObject(Names::staticMetaObject, uri, 1, 0, name,
            QStringLiteral("%1 has names for codes.").arg(QLatin1String(name)));
}

QObject* sharedContainer(QQmlEngine* engine, QJSEngine*)
{
    return inCommon(UiDataContainer::shared(), engine);
}

void registerLocalTypes(const char* uri)
{
    qmlRegisterType<UiData>(uri, 1, 0, "UiData");
    qmlRegisterType<StringUiData>(uri, 1, 0, "StringUiData");
    qmlRegisterType<BoolUiData>(uri, 1, 0, "BoolUiData");
    qmlRegisterType<EnumUiData>(uri, 1, 0, "EnumUiData");
    qmlRegisterType<UiDataEnums>(uri, 1, 0, "UiDataEnums");
    qmlRegisterType<UiEnumType>(uri, 1, 0, "UiEnumType");
    qmlRegisterSingletonType<UiDataContainer>(uri, 1, 0, "UiDataContainer", sharedContainer);
}

QObject* notifications(QQmlEngine* engine, QJSEngine*)
{
    return inCommon(KIVNotificationModelManager::instance(), engine);
}

QMap<QString, QString> textsOf(const QJSValue& object)
{
    QMap<QString, QString> texts;
    const QVariantMap values = object.toVariant().toMap();
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        texts.insert(it.key(), it.value().toString());
    return texts;
}

/// Where a map of texts is expected, QML passes an object of its own.
void registerTexts()
{
    qRegisterMetaType<QMap<QString, QString>>("QMap<QString,QString>");
    if (!QMetaType::hasRegisteredConverterFunction<QJSValue, QMap<QString, QString>>())
        QMetaType::registerConverter<QJSValue, QMap<QString, QString>>(textsOf);
}

void registerFileTypes(const char* uri)
{
    registerTexts();
    qmlRegisterUncreatableType<KIVNotification>(uri, 1, 0, "KIVNotification",
            QStringLiteral("Notifications are made by the objects that notify or ask users."));
    qmlRegisterSingletonType<KIVNotificationModelManager>(uri, 1, 0, "Notifications", notifications);
    qmlRegisterType<FileUtils>(uri, 1, 0, "FileUtils");
    qmlRegisterType<Screenshot>(uri, 1, 0, "Screenshot");
}

} // namespace

void registerTypes(const char* uri)
{
    qmlRegisterSingletonType<Languages>(uri, 1, 0, "Languages", languages);
    registerCodes<Status>(uri, "Status");
    registerCodes<Alignment>(uri, "Alignment");
    qmlRegisterType<ReportTemplate>(uri, 1, 0, "ReportTemplate");
    qmlRegisterType<TableRows>(uri, 1, 0, "TableRows");
    qmlRegisterType<PDFFile>(uri, 1, 0, "PDFFile");
    registerServiceTypes(uri);
    registerLocalTypes(uri);
    registerFileTypes(uri);
    qmlRegisterType<Report>(uri, 1, 0, "Report");
    qmlRegisterType<PageReport>(uri, 1, 0, "PageReport");
    qmlRegisterType<ReportPreview>(uri, 1, 0, "ReportPreview");
    qmlRegisterType<SavedReports>(uri, 1, 0, "SavedReports");
    qmlRegisterType<ReportDraft>(uri, 1, 0, "ReportDraft");
}

} // namespace uiutils
