#include "core/status.h"
#include "core/userdata.h"
#include "document/reporttemplate.h"
#include "document/tablerows.h"
#include "files/fileutils.h"
#include "files/screenshot.h"
#include "local/uidata.h"
#include "languages/languages.h"
#include "local/uidatacontainer.h"
#include "report/drafts/reportdraft.h"
#include "report/nsreport.h"
#include "report/pagereport.h"
#include "report/report.h"
#include "report/reportpreview.h"
#include "report/savedreports.h"
#include "service/forgivingvalidator.h"
#include "service/kivaggregatedata.h"
#include "service/kivlistaggregatedata.h"
#include "service/kivsignal.h"
#include "service/manifest.h"
#include "service/qmlaggregate.h"
#include "service/qmllistaggregate.h"
#include "service/pendingchanges.h"
#include "service/rowfilter.h"
#include "service/serviceitems.h"
#include "templ2xmlwriter/templatetoxmlwriter.h"
#include "ui_host/host.h"
#include "writers/html/htmlstreamwriter.h"
#include "writers/pdffile/pdffile.h"

#include <kiv/kivnotificationmodelmanager.h>

#include <QQmlPropertyMap>
#include <QtTest>

#include <cxxabi.h>

#include <cstring>
#include <memory>
#include <type_traits>
#include <typeinfo>

/// Makes the protected members of a class accessible.
struct KivDataProbe : KivData
{
    void slotValueChanged() override { }
    void slotUnitsChanged() override { }
    void slotChoicesChanged() override { }
    void slotIsReadyChanged() override { }
    void slotQualityChanged() override { }
};
struct ReportProbe : Report
{
    using Report::ensureValidJobData, Report::keepsReportName, Report::overwriteAsked, Report::overwriteDeclined;
    using Report::prepareDocument, Report::reportWritten, Report::saveFailed, Report::saveStarted, Report::saveSucceeded;
    using Report::settingsLoaded, Report::updateJobTestMetadata, Report::writeMetadata;
};

/// Its operation has the first place after those of the base.
template<typename Base> struct Next : Base
{
    virtual void next() { }
};

/// The place in the virtual table that a pointer to a virtual operation holds; -1 if the operation is not virtual.
template<typename Member> std::ptrdiff_t placeOf(Member member)
{
    std::ptrdiff_t words[2];
    static_assert(sizeof member == sizeof words);
    std::memcpy(words, &member, sizeof words);
    const auto size = std::ptrdiff_t(sizeof(void*));
#ifdef Q_PROCESSOR_ARM
    // Code addresses may be odd there, so that the mark is in the second word.
    return words[1] & 1 ? words[0] / size : -1;
#else
    return words[0] & 1 ? (words[0] - 1) / size : -1;
#endif
}

struct Operation
{
    QString name, declaration, declaredBy;
    std::ptrdiff_t place = -1;
};

template<typename Member> Operation operation(const char* name, Member member)
{
    const QScopedPointer<char, QScopedPointerPodDeleter> type(
            abi::__cxa_demangle(typeid(Member).name(), nullptr, nullptr, nullptr));
    // "QVariant (KivData::*)(int) const"
    static const QRegularExpression parts("^(.+) \\(([\\w:]+)::\\*\\)(.+)$");
    const QRegularExpressionMatch match = parts.match(QString(type.data()));
    return {name, match.captured(1) + " " + name + match.captured(3), match.captured(2), placeOf(member)};
}
#define O(name) operation(#name, &Item::name)

/// The public operations of an item, in no particular order.
template<typename Item> QVector<Operation> itemOperations()
{
    return {O(apply), O(applicableAt), O(at), O(enumIndex), O(enumLabel), O(enumLabelForValue), O(enumValue), O(getArraySelection),
            O(getArraySelectionString), O(getArrayValue), O(getAttr), O(getBaseFormatter), O(getClient), O(getEnumCount),
            O(getEnums), O(getError), O(getId), O(getInputType), O(getLabel), O(getMaxRange), O(getMinRange), O(getName),
            O(getPrecision), O(getProperty), O(getQmlTag), O(getQualityCode), O(getRangeDescription), O(getRegex), O(getType),
            O(getUnitString), O(getValidator), O(getValue), O(getValueCount), O(getValueString), O(getValueStringNoUnits),
            O(invoke), O(invokeWithStringArg), O(isApplicable), O(isReadOnly), O(isReady), O(revert), O(setArraySelection),
            O(setAt), O(setPrecision), O(slotApplicChanged), O(variantAt),
            operation("setValue", static_cast<void (Item::*)(QVariant)>(&Item::setValue))};
}

