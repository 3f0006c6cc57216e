#include "local/uienumtype.h"

class uiutils::UiEnumTypePrivate
{
public:
    QString label;
    QString name;
    int value = 0;
    bool isApplicable = true;
};

UiEnumType::UiEnumType(QObject* parent)
    : UiEnumType(parent, QString(), QString(), 0, true)
{
}

UiEnumType::UiEnumType(QObject* parent, const QString& label, const QString& name, int value, bool applicable)
    : QObject(parent)
    , d(new uiutils::UiEnumTypePrivate {label, name, value, applicable})
{
}

UiEnumType::~UiEnumType() = default;

QString UiEnumType::getLabel() const
{
    return d->label;
}

void UiEnumType::setLabel(const QString& label)
{
    d->label = label;
    Q_EMIT labelChanged();
}

QString UiEnumType::getName() const
{
    return d->name;
}

void UiEnumType::setName(const QString& name)
{
    d->name = name;
}

int UiEnumType::getValue() const
{
    return d->value;
}

void UiEnumType::setValue(int value)
{
    d->value = value;
    Q_EMIT valueChanged();
}

bool UiEnumType::isApplicable() const
{
    return d->isApplicable;
}

void UiEnumType::setApplicable(bool applicable)
{
    if (applicable == d->isApplicable)
        return;
    d->isApplicable = applicable;
    Q_EMIT applicableChanged();
}
