#pragma once

#include "core/uiutils_export.h"

#include <kiv/baseformatter.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <QObject>
#include <QString>
#include <QValidator>
#include <QVariant>

#include <initializer_list>
#include <memory>

class Manifest;

namespace uiutils {
class KivDataPrivate;
}

/// One service item as QML sees it.
///
/// A wrapper follows its item: what the service reports becomes a property change here, and a write to `value` is sent
/// to the service, or held back while the Manifest isChanging(). Only items whose id begins with ":config" can be
/// written.
///
/// **Ownership**: a wrapper belongs to its Manifest, the QObject parent. Everything that it hands out (validator,
/// formatter, `enums`) belongs to the wrapper.
///
/// **Without an item**, because the service vanished or never had one, a wrapper is not ready, keeps its last value and
/// returns neutral values elsewhere: no units, quality 0, no choices. When an item of the same id returns, the wrapper
/// follows it, and every notifier is emitted once.
///
/// Slots may delete the wrapper. A slot of valueChanged() may write the value again. This ends when a write changes
/// nothing; a value that has not settled after 100 rounds stays as it is, with a warning.
class UIUTILS_EXPORT KivData : public QObject
{
    Q_OBJECT
    /// The item's full id, for example ":config:basemgr:system:saveLocation:".
    Q_PROPERTY(QString id READ getId CONSTANT)
    /// The item's own short name, for example "saveLocation".
    Q_PROPERTY(QString name READ getName CONSTANT)
    /// The name of the value's type, for example "std::string" or "double".
    Q_PROPERTY(QString type READ getType CONSTANT)
    /// How the value is entered, an InputType.
    Q_PROPERTY(uint inputType READ getInputType CONSTANT)
    /// Decimals of a real number. Writing does nothing: the service decides.
    Q_PROPERTY(uint precision READ getPrecision WRITE setPrecision NOTIFY precisionChanged)
    /// What the item is called on a screen.
    Q_PROPERTY(QString label READ getLabel CONSTANT)
    /// The regular expression that a text has to match.
    Q_PROPERTY(QString regex READ getRegex CONSTANT)
    /// False only for settings.
    Q_PROPERTY(bool readOnly READ isReadOnly CONSTANT)
    /// The values of an enumeration's choices by their names, as in `item.enums.Internal`; null for other items. A
    /// new object after the choices have changed.
    Q_PROPERTY(QObject* enums READ getEnums CONSTANT)
    /// The value; a pending one during a transaction.
    Q_PROPERTY(QVariant value READ getValue WRITE setValue NOTIFY valueChanged)
    /// Whether the service can provide or accept the value now.
    Q_PROPERTY(bool isReady READ isReady NOTIFY isReadyChanged)
    /// A code of uiutils::Status.
    Q_PROPERTY(int qualityCode READ getQualityCode NOTIFY qualityCodeChanged)
    /// Why the last rejected write was rejected, in words for the user; empty before the first.
    Q_PROPERTY(QString error READ getError NOTIFY errorChanged)
    /// The value as a user reads it, with its unit.
    Q_PROPERTY(QString valueString READ getValueString NOTIFY valueChanged)
    /// The value as a user reads it, without its unit.
    Q_PROPERTY(QString valueStringNoUnits READ getValueStringNoUnits NOTIFY valueChanged)
    /// The unit in `valueString`, for example "dB"; empty without one.
    Q_PROPERTY(QString unitString READ getUnitString NOTIFY unitsChanged)
    /// The selected element of an array item, from 0; -1 without elements. Kept under the item's id until the process
    /// ends.
    Q_PROPERTY(int arraySelection READ getArraySelection WRITE setArraySelection NOTIFY arraySelectionChanged)
    /// The selected element as text.
    Q_PROPERTY(QString arraySelectionString READ getArraySelectionString NOTIFY arraySelectionChanged)
    /// Number of an enumeration's choices; 0 for other items.
    Q_PROPERTY(int enumCount READ getEnumCount NOTIFY enumCountChanged)
    /// Number of an array's elements; 0 for other items.
    Q_PROPERTY(int valueCount READ getValueCount NOTIFY valueCountChanged)
    /// Whether the item has a meaning now; screens hide what has none.
    Q_PROPERTY(bool applicable READ isApplicable NOTIFY applicableChanged)
    /// The limits of the value, for a text those of its length; undefined without a limit.
    Q_PROPERTY(QVariant minRange READ getMinRange CONSTANT)
    /// See `minRange`.
    Q_PROPERTY(QVariant maxRange READ getMaxRange CONSTANT)
    /// One line about the values that the item accepts, for example "0 - 100 dB".
    Q_PROPERTY(QString rangeDescription READ getRangeDescription CONSTANT)
    /// The client of the item's service; null for an item without one.
    Q_PROPERTY(KIVClientInterface* client READ getClient CONSTANT)
    /// Turns values into texts; null for items without one.
    Q_PROPERTY(BaseFormatter* formatter READ getBaseFormatter CONSTANT)
    /// For the validator property of an entry field.
    Q_PROPERTY(QValidator* validator READ getValidator CONSTANT)

public:
    /// Which entry field or keyboard suits the value. The spelling of INPUT_DURATIO is what pages use.
    enum InputType : unsigned {
        INPUT_UNSPECIFIED = 0,
        INPUT_IP = 1,
        INPUT_IPV4 = 2,
        INPUT_IPV6 = 3,
        INPUT_MAC = 4,
        INPUT_HEX = 5,
        INPUT_OCTAL = 6,
        INPUT_BINARY = 7,
        INPUT_ALPHANUMERIC = 8,
        INPUT_INT = 9,
        INPUT_POSITIVE_INT = 10,
        INPUT_FLOAT = 11,
        INPUT_POSITIVE_FLOAT = 12,
        INPUT_DURATIO = 13,
        INPUT_FILENAME = 14,
        INPUT_URL = 15,
        INPUT_FULL = 16,
        INPUT_PASSWORD = 17,
        INPUT_DIGITS = 18,
        INPUT_PHONE_NUMBER = 19,
    };
    Q_ENUM(InputType)