QVector<Operation> kivDataOperations()
{
    using Item = KivDataProbe;
    return itemOperations<KivData>() << O(slotValueChanged) << O(slotUnitsChanged) << O(slotChoicesChanged)
                                     << O(slotIsReadyChanged) << O(slotQualityChanged);
}

template<typename Item> QVector<Operation> declaredOperations()
{
    return {O(classBegin), O(componentComplete)};
}

QVector<Operation> reportOperations()
{
    using Item = ReportProbe;
    return {O(cannotGenerateReportMessage), O(ensureValidJobData), O(generateHtmlReport), O(generateJobManagerReport),
            O(generateJsonReport), O(generatePDFReport), O(generateTxtReport), O(generateXmlReport), O(getCdmTestLabel),
            O(getCdmTestType), O(getConstSetting), O(getReportFilePath), O(getSaveFilePath), O(getSetting), O(hasCustomPDF),
            O(keepsReportName), O(overwriteAsked), O(overwriteDeclined), O(prepareDocument), O(proposedFileName),
            O(reportWritten), O(save), O(saveFailed), O(saveStarted), O(saveSucceeded), O(setCdmTestTypeAndLabel),
            O(setCustomDefaultReportName), O(settingsLoaded), O(startPossibleSave), O(updateJobTestMetadata), O(writeJsonReport),
            O(writeMetadata), O(writeTextReport), O(writeXmlReport)};
}

#define TEXT(Class, name) QString("constant " #name " %1").arg(Class::name)

/// The actual class.
struct Face
{
    const QMetaObject* type;
    /// Creates an object; null for a class that is not created without arguments.
    QObject* (*make)();
    QVector<Operation> operations;
    QStringList constants, size;
    /// The first place in the virtual table that is the class's own, and the one after the last.
    std::ptrdiff_t first, end;
};

template<typename Class> QObject* make()
{
    if constexpr (std::is_default_constructible_v<Class>)
        return new Class;
    else
        return nullptr;
}

/// Without a base the virtual table is not compared: nobody can derive from the class, or the platform decides.
template<typename Class, typename Base = void>
Face face(const QVector<Operation>& operations = {}, const QStringList& constants = {})
{
    if constexpr (std::is_void_v<Base>)
        return {&Class::staticMetaObject, make<Class>, operations, constants, {}, 0, 0};
    else
        return {&Class::staticMetaObject, make<Class>, operations, constants,
                {QString("size %1 pointers").arg(double(sizeof(Class)) / sizeof(void*))}, placeOf(&Next<Base>::next),
                placeOf(&Next<Class>::next)};
}

