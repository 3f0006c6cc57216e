#pragma once

#include "platformsetup.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>

/// Drives services of this process.
class EmbeddedSetup final : public PlatformSetup
{
public:
    static std::unique_ptr<EmbeddedSetup> createEmbedded(const QStringList& serviceFiles)
    {
        auto setup = std::make_unique<EmbeddedSetup>();
        for (const QString& file : serviceFiles) {
            if (!setup->backend.loadFile(file))
                return nullptr;
        }
        return setup;
    }

    bool report(const QString& service, const QString& id, const QVariant& value) override
    {
        return of(service) && of(service)->setValue(id, value);
    }

    bool change(const QString& service, const QString& id, Answer answer, const QVariant& value) override
    {
        kiv::embedded::EmbeddedService* published = of(service);
        switch (published ? answer : Answer(-1)) {
        case Answer::Ready:
            return published->setReady(id, value.toBool());
        case Answer::Quality:
            return published->setQuality(id, KIVClientItem::Quality(value.toInt()));
        case Answer::Unit:
            return published->setUnit(id, value.toString());
        case Answer::Applicable:
            return published->setApplicable(id, value.toBool());
        case Answer::Refusal:
            return published->setRefusal(id, value.toString());
        }
        return false;
    }

    bool setChoices(const QString& service, const QString& id, const QVector<Choice>& choices) override
    {
        QVector<kiv::embedded::ChoiceDescription> descriptions;
        for (const Choice& choice : choices)
            descriptions.append({choice.value, choice.name, QString(), true});
        return of(service) && of(service)->setChoices(id, descriptions);
    }

    bool addItem(const QString& service, const QString& id, const QString& type, const QVariant& value) override
    {
        kiv::embedded::ItemDescription item;
        item.id = id;
        item.type = type;
        item.value = value;
        return of(service) && of(service)->addItem(item);
    }

    bool removeItem(const QString& service, const QString& id) override
    {
        return of(service) && of(service)->removeItem(id);
    }

    bool setReachable(const QString& service, bool isReachable) override
    {
        return of(service) && (of(service)->setReachable(isReachable), true);
    }

    bool setMounted(const QString& service, const QString& path, bool isMounted) override
    {
        return of(service) && of(service)->setMounted(path, isMounted);
    }

    bool reportError(const QString& service, const QString& text) override
    {
        return of(service) && (of(service)->reportError(text), true);
    }

    bool setDelay(const QString& service, int ms) override { return of(service) && (of(service)->setDelay(ms), true); }

    kiv::embedded::EmbeddedBackend backend;

private:
    kiv::embedded::EmbeddedService* of(const QString& service) const { return backend.service(service); }
};
