#pragma once

#include <QMap>
#include <QObject>
#include <QPointer>
#include <QStringList>

namespace kiv::embedded {

class EmbeddedClient;
class EmbeddedService;

/// Where a service of one name is or was published. It outlives the service, so that clients find the next one.
class ServicePlace : public QObject
{
    Q_OBJECT

public:
    ServicePlace(const QString& name, QObject* parent);

    QString name() const { return m_name; }
    EmbeddedService* service() const { return m_service; }
    EmbeddedClient* sharedClient() const { return m_sharedClient; }
    QString file() const { return m_file; }

    /// Takes over a service, and the path of the file that described it, if any.
    void publish(EmbeddedService* service, const QString& file);
    /// Removes the service. The place may have been deleted after that.
    void withdraw();

Q_SIGNALS:
    void itemsChanged();
    void errorReported(const QString& text);

private:
    const QString m_name;
    QPointer<EmbeddedService> m_service;
    EmbeddedClient* m_sharedClient;
    QString m_file;
};

/// The places of all services of a back end.
class ServiceRegistry : public QObject
{
    Q_OBJECT

public:
    /// The place of that name; null when nothing was ever published under it.
    ServicePlace* place(const QString& name) const { return m_places.value(name); }
    ServicePlace* makePlace(const QString& name);

    /// The published services in ascending order of their names.
    QVector<EmbeddedService*> services() const;
    QStringList names() const;

private:
    QMap<QString, ServicePlace*> m_places;
};

} // namespace kiv::embedded
