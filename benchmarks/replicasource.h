#pragma once

#include <QVariant>

namespace bench {

/// The properties of an item that can travel between processes: all but the objects.
class ReplicaSource : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString id MEMBER m_text CONSTANT)
    Q_PROPERTY(QString name MEMBER m_text CONSTANT)
    Q_PROPERTY(QString type MEMBER m_text CONSTANT)
    Q_PROPERTY(uint inputType MEMBER m_number CONSTANT)
    Q_PROPERTY(uint precision MEMBER m_number NOTIFY precisionChanged)
    Q_PROPERTY(QString label MEMBER m_text CONSTANT)
    Q_PROPERTY(QString regex MEMBER m_text CONSTANT)
    Q_PROPERTY(bool readOnly MEMBER m_isTrue CONSTANT)
    Q_PROPERTY(QVariant value MEMBER m_value NOTIFY valueChanged)
    Q_PROPERTY(bool isReady MEMBER m_isTrue NOTIFY isReadyChanged)
    Q_PROPERTY(uint qualityCode MEMBER m_number NOTIFY qualityCodeChanged)
    Q_PROPERTY(QString error MEMBER m_text NOTIFY errorChanged)
    Q_PROPERTY(QString valueString MEMBER m_text NOTIFY valueChanged)
    Q_PROPERTY(QString valueStringNoUnits MEMBER m_text NOTIFY valueChanged)
    Q_PROPERTY(QString unitString MEMBER m_text NOTIFY unitsChanged)
    Q_PROPERTY(uint arraySelection MEMBER m_number NOTIFY arraySelectionChanged)
    Q_PROPERTY(QString arraySelectionString MEMBER m_text NOTIFY arraySelectionChanged)
    Q_PROPERTY(uint enumCount MEMBER m_number NOTIFY enumCountChanged)
    Q_PROPERTY(uint valueCount MEMBER m_number NOTIFY valueCountChanged)
    Q_PROPERTY(bool applicable MEMBER m_isTrue NOTIFY applicableChanged)
    Q_PROPERTY(QVariant minRange MEMBER m_value CONSTANT)
    Q_PROPERTY(QVariant maxRange MEMBER m_value CONSTANT)
    Q_PROPERTY(QString rangeDescription MEMBER m_text CONSTANT)

public:
    explicit ReplicaSource(QObject* parent = nullptr);
    ~ReplicaSource() override;

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
    QString m_text;
    QVariant m_value;
    uint m_number = 0;
    bool m_isTrue = true;
};

} // namespace bench
