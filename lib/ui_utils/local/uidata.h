#pragma once

#include "core/uiutils_export.h"
#include "local/uidataenums.h"
#include "service/kivdata.h"

#include <QMap>
#include <QQmlParserStatus>
#include <QQmlPropertyMap>
#include <QStringList>
#include <QVector>

namespace uiutils {
class UiDataPrivate;
}

/// A data item that no service publishes: a form's field, with the interface of a service item.
///
/// Everything but the value is kept as an attribute by name; the properties show the attributes. Items that QML
/// declares enter the shared UiDataContainer when they are complete, and are deleted with the object that declared
/// them. An item with a register id is known by it everywhere in the engine. C++ code sets items up with
/// setAttributes() and setEnums().
///
/// Setters emit on every write, also if nothing changes. The exceptions are `mandatory` and `valueOk`, which emit when
/// the effective flag changes, and `persistent`, which never does. Setting all attributes at once emits only
/// validatorChanged().
class UIUTILS_EXPORT UiData : public KivData, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    Q_CLASSINFO("DefaultProperty", "uiEnumList")
    /// The choices. Setting a list makes the item an enumeration.
    Q_PROPERTY(UiDataEnums* uiEnumList READ getUiEnumList WRITE setUiEnumList)
    /// What the item is called on a screen.
    Q_PROPERTY(QString label READ getLabel WRITE setLabel NOTIFY labelChanged)
    /// The object that declared the item.
    Q_PROPERTY(QObject* objectParent READ getObjectParent)
    /// Whether an entry accepts input now; true at first.
    Q_PROPERTY(bool isReady READ isReady WRITE setReady NOTIFY isReadyChanged)
    /// Whether an entry shows the item as text only.
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly NOTIFY readOnlyChanged)
    /// Whether the item has a meaning now; screens hide what has none, and containers do not wait for it.
    Q_PROPERTY(bool applicable READ isApplicable WRITE setApplicable NOTIFY applicableChanged)
    /// One line about the values that the item accepts, for example "0 - 100 dB".
    Q_PROPERTY(QString rangeDescription READ getRangeDescription NOTIFY rangeDescriptionChanged)
    /// The limits. The validator is updated when the event loop runs, so that both can be set first.
    Q_PROPERTY(QVariant minRange READ getMinRange WRITE setMinRange NOTIFY minRangeChanged)
    /// See `minRange`.
    Q_PROPERTY(QVariant maxRange READ getMaxRange WRITE setMaxRange NOTIFY maxRangeChanged)
    /// One of the TYPE_ texts; any other behaves as an integer.
    Q_PROPERTY(QString type READ getType WRITE setType NOTIFY typeChanged)
    /// The name under which all pages of the engine know the item. It can be written once.
    Q_PROPERTY(QString registerId READ getRegisterId WRITE setRegisterId)
    /// How the value is entered, a KivData::InputType.
    Q_PROPERTY(uint inputType READ getInputType WRITE setInputType NOTIFY inputTypeChanged)
    /// Whether the item adopts the stored value of its id when it enters a container.
    Q_PROPERTY(bool persistent READ isPersistent WRITE setPersistent)
    /// Whether the container waits for this item's value to be acceptable.
    Q_PROPERTY(bool mandatory READ isMandatory WRITE setMandatory NOTIFY mandatoryChanged)
    /// Whether the page accepts the value; true at first.
    Q_PROPERTY(bool valueOk READ isValueOk WRITE setValueOk NOTIFY valueOkChanged)
    /// What a text has to match; empty accepts everything. The validator is updated at once.
    Q_PROPERTY(QString regex READ getRegex WRITE setRegex NOTIFY regexChanged)
    /// For the validator property of an entry field; belongs to the item.
    Q_PROPERTY(QValidator* validator READ getValidator NOTIFY validatorChanged)
    /// The choices' values by their names.
    Q_PROPERTY(QQmlPropertyMap* enums READ getEnumMap CONSTANT)
    /// The labels of the choices, in their order.
    Q_PROPERTY(QStringList enumLabels READ getEnumLabels NOTIFY enumLabelsChanged)

