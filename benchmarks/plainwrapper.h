#pragma once

#include <QIntValidator>
#include <QVariant>

class BaseFormatter;
class KIVClientInterface;
class KIVClientItem;

namespace bench {

/// What a programmer would write by hand in the place of KivData: the same properties, each read from a
/// member, a validator, and five connections that keep the members up to date.
class PlainWrapper : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString id MEMBER m_id CONSTANT)
    Q_PROPERTY(QString name MEMBER m_name CONSTANT)
    Q_PROPERTY(QString type MEMBER m_type CONSTANT)
    Q_PROPERTY(uint inputType MEMBER m_inputType CONSTANT)
    Q_PROPERTY(uint precision MEMBER m_precision NOTIFY precisionChanged)
    Q_PROPERTY(QString label MEMBER m_label CONSTANT)
    Q_PROPERTY(QString regex MEMBER m_regex CONSTANT)
    Q_PROPERTY(bool readOnly MEMBER m_readOnly CONSTANT)
    Q_PROPERTY(QObject* enums MEMBER m_enums CONSTANT)
    Q_PROPERTY(QVariant value MEMBER m_value NOTIFY valueChanged)
    Q_PROPERTY(bool isReady MEMBER m_isReady NOTIFY isReadyChanged)
    Q_PROPERTY(int qualityCode MEMBER m_qualityCode NOTIFY qualityCodeChanged)
    Q_PROPERTY(QString error MEMBER m_error NOTIFY errorChanged)
    Q_PROPERTY(QString valueString MEMBER m_valueString NOTIFY valueChanged)
    Q_PROPERTY(QString valueStringNoUnits MEMBER m_valueStringNoUnits NOTIFY valueChanged)
    Q_PROPERTY(QString unitString MEMBER m_unitString NOTIFY unitsChanged)
    Q_PROPERTY(int arraySelection MEMBER m_arraySelection NOTIFY arraySelectionChanged)
    Q_PROPERTY(QString arraySelectionString MEMBER m_arraySelectionString NOTIFY arraySelectionChanged)
    Q_PROPERTY(int enumCount MEMBER m_enumCount NOTIFY enumCountChanged)
    Q_PROPERTY(int valueCount MEMBER m_valueCount NOTIFY valueCountChanged)
    Q_PROPERTY(bool applicable MEMBER m_applicable NOTIFY applicableChanged)
    Q_PROPERTY(QVariant minRange MEMBER m_minRange CONSTANT)
    Q_PROPERTY(QVariant maxRange MEMBER m_maxRange CONSTANT)
    Q_PROPERTY(QString rangeDescription MEMBER m_rangeDescription CONSTANT)
    Q_PROPERTY(KIVClientInterface* client MEMBER m_client CONSTANT)
    Q_PROPERTY(BaseFormatter* formatter MEMBER m_formatter CONSTANT)
    Q_PROPERTY(QValidator* validator MEMBER m_validator CONSTANT)

public:
    PlainWrapper(const KIVClientItem* item, QObject* parent);
    ~PlainWrapper() override;

Q_SIGNALS:
    void precisionChanged();
    void valueChanged();
    void isReadyChanged();
    void qualityCodeChanged();
    void errorChanged();
    void unitsChanged();
    void arraySelectionChanged();
    void enumCountChanged();
    void valueCountChanged();
    void applicableChanged();

private:
    void updateValue();
    void updateUnits();
    void updateReady();
    void updateQuality();
    void updateApplicable();

    const KIVClientItem* m_item;
    QString m_id;
    QString m_name;
    QString m_type;
    uint m_inputType = 0;
    uint m_precision = 0;
    QString m_label;
    QString m_regex;
    bool m_readOnly = false;
    QObject* m_enums = nullptr;
    QVariant m_value;
    bool m_isReady = true;
    int m_qualityCode = 0;
    QString m_error;
    QString m_valueString;
    QString m_valueStringNoUnits;
    QString m_unitString;
    int m_arraySelection = -1;
    QString m_arraySelectionString;
    int m_enumCount = 0;
    int m_valueCount = 0;
    bool m_applicable = true;
    QVariant m_minRange;
    QVariant m_maxRange;
    QString m_rangeDescription;
    KIVClientInterface* m_client = nullptr;
    BaseFormatter* m_formatter = nullptr;
    QValidator* m_validator;
};

/// Six properties of an item as a programmer would write them by hand, with the notifiers that KivData has
/// for them.
class PlainLabels : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(QString valueString READ valueString NOTIFY valueChanged)
    Q_PROPERTY(QString unitString READ unitString NOTIFY unitsChanged)
    Q_PROPERTY(int qualityCode READ qualityCode NOTIFY qualityCodeChanged)
    Q_PROPERTY(QString rangeDescription READ rangeDescription CONSTANT)
    Q_PROPERTY(bool isReady READ isReady NOTIFY isReadyChanged)

public:
    explicit PlainLabels(QObject* parent = nullptr);
    ~PlainLabels() override;

    QVariant value() const { return m_value; }
    void setValue(const QVariant& value);
    QString valueString() const;
    QString unitString() const { return m_unit; }
    int qualityCode() const { return m_quality; }
    QString rangeDescription() const { return m_range; }
    bool isReady() const { return m_isReady; }

Q_SIGNALS:
    void valueChanged();
    void unitsChanged();
    void qualityCodeChanged();
    void isReadyChanged();

private:
    QVariant m_value;
    QString m_unit;
    QString m_range;
    int m_quality;
    bool m_isReady = true;
};

/// A context object with one name for one object. Bindings read it faster than a property of the context.
class PlainNames : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bench::PlainLabels* bench_cfg_int_0 MEMBER m_labels CONSTANT)

public:
    explicit PlainNames(PlainLabels* labels, QObject* parent = nullptr);
    ~PlainNames() override;

private:
    PlainLabels* m_labels;
};

} // namespace bench
