#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>

class KIVClientInterface;
class KIVClientItem;

namespace uiutils::kivctl {

class Services;
struct Options;

/// Prints the items of services and what becomes of them, a line each time.
class Watch : public QObject
{
    Q_OBJECT

public:
    Watch(const QString& prefix, bool isJson);

    void follow(const QString& service);

private:
    struct Watched
    {
        QPointer<KIVClientItem> item;
        /// As it was last printed: several signals of one change are one line.
        QByteArray line;
    };
    using WatchedItems = QHash<QString, Watched>;

    void look(KIVClientInterface* client);
    void watchItem(const QString& service, KIVClientItem* item);
    void show(const QString& service, const QString& id, const KIVClientItem* item);
    QByteArray lineOf(const QString& service, const QString& id, const KIVClientItem* item) const;

    const QString m_prefix;
    const bool m_isJson;
    QHash<QString, WatchedItems> m_watched;
};

/// The command: ends with the reader of standard output, or by SIGINT or SIGTERM.
int watch(Services& services, const Options& options);

} // namespace uiutils::kivctl