public:
    /// "std::string": a text.
    static const QString TYPE_STRING;
    /// "std::vector<string>": a list of texts.
    static const QString TYPE_VEC_STRING;
    /// "std::vector<double>": a list of real numbers.
    static const QString TYPE_VEC_DOUBLE;
    /// "std::vector<int32_t>": a list of integers of 32 bits.
    static const QString TYPE_VEC_INT;
    /// "bool": true or false.
    static const QString TYPE_BOOL;
    /// "eUiEnum": one of the choices.
    static const QString TYPE_ENUM;
    /// "uint": a positive integer of 32 bits, or 0.
    static const QString TYPE_UINT;
    /// "int": an integer of 32 bits.
    static const QString TYPE_INT;
    /// "quint64": a positive integer of 64 bits, or 0.
    static const QString TYPE_UINT64;
    /// "qint64": an integer of 64 bits.
    static const QString TYPE_INT64;
    /// "double": a real number.
    static const QString TYPE_DOUBLE;

    explicit UiData(QObject* parent = nullptr);
    ~UiData() override;

    // --- The item by its attributes ---

    /// Replaces all attributes. The first "formatter" is permanent.
    void setAttributes(const QMap<QString, QVariant>& attributes);
    QVariant getAttr(QString const& key) const override;

    /// ":ui_only:NAME:" with the item's name, or with its register id when it has none.
    QString getId() const override;
    QString getName() const override;
    QString getType() const override;
    void setType(const QString& type);
    QString getLabel() const override;
    void setLabel(const QString& label);
    QString getRegex() const override;
    void setRegex(const QString& regex);
    QVariant getMinRange() const override;
    void setMinRange(const QVariant& minimum);
    QVariant getMaxRange() const override;
    void setMaxRange(const QVariant& maximum);
    void setPrecision(unsigned precision) override;
    void setInputType(unsigned inputType);
    QString getRegisterId() const;
    void setRegisterId(const QString& id);
    bool isReadOnly() const override;
    void setReadOnly(bool readOnly);
    bool isReady() const override;
    void setReady(bool ready);
    bool isApplicable() override;
    void setApplicable(bool applicable);
    bool isPersistent() const;
    void setPersistent(bool persistent);
    bool isMandatory() const;
    void setMandatory(bool mandatory);
    bool isValueOk() const;
    void setValueOk(bool valueOk);
    int getQualityCode() const override;
    QValidator* getValidator() const override;

    // --- The value ---

    /// Accepts any value as it is, read-only or not: the code that owns a form sets its fields. The elements of a
    /// vector are read from the text of the value, of which at most 1 MiB is used. An element that is no number, or in
    /// a vector of integers no integer of 32 bits, is 0.
    void setValue(QVariant value) override;
    /// Sets the elements of a vector.
    void setValue(QVector<QVariant> elements);
    QVariant getValue() const override;
    QString getValueString(bool showUnits = true) const override;
    int getValueCount() const override;
    /// The same as variantAt().
    QVariant at(int ind) const override;
    /// What was set last; before that 0, or -1 without elements.
    int getArraySelection() const override;
    /// Accepts any index, also before there are elements.
    void setArraySelection(int index) override;
    QString getArraySelectionString() const override;

    // --- The choices ---

    UiDataEnums* getUiEnumList() const;
    void setUiEnumList(UiDataEnums* list);
    /// Adds choices from the three lists, position by position; what a list lacks is empty.
    void setEnums(const QList<int>& values, const QStringList& labels, const QStringList& names);
    /// The same for choices without names.
    void setEnums(const QList<int>& values, const QStringList& labels);
    QObject* getEnums() const override;
    QQmlPropertyMap* getEnumMap() const;
    QStringList getEnumLabels() const;
    int getEnumCount() const override;

    void classBegin() override;
    void componentComplete() override;

public Q_SLOTS:
    /// A local item has no action.
    void invoke() override;
    /// A local item has no action; the reply is empty.
    QString invokeWithStringArg(QString const& arg) override;
    /// Emits applicableChanged().
    void slotApplicChanged() override;
    /// Takes the choices from the list again; emits valueChanged(), enumLabelsChanged() and enumCountChanged().
    void slotEnumUpdate();
    /// Takes limits and expression into the validator; emits validatorChanged().
    void slotValidatorUpdate();

public:
    Q_INVOKABLE QObject* getObjectParent() const;
    /// Sets the quality code to uiutils::Status::None.
    Q_INVOKABLE void setQualityNone();
    /// Sets the quality code to uiutils::Status::Pass.
    Q_INVOKABLE void setPassing();
    /// Sets the quality code to uiutils::Status::Marginal.
    Q_INVOKABLE void setWarning();
    /// Sets the quality code to uiutils::Status::Fail.
    Q_INVOKABLE void setFailing();
    Q_INVOKABLE QVariant getProperty(QString const& prop) const override;
    /// Element `ind` of a vector; undefined outside.
    Q_INVOKABLE QVariant variantAt(int ind) const override;
    /// Inserts before element `ind`, or after the last one; nothing happens for any other position.
    Q_INVOKABLE void insertAt(int ind, const QVariant& val);
    /// Removes element `at`; nothing happens outside the vector.
    Q_INVOKABLE void removeAt(int at);
    /// The same as variantAt().
    Q_INVOKABLE QVariant getArrayValue(int index) const override;
    Q_INVOKABLE void setAt(int ind, QVariant const& val) override;
    /// `enumVal` is the choice's position for enumLabel() and enumValue(), and its value for the others.
    Q_INVOKABLE QString enumLabel(int const& enumVal) override;
    Q_INVOKABLE QString enumLabelForValue(int const& enumVal) override;
    Q_INVOKABLE int enumValue(int const& enumVal) override;
    Q_INVOKABLE int enumIndex(int const& enumVal) override;
    Q_INVOKABLE bool applicableAt(int const& i) override;
    /// A local item has nothing pending.
    Q_INVOKABLE void apply() override;
    Q_INVOKABLE void revert() override;

Q_SIGNALS:
    void labelChanged();
    void enumLabelsChanged();
    void readOnlyChanged();
    /// Emitted together with KivData's signal of that name, for listeners of either.
    void isReadyChanged();
    void minRangeChanged();
    void maxRangeChanged();
    void typeChanged();
    void rangeDescriptionChanged();
    /// Emitted together with KivData's signal of that name, for listeners of either.
    void applicableChanged();
    void inputTypeChanged();
    void mandatoryChanged();
    void valueOkChanged();
    void regexChanged();
    void validatorChanged();

private:
    friend class uiutils::UiDataPrivate;
    uiutils::UiDataPrivate* const d;
};

/// A text.
class UIUTILS_EXPORT StringUiData : public UiData
{
    Q_OBJECT

public:
    explicit StringUiData(QObject* parent = nullptr);
};

/// A yes or no, with the choices "False" and "True".
class UIUTILS_EXPORT BoolUiData : public UiData
{
    Q_OBJECT

public:
    explicit BoolUiData(QObject* parent = nullptr);
};

/// One of the choices that are declared in it.
class UIUTILS_EXPORT EnumUiData : public UiData
{
    Q_OBJECT

public:
    explicit EnumUiData(QObject* parent = nullptr);
};
