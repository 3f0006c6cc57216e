#pragma once

#include "files.h"
#include "ui_host/host.h"

#include <embedded/embeddedservice.h>
#include <kiv/kivclientinterface.h>

#include <QTemporaryDir>
#include <QtTest>

/// A host with two small services in this process.
class Stand
{
public:
    Stand()
    {
        qputenv("KIV_PLATFORM", "embedded");
        writeFile(m_folder.filePath("services/meter.service.json"), R"({ "service": "com.example.meter", "items": [
            { "id": ":config:meter:test:range:", "type": "int", "value": 7, "label": "Range", "minimum": 0, "maximum": 100 },
            { "id": ":config:meter:test:locked:", "type": "int", "value": 1, "refuse": "The key is turned." },
            { "id": ":result:meter:test:power:", "type": "double", "value": 1.5, "unit": "dBm", "label": "Optical Power" },
            { "id": ":result:meter:trace:doubleARRAY:", "type": "doubleARRAY", "value": [1, 2, 3] },
            { "id": ":result:meter:test:table:", "type": "listAggregate", "value": [ { "a": 1 }, { "a": 2 } ],
              "members": [ { "name": "a", "type": "int" } ] },
            { "id": ":result:meter:manifest:", "type": "std::string", "value": "" },
            { "id": ":action:meter:test:run:", "type": "action", "label": "Run", "does": { "reply": "Ran %1" } } ] })");
        writeFile(m_folder.filePath("services/clock.service.json"), R"({ "service": "clock", "delay": 20, "items": [
            { "id": ":config:clock:zone:", "type": "std::string", "value": "UTC", "label": "Power Saving" } ] })");
        if (!host.start({{m_folder.filePath("services")}, m_folder.filePath("root")}))
            qFatal("no services");
        meter = host.ownService("com.example.meter");
        client = KIVClientInterface::getSessionBusClient("com.example.meter");
    }

    QString path(const QString& name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;

public:
    uiutils::Host host;
    kiv::embedded::EmbeddedService* meter = nullptr;
    KIVClientInterface* client = nullptr;
};

const QString rangeId = ":config:meter:test:range:";
const QString lockedId = ":config:meter:test:locked:";
const QString powerId = ":result:meter:test:power:";