const QVector<Face>& faces()
{
    using Validator = ForgivingValidator;
    const auto validate = static_cast<Validator::ValidatorState (Validator::*)(QString, int)>(&Validator::validate);
    static const QVector<Face> all {face<uiutils::Host, QObject>(), face<Manifest, QObject>(), face<KIVSignal, QObject>(), face<UiEnumType, QObject>(),
            face<UiDataContainer, QObject>(), face<ReportTemplate, QObject>(), face<uiutils::TableRows, QObject>(), face<PDFFile, QObject>(),
            face<FileUtils, QObject>(), face<Screenshot, QObject>(), face<KivAggregateData, KivData>(),
            face<KivListAggregateData, KivData>(), face<QMLListAggregate, QAbstractListModel>(), face<StringUiData, UiData>(),
            face<uiutils::PageReport, Report>(), face<uiutils::ReportPreview, QAbstractListModel>(), face<uiutils::SavedReports, QAbstractListModel>(), face<uiutils::RowFilter, QSortFilterProxyModel>(), face<uiutils::PendingChanges, QAbstractListModel>(), face<uiutils::ServiceItems>(), face<BoolUiData, UiData>(), face<EnumUiData, UiData>(), face<UserData>(), face<uiutils::Languages>(), face<uiutils::Status>(), face<uiutils::Alignment>(), face<KIVClientInterface>(),
            face<BaseFormatter>(), face<KIVNotification>(), face<KIVNotificationModelManager>(),
            face<Validator, QRegularExpressionValidator>({operation("validate", validate)}),
            face<UiDataEnums, QObject>(declaredOperations<UiDataEnums>()),
            face<uiutils::ReportDraft, QObject>(declaredOperations<uiutils::ReportDraft>()), face<KivData, QObject>(kivDataOperations()),
            face<UiData, KivData>(itemOperations<UiData>() + declaredOperations<UiData>(),
                    {TEXT(UiData, TYPE_STRING), TEXT(UiData, TYPE_VEC_STRING), TEXT(UiData, TYPE_VEC_DOUBLE),
                            TEXT(UiData, TYPE_VEC_INT), TEXT(UiData, TYPE_BOOL), TEXT(UiData, TYPE_ENUM), TEXT(UiData, TYPE_UINT),
                            TEXT(UiData, TYPE_INT), TEXT(UiData, TYPE_UINT64), TEXT(UiData, TYPE_INT64), TEXT(UiData, TYPE_DOUBLE)}),
            face<Report, QObject>(reportOperations(),
                    {TEXT(Report, PDF_EXTENSION), TEXT(Report, XML_EXTENSION), TEXT(Report, HTML_EXTENSION),
                            TEXT(Report, TXT_EXTENSION), TEXT(Report, JSON_EXTENSION), TEXT(Report, SOR_EXTENSION),
                            TEXT(Report, GZIP_EXTENSION), TEXT(NSReport, REPORT_FORMAT_PDF), TEXT(NSReport, REPORT_FORMAT_XML),
                            TEXT(NSReport, REPORT_FORMAT_HTML), TEXT(NSReport, REPORT_FORMAT_TEXT),
                            TEXT(NSReport, REPORT_FORMAT_JSON), TEXT(NSReport, REPORT_FORMAT_ALL)})};
    return all;
}

QString textOf(const QVariant& value)
{
    if (QMetaType(value.userType()).flags() & QMetaType::PointerToQObject)
        return value.value<QObject*>() ? "object" : "null";
    const QString text = value.toString();
    return value.type() == QVariant::String ? '"' + text + '"' : text.isEmpty() ? "nothing" : text;
}

QString propertyLine(const QMetaProperty& property, const QObject* fresh)
{
    return QString("property %1 %2").arg(property.typeName(), property.name()) + (property.isConstant() ? " constant" : "")
            + (property.isWritable() ? " writable" : "")
            + (property.hasNotifySignal() ? " " + property.notifySignal().name() : QByteArray())
            + (fresh ? " = " + textOf(property.read(fresh)) : QString());
}

/// Parameters after the first `needed` have a default.
QString methodLine(const QMetaMethod& method, int needed)
{
    static const QStringList accesses {"private ", "protected ", ""}, kinds {"method", "signal", "slot"};
    QStringList parameters;
    for (int i = 0; i < method.parameterCount(); ++i) {
        const QString parameter = QString("%1 %2").arg(method.parameterTypes().at(i), method.parameterNames().at(i));
        parameters += i < needed ? parameter : "[" + parameter + "]";
    }
    return QString("%1%2 %3 %4(%5)").arg(accesses.value(method.access()), kinds.value(method.methodType()), method.typeName(),
            method.name(), parameters.join(", "));
}