    /// A wrapper without an item, for derived classes that keep their value themselves.
    explicit KivData(QObject* parent = nullptr);
    /// A wrapper of `item`, which stays its owner's, as a child of `manifest`.
    KivData(KIVClientItem* item, Manifest* manifest);
    ~KivData() override;

    // --- The order of these is part of the binary interface. ---

    /// Element `ind` of an array, from 0; undefined outside it. at() and getArrayValue() are the same.
    Q_INVOKABLE virtual QVariant variantAt(int ind) const;
    /// The name under which QML knows the item: manifest's tag, "act", "res" or "cfg", and the item's name, joined by
    /// "_". Empty without an item or a manifest.
    virtual QString getQmlTag() const;
    virtual QString getId() const;
    virtual QString getName() const;
    virtual QString getType() const;
    virtual unsigned getInputType() const;
    virtual unsigned getPrecision() const;
    virtual void setPrecision(unsigned precision);
    virtual QString getLabel() const;
    virtual QString getRegex() const;
    virtual QObject* getEnums() const;
    virtual QVariant getValue() const;
    virtual QString getValueString(bool showUnits = true) const;
    virtual QString getValueStringNoUnits() const;
    virtual QString getUnitString() const;
    virtual QValidator* getValidator() const;
    /// Sends `value` to the service, or holds it back while the manifest is changing. Nothing happens without a client
    /// and on a read-only item. A value that the service rejects changes nothing; errorChanged() says why.
    virtual void setValue(QVariant value);
    virtual int getArraySelection() const;
    /// Accepts 0 to valueCount - 1. Any other index changes nothing.
    virtual void setArraySelection(int index);
    virtual QString getArraySelectionString() const;
    virtual bool isReady() const;
    virtual int getQualityCode() const;
    virtual bool isApplicable();
    virtual QVariant getMinRange() const;
    virtual QVariant getMaxRange() const;
    virtual KIVClientInterface* getClient() const;
    virtual BaseFormatter* getBaseFormatter() const;
    virtual QString getError() const;
    virtual int getEnumCount() const;
    virtual int getValueCount() const;
    virtual QString getRangeDescription() const;
    /// The same as variantAt().
    Q_INVOKABLE virtual QVariant at(int ind) const;
    /// The same as variantAt().
    Q_INVOKABLE virtual QVariant getArrayValue(int index) const;
    /// The item's attribute of that name; undefined without one.
    Q_INVOKABLE virtual QVariant getProperty(QString const& prop) const;
    /// Replaces element `ind` of an array and sets the array like `value`; nothing happens outside it.
    Q_INVOKABLE virtual void setAt(int ind, QVariant const& val);
    virtual bool isReadOnly() const;
    /// The label of the choice at a position from 0; empty outside.
    Q_INVOKABLE virtual QString enumLabel(int const& index);
    /// The label of the choice with a value; empty without one.
    Q_INVOKABLE virtual QString enumLabelForValue(int const& index);
    /// The value of the choice at a position from 0; -1 outside.
    Q_INVOKABLE virtual int enumValue(int const& index);
    /// The position of the choice with a value; -1 without one.
    Q_INVOKABLE virtual int enumIndex(int const& value);
    /// Whether the choice at a position from 0 may be selected now; false outside.
    Q_INVOKABLE virtual bool applicableAt(int const& index);
    /// Sends the pending value of this item alone.
    Q_INVOKABLE virtual void apply();
    /// Discards the pending value. Only the last write is undone: of two writes, the first one's value is held
    /// afterwards.
    Q_INVOKABLE virtual void revert();

public Q_SLOTS:
    /// Carries out the item's action.
    virtual void invoke();
    /// Carries out the item's action with an argument and returns the service's reply. Waits for at most 500 ms.
    virtual QString invokeWithStringArg(QString const& arg);
    /// The service has reported whether the item has a meaning: emits applicableChanged().
    virtual void slotApplicChanged();

private Q_SLOTS:
    virtual void slotValueChanged();
    virtual void slotUnitsChanged();
    virtual void slotChoicesChanged();
    virtual void slotIsReadyChanged();
    virtual void slotQualityChanged();

public:
    /// The item's attribute of that name; invalid without one.
    virtual QVariant getAttr(QString const& key) const;

