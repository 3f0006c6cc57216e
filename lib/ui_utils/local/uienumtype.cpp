#include "local/uienumtype.h"

UiEnumType::UiEnumType(QObject* parent)
    : QObject(parent)
{
}

UiEnumType::UiEnumType(QObject* parent, const QString& label, const QString& name, int value, bool applicable)
    : QObject(parent)
    , m_label(label)
    , m_name(name)
    , m_value(value)
    , m_applicable(applicable)
{
}

UiEnumType::~UiEnumType() = default;

void UiEnumType::setLabel(const QString& label)
{
    m_label = label;
    Q_EMIT labelChanged();
}

void UiEnumType::setValue(int value)
{
    m_value = value;
    Q_EMIT valueChanged();
}

void UiEnumType::setApplicable(bool applicable)
{
    if (applicable == m_applicable)
        return;
    m_applicable = applicable;
    Q_EMIT applicableChanged();
}