QStringList metaLines(const QMetaObject& type, const QObject* fresh)
{
    QStringList lines;
    const int defaultProperty = type.indexOfClassInfo("DefaultProperty");
    if (defaultProperty >= type.classInfoOffset())
        lines += QString("default %1").arg(type.classInfo(defaultProperty).value());
    for (int i = type.enumeratorOffset(); i < type.enumeratorCount(); ++i) {
        const QMetaEnum keys = type.enumerator(i);
        for (int key = 0; key < keys.keyCount(); ++key)
            lines += QString("enum %1 : %2 %3").arg(keys.name(), keys.key(key)).arg(keys.value(key));
    }
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i)
        lines += propertyLine(type.property(i), fresh);
    // A default appears as further methods after the complete one, each with one parameter less.
    for (int i = type.methodOffset(), last = 0; i < type.methodCount(); i = last) {
        for (last = i + 1; last < type.methodCount() && type.method(last).attributes() & QMetaMethod::Cloned;)
            ++last;
        lines += methodLine(type.method(i), type.method(last - 1).parameterCount());
    }
    return lines;
}

/// Members before the class's own first place belong to its bases.
QStringList virtualLines(const Face& face)
{
    QMap<std::ptrdiff_t, QString> places;
    for (std::ptrdiff_t place = face.first; place < face.end; ++place)
        places[place] = "virtual, of which the test knows nothing";
    for (const Operation& operation : face.operations) {
        if (operation.place < 0 || operation.place >= face.first)
            places[operation.place] = (operation.place < 0 ? "no longer virtual " : "virtual ") + operation.declaration;
    }
    return places.values();
}

/// The lines of the file of a class, without the comments.
QStringList table(const QString& name)
{
    QFile file(UIUTILS_TEST_DATA_DIR "/contract/" + name + ".txt");
    file.open(QIODevice::ReadOnly);
    return QString::fromUtf8(file.readAll()).split('\n').filter(QRegularExpression("^[^#]"));
}

/// The published classes compared with their written descriptions: what a program that was built against an earlier
/// library relies on.
class ContractTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void classes_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < faces().size(); ++i)
            QTest::newRow(faces().at(i).type->className()) << i;
        QCOMPARE(QDir(UIUTILS_TEST_DATA_DIR "/contract").entryList({"*.txt"}).size(), faces().size());
    }
    void classes()
    {
        QFETCH(int, index);
        const Face& face = faces().at(index);
        const QString name = QString(face.type->className()).section("::", -1);
        const QMetaObject* const base = face.type->superClass();
        const std::unique_ptr<QObject> fresh(face.make());
        QStringList expected = table(name);
        QVERIFY(!expected.isEmpty());
        for (const Operation& operation : face.operations) {
            if (expected.removeAll("override " + operation.name) > 0)
                QVERIFY2(operation.declaredBy == name && operation.place < face.first, qPrintable(operation.name));
        }
        QCOMPARE(expected.takeFirst().section(',', 0, 0),
                QString("class %1 : %2").arg(name, base ? base->className() : "nothing"));
        const QStringList actual = face.size + metaLines(*face.type, fresh.get()) + virtualLines(face) + face.constants;
        for (int i = 0; i < qMax(actual.size(), expected.size()); ++i)
            QCOMPARE(actual.value(i), expected.value(i));
    }

    /// Applications that derive from the wrapper of an item get these answers until they override them.
    void aWrapperWithoutItem()
    {
        KivData none;
        none.setValue(1);
        none.setAt(0, 1);
        const QVariantList values {none.getValue(), none.at(0), none.variantAt(0), none.getArrayValue(0), none.getProperty("x"),
                none.getAttr("x")};
        QCOMPARE(values.count(QVariant()), values.size());
        QCOMPARE(none.getQmlTag() + none.enumLabel(0) + none.enumLabelForValue(0) + none.invokeWithStringArg("x"), QString());
        QVERIFY(none.enumValue(0) == -1 && none.enumIndex(0) == -1 && !none.applicableAt(0));
    }

    void whatHasNoTable()
    {
        // A meta-object of its own would hide the keys of an aggregate from pages.
        QCOMPARE(&QMLAggregate::staticMetaObject, &QQmlPropertyMap::staticMetaObject);
        // A virtual destructor has two places, for objects on the heap and for all others.
        QCOMPARE(placeOf(&Next<TemplateToXmlWriter>::next), std::ptrdiff_t(2));
        QCOMPARE(placeOf(&Next<HtmlStreamWriter>::next), std::ptrdiff_t(2));
    }
};

QTEST_GUILESS_MAIN(ContractTest)
#include "tst_contract.moc"