    // --- End of the ordered part. ---

    /// Holds `value` and emits valueCountChanged() for an array, then valueChanged().
    void setValueInternal(QVariant& value);
    /// Publishes the client's last error through `error` and errorChanged().
    void checkAppError();

Q_SIGNALS:
    /// A write was rejected. `id` is the item's short name; `error` is in words for the user.
    void errorChanged(QString id, QString error);
    void valueChanged();
    void unitsChanged();
    void valueCountChanged();
    void qualityCodeChanged();
    void applicableChanged();
    void enumCountChanged();
    void isReadyChanged();
    void arraySelectionChanged();
    void precisionChanged();

protected:
    /// For derived classes of the library, whose private parts derive from those of the wrapper.
    KivData(std::unique_ptr<uiutils::KivDataPrivate> parts, QObject* parent);
    /// The same for a wrapper of `item`.
    KivData(std::unique_ptr<uiutils::KivDataPrivate> parts, KIVClientItem* item, Manifest* manifest);

    /// The wrapped item; null while there is none.
    KIVClientItem* item() const;
    /// The manifest that the wrapper belongs to; null without one.
    Manifest* manifest() const;
    /// Keeps a value and passes it to the formatter; emits nothing.
    void holdValue(QVariant value);
    /// The same for a value that the service reports.
    void holdReport(const QVariant& value);
    /// Announces a written value, signal by signal. If an announcement is running already, this happens after it.
    void announce(std::initializer_list<void (KivData::*)()> steps);
    /// Whether a write is to be carried out. A handler's write is not if it changes nothing of what was announced, or
    /// after too many rounds.
    bool mayWrite(bool isChange);
    /// Creates the formatter of that name unless there is a formatter already.
    void adoptFormatter(const QString& name);
    /// The validator for what the accessors return, created by the first call.
    QValidator* currentValidator() const;
    /// Updates the validator, if there is one, from what the accessors return; emits nothing.
    void updateValidator();
    /// Replaces the validator; the old one is deleted when the event loop runs.
    void renewValidator();
    /// Ends a pending change when the service itself reports a setting.
    void settleReport();
    /// Publishes why a write was not even tried through `error` and errorChanged().
    void reject(const QString& error);
    /// Writes an array, an aggregate or a single value by the rules of setValue() without looking at choices. False if
    /// there was nothing to do, see mayWrite().
    bool writeValue(QVariant value);

private:
    friend class uiutils::KivDataPrivate;
    void announceCount();
    /// Emits the signal of a changed selection if anybody has requested the selection.
    void announceSelection();

    const std::unique_ptr<uiutils::KivDataPrivate> d;
};
