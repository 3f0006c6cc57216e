#pragma once

#include "replay/recordeditem_p.h"

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>

class KIVClientInterface;
class KIVClientItem;

namespace kiv::replay {

/// Writes what becomes of the items of services, a line for each change, in the form that docs/recordings.md describes.
///
/// It knows services as any client does, so that it records every platform. Each line goes to `sink` as soon as the
/// client hears of the change: a RecordingFile, or what shows or keeps the lines. What a service changes without a
/// signal (labels, limits, attributes) is found by looking at the items in turn. Everything runs on the thread of the
/// clients; nothing blocks unless the sink does.
class Recorder : public QObject
{
    Q_OBJECT

public:
    /// Receives complete lines, each with its line feed.
    using Sink = std::function<void(const QByteArray& line)>;
    /// Milliseconds since the recording began; never goes back.
    using Clock = std::function<qint64()>;

    /// What has been recorded.
    struct Counts
    {
        qint64 changes = 0;
        int services = 0;
        /// Values that are too large for a line, of which the recording says nothing.
        qint64 leftOut = 0;
    };

    /// Writes the first line. Without a clock time counts from now on.
    explicit Recorder(const Sink& sink, const Clock& clock = {});
    ~Recorder() override;

    /// Attributes to be recorded beside those that screens know; the contract cannot list an item's attributes. Call it
    /// before follow().
    void addAttributes(const QStringList& names) { m_attributes += names; }

    /// Records the service of the client, which may be away: all its items now, or when it comes; then every change,
    /// its end and its return. A client is followed once.
    void follow(KIVClientInterface* client);

    /// Looks at the next `count` items for what changes without a signal. An event loop does so five times a second.
    void lookAround(int count);

    Counts counts() const { return m_counts; }
    /// Milliseconds since the recording began.
    qint64 time() const { return m_clock(); }

private:
    struct Watched
    {
        QPointer<KIVClientItem> item;
        /// Names service and item in each line.
        QByteArray place;
        QuietFacts quiet;
        QString unit;
        QByteArray members;
    };
    struct Followed
    {
        KIVClientInterface* client = nullptr;
        QByteArray place;
        bool isThere = false;
        bool isCounted = false;
        std::map<QString, std::unique_ptr<Watched>> items;
        /// Ends the connections to the items.
        std::unique_ptr<QObject> connections;
    };

    void look(Followed* service);
    void lose(Followed* service);
    void takeItems(Followed* service);
    void watch(Watched* watched, KIVClientItem* item, const QObject* connections);
    void describe(Watched* watched);
    void recordValue(Watched* watched);
    void recordUnit(Watched* watched);
    void recordQuiet(Watched* watched);
    void recordField(const Watched& watched, const char* name, const QVariant& value);
    void begin(const QByteArray& place);
    bool end();
    void endChange();

    const Sink m_sink;
    Clock m_clock;
    QStringList m_attributes;
    std::map<const KIVClientInterface*, std::unique_ptr<Followed>> m_services;
    QByteArray m_line;
    /// How lines of a moment begin; many changes come at once.
    QByteArray m_lineBegin;
    qint64 m_lineTime = 0;
    QTimer m_looks;
    /// Where lookAround() goes on.
    const KIVClientInterface* m_lookedAt = nullptr;
    QString m_lookedAtItem;
    Counts m_counts;
};

/// Makes a clock of milliseconds that begins now.
Recorder::Clock clockFromNow();

} // namespace kiv::replay
