#pragma once

#include "inifile.h"

#include <kiv/kivclientinterface.h>

#include <QFileSystemWatcher>

class IniItem;

/// A service that is an INI file: reads it, follows what other programs write into it, and writes what pages set.
class IniClient final : public KIVClientInterface
{
    Q_OBJECT

public:
    /// The service is called as the file at `path` without its suffix. While there is no file, the service is away.
    explicit IniClient(const QString& path, QObject* parent = nullptr);

    bool isValid() const override { return m_isThere; }
    QString getServiceName() const override { return m_name; }
    QStringList getItemIds(const QString& prefix = QString()) const override;
    bool getItemList(const QString& service, QStringList* ids) const override;
    KIVClientItem* getItem(const QString& id) const override;
    bool setItem(const QString& id, const QVariant& value) override;
    bool sendAction(const QString& id, const QString& argument, QString* reply, int timeoutMs) override;
    bool invokeAction(const QString& id) override;
    QString getLastError() const override { return m_error; }

private:
    void read();
    bool takeItems(const QMap<QString, IniSection>& sections);
    bool set(const QVariantMap& valuesById);
    QString settingId(const QString& nameOrId) const;
    bool fail(const QString& error);

    const QString m_path;
    const QString m_name;
    bool m_isThere = false;
    QString m_error;
    QMap<QString, IniItem*> m_items;
    QFileSystemWatcher m_watcher;
};
