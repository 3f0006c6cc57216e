#include "recordedvalues_p.h"

#include "simulationtexts_p.h"

#include "replay/recordingreader_p.h"

namespace kiv::simulation {

using replay::Entry;

namespace {

/// Puts values that come at any time on an even scale.
class Sampler
{
public:
    explicit Sampler(qint64 everyMs)
        : m_everyMs(everyMs)
    {
    }

    bool hasBegun() const { return m_begin >= 0; }
    bool isFull() const { return m_values.size() >= mostRecordedValues; }

    void set(qint64 time, const QVariant& value)
    {
        if (!hasBegun())
            m_begin = time;
        // Of several values at a moment the last one counts.
        fillBefore(time);
        m_value = value;
    }

    QVariantList finished(qint64 time)
    {
        fillBefore(time + 1);
        return m_values;
    }

private:
    void fillBefore(qint64 time)
    {
        while (!isFull() && m_begin + m_values.size() * m_everyMs < time)
            m_values += m_value;
    }

    const qint64 m_everyMs;
    qint64 m_begin = -1;
    QVariant m_value;
    QVariantList m_values;
};

bool isAbout(const Entry& entry, const QString& id)
{
    return entry.id == id && (entry.kind == Entry::Item || entry.kind == Entry::Change || entry.kind == Entry::Removed);
}

} // namespace

RecordedValues readRecordedValues(const QString& path, const QString& id, qint64 everyMs)
{
    RecordedValues recorded;
    replay::RecordingReader reader;
    if (!reader.open(path, &recorded.problem))
        return recorded;
    Sampler sampler(everyMs);
    qint64 end = 0;
    while (const std::optional<Entry> entry = reader.next()) {
        end = entry->time;
        const QJsonValue value = entry->fields.value(QLatin1String("value"));
        const bool isChanged = entry->kind != Entry::Change || !value.isUndefined();
        if (isAbout(*entry, id) && isChanged && (sampler.hasBegun() || !value.isUndefined()))
            sampler.set(entry->time, value.toVariant());
        if (sampler.isFull())
            break;
    }
    recorded.brokenLines = reader.troubles().broken;
    if (sampler.hasBegun())
        recorded.values = sampler.finished(end);
    else
        recorded.problem = Texts::tr("%1: the recording has no value of %2.").arg(path, id);
    return recorded;
}

} // namespace kiv::simulation
